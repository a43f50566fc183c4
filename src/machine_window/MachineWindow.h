#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "machine_window/BusiestTable.h"
#include "machine_window/MachineRecorder.h"
#include "machine_window/ProcessorGrid.h"
#include "windows/TimeGraph.h"
#include "windows/WindowFrame.h"

class QButtonGroup;
class QGridLayout;

namespace lurkwell {

/// The machine as a whole over the last minutes: processors, memory, swap, disks, network, pressure
/// and graphics as graphs that share a span and a cursor, other figures as text, and who was
/// busiest, now or at a moment that was chosen in a graph. One at most. Main thread only.
class MachineWindow final : public ControlledWindow {
  Q_OBJECT

 public:
  /// Shows a process in the table of all; false when it cannot be found there.
  using ShowProcess = std::function<bool(std::int32_t pid)>;

  /// Opens the window where it was, or brings the open one to the front.
  static MachineWindow& Open(ShowProcess showProcess);
  /// Null while it is closed.
  static MachineWindow* IfOpen();
  /// Whether it was open when the program ended.
  static bool WasOpen();

  /// Writes the place into the preferences, and that the window is open.
  void Remember();

  ~MachineWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// A graph that shows all devices of a kind together, or one of them.
  struct DeviceGraph {
    TimeGraph* graph;
    QComboBox* choice;
    MachineSeries allIn, allOut;
    const char* inName;
    const char* outName;
  };

  explicit MachineWindow(ShowProcess showProcess);

  void BuildGraphs();
  /// Puts them into one or two columns, as there is room.
  void Arrange();
  QWidget* BuildSide();
  QWidget* BuildTop();
  TimeGraph* AddGraph(const char* title, GraphUnit unit, const char* whyEmpty);
  QWidget* AddDeviceGraph(DeviceGraph& devices, const char* title, const char* whyEmpty);

  void LookWhetherSeen();
  void MomentHasCome();
  void ShowTotals();
  void ShowDevices(DeviceGraph& devices, std::span<const MachineRecorder::Device> known);
  void ShowSeriesOf(const DeviceGraph& devices, std::span<const MachineRecorder::Device> known);
  void ShowProcessors();
  void ShowGraphics();
  void ShowBusiest();
  void SetSpan(int minutes);
  void SetCursor(std::optional<std::int64_t> when);
  void Choose(std::optional<std::int64_t> when);
  void ChooseProcess(std::int32_t pid, std::uint64_t startStamp);
  void GoBack();

  ShowProcess mShowProcess;
  MachineRecorder& mRecorder;
  QGridLayout* mGrid = nullptr;
  /// In the order of the grid, by rows of two.
  std::vector<QWidget*> mCells;
  int mColumns = 0;
  std::vector<TimeGraph*> mGraphs;
  ProcessorGrid* mProcessors = nullptr;
  TimeGraph* mMemory = nullptr;
  TimeGraph* mSwap = nullptr;
  TimeGraph* mGraphics = nullptr;
  DeviceGraph mDisks{nullptr, nullptr, kDiskRead, kDiskWritten, "machine_read", "machine_written"};
  DeviceGraph mInterfaces{nullptr, nullptr, kReceived, kSent, "machine_received", "machine_sent"};
  BusiestTable* mBusiest = nullptr;
  QLabel* mBusiestTitle = nullptr;
  QPushButton* mBackToNow = nullptr;
  QLabel* mNote = nullptr;
  QLabel* mFacts = nullptr;
  QLabel* mLimits = nullptr;
  QButtonGroup* mSpans = nullptr;
  std::int64_t mMemoryTotal = -1;
  std::int64_t mSwapTotal = -1;
  std::size_t mShownProcessors = 0;
  std::size_t mShownGraphics = 0;
  /// The moment whose busiest are shown; nothing for now.
  std::optional<std::int64_t> mChosen;
  bool mIsWatching = false;
};

}  // namespace lurkwell
