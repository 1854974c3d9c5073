// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Centile.h"

#include <gtest/gtest.h>

#include <cmath>

#include "ExpectedValues.h"
#include "calc/LookUp.h"
#include "support/Bits.h"

namespace nascor::calc {
namespace {

using expected::kInfinity;
using expected::kNaN;
using tests::isExactly;

const ReferenceTable kTable{DatabaseRecord::initWithData(30.0, 60.0, 2.0),
                            DatabaseRecord::initWithData(35.0, 80.0, 4.0),
                            DatabaseRecord::initWithData(40.0, 90.0, 8.0)};

TEST(ZScore, countsStandardDeviationsAboveTheMean) {
  EXPECT_EQ(zScore(kTable, 88.0, 35.0), 2.0);
  EXPECT_EQ(zScore(kTable, 58.0, 30.0), -1.0);
  EXPECT_EQ(zScore(kTable, 70.0, 32.5), 0.0);
  // The program asks for it only where something is measured; the number itself knows nothing of that.
  EXPECT_EQ(zScore(kTable, 0.0, 30.0), -30.0);
  EXPECT_EQ(zScore(kTable, 98.0, 41.0), 1.0) << "as at the last week";
  EXPECT_EQ(zScore(kTable, 58.0, 12.0), -1.0) << "as at the first week";
  EXPECT_TRUE(isExactly(zScore(kTable, 80.0, kNaN), -1.25)) << "as at the last week";
}

TEST(ZScore, hasTheBitsOfTheLookUps) {
  ReferenceTable table;
  appendStandard(table, 0, Measurement::hc);
  const double age = 141.0 / 7.0;
  EXPECT_TRUE(isExactly(zScore(table, 181.3, age),
                        (181.3 - meanForGestation(table, age)) / sdForGestation(table, age)));
}

TEST(ZScore, isNotFiniteWithoutAnAgeOrATable) {
  EXPECT_TRUE(isExactly(zScore(kTable, 80.0, 0.0), kInfinity));
  EXPECT_TRUE(isExactly(zScore(kTable, -80.0, 0.0), -kInfinity));
  EXPECT_FALSE(std::isfinite(zScore(ReferenceTable{}, 80.0, 35.0)));
}

// The distribution by its power series, in decimal arithmetic of 120 digits.
struct CentileCase {
  double z;
  double centile;
};
constexpr CentileCase kCentiles[] = {
    {-8.0, 6.22096057427178395e-14},
    {-4.0, 3.16712418331199222e-03},
    {-2.5, 6.20966532577613473e-01},
    {-1.96, 2.49978951482204348},
    {-1.0, 1.58655253931457043e+01},
    {-0.1, 4.60172162722971052e+01},
    {0.0, 50.0},
    {0.25, 5.98706325682923719e+01},
    {0.5, 6.91462461274013123e+01},
    {1.0, 8.41344746068542975e+01},
    {1.96, 9.75002104851779592e+01},
    {2.0, 9.77249868051820840e+01},
    {3.0, 9.98650101968369910e+01},
    {6.0, 9.99999999013412406e+01},
    {8.0, 9.99999999999999432e+01},
};

TEST(Centile, isTheShareOfTheNormalDistributionBelow) {
  for (const CentileCase& row : kCentiles) EXPECT_NEAR(centileOfZ(row.z), row.centile, 1e-9) << row.z;
  EXPECT_TRUE(isExactly(centileOfZ(0.0), 50.0));
}

TEST(Centile, keepsItsDigitsInTheTails) {
  for (const CentileCase& row : kCentiles) EXPECT_NEAR(centileOfZ(row.z) / row.centile, 1.0, 1e-12) << row.z;
  EXPECT_GT(centileOfZ(-37.0), 0.0);
}

TEST(Centile, reachesItsEndsAtTheInfinities) {
  EXPECT_TRUE(isExactly(centileOfZ(-kInfinity), 0.0));
  EXPECT_TRUE(isExactly(centileOfZ(kInfinity), 100.0));
  EXPECT_TRUE(isExactly(centileOfZ(kNaN), kNaN));
}

// The inverse error function, in arithmetic of 60 digits.
constexpr CentileCase kInverse[] = {
    {-7.6506280929352688, 1e-12},  {-4.2648907939228246, 0.001}, {-3.011453758499784, 0.13},
    {-1.8807936081512509, 3.0},    {-1.2815515655446005, 10.0},  {-0.67448975019608174, 25.0},
    {-0.012533469508069263, 49.5}, {0.2533471031357998, 60.0},   {0.67448975019608174, 75.0},
    {1.2815515655446005, 90.0},    {1.8807936081512509, 97.0},   {3.0902323061678135, 99.9},
};

TEST(ZOfCentile, isTheInverseOfTheCentile) {
  for (const CentileCase& row : kInverse) EXPECT_NEAR(zOfCentile(row.centile), row.z, 1e-13) << row.centile;
  EXPECT_NEAR(zOfCentile(99.999999), 5.6120012441747887, 1e-7) << "so near to 100 a double has few digits";
  EXPECT_TRUE(isExactly(zOfCentile(50.0), 0.0));
  EXPECT_TRUE(std::isfinite(zOfCentile(5e-324)));
}

TEST(ZOfCentile, isAsFarAboveTheMeanAsTheOppositeIsBelow) {
  for (const double centile : {0.5, 3.0, 10.0, 25.0, 49.0})
    EXPECT_TRUE(isExactly(zOfCentile(100.0 - centile), -zOfCentile(centile))) << centile;
}

}  // namespace
}  // namespace nascor::calc
