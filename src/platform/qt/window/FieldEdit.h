// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>
#include <functional>

#include "foundation/Signal.h"

namespace nascor::qt {

/// A line to type in that can be outlined while it refuses what was typed. Lines that are pasted into it become one. What
/// finds no room in it (framework/LongText.h) is left out, and it says so. Files that are dropped on it go to its window.
class FieldEdit final : public QLineEdit {
 public:
  explicit FieldEdit(QWidget* parent = nullptr);

  /// Outlines the field, or not.
  void setRefusing(bool refusing);
  bool isRefusing() const { return isRefusing_; }
  /// Outlines the field because something cannot be done with what it holds, or not.
  void setObstacle(bool obstacle);
  bool isObstacle() const { return isObstacle_; }
  /// Says, in place of the tool tip and whenever something is typed, that only a part of the text is shown.
  void setShownInPart(bool isShownInPart) { isShownInPart_ = isShownInPart; }
  /// Room for a date at least.
  QSize minimumSizeHint() const override;

  /// The focus went to another widget of the window, not to a menu or another window.
  foundation::Signal<> onLeave;
  std::function<bool()> onEscape;  ///< the user pressed Escape; true when that did something

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool isRefusing_ = false;
  bool isObstacle_ = false;
  bool isShownInPart_ = false;
};

/// The colour of the outline on this palette: at least 3:1 against the field and the window.
QColor refusalColor(const QPalette& palette);

}  // namespace nascor::qt
