// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace nascor::archive {

/// Everything that a typed stream holds, of whatever classes, as one line of JSON without a line end:
///
///     {"byte_order":"little","system_version":1000,"groups":[{"types":"@","values":[...]}]}
///
/// All groups at the top are printed, not only the first. A value is
///
/// | value | JSON |
/// | --- | --- |
/// | integer, byte | a number, as it is stored |
/// | real | a number, or "nan", "inf" or "-inf" |
/// | string, selector, shared string | `{"s":text}`; when it is no UTF-8 `{"hex":digits}` |
/// | object | `{"obj":label,"class":class,"groups":[...]}` |
/// | class | `{"cls":label,"name":text,"version":number,"super":class}` |
/// | C string | `{"cstr":label,"s":text}`, or `"hex"` as above |
/// | object, class or C string seen before | `{"ref":label}` |
/// | array of bytes | `{"hex":digits}` |
/// | other array, structure | a list of its values |
/// | nil | null |
///
/// The whole stream is read before anything is returned. Throws FormatError when it is malformed, and when
/// the text would grow beyond all proportion to the stream (texts may be repeated by number, so that a small
/// stream can stand for an enormous text).
std::string dumpAsJson(std::span<const std::byte> bytes);

/// The same for people: one line a value, indented by what holds it, each line beginning with the byte where
/// the value begins. Line ends are "\n". Throws as dumpAsJson() does.
std::string dumpAsText(std::span<const std::byte> bytes);

/// Takes a dump piece by piece.
using TakeText = std::function<void(std::string_view piece)>;

/// The same texts in pieces, so that no more than a piece is in memory. The stream is read twice: the first piece comes when
/// it is known to be well-formed, and a function that throws has handed on nothing.
void dumpAsJsonInPieces(std::span<const std::byte> bytes, const TakeText& take);
void dumpAsTextInPieces(std::span<const std::byte> bytes, const TakeText& take);

}  // namespace nascor::archive
