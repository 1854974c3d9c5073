// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/Localizer.h"
#include "foundation/Signal.h"

namespace nascor::framework {

class TextFieldDelegate;

/// The state of one text field. The document reads and writes it, and views listen to `onChange`. What a user types
/// comes through the window's FieldEditor alone, so a text that is refused never reaches the field.
class TextField {
 public:
  /// `name` is the field's name in the window's layout.
  explicit TextField(std::string name, TextFieldDelegate* delegate = nullptr)
      : name_(std::move(name)), delegate_(delegate) {}
  virtual ~TextField() = default;
  TextField(const TextField&) = delete;
  TextField& operator=(const TextField&) = delete;

  const std::string& name() const { return name_; }
  /// Asked and told by the field editor; null for a field that anything may be typed into.
  TextFieldDelegate* delegate() const { return delegate_; }

  const std::string& text() const { return text_; }
  /// The program shows a text.
  void setText(std::string text);

  /// Whether `text` is one that the field can hold at all.
  virtual bool accepts(std::string_view text) const;
  /// The user has typed `text`, which the field accepts.
  virtual void takeEditedText(const std::string& text);
  /// Whether the user has typed here since the program last showed a text (or since `forgetEdits`).
  bool wasEdited() const { return wasEdited_; }
  void forgetEdits() { wasEdited_ = false; }

  /// Whether the user may type here. Not where there is nothing that could hold what is typed, and not over a text of which
  /// only a part is shown.
  bool isEditable() const { return isEditable_ && !isShownInPart_; }
  void setEditable(bool editable);
  /// Whether the text is longer than a field shows (framework/LongText.h).
  bool isShownInPart() const { return isShownInPart_; }

  /// Whether the text is to be shown in red.
  bool isRed() const { return isRed_; }
  void setRed(bool red);

  /// Whether what is shown belongs to nothing any more: it is there to be read only. Until the next text is shown or typed.
  bool isStale() const { return isStale_; }
  void setStale();

  /// Asks the view to select the text, so that typing replaces it.
  void selectText() const { onSelectText(); }

  foundation::Signal<> onChange;      ///< text, colour or what may be typed here may have changed
  foundation::Signal<> onSelectText;  ///< the text is to be selected

 protected:
  void show(std::string text, bool wasEdited);

 private:
  std::string name_;
  TextFieldDelegate* delegate_;
  std::string text_;
  bool wasEdited_ = false;
  bool isRed_ = false;
  bool isStale_ = false;
  bool isEditable_ = true;
  bool isShownInPart_ = false;
};

/// A field that holds a number and shows it rounded. Only what the user types replaces the number, so showing a value and
/// reading it back never changes it.
class NumberField final : public TextField {
 public:
  NumberField(std::string name, int decimals, const foundation::Localizer& localizer,
              TextFieldDelegate* delegate = nullptr)
      : TextField(std::move(name), delegate), decimals_(decimals), localizer_(localizer) {}

  double doubleValue() const { return value_; }
  void setDoubleValue(double value);
  /// Shows nothing and holds 0: there is no number.
  void clear();

  /// Digits with a sign and a decimal point or comma; empty is 0.
  bool accepts(std::string_view text) const override;
  void takeEditedText(const std::string& text) override;

 private:
  std::string shown() const;
  int decimals_;
  const foundation::Localizer& localizer_;
  double value_ = 0.0;
};

/// A field that holds a whole number.
class IntegerField final : public TextField {
 public:
  using TextField::TextField;

  std::int64_t integerValue() const { return value_; }
  void setIntegerValue(std::int64_t value);

  /// Digits with a sign; empty is 0.
  bool accepts(std::string_view text) const override;
  void takeEditedText(const std::string& text) override;

 private:
  std::int64_t value_ = 0;
};

}  // namespace nascor::framework
