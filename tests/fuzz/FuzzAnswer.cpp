// Whatever a helper answers: nothing is stored under another process or figure than was asked for.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "consolidator/HelperQueries.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/ProcessReports.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kAsked = 100;
constexpr std::int32_t kOther = 101;

class World {
 public:
  World() {
    channel.SetAnswer([this](std::string_view) { return std::string(answer); });
    InitializeProcessInformationConsolidator();
    Report(kAsked);
    Report(kOther);
  }

  void Answer(std::string_view text) {
    answer = text;
    HelperQueries queries;
    queries.Ask(kAsked, kBasicInfo);
    queries.Ask(kAsked, kBasicInfo | kThreadTime);
    Expect(kOther, "pid_rsz", "0");
    Expect(kAsked, "pid_csw", "0");
    Expect(kAsked, "pid_p_nice", "0");
    machine.log.Clear();
  }

 private:
  static void Report(std::int32_t pid) {
    ReportProcessInformationForPID(pid, "pid_parent_pid", "1");
  }
  static void Expect(std::int32_t pid, const char* property, std::string_view expected) {
    char value[64];
    GetPIDPropertyValue(pid, property, value, sizeof value, nullptr);
    if (value != expected) std::abort();
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  HelperChannel channel{machine};
  std::string_view answer;
};

}  // namespace
}  // namespace lurkwell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static auto* world = new lurkwell::World;
  world->Answer({reinterpret_cast<const char*>(data), size});
  return 0;
}
