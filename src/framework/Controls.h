// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/Signal.h"
#include "framework/Geometry.h"
#include "framework/LongText.h"
#include "framework/Page.h"

namespace nascor::framework {

// The state of the simpler controls of a window. The document reads and writes them, views listen to `onChange`.

/// A text of several lines, typed straight into.
class TextView {
 public:
  explicit TextView(std::string name) : name_(std::move(name)) {}

  const std::string& name() const { return name_; }
  const std::string& text() const { return text_; }
  void setText(std::string text) {
    isFull_ = false;
    show(std::move(text), false);
  }
  /// The user has made `typed` of the text, which takes no more than a note does (framework/LongText.h).
  void takeEditedText(std::string_view typed) {
    TypedText taken = typedOver(text_, typed, kMostInNote);
    isFull_ = taken.isFull;
    show(std::move(taken.text), true);
    onEdit();
  }
  /// Whether not all that was typed last found room.
  bool isFull() const { return isFull_; }
  bool wasEdited() const { return wasEdited_; }
  void forgetEdits() { wasEdited_ = false; }
  /// Whether the user may type here. Not where there is nothing that could hold what is typed, and not over a text of which
  /// only a part is shown.
  bool isEditable() const { return isEditable_ && !isShownInPart_; }
  /// Whether the text is longer than a note shows (framework/LongText.h).
  bool isShownInPart() const { return isShownInPart_; }
  void setEditable(bool editable) {
    if (std::exchange(isEditable_, editable) != editable) onChange();
  }

  foundation::Signal<> onChange;  ///< another text is shown, or what may be typed here has changed
  foundation::Signal<> onEdit;    ///< the user has typed; sent after `onChange`

 private:
  void show(std::string text, bool wasEdited) {
    text_ = std::move(text);
    wasEdited_ = wasEdited;
    isShownInPart_ = isTooLong(text_, kMostInNote);
    onChange();
  }
  std::string name_;
  std::string text_;
  bool wasEdited_ = false;
  bool isFull_ = false;
  bool isEditable_ = true;
  bool isShownInPart_ = false;
};

class CheckBox {
 public:
  CheckBox(std::string name, bool isOn) : name_(std::move(name)), isOn_(isOn) {}

  const std::string& name() const { return name_; }
  bool isOn() const { return isOn_; }
  void setOn(bool on) {
    isOn_ = on;
    onChange();
  }
  foundation::Signal<> onChange;

 private:
  std::string name_;
  bool isOn_;
};

/// A number that is moved in steps between two limits.
class Stepper {
 public:
  Stepper(double minimum, double maximum, double increment)
      : minimum_(minimum), maximum_(maximum), increment_(increment) {}

  double value() const { return value_; }
  double minimum() const { return minimum_; }
  double maximum() const { return maximum_; }
  double increment() const { return increment_; }
  /// Held within the limits; a value that is not a number stays one.
  void setValue(double value);
  void setMinimum(double minimum);
  void setMaximum(double maximum);

  foundation::Signal<> onChange;

 private:
  double minimum_;
  double maximum_;
  double increment_;
  double value_ = 0.0;
};

/// A window beside the document's own: shown or not, and where.
class Panel {
 public:
  explicit Panel(std::string name) : name_(std::move(name)) {}

  const std::string& name() const { return name_; }
  bool isShown() const { return isShown_; }
  void center() const { onCenter(); }
  /// Shows it in front of the others, ready for typing.
  void makeKeyAndOrderFront();
  void close();

  foundation::Signal<> onCenter;
  foundation::Signal<> onChange;  ///< sent whenever it is shown, brought to the front or closed

 private:
  std::string name_;
  bool isShown_ = false;
};

/// The pages of a document window, one of which is on show.
class TabView {
 public:
  void addPage(Page& page) { pages_.push_back(&page); }

  std::int64_t numberOfPages() const { return static_cast<std::int64_t>(pages_.size()); }
  /// Throws RangeError.
  Page& page(std::int64_t index) const;
  std::int64_t indexOfSelectedPage() const { return selected_; }
  /// Throws RangeError.
  void selectPage(std::int64_t index);

  /// Asks for the page on show to be drawn anew.
  void setNeedsDisplay() const { onNeedsDisplay(); }

  foundation::Signal<> onSelect;
  foundation::Signal<> onNeedsDisplay;

 private:
  std::vector<Page*> pages_;
  std::int64_t selected_ = 0;
};

/// One item of the main menu.
struct MenuItem {
  std::string menuTitle;
  std::string title;
  std::int64_t tag = 0;
  std::int64_t state = 0;  ///< 1 when it is ticked
};

}  // namespace nascor::framework
