// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Summary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "calc/FetalWeight.h"
#include "calc/Publications.h"
#include "calc/Report.h"
#include "compare/CellWriter.h"
#include "compare/Comparison.h"
#include "compare/Tables.h"
#include "foundation/HolderText.h"
#include "foundation/IsoDate.h"
#include "foundation/ProgramVersion.h"
#include "foundation/Sentence.h"
#include "foundation/Utf8.h"
#include "model/FetusLabels.h"
#include "model/PatientReport.h"

namespace nascor::summary {

using calc::Quantity;
using compare::Comparison;
using compare::Placed;
using foundation::Date;
using foundation::said;
using foundation::Sentence;
using model::NCRecord;
using model::PatientRecord;

namespace {

constexpr std::size_t kMostLetterheadLines = 8;
/// More than a page of small print.
constexpr std::size_t kMostOfANote = 6000;
/// Of the references for weights the one that takes weights by any formula and reaches the youngest.
constexpr std::string_view kWeightReference = "hadlock-1991";

Cell plain(std::string text) { return {.text = std::move(text)}; }

Cell cellOf(compare::Cell cell) { return {.text = std::move(cell.text), .number = cell.number}; }

/// Notes of one table, each once.
std::size_t noteFor(Table& table, const std::string& sentence) {
  if (sentence.empty()) return 0;
  const auto found = std::ranges::find(table.notes, sentence);
  const std::size_t place = static_cast<std::size_t>(found - table.notes.begin()) + 1;
  if (found == table.notes.end()) table.notes.push_back(sentence);
  return place;
}

std::vector<std::string> linesIn(std::string_view text) {
  std::vector<std::string> lines;
  while (true) {
    const std::size_t end = text.find('\n');
    std::string line = foundation::oneLine(text.substr(0, end));
    if (line.find_first_not_of(' ') == std::string::npos) line.clear();
    lines.push_back(std::move(line));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

class Utc final : public foundation::Calendar {
 public:
  double offsetFromUtc(Date) const override { return 0.0; }
};

/// Examinations of one fetus, compared once.
struct Visit {
  const NCRecord* examination;
  Comparison comparison;
};

class Maker {
 public:
  Maker(const PatientRecord& patient, const Details& details, const Environment& environment)
      : patient_(patient),
        details_(details),
        environment_(environment),
        localizer_(environment.localizer),
        writer_(environment.localizer),
        standard_(calc::referenceOfStandard(patient.standard())),
        weightReference_(*calc::referenceNamed(kWeightReference)),
        formula_(calc::weightFormula(patient.fetalWeightStandard())) {}

  FetusSummary fetus(std::size_t place, const std::vector<std::size_t>& examinations) const {
    std::vector<Visit> visits;
    visits.reserve(examinations.size());
    for (const std::size_t each : examinations) {
      visits.push_back({.examination = patient_.ncRecordsArray()[each].get(),
                        .comparison = compare::comparisonOf(patient_, each, place)});
    }
    FetusSummary summary;
    summary.name = nameOf(place);
    summary.facts = factsOf(summary.name, visits);
    summary.measurements = measurementsOf(visits);
    summary.charts = chartsOf(visits);
    summary.chartsLead = chartsLead(summary.charts);
    summary.weights = weightsOf(examinations, visits, place);
    summary.growth = growthOf(visits);
    summary.notes = notesOf(visits);
    summary.citations = citationsOf(visits);
    return summary;
  }

  std::string patientText() const {
    const std::string identifier = foundation::shownLine(patient_.maternalIDString().value_or(""));
    return (identifier.empty() ? "-" : identifier) + " (G" + std::to_string(patient_.gravida()) + ")";
  }

 private:
  std::string nameOf(std::size_t fetus) const {
    const auto labels = model::fetusLabels(patient_.numberOfFetuses());
    if (fetus < labels.size()) return localizer_.text("NCDocument", labels[fetus]);
    return foundation::format(localizer_.text("Summary", "Fetus %ld of %ld"),
                              {static_cast<std::int64_t>(fetus) + 1, patient_.numberOfFetuses()});
  }

  std::string dayText(const std::optional<Date>& date) const {
    const auto day = date ? foundation::localDay(*date, environment_.calendar) : std::nullopt;
    return day ? localizer_.longDateText(*day) : "-";
  }

  std::string ageText(const Comparison& comparison) const {
    return calc::gestationText(comparison.age.value_or(0.0), localizer_);
  }

  std::string dayAndAgeText(const Visit& visit) const {
    const std::string day = dayText(visit.examination->examDate());
    return visit.comparison.age ? day + ", " + ageText(visit.comparison) : day;
  }

  // Facts

  std::string distanceText(std::int64_t days) const {
    if (days == 0) return localizer_.text("Summary", "today");
    if (days == 1) return localizer_.text("Summary", "tomorrow");
    if (days == -1) return localizer_.text("Summary", "yesterday");
    return days > 0 ? foundation::format(localizer_.text("Summary", "in %ld days"), {days})
                    : foundation::format(localizer_.text("Summary", "%ld days ago"), {-days});
  }

  std::string distanceFromEddText(std::int64_t days) const {
    if (days == 1) return localizer_.text("Summary", "one day after the EDD");
    if (days == -1) return localizer_.text("Summary", "one day before the EDD");
    return days > 0 ? foundation::format(localizer_.text("Summary", "%ld days after the EDD"), {days})
                    : foundation::format(localizer_.text("Summary", "%ld days before the EDD"), {-days});
  }

  std::string eddText() const {
    if (!patient_.edd()) return "-";
    const auto day = foundation::localDay(*patient_.edd(), environment_.calendar);
    const auto today = foundation::localDay(environment_.clock.now(), environment_.calendar);
    if (!day || !today) return dayText(patient_.edd());
    const std::int64_t days = foundation::daysSince2001(*day) - foundation::daysSince2001(*today);
    return dayText(patient_.edd()) + " (" + distanceText(days) + ")";
  }

  /// Where another day than the EDD is planned.
  std::optional<std::string> planText() const {
    if (!patient_.edd()) return std::nullopt;
    const double days = calc::plannedDays(patient_.extrapolatedGestation(), patient_.standard());
    const auto bounds = calc::plannedDeliveryDays(patient_.standard());
    if (std::round(days) == 0.0 || !(days >= bounds.least && days <= bounds.greatest)) return std::nullopt;
    const Date date = calc::plannedDeliveryDate(*patient_.edd(), days, environment_.calendar);
    return dayText(date) + " (" + distanceFromEddText(static_cast<std::int64_t>(std::round(days))) + ")";
  }

  std::vector<Fact> factsOf(const std::string& name, const std::vector<Visit>& visits) const {
    const std::string identifier = foundation::shownLine(patient_.maternalIDString().value_or(""));
    const std::string examiner = foundation::shownLine(details_.examiner);
    std::vector<Fact> facts{
        {localizer_.text("Summary", "Reference ID"), identifier.empty() ? "-" : identifier},
        {localizer_.text("Summary", "Fetus"), name},
        {localizer_.text("Summary", "Gravidity"), std::to_string(patient_.gravida())},
        {localizer_.text("Summary", "EDD"), eddText()}};
    facts.push_back({localizer_.text("Summary", "Last examination"),
                     visits.empty() ? "-" : dayAndAgeText(visits.back())});
    if (const auto plan = planText())
      facts.push_back({localizer_.text("Summary", "Planned delivery"), *plan});
    facts.push_back({localizer_.text("Summary", "Growth standard"),
                     standard_ != nullptr ? std::string(standard_->label) : "-"});
    facts.push_back({localizer_.text("Summary", "Weight formula"),
                     formula_ != nullptr ? std::string(formula_->longLabel) : "-"});
    if (!visits.empty() && visits.back().comparison.discordance) {
      facts.push_back({localizer_.text("Summary", "Discordance of weights"),
                       writer_.number(visits.back().comparison.discordance, 1).text + " %"});
    }
    if (!examiner.empty()) facts.push_back({localizer_.text("Summary", "Examiner"), examiner});
    return facts;
  }

  // Tables

  Column groupedColumn(Quantity quantity, std::string title) const {
    return {.group = writer_.name(quantity), .title = std::move(title), .isNumber = true};
  }

  std::string unitOf(Quantity quantity) const {
    return quantity == Quantity::efw ? localizer_.text("Summary", "g") : localizer_.text("Summary", "mm");
  }

  Table courseTable(std::string_view name, std::string title) const {
    return {.name = name,
            .title = std::move(title),
            .columns = {{.title = localizer_.text("Summary", "Examination")},
                        {.title = localizer_.text("Summary", "Age")}},
            .rows = {}};
  }

  Row courseRow(const Visit& visit) const {
    return {.cells = {plain(dayText(visit.examination->examDate())),
                      {.text = ageText(visit.comparison), .number = visit.comparison.age}}};
  }

  /// The value, z and centile.
  void addPlaced(Table& table, Row& row, Cell value, const Placed* figure) const {
    const bool isMeasured = value.number.has_value();
    row.cells.push_back(std::move(value));
    Cell z = figure != nullptr ? cellOf(writer_.z(figure->z)) : plain("-");
    Cell centile = figure != nullptr ? cellOf(writer_.centile(figure->centile)) : plain("-");
    if (isMeasured && !centile.number) {
      centile.note =
          noteFor(table, figure != nullptr ? writer_.remark(*figure)
                                           : localizer_.text("Summary", "The growth standard is not known."));
    }
    row.cells.push_back(std::move(z));
    row.cells.push_back(std::move(centile));
  }

  const Placed* placeBy(const calc::Reference* reference, const std::vector<Placed>& references) const {
    const auto found = std::ranges::find(references, reference, &Placed::reference);
    return found != references.end() ? &*found : nullptr;
  }

  const compare::Weight* weightAt(const Visit& visit) const {
    if (formula_ == nullptr) return nullptr;
    return &visit.comparison.weights[static_cast<std::size_t>(patient_.fetalWeightStandard())];
  }

  /// As the report has it: above 100 g.
  static bool isReported(const compare::Weight& weight) {
    return weight.grams && calc::reportedWeight(*weight.grams) != "-";
  }

  void addWeight(Table& table, Row& row, const Visit& visit) const {
    const compare::Weight* weight = weightAt(visit);
    if (weight != nullptr && isReported(*weight)) {
      addPlaced(table, row, cellOf(writer_.number(weight->grams, compare::kWeightDecimals)),
                placeBy(&weightReference_, weight->references));
      return;
    }
    Cell none = plain("-");
    if (weight != nullptr && weight->grams)
      none.note = noteFor(table, localizer_.text("Summary", "A weight is given above 100 g."));
    row.cells.insert(row.cells.end(), {none, plain("-"), plain("-")});
  }

  Table measurementsOf(const std::vector<Visit>& visits) const {
    Table table = courseTable("measurements", localizer_.text("Summary", "Measurements"));
    const Sentence lead =
        Sentence("Summary", "Lengths: z and centile by %1. Weight: by the formula %2, z and centile by %3.");
    table.lead = said(lead.with(standard_ != nullptr ? standard_->label : "-",
                                formula_ != nullptr ? formula_->longLabel : "-", weightReference_.label),
                      localizer_);
    for (const Quantity quantity : calc::kQuantities) {
      table.columns.push_back(groupedColumn(quantity, unitOf(quantity)));
      table.columns.push_back(groupedColumn(quantity, localizer_.text("Summary", "z")));
      table.columns.push_back(groupedColumn(quantity, localizer_.text("Summary", "centile")));
    }
    for (const Visit& visit : visits) {
      Row row = courseRow(visit);
      for (const compare::Length& length : visit.comparison.lengths) {
        addPlaced(table, row, cellOf(writer_.number(length.value, compare::kLengthDecimals)),
                  placeBy(standard_, length.references));
      }
      addWeight(table, row, visit);
      table.rows.push_back(std::move(row));
    }
    return table;
  }

  static bool hasWeight(const Visit& visit) {
    return std::ranges::any_of(visit.comparison.weights, isReported);
  }

  Table weightsOf(const std::vector<std::size_t>& examinations, const std::vector<Visit>& visits,
                  std::size_t fetus) const {
    Table table{.name = "weights", .title = localizer_.text("Summary", "Weights"), .columns = {}, .rows = {}};
    const auto last = std::find_if(visits.rbegin(), visits.rend(), hasWeight);
    if (last == visits.rend()) return table;
    const auto place = static_cast<std::size_t>(visits.rend() - last) - 1;
    table.lead =
        dayAndAgeText(*last) + ". " +
        localizer_.text("Summary",
                        "Centiles by each reference for weights; difference from the formula in force.");
    const compare::Table compared =
        compare::tableOf(compare::TableKind::weights, patient_, examinations[place], fetus, localizer_);
    // The last column has the remarks, which are notes here.
    const std::size_t columns = compared.columns.size() - 1;
    for (std::size_t i = 0; i < columns; ++i)
      table.columns.push_back({.title = compared.columns[i].title, .isNumber = compared.columns[i].isNumber});
    for (const compare::Row& source : compared.rows) {
      Row row{.cells = {}, .isChosen = source.isChosen};
      for (std::size_t i = 0; i < columns; ++i) row.cells.push_back(cellOf(source.cells[i]));
      row.cells.front().note = noteFor(table, source.remark);
      table.rows.push_back(std::move(row));
    }
    return table;
  }

  void addGrowth(Row& row, const Visit& visit, Quantity quantity) const {
    const auto& all = visit.comparison.growth;
    const auto found = std::ranges::find(all, quantity, &compare::Growth::quantity);
    const compare::Growth growth = found != all.end() ? *found : compare::Growth{.quantity = quantity};
    row.cells.push_back(cellOf(writer_.change(growth.perWeek, compare::decimalsOf(quantity))));
    if (quantity == Quantity::efw) return;
    row.cells.push_back(cellOf(writer_.change(growth.expectedPerWeek, compare::kLengthDecimals)));
    row.cells.push_back(cellOf(writer_.z(growth.zChange)));
  }

  Table growthOf(const std::vector<Visit>& visits) const {
    Table table = courseTable("growth", localizer_.text("Summary", "Growth"));
    table.lead =
        localizer_.text("Summary",
                        "Since the last examination before that has the measure: change a week, what the "
                        "growth standard expects, and change of z.");
    for (const Quantity quantity : calc::kQuantities) {
      const Sentence perWeek = Sentence("Summary", "%1/week");
      table.columns.push_back(groupedColumn(quantity, said(perWeek.with(unitOf(quantity)), localizer_)));
      if (quantity == Quantity::efw) continue;
      table.columns.push_back(groupedColumn(quantity, localizer_.text("Summary", "expected")));
      table.columns.push_back(groupedColumn(quantity, localizer_.text("Summary", "z")));
    }
    for (const Visit& visit : visits) {
      if (visit.comparison.growth.empty()) continue;
      Row row = courseRow(visit);
      for (const Quantity quantity : calc::kQuantities) addGrowth(row, visit, quantity);
      table.rows.push_back(std::move(row));
    }
    return table;
  }

  // Charts

  std::optional<double> valueAt(const Visit& visit, Quantity quantity) const {
    if (quantity != Quantity::efw) return visit.comparison.lengths[static_cast<std::size_t>(quantity)].value;
    const compare::Weight* weight = weightAt(visit);
    return weight != nullptr && isReported(*weight) ? weight->grams : std::nullopt;
  }

  std::vector<Chart> chartsOf(const std::vector<Visit>& visits) const {
    std::vector<Chart> charts;
    for (const Quantity quantity : calc::kQuantities) {
      const calc::Reference* reference = quantity == Quantity::efw ? &weightReference_ : standard_;
      std::vector<Point> values;
      for (const Visit& visit : visits) {
        const auto value = valueAt(visit, quantity);
        if (value && visit.comparison.age) values.push_back({*visit.comparison.age, *value});
      }
      if (reference != nullptr && !values.empty())
        charts.push_back(chartOf(*reference, quantity, std::move(values), localizer_));
    }
    return charts;
  }

  std::string chartsLead(const std::vector<Chart>& charts) const {
    if (charts.empty()) return {};
    const Sentence lead =
        Sentence("Summary",
                 "Lines: centiles 3, 10, 50, 90 and 97; lengths by %1, weight by %2. Weeks of "
                 "menstrual age below.");
    return said(lead.with(standard_ != nullptr ? standard_->label : "-", weightReference_.label), localizer_);
  }

  // Notes and citations

  std::vector<Note> notesOf(const std::vector<Visit>& visits) const {
    std::vector<Note> notes;
    for (const Visit& visit : visits) {
      const std::string text = visit.examination->note().value_or("");
      const std::size_t length = foundation::lengthOfBeginning(text, kMostOfANote);
      Note note{.heading = dayAndAgeText(visit),
                .paragraphs = linesIn(std::string_view(text).substr(0, length))};
      if (note.paragraphs.empty()) continue;
      if (length < text.size()) {
        note.paragraphs.back() += foundation::kCutSign;
        note.paragraphs.push_back(
            localizer_.text("Summary", "The note is longer; the document has all of it."));
      }
      notes.push_back(std::move(note));
    }
    return notes;
  }

  static void cite(std::vector<Citation>& citations, const calc::Publication& publication) {
    const auto found = std::ranges::find(citations, publication.citation, &Citation::text);
    if (found == citations.end()) {
      citations.push_back({std::string(publication.label), std::string(publication.citation)});
    } else if (found->what != publication.label) {
      found->what.append(", ").append(publication.label);
    }
  }

  /// Whether a value of any examination has a place in `reference`.
  static bool places(const calc::Reference& reference, const std::vector<Visit>& visits) {
    const auto isPlace = [&reference](const Placed& figure) {
      return figure.reference == &reference && figure.centile.has_value();
    };
    const auto isPlaced = [&isPlace](const auto& value) {
      return std::ranges::any_of(value.references, isPlace);
    };
    return std::ranges::any_of(visits, [&isPlaced](const Visit& visit) {
      return std::ranges::any_of(visit.comparison.lengths, isPlaced) ||
             std::ranges::any_of(visit.comparison.weights, isPlaced);
    });
  }

  /// Of what was applied to a value, and of nothing else.
  std::vector<Citation> citationsOf(const std::vector<Visit>& visits) const {
    std::vector<Citation> citations;
    const auto formulas = calc::weightFormulaPublications();
    const auto references = calc::referencePublications();
    const bool hasWeights = std::ranges::any_of(visits, hasWeight);
    if (standard_ != nullptr && places(*standard_, visits))
      cite(citations, references[static_cast<std::size_t>(patient_.standard())]);
    for (std::size_t i = 0; hasWeights && i < formulas.size(); ++i) {
      const bool isUsed = std::ranges::any_of(
          visits, [i](const Visit& visit) { return visit.comparison.weights[i].grams.has_value(); });
      if (isUsed) cite(citations, formulas[i]);
    }
    for (std::size_t i = 0; hasWeights && i < references.size(); ++i) {
      const calc::Reference& reference = calc::references()[i];
      if (calc::covers(reference, Quantity::efw) && places(reference, visits)) cite(citations, references[i]);
    }
    return citations;
  }

  const PatientRecord& patient_;
  const Details& details_;
  const Environment& environment_;
  const foundation::Localizer& localizer_;
  compare::CellWriter writer_;
  const calc::Reference* standard_;
  const calc::Reference& weightReference_;
  const calc::WeightFormula* formula_;
};

}  // namespace

std::vector<std::string> letterheadLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

Summary summaryOf(const PatientRecord& patient, const Details& details, const Environment& environment,
                  std::optional<std::size_t> fetus) {
  const foundation::Localizer& localizer = environment.localizer;
  const Maker maker(patient, details, environment);
  const std::string program = std::string("Nascor ").append(foundation::programVersion());
  const Date now = environment.clock.now();

  Summary summary{
      // A translation says its own.
      .language = localizer.text("Summary", "en"),
      .title = {},
      .heading = localizer.text("Summary", "Fetal biometry summary"),
      .author = details.examiner.empty() ? program : foundation::shownLine(details.examiner),
      .subject = localizer.text("NCDocument", "Obstetric ultrasound biometry"),
      .letterhead = {},
      .patient = maker.patientText(),
      .fetuses = {},
      .warning = localizer.text("NCDocument", "Not a medical device. Not validated for clinical use."),
      .program = program,
      .made = program + ", " + foundation::momentText(now, environment.calendar, localizer),
      .moment = foundation::isoDateTimeText(now, Utc()) + "Z",
      .chartsHeading = localizer.text("Summary", "Course"),
      .notesHeading = localizer.text("Summary", "Notes"),
      .citationsHeading = localizer.text("Summary", "Sources"),
      .pageText = [text = localizer.text("Summary", "Page %ld of %ld")](std::int64_t page,
                                                                        std::int64_t pages) {
        return foundation::format(text, {page, pages});
      }};
  summary.title = summary.heading + ", " + summary.patient;
  for (const std::string& line : details.letterhead) {
    if (summary.letterhead.size() < kMostLetterheadLines)
      summary.letterhead.push_back(foundation::shownLine(line));
  }
  while (!summary.letterhead.empty() && summary.letterhead.back().empty()) summary.letterhead.pop_back();
  // Projects nothing, so to any gestation.
  model::PatientReport(patient, 0.0)
      .forEachFetus([&](std::size_t place, const std::vector<std::size_t>& examinations) {
        if (!fetus || *fetus == place) summary.fetuses.push_back(maker.fetus(place, examinations));
      });
  return summary;
}

}  // namespace nascor::summary
