// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <string>
#include <variant>

#include "foundation/Sentence.h"

namespace nascor::dicom_net {

/// An IPv4 address of a host.
struct HostAddress {
  std::string digits;  ///< "192.0.2.1"
};

/// The first IPv4 address that the system knows for a name; a sentence when it knows none within that time.
std::variant<HostAddress, foundation::Sentence> addressOfHost(const std::string& name,
                                                              std::chrono::milliseconds time);

}  // namespace nascor::dicom_net
