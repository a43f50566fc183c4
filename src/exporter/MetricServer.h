#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "exporter/MetricWriter.h"
#include "exporter/Passwords.h"
#include "platform/FileDescriptor.h"

namespace lurkwell {

/// What protects the answers.
struct Protection {
  /// PEM texts; empty for plain HTTP.
  std::string certificate;
  std::string key;
  /// Null for answers to everybody.
  std::shared_ptr<Passwords> passwords;
};

/// What is wrong, in a sentence.
struct ServerError {
  std::string words;
};

/// Serves /metrics over HTTP, on the caller's thread and when it is told to. What others send and
/// how slowly they do takes neither time nor room beyond bounds: so many connections, of which the
/// one that has waited longest gives way, so much memory for each, so long for a request.
class MetricServer {
 public:
  static constexpr unsigned kMostConnections = 64;
  static constexpr unsigned kMemoryOfConnection = 16 * 1024;
  /// For the first request, for an answer to be taken, and for the next request.
  static constexpr std::chrono::seconds kPatienceForRequest{10};
  static constexpr std::chrono::seconds kPatienceForAnswer{30};
  static constexpr std::chrono::seconds kPatienceForNext{150};

  /// The text of an answer; null when there is none.
  using Source = std::function<std::shared_ptr<const std::string>(MetricFormat)>;
  using Started = std::variant<std::unique_ptr<MetricServer>, ServerError>;

  /// Serves those who come to the socket, of which it has a descriptor of its own.
  static Started Start(const FileDescriptor& socket, const Protection& protection, Source source);

  /// Ends all connections.
  ~MetricServer();
  MetricServer(const MetricServer&) = delete;
  MetricServer& operator=(const MetricServer&) = delete;

  /// Becomes readable when there is something to do.
  int Descriptor() const;
  /// After which time Serve is to be called at the latest; nothing for none.
  std::optional<std::chrono::milliseconds> Patience() const;
  /// Does what there is to do, without waiting.
  void Serve();

  /// For the library's callbacks.
  struct State;

 private:
  explicit MetricServer(std::unique_ptr<State> state);

  std::unique_ptr<State> mState;
};

/// Whether a certificate and its key can be used together; nothing when they can.
std::optional<ServerError> CheckCertificate(const std::string& certificate, const std::string& key);

}  // namespace lurkwell
