#pragma once

#include <cstdint>

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

  // Selector: valueForFetus:exam:
  /// What is plotted; not plotted unless above 0.0.
  virtual double valueForFetus(std::uint64_t fetus, std::uint64_t exam) const;

  /// @name Look-ups in this chart's table (calc/LookUp.h)
  /// @{
  double gestationForMeasurement(double value) const;
  double meanForGestation(double gestation) const;
  double sdForGestation(double gestation) const;
  /// @}

  /// The outline of the band as it was last drawn; empty before that.
  const framework::Path& sdPath() const { return sdPath_; }

 protected:
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
  void plotFetus(std::int64_t fetus, bool isSelected);

  framework::Path sdPath_;
};

}  // namespace nascor::charts
