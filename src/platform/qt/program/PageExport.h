// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "charts/Overlay.h"
#include "foundation/Services.h"
#include "framework/PageWriter.h"
#include "model/PatientPage.h"
#include "painting/PageFiles.h"

namespace nascor::qt {

/// Pages of documents that are wanted as files.
struct PageExport {
  QString folder;
  QStringList files;  ///< documents
  std::vector<framework::PageFormat> formats{framework::PageFormat::pdf};
  /// In the order of the files; all of them when there is none.
  std::vector<model::PatientPage> pages{};
  /// One fetus, the first is 0; nothing for all.
  std::optional<std::int64_t> fetus{};
  bool hasFoot = true;
  charts::Overlay overlay{};
  bool mayReplace = true;  ///< whether a file of the same name is replaced; it stays as it is otherwise
  /// Takes the one file in place of the folder, and returns why that failed. May be empty.
  std::function<std::optional<QString>(const QByteArray& bytes)> writeOneFile{};
  double pngScale = kUsualPngScale;
  std::function<void(int done, int total)>
      onProgress{};  ///< sent before each document and at the end; may be empty
};

/// What was done.
struct WrittenPages {
  QStringList paths;      ///< in the order in which they were written
  QStringList sentences;  ///< one for each thing that went wrong, each with the file's name before it
  QStringList warnings;   ///< likewise, for what was done otherwise than one may think
};

/// Writes the pages of documents into a folder, which is made when it is missing: as PDF all pages of a document in one
/// file, else each page in a file of its own. Files of the same names are replaced, but documents of the same name do
/// not replace each other's pages. A failure ends neither the document's other files nor the other documents.
WrittenPages exportPages(const PageExport& wanted, const foundation::Services& services);

/// `stem` as the beginning of a file name: without signs that end a name or lead out of its folder, short enough for
/// an ending of 50 bytes; "Untitled" for an empty one.
QString fileNameFrom(const QString& stem);

}  // namespace nascor::qt
