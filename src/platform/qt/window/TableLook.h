// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

class QTableView;

namespace nascor::qt {

/// How tables of figures look: rows as wide as the table that are told apart, cells with room, no grid.
void dressTable(QTableView& view);

/// Every other row stands out a little, also on palettes that have no colour for it or that of another one.
void tellRowsApart(QTableView& view);

}  // namespace nascor::qt
