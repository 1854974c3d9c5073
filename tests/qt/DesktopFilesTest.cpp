// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What the desktop reads of the installed files: the kind of a document, and whose windows these are.
#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QXmlStreamReader>

#include "Sample.h"
#include "program/ApplicationIcon.h"

namespace nascor::tests {
namespace {

/// Whether `bytes` has every nested match of the file of kinds.
bool hasMagic(const QByteArray& bytes) {
  QFile file(QStringLiteral(NASCOR_DESKTOP "/nascor-mime.xml"));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no file of kinds");
  QXmlStreamReader xml(&file);
  int matches = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("match")) continue;
    ++matches;
    const auto attributes = xml.attributes();
    const QStringList offsets = attributes.value(QLatin1String("offset")).toString().split(u':');
    const qsizetype at =
        bytes.indexOf(attributes.value(QLatin1String("value")).toLatin1(), offsets[0].toInt());
    if (at < 0 || at > offsets.back().toInt()) return false;
  }
  return matches > 0;
}

TEST(TheKindOfADocument, isKnownByItsFirstBytes) {
  EXPECT_TRUE(hasMagic(documentBytes(singleton())));
  EXPECT_TRUE(hasMagic(documentBytes(twins())));
  QFile letter(QStringLiteral(NASCOR_TEST_DATA "/a-letter.nascor"));
  ASSERT_TRUE(letter.open(QIODevice::ReadOnly));
  EXPECT_FALSE(hasMagic(letter.readAll()));
  EXPECT_FALSE(hasMagic("\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x84\x84\x84\x06NSFont"));
}

TEST(TheDesktopEntry, namesTheWindowsClassAndTheIconByTheApplicationsId) {
  QSettings entry(QStringLiteral(NASCOR_DESKTOP "/org.nascor.Nascor.desktop"), QSettings::IniFormat);
  entry.beginGroup(QStringLiteral("Desktop Entry"));
  EXPECT_EQ(entry.value("Icon").toString(), QStringLiteral("org.nascor.Nascor"));
  // The X server's class of a window is the application's name.
  EXPECT_EQ(entry.value("StartupWMClass").toString(), QStringLiteral("Nascor"));
  EXPECT_TRUE(QFile::exists(QStringLiteral(NASCOR_DESKTOP "/org.nascor.Nascor.svg")));
}

TEST(TheDesktopEntry, isFoundByWordsOfEveryLanguage) {
  QFile entry(QStringLiteral(NASCOR_DESKTOP "/org.nascor.Nascor.desktop"));
  ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
  const QString text = QString::fromUtf8(entry.readAll());
  for (const char* key : {"GenericName", "Comment", "Keywords"}) {
    for (const char* language : {"", "[de]", "[es]", "[fr]"})
      EXPECT_TRUE(text.contains(QStringLiteral("\n%1%2=").arg(QLatin1String(key), QLatin1String(language))))
          << key << language;
  }
}

TEST(TheApplicationsIcon, isPaintedInTheSizesOfTitleBarsAndLists) {
  const QIcon icon = qt::applicationIcon();
  EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{16, 16}, {32, 32}, {64, 64}}));
  const QImage image = icon.pixmap(64, 64).toImage();
  EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(image.pixelColor(8, 30), QColor(Qt::white));
}

}  // namespace
}  // namespace nascor::tests
