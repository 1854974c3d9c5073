#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

"""Prints ComputedExamples.cpp: worked examples, worked out apart from the program.

    python3 src/selftest/computed_examples.py [CSV] > /tmp/examples && mv /tmp/examples src/selftest/ComputedExamples.cpp

The formulas and tables are those of tests/calc/expected_values.py, written from the published expressions. The
references stand here, in arithmetic of 40 digits by mpmath (package python3-mpmath). The coefficients of WHO (2017) are read
from the CSV that its publication came with; without it the examples of WHO (2017) stay as they are.
"""

import csv
import datetime
import os
import struct
import sys

from mpmath import erfinv, exp, findroot, log, mp, mpf, ncdf, sqrt

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "tests", "calc"))
import expected_values as published  # noqa: E402

mp.dps = 40
N = mpf
QUANTITIES = ["bpd", "hc", "ac", "fl", "efw"]
COMPUTED = "worked out apart from the program, in decimal arithmetic"
rows = []


def number(value):
    return repr(float(value))


def add(group, question, which, quantity, given, expected, tolerance=None, source="kComputed"):
    expected = float(expected)
    if tolerance is None:
        tolerance = 1e-9 * max(1.0, abs(expected))
    given = [float(each) for each in given] + [0.0] * (4 - len(given))
    braces = "{" + ", ".join(number(each) for each in given) + "}"
    rows.append(f'    {{"{group}", Question::{question}, {which}, {quantity}, {braces}, {number(expected)}, '
                f"{number(tolerance)}, {source}}},")


def weights():
    named = {name: lengths for name, *lengths in published.WEIGHT_INPUTS}
    wanted = ["week12", "week16", "week20", "week24", "week28", "week32", "week36", "week40", "atTerm",
              "upperBoundsOfEntry"]
    for name in wanted:
        for formula in range(8):
            add("weights", "weight", formula, 0, named[name], published.weight(formula, *named[name]))
    # Without a length that a formula needs there is no weight.
    for formula in range(8):
        add("weights", "weight", formula, 0, (90.0, 320.0, 0.0, 70.0), 0.0)


def crl():
    for which, (formula, lowest, highest) in enumerate(published.CRL):
        for length in (10.0, 20.7, 33.3, 45.0, 56.1, 67.8, 75.2, 79.0, lowest, highest):
            add("crl", "crlAge", which, 0, [length], formula(length))
        for length in (lowest - 0.01, highest + 0.01):
            add("crl", "crlAge", which, 0, [length], 0.0)


def standards():
    for which, (curve, first, last) in enumerate(published.STANDARDS):
        for week in (first, 16, 20, 24, 28, 32, 36, last):
            for quantity, (mean, sd) in enumerate(curve(float(week))):
                add("standards", "rowMean", which, quantity, [week], mean)
                add("standards", "rowSD", which, quantity, [week], sd)


def look_ups():
    for which, quantity, week in [(0, 0, 5.0), (0, 0, 20.5), (0, 1, 29.3), (0, 2, 253 / 7), (0, 3, 13.7), (0, 0, 44.0),
                                  (1, 0, 22.2), (1, 1, 33.3), (1, 2, 39.9), (1, 3, 12.1), (1, 0, 281 / 7),
                                  (2, 0, 124 / 7), (2, 1, 40.6), (2, 2, 28.8), (2, 3, 35.5)]:
        table = published.table(which, quantity)
        add("look-ups", "lookUpMean", which, quantity, [week], published.at_gestation(table, week, 1))
        add("look-ups", "lookUpSD", which, quantity, [week], published.at_gestation(table, week, 2))
    for which, quantity, value in [(0, 0, 1.0), (0, 0, 25.3), (0, 0, 60.1), (0, 0, 92.9), (0, 0, 150.0), (0, 1, 100.0),
                                   (0, 2, 222.2), (0, 3, 61.7), (1, 0, 55.5), (1, 1, 201.3), (1, 2, 300.0),
                                   (1, 3, 70.4), (2, 0, 33.3), (2, 1, 250.0), (2, 2, 111.1), (2, 3, 45.6)]:
        add("look-ups", "lookUpGestation", which, quantity, [value],
            published.gestation_for(published.table(which, quantity), value))
    for which, quantity, value, age, planned in [(0, 0, 82.4, 32.0, 40.0), (0, 2, 251.7, 30.0, 41.0),
                                                 (0, 3, 60.3, 33.5, 37.0), (1, 1, 330.9, 38.0, 41.0),
                                                 (1, 2, 349.9, 36.4, 39.5), (2, 2, 266.6, 31.0, 40.0),
                                                 (0, 0, 0.0, 30.0, 40.0)]:
        table = published.table(which, quantity)
        expected = published.projected(table, value, age, planned) if value else published.at_gestation(table, planned, 1)
        add("look-ups", "projection", which, quantity, [value, age, planned], expected)


def seconds(year, month, day):
    return (datetime.date(year, month, day) - datetime.date(2001, 1, 1)).days * 86400.0


def dating():
    edd = datetime.date(2027, 4, 10)
    for days in (0, 1, 7, 83, 140, 200, 279, 280, 281, -1, -10):
        exam = edd - datetime.timedelta(days=days)
        add("dating", "age", 0, 0, [seconds(exam.year, exam.month, exam.day), seconds(2027, 4, 10)],
            mpf(280 - days) / 7)
    # Half a day counts as a day.
    add("dating", "age", 0, 0, [seconds(2027, 4, 10) - 43200.0, seconds(2027, 4, 10)], mpf(279) / 7)
    for gestation, weeks, days in [(20.5, 20, 3), (12.99, 12, 6), (40.0, 40, 0), (-0.5, 0, -3), (36.25, 36, 1)]:
        add("dating", "weeksOfAge", 0, 0, [gestation], weeks)
        add("dating", "daysOfAge", 0, 0, [gestation], days)
    for cycle, luteal, days in [(28, 14, 280), (35, 14, 287), (28, 12, 282), (21, 14, 273)]:
        for period in (datetime.date(2026, 7, 4), datetime.date(2027, 12, 31), datetime.date(2024, 2, 29)):
            due = period + datetime.timedelta(days=days)
            add("dating", "eddFromPeriod", 0, 0, [seconds(period.year, period.month, period.day), cycle, luteal],
                seconds(due.year, due.month, due.day), 1e-6)
    scan = seconds(2026, 9, 15)
    for age in (6.0, 11.5, 12.0, 20.25, 40.0):
        left = mpf(7) * (40 - mpf(age)) * 86400
        add("dating", "eddFromAge", 0, 0, [scan, age], scan + left, 1e-6)
        add("dating", "eddFromLengths", 0, 0, [scan, age], scan + left + 86400, 1e-6)
    for gestation, standard, days in [(39.0, 0, -7), (40.0, 0, 0), (41.0, 0, 7), (42.0, 0, 7), (41.0, 3, 0), (38.5, 3, -10.5)]:
        add("dating", "plannedDays", 0, 0, [gestation, standard], days)


def single(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


def archive():
    fields = [seconds(2027, 4, 10), 2, 5, 2, 39.5, 1, 3, 2]
    for which, expected in enumerate(fields):
        add("archive", "documentField", which, 0, [], expected, 0.0, "kDocument")
    lengths = {(0, 0): (47.4, 174.1, 154.25, 32.1), (0, 1): (46.9, 170.0, 149.7, 0.0),
               (1, 0): (60.3, 217.2, 194.2, 43.2), (1, 1): (59.8, 214.6, 188.8, 42.6)}
    for exam, day in enumerate([(2026, 11, 21), (2026, 12, 19)]):
        add("archive", "documentField", 8, 0, [exam], seconds(*day), 0.0, "kDocument")
    for (exam, fetus), values in lengths.items():
        for place, value in enumerate(values):
            add("archive", "documentField", 9 + place, 0, [exam, fetus], single(value), 0.0, "kDocument")
    add("archive", "documentBytes", 0, 0, [], 0, 0.0, "kDocument")


def percent(z):
    return 100 * ncdf(z)


def z_of(p):
    return sqrt(2) * erfinv(2 * mpf(p) / 100 - 1)


def between(curve, week):
    below = int(week)
    lower, upper = curve(float(below)), curve(float(below + 1))
    share = mpf(week) - below
    return [tuple(N(a) + share * (N(b) - N(a)) for a, b in zip(one, two)) for one, two in zip(lower, upper)]


CFEF = {16: [(34.53, 2.275), (120.86, 7.625), (106.4, 7.6), (19.95, 2.115)],
        17: [(38.12, 2.375), (134.49, 7.95), (118.0, 8.0), (23.12, 2.205)],
        29: [(73.5, 3.295), (263.0, 12.28), (244.0, 14.65), (54.94, 2.89)],
        30: [(75.8, 3.36), (270.84, 12.58), (253.6, 15.05), (57.13, 2.895)],
        39: [(92.1, 3.475), (321.86, 15.405), (332.4, 19.9), (72.48, 3.18)],
        40: [(93.45, 3.43), (324.0, 16.0), (339.0, 20.5), (73.79, 3.19)]}


def standards_as_references():
    curves = [curve for curve, _, _ in published.STANDARDS] + [lambda week: CFEF[int(week)]]
    for which, name in enumerate(["westerway", "hadlock", "schluter", "cfef"]):
        for week in (16.25, 29.5, 39.75):
            for quantity, (mean, sd) in enumerate(between(curves[which], week)):
                value = float(mean) + (1.5 - quantity) * float(sd)
                z = (mpf(value) - mean) / sd
                add(name, "median", which, quantity, [week], mean)
                add(name, "z", which, quantity, [week, value], z)
                add(name, "centile", which, quantity, [week, value], percent(z))
                add(name, "valueAtZ", which, quantity, [week, -1.25], mean - mpf("1.25") * sd)
                add(name, "valueAtCentile", which, quantity, [week, 10], mean + z_of(10) * sd)


def intergrowth2014(quantity, w):
    w = mpf(w)
    ln = log(w)
    if quantity == 0:
        return (N("5.60878") + N("0.158369") * w**2 - N("0.00256379") * w**3,
                exp(N("0.101242") + N("0.00150557") * w**3 - N("0.000771535") * w**3 * ln + N("0.0000999638") * w**3 * ln**2))
    if quantity == 1:
        return (N("-28.2849") + N("1.69267") * w**2 - N("0.397485") * w**2 * ln,
                N("1.98735") + N("0.0136772") * w**3 - N("0.00726264") * w**3 * ln + N("0.000976253") * w**3 * ln**2)
    if quantity == 2:
        return (N("-81.3243") + N("11.6772") * w - N("0.000561865") * w**3,
                N("-4.36302") + N("0.121445") * w**2 - N("0.0130256") * w**3 + N("0.00282143") * w**3 * ln)
    return (N("-39.9616") + N("4.32298") * w - N("0.0380156") * w**2,
            exp(N("0.605843") - N("42.0014") / w**2 + N("0.00000917972") * w**3))


def hadlock1991(_, w):
    w = mpf(w)
    mean = exp(N("0.578") + N("0.332") * w - N("0.00354") * w**2)
    return mean, mean * N("0.1327")


def normal_references():
    for name, which, quantities, curve, weeks in [
            ("intergrowth-2014", 4, range(4), intergrowth2014, (14, 22.75, 33.125, 40)),
            ("hadlock-1991", 6, [4], hadlock1991, (10, 17.5, 25.25, 34.875, 40))]:
        for quantity in quantities:
            for week in weeks:
                mean, sd = curve(quantity, week)
                value = float(mean) + 0.75 * float(sd)
                z = (mpf(value) - mean) / sd
                add(name, "median", which, quantity, [week], mean)
                add(name, "z", which, quantity, [week, value], z)
                add(name, "centile", which, quantity, [week, value], percent(z))
            value = float(curve(quantity, 26.5)[0])
            week = findroot(lambda w: curve(quantity, w)[0] - value, 26)
            add(name, "weekOfMedian", which, quantity, [value], week)


def intergrowth2020():
    def parameters(w):
        w = mpf(w)
        g = w / 10
        return (N("9.43643") + N("9.41579") / g**2 - N("83.54220") / g**2 * log(g),
                N("-2.42272") + N("1.86478") * sqrt(w) - N("1.93299e-5") * w**3,
                N("0.0193557") + N("0.0310716") / g**2 - N("0.0657587") / g**2 * log(g))

    for week in (18, 20.5, 27.75, 33.5, 41):
        skew, mu, sigma = parameters(week)
        add("intergrowth-2020", "median", 5, 4, [week], exp(mu))
        for share in (0.75, 1.1):
            value = round(float(exp(mu)) * share)
            z = ((log(mpf(value)) / mu)**skew - 1) / (sigma * skew)
            add("intergrowth-2020", "z", 5, 4, [week, value], z)
            add("intergrowth-2020", "centile", 5, 4, [week, value], percent(z))
        for z in (-2, 1.5):
            add("intergrowth-2020", "valueAtZ", 5, 4, [week, z], exp(mu * (1 + mpf(z) * sigma * skew)**(1 / skew)))
    add("intergrowth-2020", "weekOfMedian", 5, 4, [1500], findroot(lambda w: parameters(w)[1] - log(mpf(1500)), 30))


def who2017(path):
    centiles = [1, 2.5, 5, 10, 25, 50, 75, 90, 95, 97.5, 99]
    curves = {}
    with open(path, newline="") as file:
        for row in csv.DictReader(file):
            curves.setdefault(row["fetalDimension"].lower(), []).append([mpf(row[f"b{i}"]) for i in range(5)])

    def values(quantity, week):
        return [exp(sum(b * mpf(week)**i for i, b in enumerate(curve))) for curve in curves[quantity]]

    for place, quantity in enumerate(QUANTITIES):
        for week in (14, 22.5, 31.25, 40):
            at = values(quantity, week)
            add("who-2017", "median", 7, place, [week], at[5])
            add("who-2017", "valueAtCentile", 7, place, [week, 99], at[10])
            add("who-2017", "valueAtCentile", 7, place, [week, 4], at[1] + (at[2] - at[1]) * mpf("1.5") / mpf("2.5"))
            value = float(at[3]) * 0.4 + float(at[4]) * 0.6
            add("who-2017", "centile", 7, place, [week, value], 10 + (mpf(value) - at[3]) / (at[4] - at[3]) * 15)


def main():
    weights()
    crl()
    standards()
    look_ups()
    dating()
    archive()
    standards_as_references()
    normal_references()
    intergrowth2020()
    if len(sys.argv) > 1:
        who2017(sys.argv[1])
    else:
        with open(os.path.join(HERE, "ComputedExamples.cpp")) as file:
            rows.extend(line.rstrip("\n") for line in file if line.startswith('    {"who-2017",'))
    print('#include "foundation/Localizer.h"\n#include "selftest/Examples.h"\n\nnamespace nascor::selftest {\n\n'
          'using foundation::translatable;\n\nnamespace {\n')
    print("// Worked out by computed_examples.py, which see; to change this file, change and run that.\n")
    print("// clang-format off\n")
    print(f'constexpr std::string_view kComputed = translatable("References", "{COMPUTED}");')
    print('constexpr std::string_view kDocument = "what was typed into the document";\n')
    print(f"constexpr std::array<Example, {len(rows)}> kExamples{{{{")
    print("\n".join(rows))
    print("}};\n\n// clang-format on\n\n}  // namespace\n")
    print("std::span<const Example> computedExamples() { return kExamples; }\n\n}  // namespace nascor::selftest")


if __name__ == "__main__":
    main()
