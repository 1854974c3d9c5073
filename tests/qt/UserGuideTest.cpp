// The user guide that the build has made, read by programs that know nothing of how it is made.
#include <gmock/gmock.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QXmlStreamReader>

#include "Run.h"
#include "WindowTest.h"
#include "qt/QtViewer.h"
#include "user-guide/GuideDocument.h"
#include "user-guide/GuideText.h"
#include "user-guide/PdfNavigation.h"
#include "user-guide/WindowPictures.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

QString guidePath() {
  return QFile::decodeName(QByteArray::fromStdString(qt::resourceFolder())) +
         QStringLiteral("/Nascor User Guide.pdf");
}

QString textOf(const QString& pdf, const QStringList& options = {}) {
  return QString::fromStdString(run("pdftotext", options + QStringList{pdf, "-"}).output);
}
QString textOfPage(int page) {
  return textOf(guidePath(), {"-layout", "-f", QString::number(page), "-l", QString::number(page)});
}
int pages() {
  static const QRegularExpression count(QStringLiteral("Pages:\\s+(\\d+)"));
  return count.match(QString::fromStdString(run("pdfinfo", {guidePath()}).output)).captured(1).toInt();
}

struct Bookmark {
  QString title;
  int page = 0;
  int level = 0;
};

/// The bookmarks of a file, as another program reads them.
std::vector<Bookmark> bookmarksOf(const QString& pdf) {
  const QTemporaryDir folder;
  const Answer answer = run("pdftohtml", {"-xml", "-i", "-q", pdf, folder.filePath("guide")});
  QFile file(folder.filePath("guide.xml"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << answer.error;
  QString text = QString::fromUtf8(file.readAll());
  std::vector<Bookmark> found;
  int level = 0;
  static const QRegularExpression part(
      QStringLiteral("<outline>|</outline>|<item page=\"(\\d+)\">([^<]*)</item>"));
  for (auto parts = part.globalMatch(text); parts.hasNext();) {
    const auto match = parts.next();
    if (match.captured(0) == QLatin1String("<outline>")) {
      ++level;
    } else if (match.captured(0) == QLatin1String("</outline>")) {
      --level;
    } else {
      QString title = match.captured(2);
      title.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
      found.push_back({.title = title.simplified(), .page = match.captured(1).toInt(), .level = level});
    }
  }
  return found;
}

struct Link {
  QString words;
  int page = 0;
  bool operator==(const Link&) const = default;
};
void PrintTo(const Link& link, std::ostream* out) { *out << link.words.toStdString() << " -> " << link.page; }

/// Where one gets to by a click on the words of a file.
std::vector<Link> linksOf(const QString& pdf) {
  const QTemporaryDir folder;
  const Answer answer = run("pdftohtml", {"-xml", "-i", "-q", pdf, folder.filePath("guide")});
  QFile file(folder.filePath("guide.xml"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << answer.error;
  static const QRegularExpression link(QStringLiteral("<a href=\"guide.html#(\\d+)\">(.*)</a>"));
  static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
  std::vector<Link> found;
  for (auto links = link.globalMatch(QString::fromUtf8(file.readAll())); links.hasNext();) {
    const auto match = links.next();
    found.push_back({.words = match.captured(2).remove(tag).simplified(), .page = match.captured(1).toInt()});
  }
  return found;
}

TEST(TheUserGuide, liesWhereTheApplicationLooks) { EXPECT_TRUE(QFile::exists(guidePath())); }

TEST(TheUserGuide, isInstalledWhereTheInstalledApplicationLooks) {
  const QTemporaryDir prefix;
  const Answer answer = run(NASCOR_CMAKE, {"--install", NASCOR_BUILD, "--prefix", prefix.path()});
  ASSERT_EQ(answer.status, 0) << answer.error;
  EXPECT_TRUE(QFile::exists(prefix.filePath("bin/nascor")));
  EXPECT_TRUE(QFile::exists(prefix.filePath("share/nascor/Nascor User Guide.pdf")));
}

TEST(TheUserGuide, hasEachChapterAsABookmarkOfThePageOnWhichItBegins) {
  const std::vector<Bookmark> bookmarks = bookmarksOf(guidePath());
  QStringList chapters;
  for (const Bookmark& bookmark : bookmarks) {
    if (bookmark.level == 1) chapters << bookmark.title;
    EXPECT_THAT(textOfPage(bookmark.page).simplified().toStdString(),
                HasSubstr(bookmark.title.toStdString()));
  }
  EXPECT_EQ(chapters.join(u'\n').toStdString(),
            "1 What Nascor is, and what it is not\n2 A first patient in ten minutes\n3 Twins, step by step\n"
            "4 The window\n5 Dating the pregnancy\n6 The charts\n7 The report\n8 Printing and exporting\n"
            "9 What the numbers mean, and what they do not\n10 When something goes wrong\n"
            "11 Menus and keys\n12 Glossary\n13 Scripting\n14 The command line\n15 The document file\n"
            "16 Oddities kept on purpose\n17 Formulas and their sources");
  EXPECT_GT(bookmarks.size(), 30U);
}

TEST(TheUserGuide, listsInItsContentsThePagesOfTheBookmarks) {
  const QString contents = textOfPage(1) + textOfPage(2);
  const std::vector<Bookmark> bookmarks = bookmarksOf(guidePath());
  ASSERT_FALSE(bookmarks.empty());
  for (const Bookmark& bookmark : bookmarks) {
    QString pattern = QRegularExpression::escape(bookmark.title);
    pattern.replace(QStringLiteral("\\ "), QStringLiteral("\\s+"));
    EXPECT_TRUE(QRegularExpression(pattern + QStringLiteral("\\s+%1\\n").arg(bookmark.page))
                    .match(contents)
                    .hasMatch())
        << bookmark.title.toStdString() << ' ' << bookmark.page;
  }
}

TEST(TheUserGuide, leadsFromItsContentsToThePagesByAClick) {
  const std::vector<Link> links = linksOf(guidePath());
  const std::vector<Bookmark> bookmarks = bookmarksOf(guidePath());
  ASSERT_FALSE(bookmarks.empty());
  for (const Bookmark& bookmark : bookmarks) {
    for (const QString& words : {bookmark.title, QString::number(bookmark.page)})
      EXPECT_THAT(links, testing::Contains(Link{.words = words, .page = bookmark.page}))
          << bookmark.title.toStdString();
  }
}

TEST(TheUserGuide, numbersItsPages) {
  const int count = pages();
  ASSERT_GT(count, 20);
  for (int page = 2; page <= count; ++page) {
    EXPECT_TRUE(textOfPage(page).trimmed().endsWith(QStringLiteral(" %1").arg(page))) << page;
  }
}

TEST(TheUserGuide, saysOnEachPageThatItIsNoMedicalDevice) {
  const int count = pages();
  ASSERT_GT(count, 20);
  for (int page = 1; page <= count; ++page)
    EXPECT_THAT(textOfPage(page).toStdString(),
                HasSubstr("Not a medical device. Not validated for clinical use."));
}

TEST(TheUserGuide, namesEveryItemOfTheMenus) {
  const QString text = textOf(guidePath()).simplified();
  QFile form(QStringLiteral(NASCOR_FORMS "/MyDocument.ui"));
  ASSERT_TRUE(form.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&form);
  bool isItem = false;
  QString property;
  int items = 0;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    const auto attribute = [&](const char* name) {
      return xml.attributes().value(QLatin1String(name)).toString();
    };
    if (xml.name() == QLatin1String("action")) {
      isItem = true;
    } else if (xml.name() == QLatin1String("widget")) {
      isItem = attribute("class") == QLatin1String("QMenu");
    } else if (xml.name() == QLatin1String("property")) {
      property = attribute("name");
    } else if (isItem && xml.name() == QLatin1String("string") &&
               (property == QLatin1String("text") || property == QLatin1String("title"))) {
      const QString item = xml.readElementText().remove(u'&');
      EXPECT_THAT(text.toStdString(), HasSubstr(item.toStdString()));
      ++items;
    }
  }
  EXPECT_GT(items, 30);
}

TEST(TheUserGuide, citesWhatTheReferencesCite) {
  const QString text = textOf(guidePath()).simplified();
  EXPECT_THAT(text.toStdString(), HasSubstr("Radiology 1984;152:497\u2013501"));
  EXPECT_THAT(text.toStdString(), HasSubstr("Br J Obstet Gynaecol 1975;82(9):702\u2013710"));
}

TEST(TheUserGuide, saysThatTheBandOfTheWeightIsNoPopulation) {
  EXPECT_THAT(textOf(guidePath()).simplified().toStdString(),
              HasSubstr("The band of the weight chart is not a population and shows no centiles."));
}

/// Takes the place of the user's viewer.
class Viewer final : public QTextBrowser {
 public:
  Viewer() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource"); }
  ~Viewer() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  QStringList shown;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType) override { shown << url.toLocalFile(); }
};

using TheHelpMenu = WindowTest;

TEST_F(TheHelpMenu, showsTheGuideInTheUsersViewer) {
  Viewer viewer;
  openBlank();
  action("guideAction").trigger();
  settle();
  ASSERT_EQ(viewer.shown.size(), 1);
  EXPECT_TRUE(QFile::exists(viewer.shown.front())) << viewer.shown.front().toStdString();
  EXPECT_EQ(viewer.shown.front().toStdString(), guidePath().toStdString());
}

TEST_F(TheHelpMenu, isNotTheOnlyOneThatTheGuideExplains) {
  openBlank();
  const std::string text = textOf(guidePath()).simplified().toStdString();
  int items = 0;
  for (const char* menu : {"fileMenu", "editMenu", "patientMenu", "viewMenu", "helpMenu"}) {
    for (const QAction* item : widget<QMenu>(menu).actions()) {
      if (item->isSeparator() || item->objectName().startsWith(QLatin1String("fetusAction"))) continue;
      EXPECT_THAT(text, HasSubstr(item->text().remove(u'&').toStdString()));
      ++items;
    }
  }
  EXPECT_GT(items, 35);
}

TEST(MakingTheGuide, stopsAtAPictureThatThereIsNot) {
  EXPECT_THROW(user_guide::WindowPictures(QString()).picture(QStringLiteral("dialog-none")),
               std::runtime_error);
}
TEST(MakingTheGuide, keepsTheColumnsOfWhatATerminalShows) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("chapter.md");
  writeFile(path, "    a\tb\n\n| | x |\n| --- | --- |\n");
  EXPECT_EQ(user_guide::guideText({path}).toStdString(),
            "    a       b\n\n| \u00a0 | x |\n| --- | --- |\n\n\n");
}
TEST(MakingTheGuide, stopsAtAChapterThatThereIsNot) {
  EXPECT_THROW(user_guide::guideText({QStringLiteral("/nowhere/chapter.md")}), std::runtime_error);
}
TEST(MakingTheGuide, appendsNoBookmarksToWhatIsNoPdf) {
  EXPECT_THROW(user_guide::withNavigation("%PDF-1.4 and rubbish", {{.title = QStringLiteral("A")}}, 842.0),
               std::runtime_error);
}
TEST(MakingTheGuide, keepsEverySignOfATitleInItsBookmark) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("a.pdf");
  writeFile(path, user_guide::guidePdf(
                      {.title = "T", .subtitle = {}, .warning = {}},
                      "# Cr\u00e9quat\n\ntext\n\n## One\n\ntext\n\n## Two\n\ntext\n\n# Last\n\ntext\n",
                      [](const QString&) { return QImage(); }));
  std::vector<std::string> read;
  for (const Bookmark& each : bookmarksOf(path))
    read.push_back(std::to_string(each.level) + " " + each.title.toStdString() + " " +
                   std::to_string(each.page));
  EXPECT_THAT(read, ElementsAre("1 1 Cr\u00e9quat 2", "2 1.1 One 2", "2 1.2 Two 2", "1 2 Last 3"));
}

/// A guide of a few lines.
class AGuide : public testing::Test {
 protected:
  /// The pages behind the contents.
  QStringList make(const QString& text) {
    writeFile(path(), user_guide::guidePdf({.title = "T", .subtitle = {}, .warning = {}}, text,
                                           [](const QString&) { return picture(); }));
    QStringList found = textOf(path(), {"-layout"}).split(u'\f', Qt::SkipEmptyParts);
    found.removeFirst();
    return found;
  }
  QString path() const { return folder_.filePath("a.pdf"); }
  static QImage picture() {
    QImage image(200, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
  }
  static QString lines(int count) {
    QString text;
    for (int i = 0; i < count; ++i) text += QStringLiteral("line\n\n");
    return text;
  }
  static QString table(int rows) {
    QString text = QStringLiteral("| headword | b |\n| --- | --- |\n");
    for (int i = 1; i <= rows; ++i) text += QStringLiteral("| row%1 | x |\n").arg(i);
    return text + u'\n';
  }

 private:
  QTemporaryDir folder_;
};

TEST_F(AGuide, leadsFromWordsToTheSectionThatTheyName) {
  const QStringList pages = make(
      "# One\n\n[there](#far-away) and [again](#far-away-1)\n\n# Far away\n\ntext\n\n"
      "# Other\n\n## Far away\n\ntext\n");
  EXPECT_TRUE(pages.at(0).contains("there (2) and again (3.1)")) << pages.at(0).toStdString();
  const std::vector<Link> links = linksOf(path());
  EXPECT_THAT(links, testing::Contains(Link{.words = "there (2)", .page = 3}));
  EXPECT_THAT(links, testing::Contains(Link{.words = "again (3.1)", .page = 4}));
}
TEST_F(AGuide, isNotMadeWithALinkToNowhere) {
  EXPECT_THROW(make("# One\n\n[there](#nowhere)\n"), std::runtime_error);
}
TEST_F(AGuide, repeatsTheHeadOfALongTable) {
  const QStringList pages = make("# One\n\n" + table(120));
  ASSERT_GT(pages.size(), 2);
  for (const QString& page : pages) EXPECT_EQ(page.count("headword"), 1) << page.toStdString();
}
TEST_F(AGuide, keepsATableWhole) {
  // At some of these lengths the table does not fit under the lines.
  bool isMoved = false;
  for (int count = 20; count < 45; count += 4) {
    const QStringList pages = make("# One\n\n" + lines(count) + table(8));
    for (const QString& page : pages) EXPECT_EQ(page.contains("headword"), page.contains("row8")) << count;
    isMoved = isMoved || (pages.size() > 1 && !pages.at(0).contains("headword"));
  }
  EXPECT_TRUE(isMoved);
}
TEST_F(AGuide, keepsAHeadingWithThePictureAndTheTableUnderIt) {
  bool isMoved = false;
  for (int count = 12; count < 40; count += 4) {
    const QStringList pages =
        make("# One\n\n" + lines(count) + "## Section\n\n![caption](picture:a)\n\n" + table(4));
    for (const QString& page : pages) {
      EXPECT_EQ(page.contains("Section"), page.contains("caption")) << count;
      EXPECT_EQ(page.contains("Section"), page.contains("row4")) << count;
    }
    isMoved = isMoved || (pages.size() > 1 && !pages.at(0).contains("Section"));
  }
  EXPECT_TRUE(isMoved);
}
TEST_F(AGuide, keepsAPictureUnderAHeadingWithItsExplanation) {
  bool isMoved = false;
  for (int count = 12; count < 40; ++count) {
    const QStringList pages = make("# One\n\n" + lines(count) +
                                   "## Section\n\n![caption](picture:a)\n\nexplained\n\n## Next\n\ntext\n");
    for (const QString& page : pages)
      EXPECT_EQ(page.contains("caption"), page.contains("explained")) << count;
    isMoved = isMoved || (pages.size() > 1 && !pages.at(0).contains("Section"));
  }
  EXPECT_TRUE(isMoved);
}
TEST_F(AGuide, partsAPictureFromTheNextSection) {
  bool isParted = false;
  for (int count = 12; count < 40; count += 2) {
    const QStringList pages =
        make("# One\n\n" + lines(count) + "## Section\n\n![caption](picture:a)\n\n## Next\n\ntext\n");
    isParted = isParted || (pages.at(0).contains("caption") && !pages.at(0).contains("Next"));
  }
  EXPECT_TRUE(isParted);
}
TEST_F(AGuide, keepsWhatIsAnnouncedWithItsAnnouncement) {
  bool isMoved = false;
  for (int count = 30; count < 46; count += 2) {
    const QStringList pages =
        make("# One\n\n" + lines(count) + "So it is called:\n\n    code1\n    code2\n\ntext\n");
    for (const QString& page : pages) EXPECT_EQ(page.contains("called:"), page.contains("code2")) << count;
    isMoved =
        isMoved || (pages.size() > 1 && !pages.at(0).contains("called:") && pages.at(1).contains("called:"));
  }
  EXPECT_TRUE(isMoved);
}
TEST_F(AGuide, readsALinkToAnotherChaptersFile) {
  const QTemporaryDir folder;
  writeFile(folder.filePath("a.md"), "# First\n\n[b.md](b.md), [that](b.md#part), [other](c.md)\n");
  writeFile(folder.filePath("b.md"), "# The Second\n\n## Part\n\ntext\n");
  EXPECT_THAT(user_guide::guideText({folder.filePath("a.md"), folder.filePath("b.md")}).toStdString(),
              HasSubstr("[The Second](#the-second), [that](#part), other\n"));
}

}  // namespace
}  // namespace nascor::tests
