// A million requests, each read by the helper and by a second reader of the same rules.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
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

  /// A request that is well formed but for its numbers.
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

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(mRandom() % limit); }

  std::string OneOf(const std::vector<std::string>& texts) {
    return texts[Below(static_cast<unsigned>(texts.size()))];
  }

  std::string Number() {
    static const std::vector<std::string> kOdd = Pieces(
        "0|1|-1|-2|2|50|60|4194304|4194305|4294967297|9223372036854775808|18446744073709551618|+5|"
        " 5|0x5|5 6|05|5.|\u0665||-0|-20|-21|20|21|4294967276",
        '|');
    return Below(3) == 0 ? OneOf(kOdd) : std::to_string(Below(80));
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

class OracleTest : public ::testing::Test {
 protected:
  OracleTest() {
    for (int pid = 1; pid < 80; ++pid) mMachine.processes[pid] = {};
    mMachine.processes[4194304] = {};
    mSession->Begin(mMachine.Calls(), {.ownPid = 50, .peerPid = 60});
  }

  /// What the second reader makes of a request, which is what the helper has to make of it.
  Expectation::Kind Check(const std::string& request) {
    mMachine.effects.clear();
    mMachine.opened.clear();
    mMachine.log.clear();
    const std::string answer(mSession->Answer(request));
    const auto [kind, effect] = ReadRequest(request, 50, 60);
    const bool isNobody = answer == "!Error no such process\n";
    if (kind == Expectation::kEffect && isNobody) {
      EXPECT_FALSE(mMachine.processes.contains(std::stoi(effect.substr(effect.find(' ')))))
          << request;
    } else if (kind == Expectation::kEffect) {
      EXPECT_EQ(mMachine.effects, std::vector<std::string>{effect}) << request;
      EXPECT_EQ(answer, "ok") << request;
      return kind;
    }
    EXPECT_TRUE(mMachine.effects.empty()) << request;
    EXPECT_TRUE(kind != Expectation::kRefused || mMachine.opened.empty()) << request;
    EXPECT_EQ(kind == Expectation::kUser, answer == "0") << request;
    EXPECT_EQ(kind == Expectation::kRefused, answer.starts_with("!Error") && !isNobody)
        << request << answer;
    return kind;
  }

  RecordingSystem mMachine;
  std::unique_ptr<Session> mSession = std::make_unique<Session>();
  Generator mGenerator;
};

TEST_F(OracleTest, AMillionRequestsAreReadAlikeAndTouchOnlyWhomTheyName) {
  const char* asked = std::getenv("LURKWELL_REQUESTS");
  const int requests = asked != nullptr ? std::atoi(asked) : 1000000;
  std::array<int, 4> seen{};
  for (int count = 0; count < requests && !HasFailure(); ++count) ++seen[Check(mGenerator.Next())];
  for (const int kind : seen) EXPECT_GT(kind, requests / 50);
}

}  // namespace
}  // namespace lurkwell::helper::testing
