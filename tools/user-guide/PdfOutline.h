#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace nascor::user_guide {

/// A place in the document: a chapter (level 1) or a section of it (level 2).
struct Heading {
  QString title;
  int level = 1;
  int page = 0;      ///< from 0
  double top = 0.0;  ///< in points, from the upper edge of the page
};

/// `pdf`, as the toolkit writes it, with bookmarks for `headings`, which a viewer shows beside the pages. They are appended,
/// as the format allows for a change to a finished file; no byte before them moves. The first heading is of level 1. Throws
/// std::runtime_error for a file whose structure is another one.
QByteArray withOutline(const QByteArray& pdf, const std::vector<Heading>& headings, double pageHeight);

}  // namespace nascor::user_guide
