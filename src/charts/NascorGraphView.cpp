#include "charts/NascorGraphView.h"

#include <algorithm>
#include <utility>

#include "calc/LookUp.h"
#include "foundation/UserDefaults.h"

namespace nascor::charts {

using foundation::NotificationName;
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
  switch (standard) {
    case 0: initASUMStandards(); break;
    case 1: initHadlockStandards(); break;
    case 2: initSchluterStandards(); break;
    case 3: initCFEFStandards(); break;
    default: break;
  }
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

void NascorGraphView::plotDataPoints() {
  if (!owningDocument() || !owningDocument()->patientRecord()) return;
  const std::int64_t selected = owningDocument()->multiplePopUp().indexOfSelectedItem();
  if (!foundation::boolForKey(services().defaults, foundation::defaults_key::showAll)) {
    if (selected >= 0) plotFetus(selected, true);
    return;
  }
  // A file may name any number of fetuses. Those beyond the symbols show nothing unless they are selected.
  constexpr std::int64_t kSymbols = 5;
  const std::int64_t count = owningDocument()->patientRecord()->numberOfFetuses();
  for (std::int64_t fetus = 0; fetus < std::min(count, kSymbols); ++fetus)
    plotFetus(fetus, fetus == selected);
  if (selected >= kSymbols && selected < count) plotFetus(selected, true);
}

void NascorGraphView::plotFetus(std::int64_t fetus, bool isSelected) {
  constexpr double kDisc = 20.0;
  const ChartDocument& document = *owningDocument();
  const std::uint64_t examinations = document.patientRecord()->ncRecordsArray().size();
  for (std::uint64_t exam = 0; exam < examinations; ++exam) {
    const double x = document.menstrualAgeForRecord(exam);
    const double y = valueForFetus(static_cast<std::uint64_t>(fetus), exam);
    if (!(minX() <= x && x <= maxX() && y > 0.0)) continue;
    if (isSelected) {
      if (std::cmp_equal(exam, document.currentExam()) && document.shouldShowGraphHilite()) {
        const Point centre = pointForXY(x, y);
        canvas().setColor(NamedColor::faintGray);
        canvas().fillOval(
            {.x = centre.x - kDisc / 2.0, .y = centre.y - kDisc / 2.0, .width = kDisc, .height = kDisc});
      }
      setPointsColour();
    } else {
      setMeanColour();
    }
    // The same symbols as in the legend; a sixth fetus and later ones have none.
    switch (fetus) {
      case 0: plotMark(1, x, y); break;
      case 1: plotMark(4, x, y); break;
      case 2: plotMark(3, x, y); break;
      case 3: plotMark(5, x, y); break;
      case 4: plotMark(2, x, y); break;
      default: break;
    }
  }
}

}  // namespace nascor::charts
