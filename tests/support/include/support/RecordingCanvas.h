// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "framework/Canvas.h"
#include "framework/Surface.h"
#include "framework/ZuPrimitiveGraphView.h"

namespace nascor::tests {

/// Turns a drawing into a list that a test can read. Each character of a text is six units wide.
class RecordingCanvas final : public framework::Canvas {
 public:
  struct Entry {
    enum class Kind { fillPath, strokePath, fillOval, strokeRect, mark, text };
    Kind kind = Kind::text;
    framework::Color color = framework::NamedColor::black;
    framework::Path path;
    framework::Rect rect;
    framework::MarkSymbol symbol = framework::MarkSymbol::cross;
    std::string text;
    framework::Point point;
    framework::TextStyle style;
  };

  static constexpr double kCharacterWidth = 6.0;

  void setColor(const framework::Color& color) override { color_ = color; }
  void fillPath(const framework::Path& path) override { add(Entry::Kind::fillPath).path = path; }
  void strokePath(const framework::Path& path) override { add(Entry::Kind::strokePath).path = path; }
  void fillOval(const framework::Rect& rect) override { add(Entry::Kind::fillOval).rect = rect; }
  void strokeRect(const framework::Rect& rect) override { add(Entry::Kind::strokeRect).rect = rect; }
  void mark(framework::MarkSymbol symbol, framework::Point centre) override {
    Entry& entry = add(Entry::Kind::mark);
    entry.symbol = symbol;
    entry.point = centre;
  }
  void text(std::string_view text, framework::Point at, const framework::TextStyle& style) override {
    Entry& entry = add(Entry::Kind::text);
    entry.color = style.color;
    entry.text = text;
    entry.point = at;
    entry.style = style;
  }
  double textWidth(std::string_view text, const framework::TextStyle& style) const override {
    double width = 0.0;
    if (const std::size_t tab = text.find('\t'); tab != std::string_view::npos) {
      width = style.tabStop;
      text.remove_prefix(tab + 1);
    }
    for (const char byte : text) {
      if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80) width += kCharacterWidth;
    }
    return width;
  }

  const std::vector<Entry>& entries() const { return entries_; }
  void clear() { entries_.clear(); }

  std::vector<Entry> of(Entry::Kind kind) const {
    std::vector<Entry> chosen;
    for (const Entry& entry : entries_) {
      if (entry.kind == kind) chosen.push_back(entry);
    }
    return chosen;
  }
  std::vector<std::string> texts() const {
    std::vector<std::string> texts;
    for (const Entry& entry : of(Entry::Kind::text)) texts.push_back(entry.text);
    return texts;
  }
  /// Null when no such text was drawn.
  const Entry* text(std::string_view text) const {
    for (const Entry& entry : entries_) {
      if (entry.kind == Entry::Kind::text && entry.text == text) return &entry;
    }
    return nullptr;
  }

 private:
  Entry& add(Entry::Kind kind) {
    Entry& entry = entries_.emplace_back();
    entry.kind = kind;
    entry.color = color_;
    return entry;
  }
  framework::Color color_ = framework::NamedColor::black;
  std::vector<Entry> entries_;
};

/// Keeps what a page draws, view by view.
class RecordingSurface final : public framework::Surface {
 public:
  struct View {
    const framework::ZuPrimitiveGraphView* view;
    framework::Rect frame;
    RecordingCanvas canvas;
  };
  framework::Canvas& pageCanvas() override { return page; }
  framework::Canvas& beginView(const framework::ZuPrimitiveGraphView& view,
                               const framework::Rect& frame) override {
    views.push_back({&view, frame, {}});
    return views.back().canvas;
  }
  void endView() override { ++viewsEnded; }

  RecordingCanvas page;
  std::vector<View> views;
  std::size_t viewsEnded = 0;
};

}  // namespace nascor::tests
