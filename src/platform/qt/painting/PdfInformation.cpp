// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/PdfInformation.h"

#include <QRegularExpression>

namespace nascor::qt {
namespace {

/// A text of a PDF: UTF-16 behind its mark, in hexadecimal digits.
QByteArray pdfText(const QString& text) {
  QByteArray bytes("\xFE\xFF");
  for (const QChar sign : text) {
    bytes.append(static_cast<char>(sign.unicode() >> 8U));
    bytes.append(static_cast<char>(sign.unicode() & 0xFFU));
  }
  return '<' + bytes.toHex() + '>';
}

}  // namespace

QByteArray withPdfInformation(const QByteArray& pdf, const QString& author, const QString& subject) {
  if (author.isEmpty() && subject.isEmpty()) return pdf;
  static const QRegularExpression kTrailer(
      QStringLiteral("trailer\\s*<<\\s*/Size (\\d+)\\s*/Info (\\d+) 0 R\\s*/Root (\\d+) 0 "
                     "R\\s*>>\\s*startxref\\s*(\\d+)\\s*%%EOF"));
  const qsizetype start = pdf.lastIndexOf("trailer");
  if (start < 0) return pdf;
  const auto trailer = kTrailer.match(QString::fromLatin1(pdf.mid(start)));
  const QByteArray head = trailer.captured(2).toLatin1() + " 0 obj";
  const qsizetype object = pdf.indexOf('\n' + head) + 1;
  const qsizetype end = pdf.indexOf(">>\nendobj", object);
  if (!trailer.hasMatch() || object == 0 || end < 0) return pdf;

  // An update at the end: the information once more and longer, and where it lies now.
  const QByteArray information = pdf.mid(object, end - object) + "/Author " + pdfText(author) +
                                 "\n/Subject " + pdfText(subject) + "\n>>\nendobj\n";
  const qsizetype place = pdf.size();
  const qsizetype table = place + information.size();
  return pdf + information + "xref\n" + trailer.captured(2).toLatin1() + " 1\n" +
         QByteArray::number(place).rightJustified(10, '0') + " 00000 n \ntrailer\n<<\n/Size " +
         trailer.captured(1).toLatin1() + "\n/Info " + trailer.captured(2).toLatin1() + " 0 R\n/Root " +
         trailer.captured(3).toLatin1() + " 0 R\n/Prev " + trailer.captured(4).toLatin1() +
         "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
}

}  // namespace nascor::qt
