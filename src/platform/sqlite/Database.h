// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/Sentence.h"
#include "sqlite/RowSource.h"

struct sqlite3;
struct sqlite3_stmt;

namespace nascor::sqlite {

/// The database cannot be read or written: a sentence without its name.
class DatabaseError : public foundation::SpokenError {
 public:
  using SpokenError::SpokenError;
};

/// A statement, run as often as wanted. It must not outlive its database. All functions throw DatabaseError.
class Statement {
 public:
  /// Parameters count from 1 and keep their values until they are bound anew.
  Statement& bind(int parameter, std::int64_t value);
  Statement& bind(int parameter, double value);
  Statement& bind(int parameter, std::string_view value);
  Statement& bindNull(int parameter);
  template <class Value>
  Statement& bind(int parameter, const std::optional<Value>& value) {
    return value ? bind(parameter, *value) : bindNull(parameter);
  }

  /// True for each row; false at the end, and the statement can be run again.
  bool next();
  /// Goes to the end.
  void run();
  /// Leaves the rows that were not looked at.
  void reset();

  // Of the row, columns from 0. Texts are valid until `next`.
  bool isNull(int column) const;
  std::int64_t integer(int column) const;
  double real(int column) const;
  std::string_view text(int column) const;

 private:
  friend class Database;
  explicit Statement(sqlite3_stmt* statement);
  void check(int result) const;

  std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> statement_;
};

/// A database in one file.
class Database {
 public:
  enum class Access {
    read,  ///< the file must be there
    write  ///< a file that is not there is made, for its owner alone
  };

  /// Waits for some seconds where another process writes. Throws DatabaseError.
  Database(const std::string& path, Access access);

  /// Runs statements that have no rows and no parameters.
  void execute(const std::string& statements);
  Statement prepare(std::string_view statement);
  /// From now on statements of this database can read `rows`, which outlives them, as the table `name`, with these columns,
  /// between commas.
  void show(const RowSource& rows, const std::string& name, const std::string& columns);

 private:
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> database_;
};

}  // namespace nascor::sqlite
