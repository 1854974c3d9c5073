// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/Sheet.h"

#include "foundation/Utf8.h"
#include "framework/LongestBeginning.h"

namespace nascor::framework {
namespace {

constexpr std::string_view kGap = "   ";
constexpr double kLineHeight = 13.0;
constexpr double kSpaceAbove = 4.0;
constexpr double kSpaceBelow = 6.0;

/// Moves what is too much for one line from the beginning of `text` to lines of its own.
template <class Fits>
void breakUp(std::string& text, const Fits& fits, std::vector<std::string>& lines) {
  while (!fits(text)) {
    const std::size_t end = fittingBeginning(text, fits);
    if (end == 0) return;  // no room for a single character
    lines.push_back(text.substr(0, end));
    text.erase(0, end);
  }
}

}  // namespace

std::vector<std::string> wrappedFoot(const PageFoot& foot, const Canvas& canvas, double width) {
  const auto fits = [&](std::string_view text) { return canvas.textWidth(text, {}) <= width; };
  std::vector<std::string> wrapped;
  for (const std::vector<std::string>& texts : foot.lines) {
    std::string line;
    const auto endLine = [&] {
      if (!line.empty()) wrapped.push_back(line);
      line.clear();
    };
    for (const std::string& each : texts) {
      if (each.empty()) continue;
      std::string text = foundation::shownLine(each);
      const std::string longer = line.empty() ? text : std::string(line).append(kGap).append(text);
      if (fits(longer)) {
        line = longer;
        continue;
      }
      endLine();
      breakUp(text, fits, wrapped);
      line = text;
    }
    endLine();
  }
  return wrapped;
}

double footHeight(std::size_t lines) {
  return lines == 0 ? 0.0 : kSpaceAbove + kLineHeight * static_cast<double>(lines) + kSpaceBelow;
}

void drawFoot(Canvas& canvas, const std::vector<std::string>& lines) {
  canvas.setColor(NamedColor::faintGray);
  Path rule = Path::line({.x = kFootMargin, .y = 1.0}, {.x = Page::kWidth - kFootMargin, .y = 1.0});
  rule.setLineWidth(0.5);
  canvas.strokePath(rule);
  double y = kSpaceAbove;
  for (const std::string& line : lines) {
    canvas.text(line, {.x = kFootMargin, .y = y}, {});
    y += kLineHeight;
  }
}

}  // namespace nascor::framework
