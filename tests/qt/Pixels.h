// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRect>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ostream>

#include "framework/Color.h"

// Colours and rectangles in the messages of failing tests.
inline std::ostream& operator<<(std::ostream& stream, const QColor& color) {
  return stream << color.name().toStdString();
}
inline std::ostream& operator<<(std::ostream& stream, const QRect& rect) {
  return stream << "[" << rect.x() << ".." << rect.right() << "] x [" << rect.y() << ".." << rect.bottom()
                << "]";
}

namespace nascor::tests {

inline QColor colorOf(framework::NamedColor name, const QColor& below = Qt::white) {
  const framework::Rgba value = framework::valueOf(name);
  const auto byte = [&](double part, float under) {
    return static_cast<int>(std::lround((part * value.alpha + double{under} * (1.0 - value.alpha)) * 255.0));
  };
  return QColor(byte(value.red, below.redF()), byte(value.green, below.greenF()),
                byte(value.blue, below.blueF()));
}

/// The colour of the pixel that covers `point` (in pixels).
inline QColor colorAt(const QImage& image, QPointF point) {
  return image.pixelColor(static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y())));
}

/// Whether each channel differs by at most `tolerance` of 255.
inline bool isNear(const QColor& a, const QColor& b, int tolerance) {
  return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
         std::abs(a.blue() - b.blue()) <= tolerance;
}

/// The smallest rectangle around all pixels of `image` that are not white; empty when all are.
inline QRect inkOf(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

}  // namespace nascor::tests
