#include "qt/DocumentWindows.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStandardPaths>

#include "qt/DocumentFile.h"

namespace nascor::qt {
namespace {

void showMessage(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

DocumentWindows::DocumentWindows(const foundation::Services& services)
    : tell(showMessage), services_(services) {}

DocumentWindows::~DocumentWindows() {
  for (const auto& window : windows_) delete window.data();
}

DocumentWindow* DocumentWindows::openUntitled() {
  return show(std::make_unique<app::NCDocument>(services_), QString());
}

int DocumentWindows::open(const QStringList& paths, QWidget* parent) {
  int opened = 0;
  QStringList sentences;
  for (const QString& path : paths) {
    auto document = std::make_unique<app::NCDocument>(services_);
    if (const auto sentence = loadDocument(*document, path, services_.files)) {
      sentences << *sentence;
      continue;
    }
    // A file without a patient is a new document: bound to the file, saving would replace what may have been damaged.
    const bool hasPatient = document->patientRecord() != nullptr;
    show(std::move(document), hasPatient ? path : QString());
    ++opened;
  }
  if (!sentences.isEmpty()) tell(parent, sentences.join(QStringLiteral("\n\n")));
  return opened;
}

DocumentWindow* DocumentWindows::show(std::unique_ptr<app::NCDocument> document, const QString& path) {
  auto* window = new DocumentWindow(std::move(document), path, services_);
  std::erase_if(windows_, [](const auto& closed) { return closed.isNull(); });
  windows_.emplace_back(window);
  window->onOpen = [this, window] { askWhatToOpen(window); };
  window->show();
  return window;
}

void DocumentWindows::askWhatToOpen(DocumentWindow* window) {
  const QString here = window->windowFilePath().isEmpty()
                           ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                           : QFileInfo(window->windowFilePath()).absolutePath();
  const QPointer<DocumentWindow> parent = window;
  const QStringList chosen = QFileDialog::getOpenFileNames(
      window, QCoreApplication::translate("DocumentWindows", "Open"), here,
      QCoreApplication::translate("DocumentWindows", "Nascor documents (*.nascor);;All files (*)"));
  open(chosen, parent);
}

}  // namespace nascor::qt
