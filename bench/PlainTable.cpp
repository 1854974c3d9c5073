// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The table of `nascor-cli calc --columns efw_3_g,westerway_bpd_z,westerway_hc_z,westerway_ac_z,westerway_fl_z --fixed` by a
// program that does nothing else: it takes the columns id, ga_weeks, bpd_mm, hc_mm, ac_mm and fl_mm for granted, all measured,
// numbers without blanks, signs and exponents, and looks for no error.
//
//   plain-table library <TABLE.csv      numbers read and written by the standard library
//   plain-table digits <TABLE.csv       by hand: digits as a whole number, and a whole number as digits. A number within a
//                                       rounding of a tie may be printed up where C's "%.3f" goes down

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include "calc/Standards.h"

namespace {

using namespace nascor;

/// Numbers by the standard library.
struct Library {
  static const char* read(const char* at, const char* end, double& value) {
    return std::from_chars(at, end, value).ptr;
  }
  static char* write(char* at, double value, int decimals) {
    return std::to_chars(at, at + 32, value, std::chars_format::fixed, decimals).ptr;
  }
};

/// Numbers by hand.
struct Digits {
  static const char* read(const char* at, const char* end, double& value) {
    static constexpr std::array<double, 8> kUnits{1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};
    std::int64_t digits = 0;
    for (; at != end && *at >= '0' && *at <= '9'; ++at) digits = 10 * digits + (*at - '0');
    if (at == end || *at != '.') {
      value = static_cast<double>(digits);
      return at;
    }
    const char* point = at++;
    for (; at != end && *at >= '0' && *at <= '9'; ++at) digits = 10 * digits + (*at - '0');
    value = static_cast<double>(digits) / kUnits[static_cast<std::size_t>(at - point - 1)];
    return at;
  }
  static char* write(char* at, double value, int decimals) {
    if (std::signbit(value)) *at++ = '-';
    auto digits = static_cast<std::uint64_t>(std::fabs(value) * (decimals == 1 ? 10.0 : 1000.0) + 0.5);
    std::array<char, 24> buffer;
    char* first = buffer.data() + buffer.size();
    for (int place = 0; digits != 0 || place <= decimals; ++place, digits /= 10) {
      if (place == decimals) *--first = '.';
      *--first = static_cast<char>('0' + digits % 10);
    }
    const auto count = static_cast<std::size_t>(buffer.data() + buffer.size() - first);
    std::memcpy(at, first, count);
    return at + count;
  }
};

/// A whole week's means and deviations of the four lengths.
struct Week {
  std::array<double, 4> mean;
  std::array<double, 4> sd;
};

class Tables {
 public:
  Tables() {
    for (const calc::Measurement measurement : calc::kMeasurements) {
      calc::ReferenceTable table;
      calc::appendStandard(table, calc::kASUM, measurement);
      first_ = table.front().observation();
      weeks_.resize(table.size());
      for (std::size_t i = 0; i < table.size(); ++i) {
        weeks_[i].mean[static_cast<std::size_t>(measurement)] = table[i].mean();
        weeks_[i].sd[static_cast<std::size_t>(measurement)] = table[i].sd();
      }
    }
  }

  std::array<double, 4> zScores(double age, const std::array<double, 4>& lengths) const {
    const double weeks = std::clamp(age - first_, 0.0, static_cast<double>(weeks_.size() - 1));
    const std::size_t i = std::min(static_cast<std::size_t>(weeks), weeks_.size() - 2);
    const double part = weeks - static_cast<double>(i);
    std::array<double, 4> scores;
    for (std::size_t k = 0; k < scores.size(); ++k) {
      const double mean = weeks_[i].mean[k] + part * (weeks_[i + 1].mean[k] - weeks_[i].mean[k]);
      const double sd = weeks_[i].sd[k] + part * (weeks_[i + 1].sd[k] - weeks_[i].sd[k]);
      scores[k] = (lengths[k] - mean) / sd;
    }
    return scores;
  }

 private:
  double first_ = 0.0;
  std::vector<Week> weeks_;
};

double weight(const std::array<double, 4>& lengths) {
  const auto [bpd, hc, ac, fl] = lengths;
  return std::pow(10.0, 1.3596 - 0.00386 * (ac / 10.0) * (fl / 10.0) + 0.0064 * (hc / 10.0) +
                            0.00061 * (bpd / 10.0) * (ac / 10.0) + 0.0424 * (ac / 10.0) +
                            0.174 * (fl / 10.0));
}

template <class Numbers>
char* writeRow(char* out, std::string_view line, const Tables& tables) {
  const char* end = line.data() + line.size();
  const char* at = static_cast<const char*>(std::memchr(line.data(), ',', line.size())) + 1;
  double age = 0.0;
  std::array<double, 4> lengths{};
  at = Numbers::read(at, end, age) + 1;
  for (double& length : lengths) at = Numbers::read(at, end, length) + 1;
  out = Numbers::write(out, weight(lengths), 1);
  for (const double score : tables.zScores(age, lengths)) {
    *out++ = ',';
    out = Numbers::write(out, score, 3);
  }
  *out++ = '\n';
  return out;
}

template <class Numbers>
int run() {
  constexpr std::size_t kPiece = std::size_t{1} << 16;
  constexpr std::size_t kLongestRow = 256;
  const Tables tables;
  std::vector<char> input(2 * kPiece);
  std::vector<char> output(kPiece + kLongestRow);
  std::size_t held = 0;
  bool isHeader = true;
  std::fputs("efw_3_g,westerway_bpd_z,westerway_hc_z,westerway_ac_z,westerway_fl_z\n", stdout);
  std::fflush(stdout);
  char* out = output.data();
  const auto flush = [&] {
    const auto count = static_cast<std::size_t>(out - output.data());
    out = output.data();
    return ::write(STDOUT_FILENO, output.data(), count) == static_cast<ssize_t>(count);
  };
  for (ssize_t count = 0; (count = ::read(STDIN_FILENO, input.data() + held, kPiece)) > 0;) {
    const char* begin = input.data();
    const char* end = begin + held + count;
    while (const void* newline = std::memchr(begin, '\n', static_cast<std::size_t>(end - begin))) {
      const std::string_view line(begin, static_cast<std::size_t>(static_cast<const char*>(newline) - begin));
      begin += line.size() + 1;
      if (isHeader) {
        isHeader = false;
        continue;
      }
      out = writeRow<Numbers>(out, line, tables);
      if (out >= output.data() + kPiece && !flush()) return 1;
    }
    held = static_cast<std::size_t>(end - begin);
    if (held >= kPiece) return 1;
    std::memmove(input.data(), begin, held);
  }
  return flush() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view kind = argc == 2 ? argv[1] : "";
  if (kind == "library") return run<Library>();
  if (kind == "digits") return run<Digits>();
  std::fputs("usage: plain-table library|digits <TABLE.csv\n", stderr);
  return 2;
}
