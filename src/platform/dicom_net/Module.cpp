// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/DcmtkReportServer.h"

/// What a program finds in this module by its name: servers of reports, which it asks as long as it lives.
extern "C" __attribute__((visibility("default"))) nascor::exchange::ReportServer* nascorReportServer() {
  static nascor::dicom_net::DcmtkReportServer server;
  return &server;
}
