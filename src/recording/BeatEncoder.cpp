#include "recording/BeatEncoder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "recording/BeatFormat.h"
#include "recording/Bytes.h"

namespace lurkwell {
namespace {

/// One value that became another: what is written of it but for the scale.
struct Cell {
  FigureState state = FigureState::kUnread;
  std::uint64_t difference = 0;
};

void WriteCell(ByteWriter& out, const Cell& cell, std::int64_t scale) {
  if (cell.state != FigureState::kKnown) return out.Number(CodeOfState(cell.state));
  const auto scaled =
      static_cast<std::uint64_t>(static_cast<std::int64_t>(cell.difference) / scale);
  const std::uint64_t number = ZigZag(scaled);
  if (number <= kLargestPlain) return out.Number(number + kFirstPlainCode);
  out.Number(kEscapeCode);
  out.Number(number);
}

std::size_t ScaleOf(const std::vector<Cell>& cells) {
  std::size_t scale = 0;
  const auto fits = [&cells](std::int64_t by) {
    return std::ranges::all_of(cells, [by](const Cell& cell) {
      return static_cast<std::int64_t>(cell.difference) % by == 0;
    });
  };
  while (!fits(kScales[scale])) ++scale;
  return scale;
}

}  // namespace

/// What one call collects, a stream for each kind of thing.
struct BeatEncoder::Events {
  ByteWriter headers;
  std::uint64_t newTexts = 0;
  ByteWriter texts;
  std::uint64_t newProcesses = 0;
  ByteWriter processes;
  ByteWriter places;
  ByteWriter masks;
  std::array<std::vector<Cell>, kNumberCount> numbers;
  std::array<ByteWriter, kTextCount> textNumbers;
};

std::string BeatEncoder::Encode(std::span<const Beat> beats) {
  Events events;
  for (const auto& beat : beats) {
    const auto& header = beat.header;
    events.headers.Number(header.sequence - mLast.sequence);
    events.headers.Difference(header.wall, mLast.wall);
    events.headers.Difference(header.elapsed, mLast.elapsed);
    events.headers.Number(header.lost);
    for (std::size_t i = 0; i < kMachineCount; ++i)
      events.headers.Difference(header.machine[i], mLast.machine[i]);
    mLast = header;
    AddEnds(beat, events);
    AddChanges(beat, events);
  }
  ByteWriter out;
  out.Byte(kBeatFormat);
  out.Number(beats.size());
  out.Text(events.headers.Bytes());
  out.Number(events.newTexts);
  out.Text(events.texts.Bytes());
  out.Number(events.newProcesses);
  out.Text(events.processes.Bytes());
  out.Text(events.places.Bytes());
  out.Text(events.masks.Bytes());
  for (const auto& cells : events.numbers) {
    ByteWriter column;
    const auto scale = ScaleOf(cells);
    column.Byte(static_cast<std::uint8_t>(scale));
    for (const auto& cell : cells) WriteCell(column, cell, kScales[scale]);
    out.Text(column.Bytes());
  }
  for (const auto& column : events.textNumbers) out.Text(column.Bytes());
  return out.Bytes();
}

/// The places are in ascending order, each written as what it is more than the one before.
void BeatEncoder::AddEnds(const Beat& beat, Events& events) {
  std::vector<std::size_t> places;
  for (const auto& ended : beat.ended) {
    const auto found = mPlaces.find(ended.pid);
    if (found == mPlaces.end() || mProcesses[found->second].process != ended) continue;
    places.push_back(found->second);
    mPlaces.erase(found);
  }
  std::ranges::sort(places);
  events.places.Number(places.size());
  std::size_t last = 0;
  for (const auto place : places) events.places.Number(place - std::exchange(last, place));
}

void BeatEncoder::AddChanges(const Beat& beat, Events& events) {
  std::vector<std::pair<std::size_t, const RecordedProcess*>> changes;
  for (const auto& process : beat.changed)
    changes.emplace_back(PlaceOf(process.process, events), &process);
  std::ranges::sort(changes);
  ByteWriter places;
  std::uint64_t count = 0;
  std::size_t last = 0;
  for (const auto& [place, process] : changes) {
    if (!AddChange(*process, mProcesses[place], events)) continue;
    places.Number(place - std::exchange(last, place));
    ++count;
  }
  events.places.Number(count);
  events.places.Append(places);
}

/// False when the process is as it was.
bool BeatEncoder::AddChange(const RecordedProcess& process, RecordedProcess& known,
                            Events& events) {
  static const auto kNoTexts = std::make_shared<const RecordedTexts>();
  const bool isNew = known.texts == nullptr;
  if (isNew) known.texts = kNoTexts;
  std::uint64_t mask = 0;
  for (std::size_t i = 0; i < kNumberCount; ++i) {
    const bool isKnown = process.numberStates[i] == FigureState::kKnown;
    if (known.numberStates[i] == process.numberStates[i] &&
        (!isKnown || known.numbers[i] == process.numbers[i]))
      continue;
    mask |= std::uint64_t{1} << i;
    const auto difference = static_cast<std::uint64_t>(process.numbers[i]) -
                            static_cast<std::uint64_t>(known.numbers[i]);
    events.numbers[i].push_back({process.numberStates[i], isKnown ? difference : 0});
    // What is not known leaves the number that later differences are of.
    if (isKnown) known.numbers[i] = process.numbers[i];
  }
  for (std::size_t i = 0; i < kTextCount; ++i) {
    const bool isKnown = process.textStates[i] == FigureState::kKnown;
    const auto& text = (*process.texts)[i];
    if (known.textStates[i] == process.textStates[i] &&
        (!isKnown || known.texts == process.texts || (*known.texts)[i] == text))
      continue;
    mask |= std::uint64_t{1} << (kNumberCount + i);
    events.textNumbers[i].Number(isKnown ? TextNumber(text, events) + kFirstPlainCode
                                         : CodeOfState(process.textStates[i]));
  }
  if (mask == 0 && !isNew) return false;
  events.masks.Number(mask);
  known.numberStates = process.numberStates;
  known.textStates = process.textStates;
  known.texts = process.texts;
  return true;
}

std::size_t BeatEncoder::PlaceOf(ProcessIdentity process, Events& events) {
  const auto [found, isNew] = mPlaces.try_emplace(process.pid, mProcesses.size());
  if (!isNew) {
    if (mProcesses[found->second].process == process) return found->second;
    // Its last holder ended unseen.
    found->second = mProcesses.size();
  }
  mProcesses.emplace_back().process = process;
  ++events.newProcesses;
  events.processes.Difference(process.pid, mLastNew.pid);
  events.processes.Difference(static_cast<std::int64_t>(process.startStamp),
                              static_cast<std::int64_t>(mLastNew.startStamp));
  mLastNew = process;
  return found->second;
}

std::uint64_t BeatEncoder::TextNumber(const std::string& text, Events& events) {
  const auto [found, isNew] = mTexts.try_emplace(text, mTexts.size());
  if (isNew) {
    ++events.newTexts;
    events.texts.Text(text);
  }
  return found->second;
}

}  // namespace lurkwell
