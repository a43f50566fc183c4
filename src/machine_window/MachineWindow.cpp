#include "machine_window/MachineWindow.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "consolidator/ProcessQueries.h"
#include "machine_window/MachineFacts.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/CheckedButtons.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr char kFrameKey[] = "MACHINE_WINDOW_FRAME";
constexpr char kMinutesKey[] = "MACHINE_WINDOW_MINUTES";
constexpr char kIsOpenKey[] = "DEFAULT_SHOW_MACHINE_WINDOW";
constexpr int kSpansInMinutes[] = {1, 5, 15, 30, 60};
constexpr int kUsualMinutes = 5;
/// Legends of two rates have room in one line.
constexpr QSize kFirstSize(1200, 760);
constexpr QSize kLeastSize(560, 380);
constexpr double kLeastRate = 1024;
/// Pressure below that is nothing that anybody feels.
constexpr double kLeastPressure = 0.1;

constexpr int kSideCharacters = 52;
/// From there on they have lines for many things.
constexpr std::size_t kFirstWideCell = 6;
constexpr int kLeastGraphCharacters = 42;

QPointer<MachineWindow> sWindow;

/// As wide as there is room, and scrolled where it is not high enough.
QScrollArea* Scrolled(QWidget* contents) {
  auto* scroll = new QScrollArea;
  scroll->setWidget(contents);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return scroll;
}

}  // namespace

MachineWindow& MachineWindow::Open(ShowProcess showProcess) {
  if (sWindow == nullptr) sWindow = new MachineWindow(std::move(showProcess));
  BringToFront(*sWindow);
  StoreInt(kIsOpenKey, 1);
  return *sWindow;
}

MachineWindow* MachineWindow::IfOpen() {
  return sWindow;
}

bool MachineWindow::WasOpen() {
  return ReadSwitch(kIsOpenKey);
}

MachineWindow::MachineWindow(ShowProcess showProcess)
    : mShowProcess(std::move(showProcess)), mRecorder(MachineRecorder::Running()) {
  setWindowTitle(LocalizedString("machine_title"));
  WatchWindowOrder(*this);
  AddHelpKey(*this, HelpSection::kMachine);
  auto* contents = new QWidget;
  mGrid = new QGridLayout(contents);
  mGrid->setContentsMargins(0, 0, 6, 0);
  mGrid->setHorizontalSpacing(18);
  mGrid->setVerticalSpacing(10);
  BuildGraphs();
  auto* middle = new QHBoxLayout;
  middle->addWidget(Scrolled(contents), 1);
  auto* side = BuildSide();
  auto* scrolledSide = Scrolled(side);
  scrolledSide->setFixedWidth(side->fontMetrics().averageCharWidth() * kSideCharacters);
  middle->addWidget(scrolledSide);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(BuildTop());
  layout->addLayout(middle, 1);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &MachineWindow::GoBack);
  setMinimumSize(kLeastSize);
  RestoreFrame(kFrameKey, kFirstSize);
  Arrange();
  const int minutes = StoredInt(kMinutesKey).value_or(kUsualMinutes);
  SetSpan(std::ranges::find(kSpansInMinutes, minutes) != std::end(kSpansInMinutes) ? minutes
                                                                                   : kUsualMinutes);
  MomentHasCome();
}

MachineWindow::~MachineWindow() {
  if (auto* recorder = MachineRecorder::IfRunning(); recorder != nullptr && mIsWatching)
    recorder->SetWatcher(nullptr);
}

// ---- Building
// ------------------------------------------------------------------------------------

QWidget* MachineWindow::BuildTop() {
  auto* top = new QWidget;
  auto* layout = new QHBoxLayout(top);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* label = new QLabel(LocalizedString("machine_span"));
  layout->addWidget(label);
  layout->addSpacing(8);
  mSpans = new QButtonGroup(this);
  for (const int minutes : kSpansInMinutes) {
    auto* button = new QToolButton;
    button->setText(LocalizedString("machine_minutes").arg(minutes));
    button->setAccessibleName(label->text() + QLatin1Char(' ') + button->text());
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    mSpans->addButton(button, minutes);
    layout->addWidget(button);
  }
  connect(mSpans, &QButtonGroup::idClicked, this, [this](int minutes) {
    StoreInt(kMinutesKey, minutes);
    SetSpan(minutes);
  });
  mLimits = new QLabel;
  mLimits->setWordWrap(true);
  mLimits->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  layout->addSpacing(16);
  layout->addWidget(mLimits, 1);
  return top;
}

TimeGraph* MachineWindow::AddGraph(const char* title, GraphUnit unit, const char* whyEmpty) {
  auto* graph = new TimeGraph(LocalizedString(title), unit);
  graph->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  graph->setEmptyText(LocalizedString(whyEmpty));
  connect(graph, &TimeGraph::cursorMoved, this, [this, graph] { SetCursor(graph->cursor()); });
  connect(graph, &TimeGraph::momentChosen, this, [this](qint64 when) { Choose(when); });
  mGraphs.push_back(graph);
  return graph;
}

QWidget* MachineWindow::AddDeviceGraph(DeviceGraph& devices, const char* title,
                                       const char* whyEmpty) {
  devices.graph = AddGraph(title, GraphUnit::kBytesPerSecond, whyEmpty);
  devices.graph->setLeastTop(kLeastRate);
  devices.choice = new QComboBox;
  devices.choice->addItem(LocalizedString("machine_all_devices"));
  devices.choice->setAccessibleName(LocalizedString(title));
  devices.choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  auto* both = new QWidget;
  auto* layout = new QVBoxLayout(both);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(devices.graph, 1);
  layout->addWidget(devices.choice, 0, Qt::AlignRight);
  return both;
}

void MachineWindow::BuildGraphs() {
  const auto& history = mRecorder.History();
  auto* busy = AddGraph("machine_processors_busy", GraphUnit::kShare, "machine_no_processors");
  busy->setTop(1);
  busy->setHistory(&history, {{QString(), kProcessorsBusy}});
  mProcessors = new ProcessorGrid(LocalizedString("machine_processors"));
  mProcessors->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  connect(mProcessors, &ProcessorGrid::momentChosen, this, [this](qint64 when) { Choose(when); });
  mMemory = AddGraph("machine_memory", GraphUnit::kBytes, "machine_no_memory");
  mSwap = AddGraph("machine_swap", GraphUnit::kBytes, "machine_no_swap");
  auto* disks = AddDeviceGraph(mDisks, "machine_disks", "machine_no_disks");
  auto* network = AddDeviceGraph(mInterfaces, "machine_network", "machine_no_network");
  auto* pressure = AddGraph("machine_pressure", GraphUnit::kShare, "machine_no_pressure");
  pressure->setLeastTop(kLeastPressure);
  pressure->setHistory(&history, {{LocalizedString("machine_waits_processor"), kProcessorWaiting},
                                  {LocalizedString("machine_waits_memory"), kMemoryWaiting},
                                  {LocalizedString("machine_waits_disk"), kDiskWaiting},
                                  {LocalizedString("machine_stalled_memory"), kMemoryStalled},
                                  {LocalizedString("machine_stalled_disk"), kDiskStalled}});
  mGraphics = AddGraph("machine_graphics", GraphUnit::kShare, "machine_no_graphics");
  mGraphics->setTop(1);
  mGraphics->hide();
  mCells = {busy, mProcessors, mMemory, mSwap, disks, network, pressure, mGraphics};
}

void MachineWindow::Arrange() {
  const int room = width() - fontMetrics().averageCharWidth() * kSideCharacters;
  const int columns = room >= 2 * fontMetrics().averageCharWidth() * kLeastGraphCharacters ? 2 : 1;
  if (std::exchange(mColumns, columns) == columns) return;
  int place = 0;
  for (std::size_t i = 0; i < mCells.size(); ++i) {
    const int wide = i < kFirstWideCell ? 1 : columns;
    mGrid->addWidget(mCells[i], place / columns, place % columns, 1, wide);
    place += wide;
  }
  for (int column = 0; column < 2; ++column) mGrid->setColumnStretch(column, column < columns);
}

QWidget* MachineWindow::BuildSide() {
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(6, 0, 0, 0);
  mBusiestTitle = new QLabel;
  auto bold = mBusiestTitle->font();
  bold.setBold(true);
  mBusiestTitle->setFont(bold);
  mBackToNow = new QPushButton(LocalizedString("machine_back_to_now"));
  connect(mBackToNow, &QPushButton::clicked, this, [this] { Choose(std::nullopt); });
  auto* header = new QHBoxLayout;
  header->addWidget(mBusiestTitle, 1);
  header->addWidget(mBackToNow);
  layout->addLayout(header);
  mBusiest = new BusiestTable;
  connect(mBusiest, &BusiestTable::processChosen, this, &MachineWindow::ChooseProcess);
  layout->addWidget(mBusiest);
  mNote = new QLabel(LocalizedString("machine_note"));
  mNote->setWordWrap(true);
  layout->addWidget(mNote);
  layout->addSpacing(10);
  mFacts = new QLabel;
  mFacts->setWordWrap(true);
  mFacts->setTextFormat(Qt::PlainText);
  mFacts->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  layout->addWidget(mFacts);
  layout->addStretch(1);
  return side;
}

void MachineWindow::Remember() {
  RememberFrame(kFrameKey);
  StoreInt(kIsOpenKey, 1);
}

// ---- Being seen
// ----------------------------------------------------------------------------------

void MachineWindow::closeEvent(QCloseEvent* event) {
  Remember();
  StoreInt(kIsOpenKey, 0);
  ControlledWindow::closeEvent(event);
}

void MachineWindow::showEvent(QShowEvent* event) {
  ControlledWindow::showEvent(event);
  LookWhetherSeen();
}

void MachineWindow::hideEvent(QHideEvent* event) {
  ControlledWindow::hideEvent(event);
  LookWhetherSeen();
}

void MachineWindow::resizeEvent(QResizeEvent* event) {
  ControlledWindow::resizeEvent(event);
  Arrange();
}

void MachineWindow::changeEvent(QEvent* event) {
  ControlledWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) LookWhetherSeen();
  if (event->type() == QEvent::PaletteChange && mSpans != nullptr) MarkChecked(*mSpans);
}

void MachineWindow::LookWhetherSeen() {
  const bool isSeen = isVisible() && !isMinimized();
  if (std::exchange(mIsWatching, isSeen) == isSeen || MachineRecorder::IfRunning() == nullptr)
    return;
  mRecorder.SetWatcher(isSeen ? std::function<void()>([this] { MomentHasCome(); }) : nullptr);
  if (isSeen) MomentHasCome();
}

// ---- Showing
// -------------------------------------------------------------------------------------

void MachineWindow::MomentHasCome() {
  ShowTotals();
  ShowDevices(mDisks, mRecorder.Disks());
  ShowDevices(mInterfaces, mRecorder.Interfaces());
  ShowProcessors();
  ShowGraphics();
  for (auto* graph : mGraphs) graph->historyHasGrown();
  mProcessors->historyHasGrown();
  if (!mChosen) ShowBusiest();
  mFacts->setText(MachineFactsText(mRecorder.Figures()));
  mLimits->setText(MachineLimitsText(mRecorder.Figures().limits));
}

void MachineWindow::ShowTotals() {
  const auto& memory = mRecorder.Figures().memory;
  const auto total = memory ? memory->total : 0;
  const auto swap = memory ? memory->swap : 0;
  const auto show = [this](TimeGraph& graph, std::int64_t size, MachineSeries series) {
    const auto text = GraphFigureText(GraphUnit::kBytes, static_cast<double>(size));
    graph.setHistory(&mRecorder.History(),
                     {{LocalizedString("machine_used_of").arg(text), series}});
    if (size > 0) graph.setTop(static_cast<double>(size));
  };
  if (std::exchange(mMemoryTotal, total) != total) show(*mMemory, total, kMemoryUsed);
  if (std::exchange(mSwapTotal, swap) != swap) show(*mSwap, swap, kSwapUsed);
}

void MachineWindow::ShowDevices(DeviceGraph& devices,
                                std::span<const MachineRecorder::Device> known) {
  const bool isFirst = devices.choice->property("isSetUp").isNull();
  auto& choice = *devices.choice;
  for (auto next = static_cast<std::size_t>(choice.count()) - 1; next < known.size(); ++next)
    choice.addItem(QString::fromStdString(known[next].name));
  choice.setVisible(known.size() > 1);
  if (!isFirst) return;
  choice.setProperty("isSetUp", true);
  connect(&choice, &QComboBox::currentIndexChanged, this, [this, &devices] {
    ShowSeriesOf(devices, &devices == &mDisks ? mRecorder.Disks() : mRecorder.Interfaces());
  });
  ShowSeriesOf(devices, known);
}

void MachineWindow::ShowSeriesOf(const DeviceGraph& devices,
                                 std::span<const MachineRecorder::Device> known) {
  const auto place = static_cast<std::size_t>(std::max(devices.choice->currentIndex(), 0));
  const bool isOne = place > 0 && place <= known.size();
  devices.graph->setHistory(
      &mRecorder.History(),
      {{LocalizedString(devices.inName), isOne ? known[place - 1].in : devices.allIn},
       {LocalizedString(devices.outName), isOne ? known[place - 1].out : devices.allOut}});
}

void MachineWindow::ShowProcessors() {
  const auto known = mRecorder.Processors();
  const auto count = static_cast<std::size_t>(std::ranges::count_if(
      known, [](std::size_t series) { return series != MachineRecorder::kNoSeries; }));
  if (count == mShownProcessors) return;
  mShownProcessors = count;
  std::vector<ProcessorGrid::Processor> processors;
  for (std::size_t number = 0; number < known.size(); ++number)
    if (known[number] != MachineRecorder::kNoSeries)
      processors.push_back({static_cast<int>(number), known[number]});
  mProcessors->setHistory(&mRecorder.History(), std::move(processors));
}

void MachineWindow::ShowGraphics() {
  const auto known = mRecorder.GraphicsDevices();
  if (known.size() == mShownGraphics) return;
  mShownGraphics = known.size();
  std::vector<TimeGraph::Series> series;
  for (const auto& device : known)
    series.push_back({QString::fromStdString(device.name), device.busy});
  mGraphics->setHistory(&mRecorder.History(), std::move(series));
  mGraphics->show();
}

void MachineWindow::ShowBusiest() {
  const auto& history = mRecorder.History();
  const auto when = mChosen ? *mChosen : history.IsEmpty() ? 0 : history.TimeOf(history.Size() - 1);
  const auto* moment = mRecorder.Busiest().NearestTo(when);
  mBusiest->Show(moment != nullptr ? moment->Processes() : std::span<const BusyProcess>());
  const auto title = mChosen && moment != nullptr
                         ? LocalizedString("machine_busiest_at").arg(MomentText(moment->when))
                         : LocalizedString("machine_busiest_now");
  mBusiestTitle->setText(title);
  mBusiest->setAccessibleName(title);
  mBackToNow->setVisible(mChosen.has_value());
}

/// A pressed button is hardly another than the rest in dark themes.
void MachineWindow::SetSpan(int minutes) {
  if (auto* button = mSpans->button(minutes)) button->setChecked(true);
  MarkChecked(*mSpans);
  for (auto* graph : mGraphs) graph->setSpan(minutes * 60'000LL);
  mProcessors->setSpan(minutes * 60'000LL);
}

void MachineWindow::SetCursor(std::optional<std::int64_t> when) {
  for (auto* graph : mGraphs) graph->setCursor(when);
  mProcessors->setCursor(when);
}

void MachineWindow::Choose(std::optional<std::int64_t> when) {
  mChosen = when;
  if (const auto* moment = when ? mRecorder.Busiest().NearestTo(*when) : nullptr)
    mChosen = moment->when;
  for (auto* graph : mGraphs) graph->setMarked(mChosen);
  mNote->setText(LocalizedString("machine_note"));
  ShowBusiest();
}

void MachineWindow::ChooseProcess(std::int32_t pid, std::uint64_t startStamp) {
  if (GetPidsStartStamp(pid) != startStamp) {
    mNote->setText(LocalizedString("machine_has_ended").arg(pid));
  } else if (!mShowProcess(pid)) {
    mNote->setText(LocalizedString("machine_not_in_table").arg(pid));
  }
}

void MachineWindow::GoBack() {
  if (!mChosen) return static_cast<void>(close());
  Choose(std::nullopt);
}

}  // namespace lurkwell
