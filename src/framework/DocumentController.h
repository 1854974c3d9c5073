// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "framework/Alerts.h"
#include "framework/FilePanels.h"
#include "framework/ZuDocument.h"

namespace nascor::framework {

/// The open documents, and which of them is in front.
class DocumentController {
 public:
  using Factory = std::function<std::unique_ptr<ZuDocument>()>;

  DocumentController(const foundation::Services& services, Alerts& alerts, FilePanels& panels)
      : services_(services), alerts_(alerts), panels_(panels) {}

  /// What makes an empty document. Set once, before any other call.
  void setFactory(Factory factory) { factory_ = std::move(factory); }

  // Selector: newDocument:
  /// A new untitled document, in front.
  ZuDocument& newDocument();
  /// What is done with a document that another program has open.
  enum class IfHeld { asks, refuses };

  /// The document of the file at `path`, in front: the one that is open already, or a new one. A file that says that it
  /// holds nothing opens as an untitled blank document, so that saving never overwrites it. Where another program has it
  /// open, the user is asked whether to open it to be read, or as a copy. Null, and the reason in `error` (which names the
  /// file), when the file cannot be read or is not to be opened, which is of the kind isDeclined.
  ZuDocument* openDocument(const std::string& path, foundation::FileError& error,
                           IfHeld ifHeld = IfHeld::asks);
  /// Whether the file at `path` is that of an open document.
  bool isFileOpen(const std::string& path) const { return documentOfFile(path) != nullptr; }
  /// Opens the files that the user chooses and says which of them cannot be read.
  void openDocuments();

  /// Saves to the document's file, or where the user says when it has none. Asks first when that file was changed, removed or
  /// made unreadable since the document read or wrote it, up to the moment when it is replaced; tells when the file cannot
  /// hold all of the document. False when a field refuses its text, the user cancels, the document was replaced by one that
  /// the user looked up, or the file cannot be written, which the user is told: it is open in another window or in another
  /// program, or the system refuses, or does not vouch for what it wrote.
  bool saveDocument(ZuDocument& document);
  bool saveDocumentAs(ZuDocument& document);
  /// Asks whether to go back to what the document's file holds, then reads it again; all edits are lost. Without edits
  /// nothing is asked where the file was changed. False when the
  /// document has no file, the user cancels, or the file cannot be read, which the user is told.
  bool revertDocument(ZuDocument& document);
  /// Asks whether to save when the document was edited, then closes it. False when the user cancels or saving fails. A
  /// text that its field refuses is dropped with the window; a cancelled close keeps it in edit.
  bool closeDocument(ZuDocument& document);
  /// Asks of each edited document, the one in front first, whether to save it, then closes all. False, and all stay open,
  /// when the user cancels or saving fails.
  bool closeAllDocuments();
  /// The same without closing any: the session is about to end.
  bool saveEditedDocuments();
  /// Closes `document` when it is a new one in which nothing was done yet, without a question. False when it stays.
  bool closeUntouchedDocument(ZuDocument& document);
  /// Puts the document at `path` into the place of `document`, which is closed without a question. False, and the user is
  /// told, when the file cannot be read.
  bool replaceDocument(ZuDocument& document, const std::string& path);

  /// A document of contents that were kept against the end of the program (ZuDocument::takeRecovered), in front and edited.
  /// Throws std::runtime_error for contents that are none.
  ZuDocument& recoverDocument(std::span<const std::byte> contents, const std::string& path, bool isFileNewer);

  /// The document in front; null for none.
  ZuDocument* currentDocument() const;
  void setCurrentDocument(ZuDocument& document);
  /// Says in the document's window when its file was changed, removed or made unreadable by another program. Sent when the
  /// user comes back to it.
  void lookAtFile(ZuDocument& document) const;
  /// Lets other programs write the documents: this one ends at once.
  void releaseLocks();

  /// The open documents, the one in front last.
  std::vector<ZuDocument*> documents() const;

  /// Ends the life of the documents that were closed. They wait for this call, because a document may be closed in the
  /// middle of an action of its own; the caller of actions sends it between two of them.
  void releaseClosedDocuments() { closed_.clear(); }

  /// Sent when a document has got its place among the open ones, before its window is loaded: the window layer makes its
  /// window.
  foundation::Signal<ZuDocument&> onDocumentAdded;
  foundation::Signal<ZuDocument&> onDocumentInFront;
  /// Sent when a document is no longer among the open ones.
  foundation::Signal<ZuDocument&> onDocumentRemoved;

 private:
  ZuDocument& add(std::unique_ptr<ZuDocument> document);
  void remove(ZuDocument& document);
  void tellUnopened(const foundation::FileError& error);
  bool write(ZuDocument& document, const std::string& path);
  bool tellUnsaved(const std::string& path, const std::string& reason);
  /// Takes the lock of the file at `path`; false where another program has it, which the user is told.
  bool claimToWrite(const std::string& path, std::unique_ptr<foundation::FileLock>& lock);
  /// Asks whether to write where the file is no longer what the document knows.
  bool userReplaces(const std::string& path, const ZuDocument::FileLook& look);
  /// What the user does with a document that another program has open.
  enum class Opening { normally, readOnly, asCopy, anyway, notAtAll };
  Opening askHowToOpen(const std::string& path, const foundation::FileHolder& holder);
  /// Takes the lock where it is free now.
  void tryToHold(ZuDocument& document);
  /// Whether nothing of the document would be lost that the user wants to keep.
  bool mayGo(ZuDocument& document);
  bool isOpen(const ZuDocument& document) const;
  ZuDocument* documentOfFile(const std::string& path) const;
  std::string suggestedFileName(const ZuDocument& document) const;

  foundation::Services services_;
  Alerts& alerts_;
  FilePanels& panels_;
  Factory factory_;
  std::vector<std::unique_ptr<ZuDocument>> documents_;
  std::vector<std::unique_ptr<ZuDocument>> closed_;
};

}  // namespace nascor::framework
