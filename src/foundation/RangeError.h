// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <concepts>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

#include "foundation/SourceLocation.h"

namespace nascor::foundation {

/// An index outside its container. It abandons the action in progress; it is caught at the edge of the
/// program alone (the event loop, the scripting interface, the command line's main).
class RangeError : public std::out_of_range {
 public:
  RangeError(const std::string& what, SourceLocation where) : std::out_of_range(what), where_(where) {}
  const SourceLocation& where() const { return where_; }

 private:
  SourceLocation where_;
};

[[noreturn]] void throwRangeError(std::string index, std::size_t count, SourceLocation where);

/// The element at `index`, or a RangeError; negative indices are out of range like any other.
template <class Container, std::integral Index>
auto& checkedAt(Container& container, Index index, SourceLocation where = SourceLocation::current()) {
  if (std::cmp_less(index, 0) || std::cmp_greater_equal(index, container.size())) {
    throwRangeError(std::to_string(index), container.size(), where);
  }
  return container[static_cast<std::size_t>(index)];
}

}  // namespace nascor::foundation
