// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "foundation/Calendar.h"
#include "foundation/Services.h"
#include "framework/FieldEditor.h"
#include "framework/TextField.h"

namespace nascor::app {

/// Where a text, a number or a date is taken from: what a field holds, or what the user types in it just now. A field that is
/// not in edit gives what it holds.
enum class Reading { held, typed };

/// Reads the fields of a window.
class FieldReader {
 public:
  /// Keeps a reference to `editor`, the window's own.
  FieldReader(const foundation::Services& services, const framework::FieldEditor& editor)
      : services_(services), editor_(editor) {}

  std::string text(const framework::TextField& field, Reading reading) const;
  /// NaN while the text is no number.
  double number(const framework::NumberField& field, Reading reading) const;
  /// Nothing while the text is no whole number.
  std::optional<std::int64_t> integer(const framework::IntegerField& field, Reading reading) const;
  /// The beginning of the day. Nothing for a text that is no date.
  std::optional<foundation::Date> date(const framework::TextField& field, Reading reading) const;
  /// `date` as the user writes dates; empty for none.
  std::string shortDateText(const std::optional<foundation::Date>& date) const;

  const foundation::Services& services() const { return services_; }

 private:
  bool isInEdit(const framework::TextField& field, Reading reading) const {
    return reading == Reading::typed && editor_.field() == &field;
  }

  foundation::Services services_;
  const framework::FieldEditor& editor_;
};

}  // namespace nascor::app
