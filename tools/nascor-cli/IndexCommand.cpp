// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "cli_commands/ClinicIndex.h"
#include "cli_commands/Command.h"
#include "cli_commands/Numbers.h"
#include "cli_commands/Table.h"
#include "foundation/IsoDate.h"
#include "foundation/NumberText.h"
#include "foundation/Utf8.h"
#include "posix/PosixCalendar.h"
#include "posix/SystemClock.h"

namespace nascor::cli {

namespace {

constexpr std::int64_t kUsualDays = 28;
constexpr std::int64_t kUsualMost = 100;
constexpr OptionSpec kDatabase{"db", "FILE", translatable("CommandHelp", "the index")};
constexpr OptionSpec kJson{"json", "", translatable("CommandHelp", "a JSON object a line")};

std::string databaseOf(const Arguments& arguments) {
  const auto path = arguments.option("db");
  if (!path) throw UsageError(Sentence("CommandLine", "--db is missing: the file of the index"));
  return *path;
}

std::int64_t wholeNumberOf(const Arguments& arguments, std::string_view name, std::int64_t usual) {
  const auto text = arguments.option(name);
  if (!text) return usual;
  const auto number = wholeTextAs<std::int64_t>(*text);
  if (!number || *number < 0)
    refuseValue("--" + std::string(name), Sentence("CommandLine", "a whole number from 0"), *text);
  return std::min(*number, std::int64_t{10'000'000});
}

foundation::CivilDay dayOf(const Arguments& arguments) {
  const posix::PosixCalendar calendar;
  const auto text = arguments.option("from");
  const auto date = text ? foundation::dateFromIsoText(*text, calendar) : posix::SystemClock().now();
  const auto day = date ? foundation::localDay(*date, calendar) : std::nullopt;
  if (!day) refuseValue("--from", Sentence("CommandLine", "a day such as 2027-04-10"), text.value_or(""));
  return *day;
}

/// Runs `work`; what is wrong with the database is a complaint.
template <class Work>
void withDatabase(const std::string& path, Console& console, Work work) {
  try {
    work();
  } catch (const sqlite::DatabaseError& error) {
    console.complain(path, error.sentence());
  } catch (const IndexError& error) {
    console.complain(path, error.sentence());
  }
}

/// Prints what an index answers, as lines of JSON or one table.
class Answers {
 public:
  Answers(const Arguments& arguments, Console& console) : isJson_(arguments.has("json")), console_(console) {}

  void add(const IndexedDocument& document) {
    ++count_;
    if (isJson_) {
      addJson(document);
    } else {
      const auto shown = [](const std::string& text) {
        return text.empty() ? std::string("-") : foundation::oneLine(text);
      };
      table_.addRow({shown(document.edd), document.days ? std::to_string(*document.days) : "-",
                     shown(document.referenceID), std::to_string(document.fetuses), shown(document.lastExam),
                     document.lastAge == 0.0 ? "-" : foundation::fixedText(document.lastAge, 1),
                     document.acZ ? foundation::fixedText(*document.acZ, 2) : "-", shown(document.file)});
    }
  }

  std::int64_t count() const { return count_; }

  void print() {
    if (!isJson_) table_.print(console_);
  }

 private:
  void addJson(const IndexedDocument& document) {
    foundation::JsonText json(console_.out());
    const auto text = [&](std::string_view key, std::string_view value) {
      json.key(key);
      value.empty() ? json.null() : json.text(value);
    };
    json.beginObject();
    text("edd", document.edd);
    json.key("days");
    document.days ? json.integer(*document.days) : json.null();
    text("reference_id", document.referenceID);
    json.key("fetuses").integer(document.fetuses);
    text("last_exam", document.lastExam);
    json.key("ga_weeks");
    document.lastAge == 0.0 ? json.null() : json.number(document.lastAge);
    json.key("ac_z");
    document.acZ ? json.number(*document.acZ) : json.null();
    text("file", document.file);
    json.endObject();
    console_.lineDone();
  }

  bool isJson_;
  Console& console_;
  std::int64_t count_ = 0;
  Table table_{{{"EDD"},
                {"Days", Table::Align::right},
                {"Reference ID"},
                {"Fetuses", Table::Align::right},
                {"Last exam"},
                {"Weeks", Table::Align::right},
                {"AC z", Table::Align::right},
                {"File"}}};
};

void runIndex(const Arguments& arguments, Console& console) {
  const std::string path = databaseOf(arguments);
  const std::string& folder = arguments.operands.front();
  std::error_code error;
  if (!std::filesystem::is_directory(folder, error)) {
    const std::string reason = error ? error.message() : std::generic_category().message(ENOTDIR);
    console.complain(folder, Sentence::ofSystem(reason));
    return;
  }
  withDatabase(path, console, [&] {
    ClinicIndex index(path, folder);
    const IndexChanges changes = index.bringUpToDate(
        [&](const std::string& file, const Sentence& sentence) { console.complain(file, sentence); });
    const std::array<std::pair<const char*, std::int64_t>, 5> counts{{{"documents", changes.documents},
                                                                      {"added", changes.added},
                                                                      {"changed", changes.changed},
                                                                      {"removed", changes.removed},
                                                                      {"unreadable", changes.unreadable}}};
    if (arguments.has("json")) {
      foundation::JsonText json(console.out());
      json.beginObject();
      for (const auto& [name, count] : counts) json.key(name).integer(count);
      json.endObject();
    } else {
      for (const auto& [name, count] : counts) {
        console.out() +=
            (name == counts.front().first ? "" : ", ") + std::string(name) + " " + std::to_string(count);
      }
    }
    console.lineDone();
  });
}

void runDue(const Arguments& arguments, Console& console) {
  const std::string path = databaseOf(arguments);
  const foundation::CivilDay from = dayOf(arguments);
  const std::int64_t days = wholeNumberOf(arguments, "days", kUsualDays);
  const auto limit = arguments.option("ac-below");
  const auto acBelow = limit ? std::optional(requiredNumber("--ac-below", *limit)) : std::nullopt;
  withDatabase(path, console, [&] {
    Answers answers(arguments, console);
    IndexQueries(path).due(from, days, acBelow,
                           [&](const IndexedDocument& document) { answers.add(document); });
    answers.print();
  });
}

void runSearch(const Arguments& arguments, Console& console) {
  constexpr std::size_t kLeast = 3;
  const std::string path = databaseOf(arguments);
  const std::string& text = arguments.operands.front();
  if (foundation::codePoints(text) < kLeast)
    refuseValue("TEXT", Sentence("CommandLine", "three characters or more"), text);
  const std::int64_t most = wholeNumberOf(arguments, "limit", kUsualMost);
  withDatabase(path, console, [&] {
    Answers answers(arguments, console);
    // One more says that there are more.
    IndexQueries(path).search(text, most + 1, [&](const IndexedDocument& document) {
      if (answers.count() < most) {
        answers.add(document);
      } else {
        console.warn(path,
                     Sentence("CommandLine", "there are more than %1: a longer text, or --limit, shows them")
                         .with(most));
      }
    });
    answers.print();
  });
}

}  // namespace

Command indexCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{.name = "FOLDER",
        .help = translatable("CommandHelp", "the documents, *.nascor in it and in the folders in it")}}};
  static constexpr std::array<OptionSpec, 2> kOptions{
      {{"db", "FILE", translatable("CommandHelp", "the index, made where there is none")},
       {"json", "", translatable("CommandHelp", "the counts as a JSON object")}}};
  return {.name = "index",
          .usage = "FOLDER --db FILE [--json]",
          .summary = translatable(
              "CommandHelp", "Keeps what the documents of a folder say in a database, for due and search."),
          .details = Sentence(
              "CommandHelp",
              "Only documents that are new or have changed are read; those that are gone leave the index. A "
              "run that\n"
              "is ended in the middle, however that happens, leaves an index that the next run completes.\n"
              "The file is an SQLite database that its owner alone can read: it holds reference IDs, notes "
              "and names\n"
              "of files. Its tables documents and rows may be read by other programs.\n"),
          .operands = kOperands,
          .options = kOptions,
          .run = runIndex};
}

Command dueCommand() {
  static constexpr std::array<OptionSpec, 5> kOptions{
      {kDatabase,
       {"from", "DAY", translatable("CommandHelp", "the first day, such as 2027-04-10; without it today")},
       {"days", "N", translatable("CommandHelp", "how many days behind that; without it 28")},
       {"ac-below", "Z",
        translatable("CommandHelp", "only with an AC, the last of one fetus, whose z-score is below this")},
       kJson}};
  return {
      .name = "due",
      .usage = "--db FILE [--from DAY] [--days N] [--ac-below Z] [--json]",
      .summary = translatable(
          "CommandHelp", "Who is due, from an index: by EDD, with the last examination and the lowest AC."),
      .details = Sentence(
          "CommandHelp",
          "AC z is the lowest, over the fetuses, of the z-score of the last AC that was measured, by the "
          "growth\n"
          "standard of the document. It lists what the index held when it was last brought up to date.\n"),
      .operands = {},
      .options = kOptions,
      .run = runDue};
}

Command searchCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{.name = "TEXT",
        .help =
            translatable("CommandHelp",
                         "three characters or more of a reference ID or of a file's path; large or small")}}};
  static constexpr std::array<OptionSpec, 3> kOptions{
      {kDatabase,
       {"limit", "N", translatable("CommandHelp", "not more than so many; without it 100")},
       kJson}};
  return {.name = "search",
          .usage = "TEXT --db FILE [--limit N] [--json]",
          .summary = translatable("CommandHelp",
                                  "Documents by a part of their reference ID or name, from an index."),
          .details = {},
          .operands = kOperands,
          .options = kOptions,
          .run = runSearch};
}

}  // namespace nascor::cli
