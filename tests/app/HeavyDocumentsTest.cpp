// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Documents that hold more than any person enters: what is done with them stays quick and small, and they stay what they are.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "app/NCDocument.h"
#include "foundation/UserDefaults.h"
#include "framework/Sheet.h"
#include "model/PatientFile.h"
#include "support/HeavyDocuments.h"
#include "support/RecordingCanvas.h"
#include "support/Spent.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

constexpr std::size_t kMebibyte = std::size_t{1} << 20U;
/// What a page may draw in one piece: a reader sees some hundred signs, and every device sets as many at once.
constexpr std::size_t kMostBytesDrawn = 16'384;

class ADocumentOfAnyWeight : public testing::TestWithParam<tests::HeavyDocument> {
 protected:
  template <class Work>
  void step(const char* name, Work work) {
    const tests::Spent spent;
    work();
    EXPECT_LT(spent.seconds(), tests::kMostSeconds) << name;
    EXPECT_LT(spent.memory(), tests::kMostMemory) << name;
  }
  void paint(std::int64_t index, double width, double height) {
    framework::Page& page = document.tabView().page(index);
    tests::RecordingSurface surface;
    page.layout(width, height);
    page.paint(surface);
    check(surface.page);
    for (const auto& view : surface.views) check(view.canvas);
    check(document.footOfPage(index, 1, 2));
  }
  static void check(const tests::RecordingCanvas& canvas) {
    // A page of ordinary weight has some hundred entries.
    EXPECT_LT(canvas.entries().size(), 40'000U);
    for (const auto& entry : canvas.entries()) EXPECT_LT(entry.text.size(), kMostBytesDrawn);
  }
  static void check(const framework::PageFoot& foot) {
    const tests::RecordingCanvas canvas;
    const auto lines = framework::wrappedFoot(foot, canvas, framework::Page::kWidth);
    EXPECT_LT(lines.size(), 40U);
    for (const std::string& line : lines) EXPECT_LT(line.size(), kMostBytesDrawn);
  }

  tests::TestApplication platform;
  NCDocument document{platform.environment()};
};

TEST_P(ADocumentOfAnyWeight, isWorkedWithAsQuicklyAsAnyOther) {
  platform.defaults.registerDefault(foundation::defaults_key::showAll, "YES");
  const std::vector<std::byte> bytes =
      model::archivedPatient(*tests::heavyPatient(GetParam().weight, platform.calendar));

  step("opening", [&] {
    document.loadDataRepresentation(bytes, "");
    document.windowControllerDidLoadNib();
  });
  for (std::int64_t page = 0; page < document.tabView().numberOfPages(); ++page) {
    step("painting", [&] { paint(page, framework::Page::kWidth, framework::Page::kHeight); });
    step("painting on a small page", [&] { paint(page, 500.0, 150.0); });
  }
  step("pointing at a mark", [&] {
    for (int i = 0; i < 10; ++i) static_cast<void>(document.tabView().page(0).toolTipAt({100.0 + i, 100.0}));
  });
  step("visiting", [&] {
    document.nextExamination();
    document.previousExamination();
    document.setCurrentRecordFromClick(20.0);
    document.setCurrentExam(document.lastExam());
    document.synchronizeFromData();
  });
  step("saving",
       [&] { EXPECT_TRUE(document.dataRepresentationOfType("") == bytes) << "a visit changes nothing"; });
  step("editing", [&] {
    ASSERT_TRUE(document.fieldEditor().begin(document.flField()));
    document.fieldEditor().replace("33");
    ASSERT_TRUE(document.fieldEditor().end());
    // A text that is shown in part takes no typing.
    const bool isWhole = !document.referenceIDField().isShownInPart();
    ASSERT_EQ(document.fieldEditor().begin(document.referenceIDField()), isWhole);
    document.fieldEditor().replace("CD-4");
    ASSERT_TRUE(document.fieldEditor().end());
    EXPECT_EQ(std::as_const(document).patientRecord()->maternalIDString(),
              isWhole ? "CD-4" : GetParam().weight.identifier);
  });
  step("adding an examination", [&] { document.addExaminationAction(); });
  step("removing it", [&] {
    document.deleteCurrentExamination();
    document.setCurrentExam(document.lastExam());
    document.synchronizeFromData();
  });
  step("copying the report", [&] { static_cast<void>(document.report().tabSeparatedText()); });
}

INSTANTIATE_TEST_SUITE_P(all, ADocumentOfAnyWeight,
                         testing::ValuesIn(tests::heavyDocuments(kMebibyte, 100'000, 10'000)),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace nascor::app
