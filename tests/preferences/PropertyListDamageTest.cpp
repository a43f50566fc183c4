#include <gtest/gtest.h>

#include "PreferenceTestSupport.h"
#include "platform/linux/PropertyListDocument.h"

namespace lurkwell {
namespace {

// A file as the program leaves it.
std::string RealFile() {
  const PreferenceFolder folder;
  PropertyListDomain domain(folder.Path());
  for (int i = 0; i < 60; ++i) domain.SetValue("SETTING_" + std::to_string(i), std::int64_t{i});
  domain.SetValue("ALPHA", 0.7);
  PreferenceArray windows;
  for (int i = 0; i < 5; ++i)
    windows.push_back({{"NAME", "proc <" + std::to_string(i)}, {"LEFT", std::int64_t{i}}});
  domain.SetValue("LOGGING_WINDOW", windows);
  EXPECT_TRUE(domain.Synchronize());
  return ReadFile(folder.PreferenceFile());
}

bool IsAccepted(const std::string& text) {
  const char* why = nullptr;
  const auto document = PropertyListDocument::Parse(text, why);
  if (document) document->Values();
  EXPECT_EQ(document.has_value(), why == nullptr);
  return document.has_value();
}

TEST(PropertyListDamage, AFileCutOffAnywhereIsNotTakenForAShorterOne) {
  const std::string text = RealFile();
  const std::size_t end = text.rfind('>');
  for (std::size_t length = 0; length <= end; ++length)
    ASSERT_FALSE(IsAccepted(text.substr(0, length))) << length;
  EXPECT_TRUE(IsAccepted(text.substr(0, end + 1)));
}

TEST(PropertyListDamage, AByteChangedAnywhereNeitherCrashesNorIsOverwritten) {
  const std::string text = RealFile();
  const std::string replacements(
      "\0<>/& \xFF"
      "9",
      8);
  std::size_t refused = 0;
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (const char replacement : replacements) {
      std::string damaged = text;
      damaged[at] = replacement;
      ++count;
      const bool isAccepted = IsAccepted(damaged);
      refused += isAccepted ? 0 : 1;
      // Through the whole way on disk, now and then.
      if (count % 97 != 0) continue;
      const PreferenceFolder folder;
      WriteFile(folder.PreferenceFile(), damaged);
      testing::internal::CaptureStderr();
      PropertyListDomain domain(folder.Path());
      domain.SetValue("NEW", std::int64_t{1});
      ASSERT_TRUE(domain.Synchronize());
      const std::string said = testing::internal::GetCapturedStderr();
      ASSERT_EQ(said.empty(), isAccepted) << said;
      ASSERT_EQ(domain.TakeComplaint().empty(), isAccepted) << "windows say it, too";
      ASSERT_EQ(domain.TakeComplaint(), "");
      ASSERT_EQ(folder.CountOf(".damaged-"), isAccepted ? 0 : 1);
      for (const auto& name : folder.Names()) {
        if (name.find(".damaged-") != std::string::npos) {
          ASSERT_EQ(ReadFile(folder / name), damaged);
        }
      }
      PropertyListDomain again(folder.Path());
      ASSERT_EQ(IntegerAt(again, "NEW"), 1);
    }
  }
  EXPECT_GT(count, 12000U);
  EXPECT_GT(refused, count / 2);
}

TEST(PropertyListDamage, HostileFilesAreRefusedBeforeTheParserSeesThem) {
  const auto nested = [](int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += "<array>";
    for (int i = 0; i < depth; ++i) text += "</array>";
    return PropertyList("<key>A</key>" + text);
  };
  EXPECT_TRUE(IsAccepted(nested(kMaximumPropertyListDepth - 2)));
  const std::pair<const char*, std::string> hostile[] = {
      {"one level too deep", nested(kMaximumPropertyListDepth - 1)},
      {"deep enough for any stack", nested(250000)},
      {"too large", PropertyList("<key>A</key><string>" + std::string(4 << 20, 'x') + "</string>")},
      {"entities", "<!DOCTYPE plist [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>" +
                       PropertyList("<key>A</key><string>&x;</string>")},
      {"unknown entity", PropertyList("<key>A</key><string>&x;</string>")},
      {"levels hidden behind a quote", PropertyList("<key>A</key><array a=\"></array>\"></array>")},
      {"levels hidden in a comment", PropertyList("<!--><array>--></array>")},
      {"levels hidden in a text section", PropertyList("<![CDATA[<array>]]>")},
      {"levels hidden in an instruction", PropertyList("<?x \"?><array>\"?></array>")},
      {"two roots", PropertyList("") + PropertyList("")},
      {"another root", "<plist><array/></plist>"},
      {"binary form", std::string("bplist00\xD0\x08", 10)},
      {"16-bit text", std::string("\xFE\xFF\0<\0p", 6)},
      {"nothing at all", ""},
  };
  for (const auto& [name, text] : hostile) EXPECT_FALSE(IsAccepted(text)) << name;
  EXPECT_TRUE(IsAccepted("\xEF\xBB\xBF" + PropertyList("<!-- by hand -->")));
}

TEST(PropertyListDamage, AnUnusableFileThatCannotBeMovedIsNeverWrittenOver) {
  const PreferenceFolder folder;
  const std::string damaged = "<plist><dict>";
  WriteFile(folder.PreferenceFile(), damaged);
  ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.PreferenceFile().c_str(), 0644), 0);
  const pid_t child = Fork([&] {
    if (setgid(61001) != 0 || setuid(61001) != 0) return 2;
    testing::internal::CaptureStderr();
    PropertyListDomain domain(folder.Path());
    for (int i = 0; i < 5; ++i) {
      domain.SetValue("K", std::int64_t{i});
      if (domain.Synchronize() || IntegerAt(domain, "K") != i) return 3;
    }
    const std::string said = testing::internal::GetCapturedStderr();
    return std::count(said.begin(), said.end(), '\n') == 2 ? 0 : 4;
  });
  EXPECT_EQ(WaitFor(child), 0);
  EXPECT_EQ(ReadFile(folder.PreferenceFile()), damaged);
}

TEST(PropertyListDamage, DamageDuringARunCostsNothing) {
  const PreferenceFolder folder;
  PropertyListDomain domain(folder.Path());
  domain.SetValue("K", std::int64_t{1});
  ASSERT_TRUE(domain.Synchronize());
  WriteFile(folder.PreferenceFile(), "half an edi");
  domain.SetValue("L", std::int64_t{2});
  EXPECT_TRUE(domain.Synchronize());
  EXPECT_EQ(folder.CountOf(".damaged-"), 1);
  PropertyListDomain again(folder.Path());
  EXPECT_EQ(IntegerAt(again, "K"), 1);
  EXPECT_EQ(IntegerAt(again, "L"), 2);
}

}  // namespace
}  // namespace lurkwell
