// What is on the disk after the power went at any moment is what had been written, or a little
// less, and never anything else. LURKWELL_POWER_CUTS is the number of different states of each
// file.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <unordered_set>

#include "DiskStates.h"
#include "preferences/PreferenceTestSupport.h"
#include "preferences/PreferencesRetrieval.h"
#include "recording/BeatSource.h"
#include "recording/RecordedMachine.h"

namespace lurkwell {
namespace {

std::size_t WantedStates() {
  const char* wanted = std::getenv("LURKWELL_POWER_CUTS");
  return wanted != nullptr ? std::strtoul(wanted, nullptr, 10) : 600;
}

std::size_t HashOf(std::size_t made, const DiskContents& contents) {
  std::size_t hash = made;
  for (const auto& [name, bytes] : contents) {
    hash = hash * 31 + std::hash<std::string>()(name);
    hash = hash * 31 + std::hash<std::string>()(bytes);
  }
  return hash;
}

/// Looks at different states after any of the calls, as many as are wanted.
void CutThePower(const std::vector<DiskCall>& calls,
                 const std::function<void(const std::string& folder, std::uint64_t mark)>& look) {
  ASSERT_GT(calls.size(), 20u) << "nothing was logged";
  const DiskStates states(calls);
  std::mt19937 random(11);
  std::unordered_set<std::size_t> seen;
  std::size_t tries = 0;
  while (seen.size() < WantedStates()) {
    const std::size_t made = random() % (calls.size() + 1);
    ASSERT_LT(++tries, 100 * WantedStates()) << "only " << seen.size() << " states";
    const auto contents = states.At(made, random);
    if (!seen.insert(HashOf(made, contents)).second) continue;
    std::uint64_t mark = 0;
    for (std::size_t i = 0; i < made; ++i)
      if (calls[i].kind == DiskCall::Kind::kMark) mark = calls[i].at;
    const TemporaryFolder folder(PlaceInMemory());
    for (const auto& [name, bytes] : contents) WriteFile(folder / name, bytes);
    look(folder.Path(), mark);
    if (testing::Test::HasFailure()) {
      const auto kept = std::filesystem::temp_directory_path() / "lurkwell-power-cut";
      std::filesystem::copy(folder.Path(), kept,
                            std::filesystem::copy_options::recursive |
                                std::filesystem::copy_options::overwrite_existing);
      FAIL() << "after " << made << " of " << calls.size() << " calls; see " << kept;
    }
  }
  testing::Test::RecordProperty("states", std::to_string(seen.size()));
}

/// What the file has under 24 keys, a line each.
std::string Settings(PreferenceDomain& domain) {
  std::string settings;
  for (int key = 0; key < 24; ++key) {
    const auto* value = domain.Value("KEY_" + std::to_string(key));
    const auto* text = value != nullptr ? std::get_if<std::string>(value) : nullptr;
    settings += (text != nullptr ? *text : "-") + "\n";
  }
  return settings;
}

TEST(PowerCut, PreferencesAreTheOldOnesOrTheNew) {
  constexpr std::uint64_t kChanges = 150;
  std::vector<DiskCall> calls;
  std::vector<std::string> expected;
  {
    const PreferenceFolder folder;
    PropertyListDomain domain(folder.Path());
    const PreferenceMachine machine(domain);
    DiskLog log(folder.Path());
    expected.push_back(Settings(domain));
    std::mt19937 random(3);
    for (std::uint64_t change = 1; change <= kChanges; ++change) {
      const auto key = "KEY_" + std::to_string(random() % 24);
      const auto value = std::to_string(change) + std::string(random() % 400, 'x');
      SetPrefString(key.c_str(), value.c_str());
      log.Mark(change);
      expected.push_back(Settings(domain));
    }
    calls = log.Calls();
  }
  CutThePower(calls, [&](const std::string& folder, std::uint64_t mark) {
    PropertyListDomain domain(folder);
    const auto settings = Settings(domain);
    EXPECT_TRUE(settings == expected[mark] ||
                (mark + 1 < expected.size() && settings == expected[mark + 1]))
        << "change " << mark << " had returned";
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      EXPECT_EQ(entry.path().filename().string().find(".damaged-"), std::string::npos);
  });
}

/// The beats that can be read, each with what was written; -1 after anything else.
int BeatsIn(const std::string& path, std::int32_t processes) {
  const auto opened = Recording::Open(path);
  if (std::holds_alternative<std::string>(opened)) return 0;
  RecordingPlayer player(OpenRecording(path));
  int beats = 0;
  while (player.Next()) {
    if (player.Header().sequence != static_cast<std::uint64_t>(++beats)) return -1;
    if (player.Processes().size() != static_cast<std::size_t>(processes)) return -1;
    for (const auto& process : player.Processes())
      for (std::size_t i = 0; i < kNumberCount; ++i)
        if (process.numbers[i] != BeatSource::Number(2'000'000LL * beats, process.process.pid, i))
          return -1;
  }
  return beats;
}

TEST(PowerCut, ARecordingEndsEarlierAndGoesOn) {
  constexpr std::int32_t kProcesses = 6;
  constexpr int kBeats = 300;
  std::vector<DiskCall> calls;
  {
    const TemporaryFolder folder(PlaceInMemory());
    DiskLog log(folder.Path());
    BeatSource source(folder / "recording", kProcesses);
    ASSERT_TRUE(source.writer);
    for (std::uint64_t beat = 1; beat <= kBeats; ++beat) {
      source.Beat();
      log.Mark(beat);
    }
    source.writer.reset();
    calls = log.Calls();
  }
  int most = 0;
  CutThePower(calls, [&](const std::string& folder, std::uint64_t mark) {
    const auto path = folder + "/recording";
    const int beats = BeatsIn(path, kProcesses);
    EXPECT_GE(beats, 0) << "something else than was written";
    EXPECT_LE(beats, static_cast<int>(mark) + 1);
    most = std::max(most, beats);
    EXPECT_EQ(RefusalToRecord(path), "");
  });
  EXPECT_GT(most, kBeats / 2) << "nothing was looked at";
}

}  // namespace
}  // namespace lurkwell
