// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom/DcmtkReportFiles.h"

/// What a program finds in this module by its name: the files of structured reports, which live as long as the program.
extern "C" __attribute__((visibility("default"))) nascor::exchange::ReportFiles* nascorReportFiles() {
  static nascor::dicom::DcmtkReportFiles files;
  return &files;
}
