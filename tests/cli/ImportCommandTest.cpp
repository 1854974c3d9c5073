// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <array>
#include <bit>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>

#include <nlohmann/json.hpp>

#include "Csv.h"
#include "Process.h"
#include "posix/PosixFileStore.h"

namespace nascor::tests {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Json = nlohmann::json;

std::string machineReport(const std::string& name) { return NASCOR_REPORTS "/" + name + ".dcm"; }

/// The objects that the command line prints, one a line.
std::vector<Json> objectsOf(const Outcome& outcome) {
  std::vector<Json> objects;
  for (const std::string& line : linesOf(outcome.out)) objects.push_back(Json::parse(line));
  return objects;
}

Json findingsOf(const std::string& name) {
  const Outcome outcome = run({"import", machineReport(name)});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  const auto objects = objectsOf(outcome);
  EXPECT_THAT(objects, SizeIs(1));
  return objects.empty() ? Json() : objects[0];
}

Json documentAt(const std::string& path) { return Json::parse(run({"json", path}).out); }

/// What was chosen for the lengths of a fetus: {"bpd":[60.9,"plain"]}.
Json chosenOf(const Json& fetus) {
  Json result = Json::object();
  const Json& kinds = fetus.at("chosen");
  for (const auto& [key, kind] : kinds.items()) result[key] = {fetus.at(key), kind};
  return result;
}

TEST(AMachineThatWritesMeans, isReadByThem) {
  const Json findings = findingsOf("means");
  EXPECT_EQ(findings["patientID"], "AB-123");
  EXPECT_EQ(findings["examDate"], "2026-11-13");
  EXPECT_EQ(findings["edd"], "2027-03-04");
  EXPECT_EQ(findings["eddFrom"], "edd");
  EXPECT_EQ(findings["gravida"], 2);
  EXPECT_EQ(findings["numberOfFetuses"], 2);
  const Json& fetuses = findings["fetuses"];
  ASSERT_EQ(fetuses.size(), 2U);
  EXPECT_EQ(fetuses[0]["id"], "1");
  EXPECT_EQ(
      chosenOf(fetuses[0]),
      Json::parse(R"({"bpd":[60.9,"mean"],"hc":[227.3,"mean"],"ac":[202.8,"mean"],"fl":[44.9,"mean"]})"));
  EXPECT_EQ(fetuses[1]["id"], "2");
  EXPECT_EQ(fetuses[1]["fl"], 42.5);
  EXPECT_EQ(fetuses[1]["crl"], nullptr);
  // Of each twin's BPD the single value, the extremes and the deviation.
  EXPECT_EQ(findings["notTaken"].size(), 8U);
}

TEST(AMachineThatCalculatesAnHc, isReadByTheMeasuredOne) {
  const Json findings = findingsOf("calculated");
  const Json& fetus = findings["fetuses"].at(0);
  EXPECT_EQ(fetus["id"], nullptr);
  EXPECT_EQ(
      chosenOf(fetus),
      Json::parse(R"({"bpd":[60.9,"plain"],"hc":[227.3,"plain"],"ac":[202.8,"plain"],"fl":[44.9,"plain"]})"));
  EXPECT_EQ(fetus["efw"], 900);
  EXPECT_EQ(findings["edd"], nullptr);
  EXPECT_EQ(findings["eddFrom"], nullptr);
  const std::string warnings = findings["warnings"].dump();
  EXPECT_THAT(warnings, AllOf(HasSubstr("private code"), HasSubstr("900 g")));
  const std::string notTaken = findings["notTaken"].dump();
  EXPECT_THAT(notTaken, AllOf(HasSubstr("2026-05-01"), HasSubstr("FL/AC"), HasSubstr("231.9")));
}

TEST(AMachineThatWritesSeveralGroups, isReadByTheFlaggedOneElseTheirMean) {
  const Json findings = findingsOf("groups");
  const Json& fetuses = findings["fetuses"];
  ASSERT_EQ(fetuses.size(), 2U);
  EXPECT_EQ(fetuses[0]["id"], "A");
  EXPECT_EQ(chosenOf(fetuses[0]),
            Json::parse(R"({"bpd":[60.9,"flagged"],"hc":[227.3,"mean"],"ac":[198.0,"estimated"]})"));
  EXPECT_EQ(fetuses[1]["id"], "B");
  EXPECT_EQ(fetuses[1]["bpd"], 58.3);  // of 58.1, which stands twice, and 58.5
  EXPECT_EQ(fetuses[1]["chosen"]["bpd"], "mean of several");
  EXPECT_EQ(findings["edd"], "2027-03-04");
  EXPECT_EQ(findings["eddFrom"], "lmp");
  EXPECT_EQ(findings["numberOfFetuses"], 2);
}

TEST(AMachineAtAFirstVisit, isReadWithItsCrownRumpLength) {
  const Json findings = findingsOf("early");
  EXPECT_EQ(findings["patientID"], "MÜLLER-1");
  EXPECT_EQ(chosenOf(findings["fetuses"].at(0)), Json::parse(R"({"crl":[45.2,"plain"]})"));
  EXPECT_THAT(findings["notTaken"].dump(), AllOf(HasSubstr("Größe der Höhle"), HasSubstr("no value")));
}

struct Oddity {
  const char* name;
  const char* says;  ///< stands in what is printed
};
class AnOddReport : public testing::TestWithParam<Oddity> {};

TEST_P(AnOddReport, isSaidToBeOdd) {
  EXPECT_THAT(run({"import", machineReport(GetParam().name)}).out, HasSubstr(GetParam().says));
}

INSTANTIATE_TEST_SUITE_P(
    sayingWhat, AnOddReport,
    testing::Values(Oddity{"inches", R"("bpd":null)"}, Oddity{"inches", R"("unit":"[in_i]")"},
                    Oddity{"old-ucum", R"("bpd":60.9)"}, Oddity{"not-numbers", R"("chosen":{})"},
                    Oddity{"not-numbers", R"("what":"fl","value":0)"}, Oddity{"three-values", R"("bpd":62)"},
                    Oddity{"exact", R"("bpd":290.8,"hc":227.3)"},
                    Oddity{"flagged-calculated", R"("chosen":{"bpd":"calculated","hc":"plain"})"},
                    Oddity{"mean-before-plain", R"("hc":228.1)"}, Oddity{"two-edds", R"("edd":"2027-03-04")"},
                    Oddity{"no-day", R"("examDate":null,"edd":null)"},
                    Oddity{"no-patient", R"("patientID":null)"},
                    Oddity{"mother-as-subject", R"("fetuses":[{"id":null)"}, Oddity{"wrong-weight", "1000 g"},
                    Oddity{"inferred", R"("bpd":null)"}, Oddity{"private", R"("fetuses":[])"},
                    Oddity{"other-section", "Fetal Cranium"}, Oddity{"wrong-count", "2 fetuses"},
                    Oddity{"utf8", "ŽÍ-1"}, Oddity{"iso-2022", "MÜ-1"}, Oddity{"iso-2022-escaped", "MÜ-1"},
                    Oddity{"not-ascii", "character set"},
                    Oddity{"no-study-date", R"("examDate":"2026-11-14")"}),
    [](const auto& row) {
      std::string name = row.param.name + std::to_string(row.index);
      std::erase(name, '-');
      return name;
    });

TEST(ABadReport, isASentenceAndTheOthersGoOn) {
  const ScratchFolder folder;
  const std::string text = folder.write("a.dcm", "no report at all");
  const Outcome outcome = run({"import", machineReport("basic-text"), text, machineReport("other-template"),
                               machineReport("plain"), machineReport("no-content"), folder.path("none.dcm")});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(linesOf(outcome.out), SizeIs(1));
  EXPECT_THAT(linesOf(outcome.err),
              ElementsAre(HasSubstr("neither Comprehensive nor Enhanced"),
                          testing::StartsWith(text + ": is no report that is read: no DICOM file"),
                          HasSubstr("Adult Echocardiography"), HasSubstr("content is missing"),
                          HasSubstr("No such file")));
}

TEST(APatientsName, isNeverPrinted) {
  const Outcome outcome = run({"import", machineReport("means")});
  EXPECT_EQ(outcome.out.find("Made"), std::string::npos);
  EXPECT_EQ(outcome.out.find("Up"), std::string::npos);
}

TEST(Import, needsNoDictionaryOfDcmtk) {
  const std::string usual = run({"import", machineReport("calculated")}).out;
  ASSERT_NE(usual, "");
  ASSERT_EQ(::setenv("DCMDICTPATH", "/nowhere/dicom.dic", 1), 0);
  const Outcome without = run({"import", machineReport("calculated")});
  ::unsetenv("DCMDICTPATH");
  EXPECT_EQ(without.out, usual);
  EXPECT_EQ(without.err, "");
}

TEST(Storing, makesANewDocumentAndNeverReplacesOne) {
  const ScratchFolder folder;
  const std::string path = folder.path("new.nascor");
  EXPECT_EQ(run({"import", machineReport("means"), "--out", path}).status, 0);
  const Json made = documentAt(path);
  EXPECT_EQ(made["maternalIDString"], "AB-123");
  EXPECT_EQ(made["eddISO"], "2027-03-04T00:00:00");
  EXPECT_EQ(made["numberOfFetuses"], 2);
  EXPECT_EQ(made["gravida"], 2);
  ASSERT_EQ(made["examinations"].size(), 1U);
  EXPECT_EQ(made["examinations"][0]["examDateISO"], "2026-11-13T00:00:00");
  EXPECT_EQ(made["examinations"][0]["measurements"][1]["bpd"], 58.3F);

  const std::string before = contentsOfFile(path);
  const Outcome again = run({"import", machineReport("means"), "--out", path});
  EXPECT_EQ(again.status, 1);
  EXPECT_THAT(again.out, HasSubstr("AB-123")) << "findings are printed all the same";
  EXPECT_EQ(contentsOfFile(path), before);
}

TEST(Storing, asksForTheTwinsByName) {
  const ScratchFolder folder;
  const std::string path = folder.path("new.nascor");
  const Outcome outcome = run({"import", machineReport("groups"), "--out", path});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("fetus \"A\""));
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_EQ(
      run({"import", machineReport("groups"), "--out", path, "--fetus", "A=2", "--fetus", "B=1"}).status, 0);
  EXPECT_EQ(documentAt(path)["examinations"][0]["measurements"][1]["bpd"], 60.9F);
}

TEST(Storing, refusesAnotherPatient) {
  const ScratchFolder folder;
  const std::string path =
      folder.write("patient.nascor", document(R"({"maternalIDString":"AB-123","gravida":1})"));
  const std::string before = contentsOfFile(path);
  for (const char* name : {"other-patient", "no-patient"}) {
    const Outcome outcome = run({"import", machineReport(name), "--into", path});
    EXPECT_EQ(outcome.status, 1) << name;
    EXPECT_THAT(linesOf(outcome.out), SizeIs(1)) << name;
    EXPECT_EQ(contentsOfFile(path), before) << name;
    // One of several is enough.
    EXPECT_EQ(run({"import", machineReport("plain"), machineReport(name), "--into", path}).status, 1) << name;
    EXPECT_EQ(contentsOfFile(path), before) << name;
  }
  EXPECT_EQ(run({"import", machineReport("other-patient"), "--into", path, "--patient", "AB-123"}).status, 0);
  EXPECT_NE(contentsOfFile(path), before);
}

TEST(Storing, takesNoDocumentThatAnotherProgramHasOpen) {
  const ScratchFolder folder;
  const std::string path =
      folder.write("patient.nascor", document(R"({"maternalIDString":"AB-123","gravida":1})"));
  const std::string before = contentsOfFile(path);
  posix::PosixFileStore store;
  foundation::FileClaim claim = store.claim(path, foundation::FileStore::Claim::ifFree);
  ASSERT_TRUE(claim.lock);
  const Outcome outcome = run({"import", machineReport("plain"), "--into", path});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("It is open elsewhere. User: "));
  EXPECT_EQ(contentsOfFile(path), before);
  claim.lock.reset();
  EXPECT_EQ(run({"import", machineReport("plain"), "--into", path}).status, 0);
  EXPECT_NE(contentsOfFile(path), before);
}

TEST(Storing, keepsTheEddUnlessAsked) {
  const ScratchFolder folder;
  const std::string path =
      folder.write("patient.nascor", document(R"({"maternalIDString":"AB-123","edd":"2027-03-04"})"));
  const Outcome kept = run({"import", machineReport("plain"), "--into", path});
  EXPECT_EQ(kept.status, 0);
  EXPECT_THAT(kept.err, HasSubstr("the EDD stays 2027-03-04"));
  EXPECT_EQ(documentAt(path)["eddISO"], "2027-03-04T00:00:00");
  EXPECT_EQ(run({"import", machineReport("plain"), "--into", path, "--edd"}).err, "");
  EXPECT_EQ(documentAt(path)["eddISO"], "2027-03-11T00:00:00");
}

TEST(Storing, overwritesNoLength) {
  const ScratchFolder folder;
  const std::string path = folder.write(
      "patient.nascor",
      document(
          R"({"maternalIDString":"AB-123","examinations":[{"examDate":"2026-11-13T15:00","measurements":[{"bpd":61}]}]})"));
  const Outcome outcome = run({"import", machineReport("plain"), "--into", path});
  EXPECT_THAT(outcome.err, HasSubstr("BPD stays 61 mm"));
  const Json stored = documentAt(path);
  ASSERT_EQ(stored["examinations"].size(), 1U);
  EXPECT_EQ(stored["examinations"][0]["measurements"][0]["bpd"], 61);
  EXPECT_EQ(stored["examinations"][0]["measurements"][0]["hc"], 227.3F);
}

TEST(Storing, takesSeveralReportsOfOnePatient) {
  const ScratchFolder folder;
  const std::string reports = folder.path("reports");
  ASSERT_EQ(run({"export", NASCOR_SAMPLES "/twins.nascor", "--format", "sr", "--out", reports}).status, 0);
  const std::string path = folder.path("twins.nascor");
  std::vector<std::string> arguments{"import", "--out", path};
  for (int i = 1; i <= 6; ++i) arguments.push_back(reports + "/twins " + std::to_string(i) + ".dcm");
  EXPECT_EQ(run(arguments).status, 0);
  EXPECT_EQ(documentAt(path)["examinations"].size(), 6U);
}

TEST(Storing, takesNoReportsOfSeveralPatientsWhateverIdIsTyped) {
  const ScratchFolder folder;
  const std::string path = folder.path("new.nascor");
  const Outcome outcome = run(
      {"import", machineReport("plain"), machineReport("other-patient"), "--out", path, "--patient", "Q"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, AllOf(HasSubstr("AB-123"), HasSubstr("ZZ-999")));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Storing, takesAllOfSeveralFilesOrNone) {
  const ScratchFolder folder;
  const std::string path = folder.path("new.nascor");
  EXPECT_EQ(run({"import", machineReport("plain"), machineReport("basic-text"), "--out", path}).status, 1);
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Storing, takesNoIdThatNobodyCanRead) {
  const ScratchFolder folder;
  const std::string path = folder.path("new.nascor");
  const Outcome outcome = run({"import", machineReport("not-ascii"), "--out", path});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("characters that cannot be read"));
  EXPECT_EQ(run({"import", machineReport("not-ascii"), "--out", path, "--patient", " AB-123 "}).status, 0);
  EXPECT_EQ(documentAt(path)["maternalIDString"], "AB-123");
  // An Ü of a terminal that is not of UTF-8 would make a document that nothing reads.
  const std::string before = contentsOfFile(path);
  for (const char* id : {"M\xDC", "", "  ", "a\nb"}) {
    EXPECT_EQ(run({"import", machineReport("plain"), "--into", path, "--patient", id}).status, 2) << id;
    EXPECT_EQ(contentsOfFile(path), before) << id;
  }
}

TEST(Storing, saysThatAReportSpeaksOfMoreFetuses) {
  const ScratchFolder folder;
  const std::string path =
      folder.write("patient.nascor", document(R"({"maternalIDString":"AB-123","gravida":1})"));
  const Outcome outcome = run({"import", machineReport("wrong-count"), "--into", path});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, HasSubstr("the number of fetuses stays 1; the report says 2"));
}

TEST(ADocumentInJson, isImportedAsItsReportsWouldBe) {
  const ScratchFolder folder;
  const std::string json = folder.write("twins.json", run({"json", NASCOR_SAMPLES "/twins.nascor"}).out);
  const std::string path = folder.path("twins.nascor");
  EXPECT_EQ(run({"import", json, "--out", path}).status, 0);
  const Json was = documentAt(NASCOR_SAMPLES "/twins.nascor");
  const Json is = documentAt(path);
  ASSERT_EQ(is["examinations"].size(), was["examinations"].size());
  for (std::size_t i = 0; i < is["examinations"].size(); ++i)
    EXPECT_EQ(is["examinations"][i]["measurements"], was["examinations"][i]["measurements"]);
}

TEST(ABundleOfNamesakes, isRefused) {
  const ScratchFolder folder;
  ASSERT_EQ(run({"export", NASCOR_SAMPLES "/twins.nascor", "--format", "fhir", "--out", folder.path("fhir")})
                .status,
            0);
  Json bundle = Json::parse(contentsOfFile(folder.path("fhir/twins.json")));
  for (Json& entry : bundle["entry"]) {
    Json& resource = entry["resource"];
    if (resource["resourceType"] == "Patient" && resource["identifier"][0]["value"] == "A")
      resource["identifier"][0]["value"] = "B";
  }
  const Outcome outcome = run({"import", folder.write("namesakes.json", bundle.dump())});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("two patients have one identifier"));
}

TEST(TablesOfTwoPatientsWithoutIDs, areToldApartByTheirEDD) {
  const ScratchFolder folder;
  const std::string header = "fetus,exam_date,edd,bpd_mm\n";
  const std::string table =
      folder.write("both.csv", header + "0,2026-11-13,2027-03-04,60.9\n0,2026-11-20,2027-04-10,48\n");
  const Outcome outcome = run({"import", table});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err,
              AllOf(HasSubstr("line 3"), HasSubstr("edd"), HasSubstr("write the ID into every row")));
}

TEST(WrongWordsOfImport, areWrongUsage) {
  for (const auto& arguments : {std::vector<std::string>{"import"},
                                {"import", machineReport("plain"), "--out", "a", "--into", "b"},
                                {"import", machineReport("plain"), "--out", "-"},
                                {"import", machineReport("plain"), "--fetus", "A"},
                                {"import", machineReport("plain"), "--fetus", "A=0"},
                                {"import", machineReport("plain"), "--fetus", "A=6"},
                                {"import", machineReport("plain"), "--fetus", "A=1", "--fetus", "A=2"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << outcome.err;
    EXPECT_EQ(outcome.out, "");
  }
}

/// The four lengths of every fetus, as the bits of the single-precision numbers that a file holds.
Json bitsOf(const Json& fetus) {
  Json bits = Json::array();
  for (const char* key : {"bpd", "hc", "ac", "fl"}) {
    const Json& value = fetus.at(key);
    bits.push_back(
        std::bit_cast<std::uint32_t>(value.is_null() ? 0.0F : static_cast<float>(value.get<double>())));
  }
  return bits;
}

class EverySample : public testing::TestWithParam<const char*> {
 protected:
  const std::string name = GetParam();
  const std::string path = NASCOR_SAMPLES "/" + name + ".nascor";
  const Json sample = documentAt(path);
  const ScratchFolder folder;

  /// Compares findings, one an examination, with the document.
  void expectTheSame(const std::vector<Json>& all) const {
    ASSERT_EQ(all.size(), sample["examinations"].size());
    for (std::size_t i = 0; i < all.size(); ++i) {
      const Json& examination = sample["examinations"][i];
      const auto day = [](const Json& moment) {
        return moment.is_null() ? moment : Json(moment.get<std::string>().substr(0, 10));
      };
      EXPECT_EQ(all[i]["patientID"], sample["maternalIDString"]);
      EXPECT_EQ(all[i]["gravida"], sample["gravida"]);
      EXPECT_EQ(all[i]["numberOfFetuses"], sample["numberOfFetuses"]);
      EXPECT_EQ(all[i]["examDate"], day(examination["examDateISO"]));
      EXPECT_EQ(all[i]["edd"], day(sample["eddISO"]));
      ASSERT_EQ(all[i]["fetuses"].size(), examination["measurements"].size());
      for (std::size_t fetus = 0; fetus < examination["measurements"].size(); ++fetus) {
        EXPECT_EQ(all[i]["fetuses"][fetus]["id"], std::to_string(fetus + 1));
        EXPECT_EQ(bitsOf(all[i]["fetuses"][fetus]), bitsOf(examination["measurements"][fetus]));
      }
      EXPECT_EQ(all[i]["warnings"], Json::array());
      EXPECT_EQ(all[i]["notTaken"], Json::array());
    }
  }

  std::vector<std::string> reports() const {
    EXPECT_EQ(run({"export", path, "--format", "sr", "--out", folder.path("out")}).status, 0);
    std::vector<std::string> files;
    for (std::size_t i = 1; i <= sample["examinations"].size(); ++i)
      files.push_back(folder.path("out/" + name + " " + std::to_string(i) + ".dcm"));
    return files;
  }
};

TEST_P(EverySample, comesBackFromItsReportsBitForBit) {
  std::vector<std::string> arguments{"import"};
  for (const std::string& file : reports()) arguments.push_back(file);
  expectTheSame(objectsOf(run(arguments)));
}

TEST_P(EverySample, comesBackFromItsBundleBitForBit) {
  ASSERT_EQ(run({"export", path, "--format", "fhir", "--out", folder.path("out")}).status, 0);
  expectTheSame(objectsOf(run({"import", folder.path("out/" + name + ".json")})));
}

TEST_P(EverySample, isStoredAgainBitForBit) {
  std::vector<std::string> arguments{"import", "--out", folder.path("again.nascor")};
  for (const std::string& file : reports()) arguments.push_back(file);
  EXPECT_EQ(run(arguments).status, 0);
  const Json again = documentAt(folder.path("again.nascor"));
  ASSERT_EQ(again["examinations"].size(), sample["examinations"].size());
  for (std::size_t i = 0; i < again["examinations"].size(); ++i)
    EXPECT_EQ(again["examinations"][i]["measurements"], sample["examinations"][i]["measurements"]);
}

TEST_P(EverySample, comesBackFromItsRowsBitForBit) {
  const std::vector<std::string> options{"--identify", "--file", "number", "--standard", "all"};
  const auto rowsOfFile = [&](const std::string& file) {
    std::vector<std::string> arguments{"rows", file};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run(arguments).out;
  };
  const std::string table = folder.write("rows.csv", rowsOfFile(path));
  const std::string again = folder.path("again.nascor");
  const Outcome outcome = run({"import", table, "--out", again});
  EXPECT_EQ(outcome.status, 0) << outcome.err;

  const auto found = objectsOf(outcome);
  ASSERT_EQ(found.size(), sample["examinations"].size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    const Json& examination = sample["examinations"][i];
    ASSERT_EQ(found[i]["fetuses"].size(), examination["measurements"].size());
    for (std::size_t fetus = 0; fetus < found[i]["fetuses"].size(); ++fetus)
      EXPECT_EQ(bitsOf(found[i]["fetuses"][fetus]), bitsOf(examination["measurements"][fetus]));
    EXPECT_EQ(found[i]["warnings"], Json::array());
  }
  auto before = rowsOf(contentsOfFile(table));
  auto after = rowsOf(rowsOfFile(again));
  EXPECT_FALSE(before.empty());
  for (CsvRow& row : before) row["note"].clear();
  EXPECT_EQ(after, before);
}

TEST_P(EverySample, isReadByOtherPrograms) {
  std::vector<std::string> arguments{"import"};
  std::string names;
  for (const std::string& file : reports()) {
    arguments.push_back(file);
    names += " '" + file + "'";
  }
  EXPECT_EQ(std::system(("dsrdump --quiet" + names + " >/dev/null").c_str()), 0);
  const std::string found = folder.path("found.json");
  const std::string reader = NASCOR_PYTHON " -B -W error '" NASCOR_MACHINE_REPORTS "' --read";
  ASSERT_EQ(std::system((reader + names + " >'" + found + "'").c_str()), 0);

  const auto ours = objectsOf(run(arguments));
  const auto lines = linesOf(contentsOfFile(found));
  ASSERT_EQ(lines.size(), ours.size());
  std::set<std::string> instances;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Json read = Json::parse(lines[i]);
    EXPECT_EQ(read["class"], "1.2.840.10008.5.1.4.1.1.88.33");
    EXPECT_EQ(read["title"], "125000");
    EXPECT_EQ(read["patientID"], sample["maternalIDString"]);
    EXPECT_TRUE(instances.insert(read["instance"]).second);
    const Json& fetuses = ours[i]["fetuses"];
    for (const Json& fetus : fetuses) {
      for (const char* key : {"bpd", "hc", "ac", "fl"}) {
        if (fetus[key].is_null()) continue;
        const Json value = read["fetuses"][fetus["id"].get<std::string>()][key];
        EXPECT_EQ(std::stod(value[0].get<std::string>()), fetus[key].get<double>());
        EXPECT_LE(value[0].get<std::string>().size(), 16U);
        EXPECT_EQ(value[1], "mm");
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(ofTheProgram, EverySample,
                         testing::Values("singleton", "twins", "triplets", "quintuplets", "no-edd"),
                         [](const auto& row) {
                           std::string name = row.param;
                           std::erase(name, '-');
                           return name;
                         });

TEST(ATableOfExaminations, isPrintedAsReportsAre) {
  const ScratchFolder folder;
  const std::string table =
      folder.write("a.csv",
                   "\xEF\xBB\xBFreference_id,exam_date,fetus_number,bpd_mm,hc_mm,ac_mm,fl_mm,edd\r\n"
                   "AB-123,2026-11-13,1,60.9,,202.8,44.9,2027-03-04\r\n");
  const std::string expected =
      R"({"file":")" + table +
      R"(","patientID":"AB-123","examDate":"2026-11-13","edd":"2027-03-04","eddFrom":"edd","gravida":null,)"
      R"("numberOfFetuses":null,"fetuses":[{"id":"1","bpd":60.9,"hc":null,"ac":202.8,"fl":44.9,"crl":null,"efw":null,)"
      R"("chosen":{"bpd":"plain","ac":"plain","fl":"plain"}}],"notTaken":[],"warnings":[]})";
  const Outcome outcome = run({"import", table});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out, expected + "\n");
  EXPECT_EQ(objectsOf(run({"import", "-"}, contentsOfFile(table))).at(0)["patientID"], "AB-123");
}

TEST(ATableOfExaminations, isTakenWholeOrNotAtAll) {
  const ScratchFolder folder;
  const std::string table = folder.write("a.csv",
                                         "reference_id,exam_date,bpd_mm\n"
                                         "AB-123,2026-11-13,60.9\n"
                                         "AB-123,,61\n"
                                         "AB-123,2026-11-27,6cm\n");
  const std::string path = folder.path("new.nascor");
  const Outcome outcome = run({"import", table, "--out", path});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(linesOf(outcome.err),
              ElementsAre(HasSubstr(table + ": line 3: exam_date: the cell is empty"),
                          table + ": line 4: bpd_mm: \"6cm\" is no number",
                          table + ": nothing of this table is taken until every row of it fits"));
  EXPECT_FALSE(std::filesystem::exists(path));
  // The others go on.
  EXPECT_THAT(linesOf(run({"import", table, machineReport("plain")}).out), SizeIs(1));
}

TEST(ATableOfExaminations, ofSeveralPatientsIsPrintedAndNotStored) {
  const ScratchFolder folder;
  const std::string table = folder.write("a.csv",
                                         "reference_id,exam_date,bpd_mm\n"
                                         "AB-123,2026-11-13,60.9\n"
                                         "CD-456,2026-11-13,61\n"
                                         "AB-123,2026-11-27,66\n");
  const std::string path = folder.path("new.nascor");
  const Outcome printed = run({"import", table});
  EXPECT_EQ(printed.status, 0);
  EXPECT_THAT(linesOf(printed.out), SizeIs(3));
  // Whoever is confirmed, half of it would be hers who is not.
  for (const auto& patient : {std::vector<std::string>{}, {"--patient", "AB-123"}}) {
    std::vector<std::string> arguments{"import", table, "--out", path};
    arguments.insert(arguments.end(), patient.begin(), patient.end());
    const Outcome stored = run(arguments);
    EXPECT_EQ(stored.status, 1);
    EXPECT_EQ(stored.out, printed.out);
    EXPECT_EQ(stored.err,
              table +
                  ": holds examinations of several patients (\"AB-123\", \"CD-456\"), and a document is "
                  "of one; nothing is stored. Please import a file for each patient\n");
    EXPECT_FALSE(std::filesystem::exists(path));
  }
}

TEST(ATableOfExaminations, isStoredByTheRulesOfReports) {
  const ScratchFolder folder;
  const std::string table = folder.write("a.csv",
                                         "reference_id,exam_date,edd,gravida,bpd_mm,hc_mm\n"
                                         " AB-123,2026-11-13,2027-03-11,2,60.9,227.3\n"
                                         "AB-123 ,2026-11-27,2027-03-11,2,66,\n");
  const std::string path = folder.write(
      "patient.nascor",
      document(
          R"({"maternalIDString":"AB-123","edd":"2027-03-04","examinations":[{"examDate":"2026-11-13T15:00","measurements":[{"bpd":61}]}]})"));
  const Outcome outcome = run({"import", table, "--into", path});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, AllOf(HasSubstr("BPD stays 61 mm"), HasSubstr("the EDD stays 2027-03-04")));
  const Json stored = documentAt(path);
  EXPECT_EQ(stored["gravida"], 2);
  ASSERT_EQ(stored["examinations"].size(), 2U);
  EXPECT_EQ(stored["examinations"][0]["measurements"][0]["hc"], 227.3F);
  EXPECT_EQ(stored["examinations"][1]["measurements"][0]["bpd"], 66);

  const std::string other = folder.write("other.nascor", document(R"({"maternalIDString":"CD-456"})"));
  const std::string before = contentsOfFile(other);
  EXPECT_EQ(run({"import", table, "--into", other}).status, 1);
  EXPECT_EQ(contentsOfFile(other), before);
}

TEST(ATextThatIsNoTable, keepsItsSentence) {
  const ScratchFolder folder;
  const std::string text = folder.write("a.csv", "exam_date;bpd_mm\n2026-11-13;60\n");
  EXPECT_THAT(run({"import", text}).err, testing::StartsWith(text + ": is no report that is read: "));
  // Whatever its preamble says.
  std::string report = contentsOfFile(machineReport("plain"));
  report.replace(0, 17, "exam_date,bpd_mm\n");
  EXPECT_EQ(objectsOf(run({"import", folder.write("a.dcm", report)})).at(0)["patientID"], "AB-123");
}

TEST(ExportOfRecords, leavesOutWhatIsNoLengthAndSaysSo) {
  const ScratchFolder folder;
  const std::string path = folder.write(
      "odd.nascor",
      document(
          R"({"maternalIDString":"A","examinations":[{"examDate":"2026-11-13","measurements":[{"bpd":"nan","hc":"inf","ac":0,"fl":0.1}]}]})"));
  const Outcome outcome = run({"export", path, "--format", "sr", "--out", folder.path("out")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(linesOf(outcome.err), ElementsAre(HasSubstr("BPD nan"), HasSubstr("HC inf")));
  const Json fetus = objectsOf(run({"import", folder.path("out/odd 1.dcm")})).at(0)["fetuses"].at(0);
  EXPECT_EQ(fetus["fl"], 0.1);
  EXPECT_EQ(fetus["bpd"], nullptr);
}

TEST(ExportOfRecords, namesDocumentsOfOneNameApart) {
  const ScratchFolder folder;
  const std::string twins = NASCOR_SAMPLES "/twins.nascor";
  EXPECT_EQ(run({"export", twins, twins, "--format", "fhir", "--out", folder.path("out")}).status, 0);
  EXPECT_TRUE(std::filesystem::exists(folder.path("out/twins.json")));
  EXPECT_TRUE(std::filesystem::exists(folder.path("out/twins (2).json")));
  const Outcome again =
      run({"export", twins, "--format", "fhir", "--out", folder.path("out"), "--no-clobber"});
  EXPECT_THAT(again.err, HasSubstr("there already"));
  EXPECT_EQ(again.status, 0);
}

TEST(ExportOfRecords, writesLinesForManyDocuments) {
  const Outcome outcome = run({"export", "--format", "fhir", "--ndjson", NASCOR_SAMPLES "/twins.nascor",
                               NASCOR_SAMPLES "/singleton.nascor"});
  EXPECT_EQ(outcome.status, 0);
  std::map<std::string, int> types;
  for (const Json& resource : objectsOf(outcome)) ++types[resource["resourceType"]];
  EXPECT_EQ(types["Patient"], 2 + 1 + 2);
  EXPECT_EQ(types["DiagnosticReport"], 6 + 6);
}

TEST(ExportOfRecords, refusesAReferenceIdThatAReportCannotHold) {
  const ScratchFolder folder;
  const std::string path = folder.write(
      "a.nascor", document(R"({"maternalIDString":"A\\B","examinations":[{"measurements":[{"bpd":60}]}]})"));
  const Outcome outcome = run({"export", path, "--format", "sr", "--out", folder.path("out")});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_FALSE(std::filesystem::exists(folder.path("out/a 1.dcm")));
}

TEST(WrongWordsOfExport, areWrongUsage) {
  const std::string twins = NASCOR_SAMPLES "/twins.nascor";
  for (const auto& arguments : {std::vector<std::string>{"export", twins, "--format", "sr"},
                                {"export", twins, "--format", "sr", "--out", "-"},
                                {"export", twins, "--format", "sr", "--out", "a", "--pages", "bpd"},
                                {"export", twins, "--format", "sr", "--out", "a", "--ndjson"},
                                {"export", twins, "--format", "fhir", "--out", "a", "--ndjson"},
                                {"export", twins, "--format", "pdf", "--out", "a", "--ndjson"},
                                {"export", twins, "--format", "odt", "--out", "a"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << outcome.err;
    EXPECT_EQ(outcome.out, "");
  }
}

}  // namespace
}  // namespace nascor::tests
