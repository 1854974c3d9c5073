#pragma once

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

}  // namespace nascor::qt
