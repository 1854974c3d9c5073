// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <cstddef>
#include <functional>
#include <optional>

#include "app/NCDocument.h"
#include "bus/DocumentNumbers.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "framework/DocumentController.h"

namespace nascor::qt {

/// The objects that the application has on the bus: itself, and its documents below it. Answers every message that comes
/// to them, at once; kinds of values are checked here and in the scripting layer, never converted.
class BusObjects {
 public:
  static constexpr const char* kPath = "/org/nascor/Nascor";
  /// Open documents beyond which a caller opens none; the user does.
  static constexpr std::size_t kMostDocuments = 100;
  /// Of a text that is stored, in bytes.
  static constexpr std::size_t kLongestText = std::size_t{1024} * 1024;

  /// Both outlive this object.
  BusObjects(const foundation::Services& services, framework::DocumentController& documents,
             const DocumentNumbers& numbers)
      : services_(services), documents_(documents), numbers_(numbers) {}
  BusObjects(const BusObjects&) = delete;
  BusObjects& operator=(const BusObjects&) = delete;

  /// The reply, or the error. What the calls of the desktop ask for (the three signals below) comes after it, from the
  /// event loop, because it may ask the user.
  QDBusMessage answer(const QDBusMessage& message);

  foundation::Signal<> onNew;
  foundation::Signal<const QStringList&> onOpen;
  foundation::Signal<> onActivate;

 private:
  struct Target;
  struct Method;
  static const QList<Method>& methods();

  Target targetAt(const QString& path) const;
  const Method& methodFor(const QDBusMessage& message, const Target& target) const;
  QString pathOf(const framework::ZuDocument* document) const;
  /// Refuses where `more` documents would be too many.
  void requireRoomFor(std::size_t more) const;
  void later(std::function<void()> action);

  QVariantList perform(const Target& target, const QVariantList& arguments);
  QVariantList openDocuments(const Target& target, const QVariantList& arguments);
  QVariantList currentDocument(const Target& target, const QVariantList& arguments);
  QVariantList open(const Target& target, const QVariantList& arguments);
  QVariantList activate(const Target& target, const QVariantList& arguments);
  QVariantList openFiles(const Target& target, const QVariantList& arguments);
  QVariantList activateAction(const Target& target, const QVariantList& arguments);
  QVariantList introspect(const Target& target, const QVariantList& arguments);
  QVariantList get(const Target& target, const QVariantList& arguments);
  QVariantList set(const Target& target, const QVariantList& arguments);
  QVariantList getAll(const Target& target, const QVariantList& arguments);

  foundation::Services services_;
  framework::DocumentController& documents_;
  const DocumentNumbers& numbers_;
  QObject context_;  ///< what is queued ends with it
};

}  // namespace nascor::qt
