#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string_view>

namespace lurkwell {

enum class SettingKind : std::uint8_t {
  kSwitch,  ///< 0 or 1
  kChoice,  ///< the number of a possibility, from 0
  kInteger,
  kInterval,  ///< milliseconds
  kColour,    ///< one component of three, 0 to 65535
  kReal,
  kText,
  kRecord,  ///< a number or a text that the program writes by itself
  kArray,   ///< the program's own records, an element each
};

/// What a number counts.
enum class SettingUnit : std::uint8_t { kNone, kMilliseconds, kSeconds, kPages, kPoints, kTicks };

enum class SettingEffect : std::uint8_t {
  kAtOnce,
  kNewWindows,  ///< those that are opened from then on
  kNextStart,
};

/// One setting: the only place that says what may be stored under its key, what counts when nothing
/// is, what hears of a change and where the user finds it.
struct Setting {
  const char* key;
  SettingKind kind;
  /// What counts when nothing is stored; NaN when there is no number to it.
  double defaultValue;
  double least;
  double most;
  SettingUnit unit;
  SettingEffect effect;
  /// The type name of the clients to be told of a change, "*" for all; null when none is.
  const char* told;
  /// The name of its control in the preferences window's form; null without one. A colour has it
  /// at its first component. What kind of control it is follows from `kind`.
  const char* control;

  constexpr bool HasDefault() const { return defaultValue == defaultValue; }
  constexpr bool IsInteger() const { return kind <= SettingKind::kColour; }
  constexpr bool IsNumber() const { return kind <= SettingKind::kReal; }
  /// What the user would change here, the program would overwrite.
  constexpr bool IsProgramsOwn() const { return kind >= SettingKind::kRecord; }
};

/// Of the steps that spread the animated view's first records. The main thread takes them: a
/// mistyped setting must not keep it for minutes.
inline constexpr std::int32_t kMostStabilizingSteps = 100;

namespace setting_rows {

using enum SettingKind;
using enum SettingUnit;
using enum SettingEffect;

inline constexpr double kAbsent = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kMostInt = std::numeric_limits<std::int32_t>::max();
inline constexpr double kLeastInt = std::numeric_limits<std::int32_t>::min();
/// Clients are served every 20 ms at most; a day is longer than anybody waits.
inline constexpr double kLeastInterval = 20;
inline constexpr double kMostInterval = 86'400'000;

inline constexpr const char* kNobody = nullptr;
inline constexpr const char* kAll = "*";
inline constexpr const char* kTable = "VQTarvMainWindowInfoSynch";
inline constexpr const char* kHistories = "CPUHistoryWindowInformationClient";
inline constexpr const char* kAnimatedView = "QuintessentialInformationClient";

constexpr Setting Switch(const char* key, bool isOn, SettingEffect effect,
                         const char* told = kNobody, const char* control = nullptr) {
  return {key, kSwitch, isOn ? 1.0 : 0.0, 0, 1, SettingUnit::kNone, effect, told, control};
}
constexpr Setting Choice(const char* key, double defaultValue, double last, SettingEffect effect,
                         const char* told = kNobody, const char* control = nullptr) {
  return {key, kChoice, defaultValue, 0, last, SettingUnit::kNone, effect, told, control};
}
constexpr Setting Number(const char* key, double defaultValue, double least, double most,
                         SettingEffect effect, SettingUnit unit = SettingUnit::kNone) {
  return {key, kInteger, defaultValue, least, most, unit, effect, kNobody, nullptr};
}
constexpr Setting Interval(const char* key, double defaultValue, SettingEffect effect,
                           const char* told = kNobody, const char* control = nullptr) {
  return {key,           kInterval, defaultValue, kLeastInterval, kMostInterval,
          kMilliseconds, effect,    told,         control};
}
constexpr Setting Real(const char* key, double defaultValue, double least, double most,
                       SettingEffect effect, const char* told = kNobody,
                       const char* control = nullptr, SettingUnit unit = SettingUnit::kNone) {
  return {key, kReal, defaultValue, least, most, unit, effect, told, control};
}
/// Green and blue follow red.
constexpr Setting Component(const char* key, double defaultValue, const char* control = nullptr) {
  return {key, kColour, defaultValue, 0, 65535, SettingUnit::kNone, kAtOnce, kHistories, control};
}
constexpr Setting Text(const char* key, SettingEffect effect) {
  return {key, kText, kAbsent, 0, 0, SettingUnit::kNone, effect, kNobody, nullptr};
}
constexpr Setting Record(const char* key, double defaultValue, SettingEffect effect = kNextStart) {
  return {key,    kRecord, defaultValue, defaultValue, defaultValue, SettingUnit::kNone,
          effect, kNobody, nullptr};
}
constexpr Setting Array(const char* key) {
  return {key, kArray, kAbsent, 0, 0, SettingUnit::kNone, kNextStart, kNobody, nullptr};
}

/// Every key there is, by subject.
inline constexpr Setting kRows[] = {
    Choice("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 0, 4, kAtOnce, kAll, "memoryFormatMatrix"),
    Choice("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT", 0, 2, kAtOnce, kAll, "dateFormatMatrix"),
    Switch("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", false, kNextStart),
    Switch("GENERAL_CONTINUE_WITHOUT_RIGHTS", false, kNextStart),
    Switch("FIGURES_FROM_HELPER", false, kAtOnce),
    Record("PREFERENCES_UI_DEFAULT_TAB", 0, kNewWindows),
    Switch("ABOUT_PANEL_AT_EVERY_START", false, kNextStart),
    Record("ABOUT_PANEL_SEEN_VERSION", kAbsent),
    Record("HINTS_SEEN", 0),

    Interval("MAIN_WINDOW_INTERVAL", 2000, kAtOnce, kTable, "mainWindowIntervalSlider"),
    Switch("MEM_GRAPH_DRAW_VSZ", false, kAtOnce, kTable, "memoryGraphCheckBox"),
    Choice("MEMORY_BAR_FIGURE", 0, 2, kAtOnce, kTable, "memoryFigureChoice"),
    Switch("MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE", true, kAtOnce, kTable),
    Switch("CPU_SHARE_OF_MACHINE", false, kAtOnce, kTable),
    Switch("KEEP_COMMAND_LINES", false, kAtOnce),
    Switch("MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT", true, kAtOnce),
    Real("MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL", 0.25, 0.05, 10, kNextStart, kNobody,
         nullptr, kSeconds),
    Real("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER", 0.2, 0, 1, kNextStart),
    Number("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED", 20, 0, kMostInt, kNextStart, kPages),
    Number("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW", 1, 0, kMostInt, kNextStart, kPages),
    Record("DEFAULT_SHOW_PROCESS_LIST_WINDOW", 1),
    Record("MAIN_WINDOW_FRAME", kAbsent),
    Text("vqMainTableToolbarIdentifierTarvikTemp14_ITEMS", kNextStart),
    Choice("vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE", 0, 3, kNextStart),
    Switch("vqMainTableToolbarIdentifierTarvikTemp14_SHOWN", true, kNextStart),
    Record("MAIN_WINDOW_SORT_COLUMN_INDEX", 1),
    Array("MAIN_WINDOW_COLUMNS"),
    Array("MAIN_WINDOW_COLUMN_SETS"),
    Record("MAIN_WINDOW_COLUMN_SET", kAbsent),
    Text("MAIN_WINDOW_RECENT_FILTERS", kAtOnce),
    Choice("MAIN_WINDOW_SHAPE", 0, 2, kNextStart),
    Choice("MAIN_WINDOW_SCOPE", 0, 5, kNextStart),
    Switch("MAIN_WINDOW_FOLLOWS_SELECTION", false, kNextStart),
    Text("MAIN_WINDOW_FOLDED_PROGRAMS", kNextStart),
    Text("MAIN_WINDOW_UNFOLDED_APPLICATIONS", kNextStart),
    Record("DETAILS_WINDOW_FRAME", kAbsent),
    Record("DETAILS_WINDOW_PAGE", 0, kNewWindows),
    Text("WEB_SEARCH_ADDRESS", kAtOnce),
    Number("HAS_RUN_TWO_POINT_THREE", kAbsent, 0, 1, kNextStart),
    Number("HAS_RUN_TWO_POINT_FOUR", kAbsent, 0, 1, kNextStart),

    Number("DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS", 80, kLeastInt, kMostInt, kNewWindows,
           kPoints),
    Number("DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS", 100, kLeastInt, kMostInt, kNewWindows,
           kPoints),
    Real("DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA", 1, 0.1, 1, kAtOnce, kHistories),
    Interval("DEFAULT_WATCHDOG_INTERVAL", 500, kNextStart),

    Interval("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", 250, kAtOnce, kHistories,
             "historyIntervalSlider"),
    Switch("CPU_HISTORY_WINDOW_USE_RELATIVE", true, kAtOnce, kHistories, "relativeCheckBox"),
    Switch("CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", false, kAtOnce, kHistories,
           "descendantsCheckBox"),
    Real("CPU_HISTORY_WINDOW_DEFAULT_FILTER", 0.5, 0, 1, kAtOnce, kHistories,
         "historyFilterSlider"),
    Component("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_RED", 0),
    Component("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_GREEN", 1024),
    Component("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_BLUE", 0),
    Component("DEFAULT_CPU_HISTORY_FOREGROUND_RGB_RED", 16384, "historyColourWell"),
    Component("DEFAULT_CPU_HISTORY_FOREGROUND_RGB_GREEN", 65535),
    Component("DEFAULT_CPU_HISTORY_FOREGROUND_RGB_BLUE", 16384),
    Component("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_RED", 0, "descendantsColourWell"),
    Component("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_GREEN", 0),
    Component("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_BLUE", 65535),
    Component("DEFAULT_CPU_HISTORY_NAME_RGB_RED", 65535),
    Component("DEFAULT_CPU_HISTORY_NAME_RGB_GREEN", 65535),
    Component("DEFAULT_CPU_HISTORY_NAME_RGB_BLUE", 49152),
    Component("DEFAULT_CPU_HISTORY_HWM_RGB_RED", 24576),
    Component("DEFAULT_CPU_HISTORY_HWM_RGB_GREEN", 24576),
    Component("DEFAULT_CPU_HISTORY_HWM_RGB_BLUE", 65535),
    Component("DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_RED", 65535),
    Component("DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_GREEN", 32767),
    Component("DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_BLUE", 32767),
    Component("DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_RED", 65535),
    Component("DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_GREEN", 65535),
    Component("DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_BLUE", 32767),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_RED", 0),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_GREEN", 20479),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_BLUE", 0),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_RED", 65535),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_GREEN", 65535),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_BLUE", 8191),
    Real("DEFAULT_CPU_HISTORY_NAME_ALPHA", 0.6, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA", 0.6, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA", 0.7, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_ICON_ALPHA", 0.2, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY", 0.7, 0, 1, kAtOnce, kHistories),
    Array("CPU_HISTORY_WINDOW"),

    Interval("DEFAULT_LOGGING_WINDOW_INTERVAL", 1000, kNewWindows, kNobody,
             "loggingIntervalSlider"),
    Switch("LOG_WINDOW_INCLUDE_TIMESTAMP", true, kNewWindows, kNobody, "timestampCheckBox"),
    Switch("LOG_WINDOW_ACTIVE_TIME_BOOL", true, kNewWindows, kNobody, "activeTimeCheckBox"),
    Switch("LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL", true, kNewWindows, kNobody,
           "deltaActiveTimeCheckBox"),
    Switch("LOG_WINDOW_REAL_MEM_BOOL", false, kNewWindows, kNobody, "realMemoryCheckBox"),
    Switch("LOG_WINDOW_DELTA_REAL_MEM_BOOL", false, kNewWindows, kNobody,
           "deltaRealMemoryCheckBox"),
    Switch("LOG_WINDOW_VIRTUAL_MEM_BOOL", false, kNewWindows, kNobody, "virtualMemoryCheckBox"),
    Switch("LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL", false, kNewWindows, kNobody,
           "deltaVirtualMemoryCheckBox"),
    Switch("LOG_WINDOW_LOG_TO_FILE", false, kNewWindows, kNobody, "logToFileCheckBox"),
    Array("LOGGING_WINDOW"),

    Interval("HEARTQUIVA_GL_THREAD_INTERVAL", 100, kAtOnce, kAnimatedView, "frameIntervalSlider"),
    Interval("HEARTQUIVA_MAINPIC_INTERVAL", 200, kAtOnce, kAnimatedView, "mainIntervalSlider"),
    Interval("HEARTQUIVA_HELPERPIC_INTERVAL", 1000, kAtOnce, kAnimatedView, "cpuIntervalSlider"),
    Switch("QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS", false, kAtOnce, kAnimatedView,
           "connectorsCheckBox"),
    Real("QUINT_FULLSCREEN_WINDOW_ALPHA", 0.8, 0, 1, kAtOnce, kAnimatedView, "windowAlphaSlider"),
    Real("QUINT_FULLSCREEN_UNDERLAY_ALPHA", 0.25, 0, 1, kAtOnce, kAnimatedView,
         "underlayAlphaSlider"),
    Real("HEARTQUIVA_ICON_SCALE_FACTOR", 150, 1, 2000, kNextStart, kNobody, nullptr, kPoints),
    Real("QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR", 1.5, 0.1, 10, kNextStart),
    Number("QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING", 10, 0, kMostStabilizingSteps,
           kNextStart),
    Real("QUINT_TARVIK_FACTOR", kAbsent, -1000, 1000, kNextStart),
    Number("FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE", 98, 0, 127, kNextStart),
    Switch("QUIVA_CHECK_QUARTZ_EXTREME", false, kNextStart),
    Switch("QUIVA_CHECK_COMPOSITOR", false, kNextStart),
    Record("QUIVA_WINDOW_FRAME", kAbsent),
    Record("DEFAULT_SHOW_PROCESS_QUIVA_WINDOW", 0),
    Record("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", 0),

    Switch("ACCESSIBLE_QUIET", false, kAtOnce),
    Switch("REDUCE_MOTION", false, kAtOnce),

    Switch("MACHINE_HISTORY_ALWAYS", false, kNextStart),
    Switch("TRAY_ICON", false, kNextStart),
    Record("MACHINE_WINDOW_FRAME", kAbsent),
    Record("MACHINE_WINDOW_MINUTES", 5, kNewWindows),
    Record("DEFAULT_SHOW_MACHINE_WINDOW", 0),

    Array("ALERT_RULES"),
    Switch("ALERT_NOTIFICATIONS", true, kAtOnce),
    Record("ALERTS_WINDOW_FRAME", kAbsent),
    Record("DEFAULT_SHOW_ALERTS_WINDOW", 0),

    Record("FLEET_WINDOW_FRAME", kAbsent),
    Record("FLEET_WINDOW_SECONDS", 30, kNewWindows),
    Text("FLEET_RECENT_ADDRESSES", kAtOnce),

    Real("CLASSIC_INITIAL_ASSUMED_CPU_USAGE", 0.1, 0, 1, kNextStart),
    Real("CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER", 0.05, 0, 1, kAtOnce),
    Interval("CLASSIC_WATCHDOG_INTERVAL", 5000, kNextStart),
    Number("CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX", 120, 6, 216'000, kNextStart, kTicks),

    Switch("QUBS_DEBUGGING_AND_TESTING", false, kNextStart),
    Interval("QUBS_DEBUGGING_SWI_INTERVAL", 500, kNextStart),
    Record("QUBS_DEBUGGING_WINDOW_LEFT", 100),
    Record("QUBS_DEBUGGING_WINDOW_TOP", 300),
    Record("QUBS_DEBUGGING_WINDOW_RIGHT", 290),
    Record("QUBS_DEBUGGING_WINDOW_BOTTOM", 350),
};

}  // namespace setting_rows

/// Every setting there is, by subject. Any thread.
inline constexpr auto& kSettings = setting_rows::kRows;

/// The place of a key in the table; the table's size when there is no such key. Any thread.
constexpr std::size_t PlaceOfSetting(std::string_view key) {
  std::size_t place = 0;
  while (place < std::size(kSettings) && key != kSettings[place].key) ++place;
  return place;
}

/// Null when there is no such key. Any thread.
constexpr const Setting* FindSetting(std::string_view key) {
  const auto place = PlaceOfSetting(key);
  return place < std::size(kSettings) ? &kSettings[place] : nullptr;
}

}  // namespace lurkwell
