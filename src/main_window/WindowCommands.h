#pragma once

#include "main_window/TableShape.h"

namespace lurkwell {

/// What commands ask of the main window itself. Main thread.
class WindowCommands {
 public:
  virtual ~WindowCommands() = default;
  virtual void closeWindow() = 0;
  virtual void copySelection() = 0;
  virtual void copyAsCsv() = 0;
  virtual void copyAsJson() = 0;
  virtual void selectAll() = 0;
  virtual void showFilter() = 0;
  virtual void findByPid() = 0;
  virtual void updateNow() = 0;
  virtual void toggleToolbar() = 0;
  virtual void customiseToolbar() = 0;
  /// Moves the sort column by so many places to the right and makes it so many points wider.
  virtual void changeSortColumn(int places, int points) = 0;
  /// As a double click on the edge of its title does.
  virtual void fitSortColumn() = 0;
  virtual void setShape(TableShape shape) = 0;
  virtual TableShape shape() const = 0;
  virtual void setScope(TableScope scope) = 0;
  virtual TableScope scope() const = 0;
  /// Sets of columns by their places, see ColumnSets; the last four are about the one that is
  /// shown.
  virtual void showColumnSet(int place) = 0;
  virtual int shownColumnSet() const = 0;
  virtual void saveColumnSetAs() = 0;
  virtual void renameColumnSet() = 0;
  virtual void deleteColumnSet() = 0;
  virtual void restoreColumnSet() = 0;
  /// Folds or unfolds every row that has others below.
  virtual void foldAll(bool folded) = 0;
  virtual void setPaused(bool paused) = 0;
  virtual bool isPaused() const = 0;
  virtual void setFollowsSelection(bool follows) = 0;
  virtual bool followsSelection() const = 0;
  virtual void showRememberedWindows() = 0;
  virtual void closeFollowingWindows() = 0;
  virtual void doThePreferences() = 0;
  virtual void showHelp() = 0;
};

}  // namespace lurkwell
