// Nothing that was set and returned is lost, and no file is ever torn, wherever the program is
// killed.
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>

#include <chrono>
#include <random>
#include <thread>

#include "CallSupervisor.h"
#include "PreferenceTestSupport.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kKeys = 5;

struct Pipe {
  Pipe() {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    read = FileDescriptor(ends[0]);
    write = FileDescriptor(ends[1]);
  }
  FileDescriptor read;
  FileDescriptor write;
};

// Sets number after number until it is killed, and tells each that was set.
int CountUp(const TemporaryFolder& folder, std::int64_t number, int acknowledgements) {
  PropertyListDomain domain(folder.Path());
  for (;; ++number) {
    domain.SetValue("K" + std::to_string(number % kKeys), number);
    if (!domain.Synchronize()) return 1;
    if (write(acknowledgements, &number, sizeof number) != sizeof number) return 2;
  }
}

std::int64_t LastAcknowledged(int pipe, std::int64_t before) {
  std::array<std::int64_t, 512> numbers{};
  for (;;) {
    const ssize_t got = read(pipe, numbers.data(), sizeof numbers);
    if (got <= 0) return before;
    before = numbers[static_cast<std::size_t>(got) / sizeof(std::int64_t) - 1];
  }
}

// Ten thousand kills in four parts, which may run side by side.
class PreferenceKill : public testing::TestWithParam<unsigned> {};
INSTANTIATE_TEST_SUITE_P(Part, PreferenceKill, testing::Range(0U, 4U));

TEST_P(PreferenceKill, AtAnyInstant) {
  constexpr int kKills = 2500;
  const TemporaryFolder folder;
  std::mt19937 random(20260330 + GetParam());
  std::int64_t last = 0;
  std::int64_t inFlightSeen = 0;
  for (int round = 0; round < kKills; ++round) {
    Pipe pipe;
    const pid_t child = Fork([&] { return CountUp(folder, last + 1, pipe.write.Get()); });
    pipe.write.Close();
    // Half of the kills fall into the start, half behind the first acknowledgement.
    if (round % 2 == 0) {
      pollfd ready{pipe.read.Get(), POLLIN, 0};
      poll(&ready, 1, 10000);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 2500));
    kill(child, SIGKILL);
    ASSERT_EQ(ExitOf(child), -SIGKILL);
    last = LastAcknowledged(pipe.read.Get(), last);

    ASSERT_LE(folder.CountOf(".new"), 1);
    PropertyListDomain domain(folder.Path());
    ASSERT_EQ(folder.CountOf(".new"), 0);
    ASSERT_EQ(folder.CountOf(".damaged-"), 0);
    const std::int64_t next = last + 1;
    for (std::int64_t number = std::max<std::int64_t>(1, next - kKeys + 1); number <= last;
         ++number)
      ASSERT_EQ(IntegerAt(domain, "K" + std::to_string(number % kKeys)), number);
    const std::int64_t inFlight = IntegerAt(domain, "K" + std::to_string(next % kKeys));
    const std::int64_t old = next > kKeys ? next - kKeys : -1;
    ASSERT_TRUE(inFlight == old || inFlight == next) << inFlight;
    if (inFlight == next) {
      ++inFlightSeen;
      last = next;
    }
  }
  RecordProperty("sets", std::to_string(last));
  EXPECT_GT(last, kKills / 2);
  EXPECT_GT(inFlightSeen, 0);
}

// Twelve operations of all kinds; the state after each, as a text.
const std::function<void()> kOperations[] = {
    [] { GetPrefInt("INTERVAL", nullptr, true, 2000); },
    [] { SetPrefDouble("ALPHA", 0.5); },
    [] { SetPrefString("NAME", "first"); },
    [] { EnsureArrayExists("A"); },
    [] { EnsureArrayItemExists("A", 0); },
    [] { SetPrefArrayInt("A", 0, "LEFT", 1); },
    [] { EnsureArrayItemExists("A", 1); },
    [] { SetPrefArrayString("A", 1, "NAME", "second"); },
    [] { SetPrefInt("INTERVAL", 500); },
    [] { RemovePrefArrayElement("A", 0); },
    [] { SetPrefArrayDouble("A", 0, "WIDTH", 2.5); },
    [] { SetPrefString("NAME", ""); },
};

std::string State(PreferenceDomain& domain) {
  const PreferenceMachine machine(domain);
  char name[16] = "-";
  GetPrefString("NAME", name, sizeof name, nullptr, false, "");
  std::string state = std::to_string(GetPrefInt("INTERVAL", nullptr, false, 0)) + "," +
                      std::to_string(GetPrefDouble("ALPHA", nullptr, false, 0)) + "," + name +
                      (domain.Value("A") != nullptr ? ",array" : ",none");
  for (std::int32_t i = 0; i < GetPrefArrayCount("A"); ++i) {
    char element[16] = "-";
    if (IsPrefArrayValuePresent("A", i, "NAME"))
      GetPrefArrayString("A", i, "NAME", element, sizeof element, false, "");
    state += ";" + std::to_string(GetPrefArrayInt("A", i, "LEFT", false, 0)) + element +
             std::to_string(IsPrefArrayValuePresent("A", i, "WIDTH"));
  }
  return state;
}

TEST(PreferenceCrash, KilledAtEverySystemCall) {
  std::vector<std::string> states;
  {
    const TemporaryFolder folder;
    PropertyListDomain domain(folder.Path());
    states.push_back(State(domain));
    for (const auto& operation : kOperations) {
      const PreferenceMachine machine(domain);
      operation();
      PropertyListDomain onDisk(folder.Path());
      states.push_back(State(onDisk));
      ASSERT_NE(states.back(), states[states.size() - 2]);
    }
  }
  std::size_t points = 0;
  for (bool isKilled = true; isKilled; ++points) {
    const TemporaryFolder folder;
    Pipe pipe;
    const auto body = [&] {
      PropertyListDomain domain(folder.Path());
      const PreferenceMachine machine(domain);
      for (const auto& operation : kOperations) {
        operation();
        if (write(pipe.write.Get(), "x", 1) != 1) return 1;
      }
      return 0;
    };
    const SupervisedEnd end = Supervise(
        body, [&](std::size_t index, int) { return index == points ? kKillBefore : kLetItPass; });
    isKilled = end.exit == -SIGKILL;
    ASSERT_TRUE(isKilled || end.exit == 0) << end.exit;
    pipe.write.Close();
    char acknowledged[std::size(kOperations) + 1];
    const ssize_t done = read(pipe.read.Get(), acknowledged, sizeof acknowledged);
    ASSERT_GE(done, 0);

    PropertyListDomain domain(folder.Path());
    ASSERT_EQ(folder.CountOf(".damaged-"), 0) << points;
    ASSERT_EQ(folder.CountOf(".new"), 0) << points;
    const auto before = static_cast<std::size_t>(done);
    const std::string state = State(domain);
    ASSERT_TRUE(state == states[before] ||
                (before + 1 < states.size() && state == states[before + 1]))
        << "killed before call " << points << ": " << state;
  }
  RecordProperty("points", std::to_string(points));
  EXPECT_GT(points, 12U * 10U);
}

}  // namespace
}  // namespace lurkwell
