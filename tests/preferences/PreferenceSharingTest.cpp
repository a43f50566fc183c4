// Several running instances on one file.
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <fstream>
#include <thread>

#include "PreferenceTestSupport.h"

namespace lurkwell {
namespace {

std::string KeyOf(int writer, int number) {
  return "W" + std::to_string(writer) + "_" + std::to_string(number);
}

constexpr int kKeysOfAWriter = 20;

/// With a pause after each set; nobody has to wait for the lock for longer than the store does.
int WriteAll(const TemporaryFolder& folder, int writer, int sets, std::chrono::milliseconds pause) {
  testing::internal::CaptureStderr();
  PropertyListDomain domain(folder.Path());
  for (int number = 0; number < sets; ++number) {
    domain.SetValue(KeyOf(writer, number % kKeysOfAWriter), std::int64_t{number});
    domain.SetValue("LAST", std::int64_t{writer});
    if (!domain.Synchronize()) return 1;
    for (int earlier = std::max(0, number - kKeysOfAWriter + 1); earlier <= number; ++earlier)
      if (IntegerAt(domain, KeyOf(writer, earlier % kKeysOfAWriter)) != earlier) return 2;
    std::this_thread::sleep_for(pause);
  }
  return testing::internal::GetCapturedStderr().empty() ? 0 : 3;
}

class PreferenceSharing : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Writers, PreferenceSharing, testing::Values(2, 8));

TEST_P(PreferenceSharing, NoUpdateOfAnyWriterIsLost) {
  const int writers = GetParam();
  const bool isCrowd = writers > 2;
  const int sets = isCrowd ? 150 : 2500;
  const std::chrono::milliseconds pause(isCrowd ? 20 : 0);
  // In memory, where no disk makes them wait for each other.
  const std::filesystem::path memory = "/dev/shm";
  const TemporaryFolder folder(
      std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path());
  std::vector<pid_t> children;
  for (int writer = 0; writer < writers; ++writer)
    children.push_back(Fork([&] { return WriteAll(folder, writer, sets, pause); }));
  for (const pid_t child : children) EXPECT_EQ(ExitOf(child), 0);
  PropertyListDomain domain(folder.Path());
  for (int writer = 0; writer < writers; ++writer)
    for (int number = sets - kKeysOfAWriter; number < sets; ++number)
      EXPECT_EQ(IntegerAt(domain, KeyOf(writer, number % kKeysOfAWriter)), number) << writer;
  EXPECT_EQ(folder.CountOf(".new"), 0);
  EXPECT_EQ(folder.CountOf(".damaged-"), 0);
}

TEST(PreferenceLock, AStoppedInstanceCostsOneNoteAndNoValue) {
  const TemporaryFolder folder;
  FileLock holder(folder.PreferenceFile().string() + ".lock", std::chrono::seconds(0));
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

TEST(PreferenceLock, AKilledInstanceLeavesNoLockBehind) {
  const TemporaryFolder folder;
  const std::string path = folder.PreferenceFile().string() + ".lock";
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = Fork([&] {
    const FileLock lock(path, std::chrono::seconds(0));
    if (write(ready[1], "x", 1) != 1) return 1;
    pause();
    return 0;
  });
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_EQ(FileLock(path, std::chrono::milliseconds(5)).Outcome(), FileLock::State::kBusy);
  kill(child, SIGKILL);
  ExitOf(child);
  EXPECT_EQ(FileLock(path, std::chrono::seconds(0)).Outcome(), FileLock::State::kHeld);
  close(ready[0]);
  close(ready[1]);
}

}  // namespace
}  // namespace lurkwell
