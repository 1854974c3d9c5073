// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/OptionTexts.h"

#include "base/Introduction.h"
#include "program/ProgramOptions.h"

namespace nascor::qt {

ProgramTexts programTexts() {
  const ProgramOptions options;
  ProgramTexts texts{
      .usage = ProgramOptions::kUsage,
      .introduction = {"One document per pregnant patient: measurements, charts, a report.",
                       disclaimer().toStdString()},
      .options = {},
      .files = {.names = {"FILE..."}, .value = {}, .help = ProgramOptions::helpOfFiles().toStdString()}};
  for (const QCommandLineOption& each : options.all()) {
    OptionText text{
        .names = {}, .value = each.valueName().toStdString(), .help = each.description().toStdString()};
    for (const QString& name : each.names())
      text.names.push_back((name.size() == 1 ? "-" : "--") + name.toStdString());
    texts.options.push_back(std::move(text));
  }
  return texts;
}

}  // namespace nascor::qt
