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

// All eleven curves of each quantity, from the published coefficients in decimal arithmetic of 45 digits.
struct WholeCurves {
  Quantity quantity;
  double week;
  std::array<double, QuantilePopulation::kCentiles.size()> values;
};
constexpr WholeCurves kWholeCurves[] = {
    {Quantity::bpd,
     15.5,
     {26.460364730122286, 27.35035560321935, 28.008953909828403, 28.802753044888178, 30.234650374249483,
      31.595929131887964, 32.97349484835799, 34.12913503481549, 34.92502874008588, 35.79793192665686,
      36.63157650277508}},
    {Quantity::bpd,
     39.25,
     {84.5947031377423, 85.77323032762109, 87.10435729162285, 89.05660286559284, 92.04776358312903,
      94.29332427264701, 96.87043541670249, 98.93971395334137, 100.14203219363203, 101.08707618902824,
      102.39795112583107}},
    {Quantity::hc,
     15.5,
     {99.43589436282824, 102.47198389445963, 104.85399331423683, 107.65198641513624, 112.2168526401676,
      117.09365861842126, 121.36534489400604, 125.42040098010433, 127.7164579471463, 130.41820315888413,
      133.15806478857846}},
    {Quantity::hc,
     39.25,
     {309.9916121886994, 314.1561855073446, 317.39820248441515, 321.60314986823977, 330.20931732026247,
      338.0986975248864, 345.76257291868865, 352.9305444268843, 356.4339524925012, 360.1065193847547,
      366.32299699934043}},
    {Quantity::ac,
     15.5,
     {81.19060533028045, 83.4934123640192, 85.72442566911377, 88.13609596718011, 92.59227340924052,
      97.24901255384601, 101.9105467238144, 106.03721204197053, 108.76450784502055, 112.23906830110111,
      114.37545486637008}},
    {Quantity::ac,
     39.25,
     {302.91337888867133, 311.32532525204107, 318.7507090356915, 326.7008365116771, 339.8043741369392,
      353.0591534300044, 366.68201566973016, 380.5140135402433, 387.9092321788224, 395.1964896015721,
      406.8307003941446}},
    {Quantity::fl,
     15.5,
     {13.069593642111244, 13.85829215074648, 14.483908640508163, 15.157620179466853, 16.261938919168028,
      17.571418745768476, 18.75570016663828, 19.917435098466896, 20.5755960274194, 21.30146473203677,
      22.273539127136463}},
    {Quantity::fl,
     39.25,
     {65.2361289761492, 67.17267838606901, 67.8701867477223, 68.723034051482, 70.42212178022467,
      72.62255165862443, 74.78410852635152, 76.59608743192382, 78.1040285450764, 79.09451219367551,
      80.11884812102763}},
    {Quantity::efw,
     15.5,
     {95.3363591266976, 100.54159027905588, 104.23782985966706, 110.76011595929488, 118.70902031123693,
      128.4558348693526, 138.73599650810883, 148.16964586827476, 154.949561857864, 161.26195865304143,
      170.77703932951792}},
    {Quantity::efw,
     39.25,
     {2547.016607696794, 2652.6991879051, 2734.691101213537, 2950.650270766348, 3185.1527637639083,
      3457.2395421763754, 3721.950450293153, 3956.949825430242, 4122.014334949975, 4314.45821685276,
      4680.001069617693}},
};

TEST(ReferenceCurves, haveAllTheirCoefficients) {
  for (const WholeCurves& row : kWholeCurves) {
    const Population population = at("who-2017", row.quantity, row.week);
    for (std::size_t i = 0; i < row.values.size(); ++i) {
      EXPECT_NEAR(population.valueAtCentile(QuantilePopulation::kCentiles.at(i)).value(), row.values.at(i),
                  1e-12 * row.values.at(i))
          << nameOf(row.quantity) << " at " << row.week << ", centile "
          << QuantilePopulation::kCentiles.at(i);
    }
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
