// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/AdjustDeliveryDialog.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <cmath>
#include <utility>

#include "base/LongDate.h"
#include "base/Text.h"
#include "foundation/Localizer.h"
#include "ui_AdjustDelivery.h"
#include "window/FieldBinding.h"
#include "window/SelectOnClick.h"

namespace nascor::qt {

AdjustDeliveryDialog::AdjustDeliveryDialog(app::NCDocument& document, const foundation::Services& services,
                                           Perform perform, QWidget* parent)
    : PanelDialog(document, std::move(perform), parent),
      services_(services),
      ui_(std::make_unique<Ui::AdjustDelivery>()) {
  ui_->setupUi(this);
  ui_->buttonBox->button(QDialogButtonBox::Close)->setAutoDefault(false);
  const int room = fontMetrics().horizontalAdvance(longestDateText(services.localizer));
  ui_->adjustEDDLongForm->setMinimumWidth(room);
  ui_->adjustDeliverOnLongForm->setMinimumWidth(room);
  // A line edit asks for the width of seventeen letters, and takes next to none where there is less.
  constexpr int kMargins = 12;
  const int typed = fontMetrics().horizontalAdvance(exampleDateText(services.localizer)) + kMargins;
  ui_->adjustEDDField->setMinimumWidth(typed);
  ui_->adjustDeliverOnField->setMinimumWidth(typed);
  for (QLineEdit* edit : {ui_->adjustEDDField, ui_->adjustDeliverOnField, ui_->adjustDeliverAtField}) {
    keep(bindReadOnly(*edit, fieldFor(*edit)));
    connect(edit, &QLineEdit::textChanged, this, [this] { refresh(); });
  }
  keep(document.adjustDeliveryStepper().onChange.subscribe([this] { refresh(); }));
  connect(ui_->adjustDeliveryStepper, &QSpinBox::valueChanged, this, [this](int days) {
    this->perform([days](app::NCDocument& planned) {
      planned.adjustDeliveryStepper().setValue(days);
      planned.adjustDeliveryDate(nullptr);
    });
    refresh();
  });
  new SelectOnClick(*ui_->adjustDeliveryStepper->findChild<QLineEdit*>());
  bindPanel();
  refresh();
}

AdjustDeliveryDialog::~AdjustDeliveryDialog() = default;

void AdjustDeliveryDialog::refresh() {
  if (!document()) return;
  const framework::Stepper& stepper = document()->adjustDeliveryStepper();
  QSpinBox& spin = *ui_->adjustDeliveryStepper;
  const QSignalBlocker quiet(&spin);
  spin.setRange(static_cast<int>(std::lround(stepper.minimum())),
                static_cast<int>(std::lround(stepper.maximum())));
  spin.setValue(std::isfinite(stepper.value()) ? static_cast<int>(std::lround(stepper.value())) : 0);
  const QString range = said("AdjustDelivery", "%1 to %2 days")
                            .arg(QString::number(spin.minimum()), QString::number(spin.maximum()));
  ui_->adjustDeliveryHint->setText(range);
  spin.setToolTip(said("AdjustDelivery", "Days from the EDD to the planned delivery, %1").arg(range));
  spin.setAccessibleDescription(spin.toolTip());
  const foundation::Localizer& localizer = services_.localizer;
  ui_->adjustEDDLongForm->setText(longDateText(ui_->adjustEDDField->text(), localizer));
  ui_->adjustDeliverOnLongForm->setText(longDateText(ui_->adjustDeliverOnField->text(), localizer));
}

void AdjustDeliveryDialog::focusFirst() {
  ui_->adjustDeliveryStepper->setFocus();
  ui_->adjustDeliveryStepper->selectAll();
}

}  // namespace nascor::qt
