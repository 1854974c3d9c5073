#include "user-guide/GuideText.h"

#include <QFile>
#include <QMap>
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

/// Where the links of the text lead on paper. `titles` are those of the chapters, by their files.
QString withLinksInside(const QString& text, const QMap<QString, QString>& titles) {
  static const QRegularExpression link(QStringLiteral(R"((?<!!)\[([^\]]+)\]\(([^)]*)\))"));
  QString result;
  qsizetype done = 0;
  for (auto matches = link.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const QString words = match.captured(1);
    const QString target = match.captured(2);
    const QString file = target.section(u'#', 0, 0);
    const QString name = target.section(u'#', 1);
    result += text.mid(done, match.capturedStart() - done);
    done = match.capturedEnd();
    if (target.startsWith(QLatin1String("http"))) {
      result += match.captured(0);
    } else if (file.isEmpty() || titles.contains(file)) {
      const QString title = titles.value(file);
      result += QStringLiteral("[%1](#%2)")
                    .arg(words == file ? title : words, name.isEmpty() ? headingName(title) : name);
    } else {
      result += words;
    }
  }
  return result + text.mid(done);
}

}  // namespace

QString headingName(const QString& title) {
  QString name;
  for (const QChar sign : title.toLower()) {
    if (sign.isLetterOrNumber() || sign == u'-') name += sign;
    if (sign.isSpace()) name += u'-';
  }
  return name;
}

QString guideText(const QStringList& paths) {
  QString text;
  QMap<QString, QString> titles;
  static const QRegularExpression firstTitle(QStringLiteral("^# (.*)$"), QRegularExpression::MultilineOption);
  for (const QString& path : paths) {
    const QString chapter = contents(path);
    titles.insert(path.section(u'/', -1), firstTitle.match(chapter).captured(1));
    text += chapter + QStringLiteral("\n\n");
  }
  text = withLinksInside(withoutTabs(text), titles);
  // The toolkit's reader of Markdown takes what follows an empty first cell for it.
  static const QRegularExpression emptyCorner(QStringLiteral(R"(^\| \|)"),
                                              QRegularExpression::MultilineOption);
  text.replace(emptyCorner, QStringLiteral("| \u00a0 |"));
  text.replace(QStringLiteral("{{growth}}"), listOf(calc::growthStandardPublications()));
  text.replace(QStringLiteral("{{weight}}"), listOf(calc::weightFormulaPublications()));
  text.replace(QStringLiteral("{{crl}}"), listOf(calc::crlFormulaPublications()));
  text.replace(QStringLiteral("{{band}}"), qt::fromUtf8(calc::weightBandRemark()));
  return text;
}

}  // namespace nascor::user_guide
