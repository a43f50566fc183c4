#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "consolidator/PI_Consolidator.h"
#include "platform/simulated/SimulatedMachine.h"
#include "support/HelperChannel.h"
#include "support/RecordingClient.h"

namespace lurkwell {

/// A consolidator on a simulated machine. The machine's own accesses go to machine.log, what
/// clients are told to `told`.
class ConsolidatorTest : public testing::Test {
 protected:
  ~ConsolidatorTest() override {
    helper.reset();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  void Start() {
    helper.emplace(machine);
    InitializeProcessInformationConsolidator();
    machine.log.Clear();
  }

  RecordingClient& Add(const std::string& name, std::int32_t interval) {
    auto* client = new RecordingClient(name, interval, told);
    AddProcessInformationClient(client);
    return *client;
  }

  /// Lets time pass; what the clients were told meanwhile, a line each.
  std::string Told(std::int64_t milliseconds) {
    machine.runLoop.RunFor(milliseconds);
    return told.Take();
  }

  /// "VALUE" for a value, "(TEXT)" for a text without one, "[TEXT]" where the process is not found.
  static std::string Value(std::int32_t pid, const char* property, std::int32_t length = 255) {
    char text[256] = "left alone";
    bool found = false;
    const bool has = GetPIDPropertyValue(pid, property, text, length, &found);
    if (!found) return "[" + std::string(text) + "]";
    return has ? text : "(" + std::string(text) + ")";
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  std::optional<HelperChannel> helper;
  AccessLog told;
};

}  // namespace lurkwell
