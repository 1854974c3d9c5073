// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/TableFindings.h"

#include <gmock/gmock.h>

#include "exchange/Storing.h"
#include "support/InEnglish.h"
#include "support/MarkedLocalizer.h"

namespace nascor::tests {
namespace {

using exchange::Findings;
using exchange::findingsInTable;
using foundation::CivilDay;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string kHeader = "reference_id,exam_date,fetus,bpd_mm,hc_mm,ac_mm,fl_mm,edd\n";

/// A table that fits.
std::vector<Findings> taken(const std::string& table) {
  const auto found = findingsInTable(table).value();
  if (const auto* why = std::get_if<std::vector<foundation::Sentence>>(&found)) {
    ADD_FAILURE() << testing::PrintToString(inEnglish(*why));
    return {};
  }
  return std::get<0>(found);
}

/// The sentences about a table that does not, but for the last, which says that nothing was taken.
std::vector<std::string> faultsOf(const std::string& table) {
  const auto found = findingsInTable(table).value();
  const auto* sentences = std::get_if<std::vector<foundation::Sentence>>(&found);
  if (!sentences || sentences->empty()) return {"none"};
  std::vector<std::string> faults = inEnglish(*sentences);
  EXPECT_EQ(faults.back(), "nothing of this table is taken until every row of it fits");
  faults.pop_back();
  return faults;
}

/// Its four lengths, -1 for one that was not measured.
std::vector<double> lengthsOf(const exchange::FetusFindings& fetus) {
  std::vector<double> lengths;
  for (std::size_t i = 0; i < exchange::kStoredLengths; ++i) {
    const auto& length = fetus.lengths.at(i);
    lengths.push_back(length ? length->mm : -1.0);
    EXPECT_EQ(length ? length->chosen : "plain", "plain");
  }
  EXPECT_FALSE(fetus.lengths.at(exchange::kStoredLengths)) << "the CRL";
  EXPECT_FALSE(fetus.efw);
  return lengths;
}

TEST(ATable, isReadAsOneExaminationForEachPatientAndDay) {
  const auto all = taken(kHeader +
                         "A,2026-11-13,1,58.3,,200.5,,2027-03-04\n"
                         "B,2026-11-13,0,31,,,,\n"
                         "A,2026-11-13,0,60.900001525878906,227.3,NA,0,2027-03-04\n"
                         "A,2026-11-27,0,,, nan ,45e-1,\n");
  ASSERT_THAT(all, SizeIs(3));
  EXPECT_EQ(all[0].patientID, "A");
  EXPECT_EQ(all[0].examDate, (CivilDay{2026, 11, 13}));
  EXPECT_EQ(all[0].edd, (CivilDay{2027, 3, 4}));
  EXPECT_EQ(all[0].eddFrom, "edd");
  EXPECT_EQ(all[0].gravida, std::nullopt);
  ASSERT_THAT(all[0].fetuses, SizeIs(2));
  EXPECT_EQ(all[0].fetuses[0].id, "2");
  EXPECT_THAT(lengthsOf(all[0].fetuses[0]), ElementsAre(58.3, -1, 200.5, -1));
  EXPECT_EQ(all[0].fetuses[1].id, "1");
  EXPECT_THAT(lengthsOf(all[0].fetuses[1]), ElementsAre(60.900001525878906, 227.3, -1, -1));
  EXPECT_THAT(all[0].warnings, IsEmpty());
  EXPECT_THAT(all[0].notTaken, IsEmpty());
  EXPECT_EQ(all[1].patientID, "B");
  EXPECT_EQ(all[1].edd, std::nullopt);
  EXPECT_EQ(all[1].eddFrom, "");
  EXPECT_EQ(all[1].numberOfFetuses, std::nullopt);
  EXPECT_EQ(all[2].examDate, (CivilDay{2026, 11, 27}));
  EXPECT_THAT(lengthsOf(all[2].fetuses.at(0)), ElementsAre(-1, -1, -1, 4.5));
}

TEST(ATable, mayComeFromAnySpreadsheet) {
  const auto all = taken(
      "\xEF\xBB\xBF\"date\",\"bpd\",unit,\"reference_id\",gravidity,number_of_fetuses,note\r\n"
      "\" 2026-11-13 \",\"+60.9\",\"a, \"\"b\"\"\nc\",\" AB-123\t\",2,1,\"quiet\"\r\n"
      "\r\n"
      "2026-11-27,.5,,AB-123 ,,1.0,");
  ASSERT_THAT(all, SizeIs(2));
  EXPECT_EQ(all[0].patientID, "AB-123");
  EXPECT_EQ(all[0].gravida, 2);
  EXPECT_EQ(all[0].numberOfFetuses, 1);
  ASSERT_THAT(all[0].fetuses, SizeIs(1));
  EXPECT_EQ(all[0].fetuses[0].id, std::nullopt);
  EXPECT_THAT(lengthsOf(all[0].fetuses[0]), ElementsAre(60.9, -1, -1, -1));
  EXPECT_THAT(inEnglish(all[0].warnings),
              ElementsAre("there is no column hc_mm or hc, ac_mm or ac, fl_mm or fl: never measured"));
  ASSERT_THAT(all[0].notTaken, SizeIs(1));
  EXPECT_EQ(all[0].notTaken[0].what, "note");
  EXPECT_EQ(all[1].patientID, "AB-123") << "the same but for blanks";
  EXPECT_EQ(all[1].numberOfFetuses, 1);
  EXPECT_THAT(all[1].notTaken, IsEmpty());
}

TEST(ATable, numbersFetusesFrom1WhereItsColumnSaysSo) {
  const auto all = taken("exam_date,fetus_number,bpd_mm\n2026-11-13,1,60\n2026-11-13,5,61\n");
  ASSERT_THAT(all, SizeIs(1));
  ASSERT_THAT(all[0].fetuses, SizeIs(2));
  EXPECT_EQ(all[0].fetuses[0].id, "1");
  EXPECT_EQ(all[0].fetuses[1].id, "5");
  EXPECT_EQ(all[0].numberOfFetuses, 5) << "or a document of two would be made";
}

TEST(ATable, knowsAllOfAPatientsFetusesFromTheFirstExaminationOn) {
  const auto all = taken(kHeader +
                         "A,2026-11-13,0,60,,,,\n"
                         "B,2026-11-13,0,60,,,,\n"
                         "A,2026-11-27,0,61,,,,\n"
                         "A,2026-11-27,1,62,,,,\n");
  ASSERT_THAT(all, SizeIs(3));
  EXPECT_EQ(all[0].numberOfFetuses, 2);
  EXPECT_THAT(inEnglish(all[0].warnings),
              ElementsAre("the report says that there are 2 fetuses, and holds 1"));
  EXPECT_EQ(all[1].numberOfFetuses, std::nullopt);
  EXPECT_EQ(all[2].numberOfFetuses, 2);
  EXPECT_THAT(all[2].warnings, IsEmpty());
}

TEST(ATable, takesWhatAnyRowOfAnExaminationSaysOfIt) {
  const auto all = taken(kHeader + "A,2026-11-13,0,60,,,,\nA,2026-11-13,1,61,,,,2027-03-04\n");
  ASSERT_THAT(all, SizeIs(1));
  EXPECT_EQ(all[0].edd, (CivilDay{2027, 3, 4}));
}

struct Fault {
  const char* name;
  std::string table;
  std::vector<std::string> begins;  ///< the beginnings of the sentences
};
void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.name; }
class ATableThatDoesNotFit : public testing::TestWithParam<Fault> {};

TEST_P(ATableThatDoesNotFit, isNamedRowByRow) {
  const auto faults = faultsOf(GetParam().table);
  ASSERT_EQ(faults.size(), GetParam().begins.size()) << testing::PrintToString(faults);
  for (std::size_t i = 0; i < faults.size(); ++i) EXPECT_THAT(faults[i], StartsWith(GetParam().begins[i]));
}

/// The table of one row with this cell under that name.
std::string with(const std::string& column, const std::string& cell) {
  return "exam_date,hc_mm," + column + "\n2026-11-13,200," + cell + "\n";
}

INSTANTIATE_TEST_SUITE_P(
    table, ATableThatDoesNotFit,
    testing::Values(
        Fault{"noDay",
              "exam_date,bpd_mm\n,60\n  ,60\n",
              {"line 2: exam_date: the cell is empty; write", "line 3: exam_date: the cell is empty; write"}},
        Fault{
            "otherDays",
            "exam_date,bpd_mm\n13/11/2026,60\n2026-02-29,60\n20261113,60\n2026-11-13T09:30,60\n26-11-13,60\n"
            "2026-1-1,60\n2026/11/13,60\n0000-01-01,60\n",
            {"line 2: exam_date: \"13/11/2026\" is no day; write it like 2026-11-13",
             "line 3: exam_date: \"2026-02-29\" is no day", "line 4: exam_date: \"20261113\" is no day",
             "line 5: exam_date: \"2026-11-13T09:30\" is no day",
             "line 6:", "line 7:", "line 8:", "line 9:"}},
        Fault{"otherEdd", with("edd", "March"), {"line 2: edd: \"March\" is no day; write it like"}},
        Fault{"sameFetus",
              kHeader + "A,2026-11-13,0,60,,,,\n A ,2026-11-13,0,60,,,,\n",
              {"line 3: line 2 has the same fetus at the same examination; leave one"}},
        Fault{"sameFetusWithoutNumbers",
              "exam_date,bpd_mm\n2026-11-13,60\n\n2026-11-13,61\n",
              {"line 4: line 2 has a fetus of this examination too; number them from 1"}},
        Fault{"garbage", with("bpd_mm", "45mm"), {"line 2: bpd_mm: \"45mm\" is no number"}},
        Fault{"comma", with("bpd", "\"45,2\""), {"line 2: bpd: \"45,2\" is no number"}},
        Fault{"notFinite", with("bpd_mm", "inf"), {"line 2: bpd_mm: \"inf\" is no number"}},
        Fault{"tooGreatForADouble", with("bpd_mm", "1e999"), {"line 2: bpd_mm: \"1e999\" is no number"}},
        Fault{"negative",
              with("bpd_mm", "-1"),
              {"line 2: bpd_mm: \"-1\" is beyond what a document takes, 0 to 200 mm"}},
        Fault{"tooLong",
              with("ac_mm", "600.1"),
              {"line 2: ac_mm: \"600.1\" is beyond what a document takes, 0 to 600 mm"}},
        Fault{"twoFaultsInARow",
              with("bpd_mm,edd", "x,y"),
              {"line 2: edd: \"y\" is no day; write it like 2027-04-10, or leave the cell empty; bpd_mm: "
               "\"x\""}},
        Fault{"fetusBeyond", with("fetus", "5"), {"line 2: fetus: \"5\" is no whole number from 0 to 4"}},
        Fault{"negativeFetus", with("fetus", "-1"), {"line 2: fetus: \"-1\" is no whole number from 0 to 4"}},
        Fault{"halfAFetus", with("fetus", "0.5"), {"line 2: fetus: \"0.5\" is no whole number"}},
        Fault{"fetusByLetter", with("fetus", "A"), {"line 2: fetus: \"A\" is no whole number"}},
        Fault{"noFetus", with("fetus", ""), {"line 2: fetus: the cell is empty; number the fetuses from 0"}},
        Fault{"fetus0",
              with("fetus_number", "0"),
              {"line 2: fetus_number: \"0\" is no whole number from 1 to 5"}},
        Fault{"fetus6",
              with("fetus_number", "6"),
              {"line 2: fetus_number: \"6\" is no whole number from 1 to 5"}},
        // Twins that count from 1 must not become the second and a third.
        Fault{"countedFrom1",
              "exam_date,fetus,bpd_mm\n2026-11-13,1,60\n2026-11-13,2,61\n2026-11-27,0,62\n",
              {"line 2: fetus counts from 0, and no row of this examination has 0"}},
        // The row of fetus 0 is there, though it does not fit.
        Fault{"firstFetusDoesNotFit",
              "exam_date,fetus,bpd_mm\n2026-11-13,0,x\n2026-11-13,1,60\n",
              {"line 2: bpd_mm: \"x\" is no number"}},
        Fault{"gravida", with("gravida", "-1"), {"line 2: gravida: \"-1\" is no whole number from 0 on"}},
        Fault{"noFetuses",
              with("number_of_fetuses", "0"),
              {"line 2: number_of_fetuses: \"0\" is no whole number from 1 to 5"}},
        Fault{"sixFetuses", with("number_of_fetuses", "6"), {"line 2: number_of_fetuses: \"6\""}},
        Fault{"twoEdds",
              kHeader + "A,2026-11-13,0,60,,,,2027-03-04\nA,2026-11-13,1,60,,,,2027-03-05\n",
              {"line 3: edd: line 2 says something else of the same examination; make them agree"}},
        Fault{
            "idInSomeRows",
            kHeader + "A,2026-11-13,0,60,,,,\n,2026-11-27,0,60,,,,\n",
            {"line 3: reference_id: the cell is empty, that of line 2 is not; write the ID into every row"}},
        Fault{"noIdInSomeRows",
              kHeader + ",2026-11-13,0,60,,,,\nA,2026-11-27,0,60,,,,\n",
              {"line 3: reference_id: the cell of line 2 is empty, this one is not; write the ID into every "
               "row"}},
        Fault{"severalFilesWithoutIds",
              "file,exam_date,bpd_mm\n0,2026-11-13,60\n1,2026-11-27,60\n",
              {"line 3: the row is of another file than that of line 2, and no reference_id"}},
        Fault{"notUtf8",
              with("reference_id", "M\xDCLLER"),
              {"line 2: reference_id: the text is no UTF-8; save"}},
        Fault{"tooFewAndManyCells",
              "exam_date,bpd_mm\n2026-11-13\n2026-11-13,60,\n2026-11-13,60\n",
              {"line 2: the header has 2 cells, this row 1", "line 3: the header has 2 cells, this row 3"}},
        Fault{
            "openQuote",
            "exam_date,bpd_mm\n2026-11-13,x\n2026-11-14,\"60\n",
            {"line 2: bpd_mm: \"x\" is no number", "line 3: a quotation mark that opens here never closes"}},
        Fault{"behindAQuote",
              "exam_date,bpd_mm\n2026-11-13,\"60\"mm\n",
              {"line 2: text stands behind a closing quotation mark"}},
        Fault{"linesWithinCells",
              "exam_date,bpd_mm,x\n2026-11-13,60,\"\n\n\"\n2026-11-14,x,\n",
              {"line 5: bpd_mm: \"x\" is no number"}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ATable, isNotNamedRowByRowForEver) {
  std::string table = "exam_date,bpd_mm\n";
  for (int i = 0; i < 1002; ++i) table += "x\n";
  const auto faults = faultsOf(table);
  ASSERT_THAT(faults, SizeIs(1001));
  EXPECT_THAT(faults[999], StartsWith("line 1001: "));
  EXPECT_EQ(faults[1000], "what stands behind line 1001 was not looked at");
}

TEST(ATable, takesLengthsUpToTheBoundsOfADocument) {
  // The nearest single-precision number counts, as a document's file holds no other.
  const auto all = taken("exam_date,bpd_mm,hc_mm,ac_mm,fl_mm\n2026-11-13,200,500,600.0000001,200\n");
  ASSERT_THAT(all, SizeIs(1));
  EXPECT_THAT(lengthsOf(all[0].fetuses.at(0)), ElementsAre(200, 500, 600.0000001, 200));
}

struct BadHeader {
  const char* name;
  const char* table;
  const char* sentence;
};
void PrintTo(const BadHeader& header, std::ostream* out) { *out << header.name; }
class AHeaderThatDoesNotFit : public testing::TestWithParam<BadHeader> {};

TEST_P(AHeaderThatDoesNotFit, isOneSentence) {
  const auto found = findingsInTable(GetParam().table).value();
  ASSERT_EQ(found.index(), 1U);
  EXPECT_THAT(inEnglish(std::get<1>(found)), ElementsAre(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    table, AHeaderThatDoesNotFit,
    testing::Values(
        BadHeader{"twice", "exam_date,bpd_mm,bpd_mm\n", "the column bpd_mm stands twice in the header"},
        BadHeader{"underBothNames", "exam_date,bpd_mm,bpd\n", "the columns bpd_mm and bpd are one"},
        BadHeader{"twoDays", "exam_date,date,bpd\n", "the columns exam_date and date are one"},
        BadHeader{"bothCounts", "exam_date,fetus,fetus_number,bpd\n",
                  "the columns fetus, which counts from 0, and fetus_number, from 1, cannot both "
                  "stand in the header"},
        BadHeader{"noRows", "exam_date,bpd_mm\r\n", "is a table without an examination"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(WhatIsSaidOfATable, isInTheLanguageOfTheReader) {
  const auto found = findingsInTable("exam_date,bpd_mm,gravida\nx,60,-1\n2026-11-13,60\n").value();
  std::vector<std::string> said;
  for (const auto& each : std::get<1>(found)) said.push_back(foundation::said(each, MarkedLocalizer()));
  EXPECT_THAT(
      said,
      ElementsAre(
          R"([Findings:line 2: [Findings:exam_date: [Findings:"x" is no day; write it like 2026-11-13]]; )"
          R"([Findings:gravida: [Findings:"-1" is no whole number from 0 on]]])",
          "[Findings:line 3: [Reading:the header has 3 cells, this row 2]]",
          "[Findings:nothing of this table is taken until every row of it fits]"));
}

TEST(ATable, isKnownByItsHeader) {
  for (const char* header :
       {"exam_date,bpd_mm", "date,fl\n", "\xEF\xBB\xBF\n\r\n\"x\",\"hc\",\"exam_date\"\r\n"})
    EXPECT_TRUE(findingsInTable(header)) << header;
  for (const char* other :
       {"", "\n", "exam_date\n2026-11-13\n", "bpd_mm,ga\n", "exam_date;bpd_mm\n", "EXAM_DATE,BPD\n",
        "exam_date,ga_weeks\n", "x\nexam_date,bpd_mm\n", "exam_date,bpd_mm,\"x\"y\n", "\"exam_date"})
    EXPECT_FALSE(findingsInTable(other)) << other;
}

TEST(SeveralPatients, areNamed) {
  using exchange::severalPatientsFault;
  const auto one = taken(kHeader + "A,2026-11-13,0,60,,,,\n A,2026-11-27,0,60,,,,\n");
  EXPECT_EQ(severalPatientsFault(one), std::nullopt);
  const auto two = taken(kHeader + "B,2026-11-13,0,60,,,,\nA,2026-11-27,0,60,,,,\n");
  EXPECT_THAT(inEnglish(severalPatientsFault(two)), HasSubstr("(\"A\", \"B\")"));
  std::string many = kHeader;
  for (char id = 'A'; id <= 'H'; ++id) many += std::string(1, id) + ",2026-11-13,0,60,,,,\n";
  EXPECT_THAT(inEnglish(severalPatientsFault(taken(many))), HasSubstr("\"D\", \"E\", 3 more)"));
}

}  // namespace
}  // namespace nascor::tests
