// Windows of one process: what they show, read, keep and say.
#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "preferences/Settings.h"
#include "process_details/DetailsTableModel.h"
#include "process_details/DetailsWindows.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

enum Page { kOverviewPage, kThreadsPage, kFilesPage, kMemoryPage, kEnvironmentPage };

class DetailsWindowTest : public ConsolidatorTest {
 protected:
  void SetUp() override {
    machine.processTable.TellFigures(true);
    Start();
    auto& process = machine.processTable.Birth(300, "server");
    process.texts.Set(FigureCalled("pid_owner"), "us\033er");
    Turn();
  }
  ~DetailsWindowTest() override { windows.CloseAll(); }

  DetailsWindow& Show(std::int32_t pid = 300) {
    windows.ShowDetails(pid);
    auto* window = windows.Open().back();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    Turn();
    return *window;
  }

  void Turn(std::int64_t milliseconds = 2500) {
    machine.runLoop.RunFor(milliseconds);
    QApplication::processEvents();
  }

  static void Press(DetailsWindow& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    auto* focus = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QTest::keyClick(focus, key, modifiers);
    QApplication::processEvents();
  }

  /// The rows as they are shown, cells between bars.
  static std::vector<std::string> Rows(DetailsWindow& window) {
    const auto& model = *window.CurrentPage().Table().View().model();
    std::vector<std::string> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < model.columnCount(); ++column)
        cells.append(model.index(row, column).data().toString());
      rows.push_back(cells.join(QLatin1Char('|')).toStdString());
    }
    return rows;
  }
  static std::string Notice(DetailsWindow& window) {
    return window.CurrentPage().Table().Notice().toStdString();
  }

  void TellThreads(std::int64_t cpuTime, std::int64_t readAt) {
    auto& answer = machine.processDetails.Of(300, DetailsKind::kThreads);
    answer.list = std::vector<ThreadDetails>{{300, "main", 'S', cpuTime, 1, 0, 7},
                                             {301, "a\x1b[2J\n", 'R', 5, 0, -5, 8}};
    answer.count = 2;
    answer.readAt = readAt;
  }
  int CountReadings() {
    int count = 0;
    for (const auto& line : QString::fromStdString(machine.log.Take()).split(QLatin1Char('\n')))
      count += line.startsWith(QLatin1String("ProcessDetails.Begin")) ? 1 : 0;
    return count;
  }

  DetailsWindows windows{nullptr};
};

TEST_F(DetailsWindowTest, EachProcessHasOneThatFollowsItToItsEnd) {
  auto& window = Show();
  windows.ShowDetails(300);
  windows.ShowDetails(4711);
  ASSERT_EQ(windows.Open().size(), 1u);
  EXPECT_EQ(window.windowTitle(), "server (300): Details");
  EXPECT_THAT(Rows(window), testing::Contains("Owner|us\\033er"));
  // What it becomes by exec is still the process.
  machine.processTable.Find(300)->SetName("worker");
  Turn();
  EXPECT_EQ(window.Heading(), "worker (process 300)");
  const auto last = Rows(window);
  machine.processTable.Death(300);
  Turn();
  EXPECT_THAT(window.Heading().toStdString(),
              testing::MatchesRegex(
                  "worker \\(process 300\\), as of [0-9][0-9]:[0-9][0-9]:[0-9][0-9], ended"));
  machine.processTable.Birth(300, "another");
  Turn();
  Press(window, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Notice(window), "The process ended before this was read.");
  Press(window, Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Rows(window), last);
  auto& other = Show();
  EXPECT_NE(&other, &window);
  EXPECT_EQ(other.Heading(), "another (process 300)");
  EXPECT_NE(other.pos(), window.pos());
}

TEST_F(DetailsWindowTest, AListIsSortedByKeysAlone) {
  auto& window = Show();
  TellThreads(1'000'000, 1'000'000);
  Press(window, Qt::Key_Tab, Qt::ControlModifier);
  Turn();
  const auto choose = [&](const QString& title) {
    Press(window, Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    auto* sorting = menu->actions().constLast()->menu();
    ASSERT_NE(sorting, nullptr);
    sorting->popup(QPoint());
    for (auto* item : sorting->actions())
      if (item->text() == title) item->trigger();
    sorting->close();
    menu->close();
    QApplication::processEvents();
  };
  choose("Name");
  EXPECT_THAT(Rows(window).front(), HasSubstr("301|a"));
  choose("Name");
  EXPECT_THAT(Rows(window).front(), HasSubstr("300|main"));
}

TEST_F(DetailsWindowTest, APageIsReadWhileItIsSeenAndKeepsWhatItHadAtTheEnd) {
  auto& window = Show();
  machine.log.Clear();
  TellThreads(1'000'000, 1'000'000);
  Turn(10'000);
  EXPECT_EQ(CountReadings(), 0) << "nobody looks at threads";
  window.Pages().setCurrentIndex(kThreadsPage);
  Turn(100);
  EXPECT_THAT(Rows(window), ElementsAre("300|main|…|1.00|sleeping|1|0",
                                        "301|a\\033[2J\\012|…|0.00|running|0|-5"));
  TellThreads(1'500'000, 2'000'000);
  Turn();
  EXPECT_THAT(Rows(window).front(), HasSubstr("300|main|50.0|1.50"));
  EXPECT_EQ(window.CurrentPage().Table().Footer(), "Threads: 2");
  CountReadings();
  Turn(10'000);
  EXPECT_THAT(CountReadings(), testing::AllOf(testing::Ge(3), testing::Le(6)));
  // A reading that takes long rests for long.
  machine.processDetails.Of(300, DetailsKind::kThreads).taken = 1'000'000;
  Turn();
  CountReadings();
  Turn(15'000);
  EXPECT_EQ(CountReadings(), 0);
  Turn(10'000);
  EXPECT_EQ(CountReadings(), 1);
  window.showMinimized();
  QApplication::processEvents();
  Turn(60'000);
  EXPECT_EQ(CountReadings(), 0) << "nobody sees it";
  const auto last = Rows(window);
  machine.processTable.Death(300);
  Turn(60'000);
  EXPECT_EQ(Rows(window), last);
  EXPECT_TRUE(window.HasEnded());
}

TEST_F(DetailsWindowTest, WhatMayNotBeReadSaysWhy) {
  auto& window = Show();
  const auto noticeFor = [&](DetailsState state) {
    machine.processDetails.Of(300, DetailsKind::kDescriptors).state = state;
    window.Pages().setCurrentIndex(kFilesPage);
    Turn();
    return Notice(window);
  };
  EXPECT_THAT(noticeFor(DetailsState::kRefused),
              HasSubstr("Not allowed: this process belongs to us\\033er."));
  EXPECT_THAT(noticeFor(DetailsState::kKeptSecret), HasSubstr("keeps this from other programs"));
  EXPECT_THAT(noticeFor(DetailsState::kNone), HasSubstr("nothing of the kind"));
  EXPECT_EQ(noticeFor(DetailsState::kKnown), "There are none.");
  machine.processDetails.Tell(300, DetailsKind::kDescriptors,
                              std::vector<DescriptorDetails>{{3, "file", "/x", 5, "read"}});
  Turn();
  EXPECT_EQ(Notice(window), "");
  EXPECT_THAT(Rows(window), ElementsAre("3|file|/x|5|read"));
  // What does not answer is waited for without end, and takes nothing away.
  machine.processDetails.isBusy = true;
  window.Pages().setCurrentIndex(kMemoryPage);
  Turn(100);
  EXPECT_EQ(Notice(window), "Reading…");
  Turn(5000);
  EXPECT_THAT(Notice(window), HasSubstr("No answer from the system yet"));
  window.Pages().setCurrentIndex(kFilesPage);
  Turn(5000);
  EXPECT_THAT(Rows(window), ElementsAre("3|file|/x|5|read"));
}

TEST_F(DetailsWindowTest, TheKeyboardReachesAll) {
  const std::string large(120'000, 'v');
  machine.processDetails.Tell(
      300, DetailsKind::kEnvironment,
      std::vector<VariableDetails>{{"PATH", "/bin"}, {"<b>", "\x1b]0;x\a"}, {"LARGE", large}});
  auto& window = Show();
  for (int i = 0; i < kEnvironmentPage; ++i) Press(window, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(window.Pages().currentIndex(), kEnvironmentPage);
  Turn();
  const auto rows = Rows(window);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0], "<b>|\\033]0;x\\007");
  EXPECT_LT(rows[1].size(), 1000u) << "what is drawn is cut";
  const auto& model = *window.CurrentPage().Table().View().model();
  EXPECT_THAT(model.index(0, 0).data(Qt::ToolTipRole).toString().toStdString(),
              Not(HasSubstr("<b>")));
  Press(window, Qt::Key_A, Qt::ControlModifier);
  Press(window, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
            "<b>\t\\033]0;x\\007\nLARGE\t" + large + "\nPATH\t/bin\n");
  Press(window, Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(window.focusWidget(), "path BIN");
  EXPECT_THAT(Rows(window), ElementsAre("PATH|/bin"));
  Press(window, Qt::Key_Escape);
  EXPECT_EQ(Rows(window).size(), 3u);
  Press(window, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(window.Pages().currentIndex(), kEnvironmentPage + 1);
  Press(window, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
  window.resize(701, 502);
  Press(window, Qt::Key_Escape);
  EXPECT_TRUE(windows.Open().empty());
  auto& next = Show();
  EXPECT_EQ(next.Pages().currentIndex(), kEnvironmentPage) << "the page is remembered";
  EXPECT_EQ(next.size(), QSize(701, 502)) << "and the frame";
}

TEST(DetailsTableModel, RowsStayThemselvesWhileOthersComeAndGo) {
  static constexpr DetailsColumn kColumns[] = {{"a", kPropertyTypeInteger, 5}};
  DetailsTableModel model(kColumns, nullptr);
  DetailsSorting sorting(model, nullptr);
  const QAbstractItemModelTester tester(&sorting,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  const auto set = [&](std::initializer_list<int> keys) {
    std::vector<DetailsRow> rows;
    for (const int key : keys)
      rows.push_back({static_cast<std::uint64_t>(key), {std::int64_t{key}}});
    model.SetRows(std::move(rows));
  };
  sorting.sort(0, Qt::DescendingOrder);
  set({1, 2, 3, 3, 4});
  const QPersistentModelIndex two = sorting.index(2, 0);
  ASSERT_EQ(two.data().toInt(), 2);
  set({0, 2, 5, 1});
  EXPECT_EQ(two.data().toInt(), 2);
  EXPECT_EQ(two.row(), 1);
  EXPECT_EQ(sorting.rowCount(), 4);
  set({5});
  EXPECT_FALSE(two.isValid());
  set({});
  EXPECT_EQ(sorting.rowCount(), 0);
}

}  // namespace
}  // namespace lurkwell
