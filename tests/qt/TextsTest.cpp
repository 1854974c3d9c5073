// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Whatever the windows say in words comes through a table of texts, and a table in another language is found and right.
#include <QAction>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTranslator>
#include <QXmlStreamReader>
#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include "WindowTest.h"
#include "app/NCDocument.h"
#include "base/Translation.h"
#include "calc/Publications.h"
#include "calc/References.h"

namespace nascor::tests {
namespace {

/// A text and the name of its table.
using Key = std::pair<QString, QString>;

/// Marks what it has translated, and remembers it.
class Marking final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* table, const char* source, const char*, int) const override {
    const QString text = QString::fromUtf8(source);
    asked.insert({QString::fromUtf8(table), text});
    return text + kMark;
  }
  static constexpr QChar kMark{0x2021};
  mutable std::set<Key> asked;
};

/// One text of a table and what a language says for it, empty where that is to be done yet.
struct Entry {
  Key key;
  QString translation;
};

std::vector<Entry> entriesOf(const QByteArray& table) {
  std::vector<Entry> entries;
  QXmlStreamReader xml(table);
  QString name;
  Entry entry;
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("message"))
      entries.push_back(entry);
    if (token != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("name")) name = xml.readElementText();
    if (xml.name() == QLatin1String("source"))
      entry = {.key = {name, xml.readElementText()}, .translation = {}};
    if (xml.name() == QLatin1String("translation")) entry.translation = xml.readElementText();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return entries;
}

std::vector<Entry> entriesOfFile(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return entriesOf(file.readAll());
}

/// The texts whose translation has other place holders. Numbered ones may change places, the others keep their number.
QStringList mistranslated(const std::vector<Entry>& entries) {
  const auto placeHolders = [](const QString& text) {
    static const QRegularExpression kPlaceHolder(QStringLiteral("%(?:ld|[0-9]+)"));
    std::multiset<QString> found;
    for (auto each = kPlaceHolder.globalMatch(text); each.hasNext();) found.insert(each.next().captured());
    return found;
  };
  QStringList wrong;
  for (const Entry& entry : entries) {
    if (!entry.translation.isEmpty() && placeHolders(entry.translation) != placeHolders(entry.key.second))
      wrong << entry.key.second;
  }
  return wrong;
}

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
    const auto references = calc::references();
    return std::ranges::find(references, label, &calc::Reference::label) != references.end();
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

  std::set<Key> table;
  std::set<QString> names;
  for (const Entry& entry : entriesOfFile(QStringLiteral(NASCOR_TEXTS "/nascor.ts"))) {
    table.insert(entry.key);
    names.insert(entry.key.first);
  }
  int ours = 0;
  for (const Key& key : marking.asked) {
    if (key.second.isEmpty()) continue;
    const bool isToolkits = key.first.startsWith(u'Q') && !names.contains(key.first);
    if (!isToolkits) ++ours;
    EXPECT_TRUE(isToolkits || table.contains(key))
        << key.first.toStdString() << " lacks: " << key.second.toStdString();
  }
  EXPECT_GT(ours, 150);
}

TEST(ATranslation, hasThePlaceHoldersOfItsText) {
  for (const char* folder : {NASCOR_TEXTS, NASCOR_TEST_DATA "/texts"}) {
    for (const QString& name : QDir(QString::fromUtf8(folder)).entryList({QStringLiteral("*.ts")})) {
      EXPECT_EQ(mistranslated(entriesOfFile(QString::fromUtf8(folder) + u'/' + name)), QStringList())
          << name.toStdString();
    }
  }
  const QByteArray wrong =
      "<TS><context><name>T</name>"
      "<message><source>%ldw %ldd</source><translation>%ld weeks</translation></message>"
      "<message><source>%1 of %2</source><translation>%2: %1</translation></message>"
      "<message><source>%1 mm</source><translation>%2 mm</translation></message>"
      "<message><source>%1 g</source><translation type=\"unfinished\"></translation></message>"
      "</context></TS>";
  EXPECT_EQ(mistranslated(entriesOf(wrong)),
            QStringList({QStringLiteral("%ldw %ldd"), QStringLiteral("%1 mm")}));
}

/// The table of a language that the tests have, and nobody else.
class ATranslation_InUse : public WindowTest {
 protected:
  ~ATranslation_InUse() override {
    for (QTranslator* each : qApp->findChildren<QTranslator*>()) delete each;
  }
  static bool install(const QStringList& languages) {
    return qt::installTranslation(languages, QStringLiteral(NASCOR_COMPILED_TEXTS));
  }
  static QString weeks() { return QCoreApplication::translate("NCDocument", "%ldw %ldd"); }
};

TEST_F(ATranslation_InUse, isThatOfTheFirstLanguageThatHasOne) {
  EXPECT_TRUE(install({QStringLiteral("fr-FR"), QStringLiteral("fr"), QStringLiteral("de-AT")}));
  EXPECT_EQ(weeks(), QStringLiteral("%ld Wo. %ld T."));
}

TEST_F(ATranslation_InUse, isNotWantedWhereEnglishComesFirst) {
  EXPECT_FALSE(install({QStringLiteral("fr"), QStringLiteral("en-US"), QStringLiteral("de")}));
  EXPECT_FALSE(install({QStringLiteral("C"), QStringLiteral("de")}));
  EXPECT_FALSE(install({QStringLiteral("fr")}));
  EXPECT_FALSE(qt::installTranslation({QStringLiteral("de")}, folder.filePath(QStringLiteral("none"))));
  EXPECT_EQ(weeks(), QStringLiteral("%ldw %ldd"));
}

TEST_F(ATranslation_InUse, isSpokenByWindowChartsAndNumbersAndEnglishWhereItIsNotDone) {
  EXPECT_TRUE(install({QStringLiteral("de")}));
  open(twins());
  EXPECT_EQ(label("gravidaLabel"), "&Gravidit\u00e4t");
  EXPECT_THAT(field("ageField"), testing::EndsWith(" T."));
  EXPECT_EQ(document().multiplePopUp().itemTitleAtIndex(0), "1. Zwilling");
  EXPECT_EQ(document().multiplePopUp().itemTitleAtIndex(1), "Twin 2");
}

}  // namespace
}  // namespace nascor::tests
