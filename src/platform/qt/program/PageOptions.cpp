// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/PageOptions.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <system_error>

#include "base/QtLocalizer.h"
#include "base/Text.h"
#include "calc/References.h"
#include "foundation/Progress.h"

namespace nascor::qt {
namespace {

double secondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Draws one changing line on the terminal, wiped at the end.
std::function<void(int, int)> terminalProgress() {
  const auto localizer = std::make_shared<const QtLocalizer>(QLocale::system());
  return [localizer, progress = foundation::Progress(0, secondsNow())](int done, int total) mutable {
    progress.set(done, total, secondsNow());
    if (done == total) {
      std::fputs(foundation::Progress::kWiped, stderr);
    } else if (progress.isDue()) {
      std::fputs(progress.line(*localizer).c_str(), stderr);
    }
    std::fflush(stderr);
  };
}

/// Writes the one file whose place is standard output. Returns why that failed.
std::optional<QString> writeToStandardOutput(const QByteArray& bytes) {
  const auto size = static_cast<std::size_t>(bytes.size());
  const bool isWritten = std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
  if (isWritten) return std::nullopt;
  return QString::fromLocal8Bit(std::generic_category().message(errno).c_str());
}

}  // namespace

QList<QCommandLineOption> PageOptions::all() const {
  return {folder_, format_, pages_, fetus_, noFoot_, overlay_, joinMarks_, noClobber_, quiet_};
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
    const model::ChosenPages chosen = model::chosenPages(toUtf8(parser.value(pages_)));
    if (chosen.refused) return refused(pages_);
    wanted.pages = chosen.pages;
  }
  if (parser.isSet(fetus_) && parser.value(fetus_) != QLatin1String("all")) {
    const int number = parser.value(fetus_).toInt();
    if (number < 1) return refused(fetus_);
    wanted.fetus = number - 1;
  }
  if (parser.isSet(overlay_)) {
    wanted.overlay.centiles = calc::referenceNamed(toUtf8(parser.value(overlay_)));
    if (wanted.overlay.centiles == nullptr) return refused(overlay_);
  }
  wanted.overlay.joinsMarks = parser.isSet(joinMarks_);
  wanted.hasFoot = !parser.isSet(noFoot_);
  wanted.mayReplace = !parser.isSet(noClobber_);
  if (isForStandardOutput(parser)) wanted.writeOneFile = writeToStandardOutput;
  if (::isatty(STDERR_FILENO) == 1) wanted.onProgress = terminalProgress();
  return wanted;
}

}  // namespace nascor::qt
