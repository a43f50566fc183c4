// The interval scale against its tables, written down once more as cases.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "preferences_window/PreferenceControls.h"

namespace lurkwell {
namespace {

int Milliseconds(int position) {
  return givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(position);
}
int Position(int milliseconds) {
  return givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq(milliseconds);
}
std::string Words(int milliseconds) {
  return givenMillisecondsCalcStringDescriptionForMainWindowFreq(milliseconds).toStdString();
}

/// From this position on, a hundred each: the first interval, and how much a position adds.
constexpr int kStretches[][3] = {
    {200, 1'000, 40},     {300, 5'000, 50},      {400, 10'000, 200},     {500, 30'000, 300},
    {600, 60'000, 2'400}, {700, 300'000, 3'000}, {800, 600'000, 12'000}, {900, 1'800'000, 18'000}};

int ExpectedMilliseconds(int p) {
  constexpr int kShort[] = {100, 111, 125, 142, 166, 200, 250, 333, 500, 1000};
  if (p < 200) return kShort[p / 20];
  const auto& [first, milliseconds, step] = kStretches[std::min(p / 100, 9) - 2];
  return milliseconds + (p - first) * step;
}

int ExpectedPosition(int m) {
  int position = 0;
  for (const auto& [first, milliseconds, step] : kStretches)
    if (m >= milliseconds) position = first + (m - milliseconds) / step;
  return position;
}

const std::map<int, int> kShortPositions = {{100, 0},   {111, 20}, {125, 40},  {142, 60},
                                            {166, 80},  {167, 80}, {200, 100}, {250, 120},
                                            {333, 140}, {500, 160}};

class IntervalScaleTest : public testing::Test {
 protected:
  IntervalScaleTest() { testing::internal::CaptureStderr(); }
  ~IntervalScaleTest() override { testing::internal::GetCapturedStderr(); }

  /// What was said since it was asked last.
  std::string Failures() {
    const std::string said = testing::internal::GetCapturedStderr();
    testing::internal::CaptureStderr();
    return said;
  }
  void ExpectFailure(const char* method, const char* text) {
    const std::string said = Failures();
    EXPECT_NE(said.find(method), std::string::npos) << said;
    EXPECT_NE(said.find("PreferencesUI"), std::string::npos) << said;
    EXPECT_NE(said.find(text), std::string::npos) << said;
  }
};

TEST_F(IntervalScaleTest, EveryPositionAndEveryIntervalOfTheScale) {
  for (int p = 0; p <= 1000; ++p) {
    ASSERT_EQ(Milliseconds(p), ExpectedMilliseconds(p)) << p;
    // A slider that is loaded from what it stored goes back to the beginning of its stretch, or
    // to the place of a second.
    const int again = Position(Milliseconds(p));
    ASSERT_EQ(again, p >= 200 ? p : p >= 180 ? 200 : p / 20 * 20) << p;
  }
  for (const auto& [milliseconds, position] : kShortPositions)
    EXPECT_EQ(Position(milliseconds), position) << milliseconds;
  for (int m = 1'000; m <= 3'600'000; ++m) ASSERT_EQ(Position(m), ExpectedPosition(m)) << m;
  EXPECT_EQ(Failures(), "");
}

TEST_F(IntervalScaleTest, WhatTheScaleDoesNotHaveFailsAndGoesOn) {
  constexpr const char* kLogical = "givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq";
  constexpr const char* kPhysical =
      "givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq";
  for (const int position : {-1, 1001, 100'000}) {
    EXPECT_EQ(Milliseconds(position), 0);
    ExpectFailure(kLogical, "invalid conversion to logical value");
  }
  for (int m = 100; m < 1'000; ++m) {
    if (kShortPositions.contains(m)) continue;
    ASSERT_EQ(Position(m), 1000) << m;
    ExpectFailure(kPhysical, "Bad input value");
  }
  Position(99);
  ExpectFailure(kPhysical, "invalidly small logical value input");
  Position(3'600'001);
  ExpectFailure(kPhysical, "invalidly large logical value input");
}

TEST_F(IntervalScaleTest, Words) {
  EXPECT_EQ(Words(100), "10 times per second");
  EXPECT_EQ(Words(333), "3 times per second");
  EXPECT_EQ(Words(999), "once per second");
  EXPECT_EQ(Words(1'500), "every second");
  EXPECT_EQ(Words(59'999), "every 59 seconds");
  EXPECT_EQ(Words(60'000), "every minute");
  EXPECT_EQ(Words(3'599'999), "every 59 minutes");
  EXPECT_EQ(Words(3'600'000), "every hour");
  EXPECT_EQ(Words(3'600'001), "invalid input. Can't convert");
  EXPECT_EQ(Failures(), "");
  EXPECT_EQ(Words(50), "20 times per second");
  ExpectFailure("givenMillisecondsCalcStringDescriptionForMainWindowFreq",
                "invalid (too small) millisecond input");
}

TEST_F(IntervalScaleTest, WhatAFileMayHoldIsShownWithoutFailing) {
  const std::map<int, int> nearest = {{-2'000'000'000, 0},
                                      {0, 0},
                                      {50, 0},
                                      {150, 60},
                                      {155, 80},
                                      {800, 200},
                                      {1'500, 212},
                                      {3'600'001, 1000},
                                      {2'000'000'000, 1000}};
  for (const auto& [milliseconds, position] : nearest) {
    EXPECT_EQ(NearestPosition(milliseconds), position) << milliseconds;
    EXPECT_NE(DescriptionOfStored(milliseconds), "");
  }
  EXPECT_EQ(DescriptionOfStored(150), "6 times per second");
  EXPECT_EQ(DescriptionOfStored(50), "20 times per second");
  // Nothing is served more often.
  EXPECT_EQ(DescriptionOfStored(-7), "50 times per second");
  EXPECT_EQ(DescriptionOfStored(7'200'000), "every 120 minutes");
  EXPECT_EQ(Failures(), "");
}

}  // namespace
}  // namespace lurkwell
