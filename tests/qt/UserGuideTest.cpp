// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// The user guide and the handbook that the build has made, read by programs that know nothing of how they are made.
#include <gmock/gmock.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QXmlStreamReader>
#include <map>
#include <set>

#include "Run.h"
#include "WindowTest.h"
#include "user-guide/WindowPictures.h"
#include "window/QtViewer.h"

namespace nascor::tests {
namespace {

using testing::HasSubstr;

// A document's name: that of its files, behind the folder of its language.
const QString kGuide = QStringLiteral("Nascor User Guide");
const QString kHandbook = QStringLiteral("Nascor Handbook");

QString languageOf(const QString& name) {
  return name.contains(u'/') ? name.section(u'/', 0, 0) : QStringLiteral("en");
}
bool isGuide(const QString& name) { return name.endsWith(kGuide); }
/// The guide in every language.
QStringList guides() {
  QStringList names;
  for (const std::string& language : languages())
    names << (language == "en" ? kGuide : QString::fromStdString(language) + u'/' + kGuide);
  return names;
}
std::vector<QString> documents() {
  const QStringList names = guides() << kHandbook;
  return {names.begin(), names.end()};
}
std::string testNameOf(const QString& name) {
  return (isGuide(name) ? "guide_" : "handbook_") + languageOf(name).toStdString();
}

QString builtFolder() { return QFile::decodeName(QByteArray::fromStdString(qt::resourceFolder())); }
QString built(const QString& title, const char* form) {
  return builtFolder() + u'/' + title + QLatin1String(form);
}

QStringList chaptersOf(const QString& title) {
  const QString language = languageOf(title);
  if (language != QLatin1String("en"))
    return {QStringLiteral(NASCOR_SOURCE "/resources/guide/guide_%1.md").arg(language)};
  if (title == kGuide) return {QStringLiteral(NASCOR_SOURCE "/resources/guide/guide.md")};
  QStringList files;
  for (const char* name :
       {"command-line", "json", "scripting", "file-format", "exchange", "oddities", "reliability", "sources"})
    files << QStringLiteral(NASCOR_SOURCE "/docs/%1.md").arg(QLatin1String(name));
  return files;
}

QString wordsOf(const QString& title) {
  return QStringLiteral(NASCOR_SOURCE "/resources/guide/words_") + languageOf(title);
}

/// Makes the document as the build does, in a folder of its own.
Answer typeset(const char* tool, const QString& title, const QString& folder) {
  const QString pictures = QFileInfo(built(title, ".html")).path() + QStringLiteral("/guide");
  EXPECT_EQ(run("cp", {"-r", pictures, folder}).status, 0);
  return run("bash",
             QStringList{QStringLiteral(NASCOR_SOURCE "/tools/user-guide/typeset.sh"), QLatin1String(tool),
                         title.section(u'/', -1), QStringLiteral(NASCOR_VERSION), folder, wordsOf(title)} +
                 chaptersOf(title));
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

/// What stands around the chapters in the document's language; empty where it has no such word.
QString word(const QString& title, const char* key) {
  const QString words = QString::fromUtf8(bytesOf(wordsOf(title)));
  const QRegularExpression line(QStringLiteral("^%1=(.*)$").arg(QLatin1String(key)),
                                QRegularExpression::MultilineOption);
  return line.match(words).captured(1);
}
/// What stands above a document.
QString headingOf(const QString& title) {
  const QString heading = word(title, "heading");
  return heading.isEmpty() ? title : heading;
}

QString textOf(const QString& pdf, const QStringList& options = {}) {
  return QString::fromStdString(run("pdftotext", options + QStringList{pdf, "-"}).output);
}
QString textOfPage(const QString& pdf, int page) {
  return textOf(pdf, {"-layout", "-f", QString::number(page), "-l", QString::number(page)});
}
int pagesOf(const QString& pdf) {
  static const QRegularExpression count(QStringLiteral("Pages:\\s+(\\d+)"));
  return count.match(QString::fromStdString(run("pdfinfo", {pdf}).output)).captured(1).toInt();
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

/// What screen readers make of a page of HTML.
struct Html {
  struct Picture {
    QString file;
    QString alternative;
  };
  QString text;
  std::vector<int> headings;  ///< their levels
  QStringList ids;
  QStringList links;  ///< where they lead
  std::vector<Picture> pictures;
  int tables = 0;
  int tableHeads = 0;
  QString language;
  QString error;  ///< empty where the page is well-formed
};

Html htmlOf(const QString& path) {
  Html html;
  QXmlStreamReader xml(bytesOf(path));
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isCharacters()) html.text += xml.text();
    if (!xml.isStartElement()) continue;
    const QString name = xml.name().toString();
    const auto attribute = [&](const char* wanted) {
      return xml.attributes().value(QLatin1String(wanted)).toString();
    };
    if (const QString id = attribute("id"); !id.isEmpty()) html.ids << id;
    if (name == QLatin1String("html")) html.language = attribute("lang");
    if (name.size() == 2 && name[0] == u'h' && name[1].isDigit())
      html.headings.push_back(name[1].digitValue());
    if (name == QLatin1String("a")) html.links << attribute("href");
    if (name == QLatin1String("img"))
      html.pictures.push_back({.file = attribute("src"), .alternative = attribute("alt")});
    html.tables += name == QLatin1String("table");
    html.tableHeads += name == QLatin1String("thead");
  }
  if (xml.hasError()) html.error = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
  return html;
}

class EachDocument : public testing::TestWithParam<QString> {
 protected:
  static QString pdf() { return built(GetParam(), ".pdf"); }
};
INSTANTIATE_TEST_SUITE_P(documents, EachDocument, testing::ValuesIn(documents()),
                         [](const auto& each) { return testNameOf(each.param); });

TEST_P(EachDocument, hasItsHeadingsAsBookmarksOfThePagesOnWhichTheyStand) {
  QStringList expected;
  for (const QString& file : chaptersOf(GetParam())) {
    static const QRegularExpression heading(QStringLiteral("^#{1,2} (.*)$"),
                                            QRegularExpression::MultilineOption);
    for (auto each = heading.globalMatch(QString::fromUtf8(bytesOf(file))); each.hasNext();)
      expected << each.next().captured(1).remove(u'`');
  }
  QStringList found;
  static const QRegularExpression number(QStringLiteral("^[0-9.]+ "));
  for (const Bookmark& bookmark : bookmarksOf(pdf())) {
    found << QString(bookmark.title).remove(number);
    EXPECT_THAT(textOfPage(pdf(), bookmark.page).simplified().toStdString(),
                HasSubstr(bookmark.title.toStdString()));
  }
  EXPECT_EQ(found.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
}

TEST_P(EachDocument, listsInItsContentsThePagesOfTheBookmarks) {
  const QString contents = textOfPage(pdf(), 1) + textOfPage(pdf(), 2);
  static const QRegularExpression number(QStringLiteral("^[0-9.]+ "));
  for (const Bookmark& bookmark : bookmarksOf(pdf())) {
    QString pattern = QRegularExpression::escape(QString(bookmark.title).remove(number));
    pattern.replace(QStringLiteral("\\ "), QStringLiteral("\\s+"));
    EXPECT_TRUE(QRegularExpression(pattern + QStringLiteral("[ .]+%1\n").arg(bookmark.page))
                    .match(contents)
                    .hasMatch())
        << bookmark.title.toStdString() << ' ' << bookmark.page;
  }
}

TEST_P(EachDocument, numbersItsPagesAndSaysOnEachThatItIsNoMedicalDevice) {
  const int count = pagesOf(pdf());
  ASSERT_GT(count, 10);
  for (int page = 1; page <= count; ++page) {
    const QString foot = textOfPage(pdf(), page).trimmed().section(u'\n', -1).simplified();
    EXPECT_EQ(foot.toStdString(),
              QStringLiteral("%1 \u2013 %2 %3")
                  .arg(headingOf(GetParam()), word(GetParam(), "warning"), QString::number(page))
                  .toStdString());
  }
}

TEST_P(EachDocument, keepsEveryWordOnItsPage) {
  constexpr double kSide = 56.6;  // 20 mm in points
  const QString boxes = textOf(pdf(), {"-bbox"});
  static const QRegularExpression word(QStringLiteral(
      "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">(.*)</word>"));
  int words = 0;
  for (auto each = word.globalMatch(boxes); each.hasNext(); ++words) {
    const auto box = each.next();
    EXPECT_GE(box.captured(1).toDouble(), kSide - 1.0) << box.captured(5).toStdString();
    EXPECT_LE(box.captured(3).toDouble(), 595.3 - kSide + 1.0) << box.captured(5).toStdString();
    EXPECT_LE(box.captured(4).toDouble(), 842.0) << box.captured(5).toStdString();
  }
  EXPECT_GT(words, 1000);
}

TEST_P(EachDocument, isTaggedForProgramsThatReadAloud) {
  const std::string facts = run("pdfinfo", {pdf()}).output;
  EXPECT_THAT(facts, HasSubstr("Title:           " + headingOf(GetParam()).toStdString() + "\n"));
  EXPECT_THAT(facts, HasSubstr("Tagged:          yes\n"));
  const std::string tags = run("pdfinfo", {"-struct", pdf()}).output;
  for (const char* tag : {" H1 ", " H2 ", " H3 ", " P ", " LI ", " TH\n", " TD\n", " Link "})
    EXPECT_THAT(tags, HasSubstr(tag));
}

TEST_P(EachDocument, hasTheSameBytesWhereverItIsMade) {
  const QTemporaryDir folder;
  const Answer answer = typeset("pandoc", GetParam(), folder.path());
  ASSERT_EQ(answer.status, 0) << answer.error;
  for (const char* form : {".html", ".pdf"})
    EXPECT_TRUE(bytesOf(folder.filePath(GetParam().section(u'/', -1) + QLatin1String(form))) ==
                bytesOf(built(GetParam(), form)))
        << form;
}

/// Both ways to HTML: that of the package, and that of a build without Pandoc.
struct Way {
  QString title;
  const char* tool;
  friend std::ostream& operator<<(std::ostream& to, const Way& way) {
    return to << way.title.toStdString() << " by " << way.tool;
  }
};
class EachPage : public testing::TestWithParam<Way> {
 protected:
  void SetUp() override {
    QString path = built(GetParam().title, ".html");
    if (GetParam().tool == std::string("lowdown")) {
      ASSERT_EQ(typeset("lowdown", GetParam().title, folder_.path()).status, 0);
      path = folder_.filePath(GetParam().title.section(u'/', -1) + QStringLiteral(".html"));
    }
    html = htmlOf(path);
    ASSERT_EQ(html.error.toStdString(), "");
  }
  Html html;

 private:
  QTemporaryDir folder_;
};
std::vector<Way> ways() {
  std::vector<Way> all;
  for (const QString& title : documents()) {
    for (const char* tool : {"pandoc", "lowdown"}) all.push_back({title, tool});
  }
  return all;
}
INSTANTIATE_TEST_SUITE_P(ways, EachPage, testing::ValuesIn(ways()), [](const auto& each) {
  return testNameOf(each.param.title) + "By" + each.param.tool;
});

TEST_P(EachPage, hasHeadingsWithoutGaps) {
  EXPECT_EQ(html.language.toStdString(), languageOf(GetParam().title).toStdString());
  ASSERT_GT(html.headings.size(), 25U);
  EXPECT_EQ(html.headings.front(), 1);
  EXPECT_EQ(std::ranges::count(html.headings, 1), 1);
  for (std::size_t i = 1; i < html.headings.size(); ++i)
    EXPECT_LE(html.headings[i], html.headings[i - 1] + 1) << i;
}

TEST_P(EachPage, hasNoLinkToNowhere) {
  const std::set<QString> places(html.ids.begin(), html.ids.end());
  EXPECT_EQ(static_cast<qsizetype>(places.size()), html.ids.size());
  EXPECT_GT(html.links.size(), 10);
  for (const QString& link : html.links)
    EXPECT_TRUE(link.startsWith(u'#') && places.contains(link.mid(1))) << link.toStdString();
}

TEST_P(EachPage, saysWhatItsPicturesShowAndHeadsItsTables) {
  EXPECT_EQ(html.pictures.empty(), GetParam().title == kHandbook);
  for (const Html::Picture& picture : html.pictures) {
    EXPECT_FALSE(QImage(QFileInfo(built(GetParam().title, ".html")).path() + u'/' + picture.file).isNull())
        << picture.file.toStdString();
    EXPECT_GT(picture.alternative.size(), 20) << picture.file.toStdString();
  }
  EXPECT_GT(html.tables, 10);
  EXPECT_EQ(html.tableHeads, html.tables);
  EXPECT_FALSE(html.text.contains(QStringLiteral("| ---"))) << "a table that is none";
}

TEST(TheUserGuide, hasAtMostTwentyPagesInEnglishAndAFewMoreElsewhere) {
  for (const QString& guide : guides()) EXPECT_LE(pagesOf(built(guide, ".pdf")), guide == kGuide ? 20 : 23);
}

TEST(TheUserGuide, showsTheWindowsInItsPdf) {
  const std::string list = run("pdfimages", {"-list", built(kGuide, ".pdf")}).output;
  const auto pictures = htmlOf(built(kGuide, ".html")).pictures.size();
  EXPECT_GT(pictures, 8U);
  EXPECT_GE(static_cast<std::size_t>(std::ranges::count(list, '\n')) - 2, pictures);
}

TEST(TheUserGuide, isInstalledWhereTheInstalledApplicationLooks) {
  const QTemporaryDir prefix;
  const Answer answer = run(NASCOR_CMAKE, {"--install", NASCOR_BUILD, "--prefix", prefix.path()});
  ASSERT_EQ(answer.status, 0) << answer.error;
  EXPECT_TRUE(QFile::exists(prefix.filePath("bin/nascor")));
  for (const char* file :
       {"Nascor User Guide.pdf", "Nascor User Guide.html", "Nascor Handbook.pdf", "Nascor Handbook.html",
        "guide/guide.css", "guide/pictures.css", "guide/window.png", "fr/Nascor User Guide.pdf",
        "fr/guide/window.png", "texts/nascor_fr.qm"})
    EXPECT_TRUE(QFile::exists(prefix.filePath("share/nascor/") + QLatin1String(file))) << file;
}

TEST(TheHandbook, citesWhatTheReferencesCite) {
  const QString text = htmlOf(built(kHandbook, ".html")).text.simplified();
  EXPECT_THAT(text.toStdString(), HasSubstr("Radiology 1984;152:497\u2013501"));
  EXPECT_THAT(text.toStdString(), HasSubstr("Br J Obstet Gynaecol 1975;82(9):702\u2013710"));
}

TEST(TheUserGuide, saysThatTheBandOfTheWeightIsNoPopulation) {
  EXPECT_THAT(textOf(built(kGuide, ".pdf")).simplified().toStdString(),
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

TEST(TheViewer, showsTheHtmlWhereThereIsNoPdf) {
  const QTemporaryDir folder;
  Viewer viewer;
  QStringList told;
  qt::QtViewer shower;
  const auto tells = shower.onFailure.subscribe([&](const QString& sentence) { told << sentence; });
  const QString pdf = folder.filePath("a b.c.pdf");
  const std::string url = QUrl::fromLocalFile(pdf).toString(QUrl::FullyEncoded).toStdString();
  EXPECT_FALSE(shower.open(url));
  EXPECT_EQ(told, QStringList{pdf + " is not installed."});
  writeFile(folder.filePath("a b.c.html"), "<p>");
  EXPECT_TRUE(shower.open(url));
  writeFile(pdf, "%PDF");
  EXPECT_TRUE(shower.open(url));
  EXPECT_EQ(viewer.shown, (QStringList{folder.filePath("a b.c.html"), pdf}));
}

class EachGuide : Speaking, public WindowTest, public testing::WithParamInterface<QString> {
 protected:
  EachGuide()
      : Speaking(languageOf(GetParam()).toStdString()),
        WindowTest(localeOf(languageOf(GetParam()).toStdString())) {}
};
INSTANTIATE_TEST_SUITE_P(guides, EachGuide, testing::ValuesIn(guides()),
                         [](const auto& each) { return testNameOf(each.param); });

TEST_P(EachGuide, isTheOneThatHelpShows) {
  Viewer viewer;
  openBlank();
  action("guideAction").trigger();
  settle();
  EXPECT_EQ(viewer.shown, QStringList{built(GetParam(), ".pdf")});
}

TEST_P(EachGuide, explainsEveryMenuAndItem) {
  openBlank();
  const std::string text = htmlOf(built(GetParam(), ".html")).text.simplified().toStdString();
  int items = 0;
  for (const QAction* menu : widget<QMenuBar>("menuBar").actions()) {
    EXPECT_THAT(text, HasSubstr(menu->text().remove(u'&').toStdString()));
    for (const QAction* item : menu->menu()->actions()) {
      if (item->isSeparator() || item->objectName().startsWith(QLatin1String("fetusAction"))) continue;
      EXPECT_THAT(text, HasSubstr(item->text().remove(u'&').simplified().toStdString()));
      if (GetParam() != kGuide) continue;  // keys have other names there
      const QString keys = item->shortcut().toString(QKeySequence::PortableText);
      const bool isPage = keys.startsWith(QLatin1String("Alt+")) && keys.size() == 5;
      EXPECT_THAT(text, HasSubstr(isPage ? "Alt+1 to Alt+7" : keys.toStdString()));
      ++items;
    }
  }
  EXPECT_EQ(items > 50, GetParam() == kGuide);
}

TEST(TheWindowPictures, stopAtAPictureThatThereIsNot) {
  EXPECT_THROW(user_guide::WindowPictures(QString(), QLocale()).picture(QStringLiteral("dialog-none")),
               std::runtime_error);
}

}  // namespace
}  // namespace nascor::tests
