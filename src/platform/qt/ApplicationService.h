#pragma once

#include <QDBusVirtualObject>
#include <QStringList>
#include <functional>

namespace nascor::qt {

/// The running application as others find it on the session bus, by the interface org.freedesktop.Application. A second
/// start hands its files to the first one.
class ApplicationService final : public QDBusVirtualObject {
 public:
  static constexpr const char* kName = "org.nascor.Nascor";
  static constexpr const char* kPath = "/org/nascor/Nascor";

  enum class Start {
    first,       ///< nobody else runs; what others hand over comes to the functions below
    handedOver,  ///< the one that runs has taken the files
    alone        ///< there is no bus, or nobody answers on it
  };

  /// Looks for an application that runs, and hands `paths` over to it (nothing: a new document).
  Start start(const QStringList& paths);

  /// Set before `start`; called from the event loop.
  std::function<void()> onNew;
  std::function<void(const QStringList& paths)> onOpen;
  std::function<void()> onActivate;

  QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
};

}  // namespace nascor::qt
