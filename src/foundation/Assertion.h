// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "foundation/SourceLocation.h"

namespace nascor::foundation {

/// Something that cannot be missing is missing: a programming error. It abandons the action in progress,
/// with a message that names the source file and line, and never ends the process: documents may be unsaved.
class AssertionFailure : public std::logic_error {
 public:
  AssertionFailure(const std::string& description, SourceLocation where);
  const SourceLocation& where() const { return where_; }

 private:
  SourceLocation where_;
};

[[noreturn]] void throwValueIsNil(SourceLocation where);

/// `value` itself when it is there (a pointer or an optional that is not empty); otherwise an
/// AssertionFailure "Value==nil".
template <class Value>
Value&& required(Value&& value, SourceLocation where = SourceLocation::current()) {
  if (!value) throwValueIsNil(where);
  return std::forward<Value>(value);
}

}  // namespace nascor::foundation
