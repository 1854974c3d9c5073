// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "model/MeasurementsRecord.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace nascor::model {
namespace {

TEST(AMeasurementsRecord, beginsWithNothingMeasured) {
  const MeasurementsRecord record;
  EXPECT_EQ(record.bpd(), 0.0);
  EXPECT_EQ(record.hc(), 0.0);
  EXPECT_EQ(record.ac(), 0.0);
  EXPECT_EQ(record.fl(), 0.0);
}

TEST(AMeasurementsRecord, keepsEachLengthApart) {
  MeasurementsRecord record;
  record.setBPD(90.0);
  record.setHC(320.0);
  record.setAC(300.0);
  record.setFL(70.0);
  EXPECT_EQ(record.bpd(), 90.0);
  EXPECT_EQ(record.hc(), 320.0);
  EXPECT_EQ(record.ac(), 300.0);
  EXPECT_EQ(record.fl(), 70.0);
  EXPECT_EQ(record.biometry().bpd, 90.0);
  EXPECT_EQ(record.biometry().hc, 320.0);
  EXPECT_EQ(record.biometry().ac, 300.0);
  EXPECT_EQ(record.biometry().fl, 70.0);
}

TEST(AMeasurementsRecord, takesAnyLengthUnchanged) {
  MeasurementsRecord record;
  record.setBPD(-1.5);
  record.setHC(1e300);
  EXPECT_EQ(record.bpd(), -1.5);
  EXPECT_EQ(record.hc(), 1e300);
}

class TheWeightOfARecord : public testing::Test {
 protected:
  const MeasurementsRecord record_{{.bpd = 90.0, .hc = 320.0, .ac = 300.0, .fl = 70.0}};
};

TEST_F(TheWeightOfARecord, isThatOfTheFormulaAsked) {
  constexpr double kGrams[] = {2534.0, 2540.4, 2585.2, 2561.5, 2501.8, 2579.5, 2604.3, 2572.6};
  for (std::int64_t formula = 0; formula < 8; ++formula) {
    EXPECT_NEAR(record_.estimatedFetalWeight(formula), kGrams[formula], 0.05) << "formula " << formula;
  }
}

TEST_F(TheWeightOfARecord, isGivenByEachFormulaByName) {
  EXPECT_NEAR(record_.estimatedFetalWeightHadlock1(), 2534.0, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightHadlock2(), 2540.4, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightHadlock3(), 2585.2, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightHadlock4(), 2561.5, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightCampbell(), 2501.8, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightCombs(), 2579.5, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightOtt(), 2604.3, 0.05);
  EXPECT_NEAR(record_.estimatedFetalWeightShepard(), 2572.6, 0.05);
}

TEST_F(TheWeightOfARecord, isZeroForAnUnknownFormula) {
  for (const std::int64_t formula :
       {std::int64_t{-1}, std::int64_t{8}, std::int64_t{1} << 32, std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(record_.estimatedFetalWeight(formula), 0.0) << formula;
  }
}

TEST(TheWeightOfAnUnmeasuredFetus, isZeroByEveryFormula) {
  for (std::int64_t formula = 0; formula < 8; ++formula) {
    EXPECT_EQ(MeasurementsRecord().estimatedFetalWeight(formula), 0.0) << "formula " << formula;
  }
}

}  // namespace
}  // namespace nascor::model
