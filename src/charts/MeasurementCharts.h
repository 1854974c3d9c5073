// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

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
  /// The week of the examination on show, then the axis.
  void drawXAxis() override;
  /// At most 10 units high, at the top: the rest is for labels and titles.
  framework::Rect offeredGraphRect() const override;

 private:
  void drawCurrentWeek();
};

/// The strip below the weight chart: its title names the weight formula too.
class NoYaxisEFWGraphView final : public NoYaxisGraphView {
 public:
  using NoYaxisGraphView::NoYaxisGraphView;
  std::string_view className() const override { return "NoYaxisEFWGraphView"; }
  void setReferenceTitle(const std::string& title) override;
};

/// Everything in which the charts differ but what they plot.
struct ChartFacts {
  std::string_view yTitle;
  std::string_view unit;
  int decimals;  ///< of a value in words
  double maxY;   ///< in the unit; the range begins at 0
  double majorYInterval;
  framework::NamedColor mean;
  framework::NamedColor band;
  framework::NamedColor points;
};

inline constexpr ChartFacts kBPDFacts{.yTitle = foundation::translatable("", "Biparietal Diameter (mm)"),
                                      .unit = foundation::translatable("", "mm"),
                                      .decimals = 1,
                                      .maxY = 120.0,
                                      .majorYInterval = 20.0,
                                      .mean = framework::NamedColor::moderateOrange,
                                      .band = framework::NamedColor::faintOrange,
                                      .points = framework::NamedColor::orange};
inline constexpr ChartFacts kHeadCircumferenceFacts{.yTitle = foundation::translatable("", "Head Circ (mm)"),
                                                    .unit = foundation::translatable("", "mm"),
                                                    .decimals = 1,
                                                    .maxY = 400.0,
                                                    .majorYInterval = 50.0,
                                                    .mean = framework::NamedColor::moderateRed,
                                                    .band = framework::NamedColor::quiteFaintRed,
                                                    .points = framework::NamedColor::red};
inline constexpr ChartFacts kAbdoCircumferenceFacts{.yTitle = foundation::translatable("", "Abdo Circ (mm)"),
                                                    .unit = foundation::translatable("", "mm"),
                                                    .decimals = 1,
                                                    .maxY = 450.0,
                                                    .majorYInterval = 50.0,
                                                    .mean = framework::NamedColor::moderateBlue,
                                                    .band = framework::NamedColor::quiteFaintBlue,
                                                    .points = framework::NamedColor::blue};
/// One colour for curve and marks is deliberate, here and for the weight.
inline constexpr ChartFacts kFemurLengthFacts{.yTitle = foundation::translatable("", "Femur Length (mm)"),
                                              .unit = foundation::translatable("", "mm"),
                                              .decimals = 1,
                                              .maxY = 100.0,
                                              .majorYInterval = 20.0,
                                              .mean = framework::NamedColor::heavyGreen,
                                              .band = framework::NamedColor::faintGreen,
                                              .points = framework::NamedColor::heavyGreen};
inline constexpr ChartFacts kWeightFacts{.yTitle = foundation::translatable("", "Estimated Fetal Weight (g)"),
                                         .unit = foundation::translatable("", "g"),
                                         .decimals = 0,
                                         .maxY = 5500.0,
                                         .majorYInterval = 500.0,
                                         .mean = framework::NamedColor::heavyGray,
                                         .band = framework::NamedColor::faintGray,
                                         .points = framework::NamedColor::heavyGray};

/// A chart with the title, range and colours of its row of facts.
class TitledGraphView : public NoXaxisGraphView {
 public:
  TitledGraphView(const foundation::Services& services, const ChartFacts& facts)
      : NoXaxisGraphView(services), facts_(facts) {}
  void initWithFrame(const framework::Rect& frame) override;

  const ChartFacts& facts() const { return facts_; }

 protected:
  void setMeanColour() override { canvas().setColor(facts_.mean); }
  void setSDColour() override { canvas().setColor(facts_.band); }
  void setPointsColour() override { canvas().setColor(facts_.points); }
  std::string valueText(double value) const override;
  /// Null when there is no document, examination or fetus.
  const model::MeasurementsRecord* measurementsForFetus(std::uint64_t fetus, std::uint64_t exam) const;

 private:
  const ChartFacts& facts_;
};

/// A chart of one of the four lengths.
class MeasurementGraphView : public TitledGraphView {
 public:
  MeasurementGraphView(const foundation::Services& services, calc::Measurement measurement,
                       const ChartFacts& facts)
      : TitledGraphView(services, facts), measurement_(measurement) {}

  void appendStandard(std::int64_t standard) override;
  double valueForFetus(std::uint64_t fetus, std::uint64_t exam) const override;
  std::optional<calc::Quantity> quantity() const override { return calc::quantityOf(measurement_); }

 private:
  calc::Measurement measurement_;
};

class BPDGraphView : public MeasurementGraphView {
 public:
  explicit BPDGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, calc::Measurement::bpd, kBPDFacts) {}
  std::string_view className() const override { return "BPDGraphView"; }
};

class HeadCircumferenceGraphView : public MeasurementGraphView {
 public:
  explicit HeadCircumferenceGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, calc::Measurement::hc, kHeadCircumferenceFacts) {}
  std::string_view className() const override { return "HeadCircumferenceGraphView"; }
};

class AbdoCircumferenceGraphView : public MeasurementGraphView {
 public:
  explicit AbdoCircumferenceGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, calc::Measurement::ac, kAbdoCircumferenceFacts) {}
  std::string_view className() const override { return "AbdoCircumferenceGraphView"; }
};

class FemurLengthGraphView : public MeasurementGraphView {
 public:
  explicit FemurLengthGraphView(const foundation::Services& services)
      : MeasurementGraphView(services, calc::Measurement::fl, kFemurLengthFacts) {}
  std::string_view className() const override { return "FemurLengthGraphView"; }
};

}  // namespace nascor::charts
