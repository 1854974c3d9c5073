// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTimer>
#include <functional>
#include <map>
#include <optional>

#include "app/NCAppController.h"
#include "app/Recovery.h"
#include "base/RecentFiles.h"
#include "bus/DocumentNumbers.h"
#include "foundation/RecoveryStore.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "framework/DocumentController.h"
#include "painting/PageFiles.h"
#include "painting/QtPrinter.h"
#include "program/ReportFolder.h"
#include "program/ReportImporter.h"
#include "window/Actions.h"
#include "window/DocumentWindow.h"
#include "window/QtAlerts.h"
#include "window/QtFilePanels.h"
#include "window/QtViewer.h"

namespace nascor::qt {

/// The application around the documents: makes a window for each, and asks its questions in front of them.
class DocumentApplication {
 public:
  /// Registers the preferences. `services` outlives it. In the folder `resources` lies the user guide. Unsaved changes are
  /// kept in `recoveryStore`, which outlives it too; null for nowhere.
  explicit DocumentApplication(const foundation::Services& services,
                               const std::string& resources = resourceFolder(),
                               foundation::RecoveryStore* recoveryStore = nullptr);
  DocumentApplication(const DocumentApplication&) = delete;
  DocumentApplication& operator=(const DocumentApplication&) = delete;
  /// Takes the windows along, without a question.
  ~DocumentApplication();

  framework::DocumentController& documents() { return documents_; }
  app::NCAppController& controller() { return controller_; }
  RecentFiles& recentFiles() { return recentFiles_; }
  /// Null for a document that is closed.
  DocumentWindow* windowOf(const framework::ZuDocument& document) const;

  void newDocument();
  /// Opens each document, or brings its window to the front, and then tells of all that could not be read. Reports of
  /// ultrasound machines are imported. As soon as no other action is in progress.
  void openFiles(const QStringList& paths);
  /// The same of files that were dropped onto the window of `document`, which takes the reports.
  void takeFiles(const QStringList& paths, framework::ZuDocument& document);
  /// The folder whose reports are offered.
  ReportFolder& reportFolder() { return reportFolder_; }
  /// Asks for reports and imports them into `document`.
  void chooseReportsToImport(app::NCDocument& document);
  /// Asks for files and opens them.
  void chooseFilesToOpen();
  /// Brings the window in front to where the user sees it; a new document where there is none.
  void activate();
  /// Closes all documents, each with its question. False when the user keeps one.
  bool quit();
  /// The session is about to end: asks of each edited document whether to save it, and closes none, since another program
  /// may yet stop the end. `mayAsk` asks the session whether the user may be asked, and is sent only where something was
  /// edited; where it may not, the documents stay as they are. Sends `cancel` when the user stops the end of the session, or a
  /// question is open already.
  void endSession(const std::function<bool()>& mayAsk, const std::function<void()>& cancel);
  /// Offers what programs kept that ended without a question. Whether a document was opened.
  bool offerRecovery();
  /// Keeps what was not saved: the program is to end at once.
  void keepChanges();
  /// The session wants the program gone: everything was asked when its end was announced; otherwise like `quit`.
  void leaveSession();

  foundation::Signal<> onLastDocumentClosed;  ///< sent when there is nothing left to do
  foundation::Signal<> onQuestion;            ///< sent before the user is asked something

  /// The numbers by which scripts know the open documents.
  const DocumentNumbers& numbers() const { return numbers_; }

 private:
  bool importWaiting(const QString& path);
  /// Reports go into `document`; null for the one that they belong to.
  void openNow(const QStringList& paths, app::NCDocument* document = nullptr);
  void keepChangesSoon();
  bool hasOpenQuestion();
  void addWindow(framework::ZuDocument& document);
  void removeWindow(framework::ZuDocument& document);
  void bringToFront(const framework::ZuDocument& document) const;
  QWidget* frontWindow() const;

  foundation::Services services_;
  Actions actions_;
  QtAlerts alerts_;
  QtFilePanels panels_;
  QtPageWriter pageWriter_;
  QtPrinter printer_;
  QtViewer viewer_;
  framework::DocumentController documents_;
  ReportImporter importer_;
  ReportFolder reportFolder_;
  ServerTask serverTask_;
  app::NCAppController controller_;
  RecentFiles recentFiles_;
  DocumentNumbers numbers_;
  std::map<const framework::ZuDocument*, DocumentWindow*> windows_;
  std::map<const framework::ZuDocument*, foundation::Subscription> edits_;  ///< to what may be edits of each
  bool isSessionEndAgreed_ = false;
  std::optional<app::Recovery> recovery_;
  QTimer keeping_;   ///< runs while something is edited
  QObject context_;  ///< what is queued ends with it
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::qt
