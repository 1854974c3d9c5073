#pragma once

#include <QString>
#include <QStringList>

namespace nascor::user_guide {

/// The chapters of `paths`, files of Markdown, as one text. A line `{{growth}}`, `{{weight}}`, `{{crl}}` or `{{band}}` gives
/// way to the program's own publications and remarks. Links between the files, which lead nowhere on paper, lose their
/// targets; tabs become spaces. Throws std::runtime_error for a file that cannot be read.
QString guideText(const QStringList& paths);

}  // namespace nascor::user_guide
