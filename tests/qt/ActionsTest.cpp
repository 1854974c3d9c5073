// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Everything that a user can do in the windows, each by its own keys and clicks; and at the end a walk through the real
// windows, which finds what nobody tries here.
#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <map>
#include <set>

#include "Run.h"
#include "WindowTest.h"
#include "calc/References.h"
#include "foundation/IsoDate.h"
#include "framework/PageWriter.h"
#include "posix/DocumentLock.h"
#include "summary/Summary.h"
#include "support/ReadOnlyFields.h"
#include "window/PageView.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
namespace export_key = framework::export_key;

/// Takes the place of the user's viewer.
class Viewer final : public QTextBrowser {
 public:
  Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource"); }
  ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  std::string shown = "nothing";

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType) override {
    shown = url.fileName().toStdString();
  }
};

/// What the rows below say about the window in front.
struct Actions : WindowTest {
  using WindowTest::action;
  using WindowTest::answers;
  using WindowTest::asked;
  using WindowTest::click;
  using WindowTest::document;
  using WindowTest::enter;
  using WindowTest::field;
  using WindowTest::file;
  using WindowTest::focus;
  using WindowTest::folder;
  using WindowTest::front;
  using WindowTest::label;
  using WindowTest::open;
  using WindowTest::platform;
  using WindowTest::press;
  using WindowTest::type;
  using WindowTest::widget;

  Actions() {
    platform.defaults.setValue(export_key::folder, out.path().toStdString());
    QGuiApplication::clipboard()->clear();
  }
  /// On the second of three examinations of twins, so that nothing is disabled.
  void openInTheMiddle(bool isDated = true) {
    model::PatientRecord record = patient(
        {{{2026, 10, 24}, {30.0, 70.0}}, {{2026, 11, 21}, {40.0, 80.0}}, {{2026, 12, 19}, {50.0, 90.0}}});
    if (!isDated) record.setEDD(std::nullopt);
    open(record, isDated ? QStringLiteral("AB-123.nascor") : QStringLiteral("undated.nascor"));
    click("previousButton");
  }
  /// Does that with the next dialog of its kind as soon as it is open.
  template <class Dialog>
  void whenOpen(const std::function<void(Dialog&)>& what) {
    auto* timer = new QTimer(&context);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, what] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog || QApplication::activeWindow() != dialog) return;
      timer->stop();
      what(*dialog);
    });
    timer->start(1);
  }
  void nameFile(const QString& path) {
    whenOpen<QFileDialog>([path](QFileDialog& dialog) {
      auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      edit->setText(path);
      QTest::keyClick(edit, Qt::Key_Return);
    });
  }
  static void clickButton(const QWidget& dialog, QDialogButtonBox::StandardButton which) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(which), Qt::LeftButton);
    settle();
  }
  std::string shownDialog() {
    for (const QDialog* each : front().findChildren<QDialog*>()) {
      if (each->isVisible()) return each->objectName().toStdString();
    }
    return "none";
  }
  /// A dialog of the window, in front of it.
  QDialog& active(const char* name) {
    auto& dialog = widget<QDialog>(name);
    dialog.activateWindow();
    if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }))
      throw std::runtime_error("the dialog is not active");
    return dialog;
  }
  std::string title() { return front().windowTitle().toStdString(); }
  std::string files() const {
    return QDir(out.path()).entryList(QDir::Files, QDir::Name).join(u'|').toStdString();
  }
  std::string preference(std::string_view key) { return platform.defaults.value(key).value_or(""); }
  std::string documents() { return std::to_string(application.documents().documents().size()); }
  static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }
  model::PatientRecord& record() { return *document().patientRecord(); }
  model::NCRecord& examination() { return *record().ncRecordsArray().at(1); }
  /// The letter that leads to the field, by its label.
  static Qt::Key letterOf(const QWidget& edit) {
    for (const QLabel* each : edit.window()->findChildren<QLabel*>()) {
      if (each->buddy() == &edit) return QKeySequence::mnemonic(each->text())[0].key();
    }
    throw std::runtime_error("no label");
  }
  /// The action of that name, or that place in that menu.
  QAction& itemNamed(const std::string& name) {
    const std::size_t slash = name.find('/');
    if (slash == std::string::npos) return widget<QAction>(name.c_str());
    return *widget<QMenu>(name.substr(0, slash).c_str()).actions().at(std::stoi(name.substr(slash + 1)));
  }
  std::string seen = "nothing";  ///< what a dialog showed
  Viewer viewer;
  QTemporaryDir out;
  QObject context;
};

/// What an item of the menus changes.
struct Row {
  std::string name;
  std::string before;
  std::string after;
  std::function<std::string(Actions&)> state;
  std::function<void(Actions&)> prepare = {};
  const char* keys = "";    ///< its shortcut, if it has one
  const char* button = "";  ///< the button that does the same, if there is one
};

std::string bpdField(Actions& window) { return window.field("bpdField"); }
std::string dialog(Actions& window) { return window.shownDialog(); }
std::string examination(Actions& window) { return window.label("examinationLabel"); }
std::string fetus(Actions& window) {
  return window.widget<QComboBox>("multiplePopUp").currentText().toStdString();
}
std::string title(Actions& window) { return window.title(); }
std::string documents(Actions& window) { return window.documents(); }
std::string exported(Actions& window) { return window.files(); }
std::string seen(Actions& window) { return window.seen; }
std::string pageSize(Actions& window) {
  const auto& page = static_cast<qt::PageView&>(*window.widget<QTabWidget>("tabView").currentWidget());
  return page.scale() > page.fittingScale() * 1.02 ? "larger" : "fits";
}
void enlarge(Actions& window) { window.action("zoomInAction").trigger(); }
std::string clipboard(Actions&) { return Actions::clipboard(); }
void typeALength(Actions& window) { window.type("bpdField", "7"); }
void typeAndSelectALength(Actions& window) {
  typeALength(window);
  window.press(Qt::Key_A, Qt::ControlModifier);
}
void openUndated(Actions& window) { window.openInTheMiddle(false); }
std::function<void(Actions&)> answering(const char* button) {
  return [button](Actions& window) { window.answers = {button}; };
}

/// The pages, the fetuses and the standards, which the program knows by number.
std::vector<Row> numberedRows() {
  std::vector<Row> rows;
  const auto add = [&](const char* menu, int count, std::string_view key) {
    for (int i = 0; i < count; ++i) {
      const int other = i == 0 ? 1 : 0;
      rows.push_back({std::string(menu) + '/' + std::to_string(i), std::to_string(other), std::to_string(i),
                      [key](Actions& window) { return window.preference(key); },
                      [menu, other](Actions& window) {
                        window.itemNamed(std::string(menu) + '/' + std::to_string(other)).trigger();
                      }});
    }
  };
  add("standardsMenu", 4, "Standard");
  add("fetalWeightMenu", 8, "Estimated Fetal Weight Standard");
  add("crownRumpLengthMenu", 4, "CRL Standard");
  const auto references = calc::references();
  for (std::size_t i = 0; i <= references.size(); ++i) {
    const auto nameAt = [&](std::size_t place) {
      return place == 0 ? std::string() : std::string(references[place - 1].name);
    };
    const std::size_t other = i == 0 ? 1 : 0;
    rows.push_back(
        {"overlayMenu/" + std::to_string(i), nameAt(other), nameAt(i),
         [](Actions& window) {
           const auto* shown = window.document().overlay().centiles;
           return std::string(shown != nullptr ? shown->name : "");
         },
         [other](Actions& window) { window.itemNamed("overlayMenu/" + std::to_string(other)).trigger(); }});
  }
  const auto page = [](Actions& window) {
    return std::to_string(window.document().tabView().indexOfSelectedPage());
  };
  static constexpr std::array kKeys{"Alt+1", "Alt+2", "Alt+3", "Alt+4", "Alt+5", "Alt+6", "Alt+7"};
  static constexpr std::array kPages{"Trends", "BPD", "HC", "AC", "FL", "Weight", "Report"};
  for (std::size_t i = 0; i < kPages.size(); ++i) {
    const std::int64_t other = i == 0 ? 3 : 0;
    rows.push_back({std::string(kPages[i]) + "Action", std::to_string(other), std::to_string(i), page,
                    [other](Actions& window) { window.document().switchToGraph(other); }, kKeys[i]});
  }
  return rows;
}

std::vector<Row> rows() {
  std::vector<Row> rows{
      {"newAction", "AB-123.nascor[*]", "Untitled[*]", title, {}, "Ctrl+N"},
      {"openAction", "AB-123.nascor[*]", "other.nascor[*]", title,
       [](Actions& window) {
         window.nameFile(window.file(QStringLiteral("other.nascor"), documentBytes(singleton())));
       },
       "Ctrl+O"},
      {"saveAction", "edited", "saved",
       [](Actions& window) { return std::string(window.front().isWindowModified() ? "edited" : "saved"); },
       [](Actions& window) { window.enter("bpdField", "77"); }, "Ctrl+S"},
      {"saveAsAction", "AB-123.nascor[*]", "copy.nascor[*]", title,
       [](Actions& window) { window.nameFile(window.folder.filePath(QStringLiteral("copy"))); },
       "Ctrl+Shift+S"},
      {"revertAction", "77.0", "50.0", bpdField,
       [](Actions& window) {
         window.enter("bpdField", "77");
         window.answers = {"Revert"};
       }},
      {"exportAction", "", "AB-123 (G2) 1 of 2 - Trends.pdf", exported, {}, "Ctrl+Shift+P"},
      {"exportAllAction", "",
       "AB-123 (G2) 1 of 2 - Report.pdf|AB-123 (G2) 1 of 2 - Trends.pdf|AB-123 (G2) 2 of 2 - Report.pdf|"
       "AB-123 (G2) 2 of 2 - Trends.pdf",
       exported},
      {"exportSettingsAction", "", "png",
       [](Actions& window) { return window.preference(export_key::format); },
       [](Actions& window) {
         window.whenOpen<QDialog>([](QDialog& settings) {
           auto* format = settings.findChild<QComboBox*>(QStringLiteral("exportFormat"));
           QTest::keyClick(&settings, Actions::letterOf(*format), Qt::AltModifier);
           QTest::keyClick(settings.focusWidget(), Qt::Key_Down);
           Actions::clickButton(settings, QDialogButtonBox::Ok);
         });
       }},
      {"pageSetupAction", "landscape", "portrait",
       [](Actions& window) {
         return std::string(window.document().printInfo().isLandscape ? "landscape" : "portrait");
       },
       [](Actions& window) {
         window.whenOpen<QPageSetupDialog>([](QPageSetupDialog& setup) {
           setup.findChild<QRadioButton*>(QStringLiteral("portrait"))->click();
           Actions::clickButton(setup, QDialogButtonBox::Ok);
         });
       }},
      {"printPreviewAction", "nothing", "2 pages", seen,
       [](Actions& window) {
         window.whenOpen<QPrintPreviewDialog>([&window](QPrintPreviewDialog& preview) {
           auto* pages = preview.findChild<QPrintPreviewWidget*>();
           window.seen = std::to_string(pages->pageCount()) + " pages";
           QTest::keyClick(&preview, Qt::Key_Escape);
         });
       }},
      {"printAction", "nothing", "2 pages",
       [](Actions& window) {
         const QString pdf = window.out.filePath(QStringLiteral("printed.pdf"));
         if (!QFile::exists(pdf)) return std::string("nothing");
         const std::string facts = run("pdfinfo", {pdf}).output;
         return std::string(facts.find("Pages:           2\n") != std::string::npos ? "2 pages" : facts);
       },
       [](Actions& window) {
         window.whenOpen<QPrintDialog>([&window](QPrintDialog& print) {
           print.findChild<QLineEdit*>(QStringLiteral("filename"))
               ->setText(window.out.filePath(QStringLiteral("printed.pdf")));
           Actions::clickButton(print, QDialogButtonBox::Ok);
         });
       },
       "Ctrl+P"},
      {"exportSummaryAction", "", "summary.html", exported,
       [](Actions& window) { window.nameFile(window.out.filePath(QStringLiteral("summary.html"))); }},
      {"printSummaryAction", "", "summary.pdf", exported,
       [](Actions& window) {
         window.whenOpen<QPrintDialog>([&window](QPrintDialog& print) {
           print.findChild<QLineEdit*>(QStringLiteral("filename"))
               ->setText(window.out.filePath(QStringLiteral("summary.pdf")));
           Actions::clickButton(print, QDialogButtonBox::Ok);
         });
       }},
      {"exportDataAction", "", "data.json", exported,
       [](Actions& window) { window.nameFile(window.out.filePath(QStringLiteral("data.json"))); }},
      {"summaryDetailsAction", "", "Dr. Eve",
       [](Actions& window) { return window.preference(summary::kExaminerKey); },
       [](Actions& window) {
         window.whenOpen<QDialog>([](QDialog& details) {
           auto* examiner = details.findChild<QLineEdit*>(QStringLiteral("summaryExaminer"));
           QTest::keyClick(&details, Actions::letterOf(*examiner), Qt::AltModifier);
           QTest::keyClicks(details.focusWidget(), QStringLiteral("Dr. Eve"));
           Actions::clickButton(details, QDialogButtonBox::Ok);
         });
       }},
      {"closeAction", "1", "0", documents, {}, "Ctrl+W"},
      {"quitAction", "1", "0", documents, {}, "Ctrl+Q"},
      {"undoAction", "7", "40.0", bpdField, typeALength, "Ctrl+Z"},
      {"redoAction", "40.0", "7", bpdField,
       [](Actions& window) {
         typeALength(window);
         window.press(Qt::Key_Z, Qt::ControlModifier);
       },
       "Ctrl+Shift+Z"},
      {"cutAction", "7", "", bpdField, typeAndSelectALength, "Ctrl+X"},
      {"copyAction", "", "7", clipboard, typeAndSelectALength, "Ctrl+C"},
      {"pasteAction", "7", "70.5", bpdField,
       [](Actions& window) {
         typeALength(window);
         QGuiApplication::clipboard()->setText(QStringLiteral("0.5"));
       },
       "Ctrl+V"},
      {"selectAllAction", "", "7",
       [](Actions& window) { return window.widget<QLineEdit>("bpdField").selectedText().toStdString(); },
       typeALength, "Ctrl+A"},
      {"copyReportAction",
       "no table",
       "a table",
       [](Actions& window) {
         return std::string(window.clipboard().find("\n10/24/26\t16w 0d\t30.0\t") != std::string::npos
                                ? "a table"
                                : "no table");
       },
       {},
       "Ctrl+Shift+C"},
      {"previousAction", "2 of 3", "1 of 3", examination, {}, "Alt+Left", "previousButton"},
      {"nextAction", "2 of 3", "3 of 3", examination, {}, "Alt+Right", "nextButton"},
      {"addExaminationAction", "2 of 3", "3 of 4", examination, {}, "Ctrl+Shift+E", "addExaminationButton"},
      {"deleteExaminationAction", "2 of 3", "2 of 2", examination, answering("Remove"), "",
       "deleteExaminationButton"},
      {"addFetusAction", "Twin 1", "Triplet 3 of 3", fetus, {}, "Ctrl+Shift+F", "addFetusButton"},
      {"deleteFetusAction", "Twin 1", "Singleton", fetus, answering("Remove"), "", "deleteFetusButton"},
      {"fetusAction1", "Twin 2", "Twin 1", fetus,
       [](Actions& window) { window.press(Qt::Key_2, Qt::ControlModifier); }, "Ctrl+1"},
      {"fetusAction2", "Twin 1", "Twin 2", fetus, {}, "Ctrl+2"},
      {"eddFromLMPAction", "none", "lmpWindow", dialog, openUndated, "Ctrl+Shift+L"},
      {"eddFromCRLAction", "none", "crlWindow", dialog, openUndated, "Ctrl+Shift+R"},
      {"eddFromMeasurementsAction", "none", "measurementsWindow", dialog, openUndated, "Ctrl+Shift+M"},
      {"adjustDeliveryAction", "none", "adjustDeliveryPanel", dialog, {}, "Ctrl+Shift+D"},
      {"showAllAction", "YES", "NO",
       [](Actions& window) {
         return std::string(
             foundation::boolForKey(window.platform.defaults, foundation::defaults_key::showAll) ? "YES"
                                                                                                 : "NO");
       }},
      {"joinMarksAction", "apart", "joined",
       [](Actions& window) {
         return std::string(window.document().overlay().joinsMarks ? "joined" : "apart");
       }},
      {"zoomInAction", "fits", "larger", pageSize, {}, "Ctrl++"},
      {"zoomOutAction", "larger", "fits", pageSize, enlarge, "Ctrl+-"},
      {"zoomFitAction", "larger", "fits", pageSize, enlarge, "Ctrl+0"},
      {"compareAction", "none", "compareDialog", dialog, {}, "Ctrl+K"},
      {"guideAction",
       "nothing",
       "Nascor User Guide.pdf",
       [](Actions& window) { return window.viewer.shown; },
       {},
       "F1"},
      {"referencesAction", "none", "referencesDialog", dialog},
      {"aboutAction", "nothing", "Nascor " NASCOR_VERSION,
       [](Actions& window) { return window.asked.empty() ? "nothing" : window.asked[0].message; },
       answering("OK")},
  };
  for (Row& row : numberedRows()) rows.push_back(std::move(row));
  return rows;
}

/// A way to an action of the menus.
struct Way {
  const char* name;
  void (*go)(Actions& window, const Row& row);
};

/// The menu of the bar that leads to the item, and behind it the menu within that holds it, if one does.
std::vector<QMenu*> menusTo(Actions& window, const QAction& item) {
  for (const QAction* each : window.widget<QMenuBar>("menuBar").actions()) {
    if (each->menu()->actions().contains(&item)) return {each->menu()};
    for (const QAction* inner : each->menu()->actions()) {
      if (inner->menu() && inner->menu()->actions().contains(&item)) return {each->menu(), inner->menu()};
    }
  }
  throw std::runtime_error("in no menu");
}
bool isOpen(const QMenu& menu) {
  return QTest::qWaitFor([&menu] { return QApplication::activePopupWidget() == &menu; });
}
void byMouse(Actions& window, const Row& row) {
  QAction& item = window.itemNamed(row.name);
  const auto menus = menusTo(window, item);
  auto& bar = window.widget<QMenuBar>("menuBar");
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menus.front()->menuAction()).center());
  ASSERT_EQ(QApplication::activePopupWidget(), menus.front());
  if (menus.size() > 1) {
    const QRect place = menus.front()->actionGeometry(menus.back()->menuAction());
    QTest::mouseClick(menus.front(), Qt::LeftButton, {}, place.center());
    ASSERT_TRUE(isOpen(*menus.back()));
  }
  QTest::mouseClick(menus.back(), Qt::LeftButton, {}, menus.back()->actionGeometry(&item).center());
}
void byMnemonics(Actions& window, const Row& row) {
  QAction& item = window.itemNamed(row.name);
  const auto menus = menusTo(window, item);
  const auto key = [](const QString& text) { return QKeySequence::mnemonic(text)[0].key(); };
  window.press(key(menus.front()->title()), Qt::AltModifier);
  ASSERT_EQ(QApplication::activePopupWidget(), menus.front());
  if (menus.size() > 1) {
    QTest::keyClick(menus.front(), key(menus.back()->title()));
    ASSERT_TRUE(isOpen(*menus.back()));
  }
  QTest::keyClick(menus.back(), key(item.text()));
}
void byKeys(Actions& window, const Row& row) {
  const QKeySequence keys(QLatin1String(row.keys));
  EXPECT_EQ(window.itemNamed(row.name).shortcut().toString(), keys.toString());
  if (window.focus() != "bpdField") window.widget<QLineEdit>("bpdField").setFocus();  // as nearly always
  window.press(keys[0].key(), keys[0].keyboardModifiers());
}
void byButton(Actions& window, const Row& row) { window.click(row.button); }

struct Case {
  Row row;
  Way way;
  friend std::ostream& operator<<(std::ostream& to, const Case& each) {
    return to << each.row.name << ' ' << each.way.name;
  }
};
std::vector<Case> cases() {
  std::vector<Case> result;
  for (const Row& row : rows()) {
    result.push_back({row, {"byMouse", byMouse}});
    result.push_back({row, {"byMnemonics", byMnemonics}});
    if (*row.keys) result.push_back({row, {"byKeys", byKeys}});
    if (*row.button) result.push_back({row, {"byButton", byButton}});
  }
  return result;
}
class EachItem : public Actions, public testing::WithParamInterface<Case> {};

TEST_P(EachItem, isDone) {
  const Row& row = GetParam().row;
  openInTheMiddle();
  if (row.prepare) row.prepare(*this);
  ASSERT_EQ(row.state(*this), row.before);
  GetParam().way.go(*this, row);
  settle();
  EXPECT_TRUE(QTest::qWaitFor([&] { return row.state(*this) == row.after; })) << row.state(*this);
  if (documents() != "0" && focus() == "bpdField") press(Qt::Key_Escape);
}

INSTANTIATE_TEST_SUITE_P(items, EachItem, testing::ValuesIn(cases()), [](const auto& each) {
  std::string name = each.param.row.name + "_" + each.param.way.name;
  std::ranges::replace(name, '/', '_');
  return name;
});

struct Field {
  const char* name;
  const char* text;
  std::string stored;
  std::function<std::string(Actions& window)> inRecord;
  bool isAskedAbout = false;
};
std::vector<Field> fields() {
  return {{"referenceIDField", "XY-9", "XY-9",
           [](Actions& window) { return window.record().maternalIDString().value_or(""); }},
          {"gravidaField", "3", "3",
           [](Actions& window) { return std::to_string(window.record().gravida()); }, true},
          {"birthDateField", "4/11/27", "2027-04-11",
           [](Actions& window) {
             return foundation::isoDayText(window.record().edd().value(), window.platform.calendar);
           },
           true},
          {"examDateField", "11/22/26", "2026-11-22",
           [](Actions& window) {
             return foundation::isoDayText(window.examination().examDate().value(), window.platform.calendar);
           }},
          {"bpdField", "41.25", "41.250000",
           [](Actions& window) { return std::to_string(window.examination().measurements()[0].bpd()); }},
          {"hcField", "150", "150.000000",
           [](Actions& window) { return std::to_string(window.examination().measurements()[0].hc()); }},
          {"acField", "140", "140.000000",
           [](Actions& window) { return std::to_string(window.examination().measurements()[0].ac()); }},
          {"flField", "30", "30.000000",
           [](Actions& window) { return std::to_string(window.examination().measurements()[0].fl()); }},
          {"notesField", "breech", "breech",
           [](Actions& window) { return window.examination().note().value_or(""); }}};
}

struct FieldCase {
  Field field;
  bool isByMnemonic;
  friend std::ostream& operator<<(std::ostream& to, const FieldCase& each) { return to << each.field.name; }
};
std::vector<FieldCase> fieldCases() {
  std::vector<FieldCase> result;
  for (const Field& each : fields()) {
    result.push_back({each, false});
    result.push_back({each, true});
  }
  return result;
}
class EachField : public Actions, public testing::WithParamInterface<FieldCase> {};

TEST_P(EachField, isTypedIntoAndSaved) {
  const Field& row = GetParam().field;
  openInTheMiddle();
  auto& edit = widget<QWidget>(row.name);
  EXPECT_NE(row.inRecord(*this), row.stored);
  if (GetParam().isByMnemonic) {
    press(letterOf(edit), Qt::AltModifier);
  } else {
    QTest::mouseClick(&edit, Qt::LeftButton);
    settle();
  }
  ASSERT_EQ(focus(), row.name);
  if (row.isAskedAbout) answers = {"Modify"};
  press(Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&edit, QLatin1String(row.text));
  settle();
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(front().isWindowModified());
  EXPECT_EQ(row.inRecord(*this), row.stored);
}

INSTANTIATE_TEST_SUITE_P(fields, EachField, testing::ValuesIn(fieldCases()), [](const auto& each) {
  return std::string(each.param.field.name) + (each.param.isByMnemonic ? "_byMnemonic" : "_byMouse");
});

TEST_F(Actions, chooseAFetusByTheLetterOfItsLabel) {
  openInTheMiddle();
  auto& box = widget<QComboBox>("multiplePopUp");
  press(letterOf(box), Qt::AltModifier);
  ASSERT_EQ(focus(), "multiplePopUp");
  press(Qt::Key_Down);
  EXPECT_EQ(document().currentFetus(), 1);
}

TEST_F(Actions, turnThePagesByTheMouseOnTheTabs) {
  openInTheMiddle();
  auto& bar = *widget<QTabWidget>("tabView").tabBar();
  for (const int i : {6, 1, 0}) {
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(i).center());
    settle();
    EXPECT_EQ(document().tabView().indexOfSelectedPage(), i);
  }
}

TEST_F(Actions, askAboutTheGravidityAndKeepIt) {
  openInTheMiddle();
  answers = {"Cancel"};
  type("gravidaField", "3");
  EXPECT_EQ(field("gravidaField"), "2");
  EXPECT_EQ(record().gravida(), 2);
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(Actions, areAnsweredByTheLettersOfTheButtonsWhileTheOldTextStands) {
  openInTheMiddle();
  answersQuestions(false);
  struct Answer {
    Qt::Key letter;
    const char* shown;
  };
  for (const Answer& answer : {Answer{Qt::Key_C, "2"}, Answer{Qt::Key_M, "3"}}) {
    whenOpen<QMessageBox>([&](QMessageBox& box) {
      EXPECT_EQ(widget<QLineEdit>("gravidaField").text(), QStringLiteral("2"));
      box.activateWindow();
      EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &box; }));
      QTest::keyClick(&box, answer.letter, Qt::AltModifier);
    });
    type("gravidaField", "3");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(field("gravidaField"), answer.shown);
  }
  press(Qt::Key_4);
  EXPECT_EQ(field("gravidaField"), "34") << "typing goes on where it began";
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field("gravidaField"), "2");
  press(Qt::Key_Escape);
}

TEST_F(Actions, saveOverAFileThatAnotherProgramHasChangedOnlyWhenToldTo) {
  openInTheMiddle();
  enter("bpdField", "77");
  const QByteArray others = documentBytes(twins());
  const QString path = file(QStringLiteral("AB-123.nascor"), others);
  const auto isOthers = [&] {
    QFile kept(path);
    return kept.open(QIODevice::ReadOnly) && kept.readAll() == others;
  };
  answers = {"Cancel"};
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(isOthers());
  EXPECT_TRUE(front().isWindowModified());
  answers = {"Save Anyway"};
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(isOthers());
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(Actions, openADocumentThatIsOpenElsewhereAsTheUserSays) {
  const QString path = file(QStringLiteral("AB-123.nascor"), documentBytes(singleton()));
  const std::string name = QFile::encodeName(path).toStdString();
  posix::LockRecord record = posix::ownLockRecord();
  record.host = record.boot = record.machine = "ward-3";
  writeFile(QFile::decodeName(posix::lockPathOf(name).c_str()),
            QByteArray::fromStdString(posix::textOf(record)));
  const auto titleAfter = [&](const char* button) {
    answers = {button};
    application.openFiles({path});
    settle();
    return application.documents().currentDocument() ? front().windowTitle().toStdString() : "";
  };
  EXPECT_EQ(titleAfter("Cancel"), "");
  EXPECT_THAT(asked.back().buttons,
              testing::UnorderedElementsAre("Open Read-Only", "Open a Copy", "Open Anyway", "Cancel"));
  EXPECT_THAT(asked.back().information, testing::HasSubstr("Machine: ward-3"));
  EXPECT_EQ(titleAfter("Open Read-Only"), "AB-123.nascor[*] (read-only)");
  front().close();
  EXPECT_EQ(titleAfter("Open a Copy"), "Untitled[*]");
  answers = {"Discard"};
  front().close();
  settle();
  EXPECT_EQ(titleAfter("Open Anyway"), "AB-123.nascor[*]");
}

TEST_F(Actions, askAboutAFetusAndKeepIt) {
  openInTheMiddle();
  answers = {"Cancel"};
  click("deleteFetusButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked.size() == 1; }));
  EXPECT_EQ(record().numberOfFetuses(), 2);
  EXPECT_FALSE(front().isWindowModified());
}

TEST_F(Actions, offerAPatientsDocumentAndTakeANoForAnAnswer) {
  writeFile(QString::fromStdString(platform.files.documentsFolder() + "/AB-123 (G2).nascor"),
            documentBytes(singleton()));
  application.newDocument();
  enter("referenceIDField", "ab-123");
  answers = {"Cancel"};
  enter("gravidaField", "2");
  settle();
  EXPECT_EQ(title(), "Untitled[*]");
  EXPECT_EQ(record().maternalIDString(), "AB-123");
  EXPECT_EQ(record().gravida(), 2);
}

/// A dating dialog, each of its fields reached by the letter of its label.
struct Dating {
  const char* name;
  Qt::Key key;
  std::vector<std::pair<const char*, const char*>> typed;
  std::vector<const char*> clicked;
  const char* edd;
  friend std::ostream& operator<<(std::ostream& to, const Dating& each) { return to << each.name; }
};
// 1 July 2026 + 280 days, 7 for the cycle and 1 for the luteal phase; 45 mm by Hadlock's formula on 20 August; nothing
// measured 281 days before.
std::vector<Dating> datings() {
  return {
      Dating{"lmpWindow",
             Qt::Key_L,
             {{"lmpWindowLMP", "7/1/26"}, {"lmpWindowCycleField", "35"}, {"lmpWindowLutealField", "13"}},
             {},
             "2027-04-15"},
      Dating{
          "crlWindow", Qt::Key_R, {{"crlWindowDate", "8/20/26"}, {"crlWindowCRL", "45"}}, {}, "2027-03-08"},
      Dating{"measurementsWindow",
             Qt::Key_M,
             {},
             {"measurementsWindowBPDCheck", "measurementsWindowHCCheck", "measurementsWindowACCheck",
              "measurementsWindowFLCheck"},
             "2027-08-29"}};
}
class EachDatingDialog : public Actions, public testing::WithParamInterface<Dating> {
 protected:
  QDialog& fill() {
    openInTheMiddle(false);
    press(GetParam().key, Qt::ControlModifier | Qt::ShiftModifier);
    auto& shown = active(GetParam().name);
    for (const auto& [name, text] : GetParam().typed) {
      auto& edit = *shown.findChild<QWidget*>(QLatin1String(name));
      QTest::keyClick(shown.focusWidget(), letterOf(edit), Qt::AltModifier);
      settle();
      EXPECT_EQ(shown.focusWidget(), &edit) << name;
      QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(&edit, QLatin1String(text));
    }
    for (const char* name : GetParam().clicked) {
      auto& box = *shown.findChild<QCheckBox*>(QLatin1String(name));
      QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.height() / 2, box.height() / 2));
      EXPECT_FALSE(box.isChecked()) << name;
    }
    return shown;
  }
};

TEST_P(EachDatingDialog, datesByItsOkButton) {
  const QDialog& shown = fill();
  clickButton(shown, QDialogButtonBox::Ok);
  EXPECT_FALSE(shown.isVisible());
  ASSERT_TRUE(record().edd());
  EXPECT_EQ(foundation::isoDayText(*record().edd(), platform.calendar), GetParam().edd);
}

TEST_P(EachDatingDialog, changesNothingByItsCancelButton) {
  const QDialog& shown = fill();
  clickButton(shown, QDialogButtonBox::Cancel);
  EXPECT_FALSE(shown.isVisible());
  EXPECT_FALSE(record().edd());
  EXPECT_FALSE(front().isWindowModified());
}

INSTANTIATE_TEST_SUITE_P(dialogs, EachDatingDialog, testing::ValuesIn(datings()),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_F(Actions, planTheDeliveryAndCloseItsPanel) {
  openInTheMiddle();
  press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  auto& shown = active("adjustDeliveryPanel");
  auto& days = *shown.findChild<QSpinBox*>();
  shown.findChild<QPushButton*>()->setFocus();
  QTest::keyClick(&shown, letterOf(days), Qt::AltModifier);
  ASSERT_EQ(shown.focusWidget(), &days);
  QTest::keyClick(&days, Qt::Key_Up);
  EXPECT_EQ(field("adjustDeliverOnField"), "4/11/27");
  clickButton(shown, QDialogButtonBox::Close);
  EXPECT_FALSE(shown.isVisible());
  EXPECT_NEAR(record().extrapolatedGestation(), 40.0 + 1.0 / 7.0, 1e-12);
}

TEST_F(Actions, setWhatIsExportedAndWhere) {
  openInTheMiddle();
  ASSERT_TRUE(QDir(out.path()).mkdir(QStringLiteral("other")));
  const QString other = out.filePath(QStringLiteral("other"));
  for (const bool isAgreed : {false, true}) {
    whenOpen<QDialog>([&](QDialog& settings) {
      nameFile(other);
      QTest::mouseClick(settings.findChild<QPushButton*>(QStringLiteral("chooseExportFolder")),
                        Qt::LeftButton);
      auto* foot = settings.findChild<QCheckBox*>(QStringLiteral("exportFoot"));
      QTest::mouseClick(foot, Qt::LeftButton, {}, QPoint(foot->height() / 2, foot->height() / 2));
      clickButton(settings, isAgreed ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
    });
    action("exportSettingsAction").trigger();
    EXPECT_EQ(preference(export_key::folder), (isAgreed ? other : out.path()).toStdString());
    EXPECT_EQ(preference(export_key::pageFoot), isAgreed ? "false" : "");
  }
}

TEST_F(Actions, typeWhatStandsOnSummaries) {
  openInTheMiddle();
  for (const bool isAgreed : {false, true}) {
    whenOpen<QDialog>([&](QDialog& details) {
      auto* letterhead = details.findChild<QPlainTextEdit*>(QStringLiteral("summaryLetterhead"));
      QTest::keyClick(&details, letterOf(*letterhead), Qt::AltModifier);
      QTest::keyClicks(details.focusWidget(), QStringLiteral("Ward 3"));
      QTest::keyClick(details.focusWidget(), Qt::Key_Return);
      QTest::keyClicks(details.focusWidget(), QStringLiteral("Hill Street"));
      clickButton(details, isAgreed ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
    });
    action("summaryDetailsAction").trigger();
    EXPECT_EQ(preference(summary::kLetterheadKey), isAgreed ? "Ward 3\nHill Street" : "");
  }
  EXPECT_THAT(document().patientSummary()->letterhead, testing::ElementsAre("Ward 3", "Hill Street"));
}

TEST_F(Actions, closeTheReferences) {
  openInTheMiddle();
  action("referencesAction").trigger();
  const auto& shown = widget<QDialog>("referencesDialog");
  clickButton(shown, QDialogButtonBox::Close);
  EXPECT_FALSE(shown.isVisible());
}

TEST_F(Actions, openClearAndForgetRecentDocumentsByKeys) {
  open(singleton(), QStringLiteral("a.nascor"));
  open(twins(), QStringLiteral("b.nascor"));
  const auto choose = [&](Qt::Key item) {
    press(Qt::Key_F, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_R);
    ASSERT_EQ(QApplication::activePopupWidget(), &widget<QMenu>("recentMenu"));
    QTest::keyClick(QApplication::activePopupWidget(), item);
    settle();
  };
  choose(Qt::Key_2);
  EXPECT_EQ(title(), "a.nascor[*]");
  choose(Qt::Key_C);
  EXPECT_TRUE(application.recentFiles().paths().isEmpty());
  choose(Qt::Key_R);
  EXPECT_FALSE(application.recentFiles().isKept());
}

/// What the rows above do not do, and the tests that do it.
const std::map<std::string, std::string>& doneElsewhere() {
  static const std::map<std::string, std::string> tests{
      {"recentMenu/0", "Actions.openClearAndForgetRecentDocumentsByKeys"},
      {"clearRecentAction", "Actions.openClearAndForgetRecentDocumentsByKeys"},
      {"rememberRecentAction", "Actions.openClearAndForgetRecentDocumentsByKeys"},
      {"importReportAction", "TheImportDialog.showsAReportBesideThePatientAndStoresItWithOK"},
      {"waitingReports", "TheReportFolder.showsItselfInTheBottomLineOfEachWindow"},
      {"reportFolderAction", "TheReportFolder.isChosenInItsDialog"},
      {"fetchReportsAction", "TheServerMenu.fetchesTheReportsThatAreChosen"},
      {"sendExaminationAction", "TheServerMenu.sendsTheExaminationOnShowAfterAQuestion"},
      {"serverSettingsAction", "TheServerMenu.keepsTheServerThatIsNamedAndTriesItWhenTold"},
      {"a report dropped", "TheImportDialog.opensForAReportThatIsDroppedOnTheWindow"},
      {"windowMenu/0", "TheWindowMenu.bringsTheChosenDocumentToTheFront"},
      {"Ctrl+= for a larger page", "ThePages.growWithoutTheShiftKeyToo"},
      {"the wheel and the keys over a page that is larger", "ThePages.scrollWhenTheyAreLargerThanTheWindow"},
      {"a link dropped", "TheApplicationOfDocuments.saysThatItOpensNoLinks"},
      {"multiplePopUp", "TheDocumentWindow.showsTheFetusThatIsChosen"},
      {"letter of multiplePopUp", "Actions.chooseAFetusByTheLetterOfItsLabel"},
      {"tabs", "Actions.turnThePagesByTheMouseOnTheTabs"},
      {"a click on a page", "TheMouseOnAPage.choosesAnExaminationByAClickInTheBand"},
      {"a double click on a page",
       "TheMouseOnAPage.leadsToAnotherPageByADoubleClickAndNoFurtherByATripleOne"},
      {"the mouse at rest on a page", "TheMouseOnAPage.readsAMarkWhenItRestsOnIt"},
      {"a file dropped", "TheApplicationOfDocuments.opensWhatIsDroppedOnAWindowAndNotAsText"},
      {"a text pasted, dropped or composed", "EveryWayToType.asksOnceAndRestoresTheTextOnCancel"},
      {"Escape in a field", "Editing.givesTheOldTextBackWithTheEscapeKey"},
      {"Return in a field", "Editing.goesOnToTheNextFieldWithTheReturnKey"},
      {"a click into a number or date", "Editing.replacesANumberOrDateThatIsClickedInto"},
      {"the window's cross", "TheApplicationOfDocuments.savesBeforeItClosesWhenTheUserSaysSo"},
      {"the window's size", "TheDocumentWindow.keepsItsPlaceOnTheScreenApartFromTheClinicalPreferences"},
      {"the end of the session", "TheEndOfTheSession.savesTheEditedDocumentsOneByOneAndClosesNone"},
      {"Modify gravidity", "Editing.asksOnceBeforeAGravidityIsChanged"},
      {"Cancel gravidity", "Actions.askAboutTheGravidityAndKeepIt"},
      {"Modify EDD", "EveryWayToType.asksOnceAndRestoresTheTextOnCancel"},
      {"Cancel EDD", "Editing.leavesTheEDDWhenTheUserCancels"},
      {"Save Anyway or Cancel", "Actions.saveOverAFileThatAnotherProgramHasChangedOnlyWhenToldTo"},
      {"Open Read-Only, Open a Copy or Cancel", "Actions.openADocumentThatIsOpenElsewhereAsTheUserSays"},
      {"Open Anyway", "Actions.openADocumentThatIsOpenElsewhereAsTheUserSays"},
      {"Remove fetus", "TheDocumentWindow.addsAFetusAndRemovesOneAfterAQuestion"},
      {"Cancel fetus", "Actions.askAboutAFetusAndKeepIt"},
      {"Remove or Cancel examination", "TheDocumentWindow.addsAndDeletesAnExamination"},
      {"Revert or Cancel", "TheDocumentWindow.goesBackToTheSavedDocumentAfterAQuestion"},
      {"Save on closing", "TheApplicationOfDocuments.savesBeforeItClosesWhenTheUserSaysSo"},
      {"Discard or Cancel on closing",
       "TheApplicationOfDocuments.asksForEachEditedDocumentWhenItQuitsAndClosesNoneAfterCancel"},
      {"Open the patient's document", "Editing.opensAPatientsOwnDocumentInPlaceOfTheBlankOne"},
      {"Cancel the patient's document", "Actions.offerAPatientsDocumentAndTakeANoForAnAnswer"},
      {"Modify or Cancel a dating dialog", "TheDialogs.askOnThemselvesWhetherAnEstablishedEDDIsModified"},
      {"adjustDeliveryStepper", "TheDialogs.movesTheDeliveryByKeysAlone"},
      {"letter of adjustDeliveryStepper", "Actions.planTheDeliveryAndCloseItsPanel"},
      {"adjustDeliveryPanel Close", "Actions.planTheDeliveryAndCloseItsPanel"},
      {"exportFormat", "EachItem.isDone"},
      {"letter of exportFormat", "EachItem.isDone"},
      {"exportFoot", "Actions.setWhatIsExportedAndWhere"},
      {"chooseExportFolder", "Actions.setWhatIsExportedAndWhere"},
      {"exportSettings OK", "Actions.setWhatIsExportedAndWhere"},
      {"exportSettings Cancel", "Actions.setWhatIsExportedAndWhere"},
      {"summaryExaminer", "EachItem.isDone"},
      {"letter of summaryExaminer", "EachItem.isDone"},
      {"summaryLetterhead", "Actions.typeWhatStandsOnSummaries"},
      {"letter of summaryLetterhead", "Actions.typeWhatStandsOnSummaries"},
      {"summaryDetails OK", "Actions.typeWhatStandsOnSummaries"},
      {"summaryDetails Cancel", "Actions.typeWhatStandsOnSummaries"},
      {"compareCopyButton", "CompareDialog.copiesTheRowsAsTheyAreSortedOrThoseThatAreSelected"},
      {"compareExportButton", "CompareDialog.exportsATableAsCSV"},
      {"comparePrintButton", "CompareDialog.printsAllTables"},
      {"a double click, Return or the menu on a figure", "CompareDialog.leadsToWhatStandsBehindAFigure"},
      {"a link of the references", "TheReferences.leadToTheFormulaAndTheCheckedValues"},
      {"allReferencesButton", "TheReferences.leadToTheFormulaAndTheCheckedValues"},
      {"Check the Numbers", "TheDocumentWindow.checksItsNumbersWhenAsked"},
      {"compareDialog Close", "CompareDialog.staysOpenBesideWorkAndHoldsNothingBack"},
      {"copyReferencesButton", "TheDocumentWindow.namesThePublicationsOfItsStandardsAndFormulas"},
      {"referencesDialog Close", "Actions.closeTheReferences"}};
  return tests;
}

class TheCensus : public Actions {
 protected:
  void openWithAllDialogs() {
    openInTheMiddle();
    for (framework::Panel* panel : document().panels()) {
      panel->makeKeyAndOrderFront();  // makes its dialog
      panel->close();
    }
  }
  static std::string plain(QString text) { return text.remove(u'&').toStdString(); }
  static void addItems(const QMenu& menu, std::set<std::string>& found) {
    const auto items = menu.actions();
    for (qsizetype i = 0; i < items.size(); ++i) {
      if (items[i]->isSeparator() || !items[i]->isVisible()) continue;
      if (items[i]->menu()) {
        addItems(*items[i]->menu(), found);
      } else {
        const std::string name = items[i]->objectName().toStdString();
        found.insert(name.empty() ? menu.objectName().toStdString() + '/' + std::to_string(i) : name);
      }
    }
  }
  /// What can be typed into or clicked in `window` and its dialogs.
  static void addWidgets(const QWidget& window, std::set<std::string>& found) {
    for (const QWidget* each : window.findChildren<QWidget*>()) {
      const std::string name = each->objectName().toStdString();
      const auto* edit = qobject_cast<const QLineEdit*>(each);
      const auto* label = qobject_cast<const QLabel*>(each);
      const auto* button = qobject_cast<const QAbstractButton*>(each);
      if (qobject_cast<const QTabBar*>(each)) found.insert("tabs");
      // Parts of Qt's widgets.
      if (name.starts_with("qt_") || name.starts_with("Scroll") || each->inherits("QTableCornerButton"))
        continue;
      if (button && qobject_cast<const QDialogButtonBox*>(each->parentWidget()) && name.empty()) {
        found.insert(each->window()->objectName().toStdString() + ' ' + plain(button->text()));
      } else if (button || (edit && !edit->isReadOnly()) || qobject_cast<const QPlainTextEdit*>(each) ||
                 qobject_cast<const QComboBox*>(each) || qobject_cast<const QSpinBox*>(each)) {
        found.insert(name);
      } else if (label && label->buddy() && !QKeySequence::mnemonic(label->text()).isEmpty()) {
        found.insert("letter of " + label->buddy()->objectName().toStdString());
      }
    }
  }
  static std::set<std::string> tested() {
    std::set<std::string> names;
    for (const Row& row : rows()) {
      names.insert(row.name);
      if (*row.button) names.insert(row.button);
    }
    for (const Field& each : fields()) names.insert({each.name, std::string("letter of ") + each.name});
    for (const Dating& each : datings()) {
      for (const auto& [name, text] : each.typed) names.insert({name, std::string("letter of ") + name});
      names.insert(each.clicked.begin(), each.clicked.end());
      names.insert({std::string(each.name) + " OK", std::string(each.name) + " Cancel"});
    }
    for (const auto& [name, test] : doneElsewhere()) names.insert(name);
    return names;
  }
};

TEST_F(TheCensus, knowsATestForEverythingThatCanBeDone) {
  openWithAllDialogs();
  action("referencesAction").trigger();
  widget<QDialog>("referencesDialog").close();
  action("compareAction").trigger();
  widget<QDialog>("compareDialog").close();
  emit widget<QMenu>("recentMenu").aboutToShow();
  emit widget<QMenu>("windowMenu").aboutToShow();
  std::set<std::string> found;
  for (const QAction* each : widget<QMenuBar>("menuBar").actions()) addItems(*each->menu(), found);
  addWidgets(front(), found);
  for (const char* item : {"exportSettingsAction", "summaryDetailsAction"}) {
    whenOpen<QDialog>([&](QDialog& settings) {
      addWidgets(settings, found);
      settings.reject();
    });
    action(item).trigger();
  }
  const std::set<std::string> known = tested();
  for (const std::string& each : found) EXPECT_TRUE(known.contains(each)) << each << " is done in no test";
  // Names of widgets have no blanks; the others are what no walk finds.
  for (const std::string& each : known) {
    if (each.find(' ') == std::string::npos || each.starts_with("letter of ")) {
      EXPECT_TRUE(found.contains(each)) << each << " is not there any more";
    }
  }
  EXPECT_GT(found.size(), 100U);
}

TEST_F(TheCensus, namesTestsThatThereAre) {
  std::set<std::string> tests;
  const testing::UnitTest& all = *testing::UnitTest::GetInstance();
  for (int i = 0; i < all.total_test_suite_count(); ++i) {
    const testing::TestSuite& suite = *all.GetTestSuite(i);
    const std::string name = suite.name();
    for (int j = 0; j < suite.total_test_count(); ++j) {
      const std::string test = suite.GetTestInfo(j)->name();
      tests.insert(name.substr(name.find('/') + 1) + '.' + test.substr(0, test.find('/')));
    }
  }
  for (const auto& [what, test] : doneElsewhere()) EXPECT_TRUE(tests.contains(test)) << what << ": " << test;
}

TEST_F(TheCensus, letsNobodyTypeIntoWhatOnlyShowsSomething) {
  openWithAllDialogs();
  std::set<std::string_view> readOnly;
  for (const framework::TextField* each : document().textFields()) {
    // What stands above the pages has no widget: it is painted.
    const auto* edit = front().findChild<QLineEdit*>(QString::fromStdString(each->name()));
    if (!edit || edit->isReadOnly()) readOnly.insert(each->name());
    if (edit && edit->isReadOnly()) {
      const QString before = edit->text();
      QTest::keyClicks(front().findChild<QLineEdit*>(edit->objectName()), QStringLiteral("7"));
      EXPECT_EQ(edit->text(), before);
    }
  }
  EXPECT_EQ(readOnly, std::set<std::string_view>(kReadOnlyFields.begin(), kReadOnlyFields.end()));
}

}  // namespace
}  // namespace nascor::tests
