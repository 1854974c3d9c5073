// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ServerSettings.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <array>
#include <string_view>

#include "base/Text.h"

namespace nascor::qt {

using exchange::ServerAddress;

namespace {

constexpr std::string_view kHost = "Server Host";
constexpr std::string_view kPort = "Server Port";
constexpr std::string_view kServerTitle = "Server Title";
constexpr std::string_view kOwnTitle = "Server Own Title";
constexpr std::string_view kEncrypted = "Server Encrypted";
constexpr std::string_view kAuthority = "Server Authority File";
constexpr std::string_view kCertificate = "Server Certificate File";
constexpr std::string_view kKey = "Server Key File";

/// The port that the standard gives to such servers.
constexpr int kUsualPort = 11112;
constexpr int kLastPort = 65535;
/// Long enough for a hospital's server, short enough for a person who waits.
constexpr std::chrono::seconds kPatience{15};

std::string valueOf(const foundation::UserDefaults& defaults, std::string_view key) {
  return defaults.value(key).value_or("");
}

/// A line for the path of a file, with a button that asks for it.
class FileLine final : public QWidget {
 public:
  FileLine(const char* name, const std::string& path) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    edit_ = new QLineEdit(QFile::decodeName(QByteArray::fromStdString(path)));
    edit_->setObjectName(QLatin1String(name));
    auto* choose = new QPushButton(said("ServerSettings", "Choose..."));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, [this] {
      const QString chosen =
          QFileDialog::getOpenFileName(this, said("ServerSettings", "Choose"), edit_->text());
      if (!chosen.isEmpty()) edit_->setText(chosen);
    });
    row->addWidget(edit_, 1);
    row->addWidget(choose);
    setFocusProxy(edit_);
  }
  std::string path() const { return QFile::encodeName(edit_->text().trimmed()).toStdString(); }

 private:
  QLineEdit* edit_;
};

/// The fields of the dialog.
struct Fields {
  explicit Fields(const foundation::UserDefaults& defaults) {
    const auto line = [&](const char* name, std::string_view entry, const char* usual = "") {
      auto* edit = new QLineEdit(fromUtf8(defaults.value(entry).value_or(usual)));
      edit->setObjectName(QLatin1String(name));
      return edit;
    };
    host = line("serverHost", kHost);
    serverTitle = line("serverTitle", kServerTitle);
    ownTitle = line("serverOwnTitle", kOwnTitle, "NASCOR");
    port->setObjectName(QStringLiteral("serverPort"));
    port->setRange(1, kLastPort);
    const int kept = fromUtf8(valueOf(defaults, kPort)).toInt();
    port->setValue(kept > 0 ? kept : kUsualPort);
    encrypted = new QCheckBox(said("ServerSettings", "&Encrypted connection (TLS)"));
    encrypted->setObjectName(QStringLiteral("serverEncrypted"));
    encrypted->setChecked(foundation::boolForKey(defaults, kEncrypted));
    authority = new FileLine("serverAuthority", valueOf(defaults, kAuthority));
    certificate = new FileLine("serverCertificate", valueOf(defaults, kCertificate));
    key = new FileLine("serverKey", valueOf(defaults, kKey));
  }

  ServerAddress address() const {
    ServerAddress address{.host = toUtf8(host->text().trimmed()),
                          .port = port->value(),
                          .serverTitle = toUtf8(serverTitle->text().trimmed()),
                          .ownTitle = toUtf8(ownTitle->text().trimmed())};
    address.timeout = kPatience;
    if (encrypted->isChecked()) {
      address.tls = exchange::TlsSettings{
          .authorityFile = authority->path(), .certificateFile = certificate->path(), .keyFile = key->path()};
    }
    return address;
  }

  void keep(foundation::UserDefaults& defaults) const {
    const ServerAddress now = address();
    defaults.setValue(kHost, now.host);
    defaults.setValue(kPort, std::to_string(now.port));
    defaults.setValue(kServerTitle, now.serverTitle);
    defaults.setValue(kOwnTitle, now.ownTitle);
    defaults.setValue(kEncrypted, encrypted->isChecked() ? "YES" : "NO");
    defaults.setValue(kAuthority, authority->path());
    defaults.setValue(kCertificate, certificate->path());
    defaults.setValue(kKey, key->path());
  }

  QLineEdit* host;
  QSpinBox* port = new QSpinBox;
  QLineEdit* serverTitle;
  QLineEdit* ownTitle;
  QCheckBox* encrypted;
  FileLine* authority;
  FileLine* certificate;
  FileLine* key;
};

}  // namespace

std::optional<ServerAddress> preferredServer(const foundation::UserDefaults& defaults) {
  ServerAddress address{.host = valueOf(defaults, kHost),
                        .port = fromUtf8(valueOf(defaults, kPort)).toInt(),
                        .serverTitle = valueOf(defaults, kServerTitle),
                        .ownTitle = valueOf(defaults, kOwnTitle)};
  if (address.host.empty()) return std::nullopt;
  address.timeout = kPatience;
  if (foundation::boolForKey(defaults, kEncrypted)) {
    address.tls = exchange::TlsSettings{.authorityFile = valueOf(defaults, kAuthority),
                                        .certificateFile = valueOf(defaults, kCertificate),
                                        .keyFile = valueOf(defaults, kKey)};
  }
  return address;
}

QString serverName(const ServerAddress& address) {
  return QStringLiteral("%1 (%2:%3)")
      .arg(fromUtf8(address.serverTitle), fromUtf8(address.host), QString::number(address.port));
}

void askForServer(QWidget& window, foundation::UserDefaults& defaults, const foundation::Localizer& localizer,
                  const std::function<std::optional<QString>(const ServerAddress&)>& tries) {
  QDialog dialog(&window);
  dialog.setObjectName(QStringLiteral("serverSettings"));
  dialog.setWindowTitle(said("ServerSettings", "Server Settings"));
  auto* form = new QFormLayout(&dialog);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  const Fields fields(defaults);
  fields.host->setMinimumWidth(dialog.fontMetrics().averageCharWidth() * 45);
  form->addRow(said("ServerSettings", "&Host:"), fields.host);
  form->addRow(said("ServerSettings", "&Port:"), fields.port);
  form->addRow(said("ServerSettings", "AE &title of the server:"), fields.serverTitle);
  form->addRow(said("ServerSettings", "AE title of this prog&ram:"), fields.ownTitle);
  form->addRow(QString(), fields.encrypted);
  form->addRow(said("ServerSettings", "&Authority's certificate:"), fields.authority);
  form->addRow(said("ServerSettings", "&Own certificate:"), fields.certificate);
  form->addRow(said("ServerSettings", "Own &key:"), fields.key);

  auto* answer = new QLabel;
  answer->setObjectName(QStringLiteral("serverAnswer"));
  answer->setTextFormat(Qt::PlainText);
  answer->setWordWrap(true);
  answer->setMinimumHeight(dialog.fontMetrics().lineSpacing() * 3);
  answer->setAlignment(Qt::AlignTop);
  form->addRow(answer);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* test = buttons->addButton(said("ServerSettings", "Te&st"), QDialogButtonBox::ActionRole);
  test->setObjectName(QStringLiteral("testServer"));
  test->setAutoDefault(false);
  form->addRow(buttons);

  const auto follow = [&] {
    const bool isEncrypted = fields.encrypted->isChecked();
    for (QWidget* each : {static_cast<QWidget*>(fields.authority), static_cast<QWidget*>(fields.certificate),
                          static_cast<QWidget*>(fields.key)})
      each->setEnabled(isEncrypted);
    // Without a host there is no server, and nothing is ever sent anywhere.
    const bool isNone = fields.host->text().trimmed().isEmpty();
    const auto fault = isNone ? std::nullopt : exchange::faultOf(fields.address());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!fault);
    test->setEnabled(!isNone && !fault);
    if (isNone) {
      answer->setText(said("ServerSettings", "Without a host, Nascor contacts no server."));
    } else if (fault) {
      answer->setText(fromUtf8(saidAlone(*fault, localizer)));
    } else if (!isEncrypted) {
      answer->setText(said("ServerSettings", "Reports will cross the network in clear."));
    } else {
      answer->clear();
    }
  };
  for (QLineEdit* edit : dialog.findChildren<QLineEdit*>())
    QObject::connect(edit, &QLineEdit::textChanged, &dialog, follow);
  QObject::connect(fields.encrypted, &QCheckBox::toggled, &dialog, follow);
  QObject::connect(test, &QPushButton::clicked, &dialog, [&] {
    const auto why = tries(fields.address());
    answer->setText(why ? *why : said("ServerSettings", "The server answers."));
  });
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  follow();
  if (dialog.exec() == QDialog::Accepted) fields.keep(defaults);
}

}  // namespace nascor::qt
