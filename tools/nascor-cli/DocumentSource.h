// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli_commands/Console.h"

namespace nascor::cli {

/// The ending of a document's name.
inline constexpr std::string_view kDocumentSuffix = ".nascor";

/// A document of a run, which may not be read yet.
struct PendingDocument {
  enum class From {
    path,    ///< a file, or a pipe that waits for its writer
    folder,  ///< the same, but for pipes
    here     ///< `contents`
  };

  std::string name;         ///< as it was given; a path for the two above
  std::uint64_t place = 0;  ///< among the documents of the run, from 0
  From from = From::here;
  /// The bytes, or why they cannot be had.
  std::variant<std::vector<std::byte>, Sentence> contents{};
};

/// The documents of a run, one after the other.
class DocumentSource {
 public:
  virtual ~DocumentSource() = default;

  /// Nothing at the end.
  virtual std::optional<PendingDocument> next() = 0;

  /// What is wrong with the list or the archive itself.
  struct Complaint {
    std::string source;
    Sentence sentence;
  };
  /// After the end; nothing where all is well.
  virtual std::optional<Complaint> complaint() const = 0;
};

/// Where names of documents come from.
struct Names {
  std::vector<std::string> paths;       ///< files and folders; "-" is a document on standard input
  std::optional<std::string> listPath;  ///< then the names in this file, "-" for standard input
  char listEnd = '\n';                  ///< behind each name of the list
};

/// How many documents these are, as far as names tell; nothing where standard input or a pipe has the names. Folders are
/// gone through, files are not opened.
std::optional<std::uint64_t> countOf(Console& console, const Names& names);

/// Files, and the documents in folders.
std::unique_ptr<DocumentSource> namedDocuments(Console& console, Names names);

/// The documents in a tar archive; "-" is standard input.
std::unique_ptr<DocumentSource> documentsInTar(Console& console, const std::string& path);

/// The bytes of a document, or why they cannot be had. Any thread may call it.
std::variant<std::vector<std::byte>, Sentence> contentsOf(PendingDocument document);

}  // namespace nascor::cli
