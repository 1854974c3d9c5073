// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <utility>

#include "cli_commands/Command.h"
#include "cli_commands/DocumentSource.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Numbers.h"
#include "cli_commands/OrderedWork.h"
#include "cli_commands/RowOptions.h"
#include "foundation/Progress.h"
#include "posix/PosixCalendar.h"
#include "rows/PatientRows.h"

namespace nascor::cli {

namespace {

constexpr std::size_t kMostJobs = 256;

/// What is asked for.
struct RowsOptions {
  rows::Choice choice;
  std::vector<rows::Column> columns;
  rows::RowFormat::Settings settings;
  bool hasHeader = true;
  bool isStrict = false;
  std::size_t jobs = 1;
};

std::vector<rows::Column> columnsOf(const rows::Choice& choice,
                                    const std::optional<std::vector<std::string>>& names) {
  if (!names) return rows::patientColumns(choice);
  const auto all = rows::everyPatientColumn(choice.identified, choice.datesAreRelative);
  const auto others = rows::everyPatientColumn(true, !choice.datesAreRelative);
  std::vector<rows::Column> columns;
  for (const std::string& name : *names) {
    const auto found = std::ranges::find(all, name, &rows::Column::name);
    if (found != all.end()) {
      columns.push_back(*found);
      continue;
    }
    const auto other = std::ranges::find(others, name, &rows::Column::name);
    if (other == others.end())
      throw UsageError(Sentence("CommandLine", "--columns: there is no column \"%1\"").with(name));
    using enum rows::Content;
    if (other->content == referenceID || other->content == note) {
      throw UsageError(Sentence("CommandLine", "--columns: %1 needs --identify").with(name));
    }
    const Sentence why =
        choice.datesAreRelative
            ? Sentence("CommandLine", "--columns: %1 is a date, which --relative-dates leaves out")
            : Sentence("CommandLine", "--columns: %1 needs --relative-dates");
    throw UsageError(why.with(name));
  }
  return columns;
}

bool namesFiles(const Arguments& arguments) {
  const auto kind = arguments.option("file");
  if (!kind) return arguments.has("identify");
  if (*kind != "number" && *kind != "path")
    throw UsageError(Sentence("CommandLine", "--file: expected number or path"));
  return *kind == "path";
}

rows::Style styleOf(const Arguments& arguments) {
  const std::string format = arguments.option("format").value_or("csv");
  if (format != "csv" && format != "jsonl")
    throw UsageError(Sentence("CommandLine", "--format: expected csv or jsonl"));
  return format == "csv" ? rows::Style::csv : rows::Style::jsonLines;
}

std::size_t jobsOf(const Arguments& arguments) {
  const auto text = arguments.option("jobs");
  if (!text) return 1;
  const auto jobs = wholeTextAs<std::size_t>(*text);
  if (!jobs || *jobs == 0) {
    refuseValue("--jobs", Sentence("CommandLine", "a whole number above 0"), *text);
  }
  return std::min(*jobs, kMostJobs);
}

RowsOptions optionsOf(const Arguments& arguments) {
  RowsOptions options{.choice = {.standards = chosenStandards(arguments),
                                 .formula = chosenFormula(arguments),
                                 .identified = arguments.has("identify"),
                                 .datesAreRelative = arguments.has("relative-dates")},
                      .columns = {},
                      .settings = {.style = styleOf(arguments),
                                   .isFixed = arguments.has("fixed"),
                                   .namesFiles = namesFiles(arguments)},
                      .hasHeader = !arguments.has("no-header"),
                      .isStrict = arguments.has("strict"),
                      .jobs = jobsOf(arguments)};
  options.columns = columnsOf(options.choice, chosenColumnNames(arguments));
  return options;
}

/// The names of documents; nothing for an archive.
std::optional<Names> namesOf(const Arguments& arguments) {
  const auto list = arguments.option("files-from");
  const auto& paths = arguments.operands;
  if (arguments.has("null") && !list) throw UsageError(Sentence("CommandLine", "--null needs --files-from"));
  if (arguments.has("tar")) {
    if (list || !paths.empty())
      throw UsageError(Sentence("CommandLine", "--tar stands alone, without PATH and --files-from"));
    return std::nullopt;
  }
  const auto inputs = std::ranges::count(paths, "-") + (list == "-" ? 1 : 0);
  if (inputs > 1) throw UsageError(Sentence("CommandLine", "standard input (-) can be read once only"));
  if (paths.empty() && !list)
    throw UsageError(Sentence("CommandLine", "a PATH, --files-from or --tar is missing"));
  return Names{.paths = paths, .listPath = list, .listEnd = arguments.has("null") ? '\0' : '\n'};
}

/// Several documents, so that threads meet rarely.
struct Batch {
  std::vector<PendingDocument> documents;
  std::size_t bytes = 0;  // that it holds itself
};

struct Complaint {
  std::size_t at;  // of the rows
  std::string source;
  Sentence sentence;
};

/// What came of a batch.
struct Finished {
  std::string rows;
  std::vector<Complaint> complaints;
  std::size_t documents = 0;
  std::size_t bytes = 0;
  bool isLast = false;  // of a strict run
};

/// What quotation marks hold in a sentence is of the document, perhaps the reference ID where it does not belong.
std::string withoutQuotes(std::string sentence) {
  const std::size_t first = sentence.find('"');
  const std::size_t last = sentence.rfind('"');
  if (first != last) sentence.replace(first + 1, last - first - 1, "...");
  return sentence;
}

/// The changing line on a terminal's standard error; nothing elsewhere.
class ProgressLine {
 public:
  ProgressLine(const Console& console, std::optional<std::uint64_t> total)
      : isShown_(console.errorsAloneAreSeen()),
        progress_(static_cast<std::int64_t>(total.value_or(0)), now()),
        localizer_(console.localizer()) {}
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine() { wipe(); }

  void add(std::size_t documents) {
    if (!isShown_) return;
    done_ += static_cast<std::int64_t>(documents);
    progress_.set(done_, now());
    if (!progress_.isDue()) return;
    Console::writeError(progress_.line(localizer_));
    isThere_ = true;
  }

  /// Before anything else is said.
  void wipe() {
    if (std::exchange(isThere_, false)) Console::writeError(foundation::Progress::kWiped);
  }

 private:
  static double now() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  }

  bool isShown_;
  bool isThere_ = false;
  std::int64_t done_ = 0;
  foundation::Progress progress_;
  const foundation::Localizer& localizer_;
};

class RowsRun {
 public:
  RowsRun(RowsOptions options, Console& console, ProgressLine& progress)
      : options_(std::move(options)),
        format_(std::move(options_.columns), options_.settings),
        console_(console),
        progress_(progress) {}

  void run(DocumentSource& source) {
    if (options_.hasHeader) {
      format_.appendHeader(console_.out());
      console_.linesDone();
    }
    const bool wasStopped = options_.jobs == 1 ? runAlone(source) : runTogether(source);
    if (wasStopped) return;
    progress_.wipe();
    if (const auto complaint = source.complaint()) console_.complain(complaint->source, complaint->sentence);
  }

 private:
  static constexpr std::size_t kDocumentsInBatch = 32;
  static constexpr std::size_t kBytesInBatch = std::size_t{1} << 18;
  static constexpr std::size_t kMostBytes = std::size_t{1} << 24;
  static constexpr std::size_t kBatchesOfAJob = 4;

  static Batch batchOf(DocumentSource& source, std::size_t most) {
    Batch batch;
    while (batch.documents.size() < most && batch.bytes < kBytesInBatch) {
      auto document = source.next();
      if (!document) break;
      if (const auto* bytes = std::get_if<std::vector<std::byte>>(&document->contents)) {
        batch.bytes += bytes->size();
      }
      batch.documents.push_back(std::move(*document));
    }
    return batch;
  }

  /// True when a strict run has come to its end early.
  bool runAlone(DocumentSource& source) {
    for (;;) {
      Batch batch = batchOf(source, 1);
      if (batch.documents.empty()) return false;
      if (print(rowsOf(std::move(batch)))) return true;
    }
  }

  bool runTogether(DocumentSource& source) {
    OrderedWork<Batch, Finished> work(options_.jobs,
                                      [this](Batch batch) { return rowsOf(std::move(batch)); });
    bool isAtEnd = false;
    std::size_t bytes = 0;
    for (;;) {
      while (!isAtEnd && work.count() < options_.jobs * kBatchesOfAJob && bytes < kMostBytes) {
        Batch batch = batchOf(source, kDocumentsInBatch);
        isAtEnd = batch.documents.empty();
        if (isAtEnd) break;
        bytes += batch.bytes;
        work.add(std::move(batch));
      }
      if (work.count() == 0) return false;
      const Finished finished = work.take();
      bytes -= finished.bytes;
      if (print(finished)) return true;
    }
  }

  /// Any thread calls it.
  Finished rowsOf(Batch batch) const {
    Finished finished;
    finished.bytes = batch.bytes;
    finished.documents = batch.documents.size();
    for (PendingDocument& pending : batch.documents) {
      const std::string path = pending.name;
      const rows::DocumentName document{.name = path, .place = pending.place};
      const auto sentence = appendRows(finished.rows, std::move(pending), document);
      if (!sentence) continue;
      const std::string shown = foundation::oneLine(english(*sentence));
      rows::appendErrorRow(finished.rows, options_.choice.identified ? shown : withoutQuotes(shown), document,
                           format_);
      finished.complaints.push_back({finished.rows.size(), path, *sentence});
      finished.isLast = options_.isStrict;
      if (finished.isLast) break;
    }
    return finished;
  }

  /// Why there are no rows of a document.
  std::optional<Sentence> appendRows(std::string& out, PendingDocument pending,
                                     const rows::DocumentName& name) const {
    const auto bytes = contentsOf(std::move(pending));
    if (const auto* sentence = std::get_if<Sentence>(&bytes)) return *sentence;
    const auto document = documentFrom(std::get<0>(bytes));
    if (const auto* sentence = std::get_if<Sentence>(&document)) return *sentence;
    rows::appendPatientRows(out, *std::get<0>(document).patient, name, format_, calendar_);
    return std::nullopt;
  }

  bool print(const Finished& finished) {
    std::size_t printed = 0;
    const auto printTo = [&](std::size_t end) {
      console_.out().append(finished.rows, printed, end - printed);
      printed = end;
      console_.linesDone();
    };
    for (const Complaint& complaint : finished.complaints) {
      printTo(complaint.at);
      progress_.wipe();
      console_.complain(complaint.source, complaint.sentence);
    }
    printTo(finished.rows.size());
    progress_.add(finished.documents);
    return finished.isLast;
  }

  RowsOptions options_;
  rows::RowFormat format_;
  posix::PosixCalendar calendar_;
  Console& console_;
  ProgressLine& progress_;
};

void runRows(const Arguments& arguments, Console& console) {
  RowsOptions options = optionsOf(arguments);
  const auto names = namesOf(arguments);
  if (const auto zone = arguments.option("time-zone"); zone && !posix::chooseTimeZone(*zone)) {
    throw UsageError(Sentence("CommandLine", "--time-zone: this system knows no zone \"%1\"").with(*zone));
  }
  Console::endOnInterrupt();
  const bool isCounted = names && console.errorsAloneAreSeen();
  ProgressLine progress(console, isCounted ? countOf(console, *names) : std::nullopt);
  const auto source =
      names ? namedDocuments(console, *names) : documentsInTar(console, *arguments.option("tar"));
  RowsRun(std::move(options), console, progress).run(*source);
}

}  // namespace

Command rowsCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{.name = "PATH...",
        .help = translatable(
            "CommandHelp", "a document, or a folder with documents in it; - is a document on standard input"),
        .repeated = true,
        .isOptional = true}}};
  static constexpr std::array<OptionSpec, 15> kOptions{{
      {"files-from", "FILE",
       translatable("CommandHelp", "more names of files and folders, one a line; - is standard input")},
      {"null", "", translatable("CommandHelp", "the names of --files-from end with NUL instead")},
      {"tar", "FILE",
       translatable("CommandHelp",
                    "the documents in a tar archive, plain, gzip or zstd; - is standard input")},
      {"standard", "LIST",
       translatable(
           "CommandHelp",
           "growth standards by number or name, intergrowth-2014, with commas between; all for all four")},
      {"formula", "N", translatable("CommandHelp", "one weight, by number or name, instead of all eight")},
      {"columns", "LIST",
       translatable("CommandHelp", "only these columns, in this order, with commas between")},
      {"fixed", "", translatable("CommandHelp", "one decimal, for z-scores three")},
      {"format", "csv|jsonl", translatable("CommandHelp", "comma-separated values, or a JSON object a line")},
      {"no-header", "", translatable("CommandHelp", "leave off the line with the names of the columns")},
      {"identify", "", translatable("CommandHelp", "reference ID, note and names of files too")},
      {"file", "number|path",
       translatable("CommandHelp", "in the column file the place of the document, or its name")},
      {"relative-dates", "", translatable("CommandHelp", "days to the EDD in place of the dates")},
      {"time-zone", "NAME",
       translatable("CommandHelp", "the zone whose days are meant, such as Europe/Paris")},
      {"strict", "", translatable("CommandHelp", "stop at the first document that cannot be read")},
      {"jobs", "N",
       translatable("CommandHelp", "work on so many documents at a time; the output is the same")},
  }};
  return {
      .name = "rows",
      .usage = "[PATH...] [--files-from FILE [--null] | --tar FILE] [OPTION...]",
      .summary = translatable(
          "CommandHelp",
          "A row for each fetus at each examination: age, lengths, weights, z-scores; for statistics."),
      .details = Sentence(
          "CommandHelp",
          "Of a folder all *.nascor are taken, and those of the folders in it. Columns:\n"
          "  file,exam,fetus,exam_date,edd,ga_weeks,bpd_mm,hc_mm,ac_mm,fl_mm,efw_0_g,...,efw_7_g\n"
          "  standard,bpd_mean_mm,bpd_sd_mm,bpd_z,...,fl_z        by each document's own standard, or\n"
          "  westerway_bpd_mean_mm,...                            by each of --standard\n"
          "  reference_id,note                                    with --identify\n"
          "  warning,error\n"
          "file counts the documents from 0, exam and fetus what they hold. A cell is empty where nothing "
          "was\n"
          "measured or nothing can be computed. warning names what is improbable. A document that cannot be\n"
          "read has a row with file and error; the others go on, and the status is 1.\n\n"
          "Privacy: documents are named after patients. Without --identify no cell holds a reference ID, a\n"
          "note or (unless --file path is given) the name of a file. Standard error names files in any "
          "case,\n"
          "for the person at the terminal: do not keep it with the rows. Notes may hold dates\n"
          "in their text: --relative-dates with --identify leaves them as they are.\n"
          "Texts stand in CSV as they are. A spreadsheet runs cells that begin with '=': import names,\n"
          "reference IDs and notes as text.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runRows};
}

}  // namespace nascor::cli
