// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include <dcmtk/config/osconfig.h>
// The configuration stands first.
#include <dcmtk/dcmnet/dimse.h>

namespace nascor::dicom_net {

// The kinds of message that stand in one of DCMTK's. Each is for a message whose CommandField says that it is of that kind,
// or which is to become one.
// NOLINTBEGIN(cppcoreguidelines-pro-type-union-access): DCMTK declares a union.
auto& echoRequest(auto& message) { return message.msg.CEchoRQ; }
auto& echoResponse(auto& message) { return message.msg.CEchoRSP; }
auto& findRequest(auto& message) { return message.msg.CFindRQ; }
auto& findResponse(auto& message) { return message.msg.CFindRSP; }
auto& getRequest(auto& message) { return message.msg.CGetRQ; }
auto& getResponse(auto& message) { return message.msg.CGetRSP; }
auto& storeRequest(auto& message) { return message.msg.CStoreRQ; }
auto& storeResponse(auto& message) { return message.msg.CStoreRSP; }
// NOLINTEND(cppcoreguidelines-pro-type-union-access)

/// Puts a text into a message, cut at the longest that fits.
template <std::size_t kSize>
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays): DCMTK declares an array.
void put(char (&to)[kSize], const std::string& text) {
  OFStandard::strlcpy(to, text.c_str(), kSize);
}

}  // namespace nascor::dicom_net
