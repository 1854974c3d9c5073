// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "sqlite/RowSource.h"

struct sqlite3;

namespace nascor::sqlite {

/// See Database::show. The library's result code.
int showRows(sqlite3* database, const RowSource& rows, const std::string& name, const std::string& columns);

}  // namespace nascor::sqlite
