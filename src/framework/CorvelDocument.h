#pragma once

#include <cstdint>

#include "foundation/Services.h"
#include "framework/GraphDocument.h"

namespace nascor::framework {

/// A document about one patient, seen at a series of examinations of which one is on show.
class CorvelDocument : public virtual GraphDocument {
 public:
  explicit CorvelDocument(const foundation::Services& services) : services_(services) {}
  CorvelDocument(const CorvelDocument&) = delete;
  CorvelDocument& operator=(const CorvelDocument&) = delete;

  std::int64_t currentExam() const override { return currentExam_; }
  void setCurrentExam(std::int64_t exam) { currentExam_ = exam; }
  bool shouldShowGraphHilite() const override { return true; }

  /// @name The examination on show moves by one; nothing happens at the ends
  /// @{
  void nextExamination();
  void previousExamination();
  /// @}

 protected:
  const foundation::Services& services() const { return services_; }
  virtual std::int64_t numberOfExaminations() const = 0;
  /// The model is shown anew.
  virtual void synchronizeFromData() = 0;

 private:
  void showExamination(std::int64_t exam);

  foundation::Services services_;
  std::int64_t currentExam_ = 0;
};

}  // namespace nascor::framework
