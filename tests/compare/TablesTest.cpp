// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "compare/Tables.h"

#include <gmock/gmock.h>

#include "foundation/RangeError.h"
#include "support/Examined.h"
#include "support/Spent.h"

namespace nascor::compare {
namespace {

using foundation::EnglishLocalizer;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using tests::examined;

/// Near the means of the growth standard Westerway, whose BPD has 47.414 and 59.6444 mm there, with SD 1.9 and 2.3.
constexpr calc::Biometry kAt20{.bpd = 47.4, .hc = 174.0, .ac = 154.4, .fl = 32.1};
constexpr calc::Biometry kAt24{.bpd = 60.4, .hc = 217.2, .ac = 194.2, .fl = 43.2};

Table table(std::string_view name, const model::PatientRecord& patient, std::size_t examination = 0,
            std::size_t fetus = 0) {
  for (Table& each : tablesOf(patient, examination, fetus, EnglishLocalizer())) {
    if (each.name == name) return each;
  }
  throw std::invalid_argument(std::string(name));
}

std::vector<std::string> textsOf(const Row& row) {
  std::vector<std::string> texts;
  for (const Cell& cell : row.cells) texts.push_back(cell.text);
  return texts;
}

std::vector<std::string> titlesOf(const Table& table) {
  std::vector<std::string> titles;
  for (const Column& column : table.columns) titles.push_back(column.title);
  return titles;
}

/// The first row that begins with these texts.
Row rowOf(const Table& table, const std::vector<std::string>& beginning) {
  for (const Row& row : table.rows) {
    const auto texts = textsOf(row);
    if (std::equal(beginning.begin(), beginning.end(), texts.begin())) return row;
  }
  throw std::invalid_argument(beginning.front());
}

TEST(TheTablesOfAComparison, placeEachLengthInEveryReference) {
  const Table lengths = table("lengths", examined({{20.0, {kAt20}}}));
  EXPECT_THAT(titlesOf(lengths), ElementsAre("Length", "mm", "Reference", "Mean", "SD", "Median", "z",
                                             "Centile", "Age", "Remark"));
  ASSERT_EQ(lengths.rows.size(), 24U);
  // (47.4 - 47.414) / 1.9 is -0.0074, below which 49.71 % of a normal population lie; 47.4 mm are the mean at 19.995 weeks.
  const Row own = rowOf(lengths, {"BPD", "47.4", "Westerway (ASUM 2001)"});
  EXPECT_THAT(textsOf(own), ElementsAre("BPD", "47.4", "Westerway (ASUM 2001)", "47.4", "1.90", "47.4",
                                        "-0.01", "49.7", "19w 6d", ""));
  EXPECT_TRUE(own.isChosen);
  // Its curves have a median alone.
  const Row curves = rowOf(lengths, {"BPD", "47.4", "WHO (2017)"});
  EXPECT_THAT(textsOf(curves), ElementsAre("BPD", "47.4", "WHO (2017)", "-", "-", testing::Not("-"), "-",
                                           testing::Not("-"), testing::_, ""));
  EXPECT_FALSE(curves.isChosen);
}

TEST(TheTablesOfAComparison, sayWhyAFigureIsMissing) {
  const Row outside =
      rowOf(table("lengths", examined({{13.0, {kAt20}}})), {"BPD", "47.4", "CFEF (Biom\u00e9trie 2000)"});
  EXPECT_EQ(outside.remark, "CFEF (Biom\u00e9trie 2000) has 16 to 40 weeks.");
  EXPECT_EQ(outside.cells.back().text, outside.remark);
  EXPECT_EQ(outside.cells.at(6).text, "-");
  EXPECT_FALSE(outside.cells.at(6).number);

  model::PatientRecord undated = examined({{20.0, {kAt20}}});
  undated.setEDD(std::nullopt);
  EXPECT_EQ(table("lengths", undated).rows.front().remark, "The age is not known.");
  // What was not measured needs no reason.
  EXPECT_EQ(table("lengths", examined({{13.0, {{}}}})).rows.front().remark, "");
}

TEST(TheTablesOfAComparison, setTheEightWeightsSideBySide) {
  model::PatientRecord patient = examined({{24.0, {kAt24}}});
  patient.setFetalWeightStandard(1);
  const Table weights = table("weights", patient);
  ASSERT_EQ(weights.rows.size(), 8U);
  EXPECT_THAT(titlesOf(weights), ElementsAre("Formula", "g", "Difference", "Centile, INTERGROWTH-21st (2020)",
                                             "Centile, Hadlock (1991)", "Centile, WHO (2017)", "Remark"));
  EXPECT_EQ(weights.rows.at(1).cells.at(2).text, "+0");
  EXPECT_TRUE(weights.rows.at(1).isChosen);
  EXPECT_EQ(weights.rows.at(0).remark, "");
  EXPECT_EQ(weights.rows.at(1).remark,
            "INTERGROWTH-21st (2020) fits weights by another formula alone: Hadlock 1 (HC/AC/FL).");
  EXPECT_THAT(weights.rows.at(4).remark, StartsWith("From one length alone. INTERGROWTH"));
  const auto difference = weights.rows.at(0).cells.at(2).number;
  ASSERT_TRUE(difference);
  EXPECT_EQ(*difference, *weights.rows.at(0).cells.at(1).number - *weights.rows.at(1).cells.at(1).number);
}

TEST(TheTablesOfAComparison, setTwinsSideBySide) {
  model::PatientRecord patient = examined({{24.0, {kAt24, kAt20}}});
  patient.setNumberOfFetuses(2);
  patient.setFetalWeightStandard(4);
  const Table fetuses = table("fetuses", patient, 0, 1);
  ASSERT_EQ(fetuses.rows.size(), 2U);
  EXPECT_EQ(fetuses.rows.at(0).cells.at(0).text, "Twin 1");
  EXPECT_EQ(fetuses.rows.at(1).cells.at(1).text, "47.4");
  EXPECT_FALSE(fetuses.rows.at(0).isChosen);
  EXPECT_TRUE(fetuses.rows.at(1).isChosen);
  // The weight by the AC alone is exp(-4.564 + 0.282 AC - 0.00331 AC^2) kg, AC in cm: 714.7 g and 368.2 g.
  EXPECT_EQ(fetuses.rows.at(0).cells.at(5).text, "715");
  EXPECT_EQ(fetuses.rows.at(1).cells.at(6).text, "48.5");
  EXPECT_EQ(fetuses.rows.at(0).cells.at(6).text, "0.0");
  EXPECT_EQ(table("fetuses", examined({{24.0, {kAt24}}})).rows.front().cells.at(6).text, "-");
}

TEST(TheTablesOfAComparison, takeNoLongerForTenThousandFetuses) {
  const model::PatientRecord patient = examined({{24.0, std::vector(10'000, kAt24)}});
  const tests::Spent spent;
  EXPECT_EQ(table("fetuses", patient).rows.size(), 10'000U);
  EXPECT_LT(spent.seconds(), tests::kMostSeconds);
}

TEST(TheTablesOfAComparison, tellGrowthBesideWhatIsExpected) {
  const Table growth = table("growth", examined({{20.0, {kAt20}}, {24.0, {kAt24}}}), 1);
  ASSERT_EQ(growth.rows.size(), 5U);
  // (60.4 - 47.4) / 4, (59.6444 - 47.414) / 4, and 0.3285 - -0.0074.
  EXPECT_THAT(textsOf(growth.rows.front()), ElementsAre("BPD", "+3.3", "+3.1", "+0.34"));
  EXPECT_EQ(growth.rows.back().cells.at(2).text, "-");
  EXPECT_TRUE(table("growth", examined({{20.0, {kAt20}}})).rows.empty());
}

TEST(TheTablesOfAComparison, areCopiedAsTheyStandAndExportedUnrounded) {
  const Table ratios = table("ratios", examined({{20.0, {kAt20}}}));
  EXPECT_EQ(tabbedText(ratios), "Ratio\tValue\nHC/AC\t1.127\nFL/AC\t0.208\nFL/BPD\t0.677\n");
  // 174 / 154.4 and so on, of single-precision lengths.
  EXPECT_THAT(csvText(ratios), StartsWith("Ratio,Value\r\nHC/AC,1.12694"));
  EXPECT_THAT(csvText(table("weights", examined({{20.0, {kAt20}}}))), HasSubstr("Hadlock 2 (AC/FL),"));
  const Table unmeasured = table("ratios", examined({{20.0, {{}}}}));
  EXPECT_EQ(csvText(unmeasured), "Ratio,Value\r\nHC/AC,\r\nFL/AC,\r\nFL/BPD,\r\n");
}

TEST(TheTablesOfAComparison, speakTheUsersLanguage) {
  class Comma final : public foundation::Localizer {
   public:
    std::string text(std::string_view, std::string_view key) const override {
      return key == "Lengths" ? "Mesures" : std::string(key);
    }
    foundation::ShortDateForm shortDateForm() const override { return {}; }
    std::string longDateText(const foundation::CivilDay&) const override { return {}; }
    char decimalSign() const override { return ','; }
    std::string upperCased(std::string_view text) const override { return std::string(text); }
  };
  const Table lengths = tablesOf(examined({{20.0, {kAt20}}}), 0, 0, Comma()).front();
  EXPECT_EQ(lengths.title, "Mesures");
  EXPECT_EQ(lengths.rows.front().cells.at(1).text, "47,4");
}

TEST(TheTablesOfAComparison, needAnExamination) {
  EXPECT_THROW(tablesOf(model::PatientRecord(), 0, 0, EnglishLocalizer()), foundation::RangeError);
}

}  // namespace
}  // namespace nascor::compare
