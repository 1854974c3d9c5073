// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Documents that hold more than any person enters, in real windows, on paper and in files.
#include <QClipboard>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QTabWidget>
#include <algorithm>
#include <array>

#include "WindowTest.h"
#include "model/PatientPage.h"
#include "painting/PageFiles.h"
#include "support/HeavyDocuments.h"
#include "support/Spent.h"

namespace nascor::tests {
namespace {

using framework::PageFormat;

constexpr std::size_t kMebibyte = std::size_t{1} << 20U;

class AWindowOfAnyWeight : public WindowTest, public testing::WithParamInterface<HeavyDocument> {
 protected:
  template <class Work>
  void step(const char* name, Work work) {
    const Spent spent;
    work();
    if (qEnvironmentVariableIsSet("NASCOR_SHOW_SPENT"))
      qInfo("%s\t%s\t%.3f s\t%.0f MiB", GetParam().name.c_str(), name, spent.seconds(), spent.memory());
    EXPECT_LT(spent.seconds(), kMostSeconds) << name;
    EXPECT_LT(spent.memory(), kMostMemory) << name;
  }
};

TEST_P(AWindowOfAnyWeight, opensPaintsTypesExportsPrintsAndSaves) {
  platform.defaults.setValue(foundation::defaults_key::showAll, "YES");
  // The first window of all and its first page set up fonts and styles.
  open(singleton(), QStringLiteral("first.nascor")).grab();
  const auto record = heavyPatient(GetParam().weight, platform.calendar);
  const QString path = file(QStringLiteral("heavy.nascor"), documentBytes(*record));

  step("opening", [&] {
    application.openFiles({path});
    front();
    settle();
  });
  for (int page = 0; page < widget<QTabWidget>("tabView").count(); ++page) {
    step("painting", [&] { widget<QTabWidget>("tabView").widget(page)->grab(); });
  }
  step("painting the window", [&] { front().grab(); });
  step("turning the pages", [&] {
    for (std::int64_t page = 0; page < document().tabView().numberOfPages(); ++page) {
      document().switchToGraph(page);
      settle();
    }
  });
  for (const PageFormat format : {PageFormat::pdf, PageFormat::png, PageFormat::svg}) {
    for (const std::int64_t page :
         {model::indexOf(model::PatientPage::trends), model::indexOf(model::PatientPage::report)}) {
      step("exporting", [&] {
        const qt::LaidOutSheet sheet(
            {.page = document().tabView().page(page), .foot = document().footOfPage(page, 1, 1)});
        EXPECT_FALSE(qt::bytesOfSheet(sheet, format, qt::kUsualPngScale).isEmpty());
      });
    }
  }
  step("saving unchanged", [&] { application.documents().saveDocument(document()); });
  {
    QFile saved(path);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_TRUE(saved.readAll() == documentBytes(*record)) << "a visit changes nothing";
  }
  step("typing a note", [&] {
    auto& note = widget<QPlainTextEdit>("notesField");
    note.setFocus();
    QTest::keyClicks(&note, QStringLiteral("abc"));
    settle();
  });
  step("typing a length", [&] { enter("bpdField", "44"); });
  step("typing a reference ID", [&] {
    auto& edit = widget<QLineEdit>("referenceIDField");
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClicks(&edit, QStringLiteral("Q"));
    settle();
  });
  step("leaving it", [&] { press(Qt::Key_Tab); });
  step("going to another examination", [&] { action("previousAction").trigger(); });
  step("saving", [&] { EXPECT_TRUE(application.documents().saveDocument(document())); });
  step("closing", [&] {
    front().close();
    settle();
  });
}

/// Those that fonts, layouts and windows take longest over; tests of the core take them all.
std::vector<HeavyDocument> heaviestInWindows() {
  std::vector<HeavyDocument> documents = heavyDocuments(kMebibyte, 100'000, 10'000);
  std::erase_if(documents, [](const HeavyDocument& document) {
    constexpr std::array kHeaviest{
        "oneWord",          "words",      "oneLetterUnderAllAccents", "hebrewAndLatin",
        "controls",         "emoji",      "embeddingsNeverClosed",    "han",
        "manyExaminations", "manyFetuses"};
    return std::ranges::find(kHeaviest, document.name) == kHeaviest.end();
  });
  return documents;
}

INSTANTIATE_TEST_SUITE_P(heaviest, AWindowOfAnyWeight, testing::ValuesIn(heaviestInWindows()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace nascor::tests
