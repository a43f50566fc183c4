#pragma once

#include <QString>
#include <cstdint>

namespace lurkwell {

/// Why a server gave no figures.
struct FleetError {
  enum class Kind : std::uint8_t {
    kUnreachable,    ///< no connection, or it broke off
    kTimedOut,       ///< no whole answer in time
    kTooLarge,       ///< the answer goes on beyond what is read of one
    kCertificate,    ///< the server is not shown to be who it should be
    kNoEncryption,   ///< this system's Qt has no TLS
    kCredentials,    ///< it wants to know who asks, or another one
    kRedirected,     ///< it sends to another address, which `detail` is
    kNotPrometheus,  ///< what answers is something else
    kServer,         ///< it failed by itself, or was told to be busy
    kQuery,          ///< it understood and refused
  };
  Kind kind = Kind::kUnreachable;
  /// In the words of the server or the system: one line, of bounded length, any characters that
  /// can be shown.
  QString detail;

  /// What happened and what to do, in the user's words. Main thread.
  QString Text() const;
};

/// Another program's text on one line: without control characters, and cut where it is long. Pure.
QString OneLine(const QString& text, int most = 300);

}  // namespace lurkwell
