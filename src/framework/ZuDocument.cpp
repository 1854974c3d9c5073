// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/ZuDocument.h"

#include <stdexcept>
#include <utility>
#include <variant>

#include "foundation/Localizer.h"

namespace nascor::framework {

using foundation::FileError;

void ZuDocument::setFilePath(std::optional<std::string> path) {
  filePath_ = std::move(path);
  fileContents_.reset();
  onStateChanged();
}

std::string ZuDocument::displayName() const {
  if (!filePath_) return services_.localizer.text("CorvelDocument", "Untitled");
  return filePath_->substr(filePath_->rfind('/') + 1);
}

std::string ZuDocument::nameForUser() const {
  const std::string suggested = filePath_ ? std::string() : suggestedFileName();
  return suggested.empty() ? displayName() : suggested;
}

std::optional<FileError> ZuDocument::writeToFile(const std::string& path,
                                                 const foundation::FileContents* expected) {
  std::vector<std::byte> bytes = dataRepresentationOfType("");
  auto error = expected ? services_.files.replaceExpected(path, bytes, *expected)
                        : services_.files.replaceContents(path, bytes);
  if (error && error->kind != FileError::Kind::isWritten) return error;
  filePath_ = path;
  fileContents_ = std::move(bytes);
  docIsBlank_ = false;
  if (error) {
    onStateChanged();
  } else {
    updateChangeCount(ChangeType::changeCleared);
  }
  return error;
}

std::optional<FileError> ZuDocument::readFromFile(const std::string& path) {
  auto contents = services_.files.contents(path);
  if (const auto* error = std::get_if<FileError>(&contents)) return *error;
  auto& bytes = std::get<std::vector<std::byte>>(contents);
  try {
    loadDataRepresentation(bytes, "");
  } catch (const std::runtime_error& error) {
    constexpr std::string_view kName = "%1";
    std::string sentence = services_.localizer.text("CorvelDocument", "%1 is not a Nascor document.");
    if (const std::size_t at = sentence.find(kName); at != std::string::npos)
      sentence.replace(at, kName.size(), path.substr(path.rfind('/') + 1));
    return FileError{.reason = std::move(sentence), .details = path + ": " + error.what()};
  }
  docIsBlank_ = !holdsContents();
  if (docIsBlank_) {
    setFilePath(std::nullopt);
  } else {
    setFilePath(path);
    fileContents_ = std::move(bytes);
  }
  return std::nullopt;
}

void ZuDocument::takeRecovered(std::span<const std::byte> data, const std::string& path, bool isFileNewer) {
  loadDataRepresentation(data, "");
  docIsBlank_ = false;
  isRecovered_ = true;
  setFilePath(path.empty() ? std::nullopt : std::optional(path));
  if (!filePath_) return;
  if (isFileNewer) {
    fileContents_.emplace();  // which no document is
    return;
  }
  auto contents = services_.files.contents(path);
  if (auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) fileContents_ = std::move(*bytes);
}

ZuDocument::FileLook ZuDocument::lookAtFile(const std::string& path) const {
  auto contents = services_.files.contents(path);
  if (auto* bytes = std::get_if<std::vector<std::byte>>(&contents)) return {.contents = std::move(*bytes)};
  if (!services_.files.exists(path)) return {.state = FileState::isGone};
  return {.state = FileState::isUnreadable, .reason = std::get<FileError>(contents).reason};
}

ZuDocument::FileLook ZuDocument::lookAtFile() const {
  if (!filePath_) return {};
  FileLook look = lookAtFile(*filePath_);
  if (!fileContents_) {
    if (look.state == FileState::isGone) look.state = FileState::asKnown;
  } else if (look.contents && look.contents != fileContents_) {
    // The bytes, and not the date: a clock may be wrong, and a file that was merely touched has lost nothing.
    look.state = FileState::isChanged;
  }
  return look;
}

void ZuDocument::setLock(std::unique_ptr<foundation::FileLock> lock) {
  lock_ = std::move(lock);
  isReadOnly_ = false;
  onStateChanged();
}

void ZuDocument::setReadOnly() {
  lock_.reset();
  isReadOnly_ = true;
  onStateChanged();
}

std::optional<FileError> ZuDocument::revertToSaved() {
  if (!filePath_) return FileError{"the document was never saved"};
  if (auto error = readFromFile(std::string(*filePath_))) return error;
  windowControllerDidLoadNib();
  updateChangeCount(ChangeType::changeCleared);
  return std::nullopt;
}

void ZuDocument::updateChangeCount(ChangeType change) {
  switch (change) {
    case ChangeType::changeDone:
      ++changeCount_;
      changeWasDone();
      break;
    case ChangeType::changeUndone: --changeCount_; break;
    case ChangeType::changeCleared:
      changeCount_ = 0;
      isRecovered_ = false;
      changesWereCleared();
      break;
  }
  onStateChanged();
}

}  // namespace nascor::framework
