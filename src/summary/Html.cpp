// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "summary/Html.h"

#include <string_view>

#include "foundation/NumberText.h"
#include "summary/Digits.h"

namespace nascor::summary {

namespace {

constexpr std::string_view kStyle =
    "body{font-family:'DejaVu Sans',sans-serif;font-size:10pt;line-height:1.4;color:#111;background:#fff;"
    "max-width:60em;margin:2em auto;padding:0 1.5em}\n"
    "header{border-bottom:1px solid #555;padding-bottom:.5em;margin-bottom:1em}\n"
    "header p{margin:0}header p:first-child{font-weight:bold}\n"
    "h1{font-size:1.5em;margin:.5em 0}h2{font-size:1.2em;margin:1em 0 .4em}h3{font-size:1.05em;margin:1.2em "
    "0 "
    ".2em}\n"
    "article{break-before:page}article:first-of-type{break-before:auto}\n"
    "dl{display:grid;grid-template-columns:max-content 1fr max-content 1fr;gap:.1em 1em;margin:0}\n"
    "dt{color:#444}dd{margin:0;overflow-wrap:anywhere}\n"
    ".wide{overflow-x:auto}\n"
    "table{border-collapse:collapse;font-size:.85em;font-variant-numeric:tabular-nums;margin:.3em 0}\n"
    "caption{text-align:left;color:#444;padding-bottom:.3em}\n"
    "th,td{padding:.1em .9em .1em 0;text-align:left;white-space:nowrap;font-weight:normal}\n"
    "th.n,td.n{text-align:right;padding:.1em .9em .1em .2em}\n"
    "thead th{color:#444}thead tr:last-child th{border-bottom:1px solid #555}\n"
    "thead th.g{text-align:center;font-weight:bold;color:#111}\n"
    "tbody tr:last-child>*{border-bottom:1px solid #555}tr.chosen>*{font-weight:bold}\n"
    "sup{position:absolute;font-size:.7em}\n"
    "ol,.lead,.small{font-size:.8em;color:#333}ol{margin:.3em 0;padding-left:1.5em}.lead{margin:.2em 0}\n"
    ".charts{display:flex;flex-wrap:wrap;gap:1em}figure{margin:0;width:11em}svg{width:100%;height:auto}\n"
    ".note p{margin:.1em 0;overflow-wrap:anywhere}\n"
    "footer{border-top:1px solid #555;margin-top:1.5em;padding-top:.4em;font-size:.8em}\n"
    "@media print{body{margin:0;max-width:none;padding:0;font-size:8.5pt}.wide{overflow:visible}"
    "th,td,th.n,td.n{padding-right:.45em}figure{width:9em}}\n";

class Writer {
 public:
  explicit Writer(const Summary& summary) : summary_(summary) {}

  std::string text() {
    out_ += "<!DOCTYPE html>\n<html lang=\"";
    add(summary_.language);
    out_ += "\">\n<head>\n<meta charset=\"utf-8\">\n";
    element("title", summary_.title);
    meta("author", summary_.author);
    meta("description", summary_.subject);
    out_ += "<meta name=\"viewport\" content=\"width=device-width\">\n<style>\n";
    out_ += kStyle;
    out_ += "</style>\n</head>\n<body>\n";
    if (!summary_.letterhead.empty()) {
      out_ += "<header>\n";
      for (const std::string& line : summary_.letterhead) element("p", line);
      out_ += "</header>\n";
    }
    out_ += "<main>\n";
    element("h1", summary_.heading);
    for (const FetusSummary& fetus : summary_.fetuses) article(fetus);
    out_ += "</main>\n<footer>\n";
    element("p", summary_.warning);
    element("p", summary_.made);
    out_ += "</footer>\n</body>\n</html>\n";
    return std::move(out_);
  }

 private:
  void add(std::string_view text) {
    for (const char sign : text) {
      switch (sign) {
        case '&': out_ += "&amp;"; break;
        case '<': out_ += "&lt;"; break;
        case '>': out_ += "&gt;"; break;
        case '"': out_ += "&quot;"; break;
        default: out_ += sign;
      }
    }
  }

  void meta(std::string_view name, std::string_view content) {
    out_.append("<meta name=\"").append(name).append("\" content=\"");
    add(content);
    out_ += "\">\n";
  }

  /// `attributes` begin with a blank where there are any.
  void element(std::string_view tag, std::string_view text, std::string_view attributes = "") {
    out_.append("<").append(tag).append(attributes).append(">");
    add(text);
    out_.append("</").append(tag).append(">\n");
  }

  void article(const FetusSummary& fetus) {
    out_ += "<article>\n";
    element("h2", summary_.patient + " \u00b7 " + fetus.name);
    out_ += "<dl>\n";
    for (const Fact& fact : fetus.facts) {
      element("dt", fact.label);
      element("dd", fact.value);
    }
    out_ += "</dl>\n";
    table(fetus.measurements);
    charts(fetus);
    table(fetus.weights);
    table(fetus.growth);
    if (!fetus.notes.empty()) element("h3", summary_.notesHeading);
    for (const Note& note : fetus.notes) {
      out_ += "<section class=\"note\">\n";
      element("h4", note.heading);
      for (const std::string& paragraph : note.paragraphs) element("p", paragraph);
      out_ += "</section>\n";
    }
    if (!fetus.citations.empty()) {
      element("h3", summary_.citationsHeading);
      out_ += "<ul class=\"small\">\n";
      for (const Citation& citation : fetus.citations) element("li", citation.what + ": " + citation.text);
      out_ += "</ul>\n";
    }
    out_ += "</article>\n";
  }

  void groups(const Table& table) {
    out_ += "<tr>";
    for (std::size_t i = 0; i < table.columns.size();) {
      std::size_t end = i + 1;
      const std::string& group = table.columns[i].group;
      while (end < table.columns.size() && table.columns[end].group == group) ++end;
      if (group.empty()) {
        out_.append("<td colspan=\"").append(std::to_string(end - i)).append("\"></td>");
      } else {
        element(
            "th", group,
            std::string(R"( class="g" scope="colgroup" colspan=")").append(std::to_string(end - i)) + R"(")");
      }
      i = end;
    }
    out_ += "</tr>\n";
  }

  void table(const Table& table) {
    if (table.rows.empty()) return;
    element("h3", table.title);
    out_ += "<div class=\"wide\">\n<table>\n";
    if (!table.lead.empty()) element("caption", table.lead);
    out_ += "<thead>\n";
    bool hasGroups = false;
    for (const Column& column : table.columns) hasGroups = hasGroups || !column.group.empty();
    if (hasGroups) groups(table);
    out_ += "<tr>\n";
    for (const Column& column : table.columns)
      element("th", column.title, column.isNumber ? R"( class="n" scope="col")" : R"( scope="col")");
    out_ += "</tr>\n</thead>\n<tbody>\n";
    const std::vector<std::size_t> decimals = decimalsOfColumns(table);
    for (const Row& row : table.rows) {
      out_ += row.isChosen ? "<tr class=\"chosen\">" : "<tr>";
      for (std::size_t i = 0; i < row.cells.size(); ++i)
        cell(row.cells[i], table.columns[i].isNumber, decimals[i], i == 0);
      out_ += "</tr>\n";
    }
    out_ += "</tbody>\n</table>\n</div>\n";
    if (table.notes.empty()) return;
    out_ += "<ol>\n";
    for (const std::string& note : table.notes) element("li", note);
    out_ += "</ol>\n";
  }

  void cell(const Cell& cell, bool isNumber, std::size_t decimals, bool isName) {
    const std::string_view tag = isName ? "th" : "td";
    out_.append("<").append(tag);
    if (isName) out_ += " scope=\"row\"";
    if (isNumber) out_ += " class=\"n\"";
    out_ += ">";
    add(cell.text);
    if (isNumber) out_ += paddingBehind(cell.text, decimals);
    if (cell.note > 0) out_.append("<sup>").append(std::to_string(cell.note)).append("</sup>");
    out_.append("</").append(tag).append(">");
  }

  void charts(const FetusSummary& fetus) {
    if (fetus.charts.empty()) return;
    element("h3", summary_.chartsHeading);
    element("p", fetus.chartsLead, " class=\"lead\"");
    out_ += "<div class=\"charts\">\n";
    for (const Chart& each : fetus.charts) chart(each);
    out_ += "</div>\n";
  }

  static std::string coordinate(double value) { return foundation::fixedText(value, 2); }

  void line(const Point& from, const Point& to, std::string_view colour) {
    out_.append("<line x1=\"").append(coordinate(from.x)).append("\" y1=\"").append(coordinate(from.y));
    out_.append("\" x2=\"").append(coordinate(to.x)).append("\" y2=\"").append(coordinate(to.y));
    out_.append("\" stroke=\"").append(colour).append("\" stroke-width=\".5\"/>\n");
  }

  void label(const Point& at, std::string_view anchor, std::string_view text) {
    out_.append("<text x=\"").append(coordinate(at.x)).append("\" y=\"").append(coordinate(at.y));
    out_.append(R"(" font-size="7" fill="#444" text-anchor=")").append(anchor).append(R"(">)");
    add(text);
    out_ += "</text>\n";
  }

  void chart(const Chart& chart) {
    constexpr Plot kPlot{.x = 26.0, .y = 4.0, .width = 120.0, .height = 90.0};
    const auto place = [&](double x, double y) { return placeOf(chart, kPlot, {x, y}); };
    out_ += "<figure>\n";
    element("figcaption", chart.title);
    out_ += R"(<svg viewBox="0 0 150 106" role="img" aria-label=")";
    add(chart.title + ": " + chart.description);
    out_ += "\">\n";
    for (const Mark& mark : chart.valueMarks) {
      const Point left = place(chart.firstWeek, mark.at);
      line(left, place(chart.lastWeek, mark.at), "#ddd");
      label({left.x - 2.0, left.y + 2.5}, "end", mark.text);
    }
    for (const Mark& mark : chart.weekMarks) {
      const Point low = place(mark.at, 0.0);
      line(low, {low.x, low.y + 2.0}, "#555");
      label({low.x, low.y + 9.0}, "middle", mark.text);
    }
    line(place(chart.firstWeek, 0.0), place(chart.lastWeek, 0.0), "#555");
    for (const Curve& curve : chart.curves) {
      out_ += R"(<polyline fill="none" stroke-width=")";
      out_ += curve.centile == kMedian ? ".9\" stroke=\"#555" : ".6\" stroke=\"#999";
      out_ += "\" points=\"";
      for (const Point& point : curve.points) {
        const Point at = place(point.x, point.y);
        out_.append(coordinate(at.x)).append(",").append(coordinate(at.y)).append(" ");
      }
      out_ += "\"/>\n";
    }
    for (const Point& value : chart.values) {
      const Point at = place(value.x, value.y);
      out_.append(R"(<circle r="2" fill="#1f4e79" cx=")").append(coordinate(at.x));
      out_.append("\" cy=\"").append(coordinate(at.y)).append("\"/>\n");
    }
    out_ += "</svg>\n</figure>\n";
  }

  const Summary& summary_;
  std::string out_;
};

}  // namespace

std::string htmlText(const Summary& summary) { return Writer(summary).text(); }

}  // namespace nascor::summary
