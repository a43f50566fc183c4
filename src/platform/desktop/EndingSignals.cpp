#include "platform/desktop/EndingSignals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <utility>

namespace lurkwell {
namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

/// What the handler writes into and the notifier reads from; -1 without an EndingSignals.
int gPipe[2] = {-1, -1};

extern "C" void NoteSignal(int) {
  const int before = errno;
  [[maybe_unused]] const auto written = ::write(gPipe[1], "!", 1);
  errno = before;
}

bool IsIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void Handle(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  if (!IsIgnored(signal)) ::sigaction(signal, &action, nullptr);
}

}  // namespace

EndingSignals::EndingSignals() {
  if (::pipe2(gPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
  for (const int signal : kEndingSignals) Handle(signal, NoteSignal);
}

EndingSignals::~EndingSignals() {
  mNotifier.reset();
  if (gPipe[0] < 0) return;
  for (const int signal : kEndingSignals) Handle(signal, SIG_DFL);
  for (int& end : gPipe) ::close(std::exchange(end, -1));
}

void EndingSignals::Watch(std::function<void()> end) {
  if (gPipe[0] < 0) return;
  mNotifier = std::make_unique<QSocketNotifier>(gPipe[0], QSocketNotifier::Read);
  QObject::connect(mNotifier.get(), &QSocketNotifier::activated, [end = std::move(end)] {
    char notes[16];
    while (::read(gPipe[0], notes, sizeof notes) > 0) {
    }
    end();
  });
}

}  // namespace lurkwell
