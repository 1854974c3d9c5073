// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/DocumentController.h"

#include <algorithm>
#include <utility>

#include "foundation/HolderText.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "framework/FileName.h"

namespace nascor::framework {

using foundation::FileClaim;
using foundation::FileError;
using foundation::FileHolder;
using foundation::FileLock;
using foundation::FileStore;
using foundation::heldSentence;
using foundation::holderText;

ZuDocument& DocumentController::newDocument() {
  ZuDocument& document = add(factory_());
  document.setDocIsBlank(true);
  document.windowControllerDidLoadNib();
  return document;
}

ZuDocument* DocumentController::openDocument(const std::string& path, FileError& error, IfHeld ifHeld) {
  if (ZuDocument* open = documentOfFile(path)) {
    setCurrentDocument(*open);
    return open;
  }
  // Before it is read: what is read then stays what the file holds.
  FileClaim claim = services_.files.claim(path, FileStore::Claim::ifFree);
  auto opening = Opening::normally;
  if (claim.holder) {
    opening = ifHeld == IfHeld::asks ? askHowToOpen(path, *claim.holder) : Opening::notAtAll;
    if (opening == Opening::notAtAll) {
      error = {.reason = path + ": " + heldSentence(*claim.holder, services_.calendar, services_.localizer),
               .kind = FileError::Kind::isDeclined};
      return nullptr;
    }
    if (opening == Opening::anyway) claim = services_.files.claim(path, FileStore::Claim::inAnyCase);
  }
  auto document = factory_();
  if (const auto unreadable = document->readFromFile(path)) {
    error = {.reason = foundation::sentenceAbout(path, *unreadable), .details = unreadable->details};
    return nullptr;
  }
  if (opening == Opening::asCopy) {
    document->setFilePath(std::nullopt);
  } else if (opening == Opening::readOnly && document->filePath()) {
    document->setReadOnly();
  } else if (document->filePath()) {
    document->setLock(std::move(claim.lock));
  }
  ZuDocument& added = add(std::move(document));
  added.windowControllerDidLoadNib();
  // A copy is nowhere but here.
  if (opening == Opening::asCopy) added.updateChangeCount(ZuDocument::ChangeType::changeDone);
  return &added;
}

DocumentController::Opening DocumentController::askHowToOpen(const std::string& path,
                                                             const FileHolder& holder) {
  const auto& localizer = services_.localizer;
  std::string information =
      path + "\n\n" + holderText(holder, services_.calendar, services_.localizer, "\n") + "\n\n" +
      localizer.text("CorvelDocument",
                     "Read-only, it can be saved only under another name. A copy is a new document.");
  std::vector<std::pair<Opening, std::string>> ways{
      {Opening::readOnly, localizer.text("CorvelDocument", "Open Read-Only")},
      {Opening::asCopy, localizer.text("CorvelDocument", "Open a Copy")}};
  if (holder.mayBeGone) {
    information += "\n\n";
    information += localizer.text(
        "CorvelDocument",
        "Nothing tells from here whether that machine still works on it. Open it anyway only if you know "
        "that it does not.");
    ways.emplace_back(Opening::anyway, localizer.text("CorvelDocument", "Open Anyway"));
  }
  ways.emplace_back(Opening::notAtAll, services_.localizer.text("ZuVersion", "Cancel"));
  std::vector<std::string> buttons;
  buttons.reserve(ways.size());
  for (const auto& [way, button] : ways) buttons.push_back(button);
  const std::size_t answer = alerts_.chooseOne(
      localizer.text("CorvelDocument", "This document is open elsewhere. How do you want to open it?"),
      information, buttons);
  return answer < ways.size() ? ways[answer].first : Opening::notAtAll;
}

void DocumentController::tryToHold(ZuDocument& document) {
  if (!document.filePath() || document.holdsLock()) return;
  FileClaim claim = services_.files.claim(*document.filePath(), FileStore::Claim::ifFree);
  if (!claim.holder) {
    document.setLock(std::move(claim.lock));
    return;
  }
  document.setReadOnly();
  document.remark(heldSentence(*claim.holder, services_.calendar, services_.localizer));
}

void DocumentController::tellUnopened(const FileError& error) {
  if (error.kind == FileError::Kind::isDeclined) return;
  alerts_.tellDetails(services_.localizer.text("CorvelDocument", "The document cannot be opened."),
                      error.reason, error.details);
}

void DocumentController::openDocuments() {
  for (const std::string& path : panels_.chooseFilesToOpen()) {
    FileError error;
    if (!openDocument(path, error)) tellUnopened(error);
  }
}

bool DocumentController::saveDocument(ZuDocument& document) {
  if (!document.filePath()) return saveDocumentAs(document);
  return document.commitEditing() && isOpen(document) && write(document, *document.filePath());
}

bool DocumentController::saveDocumentAs(ZuDocument& document) {
  if (!document.commitEditing() || !isOpen(document)) return false;
  const auto path = panels_.chooseFileToSave(suggestedFileName(document));
  return path && write(document, *path);
}

bool DocumentController::tellUnsaved(const std::string& path, const std::string& reason) {
  alerts_.tell(services_.localizer.text("CorvelDocument", "The document was not saved."),
               path + ": " + reason);
  return false;
}

bool DocumentController::claimToWrite(const std::string& path, std::unique_ptr<FileLock>& lock) {
  FileClaim claim = services_.files.claim(path, FileStore::Claim::ifFree);
  if (claim.holder)
    return tellUnsaved(path, heldSentence(*claim.holder, services_.calendar, services_.localizer));
  lock = std::move(claim.lock);
  return true;
}

bool DocumentController::write(ZuDocument& document, const std::string& path) {
  using State = ZuDocument::FileState;
  const ZuDocument* open = documentOfFile(path);
  const bool isOwn = open == &document;
  // Two windows on one file would overwrite each other's patient.
  if (open && !isOwn)
    return tellUnsaved(path, services_.localizer.text("CorvelDocument", "It is open in another window."));
  const bool isHeld = isOwn && document.holdsLock();
  std::unique_ptr<FileLock> lock;
  if (!isHeld && !claimToWrite(path, lock)) return false;

  // The user has agreed to replace what lies under another name.
  ZuDocument::FileLook look = isOwn ? document.lookAtFile() : document.lookAtFile(path);
  if (isOwn && look.state != State::asKnown && !userReplaces(path, look)) return false;
  const auto written = [&] {
    return document.writeToFile(path, look.state == State::isUnreadable ? nullptr : &look.contents);
  };
  auto error = written();
  while (error && error->kind == FileError::Kind::isChanged) {
    look = document.lookAtFile(path);
    if (look.state == State::asKnown) look.state = State::isChanged;
    if (!userReplaces(path, look)) return false;
    error = written();
  }
  if (error && error->kind != FileError::Kind::isWritten) return tellUnsaved(path, error->reason);
  if (!isHeld) document.setLock(std::move(lock));
  if (error) {
    alerts_.tell(services_.localizer.text("CorvelDocument",
                                          "The document was written, but the system does not vouch that it "
                                          "outlasts a power cut. Please save it again."),
                 path + ": " + error->reason);
    return false;
  }
  if (const auto loss = document.lossInFile()) {
    alerts_.tell(services_.localizer.text("CorvelDocument",
                                          "The document was saved, but its file cannot hold all of it."),
                 path + ": " + *loss);
  }
  return true;
}

bool DocumentController::userReplaces(const std::string& path, const ZuDocument::FileLook& look) {
  using State = ZuDocument::FileState;
  const auto& localizer = services_.localizer;
  std::string message = localizer.text(
      "CorvelDocument",
      "Another program has changed the file of this document. Do you want to replace what it holds now?");
  std::string advice =
      localizer.text("CorvelDocument", "To keep both, cancel and save this document under another name.");
  if (look.state == State::isGone) {
    message =
        localizer.text("CorvelDocument", "The file of this document is gone. Do you want to write it again?");
    advice =
        localizer.text("CorvelDocument", "Another program or another user has removed, moved or renamed it.");
  } else if (look.state == State::isUnreadable) {
    message = localizer.text("CorvelDocument",
                             "The file of this document cannot be read. Do you want to replace it?");
    advice = look.reason + "\n\n" + advice;
  }
  return alerts_.runModal({.message = message,
                           .information = path + "\n\n" + advice,
                           .defaultButton = localizer.text("CorvelDocument", "Save Anyway"),
                           .alternateButton = services_.localizer.text("ZuVersion", "Cancel"),
                           .isCancelledByReturn = true}) == AlertReturn::defaultButton;
}

void DocumentController::lookAtFile(ZuDocument& document) const {
  using State = ZuDocument::FileState;
  const auto& localizer = services_.localizer;
  const ZuDocument::FileLook look = document.lookAtFile();
  switch (look.state) {
    case State::asKnown: break;
    case State::isChanged:
      document.remark(
          document.isDocumentEdited()
              ? localizer.text("CorvelDocument", "Another program has changed the file of this document.")
              : localizer.text("CorvelDocument",
                               "Another program has changed the file of this document. Revert reads it."));
      break;
    case State::isGone:
      document.remark(localizer.text("CorvelDocument", "The file of this document is gone."));
      break;
    case State::isUnreadable:
      document.remark(localizer.text("CorvelDocument", "The file of this document cannot be read:") + " " +
                      look.reason);
      break;
  }
}

void DocumentController::releaseLocks() {
  for (const auto& document : documents_) document->setLock(nullptr);
}

bool DocumentController::revertDocument(ZuDocument& document) {
  const std::optional<std::string> path = document.filePath();
  if (!path) return false;
  const auto& localizer = services_.localizer;
  const bool losesNothing =
      !document.isDocumentEdited() && document.lookAtFile().state == ZuDocument::FileState::isChanged;
  const auto userAgrees = [&] {
    return alerts_.runModal(
               {.message = localizer.text("CorvelDocument",
                                          "Do you want to go back to the document as it was last saved?"),
                .information = localizer.text("CorvelDocument", "All changes since then will be lost."),
                .defaultButton = localizer.text("CorvelDocument", "Revert"),
                .alternateButton = localizer.text("ZuVersion", "Cancel")}) == AlertReturn::defaultButton;
  };
  if ((!losesNothing && !userAgrees()) || !isOpen(document)) return false;
  tryToHold(document);
  const auto error = document.revertToSaved();
  if (!error) {
    // What was said of the file or the document before is so no more, but for who has it.
    if (!document.isReadOnly()) document.remark({});
    return true;
  }
  alerts_.tellDetails(localizer.text("CorvelDocument", "The document cannot be read."),
                      foundation::sentenceAbout(*path, *error), error->details);
  return false;
}

bool DocumentController::mayGo(ZuDocument& document) {
  // What a field accepts is saved or discarded with the rest; what it refuses goes with the window.
  const bool isCommitted = document.commitEditing();
  // Committing a gravidity may have put another document into this one's place.
  if (!isOpen(document) || !document.isDocumentEdited()) return true;
  const auto text = [&](std::string_view table, std::string_view key) {
    return services_.localizer.text(table, key);
  };
  std::string information = document.nameForUser();
  if (!isCommitted) {
    information += "\n\n";
    information +=
        text("CorvelDocument", "A field holds a text that is not permitted. It will not be saved.");
  }
  const std::size_t answer = alerts_.chooseOne(
      text("CorvelDocument", "Do you want to save the changes of this document?"), information,
      {text("CorvelDocument", "Save"), text("CorvelDocument", "Discard"), text("ZuVersion", "Cancel")});
  enum : std::size_t { kSave = 0, kDiscard = 1 };
  if (answer == kDiscard) return true;
  if (answer != kSave) return false;
  const auto path =
      document.filePath() ? document.filePath() : panels_.chooseFileToSave(suggestedFileName(document));
  return path && write(document, *path);
}

bool DocumentController::closeDocument(ZuDocument& document) {
  if (!mayGo(document)) return false;
  if (isOpen(document)) remove(document);
  return true;
}

bool DocumentController::saveEditedDocuments() {
  std::vector<ZuDocument*> all = documents();
  std::ranges::reverse(all);
  return std::ranges::all_of(all, [this](ZuDocument* document) {
    if (!isOpen(*document) || !document->isDocumentEdited()) return true;
    setCurrentDocument(*document);
    return mayGo(*document);
  });
}

bool DocumentController::closeUntouchedDocument(ZuDocument& document) {
  if (!isOpen(document) || !document.isUntouched()) return false;
  remove(document);
  return true;
}

bool DocumentController::closeAllDocuments() {
  if (!saveEditedDocuments()) return false;
  while (ZuDocument* front = currentDocument()) remove(*front);
  return true;
}

bool DocumentController::replaceDocument(ZuDocument& document, const std::string& path) {
  FileError error;
  if (!openDocument(path, error)) {
    tellUnopened(error);
    return false;
  }
  remove(document);
  return true;
}

ZuDocument& DocumentController::recoverDocument(std::span<const std::byte> contents, const std::string& path,
                                                bool isFileNewer) {
  auto document = factory_();
  document->takeRecovered(contents, path, isFileNewer);
  ZuDocument& added = add(std::move(document));
  added.windowControllerDidLoadNib();
  added.updateChangeCount(ZuDocument::ChangeType::changeDone);
  tryToHold(added);
  return added;
}

ZuDocument* DocumentController::currentDocument() const {
  return documents_.empty() ? nullptr : documents_.back().get();
}

void DocumentController::setCurrentDocument(ZuDocument& document) {
  const auto place = std::ranges::find(documents_, &document, &std::unique_ptr<ZuDocument>::get);
  if (place == documents_.end()) return;
  std::rotate(place, place + 1, documents_.end());
  onDocumentInFront(document);
}

std::vector<ZuDocument*> DocumentController::documents() const {
  std::vector<ZuDocument*> open;
  for (const auto& document : documents_) open.push_back(document.get());
  return open;
}

ZuDocument& DocumentController::add(std::unique_ptr<ZuDocument> document) {
  ZuDocument& added = *documents_.emplace_back(std::move(document));
  onDocumentAdded(added);
  return added;
}

void DocumentController::remove(ZuDocument& document) {
  const auto place = std::ranges::find(documents_, &document, &std::unique_ptr<ZuDocument>::get);
  if (place == documents_.end()) return;
  document.windowWillClose();
  document.setLock(nullptr);
  closed_.push_back(std::move(*place));
  documents_.erase(place);
  onDocumentRemoved(document);
  if (ZuDocument* front = currentDocument()) onDocumentInFront(*front);
}

bool DocumentController::isOpen(const ZuDocument& document) const {
  return std::ranges::find(documents_, &document, &std::unique_ptr<ZuDocument>::get) != documents_.end();
}

ZuDocument* DocumentController::documentOfFile(const std::string& path) const {
  const std::string wanted = services_.files.resolvedPath(path);
  for (const auto& document : documents_) {
    if (document->filePath() && services_.files.resolvedPath(*document->filePath()) == wanted) {
      return document.get();
    }
  }
  return nullptr;
}

std::string DocumentController::suggestedFileName(const ZuDocument& document) const {
  if (document.filePath()) return document.displayName();
  return fileName(document.nameForUser(),
                  services_.defaults.value(foundation::defaults_key::dataFileExtension).value_or("nascor"));
}

}  // namespace nascor::framework
