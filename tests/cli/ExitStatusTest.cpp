// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

#include "Process.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string kNotAMedicalDevice = "Not a medical device. Not validated for clinical use.";

TEST(Usage, helpAndVersionSayThatThisIsNoMedicalDevice) {
  for (const auto& arguments : {std::vector<std::string>{"--help"},
                                {"-h"},
                                {"--version"},
                                {"report", "--help"},
                                {"make", "-h"},
                                {"lookup", "--help"},
                                {"check", "--help"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 0) << arguments[0];
    EXPECT_EQ(outcome.err, "") << arguments[0];
    EXPECT_THAT(outcome.out, HasSubstr(kNotAMedicalDevice)) << arguments[0];
    const auto lines = linesOf(outcome.out);
    const auto line = std::find(lines.begin(), lines.end(), kNotAMedicalDevice);
    EXPECT_LT(line - lines.begin(), 20) << "on the first screen";
  }
}

TEST(Usage, helpNamesEveryCommand) {
  const std::string help = run({"--help"}).out;
  for (const char* command : {"report", "weight", "crl", "standard", "lookup", "reference", "compare",
                              "self-test", "make", "json", "check", "dump"}) {
    EXPECT_THAT(help, HasSubstr("\n  " + std::string(command) + " "));
    EXPECT_THAT(run({command, "--help"}).out, StartsWith("usage: nascor-cli " + std::string(command) + " "));
  }
}

TEST(Usage, helpExplainsOneCommand) {
  EXPECT_EQ(run({"help"}).out, run({"--help"}).out);
  EXPECT_EQ(run({"help", "lookup"}).out, run({"lookup", "--help"}).out);
  EXPECT_THAT(run({"--help"}).out, HasSubstr("\n  help "));
}

struct Mistake {
  const char* name;
  std::vector<std::string> arguments;
  const char* sentence;
};
class AMistake : public testing::TestWithParam<Mistake> {};

TEST_P(AMistake, isAnsweredByTheNameThatWasMeant) {
  const Outcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(linesOf(outcome.err).at(0), std::string("nascor-cli: ") + GetParam().sentence);
}

INSTANTIATE_TEST_SUITE_P(
    table, AMistake,
    testing::Values(
        Mistake{"swapped", {"jsno", "x"}, "there is no command \"jsno\"; did you mean \"json\"?"},
        Mistake{"leftOut", {"lokup"}, "there is no command \"lokup\"; did you mean \"lookup\"?"},
        Mistake{"begun", {"rep"}, "there is no command \"rep\"; did you mean \"report\"?"},
        Mistake{
            "helpOnIt", {"help", "stndard"}, "there is no command \"stndard\"; did you mean \"standard\"?"},
        Mistake{"likeNone", {"frobnicate"}, "there is no command \"frobnicate\""},
        Mistake{"option", {"weight", "--jso"}, "there is no option \"--jso\"; did you mean \"--json\"?"},
        Mistake{"optionWithValue",
                {"standard", "0", "--measure=bpd"},
                "there is no option \"--measure\"; did you mean \"--measurement\"?"},
        Mistake{"ofTheProgram", {"--verson"}, "there is no option \"--verson\"; did you mean \"--version\"?"},
        Mistake{"oneDash",
                {"check", "-verbose", "x"},
                "there is no option \"-verbose\"; did you mean \"--verbose\"?"},
        Mistake{"optionLikeNone", {"weight", "--ac", "3", "--frob"}, "there is no option \"--frob\""},
        Mistake{"twoAtOnce", {"help", "json", "make"}, "help explains one command"}),
    [](const auto& row) { return std::string(row.param.name); });

struct WrongCase {
  const char* name;
  std::vector<std::string> arguments;
  const char* sentence;  ///< the first line on standard error holds it
};
class WrongUsage : public testing::TestWithParam<WrongCase> {};

TEST_P(WrongUsage, endsWithStatusTwoASentenceAndTheRightUsage) {
  const Outcome outcome = run(GetParam().arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  const auto lines = linesOf(outcome.err);
  ASSERT_GE(lines.size(), 2U);
  EXPECT_THAT(lines[0], StartsWith("nascor-cli: "));
  EXPECT_THAT(lines[0], HasSubstr(GetParam().sentence));
  EXPECT_THAT(lines[1], StartsWith("usage: nascor-cli "));
}

INSTANTIATE_TEST_SUITE_P(
    table, WrongUsage,
    testing::Values(
        WrongCase{"nothing", {}, "a command is missing"},
        WrongCase{"unknownCommand", {"frobnicate"}, "frobnicate"},
        WrongCase{"unknownOption", {"weight", "--ac", "3", "--frob"}, "--frob"},
        WrongCase{"noFile", {"report"}, "FILE... is missing"},
        WrongCase{"noFileForMake", {"make"}, "FILE.json is missing"},
        WrongCase{"twoFilesForMake", {"make", "a", "b"}, "\"b\" is one argument too many"},
        WrongCase{"noLength", {"weight"}, "a length is missing"},
        WrongCase{"noValue", {"weight", "--ac"}, "--ac"},
        WrongCase{"optionAsValue", {"weight", "--ac", "--json"}, "--ac: expected a decimal number"},
        WrongCase{"twice", {"weight", "--ac", "3", "--ac", "4"}, "--ac"},
        WrongCase{"flagWithValue", {"weight", "--ac", "3", "--json=false"}, "--json takes no value"},
        WrongCase{"hexadecimal", {"weight", "--ac", "0x10"}, "expected a decimal number, but \"0x10\""},
        WrongCase{"hexadecimalOperand", {"crl", "45", "0x10"}, "\"0x10\""},
        WrongCase{"list", {"crl", "[45]"}, "\"[45]\""},
        WrongCase{"comma", {"weight", "--ac", "3,5"}, "\"3,5\""},
        WrongCase{"notFinite", {"weight", "--ac", "nan"}, "\"nan\""},
        WrongCase{"tooLarge", {"weight", "--ac", "1e400"}, "\"1e400\""},
        WrongCase{"empty", {"weight", "--ac="}, ""}, WrongCase{"noStandard", {"standard"}, "N is missing"},
        WrongCase{"unknownStandard", {"standard", "4"}, "a whole number from 0 to 3, but \"4\""},
        WrongCase{"negativeStandard", {"standard", "-1"}, "\"-1\""},
        WrongCase{"hexadecimalStandard", {"standard", "0x1"}, "\"0x1\""},
        WrongCase{"brokenStandard", {"standard", "1.0"}, "\"1.0\""},
        WrongCase{"hugeStandard", {"standard", "18446744073709551616"}, "from 0 to 3"},
        WrongCase{"unknownMeasurement", {"standard", "0", "--measurement", "crl"}, "expected bpd, hc"},
        WrongCase{"weightWithoutFormula", {"standard", "0", "--measurement", "efw"}, "efw needs --formula"},
        WrongCase{"unknownFormula", {"lookup", "0", "efw", "--mean", "9", "--formula", "8"}, "from 0 to 7"},
        WrongCase{"noQuestion", {"lookup", "0", "bpd"}, "one of --mean, --sd and --gestation is missing"},
        WrongCase{"twoQuestions", {"lookup", "0", "bpd", "--mean", "9", "--sd", "9"}, "exclude each other"},
        WrongCase{"lineEnd", {"weight", "--ac", "3\nx"}, "3\\nx"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Operands, behindTwoDashesAreNoOptions) {
  const Outcome outcome = run({"json", "--", "--help", "-x"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "--help: No such file or directory\n-x: No such file or directory\n");
  EXPECT_EQ(run({"json", "a", "--", "-x"}).err,
            "a: No such file or directory\n-x: No such file or directory\n");
}

TEST(Operands, areFilesEvenWhenTheyLookLikeSomethingElse) {
  const Outcome outcome = run({"json", "json", "[a,b]", "", "{}", "%%", "/x"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "json: No such file or directory\n[a,b]: No such file or directory\n: No such file or directory\n"
            "{}: No such file or directory\n%%: No such file or directory\n/x: No such file or directory\n");
}

TEST(BadInput, isNamedAndTheRestIsStillDone) {
  const ScratchFolder folder;
  const std::string good = folder.write("good.nascor", document("{}"));
  const std::string bad = folder.write("bad.nascor", "This is no document.");
  for (const char* command : {"report", "json", "check", "dump"}) {
    std::vector<std::string> arguments{command, folder.path("none"), bad, folder.path("."), good};
    if (std::string(command) != "json") arguments.emplace_back("--json");
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 1) << command;
    EXPECT_EQ(linesOf(outcome.out).size(), 1U) << command;
    const auto errors = linesOf(outcome.err);
    ASSERT_EQ(errors.size(), 3U) << command << outcome.err;
    EXPECT_EQ(errors[0], folder.path("none") + ": No such file or directory");
    const std::string place = "at byte 0: expected ";
    const std::string sentence = std::string(command) == "dump" ? place : "not a Nascor document (" + place;
    EXPECT_THAT(errors[1], StartsWith(bad + ": " + sentence));
    EXPECT_EQ(errors[2], folder.path(".") + ": Is a directory");
  }
}

TEST(BadInput, withoutAPatientIsBad) {
  const std::string nilRoot = std::string("\x04\x0Bstreamtyped\x81\xE8\x03\x84\x01@\x85", 20);
  const Outcome outcome = run({"report", "-"}, nilRoot);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "standard input: holds no patient\n");
  EXPECT_EQ(run({"dump", "-", "--json"}, nilRoot).out,
            "{\"byte_order\":\"little\",\"system_version\":1000,\"groups\":[{\"types\":\"@\",\"values\":["
            "null]}]}\n");
}

TEST(BadInput, staysOnOneLineWhateverTheFileIsCalled) {
  const Outcome outcome = run({"json", "a\nb\x1B[2J"});
  EXPECT_EQ(outcome.err, "a\\nb\\x1b[2J: No such file or directory\n");
}

TEST(StandardOutput, thatIsFullIsAnErrorInASentence) {
  for (const auto& arguments :
       {std::vector<std::string>{"crl", "45"}, {"--help"}, {"--version"}, {"make", "-"}}) {
    const int full = ::open("/dev/full", O_WRONLY);
    const Outcome outcome = run(Call{.arguments = arguments, .input = "{}", .zone = {}, .outputFile = full});
    ::close(full);
    EXPECT_EQ(outcome.status, 1) << arguments[0];
    EXPECT_EQ(outcome.err, "nascor-cli: standard output: No space left on device\n") << arguments[0];
  }
}

TEST(StandardOutput, whoseReaderIsGoneNeedsNoWords) {
  for (const auto handling : {SIG_DFL, SIG_IGN}) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    const auto before = ::signal(SIGPIPE, handling);  // the program inherits what is ignored
    const Outcome outcome =
        run(Call{.arguments = {"standard", "0"}, .input = {}, .zone = {}, .outputFile = ends[1]});
    ::signal(SIGPIPE, before);
    ::close(ends[1]);
    EXPECT_EQ(outcome.status, handling == SIG_IGN ? 1 : 128 + SIGPIPE);
    EXPECT_EQ(outcome.err, "");
  }
}

TEST(StandardOutput, thatIsATerminalGetsNoDocument) {
  const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_GE(terminal, 0) << "needs a terminal (/dev/pts)";
  ASSERT_EQ(::grantpt(terminal), 0);
  ASSERT_EQ(::unlockpt(terminal), 0);
  const int other = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
  const Outcome outcome =
      run(Call{.arguments = {"make", "-"}, .input = "{}", .zone = {}, .outputFile = other});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, HasSubstr("--out FILE"));

  const ScratchFolder folder;
  const Outcome toFile = run(Call{.arguments = {"make", "-", "--out", folder.path("x.nascor")},
                                  .input = "{}",
                                  .zone = {},
                                  .outputFile = other});
  EXPECT_EQ(toFile.status, 0) << toFile.err;
  ::close(other);
  ::close(terminal);
}

}  // namespace
}  // namespace nascor::tests
