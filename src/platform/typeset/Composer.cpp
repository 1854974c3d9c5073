// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "typeset/Composer.h"

#include <algorithm>
#include <string>
#include <utility>

#include "summary/Digits.h"

namespace nascor::typeset {

using summary::FetusSummary;
using summary::Table;

namespace {

// Points.
constexpr double kSide = 42.0;
constexpr double kTop = 40.0;
constexpr double kFoot = 52.0;
constexpr double kLine = 12.0;
constexpr double kSmallLine = 9.0;
/// Where a line of letters stands in its room.
constexpr double kBaseline = 0.75;

constexpr double kBodySize = 8.5;
constexpr double kTableSize = 8.0;
constexpr double kSmallSize = 6.8;
constexpr double kGray = 0.35;
constexpr double kHair = 0.4;

constexpr double kChartSlots = 5.0;
constexpr double kChartGap = 10.0;
constexpr double kChartHeight = 96.0;

/// What is drawn while it lives has that place in the structure of the document.
class Tag {
 public:
  Tag(cairo_t* canvas, const char* name) : canvas_(canvas), name_(name) {
    cairo_tag_begin(canvas_, name_, nullptr);
  }
  Tag(const Tag&) = delete;
  Tag& operator=(const Tag&) = delete;
  ~Tag() { cairo_tag_end(canvas_, name_); }

 private:
  cairo_t* canvas_;
  const char* name_;
};

}  // namespace

Composer::Composer(Sheets& sheets, const Fonts& fonts, const summary::Summary& summary,
                   const summary::Paper& paper, std::int64_t pages)
    : sheets_(sheets),
      canvas_(sheets.canvas()),
      fonts_(fonts),
      summary_(summary),
      paper_(paper),
      pages_(pages),
      y_(kTop) {}

double Composer::left() const { return kSide; }
double Composer::width() const { return paper_.width - 2.0 * kSide; }
double Composer::bottom() const { return paper_.height - kFoot; }

std::int64_t Composer::compose() {
  const Tag document(canvas_, "Document");
  for (const FetusSummary& each : summary_.fetuses) fetus(each);
  return page_ - 1;
}

void Composer::fetus(const FetusSummary& fetus) {
  const Tag section(canvas_, "Sect");
  fetus_ = &fetus;
  sheets_.addOutline(fetus.name, page_);
  letterhead();
  facts(fetus);
  table(fetus.measurements);
  charts(fetus);
  table(fetus.weights);
  table(fetus.growth);
  notes(fetus);
  sources(fetus);
  endPage();
}

// Pages

void Composer::need(double height) {
  if (y_ + height > bottom() && y_ > kTop) endPage();
}

void Composer::endPage() {
  foot();
  sheets_.endPage();
  ++page_;
  y_ = kTop;
}

void Composer::foot() {
  const double top = paper_.height - kFoot + kLine;
  rule(top, left(), left() + width(), kHair);
  const auto line = [this](double y, const std::string& one, const std::string& other, bool isBold) {
    const Text right(fonts_, other, {.size = kSmallSize, .isBold = isBold});
    const Text text(fonts_, one, {.size = kSmallSize}, width() - right.width() - kLine, Overflow::isCut);
    text.drawLine(canvas_, 0, left(), y);
    right.drawLine(canvas_, 0, left() + width() - right.width(), y);
  };
  line(top + kSmallLine, fetus_->name + " \u00b7 " + summary_.patient, summary_.pageText(page_, pages_),
       false);
  line(top + 2.0 * kSmallLine, summary_.made, summary_.warning, true);
}

void Composer::rule(double y, double left, double right, double weight) {
  cairo_set_source_rgb(canvas_, kGray, kGray, kGray);
  cairo_set_line_width(canvas_, weight);
  cairo_move_to(canvas_, left, y);
  cairo_line_to(canvas_, right, y);
  cairo_stroke(canvas_);
}

// Texts

void Composer::paragraph(const char* tag, std::string_view text, const Style& style, double leading) {
  const Text laidOut(fonts_, text, style, width());
  const int lines = laidOut.lines();
  for (int line = 0; line < lines;) {
    need(leading);
    const Tag part(canvas_, tag);
    for (; line < lines && y_ + leading <= bottom(); ++line, y_ += leading)
      laidOut.drawLine(canvas_, line, left(), y_ + leading * kBaseline);
  }
}

void Composer::heading(std::string_view text, double follows) {
  need(2.0 * kLine + follows);
  y_ += kLine / 2.0;
  paragraph("H2", text, {.size = 10.0, .isBold = true}, 1.25 * kLine);
}

void Composer::letterhead() {
  bool isFirst = true;
  for (const std::string& line : summary_.letterhead) {
    paragraph("P", line, {.size = kBodySize, .isBold = isFirst}, kLine);
    isFirst = false;
  }
  if (!isFirst) {
    y_ += 4.0;
    rule(y_, left(), left() + width(), kHair);
    y_ += 8.0;
  }
  paragraph("H1", summary_.heading, {.size = 15.0, .isBold = true}, 2.0 * kLine);
  y_ += kLine / 2.0;
}

void Composer::facts(const FetusSummary& fetus) {
  const Tag table(canvas_, "Table");
  constexpr double kGap = 18.0;
  const double half = (width() - kGap) / 2.0;
  double labels = 0.0;
  for (const summary::Fact& fact : fetus.facts)
    labels = std::max(labels, Text(fonts_, fact.label, {.size = kBodySize}).width());
  labels += kLine;
  for (std::size_t first = 0; first < fetus.facts.size(); first += 2) {
    const std::size_t end = std::min(first + 2, fetus.facts.size());
    std::vector<Text> values;
    int lines = 1;
    for (std::size_t i = first; i < end; ++i) {
      values.emplace_back(fonts_, fetus.facts[i].value, Style{.size = kBodySize}, half - labels);
      lines = std::max(lines, values.back().lines());
    }
    need(lines * kLine);
    const Tag row(canvas_, "TR");
    for (std::size_t i = first; i < end; ++i) {
      const double x = left() + (i == first ? 0.0 : half + kGap);
      {
        const Tag head(canvas_, "TH");
        Text(fonts_, fetus.facts[i].label, {.size = kBodySize, .gray = kGray})
            .drawLine(canvas_, 0, x, y_ + kLine * kBaseline);
      }
      const Tag data(canvas_, "TD");
      const Text& value = values[i - first];
      for (int line = 0; line < value.lines(); ++line)
        value.drawLine(canvas_, line, x + labels, y_ + line * kLine + kLine * kBaseline);
    }
    y_ += lines * kLine;
  }
}

// Tables

Composer::Layout Composer::layoutOf(const Table& table, double size) const {
  Layout layout{.size = size};
  const auto text = [&](std::string_view what, bool isBold, double gray, double part = 1.0) {
    return Text(fonts_, what, {.size = size * part, .isBold = isBold, .gray = gray});
  };
  constexpr double kBlack = 0.07;
  constexpr double kMarkSize = 0.7;
  for (const summary::Column& column : table.columns) {
    layout.hasGroups = layout.hasGroups || !column.group.empty();
    layout.columns.push_back(
        {.group = text(column.group, true, kBlack), .title = text(column.title, false, kGray)});
  }
  for (const summary::Row& row : table.rows) {
    std::vector<Figure>& figures = layout.rows.emplace_back();
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      const std::string_view shown = row.cells[i].text;
      const std::size_t whole = table.columns[i].isNumber ? summary::lengthOfWhole(shown) : shown.size();
      const std::size_t note = row.cells[i].note;
      figures.push_back({.whole = text(shown.substr(0, whole), row.isChosen, kBlack),
                         .fraction = text(shown.substr(whole), row.isChosen, kBlack),
                         .mark = text(note > 0 ? std::to_string(note) : "", false, kBlack, kMarkSize)});
      Column& column = layout.columns[i];
      column.whole = std::max(column.whole, figures.back().whole.width());
      column.fraction = std::max(column.fraction, figures.back().fraction.width());
    }
  }
  place(table, layout);
  return layout;
}

/// Columns stand apart, those of a group a little less; what is left of the width widens the gaps.
void Composer::place(const Table& table, Layout& layout) const {
  constexpr double kGap = 0.75;  // of the size
  constexpr double kGroupGap = 0.6;
  constexpr double kMostGap = 1.5;
  const std::size_t count = layout.columns.size();
  const auto isNewGroup = [&](std::size_t i) {
    return i > 0 && layout.hasGroups && table.columns[i].group != table.columns[i - 1].group;
  };
  double natural = 0.0;
  for (std::size_t i = 0; i < count; ++i) {
    const Column& column = layout.columns[i];
    natural += std::max(column.whole + column.fraction, column.title.width());
    if (i > 0) natural += layout.size * (isNewGroup(i) ? kGap + kGroupGap : kGap);
  }
  const double rest =
      std::max(width() - natural, 0.0) / static_cast<double>(std::max<std::size_t>(count - 1, 1));
  const double more = std::min(rest, kMostGap * layout.size);
  double x = left();
  for (std::size_t i = 0; i < count; ++i) {
    Column& column = layout.columns[i];
    if (i > 0) x += layout.size * (isNewGroup(i) ? kGap + kGroupGap : kGap) + more;
    column.left = x;
    x += std::max(column.whole + column.fraction, column.title.width());
    column.right = x;
  }
  layout.width = x - left();
}

void Composer::tableHead(const Table& table, const Layout& layout) {
  const Tag row(canvas_, "TR");
  const double titles = y_ + (layout.hasGroups ? kLine : 0.0);
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    const Tag head(canvas_, "TH");
    const Column& column = layout.columns[i];
    const std::string& group = table.columns[i].group;
    if (!group.empty() && (i == 0 || table.columns[i - 1].group != group)) {
      std::size_t last = i;
      while (last + 1 < layout.columns.size() && table.columns[last + 1].group == group) ++last;
      const double right = layout.columns[last].right;
      column.group.drawLine(canvas_, 0, (column.left + right - column.group.width()) / 2.0,
                            y_ + kLine * kBaseline);
      rule(y_ + kLine, column.left, right, kHair);
    }
    const double x = table.columns[i].isNumber ? column.right - column.title.width() : column.left;
    column.title.drawLine(canvas_, 0, x, titles + kLine * kBaseline);
  }
  y_ = titles + kLine;
  rule(y_ + 1.0, left(), left() + layout.width, 2.0 * kHair);
  y_ += 3.0;
}

void Composer::tableRow(const Table& table, const Layout& layout, std::size_t row) {
  const Tag line(canvas_, "TR");
  const double baseline = y_ + kLine * kBaseline;
  constexpr double kRaise = 2.5;
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    const Tag cell(canvas_, i == 0 ? "TH" : "TD");
    const Column& column = layout.columns[i];
    const Figure& figure = layout.rows[row][i];
    const double axis = column.right - column.fraction;
    double x = table.columns[i].isNumber ? axis - figure.whole.width() : column.left;
    figure.whole.drawLine(canvas_, 0, x, baseline);
    x += figure.whole.width();
    figure.fraction.drawLine(canvas_, 0, x, baseline);
    figure.mark.drawLine(canvas_, 0, x + figure.fraction.width() + 0.5, baseline - kRaise);
  }
  y_ += kLine;
}

void Composer::table(const Table& table) {
  if (table.rows.empty()) return;
  constexpr std::size_t kTogether = 3;
  constexpr double kFitting = 0.995;
  Layout layout = layoutOf(table, kTableSize);
  if (layout.width > width()) layout = layoutOf(table, kTableSize * width() / layout.width * kFitting);
  const double follows = 4.0 * kLine + kLine * static_cast<double>(std::min(table.rows.size(), kTogether));
  heading(table.title, follows);
  if (!table.lead.empty()) {
    paragraph("P", table.lead, {.size = kSmallSize, .gray = kGray}, kSmallLine);
    y_ += 3.0;
  }
  {
    const Tag tag(canvas_, "Table");
    tableHead(table, layout);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
      if (y_ + kLine > bottom()) {
        endPage();
        tableHead(table, layout);
      }
      tableRow(table, layout, row);
    }
    rule(y_ + 1.0, left(), left() + layout.width, 2.0 * kHair);
    y_ += 4.0;
  }
  for (std::size_t i = 0; i < table.notes.size(); ++i) {
    paragraph("P", std::to_string(i + 1) + "  " + table.notes[i], {.size = kSmallSize, .gray = kGray},
              kSmallLine);
  }
}

// Charts

void Composer::chartLines(const summary::Chart& chart, const summary::Plot& plot) {
  for (const summary::Curve& curve : chart.curves) {
    const bool isMedian = curve.centile == summary::kMedian;
    const double gray = isMedian ? 0.35 : 0.6;
    cairo_set_source_rgb(canvas_, gray, gray, gray);
    cairo_set_line_width(canvas_, isMedian ? 0.8 : 0.5);
    cairo_new_path(canvas_);  // a text leaves its end as a point
    for (const summary::Point& point : curve.points) {
      const summary::Point at = placeOf(chart, plot, point);
      cairo_line_to(canvas_, at.x, at.y);
    }
    cairo_stroke(canvas_);
  }
  constexpr double kRadius = 1.7;
  constexpr double kFullCircle = 6.283185307179586;
  cairo_set_source_rgb(canvas_, 0.12, 0.31, 0.47);
  for (const summary::Point& value : chart.values) {
    const summary::Point at = placeOf(chart, plot, value);
    cairo_new_path(canvas_);
    cairo_arc(canvas_, at.x, at.y, kRadius, 0.0, kFullCircle);
    cairo_fill(canvas_);
  }
}

void Composer::chart(const summary::Chart& chart, double left, double width) {
  const Tag figure(canvas_, "Figure");
  const Style small{.size = 5.8, .gray = kGray};
  Text(fonts_, chart.title, {.size = 7.5, .isBold = true}).drawLine(canvas_, 0, left, y_ + kLine * kBaseline);
  double labels = 0.0;
  for (const summary::Mark& mark : chart.valueMarks)
    labels = std::max(labels, Text(fonts_, mark.text, small).width());
  const summary::Plot plot{.x = left + labels + 3.0,
                           .y = y_ + kLine + 2.0,
                           .width = width - labels - 3.0,
                           .height = kChartHeight - 2.0 * kLine - 2.0};
  for (const summary::Mark& mark : chart.valueMarks) {
    const double y = placeOf(chart, plot, {chart.firstWeek, mark.at}).y;
    cairo_set_source_rgb(canvas_, 0.88, 0.88, 0.88);
    cairo_set_line_width(canvas_, kHair);
    cairo_move_to(canvas_, plot.x, y);
    cairo_line_to(canvas_, plot.x + plot.width, y);
    cairo_stroke(canvas_);
    const Text text(fonts_, mark.text, small);
    text.drawLine(canvas_, 0, plot.x - 3.0 - text.width(), y + 2.0);
  }
  rule(plot.y + plot.height, plot.x, plot.x + plot.width, kHair);
  for (const summary::Mark& mark : chart.weekMarks) {
    const double x = placeOf(chart, plot, {mark.at, 0.0}).x;
    const Text text(fonts_, mark.text, small);
    text.drawLine(canvas_, 0, std::clamp(x - text.width() / 2.0, plot.x - 2.0, left + width - text.width()),
                  plot.y + plot.height + 7.5);
  }
  chartLines(chart, plot);
}

void Composer::charts(const FetusSummary& fetus) {
  if (fetus.charts.empty()) return;
  heading(summary_.chartsHeading, kChartHeight + 2.0 * kLine);
  paragraph("P", fetus.chartsLead, {.size = kSmallSize, .gray = kGray}, kSmallLine);
  y_ += 3.0;
  const double slot = (width() - (kChartSlots - 1.0) * kChartGap) / kChartSlots;
  double x = left();
  for (const summary::Chart& each : fetus.charts) {
    chart(each, x, slot);
    x += slot + kChartGap;
  }
  y_ += kChartHeight;
}

// Notes and sources

void Composer::notes(const FetusSummary& fetus) {
  if (fetus.notes.empty()) return;
  heading(summary_.notesHeading, 3.0 * kLine);
  for (const summary::Note& note : fetus.notes) {
    need(2.0 * kLine);
    paragraph("H3", note.heading, {.size = kTableSize, .gray = kGray}, kLine);
    for (const std::string& each : note.paragraphs) paragraph("P", each, {.size = kBodySize}, kLine);
    y_ += kLine / 4.0;
  }
}

void Composer::sources(const FetusSummary& fetus) {
  if (fetus.citations.empty()) return;
  heading(summary_.citationsHeading, 3.0 * kSmallLine);
  for (const summary::Citation& citation : fetus.citations)
    paragraph("P", citation.what + ": " + citation.text, {.size = kSmallSize}, kSmallLine);
}

}  // namespace nascor::typeset
