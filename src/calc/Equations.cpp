// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Equations.h"

#include <array>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/Standards.h"
#include "foundation/NumberText.h"

namespace nascor::calc {
namespace {

using foundation::shortestText;

/// The mean and the standard deviation of a length.
struct Pair {
  std::string_view mean;
  std::string_view sd;
};
using OfLengths = std::array<Pair, kMeasurements.size()>;

// In the order of kMeasurements.
constexpr OfLengths kWesterway{{
    {"-31.546 + 4.69 w - 0.0371 w^2", "1 + 3 (w - 11) / 30"},
    {"-127.91 + 18.494 w - 0.1699 w^2", "7.5 + 5 (w - 11) / 30"},
    {"-90.946 + 13.204 w - 0.0469 w^2", "5 + 12.5 (w - 11) / 30"},
    {"-28.489 + 3.1263 w + 0.0032 w^2 - 0.0004 w^3", "1 + 1.5 (w - 11) / 30"},
}};
constexpr OfLengths kHadlock1984{{
    {"10 (-3.08 + 0.41 w - 0.000061 w^3)", "3"},
    {"10 (-11.48 + 1.56 w - 0.0002548 w^3)", "10"},
    {"10 (-13.3 + 1.61 w - 0.00998 w^2)", "13.4"},
    {"10 (-3.91 + 0.427 w - 0.0034 w^2)", "3"},
}};
constexpr OfLengths kSchluter{{
    {"6.48248 + 0.00299 d^2 - 0.00000671 d^3", "-2.1 + 0.37538 sqrt(d)"},
    {"18.26782 + 0.01171 d^2 - 0.00002752 d^3", "1.09786 + 0.04541 d"},
    {"-16.73221 + 0.03507 d^2 - 0.00538 ln(d) d^2", "3.81822 + 0.00023138 d^2"},
    {"-29.54744 + 0.46013 d - 0.00000123 d^3", "1.37593 + 0.00002696 d^2"},
}};
constexpr OfLengths kIntergrowth2014{{
    {"5.60878 + 0.158369 w^2 - 0.00256379 w^3",
     "exp(0.101242 + 0.00150557 w^3 - 0.000771535 w^3 ln(w) + 0.0000999638 w^3 ln(w)^2)"},
    {"-28.2849 + 1.69267 w^2 - 0.397485 w^2 ln(w)",
     "1.98735 + 0.0136772 w^3 - 0.00726264 w^3 ln(w) + 0.000976253 w^3 ln(w)^2"},
    {"-81.3243 + 11.6772 w - 0.000561865 w^3",
     "-4.36302 + 0.121445 w^2 - 0.0130256 w^3 + 0.00282143 w^3 ln(w)"},
    {"-39.9616 + 4.32298 w - 0.0380156 w^2", "exp(0.605843 - 42.0014 / w^2 + 0.00000917972 w^3)"},
}};

constexpr std::array<std::string_view, kWeightFormulaCount> kWeights{
    "10^(1.326 - 0.0000326 AC FL + 0.00107 HC + 0.00438 AC + 0.0158 FL)",
    "10^(1.304 + 0.005281 AC + 0.01938 FL - 0.00004 AC FL)",
    "10^(1.335 - 0.000034 AC FL + 0.00316 BPD + 0.00457 AC + 0.01623 FL)",
    "10^(1.3596 - 0.00386 (AC/10) (FL/10) + 0.0064 (HC/10) + 0.00061 (BPD/10) (AC/10) + 0.0424 (AC/10) + "
    "0.174 (FL/10))",
    "1000 exp(-4.564 + 0.0282 AC - 0.0000331 AC^2)",
    "0.23718 (AC/10)^2 (FL/10) + 0.03312 (HC/10)^3",
    "1000 10^(-2.0661 + 0.04355 (HC/10) + 0.05394 (AC/10) - 0.0008582 (HC/10) (AC/10) + 1.2594 FL/AC)",
    "1000 10^(-1.7492 + 0.166 (BPD/10) + 0.046 (AC/10) - 0.002646 (AC/10) (BPD/10))",
};

constexpr std::array<std::string_view, 4> kAgesOfCRL{
    "exp(1.684969 + 0.315646 (CRL/10) - 0.049306 (CRL/10)^2 + 0.004057 (CRL/10)^3 - 0.000120456 (CRL/10)^4)",
    "(51.0008 + 0.6 CRL) / 7",
    "(8.052 sqrt(CRL) + 23.72) / 7",
    "5.2876 + 0.1584 CRL - 0.0007 CRL^2",
};

std::string inCapitals(Quantity quantity) {
  std::string name(nameOf(quantity));
  for (char& letter : name) letter = static_cast<char>(letter - 'a' + 'A');
  return name;
}

std::vector<Equation> equationsOfLength(const OfLengths& all, Quantity quantity) {
  const auto& [mean, sd] = all.at(static_cast<std::size_t>(quantity));
  return {{.gives = "mean " + inCapitals(quantity), .text = std::string(mean)},
          {.gives = "SD " + inCapitals(quantity), .text = std::string(sd)}};
}

/// Of the curves of WHO (2017), from the coefficients that the program has.
std::vector<Equation> equationsOfCurves(Quantity quantity) {
  constexpr std::array<std::string_view, 5> kPowers{"", " w", " w^2", " w^3", " w^4"};
  std::vector<Equation> equations;
  for (std::size_t i = 0; i < QuantilePopulation::kCentiles.size(); ++i) {
    std::string sum;
    const auto coefficients = whoCoefficients(quantity, i);
    for (std::size_t power = 0; power < coefficients.size(); ++power) {
      const double coefficient = coefficients[power];
      if (coefficient == 0.0) continue;
      const bool isBelow = coefficient < 0.0;
      sum += sum.empty() ? (isBelow ? "-" : "") : (isBelow ? " - " : " + ");
      sum.append(shortestText(isBelow ? -coefficient : coefficient)).append(kPowers.at(power));
    }
    equations.push_back(
        {.gives = inCapitals(quantity) + " at centile " + shortestText(QuantilePopulation::kCentiles.at(i)),
         .text = "exp(" + sum + ")"});
  }
  return equations;
}

std::vector<Equation> equationsOfReference(std::size_t place, Quantity quantity) {
  const std::string_view name = references()[place].name;
  if (name == "westerway") return equationsOfLength(kWesterway, quantity);
  if (name == "hadlock") return equationsOfLength(kHadlock1984, quantity);
  if (name == "schluter") return equationsOfLength(kSchluter, quantity);
  if (name == "intergrowth-2014") return equationsOfLength(kIntergrowth2014, quantity);
  if (name == "who-2017") return equationsOfCurves(quantity);
  if (name == "intergrowth-2020") {
    return {{"lambda", "9.43643 + 9.41579 / g^2 - 83.5422 ln(g) / g^2"},
            {"mu", "-2.42272 + 1.86478 sqrt(w) - 0.0000193299 w^3"},
            {"sigma", "0.0193557 + 0.0310716 / g^2 - 0.0657587 ln(g) / g^2"},
            {"EFW at z", "exp(mu (1 + z sigma lambda)^(1 / lambda))"}};
  }
  if (name == "hadlock-1991")
    return {{"mean EFW", "exp(0.578 + 0.332 w - 0.00354 w^2)"}, {"SD EFW", "0.1327 mean"}};
  return {};
}

}  // namespace

std::vector<Equation> equationsOf(const Method& method) {
  switch (method.kind) {
    case Method::Kind::weightFormula: return {{"EFW", std::string(kWeights.at(method.place))}};
    case Method::Kind::crlFormula: return {{"weeks", std::string(kAgesOfCRL.at(method.place))}};
    case Method::Kind::quotient: return {{"HC/AC", "HC / AC"}, {"FL/AC", "FL / AC"}, {"FL/BPD", "FL / BPD"}};
    case Method::Kind::reference: break;
  }
  std::vector<Equation> all;
  for (const Quantity quantity : references()[method.place].quantities) {
    if (method.quantity && *method.quantity != quantity) continue;
    for (Equation& equation : equationsOfReference(method.place, quantity))
      all.push_back(std::move(equation));
  }
  return all;
}

std::vector<PrintedRow> printedRowsOf(const Method& method) {
  const bool isTable = method.kind == Method::Kind::reference && method.place == kCFEF;
  if (!isTable || !method.quantity || *method.quantity == Quantity::efw) return {};
  const GrowthStandard& standard = growthStandards()[kCFEF];
  const Measurement length = kMeasurements.at(static_cast<std::size_t>(*method.quantity));
  std::vector<PrintedRow> rows;
  for (int week = standard.firstWeek; week <= standard.lastWeek; ++week) {
    const DatabaseRecord row = standard.row(length, week);
    rows.push_back({.week = week, .mean = row.mean(), .sd = row.sd()});
  }
  return rows;
}

std::string_view labelOf(const Method& method) {
  switch (method.kind) {
    case Method::Kind::weightFormula: return weightFormulas()[method.place].longLabel;
    case Method::Kind::crlFormula: return crlFormulas()[method.place].label;
    case Method::Kind::reference: return references()[method.place].label;
    case Method::Kind::quotient: break;
  }
  return {};
}

}  // namespace nascor::calc
