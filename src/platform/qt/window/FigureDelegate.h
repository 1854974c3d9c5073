// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QHash>
#include <QStaticText>
#include <QStyledItemDelegate>

namespace nascor::qt {

/// Draws the cells of a table of figures as its style does, but lays each text out once and keeps it: a table of figures shows
/// the same few hundred short texts again and again. Cells have a text, an alignment and perhaps a bold font, no icon and no
/// line break.
class FigureDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// The width that the text needs, and the height of a line.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  const QStaticText& laidOut(const QString& text, bool isBold, const QFont& font) const;

  mutable QFont font_;  ///< of the texts that are kept
  mutable QHash<QString, QStaticText> plain_;
  mutable QHash<QString, QStaticText> bold_;
};

}  // namespace nascor::qt
