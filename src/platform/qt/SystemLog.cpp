#include "qt/SystemLog.h"

#include <syslog.h>

#include <QLoggingCategory>
#include <string>

#include "qt/Text.h"

namespace nascor::qt {

void SystemLog::write(std::string_view line) {
  static const QLoggingCategory category("nascor.log", QtWarningMsg);
  ::syslog(LOG_USER | LOG_INFO, "%s", std::string(line).c_str());
  qCInfo(category).noquote() << fromUtf8(line);
}

}  // namespace nascor::qt
