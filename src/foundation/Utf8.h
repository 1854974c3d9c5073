// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nascor::foundation {

/// Whether `bytes` are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF. NUL is a
/// character like any other.
bool isValidUtf8(std::string_view bytes);

/// The bytes of the character at the start of `text`, which is not empty; 0 when it is malformed.
std::size_t characterLength(std::string_view text);

/// Whether `byte` goes on with a code point that an earlier byte began.
constexpr bool continuesCodePoint(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The code points of `text`. A byte that is no UTF-8 counts as one, unless it looks as if it went on with one.
std::size_t codePoints(std::string_view text);

/// The bytes of the longest beginning of `text` that has at most `most` bytes and parts no code point. Of bytes that are no
/// UTF-8 it leaves out up to three more.
std::size_t lengthWithin(std::string_view text, std::size_t most);

/// The code point that `character` encodes: well-formed, and nothing behind it.
char32_t decoded(std::string_view character);

/// Whether `point` is a mark, embedding, override or isolate that only steers the direction of writing.
bool isDirectionMark(char32_t point);

/// The code of `character`, one of UTF-8, when it is not to be seen as it is: a control character, or a sign that gives its
/// neighbours another direction or ends their line. 0xFFFD for any other, and for a malformed one.
char32_t codeOfUnseen(std::string_view character);

/// `text` with its control characters made visible (`\n`, `\x1b`, `\u202e`) and bytes that are no UTF-8 replaced, so that
/// a name from outside stays on one line, gives a terminal no orders, and neither mirrors nor reorders what stands beside
/// it. Whatever is drawn or shown outside its own field goes through here; what is stored does not.
std::string oneLine(std::string_view text);

/// The sign that stands in a shown text for what is left out of it.
inline constexpr std::string_view kCutSign = "\u2026";

/// The bytes of the longest beginning of `text` that has at most `most` code points and parts nothing that a reader counts
/// as one character; of a character longer than 64 code points no more than fits. A byte that is no UTF-8 counts as one.
std::size_t lengthOfBeginning(std::string_view text, std::size_t most);

/// The most code points of a text from outside that are shown in one line: more than a reader takes in, and as many as any
/// device lays out at once.
inline constexpr std::size_t kMostShown = 1000;

/// `text` as `oneLine` gives it, of at most `kMostShown` code points: what is too much is cut off, and `kCutSign` says so.
/// The time that this takes does not grow with the text.
std::string shownLine(std::string_view text);

/// Takes the last character off `text`, valid UTF-8: what a reader counts as one, so a base with its combining diacritics,
/// variation selectors and modifiers, a sequence of joined signs, a flag. An empty text stays empty.
void removeLastCharacter(std::string& text);

}  // namespace nascor::foundation
