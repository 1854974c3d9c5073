// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// A walk over everything that is shown: in light and dark, with texts as they are, with longer ones and in every language.
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontInfo>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTableView>
#include <QTranslator>

#include "WindowTest.h"
#include "exchange/FhirBundle.h"
#include "exchange/OutgoingExamination.h"

namespace nascor::tests {
namespace {

/// A language whose texts are 40 % longer.
class Longer final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* source, const char*, int) const override {
    const QString text = QString::fromUtf8(source);
    if (text == QStringLiteral("d MMMM yyyy")) return text;
    return text + QString((text.size() * 2 + 4) / 5, u'\u0151');
  }
};

QPalette darkPalette() {
  QPalette palette(QColor(0x30, 0x30, 0x30));
  palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
  palette.setColor(QPalette::Highlight, QColor(0x2a, 0x60, 0xa8));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}
double contrast(const QColor& a, const QColor& b) {
  const double one = luminance(a) + 0.05;
  const double other = luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

struct Look {
  std::string name;
  bool isDark;
  bool isLong = false;
  std::string language = "en";
  bool isFromRight = false;
};

/// Light and dark, in English and with longer texts, from right to left, and in every other language.
std::vector<Look> looks() {
  std::vector<Look> all{{.name = "light", .isDark = false},
                        {.name = "dark", .isDark = true},
                        {.name = "lightLong", .isDark = false, .isLong = true},
                        {.name = "darkLong", .isDark = true, .isLong = true},
                        {.name = "lightFromRight", .isDark = false, .isFromRight = true}};
  for (const std::string& language : languages()) {
    if (language == "en") continue;
    all.push_back({.name = "light_" + language, .isDark = false, .language = language});
    all.push_back({.name = "dark_" + language, .isDark = true, .language = language});
  }
  return all;
}

class EveryWidget : Speaking, public WindowTest, public testing::WithParamInterface<Look> {
 protected:
  EveryWidget()
      : Speaking(GetParam().language),
        WindowTest(localeOf(GetParam().language)),
        oldPalette(QApplication::palette()) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(GetParam().isDark ? darkPalette() : QApplication::style()->standardPalette());
    if (GetParam().isLong) QCoreApplication::installTranslator(&longer);
    if (GetParam().isFromRight) QApplication::setLayoutDirection(Qt::RightToLeft);
  }
  ~EveryWidget() override {
    QCoreApplication::removeTranslator(&longer);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setPalette(oldPalette);
  }

  static QString nameOf(const QWidget& shown) {
    return QString::fromLatin1(shown.metaObject()->className()) + u' ' + shown.objectName();
  }
  static void expectRoom(const QWidget& shown) {
    SCOPED_TRACE(nameOf(shown).toStdString());
    if (const auto* edit = qobject_cast<const QLineEdit*>(&shown)) {
      EXPECT_GE(edit->height(), edit->minimumSizeHint().height());
      EXPECT_GE(edit->width(), edit->fontMetrics().horizontalAdvance(edit->text()) + 6);
    } else if (qobject_cast<const QPlainTextEdit*>(&shown)) {
      EXPECT_GE(shown.height(), 2 * shown.fontMetrics().lineSpacing());
    } else if (const auto* label = qobject_cast<const QLabel*>(&shown); label && label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    } else {
      EXPECT_GE(shown.width(), shown.sizeHint().width());
      EXPECT_GE(shown.height(), shown.sizeHint().height());
    }
  }
  static void expectContrast(const QWidget& shown) {
    SCOPED_TRACE(nameOf(shown).toStdString());
    const QPalette& palette = shown.palette();
    const auto color = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    // A field that is only read lets the window through.
    const auto background = [&](QPalette::ColorRole role) {
      return color(role).alpha() > 0 ? color(role) : color(QPalette::Window);
    };
    EXPECT_GE(contrast(color(shown.foregroundRole()), background(shown.backgroundRole())), 4.5);
    EXPECT_GE(contrast(color(QPalette::Text), background(QPalette::Base)), 4.5);
    EXPECT_GE(contrast(color(QPalette::ButtonText), color(QPalette::Button)), 4.5);
    if (dynamic_cast<const qt::FieldEdit*>(&shown)) {
      EXPECT_GE(contrast(qt::refusalColor(palette), color(QPalette::Window)), 3.0);
      EXPECT_GE(contrast(qt::refusalColor(palette), color(QPalette::Base)), 3.0);
    }
  }
  /// The widgets of ours in `parent`: not those of which the toolkit makes its own.
  static void walk(const QWidget& parent) {
    QWidgetList siblings;
    for (QObject* child : parent.children()) {
      auto* shown = qobject_cast<QWidget*>(child);
      if (!shown || !shown->isVisible() || shown->isWindow()) continue;
      siblings << shown;
      const bool isOurs = qobject_cast<QLabel*>(shown) || qobject_cast<QLineEdit*>(shown) ||
                          qobject_cast<QAbstractButton*>(shown) || qobject_cast<QComboBox*>(shown) ||
                          qobject_cast<QSpinBox*>(shown) || qobject_cast<QPlainTextEdit*>(shown);
      if (isOurs) {
        expectRoom(*shown);
        expectContrast(*shown);
      } else if (!qobject_cast<QMenuBar*>(shown) && !qobject_cast<QTabWidget*>(shown)) {
        walk(*shown);
      }
    }
    for (qsizetype i = 0; i < siblings.size(); ++i) {
      for (qsizetype j = i + 1; j < siblings.size(); ++j) {
        EXPECT_FALSE(siblings[i]->geometry().intersects(siblings[j]->geometry()))
            << nameOf(*siblings[i]).toStdString() << " lies over " << nameOf(*siblings[j]).toStdString();
      }
    }
  }
  void keep(QWidget& shown, const char* what) {
    const QString pictures = QStringLiteral(NASCOR_ARTEFACTS "/") + QFontInfo(shown.font()).family();
    QDir().mkpath(pictures);
    const QString path = (pictures + QStringLiteral("/%1-%2-%3x%4@%5.png"))
                             .arg(QLatin1String(what), QString::fromStdString(GetParam().name))
                             .arg(shown.width())
                             .arg(shown.height())
                             .arg(shown.devicePixelRatio());
    EXPECT_TRUE(shown.grab().save(path));
  }

  Longer longer;
  QPalette oldPalette;
};

TEST_P(EveryWidget, hasItsRoomAndCanBeRead) {
  open(twins());
  qt::DocumentWindow& window = front();
  widget<QTabWidget>("tabView").setCurrentIndex(1);
  for (const QSize size : {window.minimumSizeHint(), QSize(1280, 800), QSize(1920, 1080)}) {
    SCOPED_TRACE(size.width());
    window.resize(size);
    settle();
    walk(window);
    keep(window, "window");
  }
  EXPECT_LE(window.minimumSizeHint().width(), 1280);
  EXPECT_LE(window.minimumSizeHint().height(), 720);
  type("bpdField", "201");
  press(Qt::Key_Tab);
  settle();
  walk(window);
  keep(window, "refusing");
  window.resize(window.minimumSizeHint());
  settle();
  walk(window);
  keep(window, "refusing");
  press(Qt::Key_Escape);
  EXPECT_GE(contrast(window.palette().color(QPalette::Active, QPalette::WindowText),
                     window.palette().color(QPalette::Active, QPalette::Window)),
            4.5);

  action("adjustDeliveryAction").trigger();
  auto* panel = window.findChild<QDialog*>(QStringLiteral("adjustDeliveryPanel"));
  ASSERT_TRUE(panel->isVisible());
  settle();
  walk(*panel);
  keep(*panel, "adjust-delivery");
  panel->close();

  action("referencesAction").trigger();
  auto* references = window.findChild<QDialog*>(QStringLiteral("referencesDialog"));
  ASSERT_TRUE(references->isVisible());
  settle();
  walk(*references);
  keep(*references, "references");
  references->close();
}

TEST_P(EveryWidget, ofAMessageBoxHasItsRoomAndCanBeRead) {
  open(twins());
  click("addExaminationButton");
  enter("bpdField", "44");
  answersQuestions(false);
  /// Looks at the box that opens while `action` runs, and answers it by the button of that name, or by Escape.
  const auto lookAt = [this](const char* what, const std::function<void()>& ask) {
    SCOPED_TRACE(what);
    bool wasSeen = false;
    const auto look = [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box || wasSeen) return;
      wasSeen = true;
      settle();
      walk(*box);
      keep(*box, what);
      EXPECT_LE(box->width(), 800);
      EXPECT_LE(box->height(), 600);
      QTest::keyClick(box, Qt::Key_Escape);
    };
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, look);
    timer.start(1);
    ask();
    EXPECT_TRUE(QTest::qWaitFor([&] { return wasSeen; }));
    settle();
    front();
  };
  lookAt("about", [&] { action("aboutAction").trigger(); });
  lookAt("gravidity", [&] { type("gravidaField", "3"); });
  lookAt("edd", [&] { type("birthDateField", "3"); });
  lookAt("fetus", [&] { click("deleteFetusButton"); });
  lookAt("examination", [&] { click("deleteExaminationButton"); });
  lookAt("revert", [&] { action("revertAction").trigger(); });
  lookAt("unreadable", [&] { application.openFiles({folder.filePath(QStringLiteral("gone.nascor"))}); });
  lookAt("close", [&] { front().close(); });
}

TEST_P(EveryWidget, ofTheCompareWindowHasItsRoomAndCanBeRead) {
  qt::DocumentWindow& window = open(twins());
  action("compareAction").trigger();
  settle();
  auto* compare = window.findChild<QDialog*>(QStringLiteral("compareDialog"));
  auto* tabs = compare->findChild<QTabWidget*>(QStringLiteral("compareTabs"));
  walk(*compare);
  for (int page = 0; page < tabs->count(); ++page) {
    tabs->setCurrentIndex(page);
    settle();
    auto* table = qobject_cast<QTableView*>(tabs->currentWidget());
    SCOPED_TRACE(nameOf(*table).toStdString());
    // No column outside the window, unless the screen ends.
    if (compare->width() < compare->screen()->availableGeometry().width()) {
      EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0);
    }
    for (int column = 0; column < table->model()->columnCount(); ++column) {
      EXPECT_GE(table->columnWidth(column),
                static_cast<QAbstractItemView*>(table)->sizeHintForColumn(column));
      EXPECT_GE(table->columnWidth(column), table->horizontalHeader()->sectionSizeHint(column));
    }
    const QColor text = table->palette().color(QPalette::Active, QPalette::Text);
    EXPECT_GE(contrast(text, table->palette().color(QPalette::Active, QPalette::Base)), 4.5);
    EXPECT_GE(contrast(text, table->palette().color(QPalette::Active, QPalette::AlternateBase)), 4.5);
    keep(*compare, ("compare-" + std::to_string(page)).c_str());
  }
  compare->close();
}

TEST_P(EveryWidget, ofTheDialogsThatHoldTheWindowHasItsRoomAndCanBeRead) {
  model::PatientRecord patient = twins();
  const QString report =
      file(QStringLiteral("report.json"),
           QByteArray::fromStdString(exchange::writeFhir(
               exchange::outgoingExaminations(patient, platform.calendar), exchange::FhirForm::bundle)));
  // In the document of another patient, the dialog says why it waits.
  patient.setMaternalIDString("ZZ-999");
  open(patient);
  for (const auto& [trigger, picture] :
       {std::pair("summaryDetailsAction", "summary-details"),
        std::pair("serverSettingsAction", "server-settings"), std::pair("importReportAction", "import")}) {
    SCOPED_TRACE(picture);
    bool wasSeen = false;
    QTimer timer;
    const auto look = [&, name = picture] {
      auto* shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!shown || wasSeen) return;
      if (auto* panel = qobject_cast<QFileDialog*>(shown)) {
        panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(report);
        QTest::keyClick(panel, Qt::Key_Return);
        return;
      }
      wasSeen = true;
      settle();
      walk(*shown);
      keep(*shown, name);
      QTest::keyClick(shown, Qt::Key_Escape);
    };
    QObject::connect(&timer, &QTimer::timeout, look);
    timer.start(1);
    action(trigger).trigger();
    settle();
    EXPECT_TRUE(wasSeen);
  }
}

TEST_P(EveryWidget, ofAnOverlaidPageCanBeRead) {
  open(twins());
  widget<QTabWidget>("tabView").setCurrentIndex(1);
  settle();
  const QImage bare = front().grab().toImage();
  widget<QMenu>("overlayMenu").actions().at(1)->trigger();
  settle();
  EXPECT_NE(front().grab().toImage(), bare);
  keep(front(), "overlay");
}

TEST_P(EveryWidget, ofTheDatingDialogsHasItsRoomAndCanBeRead) {
  model::PatientRecord patient = twins();
  patient.setEDD(std::nullopt);
  qt::DocumentWindow& window = open(patient);
  struct Dialog {
    const char* action;
    const char* panel;
    const char* picture;
  };
  for (const Dialog& each :
       {Dialog{"eddFromLMPAction", "lmpWindow", "edd-from-lmp"},
        Dialog{"eddFromCRLAction", "crlWindow", "edd-from-crl"},
        Dialog{"eddFromMeasurementsAction", "measurementsWindow", "edd-from-measurements"}}) {
    SCOPED_TRACE(each.panel);
    action(each.action).trigger();
    auto* dialog = window.findChild<QDialog*>(QLatin1String(each.panel));
    ASSERT_TRUE(dialog->isVisible());
    settle();
    walk(*dialog);
    keep(*dialog, each.picture);
    // What keeps OK from working, in its outline.
    dialog->accept();
    settle();
    if (dialog->isVisible()) {
      walk(*dialog);
      keep(*dialog, (std::string(each.picture) + "-refused").c_str());
    }
    dialog->close();
  }
}

TEST(TheDefaultFont, isTheOneThatTheTestsBring) {
  const QByteArray family = qgetenv("NASCOR_TEST_FONT");
  EXPECT_EQ(QFontInfo(QApplication::font()).family().toStdString(),
            family.isEmpty() ? "DejaVu Sans" : family.toStdString());
}

INSTANTIATE_TEST_SUITE_P(looks, EveryWidget, testing::ValuesIn(looks()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace nascor::tests
