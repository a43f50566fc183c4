#pragma once

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "monitor_windows/FollowingWindows.h"
#include "monitor_windows/LoggingRecord.h"
#include "monitor_windows/LoggingWindowUI.h"
#include "monitor_windows/ProcessWatchdog.h"
#include "platform/simulated/SimulatedServices.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {

inline std::string RectText(const WindowRect& rect) {
  return std::to_string(rect.left) + ' ' + std::to_string(rect.top) + ' ' +
         std::to_string(rect.right) + ' ' + std::to_string(rect.bottom);
}

/// Logging windows and a watchdog over a simulated machine. Opened windows are written into
/// `opened`; those of CPU histories are not made.
class FollowingTest : public ConsolidatorTest, public StartUpWindows {
 protected:
  ~FollowingTest() override {
    helper.reset();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    EXPECT_EQ(LoggingWindowUI::CountOpenWindows(), 0) << "windows end with their clients";
    EXPECT_EQ(disk.OpenFiles(), 0);
  }

  /// A process that the consolidator knows, and a window that follows it.
  LoggingWindowUI& Log(int pid, const char* name = "made", const WindowRect* rect = nullptr) {
    if (machine.processTable.Find(pid) == nullptr) machine.processTable.Birth(pid, name);
    if (!helper) Start();
    if (!mKeeper) {
      mKeeper = true;
      Add("keeper", 100).Needs({"meta_name", "meta_kind"});
    }
    Turn(200);
    auto* log =
        LoggingWindowUI::CreateLoggingWindowWithInterval(disk, 1000, pid, nullptr, rect, -1);
    mTesters.push_back(std::make_unique<QAbstractItemModelTester>(
        log, QAbstractItemModelTester::FailureReportingMode::Fatal));
    return *log;
  }

  void StartWatchdog() {
    if (!helper) Start();
    InitializeProcessWatchdog(500, windows, *this);
    Turn(500);
  }

  void Turn(std::int64_t milliseconds = 1000) {
    machine.runLoop.RunFor(milliseconds);
    QApplication::processEvents();
  }

  static void Close(LoggingWindowUI& log) {
    log.window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static std::vector<LoggingWindowUI*> Windows() {
    std::vector<LoggingWindowUI*> found;
    for (auto* widget : QApplication::topLevelWidgets())
      if (auto* log = widget->findChild<LoggingWindowUI*>()) found.push_back(log);
    return found;
  }

  static std::string Table(const LoggingWindowUI& log) {
    QString text;
    for (int row = 0; row < log.rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < log.columnCount(); ++column)
        cells.append(log.data(log.index(row, column), Qt::DisplayRole).toString());
      text += cells.join(QLatin1Char('|')) + QLatin1Char('\n');
    }
    return text.toStdString();
  }

  /// A record as another run has left it.
  static void Remember(const char* array, const std::string& name, const Uuid& uuid,
                       const WindowRect& rect = {40, 50, 440, 300},
                       const std::string& kind = "Darwin") {
    SetPersistentClientInfo(array, name.c_str(), kind.c_str(), &rect, &uuid);
  }

  void doShowMainWindow() override { opened.Add("main"); }
  void doShowQuintessentialView() override { opened.Add("view"); }
  void showQuintessentialViewFullScreen() override { opened.Add("full screen"); }

  AccessLog opened;
  SimulatedLogFiles disk;
  FollowingWindows windows{
      disk,
      {[this](std::int32_t interval, std::int32_t pid, const Uuid* uuid, const WindowRect* rect) {
         opened.Add("history of " + std::to_string(pid) + " every " + std::to_string(interval) +
                    (rect != nullptr ? " at " + RectText(*rect) : ""));
         histories.emplace_back(uuid != nullptr ? *uuid : Uuid{}, pid);
       },
       [this] { return std::vector<MonitorWindows::OpenWindow>(histories.size()); },
       [this](const Uuid& uuid) {
         return std::ranges::find(histories, uuid, &std::pair<Uuid, std::int32_t>::first) !=
                histories.end();
       },
       [this](std::int32_t pid) {
         std::erase_if(histories, [pid](const auto& history) { return history.second == pid; });
       },
       [] {}}};
  std::vector<std::pair<Uuid, std::int32_t>> histories;

 private:
  bool mKeeper = false;
  std::vector<std::unique_ptr<QAbstractItemModelTester>> mTesters;
};

}  // namespace lurkwell
