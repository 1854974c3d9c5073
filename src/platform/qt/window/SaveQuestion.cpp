// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/SaveQuestion.h"

#include <QFile>
#include <QFileDialog>

#include "base/Text.h"

namespace nascor::qt {

std::optional<QString> fileToWrite(QWidget& window, const QString& title, const std::vector<FileKind>& kinds,
                                   const std::string& folder, const std::string& name) {
  QFileDialog dialog(&window, title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters;
  for (const FileKind& kind : kinds) filters += kind.filter;
  dialog.setNameFilters(filters);
  dialog.setDefaultSuffix(kinds.front().suffix);
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& chosen) {
    for (const FileKind& kind : kinds) {
      if (kind.filter == chosen) dialog.setDefaultSuffix(kind.suffix);
    }
  });
  dialog.setDirectory(QFile::decodeName(QByteArray::fromStdString(folder)));
  dialog.selectFile(fromUtf8(name));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.selectedFiles().constFirst();
}

}  // namespace nascor::qt
