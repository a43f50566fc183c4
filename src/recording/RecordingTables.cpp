#include "recording/RecordingTables.h"

#include <algorithm>
#include <cmath>

namespace lurkwell {

using namespace recorded;

std::string JoinedNames(const std::vector<std::string>& names) {
  std::string joined;
  for (const auto& name : names) joined += (joined.empty() ? "" : ",") + name;
  return joined;
}

std::vector<std::string> SplitNames(std::string_view joined) {
  std::vector<std::string> names;
  while (!joined.empty()) {
    const auto end = std::min(joined.find(','), joined.size());
    names.emplace_back(joined.substr(0, end));
    joined.remove_prefix(std::min(end + 1, joined.size()));
  }
  return names;
}

std::optional<RecordedLayout> ReadLayout(Database& database, std::int64_t id) {
  auto statement = database.Prepare("SELECT numbers, texts, machine FROM layout WHERE id = ?");
  if (!statement.Bind(id).Step()) return std::nullopt;
  RecordedLayout layout{SplitNames(statement.Bytes(0)), SplitNames(statement.Bytes(1)),
                        SplitNames(statement.Bytes(2))};
  if (!layout.IsPossible()) return std::nullopt;
  return layout;
}

OpenBeats ReadOpenBeats(Database& database) {
  OpenBeats beats;
  auto rows = database.Prepare("SELECT session, layout, data FROM open_beat ORDER BY sequence");
  while (rows.Step()) {
    beats.session = rows.Number(0);
    beats.layout = rows.Number(1);
    beats.payloads.emplace_back(rows.Bytes(2));
  }
  return beats;
}

std::optional<double> BusyShare(const BeatHeader& before, const BeatHeader& after) {
  const auto busy = static_cast<double>(after.machine[kBusyTime]) -
                    static_cast<double>(before.machine[kBusyTime]);
  const auto idle = static_cast<double>(after.machine[kIdleTime]) -
                    static_cast<double>(before.machine[kIdleTime]);
  if (busy < 0 || idle < 0 || busy + idle <= 0) return std::nullopt;
  return busy / (busy + idle);
}

std::int64_t BusiestOf(const std::vector<BeatHeader>& headers) {
  double busiest = 0;
  for (std::size_t i = 1; i < headers.size(); ++i)
    busiest = std::max(busiest, BusyShare(headers[i - 1], headers[i]).value_or(0));
  return std::llround(busiest * 1000);
}

}  // namespace lurkwell
