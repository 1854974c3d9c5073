// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "summary/Summary.h"

namespace nascor::summary {

/// The summary as one HTML document, UTF-8, that needs nothing else: style and charts are in it, and no script. Printed, each
/// fetus begins a page.
std::string htmlText(const Summary& summary);

}  // namespace nascor::summary
