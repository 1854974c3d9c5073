// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/ClinicIndex.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <system_error>
#include <utility>

#include <sys/stat.h>

#include "cli_commands/DocumentSource.h"
#include "cli_commands/IndexEntry.h"
#include "cli_commands/IndexTables.h"
#include "cli_commands/OrderedWork.h"
#include "foundation/IsoDate.h"
#include "posix/FolderWalk.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

namespace {

using sqlite::Database;
using sqlite::Statement;

/// "NASC": says that a database is of this program.
constexpr std::int64_t kApplication = 0x4E415343;

std::int64_t integerOf(Database& database, const std::string& question) {
  Statement statement = database.prepare(question);
  const std::int64_t value = statement.next() ? statement.integer(0) : 0;
  statement.reset();
  return value;
}

void setAbout(Database& database, std::string_view name, std::string_view value) {
  database.prepare("INSERT OR REPLACE INTO about VALUES (?, ?)").bind(1, name).bind(2, value).run();
}

std::optional<std::string> about(Database& database, std::string_view name) {
  Statement statement = database.prepare("SELECT value FROM about WHERE name = ?");
  statement.bind(1, name);
  if (!statement.next()) return std::nullopt;
  std::string value(statement.text(0));
  statement.reset();
  return value;
}

/// Days depend on the zone of the process. Zones that keep the same time in these years are one.
std::string zoneText(const foundation::Calendar& calendar) {
  std::string text;
  constexpr double kQuarter = 91.0 * foundation::kSecondsPerDay;
  for (int quarter = 0; quarter < 4 * 40; ++quarter) {
    text += std::to_string(static_cast<int>(calendar.offsetFromUtc({kQuarter * quarter}) / 60.0)) + " ";
  }
  return text;
}

std::string timeText(const struct timespec& time) {
  return std::to_string(time.tv_sec) + "." + std::to_string(time.tv_nsec);
}

/// What tells a file from the same file changed.
std::string stampOf(const struct stat& status) {
  return std::to_string(status.st_size) + " " + std::to_string(status.st_ino) + " " +
         timeText(status.st_mtim) + " " + timeText(status.st_ctim);
}

/// Whether another change might leave the times of the file as they are.
bool isFresh(const struct stat& status) {
  constexpr std::time_t kShortly = 2;
  return std::max(status.st_mtim.tv_sec, status.st_ctim.tv_sec) + kShortly > std::time(nullptr);
}

/// The stamp of a document that is read again the next time, though it may be the same.
std::string doubtful(const std::string& stamp) { return "?" + stamp; }

std::string withSlash(std::string folder) {
  if (!folder.ends_with('/')) folder += '/';
  return folder;
}

/// A document that the index does not have as it is now.
struct Found {
  std::string path;
  std::string stamp;  ///< as it was before it is read
  /// Its number in the index, where an older state of it stands there.
  std::optional<std::int64_t> known{};
  bool isCounted = true;  ///< it is new or has changed; the others may have
};

struct ReadDocument {
  Found found;
  IndexEntry entry;
};

}  // namespace

/// One run over the folder. Documents and entries of the index both come in the order of the bytes of their paths, so that each
/// meets its own, and neither list is held.
class ClinicIndex::Update {
 public:
  using Complain = std::function<void(const std::string&, const Sentence&)>;

  Update(Database& database, Database& known, std::string folder, const Complain& complain)
      : database_(database),
        folder_(withSlash(std::move(folder))),
        complain_(complain),
        known_(known.prepare("SELECT id, path, stamp FROM documents ORDER BY path")),
        forgetTexts_(database.prepare("INSERT INTO texts (texts, rowid, reference_id, path) "
                                      "SELECT 'delete', id, reference_id, path FROM documents WHERE id = ?")),
        forgetRows_(
            database.prepare("DELETE FROM rows WHERE id >= (SELECT first_row FROM documents WHERE id = ?1) "
                             "AND id < (SELECT first_row + row_count FROM documents WHERE id = ?1)")),
        forgetDocument_(database.prepare("DELETE FROM documents WHERE id = ?")),
        addDocuments_(insertion("documents", addition_.documents())),
        addRows_(insertion("rows", addition_.examinations())),
        addTexts_(database.prepare("INSERT INTO texts (rowid, reference_id, path) "
                                   "SELECT id, reference_id, path FROM documents WHERE id >= ?")) {}

  IndexChanges run() {
    posix::FolderWalk walk(folder_, std::string(kDocumentSuffix));
    hasKnown_ = known_.next();
    while (auto found = walk.next()) {
      if (found->error.empty()) {
        meet(found->path);
      } else {
        // In the order in which they lie there.
        writeAll();
        complain_(found->path, Sentence::ofSystem(found->error));
        passOver(withSlash(found->path));
      }
    }
    while (hasKnown_) forgetKnown();
    known_.reset();
    writeAll();
    commit();
    database_.execute(kIndexByDay);
    return changes_;
  }

 private:
  static constexpr int kChangesInTransaction = 10'000;
  static constexpr std::size_t kDocumentsInBatch = 64;
  static constexpr std::size_t kBytesInBatch = 1U << 20U;
  static constexpr std::size_t kBatchesAtOnce = 3;

  struct Batch {
    std::vector<Found> documents{};
    std::size_t bytes = 0;
  };
  /// The statement that copies rows of the addition into `table`.
  template <class Rows>
  Statement insertion(const std::string& table, const Rows& rows) {
    const std::string source = "added_" + table;
    database_.show(rows, source, rows.columns());
    return database_.prepare("INSERT INTO " + table + " (" + rows.columns() + ") SELECT * FROM " + source);
  }

  std::vector<ReadDocument> readDocuments(Batch batch) const {
    std::vector<ReadDocument> documents;
    documents.reserve(batch.documents.size());
    for (Found& found : batch.documents) {
      IndexEntry entry = reader_.entryOf(found.path);
      documents.push_back({.found = std::move(found), .entry = std::move(entry)});
    }
    return documents;
  }

  std::string_view within(std::string_view path) const {
    return path.substr(std::min(folder_.size(), path.size()));
  }
  std::string_view knownPath() const { return known_.text(1); }

  void change() {
    if (pending_++ == 0) database_.execute("BEGIN IMMEDIATE");
  }
  void commit() {
    if (std::exchange(pending_, 0) == 0) return;
    // All at once: each statement that follows makes the index of texts write what it has.
    if (firstAdded_) addTexts_.bind(1, *std::exchange(firstAdded_, std::nullopt)).run();
    database_.execute("COMMIT");
  }
  void commitOften() {
    if (pending_ >= kChangesInTransaction) commit();
  }

  void forget(std::int64_t id) {
    forgetTexts_.bind(1, id).run();
    forgetRows_.bind(1, id).run();
    forgetDocument_.bind(1, id).run();
  }

  void forgetKnown() {
    change();
    forget(known_.integer(0));
    ++changes_.removed;
    hasKnown_ = known_.next();
    commitOften();
  }

  /// What lies in a folder that cannot be read now may still be there.
  void passOver(const std::string& folder) {
    const std::string_view prefix = within(folder);
    while (hasKnown_ && knownPath() < prefix) forgetKnown();
    for (; hasKnown_ && knownPath().starts_with(prefix); hasKnown_ = known_.next()) ++changes_.documents;
  }

  void meet(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return;  // gone meanwhile
    const std::string_view name = within(path);
    while (hasKnown_ && knownPath() < name) forgetKnown();
    const std::string stamp = stampOf(status);
    ++changes_.documents;
    Found found{.path = path, .stamp = isFresh(status) ? doubtful(stamp) : stamp};
    if (hasKnown_ && knownPath() == name) {
      const bool isSame = known_.text(2) == stamp;
      if (!isSame) found.known = known_.integer(0);
      found.isCounted = known_.text(2) != doubtful(stamp);
      hasKnown_ = known_.next();
      if (isSame) return;
    }
    read(std::move(found), static_cast<std::size_t>(std::max<off_t>(status.st_size, 0)));
  }

  /// Has the document read, and writes what was read before it.
  void read(Found found, std::size_t bytes) {
    batch_.documents.push_back(std::move(found));
    batch_.bytes += bytes;
    if (batch_.documents.size() < kDocumentsInBatch && batch_.bytes < kBytesInBatch) return;
    sendBatch();
    while (reading_.count() > kBatchesAtOnce) writeBatch();
  }
  void sendBatch() {
    if (!batch_.documents.empty()) reading_.add(std::exchange(batch_, {}));
  }
  void writeBatch() {
    std::vector<ReadDocument> documents = reading_.take();
    for (ReadDocument& document : documents) prepareToAdd(document);
    const std::int64_t first = behindGreatest("documents");
    if (!firstAdded_) firstAdded_ = first;
    addition_.begin(first, behindGreatest("rows"));
    for (const auto& [found, entry] : documents) addition_.add({within(found.path), found.stamp, entry});
    addDocuments_.run();
    addRows_.run();
    commitOften();
  }
  /// Everything that was found until now.
  void writeAll() {
    sendBatch();
    while (reading_.count() > 0) writeBatch();
  }

  void prepareToAdd(ReadDocument& document) {
    Found& found = document.found;
    change();
    if (found.known) forget(*found.known);
    if (found.isCounted) ++(found.known ? changes_.changed : changes_.added);
    if (!document.entry.fault) return;
    complain_(found.path, *document.entry.fault);
    // It may be readable tomorrow with the same times.
    if (document.entry.isFileAtFault && !found.stamp.starts_with('?')) found.stamp = doubtful(found.stamp);
  }

  /// The number that the next row of `table` gets.
  std::int64_t behindGreatest(const std::string& table) {
    return integerOf(database_, "SELECT max(id) FROM " + table) + 1;
  }

  Database& database_;
  std::string folder_;
  const Complain& complain_;
  Statement known_;
  bool hasKnown_ = false;
  Statement forgetTexts_;
  Statement forgetRows_;
  Statement forgetDocument_;
  IndexAddition addition_;
  Statement addDocuments_;
  Statement addRows_;
  Statement addTexts_;
  int pending_ = 0;
  std::optional<std::int64_t> firstAdded_;  // of the transaction
  IndexChanges changes_;
  IndexReader reader_;
  Batch batch_;
  /// Reads while this thread writes: either takes half of the time.
  OrderedWork<Batch, std::vector<ReadDocument>> reading_{
      1, [this](Batch batch) { return readDocuments(std::move(batch)); }};
};

ClinicIndex::ClinicIndex(const std::string& database, const std::string& folder)
    : path_(database), folder_(folder), database_(database, Database::Access::write) {
  const std::int64_t application = integerOf(database_, "PRAGMA application_id");
  const std::int64_t tables = integerOf(database_, "SELECT count(*) FROM sqlite_schema");
  if (application != kApplication && tables > 0) {
    //: Behind the name of a file, as are the next ones.
    throw IndexError(Sentence("CommandLine", "is a database of another program"));
  }
  // Large pages, since most of them are written once and in order.
  database_.execute(
      "PRAGMA page_size = 16384; PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA cache_size = "
      "-8192;");
  std::error_code error;
  const std::string absolute = std::filesystem::canonical(folder, error).string();
  const std::int64_t version = integerOf(database_, "PRAGMA user_version");
  if (version > kIndexVersion) {
    throw IndexError(
        Sentence("CommandLine", "was made by another version of this program: remove it, and make it anew"));
  }
  if (tables > 0) checkFolder(absolute);
  // One of an older version is made anew: whatever it holds is in the documents.
  const bool isOutdated = tables > 0 && version < kIndexVersion;
  const std::string zone = zoneText(posix::PosixCalendar());
  if (tables == 0 || isOutdated) {
    database_.execute(std::string("BEGIN IMMEDIATE;") + (isOutdated ? kNoIndexTables : "") +
                      "PRAGMA application_id = " + std::to_string(kApplication) +
                      "; PRAGMA user_version = " + std::to_string(kIndexVersion) + ";" + kIndexTables);
    setAbout(database_, "folder", absolute);
    setAbout(database_, "zone", zone);
    database_.execute("COMMIT");
    return;
  }
  if (about(database_, "zone") != zone) {
    database_.execute("BEGIN IMMEDIATE; UPDATE documents SET stamp = '';");
    setAbout(database_, "zone", zone);
    database_.execute("COMMIT");
  }
}

void ClinicIndex::checkFolder(const std::string& absolute) {
  const auto indexed = about(database_, "folder");
  if (indexed == absolute || absolute.empty()) return;
  const Sentence named = indexed ? Sentence::verbatim(*indexed) : Sentence("CommandLine", "no folder");
  throw IndexError(Sentence("CommandLine", "is the index of %1, not of %2").with(named, absolute));
}

IndexChanges ClinicIndex::bringUpToDate(
    const std::function<void(const std::string&, const Sentence&)>& complain) {
  Database known(path_, Database::Access::read);
  IndexChanges changes = Update(database_, known, folder_, complain).run();
  changes.unreadable = integerOf(database_, "SELECT count(*) FROM documents WHERE error IS NOT NULL");
  return changes;
}

namespace {

constexpr const char* kColumns = "path, reference_id, edd, fetuses, last_exam, last_ga_weeks, last_ac_z";

IndexedDocument documentOf(const Statement& row) {
  IndexedDocument document{.file = std::string(row.text(0)),
                           .referenceID = std::string(row.text(1)),
                           .edd = std::string(row.text(2)),
                           .fetuses = row.integer(3),
                           .lastExam = std::string(row.text(4)),
                           .lastAge = row.real(5)};
  if (!row.isNull(6)) document.acZ = row.real(6);
  return document;
}

std::string dayText(const foundation::CivilDay& day, const foundation::Calendar& calendar) {
  return foundation::isoDayText(foundation::startOfDay(day, calendar), calendar);
}

}  // namespace

IndexQueries::IndexQueries(const std::string& database) : database_(database, Database::Access::read) {
  if (integerOf(database_, "PRAGMA application_id") != kApplication)
    throw IndexError(Sentence("CommandLine", "is no index of this program"));
  if (integerOf(database_, "PRAGMA user_version") != kIndexVersion) {
    throw IndexError(
        Sentence("CommandLine", "was made by another version of this program: remove it, and make it anew"));
  }
}

void IndexQueries::due(const foundation::CivilDay& from, std::int64_t days,
                       const std::optional<double>& acBelow,
                       const std::function<void(const IndexedDocument&)>& use) {
  const posix::PosixCalendar calendar;
  const std::int64_t first = foundation::daysSince2001(from);
  const auto last = foundation::civilDayFromDaysSince2001(first + days);
  Statement statement =
      database_.prepare(std::string("SELECT ") + kColumns + " FROM documents WHERE edd >= ? AND edd <= ?" +
                        (acBelow ? " AND last_ac_z < ?" : "") + " ORDER BY edd, path");
  statement.bind(1, std::string_view(dayText(from, calendar)));
  statement.bind(2, last ? std::string_view(dayText(*last, calendar)) : std::string_view("9999-12-31"));
  if (acBelow) statement.bind(3, *acBelow);
  while (statement.next()) {
    IndexedDocument document = documentOf(statement);
    const auto edd = foundation::dateFromIsoText(document.edd, calendar);
    if (const auto day = edd ? foundation::localDay(*edd, calendar) : std::nullopt) {
      document.days = foundation::daysSince2001(*day) - first;
    }
    use(document);
  }
}

void IndexQueries::search(const std::string& text, std::int64_t most,
                          const std::function<void(const IndexedDocument&)>& use) {
  std::string quoted = "\"";
  for (const char byte : text) quoted.append(byte == '"' ? 2 : 1, byte);
  quoted += '"';
  Statement statement = database_.prepare(std::string("SELECT ") + kColumns +
                                          " FROM documents WHERE id IN (SELECT rowid FROM texts WHERE texts "
                                          "MATCH ? ORDER BY rowid LIMIT ?) ORDER BY id");
  statement.bind(1, std::string_view(quoted)).bind(2, most);
  while (statement.next()) use(documentOf(statement));
}

}  // namespace nascor::cli
