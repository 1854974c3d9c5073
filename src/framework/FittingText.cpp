// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/FittingText.h"

#include "foundation/Utf8.h"

namespace nascor::framework {

std::string fittingText(const std::string& text, std::size_t bytesOfEnd, const Canvas& canvas, double width) {
  if (canvas.textWidth(text, {}) <= width) return text;
  const std::string start = text.substr(0, text.size() - bytesOfEnd);
  const std::string end = text.substr(start.size());
  const auto shortened = [&](std::size_t bytes) {
    return start.substr(0, foundation::lengthWithin(start, bytes)) + "\u2026" + end;
  };
  // Half of what is in question at each step: a reference ID may have any length.
  std::size_t fits = 0;
  std::size_t tooMuch = start.size();
  while (tooMuch - fits > 1) {
    const std::size_t middle = fits + (tooMuch - fits) / 2;
    (canvas.textWidth(shortened(middle), {}) <= width ? fits : tooMuch) = middle;
  }
  return shortened(fits);
}

}  // namespace nascor::framework
