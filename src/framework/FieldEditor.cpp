// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "framework/FieldEditor.h"

#include <utility>

#include "framework/LongText.h"

namespace nascor::framework {

bool FieldEditor::begin(TextField& field) {
  if (field_ == &field) return true;
  if (!end() || !field.isEditable()) return false;
  TextFieldDelegate* delegate = field.delegate();
  if (delegate && !delegate->controlTextShouldBeginEditing(field)) return false;
  field_ = &field;
  text_ = field.text();
  isRefusing_ = false;
  isFull_ = false;
  if (delegate) delegate->controlTextDidBeginEditing(field);
  onChange();
  return true;
}

void FieldEditor::replace(std::string_view typed) {
  if (!field_) return;
  TypedText taken = typedOver(text_, typed, kMostInField);
  text_ = std::move(taken.text);
  isFull_ = taken.isFull;
  isRefusing_ = false;
  onChange();
}

bool FieldEditor::end() {
  if (!field_ || isEnding_) return true;
  TextField& field = *field_;
  TextFieldDelegate* delegate = field.delegate();
  isRefusing_ =
      !field.accepts(text_) || (delegate != nullptr && !delegate->controlTextShouldEndEditing(field, text_));
  if (isRefusing_) {
    onChange();
    return false;
  }
  field_ = nullptr;
  isFull_ = false;
  field.takeEditedText(std::exchange(text_, {}));
  // What the delegate does now may ask the user, and leave the window's fields meanwhile.
  isEnding_ = true;
  struct Ended {
    bool& flag;
    ~Ended() { flag = false; }
  } const ended{isEnding_};
  if (delegate) delegate->controlTextDidEndEditing(field);
  onChange();
  return true;
}

void FieldEditor::revert() {
  if (!field_) return;
  TextField& field = *std::exchange(field_, nullptr);
  text_.clear();
  isRefusing_ = false;
  isFull_ = false;
  if (TextFieldDelegate* delegate = field.delegate()) delegate->controlTextDidDropEditing(field);
  onChange();
}

}  // namespace nascor::framework
