// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>
#include <optional>

#include "program/PageExport.h"

namespace nascor::qt {

/// The options of a command line that say which pages of the documents are to become files.
class PageOptions {
 public:
  /// In the order of help.
  QList<QCommandLineOption> all() const;
  bool areGiven(const QCommandLineParser& parser) const { return parser.isSet(folder_); }
  bool arePathsWanted(const QCommandLineParser& parser) const {
    return !parser.isSet(quiet_) && !isForStandardOutput(parser);
  }
  /// What was typed; nothing, and a sentence in `error`, for a value that is none.
  std::optional<PageExport> read(const QCommandLineParser& parser, QString& error) const;

 private:
  /// The folder "-" is standard output.
  bool isForStandardOutput(const QCommandLineParser& parser) const {
    return parser.value(folder_) == QLatin1String("-");
  }

  QCommandLineOption folder_{
      QStringLiteral("write-pages"),
      QCoreApplication::translate(
          "main",
          "Writes the pages of the documents into FOLDER, and shows no window. Files of "
          "the same names are replaced. As - the one file goes to standard output."),
      QStringLiteral("FOLDER")};
  QCommandLineOption format_{
      QStringLiteral("format"),
      QCoreApplication::translate("main", "With --write-pages: pdf, png or svg; else PNG and PDF."),
      QStringLiteral("FORMAT")};
  QCommandLineOption pages_{
      QStringLiteral("pages"),
      QCoreApplication::translate(
          "main", "With --write-pages: all, or first, last, numbers from 0 and names, with commas between."),
      QStringLiteral("PAGES")};
  QCommandLineOption fetus_{
      QStringLiteral("fetus"),
      QCoreApplication::translate("main", "With --write-pages: all, or the number of one fetus."),
      QStringLiteral("N")};
  QCommandLineOption noFoot_{
      QStringLiteral("no-foot"),
      QCoreApplication::translate("main", "With --write-pages: nothing stands under the pages.")};
  QCommandLineOption overlay_{
      QStringLiteral("overlay"),
      QCoreApplication::translate(
          "main", "With --write-pages: draws centile lines of that reference over the charts."),
      QStringLiteral("REFERENCE")};
  QCommandLineOption joinMarks_{
      QStringLiteral("join-marks"),
      QCoreApplication::translate("main", "With --write-pages: lines join the marks of each fetus.")};
  QCommandLineOption noClobber_{
      QStringLiteral("no-clobber"),
      QCoreApplication::translate("main", "With --write-pages: files that are there are left as they are.")};
  QCommandLineOption quiet_{
      QStringLiteral("quiet"),
      QCoreApplication::translate("main", "With --write-pages: the files are not listed.")};
};

}  // namespace nascor::qt
