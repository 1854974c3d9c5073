#include <gmock/gmock.h>

#include "Process.h"

namespace nascor::tests {
namespace {

const std::string kFolder = NASCOR_SAMPLES "/";

class Sample : public testing::TestWithParam<const char*> {};

TEST_P(Sample, isWhatItsJsonMakes) {
  // The JSON holds days; their midnights are those of UTC.
  const std::string name = kFolder + GetParam();
  const Outcome made = run(Call{.arguments = {"make", name + ".json"}, .input = {}, .zone = "UTC"});
  EXPECT_EQ(made.status, 0);
  EXPECT_EQ(made.err, "");
  EXPECT_GT(made.out.size(), 100U);
  EXPECT_EQ(made.out, contentsOfFile(name + ".nascor"));
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
