#include "qt/SystemLog.h"

#include <syslog.h>

#include <cstdio>
#include <string>

#include "foundation/Utf8.h"

namespace nascor::qt {

void SystemLog::write(std::string_view line) {
  const std::string text = foundation::oneLine(line);
  ::syslog(LOG_USER | LOG_INFO, "%s", text.c_str());
  std::fputs((text + "\n").c_str(), stderr);
}

}  // namespace nascor::qt
