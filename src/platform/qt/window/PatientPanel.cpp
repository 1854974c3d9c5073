// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/PatientPanel.h"

#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <utility>

#include "base/LongDate.h"
#include "base/Text.h"
#include "calc/EditingBounds.h"
#include "foundation/Localizer.h"
#include "foundation/Utf8.h"
#include "framework/LongText.h"
#include "ui_MyDocument.h"
#include "window/FieldBinding.h"
#include "window/SelectOnClick.h"

namespace nascor::qt {

PatientPanel::PatientPanel(QWidget& window, Ui::MyDocument& ui, QLabel& status, app::NCDocument& document,
                           const foundation::Services& services, Actions& actions)
    : QObject(&window),
      window_(window),
      ui_(ui),
      status_(status),
      document_(&document),
      services_(services),
      actions_(actions) {
  describeFields();
  bindFields();
  bindNote();
  bindAssessment();
  // Qt scrolls for the Tab key alone, not for a letter, Return, or the program.
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
    if (now && ui_.patientPanel->isAncestorOf(now)) ui_.panelScroll->ensureWidgetVisible(now);
  });
  subscriptions_.push_back(document.fieldEditor().onChange.subscribe([this] { showEditing(); }));
  subscriptions_.push_back(document.statusLine().onChange.subscribe([this] { showEditing(); }));
}

void PatientPanel::release() {
  subscriptions_.clear();
  for (FieldBinding* binding : bindings_) binding->release();
  document_ = nullptr;
}

void PatientPanel::add(const std::vector<FieldBinding*>& bindings) {
  bindings_.insert(bindings_.end(), bindings.begin(), bindings.end());
}

void PatientPanel::bindFields() {
  framework::FieldEditor& editor = document_->fieldEditor();
  const std::array<std::pair<FieldEdit*, framework::TextField*>, 8> fields{
      {{ui_.referenceIDField, &document_->referenceIDField()},
       {ui_.gravidaField, &document_->gravidaField()},
       {ui_.birthDateField, &document_->birthDateField()},
       {ui_.examDateField, &document_->examDateField()},
       {ui_.bpdField, &document_->bpdField()},
       {ui_.hcField, &document_->hcField()},
       {ui_.acField, &document_->acField()},
       {ui_.flField, &document_->flField()}}};
  for (const auto& [edit, field] : fields)
    bindings_.push_back(new FieldBinding(*edit, *field, editor, actions_));
  // A reference ID is corrected more often than replaced: a click places the caret there.
  for (const auto& [edit, field] : fields) {
    if (edit != ui_.referenceIDField) new SelectOnClick(*edit);
  }
  subscriptions_.push_back(bindReadOnly(*ui_.ageField, document_->ageField()));
  for (const FieldEdit* edit : {ui_.birthDateField, ui_.examDateField})
    connect(edit, &QLineEdit::textChanged, this, [this] { showLongDates(); });
}

void PatientPanel::bindNote() {
  framework::TextView& note = document_->notesField();
  NoteEdit* noteEdit = ui_.notesField;
  subscriptions_.push_back(note.onChange.subscribe([noteEdit, &note] {
    const QString text = fromUtf8(framework::shownInEdit(note.text(), framework::kMostInNote));
    noteEdit->setReadOnly(!note.isEditable());
    noteEdit->setShownInPart(note.isShownInPart());
    noteEdit->setPlaceholderText(
        note.isEditable() ? QString() : said("MyDocument", "There is no examination to note this at."));
    if (noteEdit->toPlainText() == text) return;
    const QSignalBlocker quiet(noteEdit);
    noteEdit->setPlainText(text);
    noteEdit->setInEdit(false);
  }));
  // Not at once: an action that moved the focus has its own order of storing and showing.
  subscriptions_.push_back(noteEdit->onLeave.subscribe([this] {
    QMetaObject::invokeMethod(
        this,
        [this] {
          actions_.performInTurn([self = QPointer<PatientPanel>(this)] {
            if (!self || !self->document_) return;
            self->document_->noteWasLeft();
            self->ui_.notesField->setInEdit(false);
          });
        },
        Qt::QueuedConnection);
  }));
  connect(noteEdit, &QPlainTextEdit::textChanged, this, [this] {
    if (!document_) return;
    ui_.notesField->setInEdit(true);
    document_->notesField().takeEditedText(toUtf8(ui_.notesField->toPlainText()));
  });
}

void PatientPanel::bindAssessment() {
  app::Assessment& assessment = document_->assessment();
  QHash<QString, QLabel*> byName;
  for (QLabel* label : window_.findChildren<QLabel*>()) byName.insert(label->objectName(), label);
  for (framework::TextField* text : assessment.texts()) {
    // Those of the dialogs are bound by the dialogs.
    if (QLabel* label = byName.value(fromUtf8(text->name())))
      subscriptions_.push_back(bindLabel(*label, *text));
  }
  // Room for the longest, so that nothing moves while the user types. A label rounds its width up by itself.
  const auto room = [this](std::initializer_list<QLabel*> labels, const QString& longest) {
    const int width = QLabel(longest, &window_).sizeHint().width();
    for (QLabel* label : labels) label->setMinimumWidth(width);
  };
  room({ui_.bpdZ, ui_.hcZ, ui_.acZ, ui_.flZ}, QStringLiteral("+99.99"));
  room({ui_.bpdCentile, ui_.hcCentile, ui_.acCentile, ui_.flCentile}, QStringLiteral(">99.9"));
  // An empty label wants a little room too.
  const int sign = std::max(ui_.bpdSign->fontMetrics().averageCharWidth(), ui_.bpdSign->sizeHint().width());
  for (QLabel* label : {ui_.bpdSign, ui_.hcSign, ui_.acSign, ui_.flSign, ui_.ageSign})
    label->setMinimumWidth(sign);
  const auto show = [this] { showRemarks(); };
  for (const calc::Measurement measurement : calc::kMeasurements)
    subscriptions_.push_back(assessment.length(measurement).remark.onChange.subscribe(show));
  subscriptions_.push_back(assessment.ageRemark.onChange.subscribe(show));
  showRemarks();
}

void PatientPanel::describeFields() {
  const auto describe = [](QWidget* edit, QWidget* label, const QString& text) {
    edit->setToolTip(text);
    edit->setAccessibleDescription(text);
    if (label) label->setToolTip(text);
  };
  struct Row {
    calc::Measurement measurement;
    FieldEdit* edit;
    QLabel* label;
    QLabel* hint;
  };
  for (const Row& row : {Row{calc::Measurement::bpd, ui_.bpdField, ui_.bpdLabel, ui_.bpdHint},
                         Row{calc::Measurement::hc, ui_.hcField, ui_.hcLabel, ui_.hcHint},
                         Row{calc::Measurement::ac, ui_.acField, ui_.acLabel, ui_.acHint},
                         Row{calc::Measurement::fl, ui_.flField, ui_.flLabel, ui_.flHint}}) {
    const calc::EditingBounds bounds = calc::editingBounds(row.measurement);
    const QString least = QString::number(static_cast<int>(bounds.least));
    const QString greatest = QString::number(static_cast<int>(bounds.greatest));
    row.hint->setText(said("MyDocument", "mm (%1\u2013%2)").arg(least, greatest));
    describe(row.edit, row.label,
             said("MyDocument", "%1, %2 to %3 mm").arg(row.edit->toolTip(), least, greatest));
  }
  const QString example = exampleDateText(services_.localizer);
  for (FieldEdit* edit : {ui_.birthDateField, ui_.examDateField})
    describe(edit, nullptr, said("MyDocument", "%1, for example %2").arg(edit->toolTip(), example));
  const int room = window_.fontMetrics().horizontalAdvance(longestDateText(services_.localizer));
  ui_.birthDateLongForm->setMinimumWidth(room);
  ui_.examDateLongForm->setMinimumWidth(room);
  ui_.multiplePopUp->setAccessibleDescription(said("MyDocument", "The fetus on show"));
}

void PatientPanel::focusFieldInEdit() {
  if (!document_) return;
  for (FieldBinding* binding : bindings_) {
    if (binding->field() != document_->fieldEditor().field()) continue;
    FieldEdit& edit = binding->edit();
    // The click or the key that began the action may yet move the focus.
    QMetaObject::invokeMethod(
        &edit,
        [&edit] {
          edit.window()->activateWindow();
          edit.setFocus();
        },
        Qt::QueuedConnection);
  }
}

void PatientPanel::showRemarks() {
  if (!document_) return;
  struct Row {
    const framework::TextField& remark;
    QLabel* sign;
    const QLabel* label;
  };
  app::Assessment& assessment = document_->assessment();
  QStringList sentences;
  for (const Row& row : {Row{assessment.ageRemark, ui_.ageSign, ui_.ageLabel},
                         Row{assessment.length(calc::Measurement::bpd).remark, ui_.bpdSign, ui_.bpdLabel},
                         Row{assessment.length(calc::Measurement::hc).remark, ui_.hcSign, ui_.hcLabel},
                         Row{assessment.length(calc::Measurement::ac).remark, ui_.acSign, ui_.acLabel},
                         Row{assessment.length(calc::Measurement::fl).remark, ui_.flSign, ui_.flLabel}}) {
    const QString remark = fromUtf8(row.remark.text());
    row.sign->setText(remark.isEmpty() ? QString() : QStringLiteral("!"));
    row.sign->setToolTip(remark);
    if (remark.isEmpty()) continue;
    // Not before there is one: finding the bold font takes a start two milliseconds.
    QFont bold = row.sign->font();
    bold.setBold(true);
    row.sign->setFont(bold);
    sentences << said("MyDocument", "! %1: %2").arg(row.label->text().remove(u'&'), remark);
  }
  ui_.remarks->setText(sentences.join(u'\n'));
  ui_.remarks->setVisible(!sentences.isEmpty());
  const QString age = fromUtf8(assessment.ageRemark.text());
  ui_.ageField->setAccessibleDescription(age.isEmpty() ? ui_.ageField->toolTip()
                                                       : age + u' ' + ui_.ageField->toolTip());
  showEditing();
}

QString PatientPanel::remarkOn(const FieldEdit& edit) const {
  app::Assessment& assessment = document_->assessment();
  for (const auto& [length, measurement] :
       {std::pair{ui_.bpdField, calc::Measurement::bpd}, std::pair{ui_.hcField, calc::Measurement::hc},
        std::pair{ui_.acField, calc::Measurement::ac}, std::pair{ui_.flField, calc::Measurement::fl}}) {
    if (length == &edit) return fromUtf8(assessment.length(measurement).remark.text());
  }
  return {};
}

void PatientPanel::showEditing() {
  const QString message =
      document_ ? fromUtf8(foundation::oneLine(document_->statusLine().message())) : QString();
  QString permitted;
  for (FieldBinding* binding : bindings_) {
    binding->refresh();
    if (binding->edit().isRefusing()) permitted = binding->edit().toolTip();
    QString description = binding->description();
    if (document_ && !message.isEmpty() && document_->statusLine().field() == binding->field())
      description = message + QStringLiteral(". ") + description;
    const QString remark = document_ ? remarkOn(binding->edit()) : QString();
    if (!remark.isEmpty()) description = remark + u' ' + description;
    binding->edit().setAccessibleDescription(binding->edit().isRefusing()
                                                 ? said("MyDocument", "Not permitted. %1").arg(description)
                                                 : description);
  }
  status_.setText(permitted.isEmpty() ? message : said("MyDocument", "Permitted: %1").arg(permitted));
  status_.setToolTip(status_.text());
  // What a field permits is short and must be read whole.
  status_.setMinimumWidth(permitted.isEmpty() ? 0 : status_.sizeHint().width());
  showLongDates();
}

void PatientPanel::showLongDates() {
  const QString example = said("MyDocument", "such as %1").arg(exampleDateText(services_.localizer));
  const framework::TextField* told = document_ ? document_->statusLine().field() : nullptr;
  const std::array<std::pair<const FieldEdit*, QLabel*>, 2> dates{
      {{ui_.birthDateField, ui_.birthDateLongForm}, {ui_.examDateField, ui_.examDateLongForm}}};
  for (const auto& [edit, label] : dates) {
    const QString text = edit->text().trimmed();
    const QString inWords = longDateText(text, services_.localizer);
    const bool wasErased = told != nullptr && fromUtf8(told->name()) == edit->objectName();
    label->setText(edit->isReadOnly()             ? QString()
                   : !inWords.isEmpty()           ? inWords
                   : text.isEmpty() && !wasErased ? example
                                                  : said("MyDocument", "no date"));
  }
}

}  // namespace nascor::qt
