#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lurkwell {

/// A number or a text under a key. Texts are UTF-8.
using PreferenceScalar = std::variant<std::int64_t, double, std::string>;
/// One element of an array preference.
using PreferenceDictionary = std::map<std::string, PreferenceScalar, std::less<>>;
using PreferenceArray = std::vector<PreferenceDictionary>;
using PreferenceValue = std::variant<std::int64_t, double, std::string, PreferenceArray>;

/// The settings of one application for one user, kept in memory and on disk. Main thread only.
///
/// No call fails as far as its caller can see: a value that cannot be brought to disk counts for
/// the rest of this run, is tried again with the next write, and the cause is reported once, on
/// standard error and by TakeComplaint.
class PreferenceDomain {
 public:
  virtual ~PreferenceDomain() = default;

  /// The value under `key`, or null when there is none. The domain owns it; it stays as it is until
  /// the next SetValue or Synchronize. Does not touch the disk.
  virtual const PreferenceValue* Value(std::string_view key) = 0;

  /// Sets the value under `key`. Value() shows it at once; Synchronize brings it to disk.
  virtual void SetValue(std::string_view key, PreferenceValue value) = 0;

  /// Forgets the value under `key`, as if it had never been set. Synchronize brings that to disk.
  virtual void RemoveValue(std::string_view key) = 0;

  /// Brings what was set or removed since the last call to disk, durably, and takes in what another
  /// running instance has written meanwhile. True when the disk now has it. Waits for another
  /// instance's lock for at most a second.
  virtual bool Synchronize() = 0;

  /// What has gone wrong since the last call, in words for the user; "" for nothing.
  virtual std::string TakeComplaint() { return {}; }
};

}  // namespace lurkwell
