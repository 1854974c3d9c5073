// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/Codes.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace nascor::tests {
namespace {

namespace term = exchange::term;
using exchange::Derivation;

// The codes as DICOM PS3.16 prints them in its context groups 12003 to 12019 and templates 5000 to 5011, written here a
// second time: a slip of a digit gives another measure, which no reader of the format would notice.

TEST(TheCodesOfLoinc, areThoseOfTheStandard) {
  const std::map<std::string, exchange::Term> terms{{"11820-8", term::bpd},
                                                    {"11984-2", term::hc},
                                                    {"11979-2", term::ac},
                                                    {"11963-6", term::fl},
                                                    {"11957-8", term::crl},
                                                    {"11727-5", term::efw},
                                                    {"11767-1", term::efwCentile},
                                                    {"18185-9", term::gestationalAge},
                                                    {"11996-6", term::gravida},
                                                    {"11878-6", term::numberOfFetuses},
                                                    {"55281-0", term::numberOfFetusesToo},
                                                    {"11778-8", term::edd},
                                                    {"11779-6", term::eddByLMP},
                                                    {"11781-2", term::eddByAge},
                                                    {"8665-2", term::lmp},
                                                    {"11955-2", term::lmpOlder},
                                                    {"11951-1", term::fetusID}};
  for (const auto& [value, term] : terms) {
    EXPECT_EQ(term.value, value) << term.meaning;
    EXPECT_EQ(term.scheme, "LN") << value;
  }
}

TEST(TheCodesOfLoinc, haveARightCheckDigit) {
  // The digit behind the hyphen follows from those before it: every second one from the right, doubled as one number.
  const auto checkDigit = [](const std::string& number) {
    std::string doubled;
    int sum = 0;
    for (std::size_t i = 0; i < number.size(); ++i) {
      const char digit = number[number.size() - 1 - i];
      if (i % 2 == 0) {
        doubled.insert(doubled.begin(), digit);
      } else {
        sum += digit - '0';
      }
    }
    for (const char digit : std::to_string(2 * std::stol(doubled))) sum += digit - '0';
    return (10 - sum % 10) % 10;
  };
  const auto check = [&](const exchange::Term& term) {
    if (term.scheme != "LN") return;
    const std::string code(term.value);
    const std::size_t hyphen = code.find('-');
    ASSERT_NE(hyphen, std::string::npos) << code;
    EXPECT_EQ(code.substr(hyphen + 1), std::to_string(checkDigit(code.substr(0, hyphen)))) << code;
  };
  for (const exchange::LengthTerm& length : exchange::kLengthTerms) check(length.term);
  for (const exchange::Term& equation : exchange::kWeightEquations) check(equation);
  for (const exchange::Term& term :
       {term::efw, term::efwCentile, term::gestationalAge, term::gravida, term::numberOfFetuses,
        term::numberOfFetusesToo, term::edd, term::eddByLMP, term::eddByAge, term::lmp, term::lmpOlder,
        term::fetusID, exchange::Term{"11525-3", "LN", "the examination"}})
    check(term);
}

TEST(TheEquationsOfWeight, standInTheOrderOfTheFormulas) {
  const std::map<std::size_t, std::string> values{{0, "11746-5"}, {1, "11751-5"}, {2, "11735-8"},
                                                  {3, "11732-5"}, {4, "11756-4"}, {7, "11739-0"}};
  for (const auto& [formula, value] : values) EXPECT_EQ(exchange::kWeightEquations.at(formula).value, value);
  EXPECT_EQ(exchange::kWeightEquations[5].scheme, "99NASCOR");
  EXPECT_EQ(exchange::kWeightEquations[6].scheme, "99NASCOR");
}

TEST(ADerivation, isKnownInTheOldSchemeAndInTheNewOne) {
  const auto of = [](const char* value, const char* scheme) {
    return exchange::derivationOf({value, scheme, ""});
  };
  EXPECT_EQ(of("R-00317", "SRT"), Derivation::mean);
  EXPECT_EQ(of("R-00317", "SNM3"), Derivation::mean);
  EXPECT_EQ(of("373098007", "SCT"), Derivation::mean);
  EXPECT_EQ(of("R-41D2D", "SRT"), Derivation::calculated);
  EXPECT_EQ(of("258090004", "SCT"), Derivation::calculated);
  EXPECT_EQ(of("414135002", "SCT"), Derivation::estimated);
  EXPECT_EQ(of("373098007", "SRT"), Derivation::unknown);
  EXPECT_EQ(of("R-00317", "SCT"), Derivation::unknown);
  EXPECT_EQ(of("", ""), Derivation::unknown);
}

TEST(ASelectionStatus, saysThatAValueWasChosen) {
  EXPECT_TRUE(exchange::saysChosen({"121411", "DCM", ""}));
  EXPECT_TRUE(exchange::saysChosen({"121412", "DCM", ""}));
  EXPECT_FALSE(exchange::saysChosen({"121412", "99X", ""}));
  EXPECT_FALSE(exchange::saysChosen({"121404", "DCM", ""}));
}

}  // namespace
}  // namespace nascor::tests
