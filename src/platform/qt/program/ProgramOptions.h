// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>
#include <QString>

#include "program/PageOptions.h"

namespace nascor::qt {

/// The options of the program, and what was typed.
struct ProgramOptions {
  /// What follows the name of the program.
  static constexpr const char* kUsage = "[--write-pages FOLDER | --watch FOLDER] [FILE...]";

  ProgramOptions();
  /// In the order of help.
  QList<QCommandLineOption> all() const;
  static QString helpOfFiles();

  QCommandLineParser parser;
  const QCommandLineOption help{{"h", "help"}, QCoreApplication::translate("main", "Shows this help.")};
  const QCommandLineOption version{{"v", "version"},
                                   QCoreApplication::translate("main", "Shows the version.")};
  const PageOptions pages;
  const QCommandLineOption watch{
      "watch", QCoreApplication::translate("main", "Offers the reports that machines put into this folder."),
      "FOLDER"};
  const QCommandLineOption service{
      "service", QCoreApplication::translate("main", "Shows no window until the session bus asks for one.")};
};

}  // namespace nascor::qt
