// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What is drawn over the charts of the window beside the standard of the patient.

#include <algorithm>

#include "app/NCDocument.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"

namespace nascor::app {
namespace {

// As they are stored; nothing where nothing was chosen.
constexpr std::string_view kCentilesKey = "Overlay";          ///< the name of a reference; may be empty
constexpr std::string_view kJoinedMarksKey = "Joined Marks";  ///< a truth value

}  // namespace

charts::Overlay NCDocument::overlay() const { return isPrinting() ? charts::Overlay{} : overlay_; }

void NCDocument::setOverlay(const charts::Overlay& overlay) {
  overlay_ = overlay;
  services().defaults.setValue(kCentilesKey,
                               overlay.centiles != nullptr ? std::string(overlay.centiles->name) : "");
  services().defaults.setValue(kJoinedMarksKey, overlay.joinsMarks ? "YES" : "NO");
  tabView().setNeedsDisplay();
}

void NCDocument::takePreferredOverlay() {
  const foundation::UserDefaults& defaults = services().defaults;
  overlay_ = {.centiles = calc::referenceNamed(defaults.value(kCentilesKey).value_or("")),
              .joinsMarks = foundation::boolForKey(defaults, kJoinedMarksKey)};
  tabView().setNeedsDisplay();
}

std::string NCDocument::spokenOverlay(model::PatientPage page) const {
  const auto graphs = pages_.graphsOn(page);
  if (graphs.empty()) return {};
  std::string text;
  // The trends have four charts, of which each says the same.
  if (const std::string centiles = graphs.front()->centilesText(); !centiles.empty()) text = centiles + ".";
  if (overlay().joinsMarks) {
    text += text.empty() ? "" : " ";
    text += services().localizer.text("NCDocument", "Lines join the marks of each fetus.");
  }
  return text;
}

}  // namespace nascor::app
