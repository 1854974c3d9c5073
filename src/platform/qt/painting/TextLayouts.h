// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QStaticText>
#include <QString>
#include <string>
#include <string_view>
#include <unordered_map>

namespace nascor::qt {

/// One text, laid out once.
struct LaidOutText {
  QString text;
  bool needsShaping = false;
  double width = 0.0;
  QStaticText layout;
};

/// Keeps the layouts of texts between one redraw and the next: most texts of a page stay as they are.
class TextLayouts {
 public:
  TextLayouts();

  /// Stays valid until the next call with another text.
  const LaidOutText& of(std::string_view text);
  /// A named family: a generic one would go into a file by its generic name. Sized in units, not in points of the screen;
  /// without hinting, so that a text is as wide on a screen as on paper.
  const QFont& fontFor(const LaidOutText& text) const { return text.needsShaping ? shaping_ : plain_; }
  const QFontMetricsF& metricsFor(const LaidOutText& text) const {
    return text.needsShaping ? shapingMetrics_ : plainMetrics_;
  }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };

  QFont plain_;
  QFont shaping_;
  QFontMetricsF plainMetrics_;
  QFontMetricsF shapingMetrics_;
  std::unordered_map<std::string, LaidOutText, Hash, std::equal_to<>> texts_;
};

}  // namespace nascor::qt
