#include "qt/DocumentFile.h"

#include <QCoreApplication>
#include <QFile>
#include <variant>

#include "archive/FormatError.h"
#include "qt/Text.h"

namespace nascor::qt {

std::optional<QString> loadDocument(app::NCDocument& document, const QString& path,
                                    const foundation::FileStore& files) {
  const auto failure = [&](const std::string& reason) {
    return QCoreApplication::translate("DocumentFile", "%1 could not be opened: %2.")
        .arg(path, fromUtf8(reason));
  };
  const auto read = files.contents(QFile::encodeName(path).toStdString());
  if (const auto* error = std::get_if<foundation::FileError>(&read)) return failure(error->reason);
  try {
    document.loadDataRepresentation(std::get<std::vector<std::byte>>(read), {});
  } catch (const archive::FormatError& error) {
    return failure(error.what());
  }
  return std::nullopt;
}

}  // namespace nascor::qt
