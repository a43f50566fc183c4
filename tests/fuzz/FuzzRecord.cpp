// Whatever a report of the Classic environment holds: it can be read, and it is gone again when the
// desktop lists none of its applications.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

#include "consolidator/ClassicReports.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

constexpr std::size_t kRecordSize = 396;
/// The only application that the desktop lists.
constexpr ProcessSerialNumber kListed{0x20202020, 0x31313131};

void Demand(bool holds) {
  if (!holds) std::abort();
}

class World {
 public:
  World() {
    machine.processManager.Launch(kListed, std::nullopt, "Listed");
    InitializeProcessInformationConsolidator();
    ClassicPSNSetupProcessExtractionAppleEvent();
    Beat();
    Demand(PidBlob().size() == kLasting);
  }

  void Report(std::span<const std::uint8_t> data) {
    const auto* bytes = reinterpret_cast<const std::byte*>(data.data());
    machine.eventBus.Deliver({{'Z', 'r', 'v', 'q'},
                              {'Z', 'r', 'q', '0'},
                              {{{'Z', 'r', 'v', '#'}, std::vector(bytes, bytes + data.size())}},
                              {}});
    const PidBlob pids;
    Demand(static_cast<std::size_t>(pids.size()) <= kLasting + data.size() / kRecordSize);
    for (const std::int32_t pid : pids)
      if (pid < kInvalidPID) ReadAll(pid);
    Beat();
    Demand(PidBlob().size() == kLasting);
    machine.log.Clear();
  }

 private:
  static constexpr std::int32_t kLasting = 3;

  static void ReadAll(std::int32_t pid) {
    for (int i = 0; i < CountBuiltInProcPropertyHeaders(); ++i) {
      char header[64];
      char value[255];
      GetNthProcPropertyHeader(i, header, sizeof header);
      GetPIDPropertyValue(pid, header, value, sizeof value, nullptr);
      Demand(::strnlen(value, sizeof value) < sizeof value);
    }
  }
  void Beat() { machine.runLoop.RunFor(15'000); }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
};

}  // namespace
}  // namespace lurkwell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static auto* world = new lurkwell::World;
  world->Report({data, size});
  return 0;
}
