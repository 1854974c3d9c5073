// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QUrl>
#include <optional>

namespace nascor::qt {

/// The path of the file that `url` names on this machine; nothing for another machine's, and for what is no file.
std::optional<QString> localPath(const QUrl& url);

}  // namespace nascor::qt
