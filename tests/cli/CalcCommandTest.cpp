// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "Csv.h"
#include "Process.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

Outcome calc(const std::string& table, std::vector<std::string> options = {}) {
  options.insert(options.begin(), "calc");
  return run(options, table);
}

std::string block(const std::string& standard) {
  std::string names;
  for (const std::string length : {"bpd", "hc", "ac", "fl"}) {
    for (const std::string ending : {"_mean_mm", "_sd_mm", "_z"})
      names += standard + "_" + length + ending + ",";
  }
  return names;
}
const std::string kWeights = "efw_0_g,efw_1_g,efw_2_g,efw_3_g,efw_4_g,efw_5_g,efw_6_g,efw_7_g,";

TEST(Calc, appendsWhatIsComputed) {
  const std::string all = block("westerway") + block("hadlock") + block("schluter") + block("cfef");
  EXPECT_EQ(calc("ac\n").out, "ac," + kWeights + all + "warning,error\n");
  EXPECT_EQ(calc("ac\n", {"--standard", "cfef", "--formula", "4"}).out,
            "ac,efw_4_g," + block("cfef") + "warning,error\n");
  EXPECT_EQ(calc("ac\n", {"--standard", "all"}).out, calc("ac\n").out);

  const Outcome outcome = calc("id,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm\nA,20,48.22,320,300,70\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  const CsvRow row = rowsOf(outcome.out).at(0);
  EXPECT_EQ(row.at("id"), "A");
  // Hadlock 1 and Campbell by hand; means and deviations as published.
  EXPECT_NEAR(std::stod(row.at("efw_0_g")), 2533.9614293978416, 1e-9);
  EXPECT_NEAR(std::stod(row.at("efw_4_g")), 2501.7737992898988, 1e-9);
  EXPECT_EQ(row.at("cfef_bpd_mean_mm"), "48.22");
  EXPECT_EQ(row.at("cfef_bpd_sd_mm"), "2.71");
  EXPECT_EQ(row.at("cfef_bpd_z"), "0") << "a z of 0 is a number";
  EXPECT_EQ(row.at("westerway_bpd_mean_mm"), "47.414000000000016");
}

TEST(Calc, takesTheColumnsInAnyOrderByEitherName) {
  const std::string expected =
      calc("ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm\n20,50,180,150,33\n", {"--columns", "efw_3_g,cfef_fl_z"}).out;
  EXPECT_EQ(calc("fl,x,ac,hc,bpd,ga\n33,9,150,180,50,20\n", {"--columns", "efw_3_g,cfef_fl_z"}).out,
            expected);
  EXPECT_EQ(calc("\"ga\",\"bpd_mm\",hc,ac_mm,fl\n20,50,180,150,33\n", {"--columns", "efw_3_g,cfef_fl_z"}).out,
            expected);
}

TEST(Calc, givesTheNumbersOfWeight) {
  const auto weights =
      linesOf(run({"weight", "--bpd", "90", "--hc", "320", "--ac", "300", "--fl", "70", "--json"}).out);
  std::string row =
      linesOf(calc("bpd,hc,ac,fl\n90,320,300,70\n",
                   {"--columns", "efw_0_g,efw_1_g,efw_2_g,efw_3_g,efw_4_g,efw_5_g,efw_6_g,efw_7_g"})
                  .out)
          .at(1);
  EXPECT_EQ("[" + row + "]", weights.at(0));
}

TEST(Calc, keepsOtherColumnsAsTheyCame) {
  const std::string table =
      "a,ac,b\n007,100,\"x, \"\"y\"\"\"\n 1.50 ,100,=1+1\n\"\",100,\"q\"\n\"1\r\n2\",1e2,-\n";
  for (const std::vector<std::string>& options :
       {std::vector<std::string>{"--columns", "a,ac,b"}, {"--columns", "a,ac,b", "--fixed"}}) {
    EXPECT_EQ(calc(table, options).out, table);
  }
  EXPECT_EQ(calc("ac,b\n1,5\" x\n", {"--columns", "b"}).out, "b\n\"5\"\" x\"\n")
      << "it could not be read back without";
  EXPECT_EQ(calc("ac,b\n100,x\n", {"--columns", "b,efw_4_g,ac"}).out.substr(0, 13), "b,efw_4_g,ac\n");
}

TEST(Calc, fixedRoundsWhatIsComputed) {
  EXPECT_EQ(calc("ga,bpd,ac\n20,25.25,300\n",
                 {"--fixed", "--columns", "ga,bpd,efw_4_g,cfef_bpd_mean_mm,cfef_bpd_z"})
                .out,
            "ga,bpd,efw_4_g,cfef_bpd_mean_mm,cfef_bpd_z\n20,25.25,2501.8,48.2,-8.476\n");
}

struct CellCase {
  const char* name;
  std::string cell;
  enum Kind { number, notMeasured, garbage } kind;
};
class CalcCells : public testing::TestWithParam<CellCase> {};

/// The cell as AC, 300 where it is a number.
TEST_P(CalcCells, areNumbersNothingOrGarbage) {
  const auto& [name, cell, kind] = GetParam();
  const Outcome outcome = calc("ac,ga,bpd,hc,fl\n" + cell + ",20,,,\n300,20,,,\n",
                               {"--columns", "efw_4_g,cfef_ac_mean_mm,error"});
  const auto rows = recordsOf(outcome.out);
  ASSERT_THAT(rows, SizeIs(3)) << outcome.err;
  EXPECT_EQ(rows[1][0], kind == CellCase::number ? rows[2][0] : "");
  EXPECT_EQ(rows[1][1], kind == CellCase::garbage ? "" : "151.4");
  EXPECT_EQ(rows[1][2], kind == CellCase::garbage ? "ac: \"" + cell + "\" is no number" : "");
  EXPECT_EQ(outcome.err,
            kind == CellCase::garbage ? "standard input: line 2: ac: \"" + cell + "\" is no number\n" : "");
  EXPECT_EQ(outcome.status, kind == CellCase::garbage ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    table, CalcCells,
    testing::Values(
        CellCase{"plain", "300", CellCase::number}, CellCase{"point", "300.0", CellCase::number},
        CellCase{"blanksAround", "  300 ", CellCase::number},
        CellCase{"tabsAround", "\t300\t", CellCase::number}, CellCase{"plus", "+300", CellCase::number},
        CellCase{"exponent", "3e2", CellCase::number}, CellCase{"exponentPlus", "3E+2", CellCase::number},
        CellCase{"exponentMinus", "30000e-2", CellCase::number},
        CellCase{"withoutDigitBefore", ".3e3", CellCase::number},
        CellCase{"withoutDigitBehind", "300.", CellCase::number},
        CellCase{"zerosBefore", "00300", CellCase::number}, CellCase{"empty", "", CellCase::notMeasured},
        CellCase{"blank", "  ", CellCase::notMeasured}, CellCase{"tab", "\t", CellCase::notMeasured},
        CellCase{"zero", "0", CellCase::notMeasured}, CellCase{"zeros", "0.00", CellCase::notMeasured},
        CellCase{"minusZero", "-0", CellCase::notMeasured}, CellCase{"nan", "nan", CellCase::notMeasured},
        CellCase{"capitalNan", "NaN", CellCase::notMeasured},
        CellCase{"minusNan", "-NAN", CellCase::notMeasured},
        CellCase{"plusNan", "+nan", CellCase::notMeasured}, CellCase{"na", "NA", CellCase::notMeasured},
        CellCase{"naWithBlanks", " NA ", CellCase::notMeasured}, CellCase{"unit", "45mm", CellCase::garbage},
        CellCase{"hexadecimal", "0x10", CellCase::garbage}, CellCase{"infinite", "inf", CellCase::garbage},
        CellCase{"minusInfinite", "-Infinity", CellCase::garbage},
        CellCase{"tooLarge", "1e999", CellCase::garbage},
        CellCase{"otherDigits", "\xD9\xA4\xD9\xA5", CellCase::garbage},
        CellCase{"word", "n/a", CellCase::garbage}, CellCase{"smallNa", "na", CellCase::garbage},
        CellCase{"nanWithMore", "nan(1)", CellCase::garbage}, CellCase{"twoSigns", "+-5", CellCase::garbage},
        CellCase{"twoMinuses", "--5", CellCase::garbage}, CellCase{"signApart", "- 5", CellCase::garbage},
        CellCase{"point_", ".", CellCase::garbage}, CellCase{"exponentAlone", "1e", CellCase::garbage},
        CellCase{"twoNumbers", "4 5", CellCase::garbage}, CellCase{"dash", "-", CellCase::garbage},
        CellCase{"wideBlank",
                 "\xC2\xA0"
                 "5",
                 CellCase::garbage}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Calc, namesADecimalComma) {
  const Outcome outcome = calc("bpd_mm,fl,ga,hc,ac\n\"45,2\",x,,,\n", {"--columns", "error,bpd_mm"});
  EXPECT_EQ(recordsOf(outcome.out)[1][0], "bpd_mm: \"45,2\" is no number; fl: \"x\" is no number");
  EXPECT_EQ(recordsOf(outcome.out)[1][1], "45,2");
  EXPECT_EQ(outcome.err, "standard input: line 2: bpd_mm: \"45,2\" is no number; fl: \"x\" is no number\n");
}

TEST(Calc, leavesTheOtherCellsOfABadRowEmptyAndGoesOn) {
  const Outcome outcome = calc("ga,ac,bpd\n20,300,45mm\n20,900,\n");
  EXPECT_EQ(outcome.status, 1);
  const auto rows = rowsOf(outcome.out);
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0].at("bpd"), "45mm");
  for (const char* name : {"efw_4_g", "cfef_ac_mean_mm", "cfef_ac_z", "warning"})
    EXPECT_EQ(rows[0].at(name), "") << name;
  EXPECT_NE(rows[1].at("efw_4_g"), "");
  EXPECT_THAT(rows[1].at("warning"), HasSubstr("AC 900 mm is outside 0 to 600 mm"));
}

TEST(Calc, countsPhysicalLines) {
  EXPECT_THAT(calc("x,ac\n\"a\nb\",1\n\n\r\ny,bad\n").err, HasSubstr("\nstandard input: line 6: "));
  EXPECT_THAT(calc("\xEF\xBB\xBF"
                   "\nx,ac\ny,bad")
                  .err,
              HasSubstr("\nstandard input: line 3: "));
}

TEST(Calc, takesOffWhatOtherSystemsWrite) {
  const std::string plain = calc("id,ac\na,300\n\"b\",250\n").out;
  EXPECT_EQ(calc("\xEF\xBB\xBFid,ac\r\na,300\r\n\"b\",250\r\n").out, plain);
  EXPECT_EQ(calc("id,ac\r\na,300\r\n\"b\",250").out, plain) << "without a last line end";
  EXPECT_EQ(calc("\r\n\nid,ac\n\n\na,300\n\r\n\"b\",250\n\n").out, plain) << "empty lines";
  EXPECT_EQ(calc("\xEF\xBB\xBF\"id\",ac\r\n").out.substr(0, 8), "\"id\",ac,");
}

TEST(Calc, marksRowsOfAnotherWidth) {
  const Outcome outcome =
      calc("ga,ac,x,bpd,hc,fl\n20,300\n20,300,a,,,,b\n20,300,c,,,\n", {"--columns", "ga,ac,x,efw_4_g,error"});
  EXPECT_EQ(outcome.status, 1);
  const auto rows = recordsOf(outcome.out);
  EXPECT_THAT(rows[1], ElementsAre("20", "300", "", "", HasSubstr("6 cells")));
  EXPECT_THAT(rows[2], ElementsAre("20", "300", "a", "", HasSubstr("6 cells")));
  EXPECT_THAT(rows[3], ElementsAre("20", "300", "c", StartsWith("2501.77"), ""));
  EXPECT_THAT(linesOf(outcome.err),
              ElementsAre(StartsWith("standard input: line 2: "), StartsWith("standard input: line 3: ")));
}

TEST(Calc, saysOnceWhatItNeverFinds) {
  const Outcome outcome = calc("ga,bpd,hc,ac\n20,50,180,150\n20,50,180,150\n");
  EXPECT_EQ(outcome.status, 0);
  ASSERT_THAT(linesOf(outcome.err), SizeIs(1));
  EXPECT_THAT(outcome.err, HasSubstr("fl_mm"));
  EXPECT_EQ(rowsOf(outcome.out).at(0).at("efw_3_g"), "");
  EXPECT_NE(rowsOf(outcome.out).at(0).at("efw_7_g"), "");
}

struct BadTableCase {
  const char* name;
  std::string table;
  const char* sentence;
  const char* out;  ///< of the first column
};
class BadTables : public testing::TestWithParam<BadTableCase> {};

TEST_P(BadTables, endWithASentenceAndWholeRowsOnly) {
  const auto& [name, table, sentence, out] = GetParam();
  const Outcome outcome = calc(table, {"--columns", "ac"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, out);
  const auto errors = linesOf(outcome.err);
  ASSERT_FALSE(errors.empty());
  EXPECT_THAT(errors.back(), StartsWith("standard input: "));
  EXPECT_THAT(errors.back(), HasSubstr(sentence));
}

INSTANTIATE_TEST_SUITE_P(
    table, BadTables,
    testing::Values(
        BadTableCase{"empty", "", "there is no header", ""},
        BadTableCase{"emptyLines", "\n\r\n\n", "there is no header", ""},
        BadTableCase{"byteOrderMark", "\xEF\xBB\xBF", "there is no header", ""},
        BadTableCase{"noneOfTheFive", "id,BPD\n1,2\n", "none of the columns", ""},
        BadTableCase{"twice", "ac,bpd,ac\n1,2,3\n", "the column ac stands twice", ""},
        BadTableCase{"bothNames", "ac,ac_mm\n1,2\n", "ac and ac_mm", ""},
        BadTableCase{"appendedName", "ac,error\n1,2\n", "the column error", ""},
        BadTableCase{"appendedWeight", "ac,efw_0_g\n1,2\n", "efw_0_g", ""},
        BadTableCase{"appendedScore", "ac,cfef_fl_z\n1,2\n", "cfef_fl_z", ""},
        BadTableCase{"textBehindQuote", "ac,x\n1,a\n2,\"b\"c\n3,d\n", "line 3: text stands behind",
                     "ac\n1\n"},
        BadTableCase{"blankBehindQuote", "ac,x\n1,\"a\" \n", "line 2: text stands behind", "ac\n"},
        BadTableCase{"textBehindQuoteInHeader", "\"ac\"x\n1\n", "line 1: text stands behind", ""},
        BadTableCase{"quoteNeverCloses", "ac,x\n1,a\n2,\"b\n3,c\n", "line 3: a quotation mark", "ac\n1\n"},
        BadTableCase{"quoteNeverClosesAtEnd", "ac,x\n1,a\n2,\"", "line 3: a quotation mark", "ac\n1\n"},
        BadTableCase{"quoteNeverClosesInHeader", "\"ac\n1\n", "line 1: a quotation mark", ""},
        BadTableCase{"endlessQuote", "ac,x\n1,a\n2,\"" + std::string(5 << 20, 'x'), "line 3: ", "ac\n1\n"}),
    [](const auto& row) { return std::string(row.param.name); });

struct CalcUsageCase {
  const char* name;
  std::vector<std::string> options;
  const char* sentence;
};
class CalcUsage : public testing::TestWithParam<CalcUsageCase> {};

TEST_P(CalcUsage, isWrong) {
  const Outcome outcome = calc("ac,x\n1,2\n", GetParam().options);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(linesOf(outcome.err).at(0), HasSubstr(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    table, CalcUsage,
    testing::Values(CalcUsageCase{"columnUnknown", {"--columns", "ac,bpd"}, "\"bpd\" is no column"},
                    CalcUsageCase{"columnOfDocuments", {"--columns", "file"}, "\"file\""},
                    CalcUsageCase{"columnOfTheOwnStandard", {"--columns", "bpd_z"}, "\"bpd_z\""},
                    CalcUsageCase{"columnEmpty", {"--columns", "ac,"}, "empty"},
                    CalcUsageCase{"columnTwice", {"--columns", "x,x"}, "twice"},
                    CalcUsageCase{"standard", {"--standard", "0,0"}, "twice"},
                    CalcUsageCase{"formula", {"--formula", "9"}, "\"9\""},
                    CalcUsageCase{"operand", {"file.csv"}, "file.csv"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Calc, namesAnyComputedColumnWhateverIsChosen) {
  EXPECT_EQ(linesOf(calc("ac\n300\n",
                         {"--standard", "0", "--formula", "0", "--columns", "efw_4_g,cfef_ac_z,error,ac"})
                        .out)[0],
            "efw_4_g,cfef_ac_z,error,ac");
}

TEST(Calc, helpWarnsOfSpreadsheets) { EXPECT_THAT(run({"calc", "--help"}).out, HasSubstr("begin with '='")); }

TEST(Calc, givesTheSameForALongTable) {
  std::string table = "id,ac\n";
  for (int i = 0; i < 30000; ++i) table += "\"row\n" + std::to_string(i) + "\",300\n";
  const Outcome outcome = calc(table, {"--columns", "id,efw_4_g"});
  EXPECT_EQ(outcome.status, 0);
  const auto rows = recordsOf(outcome.out);
  ASSERT_THAT(rows, SizeIs(30001));
  EXPECT_EQ(rows[30000][0], "row\n29999");
  for (std::size_t i = 1; i < rows.size(); ++i) ASSERT_EQ(rows[i][1], rows[1][1]);
}

}  // namespace
}  // namespace nascor::tests
