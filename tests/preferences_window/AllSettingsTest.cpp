// The table of all settings: what it takes, what it refuses, and what a reset leaves behind.
#include "preferences_window/AllSettings.h"
#include "preferences_window/PanelTest.h"

namespace lurkwell {
namespace {

class AllSettingsTest : public PanelTest {
 protected:
  /// Through the panel's button.
  AllSettings& OpenTable() {
    Open(1);
    Find<QPushButton>("allSettingsButton").click();
    auto* window = Window().findChild<AllSettings*>();
    EXPECT_NE(window, nullptr);
    return *window;
  }
  AllSettings& Table() { return *Window().findChild<AllSettings*>(); }

  /// The cell of a key, wherever the view has it now.
  QModelIndex Cell(const char* key, int column = SettingsModel::kValue) {
    auto* model = Table().table().model();
    for (int row = 0; row < model->rowCount(); ++row)
      if (model->index(row, 0).data(SettingsModel::kKeyRole).toString() == QLatin1String(key))
        return model->index(row, column);
    ADD_FAILURE() << key;
    return {};
  }
  /// As by typing into the cell; false when it is refused, with the reason in the note.
  bool Enter(const char* key, const QString& text) {
    const bool isTaken = Table().table().model()->setData(Cell(key), text);
    QApplication::processEvents();
    return isTaken;
  }
  std::string Note() { return Table().findChild<QLabel*>("noteLabel")->text().toStdString(); }
  void Reset(const char* key) {
    Table().table().selectRow(Cell(key).row());
    Table().findChild<QPushButton*>("resetButton")->click();
  }
};

TEST_F(AllSettingsTest, TakesWhatFitsAndRefusesTheRestWithAReason) {
  OpenTable();
  struct Refusal {
    const char* key;
    const char* text;
    const char* reason;
  };
  constexpr Refusal kRefusals[] = {
      {"MAIN_WINDOW_INTERVAL", "often", "no number"},
      {"MAIN_WINDOW_INTERVAL", "19", "out of range"},
      {"MAIN_WINDOW_INTERVAL", "99999999999999", "out of range"},
      {"MAIN_WINDOW_INTERVAL", "100.5", "no whole number"},
      {"CPU_HISTORY_WINDOW_DEFAULT_FILTER", "1.01", "out of range"},
      {"CPU_HISTORY_WINDOW_DEFAULT_FILTER", "nan", "no number"},
      {"DEFAULT_CPU_HISTORY_NAME_RGB_RED", "65536", "out of range"},
      {"vqMainTableToolbarIdentifierTarvikTemp14_ITEMS", "1 2 \u2603", "cannot hold"},
  };
  for (const auto& [key, text, reason] : kRefusals) {
    EXPECT_FALSE(Enter(key, text)) << key << text;
    EXPECT_NE(Note().find(reason), std::string::npos) << Note();
    EXPECT_EQ(Stored(key), std::nullopt) << key;
  }
  EXPECT_EQ(Heard(), "");
  EXPECT_TRUE(Enter("MAIN_WINDOW_INTERVAL", " 150 "));
  EXPECT_EQ(Stored("MAIN_WINDOW_INTERVAL"), 150);
  EXPECT_EQ(Text("mainWindowIntervalText"), "6 times per second") << "the panel shows it, too";
  EXPECT_EQ(Heard(), "VQTarvMainWindowInfoSynch preferences\n");
  EXPECT_TRUE(Enter("CPU_HISTORY_WINDOW_DEFAULT_FILTER", "0.25"));
  EXPECT_EQ(Stored("CPU_HISTORY_WINDOW_DEFAULT_FILTER"), 0.25);
  EXPECT_EQ(Heard(), "CPUHistoryWindowInformationClient preferences\n");
  EXPECT_TRUE(Enter("LOG_WINDOW_LOG_TO_FILE", "1"));
  EXPECT_EQ(Heard(), "");
  EXPECT_TRUE(Find<QAbstractButton>("logToFileCheckBox").isChecked());
  auto* model = Table().table().model();
  EXPECT_TRUE(model->setData(Cell("MEM_GRAPH_DRAW_VSZ"), Qt::Checked, Qt::CheckStateRole));
  EXPECT_EQ(Stored("MEM_GRAPH_DRAW_VSZ"), 1);
}

TEST_F(AllSettingsTest, WhatTheProgramWritesByItselfIsShownOnly) {
  SetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", 0);
  SetPrefString("MAIN_WINDOW_FRAME", "1 2 300 400");
  OpenTable();
  EXPECT_EQ(Cell("MAIN_WINDOW_FRAME").data(), "1 2 300 400");
  EXPECT_EQ(Cell("PREFERENCES_UI_DEFAULT_TAB", SettingsModel::kDefault).data(), "0");
  auto* model = Table().table().model();
  for (const char* key : {"MAIN_WINDOW_FRAME", "DEFAULT_SHOW_PROCESS_LIST_WINDOW",
                          "PREFERENCES_UI_DEFAULT_TAB", "MAIN_WINDOW_COLUMNS"}) {
    const auto flags = Cell(key).flags();
    EXPECT_FALSE(flags & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)) << key;
    EXPECT_FALSE(Enter(key, "1")) << key;
    EXPECT_FALSE(model->setData(Cell(key), Qt::Checked, Qt::CheckStateRole)) << key;
  }
  EXPECT_EQ(Stored("DEFAULT_SHOW_PROCESS_LIST_WINDOW"), 0);
  Reset("DEFAULT_SHOW_PROCESS_LIST_WINDOW");
  EXPECT_EQ(Stored("DEFAULT_SHOW_PROCESS_LIST_WINDOW"), 0);
}

TEST_F(AllSettingsTest, ManyAreResetInOneWriteAndEachClientIsToldOnce) {
  for (const char* key : {"MEM_GRAPH_DRAW_VSZ", "CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS",
                          "DEFAULT_CPU_HISTORY_NAME_RGB_RED", "DEFAULT_CPU_HISTORY_NAME_RGB_BLUE"})
    SetPrefInt(key, 1);
  OpenTable();
  const auto resetAll = [this] {
    const auto writes = machine.preferenceDomain.SynchronizeCount();
    Table().table().selectAll();
    Table().findChild<QPushButton*>("resetButton")->click();
    return machine.preferenceDomain.SynchronizeCount() - writes;
  };
  EXPECT_EQ(resetAll(), 1);
  EXPECT_TRUE(machine.preferenceDomain.Values().empty());
  EXPECT_EQ(Heard(),
            "CPUHistoryWindowInformationClient preferences\n"
            "VQTarvMainWindowInfoSynch preferences\n");
  SetPrefInt("MEM_GRAPH_DRAW_VSZ", 1);
  SetPrefInt("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT", 1);
  SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 1);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Cell("MEM_GRAPH_DRAW_VSZ").data() == "1"; }));
  EXPECT_EQ(resetAll(), 1);
  EXPECT_EQ(Heard(),
            "Bystander preferences\nCPUHistoryWindowInformationClient preferences\n"
            "QuintessentialInformationClient preferences\n"
            "VQTarvMainWindowInfoSynch preferences\n");
}

TEST_F(AllSettingsTest, TheHotKeysRowSaysHowItStandsWithTheDesktop) {
  constexpr char kKey[] = "FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE";
  OpenTable();
  const auto note = [&](HotKeyState state) {
    machine.hotKeys.state = std::move(state);
    Table().table().clearSelection();
    Table().table().selectRow(Cell(kKey).row());
    return Note();
  };
  EXPECT_EQ(note({HotKeyStanding::kGiven, ""}).find("key"), std::string::npos) << Note();
  EXPECT_NE(note({HotKeyStanding::kGiven, "Ctrl+Alt+V"}).find("Ctrl+Alt+V"), std::string::npos);
  EXPECT_NE(note({HotKeyStanding::kNoWay, ""}).find("lurkwell --toggle-overlay"),
            std::string::npos);
}

TEST_F(AllSettingsTest, KeepsTheOrderOfTheAnimatedViewsIntervals) {
  SetPrefInt("HEARTQUIVA_MAINPIC_INTERVAL", 200);
  SetPrefInt("HEARTQUIVA_HELPERPIC_INTERVAL", 1000);
  OpenTable();
  EXPECT_TRUE(Enter("HEARTQUIVA_GL_THREAD_INTERVAL", "777"));
  EXPECT_EQ(Stored("HEARTQUIVA_MAINPIC_INTERVAL"), 777);
  EXPECT_EQ(Stored("HEARTQUIVA_HELPERPIC_INTERVAL"), 1000);
  EXPECT_EQ(Heard(), "QuintessentialInformationClient preferences\n");
  EXPECT_EQ(Cell("HEARTQUIVA_MAINPIC_INTERVAL").data(), "777");
}

TEST_F(AllSettingsTest, ResetRemovesTheKeyAfterTheDefaultWasTold) {
  SetPrefInt("MAIN_WINDOW_INTERVAL", 150);
  SetPrefString("MEM_GRAPH_DRAW_VSZ", "yes");
  SetPrefArrayInt("LOGGING_WINDOW", 0, "LOG_TO_FILE", 1);
  OpenTable();
  /// What its own client would see.
  struct Reader final : RecordingClient {
    using RecordingClient::RecordingClient;
    void NotifyPreferencesHaveBeenUpdated() override {
      seen = GetPrefInt("MAIN_WINDOW_INTERVAL", nullptr, false, 0);
    }
    int seen = 0;
  };
  auto* reader = new Reader("VQTarvMainWindowInfoSynch", 600'000, told);
  AddProcessInformationClient(reader);
  Reset("MAIN_WINDOW_INTERVAL");
  EXPECT_EQ(reader->seen, 2000);
  EXPECT_EQ(Stored("MAIN_WINDOW_INTERVAL"), std::nullopt);
  EXPECT_FALSE(machine.preferenceDomain.Values().contains("MAIN_WINDOW_INTERVAL"));
  EXPECT_EQ(Cell("MAIN_WINDOW_INTERVAL").data(), "2000");
  EXPECT_EQ(Text("mainWindowIntervalText"), "every 2 seconds");
  Table().table().selectRow(Cell("MEM_GRAPH_DRAW_VSZ").row());
  EXPECT_NE(Note().find("no number"), std::string::npos);
  Reset("MEM_GRAPH_DRAW_VSZ");
  EXPECT_FALSE(machine.preferenceDomain.Values().contains("MEM_GRAPH_DRAW_VSZ"));
  Reset("LOGGING_WINDOW");
  EXPECT_EQ(GetPrefArrayCount("LOGGING_WINDOW"), 1) << "the program's own records are left to it";
}

TEST_F(AllSettingsTest, FiltersByAnythingFollowsOthersAndClosesWithThePanel) {
  const QPointer<AllSettings> window = &OpenTable();
  EXPECT_FALSE(window->windowTitle().startsWith("Process"));
  Find<QPushButton>("allSettingsButton").click();
  EXPECT_EQ(Window().findChildren<AllSettings*>().size(), 1);
  auto* filter = window->findChild<QLineEdit*>("filterField");
  const int all = window->table().model()->rowCount();
  filter->setText("paging LIGHT");
  EXPECT_GE(window->table().model()->rowCount(), 2);
  EXPECT_LT(window->table().model()->rowCount(), 6);
  EXPECT_EQ(window->table().model()->index(0, 0).data(), "Paging light: time between flashes");
  filter->setText("MEM_graph");
  EXPECT_EQ(window->table().model()->rowCount(), 1) << "by its key, too";
  filter->clear();
  EXPECT_EQ(window->table().model()->rowCount(), all);
  SetPrefInt("MAIN_WINDOW_INTERVAL", 4321);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Cell("MAIN_WINDOW_INTERVAL").data() == "4321"; }));
  Close();
  EXPECT_TRUE(window.isNull());
}

}  // namespace
}  // namespace lurkwell
