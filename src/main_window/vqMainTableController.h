#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "consolidator/TypedValue.h"
#include "main_window/ColumnLayout.h"
#include "main_window/ColumnSets.h"
#include "main_window/CommandTable.h"
#include "main_window/MainToolbar.h"
#include "main_window/ProcessCommands.h"
#include "main_window/ProcessRows.h"
#include "main_window/RowTree.h"
#include "main_window/TableShape.h"
#include "main_window/VQTarvMainWindowInfoSynch.h"
#include "process_control/ListingFormat.h"
#include "query/Query.h"
#include "windows/CustomCells.h"
#include "windows/StripedTableView.h"
#include "windows/vqTableController.h"

class QAction;
class QMainWindow;

namespace lurkwell {

/// Whether the window comes back at the next start.
inline constexpr char kShowProcessListKey[] = "DEFAULT_SHOW_PROCESS_LIST_WINDOW";

/// The process table: its rows and columns as the view's model, its sorting and selection. What can
/// be done to processes is ProcessCommands', the toolbar MainToolbar's. Main thread only.
///
/// Rows change while the consolidator talks to the synchroniser; the view hears of all of it in one
/// commit at the end of the turn.
class vqMainTableController final : public vqTableController,
                                    private ProcessRows::Announcer,
                                    private ProcessSelection,
                                    private SynchronisedTable {
  Q_OBJECT

 public:
  /// Reads the columns from the preferences, adding what must be there, and makes the synchroniser.
  vqMainTableController();
  ~vqMainTableController() override;

  /// Takes its view and window, builds columns and toolbar, and sorts as last time. Once.
  void awakeFromNib(QMainWindow& window, StripedTableView& table);
  /// While nothing is remembered of the columns, the longest texts get the room that a window of
  /// that width has left. What filled a larger window is made narrower.
  void fillWidth(int width);
  /// The window was `before` points wide: columns that filled it fill it again.
  void followWidth(int before, int width);

  // ---- The window's life ------------------------------------------------------------------------

  void windowDidUpdate();
  /// Minimised, on another desktop or otherwise out of sight, or seen again.
  void windowIsSeen(bool isSeen) {
    if (fInfoSynchronizer != nullptr) fInfoSynchronizer->SetSeen(isSeen);
  }
  void windowDidBecomeKey();
  /// Unless the application is quitting, the window does not come back at the next start.
  void windowWillClose();

  // ---- Rows -------------------------------------------------------------------------------------

  ProcessRows& rows() override { return fRows; }
  const ProcessRows& rows() const { return fRows; }
  /// All rows in the order of the sort, those that a filter hides among them.
  const std::vector<RowDictionary*>& pidEntries() const { return fRows.All(); }
  VQTarvMainWindowInfoSynch* synchronizer() const { return fInfoSynchronizer; }

  void setNeedsResort() override {
    if (!fIsPaused) fNeedsResort = true, setNeedsReload();
  }
  void setNeedsReload() override;
  void commitChanges() override;
  void triggerReload() override;
  /// Sorts the rows by the sort column; the view hears of it at the next commit.
  void resortTable();

  /// While something holds the order (an open menu, a question), rows stay where they are. So they
  /// do while the pointer presses on one.
  void holdOrder(const QObject* holder, bool hold) override;

  /// While it is paused the table shows what it showed before, for the processes of then. It can be
  /// sorted, filtered and folded all the same. Those that have ended meanwhile stay, marked, and no
  /// command reaches them or who has their pids now.
  void setPaused(bool paused);
  bool isPaused() const override { return fIsPaused; }
  std::vector<KeyId> keysSincePause() const override;

  /// Whether the selected row, the one with the focus if there are several, stays where it is on
  /// the screen while others move. Remembered.
  void setFollowsSelection(bool follows);
  bool followsSelection() const { return fFollowsSelection; }

  /// Shows only processes that fulfil the query; its plain words look at name, pid and the text
  /// columns that are shown. What it looks at besides is read from the next update on, which comes
  /// at once.
  void setFilter(Query query);

  // ---- Shape and scope --------------------------------------------------------------------------

  TableShape shape() const { return fShape; }
  /// What is selected, and what has the focus, stays in sight where it was.
  void setShape(TableShape shape);
  TableScope scope() const { return fScope; }
  void setScope(TableScope scope);
  bool isFiltered() const { return !fFilter.IsEmpty(); }
  /// Of how many processes in the scope the filter does not know what it looks at, since it may not
  /// be read, or has not been yet. Counts what is read in the background alone.
  struct FilterGaps {
    std::size_t notAllowed = 0;
    std::size_t notYetKnown = 0;
  };
  FilterGaps filterGaps() const;
  /// Processes that scope and filter take, in sight or below a folded row.
  std::size_t countOfMatches() const;
  /// Folds or unfolds a row and, with `all`, everything below it; nothing where nothing is below.
  void foldRow(int row, bool folded, bool all);
  void foldAll(bool folded);

  /// Of the rows that can be seen without scrolling.
  std::vector<std::int32_t> pidsInSight() const override;

  // ---- Columns ----------------------------------------------------------------------------------

  const std::vector<KeyId>& keysWeTrackForUI() const { return fLayout.Keys(); }
  bool isTracked(std::string_view key) const { return fLayout.Has(key); }
  /// Of the model's column, wherever it stands on the screen; kNoKey when there is none.
  KeyId keyOfColumn(int column) const {
    return column >= 0 && column < columnCount() ? fColumns[static_cast<std::size_t>(column)].key
                                                 : kNoKey;
  }
  void clearColumns();
  void rebuildColumns();
  void addColumnToMainTable(KeyId key);
  /// Right behind `afterKey` when that is shown, else at the end; nothing when it is shown already.
  void addToKeysWeTrackForUI(KeyId key, KeyId afterKey = kNoKey);
  void removeFromKeysWeTrackForUI(KeyId key);
  /// Keys, widths, directions and the sort column, as they stand on the screen, and the shape: into
  /// the set that is shown.
  void saveColumnPrefs() override;

  // ---- Sets of columns --------------------------------------------------------------------------

  const ColumnSets& columnSets() const { return fSets; }
  /// What was changed is kept by the set that was shown; nothing for a place that there is not.
  /// What is selected stays in sight.
  void showColumnSet(int place);
  /// Makes an own set of what is shown, and shows that.
  void saveColumnSetAs(const QString& title);
  void renameColumnSet(const QString& title);
  /// The own set that is shown goes, and the first one comes.
  void deleteColumnSet();
  /// The set that is shown becomes what it was when it came with the program.
  void restoreColumnSet();

  // ---- Sorting and selection --------------------------------------------------------------------

  RowComparison sortSelectorForColumn(std::string_view key) const override;
  /// A click on a header. Always false: columns are never selected.
  bool shouldSelectTableColumn(int column);
  char toggleSortDirection(KeyId key);
  bool isSortColumn(int column) const;
  /// Moves the sort column by so many places to the right and makes it so many points wider.
  void changeSortColumn(int places, int points);
  /// Makes the sort column as wide as its longest text, up to half of the table.
  void fitSortColumn();
  void rememberSelection();
  void restoreSelection();
  /// In the order of the rows, without those whose processes have ended.
  std::vector<std::int32_t> selectedPids() const override;
  /// A process's name on one line, whether names are shown or not.
  static QString nameOf(std::int32_t pid);
  bool selectPid(std::int32_t pid) override;

  // ---- Commands on the selected processes -------------------------------------------------------

  ProcessCommands& processCommands() { return fCommands; }

  /// The selected rows as lines of tab-separated cells, columns as on the screen.
  QString selectionAsText() const;
  /// The same as the program prints it, values instead of texts.
  QString selectionAs(ListingForm form) const;
  /// Reads and shows everything now instead of at the next turn.
  void updateNow();

  /// What the selected processes use together: a share of one processor, and bytes of memory, as
  /// applications' rows add them up. Missing where nothing is selected.
  struct SelectionTotals {
    RowValue share;
    RowValue memory;
  };
  SelectionTotals selectionTotals() const;

  SelectionFacts selectionFacts() const {
    auto facts = fCommands.Facts();
    facts.isTree = fShape != TableShape::kList;
    facts.isOwnColumnSet = fSets.IsOwn(fSets.Shown());
    return facts;
  }
  static bool validateMenuItem(const Command& command, const SelectionFacts& facts) {
    return IsMet(command.needs, facts);
  }

  // ---- The toolbar ------------------------------------------------------------------------------

  /// Null before awakeFromNib.
  MainToolbar* toolbar() const { return fToolbar; }
  /// Null while it is hidden.
  MainToolbar* visibleToolbar() const override;

  // ---- The model --------------------------------------------------------------------------------

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  /// A row that is there for those below it alone is not selected.
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// What a cell shows: a text, a picture, or nothing where the cell draws by itself.
  QVariant objectValueForTableColumn(int column, int row) const;

 Q_SIGNALS:
  /// The consolidator's turn is over, and the view has what it brought.
  void updated();
  /// The number of rows, or of selected ones, may be another one.
  void contentsChanged();
  /// The shape, the scope, the set of columns or its title is another one.
  void arrangementChanged();
  /// There are other columns, or the same in another order.
  void columnsChanged();
  /// What became of a command, to be said in passing.
  void reported(const QString& text);

 protected:
  int columnIndexOf(KeyId key) const override;

 private:
  struct Column {
    KeyId key;
    PropertyType type;
    bool isInternal;
    bool rightAligned;
    /// Its digits stand in groups.
    bool isCount;
    /// Those cells of a row that the column's is among.
    RowDictionary::Cells looksAt;
    /// A ps column that the last turn brought no figures for.
    bool isStale = false;
  };
  /// The properties that columns show, in the order on the screen; pictures show none, bars one or
  /// two.
  std::vector<std::string> printedKeys() const;

  void BeginInsert(int first, int last) override;
  void EndInsert() override { endInsertRows(); }
  void BeginRemove(int first, int last) override;
  void EndRemove() override { endRemoveRows(); }
  void Reorder(const std::function<void()>& change) override;
  void CellsChanged(int firstRow, int lastRow) override;

  bool isAnyRowSelected() const override { return hasSelection(); }
  std::size_t selectPids(const std::vector<std::int32_t>& pids) override;
  QWidget* parentOfQuestions() const override { return window(); }
  void processesHaveChanged(const std::vector<std::int32_t>& pids) override;
  void report(const QString& text) override { Q_EMIT reported(text); }

  QWidget* tableWindow() const override { return window(); }
  const ColumnLayout& layout() const override { return fLayout; }
  bool needsProperty(const char* key) const override;
  KeyId sortedBy() const override { return sortColumn(); }
  std::span<const KeyId> keysBesideColumns() const override { return fKeysBesideColumns; }
  bool standingDependsOn(KeyId key) const override;
  void noteStandingHasChanged() override {
    if (!fIsPaused) fStandingHasChanged = fShape != TableShape::kList;
  }
  void noteHeldRowsWereRead(KeyId key) override;
  std::int64_t biggestTotalVSZ() const override { return fBiggestTotal; }
  void noteStaleColumns() override { noteAgeOfColumns(true); }
  void noteFreshColumns() override { noteAgeOfColumns(false); }
  void showColumnsThatCame() override;
  void noteFactsHaveChanged() override { fFactsHaveChanged = true; }
  void turnHasEnded() override { Q_EMIT updated(); }
  void synchronizerIsGone() override { fInfoSynchronizer = nullptr; }

  /// The one with the longest texts, which has what room there is; -1 without.
  int elasticColumn() const;
  /// What a window of that width has beside the columns and the scroll bar; negative where it has
  /// not enough.
  int restOfWidth(int width) const;
  void noteAgeOfColumns(bool mayAge);
  void arrangeRows();
  bool isOrderHeld() const;
  std::vector<KeyId> keysToRead() const;
  /// Whether there is nothing that could have changed what stands where.
  bool isArranged() const;
  /// Invalid for none.
  QPersistentModelIndex followedRow() const;
  /// Where the row stands in the viewport; nothing for one that is out of sight.
  std::optional<int> placeInSight(const QPersistentModelIndex& row) const;
  /// Scrolls so that the row stands there again, or else anywhere in sight.
  void keepFollowed(const QPersistentModelIndex& row, std::optional<int> place);
  /// Whether the filter or the scope takes not everything.
  bool hidesRows() const { return isFiltered() || fScope != TableScope::kAll; }
  bool isInScope(const RowDictionary& row) const;
  bool matches(const RowDictionary& row) const;
  /// Which rows can be seen, in their order.
  std::vector<RowDictionary*> rowsToShow();
  std::vector<RowDictionary*> rowsOfTree();
  compareContextStructure sortContext() const;
  /// Null where sorting changes nothing.
  RowComparison sortComparison() const;
  void addUp();
  /// Memory bars are measured by the totals, too.
  void measureBars();
  /// While it has been built for all rows that there are.
  bool isTreeCurrent() const {
    return fShape != TableShape::kList && !fRows.HaveComeOrGone() && !fStandingHasChanged;
  }
  void readMemoryFigure() override;
  /// Reads what shape, scope and bars need from the next update on, which comes at once.
  void readWhatIsNeeded();
  void revealKeptRows();
  /// Unfolds what hides these processes.
  void revealPids(const std::vector<std::int32_t>& pids);
  /// Has `change` done and scrolls so that the row with the focus, or else the first one in sight,
  /// stands where it stood.
  void keepPlace(const std::function<void()>& change);
  /// The column that shows what stands below what.
  KeyId treeColumn() const;
  bool isTreeColumn(const Column& column) const {
    return fShape != TableShape::kList && column.key == treeColumn();
  }
  QString spokenStanding(const RowDictionary& row) const;
  /// Has the columns of the set that is shown, and its shape.
  void takeColumnSet();
  void changeShape(TableShape shape);
  void setupToolbar(QMainWindow& window);
  void adoptScreenLayout();
  int widthForColumn(KeyId key, const QString& title) const;

  /// Gives a row the focus where it stands, if it is shown; the table does not scroll to it.
  void moveFocusTo(const RowDictionary* row);
  /// A focus that goes with its row passes to the nearest row that stays.
  void keepFocus(const std::vector<RowDictionary*>& wanted);
  /// In their order, without those whose processes have ended.
  std::vector<RowDictionary*> selectedRows() const;
  QVariant iconOf(RowDictionary& row) const;
  /// Null for none.
  static const char* indicatorNameOf(const RowDictionary& row);
  QVariant indicatorOf(const RowDictionary& row) const;
  QString textOf(const RowDictionary& row, const Column& column) const;
  /// What stands on a bar.
  static QString barTextOf(const RowDictionary& row, const Column& column);
  QString spokenText(const RowDictionary& row, const Column& column) const;
  QString spokenMarks(const RowDictionary& row) const;
  /// The process's arguments on one line, as they are now; empty when they are not known.
  static QString commandLineOf(std::int32_t pid);
  QString tooltipOf(const RowDictionary& row, const Column& column) const;
  /// What a total is made of; empty for what is none.
  QString totalTip(const RowDictionary& row, const Column& column) const;
  StripedTableView* stripedTable() const { return static_cast<StripedTableView*>(table()); }

  VQTarvMainWindowInfoSynch* fInfoSynchronizer = nullptr;
  ProcessRows fRows{*this};
  ColumnSets fSets;
  ColumnLayout fLayout;
  std::vector<Column> fColumns;
  std::vector<std::int32_t> fRememberedSelectionPIDs;
  std::vector<std::string> fRememberedGroups;
  class FilteredRow;
  Query fFilter;
  TableShape fShape = TableShape::kList;
  TableScope fScope = TableScope::kAll;
  RowTree fTree;
  std::int64_t fBiggestTotal = 0;
  std::vector<KeyId> fKeysBesideColumns;
  bool fIsPaused = false;
  /// What its rows were read with.
  std::vector<KeyId> fKeysOfPause;
  bool fFollowsSelection = false;
  bool fStandingHasChanged = false;
  bool fFilterHasChanged = false;
  bool fFactsHaveChanged = false;
  bool fKeepsPlaceOnce = false;
  bool fNeedsResort = false;
  bool fCommitIsQueued = false;
  std::unordered_set<const QObject*> fHolders;
  ProcessCommands fCommands{*this};
  /// The window's, which outlives this.
  MainToolbar* fToolbar = nullptr;
  TextCell fTextCell;
  TreeCell fTreeCell;
  ImageCell fImageCell;
  CPUCell fCPUCell;
  MemGraphCell fMemGraphCell;
};

}  // namespace lurkwell
