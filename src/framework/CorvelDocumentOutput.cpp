// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Pages of a document into files and to the printer.

#include <algorithm>
#include <utility>
#include <variant>

#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "framework/CorvelDocument.h"
#include "framework/DocumentController.h"
#include "framework/FileName.h"

namespace nascor::framework {

using foundation::FileError;

namespace {

/// The window's own table, where the names of the pages stand.
constexpr std::string_view kWindowTable = "MyDocument";

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

/// The pages are painted as for paper while this lives.
class OnPaper {
 public:
  explicit OnPaper(CorvelDocument& document)
      : document_(document), wasOnPaper_(!document.shouldShowGraphHilite()) {
    document_.setOnPaper(true);
  }
  OnPaper(const OnPaper&) = delete;
  OnPaper& operator=(const OnPaper&) = delete;
  ~OnPaper() { document_.setOnPaper(wasOnPaper_); }

 private:
  CorvelDocument& document_;
  bool wasOnPaper_;
};

/// A flag is set while this lives.
class Going {
 public:
  explicit Going(bool& flag) : flag_(flag), was_(std::exchange(flag, true)) {}
  Going(const Going&) = delete;
  Going& operator=(const Going&) = delete;
  ~Going() { flag_ = was_; }

 private:
  bool& flag_;
  bool was_;
};

}  // namespace

bool CorvelDocument::commitsEditing() {
  const auto isOpen = [&] {
    const auto open = environment_.controller.documents();
    return std::ranges::find(open, this) != open.end();
  };
  const bool wasOpen = isOpen();
  return commitEditing() && isOpen() == wasOpen;
}

std::optional<std::string> CorvelDocument::doExport(const foundation::NotificationSender* sender) {
  const foundation::Localizer& localizer = services().localizer;
  if (!commitsEditing())
    return localizer.text("CorvelDocument", "A field holds a text that is not permitted.");

  std::optional<std::string> folder = services().defaults.value(export_key::folder);
  if (folder && folder->empty()) folder.reset();
  if (sender && environment_.panels && (!folder || !services().files.exists(*folder))) {
    folder = environment_.panels->chooseFolder();
    if (!folder) return std::nullopt;
    services().defaults.setValue(export_key::folder, *folder);
  }
  if (!folder) folder = filePath() ? folderOf(*filePath()) : services().files.documentsFolder();

  auto sentence = exportPage(tabView_.indexOfSelectedPage(), *folder);
  if (sentence && sender) {
    environment_.alerts.tell(
        localizer.text("CorvelDocument", "The page was not exported."),
        *sentence + "\n" +
            localizer.text("CorvelDocument",
                           "Please make room in this folder, or choose another in Export Settings."));
  }
  return sentence;
}

std::optional<std::string> CorvelDocument::exportPage(std::int64_t page, const std::string& folder) {
  const foundation::Localizer& localizer = services().localizer;
  const PageFormat format =
      pageFormatNamed(services().defaults.value(export_key::format).value_or("")).value_or(PageFormat::pdf);
  std::string name = portableFileNameText(exportName());
  if (name.empty()) name = localizer.text("CorvelDocument", "Untitled");
  const std::string pageName =
      " - " + portableFileNameText(localizer.text(kWindowTable, tabView_.page(page).name()));
  const std::string extension = std::string(".").append(extensionOf(format));
  const std::string start = folder.ends_with('/') ? folder : folder + "/";
  const auto isTaken = [&](const std::string& fileName) { return services().files.exists(start + fileName); };
  const std::string path = start + freeFileName(name, pageName, extension, isTaken);

  if (!environment_.pageWriter) {
    return path + ": " + localizer.text("CorvelDocument", "This program was built without painting.");
  }
  const OnPaper onPaper(*this);
  const auto error = environment_.pageWriter->writePage(
      {.page = tabView_.page(page), .foot = footIfWanted(page, 1, 1), .facts = factsOfPage(page)}, format,
      path);
  if (error) return path + ": " + error->reason;
  onExported(path);
  return std::nullopt;
}

void CorvelDocument::printDocumentWithSettings(const PrintSettings& settings, bool showPrintPanel,
                                               const DidPrint& didPrint) {
  printPages({tabView_.indexOfSelectedPage()}, settings, showPrintPanel, didPrint);
}

void CorvelDocument::printPages(const std::vector<std::int64_t>& pages, const PrintSettings& settings,
                                bool showPrintPanel, const DidPrint& didPrint) {
  bool isPrinted = false;
  if (commitsEditing() && environment_.printer) {
    const OnPaper onPaper(*this);
    const Going printing(isPrinting_);
    PrintSettings named = settings;
    named.name = portableFileNameText(exportName());
    const auto job = environment_.printer->beginJob(printInfo_, named);
    const auto sentence = print(*job, pages, showPrintPanel, isPrinted);
    if (sentence && showPrintPanel) {
      environment_.alerts.tell(services().localizer.text("CorvelDocument", "The document was not printed."),
                               *sentence);
    }
  }
  if (didPrint) didPrint(isPrinted);
}

std::optional<std::string> CorvelDocument::print(PrintJob& job, const std::vector<std::int64_t>& pages,
                                                 bool showPrintPanel, bool& isPrinted) {
  const auto count = static_cast<std::int64_t>(pages.size());
  std::int64_t number = 0;
  for (const std::int64_t page : pages) {
    ++number;
    const auto result = job.addPage(
        {.page = tabView_.page(page), .foot = footIfWanted(page, number, count), .facts = factsOfPage(page)},
        showPrintPanel);
    if (const auto* error = std::get_if<FileError>(&result)) return error->reason;
    // Who cancels one page wants none of the others either.
    if (std::get<PrintOutcome>(result) == PrintOutcome::cancelled) return std::nullopt;
  }
  if (const auto error = job.finish()) return error->reason;
  isPrinted = true;
  return std::nullopt;
}

PageFoot CorvelDocument::footIfWanted(std::int64_t index, std::int64_t number, std::int64_t count) const {
  const bool isWanted = !services().defaults.value(export_key::pageFoot) ||
                        foundation::boolForKey(services().defaults, export_key::pageFoot);
  return isWanted ? footOfPage(index, number, count) : PageFoot{};
}

PageFoot CorvelDocument::footOfPage(std::int64_t, std::int64_t, std::int64_t) const { return {}; }

SheetFacts CorvelDocument::factsOfPage(std::int64_t) const { return {.title = exportName()}; }

}  // namespace nascor::framework
