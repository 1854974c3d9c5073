// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "base/QtUserDefaults.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/stat.h>

#include "Sample.h"
#include "program/DocumentApplication.h"

namespace nascor::tests {
namespace {

using foundation::defaults_key::showAll;
using foundation::defaults_key::standard;
using qt::QtUserDefaults;

/// A configuration folder of each test's own.
class ThePreferences : public testing::Test {
 protected:
  ThePreferences() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path()); }
  ~ThePreferences() override {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, qEnvironmentVariable("XDG_CONFIG_HOME"));
  }
  QString path() const { return home.filePath(QStringLiteral("Nascor/nascor.ini")); }
  QByteArray contents() const {
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir home;
};

TEST_F(ThePreferences, knowNothingAtFirst) { EXPECT_EQ(QtUserDefaults().value(standard), std::nullopt); }

TEST_F(ThePreferences, areKeptFromOneStartToTheNext) {
  QtUserDefaults().setValue(standard, "3");
  EXPECT_EQ(QtUserDefaults().value(standard), "3");
}

TEST_F(ThePreferences, areWrittenAtOnce) {
  QtUserDefaults defaults;
  defaults.setValue(standard, "3");
  EXPECT_TRUE(contents().contains("Standard=3")) << contents().toStdString();
}

/// What new files may not be, until the end of a test.
class Umask {
 public:
  explicit Umask(mode_t mask) : before_(::umask(mask)) {}
  Umask(const Umask&) = delete;
  Umask& operator=(const Umask&) = delete;
  ~Umask() { ::umask(before_); }

 private:
  mode_t before_;
};

mode_t modeOf(const QString& path) {
  struct stat facts {};
  return ::stat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_mode & 07777U : 0;
}

TEST_F(ThePreferences, areReadByTheirOwnerAloneWhateverTheUmask) {
  for (const mode_t mask : {mode_t{000}, mode_t{022}, mode_t{077}}) {
    QFile::remove(path());
    const Umask umask(mask);
    QtUserDefaults().setValue(standard, "3");
    EXPECT_EQ(modeOf(path()), mode_t{0600});
    QtUserDefaults().setValue(standard, "2");
    EXPECT_EQ(modeOf(path()), mode_t{0600}) << "written again";
    EXPECT_EQ(modeOf(QFileInfo(path()).path()), mode_t{0700});
  }
}

TEST_F(ThePreferences, thatAnOlderProgramLeftOpenAreClosed) {
  QtUserDefaults().setValue(standard, "3");
  ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0666), 0);
  ASSERT_EQ(::chmod(QFile::encodeName(QFileInfo(path()).path()).constData(), 0755), 0);
  EXPECT_EQ(QtUserDefaults().value(standard), "3");
  EXPECT_EQ(modeOf(path()), mode_t{0600});
  EXPECT_EQ(modeOf(QFileInfo(path()).path()), mode_t{0700});
}

TEST_F(ThePreferences, keepNamesWithBlanksAndTextsWithSigns) {
  const std::string text = "a, \"b\"; =%1 ü\nsecond line @x";
  QtUserDefaults().setValue(showAll, text);
  EXPECT_EQ(QtUserDefaults().value("Show All"), text);
}

TEST_F(ThePreferences, readAsRegisteredUntilTheUserChooses) {
  QtUserDefaults defaults;
  defaults.registerDefault(showAll, "YES");
  EXPECT_EQ(defaults.value(showAll), "YES");
  defaults.setValue(showAll, "NO");
  EXPECT_EQ(defaults.value(showAll), "NO");
  EXPECT_FALSE(foundation::boolForKey(defaults, showAll));
}

TEST_F(ThePreferences, doNotStoreWhatIsOnlyRegistered) {
  { QtUserDefaults().registerDefault(showAll, "YES"); }
  EXPECT_FALSE(QFileInfo::exists(path()));
  EXPECT_EQ(QtUserDefaults().value(showAll), std::nullopt);
}

TEST_F(ThePreferences, registeredByTheApplicationAreFive) {
  QtUserDefaults defaults;
  TestPlatform platform;
  foundation::Services services = platform.services();
  const foundation::Services withFile{.clock = services.clock,
                                      .calendar = services.calendar,
                                      .localizer = services.localizer,
                                      .defaults = defaults,
                                      .files = services.files,
                                      .log = services.log,
                                      .notifications = services.notifications};
  const qt::DocumentApplication application(withFile);
  EXPECT_EQ(defaults.value("DataFile Extension"), "nascor");
  EXPECT_EQ(defaults.value("Show All"), "YES");
  EXPECT_EQ(defaults.value("Standard"), "0");
  EXPECT_EQ(defaults.value("Estimated Fetal Weight Standard"), "0");
  EXPECT_EQ(defaults.value("CRL Standard"), "0");
}

TEST(TheConfigurationFolder, isTheOneThatTheEnvironmentNames) {
  QtUserDefaults().setValue(standard, "2");
  EXPECT_TRUE(
      QFileInfo::exists(qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/Nascor/nascor.ini")));
}

}  // namespace
}  // namespace nascor::tests
