#include "main_window/Preferences.h"

#include "preferences/Settings.h"

namespace lurkwell {

std::int32_t MainWindowInterval() {
  return ReadInt(kMainWindowIntervalKey);
}

bool DrawsVSZText() {
  return ReadSwitch("MEM_GRAPH_DRAW_VSZ");
}

}  // namespace lurkwell
