// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "Process.h"
#include "model/PatientValues.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string jsonOf(const std::string& bytes) {
  const Outcome outcome = run({"json", "-"}, bytes);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  return outcome.out;
}

/// How `json` writes the local time of a date, with its quotation marks.
std::string localTextOf(const std::string& seconds) {
  const std::string json = jsonOf(document("{\"edd\":" + seconds + "}"));
  const std::size_t from = json.find("\"eddISO\":") + 9;
  return json.substr(from, json.find(",\"standard\"") - from);
}

TEST(MakeAndJson, giveEveryFieldBackInSinglePrecision) {
  EXPECT_EQ(
      jsonOf(document(
          R"({"maternalIDString":"AB \"1\" Größe\n","edd":829008000.25,"standard":1,"fetalWeightStandard":2,
              "numberOfFetuses":3,"extrapolatedGestation":39.57142857142857,"crlStandard":-4,"gravida":2147483647,
              "examinations":[{"note":"n\u0000m","examDate":-1e300,"measurements":
                [{"bpd":25.3,"hc":0.1,"ac":"nan","fl":"-inf"},{"bpd":-0.0,"hc":1e-60,"ac":3e38,"fl":16777217}]},
                {"note":null,"examDate":"nan","measurements":[]}]})")),
      R"({"maternalIDString":"AB \"1\" Größe\n","edd":829008000.25,"eddISO":)" + localTextOf("829008000.25") +
          R"(,"standard":1,"fetalWeightStandard":2,"numberOfFetuses":3,"extrapolatedGestation":39.57143020629883,)"
          R"("crlStandard":-4,"gravida":2147483647,"examinations":[{"note":"n\u0000m","examDate":-1e+300,)"
          R"("examDateISO":null,"measurements":[{"bpd":25.299999237060547,"hc":0.10000000149011612,"ac":"nan","fl":"-inf"},)"
          R"({"bpd":0,"hc":0,"ac":3.0000000054977558e+38,"fl":16777216}]},)"
          R"({"note":null,"examDate":"nan","examDateISO":null,"measurements":[]}]})"
          "\n");
}

TEST(MakeAndJson, areAFixedPoint) {
  const std::string first = document(R"({"maternalIDString":"A","edd":1.5,"numberOfFetuses":2,"gravida":-7,
      "examinations":[{"examDate":0.1,"measurements":[{"bpd":25.3},{"fl":"inf"}]},{"note":null}]})");
  const std::string json = jsonOf(first);
  EXPECT_EQ(document(json), first);
  EXPECT_EQ(jsonOf(document(json)), json);
}

TEST(MakeAndJson, readADayAsLocalMidnight) {
  struct Zone {
    const char* name;
    const char* midnight;  ///< of 2027-04-10, in seconds since 2001-01-01 UTC
  };
  for (const auto& [zone, midnight] : {Zone{"UTC", "829008000"},
                                       {"America/New_York", "829022400"},
                                       {"Europe/Paris", "829000800"},
                                       {"Australia/Sydney", "828972000"}}) {
    const Outcome made =
        run(Call{.arguments = {"make", "-"}, .input = R"({"edd":"2027-04-10"})", .zone = zone});
    const Outcome back = run(Call{.arguments = {"json", "-"}, .input = made.out, .zone = zone});
    EXPECT_THAT(back.out,
                HasSubstr("\"edd\":" + std::string(midnight) + ",\"eddISO\":\"2027-04-10T00:00:00\""))
        << zone;
  }
}

TEST(MakeAndJson, takeTheDateTextAloneWhenTheNumberIsGone) {
  const std::string json = jsonOf(document(R"({"edd":"2027-04-10T12:30:00"})"));
  const std::size_t from = json.find("\"edd\":");
  std::string withoutNumber = json;
  withoutNumber.erase(from, json.find("\"eddISO\"") - from);
  EXPECT_EQ(document(withoutNumber), document(json));
}

TEST(Make, warnsOfWhatDoesNotFitAndWritesTheRest) {
  const Outcome outcome = run({"make", "-"}, R"({"gravida":4294967301})");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err,
            "standard input: at /gravida: 4294967301 is longer than 32 bits; the file holds the low 32, "
            "which are 5\n");
  EXPECT_THAT(jsonOf(outcome.out), HasSubstr("\"gravida\":5,"));
}

TEST(Make, writesNothingForABadInput) {
  const ScratchFolder folder;
  const std::string input =
      folder.write("bad.json", R"({"examinations":[{},{"measurements":[{"bpd":"wide"}]}]})");
  const std::string target = folder.write("old.nascor", "old");
  const Outcome toOutput = run({"make", input});
  EXPECT_EQ(toOutput.status, 1);
  EXPECT_EQ(toOutput.out, "");
  EXPECT_EQ(toOutput.err,
            input +
                ": at /examinations/1/measurements/0/bpd: expected a number, \"nan\", \"inf\" or \"-inf\", "
                "but the text \"wide\" stands here\n");
  EXPECT_EQ(run({"make", input, "--out", target}).status, 1);
  EXPECT_EQ(contentsOfFile(target), "old");
  EXPECT_EQ(run({"make", input, "--out", folder.path("new.nascor")}).status, 1);
  EXPECT_FALSE(std::filesystem::exists(folder.path("new.nascor")));
  EXPECT_EQ(run({"make", folder.path("none.json")}).err,
            folder.path("none.json") + ": No such file or directory\n");
}

TEST(Make, replacesAFileAsAWhole) {
  const ScratchFolder folder;
  const std::string input = folder.write("a.json", R"({"gravida":3})");
  const std::string target = folder.path("a.nascor");
  const Outcome outcome = run({"make", input, "--out", target});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(contentsOfFile(target), document(R"({"gravida":3})"));

  const Outcome intoNothing = run({"make", input, "--out", folder.path("none/a.nascor")});
  EXPECT_EQ(intoNothing.status, 1);
  EXPECT_EQ(intoNothing.err, folder.path("none/a.nascor") + ": No such file or directory\n");
  const Outcome ontoAFolder = run({"make", input, "--out", folder.path("")});
  EXPECT_EQ(ontoAFolder.status, 1);
  EXPECT_EQ(ontoAFolder.err, folder.path("") + ": Is a directory\n");
}

TEST(Json, printsOneObjectALineForSeveralFiles) {
  const ScratchFolder folder;
  const std::string a = folder.write("a.nascor", document(R"({"gravida":1})"));
  const std::string b = folder.write("b.nascor", document(R"({"gravida":2})"));
  const auto lines = linesOf(run({"json", a, b, a}).out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_THAT(lines[0], HasSubstr("\"gravida\":1,"));
  EXPECT_THAT(lines[1], HasSubstr("\"gravida\":2,"));
  EXPECT_EQ(lines[0], lines[2]);
}

TEST(Dump, showsTheTreeOfAnyStream) {
  const Outcome asJson =
      run({"dump", "-", "--json"}, std::string("\x04\x0Bstreamtyped\x81\xE8\x03\x84\x01i\x05\x84\x01"
                                               "f\x07",
                                               24));
  EXPECT_EQ(asJson.status, 0) << asJson.err;
  EXPECT_EQ(asJson.out,
            "{\"byte_order\":\"little\",\"system_version\":1000,\"groups\":[{\"types\":\"i\",\"values\":[5]},"
            "{\"types\":\"f\",\"values\":[7]}]}\n");
  const Outcome text = run({"dump", "-"}, document(R"({"maternalIDString":"AB-123"})"));
  EXPECT_EQ(text.status, 0);
  EXPECT_THAT(text.out, StartsWith("typed stream, little-endian, system version 1000\n"));
  EXPECT_THAT(text.out, HasSubstr("PatientRecord (class 1, version 7) < NSObject (class 2, version 0)\n"));
  EXPECT_THAT(text.out, HasSubstr("\"AB-123\"\n"));
}

TEST(EveryValueOfThePatient, isNamedWhereItsJsonIsDescribed) {
  const std::string page = contentsOfFile(NASCOR_SAMPLES "/../../docs/json.md");
  for (const model::PatientValue& value : model::kPatientValues) {
    const std::string name(value.name);
    EXPECT_THAT(run({"json", "--help"}).out, HasSubstr(name));
    EXPECT_THAT(run({"make", "--help"}).out, HasSubstr(name));
    EXPECT_THAT(page, HasSubstr("| `" + name + "` |"));
  }
}

TEST(Dump, namesTheFilesWhenThereAreSeveral) {
  const ScratchFolder folder;
  const std::string file = folder.write("a.nascor", document("{}"));
  const std::string alone = run({"dump", file}).out;
  EXPECT_EQ(run({"dump", file, file}).out, file + ": " + alone + file + ": " + alone);
}

}  // namespace
}  // namespace nascor::tests
