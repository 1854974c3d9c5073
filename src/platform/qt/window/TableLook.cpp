// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/TableLook.h"

#include <QHeaderView>
#include <QProxyStyle>
#include <QTableView>

namespace nascor::qt {

namespace {

/// Keeps numbers at the right of a column apart from texts at the left of the next.
class RoomyCells final : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    return metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin ? usual + 4 : usual;
  }
};

}  // namespace

void dressTable(QTableView& view) {
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setAlternatingRowColors(true);
  view.setShowGrid(false);
  auto* roomy = new RoomyCells;
  roomy->setParent(&view);
  view.setStyle(roomy);
  view.horizontalHeader()->setStyle(roomy);
  view.setWordWrap(false);
  view.setTabKeyNavigation(false);
  view.verticalHeader()->hide();
  view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().lineSpacing() * 5 / 4);
  view.horizontalHeader()->setHighlightSections(false);
  view.horizontalHeader()->setStretchLastSection(true);
}

void tellRowsApart(QTableView& view) {
  QPalette palette = view.palette();
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const auto mixed = [](int one, int other) { return (15 * one + other) / 16; };
  const QColor other(mixed(base.red(), text.red()), mixed(base.green(), text.green()),
                     mixed(base.blue(), text.blue()));
  if (other == palette.color(QPalette::AlternateBase)) return;  // setting it lays the table out anew
  palette.setColor(QPalette::AlternateBase, other);
  view.setPalette(palette);
}

}  // namespace nascor::qt
