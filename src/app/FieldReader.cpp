// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "app/FieldReader.h"

#include <cmath>

#include "foundation/DateText.h"
#include "foundation/Localizer.h"
#include "foundation/NumberText.h"
#include "foundation/ShortDate.h"

namespace nascor::app {

std::string FieldReader::text(const framework::TextField& field, Reading reading) const {
  return isInEdit(field, reading) ? editor_.text() : field.text();
}

double FieldReader::number(const framework::NumberField& field, Reading reading) const {
  if (!isInEdit(field, reading)) return field.doubleValue();
  return foundation::numberFromFieldText(editor_.text()).value_or(std::nan(""));
}

std::optional<std::int64_t> FieldReader::integer(const framework::IntegerField& field,
                                                 Reading reading) const {
  if (!isInEdit(field, reading)) return field.integerValue();
  return foundation::integerFromFieldText(editor_.text());
}

std::optional<foundation::Date> FieldReader::date(const framework::TextField& field, Reading reading) const {
  const auto day =
      foundation::civilDayFromShortText(text(field, reading), foundation::dateForm(services_.localizer));
  if (!day) return std::nullopt;
  return foundation::startOfDay(*day, services_.calendar);
}

std::string FieldReader::shortDateText(const std::optional<foundation::Date>& date) const {
  foundation::dateForm(services_.localizer);
  return foundation::shortDateText(date, services_.calendar, services_.localizer);
}

}  // namespace nascor::app
