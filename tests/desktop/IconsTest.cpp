#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QColor>
#include <QIcon>
#include <QImage>
#include <string>

#include "desktop/MadeUpProcesses.h"
#include "desktop/TestDesktop.h"
#include "platform/desktop/DesktopIconServices.h"
#include "platform/desktop/WindowList.h"

namespace lurkwell {
namespace {

std::uint32_t Middle(const std::shared_ptr<const Picture>& picture) {
  if (!picture) return 0;
  const auto side = static_cast<std::size_t>(picture->width);
  EXPECT_EQ(picture->pixels.size(), side * side);
  EXPECT_EQ(picture->height, picture->width);
  return picture->pixels[side / 2 * side + side / 2];
}

TEST(WindowIcons, TheBestOneIsTakenAndHostileOnesAreNot) {
  std::vector<std::uint32_t> icons = {2, 2, 1, 1, 1, 1, 4, 4};
  icons.resize(icons.size() + 16, 4);
  icons.insert(icons.end(), {1, 1, 9});
  EXPECT_EQ(BestWindowIcon(icons, 2)->width, 2);
  EXPECT_EQ(BestWindowIcon(icons, 3)->width, 4);
  EXPECT_EQ(BestWindowIcon(icons, 16)->width, 4);
  EXPECT_EQ(BestWindowIcon(icons, 1)->pixels.front(), 9U);
  using Words = std::vector<std::uint32_t>;
  for (const Words& hostile : {Words{}, Words{1}, Words{1, 1}, Words{0, 0, 1}, Words{2, 2, 1, 1, 1},
                               Words{0x10000, 0x10000, 1}, Words{0xffffffff, 0xffffffff, 1},
                               Words{0x80000000, 2, 1}, Words{1, 0xffffffff, 1}}) {
    EXPECT_FALSE(BestWindowIcon(hostile, 16)) << ::testing::PrintToString(hostile);
  }
  // What came before counts.
  icons.insert(icons.end(), {0xffff, 0xffff, 1});
  EXPECT_EQ(BestWindowIcon(icons, 16)->width, 4);
}

/// Applications without windows; what matters are their entries.
class EntryIcons : public ::testing::Test {
 protected:
  EntryIcons() {
    mFiles.Write("icons/made/index.theme",
                 "[Icon Theme]\nName=Made\nDirectories=scalable,8\n[scalable]\nSize=48\n"
                 "MinSize=8\nMaxSize=512\nType=Scalable\n[8]\nSize=8\nType=Fixed\n");
    mFiles.Write("icons/made/scalable/drawn.svg",
                 "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                 "<rect width='10' height='10' fill='#ff0000' fill-opacity='0.5'/></svg>");
    std::filesystem::create_directories(mFiles.Path() + "/icons/made/8");
    Paint(mFiles.Path() + "/icons/made/8/small.png", 8, 8, Qt::blue);
    QIcon::setThemeSearchPaths({QString::fromStdString(mFiles.Path() + "/icons")});
    QIcon::setThemeName("made");
  }
  static void Paint(const std::string& path, int width, int height, const QColor& colour) {
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    EXPECT_TRUE(image.save(QString::fromStdString(path), "PNG"));
  }
  /// The icon of an application whose entry names this one.
  std::shared_ptr<const Picture> Icon(const std::string& icon, int size) {
    const int pid = mNextPid++;
    const std::string id = "a" + std::to_string(pid);
    mProcesses.WriteEntry(id, "Name=x\nIcon=" + icon + "\n");
    mProcesses.Write(pid, 1, kAppSlice + ("app-" + id + "-1.scope"));
    DesktopProcessManager manager(mProcesses.Settings());
    return DesktopIconServices(manager).ApplicationIcon({1, static_cast<std::uint32_t>(pid)}, size);
  }

  TemporaryFolder mFiles;
  MadeUpProcesses mProcesses;
  int mNextPid = 100;
};

TEST_F(EntryIcons, ComeFromTheThemeOrFromFiles) {
  const auto drawn = Icon("drawn", 32);
  ASSERT_NE(drawn, nullptr);
  EXPECT_EQ(drawn->width, 32);
  // Half transparent red, multiplied.
  EXPECT_NEAR(static_cast<int>(Middle(drawn) >> 24), 0x80, 1);
  EXPECT_NEAR(static_cast<int>(Middle(drawn) >> 16 & 0xff), 0x80, 1);
  EXPECT_EQ(Middle(drawn) & 0xffff, 0U);
  const auto grown = Icon("small.png", 64);
  EXPECT_EQ(Middle(grown), 0xff0000ff);
  EXPECT_EQ(grown ? grown->pixels.front() : 0, 0xff0000ff);
  // A wide one leaves room above and below.
  Paint(mFiles.Path() + "/wide", 40, 10, Qt::green);
  const auto wide = Icon(mFiles.Path() + "/wide", 20);
  EXPECT_EQ(Middle(wide), 0xff00ff00);
  EXPECT_EQ(wide ? wide->pixels.front() : 1, 0U);
  const auto big = Icon(mFiles.Path() + "/icons/made/scalable/drawn.svg", 512);
  EXPECT_NEAR(static_cast<int>(Middle(big) >> 24), 0x80, 1);
}

TEST_F(EntryIcons, HostileOnesAreNone) {
  const std::string pipe = mFiles.Path() + "/pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  mFiles.Write("not.png", "not a picture");
  // A huge picture of which nothing is there.
  mFiles.Write("huge.ppm", "P6 60000 60000 255\n");
  for (const std::string& icon :
       {std::string(), std::string("unknown"), std::string("../made/8/small"), pipe,
        std::string("/dev/zero"), std::string("/"), mFiles.Path() + "/not.png",
        mFiles.Path() + "/huge.ppm", mFiles.Path() + "/missing", std::string("\xff\xfe")}) {
    EXPECT_EQ(Icon(icon, 16), nullptr) << icon;
  }
}

TEST(WindowIconsOnScreen, AreUsedWhenThereIsNoOtherAndReadAgainWhenTheyChange) {
  // A window manager might give icons to those that have none.
  TestDesktop desktop(TestDisplay::Manager::kNone);
  const auto client = desktop.StartClient("a", "A");
  desktop.PretendToManage({desktop.lastWindow});
  const auto psn = desktop.Await(client->Pid());
  DesktopIconServices icons(*desktop.manager);
  EXPECT_EQ(icons.ApplicationIcon(psn, 16), nullptr);
  const auto becomes = [&](std::uint32_t colour) {
    return ComesTrue([&] {
      desktop.Walk();
      return Middle(icons.ApplicationIcon(psn, 16)) == colour;
    });
  };
  TestDesktop::Tell(*client, "icon 48 48 80ff0000 2304");
  EXPECT_TRUE(becomes(0x80800000));
  EXPECT_EQ(icons.ApplicationIcon(psn, 16), icons.ApplicationIcon(psn, 16));
  TestDesktop::Tell(*client, "icon 65535 65535 ffffffff 100");
  EXPECT_TRUE(becomes(0));
  TestDesktop::Tell(*client, "icon 8 8 ff00ff00 64");
  EXPECT_TRUE(becomes(0xff00ff00));
  client->End();
  desktop.Walk();
  EXPECT_EQ(icons.ApplicationIcon(psn, 16), nullptr);
}

}  // namespace
}  // namespace lurkwell
