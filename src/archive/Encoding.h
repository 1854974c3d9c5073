// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The constants of the stream's encoding, for its reader and its writer.
namespace nascor::archive {

enum class ByteOrder { little, big };

inline constexpr std::int64_t kStreamerVersion = 4;
inline constexpr std::string_view kLittleEndianSignature = "streamtyped";
inline constexpr std::string_view kBigEndianSignature = "typedstream";

/// The system version that every known document states. Nothing else in a stream depends on it.
inline constexpr std::int64_t kSystemVersion = 1000;

/// Head bytes, read as signed, that are no number. -128 and -119 ... -111 have no meaning.
inline constexpr int kInt16Tag = -127;
inline constexpr int kInt32Tag = -126;
inline constexpr int kRealTag = -125;
inline constexpr int kNewTag = -124;
inline constexpr int kNilTag = -123;
inline constexpr int kEndTag = -122;
inline constexpr int kInt64Tag = -121;

/// A head byte from here up to 127 is its own value. Label and string number n is written as n + this.
inline constexpr int kFirstNumber = -110;
constexpr bool isNumber(int head) { return head >= kFirstNumber; }

/// The number of an object, a class or a C string: all three are counted together, from 0, in order of
/// appearance.
using Label = std::size_t;

/// Objects, arrays and structures may stand in each other this deep, and a class may have this many new
/// ancestors at once. Known files nest 22 values, documents 6.
inline constexpr std::size_t kDepthLimit = 256;

}  // namespace nascor::archive
