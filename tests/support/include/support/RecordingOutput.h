// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "foundation/FileStore.h"
#include "framework/PageWriter.h"
#include "framework/Printer.h"
#include "framework/Viewer.h"

namespace nascor::tests {

/// Writes the name of the page as its file, and keeps what it was given.
class RecordingPageWriter final : public framework::PageWriter {
 public:
  struct Written {
    std::string path;
    std::string page;
    framework::PageFormat format;
    framework::PageFoot foot;
  };

  explicit RecordingPageWriter(foundation::FileStore& files) : files_(files) {}

  std::optional<foundation::FileError> writePage(const framework::Sheet& sheet, framework::PageFormat format,
                                                 const std::string& path) override {
    if (onWrite) onWrite();
    if (onSheet) onSheet(sheet);
    const auto bytes = std::as_bytes(std::span(sheet.page.name()));
    if (auto error = files_.replaceContents(path, bytes)) return error;
    written.push_back({path, sheet.page.name(), format, sheet.foot});
    return std::nullopt;
  }

  std::vector<Written> written;
  std::function<void()> onWrite;                         ///< sent before each page is written
  std::function<void(const framework::Sheet&)> onSheet;  ///< sent with each page

 private:
  foundation::FileStore& files_;
};

/// Prints nothing, and keeps what it was given.
class RecordingPrinter final : public framework::Printer {
 public:
  struct Printed {
    const framework::Page* page;
    bool showsPanel;
    framework::PageFoot foot;
  };

  std::unique_ptr<framework::PrintJob> beginJob(const framework::PrintInfo& info,
                                                const framework::PrintSettings& settings) override {
    infos.push_back(info);
    files.push_back(settings.file);
    return std::make_unique<Job>(*this);
  }

  std::vector<framework::PrintInfo> infos;  ///< of each job
  std::vector<std::string> files;           ///< of each job
  std::vector<Printed> printed;
  int jobsFinished = 0;
  /// What the next pages get for an answer, in order; a page without one is printed.
  std::deque<std::variant<framework::PrintOutcome, foundation::FileError>> answers;
  std::optional<foundation::FileError> finishError;
  std::function<void()> onPage;                          ///< sent for each page
  std::function<void(const framework::Sheet&)> onSheet;  ///< sent with each page

 private:
  class Job final : public framework::PrintJob {
   public:
    explicit Job(RecordingPrinter& printer) : printer_(printer) {}
    std::variant<framework::PrintOutcome, foundation::FileError> addPage(const framework::Sheet& sheet,
                                                                         bool showsPanel) override {
      if (printer_.onPage) printer_.onPage();
      if (printer_.onSheet) printer_.onSheet(sheet);
      printer_.printed.push_back({&sheet.page, showsPanel, sheet.foot});
      if (printer_.answers.empty()) return framework::PrintOutcome::printed;
      auto answer = printer_.answers.front();
      printer_.answers.pop_front();
      return answer;
    }
    std::optional<foundation::FileError> finish() override {
      ++printer_.jobsFinished;
      return printer_.finishError;
    }

   private:
    RecordingPrinter& printer_;
  };
};

/// Shows nothing, and keeps what it was asked to show.
class RecordingViewer final : public framework::Viewer {
 public:
  bool open(const std::string& url) override {
    opened.push_back(url);
    return canShow;
  }
  std::vector<std::string> opened;
  bool canShow = true;
};

}  // namespace nascor::tests
