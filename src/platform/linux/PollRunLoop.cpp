#include "platform/linux/PollRunLoop.h"

#include <poll.h>
#include <sys/signalfd.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "platform/RunLoop.h"

namespace lurkwell {
namespace {

// A wait does not notice that the machine was asleep; the next look at the clock does.
constexpr double kLongestWait = 1.0;

}  // namespace

struct PollRunLoop::Timer {
  Place place;
  double interval;
  std::function<void()> callback;
  bool wasSet = false;
};

/// The owner's end of a timer.
class PollRunLoop::Handle final : public RunLoopTimer {
 public:
  Handle(std::weak_ptr<Queue> queue, std::shared_ptr<Timer> timer)
      : mQueue(std::move(queue)), mTimer(std::move(timer)) {}

  ~Handle() override {
    if (const auto queue = mQueue.lock()) queue->erase(mTimer->place);
  }

  void SetNextFireDate(double absoluteSeconds) override {
    const auto queue = mQueue.lock();
    if (!queue) return;
    queue->erase(mTimer->place);
    mTimer->place.first = Orderable(absoluteSeconds);
    mTimer->wasSet = true;
    queue->emplace(mTimer->place, mTimer);
  }

 private:
  std::weak_ptr<Queue> mQueue;
  std::shared_ptr<Timer> mTimer;
};

PollRunLoop::PollRunLoop(Clock& clock, EndingSignals signals)
    : mClock(clock), mQueue(std::make_shared<Queue>()) {
  if (signals == EndingSignals::kLeave) return;
  sigset_t ending;
  ::sigemptyset(&ending);
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction action {};
    // Blocking would bring an ignored signal to life.
    if (::sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) {
      ::sigaddset(&ending, number);
    }
  }
  mSignals = FileDescriptor(::signalfd(-1, &ending, SFD_CLOEXEC | SFD_NONBLOCK));
  // Without the descriptor the signals go on ending the program by themselves.
  if (mSignals.IsOpen()) ::pthread_sigmask(SIG_BLOCK, &ending, &mMaskBefore);
}

PollRunLoop::~PollRunLoop() {
  if (mSignals.IsOpen()) ::pthread_sigmask(SIG_SETMASK, &mMaskBefore, nullptr);
}

std::unique_ptr<RunLoopTimer> PollRunLoop::AddTimer(double firstFireDate, double interval,
                                                    std::function<void()> callback) {
  auto timer = std::make_shared<Timer>(
      Timer{{Orderable(firstFireDate), mAdded++}, interval, std::move(callback)});
  mQueue->emplace(timer->place, timer);
  return std::make_unique<Handle>(mQueue, std::move(timer));
}

void PollRunLoop::Run() {
  mStopped = false;
  while (!mStopped) {
    Wait();
    if (!mStopped) FireDueTimers();
  }
}

/// Serves what was due when it began and still is when its turn comes.
void PollRunLoop::FireDueTimers() {
  const double now = mClock.AbsoluteTime();
  std::vector<std::weak_ptr<Timer>> due;
  for (const auto& [place, timer] : *mQueue) {
    if (place.first > now) break;
    due.push_back(timer);
  }
  for (const auto& candidate : due) {
    if (mStopped) return;
    const auto timer = candidate.lock();
    if (timer && timer->place.first <= now) Fire(*timer, now);
  }
}

void PollRunLoop::Fire(Timer& timer, double now) {
  timer.wasSet = false;
  timer.callback();
  // Ended, or given another date, by its own callback.
  const auto found = mQueue->find(timer.place);
  if (found == mQueue->end() || timer.wasSet) return;
  const auto kept = found->second;
  mQueue->erase(found);
  const double later = std::max(now, mClock.AbsoluteTime());
  timer.place.first = NextDate(timer.place.first, timer.interval, later);
  mQueue->emplace(timer.place, kept);
}

/// Until the first date, a signal, or the longest wait.
void PollRunLoop::Wait() {
  double seconds = kLongestWait;
  if (!mQueue->empty()) {
    seconds = std::clamp(mQueue->begin()->first.first - mClock.AbsoluteTime(), 0.0, kLongestWait);
  }
  const timespec limit{static_cast<time_t>(seconds),
                       static_cast<long>((seconds - std::floor(seconds)) * 1e9)};
  pollfd signals{mSignals.Get(), POLLIN, 0};
  if (::ppoll(&signals, 1, &limit, nullptr) <= 0) return;
  signalfd_siginfo info{};
  if (::read(mSignals.Get(), &info, sizeof info) != sizeof info) return;
  mStopped = true;
}

}  // namespace lurkwell
