#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace nascor::archive {

/// The stream is malformed, or does not hold what the caller asked for. The one exception that reading
/// throws.
///
/// `what()` is one sentence with its place, e.g. "at byte 54: expected an object, but label -1 is outside the
/// 12 given so far". It names no file; the caller puts that in front ("AB-123.nascor: at byte 54: ..."). A
/// reader that has thrown is of no further use.
class FormatError : public std::runtime_error {
 public:
  FormatError(std::size_t offset, const std::string& sentence)
      : std::runtime_error("at byte " + std::to_string(offset) + ": " + sentence), offset_(offset) {}

  /// Bytes before the first byte of the offending value; the first byte of the file is byte 0.
  std::size_t offset() const { return offset_; }

 private:
  std::size_t offset_;
};

/// Throws the error "expected `wanted`, but `instead`".
[[noreturn]] void refuse(std::size_t offset, std::string_view wanted, const std::string& instead);

/// "1 byte", "2 bytes": for messages.
std::string counted(std::uint64_t number, std::string_view thing);

}  // namespace nascor::archive
