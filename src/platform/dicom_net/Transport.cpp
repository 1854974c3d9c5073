// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "dicom_net/Transport.h"

#include <cerrno>
#include <optional>
#include <span>
#include <utility>

#include <dcmtk/dcmnet/dcmtrans.h>
#include <dcmtk/dcmtls/tlslayer.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace nascor::dicom_net {

using foundation::Sentence;

namespace {

/// A connection that is cut at the deadline, and whose bytes pass the gate.
class WatchedConnection final : public DcmTransportConnection {
 public:
  WatchedConnection(std::unique_ptr<DcmTransportConnection> inner, DcmNativeSocketType socket,
                    Deadline& deadline, Seen& seen)
      : DcmTransportConnection(socket), inner_(std::move(inner)), deadline_(deadline), seen_(seen) {
    seen_.isConnected = true;
    // Question and answer take turns: a short one that waits for more to come waits for nothing.
    set(TCP_NODELAY);
    deadline_.watch(socket);
  }
  ~WatchedConnection() override { deadline_.release(); }
  WatchedConnection(const WatchedConnection&) = delete;
  WatchedConnection& operator=(const WatchedConnection&) = delete;

  OFCondition serverSideHandshake() override { return inner_->serverSideHandshake(); }
  OFCondition clientSideHandshake() override {
    const OFCondition result = inner_->clientSideHandshake();
    seen_.isSecured = result.good();
    return result;
  }
  OFCondition renegotiate(const char* suite) override { return inner_->renegotiate(suite); }

  ssize_t read(void* buffer, size_t size) override {
    // A server whose system waits for a sign of receipt before it sends the next part gets it at once. The wish lasts for
    // one reading.
    set(TCP_QUICKACK);
    const ssize_t count = inner_->read(buffer, size);
    if (count <= 0) {
      seen_.isEnded = seen_.isEnded || count == 0 || errno != EINTR;
      return count;
    }
    if (seen_.gate.take({static_cast<const std::byte*>(buffer), static_cast<std::size_t>(count)}))
      return count;
    errno = EPROTO;
    return -1;
  }
  ssize_t write(void* buffer, size_t size) override {
    const ssize_t count = inner_->write(buffer, size);
    seen_.isEnded = seen_.isEnded || (count <= 0 && errno != EINTR);
    return count;
  }

  void close() override {
    letGo();
    inner_->close();
  }
  void closeTransportConnection() override {
    letGo();
    inner_->closeTransportConnection();
  }
  unsigned long getPeerCertificateLength() override { return inner_->getPeerCertificateLength(); }
  unsigned long getPeerCertificate(void* buffer, unsigned long size) override {
    return inner_->getPeerCertificate(buffer, size);
  }
  OFBool networkDataAvailable(int timeout) override { return inner_->networkDataAvailable(timeout); }
  OFBool isTransparentConnection() override { return OFFalse; }
  OFString& dumpConnectionParameters(OFString& text) override {
    return inner_->dumpConnectionParameters(text);
  }

 private:
  void set(int option) {
    const int on = 1;
    ::setsockopt(static_cast<int>(getSocket()), IPPROTO_TCP, option, &on, sizeof on);
  }

  /// The number of a closed socket may be another's soon. What an encrypted connection says at its end takes no longer
  /// than what remains.
  void letGo() {
    const auto remaining = deadline_.remaining();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(remaining);
    const timeval longest{.tv_sec = seconds.count(),
                          .tv_usec = std::chrono::microseconds(remaining - seconds).count()};
    ::setsockopt(static_cast<int>(getSocket()), SOL_SOCKET, SO_SNDTIMEO, &longest, sizeof longest);
    deadline_.release();
  }

  std::unique_ptr<DcmTransportConnection> inner_;
  Deadline& deadline_;
  Seen& seen_;
};

class PlainLayer final : public DcmTransportLayer {
 public:
  PlainLayer(Deadline& deadline, Seen& seen) : deadline_(deadline), seen_(seen) {}

  DcmTransportConnection* createConnection(DcmNativeSocketType socket, OFBool /*useSecureLayer*/) override {
    return new WatchedConnection(std::make_unique<DcmTCPConnection>(socket), socket, deadline_, seen_);
  }

 private:
  Deadline& deadline_;
  Seen& seen_;
};

/// Never makes a plain connection, whatever it is asked for.
class SecureLayer final : public DcmTransportLayer {
 public:
  SecureLayer(Deadline& deadline, Seen& seen)
      : tls_(NET_REQUESTOR, nullptr, OFTrue), deadline_(deadline), seen_(seen) {}

  /// What cannot be used; nothing where all can.
  std::optional<Sentence> prepare(const exchange::TlsSettings& settings, const std::string& host) {
    SSL_CTX* context = tls_.getNativeHandle();
    if (context == nullptr)
      return Sentence("ReportServer", "encrypted connections are not there: OpenSSL does not begin");
    // TLS 1.2 and later, with ephemeral keys (forward secrecy) and AEAD ciphers, which detect changes on the way.
    if (SSL_CTX_set_min_proto_version(context, TLS1_2_VERSION) != 1 ||
        SSL_CTX_set_cipher_list(context, "ECDHE+AESGCM:ECDHE+CHACHA20:DHE+AESGCM") != 1)
      return Sentence("ReportServer",
                      "encrypted connections are not there: OpenSSL has none of their ciphers");
    SSL_CTX_set_security_level(context, 2);
    if (tls_.addTrustedCertificateFile(settings.authorityFile.c_str(), DCF_Filetype_PEM).bad())
      return Sentence("ReportServer", "%1 holds no certificate in PEM that can be read")
          .with(settings.authorityFile);
    if (!settings.certificateFile.empty()) {
      // A key with a password is refused: nothing here may ask for it.
      tls_.setPrivateKeyPasswd("");
      if (tls_.setPrivateKeyFile(settings.keyFile.c_str(), DCF_Filetype_PEM).bad())
        return Sentence("ReportServer", "%1 holds no key in PEM that can be read without a password")
            .with(settings.keyFile);
      // Not by DCMTK, which loses the certificate's key each time; and this takes those of authorities between, too.
      if (SSL_CTX_use_certificate_chain_file(context, settings.certificateFile.c_str()) != 1)
        return Sentence("ReportServer", "%1 holds no certificate in PEM that can be read")
            .with(settings.certificateFile);
      if (!tls_.checkPrivateKeyMatchesCertificate())
        return Sentence("ReportServer", "%1 is not the key of %2")
            .with(settings.keyFile, settings.certificateFile);
    }
    tls_.setCertificateVerification(DCV_requireCertificate);
    // A certificate of another server of the same authority is refused.
    X509_VERIFY_PARAM* wanted = SSL_CTX_get0_param(context);
    in_addr number{};
    const bool isNumber = ::inet_pton(AF_INET, host.c_str(), &number) == 1;
    const int isSet = isNumber ? X509_VERIFY_PARAM_set1_ip_asc(wanted, host.c_str())
                               : X509_VERIFY_PARAM_set1_host(wanted, host.c_str(), host.size());
    if (isSet != 1)
      return Sentence("ReportServer", "the name of the host cannot be looked for in a certificate");
    SSL_CTX_set_cert_verify_callback(context, &SecureLayer::verify, &seen_);
    return std::nullopt;
  }

  DcmTransportConnection* createConnection(DcmNativeSocketType socket, OFBool /*useSecureLayer*/) override {
    std::unique_ptr<DcmTransportConnection> inner(tls_.createConnection(socket, OFTrue));
    if (!inner) return nullptr;
    return new WatchedConnection(std::move(inner), socket, deadline_, seen_);
  }

 private:
  static int verify(X509_STORE_CTX* store, void* seen) {
    const int isGood = X509_verify_cert(store);
    if (isGood == 1) return 1;
    static_cast<Seen*>(seen)->refusal = X509_verify_cert_error_string(X509_STORE_CTX_get_error(store));
    return 0;
  }

  DcmTLSTransportLayer tls_;
  Deadline& deadline_;
  Seen& seen_;
};

}  // namespace

std::variant<std::unique_ptr<DcmTransportLayer>, Sentence> transportTo(const exchange::ServerAddress& address,
                                                                       Deadline& deadline, Seen& seen) {
  if (!address.tls) return std::make_unique<PlainLayer>(deadline, seen);
  auto layer = std::make_unique<SecureLayer>(deadline, seen);
  if (auto fault = layer->prepare(*address.tls, address.host)) return std::move(*fault);
  return layer;
}

}  // namespace nascor::dicom_net
