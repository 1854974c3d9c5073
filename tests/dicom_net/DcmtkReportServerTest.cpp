// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/DcmtkReportServer.h"

#include <gmock/gmock.h>

#include <csignal>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "support/MarkedLocalizer.h"

namespace nascor::tests {
namespace {

/// A port of this machine that takes connections, and answers to none.
class SilentPort {
 public:
  SilentPort() : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in here{};
    here.sin_family = AF_INET;
    here.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(::bind(socket_, reinterpret_cast<const sockaddr*>(&here), sizeof here), 0);
    EXPECT_EQ(::listen(socket_, 1), 0);
    socklen_t size = sizeof here;
    EXPECT_EQ(::getsockname(socket_, reinterpret_cast<sockaddr*>(&here), &size), 0);
    number_ = ntohs(here.sin_port);
  }
  ~SilentPort() { ::close(socket_); }
  SilentPort(const SilentPort&) = delete;
  SilentPort& operator=(const SilentPort&) = delete;

  int number() const { return number_; }

 private:
  int socket_;
  int number_ = 0;
};

exchange::ServerAddress addressOf(const SilentPort& port) {
  return {.host = "127.0.0.1",
          .port = port.number(),
          .serverTitle = "PACS",
          .ownTitle = "NASCOR",
          .timeout = std::chrono::seconds(1)};
}

// DCMTK switches the signal off for good when it first meets the network.
TEST(AnOperation, leavesTheSignalsOfTheProgramAsTheyWere) {
  const SilentPort port;
  dicom_net::DcmtkReportServer server;
  struct sigaction chosen {};
  chosen.sa_handler = [](int) {};
  ASSERT_EQ(::sigaction(SIGPIPE, &chosen, nullptr), 0);
  EXPECT_NE(server.echo(addressOf(port)), std::nullopt);
  struct sigaction left {};
  ASSERT_EQ(::sigaction(SIGPIPE, nullptr, &left), 0);
  EXPECT_EQ(left.sa_handler, chosen.sa_handler);
}

TEST(AnOperation, leavesNoDescriptorOpen) {
  const SilentPort port;
  dicom_net::DcmtkReportServer server;
  EXPECT_NE(server.echo(addressOf(port)), std::nullopt);
  const int before = ::dup(0);
  ::close(before);
  EXPECT_NE(server.echo(addressOf(port)), std::nullopt);
  const int after = ::dup(0);
  ::close(after);
  EXPECT_EQ(after, before);
}

TEST(AServerThatDoesNotAnswer, isSaidInTheLanguageOfTheReader) {
  dicom_net::DcmtkReportServer server;
  exchange::ServerAddress address;
  {
    const SilentPort port;
    address = addressOf(port);
    EXPECT_EQ(said(server.echo(address).value(), MarkedLocalizer()),
              "[ReportServer:gave no complete answer within 1 s]");
  }
  EXPECT_THAT(said(server.echo(address).value(), MarkedLocalizer()),
              testing::StartsWith("[ReportServer:cannot be reached: "))
      << "the port is closed";
  address.tls = exchange::TlsSettings{.authorityFile = "none.pem"};
  EXPECT_EQ(said(server.echo(address).value(), MarkedLocalizer()),
            "[ReportServer:none.pem holds no certificate in PEM that can be read]");
}

}  // namespace
}  // namespace nascor::tests
