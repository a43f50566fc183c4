#pragma once

#include <cstdint>

namespace lurkwell {

/// The main window's settings, with their defaults. Main thread; cheap enough for every update.

/// Milliseconds between two updates of the table.
std::int32_t MainWindowInterval();

/// Whether memory bars carry the virtual size as text.
bool DrawsVSZText();

inline constexpr char kMainWindowIntervalKey[] = "MAIN_WINDOW_INTERVAL";
inline constexpr char kMainWindowColumnsKey[] = "MAIN_WINDOW_COLUMNS";
inline constexpr char kColumnKeyKey[] = "COLUMN_KEY";
inline constexpr char kColumnWidthKey[] = "COLUMN_WIDTH";
inline constexpr char kColumnSortDirectionKey[] = "COLUMN_SORT_DIRECTION";
inline constexpr char kSortColumnIndexKey[] = "MAIN_WINDOW_SORT_COLUMN_INDEX";
inline constexpr char kShowProcessListKey[] = "DEFAULT_SHOW_PROCESS_LIST_WINDOW";

}  // namespace lurkwell
