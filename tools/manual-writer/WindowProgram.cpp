// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "manual_writer/WindowProgram.h"

#include "foundation/ProgramVersion.h"
#include "program/OptionTexts.h"

namespace nascor::manual {

Program windowProgram() {
  const qt::ProgramTexts texts = qt::programTexts();
  Command whole{.name = "nascor",
                .usage = texts.usage,
                .summary = "Obstetric ultrasound biometry.",
                .details = {},
                .operands = {{texts.files.names.front(), texts.files.help}},
                .options = {}};
  for (const std::string& line : texts.introduction) whole.details += line + "\n";
  for (const qt::OptionText& each : texts.options)
    whole.options.push_back({each.names, each.value, each.help});
  return {.whole = std::move(whole),
          .commands = {},
          .version = std::string(foundation::programVersion()),
          .seeAlso = "nascor-cli"};
}

}  // namespace nascor::manual
