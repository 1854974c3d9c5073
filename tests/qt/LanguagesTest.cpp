// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What holds in every language that the application comes with.
#include <QAction>
#include <QDialogButtonBox>
#include <QFile>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QXmlStreamReader>
#include <map>
#include <utility>

#include "WindowTest.h"
#include "app/NCDocument.h"
#include "base/Text.h"

namespace nascor::tests {
namespace {

class EachLanguage : Speaking, public WindowTest, public testing::WithParamInterface<std::string> {
 protected:
  EachLanguage() : Speaking(GetParam()), WindowTest(localeOf(GetParam())) {}
};

TEST_P(EachLanguage, hasEveryMenuAndItemOnTheKeyboard) {
  open(twins());
  QStringList letters;
  for (const QAction* menu : front().menuBar()->actions()) {
    EXPECT_FALSE(QKeySequence::mnemonic(menu->text()).isEmpty()) << menu->text().toStdString();
    letters << QKeySequence::mnemonic(menu->text()).toString();
    QStringList items;
    for (const QAction* item : menu->menu()->actions()) {
      if (item->isSeparator() || !item->isVisible()) continue;
      EXPECT_FALSE(QKeySequence::mnemonic(item->text()).isEmpty()) << item->text().toStdString();
      items << QKeySequence::mnemonic(item->text()).toString();
    }
    EXPECT_EQ(items.removeDuplicates(), 0) << menu->text().toStdString();
  }
  for (const QLabel* fieldLabel : widget<QWidget>("patientPanel").findChildren<QLabel*>()) {
    const QKeySequence mnemonic = QKeySequence::mnemonic(fieldLabel->text());
    if (!mnemonic.isEmpty()) letters << mnemonic.toString();
  }
  EXPECT_EQ(letters.removeDuplicates(), 0);
}

/// The texts of a table, with the names of their contexts, and how many of them are translated.
struct Table {
  std::vector<std::pair<QString, QString>> keys;
  qsizetype done = 0;
  QString language;
};

Table tableOf(const QString& name) {
  QFile file(QStringLiteral(NASCOR_TEXTS "/") + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  QXmlStreamReader xml(&file);
  Table table;
  QString context;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("TS")) table.language = xml.attributes().value("language").toString();
    if (xml.name() == QLatin1String("name")) context = xml.readElementText();
    if (xml.name() == QLatin1String("source")) table.keys.emplace_back(context, xml.readElementText());
    if (xml.name() != QLatin1String("translation")) continue;
    const bool isDone = !xml.attributes().hasAttribute("type");
    if (!xml.readElementText().trimmed().isEmpty() && isDone) ++table.done;
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return table;
}

TEST_P(EachLanguage, hasEveryText) {
  if (GetParam() == "en") return;
  Table sources = tableOf(QStringLiteral("nascor.ts"));
  Table table = tableOf(QStringLiteral("nascor_%1.ts").arg(QString::fromStdString(GetParam())));
  EXPECT_EQ(table.language.toStdString(), GetParam());
  EXPECT_GT(sources.keys.size(), 500U);
  EXPECT_EQ(table.done, static_cast<qsizetype>(table.keys.size())) << "some are not translated yet";
  std::ranges::sort(sources.keys);
  std::ranges::sort(table.keys);
  EXPECT_EQ(table.keys, sources.keys) << "the target `texts` brings them up to date";
}

TEST_P(EachLanguage, saysOfItselfThatNoClinicianHasReviewedIt) {
  openBlank();
  answers = {GetParam() == "es" ? "Aceptar" : "OK"};
  action("aboutAction").trigger();
  settle();
  ASSERT_EQ(asked.size(), 1U);
  const QString notice = qt::said("MyDocument", "Translated by machine, not yet reviewed by a clinician.");
  EXPECT_EQ(QString::fromStdString(asked[0].information).contains(notice), GetParam() != "en");
  EXPECT_EQ(qt::spokenLanguage().toStdString(), GetParam() == "en" ? "" : GetParam());
}

TEST_P(EachLanguage, isSpokenByTheToolkitToo) {
  const QDialogButtonBox box(QDialogButtonBox::Cancel);
  const std::string text = box.button(QDialogButtonBox::Cancel)->text().remove(u'&').toStdString();
  const std::map<std::string, std::string> known{
      {"en", "Cancel"}, {"fr", "Annuler"}, {"de", "Abbrechen"}, {"es", "Cancelar"}};
  EXPECT_EQ(text, known.at(GetParam()));
}

TEST_P(EachLanguage, paintsItsPages) {
  qt::DocumentWindow& window = open(twins());
  auto& tabs = widget<QTabWidget>("tabView");
  for (int page = 0; page < tabs.count(); ++page) {
    tabs.setCurrentIndex(page);
    window.resize(1280, 860);
    settle();
    const QString pictures = QStringLiteral(NASCOR_ARTEFACTS "/pages");
    QDir().mkpath(pictures);
    EXPECT_TRUE(window.grab().save(
        pictures + QStringLiteral("/%1-%2.png").arg(QString::fromStdString(GetParam())).arg(page + 1)));
  }
}

INSTANTIATE_TEST_SUITE_P(languages, EachLanguage, testing::ValuesIn(languages()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace nascor::tests
