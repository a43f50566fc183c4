// What is drawn, to the pixel.
#include <QPaintEvent>
#include <QPainter>
#include <QSet>

#include "consolidator/PidReport.h"
#include "consolidator/PropertyCatalogue.h"
#include "main_window/MainWindowTest.h"
#include "resources/Resources.h"
#include "windows/CustomCells.h"

namespace lurkwell {
namespace {

using CellsTest = MainWindowTest;

const QColor kBlue(Qt::blue);
const QColor kGrey(Qt::lightGray);

TEST_F(CellsTest, WhyThereIsNoFigureIsToldApartFromNothingInEveryColumn) {
  OpenWith({300, 301, 302, 303});
  const auto cells = [this](const char* key, int role) {
    QStringList texts;
    for (const int pid : {300, 301, 302, 303}) {
      const int row = controller().rows().Find(pid)->shownIndex;
      texts.append(controller().index(row, ColumnOf(key)).data(role).toString());
    }
    return texts;
  };
  for (const auto& row : FigureProperties()) {
    const char* key = row.name.data();
    SCOPED_TRACE(key);
    controller().addToKeysWeTrackForUI(InternKey(key));
    Turn();
    PidReport(300).NoValue(row, Missing::kNotYetKnown);
    PidReport(301).NoValue(row, Missing::kNotAllowed);
    PidReport(302).NoValue(row, Missing::kNotCounted);
    PidReport(303).Text(row, "0");
    controller().synchronizer()->NotifyProcessesHaveBeenUpdated();
    auto shown = cells(key, Qt::DisplayRole);
    EXPECT_EQ(shown.mid(0, 3).join(QLatin1Char('|')), "…|×|–");
    EXPECT_FALSE(shown.contains(QString()) && key != std::string_view("pid_terminal"));
    EXPECT_EQ(QSet<QString>(shown.begin(), shown.end()).size(), 4);
    EXPECT_EQ(cells(key, Qt::AccessibleTextRole).mid(0, 3).join(QLatin1Char('|')),
              "not known yet|not allowed|not counted on this system");
    const auto tips = cells(key, Qt::ToolTipRole);
    EXPECT_TRUE(tips[0].startsWith("Not known yet: ") && tips[0].contains("next updates"));
    EXPECT_TRUE(tips[1].startsWith("Not allowed: ") && tips[1].contains("root"));
    EXPECT_TRUE(tips[2].startsWith("Not counted: "));
    EXPECT_FALSE(tips[3].startsWith("Not "));
    EXPECT_EQ(cells(key, kIsFaintRole).mid(0, 3).join(QLatin1Char('|')), "true|true|true");
    // Last in both directions; a terminal of nothing is there no more than the others.
    const bool isNothing = shown[3].isEmpty();
    for (int direction = 0; direction < 2; ++direction) {
      ClickHeader(key);
      const auto pids = Pids();
      for (const char* missing : {"300", "301", "302"})
        EXPECT_TRUE(isNothing || pids.find(missing) > pids.find("303")) << pids;
    }
    controller().removeFromKeysWeTrackForUI(InternKey(key));
  }
}

TEST_F(CellsTest, HexadecimalFiguresAreShownAsTheDesktopTellsThem) {
  machine.processManager.Launch({1, 301}, 301, "An application");
  OpenWith({300, 301});
  controller().addToKeysWeTrackForUI(InternKey("carbonpsn_mode"));
  Turn();
  const auto mode = [this](int pid) {
    return Cell(controller().rows().Find(pid)->shownIndex, ColumnOf("carbonpsn_mode"))
        .toStdString();
  };
  EXPECT_EQ(mode(301), "0x00000040");
  EXPECT_EQ(mode(300), "") << "there is none, which is not 0";
}

TEST_F(CellsTest, TheIdleTaskAndZombiesAreNoWorkingProcesses) {
  machine.processTable.Birth(300, "ended").entry.state = RunState::kZombie;
  Open();
  controller().addToKeysWeTrackForUI(InternKey("meta_kind"));
  machine.processTable.Find(0)->UseCPU(1'900);
  Turn();
  Turn();
  const auto cell = [this](int pid, const char* key) {
    return controller().index(controller().rows().Find(pid)->shownIndex, ColumnOf(key));
  };
  EXPECT_EQ(cell(300, "meta_kind").data().toString(), "Zombie");
  EXPECT_EQ(cell(1, "meta_kind").data().toString(), "Process");
  EXPECT_TRUE(cell(300, "meta_name").data(kIsFaintRole).toBool());
  EXPECT_FALSE(cell(1, "meta_name").data(kIsFaintRole).toBool());
  EXPECT_TRUE(cell(300, "meta_name")
                  .data(Qt::ToolTipRole)
                  .toString()
                  .contains("zombie", Qt::CaseInsensitive));
  EXPECT_TRUE(cell(0, "meta_name").data(Qt::ToolTipRole).toString().contains("idle task"));
  const auto bar = window->table().visualRect(cell(0, "internal_CPUPercent"));
  const auto image = window->table().viewport()->grab().toImage();
  for (int x = bar.left(); x <= bar.right(); ++x)
    EXPECT_NE(image.pixelColor(x, bar.center().y()), kBlue) << "a full blue bar alarms";
}

TEST_F(CellsTest, TitlesStayReadableAndColumnsFitTheirTexts) {
  const std::string longName = "sixteen letters!";
  machine.processTable.Birth(300, longName.c_str());
  machine.processTable.Birth(301, "p");
  Open();
  auto& header = window->table().header();
  controller().addToKeysWeTrackForUI(InternKey("pid_p_nice"));
  const int nice = ColumnOf("pid_p_nice");
  EXPECT_GE(header.sectionSize(nice), header.widthForTitle(LocalizedString("pid_p_nice")));
  const int name = ColumnOf("meta_name");
  window->table().resizeColumnToContents(name);
  const auto& metrics = window->table().fontMetrics();
  EXPECT_EQ(
      window->table().columnWidth(name),
      metrics.horizontalAdvance(QString::fromStdString(longName)) + TextCell::kWidthBesideText);
  // Too narrow for both, the title keeps what room there is.
  const auto title = [&] {
    const auto image = header.viewport()->grab().toImage();
    const int x = header.sectionViewportPosition(nice);
    return image.copy(x, header.height() / 3, header.sectionSize(nice) - 3, header.height() / 3);
  };
  header.resizeSection(nice, metrics.horizontalAdvance(LocalizedString("pid_p_nice")) + 10);
  const auto before = title();
  ClickHeader("pid_p_nice");
  QTest::mouseMove(window->table().viewport());
  QApplication::processEvents();
  EXPECT_EQ(title(), before);
}

TEST_F(CellsTest, StripesAndGridCoverTheWholeView) {
  machine.processTable.Birth(300, "p");
  Open();
  auto& table = window->table();
  const auto image = table.viewport()->grab().toImage();
  const int pitch = table.verticalHeader()->defaultSectionSize();
  const int right = image.width() - 5;
  EXPECT_EQ(image.pixelColor(right, pitch / 2).name(), "#edf3fe");
  EXPECT_EQ(image.pixelColor(right, pitch + pitch / 2).name(), "#ffffff");
  EXPECT_EQ(image.pixelColor(right, 10 * pitch + pitch / 2).name(), "#edf3fe") << "below the rows";
  EXPECT_EQ(image.pixelColor(table.columnWidth(0) - 1, 11 * pitch + 3), kGrey);
  EXPECT_NE(image.pixelColor(table.columnWidth(0), 11 * pitch + 3), kGrey);
}

TEST_F(CellsTest, OnADarkGroundStripesBarsAndTextsStayReadable) {
  // Other tests of the program have their own ground.
  struct Restored {
    ~Restored() { QApplication::setPalette(before); }
    QPalette before = QApplication::palette();
  } const restored;
  machine.processTable.Birth(300, "p");
  QPalette dark(QColor(46, 49, 56), QColor(36, 39, 45));
  dark.setColor(QPalette::Base, QColor(27, 29, 34));
  QApplication::setPalette(dark);
  Open();
  const auto image = window->table().viewport()->grab().toImage();
  const int pitch = window->table().verticalHeader()->defaultSectionSize();
  const int right = image.width() - 5;
  for (const int row : {0, 1}) {
    const auto ground = image.pixelColor(right, row * pitch + pitch / 2);
    EXPECT_LT(ground.lightness(), 80) << row;
    EXPECT_GT(window->palette().color(QPalette::Text).lightness() - ground.lightness(), 120);
  }
  EXPECT_NE(image.pixelColor(right, pitch / 2), image.pixelColor(right, pitch + pitch / 2));
}

TEST_F(CellsTest, OnlyRowsThatChangedAreDrawnAgain) {
  struct Painted : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
      return false;
    }
    QRegion region;
  } painted;
  for (int pid = 300; pid < 310; ++pid) machine.processTable.Birth(pid, "p");
  Open();
  ClickHeader("meta_pid");
  Turn();
  window->table().viewport()->installEventFilter(&painted);
  Turn();
  EXPECT_TRUE(painted.region.isEmpty());
  machine.processTable.Find(303)->UseCPU(100);
  Turn();
  const auto rows = painted.region.boundingRect();
  const auto row = window->table().visualRect(controller().index(5, 0));
  EXPECT_EQ(rows.top(), row.top());
  EXPECT_EQ(rows.bottom(), row.bottom());
}

}  // namespace
}  // namespace lurkwell
