// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "summary/Typesetter.h"

namespace nascor::typeset {

/// Sets summaries by Pango and Cairo, in the system's fonts. Cairo 1.16 writes the structure of a document into its PDF, and no
/// language and no alternative texts.
class CairoTypesetter final : public summary::Typesetter {
 public:
  std::variant<std::vector<std::byte>, std::string> pdf(const summary::Summary& summary,
                                                        const summary::Paper& paper) override;
  std::variant<std::vector<summary::Picture>, std::string> pictures(const summary::Summary& summary,
                                                                    const summary::Paper& paper,
                                                                    double dotsPerInch) override;
};

}  // namespace nascor::typeset
