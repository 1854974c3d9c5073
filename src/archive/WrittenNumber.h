// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "archive/Encoding.h"

/// Numbers as a stream holds them, little-endian, each in its shortest form. Each function writes where it is told, which has
/// room, and returns where it ended.
namespace nascor::archive {

/// No number takes more bytes than its head and eight, whether it is whole or real.
inline constexpr std::size_t kLongestNumber = 9;

inline std::byte* writtenByte(std::byte* to, int value) {
  *to = static_cast<std::byte>(static_cast<unsigned char>(value));
  return to + 1;
}

template <class Bits>
std::byte* writtenFixed(std::byte* to, Bits bits) {
  for (std::size_t i = 0; i < sizeof bits; ++i) to[i] = static_cast<std::byte>(bits >> (8 * i) & 0xffU);
  return to + sizeof bits;
}

std::byte* writtenLongNumber(std::byte* to, std::int64_t value);

inline std::byte* writtenNumber(std::byte* to, std::int64_t value) {
  const bool isHead = value >= kFirstNumber && value <= std::numeric_limits<std::int8_t>::max();
  return isHead ? writtenByte(to, static_cast<int>(value)) : writtenLongNumber(to, value);
}

/// Whole numbers of 32 bits are written as integers, whatever the width of the real. The border is that of
/// the conversion to a 32-bit integer, with which the value is compared; a NaN fails every comparison.
template <class Real>
bool isWrittenAsInteger(Real value) {
  constexpr Real kBorder = 2147483648.0;
  return value >= -kBorder && value < kBorder && value == static_cast<Real>(static_cast<std::int32_t>(value));
}

template <class Real>
std::byte* writtenReal(std::byte* to, Real value) {
  using Bits = std::conditional_t<sizeof(Real) == 4, std::uint32_t, std::uint64_t>;
  if (isWrittenAsInteger(value)) return writtenNumber(to, static_cast<std::int64_t>(value));
  return writtenFixed(writtenByte(to, kRealTag), std::bit_cast<Bits>(value));
}

}  // namespace nascor::archive
