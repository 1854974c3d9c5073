// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/IndexTables.h"

#include <cmath>

namespace nascor::cli {

namespace {

using sqlite::Value;
using Document = IndexAddition::DocumentRow;
using Examination = IndexAddition::ExaminationRow;

Value unlessUnknown(double value) { return value == 0.0 || !std::isfinite(value) ? Value() : Value(value); }

Value unlessInfinite(double value) { return std::isfinite(value) ? Value(value) : Value(); }

Value unlessEmpty(std::string_view text) { return text.empty() ? Value() : Value(text); }

/// What only a document that could be read says.
template <auto field>
Value ifReadable(const Document& row) {
  return row.file.entry.fault ? Value() : Value(row.file.entry.*field);
}

template <calc::Measurement measurement>
Value length(const Examination& row) {
  return unlessUnknown(row.row->lengths.*calc::memberFor(measurement));
}

template <calc::Measurement measurement>
Value zScore(const Examination& row) {
  return unlessInfinite(row.row->zScores[static_cast<std::size_t>(measurement)]);
}

}  // namespace

const std::array<IndexAddition::Column<Document>, 13> IndexAddition::kDocumentColumns{{
    {"path", [](const Document& row) { return Value(row.file.path); }},
    {"stamp", [](const Document& row) { return Value(row.file.stamp); }},
    {"error", [](const Document& row) { return unlessEmpty(row.error); }},
    {"reference_id",
     [](const Document& row) {
       const auto& referenceID = row.file.entry.referenceID;
       return referenceID ? Value(*referenceID) : Value();
     }},
    {"edd", [](const Document& row) { return unlessEmpty(row.file.entry.edd); }},
    {"standard", ifReadable<&IndexEntry::standard>},
    {"formula", ifReadable<&IndexEntry::formula>},
    {"fetuses", ifReadable<&IndexEntry::fetuses>},
    {"last_exam", [](const Document& row) { return unlessEmpty(row.file.entry.lastExam); }},
    {"last_ga_weeks", [](const Document& row) { return unlessUnknown(row.file.entry.lastAge); }},
    {"last_ac_z",
     [](const Document& row) {
       const auto& acZ = row.file.entry.acZ;
       return acZ ? Value(*acZ) : Value();
     }},
    {"first_row", [](const Document& row) { return Value(row.firstRow); }},
    {"row_count",
     [](const Document& row) { return Value(static_cast<std::int64_t>(row.file.entry.rows.size())); }},
}};

const std::array<IndexAddition::Column<Examination>, 15> IndexAddition::kExaminationColumns{{
    {"document", [](const Examination& row) { return Value(row.document); }},
    {"exam", [](const Examination& row) { return Value(row.row->examination); }},
    {"fetus", [](const Examination& row) { return Value(row.row->fetus); }},
    {"exam_date", [](const Examination& row) { return unlessEmpty(row.row->examDate); }},
    {"ga_weeks", [](const Examination& row) { return unlessUnknown(row.row->age); }},
    {"bpd_mm", length<calc::Measurement::bpd>},
    {"hc_mm", length<calc::Measurement::hc>},
    {"ac_mm", length<calc::Measurement::ac>},
    {"fl_mm", length<calc::Measurement::fl>},
    {"efw_g", [](const Examination& row) { return unlessUnknown(row.row->weight); }},
    {"bpd_z", zScore<calc::Measurement::bpd>},
    {"hc_z", zScore<calc::Measurement::hc>},
    {"ac_z", zScore<calc::Measurement::ac>},
    {"fl_z", zScore<calc::Measurement::fl>},
    {"note", [](const Examination& row) { return unlessEmpty(row.row->note); }},
}};

void IndexAddition::begin(std::int64_t firstDocument, std::int64_t firstRow) {
  documents_.clear();
  examinations_.clear();
  nextDocument_ = firstDocument;
  nextRow_ = firstRow;
}

void IndexAddition::add(const IndexedFile& file) {
  // Other programs read the index: it is the same in every language.
  documents_.add({file, file.entry.fault ? english(*file.entry.fault) : std::string(), nextRow_});
  for (const IndexedRow& row : file.entry.rows) examinations_.add({nextDocument_, &row});
  ++nextDocument_;
  nextRow_ += static_cast<std::int64_t>(file.entry.rows.size());
}

}  // namespace nascor::cli
