#pragma once

#include "framework/CorvelDocument.h"
#include "framework/DocumentController.h"
#include "support/ScriptedAlerts.h"
#include "support/TestServices.h"

namespace nascor::tests {

/// The application around a document, without a platform and without a display.
struct TestApplication : TestServices {
  ScriptedAlerts alerts;
  ScriptedFilePanels panels{"/documents"};
  framework::DocumentController documents{services(), alerts, panels};

  framework::DocumentEnvironment environment() {
    return {.services = services(), .alerts = alerts, .controller = documents};
  }
};

}  // namespace nascor::tests
