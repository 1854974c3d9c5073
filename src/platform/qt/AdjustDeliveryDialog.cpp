#include "qt/AdjustDeliveryDialog.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QSignalBlocker>
#include <cmath>

#include "foundation/Localizer.h"
#include "qt/FieldBinding.h"
#include "qt/LongDate.h"
#include "qt/Text.h"
#include "ui_AdjustDelivery.h"

namespace nascor::qt {
namespace {

QString said(const char* sentence) { return QCoreApplication::translate("AdjustDelivery", sentence); }

framework::TextField* fieldNamed(app::NCDocument& document, const QWidget& widget) {
  for (framework::TextField* field : document.textFields()) {
    if (fromUtf8(field->name()) == widget.objectName()) return field;
  }
  return nullptr;
}

}  // namespace

AdjustDeliveryDialog::AdjustDeliveryDialog(app::NCDocument& document, const foundation::Services& services,
                                           Perform perform, QWidget* parent)
    : QDialog(parent),
      services_(services),
      perform_(std::move(perform)),
      ui_(std::make_unique<Ui::AdjustDelivery>()),
      document_(&document) {
  ui_->setupUi(this);
  ui_->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  const int room = fontMetrics().horizontalAdvance(longestDateText());
  ui_->adjustEDDLongForm->setMinimumWidth(room);
  ui_->adjustDeliverOnLongForm->setMinimumWidth(room);
  for (QLineEdit* edit : {ui_->adjustEDDField, ui_->adjustDeliverOnField, ui_->adjustDeliverAtField}) {
    if (framework::TextField* field = fieldNamed(document, *edit)) {
      bindReadOnly(*edit, *field);
      connect(edit, &QLineEdit::textChanged, this, [this] { refresh(); });
    }
  }
  document.adjustDeliveryStepper().onChange = [this] { refresh(); };
  connect(ui_->adjustDeliveryStepper, &QSpinBox::valueChanged, this, [this](int days) {
    perform_([days](app::NCDocument& planned) {
      planned.adjustDeliveryStepper().setValue(days);
      planned.adjustDeliveryDate(nullptr);
    });
    refresh();
  });
  for (framework::Panel* panel : document.panels()) {
    if (fromUtf8(panel->name()) == objectName()) panel_ = panel;
  }
  if (panel_) {
    panel_->onChange = [this] { showPanel(); };
    panel_->onCenter = [this] {
      adjustSize();
      if (const QWidget* window = parentWidget())
        move(window->geometry().center() - QRect(QPoint(), size()).center());
    };
  }
  refresh();
}

AdjustDeliveryDialog::~AdjustDeliveryDialog() = default;

void AdjustDeliveryDialog::release() {
  if (!document_) return;
  for (const QLineEdit* edit : {ui_->adjustEDDField, ui_->adjustDeliverOnField, ui_->adjustDeliverAtField}) {
    if (framework::TextField* field = fieldNamed(*document_, *edit)) field->onChange = nullptr;
  }
  document_->adjustDeliveryStepper().onChange = nullptr;
  if (panel_) {
    panel_->onChange = nullptr;
    panel_->onCenter = nullptr;
  }
  panel_ = nullptr;
  document_ = nullptr;
}

void AdjustDeliveryDialog::done(int result) {
  QDialog::done(result);
  if (panel_ && panel_->isShown()) panel_->close();
}

void AdjustDeliveryDialog::refresh() {
  if (!document_) return;
  const framework::Stepper& stepper = document_->adjustDeliveryStepper();
  QSpinBox& spin = *ui_->adjustDeliveryStepper;
  const QSignalBlocker quiet(&spin);
  spin.setRange(static_cast<int>(std::lround(stepper.minimum())),
                static_cast<int>(std::lround(stepper.maximum())));
  spin.setValue(std::isfinite(stepper.value()) ? static_cast<int>(std::lround(stepper.value())) : 0);
  const QString range =
      said("%1 to %2 days").arg(QString::number(spin.minimum()), QString::number(spin.maximum()));
  ui_->adjustDeliveryHint->setText(range);
  spin.setToolTip(said("Days from the EDD to the planned delivery, %1").arg(range));
  spin.setAccessibleDescription(spin.toolTip());
  const foundation::ShortDateForm form = services_.localizer.shortDateForm();
  ui_->adjustEDDLongForm->setText(longDateText(ui_->adjustEDDField->text(), form));
  ui_->adjustDeliverOnLongForm->setText(longDateText(ui_->adjustDeliverOnField->text(), form));
}

void AdjustDeliveryDialog::showPanel() {
  if (!panel_->isShown()) {
    hide();
    return;
  }
  refresh();
  show();
  raise();
  activateWindow();
  ui_->adjustDeliveryStepper->setFocus();
}

}  // namespace nascor::qt
