#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

/// The application's side of the helper: a program of its own that may have the right to signal and
/// renice every process, and with which one talks in short texts over two pipes. These functions
/// install it in the user's application data, see to its rights, start it, and talk to it.
///
/// Main thread only. One write is one request and one read its answer; no lengths, no ends.
namespace lurkwell {

/// The ends of the channel, -1 while it is closed. Read to find out whether there is a
/// helper; changed only here.
extern int gFd_a2d;
extern int gFd_d2a;
/// -1, always: which children the permission step collects, namely all.
extern int gDaemonPID;

/// Starts the helper, asking for an administrator's consent when the installed one has no rights
/// and the user has not said to go on without, or when the preference
/// GENERAL_ALWAYS_AUTHENTICATE_DAEMON (0) says so. Once, at start-up. Returns at once: all of it
/// happens in short steps of the machine's run loop, and the channel is open when the helper has
/// greeted. Where the helper cannot be installed, or the installed one does not start, the
/// application's own copy runs with the user's rights.
///
/// From then on the channel looks after itself: a helper that has died, or has not opened its pipes
/// or answered in time, is given up for good and another one started, 1, 2, 4 ... 60 seconds later,
/// without any question.
void LaunchHelperDaemon();

/// From now on LaunchHelperDaemon starts the helper with the user's own rights and asks nobody.
void SetHelperUnprivileged(bool unprivileged);

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
const DaemonStatus& GetDaemonStatus();

/// The user wants the rights after all: forgets that he said to go on without, closes the channel
/// and starts over as LaunchHelperDaemon does, asking for an administrator's consent.
void AskForDaemonRights();

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

/// Closes the channel, which ends the helper, and starts no other. The result of the last close.
int QuitHelperDaemon();

/// The installed helper's path into `out` (`capacity` bytes, terminator included; too few are a
/// fatal assertion). Copies it from the bundle when it is not there; an existing one is never
/// replaced. False when there is no folder for application data; a copy that fails is the fatal
/// assertion "succeeded".
bool EnsureThatDaemonIsInApplicationSupport(const char* bundlePath, char* out,
                                            std::int32_t capacity);

}  // namespace lurkwell
