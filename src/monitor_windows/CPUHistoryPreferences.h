#pragma once

#include <QColor>
#include <cstdint>
#include <optional>

namespace lurkwell {

/// The settings of CPU history windows. Main thread only.
struct CPUHistoryPreferences {
  /// Reads all of them; those that are missing are stored with their defaults.
  static CPUHistoryPreferences Read();

  /// Reads all of them again; what is not stored stays as it is.
  void ReadAgain();

  bool useRelative = true;
  bool trackDescendants = false;

  QColor background;
  QColor foreground;
  QColor descendantsForeground;
  QColor name;
  QColor highWaterMark;
  QColor highWaterMarkRelative;
  QColor highWaterMarkFlash;
  QColor percentageBackground;
  QColor percentageForeground;

  double nameAlpha = 0.6;
  double highWaterMarkAlpha = 0.6;
  double percentageAlpha = 0.7;
  double iconAlpha = 0.2;
  /// For applications.
  double iconAlphaReally = 0.7;
};

/// Whether a new window counts a process's descendants.
bool CPUHistoryTracksDescendants();

/// The weight of the value before, from 0 to 1; 0.5 when what is stored lies outside.
double CPUHistoryFilter();

/// Stores a switch, which all open windows follow at once.
enum class CPUHistorySwitch { kRelative, kTrackDescendants };
void ChangeCPUHistorySetting(CPUHistorySwitch which, bool on);

/// Milliseconds; nothing when it is not stored.
std::optional<std::int32_t> StoredCPUHistoryInterval();

}  // namespace lurkwell
