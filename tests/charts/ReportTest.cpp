// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "charts/NascorDataView.h"
#include "foundation/Assertion.h"
#include "foundation/UserDefaults.h"
#include "support/ChartTest.h"

namespace nascor::charts {
namespace {

using framework::NamedColor;
using framework::Point;
using framework::Rect;
using testing::ElementsAre;

constexpr double kDay = 86400.0;
/// 21 November 2026, local midnight ten hours ahead of UTC.
constexpr foundation::Date kToday{816912000.0 - 10.0 * 3600.0};

class TheReport : public ChartTest {
 protected:
  void SetUp() override {
    document.setFetuses(1);
    document.patient.setMaternalIDString("AB-123");
    document.patient.setGravida(2);
    document.patient.setEDD(foundation::Date{kToday.secondsSince2001 + 140.0 * kDay});
    document.patient.setExtrapolatedGestation(40.0);
    document.projected = model::MeasurementsRecord({.bpd = 95.04, .hc = 340.06, .ac = 355.55, .fl = 74.95});
  }
  void addExaminations(int count, double lastAge = 20.0) {
    for (int i = 0; i < count; ++i) {
      document.addExamination(0.0, {{.bpd = 40.0 + i, .hc = 0, .ac = 0, .fl = 0}});
      document.patient.ncRecordsArray().back()->setExamDate(dateAt(lastAge - (count - 1 - i)));
    }
    document.exam = count - 1;
  }
  /// The last whole day up to that age.
  static foundation::Date dateAt(double weeks) {
    return {kToday.secondsSince2001 + std::floor((weeks - 20.0) * 7.0) * kDay};
  }
  void draw(double height = 560, double width = 800) {
    canvas.clear();
    report = make<NascorDataView>({0, 0, width, height});
    report->display(canvas);
  }
  /// The texts drawn at x in the table, from the titles down.
  std::vector<std::string> column(double x) {
    std::vector<std::string> texts;
    for (const auto& entry : canvas.of(Kind::text)) {
      if (entry.point.x == x && entry.point.y >= 140 && entry.text.find(':') == std::string::npos) {
        texts.push_back(entry.text);
      }
    }
    return texts;
  }
  std::size_t rowsOfText(const std::string& text) {
    return static_cast<std::size_t>(std::ranges::count(text, '\n'));
  }
  std::string textAt(double x, double y) {
    for (const auto& entry : canvas.of(Kind::text)) {
      if (entry.point == Point{x, y}) return entry.text;
    }
    return "nothing";
  }
  framework::ViewOwner<NascorDataView> report;
};

TEST_F(TheReport, beginsWithItsTitleAtItsLowerEdge) {
  addExaminations(1);
  draw();
  EXPECT_TRUE(report->isFlipped());
  EXPECT_EQ(canvas.entries().front().text, "Fetal Weight Formula: Hadlock 1 (HC/AC/FL)");
  EXPECT_EQ(canvas.entries().front().point, (Point{0, 545}));
}

TEST_F(TheReport, namesTheFormulaOfItsDocument) {
  const std::vector<std::string> names{
      "Hadlock 1 (HC/AC/FL)",     "Hadlock 2 (AC/FL)", "Hadlock 3 (BPD/AC/FL)",
      "Hadlock 4 (BPD/HC/AC/FL)", "Campbell (AC)",     "Combs (HC/AC/FL)",
      "Ott (HC/AC/FL)",           "Shepard (BPD/AC)",  ""};
  for (std::size_t i = 0; i < names.size(); ++i) {
    document.weightFormula = static_cast<std::int64_t>(i);
    EXPECT_EQ(make<NascorDataView>()->referenceTitle(), "Fetal Weight Formula: " + names[i]);
  }
  platform.defaults.setValue(foundation::defaults_key::estimatedFetalWeightStandard, "7");
  const auto early = framework::make<NascorDataView>(platform.services(), {});
  EXPECT_EQ(early->referenceTitle(), "Fetal Weight Formula: Shepard (BPD/AC)");
}

TEST_F(TheReport, saysWhoAndWhenAboveTheTable) {
  addExaminations(1);
  draw();
  EXPECT_EQ(textAt(40, 10), "Identifier:\tAB-123");
  EXPECT_EQ(textAt(40, 34), "Gravida:\t2");
  EXPECT_EQ(textAt(40, 58), "Fetus:\tFetus 0");
  EXPECT_EQ(textAt(320, 10), "Date:\t11/21/26");
  EXPECT_EQ(textAt(320, 34), "EDD:\t4/10/27");
  EXPECT_EQ(textAt(320, 58), "Menstrual Age:\t20w 0d");
  EXPECT_EQ(textAt(320, 82), "");
  EXPECT_EQ(canvas.text("Gravida:\t2")->style.tabStop, 100.0);
  document.patient.setEDD(std::nullopt);
  document.popUp.removeAllItems();
  draw();
  EXPECT_EQ(textAt(320, 34), "EDD:\t-");
  EXPECT_EQ(textAt(40, 58), "Fetus:\t");
}

TEST_F(TheReport, cutsALongIdentifierFromItsEnd) {
  addExaminations(1);
  // The value starts at 100, each character is 6 wide: 26 of them end at 256.
  document.patient.setMaternalIDString("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  draw();
  EXPECT_EQ(textAt(40, 10), "Identifier:\tABCDEFGHIJKLMNOPQRSTUVWXYZ");
  document.patient.setMaternalIDString("ABCDEFGHIJKLMNOPQRSTUVWXY\xC3\xA9\xC3\xA8");
  draw();
  EXPECT_EQ(textAt(40, 10), "Identifier:\tABCDEFGHIJKLMNOPQRSTUVWXY\xC3\xA9");
}

TEST_F(TheReport, hasSevenColumns) {
  addExaminations(1);
  draw();
  std::vector<std::string> titles;
  for (int i = 0; i < 7; ++i) titles.push_back(textAt(10 + 86 * i, 140));
  EXPECT_THAT(titles, ElementsAre("Exam Date", "Menstrual Age", "BPD (mm)", "HC (mm)", "AC (mm)", "FL (mm)",
                                  "EFW (g)"));
}

TEST_F(TheReport, listsEachExaminationOfTheFetusOnShow) {
  document.setFetuses(2);
  document.fetus = 1;
  document.addExamination(20, {{}, {.bpd = 47.25, .hc = 174.04, .ac = 154.35, .fl = 32.15}});
  document.addExamination(22, {{}, {}});
  document.patient.ncRecordsArray()[0]->setExamDate(kToday);
  document.patient.ncRecordsArray()[1]->setExamDate(std::nullopt);
  draw();
  std::vector<std::string> first, second;
  for (int i = 0; i < 7; ++i) first.push_back(textAt(10 + 86 * i, 188));
  for (int i = 0; i < 7; ++i) second.push_back(textAt(10 + 86 * i, 212));
  // C's rounding: 47.25 is exact and a tie, which goes to the even 47.2; as doubles 154.35 and 32.15 lie just below the half.
  // The published formula gives 342.4 g.
  EXPECT_THAT(first, ElementsAre("11/21/26", "20w 0d", "47.2", "174.0", "154.3", "32.1", "342"));
  EXPECT_THAT(second, ElementsAre("", "-", "0.0", "0.0", "0.0", "0.0", "-"));
  EXPECT_EQ(textAt(10, 236), "nothing");
}

TEST_F(TheReport, framesTheTableFromAboveItsTitlesToBelowItsLastRow) {
  draw();  // no examination
  EXPECT_EQ(canvas.entries().back().kind, Kind::strokeRect);
  EXPECT_EQ(canvas.entries().back().color.name(), NamedColor::gray);
  EXPECT_EQ(canvas.entries().back().rect, (Rect{0, 124, 800, 80}));
  addExaminations(3);
  draw();
  EXPECT_EQ(canvas.entries().back().rect, (Rect{0, 124, 800, (188 + 48 - 124) + 40}));
}

TEST_F(TheReport, listsTheLatestThatFit) {
  addExaminations(5);
  draw(230);
  EXPECT_THAT(column(182), ElementsAre("BPD (mm)", "43.0", "44.0"));
  EXPECT_EQ(report->examinationsShown(), 2);
  draw(188);
  EXPECT_THAT(column(182), ElementsAre("BPD (mm)"));
  EXPECT_EQ(report->examinationsShown(), 0);
  draw(107);
  EXPECT_EQ(column(182).size(), 6U);
  EXPECT_EQ(report->examinationsShown(), 5);
}

TEST_F(TheReport, projectsLateInPregnancy) {
  addExaminations(5, 30.0);
  draw(230);
  EXPECT_THAT(column(182), ElementsAre("BPD (mm)", "44.0", "95.0"));
  std::vector<std::string> projected;
  for (int i = 0; i < 6; ++i) projected.push_back(textAt(10 + 86 * i, 212));
  EXPECT_THAT(projected, ElementsAre("Projected", "40w 0d", "95.0", "340.1", "355.6", "75.0"));
  for (int i = 0; i < 7; ++i) {
    const Point place{10.0 + 86.0 * i, 212};
    for (const auto& entry : canvas.of(Kind::text)) {
      if (entry.point == place) {
        EXPECT_EQ(entry.color.name(), NamedColor::darkGray);
      }
    }
  }
  EXPECT_EQ(canvas.entries().back().rect, (Rect{0, 124, 800, (212 - 124) + 40}));
  EXPECT_EQ(textAt(320, 82), "Days to Go:\t0");
  document.patient.setExtrapolatedGestation(40.0 - 3.0 / 7.0);
  draw();
  EXPECT_EQ(textAt(320, 82), "Days to Go:\t0 (-3)");
  document.patient.setEDD(std::nullopt);
  draw();
  EXPECT_EQ(textAt(320, 82), "");
}

TEST_F(TheReport, listsEveryExaminationWhereTheProjectionLeavesNoRow) {
  addExaminations(5, 30.0);
  draw(150);
  EXPECT_EQ(column(182).size(), 1U + 5U + 1U);
}

TEST_F(TheReport, projectsNeitherTooEarlyNorTooLate) {
  const auto isProjected = [&](double lastAge, double planned) {
    document.patient.ncRecordsArray().clear();
    document.patient.setExtrapolatedGestation(planned);
    addExaminations(2, lastAge);
    document.exam = 0;  // the examination on show does not matter
    draw();
    return canvas.text("Projected") != nullptr;
  };
  EXPECT_TRUE(isProjected(30.0, 40.0));
  EXPECT_FALSE(isProjected(29.9, 40.0));
  EXPECT_FALSE(isProjected(40.0, 40.0));
  EXPECT_FALSE(isProjected(41.0, 40.0));
  EXPECT_TRUE(isProjected(39.9, 40.0));
  EXPECT_TRUE(isProjected(35.0, std::numeric_limits<double>::quiet_NaN()));
}

TEST_F(TheReport, hasNoThresholdForTheProjectedWeight) {
  addExaminations(1, 30.0);
  document.patient.setFetalWeightStandard(4);
  document.projected = model::MeasurementsRecord({.bpd = 0, .hc = 0, .ac = 1, .fl = 0});
  draw();
  EXPECT_NE(textAt(526, 212), "-");
  EXPECT_EQ(textAt(526, 188), "-");
}

TEST_F(TheReport, withoutAFormForDatesIsAbandoned) {
  struct NoDates final : foundation::Localizer {
    std::string text(std::string_view, std::string_view key) const override { return std::string(key); }
    foundation::ShortDateForm shortDateForm() const override { return {.pattern = "", .monthNames = {}}; }
    std::string longDateText(const foundation::CivilDay&) const override { return {}; }
    char decimalSign() const override { return '.'; }
    std::string upperCased(std::string_view text) const override { return std::string(text); }
  };
  const NoDates localizer;
  const foundation::Services ours = platform.services();
  const foundation::Services services{.clock = ours.clock,
                                      .calendar = ours.calendar,
                                      .localizer = localizer,
                                      .defaults = ours.defaults,
                                      .files = ours.files,
                                      .log = ours.log,
                                      .notifications = ours.notifications};
  addExaminations(1);
  const auto view = framework::make<NascorDataView>(services, {0, 0, 800, 560});
  view->setOwningDocument(&document);
  EXPECT_THROW(view->display(canvas), foundation::AssertionFailure);
}

TEST_F(TheReport, withoutAPatientIsItsTitleAlone) {
  document.hasPatient = false;
  draw();
  EXPECT_EQ(canvas.entries().size(), 1U);
  EXPECT_EQ(report->examinationsShown(), 0);
  EXPECT_EQ(report->tabSeparatedText(), "");
}

TEST_F(TheReport, takesAClickWithoutDoingAnything) {
  addExaminations(2);
  draw();
  EXPECT_EQ(report->hitTest({400, 300}), report.get());
  report->mouseDown({.location = {400, 300}, .clickCount = 1});
  report->mouseDown({.location = {400, 300}, .clickCount = 2});
  EXPECT_TRUE(document.clicks.empty());
  EXPECT_TRUE(document.graphsShown.empty());
}

TEST_F(TheReport, isATableOfTextToo) {
  addExaminations(2, 30.0);
  draw(189);
  EXPECT_THAT(
      report->tabSeparatedText(),
      testing::StartsWith("Identifier:\tAB-123\nGravida:\t2\nFetus:\tFetus 0\nDate:\t1/30/27\nEDD:\t4/10/27\n"
                          "Menstrual Age:\t30w 0d\nDays to Go:\t0\n\n"));
  EXPECT_THAT(
      report->tabSeparatedText(),
      testing::HasSubstr("\n\nExam Date\tMenstrual Age\tBPD (mm)\tHC (mm)\tAC (mm)\tFL (mm)\tEFW (g)\n"
                         "1/23/27\t29w 0d\t40.0\t0.0\t0.0\t0.0\t-\n"
                         "1/30/27\t30w 0d\t41.0\t0.0\t0.0\t0.0\t-\n"
                         "Projected\t40w 0d\t95.0\t340.1\t355.6\t75.0\t"));
}

TEST_F(TheReport, shortensALongIdentifierAtOnce) {
  addExaminations(1);
  // 260 units are there: 100 to the tab and 26 signs of six units.
  document.patient.setMaternalIDString(std::string(1'000'000, 'A'));
  draw();
  EXPECT_EQ(textAt(40, 10), "Identifier:\t" + std::string(26, 'A'));
}

TEST_F(TheReport, drawsNoMoreRowsThanAnyPaperShows) {
  addExaminations(1500);
  document.projected = {};
  draw(100);  // so low that every examination is listed
  EXPECT_EQ(column(10).size(), 1U + 1000U);
  EXPECT_EQ(canvas.of(Kind::strokeRect).back().rect.height, 164.0 + 1500.0 * 24.0 - 124.0 + 40.0);
}

TEST_F(TheReport, isReadAloudInPartAndCopiedWhole) {
  addExaminations(150);
  document.patient.setMaternalIDString(std::string(2000, 'A'));
  draw();
  const std::string whole = report->tabSeparatedText();
  const std::string shown = report->shownText();
  EXPECT_NE(whole.find(std::string(2000, 'A')), std::string::npos);
  EXPECT_EQ(shown.find(std::string(1001, 'A')), std::string::npos);
  EXPECT_EQ(rowsOfText(whole) - rowsOfText(shown), 49U) << "the sign stands for fifty";
}

}  // namespace
}  // namespace nascor::charts
