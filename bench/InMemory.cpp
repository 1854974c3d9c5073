// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// A weight and four z-scores for each of a million fetuses, from memory to memory, beside one power of ten for each and the
// bytes alone.
//
//   bench-memory ROUNDS
//
// Both run in each round, by turns; the figures are medians of the processor time.

#include <time.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "calc/FetalWeight.h"
#include "calc/GrowthTable.h"
#include "calc/Standards.h"

namespace {

using namespace nascor;

constexpr std::size_t kRows = 1'000'000;

struct Measured {
  double age;
  calc::Biometry lengths;
};
struct Computed {
  double weight;
  std::array<double, 4> z;
};

std::vector<Measured> measured() {
  std::vector<Measured> rows(kRows);
  for (std::size_t i = 0; i < kRows; ++i) {
    const double week = 12.0 + static_cast<double>(i * 7919 % 2800) / 100.0;
    rows[i] = {.age = week,
               .lengths = {.bpd = 2.4 * week, .hc = 8.6 * week, .ac = 8.4 * week, .fl = 1.8 * week}};
  }
  return rows;
}

void powers(const std::vector<Measured>& rows, std::vector<Computed>& out) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto& [bpd, hc, ac, fl] = rows[i].lengths;
    out[i] = {.weight = std::pow(10.0, 0.04 * rows[i].age), .z = {bpd, hc, ac, fl}};
  }
}

void weightsAndScores(const std::vector<Measured>& rows, std::vector<Computed>& out) {
  const calc::GrowthTable table(calc::kASUM);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    out[i] = {.weight = calc::estimatedFetalWeightHadlock4(rows[i].lengths),
              .z = table.zScores(rows[i].lengths, rows[i].age)};
  }
}

double processorSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double median(std::vector<double>& seconds) {
  std::ranges::sort(seconds);
  return seconds[seconds.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc == 2 ? std::atoi(argv[1]) : 0;
  if (rounds < 1) {
    std::fputs("usage: bench-memory ROUNDS\n", stderr);
    return 2;
  }
  const std::vector<Measured> rows = measured();
  std::vector<Computed> out(kRows);
  std::vector<double> least;
  std::vector<double> whole;
  double sum = 0.0;
  for (int round = 0; round < rounds; ++round) {
    const double start = processorSeconds();
    powers(rows, out);
    sum += out[static_cast<std::size_t>(round)].weight;
    const double middle = processorSeconds();
    weightsAndScores(rows, out);
    sum += out[static_cast<std::size_t>(round)].z[3];
    least.push_back(middle - start);
    whole.push_back(processorSeconds() - middle);
  }
  std::printf("one power %.1f ms, one weight and four z-scores %.1f ms, %.2f (%g)\n", 1e3 * median(least),
              1e3 * median(whole), median(whole) / median(least), sum);
  return 0;
}
