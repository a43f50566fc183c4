// Logging windows: from the process's figures to the table, the file and the screen.
#include <QClipboard>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "monitor_windows/FollowingTest.h"

namespace lurkwell {
namespace {

using LoggingWindowTest = FollowingTest;

TEST_F(LoggingWindowTest, RowsComeWithChangesAndGoIntoTheFile) {
  SetPrefInt("LOG_WINDOW_LOG_TO_FILE", 1);
  SetPrefInt("LOG_WINDOW_DELTA_REAL_MEM_BOOL", 1);
  auto& process = machine.processTable.Birth(300, "bu\x1b[1msy");
  process.UseCPU(2500);
  auto& log = Log(300);
  const auto path = log.stateInfo().logFileName;
  EXPECT_THAT(path, testing::MatchesRegex("/logs/bu_033_1msy-300-2001090[89]-[0-9]{6}\\.tsv"));
  EXPECT_EQ(log.window()->windowTitle().toStdString(),
            "Logging bu\\033[1msy pid:300 filename: " + path);
  Turn();
  Turn();
  QSignalSpy inserted(&log, &QAbstractItemModel::rowsInserted);
  process.UseCPU(250);
  process["pid_rsz"] = 8192;
  Turn(3000);
  EXPECT_EQ(inserted.count(), 1);
  process["pid_rsz"] = 2000;
  Turn();
  std::string rows = Table(log);
  for (auto at = rows.find("Sep"); at != std::string::npos; at = rows.find("Sep"))
    rows.erase(at, rows.find('|', at) - at);
  EXPECT_EQ(rows,
            "|2.500000|0.000000|  0\n"
            "|2.750000|+ 0.250000|+ 8 K\n"
            "|2.750000|0.000000|- 6 K\n");
  EXPECT_EQ(disk.Texts().at(path),
            "time_s\tcpu_time_s\tcpu_time_change_s\tresident_change_bytes\n"
            "1000000001.200000\t2.500000\t0.000000\t0\n"
            "1000000003.200000\t2.750000\t+0.250000\t+8192\n"
            "1000000006.200000\t2.750000\t0.000000\t-6192\n");
  Close(log);
  EXPECT_EQ(disk.OpenFiles(), 0);
}

TEST_F(LoggingWindowTest, ADiskThatRefusesIsSaidOnceAndSurvived) {
  SetPrefInt("LOG_WINDOW_LOG_TO_FILE", 1);
  auto& process = machine.processTable.Birth(300, "busy");
  auto& log = Log(300);
  Turn();
  disk.Refuse("No space left on device");
  for (int row = 0; row < 3; ++row) {
    process.UseCPU(100);
    Turn();
  }
  EXPECT_EQ(log.rowCount(), 3);
  EXPECT_EQ(log.note().toStdString(), "Rows are missing in the log file: No space left on device.");
  auto& other = Log(301);
  EXPECT_EQ(other.note().toStdString(),
            "There is no log file: No space left on device. The rows are only shown here.");
  EXPECT_EQ(other.window()->windowTitle().toStdString(), "Logging made pid:301");
  disk.Refuse("");
  process.UseCPU(100);
  machine.processTable.Find(301)->UseCPU(100);
  Turn();
  EXPECT_EQ(disk.Texts().at(log.stateInfo().logFileName),
            "time_s\tcpu_time_s\tcpu_time_change_s\n"
            "1000000005.200000\t0.400000\t+0.100000\n");
  EXPECT_EQ(other.rowCount(), 1);
}

TEST_F(LoggingWindowTest, FiveHundredRowsAndTheNewestInSightUnlessTheUserReadsOlderOnes) {
  auto& process = machine.processTable.Birth(300, "busy");
  auto& log = Log(300);
  auto& bar = *log.table()->verticalScrollBar();
  const auto work = [&](int rows) {
    for (int row = 0; row < rows; ++row) {
      process.UseCPU(10);
      Turn();
    }
  };
  const auto cell = [&](int row) {
    return log.data(log.index(row, 1), Qt::DisplayRole).toString().toStdString();
  };
  work(499);
  EXPECT_EQ(log.rowCount(), 499);
  EXPECT_GT(bar.maximum(), 0);
  EXPECT_EQ(bar.value(), bar.maximum());
  work(2);
  EXPECT_EQ(log.rowCount(), 500);
  EXPECT_EQ(cell(0), "0.020000") << "the oldest went";
  EXPECT_EQ(cell(499), "5.010000");
  EXPECT_EQ(bar.value(), bar.maximum());
  bar.setValue(100);
  const auto top = cell(log.table()->rowAt(1));
  work(5);
  EXPECT_EQ(cell(log.table()->rowAt(1)), top) << "what is read stays where it is";
  log.window()->resize(500, 150);
  bar.setValue(bar.maximum());
  log.window()->resize(500, 120);
  work(1);
  EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(LoggingWindowTest, ClosedWhileItsProcessRunsAWindowIsForgotten) {
  auto& first = Log(300);
  auto& second = Log(301);
  EXPECT_EQ(GetPrefArrayCount(kLoggingWindowKind), 2);
  Close(first);
  EXPECT_EQ(GetPrefArrayCount(kLoggingWindowKind), 1);
  EXPECT_EQ(LoggingWindowUI::CountOpenWindows(), 1);
  windows.CreateLoggingWindow(1000, 300);
  windows.CreateCPUHistoryWindow(250, 300);
  EXPECT_EQ(opened.Take(), "history of 300 every 250\n");
  EXPECT_EQ(windows.CountOpenWindows(), 3);
  EXPECT_EQ(GetPrefArrayCount(kLoggingWindowKind), 2);
  const auto places = LoggingWindowUI::Places();
  ASSERT_EQ(places.size(), 2U);
  EXPECT_FALSE(places[0].intersects(places[1])) << "there is room";
  second.window()->deleteLater();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Turn(3000);
  EXPECT_EQ(LoggingWindowUI::CountOpenWindows(), 1);
}

TEST_F(LoggingWindowTest, SelectedRowsAreCopiedAsText) {
  auto& process = machine.processTable.Birth(300, "busy");
  process.UseCPU(1500);
  auto& log = Log(300);
  Turn();
  log.table()->selectAll();
  log.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(log.window()));
  QTest::keyClick(log.table(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(
      QGuiApplication::clipboard()->text().endsWith(QLatin1String("\t1.500000\t0.000000\n")))
      << QGuiApplication::clipboard()->text().toStdString();
}

TEST_F(LoggingWindowTest, ALogIsSavedWhereItsUserWantsIt) {
  auto& process = machine.processTable.Birth(300, "busy");
  process.UseCPU(1500);
  auto& log = Log(300);
  Turn();
  const QTemporaryDir folder;
  const auto target = folder.filePath(QStringLiteral("log.tsv"));
  QFile old(target);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("what was there");
  old.close();
  log.saveTo(target);
  QFile saved(target);
  ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
  EXPECT_EQ(saved.readAll().toStdString(),
            "time_s\tcpu_time_s\tcpu_time_change_s\n1000000001.200000\t1.500000\t0.000000\n");
  log.saveTo(folder.filePath(QStringLiteral("none/log.tsv")));
  EXPECT_TRUE(log.note().contains(QLatin1String("The log is not saved: ")))
      << log.note().toStdString();
}

TEST_F(LoggingWindowTest, ALogIsNamedByTheWholeNameAndItsFileIsShown) {
  SetPrefInt("LOG_WINDOW_LOG_TO_FILE", 1);
  auto& process = machine.processTable.Birth(300, "a-rather-long-na");
  process.owner = "ann";
  process.commandLine = "/opt/a-rather-long-name-of-a-program --fast";
  auto& log = Log(300);
  const auto path = log.stateInfo().logFileName;
  EXPECT_THAT(path, testing::HasSubstr("/a-rather-long-name-of-a-program-300-"));
  EXPECT_THAT(log.window()->windowTitle().toStdString(),
              testing::StartsWith("Logging a-rather-long-name-of-a-program pid:300 "));
  char name[kRememberedTextSize];
  ReadRememberedText(kLoggingWindowKind, 0, "PROCESS_NAME", name);
  EXPECT_STREQ(name, "a-rather-long-na") << "it comes back by what the kernel tells of all";
  machine.log.Clear();
  log.showFile();
  EXPECT_EQ(machine.log.Take(), "ShowFile " + path + "\n");
  EXPECT_EQ(log.note(), QString());
  const auto* identity = log.window()->findChild<QLabel*>(QStringLiteral("identityLabel"));
  log.window()->resize(900, 200);
  EXPECT_EQ(identity->text(), identity->accessibleName());
  log.window()->resize(200, 200);
  EXPECT_TRUE(identity->text().endsWith(QChar(0x2026))) << identity->text().toStdString();
  machine.processManager.hasFileManager = false;
  log.showFile();
  EXPECT_EQ(log.note().toStdString(),
            "There is no file manager to show the file. It is " + path + ".");
  machine.processTable.Death(300);
  Turn();
  EXPECT_EQ(log.shortTitle(), QLatin1String("Log of a-rather-long-name-of-a-program, pid 300"))
      << "it is still about that one";
}

TEST_F(LoggingWindowTest, PlacesThatCannotBeAreMadeToFit) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  constexpr std::int32_t kMost = 2147483647;
  const WindowRect places[] = {{100'000, 100'000, 100'400, 100'300},
                               {-kMost - 1, -kMost - 1, kMost, kMost},
                               {kMost, kMost, -kMost, -kMost},
                               {0, 0, 0, 0},
                               {100, -3000, 500, -2700}};
  for (const auto& place : places) {
    auto& log = Log(300, "busy", &place);
    const QRect frame(log.window()->pos(), log.window()->size());
    EXPECT_TRUE(screen.contains(frame))
        << RectText(place) << ": " << frame.left() << ' ' << frame.top() << ' ' << frame.right()
        << ' ' << frame.bottom();
    EXPECT_GE(frame.width(), 40);
    Close(log);
  }
}

}  // namespace
}  // namespace lurkwell
