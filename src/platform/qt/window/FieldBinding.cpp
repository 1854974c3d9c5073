// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/FieldBinding.h"

#include <QApplication>
#include <QDialog>
#include <QMetaObject>
#include <utility>

#include "base/Text.h"
#include "framework/LongText.h"
#include "window/EditNotices.h"
#include "window/NoteEdit.h"

namespace nascor::qt {
namespace {

void show(QLineEdit& edit, const std::string& whole) {
  const QString text = fromUtf8(framework::shownInEdit(whole, framework::kMostInField));
  const QString before = edit.text();
  if (before == text) return;
  const int cursor = edit.cursorPosition();
  edit.setText(text);
  // Also while a dialog has the keys, which come back to this field.
  if (edit.window()->focusWidget() != &edit) {
    edit.setCursorPosition(0);
  } else if (before.compare(text, Qt::CaseInsensitive) == 0) {
    edit.setCursorPosition(cursor);
  } else {
    // What is typed next is a new text, not digits before or behind one that was put here meanwhile.
    edit.selectAll();
  }
}

void showColor(QLineEdit& edit, const framework::TextField& field, bool isStale) {
  enum Look { kUsual, kRed, kStale };
  constexpr const char* kLook = "look";
  const int look = isStale ? kStale : field.isRed() ? kRed : kUsual;
  if (edit.property(kLook).toInt() == look) return;
  edit.setProperty(kLook, look);
  QPalette palette = edit.palette();
  // Not from the field's own palette, which holds in every group what was set here before.
  const QColor grey = QApplication::palette(&edit).color(QPalette::Disabled, QPalette::Text);
  palette.setColor(QPalette::Text, look == kRed     ? refusalColor(palette)
                                   : look == kStale ? grey
                                                    : palette.color(QPalette::WindowText));
  edit.setPalette(palette);
}

/// The field of the same window in which the tab key goes on from `edit`; null for none.
QWidget* nextField(QWidget& edit) {
  for (QWidget* next = edit.nextInFocusChain(); next != &edit; next = next->nextInFocusChain()) {
    if (!next->isEnabled() || !next->isVisible() || next->window() != edit.window()) continue;
    const auto* line = dynamic_cast<FieldEdit*>(next);
    if ((line != nullptr && !line->isReadOnly()) || dynamic_cast<NoteEdit*>(next) != nullptr) return next;
  }
  return nullptr;
}

}  // namespace

FieldBinding::FieldBinding(FieldEdit& edit, framework::TextField& field, framework::FieldEditor& editor,
                           Actions& actions)
    : QObject(&edit), edit_(edit), field_(&field), editor_(editor), actions_(actions) {
  subscriptions_.push_back(field.onChange.subscribe([this] { refresh(); }));
  subscriptions_.push_back(field.onSelectText.subscribe([this] {
    edit_.setFocus();
    edit_.selectAll();
  }));
  connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) { typed(text); });
  connect(&edit, &QLineEdit::returnPressed, this, [this] { goOn(); });
  // Not at once: the next widget is to have the focus before the user is asked anything.
  subscriptions_.push_back(edit.onLeave.subscribe([this] {
    QMetaObject::invokeMethod(
        this, [this] { leave(); }, Qt::QueuedConnection);
  }));
  edit.onEscape = [this] { return escape(); };
  refresh();
}

void FieldBinding::release() {
  subscriptions_.clear();
  field_ = nullptr;
}

void FieldBinding::refresh() {
  if (!field_ || isBeginning_) return;
  show(edit_, isInEdit() ? editor_.text() : field_->text());
  edit_.setRefusing(isInEdit() && editor_.isRefusing());
  edit_.setModified(isInEdit());
  showEditable();
  showColor(edit_, *field_, isStale());
  if (std::exchange(wasStale_, isStale()) != isStale()) edit_.setAccessibleDescription(description());
}

void FieldBinding::showEditable() {
  const bool isEditable = field_->isEditable();
  edit_.setShownInPart(field_->isShownInPart());
  if (edit_.isReadOnly() != isEditable) return;
  edit_.setReadOnly(!isEditable);
  QPalette palette = edit_.palette();
  palette.setBrush(QPalette::Base, isEditable ? QApplication::palette(&edit_).brush(QPalette::Base)
                                              : QBrush(Qt::transparent));
  edit_.setPalette(palette);
  edit_.setPlaceholderText(isEditable ? QString() : QCoreApplication::translate("FieldBinding", "no record"));
  edit_.setAccessibleDescription(description());
}

QString FieldBinding::description() const {
  if (field_ && isStale()) {
    return QCoreApplication::translate("FieldBinding", "Belongs to no fetus: the fetus was removed. %1")
        .arg(edit_.toolTip());
  }
  if (!edit_.isReadOnly()) return edit_.toolTip();
  if (field_ && field_->isShownInPart()) return shownInPartText();
  return QCoreApplication::translate("FieldBinding",
                                     "Nothing can be entered here: the document holds no record for it.");
}

void FieldBinding::typed(const QString& text) {
  if (!field_ || isBeginning_) return;
  if (isInEdit()) {
    editor_.replace(toUtf8(text));
    return;
  }
  // Beginning may end another field, which shows everything anew, and may ask whether the text that stands there is to be
  // changed at all. What was typed comes back after that, with what can be undone of it.
  const QPointer<FieldBinding> self = this;
  bool began = false;
  isBeginning_ = true;
  const int cursor = edit_.cursorPosition();
  edit_.undo();
  if (edit_.text() != fromUtf8(framework::shownInEdit(field_->text(), framework::kMostInField))) edit_.redo();
  actions_.perform([&] { began = editor_.begin(*field_); });
  if (!self) return;
  if (began && edit_.text() != text) edit_.redo();
  isBeginning_ = false;
  if (!field_) return;
  if (began) {
    if (edit_.text() != text) edit_.setText(text);
    edit_.deselect();
    edit_.setCursorPosition(cursor);
    editor_.replace(toUtf8(text));
  } else {
    refresh();
    edit_.selectAll();
  }
}

// What the user types is stored for the fetus that is left.
bool FieldBinding::isStale() const { return field_->isStale() && !isInEdit(); }

void FieldBinding::leave() {
  if (!isInEdit()) return;
  actions_.performInTurn([self = QPointer<FieldBinding>(this)] {
    if (!self || !self->isInEdit() || self->editor_.end()) return;
    // Refused: the user stays where the mistake is.
    self->edit_.setFocus();
  });
}

void FieldBinding::goOn() {
  // In a dialog the Return key presses its button.
  if (qobject_cast<QDialog*>(edit_.window())) {
    leave();
    return;
  }
  actions_.performInTurn([self = QPointer<FieldBinding>(this)] {
    if (!self || (self->isInEdit() && !self->editor_.end())) return;
    // Leaving the field may have put another document into its place.
    if (!self || !self->field_) return;
    if (QWidget* next = nextField(self->edit_)) next->setFocus(Qt::TabFocusReason);
  });
}

bool FieldBinding::escape() {
  // Escape closes a dialog, which gives the old text back as well.
  if (!isInEdit() || qobject_cast<QDialog*>(edit_.window())) return false;
  editor_.revert();
  refresh();
  edit_.selectAll();
  return true;
}

void letWindowThrough(QLineEdit& edit) {
  QPalette palette = edit.palette();
  palette.setBrush(QPalette::Base, Qt::transparent);
  edit.setPalette(palette);
}

foundation::Subscription bindLabel(QLabel& label, framework::TextField& field) {
  const auto showField = [&label, &field] { label.setText(fromUtf8(field.text())); };
  showField();
  return field.onChange.subscribe(showField);
}

foundation::Subscription bindReadOnly(QLineEdit& edit, framework::TextField& field) {
  letWindowThrough(edit);
  const auto showField = [&edit, &field] {
    show(edit, field.text());
    showColor(edit, field, field.isStale());
  };
  showField();
  return field.onChange.subscribe(showField);
}

}  // namespace nascor::qt
