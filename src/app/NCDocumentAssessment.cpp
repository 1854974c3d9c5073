// What is said beside what is typed: weight, z-scores, improbable values, and what the dating dialogs would set.

#include <algorithm>
#include <cmath>

#include "app/NCDocument.h"
#include "calc/Centile.h"
#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "calc/PlaceText.h"
#include "calc/Plausibility.h"
#include "calc/Report.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"

namespace nascor::app {

using calc::BeyondTable;
using calc::Improbable;
using calc::Measurement;
using foundation::fieldText;
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

namespace {

void show(TextField& field, const std::string& text) {
  if (field.text() != text) field.setText(text);
}

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

std::string differenceText(std::int64_t days, const foundation::Localizer& localizer) {
  if (days == 0) return localizer.text("NCDocument", "The same day as the EDD that stands.");
  if (days == 1) return localizer.text("NCDocument", "One day later than the EDD that stands.");
  if (days == -1) return localizer.text("NCDocument", "One day earlier than the EDD that stands.");
  return foundation::format(days > 0
                                ? localizer.text("NCDocument", "%ld days later than the EDD that stands.")
                                : localizer.text("NCDocument", "%ld days earlier than the EDD that stands."),
                            {std::abs(days)});
}

}  // namespace

calc::Biometry NCDocument::typedLengths() {
  calc::Biometry lengths;
  for (const Measurement measurement : calc::kMeasurements) {
    const framework::NumberField& field = fieldFor(measurement);
    // The numbers of a fetus that was removed belong to none.
    const bool isStale = field.isStale() && fieldEditor().field() != &field;
    lengths.*calc::memberFor(measurement) = isStale ? 0.0 : reader_.number(field, Reading::typed);
  }
  return lengths;
}

calc::Biometry NCDocument::acceptableLengths() {
  calc::Biometry lengths = typedLengths();
  for (const Measurement measurement : calc::kMeasurements) {
    if (!takesTypedText(fieldFor(measurement))) lengths.*calc::memberFor(measurement) = std::nan("");
  }
  return lengths;
}

void NCDocument::assess() {
  const foundation::Localizer& localizer = services().localizer;
  const double age = menstrualAgeForRecord(static_cast<std::uint64_t>(currentExam()));
  const calc::Biometry lengths = typedLengths();
  const calc::Biometry acceptable = acceptableLengths();
  std::string ofAge;
  for (const Measurement measurement : calc::kMeasurements) {
    Assessment::Length& said = assessment_.length(measurement);
    const calc::ReferenceTable& table = pages_.graph(measurement).standardData();
    const double value = acceptable.*calc::memberFor(measurement);
    const bool isPlaced = value > 0.0 && age != 0.0 && !table.empty();
    const double z = isPlaced ? calc::zScore(table, value, age) : std::nan("");
    show(said.z, calc::zText(z, localizer));
    show(said.centile, calc::centileText({.percent = calc::centileOfZ(z)}, localizer));
    if (isPlaced) ofAge = beyondTableText(table, age, localizer);
    std::string remark;
    // The first digits of a length are another length: it is judged when it is left.
    const bool isBeingTyped =
        fieldEditor().field() == &fieldFor(measurement) &&
        (!fieldEditor().isRefusing() || std::isnan(lengths.*calc::memberFor(measurement)));
    if (!isBeingTyped) {
      for (const Improbable what : calc::improbableLength(measurement, lengths, age, table))
        remark.append(remark.empty() ? "" : " ").append(improbableText(what, measurement, localizer));
    }
    show(said.remark, remark);
  }
  if (const auto what = calc::improbableAge(age)) {
    std::string first = improbableText(*what, Measurement::bpd, localizer);
    if (!ofAge.empty()) first.append(" ").append(ofAge);
    ofAge = std::move(first);
  }
  show(assessment_.ageRemark, ofAge);
  const std::string weight =
      calc::reportedWeight(calc::estimatedFetalWeight(acceptable, fetalWeightStandard()));
  show(assessment_.weight, weight == "-" ? weight : weight + " " + localizer.text("NCDocument", "g"));
  assessDialogs();
}

void NCDocument::assessDialogs() {
  if (crlPanel_.panel().isShown()) {
    show(assessment_.crlProposal, proposalText(eddFromCRL(Reading::typed)));
    show(assessment_.crlExamination, examinationText());
  }
  if (lastPeriodPanel_.panel().isShown()) show(assessment_.lmpProposal, lmpProposalText());
  if (!measurementsPanel_.panel().isShown()) return;
  show(assessment_.measurementsProposal, proposalText(eddFromMeasurements()));
  for (const Measurement measurement : calc::kMeasurements) {
    const auto beyond =
        calc::valueBeyondTable(pages_.graph(measurement).standardData(), fieldFor(measurement).doubleValue());
    show(assessment_.length(measurement).datingRemark,
         beyond == BeyondTable::no ? "" : services().localizer.text("NCDocument", "beyond the table"));
  }
}

std::string NCDocument::lmpProposalText() const {
  const ProposedEDD proposal = eddFromLMP(Reading::typed);
  std::string text = proposalText(proposal);
  const auto cycle = reader_.integer(lastPeriodPanel_.cycle, Reading::typed);
  const auto luteal = reader_.integer(lastPeriodPanel_.luteal, Reading::typed);
  if (proposal.text.empty() || !cycle || !luteal || calc::isUsualCycle(*cycle, *luteal)) return text;
  const foundation::Localizer& localizer = services().localizer;
  const bool isEmpty = reader_.text(lastPeriodPanel_.cycle, Reading::typed).empty() ||
                       reader_.text(lastPeriodPanel_.luteal, Reading::typed).empty();
  const std::string remark =
      isEmpty ? localizer.text("NCDocument", "An empty number of days counts as 0.")
              : localizer.text("NCDocument", "Usually a cycle has 24 to 38 days, its luteal phase 11 to 17.");
  return text + "\n" + remark;
}

std::string NCDocument::examinationText() const {
  const foundation::Localizer& localizer = services().localizer;
  const model::NCRecord* exam = examination(currentExam());
  if (!exam) return {};
  const auto day = exam->examDate() ? foundation::localDay(*exam->examDate(), services().calendar)
                                    : std::optional<foundation::CivilDay>();
  const std::string date = day ? localizer.longDateText(*day) : localizer.text("NCDocument", "no date");
  return foundation::format(localizer.text("NCDocument", "Examination %ld of %ld: "),
                            {currentExam() + 1, numberOfExaminations()}) +
         date;
}

std::string NCDocument::proposalText(const ProposedEDD& proposal) const {
  const foundation::Localizer& localizer = services().localizer;
  const foundation::Calendar& calendar = services().calendar;
  std::string text;
  const auto addLine = [&text](const std::string& line) {
    text.append(text.empty() ? "" : "\n").append(line);
  };
  const auto day =
      foundation::civilDayFromShortText(proposal.text, foundation::dateForm(services().localizer));
  if (!day) {
    for (const TextField* obstacle : proposal.obstacles) {
      const std::string line = obstacleText(*obstacle);
      if (text.find(line) == std::string::npos) addLine(line);
    }
    return text;
  }
  addLine(localizer.text("NCDocument", "EDD:") + " " + localizer.longDateText(*day));
  const foundation::Date edd = foundation::startOfDay(*day, calendar);
  if (const auto today = foundation::localDay(services().clock.now(), calendar)) {
    const double age = calc::menstrualAge(foundation::startOfDay(*today, calendar), edd);
    addLine(localizer.text("NCDocument", "Age today:") + " " + menstrualAgeStringForGestation(age));
  }
  const auto held = patientRecord_ && patientRecord_->edd()
                        ? foundation::localDay(*patientRecord_->edd(), calendar)
                        : std::optional<foundation::CivilDay>();
  if (held) {
    addLine(differenceText(foundation::daysSince2001(*day) - foundation::daysSince2001(*held), localizer));
  }
  if (!patientRecord_) return text;
  for (const auto& record : patientRecord_->ncRecordsArray()) {
    const auto what = calc::improbableAge(calc::menstrualAge(record->examDate(), edd));
    if (!what) continue;
    addLine(*what == Improbable::beforeLastPeriod
                ? localizer.text("NCDocument", "An examination would be before the last period.")
                : localizer.text("NCDocument", "An examination would be above 45 weeks."));
    break;
  }
  return text;
}

std::string NCDocument::obstacleText(const TextField& obstacle) const {
  const foundation::Localizer& localizer = services().localizer;
  if (&obstacle == &crlPanel_.standardReference) return localizer.text("NCDocument", "No formula is chosen.");
  if (&obstacle == &examDateField()) return localizer.text("NCDocument", "The examination has no date.");
  const std::string typed = reader_.text(obstacle, Reading::typed);
  if (&obstacle == &crlPanel_.length) {
    const calc::CRLFormula* formula =
        calc::crlFormula(patientRecord_ ? patientRecord_->crlStandard() : std::int64_t{-1});
    if (!formula || reader_.number(crlPanel_.length, Reading::typed) == 0.0)
      return localizer.text("NCDocument", "Type the crown-rump length.");
    const auto number = [&](double value) {
      const int decimals = value == std::floor(value) ? 0 : 1;
      return fieldText(value, decimals, localizer.decimalSign());
    };
    return localizer.text("NCDocument", "The formula dates these lengths, in mm:") + " " +
           number(formula->least) + "\u2013" + number(formula->greatest);
  }
  for (const framework::IntegerField* days : {&lastPeriodPanel_.cycle, &lastPeriodPanel_.luteal}) {
    if (&obstacle == days && !reader_.integer(*days, Reading::typed))
      return localizer.text("NCDocument", "Type whole days.");
  }
  if (&obstacle == &lastPeriodPanel_.cycle || &obstacle == &lastPeriodPanel_.luteal)
    return localizer.text("NCDocument", "There is no such cycle.");
  if (typed.empty()) return localizer.text("NCDocument", "Type the date.");
  if (!reader_.date(obstacle, Reading::typed))
    return localizer.text("NCDocument", "This is no date:") + " " + typed;
  return localizer.text("NCDocument", "The EDD would lie outside the calendar.");
}

std::string NCDocument::spokenPage(std::int64_t index) const {
  const auto page = model::patientPageAt(index);
  std::string text;
  if (page) {
    for (const charts::NascorGraphView* graph : pages_.graphsOn(*page)) {
      const std::string value = graph->spokenValue(currentExam());
      if (!value.empty()) text += value + " ";
    }
  }
  text += calc::growthStandardTitle(standard(), services().localizer);
  if (page == model::PatientPage::weight)
    text += ". " + calc::fetalWeightTitle(fetalWeightStandard(), services().localizer);
  const std::string over = page ? spokenOverlay(*page) : std::string();
  return over.empty() ? text : text + ". " + over;
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
