// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/FieldEdit.h"

#include <QDragEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QValidator>

#include "framework/LongText.h"
#include "window/EditNotices.h"

namespace nascor::qt {

QColor refusalColor(const QPalette& palette) {
  // A field that is only read lets the window through.
  const QColor base = palette.color(QPalette::Base);
  const bool isDark = (base.alpha() > 0 ? base : palette.color(QPalette::Window)).lightness() < 128;
  return isDark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb7, 0x1c, 0x1c);
}

namespace {

/// Takes any text, and makes one line of it.
class OneLine final : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& input, int& /*cursor*/) const override {
    static const QRegularExpression kBreaksAtAnEnd(QStringLiteral("^[\\v\\t]+|[\\v\\t]+$"));
    static const QRegularExpression kBreaks(QStringLiteral("[\\v\\t]+"));
    input.remove(kBreaksAtAnEnd).replace(kBreaks, QStringLiteral(" "));
    // A sign of two units that was cut in the middle, where there was room for one.
    const auto isHalf = [&input](qsizetype i) {
      if (input[i].isHighSurrogate()) return i + 1 == input.size() || !input[i + 1].isLowSurrogate();
      return input[i].isLowSurrogate() && (i == 0 || !input[i - 1].isHighSurrogate());
    };
    for (qsizetype i = input.size(); i-- > 0;) {
      if (isHalf(i)) input.remove(i, 1);
    }
    return Acceptable;
  }
};

}  // namespace

FieldEdit::FieldEdit(QWidget* parent) : QLineEdit(parent) {
  setValidator(new OneLine(this));
  setMaxLength(static_cast<int>(framework::kMostInField));
  connect(this, &QLineEdit::inputRejected, this, [this] { sayThatItIsFull(*this); });
}

void FieldEdit::setRefusing(bool refusing) {
  if (isRefusing_ == refusing) return;
  isRefusing_ = refusing;
  update();
}

void FieldEdit::setObstacle(bool obstacle) {
  if (isObstacle_ == obstacle) return;
  isObstacle_ = obstacle;
  update();
}

QSize FieldEdit::minimumSizeHint() const {
  const QSize least = QLineEdit::minimumSizeHint();
  const int room = fontMetrics().horizontalAdvance(QStringLiteral("30 Mmm 2027"));
  return {least.width() + room, least.height()};
}

void FieldEdit::focusOutEvent(QFocusEvent* event) {
  // Left for the menu bar, Qt's field forgets what is selected, and so what the Edit menu is to cut or copy. For a
  // menu that pops up by itself it does not.
  QFocusEvent forMenu(QEvent::FocusOut, Qt::PopupFocusReason);
  QLineEdit::focusOutEvent(event->reason() == Qt::MenuBarFocusReason ? &forMenu : event);
  switch (event->reason()) {
    // The focus comes back by itself: a look at another window does not leave the field.
    case Qt::PopupFocusReason:
    case Qt::ActiveWindowFocusReason:
    case Qt::MenuBarFocusReason: return;
    default: break;
  }
  onLeave();
}

bool FieldEdit::event(QEvent* event) {
  // While the field is in edit Escape is its own, whatever shortcut it may be elsewhere.
  const auto* key = dynamic_cast<const QKeyEvent*>(event);
  if (event->type() == QEvent::ShortcutOverride && key != nullptr && key->key() == Qt::Key_Escape)
    event->accept();
  // Undo and Redo are the field's own only while the user types in it.
  if (event->type() == QEvent::ShortcutOverride && key != nullptr && isUndoOrRedo(*key) && !isModified()) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::ToolTip && isShownInPart_) {
    sayThatItShowsAPart(*this);
    return true;
  }
  return QLineEdit::event(event);
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && onEscape && onEscape()) {
    event->accept();
    return;
  }
  if (isShownInPart_ && putsText(*event)) {
    event->accept();
    sayThatItShowsAPart(*this);
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void FieldEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) {
    event->ignore();
    return;
  }
  QLineEdit::dragEnterEvent(event);
}

void FieldEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!isRefusing_ && !isObstacle_) return;
  constexpr qreal kWidth = 2.0;
  QPainter painter(this);
  painter.setPen(QPen(refusalColor(palette()), kWidth));
  painter.drawRect(QRectF(rect()).adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
}

}  // namespace nascor::qt
