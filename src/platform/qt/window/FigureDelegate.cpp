// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/FigureDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <cmath>

namespace nascor::qt {

namespace {

constexpr qsizetype kMostTexts = 4096;

const QStyle& styleOf(const QStyleOptionViewItem& option) {
  return option.widget ? *option.widget->style() : *QApplication::style();
}

/// Between the edge of a cell and its text.
int marginOf(const QStyleOptionViewItem& option) {
  return styleOf(option).pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
}

bool isBold(const QModelIndex& index) {
  const QVariant font = index.data(Qt::FontRole);
  return font.isValid() && font.value<QFont>().bold();
}

QFont inBold(QFont font) {
  font.setBold(true);
  return font;
}

QPalette::ColorGroup groupOf(QStyle::State state) {
  if (!state.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

}  // namespace

void FigureDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  const QString text = index.data().toString();
  const bool bold = isBold(index);
  const QStaticText& layout = laidOut(text, bold, option.font);
  const int margin = marginOf(option);
  const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
  // A column that the user made narrow: the style cuts the text and says so by three dots.
  if (layout.size().width() > room.width()) return QStyledItemDelegate::paint(painter, option, index);

  if (option.state.testAnyFlags(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver)) {
    // Without a text the style draws what lies behind it and around it; behind other cells there is nothing.
    QStyleOptionViewItem item = option;
    item.index = index;
    item.features |= QStyleOptionViewItem::HasDisplay;
    styleOf(option).drawControl(QStyle::CE_ItemViewItem, &item, painter, option.widget);
  }

  const Qt::Alignment alignment =
      QStyle::visualAlignment(option.direction, index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
  const double free = room.width() - layout.size().width();
  const double x = room.x() + (alignment.testFlag(Qt::AlignRight) ? free : 0.0);
  const double y = room.y() + (room.height() - layout.size().height()) / 2.0;
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->setFont(bold ? inBold(option.font) : option.font);
  painter->setPen(
      option.palette.color(groupOf(option.state), isSelected ? QPalette::HighlightedText : QPalette::Text));
  painter->drawStaticText(QPointF(std::floor(x), std::floor(y)), layout);
  painter->restore();
}

QSize FigureDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSizeF size = laidOut(index.data().toString(), isBold(index), option.font).size();
  return {static_cast<int>(std::ceil(size.width())) + 2 * marginOf(option),
          static_cast<int>(std::ceil(size.height()))};
}

const QStaticText& FigureDelegate::laidOut(const QString& text, bool isBold, const QFont& font) const {
  if (font != font_ || plain_.size() + bold_.size() > kMostTexts) {
    plain_.clear();
    bold_.clear();
    font_ = font;
  }
  auto& texts = isBold ? bold_ : plain_;
  auto found = texts.find(text);
  if (found == texts.end()) {
    QStaticText layout(text);
    layout.setTextFormat(Qt::PlainText);
    layout.prepare({}, isBold ? inBold(font) : font);
    found = texts.insert(text, layout);
  }
  return *found;
}

}  // namespace nascor::qt
