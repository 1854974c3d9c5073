// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeyEvent>
#include <QString>
#include <QWidget>

namespace nascor::qt {

/// Whether `event` is a key that puts a character into an edit. The Return key is none.
bool putsText(const QKeyEvent& event);

bool isUndoOrRedo(const QKeyEvent& event);

/// Says at `edit` that no more fits into it.
void sayThatItIsFull(QWidget& edit);

/// What is said of an edit that shows only a part of its text.
QString shownInPartText();

/// Says that at `edit`.
void sayThatItShowsAPart(QWidget& edit);

}  // namespace nascor::qt
