// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "Process.h"

namespace nascor::tests {
namespace {

const std::string kGood = R"({"maternalIDString":"A","edd":"2027-04-10","examinations":[
  {"examDate":"2026-11-22","measurements":[{"bpd":47.6}]}]})";
const std::string kOdd = R"({"maternalIDString":"A","numberOfFetuses":2,"edd":"2027-04-10","examinations":[
  {"examDate":"2026-11-22","measurements":[{"bpd":47.6},{"fl":201}]},{"examDate":"2026-11-21","measurements":[{}]}]})";

TEST(CheckCommand, saysNothingOfAGoodFile) {
  const Outcome outcome = run({"check", "-"}, document(kGood));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(run({"check", "-", "--verbose"}, document(kGood)).out, "standard input: ok\n");
}

TEST(CheckCommand, namesEachOddityInALineAndStillSucceeds) {
  const ScratchFolder folder;
  const std::string odd = folder.write("odd.nascor", document(kOdd));
  const std::string good = folder.write("good.nascor", document(kGood));
  const Outcome outcome = run({"check", "--verbose", odd, good});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, odd + ": examination 1, fetus 2: FL 201 mm is outside 0 to 200 mm\n" +  //
                             odd + ": examination 2: it is earlier than the one before it\n" +   //
                             odd + ": examination 2: it has 1 fetus, the patient 2\n" +          //
                             good + ": ok\n");
}

TEST(CheckCommand, saysALengthAsItWasTyped) {
  const std::string centimetres = R"({"edd":"2027-04-10","examinations":[
    {"examDate":"2026-11-22","measurements":[{"bpd":9.1}]}]})";
  EXPECT_THAT(run({"check", "-"}, document(centimetres)).out,
              testing::HasSubstr("BPD 9.1 mm is more than 4 SD below"));
}

TEST(CheckCommand, printsJson) {
  EXPECT_EQ(run({"check", "-", "--json"}, document(kGood)).out,
            "{\"file\":\"standard input\",\"oddities\":[]}\n");
  EXPECT_EQ(
      run({"check", "-", "--json"}, document(kOdd)).out,
      R"({"file":"standard input","oddities":[)"
      R"({"kind":"bounds","examination":1,"fetus":2,"text":"examination 1, fetus 2: FL 201 mm is outside 0 to 200 mm"},)"
      R"({"kind":"order","examination":2,"fetus":null,"text":"examination 2: it is earlier than the one before it"},)"
      R"({"kind":"fetusCount","examination":2,"fetus":null,"text":"examination 2: it has 1 fetus, the patient 2"}]})"
      "\n");
}

TEST(CheckCommand, looksAtTheBytesOfTheFileToo) {
  std::string bytes = document(kGood);
  bytes += "xyz";
  bytes.replace(bytes.find("Deprecated"), 10, "Deprecate!");
  bytes[bytes.find("NCRecord") + 8] = 2;
  EXPECT_EQ(run({"check", "-"}, bytes).out,
            "standard input: NCRecord has version 2, newer than 1\n"
            "standard input: the old place of the gravidity holds \"Deprecate!\"\n"
            "standard input: 3 bytes follow the patient\n");

  // Version 6 has no gravidity behind the CRL formula: the last group of one small whole number goes.
  std::string old = document(kGood);
  old[old.find("PatientRecord") + 13] = 6;
  old.erase(old.size() - 3, 2);
  EXPECT_EQ(run({"check", "-"}, old).out, "standard input: PatientRecord has version 6, older than 7\n");
}

TEST(CheckCommand, keepsAHostileTextOnItsLine) {
  std::string bytes = document(kGood);
  bytes.replace(bytes.find("Deprecated"), 10, "a\nb\x1B[2Jcde");
  EXPECT_EQ(run({"check", "-"}, bytes).out,
            "standard input: the old place of the gravidity holds \"a\\nb\\x1b[2Jcde\"\n");
}

}  // namespace
}  // namespace nascor::tests
