// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/Names.h"

#include <gmock/gmock.h>

#include "Process.h"
#include "cli_commands/Command.h"

namespace nascor::tests {
namespace {

using cli::formulaFromText;
using cli::standardFromText;
using testing::HasSubstr;

TEST(NamesOfStandards, areNumbersAndWordsInLettersOfAnySize) {
  const char* const names[] = {"westerway", "hadlock", "schluter", "cfef"};
  for (std::int64_t i = 0; i < 4; ++i) {
    EXPECT_EQ(standardFromText(std::to_string(i)), i);
    EXPECT_EQ(standardFromText(names[i]), i);
  }
  EXPECT_EQ(standardFromText("CFEF"), 3);
  EXPECT_EQ(standardFromText("HadLock"), 1);
  EXPECT_EQ(standardFromText("+2"), 2);
  for (const char* none : {"", "4", "-1", "1.0", "0x1", "west", "westerway ", "hadlock1", "Schlüter", "all"})
    EXPECT_EQ(standardFromText(none), std::nullopt) << none;
}

TEST(NamesOfFormulas, areNumbersAndWordsInLettersOfAnySize) {
  const char* const names[] = {"hadlock1", "hadlock2", "hadlock3", "hadlock4",
                               "campbell", "combs",    "ott",      "shepard"};
  for (std::int64_t i = 0; i < 8; ++i) {
    EXPECT_EQ(formulaFromText(std::to_string(i)), i);
    EXPECT_EQ(formulaFromText(names[i]), i);
  }
  EXPECT_EQ(formulaFromText("Hadlock4"), 3);
  for (const char* none : {"", "8", "hadlock", "hadlock5", "hadlock 1"})
    EXPECT_EQ(formulaFromText(none), std::nullopt) << none;
}

TEST(NamesOfMeasures, areWordsInLettersOfAnySize) {
  EXPECT_EQ(cli::requiredMeasure("FL").length, calc::Measurement::fl);
  EXPECT_EQ(cli::requiredMeasure("EFW").length, std::nullopt);
  EXPECT_THROW(cli::requiredMeasure("0"), cli::UsageError);
  EXPECT_THROW(cli::requiredMeasure("crl"), cli::UsageError);
}

TEST(Names, meanTheSameOnEveryCommand) {
  EXPECT_EQ(run({"lookup", "CFEF", "BPD", "--mean", "20.5"}).out, "49.825\n");
  EXPECT_EQ(run({"lookup", "cfef", "Efw", "--mean", "20", "--formula", "Campbell"}).out,
            run({"lookup", "3", "efw", "--mean", "20", "--formula", "4"}).out);
  EXPECT_EQ(run({"standard", "Schluter", "--measurement", "HC", "--json"}).out,
            run({"standard", "2", "--measurement", "hc", "--json"}).out);
}

TEST(Names, areListedWhereNoneIsMeant) {
  const Outcome standard = run({"standard", "westway"});
  EXPECT_EQ(standard.status, 2);
  EXPECT_THAT(standard.err, HasSubstr("N: expected westerway, hadlock, schluter, cfef or a whole number from "
                                      "0 to 3, but \"westway\" was given"));
  EXPECT_THAT(run({"lookup", "0", "efw", "--mean", "9", "--formula", "hadlock"}).err,
              HasSubstr("--formula: expected hadlock1, hadlock2, hadlock3, hadlock4, campbell, combs, ott, "
                        "shepard or a whole number from 0 to 7, but \"hadlock\" was given"));
}

}  // namespace
}  // namespace nascor::tests
