// Any bytes as what the kernel says of a process and of the machine: the helper answers in lines of
// its form, logs one line, and no name changes a figure. The files' texts are separated by a
// byte 30.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "helper/RecordingSystem.h"
#include "helper/Session.h"

namespace {

using namespace lurkwell::helper;
using namespace lurkwell::helper::testing;

struct World {
  World() { session->Begin(machine.Calls(), {.ownPid = 50, .peerPid = 60}); }
  RecordingSystem machine;
  std::unique_ptr<Session> session = std::make_unique<Session>();
};

void Check(bool holds) {
  if (!holds) std::abort();
}

/// "property pid number" in each line, with six digits behind a point in times.
void CheckLines(std::string_view answer) {
  while (!answer.empty()) {
    const std::size_t end = answer.find('\n');
    Check(end != std::string_view::npos);
    const std::string_view line = answer.substr(0, end), value = line.substr(line.rfind(' ') + 1);
    answer.remove_prefix(end + 1);
    Check(line.starts_with("pid_") && std::count(line.begin(), line.end(), ' ') == 2);
    const std::size_t digits = value.find_first_not_of("0123456789");
    Check(digits != 0 && std::min(digits, value.size()) <= 20);
    if (digits != value.npos) Check(value[digits] == '.' && value.size() == digits + 7);
    Check(line.find("_time ") == line.npos || digits != value.npos);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static World world;
  std::array<std::string, 4> texts;
  for (std::size_t at = 0, text = 0; at < size; ++at)
    if (data[at] == 30 && text < 3)
      ++text;
    else
      texts[text] += static_cast<char>(data[at]);
  RecordingSystem& machine = world.machine;
  const auto figures = [&](const std::string& stat) {
    machine.processes[7] = {.status = texts[1], .io = texts[2], .stat = stat};
    if (stat.empty()) machine.processes.erase(7);
    return std::string(
        world.session->Answer("Lkw Info Extraction:\n"
                              "pid_internal_thread_time_basic_info_events_info 7\n"
                              "pid_internal_thread_time 0\n"));
  };
  machine.machineStat = texts[3];
  const std::string& stat = texts[0];
  const std::string answer = figures(stat);
  CheckLines(answer);
  const bool exists = answer.starts_with("pid_user_time 7 ");
  Check(std::count(answer.begin(), answer.end(), '\n') == (exists ? 18 : 2));
  machine.log.clear();
  machine.opened.clear();
  machine.effects.clear();
  world.session->Answer("Lkw Action Request:\nrenice 7 5");
  Check(machine.log.size() == 1);
  for (const char character : machine.log[0]) Check(character >= ' ' && character < 0x7f);
  if (exists) Check(figures("7 (x" + stat.substr(stat.rfind(')'))) == answer);
  Check(machine.open.empty());
  return 0;
}
