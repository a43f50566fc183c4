#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "platform/desktop/DesktopEntries.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

using std::chrono::milliseconds;

std::string Entry(const std::string& lines) {
  return "[Desktop Entry]\nType=Application\n" + lines;
}

std::string NameOf(const DesktopEntries::Entry& entry) {
  return entry ? entry->name : "-";
}

std::string LocalName(const std::string& locale) {
  const auto entry = ParseDesktopEntry(
      Entry("Name=plain\nName[de]=de\nName[de_AT]=at\nName[sr@latin]=latin\nName[fr]=\n"),
      LocaleVariants(locale));
  return entry ? entry->name : "-";
}

TEST(DesktopEntries, NamesAreInTheUsersLanguage) {
  EXPECT_EQ(LocalName("de_AT.UTF-8"), "at");
  EXPECT_EQ(LocalName("de_CH.UTF-8@euro"), "de");
  EXPECT_EQ(LocalName("sr_RS@latin"), "latin");
  EXPECT_EQ(LocalName("fr_FR"), "plain");
  for (const char* none : {"", "C", "C.UTF-8", "POSIX", "@", ".", "_"}) {
    EXPECT_EQ(LocalName(none), "plain") << none;
  }
}

TEST(DesktopEntries, ReadsWhatMakesSenseAndPassesOverTheRest) {
  const auto entry = ParseDesktopEntry(
      "# comment\r\nName=outside\n[Other]\nName=other\n[Desktop Entry]\n"
      " Name = A\\sb\\\\n \t\r\nName=second\nType=Application\n=\n[\nName=lost\n[Desktop Entry]\n"
      "Icon=\xff\xfe\nNoDisplay=true\nCategories=X;FileManager\nno equals\n#Icon=no\n"
      "Exec=/usr/bin/env A=\"1 2\" \"/opt/my \\\"app\\\"/run\" %F\\",
      {});
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->name, "A b\\n");
  EXPECT_EQ(entry->icon, "\xff\xfe");
  EXPECT_EQ(entry->executable, "run");
  EXPECT_TRUE(entry->noDisplay && entry->fileManager && !entry->hidden);
  EXPECT_FALSE(ParseDesktopEntry("[Desktop Entry]\nType=Link\nName=x\n", {}));
  EXPECT_FALSE(ParseDesktopEntry(Entry("Icon=x\n"), {}));
  EXPECT_FALSE(ParseDesktopEntry(std::string("\0[Desktop Entry]\0=\0", 19), {}));
  // Programs that say nothing about which application they run.
  for (const char* command : {"python3.11 x.py", "sh -c x", "env", "A=", "\"", ""}) {
    const auto vague = ParseDesktopEntry(Entry(std::string("Name=x\nExec=") + command + "\n"), {});
    EXPECT_EQ(vague ? vague->executable : "none", "") << command;
  }
  EXPECT_EQ(ParseDesktopEntry(Entry("Name=x\nExec=htop\nTerminal=true\n"), {})->executable, "");
}

class DesktopEntryFolders : public ::testing::Test {
 protected:
  void Write(const std::string& path, const std::string& lines) const {
    mTree.Write(path, Entry(lines));
  }
  std::string Match(const std::string& windowClass, const std::string& instance,
                    const std::string& program) const {
    return NameOf(mEntries.Match(windowClass, instance, program));
  }

  TemporaryFolder mTree;
  DesktopEntries mEntries{{mTree.Path() + "/home", mTree.Path() + "/none", mTree.Path() + "/usr"},
                          "en",
                          milliseconds(0)};
};

TEST_F(DesktopEntryFolders, MatchByClassThenIdThenProgram) {
  Write("usr/one.desktop", "Name=By class\nStartupWMClass=Thing\n");
  Write("usr/thing.desktop", "Name=By id\nExec=run\n");
  Write("usr/org.example.Viewer.desktop", "Name=By last part\n");
  Write("usr/a.desktop", "Name=Not in menus\nNoDisplay=true\nExec=program\n");
  Write("usr/b.desktop", "Name=By program\nExec=/opt/program --new\n");
  EXPECT_TRUE(mEntries.Refresh());
  EXPECT_FALSE(mEntries.Refresh());
  EXPECT_EQ(Match("Thing", "", ""), "By class");
  EXPECT_EQ(Match("", "Thing", "program"), "By class");
  EXPECT_EQ(Match("THING", "", "program"), "By id");
  EXPECT_EQ(Match("org.example.viewer", "", ""), "By last part");
  EXPECT_EQ(Match("x", "viewer", "program"), "By last part");
  EXPECT_EQ(Match("x", "y", "program"), "By program");
  EXPECT_EQ(Match("", "", ""), "-");
}

TEST_F(DesktopEntryFolders, TheFirstFolderCountsAndChangesAreSeen) {
  Write("usr/app.desktop", "Name=System's\n");
  Write("usr/deep/down/app.desktop", "Name=Deep\n");
  Write("usr/hidden.desktop", "Name=Hidden\n");
  Write("home/hidden.desktop", "Hidden=true\n");
  mEntries.Refresh();
  EXPECT_EQ(NameOf(mEntries.WithId("app")), "System's");
  EXPECT_EQ(NameOf(mEntries.WithId("deep-down-app")), "Deep");
  EXPECT_EQ(NameOf(mEntries.WithId("hidden")), "-");
  Write("home/app.desktop", "Name=Mine\n");
  Write("none/new.desktop", "Name=New folder\n");
  EXPECT_TRUE(mEntries.Refresh());
  EXPECT_EQ(NameOf(mEntries.WithId("app")), "Mine");
  EXPECT_EQ(NameOf(mEntries.WithId("new")), "New folder");
  Write("usr/deep/down/more.desktop", "Name=More\n");
  EXPECT_TRUE(mEntries.Refresh());
  EXPECT_EQ(NameOf(mEntries.WithId("deep-down-more")), "More");
}

TEST_F(DesktopEntryFolders, HostileFilesAreLeftOut) {
  namespace fs = std::filesystem;
  Write("usr/good.desktop", "Name=Good\n");
  mTree.Write("usr/big.desktop", Entry("Name=Big\n") + std::string(600 * 1024, '#'));
  mTree.Write("usr/line.desktop", Entry("Name=Line\nExec=") + std::string(500 * 1024, '"'));
  ASSERT_EQ(::mkfifo((mTree.Path() + "/usr/pipe.desktop").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", mTree.Path() + "/usr/zero.desktop");
  fs::create_symlink(mTree.Path() + "/usr", mTree.Path() + "/usr/loop");
  fs::create_directory(mTree.Path() + "/usr/folder.desktop");
  std::string deep = "usr";
  for (int i = 0; i < 30; ++i) deep += "/d";
  Write(deep + "/deep.desktop", "Name=Deep\n");
  EXPECT_TRUE(mEntries.Refresh());
  EXPECT_FALSE(mEntries.Refresh());
  EXPECT_EQ(Match("good", "", ""), "Good");
  EXPECT_EQ(Match("line", "", ""), "Line");
  for (const char* id : {"big", "pipe", "zero", "folder", "loop-good", "deep"}) {
    EXPECT_EQ(Match(id, "", ""), "-") << id;
  }
}

}  // namespace
}  // namespace lurkwell
