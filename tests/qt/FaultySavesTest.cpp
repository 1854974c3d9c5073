// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Every call that a save of the window makes of the operating system fails, in each way, once and from then on, is interrupted,
// writes a part, and is the last one of the program. Runs with what tests/faults/FaultyCalls.cpp builds loaded before the C
// library.
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QProcess>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "WindowTest.h"

namespace nascor::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;

constexpr std::array kErrors{EIO, ENOSPC, EDQUOT, EACCES, EPERM, EROFS, ESTALE, ENOMEM};

struct Fault {
  std::string kind;  ///< what FaultyCalls.cpp knows it by
  std::size_t at = 0;
  int error = 0;
};

class AWindowsSave : public WindowTest {
 protected:
  struct Outcome {
    bool isSaid = false;    ///< the document counts as saved
    bool isDenied = false;  ///< a box says that it is not
    QByteArray file;
    QStringList names;  ///< in the folder, once the document is closed
  };

  AWindowsSave() {
    countAnew_ = reinterpret_cast<void (*)()>(::dlsym(RTLD_DEFAULT, "nascorCountCallsAnew"));
    model::PatientRecord patient = singleton();
    old_ = documentBytes(patient);
    answersQuestions(false);
    answer_.setInterval(0);
    QObject::connect(&answer_, &QTimer::timeout, [this] { answerAnything(); });
    answer_.start();
  }
  void SetUp() override { ASSERT_NE(countAnew_, nullptr) << "nothing is loaded that makes calls fail"; }

  QString log() const { return platform.documentsFolder.filePath(QStringLiteral("calls")); }

  /// A save of another length over the old one, in a window that is opened and closed for it.
  Outcome save(const Fault& fault) {
    beginWithTheOldFile();
    changeALength("150");
    wasDenied_ = false;
    begin(fault);
    action("saveAction").trigger();
    end();
    const bool isSaid = !document().isDocumentEdited();
    close();
    return {.isSaid = isSaid, .isDenied = wasDenied_, .file = contents(), .names = names()};
  }

  /// The same in a copy of this program, which does not outlive it.
  void saveAndDie(const Fault& fault, const std::string& said) {
    beginWithTheOldFile();
    changeALength("150");
    const pid_t child = ::fork();
    if (child == 0) {
      begin(fault);
      action("saveAction").trigger();
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << said;
    EXPECT_TRUE(contents() == old_ || contents() == saved_) << said;
    close();
    // The next program that saves leaves nothing of the one that was cut off.
    const QString next = platform.documentsFolder.filePath(QStringLiteral("next.json"));
    writeFile(next, R"({"maternalIDString":"NEXT","gravida":3,"numberOfFetuses":1})");
    EXPECT_EQ(QProcess::execute(QStringLiteral(NASCOR_CLI),
                                {QStringLiteral("make"), next, QStringLiteral("--out"), path()}),
              0)
        << said;
    EXPECT_EQ(names(), QStringList{QStringLiteral("AB-1.nascor")}) << said;
  }

  void tryIt(const Fault& fault, const std::string& call) {
    const std::string said = fault.kind + " with " + std::strerror(fault.error) + " at " + call + " (" +
                             std::to_string(fault.at) + ")";
    const Outcome outcome = save(fault);
    EXPECT_TRUE(outcome.file == old_ || outcome.file == saved_) << said;
    EXPECT_NE(outcome.isSaid, outcome.isDenied) << said;
    EXPECT_TRUE(!outcome.isSaid || outcome.file == saved_) << said;
    EXPECT_TRUE(fault.kind != "short" || outcome.isSaid) << said;
    // What cannot be removed stays for the next save.
    const bool isRemoved = fault.kind != "always" && call != "unlink";
    EXPECT_TRUE(!isRemoved || outcome.names == QStringList{QStringLiteral("AB-1.nascor")}) << said;
  }

  /// The calls of a save that goes well, in order.
  std::vector<std::string> callsOfASave() {
    ::setenv("NASCOR_FAULT_LOG", QFile::encodeName(log()).constData(), 1);
    const Outcome outcome = save({});
    ::unsetenv("NASCOR_FAULT_LOG");
    EXPECT_TRUE(outcome.isSaid);
    EXPECT_FALSE(outcome.isDenied);
    EXPECT_NE(outcome.file, old_);
    EXPECT_THAT(outcome.names, ElementsAre(QStringLiteral("AB-1.nascor")));
    saved_ = outcome.file;
    std::vector<std::string> calls;
    std::ifstream lines(QFile::encodeName(log()).toStdString());
    for (std::string line; std::getline(lines, line);) calls.push_back(line);
    return calls;
  }

  QByteArray old_;
  QByteArray saved_;  ///< what a save that goes well leaves

 private:
  QString path() const { return folder.filePath(QStringLiteral("AB-1.nascor")); }
  QByteArray contents() const {
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QStringList names() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }
  void beginWithTheOldFile() {
    for (const QString& name : names()) QFile::remove(folder.filePath(name));
    application.openFiles({file(QStringLiteral("AB-1.nascor"), old_)});
  }
  void changeALength(const char* text) { enter("hcField", text); }
  void close() {
    front().close();
    settle();
    EXPECT_TRUE(application.documents().documents().empty());
  }

  void begin(const Fault& fault) {
    ::setenv("NASCOR_FAULT_FOLDER", QFile::encodeName(folder.path()).constData(), 1);
    ::setenv("NASCOR_FAULT", fault.kind.c_str(), 1);
    ::setenv("NASCOR_FAULT_AT", std::to_string(fault.at).c_str(), 1);
    ::setenv("NASCOR_FAULT_ERROR", std::to_string(fault.error).c_str(), 1);
    countAnew_();
  }
  static void end() {
    for (const char* name : {"NASCOR_FAULT_FOLDER", "NASCOR_FAULT", "NASCOR_FAULT_AT", "NASCOR_FAULT_ERROR"})
      ::unsetenv(name);
  }

  /// Insists on saving, takes note where that fails, and closes without what could not be saved.
  void answerAnything() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    for (QAbstractButton* button : box->buttons()) {
      const QString text = button->text().remove(u'&');
      if (text != QStringLiteral("OK") && text != QStringLiteral("Save Anyway") &&
          text != QStringLiteral("Discard"))
        continue;
      wasDenied_ = wasDenied_ || text == QStringLiteral("OK");
      QTest::mouseClick(button, Qt::LeftButton);
      return;
    }
    ADD_FAILURE() << box->text().toStdString() << box->informativeText().toStdString();
    box->reject();
  }

  void (*countAnew_)() = nullptr;
  bool wasDenied_ = false;
  QTimer answer_;
};

TEST_F(AWindowsSave, losesNothingWhateverFails) {
  const std::vector<std::string> calls = callsOfASave();
  for (const char* needed : {"open", "write", "fsync", "rename", "close"})
    EXPECT_THAT(calls, Contains(needed));
  for (std::size_t at = 1; at <= calls.size() && !HasFailure(); ++at) {
    const std::string& call = calls[at - 1];
    for (const int error : kErrors) {
      tryIt({"once", at, error}, call);
      tryIt({"always", at, error}, call);
    }
    tryIt({"once", at, EINTR}, call);
    if (call == "write") tryIt({"short", at, 0}, call);
    saveAndDie({"kill-before", at, 0}, "killed before " + call);
    saveAndDie({"kill-after", at, 0}, "killed after " + call);
  }
}

}  // namespace
}  // namespace nascor::tests
