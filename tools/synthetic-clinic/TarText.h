// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace nascor::clinic {

/// Appends a file to a tar archive (ustar), readable by its owner alone. The name has at most 100 bytes.
void appendTarMember(std::string& tar, std::string_view name, std::span<const std::byte> contents);

/// Appends what ends an archive.
void appendTarEnd(std::string& tar);

}  // namespace nascor::clinic
