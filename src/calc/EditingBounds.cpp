// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "calc/EditingBounds.h"

#include "calc/Standards.h"

namespace nascor::calc {

EditingBounds plannedDeliveryDays(std::int64_t standard) {
  const GrowthStandard* chosen = growthStandard(standard);
  const double last = chosen != nullptr ? chosen->lastDeliveryDay : kUsualLastDeliveryDay;
  return {.least = -280.0, .greatest = last};
}

}  // namespace nascor::calc
