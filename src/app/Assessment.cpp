// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/Assessment.h"

#include <cmath>
#include <string>
#include <utility>

#include "calc/Centile.h"
#include "calc/EditingBounds.h"
#include "calc/FetalWeight.h"
#include "calc/PlaceText.h"
#include "calc/Plausibility.h"
#include "calc/Report.h"
#include "foundation/NumberText.h"

namespace nascor::app {

using calc::BeyondTable;
using calc::Improbable;
using calc::Measurement;
using framework::TextField;

Assessment::Length::Length(Measurement measurement)
    : z(std::string(calc::nameOf(measurement)) + "Z"),
      centile(std::string(calc::nameOf(measurement)) + "Centile"),
      remark(std::string(calc::nameOf(measurement)) + "Remark"),
      datingRemark(std::string(calc::nameOf(measurement)) + "DatingRemark") {}

Assessment::Assessment() {
  for (Length& length : lengths_)
    texts_.insert(texts_.end(), {&length.z, &length.centile, &length.remark, &length.datingRemark});
  texts_.insert(texts_.end(),
                {&weight, &ageRemark, &crlExamination, &crlProposal, &lmpProposal, &measurementsProposal});
}

void showIfNew(TextField& field, const std::string& text) {
  if (field.text() != text) field.setText(text);
}

namespace {

std::string improbableText(Improbable what, Measurement measurement, const foundation::Localizer& localizer) {
  switch (what) {
    case Improbable::beforeLastPeriod:
      return localizer.text("NCDocument", "The examination is before the last period.");
    case Improbable::longPastTerm: return localizer.text("NCDocument", "The age is above 45 weeks.");
    case Improbable::outsideBounds: {
      const calc::EditingBounds bounds = calc::editingBounds(measurement);
      return foundation::format(
          localizer.text("NCDocument", "Outside %ld to %ld mm."),
          {static_cast<std::int64_t>(bounds.least), static_cast<std::int64_t>(bounds.greatest)});
    }
    case Improbable::shorterThanAnywhere:
      return localizer.text("NCDocument", "Shorter than any growth standard begins. Lengths are in mm.");
    case Improbable::farBelowStandard:
      return localizer.text("NCDocument", "More than 4 SD below the growth standard.");
    case Improbable::farAboveStandard:
      return localizer.text("NCDocument", "More than 4 SD above the growth standard.");
    case Improbable::headTooSmall: break;
  }
  return localizer.text("NCDocument", "Too small for the BPD.");
}

/// Empty for an age within the weeks of `table`.
std::string beyondTableText(const calc::ReferenceTable& table, double age,
                            const foundation::Localizer& localizer) {
  const BeyondTable beyond = calc::weekBeyondTable(table, age);
  if (beyond == BeyondTable::no) return {};
  const bool isBefore = beyond == BeyondTable::before;
  const auto& row = isBefore ? table.front() : table.back();
  return foundation::format(
      isBefore ? localizer.text("NCDocument", "The growth standard begins at %ld weeks, which count.")
               : localizer.text("NCDocument", "The growth standard ends at %ld weeks, which count."),
      {static_cast<std::int64_t>(row.observation())});
}

const calc::ReferenceTable& tableOf(const LengthsOnShow& shown, Measurement measurement) {
  return *shown.tables.at(static_cast<std::size_t>(measurement));
}

}  // namespace

void Assessment::showLengths(const LengthsOnShow& shown, const foundation::Localizer& localizer) {
  std::string ofAge;
  for (const Measurement measurement : calc::kMeasurements) {
    Length& said = length(measurement);
    const calc::ReferenceTable& table = tableOf(shown, measurement);
    const double value = shown.acceptable.*calc::memberFor(measurement);
    const bool isPlaced = value > 0.0 && shown.age != 0.0 && !table.empty();
    const double zScore = isPlaced ? calc::zScore(table, value, shown.age) : std::nan("");
    showIfNew(said.z, calc::zText(zScore, localizer));
    showIfNew(said.centile, calc::centileText({.percent = calc::centileOfZ(zScore)}, localizer));
    if (isPlaced) ofAge = beyondTableText(table, shown.age, localizer);
    std::string remark;
    if (measurement != shown.beingTyped) {
      for (const Improbable what : calc::improbableLength(measurement, shown.typed, shown.age, table))
        remark.append(remark.empty() ? "" : " ").append(improbableText(what, measurement, localizer));
    }
    showIfNew(said.remark, remark);
  }
  if (const auto what = calc::improbableAge(shown.age)) {
    std::string first = improbableText(*what, Measurement::bpd, localizer);
    if (!ofAge.empty()) first.append(" ").append(ofAge);
    ofAge = std::move(first);
  }
  showIfNew(ageRemark, ofAge);
  const std::string reported =
      calc::reportedWeight(calc::estimatedFetalWeight(shown.acceptable, shown.weightFormula));
  showIfNew(weight, reported == "-" ? reported : reported + " " + localizer.text("NCDocument", "g"));
}

void Assessment::showDatingRemarks(const calc::Biometry& held, const LengthsOnShow& shown,
                                   const foundation::Localizer& localizer) {
  for (const Measurement measurement : calc::kMeasurements) {
    const auto beyond =
        calc::valueBeyondTable(tableOf(shown, measurement), held.*calc::memberFor(measurement));
    showIfNew(length(measurement).datingRemark,
              beyond == BeyondTable::no ? "" : localizer.text("NCDocument", "beyond the table"));
  }
}

}  // namespace nascor::app
