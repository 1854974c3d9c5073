// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "framework/CorvelDocument.h"
#include "framework/DocumentController.h"
#include "support/RecordingOutput.h"
#include "support/ScriptedAlerts.h"
#include "support/TestServices.h"

namespace nascor::tests {

/// The application around a document, without a platform and without a display.
struct TestApplication : TestServices {
  ScriptedAlerts alerts;
  ScriptedFilePanels panels{"/documents"};
  framework::DocumentController documents{services(), alerts, panels};

  framework::DocumentEnvironment environment() {
    return {.services = services(),
            .alerts = alerts,
            .controller = documents,
            .panels = &panels,
            .pageWriter = &pageWriter,
            .printer = &printer};
  }

  RecordingPageWriter pageWriter{files};
  RecordingPrinter printer;
};

}  // namespace nascor::tests
