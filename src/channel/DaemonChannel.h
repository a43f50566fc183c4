#pragma once

#include <chrono>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace lurkwell {

class AuthorizationReference;

/// How long the helper may take; tests set less. Main thread.
struct DaemonLimits {
  std::chrono::milliseconds opening{5000};
  std::chrono::milliseconds answering{250};
  /// For all that one beat asks.
  std::chrono::milliseconds beat{60};
  /// For all that one command asks, however many processes it is for.
  std::chrono::milliseconds command{250};
  /// For the administrator, while the question is open.
  std::chrono::milliseconds asking{120'000};
  /// Between two looks at whether the helper is still there.
  std::chrono::milliseconds pulse{5000};
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

  /// As many steps as can be taken without waiting: the requests' end with the greeting, then the
  /// greeting's answer.
  State Advance();

  /// On a channel that is open and was not taken: sends a request, and looks for its answer as a
  /// read of the pipe does, -1 with errno ETIMEDOUT while there is none.
  bool Send(std::string_view request);
  std::ptrdiff_t Receive(std::span<char> answer);

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
  /// A beat goes on without the answer it asked for; SettleDaemonChannel is due in
  /// gDaemonLimits.answering.
  virtual void LeftOutstanding() = 0;
  virtual void Lost() = 0;
};
extern DaemonChannelWatcher* gDaemonChannelWatcher;

/// A look at the open channel that waits for nothing: takes an answer that is outstanding, for
/// the one that asked for it; loses the channel when that is overdue, when the helper has closed,
/// or when it says what it was not asked for.
void SettleDaemonChannel();

/// Closes both ends if they are open; the result of the last close, -1 when nothing was open.
int CloseDaemonChannel();

}  // namespace lurkwell
