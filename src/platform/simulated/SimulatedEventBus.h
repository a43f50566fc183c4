#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/EventBus.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// A bus whose other end is the test: what is sent is recorded, what is delivered is handled at
/// once.
class SimulatedEventBus final : public EventBus {
 public:
  explicit SimulatedEventBus(AccessLog& log) : mLog(log) {}

  Status Send(const EventAddress& address, const Event& event) override {
    std::string line =
        "EventBus.Send " + Text(address) + " " + Text(event.eventClass) + "/" + Text(event.id);
    for (const auto& parameter : event.parameters)
      line += " " + Text(parameter.keyword) + "=" + Text(parameter.value);
    mLog.Add(std::move(line));
    return status;
  }
  void InstallEventHandler(FourCharCode eventClass, FourCharCode id, Handler handler) override {
    mHandlers[{eventClass, id}] = std::move(handler);
  }
  std::string Address() const override { return "simulated"; }

  /// False when it has no handler.
  bool Deliver(const Event& event) {
    const auto found = mHandlers.find({event.eventClass, event.id});
    if (found == mHandlers.end()) return false;
    found->second(event);
    return true;
  }

  /// What Send gives.
  Status status = kNoSuchProcess;

 private:
  static std::string Text(FourCharCode code) { return {code.data(), code.size()}; }
  static std::string Text(const std::string& text) { return text; }
  static std::string Text(std::int32_t value) { return std::to_string(value); }
  static std::string Text(ProcessSerialNumber psn) {
    return "{" + std::to_string(psn.high) + "," + std::to_string(psn.low) + "}";
  }
  static std::string Text(const std::vector<std::byte>& bytes) {
    return std::to_string(bytes.size()) + " bytes";
  }
  template <typename... T>
  static std::string Text(const std::variant<T...>& value) {
    return std::visit([](const auto& alternative) { return Text(alternative); }, value);
  }

  AccessLog& mLog;
  std::map<std::pair<FourCharCode, FourCharCode>, Handler> mHandlers;
};

}  // namespace lurkwell
