#include "preferences_window/PreferenceCatalogue.h"

#include <algorithm>

#include "animated_view/QuintessentialGlobals.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

using enum PreferenceKind;
using enum PreferenceEffect;

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kMostInt = std::numeric_limits<std::int32_t>::max();
constexpr double kLeastInt = std::numeric_limits<std::int32_t>::min();
/// Clients are served every 20 ms at most; a day is longer than anybody waits.
constexpr double kLeastInterval = 20;
constexpr double kMostInterval = 86'400'000;

constexpr const char* kNobody = nullptr;
constexpr const char* kAll = "*";
constexpr const char* kTable = "VQTarvMainWindowInfoSynch";
constexpr const char* kHistories = "CPUHistoryWindowInformationClient";
constexpr const char* kAnimatedView = "QuintessentialInformationClient";

constexpr PreferenceEntry Switch(const char* key, bool isOn, PreferenceEffect effect,
                                 const char* told = kNobody) {
  return {key, kBoolean, isOn ? 1.0 : 0.0, 0, 1, effect, told};
}
constexpr PreferenceEntry Number(const char* key, double defaultValue, double least, double most,
                                 PreferenceEffect effect, const char* told = kNobody) {
  return {key, kInteger, defaultValue, least, most, effect, told};
}
constexpr PreferenceEntry Interval(const char* key, double defaultValue, PreferenceEffect effect,
                                   const char* told = kNobody) {
  return {key, kInterval, defaultValue, kLeastInterval, kMostInterval, effect, told};
}
constexpr PreferenceEntry Real(const char* key, double defaultValue, double least, double most,
                               PreferenceEffect effect, const char* told = kNobody) {
  return {key, kReal, defaultValue, least, most, effect, told};
}
constexpr PreferenceEntry Component(const char* key, double defaultValue,
                                    PreferenceEffect effect = kNewWindows) {
  return {key, kColour, defaultValue, 0, 65535, effect, kHistories};
}
constexpr PreferenceEntry Text(const char* key, PreferenceEffect effect) {
  return {key, kText, kNone, 0, 0, effect, kNobody};
}
constexpr PreferenceEntry Record(const char* key, double defaultValue,
                                 PreferenceEffect effect = kNextStart) {
  return {key, kRecord, defaultValue, defaultValue, defaultValue, effect, kNobody};
}
constexpr PreferenceEntry Array(const char* key) {
  return {key, kArray, kNone, 0, 0, kNextStart, kNobody};
}

constexpr PreferenceEntry kCatalogue[] = {
    Number("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 0, 0, 4, kAtOnce, kAll),
    Number("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT", 0, 0, 2, kAtOnce, kAll),
    Switch("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", false, kNextStart),
    Switch("GENERAL_CONTINUE_WITHOUT_RIGHTS", false, kNextStart),
    Switch("FIGURES_FROM_HELPER", false, kAtOnce),
    Record("PREFERENCES_UI_DEFAULT_TAB", 0, kNewWindows),
    Switch("ABOUT_PANEL_AT_EVERY_START", false, kNextStart),
    Record("ABOUT_PANEL_SEEN_VERSION", kNone),

    Interval("MAIN_WINDOW_INTERVAL", 2000, kAtOnce, kTable),
    Switch("MEM_GRAPH_DRAW_VSZ", false, kAtOnce, kTable),
    Switch("MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE", true, kAtOnce, kTable),
    Switch("MEMORY_IGNORE_SHARED_TEXT_AND_DATA_CONSTANT", true, kAtOnce),
    Real("MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL", 0.25, 0.05, 10, kNextStart),
    Real("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER", 0.2, 0, 1, kNextStart),
    Number("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_RED", 20, 0, kMostInt, kNextStart),
    Number("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW", 1, 0, kMostInt, kNextStart),
    Record("DEFAULT_SHOW_PROCESS_LIST_WINDOW", 1),
    Record("MAIN_WINDOW_FRAME", kNone),
    Text("vqMainTableToolbarIdentifierTarvikTemp14_ITEMS", kNextStart),
    Number("vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE", 0, 0, 3, kNextStart),
    Switch("vqMainTableToolbarIdentifierTarvikTemp14_SHOWN", true, kNextStart),
    Record("MAIN_WINDOW_SORT_COLUMN_INDEX", 1),
    Array("MAIN_WINDOW_COLUMNS"),
    Number("HAS_RUN_TWO_POINT_THREE", kNone, 0, 1, kNextStart),
    Number("HAS_RUN_TWO_POINT_FOUR", kNone, 0, 1, kNextStart),

    Number("DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS", 80, kLeastInt, kMostInt, kNewWindows),
    Number("DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS", 100, kLeastInt, kMostInt, kNewWindows),
    Real("DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA", 1, 0.1, 1, kAtOnce, kHistories),
    Interval("DEFAULT_WATCHDOG_INTERVAL", 500, kNextStart),

    Interval("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", 250, kAtOnce, kHistories),
    Switch("CPU_HISTORY_WINDOW_USE_RELATIVE", true, kAtOnce, kHistories),
    Switch("CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", false, kAtOnce, kHistories),
    Real("CPU_HISTORY_WINDOW_DEFAULT_FILTER", 0.5, 0, 1, kAtOnce, kHistories),
    Component("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_RED", 0, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_GREEN", 1024, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_BLUE", 0, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_FOREGROUND_RGB_RED", 16384, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_FOREGROUND_RGB_GREEN", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_FOREGROUND_RGB_BLUE", 16384, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_RED", 0, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_GREEN", 0, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_BLUE", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_NAME_RGB_RED", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_NAME_RGB_GREEN", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_NAME_RGB_BLUE", 49152, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_RGB_RED", 24576, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_RGB_GREEN", 24576, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_RGB_BLUE", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_RED", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_GREEN", 32767, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_RELATIVE_RGB_BLUE", 32767, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_RED", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_GREEN", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_HWM_FLASH_RGB_BLUE", 32767, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_RED", 0, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_GREEN", 20479, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_BG_BLUE", 0, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_RED", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_GREEN", 65535, kAtOnce),
    Component("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_FG_BLUE", 8191, kAtOnce),
    Real("DEFAULT_CPU_HISTORY_NAME_ALPHA", 0.6, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_HIGHWATERMARK_ALPHA", 0.6, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_CURRENT_PERCENTAGE_ALPHA", 0.7, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_ICON_ALPHA", 0.2, 0, 1, kAtOnce, kHistories),
    Real("DEFAULT_CPU_HISTORY_ICON_ALPHA_REALLY", 0.7, 0, 1, kAtOnce, kHistories),
    Array("CPU_HISTORY_WINDOW"),

    Interval("DEFAULT_LOGGING_WINDOW_INTERVAL", 1000, kNewWindows),
    Switch("LOG_WINDOW_INCLUDE_TIMESTAMP", true, kNewWindows),
    Switch("LOG_WINDOW_ACTIVE_TIME_BOOL", true, kNewWindows),
    Switch("LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL", true, kNewWindows),
    Switch("LOG_WINDOW_REAL_MEM_BOOL", false, kNewWindows),
    Switch("LOG_WINDOW_DELTA_REAL_MEM_BOOL", false, kNewWindows),
    Switch("LOG_WINDOW_VIRTUAL_MEM_BOOL", false, kNewWindows),
    Switch("LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL", false, kNewWindows),
    Switch("LOG_WINDOW_LOG_TO_FILE", false, kNewWindows),
    Array("LOGGING_WINDOW"),

    Interval("HEARTQUIVA_GL_THREAD_INTERVAL", 100, kAtOnce, kAnimatedView),
    Interval("HEARTQUIVA_MAINPIC_INTERVAL", 200, kAtOnce, kAnimatedView),
    Interval("HEARTQUIVA_HELPERPIC_INTERVAL", 1000, kAtOnce, kAnimatedView),
    Switch("QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS", false, kAtOnce, kAnimatedView),
    Real("QUINT_FULLSCREEN_WINDOW_ALPHA", 0.8, 0, 1, kAtOnce, kAnimatedView),
    Real("QUINT_FULLSCREEN_UNDERLAY_ALPHA", 0.25, 0, 1, kAtOnce, kAnimatedView),
    Real("HEARTQUIVA_ICON_SCALE_FACTOR", 150, 1, 2000, kNextStart),
    Real("QUIVA_FULLSCREEN_EXTRA_SCALE_FACTOR", 1.5, 0.1, 10, kNextStart),
    Number("QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING", 10, 0, kMostStabilizingSteps,
           kNextStart),
    Real("QUINT_TARVIK_FACTOR", kNone, -1000, 1000, kNextStart),
    Number("FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE", 98, 0, 127, kNextStart),
    Switch("QUIVA_CHECK_QUARTZ_EXTREME", false, kNextStart),
    Switch("QUIVA_CHECK_COMPOSITOR", false, kNextStart),
    Record("QUIVA_WINDOW_FRAME", kNone),
    Record("DEFAULT_SHOW_PROCESS_QUIVA_WINDOW", 0),
    Record("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", 0),

    Real("CLASSIC_INITIAL_ASSUMED_CPU_USAGE", 0.1, 0, 1, kNextStart),
    Real("CLASSIC_ENVIRONMENT_USAGE_TRACKING_FILTER", 0.05, 0, 1, kAtOnce),
    Interval("CLASSIC_WATCHDOG_INTERVAL", 5000, kNextStart),
    Number("CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX", 120, 6, 216'000, kNextStart),

    Switch("QUBS_DEBUGGING_AND_TESTING", false, kNextStart),
    Interval("QUBS_DEBUGGING_SWI_INTERVAL", 500, kNextStart),
    Record("QUBS_DEBUGGING_WINDOW_LEFT", 100),
    Record("QUBS_DEBUGGING_WINDOW_TOP", 300),
    Record("QUBS_DEBUGGING_WINDOW_RIGHT", 290),
    Record("QUBS_DEBUGGING_WINDOW_BOTTOM", 350),
};

/// The text of that kind; empty without one.
QString TextOf(const PreferenceEntry& entry, const char* kind, const char* ofComponent) {
  QByteArray id = QByteArray(kind) + entry.key;
  if (entry.kind != kColour) return HasLocalizedString(id) ? LocalizedString(id) : QString();
  // The three components share what their colour is for.
  const auto cut = id.lastIndexOf('_');
  const QByteArray component = ofComponent + id.mid(cut).toLower();
  id.truncate(cut);
  return HasLocalizedString(id) ? LocalizedString(component).arg(LocalizedString(id)) : QString();
}

}  // namespace

std::span<const PreferenceEntry> PreferenceCatalogue() {
  return kCatalogue;
}

const PreferenceEntry* FindPreference(std::string_view key) {
  const auto* at = std::ranges::find(kCatalogue, key, &PreferenceEntry::key);
  return at != std::end(kCatalogue) ? at : nullptr;
}

QString TitleOf(const PreferenceEntry& entry) {
  return TextOf(entry, "setting_title_", "settings_title");
}

QString MeaningOf(const PreferenceEntry& entry) {
  return TextOf(entry, "setting_", "settings_component");
}

}  // namespace lurkwell
