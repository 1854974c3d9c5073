// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "Process.h"

namespace nascor::tests {
namespace {

const std::string kFolder = NASCOR_SAMPLES "/";

class Sample : public testing::TestWithParam<const char*> {};

TEST_P(Sample, isWhatItsJsonMakes) {
  const std::string name = kFolder + GetParam();
  const Outcome made = run(Call{.arguments = {"make", name + ".json"}, .input = {}, .zone = ""});
  EXPECT_EQ(made.status, 0);
  EXPECT_EQ(made.err, "");
  EXPECT_GT(made.out.size(), 100U);
  EXPECT_EQ(made.out, contentsOfFile(name + ".nascor"));
}

// No moment is on the same day from eleven hours behind Greenwich to fourteen before it. Ten in the morning is from
// Hawaii to New Zealand and Samoa.
TEST_P(Sample, hasTheSameDaysOnBothSidesOfGreenwich) {
  const std::string name = kFolder + GetParam() + ".nascor";
  const auto report = [&](const char* zone) {
    return run(Call{.arguments = {"report", name}, .input = {}, .zone = zone}).out;
  };
  const std::string inGreenwich = report("UTC");
  EXPECT_GT(inGreenwich.size(), 100U);
  for (const char* zone :
       {"Pacific/Honolulu", "America/New_York", "Europe/Berlin", "Asia/Kolkata", "Asia/Tokyo",
        "Australia/Sydney", "Pacific/Auckland", "Pacific/Chatham", "Pacific/Apia"})
    EXPECT_EQ(report(zone), inGreenwich) << zone;
}

TEST_P(Sample, isWithoutOdditiesButAMissingEdd) {
  const std::string name = kFolder + GetParam() + ".nascor";
  const Outcome outcome = run({"check", name});
  EXPECT_EQ(outcome.out, GetParam() == std::string("no-edd") ? name + ": the EDD is missing\n" : "");
}

INSTANTIATE_TEST_SUITE_P(table, Sample,
                         testing::Values("singleton", "twins", "triplets", "no-edd", "quintuplets"));

}  // namespace
}  // namespace nascor::tests
