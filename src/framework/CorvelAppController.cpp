#include "framework/CorvelAppController.h"

namespace nascor::framework {

bool CorvelAppController::validateMenuItem(MenuItem&) { return true; }

}  // namespace nascor::framework
