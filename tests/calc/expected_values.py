#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Prints ExpectedValues.h: what the calculations must give, worked out apart from the program.

    python3 tests/calc/expected_values.py > tests/calc/ExpectedValues.h

The formulas stand here a second time, written from the published expressions. Sums, products and quotients
are IEEE doubles in the written order. Powers, exponentials and logarithms are worked out to 60 decimal digits
and rounded once; a case in which this machine's mathematics library rounds one of them otherwise is refused,
so that the numbers hold with every good library. Only the standard library is needed.
"""

import math
from decimal import Decimal, getcontext
from fractions import Fraction

getcontext().prec = 60
getcontext().Emax = 10**15
getcontext().Emin = -(10**15)


class NotSure(Exception):
    """The mathematics library rounds this case otherwise."""


def sure(exact, library):
    if exact != library and not (math.isnan(exact) and math.isnan(library)):
        raise NotSure(f"{exact!r} {library!r}")
    return exact


def from_library(function, *arguments):
    try:
        return function(*arguments)
    except OverflowError:
        return math.inf


def power(x, y):
    library = from_library(math.pow, x, y)
    if not (math.isfinite(x) and math.isfinite(y)) or x == 0.0:
        return library
    if x > 0.0 and abs(y * math.log10(x)) > 400.0:
        return math.inf if y * math.log10(x) > 0.0 else 0.0
    if y.is_integer() and abs(y) < 10.0:
        try:
            exact = float(Fraction(x) ** int(y))
        except OverflowError:
            exact = math.inf if x > 0.0 or y % 2.0 == 0.0 else -math.inf
        return sure(exact, library)
    return sure(float(Decimal(x) ** Decimal(y)), library)


def exponential(x):
    library = from_library(math.exp, x)
    if not math.isfinite(x) or abs(x) > 1000.0:
        return library
    return sure(float(Decimal(x).exp()), library)


def logarithm(x):
    return sure(float(Decimal(x).ln()), math.log(x))


# Weights: millimetres to grams.


def hadlock1(bpd, hc, ac, fl):
    return power(10.0, 1.326 - 3.26e-05 * ac * fl + 0.00107 * hc + 0.00438 * ac + 0.0158 * fl)


def hadlock2(bpd, hc, ac, fl):
    return power(10.0, 1.304 + 0.005281 * ac + 0.01938 * fl - 4e-05 * ac * fl)


def hadlock3(bpd, hc, ac, fl):
    return power(10.0, 1.335 - 3.4e-05 * ac * fl + 0.00316 * bpd + 0.00457 * ac + 0.01623 * fl)


def hadlock4(bpd, hc, ac, fl):
    b, h, a, f = bpd / 10.0, hc / 10.0, ac / 10.0, fl / 10.0
    return power(10.0, 1.3596 - 0.00386 * a * f + 0.0064 * h + 0.00061 * b * a + 0.0424 * a + 0.174 * f)


def campbell(bpd, hc, ac, fl):
    return exponential(-4.564 + 0.0282 * ac - 3.31e-05 * power(ac, 2.0)) * 1000.0


def combs(bpd, hc, ac, fl):
    return 0.23718 * power(ac / 10.0, 2.0) * (fl / 10.0) + 0.03312 * power(hc / 10.0, 3.0)


def ott(bpd, hc, ac, fl):
    h, a = hc / 10.0, ac / 10.0
    return power(10.0, -2.0661 + 0.04355 * h + 0.05394 * a - 0.0008582 * h * a + 1.2594 * fl / ac) * 1000.0


def shepard(bpd, hc, ac, fl):
    b, a = bpd / 10.0, ac / 10.0
    return power(10.0, -1.7492 + 0.166 * b + 0.046 * a - 0.002646 * a * b) * 1000.0


# The formula, the lengths it needs, and its factor for one standard deviation.
WEIGHTS = [
    (hadlock1, "hc ac fl", 0.074),
    (hadlock2, "ac fl", 0.077),
    (hadlock3, "bpd ac fl", 0.073),
    (hadlock4, "bpd hc ac fl", 0.073),
    (campbell, "ac", 0.0),
    (combs, "hc ac fl", 0.0),
    (ott, "hc ac fl", 0.0),
    (shepard, "bpd ac", 0.106),
]


def weight(index, bpd, hc, ac, fl):
    formula, needs, _ = WEIGHTS[index]
    lengths = {"bpd": bpd, "hc": hc, "ac": ac, "fl": fl}
    if any(lengths[name] == 0.0 for name in needs.split()):
        return 0.0
    return formula(bpd, hc, ac, fl)


# Menstrual age from the crown-rump length: millimetres to weeks.


def crl_hadlock(crl):
    c = crl / 10.0
    if not 0.2 <= c <= 12.0:
        return 0.0
    return exponential(
        1.684969
        + 0.315646 * c
        - 0.049306 * power(c, 2.0)
        + 0.004057 * power(c, 3.0)
        - 0.000120456 * power(c, 4.0)
    )


def crl_nelson(crl):
    return (51.0008 + 0.6 * crl) / 7.0 if 6.7 <= crl <= 82.4 else 0.0


def crl_robinson(crl):
    return (8.052 * math.sqrt(crl) + 23.72) / 7.0 if 7.0 <= crl <= 79.6 else 0.0


def crl_westerway(crl):
    return 5.2876 + 0.1584 * crl - 0.0007 * power(crl, 2.0) if 2.0 <= crl <= 87.0 else 0.0


CRL = [(crl_hadlock, 2.0, 120.0), (crl_nelson, 6.7, 82.4), (crl_robinson, 7.0, 79.6), (crl_westerway, 2.0, 87.0)]


# Growth standards: mean and standard deviation in millimetres at w weeks.


def westerway(w):
    grown = (w - 11.0) / 30.0
    w2, w3 = power(w, 2.0), power(w, 3.0)
    return [
        (-31.546 + 4.69 * w - 0.0371 * w2, 1.0 + 3.0 * grown),
        (-127.91 + 18.494 * w - 0.1699 * w2, 7.5 + 5.0 * grown),
        (-90.946 + 13.204 * w - 0.0469 * w2, 5.0 + 12.5 * grown),
        (-28.489 + 3.1263 * w + 0.0032 * w2 - 0.0004 * w3, 1.0 + 1.5 * grown),
    ]


def hadlock(w):
    w2, w3 = power(w, 2.0), power(w, 3.0)
    return [
        ((-3.08 + 0.41 * w - 6.1e-05 * w3) * 10.0, 3.0),
        ((-11.48 + 1.56 * w - 0.0002548 * w3) * 10.0, 10.0),
        ((-13.3 + 1.61 * w - 0.00998 * w2) * 10.0, 13.4),
        ((-3.91 + 0.427 * w - 0.0034 * w2) * 10.0, 3.0),
    ]


def schluter(w):
    d = w * 7.0
    d2, d3 = power(d, 2.0), power(d, 3.0)
    return [
        (6.48248 + 0.00299 * d2 - 6.71e-06 * d3, -2.1 + 0.37538 * math.sqrt(d)),
        (18.26782 + 0.01171 * d2 - 2.752e-05 * d3, 1.09786 + 0.04541 * d),
        (-16.73221 + 0.03507 * d2 - 0.00538 * logarithm(d) * d2, 3.81822 + 0.00023138 * d2),
        (-29.54744 + 0.46013 * d - 1.23e-06 * d3, 1.37593 + 2.696e-05 * d2),
    ]


STANDARDS = [(westerway, 11, 41), (hadlock, 12, 40), (schluter, 11, 41)]


# Look-ups and projection on a table of (week, mean, sd).


def table(standard, measurement):
    curve, first, last = STANDARDS[standard]
    return [(float(w), *curve(float(w))[measurement]) for w in range(first, last + 1)]


def gestation_for(rows, value):
    found = next((i for i in range(len(rows) - 1) if rows[i][1] >= value), len(rows) - 1)
    week, mean, _ = rows[found]
    if found in (0, len(rows) - 1) or mean == value:
        return week
    week0, mean0, _ = rows[found - 1]
    return week0 + (value - mean0) / (mean - mean0) * (week - week0)


def at_gestation(rows, gestation, column):
    found = next((i for i in range(len(rows)) if rows[i][0] >= gestation), len(rows) - 1)
    if found == 0 or gestation > rows[found][0]:
        return rows[found][column]
    week0, week = rows[found - 1][0], rows[found][0]
    value0, value = rows[found - 1][column], rows[found][column]
    return value0 + (gestation - week0) / (week - week0) * (value - value0)


def projected(rows, value, age, planned):
    z = (value - at_gestation(rows, age, 1)) / at_gestation(rows, age, 2)
    return at_gestation(rows, planned, 1) + z * at_gestation(rows, planned, 2)


# Printing.


def text(value):
    if math.isnan(value):
        return "kNaN"
    if math.isinf(value):
        return "kInfinity" if value > 0.0 else "-kInfinity"
    return repr(float(value))


def row(*parts):
    return "    {" + ", ".join(parts) + "},"


def braces(values):
    return "{" + ", ".join(text(value) for value in values) + "}"


INF, NAN = math.inf, math.nan

WEIGHT_INPUTS = [
    ("atTerm", 90.0, 320.0, 300.0, 70.0),
    ("week12", 19.6, 70.3, 55.7, 8.4),
    ("week16", 34.5, 121.0, 106.4, 20.1),
    ("week20", 47.4, 174.0, 154.4, 32.1),
    ("week24", 60.4, 217.2, 194.2, 43.2),
    ("week28", 71.1, 254.8, 234.4, 52.8),
    ("week32", 80.2, 285.3, 272.1, 61.1),
    ("week36", 87.6, 308.8, 307.4, 68.1),
    ("week40", 93.5, 324.3, 339.2, 73.8),
    # In these two the order of the factors shows, and how a cube is made.
    ("orderOfFactorsAtWeek31", 78.2, 272.8, 274.5, 61.3),
    ("orderOfFactorsAtWeek38", 91.7, 322.7, 326.4, 74.5),
    ("singlePrecision", 89.80000305175781, 318.70001220703125, 311.29998779296875, 68.69999694824219),
    ("upperBoundsOfEntry", 200.0, 500.0, 500.0, 200.0),
    ("tiny", 1e-300, 1e-300, 1e-300, 1e-300),
    ("smallestDouble", 5e-324, 5e-324, 5e-324, 5e-324),
    ("negative", -90.0, -320.0, -300.0, -70.0),
    ("oneNegative", 90.0, 320.0, -300.0, 70.0),
    ("huge", 1e300, 1e300, 1e300, 1e300),
    ("hugeFemur", 90.0, 320.0, 300.0, 1e300),
    ("hugeAbdomen", 90.0, 320.0, 1e300, 70.0),
    ("hugeHead", 90.0, 1e300, 300.0, 70.0),
    ("infiniteHead", INF, INF, 300.0, 70.0),
    ("notANumberHead", NAN, NAN, 300.0, 70.0),
    ("notANumberAbdomen", 90.0, 320.0, NAN, 70.0),
    ("notANumberFemur", 90.0, 320.0, 300.0, NAN),
]

CRL_INPUTS = [2.5, 5.0, 10.0, 12.3, 20.7, 30.14, 33.3, 45.0, 56.1, 67.8, 75.2, 79.0]


def crl_cases(formula, lowest, highest):
    below, above = math.nextafter(lowest, -INF), math.nextafter(highest, INF)
    within = [crl for crl in CRL_INPUTS if lowest < crl < highest]
    for crl in [-45.0, 0.0, lowest - 0.01, below, lowest, math.nextafter(lowest, INF), *within,
                math.nextafter(highest, 0.0), highest, above, highest + 0.1, 1e300, INF, NAN]:
        yield crl, formula(crl)


def main():
    print("""#pragma once

// What the calculations must give, worked out apart from the program by expected_values.py, which see; to
// change this file, change and run that. Each number is the shortest decimal text of one double.

// clang-format off

#include <array>
#include <limits>

#include "calc/Biometry.h"

namespace nascor::calc::expected {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct WeightCase {
  const char* name;
  Biometry measured;
  std::array<double, 8> grams;  // by identifier of the formula
};

inline constexpr WeightCase kWeights[] = {""")
    for name, *lengths in WEIGHT_INPUTS:
        grams = [weight(index, *lengths) for index in range(8)]
        print(f'    {{"{name}", {braces(lengths)},\n     {braces(grams[:4])[:-1]},\n      {braces(grams[4:])[1:]}}},')
    print("""};

struct CRLCase {
  int standard;
  double crl;
  double weeks;
};

inline constexpr CRLCase kCRLAges[] = {""")
    for index, (formula, lowest, highest) in enumerate(CRL):
        for crl, weeks in crl_cases(formula, lowest, highest):
            print(row(str(index), text(crl), text(weeks)))
    print("""};

struct StandardRow {
  int standard;
  double week;
  std::array<double, 8> meanAndSD;  // BPD, HC, AC, FL
};

inline constexpr StandardRow kStandardRows[] = {""")
    for index, (curve, first, last) in enumerate(STANDARDS):
        for week in range(first, last + 1):
            flat = [value for pair in curve(float(week)) for value in pair]
            print(f"    {{{index}, {float(week)}, {braces(flat[:4])[:-1]},\n     {braces(flat[4:])[1:]}}},")
    print("""};

struct WeightRow {
  int standard;
  double week;
  std::array<double, 8> grams;  // by identifier of the formula
  std::array<double, 8> sd;
};

inline constexpr WeightRow kWeightRows[] = {""")
    for index, (curve, first, last) in enumerate(STANDARDS):
        for week in (first, 20, 32, last):
            means = [mean for mean, _ in curve(float(week))]
            grams = [weight(formula, *means) for formula in range(8)]
            sds = [value * WEIGHTS[formula][2] for formula, value in enumerate(grams)]
            print(f"    {{{index}, {float(week)},\n     {braces(grams[:4])[:-1]},\n      {braces(grams[4:])[1:]},"
                  f"\n     {braces(sds)}}},")
    print("""};

struct LookUpCase {
  int standard;
  Measurement measurement;
  double value;
  double weeks;
};

inline constexpr LookUpCase kGestations[] = {""")
    measured = [
        (0, 0, 1.0), (0, 0, 25.3), (0, 0, 25.8), (0, 0, 38.1), (0, 0, 47.414), (0, 0, 60.1), (0, 0, 73.1),
        (0, 0, 92.9), (0, 0, 150.0),
        (0, 1, 100.0), (0, 1, 340.01), (0, 2, 222.2), (0, 3, 8.0), (0, 3, 61.7),
        (1, 0, 55.5), (1, 1, 201.3), (1, 2, 300.0), (1, 3, 58.4), (1, 3, 70.4),
        (2, 0, 33.3), (2, 1, 250.0), (2, 2, 111.1), (2, 3, 45.6),
    ]
    names = ["bpd", "hc", "ac", "fl"]
    for standard, measurement, value in measured:
        weeks = gestation_for(table(standard, measurement), value)
        print(row(str(standard), f"Measurement::{names[measurement]}", text(value), text(weeks)))
    print("""};

struct AtGestationCase {
  int standard;
  Measurement measurement;
  double gestation;
  double mean;
  double sd;
};

inline constexpr AtGestationCase kAtGestation[] = {""")
    for standard, measurement, gestation in [
        (0, 0, 5.0), (0, 0, 20.1), (0, 0, 20.5), (0, 0, 31.0 + 3.0 / 7.0), (0, 0, 40.9), (0, 0, 44.0),
        (0, 1, 29.3), (0, 2, 36.0 + 1.0 / 7.0), (0, 3, 13.7), (1, 0, 22.2), (1, 1, 33.3), (1, 2, 39.9),
        (1, 3, 12.1), (1, 0, 40.0 + 1.0 / 7.0), (2, 0, 17.0 + 5.0 / 7.0), (2, 1, 40.6), (2, 2, 28.8), (2, 3, 35.5),
    ]:
        rows = table(standard, measurement)
        print(row(str(standard), f"Measurement::{names[measurement]}", text(gestation),
                  text(at_gestation(rows, gestation, 1)), text(at_gestation(rows, gestation, 2))))
    print("""};

struct ProjectionCase {
  int standard;
  Measurement measurement;
  double value;
  double age;
  double planned;
  double projected;
};

inline constexpr ProjectionCase kProjections[] = {""")
    for standard, measurement, value, age, planned in [
        (0, 0, 82.4, 32.0, 40.0), (0, 1, 290.2, 31.0 + 2.0 / 7.0, 39.0), (0, 2, 251.7, 30.0, 41.0),
        (0, 3, 60.3, 33.5, 37.0), (1, 0, 85.1, 35.0 + 6.0 / 7.0, 40.0), (1, 1, 330.9, 38.0, 41.0),
        (1, 2, 349.9, 36.4, 39.5), (2, 2, 266.6, 31.0, 40.0), (2, 3, 71.2, 37.0 + 1.0 / 7.0, 39.0 + 2.0 / 7.0),
        (0, 0, -5.0, 30.0, 40.0),
    ]:
        result = projected(table(standard, measurement), value, age, planned)
        print(row(str(standard), f"Measurement::{names[measurement]}",
                  *(text(number) for number in (value, age, planned, result))))
    print("};\n\n}  // namespace nascor::calc::expected")


if __name__ == "__main__":
    main()
