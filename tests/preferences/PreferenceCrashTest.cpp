// Nothing that was set and returned is lost, and no file is ever torn, wherever the program is
// killed.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <functional>

#include "CallSupervisor.h"
#include "PreferenceTestSupport.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

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
    const PreferenceFolder folder;
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
    const PreferenceFolder folder;
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
