#pragma once

#include <sys/types.h>

#include "helper/Protocol.h"

namespace lurkwell::helper {

/// The paths of the two pipes.
struct Arguments {
  char requests[kLongestPath + 1];
  char answers[kLongestPath + 1];
};

/// Reads the arguments; false when they are not two such paths. Touches nothing.
bool TakeArguments(int argc, char** argv, Arguments& arguments);

/// The user for whom an administrator's tool started us, as the tool says in the environment;
/// the real user where there is none or he is not root. Forgets the environment.
uid_t TakeAskingUser();

/// Where descriptors 0 to 2 lead: all to the null device, or only those that were closed.
enum class Output { kNone, kCallers };

/// Leaves nothing else as the caller had it: signals, timers, limits, umask, descriptors; no core,
/// no tracing.
bool ResetProcess(Output output);

/// Shows kCommandName in process lists; `argv` cannot be read afterwards.
void NameProcess(int argc, char** argv);

}  // namespace lurkwell::helper
