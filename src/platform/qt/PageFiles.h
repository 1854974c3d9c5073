#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <string>

#include "foundation/Services.h"
#include "framework/Page.h"

namespace nascor::qt {

/// @name A page as a file of 800 x 560 units
/// @{

/// A picture of `scale` pixels to the unit. Empty when it could not be made.
QByteArray pngOfPage(framework::Page& page, double scale);
/// One sheet, one point to the unit, its texts as text and its fonts inside. Empty when it could not be made.
QByteArray pdfOfPage(framework::Page& page);

/// @}

/// `stem` as the beginning of a file name: without signs that end a name or lead out of its folder, short enough for
/// an ending of 50 bytes; "Untitled" for an empty one.
QString fileNameFrom(const QString& stem);

/// What `writePages` did.
struct WrittenPages {
  QStringList paths;      ///< in the order in which they were written
  QStringList sentences;  ///< one for each thing that went wrong
};

/// Writes the pages of the documents `files` as PNG and PDF into `folder`, which is made when it is missing. Files of
/// the same names are replaced, but documents of the same name do not replace each other's pages.
WrittenPages writePages(const QString& folder, const QStringList& files,
                        const foundation::Services& services);

}  // namespace nascor::qt
