// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "program/PageExport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <variant>

#include "app/NCAppController.h"
#include "app/NCDocument.h"
#include "base/Text.h"
#include "foundation/FileStore.h"
#include "foundation/Sentence.h"
#include "foundation/UserDefaults.h"
#include "foundation/Utf8.h"
#include "framework/DocumentController.h"
#include "framework/FileName.h"
#include "model/PatientFile.h"

namespace nascor::qt {

using framework::PageFormat;

namespace {

/// Answers every question by its default: an export has no user to ask.
class NoAlerts final : public framework::Alerts {
 public:
  framework::AlertReturn runModal(const framework::Alert&) override {
    return framework::AlertReturn::alternate;
  }
  void beginSheet(const framework::Alert&, std::function<void(framework::AlertReturn)>) override {}
  std::size_t chooseOne(const std::string&, const std::string&,
                        const std::vector<std::string>& buttons) override {
    return buttons.size() - 1;
  }
  void tell(const std::string&, const std::string&) override {}
  void tellDetails(const std::string&, const std::string&, const std::string&) override {}
};
class NoPanels final : public framework::FilePanels {
 public:
  std::vector<std::string> chooseFilesToOpen() override { return {}; }
  std::optional<std::string> chooseFileToSave(const std::string&) override { return std::nullopt; }
  std::optional<std::string> chooseFolder() override { return std::nullopt; }
};

/// The user's preferences, which painting pages does not change.
class ReadOnlyDefaults final : public foundation::UserDefaults {
 public:
  explicit ReadOnlyDefaults(foundation::UserDefaults& defaults) : defaults_(defaults) {}
  std::optional<std::string> value(std::string_view key) const override { return defaults_.value(key); }
  void setValue(std::string_view, std::string) override {}
  void registerDefault(std::string_view key, std::string value) override {
    defaults_.registerDefault(key, std::move(value));
  }

 private:
  foundation::UserDefaults& defaults_;
};

/// `sentence` about `file`, as the command line says it.
QString about(const QString& file, const QString& sentence) {
  return fromUtf8(foundation::oneLine(toUtf8(file + QStringLiteral(": ") + sentence)));
}

/// Reads a document file. Returns why that failed, in one sentence that names the file.
std::optional<QString> loadDocument(app::NCDocument& document, const QString& path,
                                    const foundation::FileStore& files) {
  const auto failure = [&](const std::string& reason) { return about(path, fromUtf8(reason)); };
  const auto read = files.contents(QFile::encodeName(path).toStdString());
  if (const auto* error = std::get_if<foundation::FileError>(&read)) return failure(error->reason);
  try {
    document.loadDataRepresentation(std::get<std::vector<std::byte>>(read), {});
  } catch (const std::runtime_error& error) {
    return failure(model::refusalText(error));
  }
  if (!document.patientRecord()) return about(path, said("PageFiles", "holds no patient"));
  return std::nullopt;
}

/// The pages of one document after the other.
class Export {
 public:
  Export(const PageExport& wanted, const foundation::Services& userServices)
      : wanted_(wanted),
        defaults_(userServices.defaults),
        services_{.clock = userServices.clock,
                  .calendar = userServices.calendar,
                  .localizer = userServices.localizer,
                  .defaults = defaults_,
                  .files = userServices.files,
                  .log = userServices.log,
                  .notifications = userServices.notifications} {
    app::NCAppController(services_, controller_).awakeFromNib();
  }

  WrittenPages run() {
    if (!wanted_.writeOneFile && !QDir().mkpath(wanted_.folder)) {
      std::error_code error;
      std::filesystem::create_directories(QFile::encodeName(wanted_.folder).toStdString(), error);
      const QString reason =
          fromUtf8(foundation::said(foundation::Sentence::ofSystem(error.message()), services_.localizer));
      result_.sentences << about(wanted_.folder,
                                 said("PageFiles", "the folder could not be made (%1)").arg(reason));
      return result_;
    }
    const int total = static_cast<int>(wanted_.files.size());
    for (int i = 0; i < total; ++i) {
      if (wanted_.onProgress) wanted_.onProgress(i, total);
      writeDocument(wanted_.files[i]);
    }
    if (wanted_.onProgress) wanted_.onProgress(total, total);
    return result_;
  }

 private:
  /// One page of one fetus.
  struct Place {
    std::int64_t fetus;
    std::int64_t page;
  };

  void writeDocument(const QString& file) {
    app::NCDocument document({.services = services_, .alerts = alerts_, .controller = controller_});
    if (const auto sentence = loadDocument(document, file, services_.files)) {
      result_.sentences << *sentence;
      return;
    }
    document.windowControllerDidLoadNib();
    document.setOnPaper(true);
    document.setOverlay(wanted_.overlay);
    const std::vector<Place> places = placesOf(document);
    if (places.empty()) {
      result_.sentences << about(file, said("PageFiles", "it has no such fetus or page"));
      return;
    }
    const std::int64_t fetuses = document.patientRecord()->numberOfFetuses();
    if (document.multiplePopUp().numberOfItems() == 0 && !wanted_.fetus) {
      result_.warnings << about(
          file, said("PageFiles",
                     "it says %1 fetuses, which cannot be chosen from; the pages are those of the first")
                    .arg(fetuses));
    }
    if (wanted_.writeOneFile && !isOneFile(places)) {
      result_.sentences << about(
          file, said("PageFiles", "its pages are several files, which standard output cannot take"));
      return;
    }
    const QString stem = fileNameFrom(QFileInfo(file).completeBaseName());
    for (const PageFormat format : wanted_.formats) {
      if (format == PageFormat::pdf) {
        writeAsOneFile(document, places, stem);
      } else {
        writeAsFiles(document, places, stem, format);
      }
    }
  }

  std::vector<Place> placesOf(const app::NCDocument& document) const {
    const auto pages = wanted_.pages.empty() ? model::chosenPages("all").pages : wanted_.pages;
    // A damaged file counts more fetuses than can be chosen; its first is there all the same.
    const std::int64_t fetuses = std::max<std::int64_t>(document.multiplePopUp().numberOfItems(), 1);
    std::vector<Place> places;
    for (std::int64_t fetus = 0; fetus < fetuses; ++fetus) {
      if (wanted_.fetus && *wanted_.fetus != fetus) continue;
      for (const model::PatientPage page : pages) places.push_back({fetus, model::indexOf(page)});
    }
    return places;
  }

  /// Whether all that is wanted is one file.
  bool isOneFile(const std::vector<Place>& places) const {
    return wanted_.files.size() == 1 && wanted_.formats.size() == 1 &&
           (wanted_.formats.front() == PageFormat::pdf || places.size() == 1);
  }

  /// The page as it goes out, with that fetus on show.
  LaidOutSheet sheetAt(app::NCDocument& document, const std::vector<Place>& places, std::size_t i,
                       bool isOneOfMany) {
    const Place& place = places[i];
    if (place.fetus < document.multiplePopUp().numberOfItems() && place.fetus != document.currentFetus()) {
      document.multiplePopUp().selectItemAtIndex(place.fetus);
      document.chooseFetus(document.multiplePopUp());
    }
    framework::PageFoot foot;
    if (wanted_.hasFoot) {
      foot = isOneOfMany ? document.footOfPage(place.page, static_cast<std::int64_t>(i) + 1,
                                               static_cast<std::int64_t>(places.size()))
                         : document.footOfPage(place.page, 1, 1);
    }
    framework::SheetFacts facts = document.factsOfPage(place.page);
    // A file of several fetuses is not named after the first.
    if (isOneOfMany && places.front().fetus != places.back().fetus)
      facts.title = foundation::oneLine(document.suggestedFileName());
    return LaidOutSheet({.page = document.tabView().page(place.page), .foot = foot, .facts = facts}, texts_);
  }

  void writeAsOneFile(app::NCDocument& document, const std::vector<Place>& places, const QString& stem) {
    PdfPages pdf;
    bool isPainted = true;
    for (std::size_t i = 0; i < places.size() && isPainted; ++i)
      isPainted = pdf.add(sheetAt(document, places, i, true));
    write(stem, PageFormat::pdf, isPainted ? pdf.finish() : QByteArray());
  }

  void writeAsFiles(app::NCDocument& document, const std::vector<Place>& places, const QString& stem,
                    PageFormat format) {
    const std::int64_t fetuses = document.multiplePopUp().numberOfItems();
    for (std::size_t i = 0; i < places.size(); ++i) {
      const LaidOutSheet sheet = sheetAt(document, places, i, false);
      const QString fetus = fetuses > 1
                                ? QStringLiteral(" %1 of %2")
                                      .arg(QString::number(places[i].fetus + 1), QString::number(fetuses))
                                : QString();
      write(stem + fetus + QStringLiteral(" - ") + fileNameFrom(fromUtf8(sheet.page().name())), format,
            bytesOfSheet(sheet, format, wanted_.pngScale));
    }
  }

  /// Under `name`, or where a document before has written that, under the first name with a number that is free.
  void write(const QString& name, PageFormat format, const QByteArray& bytes) {
    if (wanted_.writeOneFile) {
      const auto reason = bytes.isEmpty() ? std::optional(said("PageFiles", "it could not be painted"))
                                          : wanted_.writeOneFile(bytes);
      if (reason) result_.sentences << about(said("PageFiles", "standard output"), *reason);
      return;
    }
    const std::string_view extension = framework::extensionOf(format);
    const QString fileName = fromUtf8(
        framework::freeFileName(toUtf8(name), {}, std::string(".").append(extension),
                                [&](const std::string& each) { return taken_.contains(fromUtf8(each)); }));
    taken_.insert(fileName);
    const QString path = QDir(wanted_.folder).filePath(fileName);
    if (!wanted_.mayReplace && services_.files.exists(QFile::encodeName(path).toStdString())) {
      result_.warnings << about(path, said("PageFiles", "it is there already, and stays as it is"));
      return;
    }
    if (const auto error = writeBytes(services_.files, QFile::encodeName(path).toStdString(), bytes)) {
      result_.sentences << about(path, fromUtf8(error->reason));
    } else {
      result_.paths << path;
    }
  }

  const PageExport& wanted_;
  ReadOnlyDefaults defaults_;
  foundation::Services services_;
  NoAlerts alerts_;
  NoPanels panels_;
  framework::DocumentController controller_{services_, alerts_, panels_};
  WrittenPages result_;
  QSet<QString> taken_;
  std::shared_ptr<TextLayouts> texts_ = std::make_shared<TextLayouts>();
};

}  // namespace

QString fileNameFrom(const QString& stem) {
  constexpr qsizetype kLongestStem = 200;
  QString name = stem;
  for (QChar& sign : name) {
    if (sign == u'/' || sign.category() == QChar::Other_Control) sign = u'-';
  }
  while (name.startsWith(u'.')) name.remove(0, 1);
  while (QFile::encodeName(name).size() > kLongestStem) name.chop(name.back().isLowSurrogate() ? 2 : 1);
  return name.isEmpty() ? said("PageFiles", "Untitled") : name;
}

WrittenPages exportPages(const PageExport& wanted, const foundation::Services& services) {
  return Export(wanted, services).run();
}

}  // namespace nascor::qt
