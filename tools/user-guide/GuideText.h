#pragma once

#include <QString>
#include <QStringList>

namespace nascor::user_guide {

/// The chapters of `paths`, files of Markdown, as one text. A line `{{growth}}`, `{{weight}}`, `{{crl}}` or `{{band}}` gives
/// way to the program's own publications and remarks. A link to one of the files leads to the heading that the file begins
/// with; one to another file, which leads nowhere on paper, loses its target. Tabs become spaces. Throws std::runtime_error
/// for a file that cannot be read.
QString guideText(const QStringList& paths);

/// What a link calls the heading `title`: its letters and digits, small, with hyphens for the spaces.
QString headingName(const QString& title);

}  // namespace nascor::user_guide
