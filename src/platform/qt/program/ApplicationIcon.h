// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

namespace nascor::qt {

/// The application's icon, resources/desktop, in the sizes of title bars and lists of windows.
QIcon applicationIcon();

}  // namespace nascor::qt
