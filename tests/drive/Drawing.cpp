// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "drive/Drawing.h"

#include <array>
#include <cmath>

#include "support/RecordingCanvas.h"

namespace nascor::drive {
namespace {

using Json = nlohmann::ordered_json;
using Entry = tests::RecordingCanvas::Entry;
using framework::Point;
using framework::Rect;

Json colorOf(const framework::Color& color) {
  if (color.isNamed()) return framework::nameOf(color.name());
  const framework::Rgba value = color.value();
  return {value.red, value.green, value.blue, value.alpha};
}

Json rectangle(const Rect& rect) { return {rect.x, rect.y, rect.width, rect.height}; }

bool isFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

bool isFinite(const Rect& rect) {
  return isFinite(Point{rect.x, rect.y}) && isFinite(Point{rect.width, rect.height});
}

std::string_view nameOf(framework::MarkSymbol symbol) {
  constexpr std::array<std::string_view, 5> kNames{"cross", "circle", "triangle", "square", "x"};
  return kNames.at(static_cast<std::size_t>(symbol));
}

Json points(const framework::Path::Subpath& subpath) {
  Json all = Json::array();
  for (const Point point : subpath) all.push_back({point.x, point.y});
  return all;
}

void addEntry(Json& list, const Entry& entry) {
  switch (entry.kind) {
    case Entry::Kind::fillPath:
      for (const auto& subpath : entry.path.subpaths()) {
        list.push_back({"fillPath", colorOf(entry.color), points(subpath)});
      }
      break;
    case Entry::Kind::strokePath:
      for (const auto& subpath : entry.path.subpaths()) {
        list.push_back({"strokePath", colorOf(entry.color), entry.path.lineWidth(), points(subpath)});
      }
      break;
    case Entry::Kind::fillOval:
      if (isFinite(entry.rect)) list.push_back({"fillOval", colorOf(entry.color), rectangle(entry.rect)});
      break;
    case Entry::Kind::strokeRect:
      if (isFinite(entry.rect)) list.push_back({"strokeRect", colorOf(entry.color), rectangle(entry.rect)});
      break;
    case Entry::Kind::mark:
      if (isFinite(entry.point)) {
        list.push_back({"mark", colorOf(entry.color), nameOf(entry.symbol), entry.point.x, entry.point.y});
      }
      break;
    case Entry::Kind::text: {
      if (!isFinite(entry.point)) break;
      Json text{"text", colorOf(entry.color), entry.text, entry.point.x, entry.point.y};
      if (entry.text.find('\t') != std::string::npos) text.push_back(Json::array({entry.style.tabStop}));
      if (entry.style.degrees != 0.0) text.push_back(entry.style.degrees);
      list.push_back(std::move(text));
      break;
    }
  }
}

}  // namespace

Json drawingOf(framework::Page& page, double width, double height) {
  page.layout(width, height);
  tests::RecordingSurface surface;
  page.paint(surface);
  Json list = Json::array();
  for (const Entry& entry : surface.page.entries()) addEntry(list, entry);
  for (const auto& view : surface.views) {
    list.push_back({"view", view.view->className(), rectangle(view.frame)});
    for (const Entry& entry : view.canvas.entries()) addEntry(list, entry);
  }
  return list;
}

Json marksOf(framework::Page& page) {
  Json marks = Json::array();
  for (const Json& entry : drawingOf(page, framework::Page::kWidth, framework::Page::kHeight)) {
    if (entry[0] == "fillOval" || entry[0] == "mark") marks.push_back(entry);
  }
  return marks;
}

Json overlayOf(framework::Page& page) {
  page.layout(framework::Page::kWidth, framework::Page::kHeight);
  tests::RecordingSurface surface;
  page.paint(surface);
  Json all = Json::array();
  for (const auto& view : surface.views) {
    int centileLines = 0;
    Json others = Json::array();
    for (const Entry& entry : view.canvas.entries()) {
      const auto lines = entry.path.subpaths();
      const bool isStroked = entry.kind == Entry::Kind::strokePath && !lines.empty();
      if (isStroked && lines.size() > 1) {
        // The legend's sample is level.
        if (lines.front().front().y != lines.back().back().y) ++centileLines;
      } else if (isStroked && entry.path.lineWidth() < 1.0) {
        others.push_back({"line", colorOf(entry.color), points(lines.front())});
      } else if (entry.kind == Entry::Kind::text && entry.text.find("entiles") != std::string::npos) {
        others.push_back({"text", entry.text});
      }
    }
    if (centileLines > 0) all.push_back({"centile lines", centileLines});
    for (Json& other : others) all.push_back(std::move(other));
  }
  return all;
}

void layOutAndPaint(framework::Page& page) {
  page.layout(framework::Page::kWidth, framework::Page::kHeight);
  tests::RecordingSurface surface;
  page.paint(surface);
}

}  // namespace nascor::drive
