#include "platform/linux/LinuxCostlyFigures.h"

#include <time.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <thread>
#include <utility>

#include "platform/Mutex.h"
#include "platform/linux/CostlyReader.h"
#include "platform/QuietThread.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;
using CostlyKey = std::pair<std::int32_t, std::uint64_t>;

constexpr auto kLongestCostlyReading = 1s;
constexpr auto kCostlyRest = 60s;
constexpr auto kLastMoment = 20ms;
constexpr std::size_t kMostHangingThreads = 4;

CostlyKey KeyOf(ProcessIdentity process) {
  return {process.pid, process.startStamp};
}

/// Processor time of this thread, in microseconds.
std::int64_t ThreadTime() {
  timespec time{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return time.tv_sec * std::int64_t{1'000'000} + time.tv_nsec / 1000;
}

/// Processor time that may be taken, in microseconds; below nothing after a long reading.
class Allowance {
 public:
  Allowance(std::int64_t most, std::int64_t perMillisecond)
      : mMost(most), mPerMillisecond(perMillisecond), mLeft(most) {}

  void Refill(std::int64_t milliseconds) {
    mLeft = std::min(mMost, mLeft + milliseconds * mPerMillisecond);
  }
  void Take(std::int64_t microseconds) { mLeft -= microseconds; }
  bool IsThere() const { return mLeft > 0; }
  /// Milliseconds until there is some again.
  std::int64_t Wait() const { return IsThere() ? 0 : -mLeft / mPerMillisecond + 1; }

 private:
  std::int64_t mMost;
  std::int64_t mPerMillisecond;
  std::int64_t mLeft;
};

/// In which order wishes are read.
enum Rank : std::size_t { kSeenAndNew, kSeen, kNew, kOther, kRanks };

struct Turn {
  ProcessIdentity process;
  FigureSources sources = 0;
  std::int64_t oldest = 0;
};

/// The wishes of one call, in the order in which they are read.
class Turns {
 public:
  void Set(const std::vector<CostlyWish>& wishes, const CostlyReader& reader) {
    const auto now = reader.Now();
    for (auto& queue : mQueues) queue.clear();
    for (const auto& wish : wishes) {
      const auto due = reader.DueOf(wish, now);
      if (due.sources == 0) continue;
      const auto rank = wish.isInSight ? (due.hasNeverBeenRead ? kSeenAndNew : kSeen)
                                       : (due.hasNeverBeenRead ? kNew : kOther);
      mQueues[rank].push_back({wish.process, due.sources, due.oldest});
    }
    for (auto& queue : mQueues) std::ranges::stable_sort(queue, {}, &Turn::oldest);
  }

  bool AreThereAny() const {
    return std::ranges::any_of(mQueues, [](const auto& queue) { return !queue.empty(); });
  }

  /// The allowance that pays for a rank.
  Allowance& Of(std::size_t rank) {
    return rank == kSeenAndNew || rank == kNew ? mForNew : mForOthers;
  }

  void Refill(std::int64_t milliseconds) {
    mForNew.Refill(milliseconds);
    mForOthers.Refill(milliseconds);
  }

  /// The first rank that has a turn and an allowance.
  std::optional<std::size_t> Payable() {
    for (std::size_t rank = 0; rank < kRanks; ++rank)
      if (!mQueues[rank].empty() && Of(rank).IsThere()) return rank;
    return std::nullopt;
  }

  Turn Take(std::size_t rank) {
    const Turn turn = mQueues[rank].front();
    mQueues[rank].pop_front();
    return turn;
  }

  /// Milliseconds until one can be paid for.
  std::int64_t Wait() {
    std::int64_t wait = 1000;
    for (std::size_t rank = 0; rank < kRanks; ++rank)
      if (!mQueues[rank].empty()) wait = std::min(wait, Of(rank).Wait());
    return std::max<std::int64_t>(wait, 1);
  }

 private:
  std::array<std::deque<Turn>, kRanks> mQueues;
  Allowance mForOthers{20'000, 10};
  Allowance mForNew{100'000, 50};
};

struct ShelvedProcess {
  SteadyClock::time_point until;
  bool hangs = true;
};

}  // namespace

/// What the main thread and the readers share; the last of them frees it.
struct LinuxCostlyFigures::Shared {
  Shared(std::string itsProc, std::string itsUnits, std::string itsDevices)
      : proc(std::move(itsProc)), units(std::move(itsUnits)), devices(std::move(itsDevices)) {}

  /// A thread of another generation than this one ends as soon as it can.
  void GiveUpThread() LURKWELL_REQUIRES(mutex) {
    ++generation;
    thread.detach();
    reading.reset();
    news.notify_all();
  }

  /// False when there is no thread to be had. Main thread, with what is shared itself.
  bool EnsureThread(const std::shared_ptr<Shared>& itself) LURKWELL_REQUIRES(mutex);

  const std::string proc;
  const std::string units;
  const std::string devices;
  Mutex mutex;
  std::condition_variable news;
  std::vector<CostlyWish> wishes LURKWELL_GUARDED_BY(mutex);
  bool areWishesNew LURKWELL_GUARDED_BY(mutex) = false;
  struct Result {
    CostlyReading reading;
    SteadyClock::time_point readAt;
  };
  std::vector<Result> results LURKWELL_GUARDED_BY(mutex);
  std::map<CostlyKey, ShelvedProcess> shelf LURKWELL_GUARDED_BY(mutex);
  /// What is read, and since when.
  std::optional<CostlyKey> reading LURKWELL_GUARDED_BY(mutex);
  SteadyClock::time_point since LURKWELL_GUARDED_BY(mutex);
  unsigned generation LURKWELL_GUARDED_BY(mutex) = 0;
  std::atomic<std::int64_t> takenTime = 0;
  /// Main thread's.
  std::thread thread;
};

LinuxCostlyFigures::LinuxCostlyFigures(std::string proc, std::string units, std::string devices)
    : mShared(std::make_shared<Shared>(std::move(proc), std::move(units), std::move(devices))) {}

LinuxCostlyFigures::~LinuxCostlyFigures() {
  auto& shared = *mShared;
  if (!shared.thread.joinable()) return;
  MutexLock lock(shared.mutex);
  ++shared.generation;
  shared.news.notify_all();
  if (lock.WaitFor(shared.news, kLastMoment,
                   [&]() LURKWELL_REQUIRES(shared.mutex) { return !shared.reading; })) {
    lock.Unlock();
    shared.thread.join();
  } else {
    shared.thread.detach();
  }
}

void LinuxCostlyFigures::Ask(std::vector<CostlyWish> wishes) {
  auto& shared = *mShared;
  // Nothing to begin a thread for.
  if (wishes.empty() && !shared.thread.joinable()) return;
  const MutexLock lock(shared.mutex);
  if (!shared.EnsureThread(mShared)) return;
  const auto now = SteadyClock::now();
  std::erase_if(wishes, [&](const CostlyWish& wish) LURKWELL_REQUIRES(shared.mutex) {
    const auto shelved = shared.shelf.find(KeyOf(wish.process));
    return shelved != shared.shelf.end() && (shelved->second.hangs || now < shelved->second.until);
  });
  shared.wishes = std::move(wishes);
  shared.areWishesNew = true;
  shared.news.notify_all();
}

bool LinuxCostlyFigures::Shared::EnsureThread(const std::shared_ptr<Shared>& itself) {
  const auto now = SteadyClock::now();
  std::erase_if(shelf, [now](const auto& shelved) {
    return !shelved.second.hangs && shelved.second.until <= now;
  });
  if (reading && now - since > kLongestCostlyReading) {
    shelf[*reading] = {now + kCostlyRest};
    GiveUpThread();
  }
  if (thread.joinable()) return true;
  const auto hanging =
      std::ranges::count_if(shelf, [](const auto& shelved) { return shelved.second.hangs; });
  if (static_cast<std::size_t>(hanging) >= kMostHangingThreads) return false;
  thread = StartWithoutSignals([itself, its = generation] { Serve(itself, its); });
  return thread.joinable();
}

std::vector<CostlyReading> LinuxCostlyFigures::Collect() {
  std::vector<Shared::Result> results;
  {
    const MutexLock lock(mShared->mutex);
    results.swap(mShared->results);
  }
  const auto now = SteadyClock::now();
  std::vector<CostlyReading> readings;
  readings.reserve(results.size());
  for (auto& [reading, readAt] : results) {
    reading.age += std::chrono::duration_cast<std::chrono::milliseconds>(now - readAt).count();
    readings.push_back(std::move(reading));
  }
  return readings;
}

std::int64_t LinuxCostlyFigures::TakenTime() const {
  return mShared->takenTime;
}

void LinuxCostlyFigures::Serve(const std::shared_ptr<Shared>& itsShared, unsigned generation) {
  auto& shared = *itsShared;
  CostlyReader reader(shared.proc, shared.units, shared.devices);
  Turns turns;
  auto refilled = SteadyClock::now();
  auto taken = ThreadTime();
  const auto isOver = [&]() LURKWELL_REQUIRES(shared.mutex) {
    return generation != shared.generation;
  };
  const auto isThereNews = [&]() LURKWELL_REQUIRES(shared.mutex) {
    return isOver() || shared.areWishesNew;
  };
  MutexLock lock(shared.mutex);
  for (;;) {
    const auto rank = turns.Payable();
    if (!rank && turns.AreThereAny()) {
      lock.WaitFor(shared.news, std::chrono::milliseconds(turns.Wait()), isThereNews);
    } else if (!rank) {
      lock.Wait(shared.news, isThereNews);
    }
    if (isOver()) return;
    if (std::exchange(shared.areWishesNew, false)) {
      const auto wishes = std::exchange(shared.wishes, {});
      lock.Unlock();
      reader.Keep(wishes);
      turns.Set(wishes, reader);
      lock.Lock();
    } else if (rank) {
      const auto turn = turns.Take(*rank);
      shared.reading = KeyOf(turn.process);
      shared.since = SteadyClock::now();
      lock.Unlock();
      auto readings = reader.Read(turn.process, turn.sources);
      lock.Lock();
      if (isOver()) {
        // Given up meanwhile, or the program ends.
        if (const auto shelved = shared.shelf.find(KeyOf(turn.process));
            shelved != shared.shelf.end())
          shelved->second.hangs = false;
        if (shared.reading == KeyOf(turn.process)) shared.reading.reset();
        shared.news.notify_all();
        return;
      }
      shared.reading.reset();
      const auto readAt = SteadyClock::now();
      for (auto& reading : readings) shared.results.push_back({std::move(reading), readAt});
    }
    const auto rankPaid = rank.value_or(kOther);
    const auto before = std::exchange(taken, ThreadTime());
    turns.Of(rankPaid).Take(taken - before);
    shared.takenTime += taken - before;
    const auto now = SteadyClock::now();
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(now - refilled);
    refilled += passed;
    turns.Refill(passed.count());
  }
}

}  // namespace lurkwell
