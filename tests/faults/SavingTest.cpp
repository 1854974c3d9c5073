// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Every call that a save makes of the operating system fails, in each way, once and from then on, is interrupted, writes a part,
// and is the last one of the program: the command line and the application's documents.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace nascor::tests {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr std::array kErrors{EIO, ENOSPC, EDQUOT, EACCES, EPERM, EROFS, ESTALE, ENOMEM};

std::string textOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}
void write(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

using Settings = std::vector<std::string>;

struct Outcome {
  int status = -1;  ///< the exit status, or 128 and the signal
  std::string out;
  std::string err;
};

class ASave : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "nascor-faults-XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    place_ = fs::canonical(pattern);
    fs::create_directory(place_ + "/documents");
    write(
        place_ + "/old.json",
        R"({"maternalIDString":"OLD","gravida":1,"numberOfFetuses":1,"examinations":[{"measurements":[{"bpd":40}]}]})");
    write(place_ + "/new.json", R"({"maternalIDString":"NEW","gravida":2,"numberOfFetuses":1})");
    write(place_ + "/next.json", R"({"maternalIDString":"NEXT","gravida":3,"numberOfFetuses":1})");
    for (const char* name : {"old", "new", "next"}) {
      ASSERT_EQ(make(name, path(name) + ".nascor", {}).status, 0);
      // Written by another name, lest a lock or a leftover of it be taken for one of the save.
      contents_.push_back(textOf(path(name) + ".nascor"));
    }
  }
  void TearDown() override {
    if (!place_.empty()) fs::remove_all(place_);
  }

  std::string path(const std::string& name) const { return place_ + "/" + name; }
  std::string target() const { return place_ + "/documents/AB-1.nascor"; }
  const std::string& old() const { return contents_[0]; }

  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(place_ + "/documents"))
      found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
  }
  bool hasLeftovers() const {
    return std::ranges::any_of(names(), [](const std::string& name) { return name.starts_with(".nascor-"); });
  }

  Outcome run(const std::vector<std::string>& words, const std::string& input, const Settings& settings,
              rlim_t largestFile = RLIM_INFINITY) const {
    write(path("in"), input);
    const pid_t child = ::fork();
    if (child == 0) {
      const auto redirect = [](const std::string& file, int flags, int number) {
        const int opened = ::open(file.c_str(), flags, 0600);
        ::dup2(opened, number);
        ::close(opened);
      };
      redirect(path("in"), O_RDONLY, STDIN_FILENO);
      redirect(path("out"), O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
      redirect(path("err"), O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
      ::setenv("NASCOR_FAULT_FOLDER", (place_ + "/documents").c_str(), 1);
      // What a program that is killed leaves behind goes with the test.
      ::setenv("TMPDIR", place_.c_str(), 1);
      for (const std::string& setting : settings) {
        const std::size_t equals = setting.find('=');
        ::setenv(setting.substr(0, equals).c_str(), setting.substr(equals + 1).c_str(), 1);
      }
      if (!settings.empty()) ::setenv("LD_PRELOAD", NASCOR_FAULTY_CALLS, 1);
      if (largestFile != RLIM_INFINITY) {
        const rlimit limit{.rlim_cur = largestFile, .rlim_max = largestFile};
        ::setrlimit(RLIMIT_FSIZE, &limit);
      }
      std::vector<char*> arguments;
      for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
      arguments.push_back(nullptr);
      ::execv(arguments[0], arguments.data());
      ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
            .out = textOf(path("out")),
            .err = textOf(path("err"))};
  }

  Outcome make(const std::string& name, const std::string& out, const Settings& settings,
               rlim_t largestFile = RLIM_INFINITY) const {
    return run({NASCOR_CLI, "make", path(name) + ".json", "--out", out}, "", settings, largestFile);
  }

  /// A save of a new state over the old one.
  virtual Outcome save(const Settings& settings) = 0;
  /// Whether the program says that it has saved.
  virtual bool isSaidToBeSaved(const Outcome& outcome) const = 0;
  /// Whether it says that it has not.
  virtual bool isSaidToHaveFailed(const Outcome& outcome) const = 0;

  void begin() const {
    for (const std::string& name : names()) fs::remove(place_ + "/documents/" + name);
    write(target(), old());
  }

  /// The calls of a save that goes well, in order.
  std::vector<std::string> callsOfASave(const Settings& more) {
    begin();
    fs::remove(path("log"));
    Settings settings{"NASCOR_FAULT_LOG=" + path("log")};
    settings.insert(settings.end(), more.begin(), more.end());
    const Outcome outcome = save(settings);
    EXPECT_TRUE(isSaidToBeSaved(outcome)) << outcome.out << outcome.err;
    EXPECT_THAT(names(), ElementsAre("AB-1.nascor"));
    saved_ = textOf(target());
    EXPECT_NE(saved_, old());
    std::vector<std::string> calls;
    std::ifstream log(path("log"));
    for (std::string line; std::getline(log, line);) calls.push_back(line);
    return calls;
  }

  enum class Must { succeed, tellTheTruth, die };

  void tryIt(const std::string& what, const std::string& call, const Settings& settings, Must must) {
    begin();
    const Outcome outcome = save(settings);
    const std::string after = textOf(target());
    const std::string said = what + " at " + call + ": " + outcome.out + outcome.err;
    EXPECT_TRUE(after == old() || after == saved_) << said;
    if (must == Must::die) {
      EXPECT_EQ(outcome.status, 128 + SIGKILL) << said;
    } else if (must == Must::succeed) {
      EXPECT_TRUE(isSaidToBeSaved(outcome)) << said;
    }
    if (must != Must::die) {
      EXPECT_NE(isSaidToBeSaved(outcome), isSaidToHaveFailed(outcome)) << said;
      EXPECT_TRUE(!isSaidToBeSaved(outcome) || after == saved_) << said;
      // What cannot be removed stays for the next save.
      const bool isRemoved = !what.ends_with("always") && call != "unlink";
      EXPECT_FALSE(isRemoved && hasLeftovers()) << said;
    }
    if (names() == std::vector<std::string>{"AB-1.nascor"}) return;
    ASSERT_EQ(make("next", target(), {}).status, 0) << said;
    EXPECT_EQ(textOf(target()), contents_[2]) << said;
    EXPECT_THAT(names(), ElementsAre("AB-1.nascor")) << "nothing outlives the next save: " << said;
  }

  void tryEverything(const Settings& more) {
    const std::vector<std::string> calls = callsOfASave(more);
    const char* needed[] = {"open", "write", "fsync", "rename", "close"};
    for (const char* call : needed) EXPECT_THAT(calls, testing::Contains(call));
    for (std::size_t at = 1; at <= calls.size() && !HasFailure(); ++at) {
      const auto settings = [&](const std::string& fault, int error) {
        Settings all{"NASCOR_FAULT_AT=" + std::to_string(at), "NASCOR_FAULT=" + fault,
                     "NASCOR_FAULT_ERROR=" + std::to_string(error)};
        all.insert(all.end(), more.begin(), more.end());
        return all;
      };
      const std::string call = calls[at - 1];
      const std::string place = call + " (" + std::to_string(at) + ")";
      for (const int error : kErrors) {
        for (const char* fault : {"once", "always"}) {
          tryIt(std::string(std::strerror(error)) + ", " + fault, call, settings(fault, error),
                Must::tellTheTruth);
        }
      }
      tryIt("interrupted", call, settings("once", EINTR), Must::tellTheTruth);
      if (call == "write") tryIt("in part", call, settings("short", 0), Must::succeed);
      tryIt("killed before", place, settings("kill-before", 0), Must::die);
      tryIt("killed after", place, settings("kill-after", 0), Must::die);
    }
  }

  std::string place_;
  std::vector<std::string> contents_;
  std::string saved_;  ///< what a save that goes well leaves
};

class ACommandsSave : public ASave {
 protected:
  Outcome save(const Settings& settings) override { return make("new", target(), settings); }
  bool isSaidToBeSaved(const Outcome& outcome) const override { return outcome.status == 0; }
  bool isSaidToHaveFailed(const Outcome& outcome) const override {
    return outcome.status == 1 && !outcome.err.empty();
  }
};

TEST_F(ACommandsSave, losesNothingWhateverFails) { tryEverything({}); }

TEST_F(ACommandsSave, losesNothingOnAFileSystemWithoutPermissionsAndLinks) {
  tryEverything({"NASCOR_FAULT_FAT=1"});
}

TEST_F(ACommandsSave, isToldToHaveFailedWhenTheFileGrowsTooLarge) {
  begin();
  const Outcome outcome = make("new", target(), {}, 120);
  EXPECT_EQ(outcome.status, 1) << "and not ended by a signal";
  EXPECT_THAT(outcome.err, testing::HasSubstr("File too large"));
  EXPECT_EQ(textOf(target()), old());
  EXPECT_THAT(names(), ElementsAre("AB-1.nascor"));
}

TEST_F(ACommandsSave, tellsWhenTheFolderIsNotFlushed) {
  const std::vector<std::string> calls = callsOfASave({});
  const auto last = std::find(calls.rbegin(), calls.rend(), "fsync");
  ASSERT_NE(last, calls.rend());
  begin();
  const Outcome outcome = save({"NASCOR_FAULT_AT=" + std::to_string(calls.rend() - last), "NASCOR_FAULT=once",
                                "NASCOR_FAULT_ERROR=" + std::to_string(EIO)});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, testing::HasSubstr("it may not outlast a power cut: Input/output error"));
  EXPECT_EQ(textOf(target()), saved_);
}

/// The application's own documents, over ports without a display.
class ADocumentsSave : public ASave {
 protected:
  Outcome save(const Settings& settings) override {
    return run({NASCOR_DRIVE},
               "{\"open\":\"" + target() + "\"}\n{\"edit\":[\"hcField\",\"150\"]}\n{\"save\":true}\n",
               settings);
  }
  bool isSaidToBeSaved(const Outcome& outcome) const override {
    return outcome.out.find("{\"saved\":true}") != std::string::npos;
  }
  bool isSaidToHaveFailed(const Outcome& outcome) const override {
    return outcome.out.find("{\"saved\":false}") != std::string::npos ||
           outcome.out.find("{\"error\":") != std::string::npos;
  }
};

TEST_F(ADocumentsSave, losesNothingWhateverFails) { tryEverything({}); }

}  // namespace
}  // namespace nascor::tests
