// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/ProgramOptions.h"

#include "base/Introduction.h"

namespace nascor::qt {

ProgramOptions::ProgramOptions() {
  parser.setApplicationDescription(
      QCoreApplication::translate("main", "Obstetric ultrasound biometry.\n%1").arg(disclaimer()));
  parser.addOptions(all());
  parser.addPositionalArgument("file", helpOfFiles(), "[FILE...]");
}

QList<QCommandLineOption> ProgramOptions::all() const {
  return QList<QCommandLineOption>{help, version, service, watch} + pages.all();
}

QString ProgramOptions::helpOfFiles() { return QCoreApplication::translate("main", "Documents to open."); }

}  // namespace nascor::qt
