// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "cli_commands/Command.h"
#include "cli_commands/Input.h"
#include "cli_commands/Names.h"
#include "exchange/DecimalText.h"
#include "exchange/ReportServer.h"
#include "foundation/JsonText.h"
#include "posix/PosixFileStore.h"
#include "reports/Reports.h"

namespace nascor::cli {

namespace {

using exchange::ReportPlace;
using exchange::ReportQuery;
using exchange::ReportServer;
using exchange::ServerAddress;

/// A number that `faultOf` refuses stands for what is none.
int numberIn(const std::string& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

std::string required(const Arguments& arguments, std::string_view name) {
  const auto value = arguments.option(name);
  if (!value || value->empty())
    throw UsageError(Sentence("CommandLine", "%1 is missing").with("--" + std::string(name)));
  return *value;
}

ServerAddress addressIn(const Arguments& arguments) {
  ServerAddress address{.host = required(arguments, "host"),
                        .port = numberIn(required(arguments, "port")),
                        .serverTitle = required(arguments, "called"),
                        .ownTitle = arguments.option("calling").value_or("NASCOR")};
  if (const auto timeout = arguments.option("timeout"))
    address.timeout = std::chrono::seconds(numberIn(*timeout));
  if (arguments.has("ca") || arguments.has("cert") || arguments.has("key"))
    address.tls = exchange::TlsSettings{.authorityFile = arguments.option("ca").value_or(""),
                                        .certificateFile = arguments.option("cert").value_or(""),
                                        .keyFile = arguments.option("key").value_or("")};
  if (const auto fault = faultOf(address)) throw UsageError(*fault);
  return address;
}

/// YYYYMMDD; empty without the option.
std::string dayIn(const Arguments& arguments, std::string_view name) {
  const auto text = arguments.option(name);
  if (!text) return {};
  constexpr std::string_view kForm = "0000-00-00";
  std::string digits;
  bool isForm = text->size() == kForm.size();
  for (std::size_t i = 0; isForm && i < kForm.size(); ++i) {
    if (kForm[i] == '-') {
      isForm = (*text)[i] == '-';
    } else {
      digits += (*text)[i];
    }
  }
  if (!isForm || !exchange::dayFromDigits(digits))
    throw UsageError(Sentence("CommandLine", "--%1: expected a day like 2026-11-23, but \"%2\" stands here")
                         .with(name, *text));
  return digits;
}

ReportQuery queryIn(const Arguments& arguments) {
  ReportQuery query{.patientID = arguments.option("patient").value_or(""),
                    .study = arguments.option("study").value_or(""),
                    .firstDay = dayIn(arguments, "from"),
                    .lastDay = dayIn(arguments, "to")};
  // No patient is no wish for every patient.
  if (arguments.has("patient") && query.patientID.empty())
    throw UsageError(Sentence("CommandLine", "--patient: the reference ID is empty"));
  if (arguments.has("study") && query.study.empty())
    throw UsageError(Sentence("CommandLine", "--study: the UID is empty"));
  if (const auto fault = faultOf(query)) throw UsageError(*fault);
  return query;
}

std::string placeOf(const ServerAddress& address) {
  return address.host + ":" + std::to_string(address.port);
}

void writeText(foundation::JsonText& json, std::string_view key, const std::string& value) {
  json.key(key).text(value);
}

/// What tells one report from the others; the day is null where the server writes none.
void writePlace(foundation::JsonText& json, const ReportPlace& place) {
  writeText(json, "patientID", place.patientID);
  json.key("studyDate");
  if (const auto day = exchange::dayFromDigits(place.studyDate)) {
    json.text(exchange::isoText(*day));
  } else {
    json.null();
  }
  writeText(json, "study", place.study);
  writeText(json, "series", place.series);
  writeText(json, "instance", place.instance);
}

/// One call of the command.
struct Call {
  const Arguments& arguments;
  const ServerAddress& address;
  std::vector<std::string> files;
  Console& console;
};

void echo(ReportServer& server, const Call& call) {
  if (const auto why = server.echo(call.address)) return call.console.complain(placeOf(call.address), *why);
  call.console.out() += placeOf(call.address) + " answers as " + call.address.serverTitle;
  if (call.address.tls) call.console.out() += ", encrypted";
  call.console.lineDone();
}

void find(ReportServer& server, const Call& call) {
  const auto found = server.find(call.address, queryIn(call.arguments));
  if (const auto* why = std::get_if<Sentence>(&found))
    return call.console.complain(placeOf(call.address), *why);
  const auto& [places, warnings] = std::get<exchange::FoundReports>(found);
  for (const ReportPlace& place : places) {
    foundation::JsonText json(call.console.out());
    json.beginObject();
    writePlace(json, place);
    json.endObject();
    call.console.lineDone();
  }
  for (const Sentence& warning : warnings) call.console.warn(placeOf(call.address), warning);
}

void fetch(ReportServer& server, const Call& call) {
  const std::filesystem::path folder = required(call.arguments, "out");
  const ReportQuery query = queryIn(call.arguments);
  const auto fetched = server.fetch(call.address, query);
  Console& console = call.console;
  const std::string from = placeOf(call.address);
  if (const auto* why = std::get_if<Sentence>(&fetched)) return console.complain(from, *why);
  const auto& [reports, warnings] = std::get<exchange::FetchedReports>(fetched);
  std::error_code error;
  if (!reports.empty()) std::filesystem::create_directories(folder, error);
  if (error) return console.complain(folder.string(), Sentence::ofSystem(error.message()));
  posix::PosixFileStore store;
  for (const exchange::FetchedReport& report : reports) {
    const std::string path = (folder / (report.place.instance + ".dcm")).string();
    if (const auto problem = store.replaceExpected(path, report.file, std::nullopt)) {
      using enum foundation::FileError::Kind;
      console.complain(path, problem->kind == isChanged
                                 ? Sentence("CommandLine", "it is there already, and stays as it is")
                                 : reasonOf(*problem));
      continue;
    }
    foundation::JsonText json(console.out());
    json.beginObject();
    writeText(json, "file", path);
    writePlace(json, report.place);
    json.endObject();
    console.lineDone();
  }
  for (const Sentence& warning : warnings) console.complain(from, warning);
  if (reports.empty() && warnings.empty())
    console.complain(from, Sentence("CommandLine", "has no such report"));
}

void send(ReportServer& server, const Call& call) {
  bool isOver = false;
  for (const std::string& file : call.files) {
    if (isOver) {
      call.console.complain(nameOf(file),
                            Sentence("CommandLine", "is not sent, because the server did not answer before"));
      continue;
    }
    const auto bytes = contentsOf(file, call.console);
    if (!bytes) continue;
    if (const auto fault = server.send(call.address, *bytes)) {
      isOver = fault->isOfServer;
      call.console.complain(
          nameOf(file),
          //: %1 is the address of a server, %2 what is wrong with it: "... is not sent: host:104 does not answer".
          isOver ? Sentence("CommandLine", "is not sent: %1 %2").with(placeOf(call.address), fault->sentence)
                 : fault->sentence);
      continue;
    }
    foundation::JsonText json(call.console.out());
    json.beginObject();
    writeText(json, "file", file);
    writeText(json, "sentTo", call.address.serverTitle);
    json.endObject();
    call.console.lineDone();
    // A person sees how far it is.
    call.console.flush();
  }
}

struct Action {
  std::string_view name;
  void (*run)(ReportServer&, const Call&);
  std::vector<std::string_view> options;  ///< beside the address
};

const std::vector<Action>& actions() {
  static const std::vector<Action> kActions{{"echo", echo, {}},
                                            {"find", find, {"patient", "study", "from", "to"}},
                                            {"fetch", fetch, {"patient", "study", "from", "to", "out"}},
                                            {"send", send, {}}};
  return kActions;
}

/// Wrong usage is said before anything is loaded, read or contacted.
void check(const Action& action, const Arguments& arguments) {
  for (const std::string_view option : {"patient", "study", "from", "to", "out"}) {
    if (arguments.has(option) && std::ranges::find(action.options, option) == action.options.end())
      throw UsageError(Sentence("CommandLine", "--%1 is not for %2").with(option, action.name));
  }
  const bool takesFiles = action.name == "send";
  if (takesFiles != (arguments.operands.size() > 1))
    throw UsageError(takesFiles ? Sentence("CommandLine", "%1 is missing").with("FILE...")
                                : Sentence("CommandLine", "%1 takes no FILE").with(action.name));
  static_cast<void>(queryIn(arguments));
  if (action.name != "fetch") return;
  if (!arguments.has("patient") && !arguments.has("study"))
    throw UsageError(Sentence("CommandLine", "fetch needs --patient or --study"));
  if (required(arguments, "out") == "-") throw UsageError(Sentence("CommandLine", "--out takes a folder"));
}

void runServer(const Arguments& arguments, Console& console) {
  const std::string name = inSmallLetters(arguments.operands.front());
  const auto action = std::ranges::find(actions(), name, &Action::name);
  if (action == actions().end())
    throw UsageError(Sentence("CommandLine", "expected echo, find, fetch or send"));
  check(*action, arguments);
  const ServerAddress address = addressIn(arguments);
  const auto server = reports::reportServer();
  if (const auto* why = std::get_if<Sentence>(&server))
    return console.complain(placeOf(address), Sentence("CommandLine", "is not contacted: %1").with(*why));
  if (!address.tls)
    console.warn(
        placeOf(address),
        Sentence("CommandLine",
                 "the connection is not encrypted: what goes over it can be read on its way; see --ca"));
  action->run(*std::get<ReportServer*>(server),
              {.arguments = arguments,
               .address = address,
               .files = {arguments.operands.begin() + 1, arguments.operands.end()},
               .console = console});
}

}  // namespace

Command serverCommand() {
  static constexpr std::array<OperandSpec, 2> kOperands{
      {{"echo|find|fetch|send", translatable("CommandHelp", "what is wanted of the server")},
       {"FILE...", translatable("CommandHelp", "a DICOM report to send; - is standard input"), true, false,
        true}}};
  static constexpr std::array<OptionSpec, 13> kOptions{{
      {"host", "HOST", translatable("CommandHelp", "the server: a name or an IPv4 address")},
      {"port", "N", translatable("CommandHelp", "its port")},
      {"called", "TITLE", translatable("CommandHelp", "its application entity title")},
      {"calling", "TITLE", translatable("CommandHelp", "that of this program; without this option NASCOR")},
      {"ca", "FILE",
       translatable("CommandHelp",
                    "speak encrypted, to a server whose certificate comes from this authority (PEM)")},
      {"cert", "FILE",
       translatable("CommandHelp", "the certificate of this program, for servers that ask for one (PEM)")},
      {"key", "FILE", translatable("CommandHelp", "the key of that certificate, without a password (PEM)")},
      {"timeout", "SECONDS",
       translatable("CommandHelp", "for the whole of one connection, 1 to 3600; without this option 30")},
      {"patient", "ID", translatable("CommandHelp", "find, fetch: the reports of this reference ID")},
      {"study", "UID", translatable("CommandHelp", "find, fetch: those of this study")},
      {"from", "DAY",
       translatable("CommandHelp", "find, fetch: of studies of this day (2026-11-23) and later")},
      {"to", "DAY", translatable("CommandHelp", "find, fetch: of studies of this day and earlier")},
      {"out", "DIR",
       translatable("CommandHelp", "fetch: the folder for the files, which is made when it is missing")},
  }};
  return {
      .name = "server",
      .usage =
          "echo|find|fetch|send [FILE...] --host HOST --port N --called TITLE [--calling TITLE] "
          "[--ca FILE [--cert FILE --key FILE]] [--timeout SECONDS] [--patient ID] [--study UID] "
          "[--from DAY] [--to DAY] [--out DIR]",
      .summary = translatable("CommandHelp", "Fetches reports from a DICOM server, and sends reports to it."),
      .details = Sentence(
          "CommandHelp",
          "echo asks whether the server answers. find lists its reports, an object a line: patientID, "
          "studyDate,\n"
          "study, series, instance. fetch writes them as INSTANCE.dcm, never over a file that is there, "
          "and needs a\n"
          "patient or a study. send sends files that \"export --format sr\" or a machine wrote.\n"
          "No other command uses the network, and this one speaks to the server of its options alone.\n"),
      .operands = kOperands,
      .options = kOptions,
      .run = runServer};
}

}  // namespace nascor::cli
