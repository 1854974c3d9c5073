#include "charts/NascorDataView.h"

#include <algorithm>
#include <limits>
#include <span>

#include "calc/FetalWeight.h"
#include "calc/Projection.h"
#include "calc/Report.h"
#include "foundation/Assertion.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/UserDefaults.h"
#include "foundation/Utf8.h"
#include "framework/LongestBeginning.h"

namespace nascor::charts {
namespace {

using framework::NamedColor;

constexpr double kLine = 24.0;
constexpr double kColumn = 86.0;
constexpr double kTableLeft = 10.0;
constexpr double kFirstHeaderLine = 10.0;
constexpr double kLeftHeader = 40.0;
constexpr double kRightHeader = 320.0;
constexpr double kIdentifierWidth = 260.0;
constexpr double kTitles = 140.0;
constexpr double kFrameTop = 124.0;
constexpr double kBelowLastLine = 40.0;
/// Where what follows a label's tab begins.
constexpr double kTabStop = 100.0;
/// More rows than any paper shows.
constexpr std::int64_t kMostRowsDrawn = 1000;

}  // namespace

void NascorDataView::resetStandards() {
  const std::int64_t formula =
      owningDocument() ? owningDocument()->fetalWeightStandard()
                       : foundation::integerForKey(services().defaults,
                                                   foundation::defaults_key::estimatedFetalWeightStandard);
  setReferenceTitle(calc::fetalWeightTitle(formula, services().localizer));
}

bool NascorDataView::projectionIsShown() const {
  const model::PatientRecord& patient = *owningDocument()->patientRecord();
  // Without an examination the index runs past every one, and the age is that of none.
  const double age = owningDocument()->menstrualAgeForRecord(patient.ncRecordsArray().size() - 1);
  return calc::projectionIsShown(age, patient.extrapolatedGestation());
}

std::int64_t NascorDataView::firstExaminationShown(double height) const {
  const auto& examinations = owningDocument()->patientRecord()->ncRecordsArray();
  return static_cast<std::int64_t>(
      calc::firstExaminationShown(examinations.size(), height, projectionIsShown()));
}

std::int64_t NascorDataView::examinationsShown() const {
  if (!owningDocument() || !owningDocument()->patientRecord()) return 0;
  return static_cast<std::int64_t>(owningDocument()->patientRecord()->ncRecordsArray().size()) -
         firstExaminationShown(bounds().height);
}

std::vector<std::string> NascorDataView::leftHeader(const std::string& identifier) const {
  const model::PatientRecord& patient = *owningDocument()->patientRecord();
  return {localized("", "Identifier:\t").append(identifier),
          localized("", "Gravida:\t").append(std::to_string(patient.gravida())),
          localized("", "Fetus:\t").append(owningDocument()->multiplePopUp().titleOfSelectedItem())};
}

std::vector<std::string> NascorDataView::rightHeader() const {
  const ChartDocument& document = *owningDocument();
  const model::PatientRecord& patient = *document.patientRecord();
  const auto& examinations = patient.ncRecordsArray();
  const std::int64_t exam = document.currentExam();
  const bool exists = exam >= 0 && std::cmp_less(exam, examinations.size());
  return {localized("", "Date:\t")
              .append(exists ? dateText(examinations[static_cast<std::size_t>(exam)]->examDate()) : ""),
          localized("", "EDD:\t").append(patient.edd() ? dateText(patient.edd()) : "-"),
          localized("", "Menstrual Age:\t")
              .append(document.menstrualAgeStringForRecord(static_cast<std::uint64_t>(exam))),
          patient.edd() && projectionIsShown()
              ? calc::daysToGoLine(patient.extrapolatedGestation(), services().localizer)
              : ""};
}

NascorDataView::Cells NascorDataView::titles() const {
  return {localized("", "Exam Date"), localized("", "Menstrual Age"), localized("", "BPD (mm)"),
          localized("", "HC (mm)"),   localized("", "AC (mm)"),       localized("", "FL (mm)"),
          localized("", "EFW (g)")};
}

NascorDataView::Cells NascorDataView::examinationCells(std::int64_t exam) const {
  const ChartDocument& document = *owningDocument();
  const model::MeasurementsRecord* measured = document.measurementsForCurrentFetus(exam);
  const model::MeasurementsRecord lengths = measured ? *measured : model::MeasurementsRecord();
  const auto& record = document.patientRecord()->ncRecordsArray()[static_cast<std::size_t>(exam)];
  return {dateText(record->examDate()),
          document.menstrualAgeStringForRecord(static_cast<std::uint64_t>(exam)),
          foundation::fixedText(lengths.bpd(), 1),
          foundation::fixedText(lengths.hc(), 1),
          foundation::fixedText(lengths.ac(), 1),
          foundation::fixedText(lengths.fl(), 1),
          calc::reportedWeight(lengths.estimatedFetalWeight(document.fetalWeightStandard()))};
}

NascorDataView::Cells NascorDataView::projectedCells() const {
  ChartDocument& document = *owningDocument();
  Cells cells{
      localized("", "Projected"),
      document.menstrualAgeStringForGestation(document.patientRecord()->extrapolatedGestation()),
  };
  // Each leaves its value in the record that the weight is then computed from.
  cells[2] = foundation::fixedText(document.extrapolatedBPDForCurrentFetus(), 1);
  cells[3] = foundation::fixedText(document.extrapolatedHCForCurrentFetus(), 1);
  cells[4] = foundation::fixedText(document.extrapolatedACForCurrentFetus(), 1);
  cells[5] = foundation::fixedText(document.extrapolatedFLForCurrentFetus(), 1);
  cells[6] = foundation::fixedText(
      document.extrapolatedMeasurements().estimatedFetalWeight(document.fetalWeightStandard()), 0);
  return cells;
}

std::string NascorDataView::dateText(const std::optional<foundation::Date>& date) const {
  return foundation::shortDateText(date, services().calendar, services().localizer);
}

std::string NascorDataView::shortened(std::string line) const {
  const auto fits = [this](std::string_view text) {
    return canvas().textWidth(text, {.tabStop = kTabStop}) <= kIdentifierWidth;
  };
  line.resize(framework::roughBeginning(line, fits));
  while (!line.empty() && !fits(line)) foundation::removeLastCharacter(line);
  return line;
}

void NascorDataView::drawReferenceTitle() {
  canvas().text(referenceTitle(), {.x = 0.0, .y = bounds().height - 15.0}, {});
}

void NascorDataView::drawRow(const Cells& cells, double y, NamedColor color) {
  double x = kTableLeft;
  for (const std::string& cell : cells) {
    canvas().text(cell, {.x = x, .y = y}, {.color = color, .tabStop = kTabStop});
    x += kColumn;
  }
}

void NascorDataView::drawRect(const framework::Rect& rect) {
  drawReferenceTitle();
  if (!owningDocument() || !owningDocument()->patientRecord()) return;
  const auto count = static_cast<std::int64_t>(owningDocument()->patientRecord()->ncRecordsArray().size());

  const auto drawHeader = [&](std::span<const std::string> lines, double x) {
    double y = kFirstHeaderLine;
    for (const std::string& line : lines) {
      canvas().text(line, {.x = x, .y = y}, {.tabStop = kTabStop});
      y += kLine;
    }
  };
  const auto& identifier = owningDocument()->patientRecord()->maternalIDString();
  std::vector<std::string> left = leftHeader(foundation::shownLine(identifier.value_or("")));
  left.front() = shortened(std::move(left.front()));
  drawHeader(left, kLeftHeader);
  // Dates cannot be written without a form for them.
  foundation::required(!services().localizer.shortDateForm().pattern.empty());
  drawHeader(rightHeader(), kRightHeader);

  drawRow(titles(), kTitles, NamedColor::black);
  // One empty line under the titles.
  double y = kTitles + kLine;
  const std::int64_t first = firstExaminationShown(rect.height);
  // A page too low for a single row lists every examination, beyond its lower edge.
  const std::int64_t afterLastDrawn = std::min(count, first + kMostRowsDrawn);
  for (std::int64_t exam = first; exam < afterLastDrawn; ++exam) {
    y += kLine;
    drawRow(examinationCells(exam), y, NamedColor::black);
  }
  y += kLine * static_cast<double>(count - afterLastDrawn);
  if (projectionIsShown()) {
    y += kLine;
    drawRow(projectedCells(), y, NamedColor::darkGray);
  }

  canvas().setColor(NamedColor::gray);
  canvas().strokeRect(
      {.x = rect.x, .y = kFrameTop, .width = rect.width, .height = (y - kFrameTop) + kBelowLastLine});
}

std::string NascorDataView::tabSeparatedText() const {
  return text(std::numeric_limits<std::int64_t>::max(), foundation::oneLine);
}

std::string NascorDataView::shownText() const {
  constexpr std::int64_t kMostExaminations = 100;
  return text(kMostExaminations, foundation::shownLine);
}

std::string NascorDataView::text(std::int64_t mostExaminations,
                                 std::string (*lineOf)(std::string_view)) const {
  std::string text;
  if (!owningDocument() || !owningDocument()->patientRecord()) return text;
  const auto addLine = [&](const std::string& line) {
    if (!line.empty()) text.append(line).append("\n");
  };
  const auto addRow = [&](const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) text.append(i == 0 ? "" : "\t").append(cells.at(i));
    text += '\n';
  };
  const auto& identifier = owningDocument()->patientRecord()->maternalIDString();
  for (const std::string& line : leftHeader(lineOf(identifier.value_or("")))) addLine(line);
  for (const std::string& line : rightHeader()) addLine(line);
  text += '\n';
  addRow(titles());
  const auto count = static_cast<std::int64_t>(owningDocument()->patientRecord()->ncRecordsArray().size());
  const std::int64_t first = count - std::min(count, mostExaminations);
  if (first > 0) addLine(std::string(foundation::kCutSign));
  for (std::int64_t exam = first; exam < count; ++exam) addRow(examinationCells(exam));
  if (projectionIsShown()) addRow(projectedCells());
  text += '\n';
  addLine(referenceTitle());
  return text;
}

}  // namespace nascor::charts
