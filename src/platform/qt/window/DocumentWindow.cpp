#include "window/DocumentWindow.h"

#include <QActionGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDragEnterEvent>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>
#include <array>

#include "base/Introduction.h"
#include "base/LocalPath.h"
#include "base/LongDate.h"
#include "base/Mnemonics.h"
#include "base/Text.h"
#include "calc/EditingBounds.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "foundation/Utf8.h"
#include "framework/LongText.h"
#include "ui_MyDocument.h"
#include "window/AdjustDeliveryDialog.h"
#include "window/CompareDialog.h"
#include "window/DatingDialogs.h"
#include "window/EditMenu.h"
#include "window/FieldBinding.h"
#include "window/OutputMenu.h"
#include "window/PageView.h"
#include "window/PageZoom.h"
#include "window/Puff.h"
#include "window/QtAlerts.h"
#include "window/RecentMenu.h"
#include "window/ReferencesDialog.h"
#include "window/SelectOnClick.h"
#include "window/StandardsMenus.h"
#include "window/StrayInput.h"
#include "window/WindowMenu.h"

namespace nascor::qt {

using app::NCDocument;

namespace {

/// The context under which the texts of the window's form are translated.
constexpr std::string_view kGeometryKey = "Window Geometry";

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

QSize usualWindowSize(QSize designed, QSize screen) {
  const QSize frame(16, 48);  // what a window manager may add
  // The page grows with the window, to where its texts are as large as one likes to read them.
  constexpr double kShare = 0.9;
  const QSize wanted = (screen * kShare).boundedTo({1760, 1100}).expandedTo(designed);
  return wanted.boundedTo(screen - frame);
}

DocumentWindow::DocumentWindow(NCDocument& document, WindowEnvironment environment)
    : environment_(std::move(environment)),
      document_(&document),
      ui_(std::make_unique<Ui::MyDocument>()),
      statusLabel_(new QLabel),
      growthLabel_(new QLabel),
      weightLabel_(new QLabel) {
  ui_->setupUi(this);
  statusLabel_->setObjectName(QStringLiteral("statusLabel"));
  // A long message is cut off: the window does not grow for it.
  statusLabel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  ui_->statusBar->addWidget(statusLabel_, 1);
  growthLabel_->setObjectName(QStringLiteral("growthStandardLabel"));
  growthLabel_->setContentsMargins(12, 0, 12, 0);
  ui_->statusBar->addPermanentWidget(growthLabel_);
  weightLabel_->setObjectName(QStringLiteral("fetalWeightLabel"));
  ui_->statusBar->addPermanentWidget(weightLabel_);

  bindPages();
  describeFields();
  bindFields();
  bindAssessment();
  bindPopUp();
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
  subscriptions_.push_back(document.fieldEditor().onChange.subscribe([this] { showEditing(); }));
  subscriptions_.push_back(document.statusLine().onChange.subscribe([this] { showEditing(); }));

  // The panel scrolls up and down where the screen is low, never sideways.
  ui_->patientPanel->ensurePolished();
  ui_->panelScroll->setMinimumWidth(ui_->patientPanel->minimumSizeHint().width() +
                                    ui_->panelScroll->verticalScrollBar()->sizeHint().width());
  restoreWindowGeometry();
  showState();
  showExaminations();
  showStandards();
  showLongDates();
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

void DocumentWindow::keepGeometry() const {
  environment_.services.defaults.setValue(kGeometryKey, saveGeometry().toBase64().toStdString());
}

void DocumentWindow::release() {
  if (!document_) return;
  keepGeometry();
  subscriptions_.clear();
  for (FieldBinding* binding : bindings_) binding->release();
  dropSheets(*this);
  for (PanelDialog* dialog : dialogs_) dialog->release();
  for (PageView* view : pageViews_) view->release();
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
      focusFieldInEdit();
    } else if (document_) {  // still there: leaving a field may have put another document into its place
      placePopUp();
      action(*document_);
    }
  });
}

void DocumentWindow::focusFieldInEdit() {
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

void DocumentWindow::bindFields() {
  framework::FieldEditor& editor = document_->fieldEditor();
  const std::array<std::pair<FieldEdit*, framework::TextField*>, 8> fields{
      {{ui_->referenceIDField, &document_->referenceIDField()},
       {ui_->gravidaField, &document_->gravidaField()},
       {ui_->birthDateField, &document_->birthDateField()},
       {ui_->examDateField, &document_->examDateField()},
       {ui_->bpdField, &document_->bpdField()},
       {ui_->hcField, &document_->hcField()},
       {ui_->acField, &document_->acField()},
       {ui_->flField, &document_->flField()}}};
  for (const auto& [edit, field] : fields)
    bindings_.push_back(new FieldBinding(*edit, *field, editor, environment_.actions));
  // A reference ID is corrected more often than replaced: a click places the caret there.
  for (const auto& [edit, field] : fields) {
    if (edit != ui_->referenceIDField) new SelectOnClick(*edit);
  }
  subscriptions_.push_back(bindReadOnly(*ui_->ageField, document_->ageField()));
  for (const FieldEdit* edit : {ui_->birthDateField, ui_->examDateField})
    connect(edit, &QLineEdit::textChanged, this, [this] { showLongDates(); });

  framework::TextView& note = document_->notesField();
  NoteEdit* noteEdit = ui_->notesField;
  subscriptions_.push_back(note.onChange.subscribe([noteEdit, &note] {
    const QString text = fromUtf8(framework::shownInEdit(note.text(), framework::kMostInNote));
    noteEdit->setReadOnly(!note.isEditable());
    noteEdit->setShownInPart(note.isShownInPart());
    noteEdit->setPlaceholderText(
        note.isEditable() ? QString() : said("MyDocument", "There is no examination to note this at."));
    if (noteEdit->toPlainText() == text) return;
    const QSignalBlocker quiet(noteEdit);
    noteEdit->setPlainText(text);
  }));
  // Not at once: an action that moved the focus has its own order of storing and showing.
  subscriptions_.push_back(noteEdit->onLeave.subscribe([this] {
    QMetaObject::invokeMethod(
        this,
        [this] {
          environment_.actions.performInTurn([self = QPointer<DocumentWindow>(this)] {
            if (self && self->document_) self->document_->noteWasLeft();
          });
        },
        Qt::QueuedConnection);
  }));
  connect(noteEdit, &QPlainTextEdit::textChanged, this, [this] {
    if (document_) document_->notesField().takeEditedText(toUtf8(ui_->notesField->toPlainText()));
  });
}

void DocumentWindow::bindAssessment() {
  app::Assessment& assessment = document_->assessment();
  for (framework::TextField* text : assessment.texts()) {
    // Those of the dialogs are bound by the dialogs.
    auto* label = findChild<QLabel*>(fromUtf8(text->name()));
    if (label) subscriptions_.push_back(bindLabel(*label, *text));
  }
  // Room for the longest, so that nothing moves while the user types. A label rounds its width up by itself.
  const auto room = [this](QLabel* label, const QString& longest) {
    const QLabel widest(longest, this);
    label->setMinimumWidth(widest.sizeHint().width());
  };
  for (QLabel* label : {ui_->bpdZ, ui_->hcZ, ui_->acZ, ui_->flZ}) room(label, QStringLiteral("+99.99"));
  for (QLabel* label : {ui_->bpdCentile, ui_->hcCentile, ui_->acCentile, ui_->flCentile})
    room(label, QStringLiteral(">99.9"));
  for (QLabel* sign : {ui_->bpdSign, ui_->hcSign, ui_->acSign, ui_->flSign, ui_->ageSign}) {
    QFont bold = sign->font();
    bold.setBold(true);
    sign->setFont(bold);
    // An empty label wants a little room too.
    sign->setMinimumWidth(std::max(QFontMetrics(bold).horizontalAdvance(u'!'), sign->sizeHint().width()));
  }
  const auto show = [this] { showRemarks(); };
  for (const calc::Measurement measurement : calc::kMeasurements)
    subscriptions_.push_back(assessment.length(measurement).remark.onChange.subscribe(show));
  subscriptions_.push_back(assessment.ageRemark.onChange.subscribe(show));
  showRemarks();
}

void DocumentWindow::showRemarks() {
  if (!document_) return;
  struct Row {
    const framework::TextField& remark;
    QLabel* sign;
    const QLabel* label;
  };
  app::Assessment& assessment = document_->assessment();
  QStringList sentences;
  for (const Row& row : {Row{assessment.ageRemark, ui_->ageSign, ui_->ageLabel},
                         Row{assessment.length(calc::Measurement::bpd).remark, ui_->bpdSign, ui_->bpdLabel},
                         Row{assessment.length(calc::Measurement::hc).remark, ui_->hcSign, ui_->hcLabel},
                         Row{assessment.length(calc::Measurement::ac).remark, ui_->acSign, ui_->acLabel},
                         Row{assessment.length(calc::Measurement::fl).remark, ui_->flSign, ui_->flLabel}}) {
    const QString remark = fromUtf8(row.remark.text());
    row.sign->setText(remark.isEmpty() ? QString() : QStringLiteral("!"));
    row.sign->setToolTip(remark);
    if (remark.isEmpty()) continue;
    sentences << said("MyDocument", "! %1: %2").arg(row.label->text().remove(u'&'), remark);
  }
  ui_->remarks->setText(sentences.join(u'\n'));
  ui_->remarks->setVisible(!sentences.isEmpty());
  const QString age = fromUtf8(assessment.ageRemark.text());
  ui_->ageField->setAccessibleDescription(age.isEmpty() ? ui_->ageField->toolTip()
                                                        : age + u' ' + ui_->ageField->toolTip());
  showEditing();
}

QString DocumentWindow::remarkOn(const FieldEdit& edit) const {
  app::Assessment& assessment = document_->assessment();
  for (const auto& [length, measurement] :
       {std::pair{ui_->bpdField, calc::Measurement::bpd}, std::pair{ui_->hcField, calc::Measurement::hc},
        std::pair{ui_->acField, calc::Measurement::ac}, std::pair{ui_->flField, calc::Measurement::fl}}) {
    if (length == &edit) return fromUtf8(assessment.length(measurement).remark.text());
  }
  return {};
}

void DocumentWindow::bindPopUp() {
  framework::PopUpButton& popUp = document_->multiplePopUp();
  subscriptions_.push_back(popUp.onChange.subscribe([this] { showFetuses(); }));
  subscriptions_.push_back(popUp.onAnimationEffect.subscribe(
      [this](int, framework::Point at) { showPuff(*this, QPointF(at.x, at.y).toPoint()); }));
  const auto choose = [this](int index) {
    perform([index](NCDocument& document) {
      document.multiplePopUp().selectItemAtIndex(index);
      document.chooseFetus(document.multiplePopUp());
    });
    showFetuses();
  };
  auto* group = new QActionGroup(this);
  // Only what the user chooses: the box also changes while it is filled.
  connect(ui_->multiplePopUp, &QComboBox::activated, this, choose);
  for (std::size_t i = 0; i < fetusActions_.size(); ++i) {
    auto* action = new QAction(this);
    action->setObjectName(QStringLiteral("fetusAction%1").arg(i + 1));
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [choose, i] { choose(static_cast<int>(i)); });
    ui_->patientMenu->addAction(action);
    fetusActions_[i] = action;
  }
  showFetuses();
}

void DocumentWindow::bindPages() {
  framework::TabView& tabs = document_->tabView();
  QString taken;
  for (const QAction* item : ui_->viewMenu->actions()) taken += mnemonicOf(item->text());
  for (std::int64_t i = 0; i < tabs.numberOfPages(); ++i) {
    framework::Page& page = tabs.page(i);
    auto* view = new PageView(page, clicks_);
    subscriptions_.push_back(view->onClick.subscribe([this, &page](framework::Point point, int count) {
      perform([&page, point, count](NCDocument&) { page.click(point, count); });
    }));
    const QString name = said("MyDocument", page.name().c_str());
    view->setObjectName(fromUtf8(page.name()) + QStringLiteral("Page"));
    view->setAccessibleName(name);
    ui_->tabView->addTab(view, name);
    pageViews_.push_back(view);
    auto* action = new QAction(withMnemonic(name, taken), this);
    taken += mnemonicOf(action->text());
    action->setObjectName(fromUtf8(page.name()) + QStringLiteral("Action"));
    action->setShortcut(QKeySequence(QStringLiteral("Alt+%1").arg(i + 1)));
    connect(action, &QAction::triggered, this,
            [this, i] { ui_->tabView->setCurrentIndex(static_cast<int>(i)); });
    ui_->viewMenu->addAction(action);
  }
  const auto showSelected = [this] {
    const QSignalBlocker quiet(ui_->tabView);
    ui_->tabView->setCurrentIndex(static_cast<int>(document_->tabView().indexOfSelectedPage()));
    updatePages();
  };
  subscriptions_.push_back(tabs.onSelect.subscribe(showSelected));
  subscriptions_.push_back(tabs.onNeedsDisplay.subscribe([this] { updatePages(); }));
  connect(ui_->tabView, &QTabWidget::currentChanged, this, [this, showSelected](int index) {
    if (!document_ || index == document_->tabView().indexOfSelectedPage()) return;
    perform([index](NCDocument& document) { document.switchToGraph(index); });
    if (document_) showSelected();
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
  bindEditActions();
  new StandardsMenus(*ui_->menuBar, {ui_->standardsMenu, ui_->fetalWeightMenu, ui_->crownRumpLengthMenu},
                     mnemonicsOf(*ui_->menuBar, *ui_->patientPanel), environment_.application,
                     [this](const framework::MenuItem& item) {
                       perform([this, &item](NCDocument&) { environment_.application.chooseStandard(item); });
                     });
  new PageZoom({.in = *ui_->zoomInAction,
                .out = *ui_->zoomOutAction,
                .fit = *ui_->zoomFitAction,
                .views = pageViews_,
                .pageOnShow = [this] { return dynamic_cast<PageView*>(ui_->tabView->currentWidget()); }},
               *this);
  connect(ui_->referencesAction, &QAction::triggered, this, [this] {
    if (!references_) references_ = new ReferencesDialog(environment_.services.localizer, this);
    references_->show();
    references_->raise();
    references_->activateWindow();
  });
  connect(ui_->guideAction, &QAction::triggered, this,
          [this] { environment_.actions.perform([this] { environment_.application.doHelp(); }); });
  connect(ui_->aboutAction, &QAction::triggered, this, [this] { showAbout(); });
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
  const PanelDialog::Perform perform = [this](const DocumentAction& action) { this->perform(action); };
  const foundation::Services& services = environment_.services;
  Actions& actions = environment_.actions;
  const auto withFields = [this](DatingDialog* dialog) {
    bindings_.insert(bindings_.end(), dialog->bindings().begin(), dialog->bindings().end());
    return dialog;
  };
  if (panel.name() == "crlWindow")
    return withFields(new EDDFromCRLDialog(*document_, services, actions, perform, this));
  if (panel.name() == "lmpWindow")
    return withFields(new EDDFromLMPDialog(*document_, services, actions, perform, this));
  if (panel.name() == "measurementsWindow")
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
  new EditMenu(*this, *ui_->editMenu,
               {.undo = *ui_->undoAction,
                .redo = *ui_->redoAction,
                .cut = *ui_->cutAction,
                .copy = *ui_->copyAction,
                .paste = *ui_->pasteAction,
                .selectAll = *ui_->selectAllAction});
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

void DocumentWindow::describeFields() {
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
  for (const Row& row : {Row{calc::Measurement::bpd, ui_->bpdField, ui_->bpdLabel, ui_->bpdHint},
                         Row{calc::Measurement::hc, ui_->hcField, ui_->hcLabel, ui_->hcHint},
                         Row{calc::Measurement::ac, ui_->acField, ui_->acLabel, ui_->acHint},
                         Row{calc::Measurement::fl, ui_->flField, ui_->flLabel, ui_->flHint}}) {
    const calc::EditingBounds bounds = calc::editingBounds(row.measurement);
    const QString least = QString::number(static_cast<int>(bounds.least));
    const QString greatest = QString::number(static_cast<int>(bounds.greatest));
    row.hint->setText(said("MyDocument", "mm (%1\u2013%2)").arg(least, greatest));
    describe(row.edit, row.label,
             said("MyDocument", "%1, %2 to %3 mm").arg(row.edit->toolTip(), least, greatest));
  }
  const foundation::Localizer& localizer = environment_.services.localizer;
  const QString example = exampleDateText(localizer);
  for (FieldEdit* edit : {ui_->birthDateField, ui_->examDateField})
    describe(edit, nullptr, said("MyDocument", "%1, for example %2").arg(edit->toolTip(), example));
  const int room = fontMetrics().horizontalAdvance(longestDateText(localizer));
  ui_->birthDateLongForm->setMinimumWidth(room);
  ui_->examDateLongForm->setMinimumWidth(room);
  ui_->multiplePopUp->setAccessibleDescription(said("MyDocument", "The fetus on show"));
}

void DocumentWindow::showEditing() {
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
  statusLabel_->setText(permitted.isEmpty() ? message : said("MyDocument", "Permitted: %1").arg(permitted));
  statusLabel_->setToolTip(statusLabel_->text());
  // What a field permits is short and must be read whole.
  statusLabel_->setMinimumWidth(permitted.isEmpty() ? 0 : statusLabel_->sizeHint().width());
  showLongDates();
}

void DocumentWindow::showLongDates() {
  const foundation::Localizer& localizer = environment_.services.localizer;
  const QString example = said("MyDocument", "such as %1").arg(exampleDateText(localizer));
  const framework::TextField* told = document_ ? document_->statusLine().field() : nullptr;
  const std::array<std::pair<const FieldEdit*, QLabel*>, 2> dates{
      {{ui_->birthDateField, ui_->birthDateLongForm}, {ui_->examDateField, ui_->examDateLongForm}}};
  for (const auto& [edit, label] : dates) {
    const QString text = edit->text().trimmed();
    const QString inWords = longDateText(text, localizer);
    const bool wasErased = told != nullptr && fromUtf8(told->name()) == edit->objectName();
    label->setText(edit->isReadOnly()             ? QString()
                   : !inWords.isEmpty()           ? inWords
                   : text.isEmpty() && !wasErased ? example
                                                  : said("MyDocument", "no date"));
  }
}

void DocumentWindow::showFetuses() {
  if (!document_) return;
  const framework::PopUpButton& popUp = document_->multiplePopUp();
  QComboBox& box = *ui_->multiplePopUp;
  const QSignalBlocker quiet(&box);
  box.clear();
  for (const auto& item : popUp.items()) box.addItem(fromUtf8(item.title));
  const auto selected = static_cast<int>(popUp.indexOfSelectedItem());
  box.setCurrentIndex(selected);
  for (std::size_t i = 0; i < fetusActions_.size(); ++i) {
    QAction& action = *fetusActions_.at(i);
    const bool isThere = i < popUp.items().size();
    action.setVisible(isThere);
    action.setEnabled(isThere);
    if (!isThere) continue;
    const auto& item = popUp.items().at(i);
    // The last sign tells them apart.
    action.setText(QStringLiteral("&%1  %2").arg(QString::number(i + 1), fromUtf8(item.title)));
    action.setShortcut(item.keyEquivalent.empty()
                           ? QKeySequence()
                           : QKeySequence(QStringLiteral("Ctrl+") + fromUtf8(item.keyEquivalent)));
    action.setChecked(static_cast<int>(i) == selected);
  }
  ui_->addFetusAction->setEnabled(popUp.numberOfItems() < calc::kMostFetuses);
  ui_->deleteFetusAction->setEnabled(popUp.numberOfItems() > calc::kFewestFetuses);
}

void DocumentWindow::showState() {
  if (!document_) return;
  setWindowTitle(fromUtf8(foundation::oneLine(document_->displayName())) + QStringLiteral("[*]"));
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
  showLongDates();
  updatePages();
}

void DocumentWindow::showStandards() {
  if (!document_) return;
  const foundation::Localizer& localizer = environment_.services.localizer;
  growthLabel_->setText(fromUtf8(calc::growthStandardTitle(document_->standard(), localizer)));
  weightLabel_->setText(fromUtf8(calc::fetalWeightTitle(document_->fetalWeightStandard(), localizer)));
  const calc::WeightFormula* formula = calc::weightFormula(document_->fetalWeightStandard());
  ui_->weightFormula->setText(formula ? said("MyDocument", "by %1").arg(fromUtf8(formula->shortLabel))
                                      : QString());
  updatePages();
}

void DocumentWindow::updatePages() {
  if (!document_) return;
  for (PageView* view : pageViews_) view->update();
  if (compare_) compare_->refresh();
  const std::int64_t shown = document_->tabView().indexOfSelectedPage();
  QStringList advice;
  for (const std::string& sentence : document_->adviceOnPage(shown)) advice << fromUtf8(sentence);
  pageViews_.at(static_cast<std::size_t>(shown))->setAdvice(advice.join(u'\n'));
  pageViews_.at(static_cast<std::size_t>(shown))
      ->setDescription(shown == app::PatientPages::kReportPage
                           ? fromUtf8(document_->report().shownText())
                           : said("MyDocument", "Growth chart of %1. Examination %2, %3. %4")
                                 .arg(fromUtf8(document_->shownTitle(true)), ui_->examinationLabel->text(),
                                      fromUtf8(document_->ageField().text()),
                                      fromUtf8(document_->spokenPage(shown))));
}

void DocumentWindow::showCompare() {
  if (!compare_) {
    compare_ = new CompareDialog(
        {.services = environment_.services,
         .alerts = environment_.alerts,
         .comparison =
             [this] {
               if (!document_) return ShownComparison{};
               return ShownComparison{.heading = fromUtf8(document_->comparisonHeading()),
                                      .tables = document_->comparison()};
             },
         .paper = [this] { return document_ ? document_->printInfo() : framework::PrintInfo{}; },
         .suggestedName =
             [this] { return document_ ? fromUtf8(document_->suggestedFileName()) : QString(); }},
        this);
  }
  compare_->show();
  compare_->raise();
  compare_->activateWindow();
}

void DocumentWindow::showAbout() {
  QMessageBox box(this);
  box.setWindowTitle(said("MyDocument", "About Nascor"));
  box.setTextFormat(Qt::PlainText);
  box.setText(said("MyDocument", "Nascor %1").arg(programVersion()));
  box.setInformativeText(
      QStringLiteral("%1\n\n%2\n\n%3")
          .arg(
              disclaimer(), said("MyDocument", "Copyright (c) 2026 The Nascor developers. MIT License."),
              said("MyDocument",
                   "Linked with Qt %1 (GNU LGPL 3), the D-Bus library (AFL 2.1 or GNU GPL 2) and the GNU C++ "
                   "library (GNU GPL 3 with the GCC Runtime Library Exception).")
                  .arg(QLatin1String(qVersion()))));
  box.exec();
}

void DocumentWindow::restoreWindowGeometry() {
  const auto kept = environment_.services.defaults.value(kGeometryKey);
  if (kept && restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(*kept)))) {
    // It may be from a larger screen, or one of another scale.
    if (const QScreen* here = screen()) resize(size().boundedTo(here->availableVirtualSize()));
    return;
  }
  if (const QScreen* here = screen()) {
    resize(usualWindowSize(size(), here->availableSize()));
    move(here->availableGeometry().center() - QRect(QPoint(), size()).center());
  }
}

void DocumentWindow::moveAside(const std::vector<const DocumentWindow*>& others) {
  if (isMaximized() || isFullScreen() || !screen()) return;
  const QRect available = screen()->availableGeometry();
  const int step = style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8;
  const auto covers = [this](const DocumentWindow* other) {
    return other->isVisible() && (other->pos() - pos()).manhattanLength() < 8;
  };
  const QRect start(available.topLeft(), available.size() / 2);
  // Each step leaves one of the others behind; after the middle of the screen it begins at the upper left corner.
  for (std::size_t i = 0; i <= others.size() && std::ranges::any_of(others, covers); ++i) {
    const QPoint next = pos() + QPoint(step, step);
    move(start.contains(next) ? next : start.topLeft());
    resize(size().boundedTo(QRect(pos(), available.bottomRight()).size()).expandedTo(minimumSizeHint()));
  }
}

void DocumentWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !document_) return;
  if (environment_.actions.isRunning() || environment_.documents.currentDocument() == document_) return;
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
        if (!all.paths.isEmpty()) environment_.openFiles(all.paths);
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

void DocumentWindow::placePopUp() {
  const QPoint at = ui_->multiplePopUp->mapTo(this, QPoint());
  document_->multiplePopUp().setFrame({.x = static_cast<double>(at.x()),
                                       .y = static_cast<double>(at.y()),
                                       .width = static_cast<double>(ui_->multiplePopUp->width()),
                                       .height = static_cast<double>(ui_->multiplePopUp->height())});
}

}  // namespace nascor::qt
