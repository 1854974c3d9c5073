// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/DatingDialogs.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <array>
#include <utility>

#include "base/LongDate.h"
#include "base/Text.h"
#include "calc/Dating.h"
#include "foundation/Localizer.h"
#include "foundation/ShortDate.h"
#include "ui_EDDFromCRL.h"
#include "ui_EDDFromLMP.h"
#include "ui_EDDFromMeasurements.h"
#include "window/FieldBinding.h"
#include "window/FieldEdit.h"
#include "window/SelectOnClick.h"

namespace nascor::qt {

using app::NCDocument;

namespace {

/// The EDD, the age today, the difference, and what would become of the examinations.
constexpr int kProposalLines = 5;

/// Makes `edit`, which only shows, wide enough for `text` on the narrowest screen too.
void giveRoom(QLineEdit& edit, const QString& text) {
  constexpr int kFrameAndMargins = 16;
  edit.setMinimumWidth(
      std::max(edit.minimumWidth(), edit.fontMetrics().horizontalAdvance(text) + kFrameAndMargins));
}

/// `hint` behind a field is part of what is said of it.
void describe(FieldEdit& edit, const QString& what, const QString& hint) {
  edit.setToolTip(said("DatingDialogs", "%1, %2").arg(what, hint));
  edit.setAccessibleDescription(edit.toolTip());
}

}  // namespace

DatingDialog::DatingDialog(NCDocument& document, const foundation::Services& services, Actions& actions,
                           Perform perform, QWidget* parent)
    : PanelDialog(document, std::move(perform), parent), services_(services), actions_(actions) {}

void DatingDialog::bindField(FieldEdit& edit) {
  bindings_.push_back(new FieldBinding(edit, fieldFor(edit), document()->fieldEditor(), actions_));
  new SelectOnClick(edit);
  connect(&edit, &QLineEdit::textChanged, this, [this] { forgetObstacles(); });
}

void DatingDialog::bindDate(FieldEdit& edit, QLabel& form, QLabel& longForm) {
  const foundation::Localizer& localizer = services_.localizer;
  const QString example = exampleDateText(localizer);
  form.setText(said("DatingDialogs", "such as %1").arg(example));
  describe(edit, edit.toolTip(), said("DatingDialogs", "for example %1").arg(example));
  longForm.setMinimumWidth(fontMetrics().horizontalAdvance(longestDateText(localizer)));
  const auto showLongForm = [&edit, &longForm, &localizer] {
    const QString text = edit.text().trimmed();
    const QString inWords = longDateText(text, localizer);
    longForm.setText(!inWords.isEmpty() || text.isEmpty() ? inWords : said("DatingDialogs", "no date"));
  };
  connect(&edit, &QLineEdit::textChanged, this, showLongForm);
  bindField(edit);
  showLongForm();
}

void DatingDialog::bindText(QLabel& label, framework::TextField& text, int lines) {
  label.setMinimumHeight(lines * label.fontMetrics().lineSpacing());
  keep(bindLabel(label, text));
}

void DatingDialog::bindProposal(QLabel& label, framework::TextField& text) {
  bindText(label, text, kProposalLines);
  proposalShown_ = &text;
}

void DatingDialog::accept() {
  const std::string shown = proposalShown_ != nullptr ? proposalShown_->text() : "";
  // Not for a field that refuses its text: that one is outlined by itself.
  perform([this, shown](NCDocument& document) {
    // A length that was in edit in the window counts only now: what comes of it is shown first.
    const bool isAsShown = proposalShown_ == nullptr || proposalShown_->text() == shown;
    if (isAsShown) setEDD(document);
    if (isPanelShown()) outline(proposal(document).obstacles);
  });
}

FieldEdit* DatingDialog::editFor(const framework::TextField& obstacle) const {
  // Not findChild<FieldEdit*>: a class without Q_OBJECT is not told from its base there.
  return dynamic_cast<FieldEdit*>(findChild<QLineEdit*>(fromUtf8(obstacle.name())));
}

void DatingDialog::outline(const std::vector<const framework::TextField*>& obstacles) {
  forgetObstacles();
  FieldEdit* first = nullptr;
  for (const framework::TextField* obstacle : obstacles) {
    FieldEdit* edit = editFor(*obstacle);
    if (!edit) continue;
    edit->setObstacle(true);
    edit->setAccessibleDescription(
        said("DatingDialogs", "Keeps the EDD from being set. %1").arg(edit->toolTip()));
    if (!first) first = edit;
  }
  if (!first) return;
  first->setFocus();
  if (!first->isReadOnly()) first->selectAll();
}

void DatingDialog::forgetObstacles() {
  for (QLineEdit* line : findChildren<QLineEdit*>()) {
    auto* edit = dynamic_cast<FieldEdit*>(line);
    if (!edit || !edit->isObstacle()) continue;
    edit->setObstacle(false);
    edit->setAccessibleDescription(edit->toolTip());
  }
}

EDDFromCRLDialog::EDDFromCRLDialog(NCDocument& document, const foundation::Services& services,
                                   Actions& actions, Perform perform, QWidget* parent)
    : DatingDialog(document, services, actions, std::move(perform), parent),
      ui_(std::make_unique<Ui::EDDFromCRL>()) {
  ui_->setupUi(this);
  bindDate(*ui_->crlWindowDate, *ui_->crlWindowDateForm, *ui_->crlWindowDateLongForm);
  bindField(*ui_->crlWindowCRL);
  bindText(*ui_->crlWindowExamination, document.assessment().crlExamination);
  bindProposal(*ui_->crlWindowProposal, document.assessment().crlProposal);
  framework::TextField& formula = fieldFor(*ui_->crlStandardReference);
  keep(bindReadOnly(*ui_->crlStandardReference, formula));
  keep(formula.onChange.subscribe([this] { refresh(); }));
  bindPanel();
  refresh();
}

EDDFromCRLDialog::~EDDFromCRLDialog() = default;

void EDDFromCRLDialog::refresh() {
  if (!document()) return;
  forgetObstacles();
  const model::PatientRecord* patient = document()->patientRecord();
  const calc::CRLFormula* formula = patient ? calc::crlFormula(patient->crlStandard()) : nullptr;
  const QString what = said("DatingDialogs", "Crown-rump length");
  if (!formula) {
    ui_->crlWindowCRLHint->setText(said("DatingDialogs", "mm"));
    describe(*ui_->crlWindowCRL, what, said("DatingDialogs", "mm"));
    return;
  }
  const auto number = [this](double value) {
    return QString::number(value).replace(u'.', QLatin1Char(services().localizer.decimalSign()));
  };
  const QString least = number(formula->least);
  const QString greatest = number(formula->greatest);
  ui_->crlWindowCRLHint->setText(said("DatingDialogs", "mm (%1\u2013%2)").arg(least, greatest));
  describe(*ui_->crlWindowCRL, what, said("DatingDialogs", "%1 to %2 mm").arg(least, greatest));
}

void EDDFromCRLDialog::focusFirst() {
  FieldEdit* first = ui_->crlWindowDate->text().isEmpty() ? ui_->crlWindowDate : ui_->crlWindowCRL;
  first->setFocus();
  first->selectAll();
}

void EDDFromCRLDialog::setEDD(NCDocument& document) { document.okSetEDDfromCRL(nullptr); }

app::ProposedEDD EDDFromCRLDialog::proposal(const NCDocument& document) const {
  return document.eddFromCRL();
}

EDDFromLMPDialog::EDDFromLMPDialog(NCDocument& document, const foundation::Services& services,
                                   Actions& actions, Perform perform, QWidget* parent)
    : DatingDialog(document, services, actions, std::move(perform), parent),
      ui_(std::make_unique<Ui::EDDFromLMP>()) {
  ui_->setupUi(this);
  bindDate(*ui_->lmpWindowLMP, *ui_->lmpWindowLMPForm, *ui_->lmpWindowLMPLongForm);
  bindField(*ui_->lmpWindowCycleField);
  bindField(*ui_->lmpWindowLutealField);
  bindProposal(*ui_->lmpWindowProposal, document.assessment().lmpProposal);
  bindPanel();
}

EDDFromLMPDialog::~EDDFromLMPDialog() = default;

void EDDFromLMPDialog::refresh() { forgetObstacles(); }

void EDDFromLMPDialog::focusFirst() {
  ui_->lmpWindowLMP->setFocus();
  ui_->lmpWindowLMP->selectAll();
}

void EDDFromLMPDialog::setEDD(NCDocument& document) { document.okSetEDDfromLMP(nullptr); }

app::ProposedEDD EDDFromLMPDialog::proposal(const NCDocument& document) const {
  return document.eddFromLMP();
}

/// One measurement of the dialog.
struct EDDFromMeasurementsDialog::Row {
  framework::CheckBox& box;
  QCheckBox& check;
  QLabel& value;
  QLineEdit& gestation;
  QLabel& sign;
  const framework::NumberField& length;
  const framework::TextField& datingRemark;
};

std::vector<EDDFromMeasurementsDialog::Row> EDDFromMeasurementsDialog::rows() const {
  const Ui::EDDFromMeasurements& ui = *ui_;
  NCDocument& shown = *document();
  const auto boxOf = [&](calc::Measurement length) -> framework::CheckBox& {
    return shown.measurementsPanel().row(length).check;
  };
  return {{boxOf(calc::Measurement::bpd), *ui.measurementsWindowBPDCheck, *ui.measurementsWindowBPDValue,
           *ui.measurementsWindowBPDGestation, *ui.measurementsWindowBPDSign, shown.bpdField(),
           shown.assessment().length(calc::Measurement::bpd).datingRemark},
          {boxOf(calc::Measurement::hc), *ui.measurementsWindowHCCheck, *ui.measurementsWindowHCValue,
           *ui.measurementsWindowHCGestation, *ui.measurementsWindowHCSign, shown.hcField(),
           shown.assessment().length(calc::Measurement::hc).datingRemark},
          {boxOf(calc::Measurement::ac), *ui.measurementsWindowACCheck, *ui.measurementsWindowACValue,
           *ui.measurementsWindowACGestation, *ui.measurementsWindowACSign, shown.acField(),
           shown.assessment().length(calc::Measurement::ac).datingRemark},
          {boxOf(calc::Measurement::fl), *ui.measurementsWindowFLCheck, *ui.measurementsWindowFLValue,
           *ui.measurementsWindowFLGestation, *ui.measurementsWindowFLSign, shown.flField(),
           shown.assessment().length(calc::Measurement::fl).datingRemark}};
}

EDDFromMeasurementsDialog::EDDFromMeasurementsDialog(NCDocument& document,
                                                     const foundation::Services& services, Actions& actions,
                                                     Perform perform, QWidget* parent)
    : DatingDialog(document, services, actions, std::move(perform), parent),
      ui_(std::make_unique<Ui::EDDFromMeasurements>()) {
  ui_->setupUi(this);
  letWindowThrough(*ui_->measurementsWindowExamination);
  for (const Row& row : rows()) {
    keep(bindReadOnly(row.gestation, fieldFor(row.gestation)));
    giveRoom(row.gestation, QStringLiteral("-40w -6d"));
    framework::CheckBox& box = row.box;
    keep(box.onChange.subscribe([this] { refresh(); }));
    connect(&row.check, &QCheckBox::clicked, this, [this, &box](bool on) {
      this->perform([&box, on](NCDocument& checked) {
        box.setOn(on);
        checked.updateEDDfromMeasurements(nullptr);
      });
      refresh();
    });
  }
  bindProposal(*ui_->measurementsWindowProposal, document.assessment().measurementsProposal);
  // The average is shown last, when all the others are as they are to be.
  framework::TextField& average = fieldFor(*ui_->measurementsWindowAvGestation);
  keep(bindReadOnly(*ui_->measurementsWindowAvGestation, average));
  giveRoom(*ui_->measurementsWindowAvGestation, QStringLiteral("-40w -6d"));
  keep(average.onChange.subscribe([this] { refresh(); }));
  bindPanel();
  refresh();
}

EDDFromMeasurementsDialog::~EDDFromMeasurementsDialog() = default;

void EDDFromMeasurementsDialog::refresh() {
  if (!document()) return;
  forgetObstacles();
  for (const Row& row : rows()) {
    const QSignalBlocker quiet(&row.check);
    row.check.setChecked(row.box.isOn());
    giveRoom(row.gestation, row.gestation.text());
    row.value.setText(said("DatingDialogs", "%1 mm").arg(fromUtf8(row.length.text())));
    // Never by colour alone.
    QString sign;
    QString description = row.gestation.toolTip();
    if (fieldFor(row.gestation).isRed()) {
      const bool isMeasured = row.length.doubleValue() != 0.0;
      sign = isMeasured ? said("DatingDialogs", "! beyond 2 SD") : said("DatingDialogs", "! not measured");
      description = (isMeasured ? said("DatingDialogs",
                                       "More than 2 standard deviations from the mean at the average. %1")
                                : said("DatingDialogs", "Not measured. %1"))
                        .arg(description);
    }
    const QString beyond = fromUtf8(row.datingRemark.text());
    if (!beyond.isEmpty()) {
      sign += (sign.isEmpty() ? QStringLiteral("! ") : QStringLiteral(", ")) + beyond;
      description = beyond + QStringLiteral(". ") + description;
    }
    row.sign.setText(sign);
    row.gestation.setAccessibleDescription(description);
  }
  const NCDocument& shown = *document();
  const QString inWords = longDateText(fromUtf8(shown.examDateField().text()), services().localizer);
  const QString place = fromUtf8(foundation::format(services().localizer.text("MyDocument", "%ld of %ld"),
                                                    {shown.currentExam() + 1, shown.numberOfExaminations()}));
  const auto& popUp = shown.multiplePopUp();
  const auto fetus = static_cast<std::size_t>(std::max<std::int64_t>(popUp.indexOfSelectedItem(), 0));
  const QString title = fetus < popUp.items().size() ? fromUtf8(popUp.items().at(fetus).title) : QString();
  ui_->measurementsWindowExamination->setText(
      said("DatingDialogs", "%1, %2, %3")
          .arg(place, inWords.isEmpty() ? said("DatingDialogs", "no date") : inWords, title));
  giveRoom(*ui_->measurementsWindowAvGestation, ui_->measurementsWindowAvGestation->text());
  giveRoom(*ui_->measurementsWindowExamination, ui_->measurementsWindowExamination->text());
  ui_->measurementsWindowExamination->setCursorPosition(0);
}

void EDDFromMeasurementsDialog::focusFirst() { ui_->measurementsWindowBPDCheck->setFocus(); }

void EDDFromMeasurementsDialog::setEDD(NCDocument& document) { document.okSetEDDfromMeasurements(nullptr); }

app::ProposedEDD EDDFromMeasurementsDialog::proposal(const NCDocument& document) const {
  return document.eddFromMeasurements();
}

// What stands in the way is the date of the examination, which is a field of the window.
FieldEdit* EDDFromMeasurementsDialog::editFor(const framework::TextField&) const {
  return ui_->measurementsWindowExamination;
}

}  // namespace nascor::qt
