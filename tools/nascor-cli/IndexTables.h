// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli_commands/IndexEntry.h"
#include "sqlite/RowSource.h"

namespace nascor::cli {

/// Of the tables below and of what stands in them.
constexpr std::int64_t kIndexVersion = 2;

/// Makes the tables. The rows of a document follow one another: `row_count` from the one whose `id` is `first_row`.
constexpr const char* kIndexTables = R"(
  CREATE TABLE about (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;
  CREATE TABLE documents (
    id INTEGER PRIMARY KEY,
    path TEXT NOT NULL UNIQUE,
    stamp TEXT NOT NULL,
    error TEXT,
    reference_id TEXT,
    edd TEXT,
    standard INTEGER,
    formula INTEGER,
    fetuses INTEGER,
    last_exam TEXT,
    last_ga_weeks REAL,
    last_ac_z REAL,
    first_row INTEGER NOT NULL,
    row_count INTEGER NOT NULL);
  CREATE TABLE rows (
    id INTEGER PRIMARY KEY,
    document INTEGER NOT NULL,
    exam INTEGER NOT NULL,
    fetus INTEGER NOT NULL,
    exam_date TEXT,
    ga_weeks REAL,
    bpd_mm REAL, hc_mm REAL, ac_mm REAL, fl_mm REAL,
    efw_g REAL,
    bpd_z REAL, hc_z REAL, ac_z REAL, fl_z REAL,
    note TEXT);
  CREATE VIRTUAL TABLE texts USING fts5 (
    reference_id, path, content = 'documents', content_rowid = 'id', tokenize = 'trigram');
)";

/// Removes those of any version.
constexpr const char* kNoIndexTables = R"(
  DROP TABLE texts;
  DROP TABLE rows;
  DROP TABLE documents;
  DROP TABLE about;
)";

/// What answers quickly who is due. Made when all documents are there: their days come in no order, and kept up meanwhile it
/// costs as much as the documents.
constexpr const char* kIndexByDay =
    "CREATE INDEX IF NOT EXISTS documents_by_edd ON documents (edd) WHERE edd IS NOT NULL";

/// A document as it comes into the index.
struct IndexedFile {
  std::string_view path;  ///< within the folder
  std::string_view stamp;
  const IndexEntry& entry;
};

/// Documents and their examinations as rows of the two tables, to be copied there by one statement each.
class IndexAddition {
 public:
  /// The numbers that they get are those behind the greatest in use.
  void begin(std::int64_t firstDocument, std::int64_t firstRow);
  /// What `file` refers to outlives the copying.
  void add(const IndexedFile& file);

  template <class Row>
  struct Column {
    const char* name;
    sqlite::Value (*value)(const Row&);
  };
  /// Rows whose columns are told by functions.
  template <class Row>
  class Rows : public sqlite::RowSource {
   public:
    explicit Rows(std::span<const Column<Row>> columns) : columns_(columns) {}

    void clear() { rows_.clear(); }
    void add(Row row) { rows_.push_back(std::move(row)); }

    /// Between commas.
    std::string columns() const {
      std::string names;
      for (const Column<Row>& column : columns_)
        names += (names.empty() ? "" : ", ") + std::string(column.name);
      return names;
    }
    std::size_t count() const noexcept override { return rows_.size(); }
    sqlite::Value value(std::size_t row, int column) const noexcept override {
      return columns_[static_cast<std::size_t>(column)].value(rows_[row]);
    }

   private:
    std::span<const Column<Row>> columns_;
    std::vector<Row> rows_;
  };

  struct DocumentRow {
    IndexedFile file;
    std::string error;  ///< empty: there is none
    std::int64_t firstRow;
  };
  struct ExaminationRow {
    std::int64_t document;
    const IndexedRow* row;
  };
  const Rows<DocumentRow>& documents() const { return documents_; }
  const Rows<ExaminationRow>& examinations() const { return examinations_; }

 private:
  static const std::array<Column<DocumentRow>, 13> kDocumentColumns;
  static const std::array<Column<ExaminationRow>, 15> kExaminationColumns;

  Rows<DocumentRow> documents_{kDocumentColumns};
  Rows<ExaminationRow> examinations_{kExaminationColumns};
  std::int64_t nextDocument_ = 0;
  std::int64_t nextRow_ = 0;
};

}  // namespace nascor::cli
