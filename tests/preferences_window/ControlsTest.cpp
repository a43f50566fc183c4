// Every control from its key and back, and who hears of it.
#include <QColorDialog>

#include "preferences_window/PanelTest.h"

namespace lurkwell {
namespace {

constexpr const char* kTable = "VQTarvMainWindowInfoSynch preferences\n";
constexpr const char* kAnimated = "QuintessentialInformationClient preferences\n";
constexpr const char* kHistories = "CPUHistoryWindowInformationClient preferences\n";
constexpr const char* kEverybody =
    "Bystander preferences\nCPUHistoryWindowInformationClient preferences\n"
    "QuintessentialInformationClient preferences\nVQTarvMainWindowInfoSynch preferences\n";

struct Expected {
  const char* control;
  const char* key;
  const char* told;
};

constexpr Expected kCheckBoxes[] = {
    {"memoryGraphCheckBox", "MEM_GRAPH_DRAW_VSZ", kTable},
    {"connectorsCheckBox", "QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS", kAnimated},
    {"relativeCheckBox", "CPU_HISTORY_WINDOW_USE_RELATIVE", kHistories},
    {"descendantsCheckBox", "CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", kHistories},
    {"timestampCheckBox", "LOG_WINDOW_INCLUDE_TIMESTAMP", ""},
    {"activeTimeCheckBox", "LOG_WINDOW_ACTIVE_TIME_BOOL", ""},
    {"deltaActiveTimeCheckBox", "LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL", ""},
    {"realMemoryCheckBox", "LOG_WINDOW_REAL_MEM_BOOL", ""},
    {"deltaRealMemoryCheckBox", "LOG_WINDOW_DELTA_REAL_MEM_BOOL", ""},
    {"virtualMemoryCheckBox", "LOG_WINDOW_VIRTUAL_MEM_BOOL", ""},
    {"deltaVirtualMemoryCheckBox", "LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL", ""},
    {"logToFileCheckBox", "LOG_WINDOW_LOG_TO_FILE", ""},
};

struct ExpectedSlider : Expected {
  const char* text;
};

constexpr ExpectedSlider kIntervalSliders[] = {
    {{"mainWindowIntervalSlider", "MAIN_WINDOW_INTERVAL", kTable}, "mainWindowIntervalText"},
    {{"frameIntervalSlider", "HEARTQUIVA_GL_THREAD_INTERVAL", kAnimated}, "frameIntervalText"},
    {{"mainIntervalSlider", "HEARTQUIVA_MAINPIC_INTERVAL", kAnimated}, "mainIntervalText"},
    {{"cpuIntervalSlider", "HEARTQUIVA_HELPERPIC_INTERVAL", kAnimated}, "cpuIntervalText"},
    {{"historyIntervalSlider", "DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", kHistories},
     "historyIntervalText"},
    {{"loggingIntervalSlider", "DEFAULT_LOGGING_WINDOW_INTERVAL", ""}, "loggingIntervalText"},
};

constexpr Expected kFractionSliders[] = {
    {"windowAlphaSlider", "QUINT_FULLSCREEN_WINDOW_ALPHA", kAnimated},
    {"underlayAlphaSlider", "QUINT_FULLSCREEN_UNDERLAY_ALPHA", kAnimated},
    {"historyFilterSlider", "CPU_HISTORY_WINDOW_DEFAULT_FILTER", kHistories},
};

TEST_F(PanelTest, CheckBoxesShowTheirKeysAndChangeThem) {
  for (const int stored : {0, 1}) {
    for (const auto& box : kCheckBoxes) SetPrefInt(box.key, stored);
    Open();
    for (const auto& box : kCheckBoxes) {
      auto& button = Find<QAbstractButton>(box.control);
      EXPECT_EQ(button.isChecked(), stored == 1) << box.control;
      button.click();
      EXPECT_EQ(Stored(box.key), 1 - stored) << box.control;
      EXPECT_EQ(Heard(), box.told) << box.control;
    }
    Close();
  }
}

TEST_F(PanelTest, SlidersShowTheirKeysAndChangeThem) {
  for (const auto& slider : kIntervalSliders) SetPrefInt(slider.key, 60'000);
  for (const auto& slider : kFractionSliders) SetPrefDouble(slider.key, 0.3);
  Open();
  for (const auto& slider : kIntervalSliders) {
    EXPECT_EQ(At(slider.control), 600) << slider.control;
    EXPECT_EQ(Text(slider.text), "every minute") << slider.control;
  }
  EXPECT_EQ(Heard(), "");
  for (const auto& slider : kIntervalSliders) {
    for (const auto& other : kIntervalSliders) RemovePref(other.key);
    Move(slider.control, 130);
    EXPECT_EQ(Stored(slider.key), 250) << slider.control;
    EXPECT_EQ(Text(slider.text), "4 times per second") << slider.control;
    EXPECT_EQ(Find(slider.control).accessibleDescription(), "4 times per second");
    EXPECT_EQ(Heard(), slider.told) << slider.control;
    // Missing values stay missing.
    for (const auto& other : kIntervalSliders)
      EXPECT_EQ(Stored(other.key).has_value(), other.key == slider.key) << other.key;
  }
  for (const auto& slider : kFractionSliders) {
    EXPECT_EQ(At(slider.control), 300) << slider.control;
    Move(slider.control, 875);
    EXPECT_EQ(Stored(slider.key), 0.875) << slider.control;
    EXPECT_EQ(Heard(), slider.told) << slider.control;
  }
  EXPECT_EQ(Text("windowAlphaText"), "88 %");
}

TEST_F(PanelTest, MatricesShowTheirKeysAndChangeThem) {
  SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 3);
  SetPrefInt("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT", 2);
  SetPrefInt("MEMORY_BAR_FIGURE", 1);
  Open();
  EXPECT_TRUE(Find<QRadioButton>("memoryFormatMatrixMegabytes").isChecked());
  EXPECT_TRUE(Find<QRadioButton>("dateFormatMatrixMicroseconds").isChecked());
  const char* rows[] = {"Automatic", "Bytes", "Kilobytes", "Megabytes", "Gigabytes"};
  for (int row = 0; row < 5; ++row) {
    Find<QRadioButton>((std::string("memoryFormatMatrix") + rows[row]).c_str()).click();
    EXPECT_EQ(Stored("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT"), row);
    EXPECT_EQ(Heard(), kEverybody);
  }
  const char* dates[] = {"Calendar", "Seconds", "Microseconds"};
  for (int row = 0; row < 3; ++row) {
    Find<QRadioButton>((std::string("dateFormatMatrix") + dates[row]).c_str()).click();
    EXPECT_EQ(Stored("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT"), row);
    EXPECT_EQ(Heard(), kEverybody);
  }
  auto& figures = Find<QComboBox>("memoryFigureChoice");
  EXPECT_EQ(figures.currentIndex(), 1);
  for (const int row : {2, 1, 0}) {
    QTest::keyClick(&figures, row == 2 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(Stored("MEMORY_BAR_FIGURE"), row);
    EXPECT_EQ(Heard(), kTable);
  }
}

std::optional<double> Component(const std::string& well, const char* component) {
  std::uint8_t found = 0;
  const auto key = "DEFAULT_CPU_HISTORY_" + well + "FOREGROUND_RGB_" + component;
  const auto value = GetPrefInt(key.c_str(), &found, false, 0);
  return found != 0 ? std::optional<double>(value) : std::nullopt;
}

TEST_F(PanelTest, ColourWellsApplyTheirChooserLiveAndOnceMoreWhenItIsCancelled) {
  for (const auto& [name, part] :
       {std::pair("historyColourWell", ""), std::pair("descendantsColourWell", "DESCENDANTS_")}) {
    const std::string key = std::string("DEFAULT_CPU_HISTORY_") + part + "FOREGROUND_RGB_";
    SetPrefInt((key + "RED").c_str(), 8191);
    SetPrefInt((key + "GREEN").c_str(), 99'999);
    SetPrefInt((key + "BLUE").c_str(), -1);
    Open(3);
    auto& well = Find<QPushButton>(name);
    EXPECT_EQ(well.text(), "#20FF00") << "out of range counts as the nearer end";
    EXPECT_EQ(Component(part, "GREEN"), 99'999);
    const auto writes = machine.preferenceDomain.SynchronizeCount();
    well.click();
    auto* dialog = Window().findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(QColor(255, 128, 0));
    dialog->setCurrentColor(QColor(1, 127, 255));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !told.Lines().empty(); }));
    EXPECT_EQ(Component(part, "RED"), 257);
    EXPECT_EQ(Component(part, "GREEN"), 127 * 257);
    EXPECT_EQ(Component(part, "BLUE"), 65'535);
    EXPECT_EQ(Heard(), kHistories);
    EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes + 1) << "three keys, one write";
    dialog->reject();
    EXPECT_EQ(Component(part, "RED"), 8191);
    EXPECT_EQ(well.text(), "#20FF00");
    EXPECT_EQ(Heard(), kHistories);
    well.click();
    dialog = Window().findChildren<QColorDialog*>().last();
    dialog->setCurrentColor(QColor(255, 128, 0));
    dialog->accept();
    EXPECT_EQ(Component(part, "GREEN"), 128 * 257);
    EXPECT_EQ(Heard(), kHistories);
    Close();
  }
}

}  // namespace
}  // namespace lurkwell
