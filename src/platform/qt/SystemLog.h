#pragma once

#include "foundation/Log.h"

namespace nascor::qt {

/// The system's log, and standard error. Control characters in a line are made visible, so that a text from outside
/// cannot pass for a line of its own.
class SystemLog final : public foundation::Log {
 public:
  void write(std::string_view line) override;
};

}  // namespace nascor::qt
