#pragma once

#include "foundation/Log.h"

namespace nascor::qt {

/// The system's log; also standard error, when the category "nascor.log" is switched on.
class SystemLog final : public foundation::Log {
 public:
  void write(std::string_view line) override;
};

}  // namespace nascor::qt
