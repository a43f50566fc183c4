#include "channel/DaemonChannel.h"

#include <algorithm>
#include <cerrno>
#include <span>
#include <utility>

#include "platform/Authorization.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/NamedPipes.h"
#include "platform/PrintableText.h"
#include "platform/Tools.h"

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
constexpr std::size_t kLongestAnswer = 8191;

bool StartHelper(const std::string& path, const std::string& requests, const std::string& answers,
                 AuthorizationReference* authRef) {
  auto& machine = TheMachine();
  if (authRef != nullptr)
    return machine.authorization.ExecuteWithPrivileges(*authRef, path, {requests, answers});
  return machine.tools.StartInBackground({path, requests, answers});
}

/// A request whose answer has not been read yet, and an answer that came after its beat. Nothing is
/// written while the one exists; the other waits to be taken.
struct Outstanding {
  bool exists = false;
  /// Its answer will be taken.
  bool isWanted = true;
  TimeValue since;
  std::string late;
} gOutstanding;

/// Ends the text in the buffer. One that says why something was refused becomes empty; its words go
/// into `refusal`, unless that is null.
void EndText(std::span<char> buffer, std::ptrdiff_t size, std::string* refusal) {
  const auto length = static_cast<std::size_t>(size);
  buffer[length] = '\0';
  std::string_view text(buffer.data(), length);
  if (!text.starts_with(kError)) return;
  if (refusal != nullptr) {
    text.remove_prefix(kError.size());
    while (text.starts_with(' ')) text.remove_prefix(1);
    *refusal = PrintableText(WithoutNewline(text));
  }
  buffer[0] = '\0';
}

Milliseconds Since(TimeValue moment) {
  return Milliseconds(MillisecondsBetween(moment, TheMachine().clock.Now()));
}

/// Nothing may come that was not asked for: it would be taken for the answer to the next request.
bool IsQuiet() {
  char unasked = 0;
  return TheMachine().namedPipes.Read(gFd_d2a, {&unasked, 1}, Milliseconds(0)) < 0 &&
         errno == ETIMEDOUT;
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

bool SendRequest(std::string_view request, Milliseconds limit) {
  const auto patience = std::min(limit, gDaemonLimits.answering);
  const auto written = IsQuiet() ? TheMachine().namedPipes.Write(gFd_a2d, request, patience) : -1;
  if (written != static_cast<std::ptrdiff_t>(request.size())) {
    LoseChannel();
    return false;
  }
  gOutstanding.exists = gOutstanding.isWanted = true;
  gOutstanding.since = TheMachine().clock.Now();
  return true;
}

/// One read, whose limit is also that of the answer; what it returned. When the answer is still to
/// come, kDaemonAnswersLater; in all other cases without one the channel is lost.
std::ptrdiff_t ReadAnswer(std::span<char> buffer, Milliseconds limit) {
  const auto left = std::max(gDaemonLimits.answering - Since(gOutstanding.since), Milliseconds(0));
  const auto size = TheMachine().namedPipes.Read(gFd_d2a, buffer, std::min(limit, left));
  if (size <= 0) {
    if (size < 0 && errno == ETIMEDOUT && limit < left) return kDaemonAnswersLater;
    LoseChannel();
    return size;
  }
  gOutstanding.exists = false;
  if (gDaemonChannelWatcher != nullptr) gDaemonChannelWatcher->Answered();
  if (static_cast<std::size_t>(size) == buffer.size() && !DropRest()) LoseChannel();
  return size;
}

/// Takes the answer that an earlier beat did not wait for; whether nothing is outstanding any more.
bool TakeOutstanding(Milliseconds limit) {
  if (!gOutstanding.exists) return true;
  char answer[kLongestAnswer + 1];
  const auto size = ReadAnswer({answer, kLongestAnswer}, limit);
  if (size <= 0) return false;
  EndText(answer, size, nullptr);
  if (gOutstanding.isWanted) gOutstanding.late = answer;
  return true;
}

/// Sends the request once nothing is outstanding, and waits for the answer, all of it within
/// `limit`.
std::ptrdiff_t Exchange(std::string_view request, std::span<char> answer, Milliseconds limit) {
  const auto begun = TheMachine().clock.Now();
  if (!TakeOutstanding(limit)) return gFd_a2d < 0 ? -1 : kDaemonNotAsked;
  if (!SendRequest(request, std::max(limit - Since(begun), Milliseconds(0)))) return -1;
  return ReadAnswer(answer, std::max(limit - Since(begun), Milliseconds(0)));
}

std::ptrdiff_t Query(const char* request, char* answer, std::int32_t capacity, Milliseconds limit,
                     std::string* refusal) {
  *answer = '\0';
  if (refusal != nullptr) refusal->clear();
  if (gFd_a2d < 0 || capacity < 1) return -1;
  const std::span<char> buffer(answer, static_cast<std::size_t>(capacity) + 1);
  const auto size = Exchange(request, buffer.first(buffer.size() - 1), limit);
  if (size > 0) {
    EndText(buffer, size, refusal);
  } else {
    *answer = '\0';
  }
  return size;
}

}  // namespace

std::string_view DaemonGreeting() {
  return {kGreeting, kGreetingLength};
}

DaemonChannelOpening::~DaemonChannelOpening() {
  if (mReading >= 0) TheMachine().namedPipes.Close(mReading);
  if (mWriting >= 0) TheMachine().namedPipes.Close(mWriting);
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

DaemonChannelOpening::State DaemonChannelOpening::Advance() {
  auto& pipes = TheMachine().namedPipes;
  if (mWriting < 0) {
    mWriting = pipes.OpenForWriting(mRequests, Milliseconds(0));
    if (mWriting < 0) return State::kWaiting;
    if (!Greet()) return State::kFailed;
  }
  char greeting[kGreetingCapacity];
  const auto size = pipes.Read(mReading, greeting, Milliseconds(0));
  if (size == 0) return State::kFailed;
  if (size < 0) {
    mReadError = errno;
    return mReadError == ETIMEDOUT ? State::kWaiting : State::kFailed;
  }
  RemoveNames();
  return State::kOpen;
}

bool DaemonChannelOpening::Send(std::string_view request) {
  return TheMachine().namedPipes.Write(mWriting, request, gDaemonLimits.answering) ==
         static_cast<std::ptrdiff_t>(request.size());
}

std::ptrdiff_t DaemonChannelOpening::Receive(std::span<char> answer) {
  return TheMachine().namedPipes.Read(mReading, answer, Milliseconds(0));
}

void DaemonChannelOpening::ReportMissingGreeting() const {
  if (mReadError != 0) DiagnoseVerbatim("read error: %d", mReadError);
}

void DaemonChannelOpening::Take() {
  CloseDaemonChannel();
  gFd_a2d = std::exchange(mWriting, -1);
  gFd_d2a = std::exchange(mReading, -1);
}

DaemonConversation::DaemonConversation(Of of)
    : mOf(of), mLimit(of == Of::kBeat ? gDaemonLimits.beat : gDaemonLimits.command) {}

std::ptrdiff_t DaemonConversation::Query(const char* request, char* answer, std::int32_t capacity,
                                         std::string* refusal) {
  *answer = '\0';
  if (refusal != nullptr) refusal->clear();
  const auto left = mLimit - std::chrono::floor<Milliseconds>(mWaited);
  if (gFd_a2d < 0) return -1;
  if (left <= Milliseconds(0)) return kDaemonNotAsked;
  const auto begun = TheMachine().clock.Now();
  const auto size = lurkwell::Query(request, answer, capacity, left, refusal);
  mWaited += std::chrono::duration<double>(SecondsBetween(begun, TheMachine().clock.Now()));
  if (size == kDaemonAnswersLater) {
    mWaited = mLimit;
    gOutstanding.isWanted = mOf == Of::kBeat;
    if (gDaemonChannelWatcher != nullptr) gDaemonChannelWatcher->LeftOutstanding();
  }
  return size;
}

std::string DaemonConversation::TakeLateAnswer() {
  if (gFd_a2d >= 0) TakeOutstanding(Milliseconds(0));
  return std::exchange(gOutstanding.late, {});
}

std::ptrdiff_t QueryDaemon(const char* request, char* answer, std::int32_t capacity,
                           std::string* refusal) {
  // The answers themselves are limited.
  return Query(request, answer, capacity, std::chrono::hours(1), refusal);
}

void SettleDaemonChannel() {
  if (gFd_a2d < 0) return;
  if (gOutstanding.exists) {
    TakeOutstanding(Milliseconds(0));
    return;
  }
  // It has not been taken since the last look.
  gOutstanding.late.clear();
  if (!IsQuiet()) LoseChannel();
}

int CloseDaemonChannel() {
  int result = -1;
  gOutstanding = {};
  for (int* end : {&gFd_d2a, &gFd_a2d})
    if (*end >= 0) result = TheMachine().namedPipes.Close(std::exchange(*end, -1));
  return result;
}

}  // namespace lurkwell
