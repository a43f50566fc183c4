// What is recorded on the simulated machine comes back as it was shown; what is no recording, or a
// damaged one, is refused and left alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <ctime>
#include <fstream>
#include <limits>
#include <random>
#include <thread>

#include "RecordedMachine.h"
#include "recording/BeatEncoder.h"
#include "recording/Compression.h"
#include "recording/RecordingTime.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using testing::HasSubstr;

class RecordingTest : public ConsolidatorTest {
 protected:
  RecordingTest() { machine.processTable.TellFigures(true); }

  Recorder* Record(const RecorderOptions& options = {}) {
    std::string words;
    auto* recorder = Recorder::Create(path, options, words);
    EXPECT_EQ(words, "");
    if (recorder != nullptr) AddProcessInformationClient(recorder);
    mRecorder = recorder;
    return recorder;
  }

  /// Lets simulated time pass no faster than the disk can follow.
  void Run(std::int64_t milliseconds) {
    const auto step = std::min<std::int64_t>(milliseconds, 16LL * mRecorder->Interval());
    for (std::int64_t passed = 0; passed < milliseconds; passed += step) {
      machine.runLoop.RunFor(std::min(step, milliseconds - passed));
      while (mRecorder->Progress().waiting > 0) std::this_thread::yield();
    }
  }

  void Stop(Recorder* recorder) {
    RemoveProcessInformationClient(recorder);
    EXPECT_TRUE(recorder->Close(std::chrono::minutes(1)).isClosed);
  }

  /// All that is shown of the recording, a text for each of its beats.
  std::vector<std::string> Replay() {
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
    std::vector<std::string> turns;
    ReplayedMachine replayed(machine, OpenRecording(path));
    const MachineInstallation replacing(replayed.services);
    EXPECT_TRUE(replayed.player.Next());
    InitializeProcessInformationConsolidator();
    auto* client = new ShownClient(20, turns);
    AddProcessInformationClient(client);
    RequestUpdate(client);
    replayed.runLoop.Run();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
    return turns;
  }

  /// Two beats of a machine on which much happens.
  void LiveForAWhile(int round) {
    auto& table = machine.processTable;
    auto& busy = *table.Find(100);
    busy.UseCPU(30 + round);
    busy["pid_disk_read"] += 123'456'789LL * round;
    busy["pid_vsz"] = 0x30000000 + 4096LL * (round % 7);
    busy["pid_rsz"] = round % 5 == 0 ? 0 : 8192 * round;
    busy["pid_state"] = round % 2 == 0 ? 'R' : 'S';
    // One comes and goes, and its pid comes round soon.
    const std::int32_t pid = 200 + round % 3;
    if (table.Find(pid) != nullptr) {
      table.Death(pid);
    } else {
      auto& born = table.Birth(pid, "born" + std::to_string(round), 100);
      born.owner = round % 2 == 0 ? "other" : "user";
      born.texts.Set(FigureCalled("pid_owner"), born.owner);
      born.texts.Set(FigureCalled("pid_unit"), "unit" + std::to_string(round) + ".service");
      born.texts.Set(FigureCalled("pid_command_line"),
                     "/bin/born --secret " + std::to_string(round));
    }
    if (round % 4 == 0) table.Stop(100);
    if (round % 4 == 2) table.Continue(100);
    Run(4000);
  }

  Recorder* mRecorder = nullptr;
  TemporaryFolder folder;
  std::string path = folder / "test.lwr";
};

TEST_F(RecordingTest, WhatIsReadBackIsWhatWasShown) {
  machine.processTable.Birth(100, "busy");
  Start();
  std::vector<std::string> shown;
  for (const int rounds : {60, 20}) {
    auto* client = new ShownClient(2000, shown);
    auto* recorder = Record();
    AddProcessInformationClient(client);
    for (int round = 0; round < rounds; ++round) LiveForAWhile(round);
    EXPECT_GT(recorder->Counted().births, 8u);
    Stop(recorder);
    EXPECT_EQ(recorder->Progress().written, shown.size() - (rounds == 60 ? 0 : 120));
    RemoveProcessInformationClient(client);
    machine.processTable.Find(100)->SetName("later");
  }
  EXPECT_EQ(ModeOf(path), 0600u);
  const auto recording = OpenRecording(path);
  EXPECT_EQ(recording->Minutes().size(), 6u);
  ASSERT_EQ(recording->Minutes()[4].session, 2);
  const auto second = recording->Minutes()[4].firstSequence - 1;

  const auto replayed = Replay();
  ASSERT_EQ(replayed.size(), shown.size());
  EXPECT_GE(shown.size(), 160u);
  EXPECT_THAT(shown[40], HasSubstr("pid_unit=unit"));
  // Where the second one begins, rates are those since the end of the first.
  for (std::size_t i = 0; i < replayed.size(); ++i)
    ASSERT_TRUE(i == second || replayed[i] == shown[i]) << i << "\n"
                                                        << replayed[i] << "\n"
                                                        << shown[i];
}

TEST_F(RecordingTest, ArgumentsAreKeptOnDemandAlone) {
  auto& process = machine.processTable.Birth(100, "secretive");
  process.texts.Set(FigureCalled("pid_command_line"), "/bin/secretive --password=x");
  Start();
  RecorderOptions options;
  auto* recorder = Record(options);
  Run(3000);
  Stop(recorder);
  const auto commandLine = [this] {
    RecordingPlayer player(OpenRecording(path));
    while (player.Next()) {
    }
    return RecordedProcessTable(player).Describe(std::array{100}).at(0).commandLine;
  };
  EXPECT_EQ(commandLine(), "/bin/secretive");
  EXPECT_EQ(ReadFile(path).find("password"), std::string::npos);
  options.keepsArguments = true;
  recorder = Record(options);
  Run(3000);
  Stop(recorder);
  EXPECT_EQ(commandLine(), "/bin/secretive --password=x");
}

TEST_F(RecordingTest, WhatTheKernelBeganAndNobodySawIsCounted) {
  Start();
  machine.hostStatistics.machine.begunTasks = 1000;
  auto* recorder = Record();
  Run(2500);
  // Ten have begun; one is seen, with three threads.
  machine.hostStatistics.machine.begunTasks = 1010;
  machine.processTable.Birth(300, "seen")["pid_threads"] = 3;
  Run(2000);
  EXPECT_EQ(recorder->Counted().unseen, 7u);
  EXPECT_EQ(recorder->Counted().births, 1u);
  machine.processTable.Death(300);
  Run(2000);
  EXPECT_EQ(recorder->Counted().deaths, 1u);
  EXPECT_EQ(recorder->Counted().unseenProcesses, std::nullopt);
  Stop(recorder);

  // Where the kernel tells of each process, threads do not count; until it leaves some out.
  machine.hostStatistics.births = 0;
  recorder = Record();
  Run(2500);
  machine.hostStatistics.births = 5;
  machine.processTable.Birth(300, "seen")["pid_threads"] = 3;
  Run(2000);
  EXPECT_EQ(recorder->Counted().unseenProcesses, 4);
  machine.hostStatistics.births.reset();
  Run(2000);
  EXPECT_EQ(recorder->Counted().unseenProcesses, std::nullopt);
  Stop(recorder);
}

TEST_F(RecordingTest, TheOldestGoesByAgeAndBySize) {
  machine.processTable.Birth(100, "busy");
  Start();
  auto* recorder = Record({.intervalInMilliseconds = 20'000, .limits = {.days = 1}});
  Run(3 * 86'400'000LL);
  Stop(recorder);
  const auto minutes = OpenRecording(path)->Minutes();
  const auto kept = minutes.back().lastWall - minutes.front().firstWall;
  EXPECT_NEAR(static_cast<double>(kept), 86.4e9, 600e6);

  struct stat before {};
  ASSERT_EQ(::stat(path.c_str(), &before), 0);
  std::mt19937 random(1);
  for (int i = 0; i < 200; ++i)
    machine.processTable.Birth(1000 + i, "p" + std::to_string(random()))["pid_vsz"] =
        std::int64_t{static_cast<std::int32_t>(random())};
  const RecordingLimits limits{.days = 1, .bytes = before.st_size / 2};
  recorder = Record({.intervalInMilliseconds = 20'000, .limits = limits});
  Run(600'000);
  Stop(recorder);
  struct stat after {};
  ASSERT_EQ(::stat(path.c_str(), &after), 0);
  EXPECT_LE(after.st_size, limits.bytes + 65'536);
  EXPECT_GT(OpenRecording(path)->Minutes().size(), 20u);
}

TEST_F(RecordingTest, ACalendarThatJumpsChangesNoOrder) {
  Start();
  /// The machine's calendar is set back by an hour, then far ahead.
  class JumpingClock final : public Clock {
   public:
    explicit JumpingClock(Clock& own) : mOwn(own) {}
    TimeValue Now() override { return mOwn.Now(); }
    TimeValue CalendarNow() override { return mOwn.Now() + TimeValue{ahead, 0}; }
    std::int64_t ahead = 0;

   private:
    Clock& mOwn;
  } clock(machine.clock);
  Machine jumping = MachineOf(machine, clock);
  const MachineInstallation replacing(jumping);
  auto* recorder = Record();
  Run(600'000);
  for (const std::int64_t ahead : {-3600, 40 * 86'400, 0}) {
    clock.ahead = ahead;
    Run(130'000);
  }
  Stop(recorder);
  auto recording = OpenRecording(path);
  // Forty days for two minutes have taken a few minutes with them, not everything.
  EXPECT_GT(recording->Minutes().size(), 3u);
  std::uint64_t last = 0;
  for (RecordingPlayer player(OpenRecording(path)); player.Next();) {
    EXPECT_EQ(player.Header().sequence, last == 0 ? player.Header().sequence : last + 1);
    last = player.Header().sequence;
  }
  // Of two that had the time, the later one.
  const auto wall = MicrosecondsOf(machine.clock.Now()) - 60'000'000;
  ASSERT_EQ(recording->GoToTime(wall), "");
  EXPECT_LE(recording->Header().wall, wall);
  EXPECT_GT(recording->Header().wall, wall - 2'100'000);
  EXPECT_THAT(recording->GoToTime(wall - 20 * 86'400'000'000), HasSubstr("nothing was recorded"));
}

TEST_F(RecordingTest, WhatIsNoRecordingIsRefusedAndLeftAsItIs) {
  const auto refusals = [](const std::string& file) {
    const auto before = ReadFile(file);
    auto words = RefusalToRead(file) + "|" + RefusalToRecord(file);
    EXPECT_TRUE(ReadFile(file) == before) << file;
    return words;
  };
  folder.Write("text", "hello\n");
  EXPECT_THAT(refusals(folder / "text"), HasSubstr("is no recording|"));
  EXPECT_THAT(refusals(folder / "text"), HasSubstr("is no recording; it was left as it is"));
  const std::string other = folder / "other";
  ASSERT_TRUE(RefusalToRecord(other).empty());
  Database(other, Database::Use::kWrite).Run("PRAGMA application_id=1");
  EXPECT_THAT(refusals(other), HasSubstr("is no recording|"));
  Database(other, Database::Use::kWrite)
      .Run("PRAGMA application_id=0x4C6B7752; PRAGMA user_version=2");
  EXPECT_THAT(refusals(other), testing::AllOf(HasSubstr("by a later version of Lurkwell|"),
                                              HasSubstr("it was left as it is")));
  Database(other, Database::Use::kWrite).Run("PRAGMA user_version=1");
  EXPECT_EQ(RefusalToRead(other), "'" + other + "' holds no beat yet");
  EXPECT_THAT(RefusalToRead(folder.Path()), HasSubstr("it is no file"));
  EXPECT_THAT(RefusalToRecord(folder.Make("within")), HasSubstr("cannot open"));
  EXPECT_THAT(RefusalToRead(folder / "none"), HasSubstr("No such file"));
  ASSERT_EQ(::symlink("other", (folder / "link").c_str()), 0);
  EXPECT_THAT(RefusalToRecord(folder / "link"), HasSubstr("is a link"));
  const auto first = RecordingFile::Open(other, {});
  EXPECT_THAT(RefusalToRecord(other), HasSubstr("is being recorded to already"));
}

TEST_F(RecordingTest, DamageEndsNothingElse) {
  machine.processTable.Birth(100, "busy");
  Start();
  auto* recorder = Record();
  for (int round = 0; round < 150; ++round) LiveForAWhile(round);
  Stop(recorder);
  const auto whole = ReadFile(path);
  std::mt19937 random(7);
  int readable = 0;
  for (int i = 0; i < 120; ++i) {
    auto damaged = whole;
    const auto length = 1 + random() % 3000;
    const auto at = random() % (damaged.size() - length);
    for (std::size_t k = 0; k < length; ++k) damaged[at + k] = static_cast<char>(random());
    if (i % 3 == 0) damaged.resize(random() % damaged.size());
    WriteFile(path, damaged);
    if (!RefusalToRead(path).empty()) continue;
    ++readable;
    testing::internal::CaptureStderr();
    RecordingPlayer player(OpenRecording(path));
    RecordedProcessTable table(player);
    while (player.Next())
      for (const auto& entry : table.Read([](std::int32_t) { return 0; })) table.FiguresOf(entry);
    testing::internal::GetCapturedStderr();
  }
  EXPECT_GT(readable, 20);
}

TEST_F(RecordingTest, ADiskThatDoesNotTakeItIsWaitedForAsLongAsSaid) {
  Start();
  auto* recorder = Record();
  Run(2000);
  Database other(path, Database::Use::kWrite);
  ASSERT_TRUE(other.Run("BEGIN IMMEDIATE"));
  // More than wait for the disk at a time: the figures of some go with the beat after them.
  for (int beat = 0; beat < 40; ++beat) {
    machine.processTable.Birth(1000 + beat, "born", 100);
    machine.runLoop.RunFor(2000);
  }
  RemoveProcessInformationClient(recorder);
  const auto before = std::chrono::steady_clock::now();
  const auto behind = recorder->Close(std::chrono::milliseconds(20));
  EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(1));
  EXPECT_FALSE(behind.isClosed);
  EXPECT_GT(behind.waiting, 30u);
  ASSERT_TRUE(other.Run("COMMIT"));
  // The thread goes on by itself, whoever lets go of the recorder.
  while (!recorder->Progress().isClosed) std::this_thread::yield();
  const auto progress = recorder->Progress();
  EXPECT_GT(progress.lost, 0u);
  EXPECT_GE(progress.written + progress.lost, 40u);
  RecordingPlayer player(OpenRecording(path));
  std::uint64_t lost = 0;
  while (player.Next()) lost += player.Header().lost;
  EXPECT_EQ(lost, progress.lost);
  for (int beat = 0; beat < 40; ++beat) EXPECT_NE(player.Find(1000 + beat), nullptr) << beat;
}

TEST(BeatCodecTest, AnyBeatsComeBack) {
  std::mt19937_64 random(3);
  constexpr std::int64_t kExtremes[] = {
      0, -1, 4096, 10'000, INT64_MAX, INT64_MIN, INT64_MAX - 4095};
  constexpr FigureState kStates[] = {FigureState::kKnown, FigureState::kKnown, FigureState::kUnread,
                                     FigureState::kRefused, FigureState::kUncounted};
  std::map<std::int32_t, RecordedProcess> alive;
  BeatEncoder encoder;
  BeatDecoder decoder(RecordedLayout::Own());
  std::vector<std::string> payloads;
  for (int i = 0; i < 300; ++i) {
    Beat beat;
    beat.header = {static_cast<std::uint64_t>(i + 1),
                   static_cast<std::int64_t>(random()),
                   static_cast<std::int64_t>(random()),
                   random() % 3,
                   {}};
    for (auto& number : beat.header.machine) number = static_cast<std::int64_t>(random());
    for (int k = 0; k < 5; ++k) {
      const auto pid = static_cast<std::int32_t>(random() % 20);
      auto process = alive[pid];
      // A pid that passes to another process at once, too.
      const bool isNew = process.texts == nullptr || random() % 4 == 0;
      if (isNew) process = {};
      if (isNew) process.process = {pid, random()};
      const auto column = random() % kNumberCount;
      process.numberStates[column] = kStates[random() % 5];
      process.numbers[column] = process.numberStates[column] == FigureState::kKnown
                                    ? kExtremes[random() % std::size(kExtremes)]
                                    : 0;
      auto texts = process.texts == nullptr ? RecordedTexts() : *process.texts;
      const auto text = random() % kTextCount;
      process.textStates[text] = kStates[random() % 5];
      texts[text] = process.textStates[text] == FigureState::kKnown
                        ? std::string(random() % 4, static_cast<char>(random()))
                        : "";
      process.texts = std::make_shared<RecordedTexts>(texts);
      std::erase_if(beat.changed, [pid](const auto& other) { return other.process.pid == pid; });
      beat.changed.push_back(process);
      alive[pid] = process;
    }
    const auto victim = alive.begin();
    const bool isTold = std::ranges::any_of(beat.changed, [&](const auto& changed) {
      return changed.process == victim->second.process;
    });
    if (i % 5 == 0 && !isTold) {
      beat.ended.push_back(victim->second.process);
      alive.erase(victim);
    }
    payloads.push_back(encoder.Encode(std::span(&beat, 1)));
    ASSERT_TRUE(decoder.Begin(payloads.back()));
    ASSERT_TRUE(decoder.Next());
    EXPECT_EQ(decoder.Headers().back().machine, beat.header.machine);
    EXPECT_EQ(decoder.Headers().back().wall, beat.header.wall);
    const auto living = decoder.Living();
    ASSERT_EQ(living.size(), alive.size()) << i;
    for (const auto& process : living) {
      const auto& expected = alive.at(process.process.pid);
      ASSERT_EQ(process.process, expected.process);
      ASSERT_EQ(process.numberStates, expected.numberStates);
      ASSERT_EQ(process.textStates, expected.textStates);
      ASSERT_EQ(*process.texts, *expected.texts);
      for (std::size_t column = 0; column < kNumberCount; ++column) {
        if (process.numberStates[column] != FigureState::kKnown) continue;
        ASSERT_EQ(process.numbers[column], expected.numbers[column]);
      }
    }
  }
  EXPECT_EQ(Decompressed(Compressed(payloads.front())), payloads.front());
}

TEST(RecordingTimeTest, MomentsAreReadAsPeopleWriteThem) {
  ::setenv("TZ", "Europe/Berlin", 1);
  ::tzset();
  const std::int64_t last = 1'795'371'000'500'000;  // 2026-11-22 19:10:00.5
  const auto at = [last](const std::string& text) {
    const auto read = ReadMoment(text, last);
    const auto* moment = std::get_if<std::int64_t>(&read);
    return moment == nullptr ? "none" : RecordedMomentText(*moment);
  };
  EXPECT_EQ(RecordedMomentText(last), "2026-11-22 19:10:00");
  EXPECT_EQ(at("03:12"), "2026-11-22 03:12:00");
  EXPECT_EQ(at("19:10:00"), "2026-11-22 19:10:00");
  EXPECT_EQ(at("19:10:01"), "2026-11-21 19:10:01");
  EXPECT_EQ(at("2026-11-21T03:12"), "2026-11-21 03:12:00");
  EXPECT_EQ(at("2026-11-21 03:12:09"), "2026-11-21 03:12:09");
  EXPECT_EQ(at("2026-07-01T12:00:00Z"), "2026-07-01 14:00:00");
  EXPECT_EQ(at("2026-11-21T03:12+05:30"), "2026-11-20 22:42:00");
  EXPECT_EQ(at("2026-11-21"), "2026-11-21 00:00:00");
  EXPECT_EQ(at("-1h30m"), "2026-11-22 17:40:00");
  EXPECT_EQ(at("-2d"), "2026-11-20 19:10:00");
  for (const char* text : {"", "-", "-2", "-2y", "3", "25:00", "2026-13-01", "now", "03:12x",
                           "-999999999999999999h", "2026-11-21T03:12+25:00"})
    EXPECT_EQ(at(text), "none") << text;
}

}  // namespace
}  // namespace lurkwell
