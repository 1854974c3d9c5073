// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QWidget>

namespace nascor::qt {

/// Shows a puff of smoke for a moment around `centre` of `window`: what stood there is gone.
void showPuff(QWidget& window, QPoint centre);

}  // namespace nascor::qt
