// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "sqlite/ShowRows.h"

#include <memory>
#include <new>

#include <sqlite3.h>

namespace nascor::sqlite {

namespace {

/// What the library is given to make the table of.
struct Shown {
  const RowSource& rows;
  std::string declaration;
};

// The library knows both by their first members, whose places are theirs.
struct Table {
  sqlite3_vtab base;
  const RowSource* rows;
};

struct Cursor {
  sqlite3_vtab_cursor base;
  const RowSource* rows;
  std::size_t row;
};

const RowSource* rowsOf(sqlite3_vtab* table) { return reinterpret_cast<Table*>(table)->rows; }

Cursor& of(sqlite3_vtab_cursor* cursor) { return *reinterpret_cast<Cursor*>(cursor); }

int connect(sqlite3* database, void* data, int /*count*/, const char* const* /*arguments*/,
            sqlite3_vtab** table, char** /*message*/) {
  const Shown& shown = *static_cast<const Shown*>(data);
  std::unique_ptr<Table> made(new (std::nothrow) Table{{}, &shown.rows});
  if (!made) return SQLITE_NOMEM;
  const int result = ::sqlite3_declare_vtab(database, shown.declaration.c_str());
  if (result == SQLITE_OK) *table = &made.release()->base;
  return result;
}

int disconnect(sqlite3_vtab* table) {
  delete reinterpret_cast<Table*>(table);
  return SQLITE_OK;
}

/// There is one way through: from the first to the last.
int plan(sqlite3_vtab* /*table*/, sqlite3_index_info* /*info*/) { return SQLITE_OK; }

int open(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor) {
  auto* made = new (std::nothrow) Cursor{{}, rowsOf(table), 0};
  if (made == nullptr) return SQLITE_NOMEM;
  *cursor = &made->base;
  return SQLITE_OK;
}

int close(sqlite3_vtab_cursor* cursor) {
  delete &of(cursor);
  return SQLITE_OK;
}

int begin(sqlite3_vtab_cursor* cursor, int /*plan*/, const char* /*text*/, int /*count*/,
          sqlite3_value** /*values*/) {
  of(cursor).row = 0;
  return SQLITE_OK;
}

int next(sqlite3_vtab_cursor* cursor) {
  ++of(cursor).row;
  return SQLITE_OK;
}

int isAtEnd(sqlite3_vtab_cursor* cursor) { return of(cursor).row >= of(cursor).rows->count() ? 1 : 0; }

int rowNumber(sqlite3_vtab_cursor* cursor, sqlite3_int64* number) {
  *number = static_cast<sqlite3_int64>(of(cursor).row);
  return SQLITE_OK;
}

int value(sqlite3_vtab_cursor* cursor, sqlite3_context* result, int column) {
  const Value shown = of(cursor).rows->value(of(cursor).row, column);
  if (const auto* whole = std::get_if<std::int64_t>(&shown)) {
    ::sqlite3_result_int64(result, *whole);
  } else if (const auto* real = std::get_if<double>(&shown)) {
    ::sqlite3_result_double(result, *real);
  } else if (const auto* text = std::get_if<std::string_view>(&shown)) {
    // A text without a place would be none.
    ::sqlite3_result_text64(result, text->empty() ? "" : text->data(), text->size(), SQLITE_STATIC,
                            SQLITE_UTF8);
  }
  return SQLITE_OK;
}

/// Without a way to create one: the table is there by its name alone.
constexpr sqlite3_module moduleOfRows() {
  sqlite3_module module{};
  module.xConnect = connect;
  module.xBestIndex = plan;
  module.xDisconnect = disconnect;
  module.xOpen = open;
  module.xClose = close;
  module.xFilter = begin;
  module.xNext = next;
  module.xEof = isAtEnd;
  module.xColumn = value;
  module.xRowid = rowNumber;
  return module;
}

}  // namespace

int showRows(sqlite3* database, const RowSource& rows, const std::string& name, const std::string& columns) {
  static constexpr sqlite3_module kModule = moduleOfRows();
  return ::sqlite3_create_module_v2(database, name.c_str(), &kModule,
                                    new Shown{rows, "CREATE TABLE shown (" + columns + ")"},
                                    [](void* shown) { delete static_cast<Shown*>(shown); });
}

}  // namespace nascor::sqlite
