#pragma once

#include <QPixmap>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "consolidator/TypedValue.h"
#include "platform/Clock.h"
#include "platform/ProcessTable.h"
#include "windows/Keys.h"

namespace lurkwell {

/// One value of a row as it was read, or why there is none: shown, sorted and drawn alike.
using RowValue = TypedValue;

/// Values by key. Reading costs an array access.
class RowValues {
 public:
  const RowValue& Get(KeyId key) const {
    static const RowValue kNothing;
    const auto index = static_cast<std::size_t>(key);
    return index < mValues.size() ? mValues[index] : kNothing;
  }

  /// True when the value is another one than before.
  bool Set(KeyId key, RowValue value) {
    const auto index = static_cast<std::size_t>(key);
    if (index >= mValues.size()) mValues.resize(index + 1);
    if (mValues[index] == value) return false;
    mValues[index] = std::move(value);
    return true;
  }

 private:
  std::vector<RowValue> mValues;
};

/// A CPU time and when it was read, each as it was and as it is.
struct CPUReading {
  TimeValue internal_last_active_time;
  TimeValue internal_current_active_time;
  TimeValue internal_last_wall_time;
  TimeValue internal_current_wall_time;
};

/// The icon of a row's application, fetched when the row is first drawn.
struct RowIcon {
  bool internal_Icon_Has_Been_Inited = false;
  bool internal_Icon_Exists = false;
  QPixmap internal_Icon_Data;
};

/// One process in the table. Belongs to the table's controller; main thread only.
class RowDictionary {
 public:
  explicit RowDictionary(std::int32_t pid) : mPid(pid) { Set(kMetaPid, std::int64_t{pid}); }

  /// The process that the row was made for; meta_pid says the same.
  std::int32_t Pid() const { return mPid; }

  const RowValue& Get(KeyId key) const { return mValues.Get(key); }
  /// True when the value is another one than before.
  bool Set(KeyId key, RowValue value) {
    if (!mValues.Set(key, std::move(value))) return false;
    return mChanged = true;
  }

  /// The record's stamp when the row was read last; see ProcessGlance.
  std::uint64_t changeStamp = 0;
  CPUReading cpuReading;
  RowIcon icon;

  /// The name of the badge that marks the process, null for none; one of a few literals.
  /// True when it is another one than before.
  bool SetIndicator(const char* name) {
    if (std::exchange(mIndicator, name) == name) return false;
    return mChanged = true;
  }
  const char* Indicator() const { return mIndicator; }

  /// An ended process that its parent has not asked after looks different.
  void SetRunState(RunState state) {
    if ((std::exchange(mRunState, state) == RunState::kZombie) != (state == RunState::kZombie))
      mChanged = true;
  }
  bool IsZombie() const { return mRunState == RunState::kZombie; }

  /// Whether it looks different from when it was last drawn or announced.
  bool HasChanged() const { return mChanged; }
  void SetChanged(bool changed) { mChanged = changed; }

  /// Its place among the rows that the view has, -1 while it has none.
  int shownIndex = -1;
  /// Its process has ended; the row goes with the next commit.
  bool isDeparted = false;

 private:
  std::int32_t mPid;
  RowValues mValues;
  const char* mIndicator = nullptr;
  RunState mRunState = RunState::kSleeping;
  bool mChanged = true;
};

}  // namespace lurkwell
