// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "app/NCDocument.h"
#include "foundation/Date.h"
#include "foundation/Log.h"
#include "scripting/ScriptValue.h"

namespace nascor::scripting {

/// What scripts read and write of a document.
///
/// Everything goes straight to the records, without a range test and without a question; the window is refreshed and the
/// document becomes edited with each write, `setTabViewIndex` apart. A refresh drops what the user has typed into a field
/// and not yet left. Examination date and lengths are those of the last examination, whichever is on show; the lengths
/// those of the fetus on show. Where there is no such record reads give none or 0 and writes reach nothing.
class NCDocumentScripting {
 public:
  /// Both outlive this object.
  NCDocumentScripting(app::NCDocument& document, foundation::Log& log) : document_(document), log_(log) {}

  /// Refreshes the window from the records first, like a write.
  std::optional<std::string> identifier();
  void setIdentifier(const std::string& identifier);
  std::int64_t gravida();
  void setGravida(const ScriptNumber& gravida);
  std::optional<foundation::Date> edd();
  void setEdd(const std::optional<foundation::Date>& edd);
  std::optional<foundation::Date> examDate();
  /// Neither puts the examinations in order nor shows another one.
  void setExamDate(const std::optional<foundation::Date>& examDate);

  /// @name Lengths in mm. They are stored as the nearest single-precision number: 45.3 as 45.29999923706055
  /// @{
  double bpd() const;
  void setBpd(const ScriptNumber& bpd);
  double hc() const;
  void setHc(const ScriptNumber& hc);
  double ac() const;
  void setAc(const ScriptNumber& ac);
  double fl() const;
  void setFl(const ScriptNumber& fl);
  /// @}

  std::int64_t tabViewIndex() const;
  /// Neither refreshes the window nor marks the document as edited. Throws RangeError.
  void setTabViewIndex(const ScriptNumber& index);

 private:
  using Length = void (model::MeasurementsRecord::*)(double);

  model::NCRecord* lastExamination();
  model::MeasurementsRecord* lastMeasurements();
  void setLength(std::string_view name, Length store, const ScriptNumber& value);
  void refreshAndMarkEdited();

  app::NCDocument& document_;
  foundation::Log& log_;
};

}  // namespace nascor::scripting
