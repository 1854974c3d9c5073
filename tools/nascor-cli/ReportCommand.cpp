#include <algorithm>
#include <array>
#include <numeric>

#include "calc/Dating.h"
#include "calc/EditingBounds.h"
#include "calc/FetalWeight.h"
#include "calc/Projection.h"
#include "calc/Report.h"
#include "calc/Standards.h"
#include "cli_commands/Command.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/Table.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "foundation/NumberText.h"
#include "model/FetusLabels.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

namespace {

using calc::Measurement;
using foundation::Date;
using foundation::fixedText;
using foundation::JsonText;
using model::NCRecord;
using model::PatientRecord;

/// An examination of one fetus, or the projection: a row of the table.
struct Row {
  double age = 0.0;
  calc::Biometry lengths;
  double weight = 0.0;
};

/// What the report says of one patient beside what the patient's record says itself.
class Report {
 public:
  Report(const PatientRecord& patient, const foundation::Calendar& calendar)
      : patient_(patient),
        calendar_(calendar),
        plannedGestation_(
            calc::plannedGestation(calc::plannedDays(patient.extrapolatedGestation(), patient.standard()))) {
    for (const Measurement measurement : calc::kMeasurements) {
      calc::appendStandard(tables_.at(static_cast<std::size_t>(measurement)), patient.standard(),
                           measurement);
    }
  }

  const PatientRecord& patient() const { return patient_; }
  const foundation::Localizer& localizer() const { return english_; }

  /// Null without any.
  const NCRecord* lastExamination() const {
    return patient_.ncRecordsArray().empty() ? nullptr : patient_.ncRecordsArray().back().get();
  }

  /// In weeks, as the window takes it from the file.
  double plannedGestation() const { return plannedGestation_; }
  double age(const NCRecord& examination) const {
    return calc::menstrualAge(examination.examDate(), patient_.edd());
  }
  std::string ageText(double age) const { return calc::gestationText(age, english_); }
  std::string dayText(const std::optional<Date>& date) const {
    return date ? isoDayText(*date, calendar_) : "";
  }

  bool projectionIsShown() const {
    const NCRecord* last = lastExamination();
    return last != nullptr && calc::projectionIsShown(age(*last), plannedGestation_);
  }

  /// "Days to Go:", a tab and the days. Empty when there are none to show.
  std::string daysToGoLine() const {
    if (!patient_.edd() || !projectionIsShown()) return {};
    return calc::daysToGoLine(plannedGestation_, english_);
  }

  std::string fetusLabel(std::size_t fetus) const {
    const auto labels = model::fetusLabels(patient_.numberOfFetuses());
    if (fetus < labels.size()) return std::string(labels[fetus]);
    return "Fetus " + std::to_string(fetus + 1) + " of " + std::to_string(patient_.numberOfFetuses());
  }

  /// A fetus without a record counts as not measured.
  Row row(const NCRecord& examination, std::size_t fetus) const {
    Row row{.age = age(examination), .lengths = lengthsOf(examination, fetus), .weight = 0.0};
    row.weight = calc::estimatedFetalWeight(row.lengths, patient_.fetalWeightStandard());
    return row;
  }

  Row projected(std::size_t fetus) const {
    const NCRecord& last = *lastExamination();
    Row row{.age = plannedGestation_, .lengths = lengthsOf(last, fetus), .weight = 0.0};
    for (const Measurement measurement : calc::kMeasurements) {
      double& length = row.lengths.*calc::memberFor(measurement);
      length =
          calc::projectedValue(tables_.at(static_cast<std::size_t>(measurement)), length, age(last), row.age);
    }
    row.weight = calc::estimatedFetalWeight(row.lengths, patient_.fetalWeightStandard());
    return row;
  }

  /// Hands on each fetus, from 0, with the places of its examinations: all of them for a fetus that the patient counts,
  /// up to the five that the program knows; for others, which only a file can hold, those that have a record of it.
  template <class Use>
  void forEachFetus(Use use) const {
    const auto& examinations = patient_.ncRecordsArray();
    const auto counted =
        static_cast<std::size_t>(std::clamp<std::int64_t>(patient_.numberOfFetuses(), 0, calc::kMostFetuses));
    std::vector<std::size_t> places(examinations.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    for (std::size_t fetus = 0;; ++fetus) {
      if (fetus >= counted) {
        std::erase_if(places,
                      [&](std::size_t place) { return examinations[place]->measurements().size() <= fetus; });
        if (places.empty()) return;
      }
      use(fetus, places);
    }
  }

 private:
  static calc::Biometry lengthsOf(const NCRecord& examination, std::size_t fetus) {
    const auto& measurements = examination.measurements();
    return fetus < measurements.size() ? measurements[fetus].biometry() : calc::Biometry{};
  }

  const PatientRecord& patient_;
  const foundation::Calendar& calendar_;
  double plannedGestation_;
  foundation::EnglishLocalizer english_;
  std::array<calc::ReferenceTable, calc::kMeasurements.size()> tables_;
};

constexpr int kLengthDecimals = 1;

std::string lengthText(const Row& row, Measurement measurement) {
  return fixedText(row.lengths.*calc::memberFor(measurement), kLengthDecimals);
}

// The projected weight has no threshold.
std::string projectedWeightText(const Row& row) { return fixedText(row.weight, 0); }

// As text

/// A label of the report and its value in two columns.
void printLine(Console& console, std::string_view label, std::string_view value) {
  constexpr std::size_t kLabelWidth = 22;
  std::string line(label);
  if (!value.empty()) line.resize(std::max(kLabelWidth, line.size() + 1), ' ');
  console.out() += line + oneLine(value);
  console.lineDone();
}

/// A text that has its label in it, up to and with the colon.
void printLabelled(Console& console, std::string_view text) {
  const std::size_t end = text.find(':') + 1;
  const std::size_t value = text.find_first_not_of(" \t", end);
  printLine(console, text.substr(0, end), value == std::string_view::npos ? "" : text.substr(value));
}

std::vector<std::string> cells(const Report& report, const Row& row, std::string firstCell,
                               std::string weight) {
  std::vector<std::string> cells{std::move(firstCell), report.ageText(row.age)};
  for (const Measurement measurement : calc::kMeasurements) cells.push_back(lengthText(row, measurement));
  cells.push_back(std::move(weight));
  return cells;
}

void printReport(const std::string& path, const Report& report, Console& console) {
  const PatientRecord& patient = report.patient();
  const NCRecord* last = report.lastExamination();
  printLine(console, "File:", nameOf(path));
  printLine(console, "Identifier:", patient.maternalIDString().value_or(""));
  printLine(console, "Gravida:", std::to_string(patient.gravida()));
  printLine(console, "Date:", last ? report.dayText(last->examDate()) : "");
  printLine(console, "EDD:", patient.edd() ? report.dayText(patient.edd()) : "-");
  printLine(console, "Menstrual Age:", report.ageText(last ? report.age(*last) : 0.0));
  if (const std::string line = report.daysToGoLine(); !line.empty()) printLabelled(console, line);
  printLabelled(console, calc::growthStandardTitle(patient.standard(), report.localizer()));
  printLabelled(console, calc::fetalWeightTitle(patient.fetalWeightStandard(), report.localizer()));

  report.forEachFetus([&](std::size_t fetus, const std::vector<std::size_t>& places) {
    console.lineDone();
    printLine(console, "Fetus:", report.fetusLabel(fetus));
    std::vector<Table::Column> columns{{"Exam Date"}, {"Menstrual Age"}};
    for (const Measurement measurement : calc::kMeasurements) {
      columns.push_back({inCapitals(calc::nameOf(measurement)) + " (mm)", Table::Align::right});
    }
    columns.push_back({"EFW (g)", Table::Align::right});
    Table table(std::move(columns));
    for (const std::size_t place : places) {
      const NCRecord& examination = *patient.ncRecordsArray()[place];
      const Row row = report.row(examination, fetus);
      table.addRow(
          cells(report, row, report.dayText(examination.examDate()), calc::reportedWeight(row.weight)));
    }
    if (report.projectionIsShown()) {
      const Row row = report.projected(fetus);
      table.addRow(cells(report, row, "Projected", projectedWeightText(row)));
    }
    table.print(console);
  });
}

// As JSON

class JsonReport {
 public:
  JsonReport(Console& console, const Report& report)
      : console_(console), json_(console.out()), report_(report) {}

  void write(const std::string& path) {
    const PatientRecord& patient = report_.patient();
    const NCRecord* last = report_.lastExamination();
    json_.beginObject().key("file").text(nameOf(path));
    json_.key("maternalIDString");
    patient.maternalIDString() ? json_.text(*patient.maternalIDString()) : json_.null();
    json_.key("gravida").integer(patient.gravida());
    date("edd", patient.edd(), patient.edd() ? report_.dayText(patient.edd()) : "-");
    json_.key("standard").integer(patient.standard());
    const auto* standard = calc::growthStandard(patient.standard());
    json_.key("standardText").text(standard ? standard->label : "");
    json_.key("fetalWeightStandard").integer(patient.fetalWeightStandard());
    const auto* formula = calc::weightFormula(patient.fetalWeightStandard());
    json_.key("fetalWeightStandardText").text(formula ? formula->longLabel : "");
    json_.key("numberOfFetuses").integer(patient.numberOfFetuses());
    json_.key("extrapolatedGestation").number(report_.plannedGestation());
    json_.key("extrapolatedGestationText").text(report_.ageText(report_.plannedGestation()));
    date("lastExamDate", last ? last->examDate() : std::nullopt,
         last ? report_.dayText(last->examDate()) : "");
    age("lastAge", last ? report_.age(*last) : 0.0);
    json_.key("projectionIsShown").boolean(report_.projectionIsShown());
    const std::string line = report_.daysToGoLine();
    json_.key("deliveryAdjustment").number(calc::deliveryAdjustment(report_.plannedGestation()));
    json_.key("daysToGoText").text(line.empty() ? "" : std::string_view(line).substr(line.find('\t') + 1));
    json_.key("fetuses").beginArray();
    report_.forEachFetus(
        [&](std::size_t index, const std::vector<std::size_t>& places) { fetus(index, places); });
    json_.endArray().endObject();
  }

 private:
  void fetus(std::size_t fetus, const std::vector<std::size_t>& places) {
    json_.beginObject();
    json_.key("fetus").integer(static_cast<std::int64_t>(fetus) + 1);
    json_.key("fetusText").text(report_.fetusLabel(fetus));
    json_.key("examinations").beginArray();
    for (const std::size_t place : places) {
      const NCRecord& examination = *report_.patient().ncRecordsArray()[place];
      const Row row = report_.row(examination, fetus);
      json_.beginObject();
      json_.key("examination").integer(static_cast<std::int64_t>(place) + 1);
      date("examDate", examination.examDate(), report_.dayText(examination.examDate()));
      values(row, calc::reportedWeight(row.weight));
      console_.partDone();
    }
    json_.endArray().key("projected");
    if (report_.projectionIsShown()) {
      const Row row = report_.projected(fetus);
      json_.beginObject();
      values(row, projectedWeightText(row));
    } else {
      json_.null();
    }
    json_.endObject();
  }

  /// The rest of an object.
  void values(const Row& row, const std::string& weightText) {
    age("age", row.age);
    for (const Measurement measurement : calc::kMeasurements) {
      const std::string name(calc::nameOf(measurement));
      json_.key(name).number(row.lengths.*calc::memberFor(measurement));
      json_.key(name + "Text").text(lengthText(row, measurement));
    }
    json_.key("efw").number(row.weight);
    json_.key("efwText").text(weightText);
    json_.endObject();
  }

  void date(std::string_view key, const std::optional<Date>& value, const std::string& text) {
    json_.key(key);
    value ? json_.number(value->secondsSince2001) : json_.null();
    json_.key(std::string(key) + "Text").text(text);
  }

  void age(std::string_view key, double value) {
    json_.key(key).number(value);
    json_.key(std::string(key) + "Text").text(report_.ageText(value));
  }

  Console& console_;
  JsonText json_;
  const Report& report_;
};

void runReport(const Arguments& arguments, Console& console) {
  const posix::PosixCalendar calendar;
  bool isFirst = true;
  for (const std::string& path : arguments.operands) {
    const auto document = documentIn(path, console);
    if (!document) continue;
    const Report report(*document->patient, calendar);
    if (arguments.has("json")) {
      JsonReport(console, report).write(path);
      console.lineDone();
    } else {
      if (!isFirst) console.lineDone();
      printReport(path, report, console);
    }
    isFirst = false;
  }
}

}  // namespace

Command reportCommand() {
  static constexpr std::array<OperandSpec, 1> kOperands{
      {{"FILE...", "a document; - is standard input", true}}};
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"json", "", "one JSON object a document, on a line: unrounded numbers, the texts beside them"}}};
  return {.name = "report",
          .usage = "FILE... [--json]",
          .summary = "The tabular report of each document: every fetus, every examination, the projection.",
          .details =
              "Date and Menstrual Age are those of the last examination. Days are those of the local time "
              "zone. The\n"
              "projection is there when the last examination lies from 30 weeks to the planned delivery. "
              "Keys of\n"
              "the JSON, among others: file, maternalIDString, edd, fetuses, in each examinations (age in "
              "weeks;\n"
              "bpd, hc, ac, fl in mm; efw in g) and projected; docs/json.md lists them all.\n",
          .operands = kOperands,
          .options = kOptions,
          .run = runReport};
}

}  // namespace nascor::cli
