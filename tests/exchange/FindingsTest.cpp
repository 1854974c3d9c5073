// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/Findings.h"

#include <gmock/gmock.h>

#include "Reports.h"
#include "exchange/FindingsJson.h"
#include "support/InEnglish.h"
#include "support/MarkedLocalizer.h"

namespace nascor::tests {
namespace {

using exchange::Findings;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t kHC = 1;

struct Choice {
  const char* name;
  std::vector<ContentItem> values;
  double mm;
  const char* chosen;
  std::size_t passedOver;
  std::size_t warnings;
};
class OfSeveralValues : public testing::TestWithParam<Choice> {};

TEST_P(OfSeveralValues, theBestKindCounts) {
  std::vector<ContentItem> groups;
  for (const ContentItem& value : GetParam().values) groups.push_back(group({value}));
  const Findings findings = found({biometry(groups)});
  ASSERT_THAT(findings.fetuses, SizeIs(1));
  const auto hc = findings.fetuses[0].lengths[kHC];
  ASSERT_TRUE(hc.has_value());
  EXPECT_EQ(hc->mm, GetParam().mm);
  EXPECT_EQ(hc->chosen, GetParam().chosen);
  EXPECT_THAT(findings.notTaken, SizeIs(GetParam().passedOver));
  EXPECT_THAT(findings.warnings, SizeIs(GetParam().warnings));
}

ContentItem hc(std::string value, std::vector<ContentItem> items = {}) {
  return number(term::hc, std::move(value), "mm", std::move(items));
}

INSTANTIATE_TEST_SUITE_P(
    forALength, OfSeveralValues,
    testing::Values(
        Choice{"onlyOne", {hc("227.3")}, 227.3, "plain", 0, 0},
        Choice{"saidToBeMeasured", {hc("227.3", {derived(kMeasured)})}, 227.3, "plain", 0, 0},
        Choice{"flaggedBeforeMean", {hc("1", {derived(kMean)}), hc("2", {flagged()})}, 2, "flagged", 1, 0},
        Choice{"aFlaggedMean", {hc("1", {derived(kMean), flagged()}), hc("2")}, 1, "flagged", 1, 0},
        Choice{"meanBeforePlain", {hc("1"), hc("2", {derived(kMean)})}, 2, "mean", 1, 0},
        Choice{"plainBeforeCalculated", {hc("1", {derived(kCalculated)}), hc("2")}, 2, "plain", 1, 0},
        Choice{"plainBeforeFlaggedCalculated",
               {hc("1", {derived(kCalculated), flagged(kMostRecent)}), hc("2")},
               2,
               "plain",
               1,
               1},
        Choice{"calculatedAlone", {hc("1", {derived(kCalculated)})}, 1, "calculated", 0, 1},
        Choice{"calculatedBeforeFlaggedEstimated",
               {hc("1", {derived(kEstimated), flagged()}), hc("2", {derived(kCalculated)})},
               2,
               "calculated",
               1,
               2},
        Choice{"estimatedAlone", {hc("1", {derived(kEstimated)})}, 1, "estimated", 0, 1},
        Choice{"severalPlain", {hc("1"), hc("2"), hc("6")}, 3, "mean of several", 0, 1},
        Choice{"severalFlagged",
               {hc("1", {flagged()}), hc("2", {flagged()}), hc("9")},
               1.5,
               "mean of several",
               1,
               1},
        Choice{"theSameTwiceCountsOnce", {hc("1"), hc("1.0"), hc("4")}, 2.5, "mean of several", 0, 1},
        Choice{"theSameTwiceIsOne", {hc("1"), hc("1.0")}, 1, "plain", 0, 0},
        Choice{"neverTheExtremes",
               {hc("1"), hc("2", {derived(kMinimum), flagged()}), hc("3", {derived(kMaximum)}),
                hc("4", {derived(kDeviation)})},
               1,
               "plain",
               3,
               0},
        Choice{"neverAnUnknownDerivation",
               {hc("1"), hc("2", {derived({"M", "99X", "Mode"})})},
               1,
               "plain",
               1,
               0}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AnExtremeAlone, isNoLength) {
  const Findings findings = found({biometry({group({hc("3", {derived(kMaximum), flagged()})})})});
  EXPECT_FALSE(findings.fetuses.at(0).lengths[kHC].has_value());
  ASSERT_THAT(findings.notTaken, SizeIs(1));
  EXPECT_EQ(findings.notTaken[0].what, "hc");
  EXPECT_EQ(findings.notTaken[0].value, 3.0);
}

struct UnitCase {
  const char* name;
  const char* value;
  const char* unit;
  std::optional<double> mm;
};
class AUnit : public testing::TestWithParam<UnitCase> {};

TEST_P(AUnit, isConvertedExactlyOrRefused) {
  const Findings findings =
      found({biometry({group({number(term::bpd, GetParam().value, GetParam().unit)})})});
  const auto& bpd = findings.fetuses.at(0).lengths[0];
  ASSERT_EQ(bpd.has_value(), GetParam().mm.has_value());
  if (GetParam().mm) {
    EXPECT_EQ(bpd->mm, *GetParam().mm);
    EXPECT_THAT(findings.notTaken, IsEmpty());
  } else {
    ASSERT_THAT(findings.notTaken, SizeIs(1));
    EXPECT_EQ(findings.notTaken[0].unit, GetParam().unit);
  }
}

INSTANTIATE_TEST_SUITE_P(
    ofALength, AUnit,
    testing::Values(UnitCase{"millimetres", "60.9", "mm", 60.9},
                    UnitCase{"centimetres", "29.08", "cm", 290.8},  // 29.08 * 10 is another double
                    UnitCase{"inches", "2.4", "[in_i]", std::nullopt},
                    UnitCase{"metres", "0.06", "m", std::nullopt}, UnitCase{"noUnit", "60", "", std::nullopt},
                    UnitCase{"zero", "0", "mm", std::nullopt}, UnitCase{"negative", "-1", "cm", std::nullopt},
                    UnitCase{"notANumber", "nan", "mm", std::nullopt},
                    UnitCase{"tooLarge", "1e308", "cm", std::nullopt},
                    UnitCase{"aComma", "6,1", "cm", std::nullopt}, UnitCase{"empty", "", "mm", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AUnitOfAnotherScheme, isRefused) {
  ContentItem bpd = number(term::bpd, "60");
  bpd.code.scheme = "99X";
  EXPECT_THAT(found({biometry({bpd})}).notTaken, SizeIs(1));
  bpd.code.scheme = "UCUM[1.4]";
  EXPECT_THAT(found({biometry({bpd})}).notTaken, IsEmpty());
}

TEST(TheFetusOfALength, isThatOfItsSection) {
  const Findings findings = found({
      summary({container(term::fetusSummary, {text(term::fetusID, "B")})}),
      biometry({text(term::fetusID, " A "), number(term::bpd, "1")}),
      biometry({text(term::fetusID, "B"), number(term::bpd, "2")}),
      container(term::fetalLongBones, {text(term::fetusID, "A"), number(term::fl, "3")}),
  });
  ASSERT_THAT(findings.fetuses, SizeIs(2));
  EXPECT_EQ(findings.fetuses[0].id, "B") << "in order of first appearance";
  EXPECT_EQ(findings.fetuses[1].id, "A");
  EXPECT_EQ(findings.fetuses[0].lengths[0]->mm, 2);
  EXPECT_EQ(findings.fetuses[1].lengths[0]->mm, 1);
  EXPECT_EQ(findings.fetuses[1].lengths[3]->mm, 3);
  EXPECT_FALSE(findings.fetuses[0].lengths[3].has_value());
}

TEST(TheIdOfAFetus, isTheFetusIdThenTheSubjectIdThenTheNumber) {
  ContentItem two = number(term::fetusNumber, "2.0", "1");
  two.relationship = "HAS OBS CONTEXT";
  const auto idOf = [](std::vector<ContentItem> context) {
    context.push_back(number(term::bpd, "1"));
    return found({biometry(std::move(context))}).fetuses.at(0).id;
  };
  EXPECT_EQ(idOf({two, text(term::subjectID, "S"), text(term::fetusID, "F")}), "F");
  EXPECT_EQ(idOf({two, text(term::subjectID, "S"), text(term::fetusID, " ")}), "S");
  EXPECT_EQ(idOf({two}), "2");
  EXPECT_EQ(idOf({}), std::nullopt);
}

TEST(TheMothersSubjectId, namesNoFetus) {
  const Findings findings = found({text(term::subjectID, "AB-123"), biometry({number(term::bpd, "1")})});
  EXPECT_EQ(findings.fetuses.at(0).id, std::nullopt);
}

TEST(ALength, isTakenFromTheSectionsOfLengthsAlone) {
  const Findings findings = found(
      {container({"125004", "DCM", "Fetal Cranium"}, {number(term::bpd, "1")}),
       container({"125001", "DCM", "Biometry Ratios"}, {number({"11871-1", "LN", "FL/AC"}, "22", "%")})});
  EXPECT_THAT(findings.fetuses, IsEmpty());
  ASSERT_THAT(findings.notTaken, SizeIs(2));
  EXPECT_EQ(findings.notTaken[0].what, "bpd");
  EXPECT_EQ(findings.notTaken[1].what, "FL/AC");
}

TEST(ALengthThatAWeightIsInferredFrom, isNoMeasurement) {
  const Findings findings = found({biometry({number(term::efw, "800", "g", {number(term::bpd, "99")})})});
  EXPECT_FALSE(findings.fetuses.at(0).lengths[0].has_value());
}

TEST(AFemurUnderAPrivateCode, isTakenInItsSectionWhereThereIsNoOther) {
  const Term femur{"99000-11", "99MAKER", "FEMUR"};
  const auto bones = [&](std::vector<ContentItem> items) {
    return container(term::fetalLongBones, std::move(items));
  };
  Findings findings = found({bones({number(femur, "44.9")})});
  EXPECT_EQ(findings.fetuses.at(0).lengths[3]->mm, 44.9);
  EXPECT_THAT(inEnglish(findings.warnings), ElementsAre(HasSubstr("private")));

  findings = found({bones({number(femur, "44.9"), number(term::fl, "45.2")})});
  EXPECT_EQ(findings.fetuses.at(0).lengths[3]->mm, 45.2);
  EXPECT_THAT(findings.notTaken, SizeIs(1));
  EXPECT_THAT(found({biometry({number(femur, "44.9")})}).fetuses, IsEmpty());
  EXPECT_THAT(found({bones({number({"99000-11", "LN", ""}, "44.9")})}).fetuses, IsEmpty());
}

TEST(WhatAMachineWorksOutOfALength, isNotNamedBesideIt) {
  const Findings findings =
      found({biometry({group({number(term::bpd, "60.9"), number(term::gestationalAge, "170", "d"),
                              number(term::centileRank, "50", "%")})})});
  EXPECT_THAT(findings.notTaken, IsEmpty());
}

TEST(TheEDD, isTheOneThatIsEstablishedElseTheOneByTheLastPeriod) {
  Findings findings = found({summary({date(term::eddByLMP, "20270311"), date(term::edd, "20270304")})});
  EXPECT_EQ(findings.edd, (foundation::CivilDay{2027, 3, 4}));
  EXPECT_EQ(findings.eddFrom, "edd");
  EXPECT_THAT(findings.notTaken, SizeIs(1));
  EXPECT_THAT(findings.warnings, SizeIs(1));

  findings = found({summary({date(term::eddByLMP, "20270311"), date(term::edd, "20270230")})});
  EXPECT_EQ(findings.edd, (foundation::CivilDay{2027, 3, 11}));
  EXPECT_EQ(findings.eddFrom, "lmp");
  EXPECT_THAT(findings.notTaken, SizeIs(1));

  findings = found({summary({date(term::eddByAge, "20270311"), date(term::lmpOlder, "20260528")})});
  EXPECT_EQ(findings.edd, std::nullopt);
  ASSERT_THAT(findings.notTaken, SizeIs(2));
  EXPECT_EQ(findings.notTaken[0].what, "edd");
  EXPECT_EQ(findings.notTaken[1].what, "lmp");
  EXPECT_THAT(inEnglish(findings.notTaken[1].why), HasSubstr("2026-05-28"));
}

TEST(TheDayOfTheExamination, isTheStudyDateElseTheContentDate) {
  const auto dayOf = [](const char* study, const char* content) {
    auto made = report({});
    made.studyDate = study;
    made.contentDate = content;
    return std::get<Findings>(exchange::findingsIn(made)).examDate;
  };
  EXPECT_EQ(dayOf("20261113", "20261114"), (foundation::CivilDay{2026, 11, 13}));
  EXPECT_EQ(dayOf(" ", "20261114"), (foundation::CivilDay{2026, 11, 14}));
  EXPECT_EQ(dayOf("20261313", "20261114"), std::nullopt);
  EXPECT_EQ(dayOf("", ""), std::nullopt);
}

TEST(Counts, areWholeOrNotTaken) {
  const auto gravida = [](const char* value) {
    return found({container(term::patientCharacteristics, {number(term::gravida, value, "1")})});
  };
  EXPECT_EQ(gravida("2.0").gravida, 2);
  EXPECT_EQ(gravida("2.5").gravida, std::nullopt);
  EXPECT_THAT(gravida("2.5").notTaken, SizeIs(1));
  EXPECT_EQ(gravida("-1").gravida, std::nullopt);
}

TEST(TheNumberOfFetuses, isComparedWithThoseInTheReport) {
  const auto warnings = [](const char* count) {
    return inEnglish(found({summary({number(term::numberOfFetusesToo, count, "1")}),
                            biometry({text(term::fetusID, "1"), number(term::bpd, "1")})})
                         .warnings);
  };
  EXPECT_THAT(warnings("1"), IsEmpty());
  EXPECT_THAT(warnings("2"), ElementsAre(HasSubstr("2 fetuses")));
}

/// A weight of the lengths HC 227.3, AC 202.8, FL 44.9, which weigh 741 g by HC, AC and FL (Hadlock 1985).
std::vector<std::string> warningsOfWeight(const char* value, const char* unit, const Term& equation) {
  const Findings findings =
      found({summary({container(term::fetusSummary,
                                {number(term::efw, value, unit, {code(term::equation, equation)})})}),
             biometry({number(term::hc, "227.3"), number(term::ac, "202.8"), number(term::fl, "44.9")})});
  return inEnglish(findings.warnings);
}

TEST(TheWeightOfAReport, isComparedByItsOwnEquation) {
  const Term hadlock1{"11746-5", "LN", ""};
  EXPECT_THAT(warningsOfWeight("741", "g", hadlock1), IsEmpty());
  EXPECT_THAT(warningsOfWeight("0.748", "kg", hadlock1), IsEmpty());
  EXPECT_THAT(warningsOfWeight("749", "g", hadlock1), SizeIs(1));
  EXPECT_THAT(warningsOfWeight("741", "g", {"11751-5", "LN", ""}), SizeIs(1)) << "by AC and FL";
  EXPECT_THAT(warningsOfWeight("741", "g", {"own", "99X", ""}), IsEmpty());
  EXPECT_THAT(warningsOfWeight("1000", "g", {"own", "99X", ""}), SizeIs(1));
}

TEST(TheWeightOfAReport, isTheFlaggedOneElseTheFirst) {
  const auto weightOf = [](std::vector<ContentItem> items) {
    return found({summary({container(term::fetusSummary, std::move(items))})}).fetuses.at(0).efw;
  };
  EXPECT_EQ(weightOf({number(term::efw, "800", "g"), number(term::efw, "0.9", "kg")}), 800);
  EXPECT_EQ(weightOf({number(term::efw, "800", "g"), number(term::efw, "0.9", "kg", {flagged()})}), 900);
  EXPECT_EQ(weightOf({number(term::efw, "2", "[lb_av]")}), std::nullopt);
}

TEST(OtherReports, areRefusedInASentence) {
  auto other = report({});
  other.sopClass = "1.2.840.10008.5.1.4.1.1.88.11";
  EXPECT_TRUE(std::holds_alternative<foundation::Sentence>(exchange::findingsIn(other)));
  other.sopClass = exchange::kEnhancedSR;
  EXPECT_TRUE(std::holds_alternative<Findings>(exchange::findingsIn(other)));
  other.hasContent = false;
  EXPECT_TRUE(std::holds_alternative<foundation::Sentence>(exchange::findingsIn(other)));
  other.hasContent = true;
  other.root.name.scheme = "99X";
  EXPECT_TRUE(std::holds_alternative<foundation::Sentence>(exchange::findingsIn(other)));
}

TEST(WhatIsSaidOfAReport, isInTheLanguageOfTheReader) {
  const Findings findings =
      found({biometry({text(term::fetusID, "A"), number(term::bpd, "60.9", "mm", {derived(kCalculated)}),
                       number(term::hc, "1", "[in_i]"), number(term::fl, "1", "mm", {flagged()}),
                       number(term::fl, "2", "mm", {flagged()}), number(term::fl, "3")}),
             summary({date(term::edd, "20270230"), number(term::gravida, "x", "1")})});
  const MarkedLocalizer marked;
  std::vector<std::string> said;
  for (const auto& each : findings.notTaken) said.push_back(foundation::said(each.why, marked));
  EXPECT_THAT(said, testing::UnorderedElementsAre(
                        R"([Findings:the unit "[in_i]" is neither mm nor cm])",
                        R"([Findings:EDD: "20270230" is no day])", R"([Findings:"x" is no count])",
                        "[Findings:a [Findings:flagged] value is taken before a [Findings:plain] one]"));
  said.clear();
  for (const auto& each : findings.warnings) said.push_back(foundation::said(each, marked));
  const std::string fetus = "[Findings:[Findings:fetus A: ";
  EXPECT_THAT(said,
              ElementsAre(fetus + "[Findings:BPD]] is [Findings:calculated], not measured]",
                          fetus + "[Findings:FL]]: several [Findings:flagged] values, 1, 2 mm; their mean is "
                                  "taken]"));
}

TEST(TheJsonOfFindings, hasEveryKeyInItsOrder) {
  std::string out;
  foundation::JsonText json(out);
  exchange::writeFindingsJson(
      json, "a.dcm", found({biometry({number(term::bpd, "6.09", "cm"), number(term::hc, "1", "[in_i]")})}));
  EXPECT_EQ(
      out,
      R"({"file":"a.dcm","patientID":"AB-123","examDate":"2026-11-13","edd":null,"eddFrom":null,)"
      R"("gravida":null,"numberOfFetuses":null,"fetuses":[{"id":null,"bpd":60.9,"hc":null,"ac":null,"fl":null,)"
      R"("crl":null,"efw":null,"chosen":{"bpd":"plain"}}],"notTaken":[{"fetus":null,"what":"hc","value":1,)"
      R"("unit":"[in_i]","why":"the unit \"[in_i]\" is neither mm nor cm"}],"warnings":[]})");
}

}  // namespace
}  // namespace nascor::tests
