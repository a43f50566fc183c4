#include "recording/Recording.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

#include "platform/PrintableText.h"
#include "recording/Compression.h"
#include "recording/RecordingTables.h"
#include "recording/RecordingTime.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kUsualInterval = 2000;

std::string Quoted(const std::string& path) {
  return "'" + PrintableText(path) + "'";
}

}  // namespace

std::variant<std::unique_ptr<Recording>, std::string> Recording::Open(const std::string& path) {
  std::error_code error;
  if (const auto status = std::filesystem::status(path, error); !is_regular_file(status))
    return "cannot read " + Quoted(path) + ": " +
           (error            ? error.message()
            : exists(status) ? "it is no file"
                             : std::generic_category().message(ENOENT));
  // Beside a file on a read-only disk nothing can be made, and nobody writes to it.
  std::string words;
  for (const auto use : {Database::Use::kRead, Database::Use::kReadAlone}) {
    std::unique_ptr<Recording> recording(new Recording(path, use));
    words = recording->Prepare();
    if (words.empty()) return recording;
    if (!recording->mDatabase.IsRefused()) break;
  }
  return words;
}

std::string Recording::Prepare() {
  const auto application = mDatabase.NumberOf("PRAGMA application_id", -1);
  if (application < 0 && !mDatabase.IsDamaged())
    return "cannot read " + Quoted(mPath) + ": " + mDatabase.Words();
  if (application != kRecordingApplication) return Quoted(mPath) + " is no recording";
  if (mDatabase.NumberOf("PRAGMA user_version") != kRecordingVersion)
    return Quoted(mPath) + " was recorded by a later version of Lurkwell";
  // Both of the same moment, as a recorder may be closing a minute.
  mDatabase.Run("BEGIN");
  auto rows = mDatabase.Prepare(
      "SELECT id, session, layout, first_sequence, last_sequence, first_wall, last_wall, busiest "
      "FROM block ORDER BY first_sequence");
  while (rows.Step())
    mMinutes.push_back({rows.Number(0), rows.Number(1), rows.Number(2),
                        static_cast<std::uint64_t>(rows.Number(3)),
                        static_cast<std::uint64_t>(rows.Number(4)), rows.Number(5), rows.Number(6),
                        rows.Number(7)});
  bool isDamaged = mDatabase.IsDamaged();
  auto open = ReadOpenBeats(mDatabase);
  isDamaged = isDamaged || mDatabase.IsDamaged();
  ReadSessions();
  mDatabase.Run("COMMIT");
  if (!open.payloads.empty()) {
    mOpenPayloads = std::move(open.payloads);
    mMinutes.push_back({.session = open.session, .layout = open.layout});
    if (const auto headers = HeadersOf(mMinutes.size() - 1); headers.empty()) {
      mMinutes.pop_back();
    } else {
      auto& minute = mMinutes.back();
      minute.firstSequence = headers.front().sequence;
      minute.lastSequence = headers.back().sequence;
      minute.firstWall = headers.front().wall;
      minute.lastWall = headers.back().wall;
      minute.busiest = BusiestOf(headers);
    }
  }
  // What stands in a row has to hold for the searches below.
  std::uint64_t last = 0;
  for (const auto& minute : mMinutes) {
    isDamaged =
        isDamaged || minute.firstSequence <= last || minute.lastSequence < minute.firstSequence;
    last = minute.lastSequence;
  }
  if (isDamaged) return Quoted(mPath) + " is damaged";
  return mMinutes.empty() ? Quoted(mPath) + " holds no beat yet" : std::string();
}

void Recording::ReadSessions() {
  auto rows = mDatabase.Prepare("SELECT id, interval FROM session");
  while (rows.Step()) mIntervals.emplace_back(rows.Number(0), rows.Number(1));
}

std::int64_t Recording::IntervalOf(std::int64_t session) const {
  const auto found =
      std::ranges::find(mIntervals, session, &std::pair<std::int64_t, std::int64_t>::first);
  return found == mIntervals.end() || found->second < 1 ? kUsualInterval : found->second;
}

std::unique_ptr<Recording::Loaded> Recording::Load(std::size_t place) {
  const auto& minute = mMinutes[place];
  const auto layout = ReadLayout(mDatabase, minute.layout);
  if (!layout) return nullptr;
  auto loaded = std::make_unique<Loaded>(*layout);
  loaded->minute = place;
  if (minute.block == 0) {
    loaded->payloads = mOpenPayloads;
  } else {
    auto row = mDatabase.Prepare("SELECT data FROM block WHERE id = ?");
    if (!row.Bind(minute.block).Step()) return nullptr;
    auto bytes = Decompressed(row.Bytes(0));
    if (!bytes) return nullptr;
    loaded->payloads.push_back(std::move(*bytes));
  }
  BeatDecoder headers(*layout);
  for (auto& payload : loaded->payloads) {
    // A last beat that makes no sense takes none of those before it with it.
    if (!headers.Begin(payload)) break;
    loaded->headers.insert(loaded->headers.end(), headers.Headers().begin(),
                           headers.Headers().end());
  }
  if (loaded->headers.empty() || !loaded->decoder.Begin(loaded->payloads.front())) return nullptr;
  return loaded;
}

std::vector<BeatHeader> Recording::HeadersOf(std::size_t minute) {
  if (mLoaded != nullptr && mLoaded->minute == minute) return mLoaded->headers;
  const auto loaded = Load(minute);
  return loaded == nullptr ? std::vector<BeatHeader>() : loaded->headers;
}

std::size_t Recording::MinuteWith(std::uint64_t sequence) const {
  const auto behind = std::ranges::upper_bound(mMinutes, sequence, {}, &Minute::firstSequence);
  return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - mMinutes.begin() - 1, 0));
}

std::string Recording::GoTo(std::uint64_t sequence) {
  const auto minute = MinuteWith(sequence);
  const bool isAhead = IsAtBeat() && mLoaded->minute == minute && Header().sequence <= sequence;
  if (isAhead) return GoWithin(*mLoaded, sequence);
  auto loaded = Load(minute);
  if (loaded == nullptr) return Damaged(minute);
  auto words = GoWithin(*loaded, sequence);
  if (words.empty()) mLoaded = std::move(loaded);
  return words;
}

std::string Recording::GoWithin(Loaded& loaded, std::uint64_t sequence) {
  while (loaded.at >= loaded.headers.size() || loaded.headers[loaded.at].sequence < sequence) {
    while (!loaded.decoder.Next()) {
      const bool isLast = loaded.payload + 1 >= loaded.payloads.size();
      if (loaded.decoder.HasFailed() || isLast ||
          !loaded.decoder.Begin(loaded.payloads[++loaded.payload])) {
        auto words = Damaged(loaded.minute);
        if (&loaded == mLoaded.get()) mLoaded.reset();
        return words;
      }
    }
    ++loaded.at;
  }
  return {};
}

std::string Recording::Damaged(std::size_t place) const {
  const auto& minute = mMinutes[place];
  return Quoted(mPath) + " is damaged from " + RecordedMomentText(minute.firstWall) + " to " +
         RecordedMomentText(minute.lastWall);
}

/// The latest one that has the time within it, since the calendar may have been set back; else the
/// latest one before it.
std::optional<std::size_t> Recording::MinuteAt(std::int64_t wall) const {
  std::optional<std::size_t> before;
  for (std::size_t i = mMinutes.size(); i-- > 0;) {
    const auto& minute = mMinutes[i];
    if (minute.firstWall <= wall && wall <= minute.lastWall) return i;
    if (minute.lastWall < wall && (!before || mMinutes[*before].lastWall < minute.lastWall))
      before = i;
  }
  return before;
}

std::string Recording::NothingAt(std::int64_t wall) const {
  const Minute* before = nullptr;
  const Minute* after = nullptr;
  for (const auto& minute : mMinutes) {
    if (minute.lastWall <= wall) before = &minute;
    if (after == nullptr && minute.firstWall > wall) after = &minute;
  }
  std::string words = "nothing was recorded at " + RecordedMomentText(wall);
  if (before != nullptr)
    words += "; the last before it is of " + RecordedMomentText(before->lastWall);
  if (after != nullptr)
    words += "; the first after it is of " + RecordedMomentText(after->firstWall);
  return words;
}

std::string Recording::GoToTime(std::int64_t wall) {
  const auto minute = MinuteAt(wall);
  if (!minute) return NothingAt(wall);
  const auto headers = HeadersOf(*minute);
  if (headers.empty()) return Damaged(*minute);
  auto best = headers.begin();
  for (auto at = headers.begin(); at != headers.end(); ++at)
    if (at->wall <= wall) best = at;
  // Three beats may come late before they are missed.
  const auto patience = IntervalOf(mMinutes[*minute].session) * 3000 + 1'000'000;
  const bool isLost = std::next(best) != headers.end() && std::next(best)->lost > 0;
  if (wall - best->wall > patience || (isLost && wall > best->wall + patience / 3))
    return NothingAt(wall);
  return GoTo(best->sequence);
}

std::optional<std::uint64_t> Recording::NextPeak(std::uint64_t behind) {
  std::vector<std::int64_t> ranks;
  for (const auto& minute : mMinutes) ranks.push_back(minute.busiest);
  const auto rank = ranks.begin() + static_cast<std::ptrdiff_t>(ranks.size() * 9 / 10);
  std::ranges::nth_element(ranks, rank);
  const auto busiestOf = [this](std::size_t place) {
    return place < mMinutes.size() ? mMinutes[place].busiest : -1;
  };
  for (std::size_t i = MinuteWith(behind); i < mMinutes.size(); ++i) {
    if (busiestOf(i) < *rank || busiestOf(i) < busiestOf(i + 1) || busiestOf(i) <= busiestOf(i - 1))
      continue;
    const auto headers = HeadersOf(i);
    std::optional<std::uint64_t> busiest;
    double most = -1;
    for (std::size_t k = 1; k < headers.size(); ++k) {
      const double share = BusyShare(headers[k - 1], headers[k]).value_or(-1);
      if (share <= most) continue;
      most = share;
      busiest = headers[k].sequence;
    }
    if (busiest && *busiest > behind) return busiest;
  }
  return std::nullopt;
}

std::optional<std::uint64_t> Recording::Following() const {
  const auto& headers = mLoaded->headers;
  if (mLoaded->at + 1 < headers.size()) return headers[mLoaded->at + 1].sequence;
  if (mLoaded->minute + 1 < mMinutes.size()) return mMinutes[mLoaded->minute + 1].firstSequence;
  return std::nullopt;
}

std::optional<std::uint64_t> Recording::Preceding() const {
  if (mLoaded->at > 0) return mLoaded->headers[mLoaded->at - 1].sequence;
  if (mLoaded->minute > 0) return mMinutes[mLoaded->minute - 1].lastSequence;
  return std::nullopt;
}

bool Recording::FollowsDirectly() const {
  if (Header().lost > 0) return false;
  if (mLoaded->at > 0) return true;
  return mLoaded->minute > 0 && mMinutes[mLoaded->minute - 1].session == Session() &&
         mMinutes[mLoaded->minute - 1].lastSequence + 1 == Header().sequence;
}

}  // namespace lurkwell
