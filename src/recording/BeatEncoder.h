#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "recording/RecordedBeat.h"

namespace lurkwell {

/// Writes beats as differences from those before. docs/recording.md describes the bytes. The first
/// beat of an encoder has to hold every process; BeatDecoder reads the texts in the same order.
class BeatEncoder {
 public:
  /// The next beats, column by column. A process that is told of and is as it was takes nothing.
  std::string Encode(std::span<const Beat> beats);

 private:
  struct Events;

  void AddEnds(const Beat& beat, Events& events);
  void AddChanges(const Beat& beat, Events& events);
  bool AddChange(const RecordedProcess& process, RecordedProcess& known, Events& events);
  std::size_t PlaceOf(ProcessIdentity process, Events& events);
  std::uint64_t TextNumber(const std::string& text, Events& events);

  /// In the order of their first beats; those that have ended stay.
  std::vector<RecordedProcess> mProcesses;
  std::unordered_map<std::int32_t, std::size_t> mPlaces;
  std::map<std::string, std::uint64_t, std::less<>> mTexts;
  BeatHeader mLast;
  ProcessIdentity mLastNew;
};

}  // namespace lurkwell
