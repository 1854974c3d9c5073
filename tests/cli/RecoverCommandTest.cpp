// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "Process.h"

namespace nascor::tests {
namespace {

const std::string kSaved =
    R"({"maternalIDString":"AB-1","gravida":1,"examinations":[{"measurements":[{"bpd":40}]}]})";
const std::string kEdited =
    R"({"maternalIDString":"AB-1","gravida":2,"numberOfFetuses":1,"examinations":[{"note":"n","measurements":[{"bpd":41}]},{}]})";

class RecoverCommand : public testing::Test {
 protected:
  RecoverCommand() {
    ::setenv("XDG_STATE_HOME", state_.path("state").c_str(), 1);
    std::filesystem::create_directories(state_.path("state/nascor/recovery"));
  }
  ~RecoverCommand() override { ::unsetenv("XDG_STATE_HOME"); }

  /// Writes a file of the recovery folder, last changed at noon on 22 November 2026 (UTC), and answers its path.
  std::string keep(const std::string& name, const std::string& contents) const {
    const std::string path = state_.write("state/nascor/recovery/" + name, contents);
    const timespec noon{.tv_sec = 1795348800, .tv_nsec = 0};
    const std::array times{noon, noon};
    EXPECT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    return path;
  }

  ScratchFolder state_;
};

TEST_F(RecoverCommand, listsNothingWhereNothingIsKept) {
  std::filesystem::remove_all(state_.path("state"));
  const Outcome outcome = run({"recover"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out + outcome.err, "");
}

TEST_F(RecoverCommand, listsWhatIsKeptAndWhatDiffers) {
  const std::string own = state_.write("AB-1.nascor", document(kSaved));
  const std::string kept = keep("17-1.nascor", document(kEdited));
  keep("17-1.origin", own);
  const Outcome outcome = run({"recover"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out,
            "{\"recovery\":\"" + kept + "\",\"document\":\"" + own +
                "\",\"patient\":\"AB-1\",\"saved\":817041600,\"fetuses\":1,\"examinations\":2,\"differs\":["
                "\"gravida\",\"examinations[0].note\",\"examinations[0].measurements[0].bpd\",\"examinations["
                "1]\"]}\n");
}

TEST_F(RecoverCommand, namesNoDocumentOfOneThatWasNeverSaved) {
  keep("17-1.nascor", document(kSaved));
  EXPECT_THAT(run({"recover"}).out, testing::HasSubstr("\"document\":null,\"patient\":\"AB-1\""));
}

TEST_F(RecoverCommand, complainsOfADamagedFileAndListsTheOthers) {
  const std::string bad = keep("17-1.nascor", document(kEdited).substr(0, 90));
  keep("17-2.nascor", document(kEdited));
  const Outcome outcome = run({"recover"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, testing::StartsWith(bad + ": not a Nascor document"));
  EXPECT_EQ(linesOf(outcome.out).size(), 1U);
  EXPECT_TRUE(std::filesystem::exists(bad));
}

TEST_F(RecoverCommand, writesAKeptDocumentAndLeavesItWhereItIs) {
  const std::string kept = keep("17-1.nascor", document(kEdited));
  const std::string target = state_.path("recovered.nascor");
  const Outcome outcome = run({"recover", kept, "--out", target});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(contentsOfFile(target), document(kEdited));
  EXPECT_TRUE(std::filesystem::exists(kept));
  EXPECT_EQ(run({"json", kept}).out, run({"json", target}).out);
}

TEST_F(RecoverCommand, writesNothingOfAFileThatIsNoDocument) {
  const std::string bad = keep("17-1.nascor", "no document");
  const std::string target = state_.path("recovered.nascor");
  EXPECT_EQ(run({"recover", bad, "--out", target}).status, 1);
  EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(RecoverCommand, isExplainedWhereItIsCalledWrongly) {
  EXPECT_EQ(run({"recover", "a.nascor"}).status, 2);
  EXPECT_EQ(run({"recover", "--out", "a.nascor"}).status, 2);
}

}  // namespace
}  // namespace nascor::tests
