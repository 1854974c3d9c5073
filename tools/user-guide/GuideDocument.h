#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <functional>

namespace nascor::user_guide {

/// What stands on the first page and at the foot of the others.
struct GuideTitle {
  QString title;
  QString subtitle;
  QString warning;
};

/// Gives the picture of a name; a picture `![caption](picture:NAME)` in the text asks for it.
using PictureSource = std::function<QImage(const QString& name)>;

/// `text`, Markdown, as a PDF on A4: a title, the contents, numbered chapters that begin on pages of their own, page numbers,
/// bookmarks. Throws std::runtime_error.
QByteArray guidePdf(const GuideTitle& title, const QString& text, const PictureSource& pictures);

}  // namespace nascor::user_guide
