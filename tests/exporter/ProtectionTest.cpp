#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <variant>

#include "exporter/ExportOptions.h"
#include "exporter/ListenAddress.h"
#include "exporter/MetricSource.h"
#include "exporter/MetricWriter.h"
#include "exporter/Passwords.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;

TEST(ConfigurationTest, SaysInWhichLineAMistakeIs) {
  const auto complaint = [](const std::string& text) {
    ExportOptions options;
    const auto error = AddConfiguration(text, "file", options);
    return error ? error->words : std::string();
  };
  EXPECT_EQ(complaint(""), "");
  EXPECT_EQ(complaint("[groups]\nlimit = 0\n"), "file:2: 'limit' needs a number from 1 to 10000");
  EXPECT_EQ(complaint("\n[groups]\nkinds = program, uint\n").find("file:3: there is no kind"), 0u);
  EXPECT_EQ(complaint("[server]\nopen = maybe\n"), "file:2: is 'yes' or 'no'");
  EXPECT_EQ(complaint("[srever]\nopen = yes").find("file:2: there is no section [srever]"), 0u);
  EXPECT_EQ(complaint("limit = 3").find("file:1: a section"), 0u);
  EXPECT_EQ(complaint("[groups]\nnonsense\nlimit = x\n"),
            "file:2: is neither NAME = VALUE nor [SECTION]");
  EXPECT_EQ(complaint("[groups]\nprogram = " + std::string(300, 'x')).find("file:2: the line"), 0u);
  EXPECT_EQ(complaint(std::string("[groups]\nli\0mit = 3", 20)).find("file:2: the line"), 0u);

  ExportOptions options;
  EXPECT_FALSE(
      AddConfiguration("# of ours\n[server]\naddress = [::1]:99\n[groups]\nkinds=unit\n"
                       "unit = a* b?\nunit = c.service\nlimit = 7\n"
                       "[figures]\nnetwork = no ; not yet",
                       "file", options));
  EXPECT_EQ(options.address, "[::1]:99");
  EXPECT_FALSE(options.rules[GroupKind::kProgram].isWanted);
  EXPECT_TRUE(options.rules[GroupKind::kUnit].Admits("c.service"));
  EXPECT_TRUE(options.rules[GroupKind::kUnit].Admits("bx"));
  EXPECT_FALSE(options.rules[GroupKind::kUnit].Admits("b"));
  EXPECT_EQ(options.rules.network, GroupRules::Network::kNone);
}

TEST(ListenAddressTest, TellsWhatOtherMachinesCanReach) {
  const auto loopback = [](const char* text) -> std::string {
    const auto read = ReadListenAddress(text);
    if (std::holds_alternative<ListenError>(read)) return "error";
    const auto& address = std::get<ListenAddress>(read);
    return (address.isLoopback ? "this machine " : "all ") + address.Text();
  };
  EXPECT_EQ(loopback("127.0.0.1:1"), "this machine 127.0.0.1:1");
  EXPECT_EQ(loopback("127.9.9.9:1"), "this machine 127.9.9.9:1");
  EXPECT_EQ(loopback("localhost:2"), "this machine 127.0.0.1:2");
  EXPECT_EQ(loopback("[::1]:19256"), "this machine [::1]:19256");
  EXPECT_EQ(loopback("[::ffff:127.0.0.1]:3"), "this machine [::ffff:127.0.0.1]:3");
  EXPECT_EQ(loopback("0.0.0.0:4"), "all 0.0.0.0:4");
  EXPECT_EQ(loopback(":5").substr(0, 4), "all ");
  EXPECT_EQ(loopback("[fe80::1]:6"), "all [fe80::1]:6");
  for (const char* bad : {"", "127.0.0.1", "127.0.0.1:", "127.0.0.1:65536", "127.0.0.1:-1",
                          "::1:80", "[127.0.0.1]:80", "[::1]80", "example.org:80", "1.2.3:80 x"})
    EXPECT_EQ(loopback(bad), "error") << bad;
}

TEST(ProtectionTest, OtherMachinesNeedAllOfItOrAWord) {
  ExportOptions options;
  const auto isRefused = [&](bool isLoopback) {
    return CheckProtection(options, isLoopback).has_value();
  };
  EXPECT_FALSE(isRefused(true));
  EXPECT_TRUE(isRefused(false));
  options.passwords = "p";
  EXPECT_TRUE(isRefused(false));
  options.certificate = "c";
  EXPECT_TRUE(isRefused(true));
  options.key = "k";
  EXPECT_FALSE(isRefused(false));
  options.passwords = {};
  EXPECT_TRUE(isRefused(false));
  options.isOpen = true;
  EXPECT_FALSE(isRefused(false));
}

class PasswordsTest : public ::testing::Test {
 protected:
  using Verdict = Passwords::Verdict;

  static Passwords Read(const std::string& text) {
    auto read = Passwords::Read(text);
    if (const auto* error = std::get_if<PasswordError>(&read)) ADD_FAILURE() << error->words;
    return std::get<Passwords>(std::move(read));
  }
  static std::string Complaint(const std::string& text) {
    const auto read = Passwords::Read(text);
    const auto* error = std::get_if<PasswordError>(&read);
    return error != nullptr ? error->words : "";
  }

  Passwords::Moment now{};
};

// "scraper" and "swordfish"; the hash is bcrypt's.
constexpr char kRight[] = "Basic c2NyYXBlcjpzd29yZGZpc2g=";
constexpr char kWrong[] = "Basic c2NyYXBlcjpzd29yZGZpc2s=";

TEST_F(PasswordsTest, AreJudgedByTheirHashesAndTriesRunOut) {
  auto passwords = Read("# who may\n" + *PasswordLine("scraper", "swordfish") + "\n");
  EXPECT_EQ(passwords.Judge(kRight, "a", now), Verdict::kRight);
  EXPECT_EQ(passwords.Judge("", "a", now), Verdict::kWrong);
  EXPECT_EQ(passwords.Judge("Bearer swordfish", "a", now), Verdict::kWrong);
  EXPECT_EQ(passwords.Judge("Basic !!", "a", now), Verdict::kWrong);
  // Somebody else's name with the same password.
  EXPECT_EQ(passwords.Judge("Basic eDpzd29yZGZpc2g=", "a", now), Verdict::kWrong);
  for (int i = 0; i < Passwords::kAttemptsInARow; ++i)
    EXPECT_EQ(passwords.Judge(kWrong, "b", now), Verdict::kWrong) << i;
  EXPECT_EQ(passwords.Judge(kWrong, "b", now), Verdict::kTooMany);
  // Whoever is known goes on, even from there, and others have tries of their own.
  EXPECT_EQ(passwords.Judge(kRight, "b", now), Verdict::kRight);
  EXPECT_EQ(passwords.Judge(kWrong, "c", now), Verdict::kWrong);
  now += Passwords::kBetweenAttempts;
  EXPECT_EQ(passwords.Judge(kWrong, "b", now), Verdict::kWrong);
  EXPECT_EQ(passwords.Judge(kWrong, "b", now), Verdict::kTooMany);
}

TEST_F(PasswordsTest, AreReadFromStrongHashesAlone) {
  auto other = Read("scraper:$2y$05$abcdefghijklmnopqrstuuZJ0vZPcgNNEgvpaH5LUJkoyVsPm0QjG\n");
  EXPECT_EQ(other.Judge(kRight, "a", now), Verdict::kWrong);
  EXPECT_EQ(Complaint(""), "there is nobody in it");
  EXPECT_EQ(Complaint("\n\nscraper\n"), "line 3: is not USER:HASH");
  for (const char* weak :
       {"swordfish", "$1$salt$qJH7.N4xYta3aEG/dfqo/0", "abJnggxhB/yWI", "$2y$99$nonsense", ""})
    EXPECT_EQ(Complaint(std::string("scraper:") + weak).find("line 1: has no hash"), 0u) << weak;
}

TEST(MetricFormatTest, IsWhatTheClientPrefers) {
  const auto isOpen = [](const char* accept) {
    return FormatFor(accept) == MetricFormat::kOpenMetrics;
  };
  EXPECT_TRUE(
      isOpen("application/openmetrics-text;version=1.0.0,application/openmetrics-text;"
             "version=0.0.1;q=0.75,text/plain;version=0.0.4;q=0.5,*/*;q=0.1"));
  EXPECT_TRUE(isOpen("Application/OpenMetrics-Text; Version=1.0.0 ; Q=0.4, text/plain;q=0.3"));
  for (const char* plain :
       {"", "*/*", "text/plain", "application/openmetrics-text;q=0", ";;,,=,q",
        "application/openmetrics-text;version=9.0.0", "application/openmetrics-text;q=0.3,text/*",
        "application/openmetrics-text;q=nan"})
    EXPECT_FALSE(isOpen(plain)) << plain;
}

TEST(MetricSourceTest, ScrapesThatComeTogetherShareAReading) {
  int readings = 0;
  bool fails = false;
  MetricSource source([&]() -> std::optional<Snapshot> {
    ++readings;
    if (fails) return std::nullopt;
    return Snapshot{};
  });
  const auto now = std::chrono::steady_clock::now();
  const auto first = source.Text(MetricFormat::kPrometheus, now);
  EXPECT_EQ(source.Text(MetricFormat::kPrometheus, now + 400ms), first);
  EXPECT_NE(source.Text(MetricFormat::kOpenMetrics, now + 400ms), nullptr);
  EXPECT_EQ(readings, 1);
  fails = true;
  EXPECT_EQ(source.Text(MetricFormat::kPrometheus, now + 1s), nullptr);
  EXPECT_EQ(readings, 2);
}

}  // namespace
}  // namespace lurkwell
