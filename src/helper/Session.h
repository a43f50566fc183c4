#pragma once

#include <cstddef>
#include <string_view>

#include "helper/Protocol.h"
#include "helper/ReportedStarts.h"
#include "helper/System.h"

namespace lurkwell::helper {

/// One application's requests and their answers. Knows nothing of pipes.
class Session {
 public:
  /// `system` outlives this. To be called before anything else.
  void Begin(const System& system, const Surroundings& surroundings);

  /// The answer to one request of less than kRequestCapacity bytes: never empty, at most
  /// kAnswerCapacity bytes, valid until the next call. What is no request of a known form gets one
  /// line that begins with "!Error", and has no effect.
  std::string_view Answer(std::string_view request);

 private:
  std::string_view AnswerFigures(std::string_view lines);

  const System* mSystem;
  Surroundings mSurroundings;
  ReportedStarts mStarts;
  char mAnswer[kAnswerCapacity];
};

}  // namespace lurkwell::helper
