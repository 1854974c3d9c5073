// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <map>
#include <random>

#include <nlohmann/json.hpp>

#include <sys/resource.h>
#include <sys/stat.h>

#include "Csv.h"
#include "Process.h"
#include "foundation/NumberText.h"
#include "sqlite/Database.h"
#include "synthetic_clinic/Clinic.h"

namespace nascor::tests {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A folder of documents and the index of it.
class IndexedClinic {
 public:
  IndexedClinic() { std::filesystem::create_directories(scratch.path("clinic")); }

  void write(const std::string& name, const std::string& contents) const {
    std::filesystem::create_directories(std::filesystem::path(scratch.path("clinic/" + name)).parent_path());
    scratch.write("clinic/" + name, contents);
  }
  void writePatients(std::uint64_t first, std::uint64_t count) const {
    const clinic::Clinic patients;
    for (std::uint64_t number = first; number < first + count; ++number) {
      const auto document = patients.document(number);
      write(document.name, {reinterpret_cast<const char*>(document.bytes.data()), document.bytes.size()});
    }
  }
  Outcome index() const { return run({"index", folder(), "--db", database()}); }
  std::string folder() const { return scratch.path("clinic"); }
  std::string database() const { return scratch.path("index.sqlite"); }

  /// All that is due in many years.
  std::vector<json> all(std::vector<std::string> more = {}) const {
    more.insert(more.begin(),
                {"due", "--db", database(), "--json", "--from", "2020-01-01", "--days", "9999"});
    const Outcome outcome = run(more);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    std::vector<json> documents;
    for (const std::string& line : linesOf(outcome.out)) documents.push_back(json::parse(line));
    return documents;
  }

  ScratchFolder scratch;
};

std::string patient(const std::string& identifier, const std::string& edd, double ac) {
  return document(R"({"numberOfFetuses":1,"maternalIDString":")" + identifier + R"(","edd":")" + edd +
                  R"(","standard":3,"examinations":[{"examDate":"2026-11-21","measurements":[{"ac":)" +
                  std::to_string(ac) + "}]}]}");
}

std::vector<std::string> filesIn(const std::string& lines) {
  std::vector<std::string> files;
  for (const std::string& line : linesOf(lines))
    files.push_back(json::parse(line)["file"].get<std::string>());
  return files;
}

// Keeping it up to date

TEST(AnIndex, followsWhatIsAddedChangedAndRemoved) {
  const IndexedClinic clinic;
  clinic.write("a/1.nascor", patient("A-1", "2027-04-10", 151.4));
  clinic.write("a-b.nascor", patient("A-2", "2027-04-11", 151.4));
  clinic.write("a/.hidden.nascor", "no document");
  clinic.write("z.nascor", patient("Z-1", "2027-04-12", 151.4));
  EXPECT_EQ(clinic.index().out, "documents 3, added 3, changed 0, removed 0, unreadable 0\n");
  EXPECT_EQ(clinic.index().out, "documents 3, added 0, changed 0, removed 0, unreadable 0\n");

  clinic.write("z.nascor", patient("Z-9", "2027-04-12", 151.4));
  clinic.write("a/2.nascor", patient("A-3", "2027-04-13", 151.4));
  std::filesystem::remove(clinic.folder() + "/a-b.nascor");
  EXPECT_EQ(clinic.index().out, "documents 3, added 1, changed 1, removed 1, unreadable 0\n");
  std::vector<std::string> identifiers;
  for (const json& found : clinic.all()) identifiers.push_back(found["reference_id"]);
  EXPECT_THAT(identifiers, ElementsAre("A-1", "Z-9", "A-3"));
  EXPECT_THAT(run({"search", "a-2", "--db", clinic.database(), "--json"}).out, IsEmpty());
  EXPECT_THAT(run({"search", "z-1", "--db", clinic.database(), "--json"}).out, IsEmpty());

  std::filesystem::remove_all(clinic.folder() + "/a");
  EXPECT_EQ(run({"index", clinic.folder(), "--db", clinic.database(), "--json"}).out,
            R"({"documents":1,"added":0,"changed":0,"removed":2,"unreadable":0})"
            "\n");
}

TEST(AnIndex, holdsBadDocumentsWithoutRowsAndReadsThemAgainWhenTheyChange) {
  const IndexedClinic clinic;
  clinic.write("bad.nascor", "no document");
  clinic.write("good.nascor", patient("G-1", "2027-04-10", 151.4));
  const Outcome first = clinic.index();
  EXPECT_EQ(first.status, 1);
  EXPECT_EQ(first.out, "documents 2, added 2, changed 0, removed 0, unreadable 1\n");
  EXPECT_THAT(first.err, HasSubstr("bad.nascor: not a Nascor document (at byte 0: "));
  EXPECT_THAT(run({"search", "bad", "--db", clinic.database(), "--json"}).out,
              HasSubstr(R"("reference_id":null)"));
  clinic.write("bad.nascor", patient("B-1", "2027-04-09", 151.4));
  const Outcome second = clinic.index();
  EXPECT_EQ(second.status, 0) << second.err;
  EXPECT_EQ(second.out, "documents 2, added 0, changed 1, removed 0, unreadable 0\n");
  EXPECT_EQ(clinic.all().size(), 2U);
}

/// The cells of `rows` in the names of the index; by file, examination and fetus.
using Cells = std::map<std::string, std::string>;
using Examinations = std::map<std::string, Cells>;

constexpr std::array kExaminationColumns{"exam_date", "ga_weeks", "bpd_mm", "hc_mm", "ac_mm", "fl_mm",
                                         "efw_g",     "bpd_z",    "hc_z",   "ac_z",  "fl_z",  "note"};

Examinations examinationsOfRows(const IndexedClinic& clinic) {
  // The weight that the index has is that of the document's own formula.
  std::map<std::string, std::string> formulas;
  sqlite::Database database(clinic.database(), sqlite::Database::Access::read);
  sqlite::Statement statement = database.prepare("SELECT path, formula FROM documents");
  while (statement.next()) formulas[std::string(statement.text(0))] = statement.text(1);

  Examinations examinations;
  const Outcome outcome = run({"rows", clinic.folder(), "--file", "path", "--identify"});
  for (const CsvRow& row : rowsOf(outcome.out)) {
    if (row.at("exam").empty()) continue;
    const std::string file = row.at("file").substr(clinic.folder().size() + 1);
    Cells& cells = examinations[file + " " + row.at("exam") + " " + row.at("fetus")];
    for (const char* column : kExaminationColumns) {
      cells[column] =
          row.at(column == std::string("efw_g") ? "efw_" + formulas[file] + "_g" : std::string(column));
    }
  }
  return examinations;
}

/// By the places that the documents tell.
Examinations examinationsOfIndex(const IndexedClinic& clinic) {
  std::string columns;
  for (const char* column : kExaminationColumns) columns += std::string(", ") + column;
  sqlite::Database database(clinic.database(), sqlite::Database::Access::read);
  sqlite::Statement statement = database.prepare(
      "SELECT path || ' ' || exam || ' ' || fetus, document = documents.id" + columns +
      " FROM documents JOIN rows ON rows.id >= first_row AND rows.id < first_row + row_count");
  Examinations examinations;
  while (statement.next()) {
    EXPECT_EQ(statement.integer(1), 1) << statement.text(0);
    Cells& cells = examinations[std::string(statement.text(0))];
    for (std::size_t i = 0; i < kExaminationColumns.size(); ++i) {
      const int column = 2 + static_cast<int>(i);
      const bool isText = kExaminationColumns.at(i) == std::string("exam_date") ||
                          kExaminationColumns.at(i) == std::string("note");
      std::string& cell = cells[kExaminationColumns.at(i)];
      if (!statement.isNull(column))
        cell =
            isText ? std::string(statement.text(column)) : foundation::shortestText(statement.real(column));
    }
  }
  return examinations;
}

TEST(AnIndex, holdsTheCellsOfRowsForOtherPrograms) {
  const IndexedClinic clinic;
  clinic.writePatients(0, 150);
  clinic.index();
  EXPECT_GT(examinationsOfIndex(clinic).size(), 500U);
  EXPECT_EQ(examinationsOfIndex(clinic), examinationsOfRows(clinic));
  // The last ones go, so that their numbers are given again, some in the middle go, and others change.
  for (const std::uint64_t gone : {149U, 148U, 70U, 71U, 72U}) {
    std::filesystem::remove(clinic.folder() + "/" + clinic::Clinic().document(gone).name);
  }
  clinic.write(clinic::Clinic().document(147).name, patient("last", "2027-04-10", 151.4));
  clinic.write(clinic::Clinic().document(3).name, "no document any more");
  clinic.write(clinic::Clinic().document(90).name, patient("middle", "2027-04-11", 140.0));
  clinic.writePatients(150, 10);
  EXPECT_EQ(clinic.index().out.substr(0, 40), "documents 155, added 10, changed 3, remo");
  EXPECT_EQ(examinationsOfIndex(clinic), examinationsOfRows(clinic));
  sqlite::Database database(clinic.database(), sqlite::Database::Access::read);
  sqlite::Statement orphans = database.prepare(
      "SELECT count(*) FROM rows WHERE NOT EXISTS (SELECT 1 FROM documents WHERE id = document)");
  ASSERT_TRUE(orphans.next());
  EXPECT_EQ(orphans.integer(0), 0);
}

TEST(AnIndex, ofAnOlderVersionIsMadeAnewAndOfANewerOneIsLeft) {
  const IndexedClinic clinic;
  clinic.writePatients(0, 20);
  clinic.index();
  const auto expected = clinic.all();
  const auto setVersion = [&](const std::string& version) {
    sqlite::Database database(clinic.database(), sqlite::Database::Access::write);
    database.execute("PRAGMA user_version = " + version);
  };
  setVersion("1; DELETE FROM rows; DROP INDEX documents_by_edd; ALTER TABLE documents DROP COLUMN first_row");
  EXPECT_EQ(run({"due", "--db", clinic.database()}).status, 1);
  std::filesystem::create_directories(clinic.scratch.path("other"));
  EXPECT_THAT(run({"index", clinic.scratch.path("other"), "--db", clinic.database()}).err,
              HasSubstr("is the index of "));
  EXPECT_THAT(clinic.index().out, HasSubstr("added 20,"));
  EXPECT_EQ(clinic.all(), expected);
  EXPECT_EQ(examinationsOfIndex(clinic), examinationsOfRows(clinic));

  setVersion("99");
  const Outcome newer = clinic.index();
  EXPECT_EQ(newer.status, 1);
  EXPECT_THAT(newer.err, HasSubstr("was made by another version of this program"));
  setVersion("2");
  EXPECT_EQ(clinic.all(), expected);
}

TEST(AnIndex, isReadableByItsOwnerAlone) {
  const IndexedClinic clinic;
  clinic.writePatients(0, 3);
  const mode_t before = ::umask(0);
  clinic.index();
  ::umask(before);
  struct stat status {};
  ASSERT_EQ(::stat(clinic.database().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(AnIndex, isOfOneFolderAndOfThisProgram) {
  const IndexedClinic clinic;
  clinic.writePatients(0, 2);
  EXPECT_EQ(clinic.index().status, 0);
  std::filesystem::create_directories(clinic.scratch.path("other"));
  const Outcome other = run({"index", clinic.scratch.path("other"), "--db", clinic.database()});
  EXPECT_EQ(other.status, 1);
  EXPECT_THAT(other.err, HasSubstr("is the index of "));
  EXPECT_EQ(clinic.all().size(), 2U) << "nothing was forgotten";

  const std::string text = clinic.scratch.write("text.sqlite", std::string(5000, 'x'));
  EXPECT_EQ(run({"index", clinic.folder(), "--db", text}).err, text + ": file is not a database\n");
  EXPECT_EQ(contentsOfFile(text), std::string(5000, 'x'));
  const std::string none = clinic.scratch.path("none");
  EXPECT_EQ(run({"index", none, "--db", clinic.database()}).err, none + ": No such file or directory\n");
  EXPECT_EQ(run({"due", "--db", none}).status, 1);
  EXPECT_FALSE(std::filesystem::exists(none));
}

TEST(AnIndex, isMadeOfDaysOfTheZoneOfTheProcess) {
  const IndexedClinic clinic;
  clinic.write(
      "a.nascor",
      run({.arguments = {"make", "-"}, .input = R"({"edd":"2027-04-10T23:30:00Z","examinations":[]})"}).out);
  const auto eddIn = [&](const char* zone) {
    run({.arguments = {"index", clinic.folder(), "--db", clinic.database()}, .zone = zone});
    const Outcome due = run(
        {.arguments = {"due", "--db", clinic.database(), "--json", "--from", "2027-04-01"}, .zone = zone});
    return json::parse(due.out)["edd"].get<std::string>();
  };
  EXPECT_EQ(eddIn("UTC"), "2027-04-10");
  EXPECT_EQ(eddIn("Asia/Tokyo"), "2027-04-11") << "all is read again in another zone";
}

/// Bounds the size of files that this process and its children may write; what goes beyond ends a program at once.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t size) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{.rlim_cur = size, .rlim_max = before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

TEST(AnIndex, isCompletedAfterARunThatWasKilledAnywhere) {
  const IndexedClinic clinic;
  clinic.writePatients(0, 60);
  ASSERT_EQ(clinic.index().status, 0);
  const auto expected = clinic.all();
  std::size_t killed = 0;
  const auto whole = std::filesystem::file_size(clinic.database());
  for (int part = 0; part < 20; ++part) {
    std::filesystem::remove(clinic.database());
    {
      const FileSizeLimit limit(1024 + 2 * whole * static_cast<unsigned>(part) / 20);
      killed += clinic.index().status == 0 ? 0 : 1;
    }
    const Outcome between =
        run({"due", "--db", clinic.database(), "--json", "--from", "2020-01-01", "--days", "9999"});
    for (const std::string& line : linesOf(between.out)) {
      EXPECT_THAT(expected, testing::Contains(json::parse(line))) << part;
    }
    ASSERT_EQ(clinic.index().status, 0) << part;
    EXPECT_EQ(clinic.all(), expected) << part;
  }
  EXPECT_GE(killed, 5U);
}

TEST(AnIndex, isNeverWrongThoughKilledAtFiftyMoments) {
  const IndexedClinic clinic;
  // Each run finds ten documents gone, ten new, the others written anew, and perhaps no index at all.
  const auto folderAt = [&](std::size_t state) {
    std::filesystem::remove_all(clinic.folder());
    clinic.writePatients(10 * state, 30);
  };
  const auto found = [&] {
    return run({"search", "NC-", "--db", clinic.database(), "--json", "--limit", "99"}).out;
  };
  std::array<std::vector<json>, 2> expected;
  std::array<std::string, 2> expectedFound;
  std::chrono::steady_clock::duration whole{};
  for (const std::size_t state : {1U, 0U}) {
    folderAt(state);
    const auto start = std::chrono::steady_clock::now();
    clinic.index();
    whole = std::chrono::steady_clock::now() - start;
    expected.at(state) = clinic.all();
    expectedFound.at(state) = found();
  }
  std::mt19937_64 random{20261123};
  std::uniform_int_distribution<std::int64_t> moments(
      1, std::chrono::duration_cast<std::chrono::microseconds>(whole).count());
  int killed = 0;
  for (std::size_t i = 0; killed < 50; ++i) {
    ASSERT_LT(i, 500U) << "runs end before they are killed";
    folderAt(i % 2);
    if (i % 3 == 0) {
      for (const char* file : {"", "-wal", "-shm"}) std::filesystem::remove(clinic.database() + file);
    }
    const Outcome run = tests::run({.arguments = {"index", clinic.folder(), "--db", clinic.database()},
                                    .killedAfter = std::chrono::microseconds(moments(random))});
    if (run.status != 128 + SIGALRM) continue;
    ++killed;
    const Outcome between =
        tests::run({"due", "--db", clinic.database(), "--json", "--from", "2020-01-01", "--days", "9999"});
    for (const std::string& line : linesOf(between.out)) {
      const json document = json::parse(line);
      const auto isIn = [&](const std::vector<json>& all) {
        return std::ranges::find(all, document) != all.end();
      };
      EXPECT_TRUE(std::ranges::any_of(expected, isIn)) << i << ": " << line;
    }
    clinic.index();
    ASSERT_EQ(clinic.all(), expected.at(i % 2)) << i;
    EXPECT_EQ(linesOf(found()).size(), linesOf(expectedFound.at(i % 2)).size()) << i;
  }
}

// What it answers

TEST(Due, listsEDDsFromADayOn) {
  const IndexedClinic clinic;
  for (const char* day : {"09", "10", "20", "21"}) {
    clinic.write(std::string(day) + ".nascor",
                 patient(std::string("P-") + day, "2027-04-" + std::string(day), 151.4));
  }
  clinic.write("none.nascor", document(R"({"examinations":[{}]})"));
  clinic.index();
  const auto due = [&](std::vector<std::string> more) {
    more.insert(more.begin(), {"due", "--db", clinic.database(), "--from", "2027-04-10"});
    return run(more).out;
  };
  EXPECT_THAT(filesIn(due({"--days", "10", "--json"})), ElementsAre("10.nascor", "20.nascor"));
  EXPECT_THAT(filesIn(due({"--json"})), ElementsAre("10.nascor", "20.nascor", "21.nascor"));
  EXPECT_EQ(due({"--days", "0", "--json"}),
            R"({"edd":"2027-04-10","days":0,"reference_id":"P-10","fetuses":1,"last_exam":"2026-11-21",)"
            R"("ga_weeks":20,"ac_z":-6.228077174167696e-07,"file":"10.nascor"})"
            "\n");
  EXPECT_EQ(due({"--days", "0"}),
            "EDD         Days  Reference ID  Fetuses  Last exam   Weeks   AC z  File\n"
            "2027-04-10     0  P-10                1  2026-11-21   20.0  -0.00  10.nascor\n");
}

TEST(Due, canAskForASmallAbdomen) {
  const IndexedClinic clinic;
  // The mean at 20 weeks is 151.4 mm, the standard deviation 9.8.
  clinic.write("mean.nascor", patient("M", "2027-04-10", 151.4));
  clinic.write("small.nascor", patient("S", "2027-04-10", 131.0));
  clinic.write("unmeasured.nascor", patient("U", "2027-04-10", 0.0));
  clinic.index();
  const auto below = [&](const std::string& z) {
    return filesIn(
        run({"due", "--db", clinic.database(), "--from", "2027-04-01", "--json", "--ac-below", z}).out);
  };
  EXPECT_THAT(below("-2"), ElementsAre("small.nascor"));
  EXPECT_THAT(below("1"), ElementsAre("mean.nascor", "small.nascor"));
}

TEST(Due, hasTheNumbersOfRows) {
  const IndexedClinic clinic;
  clinic.writePatients(0, 150);
  clinic.index();
  const Outcome outcome = run({"rows", clinic.folder(), "--file", "path"});
  // By file and fetus: the day and the z-score of the last AC.
  std::map<std::string, std::map<std::string, std::pair<std::string, double>>> last;
  for (const CsvRow& row : rowsOf(outcome.out)) {
    if (row.at("ac_z").empty()) continue;
    auto& known = last[row.at("file").substr(clinic.folder().size() + 1)][row.at("fetus")];
    if (row.at("exam_date") >= known.first) known = {row.at("exam_date"), std::stod(row.at("ac_z"))};
  }
  const auto documents = clinic.all();
  EXPECT_GT(documents.size(), 140U);
  for (const json& found : documents) {
    std::optional<double> least;
    for (const auto& [fetus, each] : last[found["file"]])
      least = std::min(least.value_or(each.second), each.second);
    ASSERT_EQ(found["ac_z"].is_null(), !least.has_value()) << found;
    EXPECT_EQ(least ? found["ac_z"].get<double>() : 0.0, least.value_or(0.0)) << found;
  }
}

TEST(Search, findsPartsOfIdentifiersAndPaths) {
  const IndexedClinic clinic;
  clinic.write("north/Meyer.nascor", patient("AB-123", "2027-04-10", 151.4));
  clinic.write("south/Müller.nascor", patient("\\\"x\\\" 50%", "2027-04-10", 151.4));
  clinic.index();
  const auto found = [&](const std::string& text) {
    return filesIn(run({"search", text, "--db", clinic.database(), "--json"}).out);
  };
  EXPECT_THAT(found("b-12"), ElementsAre("north/Meyer.nascor"));
  EXPECT_THAT(found("meye"), ElementsAre("north/Meyer.nascor"));
  EXPECT_THAT(found("MÜLL"), ElementsAre("south/Müller.nascor"));
  EXPECT_THAT(found("\"x\" 50%"), ElementsAre("south/Müller.nascor"));
  EXPECT_THAT(found("nascor"), ElementsAre("north/Meyer.nascor", "south/Müller.nascor"));
  EXPECT_THAT(found("b_12"), IsEmpty());
  const Outcome one = run({"search", "nascor", "--db", clinic.database(), "--json", "--limit", "1"});
  EXPECT_EQ(linesOf(one.out).size(), 1U);
  EXPECT_THAT(one.err, HasSubstr("there are more than 1"));
}

struct IndexUsageCase {
  const char* name;
  std::vector<std::string> arguments;
  const char* sentence;
};
class IndexUsage : public testing::TestWithParam<IndexUsageCase> {};

TEST_P(IndexUsage, isWrong) {
  const Outcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    , IndexUsage,
    testing::Values(IndexUsageCase{"noDatabase", {"index", "."}, "--db is missing"},
                    IndexUsageCase{"noFolder", {"index", "--db", "x"}, "FOLDER is missing"},
                    IndexUsageCase{"noDay", {"due", "--db", "x", "--from", "soon"}, "--from: expected a day"},
                    IndexUsageCase{"daysBehind", {"due", "--db", "x", "--days", "-1"}, "--days: expected"},
                    IndexUsageCase{
                        "noNumber", {"due", "--db", "x", "--ac-below", "low"}, "--ac-below: expected"},
                    IndexUsageCase{"shortText", {"search", "äb", "--db", "x"}, "three characters"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace nascor::tests
