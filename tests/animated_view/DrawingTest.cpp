// Frames drawn by Mesa's software renderer and read back.
#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>

#include "animated_view/FrameContents.h"
#include "animated_view/LabelPicture.h"
#include "animated_view/OffscreenFrame.h"
#include "animated_view/OnADisplay.h"

namespace lurkwell {
namespace {

std::shared_ptr<const Picture> Plain(int width, int height, std::uint32_t pixel) {
  return std::make_shared<const Picture>(Picture{
      width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height), pixel)});
}

/// "R,G,B,A" as they are in the frame, colours multiplied with alpha.
std::string At(const QImage& image, int x, int y) {
  const auto* bytes = image.constScanLine(y) + x * 4;
  std::string text;
  for (int i = 0; i < 4; ++i) text += (i > 0 ? "," : "") + std::to_string(bytes[i]);
  return text;
}

class Drawing : public OnADisplay, public testing::WithParamInterface<OffscreenFrame::Kind> {
 protected:
  Drawing() : OnADisplay(TestDisplay::Manager::kNone) {
    look.width = 200;
    look.height = 100;
    renderer.SetBackground(Plain(16, 16, 0xff0a1e46));  // 10, 30, 70
  }

  QImage Draw(const std::vector<DrawnProcess>& processes) {
    if (!frame) frame = std::make_unique<OffscreenFrame>(GetParam());
    EXPECT_TRUE(frame->IsUsable());
    const QImage image = frame->Draw(renderer, look, processes);
    EXPECT_EQ(image.size(), QSize(200, 100));
    return image;
  }

  std::unique_ptr<OffscreenFrame> frame;
  FrameRenderer renderer;
  FrameLook look;
};

std::string NameOf(const testing::TestParamInfo<OffscreenFrame::Kind>& info) {
  return info.param == OffscreenFrame::Kind::kDesktop ? "Desktop" : "Embedded";
}

// The ground under a picture of opacity 224: 10 * 224 / 255 + 31 = 40, and so on.
constexpr char kGround[] = "40,57,92,255";

TEST_P(Drawing, PutsEverythingInItsPlace) {
  look.drawConnectors = true;
  look.connectorWidth = 2.5F;
  // At -0.5, 0.5 (pixels 50, 25) and 0.5, 0.5 (150, 25).
  std::vector<DrawnProcess> processes(3);
  processes[0] = {-0.5, 0.5, 20, 1, renderer.Icons().Acquire(Plain(8, 8, 0xffff0000)), 0, 0, 0};
  processes[1] = {0.5, 0.5, 30, -1, renderer.Icons().Acquire(Plain(8, 8, 0xff00ff00)), 0, 0, 0};
  // A label of 6 by 2 pixels: a row of white over a row of black.
  Picture label{6, 2, {}};
  label.pixels.assign(12, 0xffffffff);
  std::fill(label.pixels.begin() + 6, label.pixels.end(), 0xff000000);
  processes[1].label = renderer.Labels().Acquire(std::make_shared<const Picture>(label));
  processes[1].labelX = 0.5;
  processes[1].labelY = -0.5;
  // A ring alone, around pixel 100, 75.
  processes[2].y = -0.5;
  processes[2].markSide = 30;
  const QImage image = Draw(processes);

  EXPECT_EQ(At(image, 5, 95), kGround);
  EXPECT_EQ(At(image, 195, 5), kGround);
  // 255 * 224 / 255 of the icon, 31/255 of the ground, inside 20 and 30 pixels around the middle.
  EXPECT_EQ(At(image, 50, 19), "229,7,11,255");
  EXPECT_EQ(At(image, 41, 16), "229,7,11,255");
  EXPECT_EQ(At(image, 38, 36), kGround);
  EXPECT_EQ(At(image, 136, 39), "5,231,11,255");
  EXPECT_EQ(At(image, 133, 42), kGround);
  // The ring, amber, 13 pixels from its middle.
  const auto* amber = image.constScanLine(75) + 113 * 4;
  EXPECT_TRUE(amber[0] > 180 && amber[1] > 120 && amber[2] < 80) << At(image, 113, 75);
  EXPECT_EQ(At(image, 117, 75), kGround);
  // The label's rows stand at 74 and 75, texel on pixel, at 160 of 255.
  EXPECT_EQ(At(image, 147, 74), "175,181,194,255");
  EXPECT_EQ(At(image, 152, 74), "175,181,194,255");
  EXPECT_EQ(At(image, 147, 75), "15,21,34,255");
  EXPECT_EQ(At(image, 146, 74), kGround);
  EXPECT_EQ(At(image, 150, 76), kGround);
  // The line: what it covers of a column adds up to its width.
  const double full = 255 * 0.45 + 92 * 0.55 - 92;
  double covered = 0;
  for (int y = 15; y < 35; ++y) {
    const int blue = image.constScanLine(y)[100 * 4 + 2];
    covered += (blue - 92) / full;
  }
  EXPECT_NEAR(covered, 2.5, 0.1);
  EXPECT_EQ(At(image, 100, 31), kGround);
}

TEST_P(Drawing, LetsTheScreenShineThroughAnOverlay) {
  look.whiteGround = false;
  look.backgroundAlpha = 63;
  look.drawConnectors = false;
  std::vector<DrawnProcess> processes(2);
  // Half transparent white: straight colour 255, alpha 128.
  processes[0] = {0, 0, 20, 1, renderer.Icons().Acquire(Plain(4, 4, 0x80808080)), 0, 0, 0};
  processes[1] = {1, 1, 2, -1, 0, 0, 0, 0};
  const QImage image = Draw(processes);
  // 10, 30, 70 times 63 / 255, rounded; no line where none is wanted.
  EXPECT_EQ(At(image, 5, 5), "2,7,17,63");
  EXPECT_EQ(At(image, 150, 25), "2,7,17,63");
  EXPECT_EQ(At(image, 100, 50), "129,131,136,159");
  // The whole view at half its opacity, where windows have none of their own.
  look.opacity = 0.5F;
  EXPECT_EQ(At(Draw(processes), 5, 5), "1,4,8,32");
}

TEST_P(Drawing, KeepsPicturesApartThroughGrowthReuseAndALostContext) {
  look.drawConnectors = false;
  std::vector<DrawnProcess> processes;
  std::vector<std::shared_ptr<const Picture>> pictures;
  const auto colour = [](std::uint32_t i) { return 0xff000000 | (i * 5 << 16) | (i * 3 << 8) | i; };
  const auto add = [&](std::uint32_t count) {
    for (std::uint32_t i = 0; i < count; ++i) {
      const auto at = static_cast<double>(processes.size());
      pictures.push_back(Plain(8, 8, colour(static_cast<std::uint32_t>(pictures.size()))));
      processes.push_back({std::fmod(at, 10) / 5 - 0.9, 0.9 - std::floor(at / 10) / 5, 8, -1,
                           renderer.Icons().Acquire(pictures.back()), 0, 0, 0});
    }
  };
  const auto check = [&](const QImage& image) {
    for (std::size_t i = 0; i < processes.size(); ++i) {
      const int x = 10 + 20 * static_cast<int>(i % 10);
      const int y = 5 + 10 * static_cast<int>(i / 10);
      const auto wanted = (colour(static_cast<std::uint32_t>(i)) >> 16 & 0xff) * 224 / 255;
      EXPECT_NEAR(image.constScanLine(y)[x * 4], wanted + 40 * 31 / 255, 2) << i;
    }
  };
  add(3);
  check(Draw(processes));
  add(40);
  check(Draw(processes));
  // What goes makes room; what is there twice stays until its last user has gone.
  EXPECT_EQ(renderer.Icons().Acquire(pictures[5]), processes[5].icon);
  renderer.Icons().Release(processes[5].icon);
  EXPECT_EQ(renderer.Icons().Count(), 43U);
  renderer.Icons().Release(processes[5].icon);
  EXPECT_EQ(renderer.Icons().Count(), 42U);
  EXPECT_FALSE(renderer.Icons().PlaceOf(processes[5].icon).has_value());
  pictures[5] = Plain(8, 8, colour(5));
  processes[5].icon = renderer.Icons().Acquire(pictures[5]);
  check(Draw(processes));
  renderer.Forget();
  frame.reset();
  check(Draw(processes));
}

INSTANTIATE_TEST_SUITE_P(OpenGL, Drawing,
                         testing::Values(OffscreenFrame::Kind::kDesktop,
                                         OffscreenFrame::Kind::kEmbedded),
                         NameOf);

TEST(TexturePixels, LimitTheAlphaOfStraightColours) {
  // Straight 200, 100, 50 at alpha 250 and 100, and nothing at all.
  const Picture picture{3, 1, {0xfac46231, 0x644e2714, 0}};
  EXPECT_EQ(TexturePixels(picture, 160), (std::vector<std::uint8_t>{125, 63, 31, 160,  //
                                                                    78, 39, 20, 100,   //
                                                                    0, 0, 0, 0}));
}

TEST(SlotAllocation, UsesWhatWasGivenBack) {
  SlotAllocator slots(100, 20, 10, 2);
  std::vector<SlotAllocator::Slot> taken;
  for (int i = 0; i < 8; ++i) taken.push_back(slots.Take(50).value());
  EXPECT_FALSE(slots.Take(1).has_value());
  // Neighbours become one piece, whichever goes first.
  slots.GiveBack(taken[3]);
  slots.GiveBack(taken[2]);
  const auto wide = slots.Take(100);
  ASSERT_TRUE(wide);
  EXPECT_EQ(std::tie(wide->page, wide->y), std::tie(taken[2].page, taken[2].y));
  EXPECT_FALSE(slots.Take(101).has_value());
}

TEST(FrameContents, ScalesIconsLinksRelativesAndHoldsLabelsStill) {
  QipiList list;
  const auto add = [&](std::int32_t pid, std::int32_t parent, double x) -> auto& {
    QuintessentialInformationProcessInfo info;
    info.pid = pid;
    info.parentPid = parent;
    info.x = x;
    info.weight = 0.5;
    return list.PushBack(std::move(info));
  };
  auto& init = add(1, 0, 0.25);
  add(5, 77, 0.5);
  add(6, 1, 0.75);
  std::vector<DrawnProcess> drawn;
  const ViewSize size{400, 300, 2};
  FindWhatIsDrawn(list, {}, {}, ViewMode::kWindow, size, drawn);
  // Half the weight of an icon of 150 points in a view that goes from -1 to 1, in pixels.
  EXPECT_DOUBLE_EQ(drawn[0].iconSide, 75);
  EXPECT_EQ(drawn[0].parent, -1);
  EXPECT_EQ(drawn[1].parent, -1);
  EXPECT_EQ(drawn[2].parent, 0);
  EXPECT_DOUBLE_EQ(drawn[2].x, 0.5);
  EXPECT_NEAR(drawn[0].labelX, -0.5, 1e-7);
  // By less than a pixel of 800: the icon moves, the label does not.
  init.x += 0.9 / 800;
  FindWhatIsDrawn(list, {}, {}, ViewMode::kOverlay, size, drawn);
  EXPECT_DOUBLE_EQ(drawn[0].iconSide, 112.5);
  EXPECT_GT(drawn[0].x, -0.5);
  EXPECT_NEAR(drawn[0].labelX, -0.5, 1e-7);
  // By more: to the whole pixel, the 203rd.
  init.x += 2.4 / 800;
  FindWhatIsDrawn(list, {}, {}, ViewMode::kWindow, size, drawn);
  EXPECT_NEAR(drawn[0].labelX, 2 * 203 / 800.0 - 1, 1e-7);
  // A view without an extent divides by nothing.
  FindWhatIsDrawn(list, {}, {}, ViewMode::kWindow, {0, 0, 1}, drawn);
  EXPECT_TRUE(std::isfinite(drawn[0].iconSide) && std::isfinite(drawn[0].labelX));
  QuintessentialDrawingSettings settings;
  EXPECT_EQ(LookOf(settings, ViewMode::kOverlay, size).backgroundAlpha, 63);
  EXPECT_FALSE(LookOf(settings, ViewMode::kOverlay, size).drawConnectors);
  EXPECT_EQ(LookOf(settings, ViewMode::kWindow, size).backgroundAlpha, 224);
  settings.underlayAlpha = std::nan("");
  EXPECT_EQ(LookOf(settings, ViewMode::kOverlay, size).backgroundAlpha, 0);
}

TEST(FrameContents, InACrowdLabelsGiveWayToThoseThatMatterMore) {
  QipiList list;
  const auto add = [&](std::int32_t pid, double x, double weight) {
    QuintessentialInformationProcessInfo info;
    info.pid = pid;
    info.x = x;
    info.weight = weight;
    info.labelImage = Plain(40, 15, 0xff000000);
    list.PushBack(std::move(info));
  };
  // Two heaps, one at the edge, and one process by itself.
  for (std::int32_t pid = 0; pid < 60; ++pid) add(pid, 0.5, pid == 30 ? 0.9 : 0.5);
  for (std::int32_t pid = 60; pid < 98; ++pid) add(pid, 0.001, 0.5);
  add(98, 0.8, 0.5);
  std::vector<DrawnProcess> drawn;
  ViewMarks marks;
  const auto shown = [&] {
    FindWhatIsDrawn(list, {}, marks, ViewMode::kWindow, {400, 300, 1}, drawn);
    std::string pids;
    for (std::size_t i = 0; i < drawn.size(); ++i)
      if (drawn[i].labelIsShown) pids += std::to_string(i) + ' ';
    return pids;
  };
  shown();
  EXPECT_TRUE(std::ranges::all_of(drawn, &DrawnProcess::labelIsShown)) << "99 are no crowd";
  add(99, 0.9, 0.5);
  EXPECT_EQ(shown(), "30 60 98 99 ");
  // What is there stays against its like, and gives way to a busy one.
  list.Find(61)->weight += 0.1;
  list.Find(30)->weight = 0.55;
  list.Find(31)->weight = 1.1;
  EXPECT_EQ(shown(), "31 60 98 99 ");
  marks.selected = {5, 98};
  EXPECT_EQ(shown(), "5 60 98 99 ");
  EXPECT_GT(drawn[5].markSide, drawn[5].iconSide);
  EXPECT_EQ(drawn[6].markSide, 0.0);
  marks.pointedAt = 6;
  EXPECT_EQ(shown(), "6 60 98 99 ");
  // The heap at the edge keeps its whole label in the view.
  EXPECT_EQ(CornerOfLabel(drawn[60].labelX, drawn[60].labelY, 40, 15, 400, 300).left, 0);
}

TEST(FrameContents, WhatFindsNoRoomGetsItWhenOthersGo) {
  FrameRenderer renderer;
  QipiList list;
  for (std::int32_t pid = 1; pid <= 257; ++pid) {
    QuintessentialInformationProcessInfo info;
    info.pid = pid;
    info.iconImage = Plain(2, 2, 0xff000000);
    list.PushBack(std::move(info));
  }
  InitializeOpenGLProcessInfo(list, renderer);
  const auto& last = *list.Find(257);
  EXPECT_NE(list.Find(256)->iconTexture, 0U);
  EXPECT_EQ(last.iconTexture, 0U);
  EXPECT_FALSE(last.texturesReady);
  list.Remove(3, [&](auto& info) { renderer.Icons().Release(info.iconTexture); });
  InitializeOpenGLProcessInfo(list, renderer);
  EXPECT_NE(last.iconTexture, 0U);
  EXPECT_TRUE(last.texturesReady);
}

class Labels : public OnADisplay {
 protected:
  Labels() : OnADisplay(TestDisplay::Manager::kNone) {}
};

TEST_F(Labels, HoldTheirNamesInLightLettersOnDarkAtAnyRatio) {
  const auto share = [](const Picture& label, bool isLight) {
    const auto count = std::ranges::count_if(label.pixels, [isLight](std::uint32_t pixel) {
      const auto green = pixel >> 8 & 0xff;
      return isLight ? green > 150 : pixel >> 24 == 255 && green < 40;
    });
    return static_cast<double>(count) / static_cast<double>(label.pixels.size());
  };
  const auto make = [](const char* name, double ratio) {
    return ConvertCStringToNSImage(name, true, ratio);
  };
  for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
    for (const auto* name : {"sh", "kworker/u8:2-events_unbound", "\xff\xfe", "a b\nc", "日本語"}) {
      const auto label = make(name, ratio);
      ASSERT_NE(label, nullptr) << name;
      EXPECT_EQ(label->height, LabelHeight(ratio));
      EXPECT_LE(label->width, static_cast<int>(170 * ratio));
      EXPECT_GT(share(*label, true), 0.02) << name;
      EXPECT_GT(share(*label, false), 0.4) << name;
    }
    // Letters make the difference, and every one of a name that fits.
    EXPECT_NE(make("abcdef", ratio)->pixels, make("abcdeg", ratio)->pixels);
    EXPECT_GT(make("abcdefghij", ratio)->width, make("abcdef", ratio)->width);
  }
  EXPECT_EQ(make("", 1), nullptr);
}

}  // namespace
}  // namespace lurkwell
