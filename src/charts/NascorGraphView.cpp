// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "charts/NascorGraphView.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "calc/Centile.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/Sentence.h"
#include "foundation/UserDefaults.h"
#include "model/PatientPage.h"

namespace nascor::charts {

using foundation::NotificationName;
using foundation::Sentence;
using framework::NamedColor;
using framework::Path;
using framework::Point;

void NascorGraphView::initWithFrame(const framework::Rect& frame) {
  UpdatingGraphView::initWithFrame(frame);
  setMinX(8.0);
  setMaxX(42.0);
  setMajorXInterval(4.0);
  setMinorXInterval(1.0);
  sdPath_.setLineWidth(1.0);
}

void NascorGraphView::resetStandards() {
  const ChartDocument* document = owningDocument();
  const std::int64_t standard =
      document ? document->standard()
               : foundation::integerForKey(services().defaults, foundation::defaults_key::standard);
  table().clear();
  appendStandard(standard);
  setReferenceTitle(calc::growthStandardTitle(standard, services().localizer));
  services().notifications.post(NotificationName::updateStandardsForEFW, this);
}

double NascorGraphView::valueForFetus(std::uint64_t, std::uint64_t) const { return 0.0; }

double NascorGraphView::gestationForMeasurement(double value) const {
  return calc::gestationForMeasurement(standardData(), value);
}

double NascorGraphView::meanForGestation(double gestation) const {
  return calc::meanForGestation(standardData(), gestation);
}

double NascorGraphView::sdForGestation(double gestation) const {
  return calc::sdForGestation(standardData(), gestation);
}

void NascorGraphView::drawGraph() {
  UpdatingGraphView::drawGraph();
  drawLegend();
  plotStandards();
  drawOverlay();
  plotDataPoints();
}

void NascorGraphView::drawYAxis() {
  UpdatingGraphView::drawYAxis();
  canvas().setColor(NamedColor::faintGray);
  canvas().strokeRect(graphRect());
  canvas().setColor(NamedColor::black);
}

void NascorGraphView::drawLegend() {
  constexpr double kRow = 20.0;
  constexpr framework::Rgba kTitleColor{.red = 0.1, .green = 0.1, .blue = 0.1, .alpha = 0.75};
  canvas().setColor(NamedColor::heavyGray);
  if (!owningDocument()) return;
  const framework::PopUpButton& fetuses = owningDocument()->multiplePopUp();
  const std::int64_t count = fetuses.numberOfItems();
  if (count <= 1) return;

  const double x = graphRect().x + 5.0 + 20.0;
  // From the height of the plotting area alone, not from its upper edge: the legend of existing prints stands there.
  double y = graphRect().height - kRow * static_cast<double>(count) - 20.0 - 10.0;
  for (std::int64_t fetus = count - 1; fetus >= 0; --fetus) {
    y += kRow;
    const Point place{.x = x, .y = y};
    switch (fetus) {
      case 0: plotCrossAtPoint(place); break;
      case 1: plotCircleAtPoint(place); break;
      case 2: plotTriangleAtPoint(place); break;
      case 3: plotSquareAtPoint(place); break;
      case 4: plotXAtPoint(place); break;
      default: break;
    }
    canvas().text(fetuses.itemTitleAtIndex(fetus), {.x = x + 40.0, .y = y - 6.0},
                  {.color = framework::Color(kTitleColor)});
  }
}

void NascorGraphView::plotStandards() {
  plot2SD();
  plotMean();
}

void NascorGraphView::plot2SD() {
  setSDColour();
  sdPath_.removeAllPoints();
  const auto& rows = standardData();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Point upper = pointForXY(rows[i].observation(), rows[i].mean() + 2.0 * rows[i].sd());
    i == 0 ? sdPath_.moveTo(upper) : sdPath_.lineTo(upper);
  }
  for (std::size_t i = rows.size(); i-- > 0;) {
    sdPath_.lineTo(pointForXY(rows[i].observation(), rows[i].mean() - 2.0 * rows[i].sd()));
  }
  canvas().fillPath(sdPath_);
}

void NascorGraphView::plotMean() {
  setMeanColour();
  Path curve;
  curve.setLineWidth(1.0);
  const auto& rows = standardData();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Point point = pointForXY(rows[i].observation(), rows[i].mean());
    i == 0 ? curve.moveTo(point) : curve.lineTo(point);
  }
  canvas().strokePath(curve);
}

namespace {

/// Finds out which of very many marks need not be drawn, because they would lie on others.
class CoveredMarks {
 public:
  explicit CoveredMarks(const framework::Rect& bounds)
      : columns_(cells(bounds.width)), rows_(cells(bounds.height)), isTaken_(columns_ * rows_) {}

  /// The marks that follow are other signs, and cover these.
  void beginSign() { std::fill(isTaken_.begin(), isTaken_.end(), false); }
  /// Whether another mark stands so near that it covers most of one here, or `at` lies outside the view. Otherwise a mark
  /// stands here from now on.
  bool covers(Point at) {
    if (!(at.x >= 0.0 && at.y >= 0.0)) return true;
    const auto column = static_cast<std::size_t>(std::min(at.x / kCell, 1e6));
    const auto row = static_cast<std::size_t>(std::min(at.y / kCell, 1e6));
    if (column >= columns_ || row >= rows_) return true;
    const bool isCovered = isTaken_[row * columns_ + column];
    isTaken_[row * columns_ + column] = true;
    return isCovered;
  }

 private:
  static constexpr double kCell = 6.0;  // marks are eight units wide
  static std::size_t cells(double length) {
    constexpr double kMostCells = 1000.0;
    return static_cast<std::size_t>(std::clamp(length / kCell, 0.0, kMostCells)) + 1;
  }

  std::size_t columns_;
  std::size_t rows_;
  std::vector<bool> isTaken_;
};

}  // namespace

void NascorGraphView::drawOverlay() {
  const auto shown = quantity();
  if (!owningDocument() || !shown) return;
  const Overlay overlay = owningDocument()->overlay();
  if (overlay.centiles != nullptr) drawCentiles(*overlay.centiles, *shown);
  if (overlay.joinsMarks) joinMarks();
}

void NascorGraphView::drawCentiles(const calc::Reference& reference, calc::Quantity quantity) {
  if (std::exchange(centileLinesOf_, &reference) != &reference)
    centileLines_ = centileLines(reference, quantity);
  std::vector<CentileLine> lines = centileLines_;
  for (CentileLine& line : lines) {
    for (Point& point : line.points) point = pointForXY(point.x, point.y);
  }
  canvas().setColor(NamedColor::black);
  drawCentileLines(canvas(), lines);
  drawCentilesLegend();
}

void NascorGraphView::drawCentilesLegend() {
  // Above the legend of the fetuses, where no curve comes.
  constexpr double kFromTop = 10.0;
  constexpr double kFromLeft = 8.0;
  constexpr double kSample = 24.0;
  const double y = graphRect().y + graphRect().height - kFromTop;
  double x = graphRect().x + kFromLeft;
  if (!centileLines_.empty()) {
    const std::array sample{Point{.x = x, .y = y}, Point{.x = x + kSample, .y = y}};
    canvas().strokePath(dashed(sample, dashesOf(50.0)));
    x += kSample + kFromLeft;
  }
  canvas().text(centilesText(), {.x = x, .y = y - framework::kTextHeight / 2.0}, {});
}

std::string NascorGraphView::centilesText() const {
  const auto shown = quantity();
  const calc::Reference* reference = owningDocument() ? owningDocument()->overlay().centiles : nullptr;
  if (reference == nullptr || !shown) return {};
  const std::string_view label = reference->label;
  const auto spoken = [this](const Sentence& sentence) { return said(sentence, services().localizer); };
  if (!calc::covers(*reference, *shown))
    return spoken(Sentence("", "%1 has no centiles of this measure").with(label));
  const bool isOtherFormula = shown == calc::Quantity::efw && reference->onlyFormula &&
                              *reference->onlyFormula != owningDocument()->fetalWeightStandard();
  if (isOtherFormula) {
    return spoken(Sentence("", "Centiles: %1, which fits weights by another formula alone: %2")
                      .with(label, calc::weightFormula(*reference->onlyFormula)->longLabel));
  }
  return spoken(Sentence("", "Centiles: %1").with(label));
}

void NascorGraphView::joinMarks() {
  constexpr double kThin = 0.75;
  std::vector<PlottedValue> marks;
  const auto stroke = [&] {
    if (marks.size() < 2) return;
    std::ranges::stable_sort(marks, {}, &PlottedValue::x);
    Path path;
    path.setLineWidth(kThin);
    for (std::size_t i = 0; i < marks.size(); ++i) {
      const Point point = pointForXY(marks[i].x, marks[i].y);
      i == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    marks.front().isSelected ? setPointsColour() : setMeanColour();
    canvas().strokePath(path);
  };
  forEachPlottedValue([&](const PlottedValue& plotted) {
    if (!marks.empty() && marks.front().fetus != plotted.fetus) {
      stroke();
      marks.clear();
    }
    marks.push_back(plotted);
  });
  stroke();
}

void NascorGraphView::plotDataPoints() {
  constexpr double kDisc = 20.0;
  // As long as each mark can be told from the others, each is drawn.
  constexpr std::size_t kManyExaminations = 1000;
  std::optional<CoveredMarks> covered;
  if (owningDocument() && owningDocument()->patientRecord() &&
      owningDocument()->patientRecord()->ncRecordsArray().size() > kManyExaminations) {
    covered.emplace(bounds());
  }
  std::int64_t fetus = -1;
  forEachPlottedValue([&](const PlottedValue& plotted) {
    const bool isCurrent =
        plotted.isSelected && std::cmp_equal(plotted.exam, owningDocument()->currentExam());
    if (covered) {
      if (std::exchange(fetus, plotted.fetus) != plotted.fetus) covered->beginSign();
      if (covered->covers(pointForXY(plotted.x, plotted.y)) && !isCurrent) return;
    }
    if (plotted.isSelected) {
      if (isCurrent && owningDocument()->shouldShowGraphHilite()) {
        const Point centre = pointForXY(plotted.x, plotted.y);
        canvas().setColor(NamedColor::faintGray);
        canvas().fillOval(
            {.x = centre.x - kDisc / 2.0, .y = centre.y - kDisc / 2.0, .width = kDisc, .height = kDisc});
      }
      setPointsColour();
    } else {
      setMeanColour();
    }
    // The same symbols as in the legend; a sixth fetus and later ones have none.
    switch (plotted.fetus) {
      case 0: plotMark(1, plotted.x, plotted.y); break;
      case 1: plotMark(4, plotted.x, plotted.y); break;
      case 2: plotMark(3, plotted.x, plotted.y); break;
      case 3: plotMark(5, plotted.x, plotted.y); break;
      case 4: plotMark(2, plotted.x, plotted.y); break;
      default: break;
    }
  });
}

std::vector<std::int64_t> NascorGraphView::plottedFetuses() const {
  if (!owningDocument() || !owningDocument()->patientRecord()) return {};
  const std::int64_t selected = owningDocument()->multiplePopUp().indexOfSelectedItem();
  if (!foundation::boolForKey(services().defaults, foundation::defaults_key::showAll))
    return selected >= 0 ? std::vector{selected} : std::vector<std::int64_t>();
  // A file may name any number of fetuses. Those beyond the symbols show nothing unless they are selected.
  constexpr std::int64_t kSymbols = 5;
  const std::int64_t count = owningDocument()->patientRecord()->numberOfFetuses();
  std::vector<std::int64_t> fetuses;
  for (std::int64_t fetus = 0; fetus < std::min(count, kSymbols); ++fetus) fetuses.push_back(fetus);
  if (selected >= kSymbols && selected < count) fetuses.push_back(selected);
  return fetuses;
}

template <class Use>
void NascorGraphView::forEachPlottedValue(Use use) const {
  if (!owningDocument()) return;
  const std::int64_t selected = owningDocument()->multiplePopUp().indexOfSelectedItem();
  for (const std::int64_t fetus : plottedFetuses()) forEachValueOf(fetus, fetus == selected, use);
}

template <class Use>
void NascorGraphView::forEachValueOf(std::int64_t fetus, bool isSelected, Use use) const {
  const std::uint64_t examinations = owningDocument()->patientRecord()->ncRecordsArray().size();
  for (std::uint64_t exam = 0; exam < examinations; ++exam) {
    const double x = owningDocument()->menstrualAgeForRecord(exam);
    const double y = valueForFetus(static_cast<std::uint64_t>(fetus), exam);
    if (minX() <= x && x <= maxX() && y > 0.0)
      use({.fetus = fetus, .isSelected = isSelected, .exam = exam, .x = x, .y = y});
  }
}

framework::ZuPrimitiveGraphView* NascorGraphView::hitTest(Point point) {
  ZuPrimitiveGraphView* hit = UpdatingGraphView::hitTest(point);
  if (hit != this) return hit;
  return sdPath_.contains(point) ? this : nullptr;
}

void NascorGraphView::mouseDown(const framework::MouseEvent& event) {
  if (event.clickCount == 1) UpdatingGraphView::mouseDown(event);
  if (event.clickCount == 2 && sdPath_.contains(event.location)) switchToSingleGraphFromTrends();
}

void NascorGraphView::switchToSingleGraphFromTrends() {
  if (owningDocument()) owningDocument()->switchToGraph(model::indexOf(model::PatientPage::trends));
}

std::string NascorGraphView::toolTipAt(Point point) const {
  constexpr double kReach = 8.0;
  std::optional<PlottedValue> nearest;
  double least = kReach;
  forEachPlottedValue([&](const PlottedValue& plotted) {
    const Point mark = pointForXY(plotted.x, plotted.y);
    const double distance = std::hypot(mark.x - point.x, mark.y - point.y);
    // Of two marks in one place the later one lies on top.
    if (distance > least) return;
    least = distance;
    nearest = plotted;
  });
  return nearest && bounds().contains(point) ? describe(*nearest) : std::string();
}

std::string NascorGraphView::describe(const PlottedValue& plotted) const {
  const ChartDocument& document = *owningDocument();
  const framework::PopUpButton& fetuses = document.multiplePopUp();
  const auto& record = document.patientRecord()->ncRecordsArray()[plotted.exam];
  const std::string date =
      foundation::shortDateText(record->examDate(), services().calendar, services().localizer);
  std::string text;
  if (fetuses.numberOfItems() > 1 && plotted.fetus < fetuses.numberOfItems()) {
    text.append(fetuses.itemTitleAtIndex(plotted.fetus)).append("\n");
  }
  text.append(date).append(", ").append(document.menstrualAgeStringForRecord(plotted.exam)).append("\n");
  return text + valueAndPlace(plotted);
}

std::string NascorGraphView::valueAndPlace(const PlottedValue& plotted) const {
  std::string text = valueText(plotted.y);
  const double z = calc::zScore(standardData(), plotted.y, plotted.x);
  if (!std::isfinite(z)) return text;
  const std::string score = foundation::fieldText(z, 2, services().localizer.decimalSign());
  text.append(", ").append(localized("", "z-score")).append(z >= 0.0 ? " +" : " ").append(score);
  if (calc::weekBeyondTable(standardData(), plotted.x) != calc::BeyondTable::no)
    text.append(", ").append(localized("", "beyond the table"));
  return text;
}

std::vector<framework::ReadOut> NascorGraphView::readOuts() const {
  std::vector<framework::ReadOut> all;
  forEachPlottedValue([&](const PlottedValue& plotted) {
    all.push_back({.at = pointForXY(plotted.x, plotted.y), .text = describe(plotted)});
  });
  std::ranges::stable_sort(all, {}, [](const framework::ReadOut& readOut) { return readOut.at.x; });
  return all;
}

std::string NascorGraphView::spokenValue(std::int64_t exam) const {
  std::string text;
  forEachPlottedValue([&](const PlottedValue& plotted) {
    if (plotted.isSelected && std::cmp_equal(plotted.exam, exam))
      text = yTitle() + ": " + valueAndPlace(plotted) + ".";
  });
  return text;
}

std::string NascorGraphView::valueText(double value) const {
  return foundation::fieldText(value, 1, services().localizer.decimalSign());
}

}  // namespace nascor::charts
