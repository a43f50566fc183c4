// Several running instances on one file.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "PreferenceTestSupport.h"

namespace lurkwell {
namespace {

std::string KeyOf(int writer, int number) {
  return "W" + std::to_string(writer) + "_" + std::to_string(number);
}

constexpr int kKeysOfAWriter = 20;

/// With a pause after each set; no writer waits for the lock for longer than the store does.
int WriteAll(const PreferenceFolder& folder, int writer, int sets) {
  testing::internal::CaptureStderr();
  PropertyListDomain domain(folder.Path());
  for (int number = 0; number < sets; ++number) {
    domain.SetValue(KeyOf(writer, number % kKeysOfAWriter), std::int64_t{number});
    domain.SetValue("LAST", std::int64_t{writer});
    if (!domain.Synchronize()) return 1;
    for (int earlier = std::max(0, number - kKeysOfAWriter + 1); earlier <= number; ++earlier)
      if (IntegerAt(domain, KeyOf(writer, earlier % kKeysOfAWriter)) != earlier) return 2;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return testing::internal::GetCapturedStderr().empty() ? 0 : 3;
}

TEST(PreferenceSharing, NoUpdateOfAnyWriterIsLost) {
  constexpr int kWriters = 8, kSets = 150;
  // In memory, where no disk makes them wait for each other.
  const PreferenceFolder folder(PlaceInMemory());
  std::vector<pid_t> children;
  for (int writer = 0; writer < kWriters; ++writer)
    children.push_back(Fork([&] { return WriteAll(folder, writer, kSets); }));
  for (const pid_t child : children) EXPECT_EQ(WaitFor(child, 200), 0);
  PropertyListDomain domain(folder.Path());
  for (int writer = 0; writer < kWriters; ++writer)
    for (int number = kSets - kKeysOfAWriter; number < kSets; ++number)
      EXPECT_EQ(IntegerAt(domain, KeyOf(writer, number % kKeysOfAWriter)), number) << writer;
  EXPECT_EQ(folder.CountOf(".new"), 0);
  EXPECT_EQ(folder.CountOf(".damaged-"), 0);
}

TEST(PreferenceLock, AStoppedInstanceCostsOneNoteAndNoValue) {
  const PreferenceFolder folder;
  FileLock holder(folder.PreferenceFile() + ".lock", std::chrono::seconds(0));
  ASSERT_EQ(holder.Outcome(), FileLock::State::kHeld);
  PropertyListDomain domain(folder.Path());
  testing::internal::CaptureStderr();
  for (std::int64_t number = 0; number < 500; ++number) {
    domain.SetValue("K", number);
    ASSERT_TRUE(domain.Synchronize());
  }
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
  PropertyListDomain again(folder.Path());
  EXPECT_EQ(IntegerAt(again, "K"), 499);
}

}  // namespace
}  // namespace lurkwell
