// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/Warnings.h"

#include "calc/EditingBounds.h"
#include "calc/LookUp.h"
#include "calc/Plausibility.h"
#include "foundation/NumberText.h"

namespace nascor::rows {

namespace {

using foundation::shortestText;

constexpr const char* titleOf(calc::Measurement measurement) {
  switch (measurement) {
    case calc::Measurement::bpd: return "BPD";
    case calc::Measurement::hc: return "HC";
    case calc::Measurement::ac: return "AC";
    case calc::Measurement::fl: break;
  }
  return "FL";
}

}  // namespace

void appendWarnings(std::string& out, const calc::Biometry& lengths, double age,
                    std::span<const StandardInUse> standards) {
  const std::size_t start = out.size();
  const auto append = [&](const std::string& sentence) {
    if (out.size() > start) out += "; ";
    out += sentence;
  };
  for (const calc::Measurement measurement : calc::kMeasurements) {
    const double length = lengths.*calc::memberFor(measurement);
    const calc::EditingBounds bounds = calc::editingBounds(measurement);
    if (bounds.permit(length)) continue;
    append(std::string(titleOf(measurement)) + " " + shortestText(length) + " mm is outside " +
           shortestText(bounds.least) + " to " + shortestText(bounds.greatest) + " mm");
  }
  const auto ageText = [&] { return shortestText(age) + " weeks"; };
  if (const auto improbable = calc::improbableAge(age)) {
    append(ageText() + (*improbable == calc::Improbable::beforeLastPeriod
                            ? " is an age before the last period"
                            : " is an age above 45 weeks"));
  }
  for (const auto& [standard, table] : standards) {
    const auto beyond = calc::weekBeyondTable(*table, age);
    if (beyond == calc::BeyondTable::no) continue;
    const bool isBefore = beyond == calc::BeyondTable::before;
    append(ageText() + " lie beyond " + std::string(standard->name) + ", whose " +
           (isBefore ? "first week, " + std::to_string(standard->firstWeek)
                     : "last week, " + std::to_string(standard->lastWeek)) +
           ", counts");
  }
}

std::string outsideText(const calc::Reference& reference, double week) {
  return shortestText(week) + " weeks lie outside " + std::string(reference.name) + ", which has " +
         std::to_string(reference.firstWeek) + " to " + std::to_string(reference.lastWeek) + " weeks";
}

}  // namespace nascor::rows
