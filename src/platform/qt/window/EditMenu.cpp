// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/EditMenu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <utility>

#include "base/Text.h"
#include "window/NoteEdit.h"

namespace nascor::qt {
namespace {

/// What can be done to a text.
struct Possible {
  bool undo = false;
  bool redo = false;
  bool cut = false;
  bool copy = false;
  bool paste = false;
  bool selectAll = false;
};

bool clipboardHasText() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data != nullptr && data->hasText() && !data->text().isEmpty();
}

/// Whether the user is typing in `focus`, which then undoes by itself.
bool isInEdit(const QWidget* focus) {
  const auto* line = qobject_cast<const QLineEdit*>(focus);
  const auto* note = dynamic_cast<const NoteEdit*>(focus);
  return (line != nullptr && line->isModified()) || (note != nullptr && note->isInEdit());
}

Possible possibleIn(const QWidget* focus) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(focus)) {
    const bool isTyped = !edit->isReadOnly();
    return {.undo = isTyped && edit->isUndoAvailable(),
            .redo = isTyped && edit->isRedoAvailable(),
            .cut = isTyped && edit->hasSelectedText(),
            .copy = edit->hasSelectedText(),
            .paste = isTyped && clipboardHasText(),
            .selectAll = !edit->text().isEmpty()};
  }
  if (const auto* edit = qobject_cast<const QPlainTextEdit*>(focus)) {
    const bool isTyped = !edit->isReadOnly();
    const bool hasSelection = edit->textCursor().hasSelection();
    return {.undo = isTyped && edit->document()->isUndoAvailable(),
            .redo = isTyped && edit->document()->isRedoAvailable(),
            .cut = isTyped && hasSelection,
            .copy = hasSelection,
            .paste = edit->canPaste(),
            .selectAll = !edit->document()->isEmpty()};
  }
  return {};
}

/// `action` done to the text that has the focus, if one has.
template <class LineAction, class NoteAction>
void editText(QWidget* focus, LineAction line, NoteAction note) {
  if (auto* edit = qobject_cast<QLineEdit*>(focus)) (edit->*line)();
  if (auto* edit = qobject_cast<QPlainTextEdit*>(focus)) (edit->*note)();
}

}  // namespace

EditMenu::EditMenu(QWidget& window, QMenu& menu, Items items, Step undo, Step redo)
    : QObject(&window), window_(window), items_(items), undo_(std::move(undo)), redo_(std::move(redo)) {
  const auto bind = [this](QAction& item, auto line, auto note) {
    connect(&item, &QAction::triggered, this,
            [this, line, note] { editText(window_.focusWidget(), line, note); });
  };
  const auto bindStep = [this](QAction& item, const Step& step, auto line, auto note) {
    connect(&item, &QAction::triggered, this, [this, &step, line, note] {
      QWidget* focus = window_.focusWidget();
      if (isInEdit(focus)) {
        editText(focus, line, note);
      } else {
        step.go();
      }
    });
  };
  bindStep(items_.undo, undo_, &QLineEdit::undo, &QPlainTextEdit::undo);
  bindStep(items_.redo, redo_, &QLineEdit::redo, &QPlainTextEdit::redo);
  bind(items_.cut, &QLineEdit::cut, &QPlainTextEdit::cut);
  bind(items_.copy, &QLineEdit::copy, &QPlainTextEdit::copy);
  bind(items_.paste, &QLineEdit::paste, &QPlainTextEdit::paste);
  bind(items_.selectAll, &QLineEdit::selectAll, &QPlainTextEdit::selectAll);
  connect(&menu, &QMenu::aboutToShow, this, [this] { validate(); });
  // The keys are the fields' own, which know by themselves what can be done.
  connect(&menu, &QMenu::aboutToHide, this, [this] {
    for (QAction* item :
         {&items_.undo, &items_.redo, &items_.cut, &items_.copy, &items_.paste, &items_.selectAll})
      item->setEnabled(true);
  });
}

void EditMenu::showSteps() {
  const auto show = [this](QAction& item, const QString& word, const QString& withName, const Step& step) {
    const auto name = isInEdit(window_.focusWidget()) ? std::nullopt : step.name();
    item.setText(name ? withName.arg(fromUtf8(*name)) : word);
  };
  show(items_.undo, said("MyDocument", "&Undo"), said("MyDocument", "&Undo %1"), undo_);
  show(items_.redo, said("MyDocument", "&Redo"), said("MyDocument", "&Redo %1"), redo_);
}

void EditMenu::validate() {
  showSteps();
  const QWidget* focus = window_.focusWidget();
  const Possible possible = possibleIn(focus);
  items_.undo.setEnabled(isInEdit(focus) ? possible.undo : undo_.name().has_value());
  items_.redo.setEnabled(isInEdit(focus) ? possible.redo : redo_.name().has_value());
  items_.cut.setEnabled(possible.cut);
  items_.copy.setEnabled(possible.copy);
  items_.paste.setEnabled(possible.paste);
  items_.selectAll.setEnabled(possible.selectAll);
}

}  // namespace nascor::qt
