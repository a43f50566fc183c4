#include "platform/linux/LinuxCostlyFigures.h"

#include <time.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <utility>

#include "platform/Mutex.h"
#include "platform/ThreadSafety.h"
#include "platform/linux/CostlyReader.h"
#include "platform/linux/ReplaceableThread.h"

namespace lurkwell {
namespace {

using SteadyClock = std::chrono::steady_clock;

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

}  // namespace

/// What the main thread and the reader share; the last of them frees it.
struct LinuxCostlyFigures::Shared {
  Shared(std::string itsProc, std::string itsUnits, std::string itsDevices)
      : proc(std::move(itsProc)), units(std::move(itsUnits)), devices(std::move(itsDevices)) {}
  void Serve(ReplaceableThread::Place place);

  const std::string proc;
  const std::string units;
  const std::string devices;
  ReplaceableThread thread;
  std::vector<CostlyWish> wishes LURKWELL_GUARDED_BY(thread.mutex);
  bool areWishesNew LURKWELL_GUARDED_BY(thread.mutex) = false;
  struct Result {
    CostlyReading reading;
    SteadyClock::time_point readAt;
  };
  std::vector<Result> results LURKWELL_GUARDED_BY(thread.mutex);
};

LinuxCostlyFigures::LinuxCostlyFigures(std::string proc, std::string units, std::string devices)
    : mShared(std::make_shared<Shared>(std::move(proc), std::move(units), std::move(devices))) {}

LinuxCostlyFigures::~LinuxCostlyFigures() {
  mShared->thread.End();
}

void LinuxCostlyFigures::Ask(std::vector<CostlyWish> wishes) {
  auto& shared = *mShared;
  const MutexLock lock(shared.thread.mutex);
  // Nothing to begin a thread for.
  if (wishes.empty() && !shared.thread.Exists()) return;
  if (!shared.thread.Ensure(mShared)) return;
  std::erase_if(wishes, [&](const CostlyWish& wish) LURKWELL_REQUIRES(shared.thread.mutex) {
    return shared.thread.IsResting(wish.process);
  });
  shared.wishes = std::move(wishes);
  shared.areWishesNew = true;
  shared.thread.Notify();
}

std::vector<CostlyReading> LinuxCostlyFigures::Collect() {
  std::vector<Shared::Result> results;
  {
    const MutexLock lock(mShared->thread.mutex);
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

void LinuxCostlyFigures::Shared::Serve(ReplaceableThread::Place place) {
  CostlyReader reader(proc, units, devices);
  Turns turns;
  auto refilled = SteadyClock::now();
  auto taken = ThreadTime();
  const auto hasWishes = [this]() LURKWELL_REQUIRES(thread.mutex) { return areWishesNew; };
  MutexLock lock(thread.mutex);
  for (;;) {
    const auto rank = turns.Payable();
    if (!rank && turns.AreThereAny()) {
      thread.WaitFor(lock, place, std::chrono::milliseconds(turns.Wait()), hasWishes);
    } else if (!rank) {
      thread.Wait(lock, place, hasWishes);
    }
    if (thread.IsOver(place)) return;
    if (std::exchange(areWishesNew, false)) {
      const auto asked = std::exchange(wishes, {});
      lock.Unlock();
      reader.Keep(asked);
      turns.Set(asked, reader);
      lock.Lock();
    } else if (rank) {
      const auto turn = turns.Take(*rank);
      std::vector<CostlyReading> readings;
      if (!thread.Read(lock, place, turn.process,
                       [&] { readings = reader.Read(turn.process, turn.sources); }))
        return;
      const auto readAt = SteadyClock::now();
      for (auto& reading : readings) results.push_back({std::move(reading), readAt});
    }
    const auto rankPaid = rank.value_or(kOther);
    const auto before = std::exchange(taken, ThreadTime());
    turns.Of(rankPaid).Take(taken - before);
    const auto now = SteadyClock::now();
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(now - refilled);
    refilled += passed;
    turns.Refill(passed.count());
  }
}

}  // namespace lurkwell
