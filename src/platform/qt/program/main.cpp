// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include <fontconfig/fontconfig.h>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/AbandonedAction.h"
#include "base/Introduction.h"
#include "base/Translation.h"
#include "bus/ApplicationService.h"
#include "bus/BusObjects.h"
#include "posix/CoreDumps.h"
#include "posix/EndingSignals.h"
#include "posix/FileSizeSignal.h"
#include "posix/RecoveryFolder.h"
#include "program/Application.h"
#include "program/ApplicationIcon.h"
#include "program/DocumentApplication.h"
#include "program/Platform.h"
#include "program/ProgramOptions.h"
#include "window/QtViewer.h"

using namespace nascor;
using namespace nascor::qt;

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";
constexpr std::chrono::seconds kPatienceOfAService{10};

enum ExitStatus { kAllWell = 0, kFailed = 1, kWrongUsage = 2, kNoDisplay = 3 };

void printLine(std::FILE* stream, const QString& line) { std::fprintf(stream, "%s\n", qUtf8Printable(line)); }

bool hasArgument(std::span<char*> arguments, std::initializer_list<std::string_view> wanted) {
  const auto end =
      std::ranges::find(arguments, std::string_view("--"), [](const char* a) { return std::string_view(a); });
  return std::any_of(arguments.begin(), end, [&](const char* argument) {
    return std::ranges::any_of(wanted, [&](std::string_view name) {
      return argument == name || std::string_view(argument).starts_with(std::string(name) + "=");
    });
  });
}

/// What the program answers without a window; nothing when it is to go on.
std::optional<int> answerAtOnce(ProgramOptions& line, const QStringList& arguments) {
  if (!line.parser.parse(arguments)) {
    printLine(stderr, line.parser.errorText());
    printLine(stderr, QStringLiteral("usage: nascor %1").arg(ProgramOptions::kUsage));
    return kWrongUsage;
  }
  if (line.parser.isSet(line.help)) {
    std::fputs(qUtf8Printable(line.parser.helpText()), stdout);
    return kAllWell;
  }
  if (line.parser.isSet(line.version)) {
    printLine(stdout, QStringLiteral("Nascor %1\n%2").arg(programVersion(), disclaimer()));
    return kAllWell;
  }
  return std::nullopt;
}

/// Whether the arguments stand as they are, without an option of Qt's and without an unknown one.
bool areOurOwn(std::span<char*> arguments) {
  QStringList texts;
  for (const char* argument : arguments) texts << QString::fromLocal8Bit(argument);
  return ProgramOptions().parser.parse(texts);
}

/// What Qt says while it begins.
QStringList& beginningMessages() {
  static QStringList messages;
  return messages;
}

/// Without a display Qt prints several lines and aborts. Print one line and exit with a status of its own.
void takeBeginningMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
  // Qt finds another folder for sockets where the system gives none.
  if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"))) return;
  beginningMessages() << message.trimmed();
  if (type != QtFatalMsg) return;
  printLine(stderr, QCoreApplication::translate("main", "nascor: no window can be shown: %1")
                        .arg(beginningMessages().constFirst()));
  std::_Exit(kNoDisplay);
}

/// Lets Qt take out its own options, which it does only once it has begun. It begins without a display here, so that a
/// mistake is named where there is no display too.
std::optional<int> answerWithQt(std::span<char*> arguments) {
  std::vector<char*> copy(arguments.begin(), arguments.end());
  auto count = static_cast<int>(copy.size());
  copy.push_back(nullptr);
  qputenv(kPlatform, "offscreen");
  std::optional<int> status;
  {
    const Application probe(count, copy.data());
    ProgramOptions line;
    status = answerAtOnce(line, QCoreApplication::arguments());
  }
  qunsetenv(kPlatform);
  return status;
}

/// Decides before Qt asks for a display: what paints no window needs none. Gives the exit status where that was all.
std::optional<int> chooseDisplay(std::span<char*> arguments) {
  if (qEnvironmentVariableIsSet(kPlatform)) return std::nullopt;
  if (hasArgument(arguments, {"--write-pages", "--help", "-h", "--version", "-v"})) {
    qputenv(kPlatform, "offscreen");
    return std::nullopt;
  }
  return areOurOwn(arguments) ? std::nullopt : answerWithQt(arguments);
}

int writePages(const ProgramOptions& line, const foundation::Services& services) {
  QString error;
  const auto wanted = line.pages.read(line.parser, error);
  if (!wanted) {
    printLine(stderr, error);
    return kWrongUsage;
  }
  const WrittenPages written = exportPages(*wanted, services);
  if (line.pages.arePathsWanted(line.parser)) {
    for (const QString& path : written.paths) printLine(stdout, path);
  }
  for (const QString& sentence : written.warnings + written.sentences) printLine(stderr, sentence);
  return written.sentences.isEmpty() ? kAllWell : kFailed;
}

/// Ends an application that the bus started and that then gets nothing to show.
class Patience {
 public:
  explicit Patience(DocumentApplication& documents) {
    timer_.setSingleShot(true);
    timer_.setInterval(kPatienceOfAService);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [&] {
      if (!documents.documents().documents().empty()) return;
      if (QApplication::activeModalWidget()) {
        timer_.start();  // a question, or what could not be opened
      } else {
        Application::exit(kAllWell);
      }
    });
  }
  void begin() { timer_.start(); }

 private:
  QTimer timer_;
};

using Subscriptions = std::vector<foundation::Subscription>;

Subscriptions followSession(Application& application, DocumentApplication& documents) {
  Application::setQuitOnLastWindowClosed(false);  // a window that another document takes over is not the end
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &application, [&](QSessionManager& session) {
        documents.endSession([&] { return session.allowsInteraction(); }, [&] { session.cancel(); });
        session.release();
      });
  Subscriptions subscriptions;
  subscriptions.push_back(application.onQuitRequest.subscribe([&] { documents.leaveSession(); }));
  subscriptions.push_back(documents.onLastDocumentClosed.subscribe([] {
    QMetaObject::invokeMethod(
        qApp, [] { Application::exit(kAllWell); }, Qt::QueuedConnection);
  }));
  return subscriptions;
}

int showDocuments(Application& application, const ProgramOptions& line,
                  const foundation::Services& services) {
  const QStringList files = line.parser.positionalArguments();
  const QString watched = line.parser.value(line.watch);
  if (line.parser.isSet(line.watch) && !QFileInfo(watched).isDir()) {
    printLine(stderr, QCoreApplication::translate("main", "nascor: --watch: %1 is no folder").arg(watched));
    return kWrongUsage;
  }
  posix::RecoveryFolder recoveryFolder(posix::RecoveryFolder::usualPath());
  DocumentApplication documents(services, resourceFolder(), &recoveryFolder);
  const posix::EndingSignals endingSignals;
  const QSocketNotifier ending(endingSignals.descriptor(), QSocketNotifier::Read);
  QObject::connect(&ending, &QSocketNotifier::activated, &application, [&] {
    documents.keepChanges();
    documents.documents().releaseLocks();
    endingSignals.obey();
  });
  BusObjects objects(services, documents.documents(), documents.numbers());
  const auto opens = objects.onOpen.subscribe([&](const QStringList& paths) { documents.openFiles(paths); });
  const auto makes = objects.onNew.subscribe([&] { documents.newDocument(); });
  const auto activates = objects.onActivate.subscribe([&] { documents.activate(); });
  ApplicationService service(objects, services.log);
  const auto asks = documents.onQuestion.subscribe([&] { service.questionIsAsked(); });
  const ApplicationService::Start start = service.start(files);
  if (start == ApplicationService::Start::handedOver) {
    if (!line.parser.isSet(line.watch)) return kAllWell;
    printLine(stderr, QCoreApplication::translate("main",
                                                  "nascor: --watch: Nascor is running already. Please choose "
                                                  "the folder there, by File > Report Folder and Server."));
    return kFailed;
  }

  Application::setWindowIcon(applicationIcon());
  const Subscriptions session = followSession(application, documents);
  Patience patience(documents);
  foundation::Subscription waits;
  if (line.parser.isSet(line.service) && start == ApplicationService::Start::first) {
    waits = service.onMessage.subscribe([&] { patience.begin(); });
    patience.begin();
  } else if (const bool isRecovered = documents.offerRecovery(); files.isEmpty()) {
    if (!isRecovered) documents.newDocument();
  } else {
    documents.openFiles(files);
    if (documents.documents().documents().empty()) return kFailed;
  }
  documents.reportFolder().begin(watched.isEmpty() ? watched : QFileInfo(watched).absoluteFilePath());
  return Application::exec();
}

int nascorMain(int argc, char** argv) {
  if (const auto status = chooseDisplay({argv, static_cast<std::size_t>(argc)})) return *status;
  const QtMessageHandler qtsHandler = qInstallMessageHandler(takeBeginningMessage);
  // The system's fonts are read aside, while Qt loads its parts and asks the display: both take long.
  const std::future<FcBool> fonts = std::async(FcInit);
  Application application(argc, argv);
  fonts.wait();
  qInstallMessageHandler(qtsHandler);
  for (const QString& message : beginningMessages()) printLine(stderr, message);

  installTranslation(QLocale::system().uiLanguages(),
                     QFile::decodeName(resourceFolder().c_str()) + QStringLiteral("/texts"));
  ProgramOptions line;
  if (const auto status = answerAtOnce(line, QCoreApplication::arguments())) return *status;
  if (const QString sentence = missingFontSentence(); !sentence.isEmpty()) {
    printLine(stderr, sentence);
    return kFailed;
  }
  using Pipes = nascor::posix::PosixFileStore::Pipes;
  Platform platform(QLocale::system(), line.pages.areGiven(line.parser) ? Pipes::areRead : Pipes::areRefused);
  return line.pages.areGiven(line.parser) ? writePages(line, platform.services())
                                          : showDocuments(application, line, platform.services());
}

}  // namespace

int main(int argc, char** argv) {
  posix::switchOffCoreDumps();
  posix::ignoreFileSizeSignal();
  try {
    return nascorMain(argc, argv);
  } catch (const std::exception& error) {
    logAbandoned(error);
    return kFailed;
  }
}
