// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calc/References.h"

namespace nascor::calc {

// How each figure is worked out, as a person reads it. The tests work these texts out and compare them with the functions
// that the program calls.

/// What a figure is worked out by: a formula or a reference, by its place among its kind.
struct Method {
  enum class Kind {
    reference,      ///< the growth standards are the first of them
    weightFormula,  ///<
    crlFormula,     ///<
    quotient,       ///< of lengths of one fetus, or of weights of several; nothing is published
  };
  Kind kind{};
  std::size_t place = 0;
  std::optional<Quantity> quantity{};  ///< of a reference: the one that is asked for; without it all

  friend bool operator==(const Method&, const Method&) = default;
};

/// One equation: `gives` = `text`. The texts have numbers with decimal points, ^, /, brackets, exp, ln and sqrt, and names:
/// BPD, HC, AC, FL, CRL in mm; w the age in weeks, d in days, g in tens of weeks; z. What stands side by side is
/// multiplied.
struct Equation {
  std::string gives;
  std::string text;
};

/// The equations of `method`, those of one quantity where it names one. A standard that is a printed table has none.
std::vector<Equation> equationsOf(const Method& method);

/// A row of a printed table: mean and standard deviation of a whole week, mm.
struct PrintedRow {
  int week;
  double mean;
  double sd;
};

/// The rows of a standard that is a printed table; none for a `method` that has equations, or that names no quantity.
std::vector<PrintedRow> printedRowsOf(const Method& method);

/// What the program calls it, UTF-8; for a quotient empty.
std::string_view labelOf(const Method& method);

}  // namespace nascor::calc
