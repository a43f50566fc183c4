#include <gtest/gtest.h>

#include "platform/desktop/DesktopScreen.h"
#include "support/TestDisplay.h"

namespace lurkwell {
namespace {

using Source = DesktopScreen::Source;

TEST(DesktopScreen, OutlivesASlowAnswerAndKnowsTheCompositorMeanwhile) {
  const TestDisplay display(TestDisplay::Manager::kNone);
  DesktopSettings settings;
  settings.display = display.Name();
  settings.retryInterval = std::chrono::milliseconds(0);
  DesktopScreen screen(settings, Source::kXServer);
  EXPECT_FALSE(screen.BlendsWindows());
  auto compositor = XConnection::Open(display.Name());
  ASSERT_NE(compositor, nullptr);
  const std::string name = "_NET_WM_CM_S0";
  const auto atom = compositor->Wait<xcb_intern_atom_reply_t>(
      xcb_intern_atom_unchecked(compositor->Raw(), 0, static_cast<std::uint16_t>(name.size()),
                                name.data()),
      XConnection::BatchDeadline());
  ASSERT_NE(atom, nullptr);
  const auto window = xcb_generate_id(compositor->Raw());
  xcb_create_window(compositor->Raw(), 0, window, compositor->Root(), 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_set_selection_owner(compositor->Raw(), window, atom->atom, XCB_CURRENT_TIME);
  compositor->ServerTime();
  EXPECT_TRUE(screen.BlendsWindows());
  display.Freeze(true);
  EXPECT_TRUE(screen.BlendsWindows());
  EXPECT_TRUE(screen.BlendsWindows());
  EXPECT_FALSE(screen.IsCovered(window));
  display.Freeze(false);
  // The compositor goes, which only a connection that works can tell.
  compositor.reset();
  EXPECT_TRUE(ComesTrue([&] { return !screen.BlendsWindows(); }));
  // A server that only others' windows are on.
  EXPECT_TRUE(DesktopScreen(settings, Source::kWayland).BlendsWindows());
  EXPECT_FALSE(DesktopScreen(settings).BlendsWindows());
}

}  // namespace
}  // namespace lurkwell
