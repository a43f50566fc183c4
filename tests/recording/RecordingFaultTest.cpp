// A recorder that is killed and a disk that is full lose the last beats at most.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <random>
#include <thread>

#include "BeatSource.h"
#include "RecordedMachine.h"
#include "support/Child.h"

namespace lurkwell {
namespace {

using testing::HasSubstr;

/// Reads every beat; their number, or 0 after a complaint.
std::uint64_t ReadAll(const std::string& path) {
  const auto recording = OpenRecording(path);
  if (recording == nullptr) return 0;
  std::uint64_t count = 0;
  RecordingPlayer player(OpenRecording(path));
  for (; player.Next(); ++count) EXPECT_EQ(player.Processes().size(), 100u);
  EXPECT_EQ(player.Header().sequence, recording->Minutes().back().lastSequence);
  return count;
}

TEST(RecordingFaultTest, AKilledRecorderLosesNothingThatItHasWritten) {
  const TemporaryFolder folder(PlaceInMemory());
  std::mt19937 random(5);
  std::uint64_t all = 0;
  for (int round = 0; round < 30; ++round) {
    const std::string path = folder / (round < 10 ? "new" + std::to_string(round) : "one");
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t child = Fork([&] {
      BeatSource source(path);
      if (!source.writer) return 1;
      for (std::uint64_t count = 1;; ++count) {
        source.Beat();
        if (::write(pipe[1], &count, sizeof count) != sizeof count) return 2;
      }
    });
    ::close(pipe[1]);
    std::uint64_t told = 0;
    // However slow the machine is at present.
    const auto enough = round < 10 ? 0 : random() % 20;
    while (told < enough && ::read(pipe[0], &told, sizeof told) == sizeof told) continue;
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 8000));
    ::kill(child, SIGKILL);
    EXPECT_EQ(WaitFor(child), -SIGKILL);
    for (std::uint64_t count = 0; ::read(pipe[0], &count, sizeof count) == sizeof count;)
      told = count;
    ::close(pipe[0]);
    if (round < 10) {
      EXPECT_TRUE(told == 0 || ReadAll(path) >= told);
      EXPECT_EQ(RefusalToRecord(path), "") << "whatever its beginning came to";
      continue;
    }
    if (told + all == 0) continue;
    const auto now = ReadAll(path);
    EXPECT_GE(now, all + told);
    // One may have been written and not told.
    EXPECT_LE(now, all + told + 1);
    all = now;
  }
  EXPECT_GT(all, 100u);
}

TEST(RecordingFaultTest, AFullDiskCostsTheBeatsOfThatTime) {
  const TemporaryFolder folder;
  const auto complaint = RunForked([&]() -> std::string {
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("disk", folder.Path().c_str(), "tmpfs", 0, "size=8m,mode=700") != 0)
      return "no disk";
    folder.Write("filler", std::string(5 << 20, 'x'));
    BeatSource source(folder / "full");
    testing::internal::CaptureStderr();
    int beats = 0;
    for (; beats < 1000 && source.writer->Progress().trouble.empty(); ++beats) source.Beat();
    for (int i = 0; i < 40; ++i, ++beats) source.Beat();
    const auto said = testing::internal::GetCapturedStderr();
    const auto full = source.writer->Progress();
    if (full.written < 20 || full.lost < 30 || said.find("cannot record: ") != 10)
      return "said: " + said;
    if (ReadAll(folder / "full") != full.written) return "not all is there while the disk is full";
    std::filesystem::remove(folder / "filler");
    testing::internal::CaptureStderr();
    for (int i = 0; i < 70; ++i, ++beats) source.Beat();
    const auto later = testing::internal::GetCapturedStderr();
    const auto done = source.writer->Progress();
    if (!done.trouble.empty() || done.lost != full.lost) return "does not go on: " + done.trouble;
    if (later.find("lurkwell: recording goes on; ") != 0) return "said then: " + later;
    if (ReadAll(folder / "full") != done.written) return "not all is there";
    std::uint64_t told = 0;
    BeatHeader before;
    for (RecordingPlayer player(OpenRecording(folder / "full")); player.Next();) {
      const auto& header = player.Header();
      told += header.lost;
      const auto inGap = (before.wall + header.wall) / 2;
      if (header.lost > 10 && OpenRecording(folder / "full")->GoToTime(inGap).find("nothing") != 0)
        return "the gap is hidden";
      before = header;
    }
    if (told != done.lost || done.written + done.lost != static_cast<std::uint64_t>(beats))
      return "what was lost is not marked";
    return "";
  });
  EXPECT_EQ(complaint, "");
}

}  // namespace
}  // namespace lurkwell
