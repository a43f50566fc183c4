#include "helper/Session.h"

#include "helper/Actions.h"
#include "helper/Figures.h"
#include "helper/Request.h"

namespace lurkwell::helper {

namespace {
constexpr std::string_view kMalformed = "!Error malformed request\n";
}  // namespace

void Session::Begin(const System& system, const Surroundings& surroundings) {
  mSystem = &system;
  mSurroundings = surroundings;
}

std::string_view Session::Answer(std::string_view request) {
  std::string_view rest = request;
  if (request == kUserQuestion) {
    TextWriter answer(mAnswer, sizeof mAnswer);
    answer.Add(mSurroundings.startUser);
    return answer.Text();
  }
  if (TakePrefix(rest, kFiguresHeader))
    return AreFiguresLines(rest) ? AnswerFigures(rest) : kMalformed;
  ActionRequest action;
  if (TakePrefix(rest, kActionHeader) && ParseAction(rest, action))
    return CarryOut(*mSystem, mSurroundings, mStarts, action);
  return kMalformed;
}

/// An answer that is full ends with the last process that fits whole.
std::string_view Session::AnswerFigures(std::string_view lines) {
  TextWriter answer(mAnswer, sizeof mAnswer);
  FiguresLine line;
  while (TakeFiguresLine(lines, line) &&
         AddFigures(*mSystem, mSurroundings, mStarts, line, answer)) {
  }
  return !answer.Text().empty() ? answer.Text() : kNoSuchProcess;
}

}  // namespace lurkwell::helper
