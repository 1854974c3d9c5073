// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "selftest/Evidence.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "foundation/NumberText.h"

namespace nascor::selftest {
namespace {

using calc::Method;
using foundation::Localizer;

/// Whether the question is about a growth standard, or about a reference.
bool isAboutReference(Question question) {
  switch (question) {
    case Question::rowMean:
    case Question::rowSD:
    case Question::lookUpMean:
    case Question::lookUpSD:
    case Question::lookUpGestation:
    case Question::projection:
    case Question::median:
    case Question::z:
    case Question::centile:
    case Question::valueAtZ:
    case Question::valueAtCentile:
    case Question::weekOfMedian: return true;
    default: return false;
  }
}

bool isAbout(const Example& example, const Method& method) {
  if (example.which != method.place) return false;
  switch (method.kind) {
    case Method::Kind::weightFormula: return example.question == Question::weight;
    case Method::Kind::crlFormula: return example.question == Question::crlAge;
    case Method::Kind::reference:
      return isAboutReference(example.question) &&
             (!method.quantity || example.quantity == static_cast<std::size_t>(*method.quantity));
    case Method::Kind::quotient: break;
  }
  return false;
}

/// What each of the numbers that are given is, and what is asked for.
struct Words {
  std::array<std::string_view, 4> given;
  std::string_view asked;
};

Words wordsOf(Question question) {
  using foundation::translatable;
  constexpr std::string_view kWeek = translatable("Evidence", "week");
  constexpr std::string_view kValue = translatable("Evidence", "value");
  constexpr std::string_view kMean = translatable("Evidence", "mean");
  constexpr std::string_view kSD = translatable("Evidence", "SD");
  constexpr std::string_view kZ = translatable("Evidence", "z");
  constexpr std::string_view kCentile = translatable("Evidence", "centile");
  switch (question) {
    case Question::weight:
      return {{translatable("Evidence", "BPD"), translatable("Evidence", "HC"),
               translatable("Evidence", "AC"), translatable("Evidence", "FL")},
              translatable("Evidence", "EFW")};
    case Question::crlAge: return {{translatable("Evidence", "CRL")}, kWeek};
    case Question::rowMean:
    case Question::lookUpMean: return {{kWeek}, kMean};
    case Question::rowSD:
    case Question::lookUpSD: return {{kWeek}, kSD};
    case Question::lookUpGestation: return {{kMean}, kWeek};
    case Question::projection: return {{kValue, kWeek, translatable("Evidence", "planned week")}, kValue};
    case Question::median: return {{kWeek}, translatable("Evidence", "median")};
    case Question::z: return {{kWeek, kValue}, kZ};
    case Question::centile: return {{kWeek, kValue}, kCentile};
    case Question::valueAtZ: return {{kWeek, kZ}, kValue};
    case Question::valueAtCentile: return {{kWeek, kCentile}, kValue};
    case Question::weekOfMedian: return {{translatable("Evidence", "median")}, kWeek};
    default: return {{}, kValue};
  }
}

void addRange(Evidence& evidence, const Method& method) {
  if (method.kind == Method::Kind::reference) {
    const calc::Reference& reference = calc::references()[method.place];
    evidence.first = reference.firstWeek;
    evidence.last = reference.lastWeek;
    evidence.assumes = reference.assumes;
  } else if (method.kind == Method::Kind::crlFormula) {
    const calc::CRLFormula& formula = calc::crlFormulas()[method.place];
    evidence.first = formula.least;
    evidence.last = formula.greatest;
  }
}

}  // namespace

Evidence evidenceFor(const Method& method) {
  Evidence evidence{.label = calc::labelOf(method),
                    .equations = calc::equationsOf(method),
                    .rows = calc::printedRowsOf(method)};
  switch (method.kind) {
    case Method::Kind::reference:
      evidence.publication = calc::referencePublications().at(method.place);
      break;
    case Method::Kind::weightFormula:
      evidence.publication = calc::weightFormulaPublications().at(method.place);
      break;
    case Method::Kind::crlFormula:
      evidence.publication = calc::crlFormulaPublications().at(method.place);
      break;
    case Method::Kind::quotient: break;
  }
  addRange(evidence, method);
  std::ranges::copy_if(examples(), std::back_inserter(evidence.examples),
                       [&method](const Example& example) { return isAbout(example, method); });
  return evidence;
}

std::string questionText(const Example& example, const Localizer& localizer) {
  const Words words = wordsOf(example.question);
  std::string text;
  if (isAboutReference(example.question)) {
    std::string name;
    for (const char letter : calc::nameOf(calc::kQuantities.at(example.quantity)))
      name += static_cast<char>(letter - 'a' + 'A');
    text = localizer.text("Evidence", name) + ", ";
  }
  for (std::size_t i = 0; i < words.given.size() && !words.given.at(i).empty(); ++i) {
    text.append(i == 0 ? "" : ", ").append(localizer.text("Evidence", words.given.at(i)));
    std::string given = foundation::shortestText(example.given.at(i));
    std::ranges::replace(given, '.', localizer.decimalSign());
    text.append(" ").append(given);
  }
  return text.append(": ").append(localizer.text("Evidence", words.asked));
}

}  // namespace nascor::selftest
