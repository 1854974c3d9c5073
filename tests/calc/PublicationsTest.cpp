// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Publications.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <string>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/References.h"
#include "calc/Standards.h"

namespace nascor::calc {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::vector<Publication> all() {
  std::vector<Publication> publications = referencePublications();
  for (const auto& family : {weightFormulaPublications(), crlFormulaPublications()})
    publications.insert(publications.end(), family.begin(), family.end());
  return publications;
}

TEST(Publications, standInTheOrderOfTheTables) {
  const auto standards = growthStandardPublications();
  ASSERT_EQ(standards.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(standards[i].label, growthStandards()[i].label);
  const auto populations = referencePublications();
  ASSERT_EQ(populations.size(), references().size());
  for (std::size_t i = 0; i < populations.size(); ++i) EXPECT_EQ(populations[i].label, references()[i].label);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(populations[i].citation, standards[i].citation);
  const auto weights = weightFormulaPublications();
  ASSERT_EQ(weights.size(), 8U);
  for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(weights[i].label, weightFormulas()[i].longLabel);
  const auto lengths = crlFormulaPublications();
  ASSERT_EQ(lengths.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(lengths[i].label, crlFormulas()[i].label);
}

TEST(Publications, areThoseThatTheLabelsName) {
  for (const Publication& publication : all()) {
    const std::string label(publication.label);
    const std::string citation(publication.citation);
    const std::string name = label.substr(0, label.find(' '));
    if (name == "CFEF") {
      EXPECT_THAT(citation, HasSubstr("(CFEF)"));
    } else if (name == "INTERGROWTH-21st") {
      EXPECT_THAT(citation, HasSubstr(name));
    } else if (name == "WHO") {
      EXPECT_THAT(citation, HasSubstr("The World Health Organization fetal growth charts"));
    } else {
      EXPECT_THAT(citation, StartsWith(name + " "));
    }
    // A year in the label is that of the publication; the society took its standards over a year later.
    const std::size_t year = label.find_first_of("12", label.find('('));
    if (label.ends_with(")") && label.size() >= 6 && label.find('/') == std::string::npos &&
        year != std::string::npos) {
      const std::string wanted = name == "Westerway" ? "2000" : label.substr(label.size() - 5, 4);
      EXPECT_THAT(citation, HasSubstr(" " + wanted + ";")) << label;
    }
  }
}

TEST(Publications, nameTheirIdentifierWithinTheCitation) {
  const auto publications = referencePublications();
  EXPECT_EQ(doiOf(publications[0]), "10.1111/j.1479-828X.2000.tb03338.x") << "at the end";
  EXPECT_EQ(doiOf(publications[1]), "10.1148/radiology.152.2.6739822") << "before another number";
  EXPECT_EQ(doiOf(publications[2]), "");
  EXPECT_EQ(doiOf(publications[4]), "10.1016/S0140-6736(14)61490-2");
  EXPECT_EQ(doiOf(publications[7]), "10.1371/journal.pmed.1002220");
}

TEST(Publications, saySoWhereTheyAreToBeConfirmed) {
  EXPECT_EQ(growthStandardPublications()[1].confirmation, Confirmation::seen);
  EXPECT_EQ(growthStandardPublications()[2].confirmation, Confirmation::awaited);
  EXPECT_EQ(weightFormulaPublications()[5].confirmation, Confirmation::seen);
  EXPECT_EQ(weightFormulaPublications()[6].confirmation, Confirmation::awaited);
  EXPECT_EQ(crlFormulaPublications()[1].confirmation, Confirmation::partlySeen);
}

TEST(Publications, warnBesideNelsonOfTheDaysThatItIsOff) {
  // 51.0008 + 0.6 CRL days against exp of a polynomial in cm, in weeks.
  const std::string remark(crlFormulaPublications()[1].remark);
  EXPECT_THAT(remark, HasSubstr("No second source"));
  EXPECT_THAT(remark, HasSubstr("9.4 days more at 6.7 mm"));
  const auto days = [](double crl) {
    return 7.0 * (menstrualAgeFromCRLNelson(crl) - menstrualAgeFromCRLHadlock(crl));
  };
  EXPECT_NEAR(days(6.7), 9.4, 0.05);
  EXPECT_NEAR(days(20.0), 2.9, 0.05);
  EXPECT_NEAR(days(30.0), 0.0, 0.05);
  EXPECT_NEAR(days(45.0), -1.3, 0.05);
}

TEST(Publications, sayThatScannersDateOtherwiseByHadlock) {
  const std::string remark(growthStandardPublications()[1].remark);
  EXPECT_THAT(remark, HasSubstr("the paper's own age equations, which scanners use, give other ages"));
  EXPECT_THAT(remark, HasSubstr("equation, not its table"));
}

TEST(Publications, standWordByWordOnThePageOfTheSources) {
  std::ifstream file(NASCOR_DOCS "/sources.md");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  for (const Publication& publication : all()) {
    EXPECT_THAT(page, HasSubstr(std::string(publication.citation))) << publication.label;
    EXPECT_THAT(page, HasSubstr(std::string(publication.label)));
  }
}

TEST(Publications, tellWhatTheBandOfTheWeightChartIs) {
  EXPECT_THAT(std::string(weightBandRemark()), HasSubstr("no centiles"));
}

}  // namespace
}  // namespace nascor::calc
