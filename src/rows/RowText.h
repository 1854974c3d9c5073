// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/NumberText.h"

namespace nascor::rows {

/// Collects the cells of a row, most of which are short, and appends them to a text together.
class RowText {
 public:
  explicit RowText(std::string& out) : out_(out) {}

  void append(std::string_view piece) {
    if (piece.size() > kRoom) {
      text() += piece;
      return;
    }
    char* at = room();
    // Most often a comma; to ask the library to copy it takes longer.
    if (piece.size() == 1) *at = piece.front();
    if (piece.size() > 1) piece.copy(at, piece.size());
    end(at + piece.size());
  }

  /// Where a piece of up to `kRoom` bytes may be written.
  char* room() {
    if (at_ > cells_.data() + cells_.size() - kRoom) text();
    return at_;
  }
  /// The piece ends here.
  void end(char* at) { at_ = at; }

  /// The text with all cells so far, to be appended to. To be called after the last cell.
  std::string& text();

  static constexpr std::size_t kRoom = foundation::kLongestFixedText;

 private:
  std::string& out_;
  std::array<char, 4 * kRoom> cells_;
  char* at_ = cells_.data();
};

}  // namespace nascor::rows
