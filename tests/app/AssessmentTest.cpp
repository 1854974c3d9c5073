// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What is said beside lengths, from plain numbers.
#include "app/Assessment.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/Standards.h"
#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using calc::Measurement;

class AnAssessment : public testing::Test {
 protected:
  AnAssessment() {
    for (const Measurement measurement : calc::kMeasurements) {
      const auto place = static_cast<std::size_t>(measurement);
      calc::appendStandard(tables_.at(place), calc::kCFEF, measurement);
      lengths.tables.at(place) = &tables_.at(place);
    }
    lengths.age = 16.0;
  }
  void type(Measurement measurement, double typed) {
    lengths.typed.*calc::memberFor(measurement) = typed;
    lengths.acceptable.*calc::memberFor(measurement) = typed;
  }
  Assessment::Length& said(Measurement measurement) {
    assessment.showLengths(lengths, platform.services().localizer);
    return assessment.length(measurement);
  }

  tests::TestApplication platform;
  LengthsOnShow lengths;
  Assessment assessment;

 private:
  std::array<calc::ReferenceTable, calc::kMeasurements.size()> tables_;
};

TEST_F(AnAssessment, placesALengthByTheStandard) {
  // CFEF has a BPD of 34.53 mm at 16 weeks, with a standard deviation of 2.275 mm.
  type(Measurement::bpd, 34.53 + 2.275);
  EXPECT_EQ(said(Measurement::bpd).z.text(), "+1.00");
  EXPECT_EQ(said(Measurement::bpd).centile.text(), "84.1");
  EXPECT_EQ(said(Measurement::hc).z.text(), "-") << "was not measured";
  lengths.age = 0.0;
  EXPECT_EQ(said(Measurement::bpd).z.text(), "-") << "the age is unknown";
}

TEST_F(AnAssessment, judgesALengthOnceItIsLeft) {
  type(Measurement::bpd, 34.53 + 4.1 * 2.275);
  lengths.beingTyped = Measurement::bpd;
  EXPECT_EQ(said(Measurement::bpd).remark.text(), "");
  lengths.beingTyped.reset();
  EXPECT_EQ(said(Measurement::bpd).remark.text(), "More than 4 SD above the growth standard.");
}

TEST_F(AnAssessment, neitherPlacesNorWeighsWhatTheFieldWouldRefuse) {
  lengths.weightFormula = 4;  // Campbell (AC)
  type(Measurement::ac, 300.0);
  said(Measurement::ac);
  // exp(-4.564 + 0.282 AC - 0.00331 AC^2) kg, AC in cm: 2501.8 g.
  EXPECT_EQ(assessment.weight.text(), "2502 g");
  lengths.acceptable.ac = std::nan("");
  EXPECT_EQ(said(Measurement::ac).z.text(), "-");
  EXPECT_EQ(assessment.weight.text(), "-");
}

TEST_F(AnAssessment, tellsAnAgeOutsideTheStandard) {
  type(Measurement::bpd, 30.0);
  lengths.age = 15.0;
  said(Measurement::bpd);
  EXPECT_EQ(assessment.ageRemark.text(), "The growth standard begins at 16 weeks, which count.");
  lengths.age = 45.5;
  said(Measurement::bpd);
  EXPECT_EQ(assessment.ageRemark.text(),
            "The age is above 45 weeks. The growth standard ends at 40 weeks, which count.");
}

TEST_F(AnAssessment, namesALengthThatTheEndOfATableDates) {
  calc::Biometry held;
  held.bpd = 20.0;
  held.fl = 40.0;
  assessment.showDatingRemarks(held, lengths, platform.services().localizer);
  EXPECT_EQ(assessment.length(Measurement::bpd).datingRemark.text(), "beyond the table");
  EXPECT_EQ(assessment.length(Measurement::fl).datingRemark.text(), "");
}

TEST_F(AnAssessment, tellsListenersOfNewTextsAlone) {
  type(Measurement::bpd, 40.0);
  int changes = 0;
  const auto subscription = said(Measurement::bpd).z.onChange.subscribe([&] { ++changes; });
  said(Measurement::bpd);
  EXPECT_EQ(changes, 0);
  type(Measurement::bpd, 41.0);
  said(Measurement::bpd);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace nascor::app
