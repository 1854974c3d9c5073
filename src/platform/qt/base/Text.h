// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>
#include <string>
#include <string_view>

namespace nascor::qt {

/// @name The core's texts are UTF-8
/// @{
inline QString fromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string toUtf8(const QString& text) { return text.toStdString(); }
/// @}

/// `sentence` of that table in the user's language.
inline QString said(const char* table, const char* sentence) {
  return QCoreApplication::translate(table, sentence);
}

}  // namespace nascor::qt
