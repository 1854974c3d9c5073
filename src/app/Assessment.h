#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "calc/Biometry.h"
#include "framework/TextField.h"

namespace nascor::app {

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

 private:
  std::array<Length, calc::kMeasurements.size()> lengths_{
      Length(calc::Measurement::bpd), Length(calc::Measurement::hc), Length(calc::Measurement::ac),
      Length(calc::Measurement::fl)};
  std::vector<framework::TextField*> texts_;
};

}  // namespace nascor::app
