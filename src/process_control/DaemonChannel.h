#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace lurkwell {

class AuthorizationReference;

/// How long the helper may take; tests set less. Main thread.
struct DaemonLimits {
  std::chrono::milliseconds opening{5000};
  std::chrono::milliseconds answering{250};
  /// For the administrator, while the question is open.
  std::chrono::milliseconds asking{120'000};
};
inline DaemonLimits gDaemonLimits;

/// A channel that is being set up: two pipes with names, a program that has been told of them, and
/// the ends that are open so far. Goes without a trace unless it was taken.
class DaemonChannelOpening {
 public:
  enum class State { kWaiting, kOpen, kFailed };

  DaemonChannelOpening() = default;
  ~DaemonChannelOpening();
  DaemonChannelOpening(const DaemonChannelOpening&) = delete;
  DaemonChannelOpening& operator=(const DaemonChannelOpening&) = delete;

  /// Makes the pipes and starts the helper, through the authorisation unless that is null.
  bool Start(const std::string& helperPath, AuthorizationReference* authRef);

  /// The next of two steps, waiting for the helper for up to `limit`: the requests' end with the
  /// greeting, then the greeting's answer.
  State Advance(std::chrono::milliseconds limit);

  /// Says on standard output that no greeting came, if that is what is missing.
  void ReportMissingGreeting() const;

  /// Hands the open ends over to gFd_a2d and gFd_d2a; a channel that was open is closed.
  void Take();

 private:
  bool MakePipe(std::string& path, std::string_view prefix);
  bool Greet();
  void RemoveNames();

  std::string mRequests;
  std::string mAnswers;
  int mWriting = -1;
  int mReading = -1;
  int mReadError = 0;
};

/// The first line on every channel.
std::string_view DaemonGreeting();

/// What happens in the channel's life. Set by LaunchHelperDaemon, cleared by QuitHelperDaemon.
class DaemonChannelWatcher {
 public:
  virtual ~DaemonChannelWatcher() = default;
  virtual void Answered() = 0;
  virtual void Lost() = 0;
};
extern DaemonChannelWatcher* gDaemonChannelWatcher;

/// Closes both ends if they are open; the result of the last close, -1 when nothing was open.
int CloseDaemonChannel();

}  // namespace lurkwell
