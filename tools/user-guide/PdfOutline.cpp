#include "user-guide/PdfOutline.h"

#include <QRegularExpression>
#include <algorithm>
#include <map>
#include <stdexcept>

namespace nascor::user_guide {
namespace {

/// What `pattern` finds last in `text`.
QString lastMatch(const QString& text, const char* pattern) {
  const QRegularExpression expression{QLatin1String(pattern)};
  QString found;
  for (auto matches = expression.globalMatch(text); matches.hasNext();) found = matches.next().captured(1);
  if (found.isEmpty()) throw std::runtime_error(std::string("the PDF has no ").append(pattern));
  return found;
}

/// The body of an object, between its braces.
QString dictionary(const QString& text, int object) {
  const QString start = QStringLiteral("\n%1 0 obj\n").arg(object);
  const qsizetype from = text.indexOf(start);
  const qsizetype open = from < 0 ? -1 : text.indexOf(QStringLiteral("<<"), from);
  const qsizetype end = open < 0 ? -1 : text.indexOf(QStringLiteral("endobj"), open);
  const qsizetype close = end < 0 ? -1 : text.lastIndexOf(QStringLiteral(">>"), end);
  if (close < open || close < 0) throw std::runtime_error("the PDF lacks an object");
  return text.mid(open + 2, close - open - 2);
}

/// A text of any script, in the form that a dictionary holds.
QByteArray textString(const QString& text) {
  QByteArray hex = "<FEFF";
  for (const QChar sign : text)
    hex += QByteArray::number(sign.unicode(), 16).rightJustified(4, '0').toUpper();
  return hex + '>';
}

}  // namespace

QByteArray withOutline(const QByteArray& pdf, const std::vector<Heading>& headings, double pageHeight) {
  // One sign a byte, so that places in the text are places in the file.
  const QString text = QString::fromLatin1(pdf);
  const int root = lastMatch(text, "/Root (\\d+) 0 R").toInt();
  const int size = lastMatch(text, "/Size (\\d+)").toInt();
  const QString info = lastMatch(text, "/Info (\\d+) 0 R");
  const QString before = lastMatch(text, "startxref\\s+(\\d+)");
  const QString catalog = dictionary(text, root);
  const QString kids = lastMatch(dictionary(text, lastMatch(catalog, "/Pages (\\d+) 0 R").toInt()),
                                 "/Kids\\s*\\[([^\\]]*)\\]");
  std::vector<QString> pages;
  static const QRegularExpression reference(QStringLiteral("(\\d+) 0 R"));
  for (auto matches = reference.globalMatch(kids); matches.hasNext();)
    pages.push_back(matches.next().captured(1));

  const int count = static_cast<int>(headings.size());
  const int outline = size;
  const auto objectOf = [&](int heading) { return QByteArray::number(outline + 1 + heading); };
  const auto levelOf = [&](int heading) { return headings.at(static_cast<std::size_t>(heading)).level; };
  /// The next or previous heading of the same level under the same chapter; none is `count`.
  const auto neighbour = [&](int heading, int step) {
    for (int i = heading + step; i >= 0 && i < count; i += step) {
      if (levelOf(i) == levelOf(heading)) return i;
      if (levelOf(i) < levelOf(heading)) break;
    }
    return count;
  };

  std::map<int, QByteArray> objects;
  QByteArray tree = "<< /Type /Outlines";
  int chapters = 0;
  for (int i = 0; i < count; ++i) {
    const Heading& heading = headings.at(static_cast<std::size_t>(i));
    QByteArray entry = "<< /Title " + textString(heading.title);
    int parent = i;
    while (parent > 0 && levelOf(parent) >= heading.level) --parent;
    if (heading.level == 1) {
      ++chapters;
      entry += " /Parent " + QByteArray::number(outline) + " 0 R";
      if (neighbour(i, -1) == count) tree += " /First " + objectOf(i) + " 0 R";
      if (neighbour(i, 1) == count) tree += " /Last " + objectOf(i) + " 0 R";
    } else {
      entry += " /Parent " + objectOf(parent) + " 0 R";
    }
    if (const int next = neighbour(i, 1); next < count) entry += " /Next " + objectOf(next) + " 0 R";
    if (const int previous = neighbour(i, -1); previous < count)
      entry += " /Prev " + objectOf(previous) + " 0 R";
    int sections = 0;
    while (i + 1 + sections < count && levelOf(i + 1 + sections) > heading.level) ++sections;
    if (sections > 0) {
      entry += " /First " + objectOf(i + 1) + " 0 R /Last " + objectOf(i + sections) + " 0 R /Count -" +
               QByteArray::number(sections);  // closed at first
    }
    entry += " /Dest [" + pages.at(static_cast<std::size_t>(heading.page)).toLatin1() + " 0 R /XYZ 0 " +
             QByteArray::number(pageHeight - heading.top, 'f', 1) + " 0] >>";
    objects.insert_or_assign(outline + 1 + i, entry);
  }
  objects.insert_or_assign(outline, tree + " /Count " + QByteArray::number(chapters) + " >>");
  objects.insert_or_assign(root, "<<" + catalog.toLatin1() + " /Outlines " + QByteArray::number(outline) +
                                     " 0 R /PageMode /UseOutlines >>");

  QByteArray result = pdf;
  if (!result.endsWith('\n')) result += '\n';
  QByteArray table = "xref\n";
  for (const auto& [number, body] : objects) {
    table += QByteArray::number(number) + " 1\n" + QByteArray::number(result.size()).rightJustified(10, '0') +
             " 00000 n \n";
    result += QByteArray::number(number) + " 0 obj\n" + body + "\nendobj\n";
  }
  const QByteArray start = QByteArray::number(result.size());
  result += table + "trailer\n<< /Size " + QByteArray::number(size + 1 + count) + " /Root " +
            QByteArray::number(root) + " 0 R /Info " + info.toLatin1() + " 0 R /Prev " + before.toLatin1() +
            " >>\nstartxref\n" + start + "\n%%EOF\n";
  return result;
}

}  // namespace nascor::user_guide
