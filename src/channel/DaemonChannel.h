#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lurkwell {

class AuthorizationReference;

/// The ends of the channel, -1 while it is closed. Read to find out whether there is a
/// helper; changed only here.
extern int gFd_a2d;
extern int gFd_d2a;
/// -1, always: which children the permission step collects, namely all.
extern int gDaemonPID;

/// What the helper may do at present.
enum class DaemonRights {
  kStarting,  ///< not known yet: it is being started, or the user is being asked
  kFull,      ///< signals and renices every process
  kOwn,       ///< what the user may do himself
  kNone,      ///< there is none; another one is started after a while
};
struct DaemonStatus {
  DaemonRights rights = DaemonRights::kNone;
  /// Why the rights are not kFull: a sentence for the user to read, without a full stop. Empty
  /// while they are, and while nothing is known.
  std::string reason;
  /// Whether AskForDaemonRights may lead to more.
  bool mayAsk = false;
};

/// What QueryDaemon and DaemonConversation::Query return when there is no answer now.
inline constexpr std::ptrdiff_t kDaemonAnswersLater = -2;
inline constexpr std::ptrdiff_t kDaemonNotAsked = -3;

/// Sends a request and reads the answer: at most `capacity` bytes (1 or more) and a NUL behind
/// them, so the buffer has one byte more. Returns the bytes read, 0 when the helper has closed, -1
/// when it is not there or did not answer within 250 ms (500 ms when an answer of an earlier beat
/// is still to come). The answer is an empty text then, and also when it begins with "!Error": what
/// the helper says behind that goes into `refusal`, on one line, unless that is null; else it is
/// left empty. A closed channel costs nothing.
std::ptrdiff_t QueryDaemon(const char* request, char* answer, std::int32_t capacity,
                           std::string* refusal = nullptr);

/// The requests of one beat, which wait for the helper 60 ms at most together, or of one command of
/// the user's, for 250 ms. Not nested.
class DaemonConversation {
 public:
  /// Late answers to a command are thrown away.
  enum class Of { kBeat, kCommand };
  explicit DaemonConversation(Of of = Of::kBeat);
  DaemonConversation(const DaemonConversation&) = delete;
  DaemonConversation& operator=(const DaemonConversation&) = delete;

  /// As QueryDaemon. kDaemonAnswersLater when the time was over before the answer came: it stays
  /// outstanding until it is read whole, or 250 ms have passed and the channel is closed.
  /// kDaemonNotAsked when the request was not sent, because the time was over or an earlier answer
  /// is still to come.
  std::ptrdiff_t Query(const char* request, char* answer, std::int32_t capacity,
                       std::string* refusal = nullptr);

  /// The answer to the last request of a beat that gave kDaemonAnswersLater, once, if it has come
  /// since then and not too long ago; else an empty text.
  static std::string TakeLateAnswer();

 private:
  Of mOf;
  std::chrono::milliseconds mLimit;
  std::chrono::duration<double> mWaited{0};
};

// ---- For opening the channel --------------------------------------------------------------------

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
