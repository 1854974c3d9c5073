// Whatever the windows say in words comes through a string table.
#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QTabWidget>
#include <QTranslator>
#include <algorithm>

#include "WindowTest.h"
#include "app/NCDocument.h"
#include "calc/Publications.h"

namespace nascor::tests {
namespace {

/// Marks what it has translated.
class Marking final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* source, const char*, int) const override {
    return QString::fromUtf8(source) + kMark;
  }
  static constexpr QChar kMark{0x2021};
};

class EveryText : public WindowTest {
 protected:
  EveryText() { QCoreApplication::installTranslator(&marking); }
  ~EveryText() override { QCoreApplication::removeTranslator(&marking); }

  void expectMarked(const QString& text, const QObject& shown, const char* what) {
    const bool isInWords = std::ranges::any_of(text, [](QChar each) { return each.isLetter(); });
    if (!isInWords) return;
    ++seen;
    EXPECT_TRUE(text.contains(Marking::kMark))
        << what << " of " << shown.metaObject()->className() << " " << shown.objectName().toStdString()
        << " is in no table: " << text.toStdString();
  }
  /// A name and a year, the same in every language.
  static bool isPublication(QString text) {
    const std::string label = text.remove(u'&').toStdString();
    for (const auto& family : {calc::growthStandardPublications(), calc::weightFormulaPublications(),
                               calc::crlFormulaPublications()}) {
      if (std::ranges::find(family, label, &calc::Publication::label) != family.end()) return true;
    }
    return false;
  }
  void walk(const QWidget& window) {
    expectMarked(window.windowTitle().section(QChar(0x2013), 0, 0), window, "title");
    for (const QAction* each : window.findChildren<QAction*>()) {
      const bool isFile = each->data().isValid();
      if (!isFile && !isPublication(each->text())) expectMarked(each->text(), *each, "text");
    }
    for (const QMenu* each : window.findChildren<QMenu*>()) expectMarked(each->title(), *each, "title");
    for (const QWidget* each : window.findChildren<QWidget*>()) {
      if (each->objectName().startsWith(QLatin1String("qt_"))) continue;  // the toolkit's own
      expectMarked(each->toolTip(), *each, "tip");
      expectMarked(each->accessibleName(), *each, "name");
      expectMarked(each->accessibleDescription(), *each, "description");
      if (const auto* label = qobject_cast<const QLabel*>(each)) expectMarked(label->text(), *each, "text");
      if (const auto* button = qobject_cast<const QAbstractButton*>(each))
        expectMarked(button->text(), *each, "text");
      if (const auto* tabs = qobject_cast<const QTabWidget*>(each)) {
        for (int i = 0; i < tabs->count(); ++i) expectMarked(tabs->tabText(i), *each, "tab");
      }
      if (const auto* box = qobject_cast<const QComboBox*>(each)) {
        for (int i = 0; i < box->count(); ++i) expectMarked(box->itemText(i), *each, "item");
      }
    }
  }

  Marking marking;
  int seen = 0;
};

TEST_F(EveryText, ofTheWindowIsInATable) {
  qt::DocumentWindow& window = open(twins());
  for (framework::Panel* panel : document().panels()) {
    panel->makeKeyAndOrderFront();
    panel->close();
  }
  action("referencesAction").trigger();
  settle();
  window.setWindowTitle({});  // the file's name
  walk(window);
  for (const QDialog* each : window.findChildren<QDialog*>())
    expectMarked(each->windowTitle(), *each, "title");
  EXPECT_GT(seen, 150);
}

}  // namespace
}  // namespace nascor::tests
