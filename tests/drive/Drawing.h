// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <nlohmann/json.hpp>

#include "framework/Page.h"

namespace nascor::drive {

/// What `page` draws in `width` x `height` units, in painting order: first the page's own texts in page coordinates, then
/// each view's class and rectangle, and what it draws in its own coordinates. Not clipped, and without what shows nothing:
/// empty paths, and whatever has a coordinate that is not finite.
nlohmann::ordered_json drawingOf(framework::Page& page, double width, double height);

/// The marks of lengths and the discs behind them alone, in the order in which they are drawn.
nlohmann::ordered_json marksOf(framework::Page& page);

/// What is drawn over the charts alone, chart by chart: how many centile lines, the points of each line from mark to mark,
/// and what the legend says of the centiles.
nlohmann::ordered_json overlayOf(framework::Page& page);

/// Shows the page on nothing, so that its views know where they lie.
void layOutAndPaint(framework::Page& page);

}  // namespace nascor::drive
