#pragma once

#include <QMainWindow>
#include <QSize>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "app/NCAppController.h"
#include "app/NCDocument.h"
#include "base/RecentFiles.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "framework/DocumentController.h"
#include "painting/QtPrinter.h"
#include "window/Actions.h"
#include "window/ClickCounter.h"

class QLabel;

namespace Ui {
class MyDocument;
}

namespace nascor::qt {

class CompareDialog;
class FieldBinding;
class FieldEdit;
class PageView;
class PanelDialog;
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
  std::function<void()> chooseFilesToOpen;
  std::function<std::vector<framework::ZuDocument*>()> openDocuments;  ///< in the order of opening
  std::function<void(framework::ZuDocument&)> bringToFront;
  std::function<void()> quit;
};

/// How large a window opens for the first time, which was designed for a small screen.
QSize usualWindowSize(QSize designed, QSize screen);

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
  /// Moves the window, which is about to be shown, so far from each of `others` that their titles can be read.
  void moveAside(const std::vector<const DocumentWindow*>& others);
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
  using DocumentAction = std::function<void(app::NCDocument&)>;

  /// Does `action` unless another is in progress, a sheet is open, or a field refuses its text, which then has the focus.
  void perform(const DocumentAction& action);
  void bindFields();
  void bindAssessment();
  void bindPopUp();
  void bindPages();
  void bindActions();
  void bindFileActions();
  void bindEditActions();
  void bindDialogs();
  /// The dialog that shows `panel`, made now if it was not shown before.
  PanelDialog& dialogOf(const framework::Panel& panel);
  PanelDialog* makeDialog(const framework::Panel& panel);
  void describeFields();

  /// Tells the document where its pop-up stands.
  void placePopUp();
  void focusFieldInEdit();
  void showEditing();
  /// Shows which values are improbable: a sign beside each, and a sentence under them all.
  void showRemarks();
  /// What is to be said of the value in `edit`; mostly nothing.
  QString remarkOn(const FieldEdit& edit) const;
  void showFetuses();
  void showState();
  /// Shows what no field shows by itself: which examination of how many, what can be done, the pages.
  void showExaminations();
  void showStandards();
  void showLongDates();
  void updatePages();
  void showCompare();
  void showAbout();
  void tellOfLinks(const QStringList& links);
  void restoreWindowGeometry();

  WindowEnvironment environment_;
  app::NCDocument* document_;
  std::unique_ptr<Ui::MyDocument> ui_;
  std::vector<FieldBinding*> bindings_;
  ClickCounter clicks_;
  std::vector<PageView*> pageViews_;
  std::array<QAction*, 5> fetusActions_{};
  QLabel* statusLabel_ = nullptr;
  QLabel* growthLabel_ = nullptr;
  QLabel* weightLabel_ = nullptr;
  std::vector<PanelDialog*> dialogs_;
  ReferencesDialog* references_ = nullptr;
  CompareDialog* compare_ = nullptr;
  QString notedPath_;
  std::vector<foundation::Subscription> subscriptions_;  ///< to what shows itself in the window
};

}  // namespace nascor::qt
