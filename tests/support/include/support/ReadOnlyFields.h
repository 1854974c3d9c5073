// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace nascor::tests {

/// The fields that only show something, by their names in the window's layout.
inline constexpr std::array<std::string_view, 16> kReadOnlyFields{"ageField",
                                                                  "headerSummaryField",
                                                                  "headerBPDField",
                                                                  "headerHCField",
                                                                  "headerACField",
                                                                  "headerFLField",
                                                                  "headerEFWField",
                                                                  "crlStandardReference",
                                                                  "measurementsWindowBPDGestation",
                                                                  "measurementsWindowHCGestation",
                                                                  "measurementsWindowACGestation",
                                                                  "measurementsWindowFLGestation",
                                                                  "measurementsWindowAvGestation",
                                                                  "adjustEDDField",
                                                                  "adjustDeliverOnField",
                                                                  "adjustDeliverAtField"};

inline bool isReadOnlyField(std::string_view name) {
  return std::ranges::find(kReadOnlyFields, name) != kReadOnlyFields.end();
}

}  // namespace nascor::tests
