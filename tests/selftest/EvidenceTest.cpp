// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "selftest/Evidence.h"

#include <gmock/gmock.h>

#include <set>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"

namespace nascor::selftest {
namespace {

using calc::Method;
using calc::Quantity;
using Kind = Method::Kind;
using testing::HasSubstr;
using testing::IsEmpty;

/// Every formula, and every reference for each quantity that it covers.
std::vector<Method> methods() {
  std::vector<Method> all;
  for (std::size_t i = 0; i < calc::weightFormulas().size(); ++i)
    all.push_back({.kind = Kind::weightFormula, .place = i});
  for (std::size_t i = 0; i < calc::crlFormulas().size(); ++i)
    all.push_back({.kind = Kind::crlFormula, .place = i});
  for (std::size_t i = 0; i < calc::references().size(); ++i) {
    for (const Quantity quantity : calc::references()[i].quantities)
      all.push_back({.kind = Kind::reference, .place = i, .quantity = quantity});
  }
  return all;
}

TEST(TheEvidence, ofEveryMethodHasAFormulaAPublicationAndExamples) {
  for (const Method& method : methods()) {
    const Evidence evidence = evidenceFor(method);
    EXPECT_EQ(evidence.label, calc::labelOf(method));
    ASSERT_TRUE(evidence.publication) << evidence.label;
    EXPECT_EQ(evidence.publication->label, evidence.label);
    EXPECT_FALSE(evidence.equations.empty() && evidence.rows.empty()) << evidence.label;
    EXPECT_FALSE(evidence.examples.empty()) << evidence.label;
    EXPECT_EQ(evidence.assumes.empty(), method.kind != Kind::reference) << evidence.label;
    EXPECT_EQ(evidence.first.has_value(), method.kind != Kind::weightFormula) << evidence.label;
  }
}

TEST(TheEvidence, takesEachExampleOfAFigureOnce) {
  std::size_t taken = 0;
  for (const Method& method : methods()) taken += evidenceFor(method).examples.size();
  std::size_t ofFigures = 0;
  for (const Example& example : examples()) {
    if (example.group != "dating" && example.group != "archive") ++ofFigures;
  }
  EXPECT_EQ(taken, ofFigures);
}

TEST(TheEvidence, ofAReferenceIsThatOfTheQuantityAskedFor) {
  const Evidence bpd = evidenceFor({.kind = Kind::reference, .place = 4, .quantity = Quantity::bpd});
  EXPECT_EQ(bpd.label, "INTERGROWTH-21st (2014)");
  EXPECT_EQ(bpd.equations.size(), 2U);
  EXPECT_GE(bpd.examples.size(), 378U);
  EXPECT_THAT(bpd.assumes, HasSubstr("outer to outer"));
  EXPECT_EQ(bpd.first, 14.0);
  EXPECT_EQ(bpd.last, 40.0);
  for (const Example& example : bpd.examples) EXPECT_EQ(example.quantity, 0U);
  EXPECT_GE(evidenceFor({.kind = Kind::reference, .place = 4}).examples.size(), 4U * 378U);
}

TEST(TheEvidence, ofAQuotientIsTheQuotientAlone) {
  const Evidence evidence = evidenceFor({.kind = Kind::quotient});
  EXPECT_FALSE(evidence.publication);
  EXPECT_EQ(evidence.equations.size(), 3U);
  EXPECT_THAT(evidence.examples, IsEmpty());
}

TEST(TheQuestion, ofAnExampleIsSaidInWords) {
  const foundation::EnglishLocalizer localizer;
  const Example printed{"", Question::valueAtCentile, 4, 0, {14, 3}, 26.3, 0.08, ""};
  EXPECT_EQ(questionText(printed, localizer), "BPD, week 14, centile 3: value");
  const Example weight{"", Question::weight, 0, 0, {19.6, 70.3, 55.7, 8.4}, 57.9, 0.1, ""};
  EXPECT_EQ(questionText(weight, localizer), "BPD 19.6, HC 70.3, AC 55.7, FL 8.4: EFW");
  const Example length{"", Question::crlAge, 2, 0, {45}, 11.1, 0.1, ""};
  EXPECT_EQ(questionText(length, localizer), "CRL 45: week");
}

}  // namespace
}  // namespace nascor::selftest
