#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "helper/ProcessFiles.h"
#include "helper/Protocol.h"
#include "helper/System.h"
#include "helper/Text.h"

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
  /// A request repeats the lines of the ones before it. Figures this young, in milliseconds, are
  /// not gathered again.
  static constexpr std::uint32_t kYoung = 250;

  /// Requests that come closer together than this, in milliseconds, belong to one beat.
  static constexpr std::uint32_t kPause = 50;

  void JoinPeer();
  std::string_view AnswerFigures(std::string_view request);
  bool Continues(std::string_view request) const;

  const System* mSystem;
  Surroundings mSurroundings;
  ProcessFiles mFiles;
  /// The last request for figures, as long as a longer one may continue it.
  char mRequest[kRequestCapacity];
  std::size_t mRequestSize;
  std::uint32_t mRequestBegun;
  /// When figures were asked last, and the processor the helper has put itself on, -1 for none.
  std::uint32_t mLastAsked;
  std::int64_t mProcessor;
  char mAnswer[kAnswerCapacity];
  std::size_t mAnswerSize;
};

}  // namespace lurkwell::helper
