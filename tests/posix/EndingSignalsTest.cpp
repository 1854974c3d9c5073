// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "posix/EndingSignals.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <iostream>

#include "FailingCalls.h"

namespace nascor::posix {
namespace {

bool isReadable(int descriptor) {
  pollfd wanted{.fd = descriptor, .events = POLLIN, .revents = 0};
  return ::poll(&wanted, 1, 0) == 1;
}

class AnEndingSignal : public testing::TestWithParam<int> {};

TEST_P(AnEndingSignal, isReadableBeforeItEndsTheProgram) {
  EXPECT_EXIT(
      {
        const EndingSignals signals;
        signals.obey();  // none came
        if (isReadable(signals.descriptor())) ::_exit(1);
        ::raise(GetParam());
        if (!isReadable(signals.descriptor())) ::_exit(2);
        std::cerr << "alive";
        signals.obey();
        ::_exit(3);
      },
      testing::KilledBySignal(GetParam()), "alive");
}

TEST_P(AnEndingSignal, endsAProgramThatDoesNotHearAtTheSecondTime) {
  EXPECT_EXIT(
      {
        const EndingSignals signals;
        ::raise(GetParam());
        std::cerr << "alive";
        ::raise(GetParam());
        ::_exit(3);
      },
      testing::KilledBySignal(GetParam()), "alive");
}

TEST_P(AnEndingSignal, thatTheProgramWasToldToIgnoreIsIgnored) {
  EXPECT_EXIT(
      {
        ::signal(GetParam(), SIG_IGN);
        const EndingSignals signals;
        ::raise(GetParam());
        ::_exit(isReadable(signals.descriptor()) ? 1 : 0);
      },
      testing::ExitedWithCode(0), "");
}

TEST_P(AnEndingSignal, endsTheProgramAsUsualWhereTheSystemHasNothingToReadItFrom) {
  EXPECT_EXIT(
      {
        tests::FailingCalls calls;
        calls.pipe2 = [] { return EMFILE; };
        const EndingSignals signals;
        if (signals.descriptor() != -1) ::_exit(1);
        signals.obey();
        std::cerr << "alive";
        ::raise(GetParam());
        ::_exit(3);
      },
      testing::KilledBySignal(GetParam()), "alive");
}

TEST_P(AnEndingSignal, endsTheProgramAsUsualOnceNobodyHearsIt) {
  EXPECT_EXIT(
      {
        { const EndingSignals signals; }
        std::cerr << "alive";
        ::raise(GetParam());
        ::_exit(3);
      },
      testing::KilledBySignal(GetParam()), "alive");
}

INSTANTIATE_TEST_SUITE_P(ofBothKinds, AnEndingSignal, testing::Values(SIGTERM, SIGHUP),
                         [](const auto& row) { return row.param == SIGTERM ? "term" : "hup"; });

}  // namespace
}  // namespace nascor::posix
