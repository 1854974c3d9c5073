// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Each equation that people read is worked out here, as a text, and compared with what the program answers.
#include "calc/Equations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <charconv>
#include <cmath>
#include <map>
#include <stdexcept>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/LookUp.h"
#include "calc/Standards.h"

namespace nascor::calc {
namespace {

using Names = std::map<std::string, double, std::less<>>;

/// Works out a text of arithmetic.
class Arithmetic {
 public:
  Arithmetic(std::string_view text, const Names& names) : rest_(text), names_(names) {}
  double value() {
    const double result = sum();
    skipBlanks();
    if (!rest_.empty()) throw std::runtime_error("cannot be read: " + std::string(rest_));
    return result;
  }

 private:
  void skipBlanks() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }
  bool take(char sign) {
    skipBlanks();
    if (!rest_.starts_with(sign)) return false;
    rest_.remove_prefix(1);
    return true;
  }
  double sum() {
    double result = take('-') ? -product() : product();
    for (;;) {
      if (take('+')) {
        result += product();
      } else if (take('-')) {
        result -= product();
      } else {
        return result;
      }
    }
  }
  double product() {
    double result = power();
    for (;;) {
      if (take('/')) {
        result /= power();
      } else if (skipBlanks(); !rest_.empty() && (rest_[0] == '(' || std::isalnum(rest_[0]) != 0)) {
        result *= power();
      } else {
        return result;
      }
    }
  }
  double power() {
    const double base = factor();
    return take('^') ? std::pow(base, power()) : base;
  }
  double bracket() {
    const double result = sum();
    if (!take(')')) throw std::runtime_error("a bracket is open");
    return result;
  }
  double factor() {
    if (take('(')) return bracket();
    if (rest_.empty()) throw std::runtime_error("ends too early");
    if (std::isdigit(rest_[0]) != 0) {
      double number = 0.0;
      const auto read = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
      rest_.remove_prefix(static_cast<std::size_t>(read.ptr - rest_.data()));
      return number;
    }
    std::string name;
    while (!rest_.empty() && std::isalpha(rest_[0]) != 0) {
      name += rest_[0];
      rest_.remove_prefix(1);
    }
    if (name == "exp" && take('(')) return std::exp(bracket());
    if (name == "ln" && take('(')) return std::log(bracket());
    if (name == "sqrt" && take('(')) return std::sqrt(bracket());
    if (!names_.contains(name)) throw std::runtime_error("no such name: " + name);
    return names_.find(name)->second;
  }

  std::string_view rest_;
  const Names& names_;
};

double workedOut(std::string_view text, const Names& names) { return Arithmetic(text, names).value(); }

Names atWeek(double week) { return {{"w", week}, {"d", week * 7.0}, {"g", week / 10.0}}; }

void expectEqual(double text, double program, const std::string& what) {
  EXPECT_NEAR(text / program, 1.0, 1e-12) << what;
}

TEST(TheArithmeticOfThisTest, isTheUsualOne) {
  const Names names{{"AC", 200.0}, {"w", 3.0}};
  EXPECT_EQ(workedOut("2 + 3 w^2", names), 29.0);
  EXPECT_EQ(workedOut("-2 (AC/10) (1 + 1) - 1", names), -81.0);
  EXPECT_EQ(workedOut("12 / 3 w", names), 12.0);
  EXPECT_EQ(workedOut("exp(0) + sqrt(AC/2) ln(1)^2", names), 1.0);
  EXPECT_THROW(workedOut("2 +", names), std::runtime_error);
  EXPECT_THROW(workedOut("2 HC", names), std::runtime_error);
}

TEST(TheEquations, ofWeightGiveTheWeightsOfTheProgram) {
  for (const Biometry& lengths : {Biometry{.bpd = 47.4, .hc = 174.0, .ac = 154.4, .fl = 32.1},
                                  Biometry{.bpd = 90.2, .hc = 325.3, .ac = 332.1, .fl = 71.1}}) {
    const Names names{{"BPD", lengths.bpd}, {"HC", lengths.hc}, {"AC", lengths.ac}, {"FL", lengths.fl}};
    for (std::size_t i = 0; i < weightFormulas().size(); ++i) {
      const auto equations = equationsOf({.kind = Method::Kind::weightFormula, .place = i});
      ASSERT_EQ(equations.size(), 1U);
      expectEqual(workedOut(equations[0].text, names), weightFormulas()[i].weight(lengths),
                  std::string(weightFormulas()[i].longLabel));
    }
  }
}

TEST(TheEquations, ofTheCrownRumpLengthGiveTheAgesOfTheProgram) {
  for (std::size_t i = 0; i < crlFormulas().size(); ++i) {
    const auto equations = equationsOf({.kind = Method::Kind::crlFormula, .place = i});
    ASSERT_EQ(equations.size(), 1U);
    for (const double crl : {9.5, 45.0, 78.0}) {
      expectEqual(workedOut(equations[0].text, {{"CRL", crl}}), crlFormulas()[i].menstrualAge(crl),
                  std::string(crlFormulas()[i].label));
    }
  }
}

TEST(TheEquations, ofAMeanAndADeviationGiveThoseOfTheProgram) {
  for (const std::string_view name :
       {"westerway", "hadlock", "schluter", "intergrowth-2014", "hadlock-1991"}) {
    const Reference& reference = *referenceNamed(name);
    const auto place = static_cast<std::size_t>(&reference - references().data());
    for (const Quantity quantity : reference.quantities) {
      const auto equations =
          equationsOf({.kind = Method::Kind::reference, .place = place, .quantity = quantity});
      ASSERT_EQ(equations.size(), 2U) << name;
      for (int week = reference.firstWeek; week <= reference.lastWeek; ++week) {
        Names names = atWeek(week);
        const Population population = *populationAt(reference, quantity, week);
        const std::string what = std::string(name) + " " + equations[0].gives + " " + std::to_string(week);
        names["mean"] = workedOut(equations[0].text, names);
        expectEqual(names["mean"], *population.mean(), what);
        expectEqual(workedOut(equations[1].text, names), *population.sd(), what);
      }
    }
  }
}

TEST(TheEquations, ofASkewedPopulationGiveItsWeights) {
  const Reference& reference = *referenceNamed("intergrowth-2020");
  const auto equations = equationsOf({.kind = Method::Kind::reference, .place = 5});
  ASSERT_EQ(equations.size(), 4U);
  for (const double week : {18.0, 25.5, 33.0, 41.0}) {
    Names names = atWeek(week);
    for (std::size_t i = 0; i < 3; ++i) names[equations[i].gives] = workedOut(equations[i].text, names);
    for (const double z : {-2.0, 0.5, 1.5}) {
      names["z"] = z;
      expectEqual(workedOut(equations[3].text, names),
                  *populationAt(reference, Quantity::efw, week)->valueAtZ(z), std::to_string(week));
    }
  }
}

TEST(TheEquations, ofCurvesGiveTheCurvesOfTheProgram) {
  const Reference& reference = *referenceNamed("who-2017");
  for (const Quantity quantity : kQuantities) {
    const auto equations = equationsOf({.kind = Method::Kind::reference, .place = 7, .quantity = quantity});
    ASSERT_EQ(equations.size(), QuantilePopulation::kCentiles.size());
    for (std::size_t i = 0; i < equations.size(); ++i) {
      for (const double week : {14.0, 27.3, 40.0}) {
        expectEqual(
            workedOut(equations[i].text, atWeek(week)),
            *populationAt(reference, quantity, week)->valueAtCentile(QuantilePopulation::kCentiles.at(i)),
            equations[i].gives);
      }
    }
  }
}

TEST(TheEquations, areMissingForNothingButAPrintedTable) {
  for (std::size_t place = 0; place < references().size(); ++place) {
    for (const Quantity quantity : kQuantities) {
      const Method method{.kind = Method::Kind::reference, .place = place, .quantity = quantity};
      const bool isCovered = covers(references()[place], quantity);
      EXPECT_EQ(!equationsOf(method).empty() || !printedRowsOf(method).empty(), isCovered)
          << labelOf(method) << " " << nameOf(quantity);
    }
  }
  EXPECT_EQ(equationsOf({.kind = Method::Kind::reference, .place = 1}).size(), 8U);
  EXPECT_EQ(equationsOf({.kind = Method::Kind::quotient}).size(), 3U);
}

TEST(ThePrintedRows, areThoseOfTheTable) {
  const auto rows =
      printedRowsOf({.kind = Method::Kind::reference, .place = kCFEF, .quantity = Quantity::bpd});
  ASSERT_EQ(rows.size(), 25U);
  EXPECT_EQ(rows.front().week, 16);
  EXPECT_EQ(rows.front().mean, 34.53);
  EXPECT_EQ(rows.back().sd, 3.43);
  EXPECT_THAT(printedRowsOf({.kind = Method::Kind::reference, .place = 0, .quantity = Quantity::bpd}),
              testing::IsEmpty());
  EXPECT_THAT(printedRowsOf({.kind = Method::Kind::reference, .place = kCFEF}), testing::IsEmpty())
      << "of no length";
}

}  // namespace
}  // namespace nascor::calc
