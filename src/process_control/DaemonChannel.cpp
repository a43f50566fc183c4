#include "process_control/DaemonChannel.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <span>
#include <utility>

#include "platform/Authorization.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/NamedPipes.h"
#include "platform/Tools.h"
#include "process_control/DaemonCommunication.h"

namespace lurkwell {

int gFd_a2d = -1;
int gFd_d2a = -1;
int gDaemonPID = -1;
DaemonChannelWatcher* gDaemonChannelWatcher = nullptr;

namespace {

using Milliseconds = std::chrono::milliseconds;

constexpr char kGreeting[] = "Good day! We hear that somebody is being mean to you: may we help?\n";
constexpr std::size_t kGreetingLength = 67;
static_assert(sizeof kGreeting - 1 == kGreetingLength && kGreeting[kGreetingLength - 1] == '\n');

/// A pipe that everybody may read and write, less the umask.
constexpr unsigned kFifoMode = 010666;
constexpr std::size_t kGreetingCapacity = 300;
constexpr std::string_view kError = "!Error";

bool StartHelper(const std::string& path, const std::string& requests, const std::string& answers,
                 AuthorizationReference* authRef) {
  auto& machine = TheMachine();
  if (authRef != nullptr)
    return machine.authorization.ExecuteWithPrivileges(*authRef, path, {requests, answers});
  return machine.tools.StartInBackground({path, requests, answers});
}

/// Nothing may come that was not asked for: it would be taken for the answer to the next request.
bool IsQuiet() {
  char unasked = 0;
  return TheMachine().namedPipes.Read(gFd_d2a, {&unasked, 1}, Milliseconds(0)) < 0;
}

/// What an answer was longer than the caller's buffer, thrown away; false when it does not end.
bool DropRest() {
  char rest[8192];
  constexpr int kMostReads = 16;
  for (int i = 0; i < kMostReads; ++i)
    if (TheMachine().namedPipes.Read(gFd_d2a, rest, Milliseconds(0)) <= 0) return true;
  return false;
}

void LoseChannel() {
  CloseDaemonChannel();
  if (gDaemonChannelWatcher != nullptr) gDaemonChannelWatcher->Lost();
}

/// One write and one read; what the read returned.
std::ptrdiff_t Exchange(std::string_view request, std::span<char> answer) {
  auto& pipes = TheMachine().namedPipes;
  if (!IsQuiet()) return -1;
  const auto written = pipes.Write(gFd_a2d, request, gDaemonLimits.answering);
  if (written != static_cast<std::ptrdiff_t>(request.size())) return -1;
  return pipes.Read(gFd_d2a, answer, gDaemonLimits.answering);
}

}  // namespace

std::string_view DaemonGreeting() {
  return {kGreeting, kGreetingLength};
}

DaemonChannelOpening::~DaemonChannelOpening() {
  if (mWriting >= 0) TheMachine().namedPipes.Close(mWriting);
  if (mReading >= 0) TheMachine().namedPipes.Close(mReading);
  RemoveNames();
}

void DaemonChannelOpening::RemoveNames() {
  for (std::string* path : {&mRequests, &mAnswers}) {
    if (!path->empty()) TheMachine().namedPipes.Unlink(*path);
    path->clear();
  }
}

bool DaemonChannelOpening::MakePipe(std::string& path, std::string_view prefix) {
  path = TheMachine().namedPipes.TemporaryName(prefix);
  return !path.empty();
}

bool DaemonChannelOpening::Start(const std::string& helperPath, AuthorizationReference* authRef) {
  auto& pipes = TheMachine().namedPipes;
  if (!MakePipe(mRequests, "Lkw_a2d_") || !MakePipe(mAnswers, "Lkw_d2a_")) return false;
  if (!pipes.MakeFifo(mRequests, kFifoMode) || !pipes.MakeFifo(mAnswers, kFifoMode)) return false;
  return StartHelper(helperPath, mRequests, mAnswers, authRef);
}

bool DaemonChannelOpening::Greet() {
  auto& pipes = TheMachine().namedPipes;
  if (pipes.Write(mWriting, DaemonGreeting(), gDaemonLimits.answering) < 0) return false;
  mReading = pipes.OpenForReading(mAnswers, gDaemonLimits.answering);
  return mReading >= 0;
}

DaemonChannelOpening::State DaemonChannelOpening::Advance(Milliseconds limit) {
  auto& pipes = TheMachine().namedPipes;
  if (mWriting < 0) {
    mWriting = pipes.OpenForWriting(mRequests, limit);
    return mWriting < 0 || Greet() ? State::kWaiting : State::kFailed;
  }
  char greeting[kGreetingCapacity];
  const auto size = pipes.Read(mReading, greeting, limit);
  if (size == 0) return State::kFailed;
  if (size < 0) {
    mReadError = errno;
    return mReadError == ETIMEDOUT ? State::kWaiting : State::kFailed;
  }
  RemoveNames();
  return State::kOpen;
}

void DaemonChannelOpening::ReportMissingGreeting() const {
  if (mReadError != 0) std::printf("read error: %d\n", mReadError);
}

void DaemonChannelOpening::Take() {
  CloseDaemonChannel();
  gFd_a2d = std::exchange(mWriting, -1);
  gFd_d2a = std::exchange(mReading, -1);
}

void NormalInternalLaunchDaemon(const char* helperPath, AuthorizationReference* authRef) {
  using State = DaemonChannelOpening::State;
  constexpr Milliseconds kSlice{50};
  auto& machine = TheMachine();
  DaemonChannelOpening opening;
  if (!opening.Start(helperPath, authRef)) return;
  auto state = State::kWaiting;
  TimeValue since = machine.clock.Now();
  const auto passed = [&] { return Milliseconds(MillisecondsBetween(since, machine.clock.Now())); };
  if (authRef != nullptr) {
    while (state == State::kWaiting && machine.authorization.IsAsking() &&
           passed() < gDaemonLimits.asking) {
      state = opening.Advance(kSlice);
    }
    since = machine.clock.Now();
  }
  for (int end = 0; end < 2 && state == State::kWaiting; ++end)
    state = opening.Advance(std::max(gDaemonLimits.opening - passed(), Milliseconds(0)));
  if (state == State::kOpen) {
    opening.Take();
  } else {
    opening.ReportMissingGreeting();
  }
}

DaemonConversation::DaemonConversation() {
  if (gFd_a2d >= 0) TheMachine().namedPipes.BeginExchanges();
}

DaemonConversation::~DaemonConversation() {
  TheMachine().namedPipes.EndExchanges();
}

std::ptrdiff_t QueryDaemon(const char* request, char* answer, std::int32_t capacity) {
  *answer = '\0';
  if (gFd_a2d < 0 || capacity < 1) return -1;
  const auto room = static_cast<std::size_t>(capacity);
  const auto size = Exchange(request, {answer, room});
  if (size <= 0) {
    *answer = '\0';
    LoseChannel();
    return size;
  }
  const auto length = static_cast<std::size_t>(size);
  answer[length] = '\0';
  if (std::string_view(answer, length).starts_with(kError)) *answer = '\0';
  if (gDaemonChannelWatcher != nullptr) gDaemonChannelWatcher->Answered();
  if (length == room && !DropRest()) LoseChannel();
  return size;
}

int CloseDaemonChannel() {
  int result = -1;
  for (int* end : {&gFd_d2a, &gFd_a2d})
    if (*end >= 0) result = TheMachine().namedPipes.Close(std::exchange(*end, -1));
  return result;
}

}  // namespace lurkwell
