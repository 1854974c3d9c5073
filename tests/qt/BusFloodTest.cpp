// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

// Calls without number and sense while the user works.
#include <time.h>

#include <QDBusVariant>
#include <QUrl>
#include <atomic>
#include <cmath>
#include <thread>

#include "Caller.h"
#include "SessionBus.h"
#include "WindowTest.h"
#include "bus/ApplicationService.h"
#include "bus/BusObjects.h"
#include "support/Spent.h"

namespace nascor::tests {
namespace {

/// Of the thread that asks, in milliseconds: other programs that the machine runs do not count.
double processorTime() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// One call of each kind that should do no harm: objects, interfaces, methods, arguments and values of all sorts.
std::vector<QDBusMessage> hostileCalls() {
  std::vector<QDBusMessage> calls;
  const QStringList paths{kApplicationPath, kApplicationPath + QStringLiteral("/documents"), documentPath(1),
                          documentPath(7), kApplicationPath + QStringLiteral("/elsewhere")};
  const QStringList interfaces{kApplicationInterface, kPropertiesInterface,
                               QStringLiteral("org.nascor.None")};
  const QStringList members{QStringLiteral("perform"), QStringLiteral("Get"), QStringLiteral("nothing")};
  for (const QString& path : paths) {
    for (const QString& interface : interfaces) {
      for (const QString& member : members)
        calls.push_back(Caller::message(path, interface, member, {QStringLiteral("x")}));
    }
  }
  const QString text(100'000, u'\u0301');
  const QVariantList values{QVariant(1.0),
                            QVariant(std::nan("")),
                            QVariant(-1e308),
                            QVariant(true),
                            QVariant(qulonglong{18'446'744'073'709'551'615U}),
                            QVariant(QStringLiteral("2027-04-10")),
                            QVariant(text),
                            QVariant(QByteArray(1000, '\xff')),
                            QVariant(QStringList{text.left(1000)})};
  for (const char* key : {"identifier", "gravida", "edd", "bpd", "tabViewIndex"}) {
    for (const QVariant& value : values) calls.push_back(Caller::settingOf(documentPath(1), key, value));
  }
  return calls;
}

class TheWindowUnderAFlood : public WindowTest {
 protected:
  const SessionBus bus;
};

TEST_F(TheWindowUnderAFlood, answersItsUserWithinATenthOfASecond) {
  qt::BusObjects objects(platform.services(), application.documents(), application.numbers());
  qt::ApplicationService service(objects, platform.services().log);
  ASSERT_EQ(service.start({}), qt::ApplicationService::Start::first);
  open(singleton());

  const int kCalls = qEnvironmentVariableIntValue("NASCOR_CALLS") > 0
                         ? qEnvironmentVariableIntValue("NASCOR_CALLS")
                         : 10'000;
  std::atomic<bool> isSent = false;
  std::thread flood([&] {
    Caller caller(QStringLiteral("a flood"));
    const std::vector<QDBusMessage> calls = hostileCalls();
    ASSERT_GE(calls.size(), 90U);
    for (int i = 0; i < kCalls; ++i) caller.bus().send(calls[static_cast<std::size_t>(i) % calls.size()]);
    // What was sent goes out before the connection does.
    caller.application("documents");
    isSent = true;
  });
  int done = 0;
  const auto counts = service.onMessage.subscribe([&] { ++done; });
  double longest = 0.0;
  double last = processorTime();
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    longest = std::max(longest, processorTime() - last);
    last = processorTime();
  });
  user.start(0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return isSent.load() && done > 1'000; }, 120'000)) << done;
  flood.join();
  EXPECT_LT(longest, kIsSanitized ? 1'000.0 : 100.0);
  std::printf("%d of %d calls done, the others refused; the window waited %.0f ms at most\n", done, kCalls,
              longest);
}

}  // namespace
}  // namespace nascor::tests
