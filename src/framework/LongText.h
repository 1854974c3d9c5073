// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nascor::framework {

// How long a text a user can type, and what is seen of one that is longer: scripts and files may store any. Lengths are in
// units of UTF-16, by which edits count.

/// The most that can be typed into a field, and into a note.
inline constexpr std::size_t kMostInField = 1000;
inline constexpr std::size_t kMostInNote = 10'000;

/// Whether an edit that takes `most` cannot show the whole of `text`. What it would not show must not be lost, so nothing can
/// be typed over such a text.
bool isTooLong(std::string_view text, std::size_t most);

/// What an edit that takes `most` shows of `text`: the whole, or, when it is too long, its beginning and the cut sign
/// (foundation/Utf8.h).
std::string shownInEdit(std::string_view text, std::size_t most);

/// What an edit holds after typing.
struct TypedText {
  std::string text;
  bool isFull = false;  ///< not all that was typed fits
};

/// The user has made `typed` of `held` in an edit that takes `most`. What was put in is cut where it makes the text too
/// long; nothing else is.
TypedText typedOver(std::string_view held, std::string_view typed, std::size_t most);

}  // namespace nascor::framework
