#pragma once

#include <map>

#include "platform/IconServices.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Plain squares in colours that a test gives to applications; every question is recorded.
class SimulatedIconServices final : public IconServices {
 public:
  explicit SimulatedIconServices(AccessLog& log) : mLog(log) {}

  /// Opaque: 0xFFRRGGBB.
  void SetColour(ProcessSerialNumber psn, std::uint32_t colour) { mColours[psn] = colour; }

  std::shared_ptr<const Picture> ApplicationIcon(ProcessSerialNumber psn, int size) override {
    mLog.Add("ApplicationIcon " + std::to_string(psn.low) + " " + std::to_string(size));
    const auto found = mColours.find(psn);
    if (found == mColours.end()) return nullptr;
    const auto area = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
    return std::make_shared<Picture>(
        Picture{size, size, std::vector<std::uint32_t>(area, found->second)});
  }

 private:
  AccessLog& mLog;
  std::map<ProcessSerialNumber, std::uint32_t> mColours;
};

}  // namespace lurkwell
