#include "qt/PageOptions.h"

#include <unistd.h>

#include <cstdio>
#include <string>

#include "qt/Text.h"

namespace nascor::qt {
namespace {

/// One changing line on the terminal, wiped at the end.
void drawProgress(int done, int total) {
  constexpr int kWidth = 40;
  if (done == total) {
    std::fputs("\r\033[K", stderr);
  } else {
    const int filled = kWidth * done / total;
    std::fprintf(stderr, "\r[%s%s] %d/%d", std::string(static_cast<std::size_t>(filled), '#').c_str(),
                 std::string(static_cast<std::size_t>(kWidth - filled), ' ').c_str(), done, total);
  }
  std::fflush(stderr);
}

}  // namespace

void PageOptions::addTo(QCommandLineParser& parser) const {
  parser.addOptions({folder_, format_, pages_, fetus_, noFoot_, quiet_});
}

std::optional<PageExport> PageOptions::read(const QCommandLineParser& parser, QString& error) const {
  const auto refused = [&](const QCommandLineOption& option) {
    error = QCoreApplication::translate("main", "--%1 knows no \"%2\".")
                .arg(option.names().constFirst(), parser.value(option));
    return std::nullopt;
  };
  PageExport wanted;
  wanted.folder = parser.value(folder_);
  wanted.files = parser.positionalArguments();
  wanted.formats = {framework::PageFormat::png, framework::PageFormat::pdf};
  if (wanted.files.isEmpty()) {
    error = QCoreApplication::translate("main", "Which documents? --write-pages FOLDER FILE...");
    return std::nullopt;
  }
  if (parser.isSet(format_)) {
    const auto format = framework::pageFormatNamed(toUtf8(parser.value(format_)));
    if (!format) return refused(format_);
    wanted.formats = {*format};
  }
  if (parser.isSet(pages_)) {
    const auto pages = pagesFromText(parser.value(pages_));
    if (!pages) return refused(pages_);
    wanted.pages = *pages;
  }
  if (parser.isSet(fetus_) && parser.value(fetus_) != QLatin1String("all")) {
    const int number = parser.value(fetus_).toInt();
    if (number < 1) return refused(fetus_);
    wanted.fetus = number - 1;
  }
  wanted.hasFoot = !parser.isSet(noFoot_);
  if (::isatty(STDERR_FILENO) == 1) wanted.onProgress = drawProgress;
  return wanted;
}

}  // namespace nascor::qt
