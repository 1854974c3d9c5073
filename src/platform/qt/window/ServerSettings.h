// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "exchange/ReportServer.h"
#include "foundation/Localizer.h"
#include "foundation/UserDefaults.h"

namespace nascor::qt {

/// The server of reports that the preferences name; nothing where none was set up.
std::optional<exchange::ServerAddress> preferredServer(const foundation::UserDefaults& defaults);
/// What else there is to say of it, for people: its title, host and port.
QString serverName(const exchange::ServerAddress& address);

/// Asks for the server, and lets the user try it by `tries`, which says why it does not answer, or nothing.
void askForServer(QWidget& window, foundation::UserDefaults& defaults, const foundation::Localizer& localizer,
                  const std::function<std::optional<QString>(const exchange::ServerAddress&)>& tries);

}  // namespace nascor::qt
