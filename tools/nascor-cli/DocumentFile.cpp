// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/DocumentFile.h"

#include <ctime>
#include <utility>

#include "cli_commands/Input.h"
#include "foundation/HolderText.h"
#include "posix/PosixCalendar.h"

namespace nascor::cli {

namespace {

using foundation::FileError;
using foundation::FileStore;

}  // namespace

DocumentFile::DocumentFile(std::string path, Console& console) : path_(std::move(path)), console_(console) {
  // A command is done in less, a window is not.
  constexpr int kMostTriesWithOne = 100;
  constexpr timespec kPause{.tv_sec = 0, .tv_nsec = 10'000'000};
  std::int64_t process = 0;
  for (int tries = 0;;) {
    foundation::FileClaim claim = store_.claim(path_, FileStore::Claim::ifFree);
    lock_ = std::move(claim.lock);
    if (!claim.holder) return;
    if (std::exchange(process, claim.holder->process) != claim.holder->process) tries = 0;
    if (++tries == kMostTriesWithOne) {
      isOurs_ = false;
      console_.complain(path_, Sentence::verbatim(foundation::heldSentence(
                                   *claim.holder, posix::PosixCalendar(), console_.localizer())));
      return;
    }
    ::nanosleep(&kPause, nullptr);
  }
}

void DocumentFile::write(std::span<const std::byte> bytes) { tell(store_.replaceContents(path_, bytes)); }

void DocumentFile::writeExpected(std::span<const std::byte> bytes, const foundation::FileContents& expected) {
  tell(store_.replaceExpected(path_, bytes, expected));
}

void DocumentFile::tell(const std::optional<FileError>& error) {
  if (!error) return;
  const Sentence reason = reasonOf(*error);
  console_.complain(
      path_, error->kind == FileError::Kind::isWritten
                 ? Sentence("CommandLine", "written, but it may not outlast a power cut: %1").with(reason)
                 : reason);
}

}  // namespace nascor::cli
