// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/WindowPlace.h"

#include <QByteArray>
#include <QPoint>
#include <QRect>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <string_view>

namespace nascor::qt {

namespace {

constexpr std::string_view kGeometryKey = "Window Geometry";

}  // namespace

QSize usualWindowSize(QSize designed, QSize screen) {
  const QSize frame(16, 48);  // what a window manager may add
  // The page grows with the window, to where its texts are as large as one likes to read them.
  constexpr double kShare = 0.9;
  const QSize wanted = (screen * kShare).boundedTo({1760, 1100}).expandedTo(designed);
  return wanted.boundedTo(screen - frame);
}

void keepPlace(const QWidget& window, foundation::UserDefaults& defaults) {
  defaults.setValue(kGeometryKey, window.saveGeometry().toBase64().toStdString());
}

void restorePlace(QWidget& window, const foundation::UserDefaults& defaults) {
  const auto kept = defaults.value(kGeometryKey);
  if (kept && window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(*kept)))) {
    // It may be from a larger screen, or one of another scale.
    if (const QScreen* here = window.screen())
      window.resize(window.size().boundedTo(here->availableVirtualSize()));
    return;
  }
  if (const QScreen* here = window.screen()) {
    window.resize(usualWindowSize(window.size(), here->availableSize()));
    window.move(here->availableGeometry().center() - QRect(QPoint(), window.size()).center());
  }
}

void moveAside(QWidget& window, const std::vector<const QWidget*>& others) {
  if (window.isMaximized() || window.isFullScreen() || !window.screen()) return;
  const QRect available = window.screen()->availableGeometry();
  const int step = window.style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8;
  const auto covers = [&window](const QWidget* other) {
    return other->isVisible() && (other->pos() - window.pos()).manhattanLength() < 8;
  };
  const QRect start(available.topLeft(), available.size() / 2);
  // Each step leaves one of the others behind; after the middle of the screen it begins at the upper left corner.
  for (std::size_t i = 0; i <= others.size() && std::ranges::any_of(others, covers); ++i) {
    const QPoint next = window.pos() + QPoint(step, step);
    window.move(start.contains(next) ? next : start.topLeft());
    window.resize(window.size()
                      .boundedTo(QRect(window.pos(), available.bottomRight()).size())
                      .expandedTo(window.minimumSizeHint()));
  }
}

}  // namespace nascor::qt
