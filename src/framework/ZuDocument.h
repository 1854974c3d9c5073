// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/FileStore.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"

namespace nascor::framework {

/// A document: its file, its name, whether it was edited, whether it holds anything yet.
class ZuDocument {
 public:
  enum class ChangeType { changeDone = 0, changeUndone = 1, changeCleared = 2 };

  explicit ZuDocument(const foundation::Services& services) : services_(services) {}
  virtual ~ZuDocument() = default;
  ZuDocument(const ZuDocument&) = delete;
  ZuDocument& operator=(const ZuDocument&) = delete;

  /// @name What a subclass provides
  /// @{

  // Selector: dataRepresentationOfType:
  /// The contents of the document's file.
  virtual std::vector<std::byte> dataRepresentationOfType(std::string_view type) const = 0;
  /// The contents with what the user is typing just now, as far as its fields take it. Changes nothing.
  virtual std::vector<std::byte> contentsAsTyped() { return dataRepresentationOfType(""); }
  // Selector: loadDataRepresentation:ofType:
  /// Takes the contents of a file. Throws std::runtime_error, whose text is a sentence for the user, when they are not
  /// those of a document, and then changes nothing.
  virtual bool loadDataRepresentation(std::span<const std::byte> data, std::string_view type) = 0;
  /// A sentence for the user on what of the model a file cannot hold as it stands; nothing when it holds all.
  virtual std::optional<std::string> lossInFile() const { return std::nullopt; }
  /// Whether a load has given the document anything: a file may say that it holds nothing.
  virtual bool holdsContents() const = 0;
  // Selector: windowControllerDidLoadNib:
  /// The document's window is there and empty: fill it.
  virtual void windowControllerDidLoadNib() = 0;
  /// The window is about to go.
  virtual void windowWillClose() = 0;
  /// The user's pending edits go to the model. False when a field refuses its text: then nothing else may be done.
  virtual bool commitEditing() = 0;
  /// A file name for a new document, without extension; may be empty.
  virtual std::string suggestedFileName() const = 0;

  /// @}
  /// @name File and name
  /// @{

  /// Nothing for a document that was never saved.
  const std::optional<std::string>& filePath() const { return filePath_; }
  void setFilePath(std::optional<std::string> path);
  /// The file's name, or "Untitled".
  std::string displayName() const;
  /// What the user knows the document by: the name of its file, else what it would be saved as.
  std::string nameForUser() const;

  /// Writes the model as it stands to `path`, whole or not at all; with `expected`, only where that is what lies there at the
  /// last moment. On success that is the document's file from now on, it is not edited any more, and not blank. On failure
  /// nothing changes, but for an error of the kind isWritten: then it is the document's file, and the document stays edited.
  std::optional<foundation::FileError> writeToFile(const std::string& path,
                                                   const foundation::FileContents* expected = nullptr);
  /// Takes what the file at `path` holds. That is the document's file from now on, unless it says that it holds nothing:
  /// then the document is untitled and blank, and never overwrites it. On failure nothing changes.
  std::optional<foundation::FileError> readFromFile(const std::string& path);
  /// Takes contents that were kept against the end of the program, whose own file is at `path`; empty for none. What that
  /// file holds now counts as read, unless `isFileNewer`: then it was changed by others. Throws as `loadDataRepresentation`
  /// does.
  void takeRecovered(std::span<const std::byte> data, const std::string& path, bool isFileNewer);
  /// Whether the contents are those of `takeRecovered`, which no file holds yet.
  bool isRecovered() const { return isRecovered_; }
  /// What the document's file held when this document read or wrote it last; nothing before.
  const std::optional<std::vector<std::byte>>& fileContents() const { return fileContents_; }
  /// How a file stands to what this document read or wrote there last.
  enum class FileState { asKnown, isChanged, isGone, isUnreadable };
  struct FileLook {
    FileState state = FileState::asKnown;
    foundation::FileContents contents{};  ///< what it holds now
    std::string reason{};                 ///< why it cannot be read
  };
  /// Looks at the document's own file. One of which this document knows nothing is as known, whatever it holds.
  FileLook lookAtFile() const;
  /// Looks at any file: there, gone or unreadable.
  FileLook lookAtFile(const std::string& path) const;
  /// Reads the document's file again; all edits are lost. A file that now says that it holds nothing leaves an untitled
  /// blank document. On failure nothing changes.
  std::optional<foundation::FileError> revertToSaved();

  /// The right to write the document's file: null where no lock can be made, or another program has it.
  void setLock(std::unique_ptr<foundation::FileLock> lock);
  bool holdsLock() const { return lock_ && lock_->isHeld(); }
  /// Whether another program had the document's file when it was opened here, so that it is saved under another name.
  bool isReadOnly() const { return isReadOnly_; }
  void setReadOnly();

  /// @}
  /// @name State
  /// @{

  // Selector: updateChangeCount:
  void updateChangeCount(ChangeType change);
  bool isDocumentEdited() const { return changeCount_ != 0; }
  /// Whether the document holds no patient yet: it is new, and no reference ID was given.
  bool isBlank() const { return docIsBlank_; }
  /// Whether the document is new and nothing was done in it.
  bool isUntouched() const { return docIsBlank_ && !isDocumentEdited() && !filePath_; }
  void setDocIsBlank(bool blank) { docIsBlank_ = blank; }

  /// Tells the user `sentence` in the document's window, without a question.
  virtual void remark(const std::string& /*sentence*/) {}

  /// Sent when name or edited state may have changed.
  foundation::Signal<> onStateChanged;

  /// @}

 protected:
  const foundation::Services& services() const { return services_; }
  /// There is one change more.
  virtual void changeWasDone() {}
  /// There are no changes any more: the document was saved, or read again.
  virtual void changesWereCleared() {}

 private:
  foundation::Services services_;
  std::optional<std::string> filePath_;
  std::optional<std::vector<std::byte>> fileContents_;  ///< as last read or written; nothing before
  std::int64_t changeCount_ = 0;
  bool docIsBlank_ = false;
  bool isRecovered_ = false;
  bool isReadOnly_ = false;
  std::unique_ptr<foundation::FileLock> lock_;
};

}  // namespace nascor::framework
