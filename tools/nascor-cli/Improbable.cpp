// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Improbable.h"

#include <cmath>

#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "exchange/Codes.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"

namespace nascor::cli {

using calc::Improbable;
using foundation::shortestText;

namespace {

/// As it was typed: a document holds single-precision numbers, the command line double.
std::string lengthText(double millimetres) {
  const auto single = static_cast<float>(millimetres);
  return static_cast<double>(single) == millimetres ? foundation::shortestSingleText(single)
                                                    : shortestText(millimetres);
}

}  // namespace

Sentence improbableText(Improbable what, calc::Measurement measurement, const calc::Biometry& lengths) {
  const Sentence name = exchange::labelOf(static_cast<std::size_t>(measurement));
  const std::string length = lengthText(lengths.*calc::memberFor(measurement));
  switch (what) {
    case Improbable::outsideBounds: {
      const auto bounds = calc::editingBounds(measurement);
      return Sentence("Improbable", "%1 %2 mm is outside %3 to %4 mm")
          .with(name, length, shortestText(bounds.least), shortestText(bounds.greatest));
    }
    case Improbable::shorterThanAnywhere:
      return Sentence("Improbable",
                      "%1 %2 mm is shorter than where any growth standard begins; lengths are in mm")
          .with(name, length);
    case Improbable::farBelowStandard:
      return Sentence("Improbable",
                      "%1 %2 mm is more than 4 SD below the mean of the growth standard at this age")
          .with(name, length);
    case Improbable::farAboveStandard:
      return Sentence("Improbable",
                      "%1 %2 mm is more than 4 SD above the mean of the growth standard at this age")
          .with(name, length);
    case Improbable::headTooSmall:
      return Sentence("Improbable", "%1 %2 mm is below nine tenths of pi times the BPD, %3 mm")
          .with(name, length, lengthText(lengths.bpd));
    default: return Sentence("Improbable", "%1 %2 mm is improbable").with(name, length);
  }
}

Sentence improbableText(Improbable what, double age) {
  if (what == Improbable::beforeLastPeriod) {
    const double days = std::round(-age * 7.0);
    const std::string text = shortestText(days);
    //: "It" is an examination.
    const auto one = Sentence("Improbable", "it is %1 day before the last period");
    const auto many = Sentence("Improbable", "it is %1 days before the last period");
    return Sentence::counted(days == 1.0 ? 1 : 2, one.with(text), many.with(text));
  }
  return Sentence("Improbable", "its age, %1, is above 45 weeks")
      .with(calc::gestationText(age, foundation::EnglishLocalizer()));
}

void warn(Console& console, const Sentence& sentence) { console.warn(kWarning, sentence); }

void StreamWarnings::add(const Sentence& sentence) {
  if (count_++ == 0) warn(console_, sentence);
}

void StreamWarnings::end() {
  if (count_ < 2) return;
  warn(console_, Sentence("CommandLine", "the same holds for %1 more of the input").with(count_ - 1));
}

}  // namespace nascor::cli
