// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Loaded before the C library (LD_PRELOAD): calls of the operating system that concern one folder fail, write less than asked,
// or end the program, as the environment says.
//
//   NASCOR_FAULT_FOLDER  the folder; calls that concern nothing in it are passed on, and not counted
//   NASCOR_FAULT_AT      the number of the call, from 1
//   NASCOR_FAULT         once, always (that call and all behind it), short, kill-before or kill-after
//   NASCOR_FAULT_ERROR   the number of the error
//   NASCOR_FAULT_FAT     set: the file system has no permissions, links, access lists and unnamed files
//   NASCOR_FAULT_LOG     a file to which the name of each call is added, a line each
//
// A program that tries many faults itself sets these before each, and calls `nascorCountCallsAnew`.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

std::string_view setting(const char* name) {
  const char* value = ::getenv(name);
  return value == nullptr ? std::string_view() : value;
}
int number(const char* name) {
  const char* value = ::getenv(name);
  return value == nullptr ? 0 : std::atoi(value);
}

bool concerns(std::string_view path) {
  const std::string_view folder = setting("NASCOR_FAULT_FOLDER");
  return !folder.empty() && path.starts_with(folder);
}
bool concerns(int file) {
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  std::array<char, PATH_MAX> target;
  const long length = ::syscall(SYS_readlink, link.c_str(), target.data(), target.size());
  return length > 0 && concerns(std::string_view(target.data(), static_cast<std::size_t>(length)));
}

void log(std::string_view name) {
  const char* path = ::getenv("NASCOR_FAULT_LOG");
  if (path == nullptr) return;
  const long file = ::syscall(SYS_open, path, O_WRONLY | O_APPEND | O_CREAT, 0600);
  const std::string line = std::string(name) + "\n";
  ::syscall(SYS_write, file, line.data(), line.size());
  ::syscall(SYS_close, file);
}

std::atomic<int> calls = 0;

/// Counts a call and does to it what the environment says.
template <class Call>
auto through(std::string_view name, bool isConcerned, Call call) -> decltype(call()) {
  if (!isConcerned) return call();
  const int at = ++calls;
  log(name);
  const std::string_view fault = setting("NASCOR_FAULT");
  const int wanted = number("NASCOR_FAULT_AT");
  const bool isIt = at == wanted;
  if (isIt && fault == "kill-before") ::raise(SIGKILL);
  if ((isIt && fault == "once") || (at >= wanted && fault == "always")) {
    if (name == "close") call();  // the file is closed whatever the call answers
    errno = number("NASCOR_FAULT_ERROR");
    return -1;
  }
  const auto result = call();
  if (isIt && fault == "kill-after") ::raise(SIGKILL);
  return result;
}

bool isFat() { return ::getenv("NASCOR_FAULT_FAT") != nullptr; }

int refused(int error) {
  errno = error;
  return -1;
}

/// All files are the same to FAT.
int asOnFat(int result, struct stat* status) {
  if (result == 0 && isFat() && S_ISREG(status->st_mode)) status->st_mode = S_IFREG | 0755;
  return result;
}

template <class Function>
Function real(Function, const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}
#define REAL(name) real(&::name, #name)

int opened(const char* path, int flags, mode_t mode) {
  return through("open", concerns(path), [&] {
    if (isFat() && (flags & O_TMPFILE) == O_TMPFILE) return refused(EOPNOTSUPP);
    return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
  });
}

mode_t modeBehind(int flags, va_list arguments) {
  return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE
             ? static_cast<mode_t>(va_arg(arguments, unsigned))
             : 0;
}

}  // namespace

// A structure of that name, too.
#pragma GCC diagnostic ignored "-Wshadow"

extern "C" {

void nascorCountCallsAnew() { calls = 0; }

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = modeBehind(flags, arguments);
  va_end(arguments);
  return opened(path, flags, mode);
}
int open64(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = modeBehind(flags, arguments);
  va_end(arguments);
  return opened(path, flags, mode);
}
// What the C library calls where it looks at the flags when the program runs.
int __open_2(const char* path, int flags) { return opened(path, flags, 0); }
int __open64_2(const char* path, int flags) { return opened(path, flags, 0); }

int close(int file) {
  return through("close", concerns(file), [&] { return static_cast<int>(::syscall(SYS_close, file)); });
}
ssize_t write(int file, const void* bytes, size_t count) {
  return through("write", concerns(file), [&]() -> ssize_t {
    const bool isShort =
        setting("NASCOR_FAULT") == "short" && calls == number("NASCOR_FAULT_AT") && count > 1;
    return ::syscall(SYS_write, file, bytes, isShort ? count / 2 : count);
  });
}
ssize_t read(int file, void* bytes, size_t count) {
  return through("read", concerns(file),
                 [&]() -> ssize_t { return ::syscall(SYS_read, file, bytes, count); });
}
ssize_t pread(int file, void* bytes, size_t count, off_t at) {
  return through("pread", concerns(file),
                 [&]() -> ssize_t { return ::syscall(SYS_pread64, file, bytes, count, at); });
}
int fsync(int file) {
  return through("fsync", concerns(file), [&] { return static_cast<int>(::syscall(SYS_fsync, file)); });
}
int syncfs(int file) noexcept {
  return through("syncfs", concerns(file), [&] { return static_cast<int>(::syscall(SYS_syncfs, file)); });
}
int fcntl(int file, int command, ...) {
  va_list arguments;
  va_start(arguments, command);
  const long argument = va_arg(arguments, long);
  va_end(arguments);
  return through("fcntl", concerns(file),
                 [&] { return static_cast<int>(::syscall(SYS_fcntl, file, command, argument)); });
}
int fcntl64(int file, int command, ...) {
  va_list arguments;
  va_start(arguments, command);
  const long argument = va_arg(arguments, long);
  va_end(arguments);
  return through("fcntl", concerns(file),
                 [&] { return static_cast<int>(::syscall(SYS_fcntl, file, command, argument)); });
}
int flock(int file, int operation) noexcept {
  return through("flock", concerns(file),
                 [&] { return static_cast<int>(::syscall(SYS_flock, file, operation)); });
}
int rename(const char* from, const char* to) noexcept {
  return through("rename", concerns(to), [&] { return static_cast<int>(::syscall(SYS_rename, from, to)); });
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
  return through("renameat2", concerns(to), [&] {
    if (isFat() && flags != 0) return refused(EINVAL);
    return static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
  });
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  return through("linkat", concerns(to), [&] {
    if (isFat()) return refused(EPERM);
    return static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
  });
}
int unlink(const char* path) noexcept {
  return through("unlink", concerns(path), [&] { return static_cast<int>(::syscall(SYS_unlink, path)); });
}
int fchmod(int file, mode_t mode) noexcept {
  return through("fchmod", concerns(file), [&] {
    if (isFat()) return refused(EPERM);
    return static_cast<int>(::syscall(SYS_fchmod, file, mode));
  });
}
int fchown(int file, uid_t user, gid_t group) noexcept {
  return through("fchown", concerns(file), [&] {
    if (isFat()) return refused(EPERM);
    return static_cast<int>(::syscall(SYS_fchown, file, user, group));
  });
}
ssize_t getxattr(const char* path, const char* name, void* value, size_t size) noexcept {
  return through("getxattr", concerns(path), [&]() -> ssize_t {
    if (isFat()) return refused(EOPNOTSUPP);
    return ::syscall(SYS_getxattr, path, name, value, size);
  });
}
int fsetxattr(int file, const char* name, const void* value, size_t size, int flags) noexcept {
  return through("fsetxattr", concerns(file),
                 [&] { return static_cast<int>(::syscall(SYS_fsetxattr, file, name, value, size, flags)); });
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
  return through("faccessat", concerns(path), [&] { return REAL(faccessat)(folder, path, mode, flags); });
}
int stat(const char* path, struct stat* status) noexcept {
  return through("stat", concerns(path), [&] { return asOnFat(REAL(stat)(path, status), status); });
}
int lstat(const char* path, struct stat* status) noexcept {
  return through("lstat", concerns(path), [&] { return asOnFat(REAL(lstat)(path, status), status); });
}
int fstat(int file, struct stat* status) noexcept {
  return through("fstat", concerns(file), [&] { return asOnFat(REAL(fstat)(file, status), status); });
}
ssize_t readlink(const char* path, char* target, size_t size) noexcept {
  return through("readlink", concerns(path),
                 [&]() -> ssize_t { return ::syscall(SYS_readlink, path, target, size); });
}

}  // extern "C"
