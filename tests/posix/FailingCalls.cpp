// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "FailingCalls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <optional>

namespace nascor::tests {
namespace {

FailingCalls* living = nullptr;

bool fails(std::optional<int> error) {
  if (error) errno = *error;
  return error.has_value();
}

/// Fails with the answer's error, or asks the system.
template <class... Arguments>
int answered(FailingCalls::Answer FailingCalls::*call, long number, Arguments... arguments) {
  if (living != nullptr && living->*call && fails((living->*call)())) return -1;
  return static_cast<int>(::syscall(number, arguments...));
}

int opened(const char* path, int flags, mode_t mode) {
  if (living != nullptr && living->open && fails(living->open(path))) return -1;
  return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

}  // namespace

FailingCalls::FailingCalls() { living = this; }
FailingCalls::~FailingCalls() { living = nullptr; }

}  // namespace nascor::tests

using nascor::tests::answered;
using nascor::tests::FailingCalls;
using nascor::tests::living;
using nascor::tests::opened;

// A program's own functions stand before those of the C library, for all that is linked into it.
extern "C" {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"  // the system calls a structure so, too
int flock(int file, int operation) noexcept {
  return answered(&FailingCalls::flock, SYS_flock, file, operation);
}
#pragma GCC diagnostic pop
int fsync(int file) { return answered(&FailingCalls::fsync, SYS_fsync, file); }
int syncfs(int file) noexcept { return answered(&FailingCalls::syncfs, SYS_syncfs, file); }
int fchmod(int file, mode_t mode) noexcept { return answered(&FailingCalls::fchmod, SYS_fchmod, file, mode); }
int linkat(int from, const char* path, int to, const char* target, int flags) noexcept {
  return answered(&FailingCalls::linkat, SYS_linkat, from, path, to, target, flags);
}
int renameat2(int from, const char* path, int to, const char* target, unsigned flags) noexcept {
  return answered(&FailingCalls::renameat2, SYS_renameat2, from, path, to, target, flags);
}
int pipe2(int* ends, int flags) noexcept { return answered(&FailingCalls::pipe2, SYS_pipe2, ends, flags); }
int unlink(const char* path) noexcept { return answered(&FailingCalls::unlink, SYS_unlink, path); }
int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const bool hasMode = (flags & (O_CREAT | __O_TMPFILE)) != 0;
  const mode_t mode = hasMode ? va_arg(more, mode_t) : 0;
  va_end(more);
  return opened(path, flags, mode);
}
// What the C library's checked headers make of a call without a mode.
int __open_2(const char* path, int flags) { return opened(path, flags, 0); }
dirent* readdir(DIR* folder) {
  static auto* const system = reinterpret_cast<dirent* (*)(DIR*)>(::dlsym(RTLD_NEXT, "readdir"));
  dirent* const entry = system(folder);
  if (entry != nullptr && living != nullptr && living->hidesKinds) entry->d_type = DT_UNKNOWN;
  return entry;
}
}
