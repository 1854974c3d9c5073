// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "foundation/Calendar.h"
#include "foundation/Sentence.h"
#include "sqlite/Database.h"

namespace nascor::cli {

/// The database is no index of this program, or one of another folder: a sentence.
class IndexError : public foundation::SpokenError {
 public:
  using SpokenError::SpokenError;
};

/// What happened to the documents of a folder since the index was last brought up to date.
struct IndexChanges {
  std::int64_t documents = 0;  ///< in the index now
  std::int64_t added = 0;
  std::int64_t changed = 0;
  std::int64_t removed = 0;
  std::int64_t unreadable = 0;  ///< among the documents
};

/// Keeps what the documents of one folder say in a database. Every change is made whole or not at all, so a process that is
/// killed leaves an index that is right for the documents that it holds, and the next run goes on from there.
///
/// An index of an older version of this program is made anew. A document is read again when its size, inode, or one of its times is another than when it was read. Throws DatabaseError
/// and IndexError.
class ClinicIndex {
 public:
  /// Opens the index in `database`, or makes it, readable by its owner alone. `folder` is the folder of which it is.
  ClinicIndex(const std::string& database, const std::string& folder);

  /// Reads what is new or has changed, and forgets what is gone. What cannot be read is told to `complain`: a path and a
  /// sentence. What stands in a folder that cannot be read stays as it was.
  IndexChanges bringUpToDate(
      const std::function<void(const std::string&, const foundation::Sentence&)>& complain);

 private:
  class Update;

  /// Throws IndexError where the index is of another folder than `absolute`.
  void checkFolder(const std::string& absolute);

  std::string path_;
  std::string folder_;
  sqlite::Database database_;
};

/// A document of an index.
struct IndexedDocument {
  std::string file;  ///< within the folder
  std::string referenceID;
  std::string edd;                     ///< an ISO day; empty: unknown
  std::optional<std::int64_t> days{};  ///< from the day asked for to the EDD
  std::int64_t fetuses = 0;
  std::string lastExam;  ///< an ISO day; empty: none is dated
  double lastAge = 0.0;  ///< weeks; 0.0: unknown
  /// The least, over the fetuses, of the z-score of the last AC that was measured, by the standard of the document.
  std::optional<double> acZ{};
};

/// What an index answers. Throws DatabaseError and IndexError.
class IndexQueries {
 public:
  explicit IndexQueries(const std::string& database);

  /// The documents whose EDD is `from` or one of the `days` days behind it, by EDD; with `acBelow` those whose `acZ` lies
  /// below it.
  void due(const foundation::CivilDay& from, std::int64_t days, const std::optional<double>& acBelow,
           const std::function<void(const IndexedDocument&)>& use);

  /// Documents whose reference ID or path holds `text`, of three characters or more, whatever the size of its letters; not more
  /// than `most`.
  void search(const std::string& text, std::int64_t most,
              const std::function<void(const IndexedDocument&)>& use);

 private:
  sqlite::Database database_;
};

}  // namespace nascor::cli
