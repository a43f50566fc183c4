#include "monitor_windows/FollowingWindows.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "consolidator/ProcessQueries.h"
#include "monitor_windows/LoggingWindowUI.h"
#include "monitor_windows/RememberedWindows.h"
#include "monitor_windows/ScreenPlacement.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/PreferenceBatch.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

std::vector<QRect> PlacesOf(const std::vector<MonitorWindows::OpenWindow>& windows) {
  std::vector<QRect> places;
  places.reserve(windows.size());
  for (const auto& window : windows) places.push_back(window.place);
  return places;
}

}  // namespace

FollowingWindows::FollowingWindows(LogFiles& logFiles, Histories histories)
    : mLogFiles(logFiles), mHistories(std::move(histories)) {}

void FollowingWindows::CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid) {
  CreateCPUHistoryWindow(interval, pid, nullptr, nullptr);
}

void FollowingWindows::CreateLoggingWindow(std::int32_t interval, std::int32_t pid) {
  CreateLoggingWindow(interval, pid, nullptr, nullptr, -1);
}

void FollowingWindows::CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid,
                                              const Uuid* uuid, const WindowRect* rect) {
  const PreferenceBatch batch;
  const auto place = rect != nullptr ? Apart(*rect, mHistories.list()) : WindowRect{};
  mHistories.create(interval, pid, uuid, rect != nullptr ? &place : nullptr);
}

void FollowingWindows::CreateLoggingWindow(std::int32_t interval, std::int32_t pid,
                                           const Uuid* uuid, const WindowRect* rect,
                                           std::int32_t prefsIndex) {
  const PreferenceBatch batch;
  if (auto* log = uuid != nullptr ? LoggingWindowUI::Find(*uuid) : nullptr)
    return log->follow(mLogFiles, pid);
  const auto place = rect != nullptr ? Apart(*rect, OpenLogs()) : WindowRect{};
  LoggingWindowUI::CreateLoggingWindowWithInterval(mLogFiles, interval, pid, uuid,
                                                   rect != nullptr ? &place : nullptr, prefsIndex,
                                                   PlacesOf(OpenWindows()));
}

WindowRect FollowingWindows::Apart(const WindowRect& rect, const std::vector<OpenWindow>& others) {
  return PlaceApart(rect, PlacesOf(others));
}

std::vector<MonitorWindows::OpenWindow> FollowingWindows::OpenWindows() const {
  auto windows = mHistories.list();
  for (auto& log : OpenLogs()) windows.push_back(std::move(log));
  return windows;
}

std::vector<MonitorWindows::OpenWindow> FollowingWindows::OpenLogs() {
  std::vector<OpenWindow> windows;
  for (auto* log : LoggingWindowUI::OpenWindows()) {
    const auto place = log->frame();
    windows.push_back({log->shortTitle(),
                       QRect(QPoint(place.left, place.top), log->window()->size()),
                       [window = QPointer<QWidget>(log->window())] {
                         if (window != nullptr) BringToFront(*window);
                       },
                       [window = QPointer<QWidget>(log->window())] {
                         if (window != nullptr) window->close();
                       }});
  }
  return windows;
}

void FollowingWindows::ShowRememberedWindows(QWidget* parent) {
  RememberedWindowsPanel::ShowFor(parent);
}

int FollowingWindows::CountOpenWindows() const {
  return LoggingWindowUI::CountOpenWindows() + static_cast<int>(mHistories.list().size());
}

int FollowingWindows::CountRoom() const {
  return std::max(0, kMostOpenWindows - CountOpenWindows());
}

bool FollowingWindows::IsCPUHistoryWindowOpen(const Uuid& uuid) const {
  return mHistories.isOpen(uuid);
}

bool FollowingWindows::IsLoggingWindowOpen(const Uuid& uuid) const {
  const auto* log = LoggingWindowUI::Find(uuid);
  return log != nullptr && !log->stateInfo().pidWentAway;
}

void FollowingWindows::ProcessHasEnded(std::int32_t pid) {
  const PreferenceBatch batch;
  mHistories.processHasEnded(pid);
  LoggingWindowUI::ProcessHasEnded(pid);
}

void FollowingWindows::RememberPlaces() {
  const PreferenceBatch batch;
  LoggingWindowUI::RememberPlaces();
  mHistories.rememberPlaces();
}

namespace {

enum Column { kProgram, kOwner, kWindow, kFollows };
constexpr int kUuidRole = Qt::UserRole;
constexpr int kArrayRole = Qt::UserRole + 1;
constexpr int kRefreshMilliseconds = 1000;

const char* const kArrays[] = {kCPUHistoryWindowKind, kLoggingWindowKind};

QString TextAt(const char* array, std::int32_t index, const char* key) {
  char text[kRememberedTextSize];
  ReadRememberedText(array, index, key, text);
  return PlainText(text);
}

/// Which process the window follows, as the record has it; -1 when that one has ended.
std::int32_t FollowedAt(const char* array, std::int32_t index) {
  const auto pid = ReadRememberedInt(array, index, kRememberedPidKey, -1);
  return pid >= 0 && IsRememberedProcess(array, index, pid) ? pid : -1;
}

/// The whole name is known of a process that runs only.
void ShowProcess(QTreeWidgetItem& item, const char* array, std::int32_t index) {
  const auto pid = FollowedAt(array, index);
  const auto name = pid >= 0 ? FollowedName(pid) : QString();
  item.setText(kProgram, name.isEmpty() ? TextAt(array, index, "PROCESS_NAME") : name);
  item.setText(kFollows, pid >= 0 ? LocalizedString("remembered_follows").arg(pid)
                                  : LocalizedString("remembered_waits"));
}

}  // namespace

QPointer<RememberedWindowsPanel> RememberedWindowsPanel::sPanel;

void RememberedWindowsPanel::ShowFor(QWidget* parent) {
  if (sPanel == nullptr) sPanel = new RememberedWindowsPanel(parent);
  BringToFront(*sPanel);
}

RememberedWindowsPanel::RememberedWindowsPanel(QWidget* parent)
    : QDialog(parent), mList(new QTreeWidget(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(LocalizedString("remembered_title"));
  mList->setRootIsDecorated(false);
  mList->setAlternatingRowColors(true);
  mList->setSelectionMode(QAbstractItemView::ExtendedSelection);
  mList->setHeaderLabels({LocalizedString("remembered_program"),
                          LocalizedString("remembered_owner"), LocalizedString("remembered_window"),
                          LocalizedString("remembered_process")});
  mList->setAccessibleName(windowTitle());
  mList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  auto* explanation = new QLabel(LocalizedString("remembered_explanation"), this);
  explanation->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  mForget = buttons->addButton(LocalizedString("remembered_forget"), QDialogButtonBox::ActionRole);
  mForget->setAutoDefault(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(explanation);
  layout->addWidget(mList);
  layout->addWidget(buttons);
  resize(fontMetrics().averageCharWidth() * 64, fontMetrics().height() * 20);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  connect(mForget, &QPushButton::clicked, this, &RememberedWindowsPanel::ForgetSelected);
  connect(new QShortcut(QKeySequence::Delete, mList), &QShortcut::activated, this,
          &RememberedWindowsPanel::ForgetSelected);
  connect(mList, &QTreeWidget::itemSelectionChanged, this, &RememberedWindowsPanel::Validate);
  connect(&mTimer, &QTimer::timeout, this, &RememberedWindowsPanel::Fill);
  mTimer.start(kRefreshMilliseconds);
  Fill();
}

void RememberedWindowsPanel::Fill() {
  // Items stay as long as their records do, and the selection with them.
  int row = 0;
  for (const char* array : kArrays) {
    const auto count = GetPrefArrayCount(array);
    for (std::int32_t index = 0; index < count; ++index) {
      char uuid[kRememberedTextSize];
      ReadRememberedText(array, index, "WINDOW_UUID", uuid);
      const auto key = QString::fromUtf8(uuid);
      const auto isRow = [&](const QTreeWidgetItem& item) {
        return item.data(0, kUuidRole).toString() == key &&
               item.data(0, kArrayRole).toString() == QLatin1String(array);
      };
      // What is not this record at its place has gone.
      while (row < mList->topLevelItemCount() && !isRow(*mList->topLevelItem(row)))
        delete mList->takeTopLevelItem(row);
      if (row == mList->topLevelItemCount()) {
        auto* item = new QTreeWidgetItem(mList);
        item->setData(0, kUuidRole, key);
        item->setData(0, kArrayRole, QLatin1String(array));
        item->setText(kOwner, TextAt(array, index, kRememberedOwnerKey));
        item->setText(kWindow, LocalizedString(array == kLoggingWindowKind ? "remembered_log"
                                                                           : "remembered_history"));
      }
      ShowProcess(*mList->topLevelItem(row++), array, index);
    }
  }
  while (row < mList->topLevelItemCount()) delete mList->takeTopLevelItem(row);
  Validate();
}

void RememberedWindowsPanel::Validate() {
  mForget->setEnabled(!mList->selectedItems().isEmpty());
}

void RememberedWindowsPanel::ForgetSelected() {
  {
    const PreferenceBatch batch;
    for (const auto* item : mList->selectedItems()) {
      const auto uuid = Uuid::FromText(item->data(0, kUuidRole).toString().toStdString());
      for (const char* array : kArrays)
        if (uuid && item->data(0, kArrayRole).toString() == QLatin1String(array))
          RemovePersistentClientInfo(array, &*uuid);
    }
  }
  Fill();
}

}  // namespace lurkwell
