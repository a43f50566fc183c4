#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "channel/DaemonCommunication.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/HelperFault.h"
#include "support/OpenChannel.h"

namespace lurkwell {

/// An open channel to a simulated machine's helper, on the installed machine; closed again with it.
/// Of another kind where the environment wants a fault.
class HelperChannel {
 public:
  using Answer = std::function<std::string(std::string_view request)>;

  explicit HelperChannel(SimulatedMachine& machine) : mMachine(machine) {
    SetAnswer([&machine](std::string_view request) { return machine.helper.Answer(request); });
    const auto fault = HelperFault::Wanted();
    const auto patience = gDaemonLimits.opening;
    if (fault == HelperFault::Kind::kRefused) {
      machine.namedPipes.SetBehaviour(SimulatedNamedPipes::Behaviour::kDoesNotOpen);
      // What waits for it is this test, not the program.
      gDaemonLimits.opening = {};
    }
    if (fault != HelperFault::Kind::kAbsent) OpenChannel("/helper");
    gDaemonLimits.opening = patience;
    HelperFault::Apply(machine);
    machine.log.Clear();
  }
  ~HelperChannel() { QuitHelperDaemon(); }
  HelperChannel(const HelperChannel&) = delete;
  HelperChannel& operator=(const HelperChannel&) = delete;

  /// What the helper answers from now on.
  void SetAnswer(Answer answer) { mMachine.namedPipes.SetHelper(std::move(answer)); }

 private:
  SimulatedMachine& mMachine;
};

}  // namespace lurkwell
