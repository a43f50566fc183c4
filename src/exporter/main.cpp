#include <poll.h>
#include <sys/signalfd.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <variant>

#include "exporter/Collector.h"
#include "exporter/ExportOptions.h"
#include "exporter/ListenAddress.h"
#include "exporter/MetricServer.h"
#include "exporter/MetricSource.h"
#include "exporter/Passwords.h"
#include "exporter/ProtectedFile.h"
#include "platform/Diagnostics.h"
#include "platform/FileDescriptor.h"
#include "platform/PrintableText.h"
#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxHostStatistics.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxServices.h"

namespace lurkwell {
namespace {

constexpr int kExitSuccess = 0;
constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

void Say(const std::string& words) {
  DiagnoseVerbatim("lurkwell-export: %s", words.c_str());
}

/// Texts that are asked for have to arrive.
int Print(const std::string& text) {
  errno = 0;
  if (std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0) return kExitSuccess;
  Say(std::string("cannot write: ") + std::strerror(errno));
  return kExitFailure;
}

/// Reads what the options name; nothing, and the reason, when it cannot be used.
std::optional<std::string> ReadProtection(const ExportOptions& options, Protection& protection) {
  const auto read = [](const std::string& path, Secrecy secrecy,
                       std::string& text) -> std::optional<std::string> {
    if (path.empty()) return std::nullopt;
    auto whole = ReadWholeFile(path, secrecy);
    if (const auto* error = std::get_if<FileError>(&whole)) return error->words;
    text = std::get<std::string>(std::move(whole));
    if (text.empty()) return PrintableText(path) + ": is empty";
    return std::nullopt;
  };
  std::string passwords;
  if (auto error = read(options.certificate, Secrecy::kOpen, protection.certificate)) return error;
  if (auto error = read(options.key, Secrecy::kSecret, protection.key)) return error;
  if (auto error = read(options.passwords, Secrecy::kSecret, passwords)) return error;
  if (options.HasTLS())
    if (const auto error = CheckCertificate(protection.certificate, protection.key))
      return PrintableText(options.certificate) + ", " + PrintableText(options.key) + ": " +
             error->words;
  if (options.passwords.empty()) return std::nullopt;
  auto read_passwords = Passwords::Read(passwords);
  if (const auto* error = std::get_if<PasswordError>(&read_passwords))
    return PrintableText(options.passwords) + ": " + error->words;
  protection.passwords =
      std::make_shared<Passwords>(std::get<Passwords>(std::move(read_passwords)));
  return std::nullopt;
}

/// The exporter while it serves. One thread.
class Exporter {
 public:
  explicit Exporter(const ExportOptions& options) : mOptions(options) {}

  int Run(const ListenAddress& address, const Protection& protection) {
    auto listening = Listen(address);
    if (const auto* error = std::get_if<ListenError>(&listening)) {
      Say(error->words);
      return kExitFailure;
    }
    mSocket = std::get<FileDescriptor>(std::move(listening));
    if (!Start(protection) || !WatchSignals()) return kExitFailure;
    // What takes long to read is there when the first scrape comes.
    mCollector.Read();
    ListenAddress bound = address;
    bound.length = sizeof bound.storage;
    ::getsockname(mSocket.Get(), reinterpret_cast<::sockaddr*>(&bound.storage), &bound.length);
    Say(std::string("serving ") + (mOptions.HasTLS() ? "https" : "http") + "://" + bound.Text() +
        "/metrics");
    return Serve();
  }

 private:
  bool Start(const Protection& protection) {
    auto started = MetricServer::Start(mSocket, protection, [this](MetricFormat format) {
      return mSource.Text(format, std::chrono::steady_clock::now());
    });
    if (const auto* error = std::get_if<ServerError>(&started)) {
      Say(error->words);
      return false;
    }
    mServer = std::get<std::unique_ptr<MetricServer>>(std::move(started));
    return true;
  }

  bool WatchSignals() {
    ::sigset_t signals;
    ::sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaddset(&signals, signal);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    mSignals = FileDescriptor(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!mSignals.IsOpen()) Say(std::string("cannot wait for signals: ") + std::strerror(errno));
    return mSignals.IsOpen();
  }

  int Serve() {
    while (true) {
      const auto patience = mServer->Patience();
      ::pollfd waiting[] = {{mServer->Descriptor(), POLLIN, 0}, {mSignals.Get(), POLLIN, 0}};
      const int most = patience ? static_cast<int>(patience->count()) : -1;
      if (::poll(waiting, std::size(waiting), most) < 0 && errno != EINTR) {
        Say(std::string("cannot wait: ") + std::strerror(errno));
        return kExitFailure;
      }
      ::signalfd_siginfo signal{};
      if (::read(mSignals.Get(), &signal, sizeof signal) == sizeof signal) {
        if (signal.ssi_signo != SIGHUP) return kExitSuccess;
        Reload();
      }
      mServer->Serve();
    }
  }

  /// What cannot be used leaves all as it is.
  void Reload() {
    Protection protection;
    if (const auto error = ReadProtection(mOptions, protection)) {
      Say(*error + "; going on with what there was");
      return;
    }
    if (Start(protection)) Say("certificate, key and passwords are read again");
  }

  const ExportOptions mOptions;
  LinuxClock mClock;
  LinuxProcessTable mProcesses;
  LinuxHostStatistics mMachine;
  LinuxCostlyFigures mCostly;
  Collector mCollector{{mProcesses, mMachine, mCostly, mClock}, mOptions.rules};
  MetricSource mSource{[this] { return mCollector.Read(); }};
  FileDescriptor mSocket;
  FileDescriptor mSignals;
  std::unique_ptr<MetricServer> mServer;
};

/// A line of standard input, which a terminal does not show.
std::optional<std::string> ReadSecretLine() {
  ::termios before{};
  const bool isTerminal = ::tcgetattr(STDIN_FILENO, &before) == 0;
  if (isTerminal) {
    Say("the password, which is not shown:");
    auto silent = before;
    silent.c_lflag &= ~static_cast<::tcflag_t>(ECHO);
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
  }
  std::string line;
  const bool isRead = static_cast<bool>(std::getline(std::cin, line));
  if (isTerminal) ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
  if (!isRead || line.empty()) return std::nullopt;
  return line;
}

int MakePassword(const std::string& user) {
  if (user.find_first_of(":\n\r") != std::string::npos || user.starts_with('#')) {
    Say("a user's name has no colon, no line end, and no '#' in front");
    return kExitUsage;
  }
  const auto password = ReadSecretLine();
  if (!password) {
    Say("there is no password on standard input");
    return kExitUsage;
  }
  const auto line = PasswordLine(user, *password);
  if (line) return Print(*line + "\n");
  Say(std::string("no hash can be made: ") + std::strerror(errno));
  return kExitFailure;
}

int Serve(const ExportOptions& options) {
  const auto address = ReadListenAddress(options.address);
  if (const auto* error = std::get_if<ListenError>(&address)) {
    Say(error->words);
    return kExitUsage;
  }
  const auto& place = std::get<ListenAddress>(address);
  if (const auto error = CheckProtection(options, place.isLoopback)) {
    Say(error->words);
    return kExitUsage;
  }
  Protection protection;
  if (const auto error = ReadProtection(options, protection)) {
    Say(*error);
    return kExitUsage;
  }
  if (options.action == ExportOptions::Action::kCheck) return kExitSuccess;
  RaiseDescriptorLimit();
  return Exporter(options).Run(place, protection);
}

int Main(std::span<const char* const> arguments) {
  const auto read = ReadExportOptions(arguments);
  if (const auto* error = std::get_if<OptionsError>(&read)) {
    Say(error->words + "\nTry 'lurkwell-export --help'.");
    return kExitUsage;
  }
  const auto& options = std::get<ExportOptions>(read);
  switch (options.action) {
    case ExportOptions::Action::kHelp:
      return Print(ExportHelpText());
    case ExportOptions::Action::kVersion:
      return Print("lurkwell-export " LURKWELL_VERSION "\n");
    case ExportOptions::Action::kMakePassword:
      return MakePassword(options.user);
    case ExportOptions::Action::kServe:
    case ExportOptions::Action::kCheck:
      break;
  }
  return Serve(options);
}

}  // namespace
}  // namespace lurkwell

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);
  return lurkwell::Main(
      std::span<const char* const>(argv + 1, argc > 0 ? static_cast<std::size_t>(argc - 1) : 0));
}
