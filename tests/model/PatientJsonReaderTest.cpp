// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/PatientJsonReader.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "support/FixedOffsetCalendar.h"

namespace nascor::tests {
namespace {

using foundation::Date;
using model::JsonDocumentError;
using model::patientFromJson;
using testing::ElementsAre;
using testing::IsEmpty;

const FixedOffsetCalendar kNewYorkInWinter(-5.0 * 3600.0);

std::unique_ptr<model::PatientRecord> read(const std::string& text) {
  auto result = patientFromJson(text, kNewYorkInWinter);
  EXPECT_THAT(result.warnings, IsEmpty()) << text;
  return std::move(result.patient);
}

std::string errorOf(const std::string& text) {
  try {
    patientFromJson(text, kNewYorkInWinter);
  } catch (const JsonDocumentError& error) {
    return error.what();
  }
  return "(accepted)";
}

TEST(PatientJsonReader, takesDefaultsForWhatIsMissing) {
  const auto patient = read("{}");
  EXPECT_EQ(patient->maternalIDString(), "");
  EXPECT_EQ(patient->edd(), std::nullopt);
  EXPECT_EQ(patient->standard(), 0);
  EXPECT_EQ(patient->fetalWeightStandard(), 0);
  EXPECT_EQ(patient->numberOfFetuses(), 1);
  EXPECT_EQ(patient->extrapolatedGestation(), 40.0);
  EXPECT_EQ(patient->crlStandard(), 0);
  EXPECT_EQ(patient->gravida(), 0);
  EXPECT_THAT(patient->ncRecordsArray(), IsEmpty());

  const auto withExamination = read(R"({"examinations":[{}, {"measurements":[{}]}]})");
  ASSERT_EQ(withExamination->ncRecordsArray().size(), 2U);
  const auto& examination = *withExamination->ncRecordsArray()[0];
  EXPECT_EQ(examination.note(), "");
  EXPECT_EQ(examination.examDate(), std::nullopt);
  EXPECT_THAT(examination.measurements(), IsEmpty());
  const auto& fetus = withExamination->ncRecordsArray()[1]->measurementsForFetus(0);
  EXPECT_EQ(fetus.bpd(), 0.0);
  EXPECT_EQ(fetus.fl(), 0.0);
}

TEST(PatientJsonReader, readsEveryField) {
  const auto patient =
      read(R"({"gravida": 9, "crlStandard": 8, "extrapolatedGestation": 38.5, "numberOfFetuses": 7,
    "fetalWeightStandard": -6, "standard": 5, "edd": 1.5, "maternalIDString": "Gr\u00f6\u00dfe \ud83d\ude00",
    "examinations": [{"measurements": [{"fl": 4, "ac": 3, "hc": 2, "bpd": 1}, {"bpd": 5}], "examDate": -2, "note": "n"}]})");
  EXPECT_EQ(patient->maternalIDString(), "Größe \xF0\x9F\x98\x80");
  EXPECT_EQ(patient->edd(), Date{1.5});
  EXPECT_EQ(patient->standard(), 5);
  EXPECT_EQ(patient->fetalWeightStandard(), -6);
  EXPECT_EQ(patient->numberOfFetuses(), 7);
  EXPECT_EQ(patient->extrapolatedGestation(), 38.5);
  EXPECT_EQ(patient->crlStandard(), 8);
  EXPECT_EQ(patient->gravida(), 9);
  ASSERT_EQ(patient->ncRecordsArray().size(), 1U);
  const auto& examination = *patient->ncRecordsArray()[0];
  EXPECT_EQ(examination.note(), "n");
  EXPECT_EQ(examination.examDate(), Date{-2.0});
  ASSERT_EQ(examination.measurements().size(), 2U);
  EXPECT_EQ(examination.measurements()[0].bpd(), 1.0);
  EXPECT_EQ(examination.measurements()[0].hc(), 2.0);
  EXPECT_EQ(examination.measurements()[0].ac(), 3.0);
  EXPECT_EQ(examination.measurements()[0].fl(), 4.0);
  EXPECT_EQ(examination.measurements()[1].bpd(), 5.0);
}

TEST(PatientJsonReader, keepsTextsThatAreMissingApartFromEmptyOnes) {
  const auto patient = read(R"({"maternalIDString":null,"examinations":[{"note":null}]})");
  EXPECT_EQ(patient->maternalIDString(), std::nullopt);
  EXPECT_EQ(patient->ncRecordsArray()[0]->note(), std::nullopt);
}

struct DateCase {
  const char* name;
  const char* json;
  std::optional<double> seconds;
};
class DateInJson : public testing::TestWithParam<DateCase> {};

TEST_P(DateInJson, isNumberTextOrNull) {
  const std::string members = GetParam().json;
  const auto seconds = [](const std::optional<Date>& date) {
    return date ? std::optional(date->secondsSince2001) : std::nullopt;
  };
  EXPECT_EQ(seconds(read("{" + members + "}")->edd()), GetParam().seconds);
  std::string ofExamination = members;
  for (std::size_t at = 0; (at = ofExamination.find("\"edd", at)) != std::string::npos; at += 9) {
    ofExamination.replace(at, 4, "\"examDate");
  }
  EXPECT_EQ(seconds(read(R"({"examinations":[{)" + ofExamination + "}]}")->ncRecordsArray()[0]->examDate()),
            GetParam().seconds);
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
INSTANTIATE_TEST_SUITE_P(
    table, DateInJson,
    testing::Values(
        DateCase{"null", R"("edd":null)", {}}, DateCase{"integer", R"("edd":829008000)", 829008000.0},
        DateCase{"fraction", R"("edd":700000000.123456)", 700000000.123456},
        DateCase{"huge", R"("edd":1e300)", 1e300}, DateCase{"infinite", R"("edd":"-inf")", -kInfinity},
        DateCase{"day", R"("edd":"2027-04-10")", 829008000.0 + 5 * 3600},
        DateCase{"localTime", R"("edd":"2027-04-10T09:30:15.5")", 829008000.0 + 5 * 3600 + 34215.5},
        DateCase{"utc", R"("edd":"2027-04-10T00:00:00Z")", 829008000.0},
        DateCase{"offset", R"("edd":"2027-04-10 00:00+02:00")", 829008000.0 - 7200},
        DateCase{"isoBeside", R"("edd":5,"eddISO":"2027-04-10T00:00:00")", 5.0},
        DateCase{"isoBefore", R"("eddISO":"2027-04-10","edd":5)", 5.0},
        DateCase{"isoBesideNull", R"("eddISO":"2027-04-10","edd":null)", {}},
        DateCase{"anythingBeside", R"("edd":5,"eddISO":"last Tuesday")", 5.0},
        DateCase{"isoAlone", R"("eddISO":"2027-04-10T00:00:00")", 829008000.0 + 5 * 3600},
        DateCase{"isoAloneNull", R"("eddISO":null)", {}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PatientJsonReader, doesNotCarryADateOverToTheNextExamination) {
  const auto patient = read(R"({"examinations":[{"examDateISO":"2027-04-10"},{},{"examDateISO":null}]})");
  EXPECT_TRUE(patient->ncRecordsArray()[0]->examDate());
  EXPECT_FALSE(patient->ncRecordsArray()[1]->examDate());
  EXPECT_FALSE(patient->ncRecordsArray()[2]->examDate());
}

struct NumberCase {
  const char* json;
  double value;
};

TEST(PatientJsonReader, readsNumbersToTheLastBit) {
  for (const auto& [json, value] : {NumberCase{"25.3", 25.3},
                                    {"0.1", 0.1},
                                    {"5e-324", 5e-324},
                                    {"-0", -0.0},
                                    {"-0.0", -0.0},
                                    {"0", 0.0},
                                    {"1E2", 100.0},
                                    {"123456789012345680000", 123456789012345680000.0},
                                    {"\"inf\"", kInfinity},
                                    {"\"-inf\"", -kInfinity},
                                    {"18446744073709551615", 18446744073709551615.0},
                                    {"-9223372036854775808", -0x1p63}}) {
    const auto patient = read(R"({"extrapolatedGestation":)" + std::string(json) + "}");
    EXPECT_EQ(patient->extrapolatedGestation(), value) << json;
    EXPECT_EQ(std::signbit(patient->extrapolatedGestation()), std::signbit(value)) << json;
  }
  const auto patient = read(R"({"extrapolatedGestation":"nan"})");
  EXPECT_TRUE(std::isnan(patient->extrapolatedGestation()));
}

TEST(PatientJsonReader, takesWholeNumbersHoweverTheyAreWritten) {
  for (const char* json : {"2", "2.0", "2e0", "20e-1"}) {
    EXPECT_EQ(read(R"({"gravida":)" + std::string(json) + "}")->gravida(), 2) << json;
  }
  EXPECT_EQ(read(R"({"gravida":-0})")->gravida(), 0);
}

TEST(PatientJsonReader, warnsOfWhatAFileCannotHold) {
  const auto result = patientFromJson(
      R"({"gravida":4294967301,"numberOfFetuses":-2147483649,"standard":-2147483648,"extrapolatedGestation":1e39,
          "examinations":[{"measurements":[{"bpd":-1e300,"hc":"inf","ac":3.4e38}]}]})",
      kNewYorkInWinter);
  std::vector<std::string> warnings;
  for (const foundation::Sentence& warning : result.warnings) warnings.push_back(english(warning));
  EXPECT_THAT(
      warnings,
      ElementsAre("at /gravida: 4294967301 is longer than 32 bits; the file holds the low 32, which are 5",
                  "at /numberOfFetuses: -2147483649 is longer than 32 bits; the file holds the low 32, which "
                  "are 2147483647",
                  "at /extrapolatedGestation: 1e+39 is beyond single precision; the file holds inf",
                  "at /examinations/0/measurements/0/bpd: -1e+300 is beyond single precision; the file holds "
                  "-inf"));
  EXPECT_EQ(result.patient->gravida(), 4294967301);
}

struct RefusedCase {
  const char* name;
  std::string json;
  const char* sentence;
};
class Refused : public testing::TestWithParam<RefusedCase> {};

TEST_P(Refused, withItsPlaceAndWhatWasExpected) { EXPECT_EQ(errorOf(GetParam().json), GetParam().sentence); }

std::string in(const std::string& fetus) {
  return R"({"examinations":[{},{"measurements":[{},)" + fetus + "]}]}";
}

INSTANTIATE_TEST_SUITE_P(
    wrongContents, Refused,
    testing::Values(
        RefusedCase{"list", "[]", "at the top: expected an object, but a list stands here"},
        RefusedCase{"number", "5", "at the top: expected an object, but 5 stands here"},
        RefusedCase{"null", "null", "at the top: expected an object, but null stands here"},
        RefusedCase{"unknownKey", R"({"age":5})",
                    "at the top: expected one of the keys maternalIDString, edd, eddISO, standard, "
                    "fetalWeightStandard, "
                    "numberOfFetuses, extrapolatedGestation, crlStandard, gravida, examinations, but \"age\" "
                    "stands here"},
        RefusedCase{"keyInCapitals", in(R"({"BPD":5})"),
                    "at /examinations/1/measurements/1: expected one of the keys bpd, hc, ac, fl, but "
                    "\"BPD\" stands here"},
        RefusedCase{"fieldOfThePatientInAnExamination", R"({"examinations":[{"edd":5}]})",
                    "at /examinations/0: expected one of the keys note, examDate, examDateISO, measurements, "
                    "but \"edd\" "
                    "stands here"},
        RefusedCase{"keyTwice", R"({"gravida":1,"gravida":1})",
                    "at /gravida: expected each key once, but this one stands twice"},
        RefusedCase{"keyTwiceAroundAList", R"({"examinations":[{"note":""}],"examinations":[]})",
                    "at /examinations: expected each key once, but this one stands twice"},
        RefusedCase{
            "keyTwiceInAFetus", in(R"({"bpd":1,"hc":1,"bpd":1})"),
            "at /examinations/1/measurements/1/bpd: expected each key once, but this one stands twice"},
        RefusedCase{"textForALength", in(R"({"bpd":"45"})"),
                    "at /examinations/1/measurements/1/bpd: expected a number, \"nan\", \"inf\" or \"-inf\", "
                    "but the text "
                    "\"45\" stands here"},
        RefusedCase{"capitalsForALength", in(R"({"bpd":"NaN"})"),
                    "at /examinations/1/measurements/1/bpd: expected a number, \"nan\", \"inf\" or \"-inf\", "
                    "but the text "
                    "\"NaN\" stands here"},
        RefusedCase{"nullForALength", in(R"({"fl":null})"),
                    "at /examinations/1/measurements/1/fl: expected a number, \"nan\", \"inf\" or \"-inf\", "
                    "but null stands "
                    "here"},
        RefusedCase{"truthForALength", in(R"({"fl":true})"),
                    "at /examinations/1/measurements/1/fl: expected a number, \"nan\", \"inf\" or \"-inf\", "
                    "but true stands "
                    "here"},
        RefusedCase{"numberForAFetus", in("5"),
                    "at /examinations/1/measurements/1: expected an object, but 5 stands here"},
        RefusedCase{"listForAnExamination", R"({"examinations":[[]]})",
                    "at /examinations/0: expected an object, but a list stands here"},
        RefusedCase{"objectForTheExaminations", R"({"examinations":{}})",
                    "at /examinations: expected a list, but an object stands here"},
        RefusedCase{"nullForTheExaminations", R"({"examinations":null})",
                    "at /examinations: expected a list, but null stands here"},
        RefusedCase{"nullForTheMeasurements", R"({"examinations":[{"measurements":null}]})",
                    "at /examinations/0/measurements: expected a list, but null stands here"},
        RefusedCase{"numberForAText", R"({"maternalIDString":5})",
                    "at /maternalIDString: expected a text or null, but 5 stands here"},
        RefusedCase{"objectForAText", R"({"examinations":[{"note":{}}]})",
                    "at /examinations/0/note: expected a text or null, but an object stands here"},
        RefusedCase{"fractionForAWholeNumber", R"({"gravida":2.5})",
                    "at /gravida: expected a whole number, but 2.5 stands here"},
        RefusedCase{"textForAWholeNumber", R"({"gravida":"2"})",
                    "at /gravida: expected a whole number, but the text \"2\" stands here"},
        RefusedCase{"infiniteWholeNumber", R"({"gravida":"inf"})",
                    "at /gravida: expected a whole number, but the text \"inf\" stands here"},
        RefusedCase{"nullForAWholeNumber", R"({"gravida":null})",
                    "at /gravida: expected a whole number, but null stands here"},
        RefusedCase{
            "beyond64Bits", R"({"gravida":9223372036854775808})",
            "at /gravida: expected a whole number of at most 64 bits, but 9223372036854775808 stands here"},
        RefusedCase{
            "farBeyond64Bits", R"({"gravida":100000000000000000000})",
            "at /gravida: expected a whole number of at most 64 bits, but 100000000000000000000 stands here"},
        RefusedCase{
            "negativeBeyond64Bits", R"({"gravida":-9223372036854775809})",
            "at /gravida: expected a whole number of at most 64 bits, but -9223372036854775809 stands here"},
        RefusedCase{"noDate", R"({"edd":"10.4.2027"})",
                    "at /edd: expected a date (seconds since 2001-01-01 UTC, an ISO text) or null, but the "
                    "text \"10.4.2027\" "
                    "stands here"},
        RefusedCase{"dayThatIsNone", R"({"examinations":[{"examDate":"2027-02-29"}]})",
                    "at /examinations/0/examDate: expected a date (seconds since 2001-01-01 UTC, an ISO "
                    "text) or null, but "
                    "the text \"2027-02-29\" stands here"},
        RefusedCase{"emptyDate", R"({"edd":""})",
                    "at /edd: expected a date (seconds since 2001-01-01 UTC, an ISO text) or null, but the "
                    "text \"\" stands here"},
        RefusedCase{"truthForADate", R"({"edd":false})",
                    "at /edd: expected a date (seconds since 2001-01-01 UTC, an ISO text) or null, but false "
                    "stands here"},
        RefusedCase{"isoAloneThatIsNoDate", R"({"examinations":[{"examDateISO":"soon"}]})",
                    "at /examinations/0/examDateISO: expected an ISO date or null, but the text \"soon\" "
                    "stands here"},
        RefusedCase{"isoOfTheEddAloneThatIsNoDate", R"({"eddISO":"soon"})",
                    "at /eddISO: expected an ISO date or null, but the text \"soon\" stands here"},
        RefusedCase{"isoThatIsANumber", R"({"edd":5,"eddISO":5})",
                    "at /eddISO: expected an ISO date or null, but 5 stands here"},
        RefusedCase{"longText", R"({"gravida":")" + std::string(100000, 'x') + "\"}",
                    "at /gravida: expected a whole number, but the text "
                    "\"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...\" stands "
                    "here"},
        RefusedCase{"lineEndInAKey", R"({"a\nb\u001b":5})",
                    "at the top: expected one of the keys maternalIDString, edd, eddISO, standard, "
                    "fetalWeightStandard, "
                    "numberOfFetuses, extrapolatedGestation, crlStandard, gravida, examinations, but "
                    "\"a\\nb\\u001b\" stands "
                    "here"}),
    [](const auto& row) { return std::string(row.param.name); });

struct BrokenCase {
  const char* name;
  std::string json;
  const char* start;
};
class BrokenJson : public testing::TestWithParam<BrokenCase> {};

TEST_P(BrokenJson, isRefusedWithLineAndColumn) {
  const std::string error = errorOf(GetParam().json);
  EXPECT_THAT(error, testing::StartsWith(std::string("at ") + GetParam().start));
  EXPECT_LT(error.size(), 200U);
}

INSTANTIATE_TEST_SUITE_P(
    table, BrokenJson,
    testing::Values(
        BrokenCase{"empty", "", "line 1, column 1: expected JSON, but unexpected end of input"},
        BrokenCase{"blank", " \n ", "line 2, column 2: expected JSON, but unexpected end of input"},
        BrokenCase{"cut", "{\"gravida\":1", "line 1, column 13: expected JSON, but unexpected end of input"},
        BrokenCase{"garbageBehind", "{}\n{}", "line 2, column 1: expected JSON, but unexpected '{'"},
        BrokenCase{"zeroBehind", std::string("{}\0garbage", 10),
                   "line 1, column 3: expected JSON, but a zero byte"},
        BrokenCase{"zeroWithin", std::string("{\"note\":\"\0\"}", 12),
                   "line 1, column 10: expected JSON, but a zero byte"},
        BrokenCase{"comment", "{} // done", "line 1, column 4: expected JSON, but invalid literal"},
        BrokenCase{"commaAtTheEnd", "{\"gravida\":1,}",
                   "line 1, column 14: expected JSON, but unexpected '}'"},
        BrokenCase{"singleQuotes", "{'gravida':1}", "line 1, column 2: expected JSON, but invalid literal"},
        BrokenCase{"hexadecimal", "{\"gravida\":0x10}",
                   "line 1, column 13: expected JSON, but invalid literal"},
        BrokenCase{"bareNaN", "{\"extrapolatedGestation\":NaN}",
                   "line 1, column 26: expected JSON, but invalid literal"},
        BrokenCase{"overflow", "{\"edd\":1e400}",
                   "line 1, column 12: expected JSON, but this number is beyond 64 bits"},
        BrokenCase{"notUtf8", "{\"maternalIDString\":\"\xFF\"}",
                   "line 1, column 22: expected JSON, but invalid string: ill"},
        BrokenCase{"overlong", "{\"maternalIDString\":\"\xC0\x80\"}",
                   "line 1, column 22: expected JSON, but invalid string"},
        BrokenCase{"surrogate", "{\"maternalIDString\":\"\\ud800\"}",
                   "line 1, column 28: expected JSON, but invalid string"},
        BrokenCase{"tabInText", "{\"maternalIDString\":\"a\tb\"}",
                   "line 1, column 23: expected JSON, but invalid string"},
        BrokenCase{"utf16", std::string("\xFF\xFE{\0", 4),
                   "line 1, column 4: expected JSON, but a zero byte"},
        BrokenCase{"columnsAreCharacters", "{\"maternalIDString\":\"Größe\" x}",
                   "line 1, column 29: expected JSON, but invalid literal"},
        BrokenCase{"textThatLooksLikeAReason", "\"; expected " + std::string(100000, 'x'),
                   "line 1, column 100013: expected JSON, but invalid string: missing closing quote"},
        BrokenCase{"overflowInAText", "\"number overflow",
                   "line 1, column 17: expected JSON, but invalid string"},
        BrokenCase{"longGarbage", "{\"maternalIDString\":\"" + std::string(1000000, 'x'),
                   "line 1, column 1000022: expected JSON, but invalid string: missing closing quote"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PatientJsonReader, survivesDeepNesting) {
  constexpr std::size_t kDeep = 100000;
  EXPECT_EQ(errorOf(std::string(kDeep, '[')), "at the top: expected an object, but a list stands here");
  EXPECT_EQ(errorOf(R"({"gravida":)" + std::string(kDeep, '[')),
            "at /gravida: expected a whole number, but a list stands here");
  std::string nested;
  for (std::size_t i = 0; i < kDeep; ++i) nested += R"({"examinations":[)";
  EXPECT_THAT(errorOf(nested), testing::StartsWith("at /examinations/0: expected one of the keys note, "));
}

TEST(PatientJsonReader, takesAByteOrderMarkAndBlanks) {
  EXPECT_EQ(read("\xEF\xBB\xBF \r\n\t{ \"gravida\" : 2 } \n")->gravida(), 2);
}

}  // namespace
}  // namespace nascor::tests
