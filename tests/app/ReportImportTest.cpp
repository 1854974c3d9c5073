// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What is decided about reports is told by the stories.
#include "app/ReportImport.h"

#include <gmock/gmock.h>

#include "support/TestApplication.h"

namespace nascor::app {
namespace {

using foundation::Sentence;

/// Capital letters and the texts of the reports in French; all else is English.
class French final : public foundation::Localizer {
 public:
  std::string text(std::string_view /*table*/, std::string_view key) const override {
    if (key == "is not taken:") return "n\u2019est pas repris :";
    if (key == "a note is not taken") return "une note n\u2019est pas reprise";
    if (key == "the report holds no value") return "\u00e9chographe muet";
    if (key == "fetus %1: %2") return "f\u0153tus %1 : %2";
    return std::string(key);
  }
  foundation::ShortDateForm shortDateForm() const override { return {}; }
  std::string longDateText(const foundation::CivilDay& day) const override {
    return foundation::EnglishLocalizer().longDateText(day);
  }
  char decimalSign() const override { return ','; }
  std::string upperCased(std::string_view text) const override {
    return text == "\u00e9" ? "\u00c9" : foundation::EnglishLocalizer().upperCased(text);
  }
};

exchange::Findings aReport() {
  exchange::Findings findings;
  findings.patientID = "AB-123";
  findings.examDate = foundation::CivilDay{2026, 11, 13};
  findings.notTaken.push_back({.fetus = {},
                               .what = "note",
                               .value = {},
                               .unit = {},
                               .why = Sentence("Findings", "a note is not taken")});
  const auto silent = Sentence("Findings", "the report holds no value");
  findings.warnings = {silent, Sentence("Findings", "fetus %1: %2").with("A", silent)};
  return findings;
}

TEST(AReportThatIsImported, isSpokenOfInTheLanguageOfTheUser) {
  tests::TestApplication platform;
  const French french;
  const foundation::Services services{.clock = platform.clock,
                                      .calendar = platform.calendar,
                                      .localizer = french,
                                      .defaults = platform.defaults,
                                      .files = platform.files,
                                      .log = platform.log,
                                      .notifications = platform.notifications};
  NCDocument document({.services = services,
                       .alerts = platform.alerts,
                       .controller = platform.documents,
                       .panels = &platform.panels,
                       .pageWriter = &platform.pageWriter,
                       .printer = &platform.printer});
  document.windowControllerDidLoadNib();
  const ReportImport import(document, {aReport()});
  std::vector<std::string> outcomes;
  for (const auto& row : import.rows()) outcomes.push_back(row.outcome);
  EXPECT_THAT(outcomes, testing::ElementsAre("\u00c9chographe muet.", "F\u0153tus A : \u00e9chographe muet.",
                                             "n\u2019est pas repris : une note n\u2019est pas reprise"));
}

}  // namespace
}  // namespace nascor::app
