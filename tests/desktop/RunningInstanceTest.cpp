#include <gtest/gtest.h>

#include <QCoreApplication>
#include <chrono>
#include <thread>

#include "desktop/TestBus.h"
#include "platform/desktop/RunningInstance.h"
#include "support/TestDisplay.h"

namespace lurkwell {
namespace {

using Answer = RunningInstance::Answer;

TEST(RunningInstance, IsFoundByTheNextOneAndDoesWhatItIsAsked) {
  TestBus bus;
  const auto program = [&] { return std::make_unique<RunningInstance>(bus.Address()); };
  EXPECT_EQ(program()->BringToFront(), Answer::kNobody);
  int fronts = 0;
  int toggles = 0;
  auto first = program();
  ASSERT_TRUE(first->Become([&] { ++fronts; }, [&] { ++toggles; }));
  // The others are programs of their own, as far as the bus can tell.
  const auto ask = [&](const std::string& method) {
    ChildProgram caller({"dbus-send", "--bus=" + bus.Address(), "--print-reply",
                         "--dest=com.velquarin.lurkwell", "/com/velquarin/lurkwell/Instance",
                         "com.velquarin.lurkwell.Instance." + method});
    EXPECT_TRUE(ComesTrue([&] {
      QCoreApplication::processEvents();
      return caller.Ends(0);
    }));
  };
  ask("Present");
  ask("Toggle");
  ask("Toggle");
  QCoreApplication::processEvents();
  EXPECT_EQ(fronts, 1);
  EXPECT_EQ(toggles, 2);
  first.reset();
  EXPECT_EQ(program()->ToggleOverlay(), Answer::kNobody);
}

TEST(RunningInstance, NeverWaitsLongForABusThatHangsOrIsNotThere) {
  EXPECT_EQ(RunningInstance("").BringToFront(), Answer::kNobody);
  EXPECT_EQ(RunningInstance("unix:path=/nonexistent").BringToFront(), Answer::kNobody);
  // Accepts, and says nothing.
  ChildProgram silent({"python3", "-c",
                       "import socket,sys,time\n"
                       "s=socket.socket(socket.AF_UNIX); s.bind('\\0lurkwell-'+sys.argv[1])\n"
                       "s.listen(); print('ready',flush=True); time.sleep(60)",
                       std::to_string(::getpid())});
  ASSERT_EQ(silent.ReadLine(), "ready");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(RunningInstance("unix:abstract=lurkwell-" + std::to_string(::getpid())).BringToFront(),
            Answer::kNobody);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
}

}  // namespace
}  // namespace lurkwell
