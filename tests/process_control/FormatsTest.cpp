#include <stdlib.h>
#include <time.h>

#include <cstring>
#include <limits>

#include "channel/DaemonInstallation.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/DisplayFormats.h"
#include "process_control/SimulatedControl.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

class FormatsTest : public SimulatedControl {
 protected:
  template <typename Integer>
  static std::string Memory(Integer value, bool withSign = false, std::int32_t maxlen = 32) {
    char text[64];
    std::memset(text, '#', sizeof text);
    const auto length = FormatMemoryString(value, text, maxlen, withSign);
    EXPECT_EQ(static_cast<std::size_t>(length), std::strlen(text));
    EXPECT_EQ(text[maxlen], '#');
    return text;
  }
  static std::string Date(std::int64_t seconds, std::int32_t width, std::int32_t microseconds = 5) {
    char text[64];
    FormatDateString(text, sizeof text, seconds, microseconds, width);
    return text;
  }
  static void PreferMemory(std::int32_t unit) {
    SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", unit);
  }
  static void PreferDate(std::int32_t format) {
    SetPrefInt("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT", format);
  }
};

TEST_F(FormatsTest, MemoryByMagnitude) {
  std::string texts;
  for (const std::int32_t value :
       {0, 5119, -5119, 5120, -5120, 5631, 5632, 1048575, -1048575, 1048576, -1048576, 1073741823,
        -1073741823, 1073741824, kHighest, kLowest})
    texts += Memory(value) + "|";
  EXPECT_EQ(texts,
            "0|5119|-5119|5 K|-4 K|5 K|6 K|1024 K|-1023 K|1.0 M|-1.0 M|1024.0 M|-1024.0 M|"
            "1.00 G|2.00 G|-2.00 G|");
  EXPECT_EQ(Memory(-2048, true), "- 2048");
  EXPECT_EQ(Memory(0, true), "  0");
  EXPECT_EQ(Memory(3 << 20, true), "+ 3.0 M");
  EXPECT_EQ(Memory(kLowest, true), "- -2.00 G") << "it has no negative";
}

TEST_F(FormatsTest, MemoryInThePreferredUnit) {
  PreferMemory(1);
  EXPECT_EQ(Memory(kHighest), "2147483647");
  EXPECT_EQ(Memory(kLowest, true, 21), "- -2147483648");
  PreferMemory(2);
  EXPECT_EQ(Memory(100), "0 K");
  EXPECT_EQ(Memory(kHighest), "2097152 K");
  PreferMemory(3);
  EXPECT_EQ(Memory(52429), "0.1 M") << "single precision rounds up where double does not";
  PreferMemory(4);
  EXPECT_EQ(Memory(5), "0.00 G");
  for (const std::int32_t none : {-1, 5, 77}) {
    PreferMemory(none);
    EXPECT_EQ(Memory(1048576), "1.0 M");
  }
}

TEST_F(FormatsTest, LargerMemoryContinuesWhereTheSmallerEnds) {
  std::uint32_t random = 1;
  for (std::int32_t unit = 0; unit <= 4; ++unit) {
    PreferMemory(unit);
    for (int i = 0; i < 20'000; ++i) {
      random = random * 1664525 + 1013904223;
      const auto value = static_cast<std::int32_t>(random) >> (i % 32);
      ASSERT_EQ(Memory(value, i % 2), Memory(std::int64_t{value}, i % 2)) << value;
    }
    EXPECT_EQ(Memory(std::int64_t{kLowest}, true), Memory(kLowest, true));
  }
  PreferMemory(0);
  EXPECT_EQ(Memory(std::int64_t{1} << 32), "4.00 G");
  EXPECT_EQ(Memory(-(std::int64_t{1} << 33), true), "- 8.00 G");
  PreferMemory(1);
  EXPECT_EQ(Memory(std::numeric_limits<std::int64_t>::min(), true, 21), "- -92233720368547758")
      << "cut to the buffer";
  PreferMemory(2);
  EXPECT_EQ(Memory(std::numeric_limits<std::int64_t>::max()), "9007199254740991 K");
}

TEST_F(FormatsTest, DatesByWidth) {
  ::setenv("TZ", "UTC", 1);
  ::tzset();
  constexpr std::int64_t kTime = 1'000'000'000;  // Sun Sep  9 01:46:40 2001
  for (const auto& [width, text] : std::initializer_list<std::pair<std::int32_t, const char*>>{
           {-1, "Sun Sep  9 01:46:40 2001\n"},
           {0, "Sun Sep  9 01:46:40 2001\n"},
           {1, "0"},
           {8, "01:46:40"},
           {15, "Sep  9 01:46:40"},
           {16, "Sep  9 01:46:40 "},
           {20, "Sep  9 01:46:40 2001"},
           {21, " Sep  9 01:46:40 2001"},
           {24, "Sun Sep  9 01:46:40 2001"},
           {25, "Sun Sep  9 01:46:40 2001"},
           {300, "Sun Sep  9 01:46:40 2001"}}) {
    EXPECT_EQ(Date(kTime, width), text) << width;
  }
  EXPECT_EQ(Date(0, 24), "Thu Jan  1 00:00:00 1970");
  char text[64];
  std::time_t leap = 951782400;
  EXPECT_EQ(Date(leap, 0), ::ctime_r(&leap, text));
  FormatDateString(text, 26, 253'402'300'800, 0, 0);
  EXPECT_STREQ(text, "Sat Jan  1 00:00:00 10000") << "no room for the newline";
}

TEST_F(FormatsTest, DatesAsNumbers) {
  PreferDate(1);
  EXPECT_EQ(Date(1234567890, 16), "1234567890");
  EXPECT_EQ(Date(1234567890, 0), "1234567890");
  EXPECT_EQ(Date(-5, 2), "-5");
  PreferDate(2);
  EXPECT_EQ(Date(1234567890, 17, 120000), "1234567890.120000");
  EXPECT_EQ(Date(1234567890, 16, 120000), "1234567890");
  EXPECT_EQ(Date(1234567890, 0, 7), "1234567890.000007");
  EXPECT_EQ(Date(1234567890, 4), "1234567890") << "a part of it would be another time";
  PreferDate(7);
  testing::internal::CaptureStderr();
  EXPECT_EQ(Date(0, 8).size(), 8u);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "BAD preferred date format preference! 7\n");
}

TEST_F(FormatsTest, TooSmallBuffersAreErrors) {
  char text[32];
  EXPECT_DEATH(FormatMemoryString(1, text, 20, false),
               "ProcessActions:[0-9]+: failed assertion `maxlen > 20'");
  EXPECT_EQ(FormatMemoryString(1, text, 21, false), 1);
  EXPECT_DEATH(FormatDateString(text, 25, 1, 1, 1),
               "ProcessActions:[0-9]+: failed assertion `maxlen >= 26'");
  FormatDateString(text, 26, 1, 1, 8);
  EXPECT_EQ(machine.preferenceDomain.Values().size(), 2u) << "defaults are written";
}

TEST_F(FormatsTest, QuotesAreEscapedInPlace) {
  for (const auto& [plain, escaped] : std::initializer_list<std::pair<const char*, const char*>>{
           {"", ""}, {"/a b/c", "/a b/c"}, {"\"", "\\\""}, {"a\"\"b\\\"", "a\\\"\\\"b\\\\\""}}) {
    char text[32];
    std::strcpy(text, plain);
    EscapePathQuotes(text);
    EXPECT_STREQ(text, escaped);
  }
}

}  // namespace
}  // namespace lurkwell
