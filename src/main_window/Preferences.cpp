#include "main_window/Preferences.h"

#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {

std::int32_t MainWindowInterval() {
  return GetPrefInt(kMainWindowIntervalKey, nullptr, true, 2000);
}

bool IgnoresPidZero() {
  return GetPrefInt("MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE", nullptr, true, 1) != 0;
}

bool DrawsVSZText() {
  return GetPrefInt("MEM_GRAPH_DRAW_VSZ", nullptr, true, 0) != 0;
}

}  // namespace lurkwell
