// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "framework/Canvas.h"
#include "framework/Page.h"

namespace nascor::framework {

/// What stands under a page on paper and in files, so that a sheet that lies about says whose it is: lines of texts, which
/// stay apart from each other. Without lines there is no foot.
struct PageFoot {
  std::vector<std::vector<std::string>> lines;
};

/// What a file says of itself beside its pages.
struct SheetFacts {
  std::string title = {};
  std::string author = {};
  std::string subject = {};
};

/// One page on its way to paper or into a file. The foot lies under the page, which keeps its size.
struct Sheet {
  Page& page;
  PageFoot foot;
  SheetFacts facts = {};
};

/// The lines of `foot` as they fit into `width` units: what does not fit goes on in a line of its own. A text longer than
/// can be shown (foundation/Utf8.h) is cut, with a sign that it is.
std::vector<std::string> wrappedFoot(const PageFoot& foot, const Canvas& canvas, double width);

/// The height of a foot of that many lines, in units; 0 for none.
double footHeight(std::size_t lines);
/// Draws wrapped lines. The canvas is flipped, and its origin is the upper left corner of the foot.
void drawFoot(Canvas& canvas, const std::vector<std::string>& lines);

/// How far the foot's texts stay away from the edges of the paper.
inline constexpr double kFootMargin = 10.0;

}  // namespace nascor::framework
