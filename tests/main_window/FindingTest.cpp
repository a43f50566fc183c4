// Windows, menus and rows that are looked for.
#include <QToolButton>
#include <functional>

#include "main_window/CommandsTest.h"

namespace lurkwell {
namespace {

TEST_F(CommandsTest, UpdateNowDoesNotWaitForTheInterval) {
  OpenWith({300});
  machine.processTable.Birth(301, "new");
  Turn(10);
  EXPECT_EQ(controller().rowCount(), 3);
  Choose("menu_view_update_now");
  Turn(10);
  EXPECT_EQ(controller().rowCount(), 4);
}

TEST_F(CommandsTest, WindowsThatFollowAProcessOpenForEachSelectedOne) {
  struct Windows : MonitorWindows {
    void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid) override {
      opened += "history " + std::to_string(interval) + " " + std::to_string(pid) + "\n";
    }
    void CreateLoggingWindow(std::int32_t interval, std::int32_t pid) override {
      opened += "log " + std::to_string(interval) + " " + std::to_string(pid) + "\n";
      SetPrefInt("remembered", pid);
    }
    int CountRoom() const override { return room; }
    std::vector<OpenWindow> OpenWindows() const override {
      std::vector<OpenWindow> list;
      for (const char* title : {"Log of b & c", "CPU history of a"})
        list.push_back({QString::fromLatin1(title), {}, {}, [this, title] {
                          SetPrefInt(title, 1);
                          ++closed;
                        }});
      return list;
    }
    mutable int closed = 0;
    std::string opened;
    int room = 200;
  } windows;
  OpenWith({300, 301});
  Select({300, 301});
  Choose("menu_file_new_logging");
  controller().processCommands().SetMonitorWindows(&windows);
  Choose("menu_file_new_logging");
  Choose("menu_file_new_cpu_history");
  EXPECT_EQ(windows.opened, "log 1000 300\nlog 1000 301\nhistory 250 300\nhistory 250 301\n");
  QMenu* menu = nullptr;
  for (auto* place : Action("menu_window_close_all").associatedObjects())
    if (auto* found = qobject_cast<QMenu*>(place)) menu = found;
  ASSERT_NE(menu, nullptr);
  Q_EMIT menu->aboutToShow();
  const auto items = menu->actions();
  Q_EMIT menu->aboutToHide();
  EXPECT_EQ(items.at(items.size() - 2)->text(), QLatin1String("CPU history of a"));
  EXPECT_EQ(items.constLast()->text(), QLatin1String("Log of b && c"));
  auto before = machine.preferenceDomain.SynchronizeCount();
  Choose("menu_window_close_all");
  EXPECT_EQ(windows.closed, 2);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), before + 1) << "all of them at once";
  for (int pid = 400; pid < 430; ++pid) machine.processTable.Birth(pid, "many");
  Turn();
  windows.opened.clear();
  window->table().selectAll();
  Answer("Cancel");
  Choose("menu_file_new_logging");
  EXPECT_NE(question.find("Open 34 new windows?"), std::string::npos) << question;
  EXPECT_EQ(windows.opened, "");
  windows.room = 25;
  const auto writes = machine.preferenceDomain.SynchronizeCount();
  question.clear();
  Answer("Open");
  const std::function<void()> agree = [&] {
    if (!question.empty()) return Answer("OK");
    QTimer::singleShot(10, &machineRoom, agree);
  };
  agree();
  Choose("menu_file_new_logging");
  EXPECT_NE(question.find("25 of 34 windows were opened."), std::string::npos) << question;
  EXPECT_EQ(std::ranges::count(windows.opened, '\n'), 25);
  EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes + 1);
}

TEST_F(CommandsTest, ClicksSelectAndOnlyTheSecondButtonOrAKeyOpensTheMenu) {
  OpenWith({300, 301});
  auto& menu = window->menus().ContextMenu();
  auto& table = window->table();
  const auto at = [&](int row) { return table.visualRect(controller().index(row, 3)).center(); };
  const auto click = [&](Qt::MouseButton button, const QPoint& place,
                         Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(table.viewport(), button, keys, place);
  };
  Select({300, 301});
  click(Qt::RightButton, at(3));
  EXPECT_EQ(Selected(), "300 301") << "a click on a part of the selection leaves it";
  EXPECT_TRUE(menu.isVisible());
  const auto kill = [&] {
    const auto place = menu.actionGeometry(&Action("menu_process_quit_or_kill")).center();
    // Later releases of the toolkit close a menu on which the mouse has not moved yet.
    for (int step = 0; step < 10; ++step) QTest::mouseMove(&menu, place + QPoint(step % 2, 0));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, place);
  };
  kill();
  EXPECT_TRUE(menu.isVisible()) << "a click that was meant for the table";
  EXPECT_EQ(Done(), "");
  QTest::qWait(StripedTableView::kDeadTime);
  Answer("Cancel");
  kill();
  EXPECT_FALSE(menu.isVisible());
  EXPECT_NE(question.find("2 processes"), std::string::npos) << question;
  click(Qt::RightButton, at(1));
  EXPECT_EQ(Selected(), "1");
  menu.close();
  click(Qt::RightButton, QPoint(50, at(3).y() + 60));
  EXPECT_FALSE(menu.isVisible()) << "below the last row";
  EXPECT_EQ(Selected(), "1");
  for (const int row : {2, 3}) click(Qt::LeftButton, at(row), Qt::ControlModifier);
  EXPECT_EQ(Selected(), "1 300 301");
  EXPECT_FALSE(menu.isVisible());
  QTest::keyClick(&table, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(Selected(), "1 300 301");
  menu.close();
}

TEST_F(CommandsTest, AFoundRowStaysInSightUntilTheUserScrolls) {
  machine.helper.SetRecordsFigures(false);
  for (int pid = 300; pid < 400; ++pid)
    machine.processTable.Birth(pid, "p" + std::to_string(pid)).UseCPU(1);
  Open();
  ClickHeader("internal_CPUPercent");
  auto& table = window->table();
  const auto inSight = [&] {
    const auto* row = controller().rows().Find(350);
    return table.viewport()->rect().contains(
        table.visualRect(controller().index(row->shownIndex, 0)).center());
  };
  const auto move = [&](bool up) {
    for (int pid = 300; pid < 400; ++pid)
      if ((pid == 350) == up) machine.processTable.Find(pid)->UseCPU(500);
    Turn();
    return controller().rows().Find(350)->shownIndex;
  };
  ASSERT_TRUE(controller().selectPid(350));
  const int low = move(false);
  EXPECT_TRUE(inSight()) << low;
  const int high = move(true);
  EXPECT_GT(std::abs(low - high), 90);
  EXPECT_TRUE(inSight()) << high;
  table.verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
  const int place = table.verticalScrollBar()->value();
  move(false);
  EXPECT_EQ(table.verticalScrollBar()->value(), place);
  QTest::keyClick(&table, Qt::Key_End);
  EXPECT_EQ(table.currentIndex().row(), controller().rowCount() - 1);
  QTest::keyClick(&table, Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(controller().selectedPids().size(), static_cast<std::size_t>(controller().rowCount()));
  QTest::keyClick(&table, Qt::Key_Home);
  EXPECT_EQ(table.currentIndex().row(), 0);
}

TEST_F(CommandsTest, FindByIdTakesWholeNumbersOfLiveProcesses) {
  OpenWith({300, 999});
  QStringList complaints;
  QTimer::singleShot(10, &machineRoom, [&] {
    auto* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    auto* field = dialog->findChild<QLineEdit*>();
    for (const char* text : {"9999", "99999", "abc", "12a", "-3", " 999 "}) {
      field->selectAll();
      QTest::keyClicks(field, QLatin1String(text));
      QTest::keyClick(field, Qt::Key_Return);
      if (!dialog->isVisible()) return;
      EXPECT_EQ(field->text(), QLatin1String(text)) << "nothing typed is lost";
      for (const auto* label : dialog->findChildren<QLabel*>())
        if (label->wordWrap()) complaints.append(label->text());
    }
    ADD_FAILURE() << "999 is there";
    dialog->close();
  });
  Choose("menu_process_by_id");
  EXPECT_EQ(Selected(), "999");
  const auto noNumber = QLatin1String("A process ID is a number from 0 to 65535.");
  EXPECT_EQ(complaints,
            QStringList({"There is no process 9999.", noNumber, noNumber, noNumber, noNumber}));
}

TEST_F(CommandsTest, AnAddressSelectsItsProcessWhateverHidesItAndDoesNothingElse) {
  const auto said = [this] { return window->statusBar()->currentMessage().toStdString(); };
  // At the start the processes are not known yet.
  for (const int pid : {300, 301}) machine.processTable.Birth(pid, "p" + std::to_string(pid));
  Open();
  window->ShowAddress(QStringLiteral("lurkwell://pid/301"));
  Turn();
  EXPECT_EQ(Selected(), "301");
  Choose("menu_scope_applications");
  Choose("menu_edit_filter");
  window->filterField().setText(QStringLiteral("nothing at all"));
  Turn();
  ASSERT_EQ(controller().rowCount(), 0);
  machine.log.Clear();
  window->ShowAddress(QStringLiteral("lurkwell://pid/300/"));
  Turn();
  EXPECT_EQ(Selected(), "300");
  EXPECT_EQ(said(), "");
  window->ShowAddress(QStringLiteral("lurkwell://pid/4711"));
  Turn();
  EXPECT_NE(said().find("4711"), std::string::npos);
  for (const char* text : {"lurkwell://pid/", "lurkwell://pid/0", "lurkwell://pid/-1",
                           "lurkwell:", "lurkwell://pid/300x", "lurkwell://pid/99999999999",
                           "http://pid/300", "lurkwell://kill/300", "lurkwell://pid/300\n"}) {
    window->statusBar()->clearMessage();
    window->ShowAddress(QString::fromUtf8(text));
    EXPECT_NE(said().find("no address of a process"), std::string::npos) << text;
  }
  EXPECT_EQ(Selected(), "300");
  for (const auto& line : machine.log.Lines())
    EXPECT_EQ(line.find("Signals."), std::string::npos) << line;
}

TEST_F(CommandsTest, AFilterSaysWhatItCouldNotLookInto) {
  machine.processTable.TellFigures(true);
  const auto open = [&](int pid, const char* owner, const char* files, const char* ports) {
    auto& process = *machine.processTable.Find(pid);
    process.owner = owner;
    process.texts.Set(FigureCalled("pid_open_files"), files);
    process.texts.Set(FigureCalled("pid_ports"), ports);
  };
  OpenWith({300, 301, 302});
  open(300, "user", "/dev/null\n/var/log/a", "22, 443");
  open(301, "user", "/var/logs", "4430");
  open(302, "root", "/var/log/b", "443");
  const auto counts = [this] {
    for (const auto* label : window->statusBar()->findChildren<QLabel*>())
      if (label->text().contains(QLatin1String(" of "))) return label->text().toStdString();
    return std::string();
  };
  const auto remark = [this] {
    return window->findChild<FilterBar*>()->findChild<QLabel*>()->text().toStdString();
  };
  for (const auto* button : window->findChild<FilterBar*>()->findChildren<QToolButton*>())
    EXPECT_FALSE(button->accessibleName().isEmpty());
  machine.costlyFigures.isBusy = true;
  Filter("port:443");
  Turn();
  EXPECT_EQ(Pids(), "");
  EXPECT_NE(counts().find("0 of 5"), std::string::npos) << counts();
  machine.costlyFigures.isBusy = false;
  // Nobody waits for the interval.
  ASSERT_TRUE(QTest::qWaitFor([&] { return Turn(1), Pids() == "300"; }, 1500)) << Pids();
  EXPECT_EQ(counts(), "1 of 5 processes: filter; 0 selected");
  EXPECT_EQ(remark(), "not allowed: 1");
  Filter("file:/var/log/");
  Turn();
  Turn();
  EXPECT_EQ(Pids(), "300");
  Filter("-port:443");
  Turn();
  EXPECT_EQ(Pids(), "1 301") << "what may not be looked into is not without it";
  Filter("");
  EXPECT_EQ(remark(), "");
  machine.log.Clear();
  Turn(4000);
  EXPECT_EQ(machine.log.Take().find("CostlyFigures.Ask"), std::string::npos)
      << "nothing is read for a filter that has gone";
}

}  // namespace
}  // namespace lurkwell
