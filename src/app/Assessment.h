// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "calc/Biometry.h"
#include "calc/LookUp.h"
#include "foundation/Localizer.h"
#include "framework/TextField.h"

namespace nascor::app {

/// What the user types of the fetus on show, and what it is judged by.
struct LengthsOnShow {
  calc::Biometry typed;       ///< mm; 0 for not measured, NaN while a text is no number
  calc::Biometry acceptable;  ///< mm; NaN also where the field would refuse the text
  std::optional<calc::Measurement>
      beingTyped;                  ///< its first digits are another length: judged when it is left
  double age = 0.0;                ///< weeks; 0.0 while it is unknown
  std::int64_t weightFormula = 0;  ///< its identifier
  /// Of the growth standard in force, by measurement; empty without one.
  std::array<const calc::ReferenceTable*, calc::kMeasurements.size()> tables{};
};

/// What the window and its dialogs say beside what is typed, anew at every key. Nothing of it is stored, printed or exported.
/// The document writes these fields, and a view that bears the name of one shows it.
class Assessment {
 public:
  Assessment();

  /// Of one length of the fetus on show.
  struct Length {
    explicit Length(calc::Measurement measurement);

    framework::TextField z;        ///< by the growth standard in force, "+1.25"; "-" where there is none
    framework::TextField centile;  ///< of that z, "89.4"; "-" where there is none
    framework::TextField remark;   ///< a sentence on an improbable length; else empty
    framework::TextField
        datingRemark;  ///< a word where the dialog dates it by the end of the table; else empty
  };
  Length& length(calc::Measurement measurement) { return lengths_[static_cast<std::size_t>(measurement)]; }

  framework::TextField weight{"weightText"};    ///< by the formula in force, "1234 g", or "-"
  framework::TextField ageRemark{"ageRemark"};  ///< a sentence on an improbable age; else empty
  framework::TextField crlExamination{"crlWindowExamination"};  ///< the one on show, to compare with the scan
  /// @name What OK would set, a line each: the EDD, the age today, the difference; or why it would set nothing
  /// @{
  framework::TextField crlProposal{"crlWindowProposal"};
  framework::TextField lmpProposal{"lmpWindowProposal"};
  framework::TextField measurementsProposal{"measurementsWindowProposal"};
  /// @}

  const std::vector<framework::TextField*>& texts() const { return texts_; }

  /// Places and judges the lengths, the age and the weight that they give.
  void showLengths(const LengthsOnShow& shown, const foundation::Localizer& localizer);
  /// Says of which of `held`, which the fields hold, the dialog takes the age from the end of a table.
  void showDatingRemarks(const calc::Biometry& held, const LengthsOnShow& shown,
                         const foundation::Localizer& localizer);

 private:
  std::array<Length, calc::kMeasurements.size()> lengths_{
      Length(calc::Measurement::bpd), Length(calc::Measurement::hc), Length(calc::Measurement::ac),
      Length(calc::Measurement::fl)};
  std::vector<framework::TextField*> texts_;
};

/// Shows `text`, and tells the listeners of `field` of a new one alone.
void showIfNew(framework::TextField& field, const std::string& text);

}  // namespace nascor::app
