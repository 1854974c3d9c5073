// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The application as a process that shows no window.
#include <gmock/gmock.h>

#include <QDir>
#include <QTemporaryDir>

#include "Run.h"
#include "Sample.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class TheApplication : public testing::Test {
 protected:
  QString file(const char* name, const QByteArray& bytes) {
    const QString path = folder.filePath(QLatin1String(name));
    writeFile(path, bytes);
    return path;
  }
  /// Without a display, and without a word about it.
  Answer nascor(const QStringList& arguments) {
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    return run(QStringLiteral(NASCOR_PROGRAM), arguments, environment);
  }

  QTemporaryDir folder;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(TheApplication, tellsItsVersion) {
  const Answer answer = nascor({"--version"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_EQ(answer.output,
            "Nascor " NASCOR_VERSION "\nNot a medical device. Not validated for clinical use.\n");
}

TEST_F(TheApplication, helps) {
  const Answer answer = nascor({"--help"});
  EXPECT_EQ(answer.status, 0);
  EXPECT_THAT(answer.output, HasSubstr("--write-pages"));
  EXPECT_THAT(answer.output, HasSubstr("Not a medical device. Not validated for clinical use."));
}

TEST_F(TheApplication, refusesAnOptionThatItDoesNotKnow) {
  const Answer answer = nascor({"--wirte-pages", "--help"});
  EXPECT_EQ(answer.status, 2);
  EXPECT_THAT(answer.error, HasSubstr("wirte-pages"));
}

TEST_F(TheApplication, refusesAMistypedOptionWithoutADisplay) {
  for (const QStringList& arguments :
       {QStringList{"--nope"}, {"-x", "a.nascor"}, {"-style", "Fusion", "--nope"}}) {
    const Answer answer = nascor(arguments);
    EXPECT_EQ(answer.status, 2);
    EXPECT_THAT(answer.error, testing::MatchesRegex("Unknown option[^\n]*\\.\nusage: nascor [^\n]*\n"));
  }
}

TEST_F(TheApplication, takesTheToolkitsOptions) {
  const Answer answer = nascor({"-style", "Fusion", "--version"});
  EXPECT_EQ(answer.status, 0) << answer.error;
}

TEST_F(TheApplication, saysThatThereIsNoDisplay) {
  const QString document = file("a.nascor", documentBytes(singleton()));
  for (const QStringList& arguments : {QStringList{}, {document}, {"-style", "Fusion"}}) {
    const Answer answer = nascor(arguments);
    EXPECT_EQ(answer.status, 3);
    EXPECT_THAT(answer.error, testing::MatchesRegex("nascor: no window can be shown: [^\n]*display[^\n]*\n"));
  }
}

TEST_F(TheApplication, asksWhichDocumentsPagesToWrite) {
  EXPECT_EQ(nascor({"--write-pages", folder.path()}).status, 2);
}

TEST_F(TheApplication, writesPagesAndTellsTheirPaths) {
  const QString document = file("AB-123.nascor", documentBytes(singleton()));
  const QString out = folder.filePath(QStringLiteral("out"));
  const Answer answer = nascor({"--write-pages", out, "--pages", "bpd", document});
  EXPECT_EQ(answer.status, 0) << answer.error;
  EXPECT_EQ(answer.output, (out + "/AB-123 - BPD.png\n" + out + "/AB-123.pdf\n").toStdString());
  EXPECT_EQ(QDir(out).entryList(QDir::Files), (QStringList{"AB-123 - BPD.png", "AB-123.pdf"}));
}

TEST_F(TheApplication, failsWithASentenceForAFileThatItCannotRead) {
  const QString document = file("cut.nascor", cutDocument());
  const Answer answer = nascor({"--write-pages", folder.filePath(QStringLiteral("out")), document});
  EXPECT_EQ(answer.status, 1);
  EXPECT_THAT(answer.error, HasSubstr((document + ": not a Nascor document (at byte ").toStdString()));
  EXPECT_EQ(answer.output, "");
}

TEST_F(TheApplication, failsForAFileWithoutAPatient) {
  const QByteArray bytes = documentBytes(singleton());
  const QByteArray nilRoot = bytes.left(bytes.indexOf("\x01@") + 2) + '\x85';
  const QString document = file("nil.nascor", nilRoot);
  const Answer answer = nascor({"--write-pages", folder.filePath(QStringLiteral("out")), document});
  EXPECT_EQ(answer.status, 1);
  EXPECT_THAT(answer.error, HasSubstr((document + ": holds no patient\n").toStdString()));
}

TEST_F(TheApplication, takesWhatFollowsTwoDashesForFiles) {
  const QString document = file("--help", documentBytes(singleton()));
  const Answer answer = nascor({"--write-pages", folder.filePath(QStringLiteral("out")), "--", document});
  EXPECT_EQ(answer.status, 0) << answer.error;
}

TEST_F(TheApplication, saysThatThereIsNoFont) {
  const QString fonts = file("fonts.conf", "<?xml version=\"1.0\"?><fontconfig></fontconfig>");
  environment.insert("FONTCONFIG_FILE", fonts);
  const QString document = file("a.nascor", documentBytes(singleton()));
  const Answer answer = nascor({"--write-pages", folder.filePath(QStringLiteral("out")), document});
  EXPECT_EQ(answer.status, 1);
  EXPECT_THAT(answer.error, HasSubstr("No font is installed"));
  EXPECT_FALSE(QDir(folder.filePath(QStringLiteral("out"))).exists());
}

}  // namespace
}  // namespace nascor::tests
