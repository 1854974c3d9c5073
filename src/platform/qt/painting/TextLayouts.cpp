// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "painting/TextLayouts.h"

#include <algorithm>

#include "base/Text.h"
#include "framework/Canvas.h"

namespace nascor::qt {
namespace {

QFont fontWith(QFont::StyleStrategy strategy) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(static_cast<int>(framework::kTextHeight));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setStyleStrategy(strategy);
  return font;
}

/// Without shaping a text of Latin letters reads back from a PDF as it was written; with it, "fi" becomes one sign.
bool isBeyondLatin(const QString& text) {
  constexpr char16_t kEndOfLatin = 0x0250;
  return std::ranges::any_of(text, [](QChar c) { return c.unicode() >= kEndOfLatin; });
}

}  // namespace

TextLayouts::TextLayouts()
    : plain_(fontWith(QFont::PreferNoShaping)),
      shaping_(fontWith(QFont::PreferDefault)),
      plainMetrics_(plain_),
      shapingMetrics_(shaping_) {}

const LaidOutText& TextLayouts::of(std::string_view text) {
  if (const auto kept = texts_.find(text); kept != texts_.end()) return kept->second;
  // Keeps memory bounded while the user pages through many patients.
  constexpr std::size_t kMostTexts = 500;
  if (texts_.size() >= kMostTexts) texts_.clear();
  LaidOutText laidOut{.text = fromUtf8(text), .layout = {}};
  laidOut.needsShaping = isBeyondLatin(laidOut.text);
  laidOut.width = metricsFor(laidOut).horizontalAdvance(laidOut.text);
  laidOut.layout.setText(laidOut.text);
  laidOut.layout.setTextFormat(Qt::PlainText);
  laidOut.layout.setPerformanceHint(QStaticText::AggressiveCaching);
  return texts_.emplace(std::string(text), std::move(laidOut)).first->second;
}

}  // namespace nascor::qt
