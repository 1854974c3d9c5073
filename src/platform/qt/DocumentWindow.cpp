#include "qt/DocumentWindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSignalBlocker>

#include "foundation/Localizer.h"
#include "model/PatientRecord.h"
#include "qt/Application.h"
#include "qt/PageView.h"
#include "qt/Text.h"
#include "ui_MyDocument.h"

namespace nascor::qt {
namespace {

/// The context under which the texts of the window's form are translated.
constexpr const char* kTable = "MyDocument";

QString said(const char* sentence) { return QCoreApplication::translate(kTable, sentence); }

void bind(QLineEdit* edit, framework::TextField& field) {
  // A value to read and to copy, not a field to type in.
  edit->setReadOnly(true);
  edit->setFrame(false);
  QPalette palette;
  palette.setBrush(QPalette::Base, Qt::transparent);
  edit->setPalette(palette);
  field.onChange = [edit, &field] {
    edit->setText(fromUtf8(field.text()));
    edit->setCursorPosition(0);
  };
  field.onChange();
}

void bind(QComboBox* box, framework::PopUpButton& button) {
  button.onChange = [box, &button] {
    const QSignalBlocker quiet(box);
    box->clear();
    for (const auto& item : button.items()) box->addItem(fromUtf8(item.title));
    box->setCurrentIndex(static_cast<int>(button.indexOfSelectedItem()));
  };
  button.onChange();
}

}  // namespace

DocumentWindow::DocumentWindow(std::unique_ptr<app::NCDocument> document, const QString& path,
                               const foundation::Services& services)
    : services_(services), document_(std::move(document)), ui_(std::make_unique<Ui::MyDocument>()) {
  setAttribute(Qt::WA_DeleteOnClose);
  ui_->setupUi(this);
  setWindowFilePath(path);
  setWindowTitle((path.isEmpty() ? said("Untitled") : QFileInfo(path).fileName()) + QStringLiteral("[*]"));

  addPage(document_->bpdPage());
  bindFields();
  bindActions();
  for (const auto& name :
       {foundation::NotificationName::updateStandards, foundation::NotificationName::updateShowAll}) {
    subscriptions_.push_back(services_.notifications.subscribe(name, [this](const auto&) { refresh(); }));
  }
  document_->onDisplayChanged = [this] { refresh(); };
  document_->windowControllerDidLoadNib();
  if (const QScreen* here = screen()) resize(size().boundedTo(here->availableSize()));
}

DocumentWindow::~DocumentWindow() = default;

void DocumentWindow::bindFields() {
  bind(ui_->referenceIDField, document_->referenceIDField());
  bind(ui_->birthDateField, document_->birthDateField());
  bind(ui_->examDateField, document_->examDateField());
  bind(ui_->ageField, document_->ageField());
  bind(ui_->multiplePopUp, document_->multiplePopUp());
  // Only what the user chooses: the box also changes while it is filled.
  connect(ui_->multiplePopUp, &QComboBox::activated, this, [this](int index) {
    document_->multiplePopUp().selectItemAtIndex(index);
    document_->setCurrentFetus(index);
    document_->synchronizeFromData();
  });
}

void DocumentWindow::bindActions() {
  connect(ui_->openAction, &QAction::triggered, this, [this] {
    if (onOpen) onOpen();
  });
  connect(ui_->closeAction, &QAction::triggered, this, [this] { close(); });
  connect(ui_->quitAction, &QAction::triggered, this, [] { QCoreApplication::quit(); });
  connect(ui_->previousAction, &QAction::triggered, this, [this] { document_->previousExamination(); });
  connect(ui_->nextAction, &QAction::triggered, this, [this] { document_->nextExamination(); });
  connect(ui_->aboutAction, &QAction::triggered, this, [this] { showAbout(); });
  ui_->previousButton->setDefaultAction(ui_->previousAction);
  ui_->nextButton->setDefaultAction(ui_->nextAction);
  ui_->previousButton->setArrowType(Qt::LeftArrow);
  ui_->nextButton->setArrowType(Qt::RightArrow);
}

void DocumentWindow::addPage(framework::Page& page) {
  auto* view = new PageView(page);
  const QString name = fromUtf8(page.name());
  view->setObjectName(name + QStringLiteral("Page"));
  view->setAccessibleName(name);
  ui_->tabView->addTab(view, name);
  pageViews_.push_back(view);
}

void DocumentWindow::refresh() {
  const std::int64_t exam = document_->currentExam();
  const std::int64_t count =
      document_->patientRecord()
          ? static_cast<std::int64_t>(document_->patientRecord()->ncRecordsArray().size())
          : 0;
  ui_->examinationLabel->setText(fromUtf8(
      foundation::format(services_.localizer, kTable, "%ld of %ld", {count > 0 ? exam + 1 : 0, count})));
  ui_->previousAction->setEnabled(exam > 0);
  ui_->nextAction->setEnabled(exam + 1 < count);
  const QString description = said("Growth chart of %1. Examination %2, %3.")
                                  .arg(fromUtf8(document_->preferredFileName(true)),
                                       ui_->examinationLabel->text(), fromUtf8(document_->ageField().text()));
  for (PageView* view : pageViews_) {
    view->setAccessibleDescription(description);
    view->update();
  }
}

void DocumentWindow::showAbout() {
  QMessageBox box(this);
  box.setWindowTitle(said("About Nascor"));
  box.setTextFormat(Qt::PlainText);
  box.setText(said("Nascor %1").arg(programVersion()));
  box.setInformativeText(
      QStringLiteral("%1\n\n%2\n\n%3")
          .arg(disclaimer(), said("Copyright (c) 2026 The Nascor developers. MIT License."),
               said("Linked with Qt %1 (GNU LGPL 3) and the GNU C++ library (GNU GPL 3 with the GCC Runtime "
                    "Library Exception).")
                   .arg(QLatin1String(qVersion()))));
  box.exec();
}

}  // namespace nascor::qt
