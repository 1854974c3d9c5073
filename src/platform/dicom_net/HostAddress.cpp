// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/HostAddress.h"

#include <array>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "dicom_net/Deadline.h"

namespace nascor::dicom_net {

using foundation::Sentence;

namespace {

/// What a thread that looks for an address leaves for the one that waits, which may be gone by then.
struct Answer {
  std::mutex mutex;
  std::condition_variable isHere;
  std::optional<std::variant<HostAddress, Sentence>> value;
};

std::variant<HostAddress, Sentence> lookedUp(const std::string& name) {
  addrinfo wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  const int error = ::getaddrinfo(name.c_str(), nullptr, &wanted, &found);
  const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> owner(found, &::freeaddrinfo);
  if (error != 0 || !found)
    return Sentence("ReportServer", "there is no IPv4 address of this host: %1").with(::gai_strerror(error));
  std::array<char, INET_ADDRSTRLEN> digits{};
  const auto* address = reinterpret_cast<const sockaddr_in*>(found->ai_addr);
  ::inet_ntop(AF_INET, &address->sin_addr, digits.data(), digits.size());
  return HostAddress{digits.data()};
}

}  // namespace

std::variant<HostAddress, Sentence> addressOfHost(const std::string& name, std::chrono::milliseconds time) {
  in_addr number{};
  if (::inet_pton(AF_INET, name.c_str(), &number) == 1) return HostAddress{name};

  // The system may take longer than that for a name, and has no way to be stopped.
  const auto answer = std::make_shared<Answer>();
  std::thread([answer, name] {
    leaveSignalsToOthers();
    auto value = lookedUp(name);
    const std::lock_guard lock(answer->mutex);
    answer->value = std::move(value);
    answer->isHere.notify_all();
  }).detach();
  std::unique_lock lock(answer->mutex);
  if (!answer->isHere.wait_for(lock, time, [&] { return answer->value.has_value(); }))
    return Sentence("ReportServer", "the address of this host was not found in time");
  return *answer->value;
}

}  // namespace nascor::dicom_net
