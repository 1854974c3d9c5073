#include <QCommandLineParser>
#include <QLocale>
#include <QSessionManager>
#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>

#include "qt/Application.h"
#include "qt/ApplicationService.h"
#include "qt/DocumentApplication.h"
#include "qt/PageFiles.h"
#include "qt/Platform.h"

using namespace nascor::qt;

namespace {

enum ExitStatus { kAllWell = 0, kFailed = 1, kWrongUsage = 2 };

void say(std::FILE* stream, const QString& line) { std::fprintf(stream, "%s\n", qUtf8Printable(line)); }

bool hasArgument(std::span<char*> arguments, std::initializer_list<std::string_view> wanted) {
  const auto end =
      std::ranges::find(arguments, std::string_view("--"), [](const char* a) { return std::string_view(a); });
  return std::any_of(arguments.begin(), end, [&](const char* argument) {
    return std::ranges::any_of(wanted, [&](std::string_view name) {
      return argument == name || std::string_view(argument).starts_with(std::string(name) + "=");
    });
  });
}

int nascorMain(int argc, char** argv) {
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  // What paints no window needs no display.
  if (hasArgument(arguments, {"--write-pages", "--help", "-h", "--version", "-v"}) &&
      !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  Application application(argc, argv);

  QCommandLineParser parser;
  parser.setApplicationDescription(
      QCoreApplication::translate("main", "Obstetric ultrasound biometry.\n%1").arg(disclaimer()));
  const QCommandLineOption help({"h", "help"}, QCoreApplication::translate("main", "Shows this help."));
  const QCommandLineOption version({"v", "version"},
                                   QCoreApplication::translate("main", "Shows the version."));
  const QCommandLineOption writePagesOption(
      "write-pages",
      QCoreApplication::translate(
          "main",
          "Writes the pages of the documents as PNG and PDF into FOLDER, and shows no window. "
          "Files of the same names are replaced."),
      "FOLDER");
  parser.addOptions({help, version, writePagesOption});
  parser.addPositionalArgument("file", QCoreApplication::translate("main", "Documents to open."),
                               "[FILE...]");
  if (!parser.parse(QCoreApplication::arguments())) {
    say(stderr, parser.errorText());
    say(stderr, QStringLiteral("usage: nascor [--write-pages FOLDER] [FILE...]"));
    return kWrongUsage;
  }
  if (parser.isSet(help)) {
    std::fputs(qUtf8Printable(parser.helpText()), stdout);
    return kAllWell;
  }
  if (parser.isSet(version)) {
    say(stdout, QStringLiteral("Nascor %1\n%2").arg(programVersion(), disclaimer()));
    return kAllWell;
  }
  if (const QString sentence = missingFontSentence(); !sentence.isEmpty()) {
    say(stderr, sentence);
    return kFailed;
  }

  Platform platform(QLocale::system());
  const QStringList files = parser.positionalArguments();
  if (parser.isSet(writePagesOption)) {
    if (files.isEmpty()) {
      say(stderr, QCoreApplication::translate("main", "Which documents? --write-pages FOLDER FILE..."));
      return kWrongUsage;
    }
    const WrittenPages written = writePages(parser.value(writePagesOption), files, platform.services());
    for (const QString& path : written.paths) say(stdout, path);
    for (const QString& sentence : written.sentences) say(stderr, sentence);
    return written.sentences.isEmpty() ? kAllWell : kFailed;
  }

  ApplicationService service;
  DocumentApplication documents(platform.services());
  service.onOpen = [&](const QStringList& paths) { documents.openFiles(paths); };
  service.onNew = [&] { documents.newDocument(); };
  service.onActivate = [&] { documents.activate(); };
  if (service.start(files) == ApplicationService::Start::handedOver) return kAllWell;

  Application::setQuitOnLastWindowClosed(false);  // a window that another document takes over is not the end
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &application, [&](QSessionManager& session) {
        documents.endSession([&] { return session.allowsInteraction(); }, [&] { session.cancel(); });
        session.release();
      });
  application.onQuitRequest = [&] { documents.leaveSession(); };
  documents.onLastDocumentClosed = [] {
    QMetaObject::invokeMethod(
        qApp, [] { Application::exit(kAllWell); }, Qt::QueuedConnection);
  };
  if (files.isEmpty()) {
    documents.newDocument();
  } else {
    documents.openFiles(files);
    if (documents.documents().documents().empty()) return kFailed;
  }
  return Application::exec();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return nascorMain(argc, argv);
  } catch (const std::exception& error) {
    tellAbandoned(error);
    return kFailed;
  }
}
