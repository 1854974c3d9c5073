// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace nascor::qt {

/// The scripting dictionary, resources/dbus: what the objects on the bus answer to introspection, byte for byte.
extern const std::string_view applicationDictionary;
extern const std::string_view documentDictionary;

}  // namespace nascor::qt
