#include "platform/desktop/QtRunLoop.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <map>
#include <set>
#include <utility>

#include "platform/RunLoop.h"

namespace lurkwell {
namespace {

// A wait does not notice that the machine was asleep; the next look at the clock does. What is far
// away needs fewer looks.
constexpr double kShortestUnbrokenWait = 5.0;
constexpr double kLongestUnbrokenWait = 3600.0;

double UnbrokenWait(double seconds) {
  return std::clamp(seconds, 0.0,
                    std::clamp(seconds / 10, kShortestUnbrokenWait, kLongestUnbrokenWait));
}

}  // namespace

/// What the loop and its timers share.
struct QtRunLoop::State {
  explicit State(Clock& theClock) : clock(theClock) {}

  bool IsHolding() const { return isStopped || isServing; }
  void Release();

  Clock& clock;
  bool isStopped = false;
  /// No Run has ended for it yet.
  bool isStopWanted = false;
  bool isServing = false;
  /// Due, but not to be served for the moment.
  std::set<Timer*> held;
  /// All that have a date, by that and their adding.
  std::map<std::pair<double, std::uint64_t>, Timer*> waiting;
  std::uint64_t added = 0;
};

/// One single shot after the other, since each firing may set a date of its own.
class QtRunLoop::Timer final : public RunLoopTimer {
 public:
  Timer(std::shared_ptr<State> state, double date, double interval, std::function<void()> callback)
      : mState(std::move(state)),
        mNumber(mState->added++),
        mInterval(interval),
        mCallback(std::make_shared<const std::function<void()>>(std::move(callback))) {
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    mTimer.callOnTimeout([this] { FireIfDue(); });
    SetNextFireDate(date);
  }
  ~Timer() override { SetDate(kNever); }

  void SetNextFireDate(double absoluteSeconds) override {
    SetDate(Orderable(absoluteSeconds));
    mDateWasSet = true;
    Wait();
  }

  void Wait() {
    if (mDate == kNever) return mTimer.stop();
    const double seconds = UnbrokenWait(mDate - mState->clock.AbsoluteTime());
    mTimer.start(static_cast<int>(std::ceil(seconds * 1000.0)));
  }

 private:
  void SetDate(double date) {
    mState->held.erase(this);
    mState->waiting.erase({mDate, mNumber});
    mDate = date;
    mDateSetAt = mState->clock.AbsoluteTime();
    if (mDate < kNever) mState->waiting.insert({{mDate, mNumber}, this});
  }

  void FireIfDue() {
    if (mDate > mState->clock.AbsoluteTime()) return Wait();
    if (mState->IsHolding()) {
      mState->held.insert(this);
      return;
    }
    // Qt's timers count whole milliseconds, so that one may overtake another. What was set only
    // after this was due has its turn after it.
    auto* const first = mState->waiting.begin()->second;
    if (first == this || first->mDateSetAt > mDate) return Fire();
    Wait();
    first->Fire();
  }

  /// The callback may destroy this timer, and with it all that it has.
  void Fire() {
    const auto state = mState;
    const auto callback = mCallback;
    const std::weak_ptr<int> alive = mAlive;
    const double date = mDate;
    SetDate(kNever);
    mDateWasSet = false;
    state->isServing = true;
    (*callback)();
    state->isServing = false;
    if (!state->IsHolding()) state->Release();
    if (alive.expired() || mDateWasSet) return;
    SetDate(NextDate(date, mInterval, mState->clock.AbsoluteTime()));
    Wait();
  }

  std::shared_ptr<State> mState;
  std::uint64_t mNumber;
  double mDate = kNever;
  double mDateSetAt = 0.0;
  double mInterval;
  bool mDateWasSet = false;
  std::shared_ptr<const std::function<void()>> mCallback;
  std::shared_ptr<int> mAlive = std::make_shared<int>(0);
  QTimer mTimer;
};

void QtRunLoop::State::Release() {
  for (Timer* timer : std::exchange(held, {})) timer->Wait();
}

QtRunLoop::QtRunLoop(Clock& clock) : mState(std::make_shared<State>(clock)) {}

std::unique_ptr<RunLoopTimer> QtRunLoop::AddTimer(double firstFireDate, double interval,
                                                  std::function<void()> callback) {
  return std::make_unique<Timer>(mState, firstFireDate, interval, std::move(callback));
}

void QtRunLoop::Run() {
  if (std::exchange(mState->isStopWanted, false)) return;
  mState->isStopped = false;
  mState->Release();
  QCoreApplication::exec();
  mState->isStopWanted = false;
}

void QtRunLoop::Stop() {
  mState->isStopped = mState->isStopWanted = true;
  // Not quit, which any window could refuse.
  QCoreApplication::exit();
}

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
