// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/DocumentSource.h"

#include <algorithm>
#include <utility>

#include <sys/stat.h>

#include "cli_commands/Input.h"
#include "posix/FolderWalk.h"
#include "posix/PosixFileStore.h"
#include "tar/TarReader.h"

namespace nascor::cli {

namespace {

bool isFolder(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// The names in a list, read as they are needed.
class NameList {
 public:
  NameList(Console& console, const std::string& path, char end) : input_(console, path), end_(end) {}

  /// Nothing at the end.
  std::optional<std::string> next() {
    // Longer than any path: what is behind is not kept, and no such file is found.
    constexpr std::size_t kLongest = std::size_t{1} << 16;
    std::string name;
    for (;;) {
      const auto end = std::ranges::find(piece_, end_);
      const auto taken = static_cast<std::size_t>(end - piece_.begin());
      name.append(piece_.data(), std::min(taken, kLongest - name.size()));
      if (end != piece_.end()) {
        piece_ = piece_.subspan(taken + 1);
        if (!name.empty()) return name;
        continue;
      }
      piece_ = {};
      if (!read()) return name.empty() ? std::nullopt : std::optional(name);
    }
  }

  const std::optional<Sentence>& error() const { return error_; }

 private:
  bool read() {
    auto piece = input_.next();
    if (auto* error = std::get_if<Sentence>(&piece)) error_ = std::move(*error);
    if (!error_) piece_ = std::get<0>(piece);
    return !piece_.empty();
  }

  InputStream input_;
  char end_;
  std::span<const char> piece_;
  std::optional<Sentence> error_;
};

class NamedDocuments final : public DocumentSource {
 public:
  NamedDocuments(Console& console, Names names) : console_(console), names_(std::move(names)) {}

  std::optional<PendingDocument> next() override {
    for (;;) {
      if (folder_) {
        if (auto found = folder_->next()) return foundDocument(std::move(*found));
        folder_.reset();
      }
      const bool isListed = at_ == names_.paths.size();
      auto name = isListed ? nextOfList() : std::optional(names_.paths[at_++]);
      if (!name) return std::nullopt;
      if (!isListed && *name == "-") {
        return PendingDocument{.name = nameOf("-"), .place = place_++, .contents = standardInput(console_)};
      }
      if (!isFolder(*name)) {
        return PendingDocument{
            .name = std::move(*name), .place = place_++, .from = PendingDocument::From::path};
      }
      folder_.emplace(std::move(*name), std::string(kDocumentSuffix));
    }
  }

  std::optional<Complaint> complaint() const override {
    if (!list_ || !list_->error()) return std::nullopt;
    return Complaint{nameOf(*names_.listPath), *list_->error()};
  }

 private:
  std::optional<std::string> nextOfList() {
    if (!names_.listPath) return std::nullopt;
    if (!list_) list_ = std::make_unique<NameList>(console_, *names_.listPath, names_.listEnd);
    if (list_->error()) return std::nullopt;
    return list_->next();
  }

  PendingDocument foundDocument(posix::FolderWalk::Found found) {
    PendingDocument document{
        .name = std::move(found.path), .place = place_++, .from = PendingDocument::From::folder};
    if (!found.error.empty()) {
      document.from = PendingDocument::From::here;
      document.contents = Sentence::ofSystem(std::move(found.error));
    }
    return document;
  }

  Console& console_;
  Names names_;
  std::size_t at_ = 0;
  std::uint64_t place_ = 0;
  std::optional<posix::FolderWalk> folder_;
  std::unique_ptr<NameList> list_;
};

class DocumentsInTar final : public DocumentSource {
 public:
  DocumentsInTar(Console& console, const std::string& path)
      : name_(nameOf(path)),
        input_(console, path),
        reader_([this] { return input_.next(); }, std::string(kDocumentSuffix)) {}

  std::optional<PendingDocument> next() override {
    auto member = reader_.next();
    if (!member) return std::nullopt;
    return PendingDocument{
        .name = std::move(member->name), .place = place_++, .contents = std::move(member->contents)};
  }

  std::optional<Complaint> complaint() const override {
    if (!reader_.complaint()) return std::nullopt;
    return Complaint{name_, *reader_.complaint()};
  }

 private:
  std::string name_;
  InputStream input_;
  tar::TarReader reader_;
  std::uint64_t place_ = 0;
};

}  // namespace

std::optional<std::uint64_t> countOf(Console& console, const Names& names) {
  struct stat status {};
  const bool isListed = names.listPath.has_value();
  const bool isFile = isListed && ::stat(names.listPath->c_str(), &status) == 0 && S_ISREG(status.st_mode);
  if (isListed && !isFile) return std::nullopt;
  Names others = names;
  const auto inputs = std::erase(others.paths, "-");
  NamedDocuments documents(console, std::move(others));
  std::uint64_t count = inputs;
  while (documents.next()) ++count;
  return count;
}

std::unique_ptr<DocumentSource> namedDocuments(Console& console, Names names) {
  return std::make_unique<NamedDocuments>(console, std::move(names));
}

std::unique_ptr<DocumentSource> documentsInTar(Console& console, const std::string& path) {
  return std::make_unique<DocumentsInTar>(console, path);
}

std::variant<std::vector<std::byte>, Sentence> contentsOf(PendingDocument document) {
  if (document.from == PendingDocument::From::here) return std::move(document.contents);
  using posix::PosixFileStore;
  auto contents = document.from == PendingDocument::From::folder
                      ? PosixFileStore::contentsOfListed(document.name)
                      : PosixFileStore({}, PosixFileStore::Pipes::areRead).contents(document.name);
  if (auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) return std::move(*bytes);
  return reasonOf(std::get<foundation::FileError>(contents));
}

}  // namespace nascor::cli
