#include "DiskStates.h"

#include <algorithm>
#include <string_view>

namespace lurkwell {
namespace {

using Kind = DiskCall::Kind;
constexpr std::size_t kSector = 512;

void WriteAt(std::string& file, std::size_t at, std::string_view bytes) {
  if (file.size() < at + bytes.size()) file.resize(at + bytes.size());
  file.replace(at, bytes.size(), bytes);
}

/// Sectors are those of the file, not of the call.
void WriteSectors(std::string& file, std::size_t at, std::string_view bytes,
                  const std::function<bool()>& keeps) {
  while (!bytes.empty()) {
    const auto size = std::min(bytes.size(), kSector - at % kSector);
    if (keeps()) WriteAt(file, at, bytes.substr(0, size));
    at += size;
    bytes.remove_prefix(size);
  }
}

}  // namespace

std::map<int, std::string> DiskStates::Files(std::span<const DiskCall> made,
                                             const Keeps& keeps) const {
  std::map<int, std::size_t> synced;
  for (std::size_t i = 0; i < made.size(); ++i)
    if (made[i].kind == Kind::kSyncFile) synced[made[i].file] = i;
  std::map<int, std::string> files;
  for (std::size_t i = 0; i < made.size(); ++i) {
    const auto& call = made[i];
    const auto last = synced.find(call.file);
    const bool isSafe = last != synced.end() && i < last->second;
    if (call.kind == Kind::kWrite)
      WriteSectors(files[call.file], call.at, call.bytes, [&] { return isSafe || keeps(); });
    else if (call.kind == Kind::kTruncate && (isSafe || keeps()))
      files[call.file].resize(call.at);
  }
  return files;
}

DiskContents DiskStates::At(std::size_t made, std::mt19937& random) const {
  auto calls = mCalls.first(made);
  enum Manner : std::uint8_t { kLost, kThere, kUpToAMoment, kMixed };
  const auto manner = static_cast<Manner>(random() % 4);
  // Disks that keep the order stop at some moment behind the last sync.
  std::size_t lastSync = 0;
  for (std::size_t i = 0; i < calls.size(); ++i)
    if (calls[i].kind == Kind::kSyncFile || calls[i].kind == Kind::kSyncFolder) lastSync = i + 1;
  if (manner == kUpToAMoment) calls = calls.first(lastSync + random() % (made - lastSync + 1));
  const Keeps keeps = [&] { return manner == kMixed ? random() % 2 == 0 : manner != kLost; };
  const auto files = Files(calls, keeps);
  std::size_t named = 0;
  for (std::size_t i = 0; i < calls.size(); ++i)
    if (calls[i].kind == Kind::kSyncFolder) named = i;
  // Where each name leads, and where it would if all had come to the disk.
  std::map<std::string, int> names;
  std::map<std::string, int> wanted;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    const auto& call = calls[i];
    const bool isNamed = i < named || keeps();
    if (call.kind == Kind::kCreate) {
      wanted[call.name] = call.file;
      if (isNamed) names[call.name] = call.file;
    } else if (call.kind == Kind::kUnlink) {
      wanted.erase(call.name);
      if (isNamed) names.erase(call.name);
    } else if (call.kind == Kind::kRename) {
      const int file = wanted[call.name];
      wanted.erase(call.name);
      wanted[call.newName] = file;
      if (!isNamed) continue;
      names.erase(call.name);
      names[call.newName] = file;
    }
  }
  DiskContents contents;
  for (const auto& [name, file] : names) {
    const auto found = files.find(file);
    contents[name] = found != files.end() ? found->second : std::string();
  }
  return contents;
}

}  // namespace lurkwell
