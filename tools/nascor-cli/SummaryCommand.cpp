// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <array>
#include <charconv>
#include <cstdlib>
#include <span>
#include <variant>

#include "cli_commands/Command.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/Names.h"
#include "cli_commands/Target.h"
#include "posix/PosixCalendar.h"
#include "posix/SystemClock.h"
#include "summary/Html.h"
#include "summary/Typesetter.h"
#include "typesetting/Typesetting.h"

namespace nascor::cli {

namespace {

using foundation::Date;

/// The moment that SOURCE_DATE_EPOCH names, so that the same document gives the same bytes; else now.
class SummaryClock final : public foundation::Clock {
 public:
  SummaryClock() : now_(posix::SystemClock().now()) {
    const char* text = std::getenv("SOURCE_DATE_EPOCH");
    if (text == nullptr) return;
    const std::string_view seconds(text);
    std::int64_t since1970 = 0;
    const auto [end, error] = std::from_chars(seconds.data(), seconds.data() + seconds.size(), since1970);
    constexpr std::int64_t kGreatest = 253402300799;  // the end of the year 9999
    if (error != std::errc() || end != seconds.data() + seconds.size() || since1970 < 0 ||
        since1970 > kGreatest)
      throw UsageError(Sentence("CommandLine", "SOURCE_DATE_EPOCH: expected whole seconds since 1970"));
    constexpr std::int64_t kFrom1970To2001 = 978307200;
    now_ = {static_cast<double>(since1970 - kFrom1970To2001)};
  }

  Date now() const override { return now_; }

 private:
  Date now_;
};

summary::Paper paperIn(const Arguments& arguments) {
  const std::string name = inSmallLetters(arguments.option("paper").value_or("a4"));
  if (name == "a4") return {};
  if (name == "letter") return {.width = 612.0, .height = 792.0};
  throw UsageError(Sentence("CommandLine", "--paper: expected a4 or letter"));
}

std::optional<std::size_t> fetusIn(const Arguments& arguments) {
  const std::string fetus = inSmallLetters(arguments.option("fetus").value_or("all"));
  if (fetus == "all") return std::nullopt;
  if (fetus.size() != 1 || fetus[0] < '1' || fetus[0] > '5')
    throw UsageError(Sentence("CommandLine", "--fetus: expected all or a number from 1 to 5"));
  return static_cast<std::size_t>(fetus[0] - '1');
}

summary::Details detailsIn(const Arguments& arguments) {
  summary::Details details{.letterhead = {}, .examiner = arguments.option("examiner").value_or("")};
  if (const auto lines = arguments.repeated.find("letterhead"); lines != arguments.repeated.end())
    details.letterhead = lines->second;
  return details;
}

/// The summary as a file of that format; a text says why there is none.
std::variant<std::vector<std::byte>, Sentence> fileOf(const summary::Summary& summary, bool isHtml,
                                                      const summary::Paper& paper) {
  if (isHtml) {
    const std::string text = summary::htmlText(summary);
    const auto bytes = std::as_bytes(std::span(text));
    return std::vector<std::byte>(bytes.begin(), bytes.end());
  }
  const auto typesetter = typesetting::typesetter();
  if (const auto* why = std::get_if<Sentence>(&typesetter))
    return Sentence("CommandLine", "cannot be put on paper: %1").with(*why);
  auto pdf = std::get<summary::Typesetter*>(typesetter)->pdf(summary, paper);
  if (auto* why = std::get_if<std::string>(&pdf)) return Sentence::verbatim(std::move(*why));
  return std::get<std::vector<std::byte>>(std::move(pdf));
}

void runSummary(const Arguments& arguments, Console& console) {
  const std::string folder = outFolderIn(arguments);
  const std::string format = inSmallLetters(arguments.option("format").value_or("pdf"));
  if (format != "pdf" && format != "html")
    throw UsageError(Sentence("CommandLine", "--format: expected pdf or html"));
  const summary::Paper paper = paperIn(arguments);
  const auto fetus = fetusIn(arguments);
  const summary::Details details = detailsIn(arguments);
  const bool isStandardOutput = folder == "-";
  if (isStandardOutput && arguments.operands.size() > 1)
    throw UsageError(Sentence("CommandLine", "--out - takes the summary of one document"));
  if (isStandardOutput && format == "pdf" && console.outputIsTerminal())
    throw UsageError(Sentence(
        "CommandLine", "a PDF is no text for a terminal; give --out DIR or send standard output to a file"));

  const SummaryClock clock;
  const posix::PosixCalendar calendar;
  Target target(folder, arguments.has("no-clobber"), console);
  for (const std::string& file : arguments.operands) {
    const auto document = documentIn(file, console);
    if (!document) continue;
    const std::string name = target.nameFor(file) + " - Summary." + format;
    const summary::Summary summary =
        summary::summaryOf(*document->patient, details,
                           {.clock = clock, .calendar = calendar, .localizer = console.localizer()}, fetus);
    if (summary.fetuses.empty()) {
      console.complain(nameOf(file), Sentence("CommandLine", "it has no such fetus"));
      continue;
    }
    const auto bytes = fileOf(summary, format == "html", paper);
    if (const auto* why = std::get_if<Sentence>(&bytes)) {
      console.complain(nameOf(file), *why);
    } else if (isStandardOutput) {
      console.writeBytes(std::get<std::vector<std::byte>>(bytes));
    } else {
      target.write(name, std::get<std::vector<std::byte>>(bytes));
    }
  }
}

}  // namespace

Command summaryCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...", translatable("CommandHelp", "a document; - is standard input"), true}}};
  static constexpr std::array<OptionSpec, 7> kOptions{{
      {"out", "DIR",
       translatable(
           "CommandHelp",
           "the folder for the files, which is made when it is missing; - is standard output, for one file")},
      {"format", "pdf|html", translatable("CommandHelp", "what is written; without this option PDF")},
      {"paper", "a4|letter", translatable("CommandHelp", "the paper of a PDF; without this option A4")},
      {"fetus", "all|N", translatable("CommandHelp", "one fetus, the first is 1; without this option all")},
      {"examiner", "NAME", translatable("CommandHelp", "who examined")},
      {"letterhead", "LINE",
       translatable("CommandHelp", "a line at the head of each fetus; once for each line"), false, true},
      {"no-clobber", "", translatable("CommandHelp", "leave files that are there as they are, and say so")},
  }};
  return {
      .name = "summary",
      .usage =
          "FILE... --out DIR [--format pdf|html] [--paper a4|letter] [--fetus all|N] [--examiner NAME] "
          "[--letterhead LINE]... [--no-clobber]",
      .summary = translatable("CommandHelp",
                              "A summary for the records: a page or two a fetus, typeset, or as HTML."),
      .details = Sentence(
          "CommandHelp",
          "EDD, measurements with z and centile by the growth standard, weights, growth, small charts, "
          "notes,\n"
          "and the sources of all that was used. Each document is one file, \"NAME - Summary.pdf\".\n"
          "Files of the same names are replaced, but with --no-clobber. SOURCE_DATE_EPOCH, in seconds since\n"
          "1970, takes the place of the present moment.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runSummary};
}

}  // namespace nascor::cli
