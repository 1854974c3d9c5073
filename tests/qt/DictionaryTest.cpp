// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The scripting dictionary as tools read it, against the properties that there are.
#include <gmock/gmock.h>

#include <QFile>
#include <QXmlStreamReader>
#include <map>
#include <string>
#include <vector>

#include "base/Text.h"
#include "bus/Dictionary.h"
#include "scripting/ScriptProperties.h"

namespace nascor::tests {
namespace {

using scripting::ScriptProperty;
using scripting::ValueKind;

struct Entry {
  std::string key;
  std::string type;
  std::string access;
  std::map<std::string, std::string> annotations;
};

/// The properties of `xml`, in their order.
std::vector<Entry> propertiesIn(std::string_view xml) {
  std::vector<Entry> entries;
  QXmlStreamReader reader(qt::fromUtf8(xml));
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const auto attribute = [&](const char* name) {
      return reader.attributes().value(QLatin1String(name)).toString().toStdString();
    };
    if (reader.name() == QLatin1String("property")) {
      entries.push_back({attribute("name"), attribute("type"), attribute("access"), {}});
    } else if (reader.name() == QLatin1String("annotation") && !entries.empty()) {
      entries.back().annotations[attribute("name")] = attribute("value");
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return entries;
}

const char* typeOf(ValueKind kind) {
  switch (kind) {
    case ValueKind::integer: return "x";
    case ValueKind::real: return "d";
    case ValueKind::text:
    case ValueKind::date: break;
  }
  return "s";
}

TEST(TheDictionary, hasExactlyThePropertiesThatThereAre) {
  const std::vector<Entry> entries = propertiesIn(qt::documentDictionary);
  const auto properties = scripting::scriptProperties();
  ASSERT_EQ(entries.size(), properties.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const ScriptProperty& property = properties[i];
    EXPECT_EQ(entries[i].key, property.key);
    EXPECT_EQ(entries[i].type, typeOf(property.kind)) << property.key;
    EXPECT_EQ(entries[i].access, "readwrite") << property.key;
    EXPECT_EQ(entries[i].annotations.at("org.freedesktop.DBus.Property.EmitsChangedSignal"), "false");
    const std::string text = entries[i].annotations.at("org.gtk.GDBus.DocString");
    EXPECT_TRUE(text.starts_with(property.sentence)) << text;
    EXPECT_THAT(text, testing::HasSubstr(std::string(property.unit))) << property.key;
  }
  EXPECT_TRUE(propertiesIn(qt::applicationDictionary).empty());
}

/// Every method and argument of the application's own interface has its sentence right behind it.
TEST(TheDictionary, explainsEveryCommand) {
  QXmlStreamReader reader(qt::fromUtf8(qt::applicationDictionary));
  bool isOurs = false;
  int explained = 0;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == QLatin1String("interface"))
      isOurs = reader.attributes().value(QLatin1String("name")) == QLatin1String("org.nascor.Application");
    if (!isOurs || (reader.name() != QLatin1String("method") && reader.name() != QLatin1String("arg")))
      continue;
    const std::string name = reader.attributes().value(QLatin1String("name")).toString().toStdString();
    EXPECT_TRUE(reader.readNextStartElement()) << name;
    EXPECT_EQ(reader.name(), QLatin1String("annotation")) << name;
    ++explained;
  }
  EXPECT_EQ(explained, 9);  // four methods, two arguments in and three out
}

}  // namespace
}  // namespace nascor::tests
