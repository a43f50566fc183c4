#pragma once

#include <gtest/gtest.h>

#include <string>

#include "channel/DaemonCommunication.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/OpenChannel.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {

/// Process control on a simulated machine whose bundle and folder for application data are real
/// ones. In texts of the log "$" stands for the installed helper's path.
class SimulatedControl : public testing::Test {
 protected:
  SimulatedControl() {
    std::filesystem::create_directories(folder / "Lurkwell.app/Contents/Resources");
    WriteFile(folder / "Lurkwell.app/Contents/Resources/Lurkwell_helper", "from the bundle");
    machine.bundle.SetPath(folder / "Lurkwell.app");
    machine.bundle.SetApplicationSupportFolder(folder.Make("Support"));
    machine.namedPipes.SetHelper(
        [this](std::string_view request) { return machine.helper.Answer(request); });
  }
  ~SimulatedControl() override {
    QuitHelperDaemon();
    SetHelperUnprivileged(false);
  }

  /// Opens a channel and forgets how.
  void Open() {
    OpenChannel("/helper");
    machine.log.Clear();
  }

  std::string Helper() const { return folder / "Support/Lurkwell/Lurkwell_helper"; }

  std::string Log() {
    std::string text = machine.log.Take();
    for (auto at = text.find(Helper()); at != std::string::npos; at = text.find(Helper(), at))
      text.replace(at, Helper().size(), "$");
    return text;
  }

  /// "ANSWER (N)", N being what QueryDaemon returned.
  static std::string Query(const char* request, std::int32_t capacity = 255) {
    char buffer[258];
    std::fill(std::begin(buffer), std::end(buffer), '#');
    const auto size = QueryDaemon(request, buffer + 1, capacity);
    EXPECT_EQ(buffer[0], '#') << "nothing is written before the buffer";
    EXPECT_EQ(buffer[2 + capacity], '#') << "and nothing behind it";
    return std::string(buffer + 1) + " (" + std::to_string(size) + ")";
  }

  TemporaryFolder folder;
  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
};

}  // namespace lurkwell
