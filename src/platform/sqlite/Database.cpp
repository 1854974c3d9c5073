// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "sqlite/Database.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include "sqlite/ShowRows.h"

namespace nascor::sqlite {

using foundation::Sentence;

namespace {

constexpr int kPatienceInMilliseconds = 10'000;

/// A file that only its owner can read, before the library would make one that others can.
void makePrivate(const std::string& path) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file >= 0) {
    ::close(file);
  } else if (errno != EEXIST) {
    throw DatabaseError(Sentence::ofSystem(std::generic_category().message(errno)));
  }
}

}  // namespace

Statement::Statement(sqlite3_stmt* statement) : statement_(statement, ::sqlite3_finalize) {}

void Statement::check(int result) const {
  if (result != SQLITE_OK)
    throw DatabaseError(Sentence::verbatim(::sqlite3_errmsg(::sqlite3_db_handle(statement_.get()))));
}

Statement& Statement::bind(int parameter, std::int64_t value) {
  check(::sqlite3_bind_int64(statement_.get(), parameter, value));
  return *this;
}

Statement& Statement::bind(int parameter, double value) {
  check(::sqlite3_bind_double(statement_.get(), parameter, value));
  return *this;
}

Statement& Statement::bind(int parameter, std::string_view value) {
  // A text without a place would be none.
  const char* text = value.empty() ? "" : value.data();
  check(
      ::sqlite3_bind_text64(statement_.get(), parameter, text, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

Statement& Statement::bindNull(int parameter) {
  check(::sqlite3_bind_null(statement_.get(), parameter));
  return *this;
}

bool Statement::next() {
  const int result = ::sqlite3_step(statement_.get());
  if (result == SQLITE_ROW) return true;
  check(::sqlite3_reset(statement_.get()));
  return false;
}

void Statement::run() {
  while (next()) continue;
}

void Statement::reset() { ::sqlite3_reset(statement_.get()); }

bool Statement::isNull(int column) const {
  return ::sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const { return ::sqlite3_column_int64(statement_.get(), column); }

double Statement::real(int column) const { return ::sqlite3_column_double(statement_.get(), column); }

std::string_view Statement::text(int column) const {
  const auto* bytes = static_cast<const char*>(::sqlite3_column_blob(statement_.get(), column));
  const auto size = static_cast<std::size_t>(::sqlite3_column_bytes(statement_.get(), column));
  return bytes == nullptr ? std::string_view() : std::string_view(bytes, size);
}

Database::Database(const std::string& path, Access access) : database_(nullptr, ::sqlite3_close) {
  const bool isWritten = access == Access::write;
  if (isWritten) makePrivate(path);
  sqlite3* database = nullptr;
  // One thread uses it, so it needs no locks within this process.
  const int flags = SQLITE_OPEN_NOMUTEX | (isWritten ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY);
  const int result = ::sqlite3_open_v2(path.c_str(), &database, flags, nullptr);
  database_.reset(database);
  if (result != SQLITE_OK) {
    throw DatabaseError(
        Sentence::verbatim(database == nullptr ? ::sqlite3_errstr(result) : ::sqlite3_errmsg(database)));
  }
  ::sqlite3_busy_timeout(database, kPatienceInMilliseconds);
}

void Database::execute(const std::string& statements) {
  if (::sqlite3_exec(database_.get(), statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw DatabaseError(Sentence::verbatim(::sqlite3_errmsg(database_.get())));
  }
}

Statement Database::prepare(std::string_view statement) {
  sqlite3_stmt* prepared = nullptr;
  const int result = ::sqlite3_prepare_v2(database_.get(), statement.data(),
                                          static_cast<int>(statement.size()), &prepared, nullptr);
  if (result != SQLITE_OK) throw DatabaseError(Sentence::verbatim(::sqlite3_errmsg(database_.get())));
  return Statement(prepared);
}

void Database::show(const RowSource& rows, const std::string& name, const std::string& columns) {
  if (showRows(database_.get(), rows, name, columns) != SQLITE_OK)
    throw DatabaseError(Sentence::verbatim(::sqlite3_errmsg(database_.get())));
}

}  // namespace nascor::sqlite
