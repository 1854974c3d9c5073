// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "foundation/Signal.h"
#include "framework/TextField.h"

namespace nascor::framework {

/// Rules for editing fields, kept by their document.
class TextFieldDelegate {
 public:
  virtual ~TextFieldDelegate() = default;
  // Selector: control:textShouldBeginEditing:
  /// Whether the user may begin to change `field`. May ask the user.
  virtual bool controlTextShouldBeginEditing(TextField& field) = 0;
  /// The user has begun to change `field`.
  virtual void controlTextDidBeginEditing(TextField& field) = 0;
  // Selector: control:textShouldEndEditing:
  /// Whether `field` may be left with `text`, which it accepts.
  virtual bool controlTextShouldEndEditing(TextField& field, std::string_view text) = 0;
  /// The user has left `field`, which holds the new text.
  virtual void controlTextDidEndEditing(TextField& field) = 0;
  /// What the user had typed into `field` was dropped; the field holds what it held.
  virtual void controlTextDidDropEditing(TextField& field) = 0;
};

/// Edits the fields of one window, one at a time. A visit without a change does not come here.
class FieldEditor {
 public:
  /// Begins to change `field`: asks its delegate. The field in edit before is ended first. False when that one refuses
  /// or the delegate declines. A field that is in edit already stays so and is not asked again.
  bool begin(TextField& field);
  /// The user has made `typed` of the edited text. Changes that text only, which takes no more than a field does
  /// (framework/LongText.h). Does nothing when no field is in edit.
  void replace(std::string_view typed);
  /// Ends editing: when field and delegate agree the field takes the text and the delegate is told. False, and the field
  /// stays in edit, when they refuse. True when no field is in edit.
  bool end();
  /// Drops the edited text, ends editing without asking, and tells the delegate; the field shows what it held.
  void revert();

  /// The field in edit; null for none.
  const TextField* field() const { return field_; }
  const std::string& text() const { return text_; }
  /// Whether not all that was typed last found room.
  bool isFull() const { return isFull_; }
  /// Whether the field in edit has refused its text and not been changed since.
  bool isRefusing() const { return isRefusing_; }

  /// Another field, another text or none is in edit, or the field refuses its text. The document listens first.
  foundation::Signal<> onChange;

 private:
  TextField* field_ = nullptr;
  std::string text_;
  bool isRefusing_ = false;
  bool isFull_ = false;
  bool isEnding_ = false;
};

}  // namespace nascor::framework
