// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "archive/Encoding.h"
#include "archive/FormatError.h"

namespace nascor::archive {

/// The bytes of a typed stream from the first to the last: runs of bytes, numbers of two, four and eight bytes in the
/// stream's order, and heads, the bytes that begin most values and say how they go on. Knows neither types nor objects.
///
/// In each function `wanted` is what the caller expects, a key of the table "Reading" ("an object"). Where that does not
/// stand, or not all of it, FormatError says so. Nothing past the end is read. The bytes must outlive the reader and the texts that it gives.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::byte> bytes)
      : begin_(bytes.data()), at_(begin_), end_(begin_ + bytes.size()) {}

  ByteOrder order() const { return isTurned_ ? kOther : kOwn; }
  /// Little before the first call.
  void setOrder(ByteOrder order) { isTurned_ = order != kOwn; }

  /// The bytes before the next one.
  std::size_t position() const { return static_cast<std::size_t>(at_ - begin_); }
  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

  /// The next head, which stays the next.
  int head(std::string_view wanted) const {
    if (left() == 0) refuseShort(1, wanted);
    return headAhead(0);
  }
  /// Whether the next byte is this head; then it is taken. False at the end of the file.
  bool tookHead(int head) {
    const bool isNext = left() > 0 && headAhead(0) == head;
    at_ += isNext ? 1 : 0;
    return isNext;
  }

  std::span<const std::byte> takeBytes(std::uint64_t length, std::string_view wanted);
  /// The next bytes as a number of that many, in the stream's order.
  template <class Bits>
  Bits takeFixed(std::string_view wanted) {
    if (left() < sizeof(Bits)) refuseShort(sizeof(Bits), wanted);
    pass(sizeof(Bits));
    return fixedBehind<Bits>();
  }
  /// A number in whichever form it stands: its head alone, or a tag and two, four or eight bytes.
  std::int64_t takeNumber(std::string_view wanted);
  /// The number, counted from 0, of one of the `known` things that stood earlier.
  enum class Thing { string, label };
  std::size_t takeNumberOf(Thing thing, std::size_t known, std::string_view wanted);
  /// A length and that many bytes; empty for nil.
  std::optional<std::string_view> takeText(std::string_view wanted);

  // The same without a look at the end: the caller has made sure that as many bytes are left.

  /// The head that stands `bytes` further on.
  int headAhead(std::size_t bytes) const { return std::to_integer<std::int8_t>(at_[bytes]); }
  void pass(std::size_t bytes) { at_ += bytes; }
  std::string_view takeText(std::size_t length) {
    pass(length);
    return {reinterpret_cast<const char*>(at_ - length), length};
  }
  /// The bytes passed last, as a number.
  template <class Bits>
  Bits fixedBehind() const {
    std::array<std::byte, sizeof(Bits)> bytes{};
    std::copy(at_ - sizeof(Bits), at_, bytes.begin());
    if (isTurned_) std::ranges::reverse(bytes);
    return std::bit_cast<Bits>(bytes);
  }

 private:
  [[noreturn]] void refuseShort(std::uint64_t length, std::string_view wanted) const;

  const std::byte* begin_;
  const std::byte* at_;
  const std::byte* end_;
  // The order of this machine, and the other.
  static constexpr ByteOrder kOwn =
      std::endian::native == std::endian::big ? ByteOrder::big : ByteOrder::little;
  static constexpr ByteOrder kOther = kOwn == ByteOrder::big ? ByteOrder::little : ByteOrder::big;
  bool isTurned_ = kOwn != ByteOrder::little;
};

}  // namespace nascor::archive
