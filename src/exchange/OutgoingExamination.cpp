// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/OutgoingExamination.h"

#include <array>
#include <cmath>
#include <utility>

#include "calc/FetalWeight.h"
#include "exchange/Codes.h"
#include "exchange/DecimalText.h"
#include "exchange/NameBasedUuid.h"
#include "foundation/NumberText.h"

namespace nascor::exchange {

using foundation::Sentence;

namespace {

std::optional<foundation::CivilDay> dayOf(const std::optional<foundation::Date>& date,
                                          const foundation::Calendar& calendar) {
  return date ? foundation::localDay(*date, calendar) : std::nullopt;
}

std::optional<int> positive(std::int64_t count) {
  if (count <= 0 || !std::in_range<int>(count)) return std::nullopt;
  return static_cast<int>(count);
}

/// `place` is that of the fetus and `examination` that of its examination, both from 1.
OutgoingFetus outgoingFetus(const calc::Biometry& lengths, std::int64_t formula, std::size_t examination,
                            std::size_t place, std::vector<Sentence>& warnings) {
  OutgoingFetus fetus;
  for (std::size_t i = 0; i < calc::kMeasurements.size(); ++i) {
    const double mm = lengths.*calc::memberFor(calc::kMeasurements.at(i));
    if (mm == 0.0) continue;
    if (mm > 0.0 && std::isfinite(mm)) {
      fetus.lengths.push_back({.term = i, .mm = shortestSingleText(mm)});
    } else {
      //: %3 is one of BPD, HC, AC and FL, %4 what stands in its place.
      const auto warning = Sentence("Findings", "examination %1, fetus %2: %3 %4 is no length, and left out");
      warnings.push_back(warning.with(examination, place, labelOf(i), foundation::shortestText(mm)));
    }
  }
  constexpr double kHeaviest = 1e9;
  const double weight = calc::estimatedFetalWeight(lengths, formula);
  if (weight > 0.0 && weight < kHeaviest) fetus.efw = weight;
  return fetus;
}

ContentItem item(ValueType type, const Term& name, std::string_view relationship = "CONTAINS") {
  return {.type = type,
          .relationship = std::string(relationship),
          .name = name.code(),
          .text = {},
          .code = {},
          .items = {}};
}

ContentItem number(const Term& name, std::string text, const Term& unit) {
  ContentItem result = item(ValueType::number, name);
  result.text = std::move(text);
  result.code = unit.code();
  return result;
}

/// A section about one fetus.
ContentItem fetusSection(const Term& name, std::size_t fetus) {
  ContentItem section = item(ValueType::container, name);
  ContentItem id = item(ValueType::text, term::fetusID, "HAS OBS CONTEXT");
  id.text = std::to_string(fetus + 1);
  section.items.push_back(std::move(id));
  return section;
}

ContentItem summaryOf(const OutgoingExamination& examination) {
  ContentItem summary = item(ValueType::container, term::summary);
  if (examination.edd) {
    ContentItem edd = item(ValueType::date, term::edd);
    edd.text = digitsOfDay(*examination.edd);
    summary.items.push_back(std::move(edd));
  }
  if (examination.numberOfFetuses) {
    summary.items.push_back(
        number(term::numberOfFetuses, std::to_string(*examination.numberOfFetuses), term::noUnit));
  }
  for (std::size_t i = 0; i < examination.fetuses.size(); ++i) {
    ContentItem section = fetusSection(term::fetusSummary, i);
    if (const auto efw = examination.fetuses[i].efw) {
      ContentItem weight = number(term::efw, foundation::fixedText(*efw, 1), term::gram);
      if (examination.formula) {
        ContentItem equation = item(ValueType::code, term::equation, "INFERRED FROM");
        equation.code = kWeightEquations.at(*examination.formula).code();
        weight.items.push_back(std::move(equation));
      }
      section.items.push_back(std::move(weight));
    }
    summary.items.push_back(std::move(section));
  }
  return summary;
}

/// The lengths of a fetus in the section that is theirs, each in a group of its own; nothing when there is none.
void addLengths(const OutgoingFetus& fetus, std::size_t place, bool isFemur, ContentItem& root) {
  ContentItem section = fetusSection(isFemur ? term::fetalLongBones : term::fetalBiometry, place);
  const std::size_t empty = section.items.size();
  for (const OutgoingLength& length : fetus.lengths) {
    if ((length.term == kFemur) != isFemur) continue;
    ContentItem group = item(ValueType::container, term::biometryGroup);
    group.items.push_back(number(kLengthTerms.at(length.term).term, length.mm, term::millimetre));
    section.items.push_back(std::move(group));
  }
  if (section.items.size() > empty) root.items.push_back(std::move(section));
}

}  // namespace

std::vector<OutgoingExamination> outgoingExaminations(const model::PatientRecord& patient,
                                                      const foundation::Calendar& calendar) {
  std::vector<OutgoingExamination> result;
  for (const auto& record : patient.ncRecordsArray()) {
    OutgoingExamination& examination = result.emplace_back();
    examination.place = result.size() - 1;
    examination.patientID = patient.maternalIDString().value_or("");
    examination.day = dayOf(record->examDate(), calendar);
    examination.edd = dayOf(patient.edd(), calendar);
    examination.gravida = positive(patient.gravida());
    examination.numberOfFetuses = positive(patient.numberOfFetuses());
    const std::int64_t formula = patient.fetalWeightStandard();
    if (calc::weightFormula(formula) != nullptr) examination.formula = static_cast<std::size_t>(formula);
    for (std::size_t fetus = 0; fetus < record->measurements().size(); ++fetus) {
      examination.fetuses.push_back(outgoingFetus(record->measurements()[fetus].biometry(), formula,
                                                  result.size(), fetus + 1, examination.warnings));
    }
  }
  return result;
}

std::string nameOf(const OutgoingExamination& examination) {
  const auto day = [](const std::optional<foundation::CivilDay>& date) { return date ? isoText(*date) : ""; };
  std::string name = examination.patientID + "\n" + std::to_string(examination.place) + "\n" +
                     day(examination.day) + "\n" + day(examination.edd) + "\n" +
                     std::to_string(examination.gravida.value_or(0)) + "\n" +
                     std::to_string(examination.numberOfFetuses.value_or(0)) + "\n" +
                     std::to_string(examination.formula.value_or(kWeightEquations.size()));
  for (const OutgoingFetus& fetus : examination.fetuses) {
    name += "\nfetus";
    for (const OutgoingLength& length : fetus.lengths)
      name.append("\n").append(kLengthTerms.at(length.term).key).append(" ").append(length.mm);
  }
  return name;
}

StructuredReport reportOf(const OutgoingExamination& examination) {
  const std::string name = nameOf(examination);
  const auto uid = [&](const char* role) { return uidOf(nameBasedUuid(kNascorNames, role + ("\n" + name))); };
  StructuredReport report{.sopClass = std::string(kComprehensiveSR),
                          .instanceUID = uid("instance"),
                          .seriesUID = uid("series"),
                          .studyUID = uid("study"),
                          .patientID = examination.patientID,
                          .studyDate = examination.day ? digitsOfDay(*examination.day) : "",
                          .contentDate = {},
                          .warnings = {},
                          .hasContent = true,
                          .root = item(ValueType::container, term::report, "")};
  report.contentDate = report.studyDate;
  if (examination.gravida) {
    ContentItem section = item(ValueType::container, term::patientCharacteristics);
    section.items.push_back(number(term::gravida, std::to_string(*examination.gravida), term::noUnit));
    report.root.items.push_back(std::move(section));
  }
  report.root.items.push_back(summaryOf(examination));
  for (std::size_t i = 0; i < examination.fetuses.size(); ++i) {
    addLengths(examination.fetuses[i], i, false, report.root);
    addLengths(examination.fetuses[i], i, true, report.root);
  }
  return report;
}

}  // namespace nascor::exchange
