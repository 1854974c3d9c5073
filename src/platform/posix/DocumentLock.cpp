// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/DocumentLock.h"

#include <array>
#include <atomic>
#include <charconv>
#include <ctime>
#include <map>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <pwd.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "posix/Descriptor.h"
#include "posix/Machine.h"
#include "posix/NewFile.h"

namespace nascor::posix {
namespace {

using foundation::FileClaim;
using foundation::FileHolder;
using foundation::FileStore;

constexpr mode_t kOwnersAlone = S_IRUSR | S_IWUSR;
constexpr double kUnixTimeOf2001 = 978307200.0;

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

std::string nameOfUser(uid_t user) {
  std::array<char, 4096> room{};
  struct passwd entry {};
  struct passwd* found = nullptr;
  if (::getpwuid_r(user, &entry, room.data(), room.size(), &found) == 0 && found != nullptr)
    return entry.pw_name;
  return std::to_string(user);
}

/// A lock file that was there when it was opened.
struct Opened {
  Descriptor file{};
  struct stat status {};
  std::string text{};
};

/// Its text is empty where this user may not read it. Nothing where there is none.
std::optional<Opened> openLock(const std::string& path) {
  Opened opened;
  if (::lstat(path.c_str(), &opened.status) != 0) return std::nullopt;
  const int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
  // Some shares lock only what may be written.
  for (const int access : {O_RDWR, O_RDONLY}) {
    opened.file = Descriptor(uninterrupted([&] { return ::open(path.c_str(), access | flags); }));
    if (opened.file.isOpen()) break;
    if (errno == ENOENT) return std::nullopt;
  }
  if (!opened.file.isOpen() || ::fstat(opened.file.number(), &opened.status) != 0 ||
      !S_ISREG(opened.status.st_mode))
    return opened;
  std::array<char, 4096> room{};
  const ssize_t length =
      uninterrupted([&] { return ::pread(opened.file.number(), room.data(), room.size(), 0); });
  if (length > 0) opened.text.assign(room.data(), static_cast<std::size_t>(length));
  return opened;
}

/// Whether the program that left the lock runs no more, as far as this machine can tell.
bool isAbandoned(const Opened& lock) {
  if (!lock.file.isOpen()) return false;
  const LockRecord record = lockRecordIn(lock.text);
  if (record.process <= 0) {
    // Its writer was killed before it wrote, or is just about to.
    constexpr time_t kLongestWrite = 60;
    return S_ISREG(lock.status.st_mode) && ::time(nullptr) - lock.status.st_mtime > kLongestWrite;
  }
  const Machine& machine = thisMachine();
  if (!record.boot.empty() && record.boot == machine.boot) {
    if (record.space != machine.space) return false;
    const std::int64_t started = startOfProcess(static_cast<pid_t>(record.process));
    return started == 0 || (started > 0 && record.started > 0 && started != record.started);
  }
  // This machine was started again since.
  return !record.machine.empty() && record.machine == machine.mark && record.host == machine.host &&
         !record.boot.empty() && !machine.boot.empty();
}

FileHolder holderOf(const Opened& lock) {
  const LockRecord record = lockRecordIn(lock.text);
  const Machine& machine = thisMachine();
  const bool isKnown = record.process > 0;
  const auto since = static_cast<double>(isKnown ? record.since : lock.status.st_mtim.tv_sec);
  return {.user = isKnown ? record.user : nameOfUser(lock.status.st_uid),
          .host = record.host,
          .process = record.process,
          .since = {since - kUnixTimeOf2001},
          .mayBeGone = record.boot.empty() || record.boot != machine.boot || record.space != machine.space};
}

/// Removes that lock file, if it still is the one at `path`. False while another program removes it.
bool removeLock(const std::string& path, const Opened& lock) {
  if (lock.file.isOpen() && ::flock(lock.file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
    return false;
  struct stat named {};
  if (::lstat(path.c_str(), &named) == 0 && named.st_ino == lock.status.st_ino &&
      named.st_dev == lock.status.st_dev) {
    ::unlink(path.c_str());
  }
  return true;
}

class Lock final : public foundation::FileLock {
 public:
  Lock(std::string path, std::string text) : path_(std::move(path)), text_(std::move(text)) {}
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  ~Lock() override {
    const auto lock = openLock(path_);
    // Another user may have taken it in any case.
    if (lock && lock->text == text_) removeLock(path_, *lock);
  }
  bool isHeld() const override {
    const auto lock = openLock(path_);
    return lock && lock->text == text_;
  }

 private:
  std::string path_;
  std::string text_;
};

bool writeWhole(int file, std::string_view text) {
  return uninterrupted([&] { return ::write(file, text.data(), text.size()); }) ==
         static_cast<ssize_t>(text.size());
}

/// Who may write a document may read who has it open; other people may not.
mode_t modeBeside(const struct stat* document) {
  mode_t mode = kOwnersAlone;
  if (document == nullptr) return mode;
  if ((document->st_mode & 0060) == 0060) mode |= S_IRGRP;
  if ((document->st_mode & 0006) == 0006) mode |= S_IROTH;
  return mode;
}

enum class Made { yes, isThere, cannot };

Made makeLock(const std::string& path, std::string_view text, mode_t mode) {
  NewFile fresh(folderOf(path), false);
  if (!fresh.isOpen()) return Made::cannot;
  if (!writeWhole(fresh.number(), text)) return Made::cannot;
  ::fchmod(fresh.number(), mode);  // without which it is its owner's alone
  if (fresh.becomeNew(path)) return Made::yes;
  if (errno == EEXIST) return Made::isThere;
  if (fresh.hasName()) return Made::cannot;
  NewFile named(folderOf(path), true);
  if (!named.isOpen() || !writeWhole(named.number(), text)) return Made::cannot;
  ::fchmod(named.number(), mode);
  if (named.becomeNew(path)) return Made::yes;
  return errno == EEXIST ? Made::isThere : Made::cannot;
}

}  // namespace

std::string textOf(const LockRecord& record) {
  std::ostringstream text;
  text << "user=" << record.user << "\nhost=" << record.host << "\nmachine=" << record.machine
       << "\nboot=" << record.boot << "\nspace=" << record.space << "\nprocess=" << record.process
       << "\nstarted=" << record.started << "\nsince=" << record.since << "\nnumber=" << record.number
       << "\n";
  return text.str();
}

LockRecord lockRecordIn(const std::string& text) {
  std::map<std::string, std::string> values;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t equals = line.find('=');
    if (equals != std::string::npos) values.emplace(line.substr(0, equals), line.substr(equals + 1));
  }
  const auto number = [&](const char* name) {
    const std::string& digits = values[name];
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() && end == digits.data() + digits.size() ? value : 0;
  };
  return {.user = values["user"],
          .host = values["host"],
          .machine = values["machine"],
          .boot = values["boot"],
          .space = values["space"],
          .process = number("process"),
          .started = number("started"),
          .since = number("since"),
          .number = number("number")};
}

LockRecord ownLockRecord() {
  static std::atomic<std::int64_t> last{0};
  const Machine& machine = thisMachine();
  return {.user = nameOfUser(::geteuid()),
          .host = machine.host,
          .machine = machine.mark,
          .boot = machine.boot,
          .space = machine.space,
          .process = ::getpid(),
          .started = startOfProcess(::getpid()),
          .since = ::time(nullptr),
          .number = ++last};
}

std::string lockPathOf(const std::string& path) {
  constexpr std::size_t kLongestName = 255;
  constexpr std::string_view kExtension = ".lock";
  std::string name = path.substr(path.rfind('/') + 1);
  if (name.size() + 1 + kExtension.size() > kLongestName) {
    constexpr std::size_t kKept = 200;
    std::size_t end = kKept;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U) --end;  // within a character
    name = name.substr(0, end) + "-" + digest(name);
  }
  return folderOf(path) + "." + name.append(kExtension);
}

FileClaim claimDocument(const std::string& path, FileStore::Claim wish) {
  struct stat document {};
  const bool isThere = ::stat(path.c_str(), &document) == 0;
  if (isThere && (!S_ISREG(document.st_mode) || ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0))
    return {};
  const std::string lockPath = lockPathOf(path);
  const std::string text = textOf(ownLockRecord());
  constexpr int kMostTries = 1000;
  for (int i = 0; i < kMostTries; ++i) {
    const Made made = makeLock(lockPath, text, modeBeside(isThere ? &document : nullptr));
    if (made == Made::yes) return {.lock = std::make_unique<Lock>(lockPath, text)};
    const auto other = openLock(lockPath);
    if (!other) {
      if (made == Made::cannot) return {};
      continue;
    }
    if (wish == FileStore::Claim::ifFree && !isAbandoned(*other)) return {.holder = holderOf(*other)};
    if (!removeLock(lockPath, *other)) ::sched_yield();
  }
  const auto other = openLock(lockPath);
  // One that is left and cannot be removed keeps no document from its user.
  return other && !isAbandoned(*other) ? FileClaim{.holder = holderOf(*other)} : FileClaim{};
}

}  // namespace nascor::posix
