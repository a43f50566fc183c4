#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>

#include "PreferenceTestSupport.h"
#include "platform/simulated/SimulatedServices.h"
#include "preferences/MacRoman.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

// Every contract holds in memory and on a real file.
enum class Backing { kMemory, kFile };

class PreferencesRetrieval : public testing::TestWithParam<Backing> {
 protected:
  PreferencesRetrieval() {
    if (GetParam() == Backing::kMemory)
      mDomain = std::make_unique<SimulatedPreferenceDomain>();
    else
      mDomain = std::make_unique<PropertyListDomain>(mFolder.Path());
    mMachine = std::make_unique<PreferenceMachine>(*mDomain);
  }

  PreferenceFolder mFolder;
  std::unique_ptr<PreferenceDomain> mDomain;
  std::unique_ptr<PreferenceMachine> mMachine;
};

INSTANTIATE_TEST_SUITE_P(On, PreferencesRetrieval,
                         testing::Values(Backing::kMemory, Backing::kFile),
                         [](const auto& backing) {
                           return backing.param == Backing::kMemory ? "Memory" : "File";
                         });

TEST_P(PreferencesRetrieval, ADefaultIsReturnedOnlyByBeingStored) {
  std::uint8_t found = 7;
  EXPECT_EQ(GetPrefInt("INTERVAL", &found, false, 5), 0);
  EXPECT_EQ(found, 0);
  EXPECT_EQ(GetPrefInt("INTERVAL", &found, true, 2000), 2000);
  EXPECT_EQ(found, 1);
  EXPECT_EQ(GetPrefInt("INTERVAL", nullptr, false, 0), 2000);

  EXPECT_EQ(GetPrefDouble("ALPHA", &found, false, 5.0), 0.0);
  EXPECT_EQ(found, 0);
  EXPECT_EQ(GetPrefDouble("ALPHA", &found, true, 0.7), 0.7);
  EXPECT_EQ(found, 1);

  char buffer[8] = "before";
  GetPrefString("NAME", buffer, sizeof buffer, &found, false, "x");
  EXPECT_EQ(found, 0);
  EXPECT_STREQ(buffer, "before");
  GetPrefString("NAME", buffer, sizeof buffer, &found, true, "default");
  EXPECT_EQ(found, 1);
  EXPECT_STREQ(buffer, "default");
}

TEST_P(PreferencesRetrieval, WhatDoesNotFitIsAFailedConversionAndNothingElse) {
  const struct {
    PreferenceValue stored;
    std::int32_t integer;
    bool integerFound;
    double real;
    bool realFound;
  } cases[] = {
      {std::int64_t{-2147483648}, INT32_MIN, true, -2147483648.0, true},
      {std::int64_t{2147483648}, 0, false, 2147483648.0, true},
      {std::int64_t{-2147483649}, 0, false, -2147483649.0, true},
      {-2.9, -2, true, -2.9, true},
      {2147483647.5, INT32_MAX, true, 2147483647.5, true},
      {2147483648.0, 0, false, 2147483648.0, true},
      {std::numeric_limits<double>::infinity(), 0, false, std::numeric_limits<double>::infinity(),
       true},
      {std::string("12"), 0, false, 0.0, false},
      {PreferenceArray{{}}, 0, false, 0.0, false},
  };
  for (const auto& example : cases) {
    mDomain->SetValue("K", example.stored);
    std::uint8_t found = 7;
    EXPECT_EQ(GetPrefInt("K", &found, true, 9), example.integer);
    EXPECT_EQ(found, example.integerFound);
    EXPECT_EQ(GetPrefDouble("K", &found, true, 9.0), example.real);
    EXPECT_EQ(found, example.realFound);
    EXPECT_EQ(*mDomain->Value("K"), example.stored);
  }
  mDomain->SetValue("K", std::nan(""));
  std::uint8_t found = 7;
  EXPECT_EQ(GetPrefInt("K", &found, false, 0), 0);
  EXPECT_EQ(found, 0);
}

TEST_P(PreferencesRetrieval, AStringFitsWithItsTerminatorOrIsNotReturned) {
  char buffer[5] = "????";
  std::uint8_t found = 7;
  SetPrefString("S", "1234");
  GetPrefString("S", buffer, 5, &found, false, "");
  EXPECT_EQ(found, 1);
  EXPECT_STREQ(buffer, "1234");
  for (const char* unfit : {"12345", "\x8A\x8A\x8A\x8A\x8A"}) {
    SetPrefString("S", unfit);
    GetPrefString("S", buffer, 5, &found, false, "");
    EXPECT_EQ(found, 0);
    EXPECT_STREQ(buffer, "1234");
  }
  SetPrefString("S", "");
  GetPrefString("S", buffer, 0, &found, false, "");
  EXPECT_EQ(found, 0);
  GetPrefString("S", buffer, 1, &found, false, "");
  EXPECT_EQ(found, 1);
  EXPECT_STREQ(buffer, "");
  mDomain->SetValue("S", std::string("\xE4\xB8\xAD"));  // no such character in Mac Roman
  GetPrefString("S", buffer, 5, &found, false, "");
  EXPECT_EQ(found, 0);
}

TEST_P(PreferencesRetrieval, ArraysGrowByOneAtTheirEndAndCloseUpAfterARemoval) {
  EXPECT_EQ(GetPrefArrayCount("A"), 0);
  for (std::int32_t i = 0; i < 3; ++i) SetPrefArrayInt("A", i, "ID", 10 + i);
  SetPrefArrayString("A", 1, "NAME", "one");
  SetPrefArrayDouble("A", 2, "WIDTH", 2.5);
  EnsureArrayExists("A");
  EnsureArrayItemExists("A", 2);
  ASSERT_EQ(GetPrefArrayCount("A"), 3);

  RemovePrefArrayElement("A", 0);
  ASSERT_EQ(GetPrefArrayCount("A"), 2);
  EXPECT_EQ(GetPrefArrayInt("A", 0, "ID", false, 0), 11);
  EXPECT_EQ(GetPrefArrayInt("A", 1, "ID", false, 0), 12);
  EXPECT_EQ(GetPrefArrayDouble("A", 1, "WIDTH", false, 0), 2.5);
  char name[64] = "";
  GetPrefArrayString("A", 0, "NAME", name, sizeof name, false, "");
  EXPECT_STREQ(name, "one");

  EXPECT_EQ(GetPrefArrayInt("A", 0, "ABSENT", false, 4), 0);
  EXPECT_EQ(GetPrefArrayInt("A", 0, "ABSENT", true, 4), 4);
  EXPECT_EQ(GetPrefArrayInt("A", 0, "ABSENT", false, 0), 4);
  EXPECT_EQ(GetPrefArrayDouble("A", 0, "ABSENT_REAL", true, 0.5), 0.5);
  EXPECT_TRUE(IsPrefArrayValuePresent("A", 0, "ABSENT_REAL"));
  EXPECT_FALSE(IsPrefArrayValuePresent("A", 1, "ABSENT_REAL"));
  EXPECT_FALSE(IsPrefArrayValuePresent("A", 2, "ID"));

  const PrefArrayField fields[] = {{"ID", 7}, {"WIDTH", 3.5}, {"NAME", "all"}};
  SetPrefArrayFields("A", 1, fields);
  SetPrefArrayFields("A", 2, fields);
  ASSERT_EQ(GetPrefArrayCount("A"), 3);
  for (const std::int32_t index : {1, 2}) {
    EXPECT_EQ(GetPrefArrayInt("A", index, "ID", false, 0), 7);
    EXPECT_EQ(GetPrefArrayDouble("A", index, "WIDTH", false, 0), 3.5);
    GetPrefArrayString("A", index, "NAME", name, sizeof name, false, "");
    EXPECT_STREQ(name, "all");
  }
  EXPECT_EQ(GetPrefArrayInt("A", 0, "ID", false, 0), 11);
}

TEST_P(PreferencesRetrieval, AnArrayTakesThePlaceOfAValueThatIsNone) {
  SetPrefInt("A", 1);
  EXPECT_EQ(GetPrefArrayCount("A"), 0);
  SetPrefArrayInt("A", 0, "ID", 5);
  EXPECT_EQ(GetPrefArrayInt("A", 0, "ID", false, 0), 5);
  SetPrefString("A", "scalar again");
  EnsureArrayExists("A");
  EXPECT_EQ(*mDomain->Value("A"), PreferenceValue(PreferenceArray{}));
  SetPrefString("A", "and again");
  EnsureArrayItemExists("A", 0);
  EXPECT_EQ(GetPrefArrayCount("A"), 1);
}

TEST_P(PreferencesRetrieval, KeysAndTextsAreMacRoman) {
  char all[256];
  for (int i = 0; i < 255; ++i) all[i] = static_cast<char>(i + 1);
  all[255] = '\0';
  SetPrefString(
      "Gr\x9A\xA7"
      "e",
      all);
  char back[256] = "";
  GetPrefString(
      "Gr\x9A\xA7"
      "e",
      back, sizeof back, nullptr, false, "");
  EXPECT_STREQ(back, all);
  ASSERT_NE(mDomain->Value("Größe"), nullptr);
  EXPECT_EQ(Utf8FromMacRoman("\x80\xDB\xF0\xFF\xDE"), "Ä€\uF8FFˇﬁ");
  for (const char* malformed : {"\xC3", "\xC0\x80", "\xE2\x82", "\x80", "\xF0\x9F\x98\x80"})
    EXPECT_FALSE(MacRomanFromUtf8(malformed, back, sizeof back)) << malformed;
}

TEST_P(PreferencesRetrieval, BrokenPreconditionsAreFatal) {
  SetPrefArrayInt("ONE", 0, "ID", 1);
  char buffer[8];
  const struct {
    const char* condition;
    std::function<void()> call;
  } cases[] = {
      {"prefKey != NULL", [] { SetPrefInt(nullptr, 1); }},
      {"prefValue != NULL", [] { SetPrefString("K", nullptr); }},
      {"arrayKeyRef != NULL", [] { GetPrefArrayCount(nullptr); }},
      {"index >= 0", [] { RemovePrefArrayElement("ONE", -1); }},
      {"index < count", [] { RemovePrefArrayElement("ONE", 1); }},
      {"(index >= 0) && (index <= count)", [] { SetPrefArrayInt("ONE", 2, "ID", 1); }},
      {"(index >= 0) && (index <= count)", [] { SetPrefArrayFields("ONE", 2, {}); }},
      {"(index >= 0) && (index < count)", [] { GetPrefArrayInt("ONE", 1, "ID", true, 1); }},
      {"dictPrefKey != NULL", [] { SetPrefArrayInt("ONE", 0, nullptr, 1); }},
      {"val != NULL", [] { GetPrefArrayDouble("ONE", 0, "ABSENT", false, 1); }},
      {"val != NULL",
       [&] { GetPrefArrayString("ONE", 0, "ABSENT", buffer, sizeof buffer, false, ""); }},
  };
  for (const auto& example : cases)
    EXPECT_EXIT(example.call(), testing::KilledBySignal(SIGABRT),
                testing::AllOf(testing::StartsWith("PreferencesRetrieval:"),
                               testing::HasSubstr(": failed assertion `" +
                                                  std::string(example.condition) + "'\n")));
}

TEST(PreferencesRetrievalOnDamagedValues, NoCallThatAsksFirstIsFatal) {
  std::mt19937 random(20260401);
  const char* const kinds[] = {
      "<integer>0</integer>",
      "<integer>-1</integer>",
      "<integer>2147483648</integer>",
      "<integer>99999999999999999999</integer>",
      "<real>nan</real>",
      "<real>-1e308</real>",
      "<real>x</real>",
      "<string>\xC3\xA9\xFF</string>",
      "<string/>",
      "<true/>",
      "<data>AAEC</data>",
      "<date>2020-01-01T00:00:00Z</date>",
      "<dict><key>a</key><array/></dict>",
      "<array/>",
      "<array><integer>1</integer><dict/><array/></array>",
      "<array><dict><key>F</key><real>3</real></dict><dict><key>F</key><date>2020-01-01T00:00:00Z"
      "</date></dict><dict><key>F</key><string>x</string></dict></array>"};
  for (int round = 0; round < 1000; ++round) {
    const PreferenceFolder folder;
    std::string entries;
    for (const char* key : {"K0", "K1", "K2", "K3"})
      entries += std::string("<key>") + key + "</key>" + kinds[random() % std::size(kinds)];
    WriteFile(folder.PreferenceFile(), PropertyList(entries));
    PropertyListDomain domain(folder.Path());
    const PreferenceMachine machine(domain);
    for (const char* key : {"K0", "K1", "K2", "K3"}) {
      char buffer[16];
      for (std::int32_t i = 0; i < GetPrefArrayCount(key); ++i) {
        GetPrefArrayInt(key, i, "F", false, 1);
        if (!IsPrefArrayValuePresent(key, i, "F")) continue;
        GetPrefArrayDouble(key, i, "F", false, 1);
        GetPrefArrayString(key, i, "F", buffer, sizeof buffer, false, "");
      }
      GetPrefInt(key, nullptr, true, 1);
      GetPrefDouble(key, nullptr, true, 1);
      GetPrefString(key, buffer, sizeof buffer, nullptr, true, "");
      if (random() % 8 == 0) SetPrefArrayInt(key, GetPrefArrayCount(key), "F", 1);
    }
    ASSERT_EQ(folder.CountOf("damaged"), 0);
  }
}

}  // namespace
}  // namespace lurkwell
