// The table of settings, row by row: each can be shown, explained and stored as it says.
#include <QSet>
#include <cmath>

#include "preferences/Settings.h"
#include "preferences_window/PanelTest.h"
#include "preferences_window/SettingsModel.h"

namespace lurkwell {
namespace {

TEST(SettingTableTest, EachRowMakesSense) {
  QSet<QString> keys, titles, meanings, controls;
  const auto isNew = [](QSet<QString>& seen, const QString& text) {
    const bool isThere = text.isEmpty() || seen.contains(text);
    seen.insert(text);
    return !isThere;
  };
  for (const auto& setting : kSettings) {
    EXPECT_TRUE(isNew(keys, setting.key)) << setting.key;
    EXPECT_TRUE(isNew(titles, TitleOf(setting))) << setting.key;
    EXPECT_LT(TitleOf(setting).size(), 60) << setting.key;
    EXPECT_TRUE(isNew(meanings, MeaningOf(setting))) << setting.key;
    EXPECT_TRUE(setting.control == nullptr || isNew(controls, setting.control)) << setting.key;
    if (!setting.HasDefault()) continue;
    EXPECT_GE(setting.defaultValue, setting.least) << setting.key;
    EXPECT_LE(setting.defaultValue, setting.most) << setting.key;
    const bool isWhole = setting.defaultValue == std::trunc(setting.defaultValue);
    EXPECT_TRUE(isWhole || !setting.IsInteger()) << setting.key;
  }
}

TEST_F(PanelTest, AMissingSettingCountsAsItsDefaultAndADamagedOneAsNothing) {
  EXPECT_EQ(StoredInt("MAIN_WINDOW_INTERVAL"), std::nullopt);
  EXPECT_TRUE(machine.preferenceDomain.Values().empty()) << "asking stores nothing";
  EXPECT_EQ(ReadInt("MAIN_WINDOW_INTERVAL"), 2000);
  EXPECT_EQ(Stored("MAIN_WINDOW_INTERVAL"), 2000) << "what counts is shown in the file";
  EXPECT_EQ(ReadReal("QUINT_FULLSCREEN_WINDOW_ALPHA"), 0.8);
  EXPECT_TRUE(ReadSwitch("LOG_WINDOW_ACTIVE_TIME_BOOL"));
  EXPECT_EQ(StoredReal("QUINT_TARVIK_FACTOR"), std::nullopt) << "there is none by itself";
  SetPrefString("MAIN_WINDOW_INTERVAL", "often");
  EXPECT_EQ(StoredInt("MAIN_WINDOW_INTERVAL"), std::nullopt);
  EXPECT_EQ(ReadInt("MAIN_WINDOW_INTERVAL"), 0);
  StoreInt("MAIN_WINDOW_INTERVAL", 7);
  EXPECT_EQ(ReadInt("MAIN_WINDOW_INTERVAL"), 7)
      << "what was stored by hand is for its reader to fit";
  char text[8] = "as was";
  EXPECT_FALSE(ReadText("MAIN_WINDOW_FRAME", text, sizeof text));
  StoreText("MAIN_WINDOW_FRAME", "too long for it");
  EXPECT_FALSE(ReadText("MAIN_WINDOW_FRAME", text, sizeof text));
  EXPECT_STREQ(text, "as was");
}

}  // namespace
}  // namespace lurkwell
