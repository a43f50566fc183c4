#pragma once

#include "channel/DaemonChannel.h"

/// The application's side of the helper: a program of its own that may have the right to signal and
/// renice every process, and with which one talks in short texts over two pipes. These functions
/// install it in the user's application data, see to its rights, start it, and talk to it.
///
/// Main thread only. One write is one request and one read its answer; no lengths, no ends.
namespace lurkwell {

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

const DaemonStatus& GetDaemonStatus();

/// The user wants the rights after all: forgets that he said to go on without, closes the channel
/// and starts over as LaunchHelperDaemon does, asking for an administrator's consent.
void AskForDaemonRights();

/// Closes the channel, which ends the helper, and starts no other. The result of the last close.
int QuitHelperDaemon();

}  // namespace lurkwell
