// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace nascor::exchange {

using Uuid = std::array<std::uint8_t, 16>;

/// The UUID (RFC 4122, version 5) of `name` within a name space: the same name has the same one everywhere, so that a
/// document that is exported twice unchanged is one thing for the receiver.
Uuid nameBasedUuid(const Uuid& nameSpace, std::string_view name);

/// Of everything that this program names.
inline constexpr Uuid kNascorNames{0x3d, 0x0b, 0x6f, 0x5e, 0x91, 0x57, 0x4c, 0x1a,
                                   0x8e, 0x52, 0x1f, 0x6a, 0xc4, 0x77, 0x20, 0xd9};

/// "886313e1-3b8a-5372-9b90-0c9aee199e5d".
std::string textOf(const Uuid& uuid);

/// The same as a UID of DICOM: "2.25." and its decimal number.
std::string uidOf(const Uuid& uuid);

}  // namespace nascor::exchange
