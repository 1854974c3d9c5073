// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace nascor::calc {

/// How much of a citation was seen in a library's or the journal's own pages.
enum class Confirmation { seen, partlySeen, awaited };

/// Where a formula or a standard was published.
struct Publication {
  std::string_view label;     ///< that of the formula or standard, UTF-8
  std::string_view citation;  ///< UTF-8; also in docs/sources.md, word by word
  Confirmation confirmation;
  std::string_view remark;  ///< what a reader of the numbers should know, in English; may be empty
};

/// @name The publication of each row, in the order of the family's table
/// @{
std::vector<Publication> growthStandardPublications();
std::vector<Publication> weightFormulaPublications();
std::vector<Publication> crlFormulaPublications();
/// The growth standards are the first of the references.
std::vector<Publication> referencePublications();
/// @}

/// The digital object identifier that the citation names, "10.1148/..."; empty where it names none.
std::string_view doiOf(const Publication& publication);

/// What holds for all weight formulas, in English.
std::string_view weightBandRemark();

}  // namespace nascor::calc
