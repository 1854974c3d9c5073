// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "ExpectedValues.h"
#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "calc/Standards.h"
#include "support/Bits.h"
#include "support/FixedOffsetCalendar.h"

// The same measurements give the same numbers on every machine and with every compiler. What would change
// last bits: fused multiply-add, a product or exp10 in the place of pow, reciprocals in the place of
// quotients, and constants that are multiplied with each other first. Each case below comes out otherwise
// with one of these.

namespace nascor::calc {
namespace {

using expected::kNaN;
using tests::isExactly;

double westerwayBPD(int week) { return growthStandard(0)->row(Measurement::bpd, week).mean(); }

TEST(TheCalculations, giveTheSameLastBitsEverywhere) {
  struct Case {
    const char* elsewhereWith;
    std::function<double()> calculation;
    double value;
    double elsewhere;
  };
  const Case kCases[] = {
      {"fused multiply-add, in a table", [] { return westerwayBPD(20); }, 47.414000000000016, 47.414},
      {"fused multiply-add, in a table", [] { return westerwayBPD(39); }, 94.93490000000003, 94.9349},
      {"fused multiply-add, in a weight", [] { return estimatedFetalWeightCampbell({.ac = 300.0}); },
       2501.7737992898988, 2501.7737992899006},
      {"fused multiply-add, in an absurd weight",
       [] {
         return estimatedFetalWeightHadlock4({1e300, 1e300, 1e300, 1e300});
       },
       kNaN, 0.0},
      {"exp10 for pow",
       [] {
         return estimatedFetalWeightHadlock3({90.0, 320.0, 300.0, 70.0});
       },
       2585.2348395621884, 2585.234839562188},
      {"products for powers", [] { return menstrualAgeFromCRLHadlock(30.14); }, 9.870594112029037,
       9.870594112029043},
      {"reciprocals for quotients",
       [] { return estimatedFetalWeightCombs({.bpd = 0.0, .hc = 174.0, .ac = 154.4, .fl = 32.1}); },
       355.97739777408, 355.97739777408015},
      {"factors of a term exchanged",
       [] { return estimatedFetalWeightShepard({.bpd = 60.4, .hc = 0.0, .ac = 194.2, .fl = 0.0}); },
       686.1082906598483, 686.1082906598482},
      {"a quotient formed before its product",
       [] { return estimatedFetalWeightOtt({.bpd = 0.0, .hc = 254.8, .ac = 234.4, .fl = 52.8}); },
       1199.5931914809612, 1199.5931914809614},
      {"constants folded",
       [] {
         const tests::FixedOffsetCalendar utc;
         return eddFromAgeAtScan({0.0}, menstrualAgeFromCRLHadlock(45.0), utc).secondsSince2001;
       },
       17341157.19190867, 17341157.191908672},
  };
  for (const Case& row : kCases) {
    EXPECT_TRUE(isExactly(row.calculation(), row.value)) << row.elsewhereWith;
    EXPECT_FALSE(isExactly(row.elsewhere, row.value)) << "the case shows nothing";
  }
}

TEST(TheCalculations, findTheLastWeekButOneAtItsOwnMean) {
  // A fused multiply-add makes this mean 362.17400000000004: the measurement then lies above it and is dated
  // to the last week, a whole week later.
  ReferenceTable table;
  appendStandard(table, 0, Measurement::ac);
  EXPECT_TRUE(isExactly(table[table.size() - 2].mean(), 362.1740000000001));
  EXPECT_EQ(gestationForMeasurement(table, 362.1740000000001), 40.0);
}

TEST(TheCalculations, takePowersFromTheLibraryAndNotFromTheCompiler) {
  // Through pointers that the compiler cannot see through, so that it has to call the library here.
  double (*volatile power)(double, double) = &std::pow;
  double (*volatile exponential)(double) = &std::exp;

  for (int hundredths = 200; hundredths <= 12000; ++hundredths) {
    const double crl = hundredths / 100.0;
    const double c = crl / 10.0;
    const double age = exponential(1.684969 + 0.315646 * c - 0.049306 * power(c, 2.0) +
                                   0.004057 * power(c, 3.0) - 0.000120456 * power(c, 4.0));
    ASSERT_TRUE(isExactly(menstrualAgeFromCRLHadlock(crl), age)) << crl;
    if (crl <= 87.0) {
      const double byWesterway = 5.2876 + 0.1584 * crl - 0.0007 * power(crl, 2.0);
      ASSERT_TRUE(isExactly(menstrualAgeFromCRLWesterway(crl), byWesterway)) << crl;
    }
  }
  for (int tenths = 1; tenths <= 5000; ++tenths) {
    const double ac = tenths / 10.0;
    const double byCampbell = exponential(-4.564 + 0.0282 * ac - 3.31e-05 * power(ac, 2.0)) * 1000.0;
    ASSERT_TRUE(isExactly(estimatedFetalWeightCampbell({.ac = ac}), byCampbell)) << ac;
    const double fl = 70.0;
    const double byCombs = 0.23718 * power(ac / 10.0, 2.0) * (fl / 10.0) + 0.03312 * power(ac / 10.0, 3.0);
    ASSERT_TRUE(isExactly(estimatedFetalWeightCombs({.bpd = 0.0, .hc = ac, .ac = ac, .fl = fl}), byCombs))
        << ac;
    const double byHadlock2 = power(10.0, 1.304 + 0.005281 * ac + 0.01938 * fl - 4e-05 * ac * fl);
    ASSERT_TRUE(
        isExactly(estimatedFetalWeightHadlock2({.bpd = 0.0, .hc = 0.0, .ac = ac, .fl = fl}), byHadlock2))
        << ac;
  }
}

}  // namespace
}  // namespace nascor::calc
