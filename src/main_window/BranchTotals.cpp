#include "main_window/BranchTotals.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <variant>

#include "main_window/RowTotals.h"
#include "windows/CustomCells.h"

namespace lurkwell {
namespace {

constexpr double kNoAmount = std::numeric_limits<double>::quiet_NaN();
constexpr double kMicroseconds = 1e6;
/// More than anything is, and not more than fits.
constexpr double kMostWhole = 9.2e18;

std::size_t Index(int place) {
  return static_cast<std::size_t>(place);
}

bool IsSame(double a, double b) {
  return a == b || (std::isnan(a) && std::isnan(b));
}

bool WantsTotals(const RowDictionary& row) {
  return row.Group() != nullptr || row.isFolded.value_or(false) || row.isFoldedInFilter;
}

}  // namespace

// ---- One figure ---------------------------------------------------------------------------------

double BranchTotals::Sum::AmountOf(const RowValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    kind = Kind::kInteger;
    return static_cast<double>(*integer);
  }
  if (const auto* real = std::get_if<double>(&value)) {
    kind = Kind::kReal;
    return *real;
  }
  if (const auto* time = std::get_if<TimeValue>(&value)) {
    kind = Kind::kTime;
    return static_cast<double>(time->seconds) * kMicroseconds + time->microseconds;
  }
  return kNoAmount;
}

RowValue BranchTotals::Sum::ValueAt(int place) const {
  const double amount = total[Index(place)];
  if (std::isnan(amount) || kind == Kind::kUnknown) return Missing::kNone;
  if (kind == Kind::kReal) return amount;
  const auto whole = static_cast<std::int64_t>(std::clamp(amount, -kMostWhole, kMostWhole));
  if (kind == Kind::kInteger) return whole;
  constexpr std::int64_t kInSecond = 1'000'000;
  return TimeValue{whole / kInSecond, static_cast<std::int32_t>(whole % kInSecond)};
}

void BranchTotals::Sum::AddUp(const RowPlaces& places) {
  isStale = false;
  isNew = true;
  before.swap(total);
  total = own;
  for (auto i = total.size(); i-- > 0;) {
    const int parent = places.parents[i];
    if (parent < 0 || std::isnan(total[i])) continue;
    auto& sum = total[Index(parent)];
    sum = std::isnan(sum) ? total[i] : sum + total[i];
  }
}

bool BranchTotals::Sum::IsAnother(int place) const {
  return isNew && !IsSame(before[Index(place)], total[Index(place)]);
}

// ---- All of them --------------------------------------------------------------------------------

void BranchTotals::TakeColumns(std::span<const KeyId> columns, std::size_t rows) {
  mColumns.assign(columns.begin(), columns.end());
  mFigureOfBars = MemoryFigureKey();
  mSums.clear();
  mCommons.clear();
  const auto keys = KeysToAddUp(columns);
  const std::vector<double> nothing(rows, kNoAmount);
  for (const KeyId key : keys)
    mSums.push_back({.key = key, .own = nothing, .total = nothing, .before = nothing});
  for (const KeyId key : columns)
    if (key != kMetaName && key != kMetaPid && std::ranges::find(keys, key) == keys.end())
      mCommons.push_back({key, std::vector<int>(rows, -1)});
  mWants.clear();
}

void BranchTotals::ReadChanged(const RowPlaces& places) {
  mChanged.clear();
  for (std::size_t i = 0; i < places.rows.size(); ++i) {
    auto& row = *places.rows[i];
    const bool hasChanged = row.TakeNewFigures();
    if ((!hasChanged && !mIsNew) || row.Group() != nullptr) continue;
    mChanged.push_back(static_cast<int>(i));
    for (auto& sum : mSums) {
      const double amount = sum.AmountOf(Addend(row, sum.key));
      if (IsSame(sum.own[i], amount)) continue;
      sum.own[i] = amount;
      sum.isStale = true;
    }
  }
}

void BranchTotals::AddUp(const RowPlaces& places, KeyId sortKey) {
  mWants.resize(places.inner.size(), Wants::kNone);
  bool isAnyWanting = false;
  for (std::size_t i = 0; i < mWants.size(); ++i) {
    if (!WantsTotals(*places.rows[Index(places.inner[i])])) {
      mWants[i] = Wants::kNone;
      continue;
    }
    mWants[i] = mWants[i] == Wants::kNone ? Wants::kAllFromNow : Wants::kAll;
    isAnyWanting = true;
  }
  for (auto& sum : mSums)
    if (sum.isStale && (isAnyWanting || sum.key == sortKey)) sum.AddUp(places);
}

void BranchTotals::Show(const RowPlaces& places, KeyId sortKey) {
  const bool isSortNew = mIsNew || sortKey != mSortKey;
  const auto show = [&](const Sum& sum, int place) {
    auto& row = *places.rows[Index(place)];
    if (row.Group() != nullptr)
      row.Set(sum.key, sum.ValueAt(place));
    else
      row.SetTotal(sum.key, sum.ValueAt(place));
  };
  for (auto& sum : mSums) {
    const bool isSort = sum.key == sortKey;
    for (std::size_t i = 0; i < mWants.size(); ++i) {
      if (mWants[i] == Wants::kNone && !isSort) continue;
      const int place = places.inner[i];
      if (mWants[i] == Wants::kAllFromNow || (isSort && isSortNew) || sum.IsAnother(place))
        show(sum, place);
    }
    sum.isNew = false;
  }
}

void BranchTotals::Update(const RowPlaces& places, std::span<const KeyId> columns, KeyId sortKey) {
  if (mIsNew || !std::ranges::equal(columns, mColumns) || mFigureOfBars != MemoryFigureKey()) {
    mIsNew = true;
    TakeColumns(columns, places.rows.size());
  }
  ReadChanged(places);
  AddUp(places, sortKey);
  Show(places, sortKey);
  ShowCommon(places);
  mSortKey = sortKey;
  mIsNew = false;
}

// ---- What all have ------------------------------------------------------------------------------

void BranchTotals::LookForOdd(const RowPlaces& places, Common& common, int group) {
  const auto& first = places.rows[Index(group) + 1]->Get(common.key);
  const int end = places.ends[Index(group)];
  int odd = group + 2;
  while (odd < end && places.rows[Index(odd)]->Get(common.key) == first) ++odd;
  common.odd[Index(group)] = odd < end ? odd : -1;
  places.rows[Index(group)]->Set(common.key, odd < end ? RowValue(Missing::kNone) : first);
}

void BranchTotals::LookAtMember(const RowPlaces& places, Common& common, int group, int member) {
  const auto& first = places.rows[Index(group) + 1]->Get(common.key);
  const int odd = common.odd[Index(group)];
  if (odd < 0) {
    const auto& value = places.rows[Index(member)]->Get(common.key);
    if (value != places.rows[Index(group)]->Get(common.key)) LookForOdd(places, common, group);
  } else if (places.rows[Index(odd)]->Get(common.key) == first) {
    LookForOdd(places, common, group);
  }
}

void BranchTotals::ShowCommon(const RowPlaces& places) {
  if (mIsNew) {
    for (const int place : places.inner)
      if (places.rows[Index(place)]->Group() != nullptr)
        for (auto& common : mCommons) LookForOdd(places, common, place);
    return;
  }
  for (const int member : mChanged) {
    const int group = places.parents[Index(member)];
    if (group < 0 || places.rows[Index(group)]->Group() == nullptr) continue;
    for (auto& common : mCommons) LookAtMember(places, common, group, member);
  }
}

}  // namespace lurkwell
