// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace nascor::qt {

QString programVersion();
/// What stands wherever the program introduces itself.
QString disclaimer();

}  // namespace nascor::qt
