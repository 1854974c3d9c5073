// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Biometry.h"
#include "foundation/Localizer.h"

namespace nascor::model {

/// A page of a patient's document. The values count from 0 in the order of the window.
enum class PatientPage : std::uint8_t { trends, bpd, hc, ac, fl, weight, report };

/// What is known of a page wherever it is shown, written or asked for.
struct PatientPageFacts {
  PatientPage page;
  std::string_view name;  ///< in the window and in names of files; a text of the table "MyDocument"
  std::string_view word;  ///< on the command line: small letters
  std::string_view
      titleField;  ///< the document's field with the patient's title over the page; empty where it has none
  std::string_view
      withoutValues;  ///< what the window says where nothing is measured; a text of the table "NCDocument"
  std::optional<calc::Measurement> length{};  ///< the one length that it shows
};

/// All pages, each at the place of its value.
inline constexpr std::array kPatientPages{
    PatientPageFacts{.page = PatientPage::trends,
                     .name = foundation::translatable("MyDocument", "Trends"),
                     .word = "trends",
                     .titleField = "headerSummaryField",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No lengths, so no marks. Type BPD, HC, AC or FL beside the page.")},
    PatientPageFacts{.page = PatientPage::bpd,
                     .name = foundation::translatable("MyDocument", "BPD"),
                     .word = "bpd",
                     .titleField = "headerBPDField",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No BPD, so no marks. Type it beside the page."),
                     .length = calc::Measurement::bpd},
    PatientPageFacts{.page = PatientPage::hc,
                     .name = foundation::translatable("MyDocument", "HC"),
                     .word = "hc",
                     .titleField = "headerHCField",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No HC, so no marks. Type it beside the page."),
                     .length = calc::Measurement::hc},
    PatientPageFacts{.page = PatientPage::ac,
                     .name = foundation::translatable("MyDocument", "AC"),
                     .word = "ac",
                     .titleField = "headerACField",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No AC, so no marks. Type it beside the page."),
                     .length = calc::Measurement::ac},
    PatientPageFacts{.page = PatientPage::fl,
                     .name = foundation::translatable("MyDocument", "FL"),
                     .word = "fl",
                     .titleField = "headerFLField",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No FL, so no marks. Type it beside the page."),
                     .length = calc::Measurement::fl},
    PatientPageFacts{.page = PatientPage::weight,
                     .name = foundation::translatable("MyDocument", "Weight"),
                     .word = "weight",
                     .titleField = "headerEFWField",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No weight, so no marks. Type the lengths that the formula needs.")},
    PatientPageFacts{.page = PatientPage::report,
                     .name = foundation::translatable("MyDocument", "Report"),
                     .word = "report",
                     .titleField = "",
                     .withoutValues = foundation::translatable(
                         "NCDocument", "No lengths. Type BPD, HC, AC or FL beside the page.")}};

/// The place of `page` in `kPatientPages` and in the window, from 0.
constexpr std::size_t placeOf(PatientPage page) { return static_cast<std::size_t>(page); }
/// The same as the number that selects it in the window.
constexpr std::int64_t indexOf(PatientPage page) { return static_cast<std::int64_t>(page); }
/// What is known of `page`.
constexpr const PatientPageFacts& factsOf(PatientPage page) { return kPatientPages.at(placeOf(page)); }
/// Nothing for a number that is no page's.
std::optional<PatientPage> patientPageAt(std::int64_t index);

/// Pages as they are asked for on a command line.
struct ChosenPages {
  std::vector<PatientPage> pages;  ///< in the order in which they were asked for
  std::optional<std::string>
      refused;  ///< the first word that is no page, as it was typed; then `pages` do not count
};

/// Reads "all", or words and numbers from 0 with commas between, "first" and "last" among them. Letters may be of any size.
ChosenPages chosenPages(std::string_view text);

}  // namespace nascor::model
