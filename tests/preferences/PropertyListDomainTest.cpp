#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <clocale>
#include <limits>

#include "PreferenceTestSupport.h"
#include "platform/linux/PropertyListDomain.h"

namespace lurkwell {
namespace {

namespace fs = std::filesystem;

TEST(PropertyListDomain, EveryKindOfValueComesBackFromDisk) {
  const PreferenceFolder folder;
  const std::vector<std::pair<std::string, PreferenceValue>> values = {
      {"INT_MIN", std::numeric_limits<std::int64_t>::min()},
      {"INT_MAX", std::numeric_limits<std::int64_t>::max()},
      {"MINUS", std::int64_t{-1}},
      {"TENTH", 0.1},
      {"WHOLE_REAL", 2000.0},
      {"TINY", 5e-324},
      {"INFINITE", -std::numeric_limits<double>::infinity()},
      {"EMPTY", std::string()},
      {"SPACES", std::string("  \t\r\n ")},
      {"MARKUP", std::string("<a href=\"x\">&amp;]]>'")},
      {"<KEY> & ключ", std::string("\xEF\xA3\xBF é 中")},
      {"ARRAY", PreferenceArray{{{"A", 1.5}, {"B", std::int64_t{2}}}, {}, {{"C", "x"}}}},
      {"NO_ELEMENTS", PreferenceArray{}},
  };
  // The folders above do not exist yet.
  const fs::path deep = folder / "a/b";
  {
    PropertyListDomain domain(deep);
    for (const auto& [key, value] : values) {
      domain.SetValue(key, value);
      EXPECT_TRUE(domain.Synchronize());
    }
  }
  PropertyListDomain again(deep);
  for (const auto& [key, value] : values) {
    ASSERT_NE(again.Value(key), nullptr) << key;
    EXPECT_EQ(*again.Value(key), value) << key;
  }
  EXPECT_EQ(ModeOf(deep / PropertyListDomain::kFileName), 0600u);
  EXPECT_EQ(ModeOf(folder / "a"), 0700u);
}

TEST(PropertyListDomain, WhatIsRemovedIsGoneOnDiskWhateverAnotherInstanceStoresBesideIt) {
  const PreferenceFolder folder;
  PropertyListDomain one(folder.Path());
  one.SetValue("KEPT", std::int64_t{1});
  one.SetValue("REMOVED", std::int64_t{2});
  EXPECT_TRUE(one.Synchronize());
  PropertyListDomain other(folder.Path());
  other.SetValue("REMOVED", std::int64_t{3});
  other.SetValue("OTHER", std::int64_t{4});
  EXPECT_TRUE(other.Synchronize());
  one.RemoveValue("REMOVED");
  one.RemoveValue("NEVER_THERE");
  EXPECT_EQ(one.Value("REMOVED"), nullptr);
  EXPECT_TRUE(one.Synchronize());
  for (auto* domain : {&one, &other}) {
    EXPECT_TRUE(domain->Synchronize());
    EXPECT_EQ(domain->Value("REMOVED"), nullptr);
    ASSERT_NE(domain->Value("OTHER"), nullptr);
    ASSERT_NE(domain->Value("KEPT"), nullptr);
  }
  // And it may come back.
  one.SetValue("REMOVED", std::int64_t{5});
  EXPECT_TRUE(one.Synchronize());
  EXPECT_NE(PropertyListDomain(folder.Path()).Value("REMOVED"), nullptr);
}

TEST(PropertyListDomain, NumbersDoNotDependOnTheUsersLanguage) {
  const PreferenceFolder folder;
  const std::string compile =
      "localedef -i de_DE -f UTF-8 '" + folder / "de_DE.UTF-8" + "' >/dev/null";
  ASSERT_EQ(system(compile.c_str()), 0) << "the locale sources (package locales) are needed";
  setenv("LOCPATH", folder.Path().c_str(), 1);
  ASSERT_NE(setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
  char text[8];
  std::snprintf(text, sizeof text, "%.2f", 0.25);
  ASSERT_STREQ(text, "0,25");

  PropertyListDomain domain(folder.Path());
  domain.SetValue("QUARTER", 0.25);
  EXPECT_TRUE(domain.Synchronize());
  EXPECT_EQ(*PropertyListDomain(folder.Path()).Value("QUARTER"), PreferenceValue(0.25));
  EXPECT_NE(ReadFile(folder.PreferenceFile()).find("<real>0.25</real>"), std::string::npos);
}

TEST(PropertyListDomain, WhatIsNoPreferenceSurvivesARewrite) {
  const PreferenceFolder folder;
  WriteFile(
      folder.PreferenceFile(),
      PropertyList("<key>WHEN</key><date>2020-01-01T00:00:00Z</date>"
                   "<key>NESTED</key><dict><key>x</key><data>AAEC</data></dict>"
                   "<key>FLAG</key><true/><key>HUGE</key><integer>18446744073709551615</integer>"
                   "<key>A</key><array><dict><key>I</key><integer>0</integer></dict><string>stray"
                   "</string><dict><key>I</key><integer>2</integer><key>SEEN</key>"
                   "<date>2021-02-03T04:05:06Z</date></dict></array>"));
  PropertyListDomain domain(folder.Path());
  EXPECT_EQ(domain.Value("WHEN"), nullptr);
  EXPECT_EQ(IntegerAt(domain, "FLAG"), 1);
  EXPECT_EQ(*domain.Value("HUGE"), PreferenceValue(18446744073709551615.0));
  ASSERT_EQ(*domain.Value("A"), PreferenceValue(PreferenceArray{
                                    {{"I", std::int64_t{0}}}, {}, {{"I", std::int64_t{2}}}}));

  domain.SetValue("A", PreferenceArray{{{"I", std::int64_t{0}}}, {{"I", std::int64_t{2}}}});
  ASSERT_TRUE(domain.Synchronize());
  domain.SetValue("A", PreferenceArray{{{"J", 0.5}}, {{"I", std::int64_t{3}}}, {}});
  ASSERT_TRUE(domain.Synchronize());
  const std::string text = ReadFile(folder.PreferenceFile());
  for (const char* kept :
       {"2020-01-01T00:00:00Z", "AAEC", "<true/>", "18446744073709551615", "2021-02-03T04:05:06Z"})
    EXPECT_NE(text.find(kept), std::string::npos) << kept;
  PropertyListDomain again(folder.Path());
  EXPECT_EQ(*again.Value("A"), *domain.Value("A"));
}

TEST(PropertyListDomain, LinksAreFollowedAndStay) {
  const struct {
    const char* name;
    std::function<void(const fs::path& link, const fs::path& elsewhere)> prepare;
  } cases[] = {
      {"absolute",
       [](const auto& link, const auto& elsewhere) {
         WriteFile(elsewhere / "real", PropertyList("<key>OLD</key><integer>1</integer>"));
         fs::create_symlink(elsewhere / "real", link);
       }},
      {"relative and to others readable",
       [](const auto& link, const auto& elsewhere) {
         WriteFile(elsewhere / "real", PropertyList("<key>OLD</key><integer>1</integer>"));
         fs::permissions(elsewhere / "real", fs::perms::all);
         fs::create_symlink("../elsewhere/real", link);
       }},
      {"two links",
       [](const auto& link, const auto& elsewhere) {
         WriteFile(elsewhere / "real", PropertyList("<key>OLD</key><integer>1</integer>"));
         fs::create_symlink("real", elsewhere / "second");
         fs::create_symlink(elsewhere / "second", link);
       }},
      {"to nothing yet, in a folder to be made",
       [](const auto& link, const auto& elsewhere) {
         fs::create_symlink(elsewhere / "deeper" / "real", link);
       }},
  };
  for (const auto& example : cases) {
    SCOPED_TRACE(example.name);
    const PreferenceFolder folder;
    const fs::path config = folder / "config";
    const fs::path elsewhere = folder / "elsewhere";
    fs::create_directories(config);
    fs::create_directories(elsewhere);
    const fs::path link = config / PropertyListDomain::kFileName;
    example.prepare(link, elsewhere);
    const bool hasOld = fs::exists(link);
    PropertyListDomain domain(config);
    EXPECT_EQ(IntegerAt(domain, "OLD"), hasOld ? 1 : -1);
    domain.SetValue("NEW", std::int64_t{2});
    EXPECT_TRUE(domain.Synchronize());
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(fs::is_regular_file(link));
    EXPECT_EQ(ModeOf(link), 0600u);
    PropertyListDomain again(config);
    EXPECT_EQ(IntegerAt(again, "NEW"), 2);
    EXPECT_EQ(IntegerAt(again, "OLD"), hasOld ? 1 : -1);
  }
}

TEST(PropertyListDomain, WhatIsNoFileIsMovedAsideAndItsTargetLeftAlone) {
  const struct {
    const char* name;
    std::function<void(const fs::path&)> prepare;
  } cases[] = {
      {"folder", [](const auto& path) { fs::create_directory(path); }},
      {"pipe", [](const auto& path) { mkfifo(path.c_str(), 0600); }},
      {"link to itself", [](const auto& path) { fs::create_symlink(path, path); }},
      {"link to a device", [](const auto& path) { fs::create_symlink("/dev/zero", path); }},
      {"link to a folder", [](const auto& path) { fs::create_symlink("/dev", path); }},
  };
  for (const auto& example : cases) {
    SCOPED_TRACE(example.name);
    const PreferenceFolder folder;
    example.prepare(folder.PreferenceFile());
    testing::internal::CaptureStderr();
    PropertyListDomain domain(folder.Path());
    domain.SetValue("K", std::int64_t{2});
    EXPECT_TRUE(domain.Synchronize());
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
    EXPECT_EQ(folder.CountOf(".damaged-"), 1);
    EXPECT_EQ(fs::symlink_status(folder.PreferenceFile()).type(), fs::file_type::regular);
  }
  EXPECT_TRUE(fs::is_character_file("/dev/zero"));
}

TEST(PropertyListDomain, StraysOfKilledRunsGoAndNothingElse) {
  const PreferenceFolder folder;
  const std::string name = PropertyListDomain::kFileName;
  const std::vector<std::string> kept = {name + ".new", "." + name + ".short.new",
                                         "." + name + ".0123456789abcdeg.new",
                                         "." + name + ".0123456789abcdef.old"};
  const std::vector<std::string> strays = {"." + name + ".0123456789abcdef.new",
                                           "." + name + ".ffffffffffffffff.new"};
  for (const auto& file : kept) WriteFile(folder / file, "x");
  for (const auto& file : strays) WriteFile(folder / file, "x");
  {
    // While another instance writes, its temporary file stays.
    const FileLock other(folder.PreferenceFile() + ".lock", std::chrono::seconds(0));
    ASSERT_EQ(other.Outcome(), FileLock::State::kHeld);
    const PropertyListDomain domain(folder.Path());
    EXPECT_TRUE(fs::exists(folder / strays[0]));
  }
  const PropertyListDomain domain(folder.Path());
  for (const auto& file : kept) EXPECT_TRUE(fs::exists(folder / file)) << file;
  for (const auto& file : strays) EXPECT_FALSE(fs::exists(folder / file)) << file;
}

TEST(PropertyListDomain, AnotherInstancesWritesAreSeenAndMerged) {
  const PreferenceFolder folder;
  PropertyListDomain mine(folder.Path());
  PropertyListDomain other(folder.Path());
  mine.SetValue("MINE", std::int64_t{1});
  mine.SetValue("BOTH", std::int64_t{1});
  EXPECT_TRUE(mine.Synchronize());
  other.SetValue("OTHERS", std::int64_t{2});
  other.SetValue("BOTH", std::int64_t{2});
  EXPECT_TRUE(other.Synchronize());
  EXPECT_EQ(IntegerAt(other, "MINE"), 1);
  EXPECT_TRUE(mine.Synchronize());
  EXPECT_EQ(IntegerAt(mine, "OTHERS"), 2);
  EXPECT_EQ(IntegerAt(mine, "BOTH"), 2);
  // Setting what it already is must win over a change that was not seen.
  other.SetValue("MINE", std::int64_t{7});
  EXPECT_TRUE(other.Synchronize());
  mine.SetValue("MINE", std::int64_t{1});
  EXPECT_TRUE(mine.Synchronize());
  PropertyListDomain again(folder.Path());
  EXPECT_EQ(IntegerAt(again, "MINE"), 1);
  // A file that vanishes comes back whole.
  fs::remove(folder.PreferenceFile());
  mine.SetValue("MINE", std::int64_t{1});
  EXPECT_TRUE(mine.Synchronize());
  PropertyListDomain restored(folder.Path());
  EXPECT_EQ(IntegerAt(restored, "OTHERS"), 2);
}

TEST(PropertyListDomain, AnUnchangedSetDoesNotWrite) {
  const PreferenceFolder folder;
  PropertyListDomain domain(folder.Path());
  domain.SetValue("K", std::int64_t{1});
  ASSERT_TRUE(domain.Synchronize());
  struct stat before {};
  ASSERT_EQ(stat(folder.PreferenceFile().c_str(), &before), 0);
  domain.SetValue("K", std::int64_t{1});
  EXPECT_TRUE(domain.Synchronize());
  struct stat after {};
  ASSERT_EQ(stat(folder.PreferenceFile().c_str(), &after), 0);
  EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST(PropertyListDomain, NothingLargerIsWrittenThanCanBeReadBack) {
  const PreferenceFolder folder;
  PropertyListDomain domain(folder.Path());
  domain.SetValue("K", std::int64_t{1});
  ASSERT_TRUE(domain.Synchronize());
  domain.SetValue("BIG", std::string(5 << 20, 'x'));
  EXPECT_FALSE(domain.Synchronize());
  PropertyListDomain again(folder.Path());
  EXPECT_EQ(IntegerAt(again, "K"), 1);
  domain.SetValue("BIG", std::int64_t{2});
  EXPECT_TRUE(domain.Synchronize());
}

TEST(PropertyListDomain, TheFolderFollowsTheEnvironment) {
  setenv("HOME", "/home/somebody", 1);
  setenv("XDG_CONFIG_HOME", "/conf", 1);
  EXPECT_EQ(UserConfigurationFolder(), "/conf");
  setenv("XDG_CONFIG_HOME", "relative", 1);
  EXPECT_EQ(UserConfigurationFolder(), "/home/somebody/.config");
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(UserConfigurationFolder(), "/home/somebody/.config");
  unsetenv("HOME");
  EXPECT_THAT(UserConfigurationFolder(), testing::EndsWith("/.config"));
  PropertyListDomain homeless("");
  homeless.SetValue("K", std::int64_t{1});
  EXPECT_FALSE(homeless.Synchronize());
  EXPECT_EQ(IntegerAt(homeless, "K"), 1);
}

}  // namespace
}  // namespace lurkwell
