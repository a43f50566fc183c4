#pragma once

#include "platform/EventBus.h"

namespace lurkwell {

/// A program in a terminal takes no part in the session's events.
class NoEventBus final : public EventBus {
 public:
  Status Send(const EventAddress&, const Event&) override { return kNoSuchProcess; }
  void InstallEventHandler(FourCharCode, FourCharCode, Handler) override {}
  std::string Address() const override { return {}; }
};

}  // namespace lurkwell
