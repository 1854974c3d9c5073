// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "framework/PageWriter.h"
#include "support/RecordingCanvas.h"

namespace nascor::framework {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Each character of the canvas is six units wide.

TEST(TheFootOfAPage, keepsItsTextsApart) {
  const tests::RecordingCanvas canvas;
  EXPECT_THAT(wrappedFoot({{{"AB-123", "Twin 1"}, {"Nascor"}}}, canvas, 100.0),
              ElementsAre("AB-123   Twin 1", "Nascor"));
  EXPECT_THAT(wrappedFoot({}, canvas, 100.0), IsEmpty());
}

TEST(TheFootOfAPage, leavesOutTextsThatAreEmpty) {
  const tests::RecordingCanvas canvas;
  EXPECT_THAT(wrappedFoot({{{"", "a", "", "b"}, {""}}}, canvas, 100.0), ElementsAre("a   b"));
}

TEST(TheFootOfAPage, goesOnInALineOfItsOwnWhereThereIsNoRoom) {
  const tests::RecordingCanvas canvas;
  // 15 characters fit exactly; one less does not do.
  EXPECT_THAT(wrappedFoot({{{"AB-123", "Twin 1"}}}, canvas, 90.0), ElementsAre("AB-123   Twin 1"));
  EXPECT_THAT(wrappedFoot({{{"AB-123", "Twin 1"}}}, canvas, 89.0), ElementsAre("AB-123", "Twin 1"));
}

TEST(TheFootOfAPage, losesNoCharacterOfALongText) {
  const tests::RecordingCanvas canvas;
  EXPECT_THAT(wrappedFoot({{{"x", "abcdefgh", "i"}}}, canvas, 18.0),
              ElementsAre("x", "abc", "def", "gh", "i"));
  // Whole characters: each of these is two bytes.
  EXPECT_THAT(wrappedFoot({{{"\xC3\xA4\xC3\xB6\xC3\xBC"}}}, canvas, 12.0),
              ElementsAre("\xC3\xA4\xC3\xB6", "\xC3\xBC"));
  EXPECT_THAT(wrappedFoot({{{"ab"}}}, canvas, 1.0), ElementsAre("ab"));
}

TEST(TheFootOfAPage, cutsATextThatIsTooLongToRead) {
  const tests::RecordingCanvas canvas;
  const auto lines = wrappedFoot({{{std::string(1'000'000, 'A')}}}, canvas, 6.0 * 100.0);
  ASSERT_EQ(lines.size(), 11U) << "1000 signs in ten lines";
  EXPECT_EQ(lines.front(), std::string(100, 'A'));
  EXPECT_EQ(lines.back(), "\u2026");
}

TEST(TheFootOfAPage, isOfLinesThatStayLines) {
  const tests::RecordingCanvas canvas;
  EXPECT_THAT(wrappedFoot({{{"a\nb"}}}, canvas, 100.0), ElementsAre("a\\nb"));
}

TEST(TheFootOfAPage, hasRoomForItsLines) {
  tests::RecordingCanvas canvas;
  drawFoot(canvas, {"one", "two"});
  const auto texts = canvas.of(tests::RecordingCanvas::Entry::Kind::text);
  ASSERT_EQ(texts.size(), 2U);
  const double first = texts[0].point.y;
  const double second = texts[1].point.y;
  EXPECT_EQ(texts[0].point.x, kFootMargin);
  EXPECT_GT(first, 0.0);
  EXPECT_GT(second, first + kTextHeight);
  EXPECT_GT(footHeight(2), second + kTextHeight);
  EXPECT_EQ(footHeight(0), 0.0);
}

TEST(FormatsOfPages, areNamedByTheirExtensions) {
  for (const PageFormat format : {PageFormat::pdf, PageFormat::png, PageFormat::svg})
    EXPECT_EQ(pageFormatNamed(extensionOf(format)), format);
  EXPECT_EQ(extensionOf(PageFormat::svg), "svg");
  EXPECT_EQ(pageFormatNamed("PDF"), std::nullopt);
}

}  // namespace
}  // namespace nascor::framework
