#include "foundation/Assertion.h"

namespace nascor::foundation {

AssertionFailure::AssertionFailure(const std::string& description, std::source_location where)
    : std::logic_error(description + " (" + where.file_name() + ":" + std::to_string(where.line()) + ")"),
      where_(where) {}

void throwValueIsNil(std::source_location where) { throw AssertionFailure("Value==nil", where); }

}  // namespace nascor::foundation
