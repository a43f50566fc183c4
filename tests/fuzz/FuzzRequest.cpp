// Any bytes as one request to the helper: it does what a second reader of the rules says, and no
// more.
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "helper/RecordingSystem.h"
#include "helper/ReferenceReader.h"
#include "helper/Session.h"

namespace {

using namespace lurkwell::helper;
using namespace lurkwell::helper::testing;

struct World {
  World() {
    for (const int pid : {1, 2, 7, 50, 60, 4194304}) machine.processes[pid] = {};
    session->Begin(machine.Calls(), {.ownPid = 50, .peerPid = 60});
  }
  RecordingSystem machine;
  std::unique_ptr<Session> session = std::make_unique<Session>();
};

void Check(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static World world;
  if (size >= kRequestCapacity) return 0;
  const std::string request(reinterpret_cast<const char*>(data), size);
  RecordingSystem& machine = world.machine;
  machine.effects.clear();
  machine.opened.clear();
  machine.log.clear();
  const std::string answer(world.session->Answer(request));
  const Expectation expected = ReadRequest(request, 50, 60);
  Check(!answer.empty() && answer.size() <= kAnswerCapacity);
  Check(machine.open.empty());
  if (expected.kind == Expectation::kRefused) Check(answer.starts_with("!Error "));
  if (expected.kind == Expectation::kUser) Check(answer == "0");
  if (expected.kind == Expectation::kFigures)
    Check(answer == "!Error no such process\n" || (answer[0] == 'p' && answer.back() == '\n'));
  if (expected.kind != Expectation::kEffect || !answer.starts_with("ok"))
    Check(machine.effects.empty());
  else
    Check(machine.effects == std::vector<std::string>{expected.effect});
  return 0;
}
