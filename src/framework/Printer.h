// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "foundation/FileStore.h"
#include "framework/Sheet.h"

namespace nascor::framework {

/// The paper of a document, in points of 1/72 inch. The size is that of the upright paper.
struct PrintInfo {
  double paperWidth = 595.0;  ///< A4
  double paperHeight = 842.0;
  bool isLandscape = true;
  double leftMargin = 36.0;  ///< of the paper as it lies
  double topMargin = 36.0;
  double rightMargin = 36.0;
  double bottomMargin = 36.0;

  friend bool operator==(const PrintInfo&, const PrintInfo&) = default;
};

/// What is asked of one request to print.
struct PrintSettings {
  std::string file;  ///< the PDF file to print into; empty for the printer, unless the user chooses a file
  std::string name =
      {};  ///< what the print is called in the printer's queue, and a file that it goes to, without its extension
};

enum class PrintOutcome : std::uint8_t { printed, cancelled };

/// One request to print. To a printer each page is a job of its own; a file gets all of them as one document.
class PrintJob {
 public:
  /// What was not finished leaves no file behind.
  virtual ~PrintJob() = default;

  /// Prints one page, after the user has agreed in the print panel where `showsPanel` says so. Pages for a file are asked
  /// about once, since a second panel could only change the target of a document that is half made.
  virtual std::variant<PrintOutcome, foundation::FileError> addPage(const Sheet& sheet, bool showsPanel) = 0;
  /// There are no more pages: the file is written, whole or not at all.
  virtual std::optional<foundation::FileError> finish() = 0;
};

/// Prints pages. Implemented by the window layer.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual std::unique_ptr<PrintJob> beginJob(const PrintInfo& info, const PrintSettings& settings) = 0;
};

}  // namespace nascor::framework
