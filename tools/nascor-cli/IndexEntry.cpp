// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/IndexEntry.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "calc/Centile.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "foundation/IsoDate.h"
#include "posix/PosixFileStore.h"
#include "rows/PatientRows.h"

namespace nascor::cli {

namespace {

constexpr auto kAbdomen = static_cast<std::size_t>(calc::Measurement::ac);

/// What a fetus's last measured AC says.
struct LastAC {
  std::string_view day{};
  double zScore = 0.0;
};

std::optional<double> leastLastAC(const std::vector<IndexedRow>& rows) {
  std::vector<LastAC> last;
  for (const IndexedRow& row : rows) {
    const auto fetus = static_cast<std::size_t>(row.fetus);
    if (last.size() <= fetus) last.resize(fetus + 1);
    const double zScore = row.zScores[kAbdomen];
    if (std::isfinite(zScore) && row.examDate >= last[fetus].day) last[fetus] = {row.examDate, zScore};
  }
  std::optional<double> least;
  for (const LastAC& each : last) {
    if (!each.day.empty()) least = std::min(least.value_or(each.zScore), each.zScore);
  }
  return least;
}

}  // namespace

IndexReader::IndexReader() {
  for (std::size_t standard = 0; standard < tables_.size(); ++standard) {
    for (const calc::Measurement measurement : calc::kMeasurements) {
      calc::appendStandard(tables_[standard].at(static_cast<std::size_t>(measurement)),
                           static_cast<std::int64_t>(standard), measurement);
    }
  }
}

IndexEntry IndexReader::entryOf(const std::string& path) const {
  IndexEntry entry;
  auto contents = posix::PosixFileStore::contentsOfListed(path);
  if (const auto* error = std::get_if<foundation::FileError>(&contents)) {
    entry.fault = reasonOf(*error);
    entry.isFileAtFault = true;
    return entry;
  }
  const auto document = documentFrom(std::get<0>(contents));
  if (const auto* sentence = std::get_if<Sentence>(&document)) {
    entry.fault = *sentence;
  } else {
    describe(entry, *std::get<0>(document).patient);
  }
  return entry;
}

void IndexReader::describe(IndexEntry& entry, const model::PatientRecord& patient) const {
  entry.referenceID = patient.maternalIDString();
  if (patient.edd()) entry.edd = foundation::isoDayText(*patient.edd(), calendar_);
  entry.standard = patient.standard();
  entry.formula = patient.fetalWeightStandard();
  entry.fetuses = patient.numberOfFetuses();
  rows::forEachRow(patient, {}, calendar_, [&](const rows::Row& row) {
    entry.rows.push_back({.examination = static_cast<std::int64_t>(row.examination),
                          .fetus = static_cast<std::int64_t>(row.fetus),
                          .examDate = std::string(row.examDate),
                          .age = row.age,
                          .lengths = row.lengths,
                          .weight = calc::estimatedFetalWeight(row.lengths, entry.formula),
                          .zScores = zScores(row.lengths, row.age, row.standard),
                          .note = std::string(row.note)});
    if (!row.examDate.empty() && row.examDate >= entry.lastExam) {
      entry.lastExam = row.examDate;
      entry.lastAge = row.age;
    }
  });
  entry.acZ = leastLastAC(entry.rows);
}

std::array<double, 4> IndexReader::zScores(const calc::Biometry& lengths, double age,
                                           std::int64_t standard) const {
  std::array<double, 4> scores{NAN, NAN, NAN, NAN};
  if (!calc::growthStandard(standard) || age == 0.0) return scores;
  const auto& tables = tables_[static_cast<std::size_t>(standard)];
  for (std::size_t i = 0; i < scores.size(); ++i) {
    const double length = lengths.*calc::memberFor(calc::kMeasurements.at(i));
    if (length != 0.0) scores.at(i) = calc::zScore(tables.at(i), length, age);
  }
  return scores;
}

}  // namespace nascor::cli
