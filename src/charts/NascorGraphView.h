// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "charts/UpdatingGraphView.h"

namespace nascor::charts {

/// The growth chart: one length against menstrual age from 8 to 42 weeks, over the mean curve and the band of two
/// standard deviations of the growth standard, with one mark per examination and fetus.
class NascorGraphView : public UpdatingGraphView {
 public:
  using UpdatingGraphView::UpdatingGraphView;

  std::string_view className() const override { return "NascorGraphView"; }
  void initWithFrame(const framework::Rect& frame) override;

  /// Rebuilds the table for the document's growth standard (for the user's preference while there is no document), sets
  /// the reference title, and announces it so that the weight chart may follow.
  void resetStandards() override;

  /// The fetuses that are plotted: all that have a symbol and the one on show, or that one alone.
  std::vector<std::int64_t> plottedFetuses() const;

  // Selector: valueForFetus:exam:
  /// What is plotted; not plotted unless above 0.0.
  virtual double valueForFetus(std::uint64_t fetus, std::uint64_t exam) const;
  /// What the values are of; nothing where none is plotted.
  virtual std::optional<calc::Quantity> quantity() const { return std::nullopt; }

  /// @name Look-ups in this chart's table (calc/LookUp.h)
  /// @{
  double gestationForMeasurement(double value) const;
  double meanForGestation(double gestation) const;
  double sdForGestation(double gestation) const;
  /// @}

  /// Only inside the band as it was last drawn: what lies behind gets the other clicks.
  framework::ZuPrimitiveGraphView* hitTest(framework::Point point) override;
  /// A single click is the base's; a double click inside the band leads to another page; others do nothing.
  void mouseDown(const framework::MouseEvent& event) override;
  /// The nearest mark: date, age, value and by how many standard deviations it lies above the mean.
  std::string toolTipAt(framework::Point point) const override;
  /// By age, the fetuses of an examination in their order.
  std::vector<framework::ReadOut> readOuts() const override;
  /// What the mark of that examination and the fetus on show says: measure, value, z-score; empty where there is none.
  std::string spokenValue(std::int64_t exam) const;
  /// What the legend says of the centile lines over the chart: whose they are, or why there are none; empty while none are
  /// wanted.
  std::string centilesText() const;

  /// The outline of the band as it was last drawn; empty before that.
  const framework::Path& sdPath() const { return sdPath_; }

 protected:
  /// Where a double click leads: from a chart of its own to the trends.
  virtual void switchToSingleGraphFromTrends();
  /// `value` in words, with its unit.
  virtual std::string valueText(double value) const;

  void drawGraph() override;
  void drawYAxis() override;
  virtual void drawLegend();
  virtual void plotStandards();
  virtual void plot2SD();
  virtual void plotMean();
  virtual void plotDataPoints();

  /// @name Make the colour of the mean curve, of the band, of the marks the current one
  /// @{
  virtual void setMeanColour() { canvas().setColor(framework::NamedColor::gray); }
  virtual void setSDColour() { canvas().setColor(framework::NamedColor::quiteFaintBlue); }
  virtual void setPointsColour() { canvas().setColor(framework::NamedColor::blue); }
  /// @}

 private:
  /// One value on the chart, in data units.
  struct PlottedValue {
    std::int64_t fetus;
    bool isSelected;
    std::uint64_t exam;
    double x;  ///< menstrual age in weeks
    double y;
  };
  template <class Use>
  void forEachPlottedValue(Use use) const;
  template <class Use>
  void forEachValueOf(std::int64_t fetus, bool isSelected, Use use) const;
  std::string describe(const PlottedValue& plotted) const;
  /// Value and z-score, and whether another week of the table stands in.
  std::string valueAndPlace(const PlottedValue& plotted) const;
  void drawOverlay();
  void drawCentiles(const calc::Reference& reference, calc::Quantity quantity);
  void drawCentilesLegend();
  void joinMarks();

  framework::Path sdPath_;
  /// The lines that were drawn last, and whose they are: working them out takes longer than drawing them.
  std::vector<CentileLine> centileLines_;
  const calc::Reference* centileLinesOf_ = nullptr;
};

}  // namespace nascor::charts
