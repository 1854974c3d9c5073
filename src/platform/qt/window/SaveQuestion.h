// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

namespace nascor::qt {

/// A kind of file that may be chosen.
struct FileKind {
  QString filter;  ///< "PDF (*.pdf)"
  QString suffix;  ///< of a name without one
};

/// Asks for the file to write into, of one of `kinds`, with a name to begin with in `folder`. Nothing when it was cancelled.
std::optional<QString> fileToWrite(QWidget& window, const QString& title, const std::vector<FileKind>& kinds,
                                   const std::string& folder, const std::string& name);

}  // namespace nascor::qt
