#pragma once

#include <QPixmap>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "consolidator/TypedValue.h"
#include "platform/Clock.h"
#include "platform/ProcessIdentity.h"
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

/// What decides about the place of a process among the others, beside its figures.
struct RowOrigin {
  /// kInvalidPID for none.
  std::int32_t parentPid = kInvalidPID;
  /// See ProcessIdentity.
  std::uint64_t startStamp = 0;
  /// The desktop knows it as an application.
  bool isApplication = false;
  bool isKernelThread = false;

  bool operator==(const RowOrigin&) const = default;
};

/// How a row stands among those below and above it.
struct RowStanding {
  enum class Fold : std::uint8_t { kNone, kFolded, kUnfolded };
  /// 0 for those that are below no other.
  int level = 0;
  /// kNone where nothing is below.
  Fold fold = Fold::kNone;
  /// How many processes are below it, at any depth.
  int below = 0;
  /// It is there for the sake of those below it alone.
  bool isContext = false;

  bool operator==(const RowStanding&) const = default;
};

/// The processes that a row stands for which is none itself.
struct RowGroup {
  /// Tells it from other groups, from one start of the program to the next.
  std::string key;
  /// Whose icon it has.
  std::int32_t lead = kInvalidPID;
  /// The lowest of its pids, so that orders are complete.
  std::int32_t first = kInvalidPID;
  /// Those of its processes that are not hidden.
  std::vector<ProcessIdentity> shown;
};

/// One process in the table, or a group of them. Belongs to the table's controller; main thread
/// only.
class RowDictionary {
 public:
  explicit RowDictionary(std::int32_t pid) : mPid(pid) { Set(kMetaPid, std::int64_t{pid}); }
  explicit RowDictionary(std::unique_ptr<RowGroup> group)
      : mPid(kInvalidPID), mGroup(std::move(group)) {}

  /// The process that the row was made for; meta_pid says the same. kInvalidPID for a group.
  std::int32_t Pid() const { return mPid; }
  /// Null for a process.
  RowGroup* Group() const { return mGroup.get(); }
  /// By which it is ordered among equals; for a group the lowest of its pids.
  std::int32_t OrderPid() const { return mGroup != nullptr ? mGroup->first : mPid; }
  /// Whose icon and application it shows.
  std::int32_t LeadPid() const { return mGroup != nullptr ? mGroup->lead : mPid; }

  const RowValue& Get(KeyId key) const { return mValues.Get(key); }
  /// True when the value is another one than before.
  bool Set(KeyId key, RowValue value) {
    if (!mValues.Set(key, std::move(value))) return false;
    if (key == mFoldedKey) mFoldedKey = kNoKey;
    mChanged |= CellsOf(key);
    return mHasNewFigures = true;
  }
  /// A text without regard to case, empty for what is none. Kept for the key that was asked for
  /// last, which is what the rows are sorted by.
  const QString& CaseFolded(KeyId key) const {
    if (mFoldedKey == key) return mFolded;
    const auto* text = std::get_if<std::string>(&Get(key));
    mFolded = text != nullptr ? QString::fromStdString(*text).toCaseFolded() : QString();
    mFoldedKey = key;
    return mFolded;
  }
  /// Whether a value was set to another one since this was asked last.
  bool TakeNewFigures() { return std::exchange(mHasNewFigures, false); }

  // ---- Totals of the row and all below it ------------------------------------------------------

  /// What the cell shows: the total where the row is folded and has one, else its own.
  const RowValue& Shown(KeyId key) const { return mShowsTotals ? SortValue(key) : Get(key); }
  /// What the row is sorted by: its total, folded or not, so that folding moves nothing.
  const RowValue& SortValue(KeyId key) const {
    if (mTotals == nullptr) return Get(key);
    const auto& total = mTotals->Get(key);
    return IsKnown(total) ? total : Get(key);
  }
  void SetTotal(KeyId key, RowValue value) {
    if (mTotals == nullptr) mTotals = std::make_unique<RowValues>();
    if (mTotals->Set(key, std::move(value)) && mShowsTotals) mChanged |= CellsOf(key);
  }
  void ShowTotals(bool show) {
    if (std::exchange(mShowsTotals, show) != show) SetChanged(true);
  }
  void DropTotals() {
    ShowTotals(false);
    mTotals.reset();
  }

  // ---- Its place -------------------------------------------------------------------------------

  RowOrigin origin;
  const RowStanding& Standing() const { return mStanding; }
  void SetStanding(const RowStanding& standing) {
    if (mStanding == standing) return;
    mStanding = standing;
    SetChanged(true);
  }
  /// Whether it is folded; nothing until it is known what is remembered for its name.
  std::optional<bool> isFolded;
  /// The user has chosen it, whatever is remembered.
  bool isFoldChosen = false;
  /// The same while a filter looks below it.
  bool isFoldedInFilter = false;
  /// The row that it stands below, and its own place; see RowTree.
  RowDictionary* above = nullptr;
  int place = -1;

  /// The record's stamp when the row was read last; see ProcessGlance.
  std::uint64_t changeStamp = 0;
  CPUReading cpuReading;
  RowIcon icon;

  /// The name of the badge that marks the process, null for none; one of a few literals.
  /// True when it is another one than before.
  bool SetIndicator(const char* name) {
    if (std::exchange(mIndicator, name) == name) return false;
    SetChanged(true);
    return true;
  }

  /// An ended process that its parent has not asked after looks different.
  void SetRunState(RunState state) {
    if ((std::exchange(mRunState, state) == RunState::kZombie) != (state == RunState::kZombie))
      SetChanged(true);
  }
  bool IsZombie() const { return mRunState == RunState::kZombie; }

  /// Whether it looks different from when it was last drawn or announced.
  bool HasChanged() const { return mChanged != 0; }
  void SetChanged(bool changed) { mChanged = changed ? kAllCells : 0; }

  /// Some of the cells, as bits: those that show the value with the key, and some others.
  using Cells = std::uint64_t;
  static Cells CellsOf(KeyId key) { return Cells{1} << static_cast<unsigned>(key) % 64; }
  bool HaveCellsChanged(Cells cells) const { return (mChanged & cells) != 0; }

  /// Its place among the rows that the view has, -1 while it has none.
  int shownIndex = -1;
  /// Its process has ended; the row goes with the next commit that changes places.
  bool isDeparted = false;
  /// It came while rows were held; see ProcessRows.
  bool isWaiting = false;

 private:
  std::int32_t mPid;
  std::unique_ptr<RowGroup> mGroup;
  RowValues mValues;
  mutable KeyId mFoldedKey = kNoKey;
  mutable QString mFolded;
  /// Null where nothing is added up.
  std::unique_ptr<RowValues> mTotals;
  bool mShowsTotals = false;
  RowStanding mStanding;
  const char* mIndicator = nullptr;
  RunState mRunState = RunState::kSleeping;
  static constexpr Cells kAllCells = ~Cells{0};
  Cells mChanged = kAllCells;
  bool mHasNewFigures = true;
};

}  // namespace lurkwell
