// Whatever a report of the Classic environment holds: it can be read, CPU times grow by no more
// than its ticks, and it is gone again when the desktop lists none of its applications.
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
#include "support/HelperChannel.h"
#include "support/RecordingClient.h"

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
    machine.processTable.Birth(kEnvironment, "TruBlueEnvironment").UseCPU(1);
    machine.processManager.Launch(kListed, std::nullopt, "Listed");
    InitializeProcessInformationConsolidator();
    ClassicPSNSetupProcessExtractionAppleEvent();
    client->NeedsEverything();
    AddProcessInformationClient(client);
    Beat();
    Demand(PidBlob().size() == kLasting);
  }

  void Report(std::span<const std::uint8_t> data) {
    // A processor's whole time at most.
    const int part = data.empty() ? 0 : data.front();
    machine.processTable.Find(kEnvironment)->UseCPU(15'000 * part / 255);
    Beat();
    const double most = ListedTime() + ListedTicks(data) / 60.25;
    const double least = ListedTime();
    const auto* bytes = reinterpret_cast<const std::byte*>(data.data());
    machine.eventBus.Deliver({{'Z', 'r', 'v', 'q'},
                              {'Z', 'r', 'q', '0'},
                              {{{'Z', 'r', 'v', '#'}, std::vector(bytes, bytes + data.size())}},
                              {}});
    const PidBlob pids;
    Demand(static_cast<std::size_t>(pids.size()) <= kLasting + data.size() / kRecordSize);
    for (const std::int32_t pid : pids)
      if (pid < kInvalidPID) ReadAll(pid);
    Demand(ListedTime() >= least && ListedTime() <= most * (1 + 1e-12) + 1e-5);
    Beat();
    Demand(PidBlob().size() == kLasting);
    machine.log.Clear();
    told.Clear();
  }

 private:
  static constexpr std::int32_t kLasting = 4;
  static constexpr std::int32_t kEnvironment = 300;

  static double ListedTime() {
    char text[64];
    GetPIDPropertyValue(PSN2PID(kListed), "meta_active_time", text, sizeof text, nullptr);
    return std::atof(text);
  }

  /// By how much the ticks of the listed application grow, in all, in this report.
  double ListedTicks(std::span<const std::uint8_t> data) {
    double grown = 0;
    for (std::size_t at = 0; at + kRecordSize <= data.size(); at += kRecordSize) {
      ProcessSerialNumber psn;
      std::uint32_t ticks = 0;
      std::memcpy(&psn, data.data() + at + 8, sizeof psn);
      std::memcpy(&ticks, data.data() + at + 52, sizeof ticks);
      if (psn != kListed) continue;
      if (ticks > ticksBefore) grown += ticks - ticksBefore;
      ticksBefore = ticks;
    }
    return grown;
  }

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
  HelperChannel helper{machine};
  AccessLog told;
  /// The consolidator's, and never given back.
  RecordingClient* client = new RecordingClient("client", 5000, told);
  std::uint32_t ticksBefore = 0;
};

}  // namespace
}  // namespace lurkwell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static auto* world = new lurkwell::World;
  world->Report({data, size});
  return 0;
}
