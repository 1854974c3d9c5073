// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "rows/RowText.h"

namespace nascor::rows {

std::string& RowText::text() {
  out_.append(cells_.data(), at_);
  at_ = cells_.data();
  return out_;
}

}  // namespace nascor::rows
