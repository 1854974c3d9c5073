// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/ReferenceText.h"

#include <vector>

#include "cli_commands/Command.h"
#include "cli_commands/Names.h"
#include "cli_commands/Suggestion.h"
#include "foundation/NumberText.h"

namespace nascor::cli {

using foundation::JsonText;
using foundation::shortestText;

std::string centileText(const calc::Centile& centile) {
  std::string percent = shortestText(centile.percent);
  switch (centile.side) {
    case calc::Centile::Side::below: return "<" + percent;
    case calc::Centile::Side::above: return ">" + percent;
    case calc::Centile::Side::within: break;
  }
  return percent;
}

void writeOrNull(JsonText& json, std::optional<double> number) {
  if (number) {
    json.number(*number);
  } else {
    json.null();
  }
}

void writeOrNull(JsonText& json, const std::optional<calc::Centile>& centile) {
  if (!centile) {
    json.null();
  } else if (centile->side == calc::Centile::Side::within) {
    json.number(centile->percent);
  } else {
    json.text(centileText(*centile));
  }
}

const calc::Reference& requiredReference(std::string_view what, const std::string& text) {
  const std::string name = inSmallLetters(text);
  if (const calc::Reference* reference = calc::referenceNamed(name)) return *reference;
  if (name == "fmf-2018") {
    throw UsageError(
        Sentence("CommandLine",
                 "%1: fmf-2018 is not offered, because its formula was not held against its printed table")
            .with(what));
  }
  std::vector<std::string> names;
  std::string expected;
  for (const calc::Reference& reference : calc::references()) {
    names.emplace_back(reference.name);
    expected += (expected.empty() ? "" : ", ") + names.back();
  }
  //: %1 is an option or an operand, %2 a list of names.
  const auto sentence = Sentence("CommandLine", "%1: expected one of %2, but \"%3\" was given");
  throw UsageError(didYouMean(sentence.with(what, expected, oneLine(text)), name, names));
}

}  // namespace nascor::cli
