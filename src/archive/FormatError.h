// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "foundation/Sentence.h"

namespace nascor::archive {

using foundation::Sentence;

/// The stream is malformed, or does not hold what the caller asked for. The one exception that reading
/// throws.
///
/// `what()` is one sentence with its place, e.g. "at byte 54: expected an object, but label -1 is outside the
/// 12 given so far". It names no file; the caller puts that in front ("AB-123.nascor: at byte 54: ..."). A
/// reader that has thrown is of no further use.
class FormatError : public foundation::SpokenError {
 public:
  FormatError(std::size_t offset, const Sentence& sentence);

  /// Bytes before the first byte of the offending value; the first byte of the file is byte 0.
  std::size_t offset() const { return offset_; }

 private:
  std::size_t offset_;
};

/// Throws the error "expected `wanted`, but `instead`".
[[noreturn]] void refuse(std::size_t offset, const Sentence& wanted, const Sentence& instead);
/// The same for what is wanted as a key of the table "Reading".
[[noreturn]] void refuse(std::size_t offset, std::string_view wanted, const Sentence& instead);
/// The same where `found` stands in its place.
[[noreturn]] void refuseFound(std::size_t offset, std::string_view wanted, const Sentence& found);

/// A key of the table "Reading".
Sentence wordsOf(std::string_view key);
/// "`found` stands here".
Sentence standsHere(const Sentence& found);

/// "1 byte", "2 bytes".
Sentence countedBytes(std::uint64_t number);
/// The file ends where more was expected.
Sentence fileEndsHere();

}  // namespace nascor::archive
