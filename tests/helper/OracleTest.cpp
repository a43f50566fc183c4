// A million requests, each read by the helper and by a second reader of the same rules.
#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "helper/RecordingSystem.h"
#include "helper/ReferenceReader.h"
#include "helper/Session.h"

namespace lurkwell::helper::testing {
namespace {

class Generator {
 public:
  std::string Next() {
    std::string request = Form();
    // Half of them stay well formed.
    for (unsigned damages = Below(2) * Below(4); damages > 0; --damages) Damage(request);
    return request;
  }

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(mRandom() % limit); }

  std::string OneOf(std::initializer_list<const char*> texts) {
    return *(texts.begin() + Below(static_cast<unsigned>(texts.size())));
  }

  std::string Number() {
    if (Below(3) == 0)
      return OneOf({"0",
                    "1",
                    "-1",
                    "-2",
                    "2",
                    "50",
                    "60",
                    "4194304",
                    "4194305",
                    "4294967297",
                    "9223372036854775808",
                    "18446744073709551618",
                    "+5",
                    " 5",
                    "0x5",
                    "5 6",
                    "05",
                    "5.",
                    "\u0665",
                    "",
                    "-0",
                    "-20",
                    "-21",
                    "20",
                    "21",
                    "4294967276"});
    return std::to_string(Below(80));
  }

  std::string Form() {
    const std::string verb = OneOf({"kill_normal", "kill_harsh", "kill_halt", "kill_cont"});
    switch (Below(8)) {
      case 0:
        return "geteuid";
      case 1:
        return Figures();
      case 2:
      case 3:
        return "Lkw Action Request:\nrenice " + Number() + ' ' + (Below(2) == 0 ? "-" : "") +
               Number();
      default:
        return "Lkw Action Request:\n" + verb + ' ' + Number();
    }
  }

  std::string Figures() {
    std::string text = "Lkw Info Extraction:\n";
    for (unsigned lines = Below(4); lines > 0; --lines)
      text += "pid_internal" + OneOf({"", "_thread_time"}) + OneOf({"", "_basic_info"}) +
              OneOf({"", "_events_info"}) + ' ' + Number() + '\n';
    return text;
  }

  void Damage(std::string& text) {
    const unsigned place = Below(static_cast<unsigned>(text.size()) + 1);
    switch (Below(6)) {
      case 0:
        text.insert(place, 1, static_cast<char>(Below(256)));
        break;
      case 1:
        text.insert(place, OneOf({" ", "\n", "0", "-", "\t", "\r"}));
        break;
      case 2:
        text.erase(place, 1 + Below(3));
        break;
      case 3:
        text += Form();
        break;
      case 4:
        text.resize(place);
        break;
      default:
        if (place < text.size()) text[place] = static_cast<char>(text[place] ^ (1 << Below(8)));
    }
  }

  std::mt19937 mRandom{20261121};
};

TEST(OracleTest, AMillionRequestsAreReadAlikeAndTouchOnlyWhomTheyName) {
  RecordingSystem machine;
  for (int pid = 1; pid < 80; ++pid) machine.processes[pid] = {};
  machine.processes[4194304] = {};
  const auto session = std::make_unique<Session>();
  session->Begin(machine.Calls(), {.ownPid = 50, .peerPid = 60, .keptFiles = 1000});
  Generator generator;
  std::array<int, 4> seen{};
  for (int count = 0; count < 1000000; ++count) {
    const std::string request = generator.Next();
    machine.effects.clear();
    machine.opened.clear();
    machine.log.clear();
    const std::string answer(session->Answer(request));
    const Expectation expected = ReadRequest(request, 50, 60);
    ++seen[expected.kind];
    if (expected.kind == Expectation::kEffect && answer == "!Error no such process\n") {
      ASSERT_FALSE(
          machine.processes.contains(std::stoi(expected.effect.substr(expected.effect.find(' ')))))
          << request;
      ASSERT_TRUE(machine.effects.empty()) << request;
    } else if (expected.kind == Expectation::kEffect) {
      ASSERT_EQ(machine.effects, std::vector<std::string>{expected.effect}) << request;
      ASSERT_EQ(answer, "ok") << request;
    } else {
      ASSERT_TRUE(machine.effects.empty()) << request;
      const bool refused = answer.starts_with("!Error");
      const bool isEmpty = answer == "!Error no such process\n";
      ASSERT_EQ(expected.kind == Expectation::kUser, answer == "0") << request;
      ASSERT_EQ(expected.kind == Expectation::kRefused, refused && !isEmpty) << request << answer;
    }
  }
  for (const int kind : seen) EXPECT_GT(kind, 20000);
}

/// Requests that ran together in the pipe, or came in pieces: nothing happens but what a piece that
/// is a whole request by itself asks for.
TEST(OracleTest, SplitAndJoinedRequestsDoNothingOfTheirOwn) {
  RecordingSystem machine;
  for (int pid = 1; pid < 2000; ++pid) machine.processes[pid] = {};
  const auto session = std::make_unique<Session>();
  session->Begin(machine.Calls(), {.ownPid = 50, .peerPid = 60});
  std::vector<std::string> seeds = {"geteuid"};
  for (const char* pid : {"7", "12", "345", "1999"}) {
    for (const char* verb : {"kill_normal ", "kill_harsh ", "kill_halt ", "kill_cont "})
      seeds.push_back(std::string("Lkw Action Request:\n") + verb + pid);
    for (const char* nice : {" -19", " 0", " 20", " 7"})
      seeds.push_back(std::string("Lkw Action Request:\nrenice ") + pid + nice);
    for (const char* word : {"pid_internal ", "pid_internal_thread_time_basic_info_events_info "})
      seeds.push_back(std::string("Lkw Info Extraction:\n") + word + pid + "\n");
  }
  const auto check = [&](const std::string& request) {
    machine.effects.clear();
    session->Answer(request);
    const Expectation expected = ReadRequest(request, 50, 60);
    std::vector<std::string> effects;
    if (expected.kind == Expectation::kEffect) effects.push_back(expected.effect);
    ASSERT_EQ(machine.effects, effects) << request;
  };
  for (const std::string& first : seeds) {
    for (std::size_t place = 1; place < first.size(); ++place) {
      check(first.substr(0, place));
      check(first.substr(place));
    }
    for (const std::string& second : seeds)
      for (std::size_t place = 1; place <= second.size(); ++place) {
        const std::string joined = first + second.substr(0, place);
        check(joined);
        // A verb line that more text follows is never carried out.
        if (first.starts_with("Lkw Action") && second[0] != '0' && place > 3) {
          ASSERT_TRUE(machine.effects.empty()) << joined;
        }
      }
  }
}

}  // namespace
}  // namespace lurkwell::helper::testing
