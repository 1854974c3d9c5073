// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <string>

namespace nascor::tests {

/// What a program that has ended answered.
struct Answer {
  int status = -1;  ///< -1 when it could not be run or did not end by itself
  std::string output;
  std::string error;
};

inline Answer run(const QString& program, const QStringList& arguments,
                  const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
  constexpr int kPatience = 60'000;
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(program, arguments);
  const bool ended = process.waitForFinished(kPatience) && process.exitStatus() == QProcess::NormalExit;
  return {.status = ended ? process.exitCode() : -1,
          .output = process.readAllStandardOutput().toStdString(),
          .error = process.readAllStandardError().toStdString()};
}

}  // namespace nascor::tests
