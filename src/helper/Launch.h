#pragma once

#include <sys/types.h>

#include "helper/Protocol.h"

namespace lurkwell::helper {

/// The two forms in which the program is started.
struct Arguments {
  bool setPermissions = false;
  char requests[kLongestPath + 1];
  char answers[kLongestPath + 1];
};

/// Reads the arguments; false when they are of neither form. Touches nothing.
bool TakeArguments(int argc, char** argv, Arguments& arguments);

/// The user for whom an administrator's tool started us, as the tool says in the environment;
/// the real user where there is none or he is not root. Forgets the environment.
uid_t TakeAskingUser();

/// Leaves nothing as the caller had it: signals, timers, limits, umask, descriptors; no core, no
/// tracing. Descriptors 0 to 2 lead to the null device when `silent` or when they were closed.
bool ResetProcess(bool silent);

/// Shows kCommandName in process lists; `argv` cannot be read afterwards.
void NameProcess(int argc, char** argv);

}  // namespace lurkwell::helper
