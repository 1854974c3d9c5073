// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/Report.h"
#include "calc/Standards.h"
#include "cli_commands/Command.h"
#include "cli_commands/Documents.h"
#include "cli_commands/Input.h"
#include "cli_commands/Table.h"
#include "foundation/IsoDate.h"
#include "foundation/JsonText.h"
#include "model/FetusLabels.h"
#include "model/PatientReport.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

namespace {

using calc::Measurement;
using foundation::Date;
using foundation::JsonText;
using model::NCRecord;
using model::PatientRecord;
using model::PatientReport;
using Row = PatientReport::Row;

/// The report of a document's patient as a file has it: in English, with days as ISO 8601 writes them, and the growth
/// standard that the patient names.
class Report {
 public:
  Report(const PatientRecord& patient, const foundation::Calendar& calendar)
      : report_(patient, calc::plannedGestation(
                             calc::plannedDays(patient.extrapolatedGestation(), patient.standard()))),
        calendar_(calendar) {
    for (const Measurement measurement : calc::kMeasurements) {
      calc::appendStandard(tables_.at(static_cast<std::size_t>(measurement)), patient.standard(),
                           measurement);
    }
  }

  /// Projects to the weeks that the window takes from the file.
  const PatientReport& operator*() const { return report_; }
  const PatientReport* operator->() const { return &report_; }
  const foundation::Localizer& localizer() const { return english_; }

  std::string ageText(double age) const { return calc::gestationText(age, english_); }
  std::string dayText(const std::optional<Date>& date) const {
    return date ? isoDayText(*date, calendar_) : "";
  }
  PatientReport::Head head() const {
    return report_.head(
        report_.lastExamination(), [this](const auto& date) { return dayText(date); }, english_);
  }

  std::string fetusLabel(std::size_t fetus) const {
    const std::int64_t fetuses = report_.patient().numberOfFetuses();
    const auto labels = model::fetusLabels(fetuses);
    if (fetus < labels.size()) return std::string(labels[fetus]);
    return "Fetus " + std::to_string(fetus + 1) + " of " + std::to_string(fetuses);
  }

  Row row(const NCRecord& examination, std::size_t fetus) const {
    return report_.row(examination, measured(examination, fetus));
  }

  Row projected(std::size_t fetus) const {
    const NCRecord& last = *report_.lastExamination();
    calc::Biometry lengths = row(last, fetus).lengths;
    for (const Measurement measurement : calc::kMeasurements) {
      double& length = lengths.*calc::memberFor(measurement);
      length = report_.projectedLength(length, tables_.at(static_cast<std::size_t>(measurement)));
    }
    return report_.projectedRow(lengths);
  }

 private:
  static const model::MeasurementsRecord* measured(const NCRecord& examination, std::size_t fetus) {
    const auto& measurements = examination.measurements();
    return fetus < measurements.size() ? &measurements[fetus] : nullptr;
  }

  PatientReport report_;
  const foundation::Calendar& calendar_;
  foundation::EnglishLocalizer english_;
  std::array<calc::ReferenceTable, calc::kMeasurements.size()> tables_;
};

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

std::vector<std::string> cells(const Report& report, const Row& row, std::string first) {
  const PatientReport::Cells cells = PatientReport::cells(row, std::move(first), report.localizer());
  return {cells.begin(), cells.end()};
}

void printReport(const std::string& path, const Report& report, Console& console) {
  const PatientRecord& patient = report->patient();
  const PatientReport::Head head = report.head();
  printLine(console, "File:", nameOf(path));
  printLine(console, "Identifier:", head.identifier);
  printLine(console, "Gravida:", head.gravida);
  printLine(console, "Date:", head.examDate);
  printLine(console, "EDD:", head.edd);
  printLine(console, "Menstrual Age:", head.age);
  if (!head.daysToGo.empty()) printLabelled(console, head.daysToGo);
  printLabelled(console, calc::growthStandardTitle(patient.standard(), report.localizer()));
  printLabelled(console, calc::fetalWeightTitle(patient.fetalWeightStandard(), report.localizer()));

  report->forEachFetus([&](std::size_t fetus, const std::vector<std::size_t>& places) {
    console.lineDone();
    printLine(console, "Fetus:", report.fetusLabel(fetus));
    constexpr std::size_t kTextColumns = 2;
    std::vector<Table::Column> columns;
    for (const std::string& title : PatientReport::titles(report.localizer()))
      columns.push_back({title, columns.size() < kTextColumns ? Table::Align::left : Table::Align::right});
    Table table(std::move(columns));
    for (const std::size_t place : places) {
      const Row row = report.row(*patient.ncRecordsArray()[place], fetus);
      table.addRow(cells(report, row, report.dayText(row.examDate)));
    }
    if (report->projectionIsShown())
      table.addRow(cells(report, report.projected(fetus), PatientReport::projectedTitle(report.localizer())));
    table.print(console);
  });
}

// As JSON

class JsonReport {
 public:
  JsonReport(Console& console, const Report& report)
      : console_(console), json_(console.out()), report_(report) {}

  void write(const std::string& path) {
    const PatientRecord& patient = report_->patient();
    const NCRecord* last = report_->lastExamination();
    const PatientReport::Head head = report_.head();
    json_.beginObject().key("file").text(nameOf(path));
    json_.key("maternalIDString");
    patient.maternalIDString() ? json_.text(*patient.maternalIDString()) : json_.null();
    json_.key("gravida").integer(patient.gravida());
    date("edd", patient.edd(), head.edd);
    json_.key("standard").integer(patient.standard());
    const auto* standard = calc::growthStandard(patient.standard());
    json_.key("standardText").text(standard ? standard->label : "");
    json_.key("fetalWeightStandard").integer(patient.fetalWeightStandard());
    const auto* formula = calc::weightFormula(patient.fetalWeightStandard());
    json_.key("fetalWeightStandardText").text(formula ? formula->longLabel : "");
    json_.key("numberOfFetuses").integer(patient.numberOfFetuses());
    json_.key("extrapolatedGestation").number(report_->plannedGestation());
    json_.key("extrapolatedGestationText").text(report_.ageText(report_->plannedGestation()));
    date("lastExamDate", last != nullptr ? last->examDate() : std::nullopt, head.examDate);
    age("lastAge", report_->age(last));
    json_.key("projectionIsShown").boolean(report_->projectionIsShown());
    const std::string& line = head.daysToGo;
    json_.key("deliveryAdjustment").number(calc::deliveryAdjustment(report_->plannedGestation()));
    json_.key("daysToGoText").text(line.empty() ? "" : std::string_view(line).substr(line.find('\t') + 1));
    json_.key("fetuses").beginArray();
    report_->forEachFetus(
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
      const NCRecord& examination = *report_->patient().ncRecordsArray()[place];
      const Row row = report_.row(examination, fetus);
      json_.beginObject();
      json_.key("examination").integer(static_cast<std::int64_t>(place) + 1);
      date("examDate", examination.examDate(), report_.dayText(examination.examDate()));
      values(row);
      console_.partDone();
    }
    json_.endArray().key("projected");
    if (report_->projectionIsShown()) {
      json_.beginObject();
      values(report_.projected(fetus));
    } else {
      json_.null();
    }
    json_.endObject();
  }

  /// The rest of an object.
  void values(const Row& row) {
    age("age", row.age);
    for (const Measurement measurement : calc::kMeasurements) {
      const std::string name(calc::nameOf(measurement));
      json_.key(name).number(row.lengths.*calc::memberFor(measurement));
      json_.key(name + "Text").text(row.lengthText(measurement));
    }
    json_.key("efw").number(row.weight);
    json_.key("efwText").text(row.weightText());
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
      {{"FILE...", translatable("CommandHelp", "a document; - is standard input"), true}}};
  static constexpr std::array<OptionSpec, 1> kOptions{
      {{"json", "",
        translatable("CommandHelp",
                     "one JSON object a document, on a line: unrounded numbers, the texts beside them")}}};
  return {.name = "report",
          .usage = "FILE... [--json]",
          .summary = translatable(
              "CommandHelp",
              "The tabular report of each document: every fetus, every examination, the projection."),
          .details = Sentence(
              "CommandHelp",
              "Date and Menstrual Age are those of the last examination. Days are those of the local time "
              "zone. The\n"
              "projection is there when the last examination lies from 30 weeks to the planned delivery. "
              "Keys of\n"
              "the JSON, among others: file, maternalIDString, edd, fetuses, in each examinations (age in "
              "weeks;\n"
              "bpd, hc, ac, fl in mm; efw in g) and projected; docs/json.md lists them all.\n"),
          .operands = kOperands,
          .options = kOptions,
          .run = runReport};
}

}  // namespace nascor::cli
