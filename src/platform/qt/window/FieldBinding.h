// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QLabel>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <vector>

#include "foundation/Signal.h"
#include "framework/Controls.h"
#include "framework/FieldEditor.h"
#include "framework/PopUpButton.h"
#include "framework/TextField.h"
#include "window/Actions.h"
#include "window/FieldEdit.h"

namespace nascor::qt {

/// Binds a line to type in and a field, both ways: the line shows what the field holds, and what the user types goes to
/// the window's field editor, from which the field takes it. The binding ends with the line.
class FieldBinding final : public QObject {
 public:
  /// All of these outlive the binding, or `release` is called before they go.
  FieldBinding(FieldEdit& edit, framework::TextField& field, framework::FieldEditor& editor,
               Actions& actions);

  /// The field shows itself nowhere any more, and what is typed goes nowhere.
  void release();
  /// Shows text, colour and whether the field refuses its text.
  void refresh();

  FieldEdit& edit() { return edit_; }
  /// What an aid for reading says of the field: what it takes, or why it takes nothing.
  QString description() const;
  const framework::TextField* field() const { return field_; }

 private:
  void typed(const QString& text);
  void showEditable();
  void leave();
  /// Leaves the field, and goes to the next one unless it refuses its text.
  void goOn();
  bool escape();
  bool isInEdit() const { return field_ != nullptr && editor_.field() == field_; }
  bool isStale() const;

  FieldEdit& edit_;
  framework::TextField* field_;
  framework::FieldEditor& editor_;
  Actions& actions_;
  bool isBeginning_ = false;
  bool wasStale_ = false;
  std::vector<foundation::Subscription> subscriptions_;
};

/// Shows the window behind a line that takes no typing.
void letWindowThrough(QLineEdit& edit);

/// A label that shows a field, which both outlive the subscription.
[[nodiscard]] foundation::Subscription bindLabel(QLabel& label, framework::TextField& field);

/// A line that shows a field and takes no typing; both outlive the subscription.
[[nodiscard]] foundation::Subscription bindReadOnly(QLineEdit& edit, framework::TextField& field);

}  // namespace nascor::qt
