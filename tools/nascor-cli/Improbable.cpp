#include "cli_commands/Improbable.h"

#include <cmath>

#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "cli_commands/Table.h"
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

std::string improbableText(Improbable what, calc::Measurement measurement, const calc::Biometry& lengths) {
  const std::string length = inCapitals(calc::nameOf(measurement)) + " " +
                             lengthText(lengths.*calc::memberFor(measurement)) + " mm is ";
  switch (what) {
    case Improbable::outsideBounds: {
      const auto bounds = calc::editingBounds(measurement);
      return length + "outside " + shortestText(bounds.least) + " to " + shortestText(bounds.greatest) +
             " mm";
    }
    case Improbable::shorterThanAnywhere:
      return length + "shorter than where any growth standard begins; lengths are in mm";
    case Improbable::farBelowStandard:
      return length + "more than 4 SD below the mean of the growth standard at this age";
    case Improbable::farAboveStandard:
      return length + "more than 4 SD above the mean of the growth standard at this age";
    case Improbable::headTooSmall:
      return length + "below nine tenths of pi times the BPD, " + lengthText(lengths.bpd) + " mm";
    default: return length + "improbable";
  }
}

std::string improbableText(Improbable what, double age) {
  if (what == Improbable::beforeLastPeriod) {
    const double days = std::round(-age * 7.0);
    return "it is " + shortestText(days) + (days == 1.0 ? " day" : " days") + " before the last period";
  }
  return "its age, " + calc::gestationText(age, foundation::EnglishLocalizer()) + ", is above 45 weeks";
}

void warn(Console& console, const std::string& sentence) { console.warn("warning", sentence); }

void StreamWarnings::add(const std::string& sentence) {
  if (count_++ == 0) warn(console_, sentence);
}

void StreamWarnings::end() {
  if (count_ > 1) warn(console_, "the same holds for " + std::to_string(count_ - 1) + " more of the input");
}

}  // namespace nascor::cli
