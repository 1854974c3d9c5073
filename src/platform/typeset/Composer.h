// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "summary/Typesetter.h"
#include "typeset/Sheets.h"
#include "typeset/Text.h"

namespace nascor::typeset {

/// Sets a summary page by page, each fetus from a new one. Everything stands on lines of one grid.
class Composer {
 public:
  /// `pages` is their number, which stands at the foot of each.
  Composer(Sheets& sheets, const Fonts& fonts, const summary::Summary& summary, const summary::Paper& paper,
           std::int64_t pages);

  /// Sets all of it, and says how many pages it takes.
  std::int64_t compose();

 private:
  /// A cell, parted at the decimal sign.
  struct Figure {
    Text whole;
    Text fraction;
    Text mark;  ///< of its note
  };
  struct Column {
    Text group;
    Text title;
    double whole = 0.0;     ///< the widest part before the decimal sign
    double fraction = 0.0;  ///< and the widest from it on
    double left = 0.0;
    double right = 0.0;
  };
  struct Layout {
    double size;
    std::vector<Column> columns{};
    std::vector<std::vector<Figure>> rows{};
    double width = 0.0;
    bool hasGroups = false;
  };

  void fetus(const summary::FetusSummary& fetus);
  void letterhead();
  void facts(const summary::FetusSummary& fetus);
  void table(const summary::Table& table);
  void charts(const summary::FetusSummary& fetus);
  void chart(const summary::Chart& chart, double left, double width);
  void chartLines(const summary::Chart& chart, const summary::Plot& plot);
  void notes(const summary::FetusSummary& fetus);
  void sources(const summary::FetusSummary& fetus);
  void heading(std::string_view text, double follows);

  Layout layoutOf(const summary::Table& table, double size) const;
  void place(const summary::Table& table, Layout& layout) const;
  void tableHead(const summary::Table& table, const Layout& layout);
  void tableRow(const summary::Table& table, const Layout& layout, std::size_t row);

  void paragraph(const char* tag, std::string_view text, const Style& style, double leading);
  void rule(double y, double left, double right, double weight);
  /// Goes to a new page where `height` is no longer free.
  void need(double height);
  void endPage();
  void foot();

  double left() const;
  double width() const;
  double bottom() const;

  Sheets& sheets_;
  cairo_t* canvas_;
  const Fonts& fonts_;
  const summary::Summary& summary_;
  summary::Paper paper_;
  std::int64_t pages_;
  std::int64_t page_ = 1;
  double y_;
  const summary::FetusSummary* fetus_ = nullptr;
};

}  // namespace nascor::typeset
