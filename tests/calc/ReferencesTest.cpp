// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/References.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <vector>

#include "ExpectedValues.h"
#include "calc/Centile.h"
#include "calc/LookUp.h"
#include "calc/Standards.h"
#include "support/Bits.h"

namespace nascor::calc {
namespace {

using expected::kInfinity;
using expected::kNaN;
using testing::ElementsAre;
using tests::isExactly;

const Reference& named(std::string_view name) {
  const Reference* reference = referenceNamed(name);
  if (reference == nullptr) throw std::invalid_argument(std::string(name));
  return *reference;
}

/// The population at an age that the reference reaches.
Population at(std::string_view name, Quantity quantity, double week) {
  return populationAt(named(name), quantity, week).value();
}

TEST(References, beginWithTheGrowthStandardsInTheirPlaces) {
  std::vector<std::string_view> names;
  for (const Reference& reference : references()) names.push_back(reference.name);
  EXPECT_THAT(names, ElementsAre("westerway", "hadlock", "schluter", "cfef", "intergrowth-2014",
                                 "intergrowth-2020", "hadlock-1991", "who-2017"));
  for (std::size_t i = 0; i < growthStandards().size(); ++i) {
    EXPECT_EQ(references()[i].name, growthStandards()[i].name);
    EXPECT_EQ(references()[i].label, growthStandards()[i].label);
  }
  EXPECT_EQ(referenceNamed("fmf-2018"), nullptr);
  EXPECT_EQ(referenceNamed(""), nullptr);
  for (const Reference& reference : references()) EXPECT_NE(reference.assumes, "") << reference.name;
}

struct Reach {
  const char* name;
  int first;
  int last;
  const char* quantities;
  const char* form;
};
constexpr Reach kReaches[] = {
    {"westerway", 11, 41, "bpd hc ac fl", "table"},
    {"hadlock", 12, 40, "bpd hc ac fl", "table"},
    {"schluter", 11, 41, "bpd hc ac fl", "table"},
    {"cfef", 16, 40, "bpd hc ac fl", "table"},
    {"intergrowth-2014", 14, 40, "bpd hc ac fl", "mean-sd"},
    {"intergrowth-2020", 18, 41, "efw", "lms"},
    {"hadlock-1991", 10, 40, "efw", "mean-sd"},
    {"who-2017", 14, 40, "bpd hc ac fl efw", "quantiles"},
};

TEST(References, reachFromTheirFirstWeekToTheirLastAndNoFurther) {
  for (const Reach& row : kReaches) {
    const Reference& reference = named(row.name);
    EXPECT_EQ(reference.firstWeek, row.first) << row.name;
    EXPECT_EQ(reference.lastWeek, row.last) << row.name;
    EXPECT_EQ(nameOf(reference.form), row.form);
    std::string quantities;
    for (const Quantity quantity : kQuantities) {
      const bool tells = covers(reference, quantity);
      if (tells) quantities += (quantities.empty() ? "" : " ") + std::string(nameOf(quantity));
      for (const double week : {double(row.first), row.first + 0.5, double(row.last)})
        EXPECT_EQ(populationAt(reference, quantity, week).has_value(), tells) << row.name << week;
      for (const double week : {row.first - 0.001, row.last + 0.001, std::nextafter(row.last, 50.0), 0.0,
                                -20.0, kNaN, kInfinity, -kInfinity})
        EXPECT_FALSE(populationAt(reference, quantity, week).has_value()) << row.name << week;
    }
    EXPECT_EQ(quantities, row.quantities) << row.name;
  }
}

TEST(References, haveTheBitsOfTheLookUpsInTheGrowthStandards) {
  for (std::int64_t standard = 0; standard < 4; ++standard) {
    const Reference& reference = references()[static_cast<std::size_t>(standard)];
    for (const Measurement measurement : kMeasurements) {
      ReferenceTable table;
      appendStandard(table, standard, measurement);
      for (double week = reference.firstWeek; week <= reference.lastWeek; week += 1.0 / 7.0) {
        const auto population = populationAt(reference, quantityOf(measurement), week);
        ASSERT_TRUE(population.has_value());
        const double mean = meanForGestation(table, week);
        const double sd = sdForGestation(table, week);
        EXPECT_TRUE(isExactly(population->mean().value(), mean));
        EXPECT_TRUE(isExactly(population->median(), mean));
        EXPECT_TRUE(isExactly(population->sd().value(), sd));
        EXPECT_TRUE(isExactly(population->z(55.5).value(), (55.5 - mean) / sd));
        EXPECT_TRUE(isExactly(population->centile(55.5).value().percent, centileOfZ((55.5 - mean) / sd)));
        EXPECT_TRUE(isExactly(population->valueAtZ(-1.3).value(), mean + -1.3 * sd));
        EXPECT_TRUE(isExactly(population->valueAtCentile(10.0).value(), mean + zOfCentile(10.0) * sd));
      }
    }
  }
}

// The published equations in decimal arithmetic of 40 digits, apart from the program.
struct NormalCase {
  const char* reference;
  Quantity quantity;
  double week;
  double value;
  double mean;
  double sd;
  double z;
  double centile;
};
constexpr NormalCase kNormalCases[] = {
    {"intergrowth-2014", Quantity::bpd, 14.0, 31.0, 29.61406424, 1.743334592399847, 0.79499125758305673,
     78.669070619210489},
    {"intergrowth-2014", Quantity::bpd, 20.5, 47.5, 50.07598092625, 2.3449106218095745, -1.0985411990935961,
     13.598411890946992},
    {"intergrowth-2014", Quantity::bpd, 40.0, 97.0, 94.91662, 3.9194164270786625, 0.53155362252559816,
     70.248240348700879},
    {"intergrowth-2014", Quantity::hc, 14.0, 90.0, 97.87722227822427, 5.581746739656089, -1.4112468095801877,
     7.908592610888767},
    {"intergrowth-2014", Quantity::hc, 27.25, 245.0, 253.11717991277486, 8.8220152249471037,
     -0.92010495400426248, 17.875895789475716},
    {"intergrowth-2014", Quantity::hc, 40.0, 350.0, 333.94830029043525, 12.923860125562041,
     1.2420205382613337, 89.288550780188534},
    {"intergrowth-2014", Quantity::ac, 16.0, 103.25, 103.20950096, 5.4156782342204866, 0.0074781104505240769,
     50.298330663072013},
    {"intergrowth-2014", Quantity::ac, 33.125, 250.0, 285.06088564331055, 14.409530992332449,
     -2.4331732699674284, 0.74835683177692303},
    {"intergrowth-2014", Quantity::ac, 40.0, 417.0, 349.80434, 22.417150126123731, 2.9975112635612776,
     99.863903099948649},
    {"intergrowth-2014", Quantity::fl, 14.0, 8.5, 13.1090624, 1.5170069693730334, -3.0382605308035518,
     0.11897406934695773},
    {"intergrowth-2014", Quantity::fl, 22.75, 38.5, 38.710746025, 1.8828333038183392, -0.11193026200068391,
     45.543935088019028},
    {"intergrowth-2014", Quantity::fl, 39.875, 72.0, 71.97182950625, 3.1945260216443901,
     0.0088183641514052119, 50.351797270890714},
    {"hadlock-1991", Quantity::efw, 10.0, 30.0, 34.605062970989422, 4.5920918562502963, -1.0028246636054265,
     15.797273333991825},
    {"hadlock-1991", Quantity::efw, 25.5, 900.0, 847.35098933306823, 112.44347628449815, 0.46822645836493177,
     68.018867343493634},
    {"hadlock-1991", Quantity::efw, 40.0, 3000.0, 3619.1700117160571, 480.26386055472078, -1.2892288230909049,
     9.8659273694979314},
};

TEST(References, thatAreNormalAgreeWithTheirEquations) {
  for (const NormalCase& row : kNormalCases) {
    SCOPED_TRACE(std::string(row.reference) + " " + std::to_string(row.week));
    const Population population = at(row.reference, row.quantity, row.week);
    EXPECT_NEAR(population.mean().value(), row.mean, 1e-10);
    EXPECT_NEAR(population.median(), row.mean, 1e-10);
    EXPECT_NEAR(population.sd().value(), row.sd, 1e-10);
    EXPECT_NEAR(population.z(row.value).value(), row.z, 1e-10);
    EXPECT_NEAR(population.centile(row.value).value().percent, row.centile, 1e-9);
    EXPECT_EQ(population.centile(row.value).value().side, Centile::Side::within);
    EXPECT_NEAR(population.valueAtZ(row.z).value(), row.value, 1e-10);
    EXPECT_NEAR(population.valueAtCentile(row.centile).value(), row.value, 1e-8);
  }
}

struct SkewedCase {
  double week;
  double grams;
  double median;
  double z;
  double centile;
};
constexpr SkewedCase kSkewedCases[] = {
    {18.0, 216.0, 216.18608117234401, -0.0094159730533405712, 49.624362574501755},
    {20.5, 300.0, 348.59160271915047, -1.7319040105060462, 4.1645327288520612},
    {27.75, 800.0, 1083.0680059534704, -3.0481345067215338, 0.11513341696570198},
    {33.5, 3000.0, 2087.5778106225959, 3.1744551846125573, 99.924940964759089},
    {41.0, 2798.0, 3588.4009971981945, -1.8800805869240957, 3.0048547896784749},
};

TEST(References, thatAreSkewedAgreeWithTheirEquations) {
  for (const SkewedCase& row : kSkewedCases) {
    SCOPED_TRACE(row.week);
    const Population population = at("intergrowth-2020", Quantity::efw, row.week);
    EXPECT_NEAR(population.median(), row.median, 1e-9);
    EXPECT_NEAR(population.z(row.grams).value(), row.z, 1e-9);
    EXPECT_NEAR(population.centile(row.grams).value().percent, row.centile, 1e-9);
    EXPECT_NEAR(population.valueAtZ(row.z).value(), row.grams, 1e-8);
    EXPECT_FALSE(population.mean().has_value());
    EXPECT_FALSE(population.sd().has_value());
  }
}

TEST(ASkewedPopulation, isSmoothWhereItsPowerVanishes) {
  const auto population = [](double lambda) {
    return Population(SkewedPopulation{.lambda = lambda, .mu = 7.0, .sigma = 0.02});
  };
  // ln(ln(1500) / 7) / 0.02 in arithmetic of 40 digits.
  EXPECT_NEAR(population(0.0).z(1500.0).value(), 2.1886786562158422, 1e-12);
  EXPECT_NEAR(population(1e-12).z(1500.0).value(), 2.1886786562158422, 1e-11);
  EXPECT_NEAR(population(-1e-12).z(1500.0).value(), 2.1886786562158422, 1e-11);
  EXPECT_NEAR(population(0.0).valueAtZ(2.1886786562158422).value(), 1500.0, 1e-9);
  EXPECT_NEAR(population(1e-12).valueAtZ(2.1886786562158422).value(), 1500.0, 1e-7);
  // INTERGROWTH-21st (2020) passes there on its way.
  const double week = 29.066148556203687;
  EXPECT_NEAR(at("intergrowth-2020", Quantity::efw, week).z(1500.0).value(),
              at("intergrowth-2020", Quantity::efw, week + 1e-9).z(1500.0).value(), 1e-7);
}

TEST(ASkewedPopulation, saysNothingWhereItEnds) {
  const Population late = at("intergrowth-2020", Quantity::efw, 41.0);
  EXPECT_FALSE(late.z(0.5).has_value()) << "a logarithm below 0 has no power";
  EXPECT_FALSE(late.centile(0.5).has_value());
  EXPECT_FALSE(late.valueAtZ(-1000.0).has_value());
}

// Published check values of the charts, to their one decimal.
struct CheckValue {
  Quantity quantity;
  double week;
  double value;
  double centile;
};
constexpr CheckValue kPublishedByWHO[] = {
    {Quantity::ac, 14.0, 90.0, 91.5},    {Quantity::ac, 15.0, 90.0, 39.9},
    {Quantity::ac, 16.0, 90.0, 4.0},     {Quantity::bpd, 35.0, 92.0, 91.6},
    {Quantity::bpd, 36.0, 92.0, 80.1},   {Quantity::bpd, 37.0, 92.0, 64.9},
    {Quantity::efw, 20.0, 340.0, 59.8},  {Quantity::efw, 14.0, 100.0, 80.4},
    {Quantity::efw, 40.0, 3600.0, 48.5},
};

TEST(ReferenceCurves, giveThePublishedCheckValues) {
  for (const CheckValue& row : kPublishedByWHO) {
    EXPECT_NEAR(at("who-2017", row.quantity, row.week).centile(row.value).value().percent, row.centile, 0.05)
        << nameOf(row.quantity) << row.week;
  }
}

struct CurveCase {
  Quantity quantity;
  double week;
  double value;
  double median;
  double centile;
  double first;
  double last;
};
constexpr CurveCase kCurveCases[] = {
    {Quantity::bpd, 20.5, 48.0, 48.328983826469963, 45.366565488338204, 41.420229667873513,
     54.74612139012407},
    {Quantity::hc, 30.0, 280.0, 280.93393083648474, 46.576948830030285, 254.47216145380205,
     305.38006557716053},
    {Quantity::ac, 36.25, 300.0, 319.73578682800026, 14.270385217754742, 276.94050519290721,
     366.55083866824669},
    {Quantity::fl, 17.0, 24.0, 22.480011214860874, 79.048881922788102, 17.579076834956442,
     27.276463223722605},
    {Quantity::efw, 28.0, 1500.0, 1188.866493559319, 97.899704548420829, 864.74806276114143,
     1552.1912078403573},
};

TEST(ReferenceCurves, agreeWithTheirPolynomials) {
  for (const CurveCase& row : kCurveCases) {
    SCOPED_TRACE(nameOf(row.quantity));
    const Population population = at("who-2017", row.quantity, row.week);
    EXPECT_NEAR(population.median(), row.median, 1e-10);
    EXPECT_NEAR(population.centile(row.value).value().percent, row.centile, 1e-9);
    EXPECT_NEAR(population.valueAtCentile(row.centile).value(), row.value, 1e-9);
    EXPECT_NEAR(population.valueAtCentile(1.0).value(), row.first, 1e-10);
    EXPECT_NEAR(population.valueAtCentile(99.0).value(), row.last, 1e-9);
    EXPECT_FALSE(population.mean().has_value());
    EXPECT_FALSE(population.z(row.value).has_value());
    EXPECT_FALSE(population.valueAtZ(0.0).has_value());
  }
}

TEST(ReferenceCurves, sayNoMoreThanTheSideBeyondTheOutermost) {
  const Population population = at("who-2017", Quantity::hc, 30.0);
  const double first = population.valueAtCentile(1.0).value();
  const double last = population.valueAtCentile(99.0).value();
  const auto sideAndPercent = [&](double value) {
    const Centile centile = population.centile(value).value();
    return std::pair(centile.side, centile.percent);
  };
  EXPECT_EQ(sideAndPercent(std::nextafter(first, 0.0)), std::pair(Centile::Side::below, 1.0));
  EXPECT_EQ(sideAndPercent(first), std::pair(Centile::Side::within, 1.0));
  EXPECT_EQ(sideAndPercent(last), std::pair(Centile::Side::within, 99.0));
  EXPECT_EQ(sideAndPercent(std::nextafter(last, 1000.0)), std::pair(Centile::Side::above, 99.0));
  EXPECT_FALSE(population.valueAtCentile(0.999).has_value());
  EXPECT_FALSE(population.valueAtCentile(99.001).has_value());
  EXPECT_FALSE(population.valueAtCentile(kNaN).has_value());
}

TEST(ReferenceCurves, areExactOnEachCurve) {
  const Population population = at("who-2017", Quantity::fl, 25.0);
  for (const double percent : QuantilePopulation::kCentiles) {
    const double value = population.valueAtCentile(percent).value();
    EXPECT_TRUE(isExactly(population.centile(value).value().percent, percent));
  }
}

struct AgeCase {
  const char* reference;
  Quantity quantity;
  double value;
  double weeks;
};
constexpr AgeCase kAges[] = {
    {"intergrowth-2014", Quantity::ac, 250.0, 29.624587969195934},
    {"hadlock-1991", Quantity::efw, 1500.0, 29.678809246494875},
    {"intergrowth-2020", Quantity::efw, 1500.0, 30.376781307505142},
    {"who-2017", Quantity::efw, 1500.0, 29.868718325511024},
    {"who-2017", Quantity::fl, 60.0, 31.662915623171817},
};

TEST(WeekOfMedian, isTheAgeOfWhichAValueIsTheMedian) {
  for (const AgeCase& row : kAges)
    EXPECT_NEAR(weekOfMedian(named(row.reference), row.quantity, row.value).value(), row.weeks, 1e-11);
}

TEST(WeekOfMedian, isThatOfTheLookUpInAGrowthStandard) {
  for (std::int64_t standard = 0; standard < 4; ++standard) {
    ReferenceTable table;
    appendStandard(table, standard, Measurement::ac);
    const Reference& reference = references()[static_cast<std::size_t>(standard)];
    for (double value = table.front().mean(); value <= table[table.size() - 2].mean(); value += 3.7) {
      EXPECT_TRUE(isExactly(weekOfMedian(reference, Quantity::ac, value).value(),
                            gestationForMeasurement(table, value)));
    }
    // Where the look-up answers with the last week, this tells the age.
    const double beforeLast = table[table.size() - 2].mean();
    const double middle = (beforeLast + table.back().mean()) / 2.0;
    EXPECT_NEAR(weekOfMedian(reference, Quantity::ac, middle).value(), reference.lastWeek - 0.5, 1e-12);
  }
}

TEST(WeekOfMedian, isMissingBeyondTheMediansOfTheWeeks) {
  for (const Reference& reference : references()) {
    for (const Quantity quantity : kQuantities) {
      if (!covers(reference, quantity)) {
        EXPECT_FALSE(weekOfMedian(reference, quantity, 100.0).has_value());
        continue;
      }
      SCOPED_TRACE(std::string(reference.name) + " " + std::string(nameOf(quantity)));
      const double first = populationAt(reference, quantity, reference.firstWeek)->median();
      const double last = populationAt(reference, quantity, reference.lastWeek)->median();
      EXPECT_NEAR(weekOfMedian(reference, quantity, first).value(), reference.firstWeek, 1e-12);
      EXPECT_FALSE(weekOfMedian(reference, quantity, first * (1.0 - 1e-9)).has_value());
      EXPECT_FALSE(weekOfMedian(reference, quantity, last * 1.001).has_value());
      EXPECT_FALSE(weekOfMedian(reference, quantity, kNaN).has_value());
      EXPECT_FALSE(weekOfMedian(reference, quantity, -1.0).has_value());
    }
  }
}

TEST(WeekOfMedian, isTheYoungestWhereTheMedianTurns) {
  // The femur of WHO (2017) is longest at 39.879 weeks, 72.755856 mm, and 72.750708 mm at 40.
  const Reference& who = named("who-2017");
  const double atForty = populationAt(who, Quantity::fl, 40.0)->median();
  EXPECT_NEAR(atForty, 72.750707507581715, 1e-9);
  const double weeks = weekOfMedian(who, Quantity::fl, atForty).value();
  EXPECT_LT(weeks, 39.8);
  EXPECT_NEAR(populationAt(who, Quantity::fl, weeks)->median(), atForty, 1e-9);
  EXPECT_FALSE(weekOfMedian(who, Quantity::fl, 72.7559).has_value());
}

}  // namespace
}  // namespace nascor::calc
