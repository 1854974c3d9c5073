// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "exchange/ReportServer.h"

#include <gmock/gmock.h>

#include <functional>

#include "support/InEnglish.h"

namespace nascor::tests {
namespace {

using exchange::FetchedReports;
using exchange::FoundReports;
using exchange::ReportQuery;
using exchange::SendFault;
using exchange::ServerAddress;
using testing::HasSubstr;

ServerAddress anAddress() {
  return {.host = "pacs.example.org", .port = 104, .serverTitle = "PACS", .ownTitle = "NASCOR"};
}

struct AddressCase {
  const char* name;
  std::function<void(ServerAddress&)> change;
  const char* says;  ///< empty when it may be used
};
class AnAddressOfAServer : public testing::TestWithParam<AddressCase> {};

TEST_P(AnAddressOfAServer, isLookedAtBeforeItIsUsed) {
  ServerAddress address = anAddress();
  GetParam().change(address);
  const auto fault = faultOf(address);
  if (std::string(GetParam().says).empty()) {
    EXPECT_EQ(fault, std::nullopt);
  } else {
    ASSERT_NE(fault, std::nullopt);
    EXPECT_THAT(inEnglish(fault), HasSubstr(GetParam().says));
  }
}

using std::chrono::seconds;
INSTANTIATE_TEST_SUITE_P(
    each, AnAddressOfAServer,
    testing::Values(
        AddressCase{"asItStands", [](auto&) {}, ""},  //
        AddressCase{"aNumber", [](auto& a) { a.host = "192.0.2.1"; }, ""},
        AddressCase{"noHost", [](auto& a) { a.host = ""; }, "host"},
        AddressCase{"aHostWithAPort", [](auto& a) { a.host = "pacs:104"; }, "host"},
        AddressCase{"aHostWithABlank", [](auto& a) { a.host = "pacs 1"; }, "host"},
        AddressCase{"aHostWithANul", [](auto& a) { a.host = std::string("a\0b", 3); }, "host"},
        AddressCase{"theLongestHost", [](auto& a) { a.host = std::string(253, 'a'); }, ""},
        AddressCase{"aHostTooLong", [](auto& a) { a.host = std::string(254, 'a'); }, "host"},
        AddressCase{"portZero", [](auto& a) { a.port = 0; }, "port"},
        AddressCase{"theLastPort", [](auto& a) { a.port = 65535; }, ""},
        AddressCase{"aPortTooHigh", [](auto& a) { a.port = 65536; }, "port"},
        AddressCase{"noCalledTitle", [](auto& a) { a.serverTitle = ""; }, "called"},
        AddressCase{"blanksForATitle", [](auto& a) { a.serverTitle = "  "; }, "called"},
        AddressCase{"theLongestTitle", [](auto& a) { a.serverTitle = std::string(16, 'X'); }, ""},
        AddressCase{"aTitleTooLong", [](auto& a) { a.serverTitle = std::string(17, 'X'); }, "called"},
        AddressCase{"aTitleWithABackslash", [](auto& a) { a.ownTitle = "A\\B"; }, "calling"},
        AddressCase{"aTitleNotInAscii", [](auto& a) { a.ownTitle = "MÜLLER"; }, "calling"},
        AddressCase{"noTime", [](auto& a) { a.timeout = seconds(0); }, "timeout"},
        AddressCase{"anHour", [](auto& a) { a.timeout = seconds(3600); }, ""},
        AddressCase{"longerThanAnHour", [](auto& a) { a.timeout = seconds(3601); }, "timeout"},
        AddressCase{"encrypted", [](auto& a) { a.tls = {.authorityFile = "ca.pem"}; }, ""},
        AddressCase{"encryptedWithoutAuthority", [](auto& a) { a.tls = exchange::TlsSettings{}; },
                    "authority"},
        AddressCase{"aCertificateWithoutKey",
                    [](auto& a) { a.tls = {.authorityFile = "ca.pem", .certificateFile = "own.pem"}; },
                    "key"},
        AddressCase{
            "aKeyWithoutCertificate",
            [](auto& a) { a.tls = {.authorityFile = "ca.pem", .certificateFile = "", .keyFile = "own.key"}; },
            "key"}),
    [](const auto& row) { return std::string(row.param.name); });

struct QueryCase {
  const char* name;
  ReportQuery query;
  const char* says;
};
class AQuery : public testing::TestWithParam<QueryCase> {};

TEST_P(AQuery, neverAsksForMoreThanItSays) {
  const auto fault = faultOf(GetParam().query);
  EXPECT_THAT(inEnglish(fault), HasSubstr(GetParam().says));
  EXPECT_EQ(fault.has_value(), !std::string(GetParam().says).empty());
}

INSTANTIATE_TEST_SUITE_P(
    each, AQuery,
    testing::Values(QueryCase{"ofNothing", {}, ""}, QueryCase{"ofAPatient", {.patientID = "MÜLLER 1"}, ""},
                    QueryCase{"ofAllByAStar", {.patientID = "AB*"}, "*"},
                    QueryCase{"ofSeveralByAQuestionMark", {.patientID = "AB?"}, "?"},
                    QueryCase{"ofAList", {.patientID = "A\\B"}, "backslash"},
                    QueryCase{"withAControl", {.patientID = "A\nB"}, "control"},
                    QueryCase{"withASignOfDirection", {.patientID = "A\u202EB"}, "do not show"},
                    QueryCase{"thatEndsWithABlank", {.patientID = "A "}, "blank"},
                    QueryCase{"ofTheLongestPatient", {.patientID = std::string(64, 'A')}, ""},
                    QueryCase{"ofAPatientTooLong", {.patientID = std::string(65, 'A')}, "64"},
                    QueryCase{"ofAStudy", {.patientID = "", .study = "1.2.3"}, ""},
                    QueryCase{"ofNoUid", {.patientID = "", .study = "1.2.x"}, "UID"},
                    QueryCase{"ofADay", {.firstDay = "20261123", .lastDay = "20261123"}, ""},
                    QueryCase{"ofNoDay", {.firstDay = "20260230"}, "calendar"},
                    QueryCase{"ofDaysWithPoints", {.firstDay = "2026.11.23"}, "calendar"},
                    QueryCase{"ofNoTime", {.firstDay = "20261124", .lastDay = "20261123"}, "before"}),
    [](const auto& row) { return std::string(row.param.name); });

struct UidCase {
  const char* name;
  std::string text;
  bool isUid;
};
class AUid : public testing::TestWithParam<UidCase> {};

TEST_P(AUid, isDigitsAndDots) { EXPECT_EQ(exchange::isUid(GetParam().text), GetParam().isUid); }

INSTANTIATE_TEST_SUITE_P(each, AUid,
                         testing::Values(UidCase{"usual", "1.2.840.10008", true}, UidCase{"empty", "", false},
                                         UidCase{"theLongest", std::string(64, '1'), true},
                                         UidCase{"tooLong", std::string(65, '1'), false},
                                         UidCase{"aPath", "../1", false}, UidCase{"aSlash", "1/2", false},
                                         UidCase{"theFolderAbove", "..", false},
                                         UidCase{"dotsTogether", "1..2", false},
                                         UidCase{"aDotFirst", ".1", false}, UidCase{"aDotLast", "1.", false},
                                         UidCase{"aNul", std::string("1\0", 2), false}),
                         [](const auto& row) { return std::string(row.param.name); });

/// Counts what reaches it.
struct CountingServer final : exchange::ReportServer {
  int calls = 0;

 private:
  std::optional<foundation::Sentence> doEcho(const ServerAddress&) override {
    ++calls;
    return std::nullopt;
  }
  std::variant<FoundReports, foundation::Sentence> doFind(const ServerAddress&, const ReportQuery&) override {
    ++calls;
    return FoundReports{};
  }
  std::variant<FetchedReports, foundation::Sentence> doFetch(const ServerAddress&,
                                                             const ReportQuery&) override {
    ++calls;
    return FetchedReports{};
  }
  std::optional<SendFault> doSend(const ServerAddress&, std::span<const std::byte>) override {
    ++calls;
    return std::nullopt;
  }
};

TEST(AServer, isNotContactedForWhatHasAFault) {
  CountingServer server;
  ServerAddress wrong = anAddress();
  wrong.port = 0;
  EXPECT_NE(server.echo(wrong), std::nullopt);
  EXPECT_EQ(server.find(wrong, {}).index(), 1U);
  EXPECT_EQ(server.fetch(wrong, {.patientID = "A"}).index(), 1U);
  const auto fault = server.send(wrong, {});
  ASSERT_NE(fault, std::nullopt);
  EXPECT_TRUE(fault->isOfServer);
  EXPECT_EQ(server.find(anAddress(), {.patientID = "*"}).index(), 1U);
  EXPECT_EQ(server.fetch(anAddress(), {.patientID = "*"}).index(), 1U);
  EXPECT_EQ(server.calls, 0);
}

TEST(AServer, isNotAskedForTheReportsOfEveryPatient) {
  CountingServer server;
  EXPECT_EQ(server.fetch(anAddress(), {}).index(), 1U);
  EXPECT_EQ(server.fetch(anAddress(), {.firstDay = "20261123"}).index(), 1U);
  EXPECT_EQ(server.calls, 0);
}

TEST(AServer, isContactedOtherwise) {
  CountingServer server;
  EXPECT_EQ(server.echo(anAddress()), std::nullopt);
  EXPECT_EQ(server.find(anAddress(), {}).index(), 0U);
  EXPECT_EQ(server.fetch(anAddress(), {.patientID = "A"}).index(), 0U);
  EXPECT_EQ(server.fetch(anAddress(), {.patientID = "", .study = "1.2"}).index(), 0U);
  EXPECT_EQ(server.send(anAddress(), {}).has_value(), false);
  EXPECT_EQ(server.calls, 5);
}

}  // namespace
}  // namespace nascor::tests
