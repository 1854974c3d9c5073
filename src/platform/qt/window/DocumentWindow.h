// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "app/NCAppController.h"
#include "app/NCDocument.h"
#include "base/RecentFiles.h"
#include "exchange/ReportServer.h"
#include "exchange/StructuredReport.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "framework/DocumentController.h"
#include "painting/QtPrinter.h"
#include "summary/Typesetter.h"
#include "window/Actions.h"
#include "window/Perform.h"
#include "window/ServerTask.h"
#include "window/WaitingReports.h"

class QLabel;

namespace Ui {
class MyDocument;
}

namespace nascor::qt {

class CompareDialog;
class FetusChoice;
class PageTabs;
class PanelDialog;
class PatientPanel;
class ReferencesDialog;

/// What a window asks of the application around it.
struct WindowEnvironment {
  foundation::Services services;
  framework::DocumentController& documents;
  app::NCAppController& application;
  framework::Alerts& alerts;
  framework::FilePanels& panels;
  QtPrinter& printer;
  Actions& actions;
  RecentFiles& recentFiles;
  std::function<void(const QStringList&)> openFiles;
  std::function<void(const QStringList&, framework::ZuDocument&)> takeFiles;  ///< dropped onto its window
  std::function<void()> chooseFilesToOpen;
  WaitingReports& waitingReports;
  std::function<void(app::NCDocument&)> chooseReportsToImport;         ///< into that document
  std::function<std::vector<framework::ZuDocument*>()> openDocuments;  ///< in the order of opening
  std::function<void(framework::ZuDocument&)> bringToFront;
  std::function<void()> quit;
  summary::FindTypesetter typesetter;
  ServerTask& serverTask;
  std::function<std::variant<exchange::ReportServer*, foundation::Sentence>()> reportServer;
  std::function<std::variant<exchange::ReportFiles*, foundation::Sentence>()> reportFiles;
  /// Shows reports, the bytes of their files, before they are stored in that document.
  std::function<void(std::vector<std::vector<std::byte>>, app::NCDocument&)> importReports;
};

/// The window of one patient: the fields on the left, the pages on the right. Whatever the user does there goes to the
/// document, one action at a time, after the text in edit has got there.
class DocumentWindow final : public QMainWindow {
 public:
  /// Binds the window to `document`, which is about to be loaded. `release` ends that.
  DocumentWindow(app::NCDocument& document, WindowEnvironment environment);
  ~DocumentWindow() override;

  /// Null once the document is closed.
  app::NCDocument* document() { return document_; }

  /// Whether a dialog or a question stands open on the window.
  bool hasDialog() const;
  /// The next window opens in this one's place.
  void keepGeometry() const;
  /// The dialog that shows `panel`; null for a panel of another document.
  QWidget* windowOfPanel(const framework::Panel& panel) const;

  /// Lets go of the document, which is closed, and goes away itself.
  void release();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  /// Does `action` unless another is in progress, a sheet is open, or a field refuses its text, which then has the focus.
  void perform(const DocumentAction& action);
  void bindActions();
  void bindFileActions();
  void bindEditActions();
  void bindDialogs();
  /// The dialog that shows `panel`, made now if it was not shown before.
  PanelDialog& dialogOf(const framework::Panel& panel);
  PanelDialog* makeDialog(const framework::Panel& panel);

  void showState();
  /// Shows what no field shows by itself: which examination of how many, what can be done, the pages.
  void showExaminations();
  void showStandards();
  void showCompare();
  /// The dialog of the references, in front.
  ReferencesDialog& showReferences();
  void tellOfLinks(const QStringList& links);

  WindowEnvironment environment_;
  app::NCDocument* document_;
  std::unique_ptr<Ui::MyDocument> ui_;
  PageTabs* pages_ = nullptr;
  PatientPanel* panel_ = nullptr;
  FetusChoice* fetuses_ = nullptr;
  QLabel* growthLabel_ = nullptr;
  QLabel* weightLabel_ = nullptr;
  std::vector<PanelDialog*> dialogs_;
  ReferencesDialog* references_ = nullptr;
  CompareDialog* compare_ = nullptr;
  QString notedPath_;
  std::vector<foundation::Subscription> subscriptions_;  ///< to what shows itself in the window
};

}  // namespace nascor::qt
