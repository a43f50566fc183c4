#include "app/ReplayedBeats.h"

namespace lurkwell {

std::string ReplayedBeats::Begin(std::int64_t wall) {
  auto& source = mPlayer.Source();
  if (auto words = source.GoToTime(wall); !words.empty()) return words;
  const auto header = source.Header();
  mFirst = header.sequence;
  mBeginsAt = header.wall;
  const auto before = source.FollowsDirectly() ? source.Preceding() : std::nullopt;
  // A neighbour that cannot be read takes the rates with it and nothing else.
  if (before && mPlayer.GoTo(*before).empty()) return {};
  return mPlayer.GoTo(mFirst);
}

bool ReplayedBeats::GoOn() {
  if (!IsShown()) return mPlayer.Next();
  const auto from = mPlayer.Clock().Now();
  do {
    if (!mPlayer.Next()) return false;
  } while (MicrosecondsOf(mPlayer.Clock().Now() - from) < mBetween);
  return true;
}

}  // namespace lurkwell
