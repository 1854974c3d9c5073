// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/DocumentApplication.h"

#include <QApplication>
#include <QFile>
#include <QMetaObject>
#include <algorithm>
#include <chrono>

#include "base/Text.h"
#include "foundation/Localizer.h"
#include "reports/Reports.h"
#include "typesetting/Typesetting.h"
#include "window/OutputMenu.h"
#include "window/WindowPlace.h"

namespace nascor::qt {

using framework::ZuDocument;

namespace {

/// Every change is kept within two seconds; one is left for writing.
constexpr std::chrono::seconds kKeepingInterval{1};

}  // namespace

DocumentApplication::DocumentApplication(const foundation::Services& services, const std::string& resources,
                                         foundation::RecoveryStore* recoveryStore)
    : services_(services),
      alerts_(actions_),
      panels_(services),
      pageWriter_(services.files),
      printer_(services.files),
      documents_(services, alerts_, panels_),
      importer_(services, documents_, alerts_,
                [this](const ZuDocument& document) { return windowOf(document); }),
      reportFolder_(services, [this](const QString& path) { return importWaiting(path); }),
      controller_(services, documents_, {.resourcePath = resources, .viewer = &viewer_}),
      recentFiles_(services.defaults) {
  alerts_.frontWindow = [this] { return frontWindow(); };
  alerts_.windowOfPanel = [this](const framework::Panel& panel) -> QWidget* {
    for (const auto& [document, window] : windows_) {
      if (QWidget* dialog = window->windowOfPanel(panel)) return dialog;
    }
    return nullptr;
  };
  subscriptions_.push_back(alerts_.onQuestion.subscribe([this] { onQuestion(); }));
  panels_.frontWindow = [this] { return frontWindow(); };
  printer_.frontWindow = [this] { return frontWindow(); };
  subscriptions_.push_back(viewer_.onFailure.subscribe([this](const QString& sentence) {
    alerts_.tell(toUtf8(QCoreApplication::translate("Viewer", "The user guide cannot be shown.")),
                 toUtf8(sentence));
  }));
  documents_.setFactory([this] {
    auto document =
        std::make_unique<app::NCDocument>(framework::DocumentEnvironment{.services = services_,
                                                                         .alerts = alerts_,
                                                                         .controller = documents_,
                                                                         .panels = &panels_,
                                                                         .pageWriter = &pageWriter_,
                                                                         .printer = &printer_});
    document->setPrintInfo(usualPaper(services_.defaults));
    return document;
  });
  subscriptions_.push_back(
      documents_.onDocumentAdded.subscribe([this](ZuDocument& document) { addWindow(document); }));
  subscriptions_.push_back(
      documents_.onDocumentInFront.subscribe([this](const ZuDocument& document) { bringToFront(document); }));
  subscriptions_.push_back(
      documents_.onDocumentRemoved.subscribe([this](ZuDocument& document) { removeWindow(document); }));
  // Between two actions: in the middle of one a document may be gone that is still at work.
  subscriptions_.push_back(actions_.onIdle.subscribe([this] {
    QMetaObject::invokeMethod(
        &context_,
        [this] {
          if (!actions_.isRunning()) documents_.releaseClosedDocuments();
        },
        Qt::QueuedConnection);
  }));
  controller_.awakeFromNib();
  if (recoveryStore) recovery_.emplace(services_, documents_, alerts_, *recoveryStore);
  keeping_.setInterval(kKeepingInterval);
  QObject::connect(&keeping_, &QTimer::timeout, &context_, [this] {
    keepChanges();
    if (!recovery_->hasWork()) keeping_.stop();
  });
}

DocumentApplication::~DocumentApplication() {
  subscriptions_.clear();
  for (const auto& [document, window] : windows_) {
    window->release();
    delete window;
  }
}

DocumentWindow* DocumentApplication::windowOf(const ZuDocument& document) const {
  const auto found = windows_.find(&document);
  return found == windows_.end() ? nullptr : found->second;
}

void DocumentApplication::newDocument() {
  actions_.performInTurn([this] { documents_.newDocument(); });
}

void DocumentApplication::openFiles(const QStringList& paths) {
  actions_.performInTurn([this, paths] { openNow(paths); });
}

void DocumentApplication::chooseFilesToOpen() {
  actions_.perform([this] {
    QStringList paths;
    for (const std::string& path : panels_.chooseFilesToOpen())
      paths << QFile::decodeName(QByteArray::fromStdString(path));
    openNow(paths);
  });
}

void DocumentApplication::takeFiles(const QStringList& paths, ZuDocument& document) {
  actions_.performInTurn([this, paths, &document] {
    const auto open = documents_.documents();
    const bool isOpen = std::ranges::find(open, &document) != open.end();
    openNow(paths, isOpen ? dynamic_cast<app::NCDocument*>(&document) : nullptr);
  });
}

bool DocumentApplication::importWaiting(const QString& path) {
  bool isStored = false;
  actions_.perform([&] { isStored = importer_.import({path}, nullptr); });
  return isStored;
}

void DocumentApplication::chooseReportsToImport(app::NCDocument& document) {
  QStringList paths;
  for (const std::string& path : panels_.chooseReportsToImport())
    paths << QFile::decodeName(QByteArray::fromStdString(path));
  if (!paths.isEmpty()) importer_.import(paths, &document);
}

void DocumentApplication::openNow(const QStringList& paths, app::NCDocument* document) {
  QStringList reports;
  QStringList sentences;
  std::string details;
  for (const QString& path : paths) {
    if (path.contains(QChar::ReplacementCharacter) && !QFile::exists(path)) {
      // Qt cannot hold a file name that is not in the system's encoding.
      sentences << QCoreApplication::translate(
                       "FilePanels",
                       "%1: The file's name is not UTF-8. Please rename the file and open it again.")
                       .arg(path);
      continue;
    }
    if (importer_.isReport(path)) {
      reports << path;
      continue;
    }
    ZuDocument* before = documents_.currentDocument();
    if (before && windowOf(*before)) windowOf(*before)->keepGeometry();
    foundation::FileError error;
    if (const ZuDocument* opened = documents_.openDocument(QFile::encodeName(path).toStdString(), error)) {
      if (before && before != opened && !windowOf(*before)->hasDialog())
        documents_.closeUntouchedDocument(*before);
      continue;
    }
    if (error.kind == foundation::FileError::Kind::isDeclined) continue;
    recentFiles_.forget(path);
    sentences << fromUtf8(error.reason);
    if (!error.details.empty()) details += error.details + "\n";
  }
  if (!sentences.isEmpty()) {
    const foundation::Localizer& localizer = services_.localizer;
    alerts_.tellDetails(sentences.size() == 1
                            ? localizer.text("CorvelDocument", "The document cannot be opened.")
                            : localizer.text("CorvelDocument", "These documents cannot be opened."),
                        toUtf8(sentences.join(QStringLiteral("\n\n"))), details);
  }
  if (!reports.isEmpty()) importer_.import(reports, document);
}

void DocumentApplication::activate() {
  actions_.performInTurn([this] {
    if (ZuDocument* front = documents_.currentDocument()) {
      bringToFront(*front);
    } else {
      documents_.newDocument();
    }
  });
}

bool DocumentApplication::hasOpenQuestion() {
  for (const auto& [document, window] : windows_) {
    if (!hasSheet(*window)) continue;
    // What was asked there wants its answer first.
    window->activateWindow();
    window->raise();
    return true;
  }
  return false;
}

bool DocumentApplication::quit() {
  if (hasOpenQuestion()) return false;
  bool areClosed = false;
  actions_.perform([&] { areClosed = documents_.closeAllDocuments(); });
  return areClosed;
}

void DocumentApplication::endSession(const std::function<bool()>& mayAsk,
                                     const std::function<void()>& cancel) {
  const auto documents = documents_.documents();
  isSessionEndAgreed_ = std::ranges::none_of(documents, &ZuDocument::isDocumentEdited);
  if (isSessionEndAgreed_ || !mayAsk()) return;
  if (!hasOpenQuestion()) actions_.perform([&] { isSessionEndAgreed_ = documents_.saveEditedDocuments(); });
  if (!isSessionEndAgreed_) cancel();
}

bool DocumentApplication::offerRecovery() {
  std::size_t opened = 0;
  if (recovery_) actions_.perform([&] { opened = recovery_->offer(); });
  return opened > 0;
}

void DocumentApplication::keepChanges() {
  if (recovery_) recovery_->keepChanges();
}

void DocumentApplication::keepChangesSoon() {
  if (recovery_ && !keeping_.isActive() && recovery_->hasWork()) keeping_.start();
}

void DocumentApplication::leaveSession() {
  if (!isSessionEndAgreed_) {
    quit();
  } else {
    onLastDocumentClosed();
  }
}

void DocumentApplication::addWindow(ZuDocument& document) {
  numbers_.add(document);
  auto* window = new DocumentWindow(
      dynamic_cast<app::NCDocument&>(document),
      {.services = services_,
       .documents = documents_,
       .application = controller_,
       .alerts = alerts_,
       .panels = panels_,
       .printer = printer_,
       .actions = actions_,
       .recentFiles = recentFiles_,
       .openFiles = [this](const QStringList& paths) { openFiles(paths); },
       .takeFiles = [this](const QStringList& paths, ZuDocument& into) { takeFiles(paths, into); },
       .chooseFilesToOpen = [this] { chooseFilesToOpen(); },
       .waitingReports = reportFolder_,
       .chooseReportsToImport = [this](app::NCDocument& into) { chooseReportsToImport(into); },
       .openDocuments =
           [this] {
             std::vector<ZuDocument*> open;
             for (const auto& [number, each] : numbers_.open()) open.push_back(each);
             return open;
           },
       .bringToFront =
           [this](ZuDocument& chosen) { actions_.perform([&] { documents_.setCurrentDocument(chosen); }); },
       .quit = [this] { quit(); },
       .typesetter = typesetting::typesetter,
       .serverTask = serverTask_,
       .reportServer = reports::reportServer,
       .reportFiles = reports::reportFiles,
       .importReports = [this](std::vector<std::vector<std::byte>> files,
                               app::NCDocument& into) { importer_.importFetched(files, into); }});
  edits_.emplace(&document, document.onStateChanged.subscribe([this] { keepChangesSoon(); }));
  std::vector<const QWidget*> others;
  for (const auto& [open, other] : windows_) {
    // A file that is opened takes the place of a document that nothing was done in.
    if (!document.filePath() || !open->isUntouched()) others.push_back(other);
  }
  moveAside(*window, others);
  windows_.emplace(&document, window);
  window->show();
  window->raise();
  window->activateWindow();
}

void DocumentApplication::removeWindow(ZuDocument& document) {
  numbers_.remove(document);
  edits_.erase(&document);
  if (recovery_) recovery_->forget(document);
  const auto found = windows_.find(&document);
  if (found == windows_.end()) return;
  found->second->release();
  windows_.erase(found);
  if (windows_.empty()) onLastDocumentClosed();
}

void DocumentApplication::bringToFront(const ZuDocument& document) const {
  DocumentWindow* window = windowOf(document);
  if (!window) return;
  // A dialog of the window is as good as the window itself.
  for (const QWidget* active = QApplication::activeWindow(); active; active = active->parentWidget()) {
    if (active == window) return;
  }
  if (window->isMinimized()) window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

QWidget* DocumentApplication::frontWindow() const {
  const ZuDocument* front = documents_.currentDocument();
  return front ? windowOf(*front) : nullptr;
}

}  // namespace nascor::qt
