#include <gtest/gtest.h>

#include "platform/StatText.h"
#include "platform/linux/CommandName.h"
#include "platform/linux/ProcStat.h"

namespace lurkwell {
namespace {

TEST(ProcStat, FindsTheFieldsBehindAnyName) {
  using namespace std::string_literals;
  const std::string names[] = {"bash",
                               "",
                               ")",
                               "a) R 1 (b",
                               ") S 1 1 1 0 -1 4194560",
                               "line\nline",
                               "\x1b[31mred",
                               "\xe2\x80\xae txt.exe",
                               "\xff\xfe\xc3(",
                               "two  blanks ",
                               "kworker/u8:2-events_unbound"};
  for (const auto& name : names) {
    const auto text = StatText{4'000'000, name, 'D', 77, -51, -20, 18446744073709551615u}.Text();
    const auto stat = ParseProcStat(text);
    ASSERT_TRUE(stat) << text;
    EXPECT_EQ(stat->pid, 4'000'000);
    EXPECT_EQ(stat->name, name);
    EXPECT_EQ(stat->state, 'D');
    EXPECT_EQ(stat->parentPid, 77);
    EXPECT_EQ(stat->priority, -51);
    EXPECT_EQ(stat->nice, -20);
    EXPECT_EQ(stat->startStamp, 18446744073709551615u);
  }
}

TEST(ProcStat, RefusesWhatIsCutOrOutOfRange) {
  const std::string whole = StatText{12, "a (b) c", 'S', 1, 20, 0, 34567}.Text();
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
