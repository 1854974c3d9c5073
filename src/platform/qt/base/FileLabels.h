// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace nascor::qt {

/// What each of the files at these absolute paths is called in a menu: its name, and behind equal names as much of the folder
/// as tells them apart: "a.nascor (2026/May)".
QStringList fileLabels(const QStringList& paths);

/// `name` as it may stand in a menu: one line, its ampersands no mnemonics.
QString menuText(const QString& name);

}  // namespace nascor::qt
