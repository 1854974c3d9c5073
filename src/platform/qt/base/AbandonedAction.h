#pragma once

#include <exception>
#include <string>

namespace nascor::qt {

/// Tells on standard error that an action was abandoned, and where in the sources.
void tellAbandoned(const std::exception& error);
void tellAbandoned(const std::string& what);

}  // namespace nascor::qt
