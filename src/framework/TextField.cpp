// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/TextField.h"

#include <utility>

#include "foundation/NumberText.h"
#include "framework/LongText.h"

namespace nascor::framework {

void TextField::setText(std::string text) { show(std::move(text), false); }

bool TextField::accepts(std::string_view) const { return true; }

void TextField::takeEditedText(const std::string& text) { show(text, true); }

void TextField::setRed(bool red) {
  isRed_ = red;
  onChange();
}

void TextField::setStale() {
  isStale_ = true;
  onChange();
}

void TextField::setEditable(bool editable) {
  if (std::exchange(isEditable_, editable) != editable) onChange();
}

void TextField::show(std::string text, bool wasEdited) {
  text_ = std::move(text);
  wasEdited_ = wasEdited;
  isStale_ = false;
  isShownInPart_ = isTooLong(text_, kMostInField);
  onChange();
}

void NumberField::setDoubleValue(double value) {
  value_ = value;
  show(shown(), false);
}

void NumberField::clear() {
  value_ = 0.0;
  show("", false);
}

bool NumberField::accepts(std::string_view text) const {
  return foundation::numberFromFieldText(text).has_value();
}

void NumberField::takeEditedText(const std::string& text) {
  value_ = foundation::numberFromFieldText(text).value_or(0.0);
  show(shown(), true);
}

std::string NumberField::shown() const {
  return foundation::fieldText(value_, decimals_, localizer_.decimalSign());
}

void IntegerField::setIntegerValue(std::int64_t value) {
  value_ = value;
  show(std::to_string(value_), false);
}

bool IntegerField::accepts(std::string_view text) const {
  return foundation::integerFromFieldText(text).has_value();
}

void IntegerField::takeEditedText(const std::string& text) {
  value_ = foundation::integerFromFieldText(text).value_or(0);
  show(std::to_string(value_), true);
}

}  // namespace nascor::framework
