#pragma once

#include <string_view>

#include "calc/Biometry.h"
#include "charts/NascorGraphView.h"
#include "framework/Color.h"

namespace nascor::charts {

/// A chart without a horizontal axis and a reference title, which a strip below it shows, and with margins of its own.
class NoXaxisGraphView : public NascorGraphView {
 public:
  using NascorGraphView::NascorGraphView;
  std::string_view className() const override { return "NoXaxisGraphView"; }

  /// Inside the rectangle offered: 50 on the left, 10 on the right, 5 above and below are left free.
  void setGraphRect(const framework::Rect& rect) override;

 protected:
  void drawXAxis() override {}
  void drawReferenceTitle() override {}
};

/// A strip below a chart: the axis of menstrual age and the name of the growth standard. Its view begins 50 to the right
/// of the chart's and is 60 narrower, so that each week stands under that of the chart.
class NoYaxisGraphView : public NascorGraphView {
 public:
  using NascorGraphView::NascorGraphView;
  std::string_view className() const override { return "NoYaxisGraphView"; }
  void initWithFrame(const framework::Rect& frame) override;

 protected:
  void drawYAxis() override {}
  /// At most 10 units high, at the top: the rest is for labels and titles.
  framework::Rect offeredGraphRect() const override;
};

/// One measurement chart: everything in which the four differ.
struct MeasurementChart {
  calc::Measurement measurement;
  std::string_view yTitle;
  double maxY;  ///< mm; the range begins at 0
  double majorYInterval;
  framework::NamedColor mean;
  framework::NamedColor band;
  framework::NamedColor points;
};

/// A chart of one of the four lengths, from its row of facts.
class MeasurementGraphView : public NoXaxisGraphView {
 public:
  MeasurementGraphView(const foundation::Services& services, const MeasurementChart& chart)
      : NoXaxisGraphView(services), chart_(chart) {}

  void initWithFrame(const framework::Rect& frame) override;
  void initASUMStandards() override;
  void initHadlockStandards() override;
  void initSchluterStandards() override;
  void initCFEFStandards() override;
  double valueForFetus(std::uint64_t fetus, std::uint64_t exam) const override;

 protected:
  void setMeanColour() override { canvas().setColor(chart_.mean); }
  void setSDColour() override { canvas().setColor(chart_.band); }
  void setPointsColour() override { canvas().setColor(chart_.points); }

 private:
  const MeasurementChart& chart_;
};

inline constexpr MeasurementChart kBPDChart{.measurement = calc::Measurement::bpd,
                                            .yTitle = "Biparietal Diameter (mm)",
                                            .maxY = 120.0,
                                            .majorYInterval = 20.0,
                                            .mean = framework::NamedColor::moderateOrange,
                                            .band = framework::NamedColor::faintOrange,
                                            .points = framework::NamedColor::orange};
inline constexpr MeasurementChart kHeadCircumferenceChart{.measurement = calc::Measurement::hc,
                                                          .yTitle = "Head Circ (mm)",
                                                          .maxY = 400.0,
                                                          .majorYInterval = 50.0,
                                                          .mean = framework::NamedColor::moderateRed,
                                                          .band = framework::NamedColor::quiteFaintRed,
                                                          .points = framework::NamedColor::red};
inline constexpr MeasurementChart kAbdoCircumferenceChart{.measurement = calc::Measurement::ac,
                                                          .yTitle = "Abdo Circ (mm)",
                                                          .maxY = 450.0,
                                                          .majorYInterval = 50.0,
                                                          .mean = framework::NamedColor::moderateBlue,
                                                          .band = framework::NamedColor::quiteFaintBlue,
                                                          .points = framework::NamedColor::blue};
/// One colour for curve and marks is deliberate.
inline constexpr MeasurementChart kFemurLengthChart{.measurement = calc::Measurement::fl,
                                                    .yTitle = "Femur Length (mm)",
                                                    .maxY = 100.0,
                                                    .majorYInterval = 20.0,
                                                    .mean = framework::NamedColor::heavyGreen,
                                                    .band = framework::NamedColor::faintGreen,
                                                    .points = framework::NamedColor::heavyGreen};

class BPDGraphView : public MeasurementGraphView {
 public:
  explicit BPDGraphView(const foundation::Services& services) : MeasurementGraphView(services, kBPDChart) {}
  std::string_view className() const override { return "BPDGraphView"; }
};

class HeadCircumferenceGraphView : public MeasurementGraphView {
 public:
  explicit HeadCircumferenceGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, kHeadCircumferenceChart) {}
  std::string_view className() const override { return "HeadCircumferenceGraphView"; }
};

class AbdoCircumferenceGraphView : public MeasurementGraphView {
 public:
  explicit AbdoCircumferenceGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, kAbdoCircumferenceChart) {}
  std::string_view className() const override { return "AbdoCircumferenceGraphView"; }
};

class FemurLengthGraphView : public MeasurementGraphView {
 public:
  explicit FemurLengthGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, kFemurLengthChart) {}
  std::string_view className() const override { return "FemurLengthGraphView"; }
};

}  // namespace nascor::charts
