// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "user-guide/WindowPictures.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/QtLocalizer.h"
#include "base/Text.h"
#include "foundation/Clock.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Services.h"
#include "foundation/ShortDate.h"
#include "foundation/UserDefaults.h"
#include "model/PatientPage.h"
#include "posix/PosixCalendar.h"
#include "posix/PosixFileStore.h"
#include "program/DocumentApplication.h"
#include "window/PageView.h"

namespace nascor::user_guide {
namespace {

constexpr double kScale = 2.0;
const QSize kWindowSize(1180, 760);
constexpr foundation::Date kToday{
    826624800.0};  // 13 March 2027, 10 o'clock: the day of the sample's last examination

class StandingClock final : public foundation::Clock {
 public:
  foundation::Date now() const override { return kToday; }
};

/// A guide shows the program as it comes, not as its maker has set it.
class FreshDefaults final : public foundation::UserDefaults {
 public:
  std::optional<std::string> value(std::string_view key) const override {
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }
  void setValue(std::string_view key, std::string value) override {
    values_.insert_or_assign(std::string(key), std::move(value));
  }
  void registerDefault(std::string_view key, std::string value) override {
    values_.try_emplace(std::string(key), std::move(value));
  }

 private:
  std::map<std::string, std::string, std::less<>> values_;
};

class NoLog final : public foundation::Log {
 public:
  void write(std::string_view) override {}
};

void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

QImage imageOf(QWidget& widget) {
  QImage image((QSizeF(widget.size()) * kScale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kScale);
  image.fill(Qt::white);
  widget.render(&image);
  return image;
}

}  // namespace

void leaveThisMachine(const QString& home) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_CONFIG_HOME", home.toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.toUtf8());
  qputenv("TZ", "UTC");
  qunsetenv("QT_SCALE_FACTOR");
}

struct WindowPictures::Application {
  explicit Application(const QLocale& locale) : localizer(locale) {}

  StandingClock clock;
  posix::PosixCalendar calendar;
  qt::QtLocalizer localizer;
  FreshDefaults defaults;
  QTemporaryDir folder;
  posix::PosixFileStore files{folder.path().toStdString()};
  NoLog log;
  foundation::NotificationCenter notifications;
  qt::DocumentApplication documents{services()};
  QTemporaryDir samples;

  foundation::Services services() {
    return {.clock = clock,
            .calendar = calendar,
            .localizer = localizer,
            .defaults = defaults,
            .files = files,
            .log = log,
            .notifications = notifications};
  }

  /// The window of a sample patient, in front.
  qt::DocumentWindow& open(const char* sample) {
    documents.openFiles({samples.filePath(QLatin1String(sample))});
    framework::ZuDocument* current = documents.documents().currentDocument();
    qt::DocumentWindow* window = current ? documents.windowOf(*current) : nullptr;
    if (!window || !current->filePath()) throw std::runtime_error(std::string("no window shows ") + sample);
    window->resize(kWindowSize);
    settle();
    return *window;
  }
  template <class Wanted>
  static Wanted& part(const QObject& parent, const QString& name) {
    auto* found = parent.findChild<Wanted*>(name);
    if (!found) throw std::runtime_error("there is no " + name.toStdString());
    return *found;
  }
  /// As if the user had typed it.
  static void type(const QWidget& window, const char* field, const std::string& text) {
    auto& edit = part<QLineEdit>(window, QLatin1String(field));
    edit.setFocus();
    edit.selectAll();
    edit.insert(qt::fromUtf8(text));
    settle();
  }
  /// The dialog that the action opens beside the window.
  static QDialog& dialog(qt::DocumentWindow& window, const char* action, const char* name) {
    part<QAction>(window, QLatin1String(action)).trigger();
    settle();
    return part<QDialog>(window, QLatin1String(name));
  }
  /// The dialog that the action opens in front of everything, until it is answered.
  static QImage modal(qt::DocumentWindow& window, const QString& action) {
    QImage image;
    QTimer::singleShot(0, &window, [&] {
      settle();
      auto* shown = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!shown) return;
      image = imageOf(*shown);
      shown->reject();
    });
    part<QAction>(window, action).trigger();
    if (image.isNull()) throw std::runtime_error(action.toStdString() + " opens no dialog");
    return image;
  }

  QImage page(const std::string& word) {
    const auto* const facts = std::ranges::find(model::kPatientPages, word, &model::PatientPageFacts::word);
    if (facts == model::kPatientPages.end()) throw std::runtime_error("there is no page " + word);
    qt::DocumentWindow& window = open("singleton.nascor");
    auto& tabs = part<QTabWidget>(window, QStringLiteral("tabView"));
    tabs.setCurrentIndex(static_cast<int>(facts->page));
    settle();
    auto& view = dynamic_cast<qt::PageView&>(*tabs.currentWidget());
    return imageOf(view).copy(QRectF(view.paper().topLeft() * kScale, view.paper().size() * kScale).toRect());
  }
  QImage question() {
    qt::DocumentWindow& window = open("singleton.nascor");
    dialog(window, "eddFromLMPAction", "lmpWindow");
    for (QWidget* shown : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(shown);
      if (!box || !box->isVisible()) continue;
      QImage image = imageOf(*box);
      box->reject();
      settle();
      return image;
    }
    throw std::runtime_error("nothing is asked");
  }
};

WindowPictures::WindowPictures(const QString& samples, const QLocale& locale)
    : application_(std::make_unique<Application>(locale)) {
  // Copies: who builds may have the samples open, which would be asked about here.
  for (const QFileInfo& sample : QDir(samples).entryInfoList(QDir::Files))
    QFile::copy(sample.filePath(), application_->samples.filePath(sample.fileName()));
}
WindowPictures::~WindowPictures() = default;

QImage WindowPictures::picture(const QString& name) {
  Application& shown = *application_;
  using Maker = std::function<QImage()>;
  const std::map<QString, Maker> makers{
      {QStringLiteral("window"),
       [&] {
         qt::DocumentWindow& window = shown.open("singleton.nascor");
         Application::part<QTabWidget>(window, QStringLiteral("tabView")).setCurrentIndex(1);
         settle();
         return imageOf(window);
       }},
      {QStringLiteral("window-twins"), [&] { return imageOf(shown.open("twins.nascor")); }},
      {QStringLiteral("dialog-lmp"),
       [&] {
         QDialog& dialog = Application::dialog(shown.open("no-edd.nascor"), "eddFromLMPAction", "lmpWindow");
         Application::type(dialog, "lmpWindowLMP",
                           foundation::shortDateText({.year = 2026, .month = 7, .day = 4},
                                                     shown.localizer.shortDateForm()));
         return imageOf(dialog);
       }},
      {QStringLiteral("dialog-crl"),
       [&] {
         QDialog& dialog = Application::dialog(shown.open("no-edd.nascor"), "eddFromCRLAction", "crlWindow");
         Application::type(dialog, "crlWindowCRL", std::string("45") + shown.localizer.decimalSign() + "0");
         return imageOf(dialog);
       }},
      {QStringLiteral("dialog-measurements"),
       [&] {
         return imageOf(Application::dialog(shown.open("no-edd.nascor"), "eddFromMeasurementsAction",
                                            "measurementsWindow"));
       }},
      {QStringLiteral("dialog-adjust"),
       [&] {
         return imageOf(Application::dialog(shown.open("singleton.nascor"), "adjustDeliveryAction",
                                            "adjustDeliveryPanel"));
       }},
      {QStringLiteral("dialog-compare"),
       [&] {
         return imageOf(Application::dialog(shown.open("twins.nascor"), "compareAction", "compareDialog"));
       }},
      {QStringLiteral("dialog-question"), [&] { return shown.question(); }},
      {QStringLiteral("dialog-export-settings"), [&] {
         return Application::modal(shown.open("singleton.nascor"), QStringLiteral("exportSettingsAction"));
       }}};
  if (const auto found = makers.find(name); found != makers.end()) return found->second();
  if (name.startsWith(QLatin1String("page-"))) return shown.page(name.mid(5).toStdString());
  throw std::runtime_error("there is no picture " + name.toStdString());
}

}  // namespace nascor::user_guide
