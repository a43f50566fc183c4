#include "helper/Session.h"

#include <cstring>

#include "helper/Actions.h"
#include "helper/Figures.h"
#include "helper/Request.h"

namespace lurkwell::helper {

namespace {
constexpr std::string_view kMalformed = "!Error malformed request\n";
constexpr std::string_view kNobody = "!Error no such process\n";
}  // namespace

void Session::Begin(const System& system, const Surroundings& surroundings) {
  mSystem = &system;
  mSurroundings = surroundings;
  mFiles.Begin(system, surroundings);
  mLastAsked = system.milliseconds() - 2 * kPause;
  mProcessor = -1;
}

std::string_view Session::Answer(std::string_view request) {
  std::string_view rest = request;
  const bool asksFigures = TakePrefix(rest, kFiguresHeader);
  if (asksFigures && AreFiguresLines(rest)) return AnswerFigures(request);
  mRequestSize = 0;
  if (request == kUserQuestion) {
    TextWriter answer(mAnswer, sizeof mAnswer);
    answer.AddNumber(mSurroundings.startUser);
    return answer.Text();
  }
  ActionRequest action;
  if (!asksFigures && TakePrefix(rest, kActionHeader) && ParseAction(rest, action)) {
    // What becomes of the process is seen at once, even if it does not run for it.
    mFiles.MemoryOf(action.pid) = {};
    return CarryOut(*mSystem, mSurroundings, mFiles, action);
  }
  return kMalformed;
}

bool Session::Continues(std::string_view request) const {
  return mRequestSize > 0 && request.size() > mRequestSize &&
         std::memcmp(request.data(), mRequest, mRequestSize) == 0 &&
         mSystem->milliseconds() - mRequestBegun <= kYoung;
}

/// Two processes that take turns cost twice as much on two processors, each of which has to be
/// woken by the other, as on one. The application stays where it is during a beat.
void Session::JoinPeer() {
  const std::uint32_t now = mSystem->milliseconds();
  const bool begins = now - mLastAsked > kPause;
  mLastAsked = now;
  Stat peer;
  if (!begins || !ReadStat(*mSystem, mSurroundings.peerPid, peer) || mProcessor == peer.processor)
    return;
  mProcessor = mSystem->stayOn(peer.processor) < 0 ? -1 : std::int64_t{peer.processor};
}

/// The answer stands in mAnswer from the request before; only the lines that are new are added. An
/// answer that is full ends with the last process that fits whole.
std::string_view Session::AnswerFigures(std::string_view request) {
  JoinPeer();
  mFiles.Sweep();
  if (!Continues(request)) {
    mRequestSize = kFiguresHeader.size();
    mRequestBegun = mSystem->milliseconds();
    mAnswerSize = 0;
  }
  TextWriter answer(mAnswer, sizeof mAnswer, mAnswerSize);
  std::string_view rest = request;
  rest.remove_prefix(mRequestSize);
  FiguresLine line;
  bool fits = true;
  while (fits && TakeFiguresLine(rest, line))
    fits = AddFigures(*mSystem, mSurroundings, mFiles, line, answer);
  mAnswerSize = answer.Size();
  std::memcpy(mRequest, request.data(), request.size());
  mRequestSize = fits ? request.size() : 0;
  return mAnswerSize > 0 ? answer.Text() : kNobody;
}

}  // namespace lurkwell::helper
