#include "qt/PageFiles.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSet>
#include <cmath>
#include <stdexcept>
#include <variant>

#include "app/NCAppController.h"
#include "app/NCDocument.h"
#include "foundation/FileStore.h"
#include "foundation/UserDefaults.h"
#include "framework/DocumentController.h"
#include "qt/QtSurface.h"
#include "qt/Text.h"

namespace nascor::qt {

using framework::Page;

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kPngScale = 2.0;

constexpr std::int64_t kBPDPage = 1;

/// There is nobody to ask.
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

QString said(const char* sentence) { return QCoreApplication::translate("PageFiles", sentence); }

/// Reads a document file. Returns why that failed, in one sentence that names the file.
std::optional<QString> loadDocument(app::NCDocument& document, const QString& path,
                                    const foundation::FileStore& files) {
  const auto failure = [&](const std::string& reason) {
    return said("%1 could not be opened: %2.").arg(path, fromUtf8(reason));
  };
  const auto read = files.contents(QFile::encodeName(path).toStdString());
  if (const auto* error = std::get_if<foundation::FileError>(&read)) return failure(error->reason);
  try {
    document.loadDataRepresentation(std::get<std::vector<std::byte>>(read), {});
  } catch (const std::runtime_error& error) {
    return failure(error.what());
  }
  return std::nullopt;
}

/// `name`, or where that is taken the first of "name (2)", "name (3)", ... that is not.
QString untaken(const QString& name, QSet<QString>& taken) {
  QString result = name;
  for (int i = 2; taken.contains(result); ++i)
    result = QStringLiteral("%1 (%2)").arg(name, QString::number(i));
  taken.insert(result);
  return result;
}

}  // namespace

QByteArray pngOfPage(Page& page, double scale) {
  QImage image(static_cast<int>(std::lround(Page::kWidth * scale)),
               static_cast<int>(std::lround(Page::kHeight * scale)), QImage::Format_RGB32);
  if (image.isNull()) return {};
  constexpr double kMetresPerInch = 0.0254;
  const int dotsPerMetre = static_cast<int>(std::lround(scale * kPointsPerInch / kMetresPerInch));
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  QPainter painter;
  if (!painter.begin(&image)) return {};
  TextLayouts texts;
  paintPage(painter, page, QRectF(image.rect()), texts);
  painter.end();
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  return image.save(&file, "PNG") ? file.data() : QByteArray();
}

QByteArray pdfOfPage(Page& page) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QPdfWriter writer(&file);
  writer.setResolution(static_cast<int>(kPointsPerInch));
  const QPageSize size(QSizeF(Page::kWidth, Page::kHeight), QPageSize::Point, QString(),
                       QPageSize::ExactMatch);
  if (!writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()))) return {};
  writer.setTitle(fromUtf8(page.title()));
  writer.setCreator(QCoreApplication::applicationName());
  QPainter painter;
  if (!painter.begin(&writer)) return {};
  TextLayouts texts;
  paintPage(painter, page, QRectF(0.0, 0.0, Page::kWidth, Page::kHeight), texts);
  return painter.end() ? file.data() : QByteArray();
}

QString fileNameFrom(const QString& stem) {
  constexpr qsizetype kLongestStem = 200;
  QString name = stem;
  for (QChar& sign : name) {
    if (sign == u'/' || sign.category() == QChar::Other_Control) sign = u'-';
  }
  while (name.startsWith(u'.')) name.remove(0, 1);
  while (QFile::encodeName(name).size() > kLongestStem) name.chop(name.back().isLowSurrogate() ? 2 : 1);
  return name.isEmpty() ? said("Untitled") : name;
}

WrittenPages writePages(const QString& folder, const QStringList& files,
                        const foundation::Services& userServices) {
  ReadOnlyDefaults defaults(userServices.defaults);
  const foundation::Services services{.clock = userServices.clock,
                                      .calendar = userServices.calendar,
                                      .localizer = userServices.localizer,
                                      .defaults = defaults,
                                      .files = userServices.files,
                                      .log = userServices.log,
                                      .notifications = userServices.notifications};
  NoAlerts alerts;
  NoPanels panels;
  framework::DocumentController controller(services, alerts, panels);
  app::NCAppController(services, controller).awakeFromNib();
  WrittenPages result;
  if (!QDir().mkpath(folder)) {
    result.sentences << said("The folder %1 could not be made.").arg(folder);
    return result;
  }
  QSet<QString> taken;
  for (const QString& file : files) {
    app::NCDocument document({.services = services, .alerts = alerts, .controller = controller});
    document.setOnPaper(true);
    if (const auto sentence = loadDocument(document, file, services.files)) {
      result.sentences << *sentence;
      continue;
    }
    if (!document.patientRecord()) {
      result.sentences << said("%1 holds no patient.").arg(file);
      continue;
    }
    document.windowControllerDidLoadNib();
    Page& page = document.tabView().page(kBPDPage);
    const QString name = untaken(
        fileNameFrom(QFileInfo(file).completeBaseName()) + QStringLiteral(" - ") + fromUtf8(page.name()),
        taken);
    const auto write = [&](const char* extension, const QByteArray& bytes) {
      const QString path = QDir(folder).filePath(name + QLatin1String(extension));
      if (bytes.isEmpty()) {
        result.sentences << said("%1 could not be painted.").arg(path);
        return;
      }
      const auto error = services.files.replaceContents(
          QFile::encodeName(path).toStdString(),
          std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
      if (error) {
        result.sentences << said("%1 could not be written: %2.").arg(path, fromUtf8(error->reason));
      } else {
        result.paths << path;
      }
    };
    write(".png", pngOfPage(page, kPngScale));
    write(".pdf", pdfOfPage(page));
  }
  return result;
}

}  // namespace nascor::qt
