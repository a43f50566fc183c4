#pragma once

namespace lurkwell {

/// While one lives, what is stored counts at once, but goes to disk in one write when the last one
/// ends, instead of in one each. For what belongs together: a record that is half there after a
/// crash is worth less than none. Main thread only.
class PreferenceBatch {
 public:
  PreferenceBatch() { ++smDepth; }
  ~PreferenceBatch();
  PreferenceBatch(const PreferenceBatch&) = delete;
  PreferenceBatch& operator=(const PreferenceBatch&) = delete;

  /// Brings what was stored to disk, now or when the batch ends.
  static void Synchronize();

 private:
  static int smDepth;
  static bool smHasChanges;
};

}  // namespace lurkwell
