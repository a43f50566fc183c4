#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "recording/RecordingWriter.h"

namespace lurkwell {

/// Writes beats of some processes, of which all become different each time.
class BeatSource {
 public:
  /// `writer` stays empty where the file cannot be recorded to.
  explicit BeatSource(const std::string& path, std::int32_t processes = 100)
      : mProcesses(processes) {
    auto opened = RecordingFile::Open(path, {"test", "host", "boot", 2000});
    if (auto* file = std::get_if<std::unique_ptr<RecordingFile>>(&opened))
      writer.emplace(std::move(*file), RecordingLimits());
  }

  void Beat() {
    lurkwell::Beat beat;
    mElapsed += 2'000'000;
    beat.header.elapsed = mElapsed;
    beat.header.wall = 1'000'000'000'000'000 + mElapsed;
    for (std::int32_t pid = 1; pid <= mProcesses; ++pid) {
      auto& process = beat.changed.emplace_back();
      process.process = {pid, 1};
      process.texts = mTexts;
      for (std::size_t i = 0; i < kNumberCount; ++i) process.Set(i, Number(mElapsed, pid, i));
    }
    writer->Append(std::move(beat));
  }

  /// What a beat has, by the time it is of; looks like chance.
  static std::int64_t Number(std::int64_t elapsed, std::int32_t pid, std::size_t column) {
    auto bits = static_cast<std::uint64_t>(elapsed) * 0x9E3779B97F4A7C15ULL +
                static_cast<std::uint64_t>(pid) * 64 + column;
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9ULL;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBULL;
    return static_cast<std::int64_t>(bits ^ (bits >> 31));
  }

  std::optional<RecordingWriter> writer;

 private:
  std::int32_t mProcesses;
  std::int64_t mElapsed = 0;
  std::shared_ptr<const RecordedTexts> mTexts = std::make_shared<RecordedTexts>();
};

}  // namespace lurkwell
