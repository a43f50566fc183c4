#pragma once

#include <QLabel>
#include <QPoint>
#include <QPushButton>
#include <QRect>
#include <QScrollBar>
#include <deque>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "monitor_windows/LoggingRecord.h"
#include "monitor_windows/RememberedWindows.h"
#include "platform/LogFiles.h"
#include "platform/Uuid.h"
#include "windows/vqTableController.h"

namespace lurkwell {

/// What a logging window knows about itself.
struct stateInfoStruct : LoggingSwitches {
  std::int32_t pid = -1;
  /// Tells the process from others that get its pid.
  std::uint64_t startStamp = 0;
  bool pidWentAway = false;
  /// The window's element in the remembered ones, or -1.
  std::int32_t prefsIndex = -1;
  long millisecondsInterval = 0;
  /// The width of all columns together.
  int desiredWidth = 0;
  LoggedInfoStruct lastInfoSample;
  bool logToFile = false;
  std::string logFileName;
  /// Null when there is none.
  std::unique_ptr<LogFile> logFile;
  /// At most LoggingWindowUI::kMostRows.
  std::deque<LoggedRow> logTableData;
};

/// A window that writes down what one process uses, a row whenever that changes, and appends the
/// rows to a file if wanted. This is the table's model; the window owns it. The window and its
/// client end together. Main thread only.
class LoggingWindowUI final : public vqTableController, private LogOfClient {
  Q_OBJECT

 public:
  static constexpr int kMostRows = 500;

  /// Opens a window, the only way to do it; null, and nothing opened, when its form is missing.
  /// `interval` in milliseconds; without `theUuid` the window is a new one and is remembered from
  /// now on; without `windowSize` it goes where new ones go, but not below `others`;
  /// `somePrefIndex` is a remembered window's element or -1. `logFiles` is asked during the call
  /// only.
  static LoggingWindowUI* CreateLoggingWindowWithInterval(LogFiles& logFiles, std::int32_t interval,
                                                          std::int32_t thePid, const Uuid* theUuid,
                                                          const WindowRect* windowSize,
                                                          std::int32_t somePrefIndex,
                                                          const std::vector<QRect>& others = {});
  /// How many there are.
  static int CountOpenWindows() { return static_cast<int>(sOpenWindows.size()); }
  /// The window of that identifier; null when there is none.
  static LoggingWindowUI* Find(const Uuid& uuid);
  static const std::set<LoggingWindowUI*>& OpenWindows() { return sOpenWindows; }
  /// Where they are, with their frames.
  static std::vector<QRect> Places();
  /// Tells those that follow a process of that pid, unless it is still there, that it has ended.
  static void ProcessHasEnded(std::int32_t pid);
  /// Has all of them write their places into their records, as far as they were moved.
  static void RememberPlaces();

  ~LoggingWindowUI() override;

  const stateInfoStruct& stateInfo() const { return mStateInfo; }
  const LoggingWindowInformationClient2* client() const { return mPIC; }
  bool logs(std::int32_t pid) const override {
    return !mStateInfo.pidWentAway && pid == mStateInfo.pid;
  }

  // ---- What the client tells --------------------------------------------------------------------

  void processesHaveBeenUpdated(const LoggingFigures& figures) override;
  /// The window stays, and its layout is remembered for the next process of that name.
  void processHasEnded() override;
  /// Goes on with another process of that name; the one before has ended. A file is begun anew.
  void follow(LogFiles& logFiles, std::int32_t pid);
  /// Closes the window, unless that is what the client ends by.
  void clientIsGone(const LoggingWindowInformationClient2& client) override;

  // ---- The log elsewhere ------------------------------------------------------------------------

  /// Asks for a file and writes everything to it; what fails is said below the table.
  void saveAs();
  /// Writes it without asking.
  void saveTo(const QString& target);
  /// Has the file manager show the log's own file, if there is one.
  void showFile();

  // ---- The window's life ------------------------------------------------------------------------

  /// While the process runs, the window is forgotten.
  void windowWillClose();

  // ---- The table --------------------------------------------------------------------------------

  int numberOfRowsInTableView() const { return static_cast<int>(mStateInfo.logTableData.size()); }
  QString objectValueForTableColumn(LoggingColumn column, int row) const;
  RowComparison sortSelectorForColumn(std::string_view key) const override;
  void triggerReload() override;
  /// The selected rows as lines of tab-separated cells.
  QString selectionAsText() const;
  /// What the window says below its table; empty when there is nothing to say.
  QString note() const { return fNote != nullptr ? fNote->text() : QString(); }
  /// Where the window is.
  WindowRect frame() const;
  /// The program and its pid, without the file.
  QString shortTitle() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  static QPoint sLastLoggingWindowOriginForCascading;

 protected:
  int columnIndexOf(KeyId key) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::int32_t loggedPid() const override { return mStateInfo.pid; }
  const LoggingSwitches& switches() const override { return mStateInfo; }

  explicit LoggingWindowUI(QWidget& window);

  /// Reads the switches.
  void initWithPrefIndex(std::int32_t prefsIndex);
  /// Takes its outlets from the form; false when the form is missing.
  bool loadInterface();
  void awakeFromNib();
  void setColumnWidths();
  int widthForColumn(LoggingColumn column) const;
  void openLogFile(LogFiles& logFiles);
  void setTitle();
  void placeWindow(const WindowRect* windowSize, const std::vector<QRect>& others);
  void showIdentity();
  void addAction(const char* id, const QKeySequence& key, void (LoggingWindowUI::*does)());
  void selectAll();
  /// What the window's files are called, as far as it is not said by where they are.
  QString fileName() const;
  void rememberAsNew(const Uuid& uuid) const;
  void appendToFile(const std::string& line);
  void appendRow(LoggedRow row);
  void scrollBarWasMoved(int value);
  void say(const QString& text);
  void copySelection();

  static std::set<LoggingWindowUI*> sOpenWindows;

  stateInfoStruct mStateInfo;
  LoggingWindowInformationClient2* mPIC = nullptr;
  WindowRect mRememberedPlace;
  /// The program's, for people; it stays when the process has ended.
  QString fName;
  /// Those that are shown, in their order.
  std::vector<LoggingColumn> fColumns;
  QPointer<QLabel> fNote;
  QPointer<QLabel> fIdentity;
  /// All of what the label has no room for.
  QString fIdentityText;
  QPointer<QPushButton> fShowFile;
  QPointer<QPushButton> fSave;
  QScrollBar* mScrollView = nullptr;
  /// The newest row is in sight, and is to stay so.
  bool fFollowsNewest = true;
  bool fHasSaidFileFailed = false;
};

}  // namespace lurkwell
