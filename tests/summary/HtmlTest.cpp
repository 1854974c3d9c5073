// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Html.h"

#include <gmock/gmock.h>

#include <string>

#include "Summarised.h"
#include "support/Examined.h"

namespace nascor::summary {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using tests::summarised;

constexpr calc::Biometry kAt20{.bpd = 50.0, .hc = 174.0, .ac = 154.4, .fl = 32.1};

model::PatientRecord patient() {
  model::PatientRecord record = tests::examined({{20.0, {kAt20}}});
  record.setMaternalIDString("AB-123");
  record.setGravida(2);
  record.setNumberOfFetuses(1);
  record.setExtrapolatedGestation(40.0);
  return record;
}

std::size_t countOf(const std::string& part, const std::string& text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(TheHtml, saysWhatItIs) {
  const std::string html = htmlText(summarised(patient(), {.letterhead = {"Ward 3"}, .examiner = "Dr. Eve"}));
  EXPECT_THAT(html,
              testing::StartsWith("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">"));
  EXPECT_THAT(html, AllOf(HasSubstr("<title>Fetal biometry summary, AB-123 (G2)</title>"),
                          HasSubstr("<meta name=\"author\" content=\"Dr. Eve\">"), HasSubstr("<p>Ward 3</p>"),
                          HasSubstr("<h1>Fetal biometry summary</h1>"),
                          HasSubstr("<h2>AB-123 (G2) \u00b7 Singleton</h2>"),
                          HasSubstr("Not a medical device. Not validated for clinical use.")));
}

TEST(TheHtml, hasTablesWithCaptionAndHeads) {
  const std::string html = htmlText(summarised(patient()));
  EXPECT_THAT(html, AllOf(HasSubstr("<caption>Lengths: z and centile by Westerway (ASUM 2001)."),
                          HasSubstr("<th class=\"g\" scope=\"colgroup\" colspan=\"3\">BPD</th>"),
                          HasSubstr("<th class=\"n\" scope=\"col\">mm</th>"),
                          HasSubstr("<th scope=\"row\">21 November 2026</th>"),
                          HasSubstr("<td class=\"n\">50.0</td><td class=\"n\">+1.36</td>")));
  EXPECT_EQ(countOf("<table", html), countOf("</table>", html));
}

TEST(TheHtml, putsItsChartsIntoWords) {
  const std::string html = htmlText(summarised(patient()));
  EXPECT_EQ(countOf("<svg", html), 5U);
  EXPECT_THAT(html, HasSubstr("role=\"img\" aria-label=\"BPD (mm): 20w 0d 50.0\""));
}

TEST(TheHtml, takesNoOrdersFromATextFromOutside) {
  model::PatientRecord record = patient();
  record.setMaternalIDString("<script>alert(1)</script>\u202E&\"\x1b[2J");
  record.ncRecordsArray()[0]->setNote("<img src=x onerror=alert(2)>\u2066");
  const std::string html =
      htmlText(summarised(record, {.letterhead = {"</header><b>"}, .examiner = "\"><i>"}));
  EXPECT_THAT(html, AllOf(Not(HasSubstr("<script")), Not(HasSubstr("<img")), Not(HasSubstr("<b>")),
                          Not(HasSubstr("<i>")), Not(HasSubstr("\x1b")), Not(HasSubstr("\u202E")),
                          Not(HasSubstr("\u2066"))));
  EXPECT_THAT(html, HasSubstr("&lt;script&gt;alert(1)&lt;/script&gt;\\u202e&amp;&quot;\\x1b[2J"));
}

TEST(TheHtml, hasTheSameBytesAtTheSameMoment) {
  EXPECT_EQ(htmlText(summarised(patient())), htmlText(summarised(patient())));
}

}  // namespace
}  // namespace nascor::summary
