#pragma once

#include <cstdint>
#include <vector>

#include "platform/Uuid.h"
#include "preferences/PreferenceArrays.h"

namespace lurkwell {

/// The windows that follow programs, remembered in the preferences: an array for each kind of
/// window, an element for each window. Main thread only; null array names and identifiers are fatal
/// assertions of the unit ProcessWatchdog.

inline constexpr char kCPUHistoryWindowKind[] = "CPU_HISTORY_WINDOW";
inline constexpr char kLoggingWindowKind[] = "LOGGING_WINDOW";

/// The field of the pid that a window followed last.
inline constexpr char kRememberedPidKey[] = "PROCESS_PID";

/// The field of the user whose processes come first.
inline constexpr char kRememberedOwnerKey[] = "PROCESS_OWNER";

/// The size of texts in a record, their end included.
inline constexpr std::int32_t kRememberedTextSize = 64;

/// In the coordinates of the whole desktop.
struct WindowRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;

  friend bool operator==(const WindowRect&, const WindowRect&) = default;
};

/// The element of that window; the array's count when there is none.
std::int32_t GetAppropriateIndexForUUID(const char* arrayName, const Uuid* uuid);

/// Writes what is given into the element of that window and returns its index. A new element is
/// made only when name, kind and rectangle are given; else -1. Every text is cut by its caller.
std::int32_t SetPersistentClientInfo(const char* clientKind, const char* processName,
                                     const char* processKind, const WindowRect* rect,
                                     const Uuid* uuid);

/// Notes which process the window of an element follows: the same one is its first choice when this
/// program is started again. The owner of the first one stays the element's.
void RememberProcess(const char* arrayName, std::int32_t index, std::int32_t pid);
/// Whether the element's window followed this very process last.
bool IsRememberedProcess(const char* arrayName, std::int32_t index, std::int32_t pid);

/// Forgets that window, in every element that there is of it.
void RemovePersistentClientInfo(const char* arrayName, const Uuid* uuid);

// ---- Single fields, of records that another run may have left incomplete or damaged -------------

/// Leaves the buffer of kRememberedTextSize bytes empty when there is no such text.
void ReadRememberedText(const char* arrayName, std::int32_t index, const char* key, char* buffer);
std::int32_t ReadRememberedInt(const char* arrayName, std::int32_t index, const char* key,
                               std::int32_t fallback);
WindowRect ReadRememberedRect(const char* arrayName, std::int32_t index);

/// Collects values for one element and writes them together, once, when it ends. What is so already
/// is not written, since every write goes to disk. Texts have to live as long as this.
class RememberedChanges {
 public:
  RememberedChanges(const char* arrayName, std::int32_t index);
  ~RememberedChanges();
  RememberedChanges(const RememberedChanges&) = delete;
  RememberedChanges& operator=(const RememberedChanges&) = delete;

  void SetInt(const char* key, std::int32_t value);
  void SetDouble(const char* key, double value);
  void SetText(const char* key, const char* value);

 private:
  const char* mArrayName;
  std::int32_t mIndex;
  std::vector<PrefArrayField> mFields;
};

/// Opens the windows that follow a process, be it as new ones or as they were remembered. Main
/// thread only.
class MonitorWindowKinds {
 public:
  /// No more than so many of both kinds together are opened.
  static constexpr int kMostOpenWindows = 200;

  virtual ~MonitorWindowKinds() = default;

  /// `interval` in milliseconds. Without `uuid` the window is a new one, which is remembered from
  /// now on; without `rect` it goes where new ones go.
  virtual void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                                      const WindowRect* rect) = 0;
  /// The same; `prefsIndex` is the remembered window's element, -1 for none.
  virtual void CreateLoggingWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                                   const WindowRect* rect, std::int32_t prefsIndex) = 0;
  /// How many there are of both kinds at present.
  virtual int CountOpenWindows() const = 0;
  /// Whether the window of that identifier is open for a process that has not ended. A log whose
  /// process has ended stays on the screen, and goes on with the next one when it is created again.
  virtual bool IsCPUHistoryWindowOpen(const Uuid& uuid) const = 0;
  virtual bool IsLoggingWindowOpen(const Uuid& uuid) const = 0;
  /// Tells the windows of a process that it has ended: they hear of it at their own intervals only,
  /// and its program, or its pid, may be back before that.
  virtual void ProcessHasEnded(std::int32_t pid) = 0;
};

/// Shows the windows that are there from the start.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;
  virtual void doShowMainWindow() = 0;
  virtual void doShowQuintessentialView() = 0;
  virtual void showQuintessentialViewFullScreen() = 0;
};

}  // namespace lurkwell
