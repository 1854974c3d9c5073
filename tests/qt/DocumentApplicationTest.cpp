// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/DocumentApplication.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QUrl>
#include <variant>

#include "WindowTest.h"
#include "model/PatientFile.h"
#include "posix/RecoveryFolder.h"

namespace nascor::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class TheApplicationOfDocuments : public WindowTest {
 protected:
  static std::vector<std::string> titles() {
    std::vector<std::string> result;
    for (const QWidget* shown : QApplication::topLevelWidgets()) {
      if (dynamic_cast<const qt::DocumentWindow*>(shown) && shown->isVisible())
        result.push_back(shown->windowTitle().toStdString());
    }
    std::ranges::sort(result);
    return result;
  }
  /// Names the file in the file dialog that opens next.
  void choose(const QString& path) {
    QTimer::singleShot(0, [path] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
      QTest::keyClick(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
    });
  }
  void drop(QWidget& target, const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    const QPoint at = target.mapTo(&front(), target.rect().center());
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&front(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&front(), &event);
    settle();
  }
};

TEST_F(TheApplicationOfDocuments, givesEachDocumentAWindow) {
  application.openFiles({file(QStringLiteral("b.nascor"), documentBytes(twins())),
                         file(QStringLiteral("a.nascor"), documentBytes(singleton()))});
  EXPECT_THAT(titles(), ElementsAre("a.nascor[*]", "b.nascor[*]"));
}

TEST_F(TheApplicationOfDocuments, bringsAFileThatIsOpenAlreadyToTheFront) {
  open(singleton(), QStringLiteral("a.nascor"));
  open(twins(), QStringLiteral("b.nascor"));
  application.openFiles({folder.filePath(QStringLiteral("./a.nascor"))});
  EXPECT_EQ(front().windowTitle(), QStringLiteral("a.nascor[*]"));
  EXPECT_EQ(titles().size(), 2U);
}

TEST_F(TheApplicationOfDocuments, tellsOnceOfAllThatCannotBeOpenedAndTakesNoMarkup) {
  answers = {"OK"};
  application.openFiles({file(QStringLiteral("cut.nascor"), cutDocument()),
                         file(QStringLiteral("good.nascor"), documentBytes(singleton())),
                         folder.filePath(QStringLiteral("<b>gone"))});
  EXPECT_THAT(titles(), ElementsAre("good.nascor[*]"));
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_THAT(asked[0].information, HasSubstr("cut.nascor is not a Nascor document."));
  EXPECT_THAT(asked[0].information, Not(HasSubstr("byte")));
  EXPECT_THAT(asked[0].details, HasSubstr("cut.nascor: at byte "));
  EXPECT_THAT(asked[0].information, HasSubstr("<b>gone: No such file or directory"));
}

TEST_F(TheApplicationOfDocuments, tellsOfAFileNameThatIsNotWrittenInUtf8) {
  const QByteArray name = folder.path().toUtf8() + "/Andr\xe9.nascor";
  std::FILE* latin = std::fopen(name.constData(), "wb");
  ASSERT_NE(latin, nullptr);
  const QByteArray bytes = documentBytes(singleton());
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), latin);
  std::fclose(latin);
  answers = {"OK"};
  application.openFiles({QFile::decodeName(name)});
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_THAT(asked[0].information, HasSubstr("The file's name is not UTF-8."));
  EXPECT_THAT(titles(), IsEmpty());
  std::remove(name.constData());

  open(singleton(), QStringLiteral("Andr\u00e9 \ufffd.nascor"));
  EXPECT_EQ(titles().size(), 1U) << "the sign itself may stand in a name";
}

TEST_F(TheApplicationOfDocuments, opensAFileWithoutAPatientAsANewDocument) {
  const QByteArray bytes = documentBytes(singleton());
  const QByteArray nilRoot = bytes.left(bytes.indexOf("\x01@") + 2) + '\x85';
  application.openFiles({file(QStringLiteral("nil.nascor"), nilRoot)});
  EXPECT_THAT(titles(), ElementsAre("Untitled[*]"));
}

TEST_F(TheApplicationOfDocuments, makesANewDocumentByItsKey) {
  open(singleton());
  press(Qt::Key_N, Qt::ControlModifier);
  EXPECT_THAT(titles(), ElementsAre("AB-123.nascor[*]", "Untitled[*]"));
  EXPECT_EQ(focus(), "referenceIDField");
}

TEST_F(TheApplicationOfDocuments, asksWhatToOpen) {
  openBlank();
  choose(file(QStringLiteral("a.nascor"), documentBytes(singleton())));
  press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(front().windowTitle(), QStringLiteral("a.nascor[*]"));
}

TEST_F(TheApplicationOfDocuments, asksWhereToSaveWhatIsNew) {
  openBlank();
  enter("referenceIDField", "n/1");
  type("bpdField", "44.5");  // still in edit: saving commits it
  const QString path = folder.filePath(QStringLiteral("new"));
  choose(path);
  press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(front().windowTitle(), QStringLiteral("new.nascor[*]"));
  EXPECT_FALSE(front().isWindowModified());
  QFile saved(path + QStringLiteral(".nascor"));
  ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
  const QByteArray bytes = saved.readAll();
  const auto read = model::unarchivedPatient(
      std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
  EXPECT_EQ(read.patient->maternalIDString(), "N/1");
  EXPECT_EQ(read.patient->ncRecordsArray().at(0)->measurements().at(0).bpd(), 44.5);
}

TEST_F(TheApplicationOfDocuments, savesUnderAnotherName) {
  open(singleton());
  choose(folder.filePath(QStringLiteral("other.nascor")));
  press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(front().windowTitle(), QStringLiteral("other.nascor[*]"));
  EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("AB-123.nascor"))));
}

TEST_F(TheApplicationOfDocuments, tellsWhyADocumentWasNotSaved) {
  open(singleton());
  enter("bpdField", "81");
  ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("AB-123.nascor"))));
  ASSERT_TRUE(QDir().mkdir(folder.filePath(QStringLiteral("AB-123.nascor"))));
  answers = {"Save Anyway", "OK"};
  press(Qt::Key_S, Qt::ControlModifier);
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[1].message, "The document was not saved.");
  EXPECT_TRUE(front().isWindowModified());
}

TEST_F(TheApplicationOfDocuments, opensWhatIsDroppedOnAWindowAndNotAsText) {
  openBlank();
  const QString path = file(QStringLiteral("a.nascor"), documentBytes(singleton()));
  drop(widget<QWidget>("tabView"), {QUrl::fromLocalFile(path)});
  EXPECT_THAT(titles(), ElementsAre("a.nascor[*]"));

  // On a field or the note too, where a text would be inserted.
  for (const char* name : {"referenceIDField", "notesField"}) {
    SCOPED_TRACE(name);
    const QString next = file(QLatin1String(name) + QStringLiteral(".nascor"), documentBytes(twins()));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(next)});
    data.setText(next);
    QWidget* target = &widget<QWidget>(name);
    if (auto* note = qobject_cast<QPlainTextEdit*>(target)) target = note->viewport();
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
    settle();
    EXPECT_EQ(front().windowTitle(), QLatin1String(name) + QStringLiteral(".nascor[*]"));
  }
  for (const char* title : {"a.nascor[*]", "referenceIDField.nascor[*]"}) {
    for (const QWidget* shown : QApplication::topLevelWidgets()) {
      if (shown->windowTitle() == QLatin1String(title)) {
        EXPECT_FALSE(shown->isWindowModified()) << title;
      }
    }
  }
}

TEST_F(TheApplicationOfDocuments, asksByThePatientsNameWhetherAnUntitledDocumentIsSaved) {
  openBlank();
  enter("referenceIDField", "xy-9");
  enter("gravidaField", "1");
  answers = {"Discard"};
  front().close();
  settle();
  ASSERT_EQ(asked.size(), 1);
  EXPECT_EQ(asked[0].information, "XY-9 (G1)");
}

TEST_F(TheApplicationOfDocuments, saysThatItOpensNoLinks) {
  openBlank();
  const QString path = file(QStringLiteral("a.nascor"), documentBytes(singleton()));
  answers = {"OK"};
  drop(widget<QWidget>("tabView"), {QUrl(QStringLiteral("http://example.org/b.nascor")),
                                    QUrl(QStringLiteral("file://other.example/c.nascor")),
                                    QUrl(QStringLiteral("file://localhost") + path)});
  ASSERT_TRUE(QTest::qWaitFor([&] { return asked.size() == 1; }));
  EXPECT_EQ(asked[0].message, "Nascor opens files of this machine only.");
  EXPECT_EQ(
      asked[0].information,
      "http://example.org/b.nascor\nfile://other.example/c.nascor\n\nPlease save what the link leads to as a "
      "file here, and open that.");
  EXPECT_THAT(titles(), ElementsAre("a.nascor[*]"));
}

TEST_F(TheApplicationOfDocuments, remembersWhatWasOpenedAndForgetsItWhenAsked) {
  open(singleton(), QStringLiteral("a & b.nascor"));
  open(singleton(), QStringLiteral("b%20 c.nascor"));
  const QString first = folder.filePath(QStringLiteral("a & b.nascor"));
  const QString second = folder.filePath(QStringLiteral("b%20 c.nascor"));
  EXPECT_EQ(application.recentFiles().paths(), (QStringList{second, first}));
  QMenu& menu = widget<QMenu>("recentMenu");
  emit menu.aboutToShow();
  EXPECT_EQ(menu.actions()[1]->text(), QStringLiteral("&2  a && b.nascor"));
  menu.actions()[1]->trigger();
  EXPECT_EQ(front().windowTitle(), QStringLiteral("a & b.nascor[*]"));
  emit widget<QMenu>("recentMenu").aboutToShow();
  action("clearRecentAction").trigger();
  EXPECT_THAT(application.recentFiles().paths(), IsEmpty());
}

TEST_F(TheApplicationOfDocuments, shortensLongNamesOfRecentFiles) {
  const QString name = QString(150, u'W') + QStringLiteral(".nascor");
  open(singleton(), name);
  QMenu& menu = widget<QMenu>("recentMenu");
  emit menu.aboutToShow();
  EXPECT_LT(menu.sizeHint().width(), menu.fontMetrics().horizontalAdvance(name) / 2);
  EXPECT_TRUE(menu.actions()[0]->text().endsWith(QStringLiteral("W.nascor")));
  menu.actions()[0]->trigger();
  EXPECT_THAT(titles(), ElementsAre(name.toStdString() + "[*]"));
}

TEST_F(TheApplicationOfDocuments, keepsNoRecentFilesWhenTheUserDoesNotWantThem) {
  open(singleton(), QStringLiteral("a.nascor"));
  emit widget<QMenu>("recentMenu").aboutToShow();
  EXPECT_TRUE(action("rememberRecentAction").isChecked());
  action("rememberRecentAction").trigger();
  EXPECT_THAT(application.recentFiles().paths(), IsEmpty());
  open(singleton(), QStringLiteral("b.nascor"));
  EXPECT_THAT(application.recentFiles().paths(), IsEmpty());
  EXPECT_EQ(platform.defaults.written().at("Recent Files"), "") << "no name stays in the preferences";

  emit widget<QMenu>("recentMenu").aboutToShow();
  EXPECT_FALSE(action("rememberRecentAction").isChecked());
  EXPECT_FALSE(action("clearRecentAction").isEnabled());
  action("rememberRecentAction").trigger();
  open(singleton(), QStringLiteral("c.nascor"));
  EXPECT_EQ(application.recentFiles().paths(), QStringList{folder.filePath(QStringLiteral("c.nascor"))});
}

TEST_F(TheApplicationOfDocuments, forgetsARecentFileThatIsGone) {
  open(singleton());
  const QString gone = file(QStringLiteral("gone.nascor"), documentBytes(twins()));
  open(twins(), QStringLiteral("gone.nascor")).close();
  settle();
  ASSERT_EQ(application.recentFiles().paths().size(), 2);
  ASSERT_TRUE(QFile::remove(gone));
  answers = {"OK"};
  application.openFiles({gone});
  EXPECT_EQ(application.recentFiles().paths(), QStringList{folder.filePath(QStringLiteral("AB-123.nascor"))});
}

TEST_F(TheApplicationOfDocuments, keepsTenRecentFilesTheLatestFirst) {
  for (int i = 0; i < 12; ++i) application.recentFiles().note(QStringLiteral("/d/%1.nascor").arg(i));
  application.recentFiles().note(QStringLiteral("/d/5.nascor"));
  const QStringList paths = application.recentFiles().paths();
  ASSERT_EQ(paths.size(), 10);
  EXPECT_EQ(paths.first(), QStringLiteral("/d/5.nascor"));
  EXPECT_EQ(paths.count(QStringLiteral("/d/5.nascor")), 1);
}

TEST_F(TheApplicationOfDocuments, closesAnUneditedDocumentWithoutAQuestion) {
  open(singleton());
  int ends = 0;
  const auto closes = application.onLastDocumentClosed.subscribe([&] { ++ends; });
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_THAT(titles(), IsEmpty());
  EXPECT_EQ(ends, 1);
}

TEST_F(TheApplicationOfDocuments, savesBeforeItClosesWhenTheUserSaysSo) {
  open(singleton());
  type("bpdField", "77");
  answers = {"Save"};
  front().close();
  settle();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].message, "Do you want to save the changes of this document?");
  EXPECT_EQ(asked[0].information, "AB-123.nascor");
  EXPECT_THAT(asked[0].buttons, testing::UnorderedElementsAre("Save", "Discard", "Cancel"));
  application.openFiles({folder.filePath(QStringLiteral("AB-123.nascor"))});
  EXPECT_EQ(field("bpdField"), "77.0");
}

TEST_F(TheApplicationOfDocuments, asksForEachEditedDocumentWhenItQuitsAndClosesNoneAfterCancel) {
  open(singleton(), QStringLiteral("a.nascor"));
  enter("bpdField", "70");
  open(singleton(), QStringLiteral("b.nascor"));
  open(singleton(), QStringLiteral("c.nascor"));
  enter("bpdField", "70");
  answers = {"Discard", "Cancel"};
  press(Qt::Key_Q, Qt::ControlModifier);
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].information, "c.nascor");
  EXPECT_EQ(asked[1].information, "a.nascor");
  EXPECT_THAT(titles(), ElementsAre("a.nascor[*]", "b.nascor[*]", "c.nascor[*]"));
  answers = {"Save", "Discard"};
  EXPECT_TRUE(application.quit());
  EXPECT_THAT(titles(), IsEmpty());
}

// Without it neither the open panel nor the look-up of a patient would find the file again.
TEST_F(TheApplicationOfDocuments, savesWithTheDocumentsExtensionWhateverDotsTheNameHas) {
  // Each file dialog in turn is given the next name; one that opens after that is left.
  QStringList names;
  int waited = 0;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    if (names.isEmpty()) {
      dialog->reject();
      return;
    }
    // The dialog reads its folder aside, and then writes the name that it proposes.
    constexpr int kPatience = 15;
    if (++waited < kPatience) return;
    waited = 0;
    user.stop();
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(folder.filePath(names.takeFirst()));
    QTest::keyClick(name, Qt::Key_Return);
    user.start();
  });
  user.start(20);
  const auto saveAs = [&](const char* name) {
    names << QLatin1String(name);
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  };
  open(singleton());
  saveAs("new name.v2");
  EXPECT_THAT(titles(), ElementsAre("new name.v2.nascor[*]"));
  saveAs("plain");
  EXPECT_THAT(titles(), ElementsAre("plain.nascor[*]"));
  saveAs("Whole.NASCOR");
  EXPECT_THAT(titles(), ElementsAre("Whole.NASCOR[*]"));

  // What is there already is replaced when the user says so, and only then.
  file(QStringLiteral("taken.v2.nascor"), "somebody's");
  answers = {"No"};
  saveAs("taken.v2");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_THAT(asked[0].message, testing::StartsWith("taken.v2.nascor already exists."));
  EXPECT_THAT(titles(), ElementsAre("Whole.NASCOR[*]"));
}

TEST_F(TheApplicationOfDocuments, doesNotQuitWhileAQuestionIsOpenOnAWindow) {
  open(twins());
  answersQuestions(false);
  click("deleteFetusButton");
  EXPECT_FALSE(application.quit());
  action("addFetusAction").trigger();
  EXPECT_EQ(document().patientRecord()->numberOfFetuses(), 2);
  EXPECT_EQ(titles().size(), 1U);
  answers = {"Cancel"};
  answersQuestions(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked.size() == 1; }));
}

TEST_F(TheApplicationOfDocuments, opensWhatComesWhileAQuestionIsOpenAfterIt) {
  open(singleton());
  enter("bpdField", "70");
  const QString other = file(QStringLiteral("b.nascor"), documentBytes(twins()));
  std::size_t windowsAtTheQuestion = 0;
  answers = {"Cancel"};
  QTimer::singleShot(0, [&] {
    application.openFiles({other});
    windowsAtTheQuestion = titles().size();
  });
  front().close();
  EXPECT_EQ(windowsAtTheQuestion, 1U);
  EXPECT_THAT(titles(), ElementsAre("AB-123.nascor[*]", "b.nascor[*]"));
}

TEST_F(TheApplicationOfDocuments, letsAnUntouchedNewDocumentMakeWayForAFile) {
  qt::DocumentWindow& blank = openBlank();
  const QSize size(blank.minimumSizeHint().width(), 710);
  blank.resize(size);
  settle();
  const QPoint place = front().pos();
  const QString good = file(QStringLiteral("a.nascor"), documentBytes(singleton()));
  answers = {"OK"};
  application.openFiles({file(QStringLiteral("cut.nascor"), cutDocument())});
  EXPECT_THAT(titles(), ElementsAre("Untitled[*]")) << "nothing came into its place";
  application.openFiles({good});
  EXPECT_THAT(titles(), ElementsAre("a.nascor[*]"));
  EXPECT_EQ(front().size(), size);
  EXPECT_EQ(front().pos(), place);
}

TEST_F(TheApplicationOfDocuments, letsAnUntouchedNewDocumentMakeWayUnderTheReferencesToo) {
  openBlank();
  action("referencesAction").trigger();
  settle();
  open(singleton());
  EXPECT_EQ(application.documents().documents().size(), 1U);
}

TEST_F(TheApplicationOfDocuments, asksBeforeAColleaguesFileIsSavedOverAndReturnCancels) {
  open(singleton());
  enter("bpdField", "46");
  writeFile(folder.filePath(QStringLiteral("AB-123.nascor")), documentBytes(twins()));
  answersQuestions(false);
  QTimer returnKey;
  returnKey.setInterval(1);
  QObject::connect(&returnKey, &QTimer::timeout, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); box && box->isVisible())
      QTest::keyClick(box, Qt::Key_Return);
  });
  returnKey.start();
  action("saveAction").trigger();
  returnKey.stop();
  EXPECT_TRUE(document().isDocumentEdited());
  answersQuestions(true);
  answers = {"Save Anyway"};
  action("saveAction").trigger();
  EXPECT_FALSE(document().isDocumentEdited());
  EXPECT_EQ(
      asked.back().message,
      "Another program has changed the file of this document. Do you want to replace what it holds now?");
}

TEST_F(TheApplicationOfDocuments, keepsANewDocumentInWhichSomethingWasDone) {
  const QString good = file(QStringLiteral("a.nascor"), documentBytes(singleton()));
  openBlank();
  enter("bpdField", "44");
  application.openFiles({good});
  EXPECT_THAT(titles(), ElementsAre("Untitled[*]", "a.nascor[*]"));
  front().close();
  settle();

  press(Qt::Key_N, Qt::ControlModifier);
  action("eddFromLMPAction").trigger();
  application.openFiles({good});
  EXPECT_THAT(titles(), ElementsAre("Untitled[*]", "Untitled[*]", "a.nascor[*]")) << "its dialog is open";
}

TEST_F(TheApplicationOfDocuments, closesWithoutAQuestionAfterTypingWasTakenBack) {
  open(singleton());
  type("bpdField", "7");
  EXPECT_TRUE(front().isWindowModified());
  press(Qt::Key_Escape);
  EXPECT_FALSE(front().isWindowModified());
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_THAT(titles(), IsEmpty());
}

/// Ends the session, and what came of it.
class TheEndOfTheSession : public TheApplicationOfDocuments {
 protected:
  void end() {
    application.endSession(
        [this] {
          ++questionsForLeave;
          return mayAsk;
        },
        [this] { ++cancels; });
  }
  QByteArray bytesOf(const char* name) {
    QFile kept(folder.filePath(QLatin1String(name)));
    return kept.open(QIODevice::ReadOnly) ? kept.readAll() : QByteArray();
  }
  bool mayAsk = true;
  int questionsForLeave = 0;
  int cancels = 0;
};

TEST_F(TheEndOfTheSession, isNoneOfTheUsersBusinessWhenNothingWasEdited) {
  open(singleton(), QStringLiteral("a.nascor"));
  openBlank();
  end();
  EXPECT_EQ(questionsForLeave, 0);
  EXPECT_EQ(cancels, 0);
  EXPECT_EQ(titles().size(), 2U);
}

TEST_F(TheEndOfTheSession, savesTheEditedDocumentsOneByOneAndClosesNone) {
  open(singleton(), QStringLiteral("a.nascor"));
  enter("bpdField", "70");
  open(singleton(), QStringLiteral("b.nascor"));
  open(singleton(), QStringLiteral("c.nascor"));
  type("hcField", "222");  // still in edit
  const QByteArray a = bytesOf("a.nascor");
  const QByteArray b = bytesOf("b.nascor");
  const QByteArray c = bytesOf("c.nascor");
  answers = {"Save", "Discard"};
  end();
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].information, "c.nascor");
  EXPECT_EQ(asked[1].information, "a.nascor");
  EXPECT_EQ(cancels, 0);
  EXPECT_EQ(titles().size(), 3U) << "another program may yet stop the end";
  EXPECT_EQ(bytesOf("a.nascor"), a);
  EXPECT_EQ(bytesOf("b.nascor"), b);
  EXPECT_NE(bytesOf("c.nascor"), c);

  int ends = 0;
  const auto closes = application.onLastDocumentClosed.subscribe([&] { ++ends; });
  application.leaveSession();
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(asked.size(), 2U) << "nothing is asked twice";
}

TEST_F(TheEndOfTheSession, isStoppedByTheUserAtAnyDocument) {
  open(singleton(), QStringLiteral("a.nascor"));
  enter("bpdField", "70");
  open(singleton(), QStringLiteral("b.nascor"));
  enter("bpdField", "71");
  answers = {"Save", "Cancel"};
  end();
  EXPECT_EQ(cancels, 1);
  EXPECT_EQ(titles().size(), 2U);
  // Were the program to go all the same, it asks again.
  answers = {"Cancel"};
  application.leaveSession();
  EXPECT_EQ(asked.size(), 3U);
}

TEST_F(TheEndOfTheSession, isStoppedWhileAQuestionIsOpen) {
  open(twins());
  enter("bpdField", "70");
  answersQuestions(false);
  click("deleteFetusButton");
  end();
  EXPECT_EQ(cancels, 1);
  answers = {"Cancel"};
  answersQuestions(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked.size() == 1; }));
}

TEST_F(TheEndOfTheSession, asksNobodyWhenItMayNot) {
  open(singleton());
  enter("bpdField", "70");
  const QByteArray before = bytesOf("AB-123.nascor");
  mayAsk = false;
  end();
  EXPECT_THAT(asked, IsEmpty());
  EXPECT_EQ(cancels, 0);
  EXPECT_EQ(bytesOf("AB-123.nascor"), before);
  EXPECT_TRUE(front().isWindowModified());
}

TEST_F(TheApplicationOfDocuments, keepsWhatIsTypedWithinTwoSecondsUntilItIsSaved) {
  posix::RecoveryFolder store(folder.filePath(QStringLiteral("recovery")).toStdString());
  qt::DocumentApplication keeping(platform.services(), qt::resourceFolder(), &store);
  keeping.openFiles({file(QStringLiteral("kept.nascor"), documentBytes(singleton()))});
  framework::ZuDocument& opened = *keeping.documents().currentDocument();
  qt::DocumentWindow& window = *keeping.windowOf(opened);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  constexpr int kMost = 2000;  // milliseconds
  const auto isKept = [&](double bpd) {
    const auto files = store.files();
    if (files.size() != 1) return false;
    const auto contents = platform.files.contents(files.front().path);
    const auto* bytes = std::get_if<std::vector<std::byte>>(&contents);
    return bytes &&
           model::unarchivedPatient(*bytes).patient->ncRecordsArray().back()->measurements().front().bpd() ==
               bpd;
  };
  auto* bpd = window.findChild<QLineEdit*>(QStringLiteral("bpdField"));
  bpd->setFocus();
  bpd->selectAll();
  QTest::keyClicks(bpd, QStringLiteral("83"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return isKept(83); }, kMost));
  QTest::keyClicks(bpd, QStringLiteral(".5"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return isKept(83.5); }, kMost)) << "before the field is left";
  EXPECT_TRUE(keeping.documents().saveDocument(opened));
  EXPECT_TRUE(QTest::qWaitFor([&] { return store.files().empty(); }, kMost));
}

TEST_F(TheApplicationOfDocuments, takesItsWindowsAlong) {
  {
    qt::DocumentApplication shortLived(platform.services());
    shortLived.newDocument();
    EXPECT_EQ(titles().size(), 1U);
  }
  EXPECT_THAT(titles(), IsEmpty());
}

}  // namespace
}  // namespace nascor::tests
