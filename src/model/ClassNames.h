// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>

namespace nascor::model {

/// The names of classes as they stand in document files.
namespace class_name {
inline constexpr std::string_view patientRecord = "PatientRecord";
inline constexpr std::string_view ncRecord = "NCRecord";
inline constexpr std::string_view measurementsRecord = "MeasurementsRecord";
inline constexpr std::string_view string = "NSString";
inline constexpr std::string_view mutableString = "NSMutableString";
inline constexpr std::string_view date = "NSDate";
inline constexpr std::string_view array = "NSArray";
inline constexpr std::string_view mutableArray = "NSMutableArray";
inline constexpr std::string_view rootObject = "NSObject";
}  // namespace class_name

/// The class versions that are written. Files of every earlier version are read.
namespace class_version {
inline constexpr std::int64_t patientRecord = 7;
inline constexpr std::int64_t ncRecord = 1;
inline constexpr std::int64_t measurementsRecord = 0;
/// From this version of the patient on the gravidity is a number. Before, it is a text, whose place later files fill with a
/// word that means nothing.
inline constexpr std::int64_t patientWithGravida = 7;
inline constexpr std::string_view gravidityPlaceholder = "Deprecated";
}  // namespace class_version

}  // namespace nascor::model
