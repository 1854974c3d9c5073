// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "exchange/Codes.h"
#include "exchange/Findings.h"

namespace nascor::tests {

// Reports for tests, as short as they can be said.

namespace term = exchange::term;
using exchange::ContentItem;
using exchange::Term;
using exchange::ValueType;

inline constexpr Term kMean{"R-00317", "SRT", "Mean"};
inline constexpr Term kCalculated{"258090004", "SCT", "Calculated"};
inline constexpr Term kEstimated{"414135002", "SCT", "Estimated"};
inline constexpr Term kMeasured{"R-41D41", "SRT", "Measured"};
inline constexpr Term kMinimum{"255605001", "SCT", "Minimum"};
inline constexpr Term kMaximum{"G-A437", "SRT", "Maximum"};
inline constexpr Term kDeviation{"R-10047", "SRT", "Standard Deviation"};
inline constexpr Term kMeanChosen{"121412", "DCM", "Mean value chosen"};
inline constexpr Term kMostRecent{"121411", "DCM", "Most recent value chosen"};

inline ContentItem contentItem(ValueType type, const Term& name, std::string relationship = "CONTAINS") {
  return {.type = type,
          .relationship = std::move(relationship),
          .name = name.code(),
          .text = {},
          .code = {},
          .items = {}};
}

inline ContentItem container(const Term& name, std::vector<ContentItem> items) {
  ContentItem item = contentItem(ValueType::container, name);
  item.items = std::move(items);
  return item;
}

inline ContentItem code(const Term& name, const Term& value) {
  ContentItem item = contentItem(ValueType::code, name, "HAS PROPERTIES");
  item.code = value.code();
  return item;
}

inline ContentItem derived(const Term& how) { return code(term::derivation, how); }
inline ContentItem flagged(const Term& how = kMeanChosen) { return code(term::selectionStatus, how); }

inline ContentItem number(const Term& name, std::string value, std::string unit = "mm",
                          std::vector<ContentItem> items = {}) {
  ContentItem item = contentItem(ValueType::number, name);
  item.text = std::move(value);
  item.code = {std::move(unit), "UCUM", ""};
  item.items = std::move(items);
  return item;
}

inline ContentItem text(const Term& name, std::string value) {
  ContentItem item = contentItem(ValueType::text, name, "HAS OBS CONTEXT");
  item.text = std::move(value);
  return item;
}

inline ContentItem date(const Term& name, std::string value) {
  ContentItem item = contentItem(ValueType::date, name);
  item.text = std::move(value);
  return item;
}

inline ContentItem group(std::vector<ContentItem> items) {
  return container(term::biometryGroup, std::move(items));
}
inline ContentItem biometry(std::vector<ContentItem> items) {
  return container(term::fetalBiometry, std::move(items));
}
inline ContentItem summary(std::vector<ContentItem> items) {
  return container(term::summary, std::move(items));
}

inline exchange::StructuredReport report(std::vector<ContentItem> items) {
  exchange::StructuredReport report;
  report.sopClass = exchange::kComprehensiveSR;
  report.patientID = "AB-123";
  report.studyDate = "20261113";
  report.contentDate = "20261114";
  report.hasContent = true;
  report.root = container(term::report, std::move(items));
  return report;
}

/// The findings of a report that has some.
inline exchange::Findings found(std::vector<ContentItem> items) {
  return std::get<exchange::Findings>(exchange::findingsIn(report(std::move(items))));
}

}  // namespace nascor::tests
