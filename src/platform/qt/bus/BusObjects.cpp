// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "bus/BusObjects.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QMetaObject>
#include <QUrl>
#include <QVariantMap>
#include <algorithm>
#include <limits>
#include <utility>

#include "base/AbandonedAction.h"
#include "base/LocalPath.h"
#include "base/Text.h"
#include "bus/Dictionary.h"
#include "foundation/Assertion.h"
#include "foundation/RangeError.h"
#include "foundation/Utf8.h"
#include "scripting/NCDocumentScripting.h"
#include "scripting/NascorScriptCommand.h"
#include "scripting/ScriptProperties.h"

namespace nascor::qt {
namespace {

using scripting::NCDocumentScripting;
using scripting::ScriptProperty;
using scripting::ScriptValue;

constexpr const char* kInvalidArguments = "org.freedesktop.DBus.Error.InvalidArgs";
constexpr const char* kUnknownMethod = "org.freedesktop.DBus.Error.UnknownMethod";
constexpr const char* kUnknownInterface = "org.freedesktop.DBus.Error.UnknownInterface";
constexpr const char* kUnknownObject = "org.freedesktop.DBus.Error.UnknownObject";
constexpr const char* kUnknownProperty = "org.freedesktop.DBus.Error.UnknownProperty";
constexpr const char* kLimits = "org.freedesktop.DBus.Error.LimitsExceeded";
constexpr const char* kFailed = "org.freedesktop.DBus.Error.Failed";
constexpr const char* kCannotOpen = "org.nascor.Error.CannotOpen";
constexpr const char* kCannotExport = "org.nascor.Error.CannotExport";
constexpr const char* kRange = "org.nascor.Error.Range";
constexpr const char* kAssertion = "org.nascor.Error.Assertion";

constexpr const char* kApplication = "org.nascor.Application";
constexpr const char* kDocument = "org.nascor.Document";
constexpr const char* kDesktop = "org.freedesktop.Application";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
constexpr const char* kIntrospectable = "org.freedesktop.DBus.Introspectable";

/// What a caller gets in place of a reply.
struct Refusal {
  const char* name;
  QString sentence;
};

[[noreturn]] void refuse(const char* name, const QString& sentence) { throw Refusal{name, sentence}; }

QString quoted(const QString& name) { return u'"' + name + u'"'; }

/// Nothing for what is neither number, text nor truth value.
std::optional<ScriptValue> scriptValue(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool: return value.toBool();
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong: return std::int64_t{value.toLongLong()};
    case QMetaType::ULongLong:
      if (value.toULongLong() > std::numeric_limits<std::int64_t>::max())
        return static_cast<double>(value.toULongLong());
      return static_cast<std::int64_t>(value.toULongLong());
    case QMetaType::Double: return value.toDouble();
    case QMetaType::QString: return toUtf8(value.toString());
    default: return std::nullopt;
  }
}

QVariant busValue(const ScriptValue& value) {
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return QVariant::fromValue<qlonglong>(*whole);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* text = std::get_if<std::string>(&value)) return fromUtf8(*text);
  return QString();  // no text and no date; every number is there
}

/// What a caller wants opened.
struct WantedFiles {
  QStringList paths;
  QStringList others;  ///< no files of this machine, in quotation marks
};

WantedFiles wantedFiles(const QStringList& uris) {
  WantedFiles wanted;
  for (const QString& uri : uris) {
    if (const auto path = localPath(QUrl(uri, QUrl::StrictMode))) {
      wanted.paths << *path;
    } else {
      wanted.others << quoted(fromUtf8(foundation::oneLine(toUtf8(uri))));
    }
  }
  return wanted;
}

/// The property that a call of Get or Set means. An interface may be left out.
const ScriptProperty& propertyFor(const QVariantList& arguments) {
  const QString interface = arguments[0].toString();
  if (!interface.isEmpty() && interface != QLatin1String(kDocument))
    refuse(kUnknownInterface,
           QStringLiteral("there are no properties of the interface ") + quoted(interface));
  const QString key = arguments[1].toString();
  const ScriptProperty* property = scripting::scriptProperty(toUtf8(key));
  if (!property) refuse(kUnknownProperty, QStringLiteral("there is no property ") + quoted(key));
  return *property;
}

}  // namespace

/// What a path names.
struct BusObjects::Target {
  enum Kind { application, folder, document } kind;
  app::NCDocument* opened = nullptr;
};

struct BusObjects::Method {
  Target::Kind kind;
  const char* interface;
  const char* member;
  const char* signature;
  QVariantList (BusObjects::*run)(const Target& target, const QVariantList& arguments);
};

const QList<BusObjects::Method>& BusObjects::methods() {
  static const QList<Method> table{
      {Target::application, kApplication, "perform", "s", &BusObjects::perform},
      {Target::application, kApplication, "documents", "", &BusObjects::openDocuments},
      {Target::application, kApplication, "currentDocument", "", &BusObjects::currentDocument},
      {Target::application, kApplication, "open", "s", &BusObjects::open},
      {Target::application, kDesktop, "Activate", "a{sv}", &BusObjects::activate},
      {Target::application, kDesktop, "Open", "asa{sv}", &BusObjects::openFiles},
      {Target::application, kDesktop, "ActivateAction", "sava{sv}", &BusObjects::activateAction},
      {Target::application, kIntrospectable, "Introspect", "", &BusObjects::introspect},
      {Target::folder, kIntrospectable, "Introspect", "", &BusObjects::introspect},
      {Target::document, kIntrospectable, "Introspect", "", &BusObjects::introspect},
      {Target::document, kProperties, "Get", "ss", &BusObjects::get},
      {Target::document, kProperties, "Set", "ssv", &BusObjects::set},
      {Target::document, kProperties, "GetAll", "s", &BusObjects::getAll},
  };
  return table;
}

QDBusMessage BusObjects::answer(const QDBusMessage& message) {
  const auto error = [&](const char* name, const QString& sentence) {
    return message.createErrorReply(QLatin1String(name), message.member() + QStringLiteral(": ") + sentence);
  };
  try {
    const Target target = targetAt(message.path());
    const Method& method = methodFor(message, target);
    return message.createReply((this->*method.run)(target, message.arguments()));
  } catch (const Refusal& refusal) {
    return error(refusal.name, refusal.sentence);
  } catch (const scripting::WrongKind& wrong) {
    return error(kInvalidArguments, fromUtf8(wrong.what()));
  } catch (const foundation::RangeError& range) {
    logAbandoned(range);
    return error(kRange, fromUtf8(range.what()));
  } catch (const foundation::AssertionFailure& failure) {
    logAbandoned(failure);
    return error(kAssertion, fromUtf8(failure.what()));
  } catch (const std::exception& other) {
    logAbandoned(other);
    return error(kFailed, fromUtf8(other.what()));
  }
}

BusObjects::Target BusObjects::targetAt(const QString& path) const {
  const QString folder = QLatin1String(kPath) + QStringLiteral("/documents");
  if (path == QLatin1String(kPath)) return {Target::application};
  if (path == folder) return {Target::folder};
  if (path.startsWith(folder + u'/')) {
    const QString name = path.mid(folder.size() + 1);
    const qlonglong number = name.toLongLong();
    if (QString::number(number) == name) {
      if (auto* document = dynamic_cast<app::NCDocument*>(numbers_.document(number)))
        return {Target::document, document};
      if (numbers_.wasGiven(number))
        refuse(kUnknownObject, QStringLiteral("document %1 is closed").arg(number));
    }
  }
  refuse(kUnknownObject, QStringLiteral("there is no object ") + path);
}

const BusObjects::Method& BusObjects::methodFor(const QDBusMessage& message, const Target& target) const {
  bool isInterfaceKnown = message.interface().isEmpty();
  for (const Method& method : methods()) {
    if (method.kind != target.kind) continue;
    if (!message.interface().isEmpty() && message.interface() != QLatin1String(method.interface)) continue;
    isInterfaceKnown = true;
    if (message.member() != QLatin1String(method.member)) continue;
    if (message.signature() == QLatin1String(method.signature)) return method;
    refuse(kInvalidArguments, *method.signature == '\0' ? QStringLiteral("expected no arguments")
                                                        : QStringLiteral("expected the arguments ") +
                                                              QLatin1String(method.signature));
  }
  if (!isInterfaceKnown)
    refuse(kUnknownInterface,
           message.path() + QStringLiteral(" has no interface ") + quoted(message.interface()));
  refuse(kUnknownMethod, QStringLiteral("there is no such method"));
}

QString BusObjects::pathOf(const framework::ZuDocument* document) const {
  const auto number = document ? numbers_.numberOf(*document) : std::nullopt;
  if (!number) return QStringLiteral("/");
  return QLatin1String(kPath) + QStringLiteral("/documents/") + QString::number(*number);
}

void BusObjects::requireRoomFor(std::size_t more) const {
  if (documents_.documents().size() + more > kMostDocuments)
    refuse(kLimits,
           QStringLiteral("callers may open no more than %1 documents; close some").arg(kMostDocuments));
}

void BusObjects::later(std::function<void()> action) {
  QMetaObject::invokeMethod(&context_, std::move(action), Qt::QueuedConnection);
}

QVariantList BusObjects::perform(const Target&, const QVariantList& arguments) {
  const std::string name = toUtf8(arguments[0].toString());
  if (name == scripting::kMakeNewDocument) requireRoomFor(1);
  scripting::NascorScriptCommand command(scripting::ScriptCommandDescription{name}, documents_,
                                         services_.log);
  command.performDefaultImplementation();
  if (command.failure()) refuse(kCannotExport, fromUtf8(*command.failure()));
  return {};
}

QVariantList BusObjects::openDocuments(const Target&, const QVariantList&) {
  QList<QDBusObjectPath> paths;
  for (const auto& [number, document] : numbers_.open()) paths << QDBusObjectPath(pathOf(document));
  return {QVariant::fromValue(paths)};
}

QVariantList BusObjects::currentDocument(const Target&, const QVariantList&) {
  return {QVariant::fromValue(QDBusObjectPath(pathOf(documents_.currentDocument())))};
}

QVariantList BusObjects::open(const Target&, const QVariantList& arguments) {
  const QString path = arguments[0].toString();
  if (!QDir::isAbsolutePath(path)) refuse(kInvalidArguments, QStringLiteral("expected an absolute path"));
  const std::string file = QFile::encodeName(path).toStdString();
  if (!documents_.isFileOpen(file)) requireRoomFor(1);
  foundation::FileError error;
  const framework::ZuDocument* document =
      documents_.openDocument(file, error, framework::DocumentController::IfHeld::refuses);
  if (!document) {
    // In one line, where a window has a button for the details.
    const std::string details = error.details.empty() ? "" : " (" + error.details + ")";
    refuse(kCannotOpen, fromUtf8(error.reason + details));
  }
  return {QVariant::fromValue(QDBusObjectPath(pathOf(document)))};
}

QVariantList BusObjects::activate(const Target&, const QVariantList&) {
  later([this] { onActivate(); });
  return {};
}

QVariantList BusObjects::openFiles(const Target&, const QVariantList& arguments) {
  const WantedFiles wanted = wantedFiles(arguments[0].toStringList());
  requireRoomFor(static_cast<std::size_t>(std::ranges::count_if(wanted.paths, [this](const QString& path) {
    return !documents_.isFileOpen(QFile::encodeName(path).toStdString());
  })));
  if (!wanted.paths.isEmpty() || wanted.others.isEmpty())
    later([this, files = wanted.paths] { onOpen(files); });
  if (!wanted.others.isEmpty()) {
    refuse(kInvalidArguments, QStringLiteral("only files of this machine can be opened, and not ") +
                                  wanted.others.join(QStringLiteral(", ")));
  }
  return {};
}

QVariantList BusObjects::activateAction(const Target&, const QVariantList& arguments) {
  if (arguments[0].toString() != QStringLiteral("new"))
    refuse(kInvalidArguments, QStringLiteral("the one action is \"new\""));
  requireRoomFor(1);
  later([this] { onNew(); });
  return {};
}

QVariantList BusObjects::introspect(const Target& target, const QVariantList&) {
  if (target.kind == Target::application) return {fromUtf8(applicationDictionary)};
  if (target.kind == Target::document) return {fromUtf8(documentDictionary)};
  QString nodes = QStringLiteral("<node>\n");
  for (const auto& [number, document] : numbers_.open())
    nodes += QStringLiteral("  <node name=\"%1\"/>\n").arg(number);
  return {nodes + QStringLiteral("</node>\n")};
}

QVariantList BusObjects::get(const Target& target, const QVariantList& arguments) {
  NCDocumentScripting scripted(*target.opened, services_.log);
  const ScriptValue value = readProperty(propertyFor(arguments), scripted, services_.calendar);
  return {QVariant::fromValue(QDBusVariant(busValue(value)))};
}

QVariantList BusObjects::set(const Target& target, const QVariantList& arguments) {
  NCDocumentScripting scripted(*target.opened, services_.log);
  const ScriptProperty& property = propertyFor(arguments);
  const auto value = scriptValue(arguments[2].value<QDBusVariant>().variant());
  if (!value) refuse(kInvalidArguments, fromUtf8(scripting::expectation(property)));
  const auto* text = std::get_if<std::string>(&*value);
  if (text != nullptr && text->size() > kLongestText)
    refuse(kLimits, QStringLiteral("a text has no more than %1 bytes").arg(kLongestText));
  writeProperty(property, scripted, *value, services_.calendar);
  return {};
}

QVariantList BusObjects::getAll(const Target& target, const QVariantList& arguments) {
  const QString interface = arguments[0].toString();
  QVariantMap values;
  if (interface.isEmpty() || interface == QLatin1String(kDocument)) {
    NCDocumentScripting scripted(*target.opened, services_.log);
    for (const ScriptProperty& property : scripting::scriptProperties()) {
      values.insert(fromUtf8(property.key), busValue(readProperty(property, scripted, services_.calendar)));
    }
  } else if (interface != QLatin1String(kProperties) && interface != QLatin1String(kIntrospectable)) {
    refuse(kUnknownInterface,
           QStringLiteral("there are no properties of the interface ") + quoted(interface));
  }
  return {values};
}

}  // namespace nascor::qt
