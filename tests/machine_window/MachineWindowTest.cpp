// The machine's window on a simulated machine: its figures from their counters to the graphs, who
// was busiest at any moment, what is said of what is not there, and which beats it takes part in.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <string>
#include <vector>

#include "machine_window/MachineRecorder.h"
#include "machine_window/MachineWindow.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kGibibyte = 1'073'741'824;

class MachineWindowTest : public ConsolidatorTest {
 protected:
  MachineWindowTest() {
    auto& figures = machine.hostStatistics.machine;
    figures.processors = {{0, 0, 0}, {1, 0, 0}};
    figures.memory = MachineMemory{8 * kGibibyte, 6 * kGibibyte, 0, 0};
    figures.disks = {{"sda", 0, 0, true}, {"sdb", 0, 0, true}};
    figures.interfaces = {{"eth0", 0, 0, true}};
    machine.processTable.Birth(300, "compiler");
    machine.processTable.Birth(301, "editor");
    Start();
  }
  ~MachineWindowTest() override { delete MachineWindow::IfOpen(); }

  MachineWindow& Open() {
    auto& window = MachineWindow::Open([this](std::int32_t pid) {
      shown.push_back(pid);
      return pid != 301;
    });
    Pass(100);
    return window;
  }

  void Pass(std::int64_t milliseconds) {
    machine.runLoop.RunFor(milliseconds);
    QCoreApplication::processEvents();
  }

  /// Two seconds in which the processors are busy for so many per cent, and others do their part.
  void Work(int first, int second, std::int64_t compiler = 0, std::int64_t editor = 0) {
    auto& figures = machine.hostStatistics.machine;
    const auto use = [](ProcessorTime& processor, int percent) {
      processor.busy += percent * 20'000;
      processor.idle += (100 - percent) * 20'000;
    };
    use(figures.processors[0], first);
    use(figures.processors[1], second);
    figures.disks[0].in += 2'048'000;
    figures.disks[1].out += 4'096'000;
    if (auto* process = machine.processTable.Find(300)) process->UseCPU(compiler);
    if (auto* process = machine.processTable.Find(301)) process->UseCPU(editor);
    Pass(2000);
  }

  /// The figures of the graph of that title, without their time.
  static std::string Figures(const QString& title) {
    for (const auto* graph : MachineWindow::IfOpen()->findChildren<TimeGraph*>())
      if (graph->accessibleName() == title) {
        const auto text = graph->figures();
        return text.mid(text.indexOf(QLatin1String(": ")) + 1).trimmed().toStdString();
      }
    return "no such graph";
  }
  static TimeGraph& Graph(const QString& title) {
    const auto graphs = MachineWindow::IfOpen()->findChildren<TimeGraph*>();
    return **std::ranges::find(graphs, title, &QWidget::accessibleName);
  }
  /// "title | name pid share memory | ..."
  static std::string Busiest() {
    auto* table = MachineWindow::IfOpen()->findChild<BusiestTable*>();
    auto text = table->accessibleName().toStdString();
    for (int row = 0; row < table->rowCount() && !table->item(row, 0)->text().isEmpty(); ++row) {
      text += " |";
      for (int column = 0; column < 3; ++column)
        text += ' ' + table->item(row, column)->text().toStdString();
    }
    return text;
  }
  static std::string Note() {
    std::string notes;
    for (const auto* label : MachineWindow::IfOpen()->findChildren<QLabel*>())
      notes += label->text().toStdString() + '\n';
    return notes;
  }

  std::vector<std::int32_t> shown;
};

TEST_F(MachineWindowTest, ShowsWhatTheCountersTellAndSaysWhatIsNotThere) {
  auto& window = Open();
  Work(50, 10);
  Work(80, 20);
  EXPECT_EQ(Figures("CPU"), "50.0 %");
  const auto* grid = window.findChild<ProcessorGrid*>();
  EXPECT_EQ(grid->count(), 2U);
  EXPECT_EQ(grid->figures(), "0: 80.0 %") << "the busiest, when none is chosen";
  EXPECT_EQ(Figures("Memory"), "of 8.00 G, used 2.00 G");
  EXPECT_EQ(Figures("Disks"), "read 1000 K/s, written 2.0 M/s");
  EXPECT_EQ(Figures("Network"), "received 0 B/s, sent 0 B/s");
  EXPECT_EQ(Figures("Swap"), "This machine has no swap space.");
  EXPECT_EQ(Figures("Pressure"), "This kernel does not tell for how long processes had to wait.");
  EXPECT_FALSE(Graph("Graphics").isVisible());
  EXPECT_NE(Note().find("Temperature: not told"), std::string::npos);
  EXPECT_EQ(Note().find("container"), std::string::npos);

  // One of several disks by itself.
  const auto choices = window.findChildren<QComboBox*>();
  ASSERT_EQ(choices.size(), 2);
  EXPECT_EQ(choices[0]->isVisible() + choices[1]->isVisible(), 1) << "there is but one interface";
  auto* disks = *std::ranges::find(choices, QString("Disks"), &QWidget::accessibleName);
  disks->setCurrentIndex(disks->findText("sdb"));
  EXPECT_EQ(Figures("Disks"), "read 0 B/s, written 2.0 M/s");

  // What comes later.
  auto& figures = machine.hostStatistics.machine;
  figures.memory->swap = kGibibyte;
  figures.memory->swapFree = kGibibyte / 4;
  figures.memoryPressure = PressureShares{{12.5, 0, 0}, {2, 0, 0}};
  figures.graphics = {{"card0", 0.37, {}, {}}};
  figures.temperatures = {{
                              "disk",
                              38,
                          },
                          {"cpu", 71}};
  figures.limits = {2 * kGibibyte, kGibibyte, 1.5};
  figures.processors.clear();
  Pass(2000);
  EXPECT_EQ(Figures("Swap"), "of 1.00 G, used 768.0 M");
  EXPECT_EQ(Figures("Pressure"),
            "some waited for CPU not known, for memory 12.5 %, for disks not known, "
            "all waited for memory 2.0 %, for disks not known");
  EXPECT_TRUE(Graph("Graphics").isVisible());
  EXPECT_EQ(Figures("Graphics"), "card0 37.0 %");
  EXPECT_EQ(Figures("CPU"), "not known") << "a gap, and not 0";
  EXPECT_LT(Note().find("cpu: 71 °C"), Note().find("disk: 38 °C"));
  EXPECT_NE(Note().find("1.5 processors, 2.00 G of memory (1.00 G taken)"), std::string::npos);
}

TEST_F(MachineWindowTest, AMomentTellsWhoWasBusiestAndTheTableShowsThem) {
  auto& window = Open();
  Work(0, 0);
  Work(90, 5, 1500, 200);
  EXPECT_EQ(Busiest(), "Busiest now | compiler 300 75.0 % | editor 301 10.0 %");
  auto& cpu = Graph("CPU");
  cpu.setFocus();
  QTest::keyClick(&cpu, Qt::Key_Left);
  const auto then = cpu.cursor();
  EXPECT_EQ(Graph("Memory").cursor(), then) << "all graphs point at one moment";
  QTest::keyClick(&cpu, Qt::Key_Return);
  const auto at = "Busiest at " + MomentText(then.value()).toStdString();
  machine.processTable.Death(300);
  Work(1, 1, 0, 100);
  Work(1, 1, 0, 300);
  EXPECT_EQ(Busiest(), at + " | compiler 300 75.0 % | editor 301 10.0 %") << "stays";
  cpu.setCursor({});

  auto* table = window.findChild<BusiestTable*>();
  table->setCurrentCell(1, 0);
  QTest::keyClick(table, Qt::Key_Return);
  EXPECT_EQ(shown, std::vector{301});
  EXPECT_NE(Note().find("301 is not in the table"), std::string::npos);
  // Its pid is another's now.
  machine.processTable.Birth(300, "other");
  Work(1, 1);
  table->setCurrentCell(0, 0);
  QTest::keyClick(table, Qt::Key_Return);
  EXPECT_EQ(shown, std::vector{301});
  EXPECT_NE(Note().find("Process 300 has ended"), std::string::npos);
  QTest::keyClick(&cpu, Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible()) << "back to now first";
  EXPECT_EQ(Busiest(), "Busiest now");
  Work(1, 1, 0, 300);
  EXPECT_EQ(Busiest(), "Busiest now | editor 301 15.0 %");
  // The past shows that one of them has ended, however often the pid is used again.
  QTest::mouseClick(&cpu, Qt::LeftButton, {}, QPoint(cpu.width() - 2, cpu.height() / 2));
  EXPECT_TRUE(Busiest().starts_with("Busiest at"));
  QTest::mouseClick(window.findChild<QPushButton*>(), Qt::LeftButton);
  EXPECT_TRUE(Busiest().starts_with("Busiest now"));
}

TEST_F(MachineWindowTest, ABirthCountsWithAllItsTimeAndHiddenOnesDoNot) {
  Open();
  Work(0, 0);
  machine.processTable.Birth(400, "brief").UseCPU(1000);
  machine.processTable.Birth(401, "old").UseCPU(3'600'000);
  Work(50, 50);
  EXPECT_EQ(Busiest(), "Busiest now | brief 400 50.0 %");
}

TEST_F(MachineWindowTest, GoesOnRecordingWhileItIsClosedWithoutBeatsOfItsOwn) {
  delete MachineWindow::IfOpen();
  Open();
  Work(50, 50);
  MachineWindow::IfOpen()->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_EQ(MachineWindow::IfOpen(), nullptr);
  EXPECT_FALSE(MachineWindow::WasOpen());
  const auto& history = MachineRecorder::IfRunning()->History();
  const auto before = history.Size();
  Pass(60'000);
  EXPECT_EQ(history.Size() - before, 6U) << "by itself";
  // A client that looks at few processes, or none, is not made to wait for all.
  Add("watchdog", 500).WaitsForBirths();
  Add("graph", 250).Needs({"meta_active_time"}).OfPids({300});
  const auto alone = history.Size();
  Pass(60'000);
  EXPECT_EQ(history.Size() - alone, 6U);
  // With a table that looks every two seconds it takes no beat of its own.
  Add("table", 2000).Needs({"meta_active_time"});
  Pass(10'000);
  const auto with = history.Size();
  told.Clear();
  Pass(20'000);
  EXPECT_EQ(history.Size() - with, 10U);
  for (std::size_t i = with + 1; i < history.Size(); ++i)
    EXPECT_EQ(history.TimeOf(i) - history.TimeOf(i - 1), 2000) << "and they are the table's";
  Add("quick", 100).Needs({"meta_active_time"});
  const auto quick = history.Size();
  Pass(10'000);
  EXPECT_NEAR(static_cast<double>(history.Size() - quick), 10, 1) << "never more than one a second";
  Open();
  EXPECT_EQ(&MachineRecorder::IfRunning()->History(), &history);
}

TEST_F(MachineWindowTest, RemembersItsPlaceItsSpanAndThatItWasOpen) {
  auto& window = Open();
  EXPECT_EQ(Graph("CPU").span(), 5 * 60'000);
  for (auto* button : window.findChildren<QToolButton*>())
    if (button->text() == "30 min") QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(Graph("Pressure").span(), 30 * 60'000);
  window.resize(700, 500);
  window.Remember();
  EXPECT_TRUE(MachineWindow::WasOpen());
  delete &window;
  EXPECT_EQ(Open().size(), QSize(700, 500));
  EXPECT_EQ(Graph("Memory").span(), 30 * 60'000);
  QTest::keyClick(MachineWindow::IfOpen(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(MachineWindow::IfOpen(), nullptr);
  // What nobody chose there.
  SetPrefInt("MACHINE_WINDOW_MINUTES", 7);
  Open();
  EXPECT_EQ(Graph("CPU").span(), 5 * 60'000);
}

TEST_F(MachineWindowTest, HoursAreBounded) {
  auto& recorder = MachineRecorder::Running();
  auto& figures = machine.hostStatistics.machine;
  figures.processors.clear();
  for (int number = 0; number < 256; ++number) figures.processors.push_back({number, 0, 0});
  Add("quick", 1000).Needs({"meta_active_time"});
  for (int second = 0; second < 4000; ++second) {
    for (auto& processor : figures.processors) processor.idle += 1'000'000;
    if (second % 100 == 0) machine.processTable.Find(300)->UseCPU(10);
    machine.runLoop.RunFor(1000);
  }
  EXPECT_EQ(recorder.History().Size(), MachineRecorder::kMostMoments);
  EXPECT_LT(recorder.Bytes(), 16U << 20);
  EXPECT_LT(recorder.Busiest().Bytes(), 4U << 20);
}

TEST(ProcessorGridTest, FillsItsPlaceForAnyNumber) {
  for (int processors = 1; processors <= 256; ++processors) {
    const int columns = ProcessorGrid::columnsFor(processors, QSizeF(480, 160));
    const int rows = (processors + columns - 1) / columns;
    EXPECT_LT(rows * columns - processors, std::max(columns, 2)) << processors;
    EXPECT_GT(160.0 / rows, 6) << processors;
    EXPECT_GT(480.0 / columns, 12) << processors;
  }
  EXPECT_EQ(ProcessorGrid::columnsFor(4, QSizeF(480, 160)), 3 - 1);
}

}  // namespace
}  // namespace lurkwell
