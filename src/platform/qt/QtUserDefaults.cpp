#include "qt/QtUserDefaults.h"

#include "qt/Text.h"

namespace nascor::qt {

QtUserDefaults::QtUserDefaults()
    : settings_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Nascor"),
                QStringLiteral("nascor")) {
  // Ignores the preferences of the whole machine: they are not this user's.
  settings_.setFallbacksEnabled(false);
}

std::optional<std::string> QtUserDefaults::value(std::string_view key) const {
  const QString name = fromUtf8(key);
  if (settings_.contains(name)) return toUtf8(settings_.value(name).toString());
  if (const auto found = registered_.find(key); found != registered_.end()) return found->second;
  return std::nullopt;
}

void QtUserDefaults::setValue(std::string_view key, std::string value) {
  const QString name = fromUtf8(key);
  const QString text = fromUtf8(value);
  // Writing waits for the disk, and a patient who is opened again changes nothing.
  if (settings_.contains(name) && settings_.value(name).toString() == text) return;
  settings_.setValue(name, text);
  settings_.sync();
}

void QtUserDefaults::registerDefault(std::string_view key, std::string value) {
  registered_.insert_or_assign(std::string(key), std::move(value));
}

}  // namespace nascor::qt
