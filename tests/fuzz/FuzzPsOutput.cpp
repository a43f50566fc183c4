// Whatever ps prints, at discovery and in a pass.
#include <cstdint>
#include <string>

#include "consolidator/Feeders.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

class NeedsAll : public ProcessInformationClient {
 public:
  explicit NeedsAll(NeedLevel level) : ProcessInformationClient(nullptr, 20), mLevel(level) {}
  NeedLevel NeedPidsForProcProperty(const char*) override { return mLevel; }
  bool NeedPidProcProperty(int pid, const char*) override { return pid % 2 == 0; }
  void NotifyProcessesHaveBeenUpdated() override {
    for (const auto pid : PidBlob())
      for (int i = 0; i < GetPSHeaderCount(); ++i) {
        char header[64];
        char value[256];
        GetNthPSHeader(i, header, sizeof header, nullptr);
        GetPIDPropertyValue(pid, header, value, sizeof value, nullptr);
        GetPIDPropertyTypedValue(pid, header);
      }
  }

 private:
  NeedLevel mLevel;
};

}  // namespace
}  // namespace lurkwell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  const std::string text(reinterpret_cast<const char*>(data), size);
  SimulatedMachine machine;
  const MachineInstallation installation(machine.services);
  // The first byte tells which of the three outputs is hostile.
  const int which = size == 0 ? 0 : data[0] % 3;
  // And what its values are taken for.
  const int kind = size == 0 ? 0 : data[0] / 3 % 6;
  machine.tools.SetColumn("TT", {static_cast<ToolColumn::Kind>(kind), 4096});
  machine.tools.SetOutput("/bin/ps -Lww", which == 0 ? text : "tt pid\n");
  machine.tools.SetOutput("/bin/ps 0 -o tt", which == 1 ? text : "TT\n");
  machine.tools.SetOutput("/bin/ps 0 -o pid", "PID\n");
  machine.tools.SetOutput("/bin/ps -axww -o pid,tt", text);
  machine.processTable.Birth(2, "a");
  machine.processTable.Birth(3, "b");
  InitializeProcessInformationConsolidator();
  AddProcessInformationClient(new NeedsAll(ProcessInformationClient::kNeedAllPids));
  AddProcessInformationClient(new NeedsAll(ProcessInformationClient::kNeedSomePids));
  machine.runLoop.RunFor(50);
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyProcessInformationConsolidator();
  return 0;
}
