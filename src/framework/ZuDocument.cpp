#include "framework/ZuDocument.h"

#include <stdexcept>
#include <utility>
#include <variant>

#include "foundation/Localizer.h"

namespace nascor::framework {

using foundation::FileError;

void ZuDocument::setFilePath(std::optional<std::string> path) {
  filePath_ = std::move(path);
  stateChanged();
}

std::string ZuDocument::displayName() const {
  if (!filePath_) return services_.localizer.text(foundation::string_table::corvelDocument, "Untitled");
  return filePath_->substr(filePath_->rfind('/') + 1);
}

std::optional<FileError> ZuDocument::writeToFile(const std::string& path) {
  const std::vector<std::byte> bytes = dataRepresentationOfType("");
  if (auto error = services_.files.replaceContents(path, bytes)) return error;
  filePath_ = path;
  docIsBlank_ = false;
  updateChangeCount(ChangeType::changeCleared);
  return std::nullopt;
}

std::optional<FileError> ZuDocument::revertToSaved() {
  if (!filePath_) return FileError{"the document was never saved"};
  const auto contents = services_.files.contents(*filePath_);
  if (const auto* error = std::get_if<FileError>(&contents)) return *error;
  try {
    loadDataRepresentation(std::get<std::vector<std::byte>>(contents), "");
  } catch (const std::runtime_error& error) {
    return FileError{error.what()};
  }
  if (!holdsContents()) {
    // As when it is opened: a blank document, which never overwrites that file.
    filePath_.reset();
    docIsBlank_ = true;
  }
  windowControllerDidLoadNib();
  updateChangeCount(ChangeType::changeCleared);
  return std::nullopt;
}

void ZuDocument::updateChangeCount(ChangeType change) {
  switch (change) {
    case ChangeType::changeDone: ++changeCount_; break;
    case ChangeType::changeUndone: --changeCount_; break;
    case ChangeType::changeCleared:
      changeCount_ = 0;
      changesWereCleared();
      break;
  }
  stateChanged();
}

}  // namespace nascor::framework
