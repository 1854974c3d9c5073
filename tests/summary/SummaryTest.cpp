// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Summary.h"

#include <gmock/gmock.h>

#include <string>

#include "Summarised.h"
#include "calc/FetalWeight.h"
#include "calc/Publications.h"
#include "support/Examined.h"
#include "support/MarkedLocalizer.h"

namespace nascor::summary {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using tests::examined;
using tests::factOf;
using tests::summarised;
using tests::textsOf;

constexpr calc::Biometry kAt20{.bpd = 50.0, .hc = 174.0, .ac = 154.4, .fl = 32.1};
constexpr calc::Biometry kAt24{.bpd = 60.4, .hc = 217.2, .ac = 194.2, .fl = 43.2};

/// The place of each in a row of the measurements.
enum Place : std::size_t { kDay, kAge, kBpd, kBpdZ, kBpdCentile, kEfw = 14, kEfwZ, kEfwCentile };

model::PatientRecord patient(const std::vector<tests::Visit>& visits) {
  model::PatientRecord record = examined(visits);
  record.setMaternalIDString("AB-123");
  record.setGravida(2);
  record.setNumberOfFetuses(visits.empty() ? 1 : static_cast<std::int64_t>(visits.front().fetuses.size()));
  record.setExtrapolatedGestation(40.0);
  return record;
}

TEST(ASummary, placesEachLengthByTheStandardOfTheDocument) {
  const Summary summary = summarised(patient({{20.0, {kAt20}}}));
  ASSERT_THAT(summary.fetuses, SizeIs(1));
  const Table& table = summary.fetuses[0].measurements;
  ASSERT_THAT(table.rows, SizeIs(1));
  // At 20 weeks Westerway has a BPD of 47.414 mm with a deviation of 1.9 mm: 1.361 deviations, where 91.3 % lie below.
  EXPECT_EQ(table.rows[0].cells[kBpd].text, "50.0");
  EXPECT_EQ(table.rows[0].cells[kBpdZ].text, "+1.36");
  EXPECT_EQ(table.rows[0].cells[kBpdCentile].text, "91.3");
  EXPECT_THAT(table.lead, HasSubstr("Lengths: z and centile by Westerway (ASUM 2001)."));
  EXPECT_THAT(table.notes, IsEmpty());

  model::PatientRecord other = patient({{20.0, {kAt20}}});
  other.setStandard(1);
  const Table byOther = summarised(other).fetuses[0].measurements;
  EXPECT_THAT(byOther.lead, HasSubstr("Lengths: z and centile by Hadlock"));
  EXPECT_NE(byOther.rows[0].cells[kBpdZ].text, "+1.36");
}

TEST(ASummary, namesTheReferenceOfAWeight) {
  const FetusSummary fetus = summarised(patient({{20.0, {kAt20}}})).fetuses[0];
  EXPECT_THAT(fetus.measurements.lead,
              HasSubstr("Weight: by the formula Hadlock 1 (HC/AC/FL), z and centile by Hadlock (1991)."));
  const std::vector<Column>& columns = fetus.weights.columns;
  std::vector<std::string> titles;
  for (const Column& column : columns) titles.push_back(column.title);
  EXPECT_THAT(titles, ElementsAre("Formula", "g", "Difference", "Centile, INTERGROWTH-21st (2020)",
                                  "Centile, Hadlock (1991)", "Centile, WHO (2017)"));
  ASSERT_THAT(fetus.weights.rows, SizeIs(8));
  EXPECT_TRUE(fetus.weights.rows[0].isChosen);
  // The same population gives the same centile in both tables.
  EXPECT_EQ(fetus.weights.rows[0].cells[4].text, fetus.measurements.rows[0].cells[kEfwCentile].text);
}

TEST(ASummary, saysWhichFormulasAReferenceDoesNotFit) {
  const Table weights = summarised(patient({{20.0, {kAt20}}})).fetuses[0].weights;
  EXPECT_EQ(weights.rows[0].cells[0].note, 0U);
  ASSERT_GT(weights.rows[1].cells[0].note, 0U);
  EXPECT_EQ(weights.notes[weights.rows[1].cells[0].note - 1],
            "INTERGROWTH-21st (2020) fits weights by another formula alone: Hadlock 1 (HC/AC/FL).");
}

TEST(ASummary, hasADashWithItsReasonOutsideTheWeeksOfAReference) {
  const Table table = summarised(patient({{41.5, {kAt24}}})).fetuses[0].measurements;
  const std::vector<Cell>& cells = table.rows[0].cells;
  EXPECT_EQ(cells[kBpd].text, "60.4");
  EXPECT_EQ(cells[kBpdZ].text, "-");
  EXPECT_EQ(cells[kBpdCentile].text, "-");
  EXPECT_THAT(table.notes,
              ElementsAre("Westerway (ASUM 2001) has 11 to 41 weeks.", "Hadlock (1991) has 10 to 40 weeks."));
  EXPECT_EQ(cells[kBpdCentile].note, 1U);
  EXPECT_EQ(cells[kEfwCentile].note, 2U);
}

TEST(ASummary, inventsNothingWithoutAnEdd) {
  model::PatientRecord record = patient({{20.0, {kAt20}}, {24.0, {kAt24}}});
  record.setEDD(std::nullopt);
  const FetusSummary fetus = summarised(record).fetuses[0];
  EXPECT_EQ(factOf(fetus, "EDD"), "-");
  EXPECT_EQ(factOf(fetus, "Planned delivery"), "none");
  for (const Row& row : fetus.measurements.rows) {
    EXPECT_EQ(row.cells[kAge].text, "-");
    EXPECT_EQ(row.cells[kBpdZ].text, "-");
    EXPECT_EQ(row.cells[kEfwCentile].text, "-");
  }
  EXPECT_EQ(fetus.measurements.notes, std::vector<std::string>{"The age is not known."});
  EXPECT_THAT(fetus.charts, IsEmpty());
}

TEST(ASummary, inventsNothingWhereNothingWasMeasured) {
  const FetusSummary fetus = summarised(patient({{20.0, {{}}}})).fetuses[0];
  ASSERT_THAT(fetus.measurements.rows, SizeIs(1));
  const auto texts = textsOf(fetus.measurements.rows[0]);
  EXPECT_EQ(texts[kAge], "20w 0d");
  for (std::size_t i = kBpd; i < texts.size(); ++i) EXPECT_EQ(texts[i], "-");
  EXPECT_THAT(fetus.measurements.notes, IsEmpty());
  EXPECT_THAT(fetus.weights.rows, IsEmpty());
  EXPECT_THAT(fetus.growth.rows, IsEmpty());
  EXPECT_THAT(fetus.charts, IsEmpty());
  EXPECT_THAT(fetus.citations, IsEmpty());
}

TEST(ASummary, withoutExaminationsSaysWhoAlone) {
  const FetusSummary fetus = summarised(patient({})).fetuses[0];
  EXPECT_EQ(factOf(fetus, "Reference ID"), "AB-123");
  EXPECT_EQ(factOf(fetus, "Last examination"), "-");
  EXPECT_THAT(fetus.measurements.rows, IsEmpty());
}

TEST(ASummary, givesAWeightAsTheReportDoes) {
  const Table table = summarised(patient({{12.0, {{.bpd = 20.0, .hc = 75.0, .ac = 62.0, .fl = 8.0}}}}))
                          .fetuses[0]
                          .measurements;
  EXPECT_EQ(table.rows[0].cells[kEfw].text, "-");
  EXPECT_THAT(table.notes, Contains("A weight is given above 100 g."));
}

TEST(ASummary, saysHowTheEddStands) {
  // 10 April 2027, 140 days behind 21 November 2026.
  EXPECT_EQ(factOf(summarised(patient({{20.0, {kAt20}}})).fetuses[0], "EDD"), "10 April 2027 (in 140 days)");
  model::PatientRecord record = patient({{20.0, {kAt20}}});
  record.setEDD(foundation::Date{816948000.0});
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "EDD"), "21 November 2026 (today)");
  record.setEDD(foundation::Date{816948000.0 + 86400.0});
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "EDD"), "22 November 2026 (tomorrow)");
  record.setEDD(foundation::Date{816948000.0 - 86400.0});
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "EDD"), "20 November 2026 (yesterday)");
  record.setEDD(foundation::Date{816948000.0 - 3 * 86400.0});
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "EDD"), "18 November 2026 (3 days ago)");
}

TEST(ASummary, saysADeliveryThatIsPlannedForAnotherDay) {
  model::PatientRecord record = patient({{20.0, {kAt20}}});
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "Planned delivery"), "none");
  record.setExtrapolatedGestation(39.0);
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "Planned delivery"),
            "3 April 2027 (7 days before the EDD)");
  record.setExtrapolatedGestation(40.0 + 1.0 / 7.0);
  EXPECT_EQ(factOf(summarised(record).fetuses[0], "Planned delivery"),
            "11 April 2027 (one day after the EDD)");
}

TEST(ASummary, tellsTheGrowthFromExaminationToExamination) {
  const Table growth = summarised(patient({{20.0, {kAt20}}, {24.0, {kAt24}}})).fetuses[0].growth;
  ASSERT_THAT(growth.rows, SizeIs(1));
  // (60.4 - 50.0) / 4
  EXPECT_EQ(growth.rows[0].cells[2].text, "+2.6");
  EXPECT_EQ(growth.columns.size(), growth.rows[0].cells.size());
}

TEST(ASummary, hasAPartForEachFetusWithItsOwnNumbers) {
  const Summary summary = summarised(patient({{20.0, {kAt20, kAt24}}}));
  ASSERT_THAT(summary.fetuses, SizeIs(2));
  EXPECT_EQ(summary.fetuses[0].name, "Twin 1");
  EXPECT_EQ(summary.fetuses[1].name, "Twin 2");
  EXPECT_EQ(summary.fetuses[0].measurements.rows[0].cells[kBpd].text, "50.0");
  EXPECT_EQ(summary.fetuses[1].measurements.rows[0].cells[kBpd].text, "60.4");
  EXPECT_THAT(factOf(summary.fetuses[0], "Discordance of weights"), HasSubstr(" %"));
}

TEST(ASummary, citesWhatWasUsedAndNothingElse) {
  const auto citations = summarised(patient({{20.0, {{.bpd = 50.0}}}})).fetuses[0].citations;
  ASSERT_THAT(citations, SizeIs(1));
  EXPECT_EQ(citations[0].what, "Westerway (ASUM 2001)");
  EXPECT_EQ(citations[0].text, calc::growthStandardPublications()[0].citation);

  std::string all;
  const Summary summary = summarised(patient({{20.0, {kAt20}}}));
  for (const Citation& each : summary.fetuses[0].citations) all += each.what + ": " + each.text + "\n";
  EXPECT_THAT(all, AllOf(HasSubstr("Hadlock (1991): "), HasSubstr("WHO (2017): "),
                         HasSubstr("INTERGROWTH-21st (2020): "), HasSubstr("Hadlock 1 (HC/AC/FL)")));
  EXPECT_THAT(all, Not(HasSubstr("INTERGROWTH-21st (2014)")));

  model::PatientRecord undated = patient({{20.0, {kAt20}}});
  undated.setEDD(std::nullopt);
  const Summary weighed = summarised(undated);
  for (const Citation& each : weighed.fetuses[0].citations)
    EXPECT_THAT(each.what, Not(AnyOf(HasSubstr("Westerway"), HasSubstr("(1991)"), HasSubstr("WHO"))));
}

TEST(ASummary, hasTheLinesOfANoteAndCutsAnEndlessOne) {
  model::PatientRecord record = patient({{20.0, {kAt20}}, {24.0, {kAt24}}});
  record.ncRecordsArray()[0]->setNote("First line\n\nThird \u202Eline\n");
  record.ncRecordsArray()[1]->setNote(std::string(100000, 'x'));
  const auto notes = summarised(record).fetuses[0].notes;
  ASSERT_THAT(notes, SizeIs(2));
  EXPECT_EQ(notes[0].heading, "21 November 2026, 20w 0d");
  EXPECT_THAT(notes[0].paragraphs, ElementsAre("First line", "", "Third \\u202eline"));
  EXPECT_THAT(notes[1].paragraphs,
              ElementsAre(testing::EndsWith("\u2026"), "The note is longer; the document has all of it."));
}

TEST(ASummary, bearsLetterheadExaminerProgramAndMoment) {
  const Summary summary =
      summarised(patient({{20.0, {kAt20}}}),
                 {.letterhead = letterheadLines("Ward 3\nHill \x01Street\n\n"), .examiner = "Dr. \u202EEve"});
  EXPECT_THAT(summary.letterhead, ElementsAre("Ward 3", "Hill \\x01Street"));
  EXPECT_EQ(factOf(summary.fetuses[0], "Examiner"), "Dr. \\u202eEve");
  EXPECT_EQ(summary.author, "Dr. \\u202eEve");
  EXPECT_THAT(summary.made, testing::MatchesRegex("Nascor .*, 21 November 2026, 10:00"));
  EXPECT_EQ(summary.moment, "2026-11-21T10:00:00Z");
  EXPECT_EQ(summary.patient, "AB-123 (G2)");
  EXPECT_EQ(summary.pageText(1, 2), "Page 1 of 2");
  EXPECT_EQ(factOf(summarised(patient({})).fetuses[0], "Examiner"), "none");
}

TEST(ASummary, ofOneFetusHasThatOne) {
  const tests::FixedClock clock;
  const tests::FixedOffsetCalendar calendar;
  const foundation::EnglishLocalizer localizer;
  const Environment environment{.clock = clock, .calendar = calendar, .localizer = localizer};
  const auto record = patient({{20.0, {kAt20, kAt24}}});
  ASSERT_THAT(summaryOf(record, {}, environment, 1).fetuses, SizeIs(1));
  EXPECT_EQ(summaryOf(record, {}, environment, 1).fetuses[0].name, "Twin 2");
  EXPECT_THAT(summaryOf(record, {}, environment, 2).fetuses, IsEmpty());
}

TEST(ASummary, speaksTheUsersLanguage) {
  const tests::FixedClock clock;
  const tests::FixedOffsetCalendar calendar;
  const tests::MarkedLocalizer localizer;
  const Summary summary = summaryOf(patient({{20.0, {kAt20}}}), {},
                                    {.clock = clock, .calendar = calendar, .localizer = localizer});
  EXPECT_EQ(summary.language, "[Summary:en]");
  EXPECT_EQ(summary.fetuses[0].measurements.title, "[Summary:Measurements]");
  EXPECT_EQ(summary.fetuses[0].measurements.rows[0].cells[kBpd].text, "50,0");
  EXPECT_EQ(summary.fetuses[0].measurements.rows[0].cells[kBpdZ].text, "+1,36");
}

TEST(ASummary, ofAnUnknownStandardSaysSo) {
  model::PatientRecord record = patient({{20.0, {kAt20}}});
  record.setStandard(99);
  record.setFetalWeightStandard(99);
  const FetusSummary fetus = summarised(record).fetuses[0];
  EXPECT_EQ(factOf(fetus, "Growth standard"), "-");
  EXPECT_EQ(factOf(fetus, "Weight formula"), "-");
  EXPECT_EQ(fetus.measurements.rows[0].cells[kBpdZ].text, "-");
  EXPECT_THAT(fetus.measurements.notes, ElementsAre("The growth standard is not known."));
  EXPECT_EQ(fetus.measurements.rows[0].cells[kEfw].text, "-");
  EXPECT_THAT(fetus.charts, IsEmpty());
}

}  // namespace
}  // namespace nascor::summary
