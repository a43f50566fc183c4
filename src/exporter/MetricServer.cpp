#include "exporter/MetricServer.h"

#include <fcntl.h>
#include <gnutls/gnutls.h>
#include <microhttpd.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace lurkwell {
namespace {

using Moment = std::chrono::steady_clock::time_point;

Moment Now() {
  return std::chrono::steady_clock::now();
}

/// What is known of a connection.
struct Peer {
  enum class Phase { kFirst, kAnswered, kNext };

  int descriptor = -1;
  Moment since;
  Phase phase = Phase::kFirst;

  Moment End() const {
    switch (phase) {
      case Phase::kFirst:
        return since + MetricServer::kPatienceForRequest;
      case Phase::kAnswered:
        return since + MetricServer::kPatienceForAnswer;
      case Phase::kNext:
        break;
    }
    return since + MetricServer::kPatienceForNext;
  }
};

constexpr char kFrontPage[] =
    "<!DOCTYPE html><html lang=\"en\"><head><meta charset=\"utf-8\"><title>lurkwell-export</title>"
    "</head><body><h1>lurkwell-export</h1><p><a href=\"/metrics\">Metrics</a> of this machine and "
    "of groups of its processes, for Prometheus.</p></body></html>\n";

const char* HeaderOf(MHD_Connection* connection, const char* name) {
  const char* const value = ::MHD_lookup_connection_value(connection, MHD_HEADER_KIND, name);
  return value != nullptr ? value : "";
}

std::string AddressOf(MHD_Connection* connection) {
  const auto* info = ::MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
  std::array<char, NI_MAXHOST> host{};
  if (info == nullptr || info->client_addr == nullptr) return {};
  const ::socklen_t length =
      info->client_addr->sa_family == AF_INET6 ? sizeof(::sockaddr_in6) : sizeof(::sockaddr_in);
  ::getnameinfo(info->client_addr, length, host.data(), host.size(), nullptr, 0, NI_NUMERICHOST);
  return host.data();
}

struct ResponseCloser {
  void operator()(MHD_Response* response) const { ::MHD_destroy_response(response); }
};
using Response = std::unique_ptr<MHD_Response, ResponseCloser>;

Response TextResponse(std::string_view text, const char* type) {
  Response response(::MHD_create_response_from_buffer(text.size(), const_cast<char*>(text.data()),
                                                      MHD_RESPMEM_MUST_COPY));
  if (response != nullptr) {
    ::MHD_add_response_header(response.get(), "Content-Type", type);
    ::MHD_add_response_header(response.get(), "X-Content-Type-Options", "nosniff");
  }
  return response;
}

MHD_Result Queue(MHD_Connection* connection, unsigned status, const Response& response) {
  if (response == nullptr) return MHD_NO;
  return ::MHD_queue_response(connection, status, response.get());
}

MHD_Result Say(MHD_Connection* connection, unsigned status, std::string_view words) {
  return Queue(connection, status, TextResponse(words, "text/plain; charset=utf-8"));
}

}  // namespace

struct MetricServer::State {
  ~State() {
    if (daemon != nullptr) ::MHD_stop_daemon(daemon);
  }

  MHD_Result Answer(MHD_Connection* connection, std::string_view path, std::string_view method,
                    void** isKnown);
  MHD_Result Refuse(MHD_Connection* connection, Passwords::Verdict verdict) const;
  MHD_Result AnswerMetrics(MHD_Connection* connection);
  void Came(MHD_Connection* connection);
  void MakeRoom();
  void EndTheLate();
  Peer* Find(MHD_Connection* connection);

  MHD_Daemon* daemon = nullptr;
  Protection protection;
  Source source;
  std::unordered_map<MHD_Connection*, Peer> peers;
  /// What the library complains of while it starts.
  std::string complaint;
  bool isStarting = true;
};

namespace {

extern "C" {

MHD_Result TakeRequest(void* state, MHD_Connection* connection, const char* path,
                       const char* method, const char*, const char*, std::size_t*, void** known) {
  return static_cast<MetricServer::State*>(state)->Answer(connection, path, method, known);
}

void* TakeLine(void* state, const char*, MHD_Connection* connection) {
  if (auto* peer = static_cast<MetricServer::State*>(state)->Find(connection)) {
    peer->phase = Peer::Phase::kAnswered;
    peer->since = Now();
  }
  return nullptr;
}

void EndRequest(void* state, MHD_Connection* connection, void**, MHD_RequestTerminationCode) {
  if (auto* peer = static_cast<MetricServer::State*>(state)->Find(connection)) {
    peer->phase = Peer::Phase::kNext;
    peer->since = Now();
  }
}

void NoteConnection(void* state, MHD_Connection* connection, void**,
                    MHD_ConnectionNotificationCode what) {
  auto& server = *static_cast<MetricServer::State*>(state);
  if (what == MHD_CONNECTION_NOTIFY_STARTED) {
    server.Came(connection);
  } else {
    server.peers.erase(connection);
  }
}

/// What others do to their connections is nothing to say line by line.
[[gnu::format(printf, 2, 0)]] void TakeComplaint(void* state, const char* format,
                                                 std::va_list arguments) {
  auto& server = *static_cast<MetricServer::State*>(state);
  if (!server.isStarting) return;
  std::array<char, 256> words{};
  std::vsnprintf(words.data(), words.size(), format, arguments);
  server.complaint = words.data();
  while (server.complaint.ends_with('\n')) server.complaint.pop_back();
}

}  // extern "C"

}  // namespace

Peer* MetricServer::State::Find(MHD_Connection* connection) {
  const auto peer = peers.find(connection);
  return peer != peers.end() ? &peer->second : nullptr;
}

void MetricServer::State::Came(MHD_Connection* connection) {
  MakeRoom();
  const auto* info = ::MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
  peers[connection] = {info != nullptr ? info->connect_fd : -1, Now(), Peer::Phase::kFirst};
}

/// The library closes what has been shut down, as if the other end had done it.
void MetricServer::State::MakeRoom() {
  if (peers.size() < kMostConnections) return;
  const auto waits = [](const auto& peer) {
    return std::pair(peer.second.phase == Peer::Phase::kAnswered, peer.second.since);
  };
  const auto longest = std::ranges::min_element(peers, {}, waits);
  ::shutdown(longest->second.descriptor, SHUT_RDWR);
}

void MetricServer::State::EndTheLate() {
  const auto now = Now();
  for (const auto& [connection, peer] : peers)
    if (peer.End() <= now) ::shutdown(peer.descriptor, SHUT_RDWR);
}

MHD_Result MetricServer::State::Answer(MHD_Connection* connection, std::string_view path,
                                       std::string_view method, void** isKnown) {
  if (method != MHD_HTTP_METHOD_GET && method != MHD_HTTP_METHOD_HEAD) {
    const auto response = TextResponse("only GET and HEAD\n", "text/plain; charset=utf-8");
    if (response != nullptr) ::MHD_add_response_header(response.get(), "Allow", "GET, HEAD");
    return Queue(connection, MHD_HTTP_METHOD_NOT_ALLOWED, response);
  }
  // An answer to the head alone would end the connection.
  if (std::exchange(*isKnown, this) == nullptr) return MHD_YES;
  if (protection.passwords != nullptr) {
    const auto verdict = protection.passwords->Judge(HeaderOf(connection, "Authorization"),
                                                     AddressOf(connection), Now());
    if (verdict != Passwords::Verdict::kRight) return Refuse(connection, verdict);
  }
  if (path == "/metrics") return AnswerMetrics(connection);
  if (path == "/-/healthy") return Say(connection, MHD_HTTP_OK, "OK\n");
  if (path == "/")
    return Queue(connection, MHD_HTTP_OK, TextResponse(kFrontPage, "text/html; charset=utf-8"));
  return Say(connection, MHD_HTTP_NOT_FOUND, "there is /metrics\n");
}

MHD_Result MetricServer::State::Refuse(MHD_Connection* connection,
                                       Passwords::Verdict verdict) const {
  const bool areTooMany = verdict == Passwords::Verdict::kTooMany;
  const auto response =
      TextResponse(areTooMany ? "too many wrong passwords; wait a moment\n" : "who are you?\n",
                   "text/plain; charset=utf-8");
  if (response == nullptr) return MHD_NO;
  if (areTooMany) {
    ::MHD_add_response_header(response.get(), "Retry-After", "2");
  } else {
    ::MHD_add_response_header(response.get(), "WWW-Authenticate",
                              "Basic realm=\"lurkwell-export\", charset=\"UTF-8\"");
  }
  return Queue(connection, areTooMany ? MHD_HTTP_TOO_MANY_REQUESTS : MHD_HTTP_UNAUTHORIZED,
               response);
}

MHD_Result MetricServer::State::AnswerMetrics(MHD_Connection* connection) {
  const auto format = FormatFor(HeaderOf(connection, "Accept"));
  const auto text = source(format);
  if (text == nullptr)
    return Say(connection, MHD_HTTP_INTERNAL_SERVER_ERROR, "the processes cannot be listed\n");
  const auto response = TextResponse(*text, ContentTypeOf(format));
  if (response != nullptr) ::MHD_add_response_header(response.get(), "Vary", "Accept");
  return Queue(connection, MHD_HTTP_OK, response);
}

MetricServer::MetricServer(std::unique_ptr<State> state) : mState(std::move(state)) {}

MetricServer::~MetricServer() = default;

MetricServer::Started MetricServer::Start(const FileDescriptor& socket,
                                          const Protection& protection, Source source) {
  const bool hasTLS = !protection.certificate.empty();
  if (hasTLS)
    if (auto error = CheckCertificate(protection.certificate, protection.key))
      return *std::move(error);
  auto state = std::make_unique<State>();
  state->protection = protection;
  state->source = std::move(source);
  const int listening = ::fcntl(socket.Get(), F_DUPFD_CLOEXEC, 0);
  if (listening < 0) return ServerError{std::strerror(errno)};
  std::array<MHD_OptionItem, 4> tls{};
  std::size_t options = 0;
  const auto add = [&](MHD_OPTION option, const char* value) {
    tls[options++] = {option, 0, const_cast<char*>(value)};
  };
  if (hasTLS) {
    add(MHD_OPTION_HTTPS_MEM_CERT, state->protection.certificate.c_str());
    add(MHD_OPTION_HTTPS_MEM_KEY, state->protection.key.c_str());
    add(MHD_OPTION_HTTPS_PRIORITIES, "NORMAL:-VERS-ALL:+VERS-TLS1.3:+VERS-TLS1.2");
  }
  tls[options] = {MHD_OPTION_END, 0, nullptr};
  const unsigned flags = MHD_USE_EPOLL | MHD_USE_ERROR_LOG | (hasTLS ? MHD_USE_TLS : 0);
  // The logger comes first, as it is told of what is wrong with the others.
  state->daemon = ::MHD_start_daemon(
      flags, 0, nullptr, nullptr, &TakeRequest, state.get(), MHD_OPTION_EXTERNAL_LOGGER,
      &TakeComplaint, state.get(), MHD_OPTION_LISTEN_SOCKET, listening, MHD_OPTION_CONNECTION_LIMIT,
      kMostConnections + 8, MHD_OPTION_CONNECTION_MEMORY_LIMIT, std::size_t{kMemoryOfConnection},
      MHD_OPTION_CONNECTION_TIMEOUT, static_cast<unsigned>(kPatienceForNext.count()),
      MHD_OPTION_NOTIFY_CONNECTION, &NoteConnection, state.get(), MHD_OPTION_NOTIFY_COMPLETED,
      &EndRequest, state.get(), MHD_OPTION_URI_LOG_CALLBACK, &TakeLine, state.get(),
      MHD_OPTION_ARRAY, tls.data(), MHD_OPTION_END);
  if (state->daemon == nullptr) {
    ::close(listening);
    return ServerError{"the server does not start: " + state->complaint};
  }
  state->isStarting = false;
  return std::unique_ptr<MetricServer>(new MetricServer(std::move(state)));
}

int MetricServer::Descriptor() const {
  const auto* info = ::MHD_get_daemon_info(mState->daemon, MHD_DAEMON_INFO_EPOLL_FD);
  return info != nullptr ? info->epoll_fd : -1;
}

std::optional<std::chrono::milliseconds> MetricServer::Patience() const {
  using std::chrono::milliseconds;
  std::optional<milliseconds> patience;
  MHD_UNSIGNED_LONG_LONG told = 0;
  if (::MHD_get_timeout(mState->daemon, &told) == MHD_YES)
    patience = milliseconds(std::min<MHD_UNSIGNED_LONG_LONG>(told, 3'600'000));
  for (const auto& [connection, peer] : mState->peers) {
    const auto left = std::chrono::ceil<milliseconds>(peer.End() - Now());
    patience = std::min(patience.value_or(left), std::max(left, milliseconds(0)));
  }
  return patience;
}

void MetricServer::Serve() {
  mState->EndTheLate();
  ::MHD_run(mState->daemon);
}

std::optional<ServerError> CheckCertificate(const std::string& certificate,
                                            const std::string& key) {
  ::gnutls_certificate_credentials_t credentials = nullptr;
  if (::gnutls_certificate_allocate_credentials(&credentials) != GNUTLS_E_SUCCESS)
    return ServerError{"there is no memory for a certificate"};
  const auto datum = [](const std::string& text) {
    return ::gnutls_datum_t{reinterpret_cast<unsigned char*>(const_cast<char*>(text.data())),
                            static_cast<unsigned>(text.size())};
  };
  const auto certificates = datum(certificate);
  const auto secret = datum(key);
  const int status = ::gnutls_certificate_set_x509_key_mem(credentials, &certificates, &secret,
                                                           GNUTLS_X509_FMT_PEM);
  ::gnutls_certificate_free_credentials(credentials);
  if (status >= 0) return std::nullopt;
  if (status == GNUTLS_E_CERTIFICATE_KEY_MISMATCH)
    return ServerError{"the certificate and the key do not belong together"};
  return ServerError{std::string("the certificate or the key makes no sense: ") +
                     ::gnutls_strerror(status)};
}

}  // namespace lurkwell
