#include <gtest/gtest.h>

#include <tuple>

#include "platform/ProcStat.h"
#include "platform/StatText.h"
#include "platform/linux/NameReader.h"

namespace lurkwell {
namespace {

TEST(ProcStat, RefusesWhatIsCutOrOutOfRange) {
  const std::string whole = StatText{12, "a) R 1 (b", 'S', 1, -51, -20, 34567}.Text();
  const auto stat = ParseProcStat(whole);
  ASSERT_TRUE(stat);
  EXPECT_EQ(std::tie(stat->pid, stat->name, stat->state, stat->parentPid),
            std::make_tuple(12, "a) R 1 (b", 'S', 1));
  EXPECT_EQ(std::tie(stat->priority, stat->nice, stat->startStamp),
            std::make_tuple(-51, -20, 34567u));
  // From the beginning of the start stamp on the numbers that are asked for are there, if shorter.
  const auto start = whole.find("34567");
  for (std::size_t length = 0; length <= start; ++length) {
    EXPECT_FALSE(ParseProcStat(whole.substr(0, length))) << length;
  }
  for (const auto& [pid, parent] : {std::pair<std::int64_t, std::int64_t>{0, 1},
                                    {-5, 1},
                                    {2147483648, 1},
                                    {5, -1},
                                    {5, 4294967296}}) {
    EXPECT_FALSE(ParseProcStat(StatText{.pid = pid, .parentPid = parent}.Text())) << pid;
  }
  EXPECT_FALSE(ParseProcStat("7 (x)S 1 2 3"));
  EXPECT_FALSE(ParseProcStat(") 7 (x"));
  EXPECT_FALSE(ParsePid("007"));
  EXPECT_FALSE(ParsePid("+7"));
  EXPECT_FALSE(ParsePid("7 "));
}

TEST(CommandName, IsCompletedOnlyByWhatBeginsWithIt) {
  using namespace std::string_view_literals;
  constexpr auto kName = "lkw_helper_daem"sv;
  EXPECT_EQ(FollowingCharacter(kName, "/usr/lib/lkw_helper_daemon\0-x/lkw_helper_daemY"sv, ""),
            'o');
  EXPECT_EQ(FollowingCharacter(kName, "lkw_helper_daemX", "/x/lkw_helper_daemon"), 'X');
  EXPECT_EQ(FollowingCharacter(kName, "", "/x/lkw_helper_daemon (deleted)"), 'o');
  EXPECT_EQ(FollowingCharacter(kName, "", "/x/lkw_helper_daem (deleted)"), '\0');
  EXPECT_EQ(FollowingCharacter(kName, "lkw_helper_daem", "/bin/lkw_helper_daem"), '\0');
  EXPECT_EQ(FollowingCharacter(kName, "python3\0lkw_helper_daemon"sv, "/usr/bin/python3"), '\0');
}

}  // namespace
}  // namespace lurkwell
