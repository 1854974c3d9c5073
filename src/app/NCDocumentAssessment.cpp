// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What is said beside what is typed, and where typing goes on.

#include <cmath>

#include "app/NCDocument.h"
#include "app/PageTexts.h"
#include "app/ProposalText.h"

namespace nascor::app {

using calc::Measurement;
using framework::TextField;

LengthsOnShow NCDocument::lengthsOnShow() {
  LengthsOnShow shown;
  shown.age = menstrualAgeForRecord(static_cast<std::uint64_t>(currentExam()));
  shown.weightFormula = fetalWeightStandard();
  for (const Measurement measurement : calc::kMeasurements) {
    framework::NumberField& field = fieldFor(measurement);
    const bool isInEdit = fieldEditor().field() == &field;
    // The numbers of a fetus that was removed belong to none.
    const double typed = field.isStale() && !isInEdit ? 0.0 : reader_.number(field, Reading::typed);
    shown.typed.*calc::memberFor(measurement) = typed;
    shown.acceptable.*calc::memberFor(measurement) = takesTypedText(field) ? typed : std::nan("");
    if (isInEdit && (!fieldEditor().isRefusing() || std::isnan(typed))) shown.beingTyped = measurement;
    shown.tables.at(static_cast<std::size_t>(measurement)) = &pages_.graph(measurement).standardData();
  }
  return shown;
}

calc::Biometry NCDocument::heldLengths() {
  calc::Biometry lengths;
  for (const Measurement measurement : calc::kMeasurements)
    lengths.*calc::memberFor(measurement) = fieldFor(measurement).doubleValue();
  return lengths;
}

void NCDocument::assess() {
  assessment_.showLengths(lengthsOnShow(), services().localizer);
  assessDialogs();
}

void NCDocument::assessDialogs() {
  const auto proposed = [this](const ProposedEDD& proposal) {
    return proposalText(proposal, patientRecord_.get(), services());
  };
  if (crlPanel_.panel().isShown()) {
    showIfNew(assessment_.crlProposal, proposed(eddFromCRL(Reading::typed)));
    showIfNew(assessment_.crlExamination, examinationText(*this));
  }
  if (lastPeriodPanel_.panel().isShown())
    showIfNew(assessment_.lmpProposal, proposed(eddFromLMP(Reading::typed)));
  if (!measurementsPanel_.panel().isShown()) return;
  showIfNew(assessment_.measurementsProposal, proposed(eddFromMeasurements()));
  assessment_.showDatingRemarks(heldLengths(), lengthsOnShow(), services().localizer);
}

TextField* NCDocument::firstEmptyField() {
  if (examDateField().text().empty() && examDateField().isEditable()) return &examDateField();
  for (const Measurement measurement : calc::kMeasurements) {
    framework::NumberField& field = fieldFor(measurement);
    if (field.isEditable() && field.doubleValue() == 0.0) return &field;
  }
  return nullptr;
}

}  // namespace nascor::app
