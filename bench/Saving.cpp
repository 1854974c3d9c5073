// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// What recovery and the lock beside a document cost: saving, and typing a character, with both and without, by turns in one run.
// Every change is kept for recovery within two seconds, so that the mean has its part of it, which the median has not.
//
// usage: bench-saving DOCUMENT [TIMES]

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QLocale>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <numeric>
#include <vector>

#include "posix/RecoveryFolder.h"
#include "program/Application.h"
#include "program/DocumentApplication.h"
#include "program/Platform.h"

namespace {

using namespace nascor;

/// The same files, on which no lock is made.
class WithoutLocks final : public foundation::FileStore {
 public:
  std::variant<std::vector<std::byte>, foundation::FileError> contents(
      const std::string& path) const override {
    return files_.contents(path);
  }
  std::optional<foundation::FileError> replaceContents(const std::string& path,
                                                       std::span<const std::byte> bytes) override {
    return files_.replaceContents(path, bytes);
  }
  std::optional<foundation::FileError> replaceExpected(const std::string& path,
                                                       std::span<const std::byte> bytes,
                                                       const foundation::FileContents& expected) override {
    return files_.replaceExpected(path, bytes, expected);
  }
  foundation::FileClaim claim(const std::string& /*path*/, Claim /*wish*/) override { return {}; }
  std::vector<foundation::FileEntry> entries(const std::string& folder) const override {
    return files_.entries(folder);
  }
  bool exists(const std::string& path) const override { return files_.exists(path); }
  std::string documentsFolder() const override { return files_.documentsFolder(); }
  std::string resolvedPath(const std::string& path) const override { return files_.resolvedPath(path); }

 private:
  posix::PosixFileStore files_;
};

foundation::Services withFiles(const foundation::Services& services, foundation::FileStore& files) {
  return {.clock = services.clock,
          .calendar = services.calendar,
          .localizer = services.localizer,
          .defaults = services.defaults,
          .files = files,
          .log = services.log,
          .notifications = services.notifications};
}

double microseconds(const std::function<void()>& what) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  what();
  // What is to be painted is painted here.
  QCoreApplication::processEvents();
  return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

double median(std::vector<double> times) {
  std::ranges::sort(times);
  return times.at(times.size() / 2);
}

double mean(const std::vector<double>& times) {
  return std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
}

/// A window on a copy of a document, and how long its user waits.
class Work {
 public:
  Work(qt::DocumentApplication& documents, const QString& copy) {
    documents.openFiles({copy});
    framework::ZuDocument* document = documents.documents().currentDocument();
    if (!document || !document->filePath()) throw std::runtime_error("the document cannot be opened");
    document_ = document;
    window_ = documents.windowOf(*document);
    note_ = window_->findChild<QWidget*>(QStringLiteral("notesField"));
    save_ = window_->findChild<QAction*>(QStringLiteral("saveAction"));
    if (!note_ || !save_) throw std::runtime_error("the window has no note, or cannot save");
    QCoreApplication::processEvents();
  }

  void go() {
    window_->activateWindow();
    note_->setFocus();
    QCoreApplication::processEvents();
    for (int i = 0; i < kCharacters; ++i) typing_.push_back(microseconds([this] { type(); }));
    saving_.push_back(microseconds([this] { save_->trigger(); }));
    if (document_->isDocumentEdited()) throw std::runtime_error("it was not saved");
  }

  const std::vector<double>& typing() const { return typing_; }
  const std::vector<double>& saving() const { return saving_; }

 private:
  static constexpr int kCharacters = 10;

  void type() {
    // The note stays short.
    const bool isLast = count_++ % kCharacters == kCharacters - 1;
    const int key = isLast ? Qt::Key_A : Qt::Key_X;
    const auto modifiers = isLast ? Qt::ControlModifier : Qt::NoModifier;
    QKeyEvent press(QEvent::KeyPress, key, modifiers, isLast ? QString() : QStringLiteral("x"));
    QCoreApplication::sendEvent(note_, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers);
    QCoreApplication::sendEvent(note_, &release);
  }

  framework::ZuDocument* document_ = nullptr;
  qt::DocumentWindow* window_ = nullptr;
  QWidget* note_ = nullptr;
  QAction* save_ = nullptr;
  int count_ = 0;
  std::vector<double> typing_;
  std::vector<double> saving_;
};

void print(const char* what, const std::vector<double>& with, const std::vector<double>& without) {
  std::printf("%s\t%.0f us without\t%.0f us with\tratio of medians %.3f\tof means %.3f\n", what,
              median(without), median(with), median(with) / median(without), mean(with) / mean(without));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: bench-saving DOCUMENT [TIMES]\n", stderr);
    return 2;
  }
  const int times = argc > 2 ? std::atoi(argv[2]) : 201;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The folder of the run: saving is measured on the file system on which one works.
  const QTemporaryDir home(QStringLiteral("bench-saving-XXXXXX"));
  qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
  qputenv("XDG_STATE_HOME", QFile::encodeName(home.path()));
  qt::Application application(argc, argv);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  const auto copied = [&](const char* name) {
    const QString copy = home.filePath(QString::fromLatin1(name));
    QFile::copy(QFile::decodeName(argv[1]), copy);
    return copy;
  };
  try {
    qt::Platform platform{QLocale()};
    WithoutLocks files;
    posix::RecoveryFolder recovery(home.filePath(QStringLiteral("recovery")).toStdString());
    qt::DocumentApplication plainDocuments(withFiles(platform.services(), files));
    qt::DocumentApplication documents(platform.services(), qt::resourceFolder(), &recovery);
    Work without(plainDocuments, copied("plain.nascor"));
    Work with(documents, copied("kept.nascor"));
    for (int i = 0; i < times; ++i) {
      (i % 2 == 0 ? with : without).go();
      (i % 2 == 0 ? without : with).go();
    }
    print("typing a character", with.typing(), without.typing());
    print("saving", with.saving(), without.saving());
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
