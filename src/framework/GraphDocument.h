// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace nascor::framework {

/// What a graph view asks of the document that it shows.
class GraphDocument {
 public:
  virtual ~GraphDocument() = default;
  /// The index of the examination on show.
  virtual std::int64_t currentExam() const = 0;
  /// Whether the examination on show is to be highlighted.
  virtual bool shouldShowGraphHilite() const = 0;
  /// Makes the examination nearest to `weeks` of menstrual age the one on show.
  virtual void setCurrentRecordFromClick(double weeks) = 0;
};

}  // namespace nascor::framework
