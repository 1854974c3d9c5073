#include "posix/FileSizeSignal.h"

#include <csignal>

namespace nascor::posix {

void ignoreFileSizeSignal() { static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); }

}  // namespace nascor::posix
