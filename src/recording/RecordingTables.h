#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "recording/BeatDecoder.h"
#include "recording/Database.h"

namespace lurkwell {

/// The tables of a recording; docs/recording.md describes them.

/// "LkwR".
inline constexpr std::int64_t kRecordingApplication = 0x4C6B7752;
/// Of the tables. A file of a later one is refused.
inline constexpr std::int64_t kRecordingVersion = 1;

inline constexpr char kRecordingTables[] = R"(
CREATE TABLE layout(id INTEGER PRIMARY KEY, numbers TEXT NOT NULL, texts TEXT NOT NULL,
  machine TEXT NOT NULL, UNIQUE(numbers, texts, machine));
CREATE TABLE session(id INTEGER PRIMARY KEY, program TEXT NOT NULL, host TEXT NOT NULL,
  boot TEXT NOT NULL, interval INTEGER NOT NULL);
CREATE TABLE block(id INTEGER PRIMARY KEY, session INTEGER NOT NULL, layout INTEGER NOT NULL,
  first_sequence INTEGER NOT NULL, last_sequence INTEGER NOT NULL, first_wall INTEGER NOT NULL,
  last_wall INTEGER NOT NULL, busiest INTEGER NOT NULL, data BLOB NOT NULL);
CREATE INDEX block_by_time ON block(first_wall);
CREATE TABLE open_beat(sequence INTEGER PRIMARY KEY, session INTEGER NOT NULL,
  layout INTEGER NOT NULL, wall INTEGER NOT NULL, data BLOB NOT NULL);
)";

/// Names with commas between them.
std::string JoinedNames(const std::vector<std::string>& names);
std::vector<std::string> SplitNames(std::string_view joined);

/// Nothing for one that there is not, or that makes no sense.
std::optional<RecordedLayout> ReadLayout(Database& database, std::int64_t id);

/// The beats of the open minute, in their order.
struct OpenBeats {
  std::int64_t session = 0;
  std::int64_t layout = 0;
  std::vector<std::string> payloads;
};
OpenBeats ReadOpenBeats(Database& database);

/// How busy the processors were in the busiest of these beats, in thousandths; the first beat is
/// only what the second is compared with.
std::int64_t BusiestOf(const std::vector<BeatHeader>& headers);

/// From one beat to the next; nothing where the counters do not tell.
std::optional<double> BusyShare(const BeatHeader& before, const BeatHeader& after);

}  // namespace lurkwell
