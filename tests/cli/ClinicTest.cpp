// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <bit>
#include <filesystem>
#include <random>
#include <set>

#include <nlohmann/json.hpp>

#include "Csv.h"
#include "Process.h"
#include "support/TarArchive.h"
#include "synthetic_clinic/Clinic.h"

namespace nascor::tests {
namespace {

using nlohmann::json;

std::string textOf(const std::vector<std::byte>& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// The documents of a number of patients, the damaged ones left out.
TarMembers documents(std::uint64_t count) {
  const clinic::Clinic clinic;
  TarMembers members;
  for (std::uint64_t number = 0; number < count; ++number) {
    const clinic::Document document = clinic.document(number);
    if (!document.isDamaged) members.emplace_back(document.name, textOf(document.bytes));
  }
  return members;
}

bool isSame(double one, double other) {
  return std::bit_cast<std::uint64_t>(one) == std::bit_cast<std::uint64_t>(other);
}

double numberIn(const std::string& cell) { return cell.empty() ? 0.0 : std::stod(cell); }

// Rows of documents, the table that is calculated of them, and the report

TEST(AClinic, hasTheSameRowsAsCalcFindsOfItsLengths) {
  const Outcome rows = run({"rows", "--tar", "-", "--standard", "all"}, tarOf(documents(1000), kTarKinds[0]));
  ASSERT_EQ(rows.status, 0) << rows.err;
  // What is computed is taken away, and computed again.
  constexpr std::size_t kComputedFrom = 10;
  std::string table;
  for (const auto& record : recordsOf(rows.out)) {
    for (std::size_t i = 0; i < kComputedFrom; ++i) table += (i == 0 ? "" : ",") + record.at(i);
    table += '\n';
  }
  const Outcome calc = run({"calc"}, table);
  EXPECT_EQ(calc.status, 0) << calc.err;
  EXPECT_GT(linesOf(calc.out).size(), 4000U);
  EXPECT_EQ(calc.out, rows.out);
}

TEST(AClinic, hasTheSameNumbersInRowsAndReport) {
  const ScratchFolder folder;
  std::vector<std::string> call{"report", "--json"};
  std::vector<std::string> listing{"rows"};
  for (const auto& [name, bytes] : documents(1000)) {
    const std::string path = folder.write(std::filesystem::path(name).filename().string(), bytes);
    call.push_back(path);
    listing.push_back(path);
  }
  const auto reports = linesOf(run(call).out);
  ASSERT_EQ(reports.size(), call.size() - 2);
  std::map<std::string, CsvRow> rows;
  for (const CsvRow& row : rowsOf(run(listing).out)) {
    rows[row.at("file") + "/" + row.at("exam") + "/" + row.at("fetus")] = row;
  }
  std::size_t compared = 0;
  for (std::size_t file = 0; file < reports.size(); ++file) {
    const json report = json::parse(reports[file]);
    const std::string weight = "efw_" + report["fetalWeightStandard"].dump() + "_g";
    const json& fetuses = report["fetuses"];
    for (std::size_t fetus = 0; fetus < fetuses.size(); ++fetus) {
      const json& examinations = fetuses[fetus]["examinations"];
      for (std::size_t examination = 0; examination < examinations.size(); ++examination) {
        const json& reported = examinations[examination];
        const std::string place =
            std::to_string(file) + "/" + std::to_string(examination) + "/" + std::to_string(fetus);
        const CsvRow& row = rows.at(place);
        EXPECT_TRUE(isSame(numberIn(row.at("ga_weeks")), reported["age"].get<double>())) << place;
        EXPECT_TRUE(isSame(numberIn(row.at(weight)), reported["efw"].get<double>())) << place;
        for (const std::string length : {"bpd", "hc", "ac", "fl"}) {
          EXPECT_TRUE(isSame(numberIn(row.at(length + "_mm")), reported[length].get<double>())) << place;
          ++compared;
        }
      }
    }
  }
  EXPECT_EQ(compared, 4 * rows.size()) << "every row is in a report";
  EXPECT_GT(compared, 16'000U);
}

// Archives as other programs write them

class RowsOfArchives : public testing::TestWithParam<TarKind> {};

TEST_P(RowsOfArchives, areThoseOfTheFiles) {
  TarMembers members = documents(12);
  members[3].first = std::string(90, 'f') + "/" + std::string(90, 'n') + ".nascor";
  const std::string bytes = tarOf(members, GetParam());
  const Outcome outcome = run({"rows", "--tar", "-", "--file", "path"}, bytes);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const Outcome plain = run({"rows", "--tar", "-", "--file", "path"}, tarOf(members, kTarKinds[1]));
  EXPECT_EQ(outcome.out, plain.out);
  EXPECT_THAT(outcome.out, testing::HasSubstr("\n" + members[3].first + ",0,0,"));
}

/// Each block's end, and places that lie anywhere, in `size` bytes.
std::set<std::size_t> placesToCut(std::size_t size) {
  constexpr std::size_t kBlock = 512;
  constexpr int kDrawn = 12;
  std::set<std::size_t> places;
  for (std::size_t place = 0; place < size; place += kBlock) places.insert(place);
  std::mt19937 random(1);
  std::uniform_int_distribution<std::size_t> anywhere(0, size - 1);
  for (int i = 0; i < kDrawn; ++i) places.insert(anywhere(random));
  return places;
}

TEST_P(RowsOfArchives, endWithWholeRowsAndStatusOneWhereverTheArchiveIsCut) {
  const TarMembers members = documents(5);
  const std::string bytes = tarOf(members, GetParam());
  const auto whole = recordsOf(run({"rows", "--tar", "-"}, bytes).out);
  // How many records stand in front of those of each document: only there may they end.
  std::set<std::size_t> ends{1};
  for (std::size_t i = 1; i < whole.size(); ++i) {
    if (i + 1 == whole.size() || whole[i + 1][0] != whole[i][0]) ends.insert(i + 1);
  }
  ASSERT_EQ(ends.size(), members.size() + 1);
  for (const std::size_t length : placesToCut(bytes.size())) {
    SCOPED_TRACE(length);
    const Outcome outcome = run({"rows", "--tar", "-"}, bytes.substr(0, length));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, testing::HasSubstr("standard input: "));
    EXPECT_TRUE(outcome.out.ends_with('\n'));
    auto records = recordsOf(outcome.out);
    // A file that is cut has one row with an error, the last.
    if (records.size() > 1 && !records.back().back().empty()) records.pop_back();
    EXPECT_TRUE(ends.contains(records.size())) << records.size();
    ASSERT_LE(records.size(), whole.size());
    EXPECT_TRUE(std::equal(records.begin(), records.end(), whole.begin()));
  }
}

INSTANTIATE_TEST_SUITE_P(, RowsOfArchives, testing::ValuesIn(kTarKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

}  // namespace
}  // namespace nascor::tests
