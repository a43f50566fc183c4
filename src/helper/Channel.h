#pragma once

#include <sys/types.h>

#include "helper/Session.h"

namespace lurkwell::helper {

/// The two pipes to the application.
struct Channel {
  int requests = -1;
  int answers = -1;
};

/// Opens both pipes, which have to be `user`'s own and closed to everybody else, and takes the
/// greeting. False when one is not as it should be or holds too little for an answer in one piece.
/// The process ends when the other ends are not opened within kOpeningLimit seconds.
bool OpenChannel(const char* requests, const char* answers, uid_t user, Channel& channel);

/// The process that has the other end of `pipe` locked for writing, as applications do; -1 for
/// none.
pid_t FindPeer(int pipe);

/// Answers the greeting, which says that all is prepared, and then requests until the other end is
/// closed: one read is one request, one write one answer.
void Serve(const Channel& channel, Session& session);

}  // namespace lurkwell::helper
