// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <span>
#include <vector>

#include "calc/References.h"
#include "framework/Canvas.h"
#include "framework/Geometry.h"

namespace nascor::charts {

// Lines over the growth charts, beside the standard of the document and never in its place.

/// What is drawn over the growth charts.
struct Overlay {
  const calc::Reference* centiles = nullptr;  ///< whose lines of equal centile; null for none
  bool joinsMarks = false;                    ///< whether a line leads from mark to mark of each fetus

  friend bool operator==(const Overlay&, const Overlay&) = default;
};

/// In percent.
inline constexpr std::array kOverlayCentiles{3.0, 10.0, 50.0, 90.0, 97.0};

/// A line of equal centile.
struct CentileLine {
  double percent = 0.0;
  std::vector<framework::Point> points{};  ///< age in weeks; mm, or g
};

/// One line for each of `kOverlayCentiles`, from the first to the last week of `reference` and not beyond. None for a
/// quantity that it does not cover.
std::vector<CentileLine> centileLines(const calc::Reference& reference, calc::Quantity quantity);

/// The dashes of the line of that centile: the lengths of dash and gap. The middle has the longest, the outermost have
/// dots, so that they are told apart without colours.
std::array<double, 2> dashesOf(double percent);

/// `line` cut into dashes: each becomes a subpath, the first begins at its beginning.
framework::Path dashed(std::span<const framework::Point> line, std::array<double, 2> dashes);

/// `heights` moved apart, so that each lies at least `gap` above the one before; together they stay where they are. They
/// go up.
std::vector<double> movedApart(std::vector<double> heights, double gap);

/// Draws `lines`, whose points are those of the view, each with its centile at its right end; in the current colour.
void drawCentileLines(framework::Canvas& canvas, std::span<const CentileLine> lines);

}  // namespace nascor::charts
