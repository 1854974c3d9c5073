// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include <unistd.h>

#include "cli_commands/Command.h"
#include "cli_commands/Names.h"
#include "cli_commands/RecordExport.h"
#include "cli_commands/ReferenceText.h"
#include "cli_commands/Target.h"
#include "model/PatientPage.h"

namespace nascor::cli {

namespace {

constexpr std::array<std::string_view, 3> kFormats{"pdf", "png", "svg"};

std::string lastPageNumber() { return std::to_string(model::kPatientPages.size() - 1); }

/// Lengths in capitals, as the window calls them.
std::string namesOfPages() {
  std::string names;
  for (const model::PatientPageFacts& each : model::kPatientPages)
    names.append(names.empty() ? "" : ", ").append(each.length ? each.name : each.word);
  return names;
}

void checkFetus(std::string_view fetus) {
  const bool isNumber = fetus.size() == 1 && fetus[0] >= '1' && fetus[0] <= '5';
  if (fetus != "all" && !isNumber)
    throw UsageError(Sentence("CommandLine", "--fetus: expected all or a number from 1 to 5"));
}

/// The application, which paints. It lies beside this program, which starts in a hundredth of the time without loading windows.
std::string painter() {
  std::error_code error;
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : (self.parent_path() / "nascor").string();
}

void exportPages(const std::string& format, const Arguments& arguments, Console& console) {
  const std::string folder = outFolderIn(arguments);
  if (std::ranges::find(kFormats, format) == kFormats.end())
    throw UsageError(Sentence("CommandLine", "--format: expected pdf, png, svg, sr or fhir"));
  if (arguments.has("ndjson")) throw UsageError(Sentence("CommandLine", "--ndjson is for --format fhir"));
  const std::string pages = arguments.option("pages").value_or("all");
  if (const auto refused = model::chosenPages(pages).refused) {
    throw UsageError(
        Sentence("CommandLine",
                 "--pages: expected all, first, last, a number from 0 to %1 or a name, but \"%2\" "
                 "stands here")
            .with(lastPageNumber(), *refused));
  }
  const std::string fetus = inSmallLetters(arguments.option("fetus").value_or("all"));
  checkFetus(fetus);

  if (folder == "-" && arguments.operands.size() > 1)
    throw UsageError(Sentence("CommandLine", "--out - takes the pages of one document"));
  if (folder == "-" && console.outputIsTerminal())
    throw UsageError(Sentence(
        "CommandLine", "pages are no text for a terminal; give --out DIR or send standard output to a file"));

  const std::string program = painter();
  std::vector<std::string> words{program, "--quiet", "--write-pages", folder,    "--format",
                                 format,  "--pages", pages,           "--fetus", fetus};
  if (const auto overlay = arguments.option("overlay")) {
    words.emplace_back("--overlay");
    words.emplace_back(requiredReference("--overlay", *overlay).name);
  }
  for (const char* flag : {"no-foot", "no-clobber", "join-marks"}) {
    if (arguments.has(flag)) words.push_back(std::string("--") + flag);
  }
  words.emplace_back("--");
  for (const std::string& file : arguments.operands) words.push_back(file == "-" ? "/dev/stdin" : file);

  console.flush();
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  ::execv(program.c_str(), pointers.data());
  const Sentence reason = Sentence::ofSystem(std::generic_category().message(errno));
  console.complain(program,
                   Sentence("CommandLine", "%1; the application, which is installed apart, paints the pages")
                       .with(reason));
}

#ifdef NASCOR_PAGES
constexpr bool kHasPages = true;
#else
constexpr bool kHasPages = false;
#endif

void runExport(const Arguments& arguments, Console& console) {
  const std::string format = inSmallLetters(arguments.option("format").value_or("pdf"));
  if (format == "sr" || format == "fhir") return exportRecords(format, arguments, console);
  if (!kHasPages)
    throw UsageError(Sentence(
        "CommandLine",
        "--format: expected sr or fhir; pages are painted by the application, which is not built here"));
  exportPages(format, arguments, console);
}

}  // namespace

Command exportCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...", translatable("CommandHelp", "a document; - is standard input"), true}}};
  static_assert(model::kPatientPages.size() == 7, "the help of --pages says 0 to 6");
  static constexpr std::array<OptionSpec, 9> kOptions{{
      {"out", "DIR",
       translatable(
           "CommandHelp",
           "the folder for the files, which is made when it is missing; - is standard output, for one file")},
      {"format", "pdf|png|svg|sr|fhir",
       translatable("CommandHelp", "what is written; without this option PDF")},
      {"pages", "PAGES",
       translatable("CommandHelp",
                    "all, or first, last, numbers from 0 to 6 and names, with commas between")},
      {"fetus", "all|N", translatable("CommandHelp", "one fetus, the first is 1; without this option all")},
      {"overlay", "REFERENCE",
       translatable("CommandHelp",
                    "centile lines of a reference of \"nascor-cli reference\" over the charts")},
      {"join-marks", "", translatable("CommandHelp", "a line from mark to mark of each fetus")},
      {"no-clobber", "", translatable("CommandHelp", "leave files that are there as they are, and say so")},
      {"no-foot", "", translatable("CommandHelp", "leave off what stands under each page")},
      {"ndjson", "",
       translatable("CommandHelp", "FHIR as one resource a line, of all documents, on standard output")},
  }};
  return {
      .name = "export",
      .usage =
          "FILE... --out DIR [--format pdf|png|svg|sr|fhir] [--pages PAGES] [--fetus all|N] "
          "[--overlay REFERENCE] [--join-marks] [--no-clobber] [--no-foot] [--ndjson]",
      .summary = translatable("CommandHelp",
                              "Writes the pages of each document, or its numbers for other programs."),
      .details =
          Sentence(
              "CommandHelp",
              "Names of pages: %1 (0 to %2), in letters of any size.\n"
              "As PDF all pages of a document are one file; else each is a file of its own.\n"
              "Files of the same names are replaced, but with --no-clobber.\n"
              "sr: a DICOM structured report (Comprehensive SR) for each examination, \"NAME 1.dcm\", ...\n"
              "fhir: a FHIR R4 bundle for each document, NAME.json; with --ndjson lines on standard "
              "output.\n")
              .with(namesOfPages(), lastPageNumber()),
      .operands = kOperands,
      .options = kOptions,
      .run = runExport};
}

}  // namespace nascor::cli
