// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace nascor::foundation {

/// The five preferences that the program knows, by the names under which they are stored.
namespace defaults_key {
inline constexpr std::string_view dataFileExtension = "DataFile Extension";
inline constexpr std::string_view showAll = "Show All";
inline constexpr std::string_view standard = "Standard";
inline constexpr std::string_view estimatedFetalWeightStandard = "Estimated Fetal Weight Standard";
inline constexpr std::string_view crlStandard = "CRL Standard";
}  // namespace defaults_key

/// The user's preferences, kept as text by name. A value that the user never chose reads as the registered
/// default, and as nothing where none was registered.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;
  virtual std::optional<std::string> value(std::string_view key) const = 0;
  virtual void setValue(std::string_view key, std::string value) = 0;
  virtual void registerDefault(std::string_view key, std::string value) = 0;
};

/// The value of `key` as a whole number: leading digits with an optional sign; 0 when there are none.
std::int64_t integerForKey(const UserDefaults& defaults, std::string_view key);

/// The value of `key` as a truth value: YES, true, y and any number but 0 are true, in any case; all else
/// (NO, false, 0, the empty text, nothing) is false.
bool boolForKey(const UserDefaults& defaults, std::string_view key);

}  // namespace nascor::foundation
