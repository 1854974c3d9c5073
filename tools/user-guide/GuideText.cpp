#include "user-guide/GuideText.h"

#include <QFile>
#include <QRegularExpression>
#include <stdexcept>
#include <vector>

#include "calc/Publications.h"
#include "qt/Text.h"

namespace nascor::user_guide {
namespace {

using calc::Confirmation;
using calc::Publication;

QString listOf(const std::vector<Publication>& publications) {
  QString text;
  for (const Publication& each : publications) {
    text += QStringLiteral("- **%1.** %2.").arg(qt::fromUtf8(each.label), qt::fromUtf8(each.citation));
    if (each.confirmation == Confirmation::partlySeen)
      text += QStringLiteral(" *Citation partly confirmed.*");
    if (each.confirmation == Confirmation::awaited) text += QStringLiteral(" *Citation to be confirmed.*");
    if (!each.remark.empty()) text += QStringLiteral(" *%1*").arg(qt::fromUtf8(each.remark));
    text += u'\n';
  }
  return text;
}

QString contents(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error(qt::toUtf8(path) + " cannot be read");
  return QString::fromUtf8(file.readAll());
}

/// Tabs as spaces, to columns of eight, counted from the four by which Markdown sets code in.
QString withoutTabs(const QString& text) {
  constexpr qsizetype kColumn = 8;
  constexpr qsizetype kIndent = 4;
  QStringList lines = text.split(u'\n');
  for (QString& line : lines) {
    for (qsizetype at = line.indexOf(u'\t'); at >= 0; at = line.indexOf(u'\t'))
      line.replace(at, 1, QString(kColumn - (at + kColumn - kIndent) % kColumn, u' '));
  }
  return lines.join(u'\n');
}

}  // namespace

QString guideText(const QStringList& paths) {
  static const QRegularExpression localLink(QStringLiteral("(?<!!)\\[([^\\]]+)\\]\\((?!https?:)[^)]*\\)"));
  QString text;
  for (const QString& path : paths) text += contents(path) + QStringLiteral("\n\n");
  text = withoutTabs(text);
  text.replace(localLink, QStringLiteral("\\1"));
  // The toolkit's reader of Markdown takes what follows an empty first cell for it.
  static const QRegularExpression emptyCorner(QStringLiteral("^\\| \\|"),
                                              QRegularExpression::MultilineOption);
  text.replace(emptyCorner, QStringLiteral("| \u00a0 |"));
  text.replace(QStringLiteral("{{growth}}"), listOf(calc::growthStandardPublications()));
  text.replace(QStringLiteral("{{weight}}"), listOf(calc::weightFormulaPublications()));
  text.replace(QStringLiteral("{{crl}}"), listOf(calc::crlFormulaPublications()));
  text.replace(QStringLiteral("{{band}}"), qt::fromUtf8(calc::weightBandRemark()));
  return text;
}

}  // namespace nascor::user_guide
