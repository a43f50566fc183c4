#pragma once

#include <cstddef>
#include <cstdint>

/// The application's side of the helper: a program of its own that may have the right to signal and
/// renice every process, and with which one talks in short texts over two pipes. These functions
/// install it in the user's application data, see to its rights, start it, and talk to it.
///
/// Main thread only. One write is one request and one read its answer; no lengths, no ends.
namespace lurkwell {

class AuthorizationReference;

/// The ends of the channel, -1 while it is closed. Read by whoever wants to know whether there is a
/// helper; changed only here.
extern int gFd_a2d;
extern int gFd_d2a;
/// -1, always: which children the permission step collects, namely all.
extern int gDaemonPID;

/// Starts the helper, asking for an administrator's consent when the installed one has no rights or
/// the preference GENERAL_ALWAYS_AUTHENTICATE_DAEMON (0) says so, and leaves the channel open.
/// Once, at start-up. Where the helper cannot be installed, or the installed one does not start,
/// the application's own copy runs with the user's rights, and standard error says why.
///
/// From then on the channel looks after itself: a helper that has died, or has not opened its pipes
/// or answered in time, is given up for good and another one started, 1, 2, 4 ... 60 seconds later
/// by the machine's run loop, without any question and without waiting.
void LaunchHelperDaemon();

/// From now on LaunchHelperDaemon starts the helper with the user's own rights and asks nobody.
void SetHelperUnprivileged(bool unprivileged);

/// Sends a request and reads the answer: at most `capacity` bytes (1 or more) and a NUL behind
/// them, so the buffer has one byte more. Returns the bytes read, 0 when the helper has closed, -1
/// when it is not there or did not answer within 250 ms. The answer is an empty text then, and also
/// when it begins with "!Error". A closed channel costs nothing.
std::ptrdiff_t QueryDaemon(const char* request, char* answer, std::int32_t capacity);

/// Many requests follow while this exists; it makes them cheaper and changes nothing else. Not
/// nested.
class DaemonConversation {
 public:
  DaemonConversation();
  ~DaemonConversation();
  DaemonConversation(const DaemonConversation&) = delete;
  DaemonConversation& operator=(const DaemonConversation&) = delete;
};

/// Closes the channel, which ends the helper, and starts no other. The result of the last close.
int QuitHelperDaemon();

/// Whether a helper started as the user says that it has root's rights. Leaves the channel closed.
bool CheckDaemonPermissions();

// ---- The steps of LaunchHelperDaemon. A null `authRef`, where one is needed, is a fatal assertion
// ---- "authRef != NULL" of the unit DaemonCommunication.

/// Gives the installed helper its rights; see SetPermissionsInternalLaunchDaemon.
void SetDaemonPermissions(AuthorizationReference* authRef);
void LaunchDaemonWithoutAuthorization();
void LaunchDaemonWithAuthorization(AuthorizationReference* authRef);

/// Installs the helper if there is none yet (a failure is the assertion "succeeded") and either
/// starts it, through `authRef` unless that is null, or gives it its rights.
void InternalLaunchHelperDaemon(AuthorizationReference* authRef, bool setPermissions);

/// Makes the pipes, starts the helper and exchanges greetings; the channel is open afterwards, or
/// closed when that did not come about within five seconds, not counting the time that an
/// administrator takes to answer (two minutes at most).
void NormalInternalLaunchDaemon(const char* helperPath, AuthorizationReference* authRef);

/// Runs the helper's permission step with an administrator's rights. While that fails, the user is
/// asked whether to try again, to quit (the program ends with status 0), or to go on with a helper
/// that has the user's own rights; the reason is on standard error.
void SetPermissionsInternalLaunchDaemon(const char* helperPath, AuthorizationReference* authRef);

/// The installed helper's path into `out` (`capacity` bytes, terminator included; too few are a
/// fatal assertion). Copies it from the bundle when it is not there; an existing one is never
/// replaced. False when there is no folder for application data; a copy that fails is the fatal
/// assertion "succeeded".
bool EnsureThatDaemonIsInApplicationSupport(const char* bundlePath, char* out,
                                            std::int32_t capacity);

}  // namespace lurkwell
