// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/SystemLog.h"

#include <poll.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <string>

#include "foundation/Utf8.h"

namespace nascor::qt {

void writeToStandardError(std::string_view text) {
  while (!text.empty()) {
    // So many bytes a pipe takes as a whole when it says that it takes any.
    const std::size_t size = std::min<std::size_t>(text.size(), PIPE_BUF);
    pollfd place{.fd = STDERR_FILENO, .events = POLLOUT, .revents = 0};
    if (::poll(&place, 1, 0) != 1 || (place.revents & POLLOUT) == 0) return;
    const ssize_t written = ::write(STDERR_FILENO, text.data(), size);
    if (written <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void SystemLog::write(std::string_view line) {
  const std::string text = foundation::oneLine(line);
  ::syslog(LOG_USER | LOG_INFO, "%s", text.c_str());
  writeToStandardError(text + "\n");
}

}  // namespace nascor::qt
