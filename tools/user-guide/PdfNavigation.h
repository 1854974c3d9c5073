#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace nascor::user_guide {

/// A place in the document: a chapter (level 1) or a section of it (level 2).
struct Heading {
  QString title;
  int level = 1;
  int page = 0;       ///< from 0
  double top = 0.0;   ///< in points, from the upper edge of the page
  QString name = {};  ///< of letters, digits and hyphens; a link to "#name" leads here
};

/// `pdf`, as the toolkit writes it, with bookmarks for `headings`, which a viewer shows beside the pages, and with its links
/// to "#name", which the toolkit takes for addresses in the web, leading to the heading of that name. All this is appended,
/// as the format allows for a change to a finished file; no byte before it moves. The first heading is of level 1. Throws
/// std::runtime_error for a file whose structure is another one, and for a link to a heading that there is not.
QByteArray withNavigation(const QByteArray& pdf, const std::vector<Heading>& headings, double pageHeight);

}  // namespace nascor::user_guide
