#include "framework/CorvelDocument.h"

namespace nascor::framework {

void CorvelDocument::nextExamination() { showExamination(currentExam_ + 1); }

void CorvelDocument::previousExamination() { showExamination(currentExam_ - 1); }

void CorvelDocument::showExamination(std::int64_t exam) {
  if (exam < 0 || exam >= numberOfExaminations()) return;
  currentExam_ = exam;
  synchronizeFromData();
}

}  // namespace nascor::framework
