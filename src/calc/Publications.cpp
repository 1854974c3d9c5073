// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/Publications.h"

#include <array>
#include <cstddef>

#include "calc/Dating.h"
#include "calc/FetalWeight.h"
#include "calc/References.h"
#include "calc/Standards.h"
#include "foundation/Localizer.h"

namespace nascor::calc {
namespace {

using foundation::translatable;

/// A publication before it is joined to its row.
struct Source {
  std::string_view citation;
  Confirmation confirmation;
  std::string_view remark;
};

constexpr std::string_view kHadlock1985 =
    "Hadlock FP, Harrist RB, Sharman RS, Deter RL, Park SK. Estimation of fetal weight with the use of head, "
    "body, and femur measurements \u2013 a prospective study. Am J Obstet Gynecol 1985;151:333\u2013337. "
    "doi:10.1016/0002-9378(85)90298-4, PMID 3881966";
constexpr std::string_view kWesterway2000 =
    "Westerway SC, Davison A, Cowell S. Ultrasonic fetal measurements: new Australian standards for the new "
    "millennium. Aust N Z J Obstet Gynaecol 2000;40:297\u2013302. doi:10.1111/j.1479-828X.2000.tb03338.x";
constexpr std::string_view kOwnNumbers = translatable(
    "References", "The number is a name of this program; the lengths in parentheses tell the formula.");

template <class Row, std::size_t Count>
std::vector<Publication> joined(std::span<const Row, Count> rows, std::string_view Row::*label,
                                const std::array<Source, Count>& sources) {
  std::vector<Publication> publications;
  for (std::size_t i = 0; i < Count; ++i) {
    publications.push_back({.label = rows[i].*label,
                            .citation = sources[i].citation,
                            .confirmation = sources[i].confirmation,
                            .remark = sources[i].remark});
  }
  return publications;
}

}  // namespace

std::vector<Publication> growthStandardPublications() {
  static constexpr std::array<Source, 4> kSources{{
      {kWesterway2000, Confirmation::partlySeen, ""},
      {"Hadlock FP, Deter RL, Harrist RB, Park SK. Estimating fetal age: computer-assisted analysis of "
       "multiple fetal growth parameters. Radiology 1984;152:497\u2013501. "
       "doi:10.1148/radiology.152.2.6739822, PMID "
       "6739822",
       Confirmation::seen,
       translatable(
           "References",
           "Weeks 12 and 13 lie outside the published sample, which has 14 to 42 weeks. The AC is the "
           "paper's "
           "equation, not its table, which is up to 1.68 mm higher. Dating reads the table of sizes "
           "backwards; "
           "the paper's own age equations, which scanners use, give other ages: HC 5 to 9.9 days more at 26 "
           "to 37 weeks, BPD 11.5 days less and AC 6.7 days less at 40, FL 3.6 days more at 29 to 30.")},
      {"Schluter PJ, Pritchard G, Gill MA. Ultrasonic fetal size measurements in Brisbane, Australia. "
       "Australas Radiol 2004;48:480\u2013486",
       Confirmation::awaited,
       translatable("References",
                    "Weeks 11 to 14 lie outside the published sample, which has 15 to 41 weeks.")},
      {"Cr\u00e9quat J, Duyme M, Brodaty G. Biom\u00e9trie 2000. Tables de croissance f\u0153tale par le "
       "Coll\u00e8ge fran\u00e7ais d'\u00e9chographie f\u0153tale (CFEF) et l'Inserm U 155. "
       "Gyn\u00e9col Obst\u00e9t Fertil 2000;28:435\u2013455",
       Confirmation::awaited, translatable("References", "The numbers are those of the published tables.")},
  }};
  return joined(growthStandards(), &GrowthStandard::label, kSources);
}

std::vector<Publication> weightFormulaPublications() {
  static constexpr std::array<Source, 8> kSources{{
      {kHadlock1985, Confirmation::partlySeen, kOwnNumbers},
      {kHadlock1985, Confirmation::partlySeen, kOwnNumbers},
      {kHadlock1985, Confirmation::partlySeen, kOwnNumbers},
      {kHadlock1985, Confirmation::partlySeen, kOwnNumbers},
      {"Campbell S, Wilkin D. Ultrasonic measurement of fetal abdomen circumference in the estimation of "
       "fetal weight. Br J Obstet Gynaecol 1975;82:689\u2013697",
       Confirmation::partlySeen, ""},
      {"Combs CA, Jaekle RK, Rosenn B, Pope M, Miodovnik M, Siddiqi TA. Sonographic estimation of fetal "
       "weight based on a model of fetal volume. Obstet Gynecol 1993;82:365\u2013370. PMID 8355935",
       Confirmation::seen, ""},
      {"Ott WJ, Doyle S, Flamm S, Wittman J. Accurate ultrasonic estimation of fetal weight: prospective "
       "analysis of new ultrasonic formulas. Am J Perinatol 1986;3:307\u2013310",
       Confirmation::awaited, ""},
      {"Shepard MJ, Richards VA, Berkowitz RL, Warsof SL, Hobbins JC. An evaluation of two equations for "
       "predicting fetal weight by ultrasound. Am J Obstet Gynecol 1982;142:47\u201354. PMID 7058805",
       Confirmation::seen, ""},
  }};
  return joined(weightFormulas(), &WeightFormula::longLabel, kSources);
}

std::vector<Publication> crlFormulaPublications() {
  static constexpr std::array<Source, 4> kSources{{
      {"Hadlock FP, Shah YP, Kanon DJ, Lindsey JV. Fetal crown-rump length: reevaluation of relation to "
       "menstrual age (5\u201318 weeks) with high-resolution real-time US. Radiology 1992;182:501\u2013505",
       Confirmation::seen, ""},
      {"Nelson LH. Comparison of methods for determining crown-rump measurement by real-time ultrasound. "
       "J Clin Ultrasound 1981;9:67\u201370",
       Confirmation::partlySeen,
       translatable("References",
                    "No second source has this formula. Compared with Hadlock (1992) it gives 9.4 days more "
                    "at 6.7 mm, "
                    "2.9 days more at 20 mm, the same at 30 mm and 1.3 days less at 45 mm.")},
      {"Robinson HP, Fleming JEE. A critical evaluation of sonar \"crown-rump length\" measurements. "
       "Br J Obstet Gynaecol 1975;82(9):702\u2013710. PMID 1182090",
       Confirmation::seen,
       translatable("References", "The constant is 23.72 here; publications have 23.73.")},
      {kWesterway2000, Confirmation::partlySeen,
       translatable("References", "Two independent sources have the same formula.")},
  }};
  return joined(crlFormulas(), &CRLFormula::label, kSources);
}

std::vector<Publication> referencePublications() {
  static constexpr std::array<Source, 4> kSources{{
      {"Papageorghiou AT, Ohuma EO, Altman DG, Todros T, Cheikh Ismail L, Lambert A, et al. International "
       "standards for fetal growth based on serial ultrasound measurements: the Fetal Growth Longitudinal "
       "Study of the INTERGROWTH-21st Project. Lancet 2014;384:869\u2013879. "
       "doi:10.1016/S0140-6736(14)61490-2",
       Confirmation::seen,
       translatable("References",
                    "BPD is measured from outer to outer edge. Held against the 1512 values of the printed "
                    "tables: at most 0.073 mm off.")},
      {"Stirnemann J, Salomon LJ, Papageorghiou AT. INTERGROWTH-21st standards for Hadlock's estimation of "
       "fetal weight. Ultrasound Obstet Gynecol 2020;56:946\u2013948. doi:10.1002/uog.22000",
       Confirmation::seen,
       translatable("References",
                    "Fits weights by the formula Hadlock 1 (HC/AC/FL) only. Held against the printed table: "
                    "at most 0.49 g off.")},
      {"Hadlock FP, Harrist RB, Martinez-Poyer J. In utero analysis of fetal growth: a sonographic weight "
       "standard. Radiology 1991;181:129\u2013133. doi:10.1148/radiology.181.1.1887021, PMID 1887021",
       Confirmation::seen,
       translatable("References",
                    "The abstract has 12.7 % for one standard deviation; the printed percentiles have 13.27 "
                    "%, which stands here. Held against the printed table: at most 2.2 g off.")},
      {"Kiserud T, Piaggio G, Carroli G, Widmer M, Carvalho J, Neerup Jensen L, et al. The World Health "
       "Organization fetal growth charts: a multinational longitudinal study of ultrasound biometric "
       "measurements and estimated fetal weight. PLoS Med 2017;14:e1002220. "
       "doi:10.1371/journal.pmed.1002220",
       Confirmation::seen,
       translatable("References",
                    "Coefficients of the revision of 2023-03-13, published under CC BY. Curves of centiles, "
                    "no distribution: below the 1st and above the 99th it says no more than that.")},
  }};
  std::vector<Publication> publications = growthStandardPublications();
  const auto further = joined(references().last<kSources.size()>(), &Reference::label, kSources);
  publications.insert(publications.end(), further.begin(), further.end());
  return publications;
}

std::string_view doiOf(const Publication& publication) {
  constexpr std::string_view kMark = "doi:";
  const std::string_view citation = publication.citation;
  const std::size_t mark = citation.find(kMark);
  if (mark == std::string_view::npos) return {};
  const std::string_view doi = citation.substr(mark + kMark.size());
  return doi.substr(0, doi.find(','));
}

std::string_view weightBandRemark() {
  return translatable(
      "References",
      "The band of the weight chart is the random error of the formula. It shows no centiles of a "
      "population.");
}

}  // namespace nascor::calc
