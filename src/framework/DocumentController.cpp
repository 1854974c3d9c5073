#include "framework/DocumentController.h"

#include <algorithm>

#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "framework/FileName.h"

namespace nascor::framework {

using foundation::FileError;

ZuDocument& DocumentController::newDocument() {
  ZuDocument& document = add(factory_());
  document.setDocIsBlank(true);
  document.windowControllerDidLoadNib();
  return document;
}

ZuDocument* DocumentController::openDocument(const std::string& path, FileError& error) {
  if (ZuDocument* open = documentOfFile(path)) {
    setCurrentDocument(*open);
    return open;
  }
  auto document = factory_();
  if (const auto unreadable = document->readFromFile(path)) {
    error = {.reason = foundation::sentenceAbout(path, *unreadable), .details = unreadable->details};
    return nullptr;
  }
  ZuDocument& added = add(std::move(document));
  added.windowControllerDidLoadNib();
  return &added;
}

void DocumentController::tellUnopened(const FileError& error) {
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

bool DocumentController::write(ZuDocument& document, const std::string& path) {
  const ZuDocument* holder = documentOfFile(path);
  if (holder == &document && document.isFileChangedByOthers() && !userReplacesChanges(path)) return false;
  // Two windows on one file would overwrite each other's patient.
  const auto error =
      holder && holder != &document
          ? FileError{services_.localizer.text("CorvelDocument", "It is open in another window.")}
          : document.writeToFile(path);
  if (!error) {
    if (const auto loss = document.lossInFile()) {
      alerts_.tell(services_.localizer.text("CorvelDocument",
                                            "The document was saved, but its file cannot hold all of it."),
                   path + ": " + *loss);
    }
    return true;
  }
  alerts_.tell(services_.localizer.text("CorvelDocument", "The document was not saved."),
               path + ": " + error->reason);
  return false;
}

bool DocumentController::userReplacesChanges(const std::string& path) {
  const auto& localizer = services_.localizer;
  return alerts_.runModal(
             {.message =
                  localizer.text("CorvelDocument",
                                 "Another program has changed the file of this document. Do you want to "
                                 "replace what it holds now?"),
              .information =
                  path + "\n\n" +
                  localizer.text("CorvelDocument",
                                 "To keep both, cancel and save this document under another name."),
              .defaultButton = localizer.text("CorvelDocument", "Save Anyway"),
              .alternateButton = localizer.text("ZuVersion", "Cancel"),
              .isCancelledByReturn = true}) == AlertReturn::defaultButton;
}

bool DocumentController::revertDocument(ZuDocument& document) {
  const std::optional<std::string> path = document.filePath();
  if (!path) return false;
  const auto& localizer = services_.localizer;
  const AlertReturn answer = alerts_.runModal(
      {.message =
           localizer.text("CorvelDocument", "Do you want to go back to the document as it was last saved?"),
       .information = localizer.text("CorvelDocument", "All changes since then will be lost."),
       .defaultButton = localizer.text("CorvelDocument", "Revert"),
       .alternateButton = localizer.text("ZuVersion", "Cancel")});
  if (answer != AlertReturn::defaultButton || !isOpen(document)) return false;
  const auto error = document.revertToSaved();
  if (!error) return true;
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
