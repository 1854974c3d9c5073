// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "foundation/Calendar.h"
#include "foundation/FileStore.h"
#include "foundation/Localizer.h"

namespace nascor::foundation {

/// A moment as a person reads it in the user's zone: "22 November 2026, 10:00"; "-" for one that is no date there.
std::string momentText(const Date& moment, const Calendar& calendar, const Localizer& localizer);

/// What is known of who has a document open, a label before each part: "User: anna", "Machine: ward-3" and so on.
std::string holderText(const FileHolder& holder, const Calendar& calendar, const Localizer& localizer,
                       std::string_view separator);

/// The same as one sentence, which says why a document cannot be written.
std::string heldSentence(const FileHolder& holder, const Calendar& calendar, const Localizer& localizer);

}  // namespace nascor::foundation
