// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace nascor::qt {

/// Shows version, disclaimer and licences until the user closes them; and, when asked, whether the program answers the
/// worked examples as they are known.
void showAbout(QWidget& parent);

}  // namespace nascor::qt
