#pragma once

#include <QString>
#include <optional>

#include "app/NCDocument.h"
#include "foundation/FileStore.h"

namespace nascor::qt {

/// Reads the document file at `path` into `document`. Returns why that failed, in one sentence that names the file, and
/// for a malformed one the byte and what was expected there. A file that holds no patient is none of that: it leaves
/// `document` without one.
std::optional<QString> loadDocument(app::NCDocument& document, const QString& path,
                                    const foundation::FileStore& files);

}  // namespace nascor::qt
