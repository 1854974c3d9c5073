// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "Process.h"

namespace nascor::tests {
namespace {

using nlohmann::json;
using testing::HasSubstr;

/// What a successful run prints, as JSON.
json answered(const std::vector<std::string>& arguments, const std::string& input = "") {
  const Outcome outcome = run(arguments, input);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  return json::parse(outcome.out);
}

/// One JSON value a line.
std::vector<json> answeredByLine(const std::vector<std::string>& arguments, const std::string& input = "") {
  std::vector<json> values;
  for (const std::string& line : linesOf(run(arguments, input).out)) values.push_back(json::parse(line));
  return values;
}

struct WeightCase {
  const char* name;
  std::vector<std::string> lengths;
  std::vector<double> grams;
};
class Weight : public testing::TestWithParam<WeightCase> {};

TEST_P(Weight, isGivenByAllEightFormulas) {
  std::vector<std::string> arguments{"weight", "--json"};
  arguments.insert(arguments.end(), GetParam().lengths.begin(), GetParam().lengths.end());
  const json weights = answered(arguments);
  ASSERT_EQ(weights.size(), 8U);
  for (std::size_t i = 0; i < 8; ++i) EXPECT_NEAR(weights[i].get<double>(), GetParam().grams[i], 0.05) << i;
}

INSTANTIATE_TEST_SUITE_P(
    table, Weight,
    testing::Values(
        WeightCase{"allFourMeasured",
                   {"--bpd", "90", "--hc", "320", "--ac", "300", "--fl", "70"},
                   {2534.0, 2540.4, 2585.2, 2561.5, 2501.8, 2579.5, 2604.3, 2572.6}},
        WeightCase{"equalsSigns",
                   {"--fl=70", "--ac=300.0", "--hc=+320", "--bpd=9e1"},
                   {2534.0, 2540.4, 2585.2, 2561.5, 2501.8, 2579.5, 2604.3, 2572.6}},
        WeightCase{"acAndFl", {"--ac", "300", "--fl", "70"}, {0, 2540.4, 0, 0, 2501.8, 0, 0, 0}},
        WeightCase{"acAlone", {"--ac", "300"}, {0, 0, 0, 0, 2501.8, 0, 0, 0}},
        WeightCase{"bpdAndAc", {"--bpd", "90", "--ac", "300"}, {0, 0, 0, 0, 2501.8, 0, 0, 2572.6}},
        WeightCase{"noAc", {"--bpd", "90", "--hc", "320", "--fl", "70"}, {0, 0, 0, 0, 0, 0, 0, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Weight, isADashForPeopleWhereAFormulaNeedsMore) {
  const auto lines = linesOf(run({"weight", "--ac", "300"}).out);
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[0], "   Formula                   Weight (g)");
  EXPECT_EQ(lines[1], "0  Hadlock 1 (HC/AC/FL)      -");
  EXPECT_THAT(lines[5], testing::StartsWith("4  Campbell (AC)             2501.77"));
}

TEST(CRL, givesFourAgesALength) {
  const json ages = answered({"crl", "45", "--json"});
  ASSERT_EQ(ages.size(), 4U);
  EXPECT_NEAR(ages[0].get<double>(), 11.33, 0.005);
  EXPECT_NEAR(ages[1].get<double>(), 11.14, 0.005);
  EXPECT_NEAR(ages[2].get<double>(), 11.10, 0.005);
  EXPECT_NEAR(ages[3].get<double>(), 11.00, 0.005);
}

TEST(CRL, isZeroOutsideTheRangeOfAFormula) {
  const auto ages = answeredByLine({"crl", "1.99", "2", "87", "87.1", "--json"});
  ASSERT_EQ(ages.size(), 4U);
  EXPECT_EQ(ages[0], json::parse("[0,0,0,0]"));
  EXPECT_GT(ages[1][0], 0.0);
  EXPECT_GT(ages[1][3], 0.0);
  EXPECT_GT(ages[2][3], 0.0);
  EXPECT_EQ(ages[3][3], 0);
}

TEST(CRL, takesANumberThatBeginsWithItsDecimalPoint) {
  EXPECT_EQ(run({"crl", "--json", "-.5"}).out, "[0,0,0,0]\n");
  EXPECT_EQ(run({"crl", ".5", "-.5e1", "--", "-.5"}).out, run({"crl", "0.5", "-0.5e1", "-0.5"}).out);
  EXPECT_EQ(run({"crl", "-.x"}).status, 2);
  EXPECT_THAT(run({"report", "-.5"}).err, HasSubstr("-.5")) << "a file keeps its name";
}

TEST(CRL, readsLengthsFromStandardInputInOrderWithTheOthers) {
  const auto ages = answeredByLine({"crl", "50", "-", "45", "--json"}, " 45 \r\n7\n\n50");
  ASSERT_EQ(ages.size(), 6U);
  EXPECT_EQ(ages[0], ages[4]) << "a last line without an end counts";
  EXPECT_EQ(ages[1], ages[5]);
  EXPECT_EQ(ages[3], json()) << "an empty line is no number";
}

TEST(CRL, answersALineThatIsNoNumberAndGoesOn) {
  const Outcome outcome = run({"crl", "-"}, "45\n4x5\n0x2d\n50\n");
  EXPECT_EQ(outcome.status, 1);
  const auto lines = linesOf(outcome.out);
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], "CRL (mm)\tHadlock (1992)\tNelson (1981)\tRobinson (1975)\tWesterway (2000)");
  EXPECT_THAT(lines[1], testing::StartsWith("45\t11.327"));
  EXPECT_EQ(lines[2], "nan\tnan\tnan\tnan\tnan");
  EXPECT_EQ(lines[3], "nan\tnan\tnan\tnan\tnan");
  EXPECT_THAT(lines[4], testing::StartsWith("50\t11.73"));
  EXPECT_EQ(outcome.err,
            "standard input: line 2: expected a decimal number, but \"4x5\" stands here\n"
            "standard input: line 3: expected a decimal number, but \"0x2d\" stands here\n");
}

TEST(CRL, survivesALineWithoutEnd) {
  const Outcome outcome = run({"crl", "-", "--json"}, std::string(3000000, '1') + "\n45\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(linesOf(outcome.out).size(), 2U);
  EXPECT_LT(outcome.err.size(), 200U);
}

TEST(Standard, printsThePublishedTableWithoutRounding) {
  EXPECT_EQ(linesOf(run({"standard", "3", "--measurement", "bpd", "--json"}).out)[0].substr(0, 51),
            "[[16,34.53,2.275],[17,38.12,2.375],[18,41.58,2.49],");
  const json fl = answered({"standard", "3", "--measurement=fl", "--json"});
  ASSERT_EQ(fl.size(), 25U);
  EXPECT_EQ(fl[24], json::parse("[40,73.79,3.19]"));
}

TEST(Standard, hasTheWeeksOfItsPublication) {
  struct Weeks {
    const char* standard;
    int first;
    int last;
  };
  for (const auto& [standard, first, last] :
       {Weeks{"0", 11, 41}, {"1", 12, 40}, {"2", 11, 41}, {"3", 16, 40}}) {
    for (const char* measurement : {"bpd", "hc", "ac", "fl", "efw"}) {
      const json rows =
          answered({"standard", standard, "--measurement", measurement, "--formula", "0", "--json"});
      ASSERT_EQ(rows.size(), static_cast<std::size_t>(last - first + 1)) << standard << measurement;
      EXPECT_EQ(rows.front()[0], first) << standard << measurement;
      EXPECT_EQ(rows.back()[0], last) << standard << measurement;
    }
  }
}

TEST(Standard, hasTheFourLengthsWithoutAMeasurementAndTheWeightWithAFormula) {
  const json lengths = answered({"standard", "0", "--json"});
  EXPECT_EQ(lengths.size(), 4U);
  EXPECT_NEAR(lengths["bpd"][9][1].get<double>(), 47.414, 1e-9);
  EXPECT_NEAR(lengths["hc"][9][1].get<double>(), 174.01, 1e-9);
  EXPECT_NEAR(lengths["ac"][9][1].get<double>(), 154.374, 1e-9);
  EXPECT_NEAR(lengths["fl"][9][1].get<double>(), 32.117, 1e-9);
  const json withWeight = answered({"standard", "3", "--formula", "4", "--json"});
  EXPECT_EQ(withWeight.size(), 5U);
  // exp(-4.564 + 0.0282 x 151.4 - 3.31e-5 x 151.4^2) x 1000
  EXPECT_NEAR(withWeight["efw"][4][1].get<double>(), 348.80687524618105, 1e-9);
  EXPECT_EQ(withWeight["efw"][4][2], 0);

  const auto lines = linesOf(run({"standard", "3", "--formula", "4"}).out);
  EXPECT_EQ(lines[0], "CFEF (Biométrie 2000), Campbell (AC)");
  EXPECT_EQ(lines[1],
            "Week  BPD (mm)  SD     HC (mm)  SD      AC (mm)  SD     FL (mm)  SD     EFW (g)             SD");
  EXPECT_THAT(lines[2], testing::StartsWith(
                            "  16  34.53     2.275  120.86   7.625   106.4    7.6    19.95    2.115  "));
  EXPECT_EQ(lines.size(), 27U);
}

struct LookUpCase {
  const char* name;
  std::vector<std::string> question;
  double answer;
};
class LookUp : public testing::TestWithParam<LookUpCase> {};

TEST_P(LookUp, interpolatesBetweenWeeks) {
  std::vector<std::string> arguments{"lookup"};
  arguments.insert(arguments.end(), GetParam().question.begin(), GetParam().question.end());
  const Outcome text = run(arguments);
  arguments.emplace_back("--json");
  const Outcome asJson = run(arguments);
  EXPECT_EQ(text.out, asJson.out);
  EXPECT_NEAR(json::parse(asJson.out).get<double>(), GetParam().answer, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    table, LookUp,
    testing::Values(LookUpCase{"meanBetween", {"3", "bpd", "--mean", "20.5"}, 49.825},
                    LookUpCase{"meanBeforeTheTable", {"3", "bpd", "--mean", "5"}, 34.53},
                    LookUpCase{"meanAtANegativeAge", {"3", "bpd", "--mean", "-5"}, 34.53},
                    LookUpCase{"meanOfNoAge", {"3", "bpd", "--mean", "0"}, 0.0},
                    LookUpCase{"meanBehindTheTable", {"3", "bpd", "--mean", "99"}, 93.45},
                    LookUpCase{"sdBetween", {"3", "bpd", "--sd", "20.5"}, 2.7475},
                    LookUpCase{"ageBetween", {"3", "bpd", "--gestation", "49.825"}, 20.5},
                    LookUpCase{"ageBeforeTheTable", {"3", "hc", "--gestation", "1"}, 16.0},
                    LookUpCase{"ageBehindTheTable", {"3", "ac", "--gestation", "1e9"}, 40.0},
                    LookUpCase{"ageOfNothing", {"3", "fl", "--gestation", "0"}, 0.0},
                    LookUpCase{"ageWithinTheLastWeek", {"3", "bpd", "--gestation", "93"}, 40.0},
                    LookUpCase{
                        "meanWeight", {"3", "efw", "--formula", "4", "--mean", "20"}, 348.80687524618105}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(LookUp, answersEachLineOfStandardInputByALine) {
  const Outcome outcome = run({"lookup", "3", "bpd", "--mean", "-"}, "20\nx\n21\n");
  EXPECT_EQ(outcome.out, "48.22\nnan\n51.43\n");
  EXPECT_EQ(outcome.status, 1);
  const Outcome asJson = run({"lookup", "3", "bpd", "--mean", "-", "--json"}, "20\nx\n21");
  EXPECT_EQ(asJson.out, "48.22\nnull\n51.43\n");
}

TEST(FixedDigits, areOneBehindThePointForWeights) {
  const auto lines = linesOf(run({"weight", "--ac", "300", "--fl", "70", "--fixed"}).out);
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[1], "0  Hadlock 1 (HC/AC/FL)      -");
  EXPECT_EQ(lines[2], "1  Hadlock 2 (AC/FL)         2540.4");
  EXPECT_EQ(lines[5], "4  Campbell (AC)             2501.8");
  EXPECT_EQ(run({"weight", "--ac", "300", "--fl", "70", "--fixed", "--json"}).out,
            "[0.0,2540.4,0.0,0.0,2501.8,0.0,0.0,0.0]\n");
}

TEST(FixedDigits, areOneBehindThePointForAges) {
  EXPECT_EQ(linesOf(run({"crl", "45", "--fixed"}).out).at(1), "45\t11.3\t11.1\t11.1\t11.0");
}

TEST(FixedDigits, areOneBehindThePointInTables) {
  const auto lines = linesOf(run({"standard", "cfef", "--fixed"}).out);
  EXPECT_EQ(lines.at(1), "Week  BPD (mm)  SD   HC (mm)  SD    AC (mm)  SD    FL (mm)  SD");
  EXPECT_EQ(lines.at(2), "  16  34.5      2.3  120.9    7.6   106.4    7.6   19.9     2.1");
  EXPECT_EQ(run({"standard", "3", "--measurement", "bpd", "--json", "--fixed"}).out.substr(0, 29),
            "[[16,34.5,2.3],[17,38.1,2.4],");
}

TEST(FixedDigits, areThoseOfTheExactValue) {
  // 49.825 between the weeks; 2.7475.
  EXPECT_EQ(run({"lookup", "3", "bpd", "--mean", "20.5", "--fixed"}).out, "49.8\n");
  EXPECT_EQ(run({"lookup", "3", "bpd", "--sd", "20.5", "--fixed"}).out, "2.7\n");
  EXPECT_EQ(run({"lookup", "3", "bpd", "--mean", "-", "--fixed", "--json"}, "20\nx\n").out, "48.2\nnull\n");
}

TEST(LookUp, writesNumbersThatJsonLacksAsTexts) {
  // 10^200 mm: Combs is beyond the range of a double.
  const json weights =
      json::parse(run({"weight", "--json", "--hc", "1e200", "--ac", "1e200", "--fl", "1"}).out);
  EXPECT_EQ(weights[5], "inf");
}

struct ImprobableCase {
  const char* name;
  std::vector<std::string> arguments;
  const char* warning;  ///< the whole of standard error
};
class ImprobableInput : public testing::TestWithParam<ImprobableCase> {};

TEST_P(ImprobableInput, isToldAndAnswered) {
  const Outcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.err, GetParam().warning);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out, "");
}

INSTANTIATE_TEST_SUITE_P(
    table, ImprobableInput,
    testing::Values(
        ImprobableCase{
            "centimetres",
            {"weight", "--bpd", "9", "--hc", "32"},
            "warning: BPD 9 mm is shorter than where any growth standard begins; lengths are in mm\n"
            "warning: HC 32 mm is shorter than where any growth standard begins; lengths are in mm\n"},
        ImprobableCase{
            "tooLong", {"weight", "--bpd", "900", "--json"}, "warning: BPD 900 mm is outside 0 to 200 mm\n"},
        ImprobableCase{"negative", {"weight", "--bpd", "-5"}, "warning: BPD -5 mm is outside 0 to 200 mm\n"},
        ImprobableCase{"smallHead",
                       {"weight", "--bpd", "90", "--hc", "254"},
                       "warning: HC 254 mm is below nine tenths of pi times the BPD, 90 mm\n"},
        ImprobableCase{"probable", {"weight", "--bpd", "90", "--hc", "320", "--ac", "300", "--fl", "70"}, ""},
        ImprobableCase{
            "longCrl", {"crl", "450"}, "warning: no formula dates 450 mm; they reach from 2 to 120 mm\n"},
        ImprobableCase{"shortCrl",
                       {"crl", "45", "1.9", "--json"},
                       "warning: no formula dates 1.9 mm; they reach from 2 to 120 mm\n"},
        ImprobableCase{"crlOfSomeFormulas", {"crl", "100"}, ""},
        ImprobableCase{"beyondTheTable",
                       {"lookup", "3", "bpd", "--mean", "45"},
                       "warning: 45 lies beyond the table, whose last week, 40, counts\n"},
        ImprobableCase{"beforeTheTable",
                       {"lookup", "3", "bpd", "--sd", "5", "--json"},
                       "warning: 5 lies beyond the table, whose first week, 16, counts\n"},
        ImprobableCase{"withinTheLastWeek",
                       {"lookup", "3", "bpd", "--gestation", "93"},
                       "warning: 93 lies beyond the table, whose last week, 40, counts\n"},
        ImprobableCase{"atTheEndOfTheTable", {"lookup", "3", "bpd", "--mean", "40"}, ""},
        ImprobableCase{"noAge", {"lookup", "3", "bpd", "--mean", "0"}, ""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ImprobableInput, ofAStreamIsToldOnceAndCounted) {
  const Outcome ages = run({"crl", "-", "--json"}, "450\n45\n451\n452\n");
  EXPECT_EQ(ages.err,
            "warning: no formula dates 450 mm; they reach from 2 to 120 mm\n"
            "warning: the same holds for 2 more of the input\n");
  EXPECT_EQ(ages.status, 0);
  EXPECT_EQ(linesOf(ages.out).size(), 4U);
  const Outcome means = run({"lookup", "3", "bpd", "--mean", "-"}, "20\n45\n");
  EXPECT_EQ(means.err, "warning: 45 lies beyond the table, whose last week, 40, counts\n");
  EXPECT_EQ(means.out, "48.22\n93.45\n");
}

}  // namespace
}  // namespace nascor::tests
