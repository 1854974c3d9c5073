// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "scripting/ScriptProperties.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

#include "ScriptedDocument.h"

namespace nascor::scripting {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class AProperty : public ScriptedDocument {
 protected:
  const ScriptProperty& property(std::string_view key) { return *scriptProperty(key); }
  ScriptValue get(std::string_view key) { return readProperty(property(key), scripted, platform.calendar); }
  void set(std::string_view key, const ScriptValue& value) {
    writeProperty(property(key), scripted, value, platform.calendar);
  }
  /// What a write of the wrong kind is answered by; empty when it is taken.
  std::string refusal(std::string_view key, const ScriptValue& value) {
    try {
      set(key, value);
    } catch (const WrongKind& wrong) {
      return wrong.what();
    }
    return {};
  }
};

TEST_F(AProperty, isOneOfNine) {
  std::vector<std::string_view> keys;
  for (const ScriptProperty& row : scriptProperties()) keys.push_back(row.key);
  EXPECT_THAT(
      keys, ElementsAre("identifier", "gravida", "edd", "examDate", "bpd", "hc", "ac", "fl", "tabViewIndex"));
  EXPECT_EQ(scriptProperty("efw"), nullptr);
  EXPECT_EQ(scriptProperty(""), nullptr);
}

TEST_F(AProperty, isExplainedByASentenceOfItsOwn) {
  std::set<std::string_view> sentences;
  for (const ScriptProperty& row : scriptProperties()) {
    EXPECT_TRUE(row.sentence.ends_with(".")) << row.key;
    EXPECT_TRUE(sentences.insert(row.sentence).second) << row.key;
  }
}

TEST_F(AProperty, comesBackAsItWasSet) {
  // Every property gets a value of its own, so that two that are mixed up show.
  const std::vector<std::pair<std::string_view, ScriptValue>> values{{"identifier", "AB-123"},
                                                                     {"gravida", std::int64_t{3}},
                                                                     {"edd", "2027-04-10"},
                                                                     {"examDate", "2026-11-22"},
                                                                     {"bpd", 45.5},
                                                                     {"hc", 170.25},
                                                                     {"ac", 150.75},
                                                                     {"fl", 30.5},
                                                                     {"tabViewIndex", std::int64_t{4}}};
  for (const auto& [key, value] : values) set(key, value);
  for (const auto& [key, value] : values) EXPECT_EQ(get(key), value) << key;
  EXPECT_EQ(document.patientRecord()->edd(), kEDD);
  const model::MeasurementsRecord& measured = exam(0).measurementsForFetus(0);
  EXPECT_EQ(measured.bpd(), 45.5);
  EXPECT_EQ(measured.hc(), 170.25);
  EXPECT_EQ(measured.ac(), 150.75);
  EXPECT_EQ(measured.fl(), 30.5);
}

TEST_F(AProperty, ofNothingIsNone) {
  document.patientRecord()->setMaternalIDString(std::nullopt);
  exam(0).setExamDate(std::nullopt);
  for (const char* key : {"identifier", "edd", "examDate"}) EXPECT_EQ(get(key), ScriptValue()) << key;
  document.patientRecord()->setEDD(foundation::Date{HUGE_VAL});
  EXPECT_EQ(get("edd"), ScriptValue());
}

TEST_F(AProperty, thatIsADateIsTakenAwayByAnEmptyTextOrByNone) {
  set("edd", "2027-04-10");
  set("edd", "");
  EXPECT_EQ(document.patientRecord()->edd(), std::nullopt);
  set("examDate", ScriptValue());
  EXPECT_EQ(exam(0).examDate(), std::nullopt);
}

TEST_F(AProperty, thatIsADateTakesATimeOfDayToo) {
  set("examDate", "2027-04-10T09:30");
  EXPECT_EQ(exam(0).examDate(), foundation::Date{kEDD.secondsSince2001 + 9.5 * 3600.0});
  EXPECT_EQ(get("examDate"), ScriptValue("2027-04-10"));
}

TEST_F(AProperty, thatIsANumberTakesEveryNumber) {
  set("bpd", std::int64_t{45});
  EXPECT_EQ(exam(0).measurementsForFetus(0).bpd(), 45.0);
  set("gravida", 2.9);
  EXPECT_EQ(document.patientRecord()->gravida(), 2);
  set("tabViewIndex", 1.9);
  EXPECT_EQ(document.tabView().indexOfSelectedPage(), 1);
}

TEST_F(AProperty, refusesAValueOfTheWrongKindAndNothingHappens) {
  const ScriptValue none, yes = true, whole = std::int64_t{1}, real = 1.0, text = "1";
  for (const ScriptProperty& row : scriptProperties()) {
    const bool isNumber = row.kind == ValueKind::integer || row.kind == ValueKind::real;
    EXPECT_NE(refusal(row.key, yes), "") << row.key;
    if (isNumber) {
      EXPECT_NE(refusal(row.key, text), "") << row.key;
    } else {
      EXPECT_NE(refusal(row.key, whole), "") << row.key;
      EXPECT_NE(refusal(row.key, real), "") << row.key;
    }
    if (row.kind != ValueKind::date) {
      EXPECT_NE(refusal(row.key, none), "") << row.key;
    }
  }
  for (const char* day : {"10.04.2027", "2027-02-29", "4/10/27", "tomorrow", "2027-04", " 2027-04-10"})
    EXPECT_NE(refusal("edd", day), "") << day;
  EXPECT_THAT(platform.log.lines, IsEmpty());
  EXPECT_FALSE(document.isDocumentEdited());
  EXPECT_EQ(document.tabView().indexOfSelectedPage(), 0);
}

TEST_F(AProperty, isNamedWithItsKindAndUnitInARefusal) {
  EXPECT_EQ(refusal("bpd", "45"), "bpd: expected a number (mm)");
  EXPECT_EQ(refusal("gravida", true), "gravida: expected a number (pregnancies)");
  EXPECT_EQ(refusal("identifier", std::int64_t{1}), "identifier: expected a text");
  EXPECT_EQ(refusal("edd", "tomorrow"),
            "edd: expected an ISO 8601 date such as 2027-04-10, or an empty text for none (local time)");
  EXPECT_EQ(refusal("tabViewIndex", "1"), "tabViewIndex: expected a number (pages, counted from 0)");
}

}  // namespace
}  // namespace nascor::scripting
