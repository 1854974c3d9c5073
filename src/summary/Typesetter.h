// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "foundation/Sentence.h"
#include "summary/Summary.h"

namespace nascor::summary {

/// Upright paper, in points of 1/72 inch.
struct Paper {
  double width = 595.0;  ///< A4
  double height = 842.0;
};

/// A page as a picture for a printer: rows of pixels, 32 bits each, 0x..RRGGBB.
struct Picture {
  int width = 0;
  int height = 0;
  int bytesPerRow = 0;
  std::vector<std::byte> bytes;
};

/// Puts summaries on paper. A string in place of a result says why there is none, in the words of its library.
class Typesetter {
 public:
  virtual ~Typesetter() = default;

  /// A tagged PDF document; the same bytes for the same summary, paper and fonts.
  virtual std::variant<std::vector<std::byte>, std::string> pdf(const Summary& summary,
                                                                const Paper& paper) = 0;

  /// The same pages.
  virtual std::variant<std::vector<Picture>, std::string> pictures(const Summary& summary, const Paper& paper,
                                                                   double dotsPerInch) = 0;
};

/// Gives the typesetter, or one sentence that says why there is none.
using FindTypesetter = std::function<std::variant<Typesetter*, foundation::Sentence>()>;

}  // namespace nascor::summary
