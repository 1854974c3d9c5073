// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/DocumentWindow.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDialog>
#include <QDragEnterEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QScrollBar>
#include <algorithm>

#include "app/PageTexts.h"
#include "base/LocalPath.h"
#include "base/Mnemonics.h"
#include "base/Text.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/Localizer.h"
#include "foundation/Utf8.h"
#include "ui_MyDocument.h"
#include "window/AboutBox.h"
#include "window/AdjustDeliveryDialog.h"
#include "window/CompareDialog.h"
#include "window/DataMenu.h"
#include "window/DatingDialogs.h"
#include "window/EditMenu.h"
#include "window/FetusChoice.h"
#include "window/OutputMenu.h"
#include "window/OverlayMenu.h"
#include "window/PageTabs.h"
#include "window/PageZoom.h"
#include "window/PatientPanel.h"
#include "window/QtAlerts.h"
#include "window/RecentMenu.h"
#include "window/ReferencesDialog.h"
#include "window/ServerMenu.h"
#include "window/StandardsMenus.h"
#include "window/StrayInput.h"
#include "window/SummaryMenu.h"
#include "window/WindowMenu.h"
#include "window/WindowPlace.h"

namespace nascor::qt {

using app::NCDocument;

namespace {

/// What was dropped.
struct Dropped {
  QStringList paths;
  QStringList links;  ///< which lead to no file of this machine
};

Dropped dropped(const QMimeData* data) {
  Dropped all;
  for (const QUrl& url : data->urls()) {
    if (const auto path = localPath(url)) {
      all.paths << *path;
    } else {
      all.links << url.toDisplayString();
    }
  }
  return all;
}

}  // namespace

DocumentWindow::DocumentWindow(NCDocument& document, WindowEnvironment environment)
    : environment_(std::move(environment)),
      document_(&document),
      ui_(std::make_unique<Ui::MyDocument>()),
      growthLabel_(new QLabel),
      weightLabel_(new QLabel) {
  ui_->setupUi(this);
  auto* statusLabel = new QLabel;
  statusLabel->setObjectName(QStringLiteral("statusLabel"));
  // A long message is cut off: the window does not grow for it.
  statusLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  ui_->statusBar->addWidget(statusLabel, 1);
  growthLabel_->setObjectName(QStringLiteral("growthStandardLabel"));
  growthLabel_->setContentsMargins(12, 0, 12, 0);
  showWaitingReports(*this, environment_.waitingReports);
  ui_->statusBar->addPermanentWidget(growthLabel_);
  weightLabel_->setObjectName(QStringLiteral("fetalWeightLabel"));
  ui_->statusBar->addPermanentWidget(weightLabel_);

  const Perform perform = [this](const DocumentAction& action) { this->perform(action); };
  pages_ = new PageTabs(*this, document,
                        {.tabs = *ui_->tabView,
                         .menu = *ui_->viewMenu,
                         .examination = *ui_->examinationLabel,
                         .perform = perform});
  panel_ = new PatientPanel(*this, *ui_, *statusLabel, document, environment_.services, environment_.actions);
  fetuses_ = new FetusChoice(*this, document,
                             {.box = *ui_->multiplePopUp,
                              .menu = *ui_->patientMenu,
                              .add = *ui_->addFetusAction,
                              .remove = *ui_->deleteFetusAction,
                              .perform = perform});
  bindActions();
  bindDialogs();

  foundation::NotificationCenter& notifications = environment_.services.notifications;
  subscriptions_.push_back(notifications.subscribe(foundation::NotificationName::updateStandards,
                                                   [this](const auto&) { showStandards(); }));
  subscriptions_.push_back(
      notifications.subscribe(foundation::NotificationName::updateShowAll, [this](const auto&) {
        ui_->showAllAction->setChecked(environment_.application.showAllMenuItem().state != 0);
      }));
  subscriptions_.push_back(document.onDisplayChanged.subscribe([this] { showExaminations(); }));
  subscriptions_.push_back(document.onStateChanged.subscribe([this] { showState(); }));

  // The panel scrolls up and down where the screen is low, never sideways.
  ui_->patientPanel->ensurePolished();
  ui_->panelScroll->setMinimumWidth(ui_->patientPanel->minimumSizeHint().width() +
                                    ui_->panelScroll->verticalScrollBar()->sizeHint().width());
  restorePlace(*this, environment_.services.defaults);
  showState();
  showExaminations();
  showStandards();
  // A known patient is looked at first: a key that was meant for another window turns a page at most.
  (document.filePath() ? static_cast<QWidget*>(ui_->tabView) : ui_->referenceIDField)->setFocus();
}

DocumentWindow::~DocumentWindow() { release(); }

bool DocumentWindow::hasDialog() const {
  const auto dialogs = findChildren<QDialog*>();
  return std::ranges::any_of(dialogs, [this](const QDialog* dialog) {
    return dialog->isVisible() && dialog != static_cast<const QDialog*>(references_) &&
           dialog != static_cast<const QDialog*>(compare_);
  });
}

void DocumentWindow::keepGeometry() const { keepPlace(*this, environment_.services.defaults); }

void DocumentWindow::release() {
  if (!document_) return;
  keepGeometry();
  subscriptions_.clear();
  panel_->release();
  fetuses_->release();
  dropSheets(*this);
  for (PanelDialog* dialog : dialogs_) dialog->release();
  pages_->release();
  document_ = nullptr;
  hide();
  deleteLater();
}

void DocumentWindow::perform(const DocumentAction& action) {
  if (!document_ || hasSheet(*this)) return;
  environment_.actions.perform([&] {
    if (environment_.documents.currentDocument() != document_)
      environment_.documents.setCurrentDocument(*document_);
    if (!document_->commitEditing()) {
      panel_->focusFieldInEdit();
    } else if (document_) {  // still there: leaving a field may have put another document into its place
      fetuses_->place();
      action(*document_);
    }
  });
}

void DocumentWindow::bindActions() {
  const auto bind = [this](QAction* action, DocumentAction what) {
    connect(action, &QAction::triggered, this, [this, what = std::move(what)] { perform(what); });
  };
  bind(ui_->previousAction, [](NCDocument& document) { document.previousExamination(); });
  bind(ui_->nextAction, [](NCDocument& document) { document.nextExamination(); });
  bind(ui_->addExaminationAction, [](NCDocument& document) { document.addExaminationAction(); });
  bind(ui_->deleteExaminationAction, [](NCDocument& document) { document.deleteExaminationAction(); });
  bind(ui_->addFetusAction, [](NCDocument& document) { document.addFetus(nullptr); });
  bind(ui_->deleteFetusAction, [](NCDocument& document) { document.deleteFetus(nullptr); });
  bind(ui_->eddFromLMPAction, [](NCDocument& document) { document.doSetEDDfromLMP(nullptr); });
  bind(ui_->eddFromCRLAction, [](NCDocument& document) { document.doSetEDDfromCRL(nullptr); });
  bind(ui_->eddFromMeasurementsAction,
       [](NCDocument& document) { document.doSetEDDfromMeasurements(nullptr); });
  bind(ui_->adjustDeliveryAction,
       [this](NCDocument&) { environment_.application.doAdjustDeliveryDate(&environment_.application); });
  bind(ui_->compareAction, [this](NCDocument&) { showCompare(); });
  bind(ui_->showAllAction, [this](NCDocument&) {
    environment_.application.toggleShowAll(environment_.application.showAllMenuItem());
  });
  connect(ui_->showAllAction, &QAction::triggered, this, [this] {  // also when it was not done
    ui_->showAllAction->setChecked(environment_.application.showAllMenuItem().state != 0);
  });
  ui_->showAllAction->setChecked(environment_.application.showAllMenuItem().state != 0);

  ui_->previousButton->setDefaultAction(ui_->previousAction);
  ui_->nextButton->setDefaultAction(ui_->nextAction);
  ui_->previousButton->setArrowType(Qt::LeftArrow);
  ui_->nextButton->setArrowType(Qt::RightArrow);
  ui_->addExaminationButton->setDefaultAction(ui_->addExaminationAction);
  auto* strayInput = new StrayInput(this);
  ui_->multiplePopUp->installEventFilter(strayInput);
  ui_->deleteExaminationButton->installEventFilter(strayInput);
  ui_->deleteFetusButton->installEventFilter(strayInput);
  ui_->deleteExaminationButton->setDefaultAction(ui_->deleteExaminationAction);
  ui_->addFetusButton->setDefaultAction(ui_->addFetusAction);
  ui_->deleteFetusButton->setDefaultAction(ui_->deleteFetusAction);
  // The short texts tell what is added or removed by their place alone.
  for (QToolButton* button : {ui_->addExaminationButton, ui_->deleteExaminationButton, ui_->addFetusButton,
                              ui_->deleteFetusButton}) {
    button->setAccessibleName(button->defaultAction()->text().remove(u'&'));
  }

  bindFileActions();
  new OutputMenu(*this, *ui_->fileMenu, ui_->closeAction,
                 {.services = environment_.services,
                  .alerts = environment_.alerts,
                  .panels = environment_.panels,
                  .printer = environment_.printer,
                  .sender = environment_.application,
                  .perform = [this](const DocumentAction& action) { perform(action); }});
  new DataMenu(*this, *ui_->fileMenu, ui_->closeAction,
               {.services = environment_.services,
                .alerts = environment_.alerts,
                .perform = [this](const DocumentAction& action) { perform(action); },
                .reportFiles = environment_.reportFiles});
  new SummaryMenu(*this, *ui_->fileMenu, ui_->closeAction,
                  {.services = environment_.services,
                   .alerts = environment_.alerts,
                   .printer = environment_.printer,
                   .typesetter = environment_.typesetter,
                   .perform = [this](const DocumentAction& action) { perform(action); }});
  bindEditActions();
  new StandardsMenus(*ui_->menuBar, {ui_->standardsMenu, ui_->fetalWeightMenu, ui_->crownRumpLengthMenu},
                     mnemonicsOf(*ui_->menuBar, *ui_->patientPanel), environment_.application,
                     [this](const framework::MenuItem& item) {
                       perform([this, &item](NCDocument&) { environment_.application.chooseStandard(item); });
                     });
  document_->takePreferredOverlay();
  new OverlayMenu(
      *ui_->overlayMenu, environment_.services.localizer,
      [this] { return document_ ? document_->overlay() : charts::Overlay{}; },
      [this](const DocumentAction& action) { perform(action); });
  new PageZoom({.in = *ui_->zoomInAction,
                .out = *ui_->zoomOutAction,
                .fit = *ui_->zoomFitAction,
                .views = pages_->views(),
                .pageOnShow = [this] { return pages_->pageOnShow(); }},
               *this);
  connect(ui_->referencesAction, &QAction::triggered, this, [this] { showReferences().showAll(); });
  connect(ui_->guideAction, &QAction::triggered, this,
          [this] { environment_.actions.perform([this] { environment_.application.doHelp(); }); });
  connect(ui_->aboutAction, &QAction::triggered, this, [this] { showAbout(*this); });
}

void DocumentWindow::bindDialogs() {
  for (framework::Panel* panel : document_->panels()) {
    subscriptions_.push_back(panel->onCenter.subscribe([this, panel] { dialogOf(*panel).center(); }));
    subscriptions_.push_back(panel->onChange.subscribe([this, panel] {
      if (panel->isShown() || windowOfPanel(*panel)) dialogOf(*panel).followPanel();
    }));
  }
}

PanelDialog& DocumentWindow::dialogOf(const framework::Panel& panel) {
  const auto made = std::ranges::find(dialogs_, &panel, &PanelDialog::panel);
  // Most windows close without a dialog, and making all of them takes as long as showing the window.
  return made != dialogs_.end() ? **made : *dialogs_.emplace_back(makeDialog(panel));
}

PanelDialog* DocumentWindow::makeDialog(const framework::Panel& panel) {
  const Perform perform = [this](const DocumentAction& action) { this->perform(action); };
  const foundation::Services& services = environment_.services;
  Actions& actions = environment_.actions;
  const auto withFields = [this](DatingDialog* dialog) {
    panel_->add(dialog->bindings());
    return dialog;
  };
  if (&panel == &document_->crlPanel().panel())
    return withFields(new EDDFromCRLDialog(*document_, services, actions, perform, this));
  if (&panel == &document_->lastPeriodPanel().panel())
    return withFields(new EDDFromLMPDialog(*document_, services, actions, perform, this));
  if (&panel == &document_->measurementsPanel().panel())
    return withFields(new EDDFromMeasurementsDialog(*document_, services, actions, perform, this));
  return new AdjustDeliveryDialog(*document_, services, perform, this);
}

QWidget* DocumentWindow::windowOfPanel(const framework::Panel& panel) const {
  if (!document_) return nullptr;
  const auto panels = document_->panels();
  if (std::ranges::find(panels, &panel) == panels.end()) return nullptr;
  return findChild<QDialog*>(fromUtf8(panel.name()));
}

void DocumentWindow::bindFileActions() {
  // A field that refuses its text holds back what is done to its own document, not what is done to others.
  connect(ui_->newAction, &QAction::triggered, this,
          [this] { environment_.actions.perform([this] { environment_.documents.newDocument(); }); });
  connect(ui_->openAction, &QAction::triggered, this, [this] { environment_.chooseFilesToOpen(); });
  connect(ui_->importReportAction, &QAction::triggered, this, [this] {
    perform([this](NCDocument& document) { environment_.chooseReportsToImport(document); });
  });
  connect(ui_->reportFolderAction, &QAction::triggered, this, [this] {
    perform([this](NCDocument&) { askForReportFolder(*this, environment_.waitingReports); });
  });
  new ServerMenu(*this, *ui_->reportSourcesMenu,
                 {.services = environment_.services,
                  .alerts = environment_.alerts,
                  .perform = [this](const DocumentAction& action) { perform(action); },
                  .task = environment_.serverTask,
                  .server = environment_.reportServer,
                  .reportFiles = environment_.reportFiles,
                  .import = environment_.importReports});
  new RecentMenu(*ui_->recentMenu, environment_.recentFiles, environment_.openFiles);
  new WindowMenu(*ui_->windowMenu, {.documents = environment_.openDocuments,
                                    .own = [this] { return document_; },
                                    .bringToFront = environment_.bringToFront});
  connect(ui_->saveAction, &QAction::triggered, this, [this] {
    perform([this](NCDocument& document) { environment_.documents.saveDocument(document); });
  });
  connect(ui_->saveAsAction, &QAction::triggered, this, [this] {
    perform([this](NCDocument& document) { environment_.documents.saveDocumentAs(document); });
  });
  connect(ui_->revertAction, &QAction::triggered, this, [this] {
    perform([this](NCDocument& document) { environment_.documents.revertDocument(document); });
  });
  connect(ui_->closeAction, &QAction::triggered, this, [this] { close(); });
  connect(ui_->quitAction, &QAction::triggered, this, [this] { environment_.quit(); });
}

void DocumentWindow::bindEditActions() {
  const auto nameOf = [this](auto name) { return document_ ? (document_->*name)() : std::nullopt; };
  auto* menu = new EditMenu(*this, *ui_->editMenu,
                            {.undo = *ui_->undoAction,
                             .redo = *ui_->redoAction,
                             .cut = *ui_->cutAction,
                             .copy = *ui_->copyAction,
                             .paste = *ui_->pasteAction,
                             .selectAll = *ui_->selectAllAction},
                            {.name = [nameOf] { return nameOf(&NCDocument::undoName); },
                             .go = [this] { perform([](NCDocument& document) { document.undo(); }); }},
                            {.name = [nameOf] { return nameOf(&NCDocument::redoName); },
                             .go = [this] { perform([](NCDocument& document) { document.redo(); }); }});
  subscriptions_.push_back(document_->onHistoryChanged.subscribe([menu] { menu->showSteps(); }));
  connect(ui_->copyReportAction, &QAction::triggered, this, [this] {
    perform([](NCDocument& document) {
      auto* table = new QMimeData;
      const QString text = fromUtf8(document.report().tabSeparatedText());
      table->setText(text);
      table->setData(QStringLiteral("text/tab-separated-values"), text.toUtf8());
      QGuiApplication::clipboard()->setMimeData(table);
    });
  });
}

void DocumentWindow::showState() {
  if (!document_) return;
  const QString name = fromUtf8(foundation::oneLine(document_->displayName())) + QStringLiteral("[*]");
  setWindowTitle(document_->isReadOnly() ? said("DocumentWindow", "%1 (read-only)").arg(name) : name);
  setWindowModified(document_->isDocumentEdited());
  ui_->revertAction->setEnabled(document_->filePath().has_value());
  const QString path = document_->filePath()
                           ? QFile::decodeName(QByteArray::fromStdString(*document_->filePath()))
                           : QString();
  if (path == notedPath_) return;
  notedPath_ = path;
  if (!path.isEmpty()) environment_.recentFiles.note(path);
}

void DocumentWindow::showExaminations() {
  if (!document_) return;
  const std::int64_t exam = document_->currentExam();
  const std::int64_t count = document_->numberOfExaminations();
  ui_->examinationLabel->setText(fromUtf8(foundation::format(
      environment_.services.localizer.text("MyDocument", "%ld of %ld"), {count > 0 ? exam + 1 : 0, count})));
  ui_->previousAction->setEnabled(exam > 0);
  ui_->nextAction->setEnabled(exam + 1 < count);
  ui_->deleteExaminationAction->setEnabled(count > 1);
  ui_->adjustDeliveryAction->setEnabled(document_->canAdjustDelivery());
  panel_->showLongDates();
  pages_->update();
}

void DocumentWindow::showStandards() {
  if (!document_) return;
  const foundation::Localizer& localizer = environment_.services.localizer;
  growthLabel_->setText(fromUtf8(calc::growthStandardTitle(document_->standard(), localizer)));
  weightLabel_->setText(fromUtf8(calc::fetalWeightTitle(document_->fetalWeightStandard(), localizer)));
  const calc::WeightFormula* formula = calc::weightFormula(document_->fetalWeightStandard());
  ui_->weightFormula->setText(formula ? said("MyDocument", "by %1").arg(fromUtf8(formula->shortLabel))
                                      : QString());
  pages_->update();
}

ReferencesDialog& DocumentWindow::showReferences() {
  if (!references_) references_ = new ReferencesDialog(environment_.services.localizer, this);
  references_->show();
  references_->raise();
  references_->activateWindow();
  return *references_;
}

void DocumentWindow::showCompare() {
  if (!compare_) {
    compare_ = new CompareDialog(
        {.services = environment_.services,
         .alerts = environment_.alerts,
         .heading = [this] { return document_ ? fromUtf8(app::comparisonHeading(*document_)) : QString(); },
         .table =
             [this](compare::TableKind kind) {
               return document_ ? app::comparison(*document_, kind) : std::nullopt;
             },
         .paper = [this] { return document_ ? document_->printInfo() : framework::PrintInfo{}; },
         .suggestedName = [this] { return document_ ? fromUtf8(document_->suggestedFileName()) : QString(); },
         .showEvidence = [this](const calc::Method& method) { showReferences().showEvidence(method); }},
        this);
    subscriptions_.push_back(pages_->onUpdate.subscribe([this] { compare_->refresh(); }));
  }
  compare_->show();
  compare_->raise();
  compare_->activateWindow();
}

void DocumentWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !document_) return;
  if (environment_.actions.isRunning()) return;
  environment_.documents.lookAtFile(*document_);
  if (environment_.documents.currentDocument() != document_)
    environment_.documents.setCurrentDocument(*document_);
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
  if (!document_) return;
  event->ignore();
  if (hasSheet(*this)) return;
  // A text that its field refuses goes with the window, so this does not wait for it.
  environment_.actions.perform([this] {
    environment_.documents.setCurrentDocument(*document_);
    environment_.documents.closeDocument(*document_);
  });
}

void DocumentWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void DocumentWindow::dropEvent(QDropEvent* event) {
  const Dropped all = dropped(event->mimeData());
  if (all.paths.isEmpty() && all.links.isEmpty()) return;
  event->acceptProposedAction();
  // Opens the files after the drop has ended: the other program waits for it, and a question would hold it up.
  QMetaObject::invokeMethod(
      this,
      [this, all] {
        if (!all.paths.isEmpty() && document_) environment_.takeFiles(all.paths, *document_);
        if (!all.links.isEmpty()) tellOfLinks(all.links);
      },
      Qt::QueuedConnection);
}

void DocumentWindow::tellOfLinks(const QStringList& links) {
  environment_.actions.performInTurn([this, links] {
    environment_.alerts.tell(
        toUtf8(said("MyDocument", "Nascor opens files of this machine only.")),
        toUtf8(links.join(u'\n') + QStringLiteral("\n\n") +
               said("MyDocument", "Please save what the link leads to as a file here, and open that.")));
  });
}

}  // namespace nascor::qt
