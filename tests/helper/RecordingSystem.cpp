#include "helper/RecordingSystem.h"

#include <errno.h>

#include <algorithm>
#include <cstring>

namespace lurkwell::helper::testing {

namespace {

RecordingSystem* gSystem;
int gNextDescriptor;

int Remember(const std::string& what) {
  gSystem->open[++gNextDescriptor] = what;
  return gNextDescriptor;
}

std::string StatLine(std::int32_t pid, const RecordingSystem::Process& process) {
  std::string line = std::to_string(pid) + " (" + process.name + ")";
  for (int field = 3; field <= 52; ++field) {
    const auto found = process.fields.find(field);
    line += ' ';
    if (found != process.fields.end())
      line += found->second;
    else if (field == 3)
      line += 'S';
    else
      line += field == 22 ? std::to_string(process.start) : std::string("0");
  }
  return line + '\n';
}

std::string TextOf(const std::string& path) {
  if (path == "/proc/stat") return gSystem->machineStat;
  const std::int32_t pid = std::atoi(path.c_str() + 6);
  const auto found = gSystem->processes.find(pid);
  if (found == gSystem->processes.end()) return {};
  if (path.ends_with("/stat"))
    return found->second.stat.empty() ? StatLine(pid, found->second) : found->second.stat;
  return path.ends_with("/status") ? found->second.status : found->second.io;
}

int OpenProcess(std::int32_t pid) {
  return gSystem->processes.contains(pid) ? Remember("process " + std::to_string(pid)) : -ESRCH;
}

int SignalProcess(int process, int signal) {
  if (gSystem->beforeEffect != nullptr) gSystem->beforeEffect(*gSystem);
  gSystem->effects.push_back("signal " + gSystem->open.at(process).substr(8) + ' ' +
                             std::to_string(signal));
  return gSystem->signalError;
}

int SetNice(std::int32_t pid, int nice) {
  if (gSystem->beforeEffect != nullptr) gSystem->beforeEffect(*gSystem);
  gSystem->effects.push_back("nice " + std::to_string(pid) + ' ' + std::to_string(nice));
  return gSystem->niceError;
}

std::ptrdiff_t ReadFile(const char* path, char* buffer, std::size_t capacity) {
  gSystem->opened.emplace_back(path);
  const std::string text = TextOf(path);
  if (text.empty()) return -ENOENT;
  const std::size_t size = std::min(capacity, text.size());
  std::memcpy(buffer, text.data(), size);
  return static_cast<std::ptrdiff_t>(size);
}

int Close(int descriptor) {
  if (gSystem->open.erase(descriptor) != 1) std::abort();
  return 0;
}

void Log(std::string_view line) {
  gSystem->log.emplace_back(line);
}

constexpr System kCalls = {OpenProcess, SignalProcess, SetNice, ReadFile, Close, Log};

}  // namespace

RecordingSystem::RecordingSystem() {
  gSystem = this;
}

const System& RecordingSystem::Calls() const {
  return kCalls;
}

}  // namespace lurkwell::helper::testing
