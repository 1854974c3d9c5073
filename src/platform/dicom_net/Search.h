// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "dicom_net/Association.h"
#include "exchange/ReportServer.h"

namespace nascor::dicom_net {

/// Asks for the reports of a query, level by level as the study root has it: studies, their series of reports, and the
/// reports of these (PS3.4, C.6.2). Throws Failure.
exchange::FoundReports reportsOf(const exchange::ReportQuery& query, Association& association);

}  // namespace nascor::dicom_net
