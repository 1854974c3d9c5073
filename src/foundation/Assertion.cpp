// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "foundation/Assertion.h"

namespace nascor::foundation {

AssertionFailure::AssertionFailure(const std::string& description, SourceLocation where)
    : std::logic_error(description + " (" + where.file_name() + ":" + std::to_string(where.line()) + ")"),
      where_(where) {}

void throwValueIsNil(SourceLocation where) { throw AssertionFailure("Value==nil", where); }

}  // namespace nascor::foundation
