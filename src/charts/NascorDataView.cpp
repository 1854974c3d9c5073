// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/NascorDataView.h"

#include <algorithm>
#include <limits>
#include <span>

#include "calc/FetalWeight.h"
#include "calc/Report.h"
#include "foundation/Assertion.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"
#include "foundation/Utf8.h"
#include "framework/LongestBeginning.h"

namespace nascor::charts {
namespace {

using framework::NamedColor;
using model::PatientReport;

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

std::optional<PatientReport> NascorDataView::report() const {
  if (!owningDocument() || !owningDocument()->patientRecord()) return std::nullopt;
  const model::PatientRecord& patient = *owningDocument()->patientRecord();
  return PatientReport(patient, patient.extrapolatedGestation());
}

std::int64_t NascorDataView::firstExaminationShown(const PatientReport& report, double height) const {
  return static_cast<std::int64_t>(
      calc::firstExaminationShown(report.examinations(), height, report.projectionIsShown()));
}

std::int64_t NascorDataView::examinationsShown() const {
  const auto shown = report();
  if (!shown) return 0;
  return static_cast<std::int64_t>(shown->examinations()) - firstExaminationShown(*shown, bounds().height);
}

PatientReport::Head NascorDataView::headOf(const PatientReport& report) const {
  return report.head(
      report.examination(owningDocument()->currentExam()),
      [this](const auto& date) { return dateText(date); }, services().localizer);
}

std::vector<std::string> NascorDataView::leftHeader(const PatientReport::Head& head,
                                                    const std::string& identifier) const {
  return {localized("", "Identifier:\t").append(identifier), localized("", "Gravida:\t").append(head.gravida),
          localized("", "Fetus:\t").append(owningDocument()->multiplePopUp().titleOfSelectedItem())};
}

std::vector<std::string> NascorDataView::rightHeader(const PatientReport::Head& head) const {
  return {localized("", "Date:\t").append(head.examDate), localized("", "EDD:\t").append(head.edd),
          localized("", "Menstrual Age:\t").append(head.age), head.daysToGo};
}

NascorDataView::Cells NascorDataView::examinationCells(const PatientReport& report, std::int64_t exam) const {
  const PatientReport::Row row =
      report.row(*report.examination(exam), owningDocument()->measurementsForCurrentFetus(exam));
  return PatientReport::cells(row, dateText(row.examDate), services().localizer);
}

NascorDataView::Cells NascorDataView::projectedCells(const PatientReport& report) const {
  ChartDocument& document = *owningDocument();
  // Each also leaves its value in the document's record of projected lengths.
  const PatientReport::Row row = report.projectedRow({.bpd = document.extrapolatedBPDForCurrentFetus(),
                                                      .hc = document.extrapolatedHCForCurrentFetus(),
                                                      .ac = document.extrapolatedACForCurrentFetus(),
                                                      .fl = document.extrapolatedFLForCurrentFetus()});
  return PatientReport::cells(row, PatientReport::projectedTitle(services().localizer), services().localizer);
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
  const auto shown = report();
  if (!shown) return;
  const auto count = static_cast<std::int64_t>(shown->examinations());

  const auto drawHeader = [&](std::span<const std::string> lines, double x) {
    double y = kFirstHeaderLine;
    for (const std::string& line : lines) {
      canvas().text(line, {.x = x, .y = y}, {.tabStop = kTabStop});
      y += kLine;
    }
  };
  const PatientReport::Head head = headOf(*shown);
  std::vector<std::string> left = leftHeader(head, foundation::shownLine(head.identifier));
  left.front() = shortened(std::move(left.front()));
  drawHeader(left, kLeftHeader);
  // Dates cannot be written without a form for them.
  foundation::required(!services().localizer.shortDateForm().pattern.empty());
  drawHeader(rightHeader(head), kRightHeader);

  drawRow(PatientReport::titles(services().localizer), kTitles, NamedColor::black);
  // One empty line under the titles.
  double y = kTitles + kLine;
  const std::int64_t first = firstExaminationShown(*shown, rect.height);
  // A page too low for a single row lists every examination, beyond its lower edge.
  const std::int64_t afterLastDrawn = std::min(count, first + kMostRowsDrawn);
  for (std::int64_t exam = first; exam < afterLastDrawn; ++exam) {
    y += kLine;
    drawRow(examinationCells(*shown, exam), y, NamedColor::black);
  }
  y += kLine * static_cast<double>(count - afterLastDrawn);
  if (shown->projectionIsShown()) {
    y += kLine;
    drawRow(projectedCells(*shown), y, NamedColor::darkGray);
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
  const auto shown = report();
  if (!shown) return text;
  const auto addLine = [&](const std::string& line) {
    if (!line.empty()) text.append(line).append("\n");
  };
  const auto addRow = [&](const Cells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) text.append(i == 0 ? "" : "\t").append(cells.at(i));
    text += '\n';
  };
  const PatientReport::Head head = headOf(*shown);
  for (const std::string& line : leftHeader(head, lineOf(head.identifier))) addLine(line);
  for (const std::string& line : rightHeader(head)) addLine(line);
  text += '\n';
  addRow(PatientReport::titles(services().localizer));
  const auto count = static_cast<std::int64_t>(shown->examinations());
  const std::int64_t first = count - std::min(count, mostExaminations);
  if (first > 0) addLine(std::string(foundation::kCutSign));
  for (std::int64_t exam = first; exam < count; ++exam) addRow(examinationCells(*shown, exam));
  if (shown->projectionIsShown()) addRow(projectedCells(*shown));
  text += '\n';
  addLine(referenceTitle());
  return text;
}

}  // namespace nascor::charts
