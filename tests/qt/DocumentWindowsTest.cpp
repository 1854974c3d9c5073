#include "qt/DocumentWindows.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "Sample.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;

class OpeningDocuments : public testing::Test {
 protected:
  OpeningDocuments() : windows(platform.services()) {
    windows.tell = [this](QWidget*, const QString& text) { told.push_back(text.toStdString()); };
  }

  QString file(const char* name, const QByteArray& bytes) {
    const QString path = folder.filePath(QLatin1String(name));
    writeFile(path, bytes);
    return path;
  }
  static QStringList titles() {
    QStringList result;
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->isVisible()) result << widget->windowTitle();
    }
    result.sort();
    return result;
  }

  TestPlatform platform;
  QTemporaryDir folder;
  std::vector<std::string> told;
  qt::DocumentWindows windows;
};

TEST_F(OpeningDocuments, givesEachAWindow) {
  EXPECT_EQ(
      windows.open({file("b.nascor", documentBytes(twins())), file("a.nascor", documentBytes(singleton()))}),
      2);
  EXPECT_EQ(titles(), (QStringList{QStringLiteral("a.nascor[*]"), QStringLiteral("b.nascor[*]")}));
  EXPECT_TRUE(told.empty());
}

TEST_F(OpeningDocuments, saysWhichByteOfAMalformedFileIsWrongAndOpensNoWindow) {
  const QString path = file("cut.nascor", cutDocument());
  EXPECT_EQ(windows.open({path}), 0);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_THAT(told[0], testing::MatchesRegex(path.toStdString() +
                                             " could not be opened: at byte [0-9]+: expected .+[^.]\\."));
  EXPECT_TRUE(titles().isEmpty());
}

TEST_F(OpeningDocuments, saysThatAFileIsMissing) {
  const QString path = folder.filePath(QStringLiteral("gone.nascor"));
  EXPECT_EQ(windows.open({path}), 0);
  EXPECT_EQ(told, std::vector{path.toStdString() + " could not be opened: No such file or directory."});
}

TEST_F(OpeningDocuments, saysThatAFileIsAFolder) {
  EXPECT_EQ(windows.open({folder.path()}), 0);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_THAT(told[0], HasSubstr("could not be opened"));
}

TEST_F(OpeningDocuments, opensTheOthersAndTellsOnce) {
  EXPECT_EQ(windows.open({file("cut.nascor", cutDocument()), file("good.nascor", documentBytes(singleton())),
                          folder.filePath(QStringLiteral("gone.nascor"))}),
            1);
  EXPECT_EQ(titles(), QStringList{QStringLiteral("good.nascor[*]")});
  ASSERT_EQ(told.size(), 1U);
  EXPECT_THAT(told[0], HasSubstr("cut.nascor could not be opened"));
  EXPECT_THAT(told[0], HasSubstr("gone.nascor could not be opened"));
}

TEST_F(OpeningDocuments, showsAFileWithoutAPatientAsANewDocument) {
  // The header of a document of this byte order, then a root that is nil.
  const QByteArray bytes = documentBytes(singleton());
  const qsizetype type = bytes.indexOf("\x01@", 0);
  ASSERT_GT(type, 0);
  const QByteArray nilRoot = bytes.left(type + 2) + '\x85';
  EXPECT_EQ(windows.open({file("nil.nascor", nilRoot)}), 1);
  EXPECT_EQ(titles(), QStringList{QStringLiteral("Untitled[*]")});
  EXPECT_TRUE(told.empty());
}

TEST_F(OpeningDocuments, opensABlankDocument) {
  const qt::DocumentWindow* window = windows.openUntitled();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Untitled[*]"));
  EXPECT_TRUE(window->windowFilePath().isEmpty());
}

TEST_F(OpeningDocuments, tellsInAMessageBoxThatTakesNoMarkup) {
  qt::DocumentWindows real(platform.services());
  QString text;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    text = box->text();
    box->close();
  });
  EXPECT_EQ(real.open({folder.filePath(QStringLiteral("<b>gone</b>"))}), 0);
  EXPECT_THAT(text.toStdString(), HasSubstr("<b>gone</b> could not be opened"));
}

TEST_F(OpeningDocuments, closesItsWindowsWithItself) {
  {
    qt::DocumentWindows shortLived(platform.services());
    shortLived.openUntitled();
    EXPECT_EQ(titles().size(), 1);
  }
  EXPECT_TRUE(titles().isEmpty());
}

}  // namespace
}  // namespace nascor::tests
