#pragma once

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {

/// What is wrong with the helper in every test of this process, from the environment's
/// LURKWELL_HELPER_FAULT: tests of windows run again with each (scripts/proof). What they expect of
/// a helper fails then; that they crash or stand still is a finding.
class HelperFault {
 public:
  enum class Kind : std::uint8_t { kNone, kAbsent, kRefused, kStalled, kLying };

  static Kind Wanted() {
    const char* value = std::getenv("LURKWELL_HELPER_FAULT");
    const std::string_view name = value == nullptr ? "" : value;
    if (name == "absent") return Kind::kAbsent;
    if (name == "refused") return Kind::kRefused;
    if (name == "stalled") return Kind::kStalled;
    if (name == "lying") return Kind::kLying;
    // A name that is none must not pass for a helper that works.
    if (!name.empty()) std::abort();
    return Kind::kNone;
  }

  /// For the channel that is open already.
  static void Apply(SimulatedMachine& machine) {
    using Behaviour = SimulatedNamedPipes::Behaviour;
    switch (Wanted()) {
      case Kind::kStalled:
        machine.namedPipes.SetBehaviour(Behaviour::kStalls);
        break;
      case Kind::kLying:
        machine.namedPipes.SetHelper([&machine, lies = 0](std::string_view request) mutable {
          return Lie(machine.helper.Answer(request), lies++);
        });
        break;
      default:
        break;
    }
  }

  /// Something else than the truth, in the same form or in none; never the same twice running.
  static std::string Lie(std::string truth, int number) {
    switch (number % 6) {
      case 0:  // figures beyond all bounds
        for (char& c : truth)
          if (std::isdigit(static_cast<unsigned char>(c)) != 0) c = '9';
        return truth;
      case 1:  // half of it
        return truth.substr(0, truth.size() / 2);
      case 2:  // all of it twice
        return truth + truth;
      case 3:  // other processes' figures
        for (char& c : truth)
          if (c == '1') c = '2';
        return truth;
      case 4:  // below nothing
        for (std::size_t at = 0; (at = truth.find(' ', at)) != std::string::npos; at += 2)
          truth.insert(at + 1, "-");
        return truth;
      default: {
        constexpr std::string_view kNoise = "\xff\x80\x01\x1b[2J\t%s%n\"<b>\n";
        std::string noise;
        while (noise.size() < 8000) noise += kNoise;
        return noise;
      }
    }
  }
};

}  // namespace lurkwell
