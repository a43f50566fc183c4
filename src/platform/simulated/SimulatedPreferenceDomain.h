#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/PreferenceDomain.h"

namespace lurkwell {

/// Settings in memory only. Main thread.
class SimulatedPreferenceDomain final : public PreferenceDomain {
 public:
  const PreferenceValue* Value(std::string_view key) override {
    ++mLookUpCount;
    const auto at = mValues.find(key);
    return at != mValues.end() ? &at->second : nullptr;
  }

  void SetValue(std::string_view key, PreferenceValue value) override {
    mValues.insert_or_assign(std::string(key), std::move(value));
    ++mUnsynchronized;
  }

  void RemoveValue(std::string_view key) override {
    const auto at = mValues.find(key);
    if (at == mValues.end()) return;
    mValues.erase(at);
    ++mUnsynchronized;
  }

  bool Synchronize() override {
    ++mSynchronizeCount;
    if (mRefusesToSynchronize) return false;
    mUnsynchronized = 0;
    return true;
  }

  /// From now on Synchronize fails (or works again); values go on counting in memory.
  void RefuseToSynchronize(bool refuses) { mRefusesToSynchronize = refuses; }

  /// How often Synchronize was called, refused calls included.
  std::uint64_t SynchronizeCount() const { return mSynchronizeCount; }

  /// How often Value was called.
  std::uint64_t LookUpCount() const { return mLookUpCount; }

  /// How many SetValue calls no Synchronize has covered yet.
  std::uint64_t UnsynchronizedCount() const { return mUnsynchronized; }

  /// Everything stored, by key.
  const std::map<std::string, PreferenceValue, std::less<>>& Values() const { return mValues; }

 private:
  std::map<std::string, PreferenceValue, std::less<>> mValues;
  std::uint64_t mLookUpCount = 0;
  std::uint64_t mSynchronizeCount = 0;
  std::uint64_t mUnsynchronized = 0;
  bool mRefusesToSynchronize = false;
};

}  // namespace lurkwell
