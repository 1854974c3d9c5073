// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QWidget>
#include <vector>

#include "foundation/UserDefaults.h"

namespace nascor::qt {

/// How large a window opens for the first time, which was designed for a small screen.
QSize usualWindowSize(QSize designed, QSize screen);

/// The next window opens in the place of this one.
void keepPlace(const QWidget& window, foundation::UserDefaults& defaults);
/// Moves `window` to the place that was kept last, else to the middle of the screen in its usual size.
void restorePlace(QWidget& window, const foundation::UserDefaults& defaults);
/// Moves `window`, which is about to be shown, so far from each of `others` that their titles can be read.
void moveAside(QWidget& window, const std::vector<const QWidget*>& others);

}  // namespace nascor::qt
