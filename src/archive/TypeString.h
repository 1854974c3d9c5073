// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Sentence.h"

namespace nascor::archive {

/// One type of a type string. An array is followed by its element's nodes, a structure by its members' nodes.
///
///     @ object    # class           : selector    * C string    + string    % shared string
///     c C B one raw byte (signed, unsigned, truth value)        f d reals of 32 and 64 bits
///     s S i I l L q Q integers      [24c] array of 24 bytes     {name=ff} structure
struct TypeNode {
  char code;         ///< As above; '[' and '{' for arrays and structures.
  std::size_t size;  ///< Nodes of this type, itself and all inside it: the next type stands at `this + size`.
  std::uint64_t count;     ///< Elements of an array; 0 for everything else.
  std::uint64_t minBytes;  ///< The least that a value takes in a stream; it saturates.
  std::string_view text;   ///< The type as it is spelled; points into the type string.

  /// A single byte of no encoding.
  bool isRawByte() const { return code == 'c' || code == 'C' || code == 'B'; }
  /// An array of raw bytes, which is read and written in one piece.
  bool isByteArray() const { return code == '[' && (this[1].code == 'c' || this[1].code == 'C'); }
  /// What stands before the '=' of a structure.
  std::string_view structureName() const { return text.substr(1, text.find('=') - 1); }
};

/// What an integer of a type may be in a stream.
struct IntegerRange {
  std::int64_t min;
  std::int64_t max;
};

/// The range of one of the codes c C B s S i I l L q Q. Integers are signed in the stream, so that the larger
/// half of an unsigned type may stand as negative numbers; both are taken. Raw bytes are what their code
/// says.
IntegerRange integerRangeOf(char code);

/// Why a text is no type string, as the second half of a sentence: "ends inside an array".
struct TypeStringError {
  foundation::Sentence reason;
};

/// The types of `text`, which must outlive the result. Memory is proportional to the text, whatever counts it
/// holds. Throws TypeStringError for unknown codes, nesting deeper than kDepthLimit, and arrays whose
/// elements take no bytes (their count says nothing about the file, so a short file could ask for endless
/// work).
std::vector<TypeNode> parseTypeString(std::string_view text);

/// A type string in words, with the text itself: `a 32-bit integer (type "i")`. Long texts are cut, odd bytes
/// escaped.
foundation::Sentence describeTypes(std::string_view types);

/// `text` fit for a one-line message: long texts are cut, everything but printable ASCII is escaped.
std::string printable(std::string_view text);
/// The same in quotation marks.
std::string inQuotes(std::string_view text);

}  // namespace nascor::archive
