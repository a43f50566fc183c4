#include "platform/desktop/EndingSignals.h"

#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QSocketNotifier>

namespace lurkwell {
namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

bool IsIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

EndingSignals::EndingSignals() {
  sigset_t set;
  ::sigemptyset(&set);
  for (const int signal : kEndingSignals)
    if (!IsIgnored(signal)) ::sigaddset(&set, signal);
  ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
  mDescriptor = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

EndingSignals::~EndingSignals() {
  mNotifier.reset();
  if (mDescriptor >= 0) ::close(mDescriptor);
}

void EndingSignals::Watch() {
  if (mDescriptor < 0) return;
  mNotifier = std::make_unique<QSocketNotifier>(mDescriptor, QSocketNotifier::Read);
  QObject::connect(mNotifier.get(), &QSocketNotifier::activated, [this] {
    signalfd_siginfo information;
    while (::read(mDescriptor, &information, sizeof information) == sizeof information)
      // A window may refuse to quit; a signal is not a question.
      QCoreApplication::exit(0);
  });
}

bool IsDisplayReachable() {
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return true;
  if (qEnvironmentVariableIsEmpty("DISPLAY")) return false;
  auto* connection = ::xcb_connect(nullptr, nullptr);
  const bool reachable = ::xcb_connection_has_error(connection) == 0;
  ::xcb_disconnect(connection);
  return reachable;
}

}  // namespace lurkwell
