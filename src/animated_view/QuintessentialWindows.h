#pragma once

#include <QImage>
#include <QObject>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "animated_view/QuintessentialHost.h"
#include "animated_view/QuintessentialViewWindow.h"
#include "animated_view/QuintessentialWindowDelegate.h"
#include "animated_view/ViewDrawing.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// The animated view's two windows with their views, and what the engine asks of them. Made at the
/// start of the program, costs next to nothing until the view is first shown. One per process; main
/// thread, but for what QuintessentialHost says.
class QuintessentialWindows final : public QObject, public QuintessentialHost {
  Q_OBJECT

 public:
  explicit QuintessentialWindows(ViewCommands commands);
  /// Ends the drawing thread first, and then everything else, in whatever state it is.
  ~QuintessentialWindows() override;

  QuintessentialViewWindow& quintessentialWindow() const { return *mWindow; }
  QuintessentialView& quintessentialView() const { return mWindow->view(); }
  QuintessentialViewFullscreenWindow& quintessentialFullscreenWindow() const {
    return *mFullscreenWindow;
  }
  QuintessentialView& quintessentialFullscreenView() const { return mFullscreenWindow->view(); }

  /// Shows the window of the mode that is set, and no other, because the user wants that window.
  void ShowCurrentWindow();
  /// Marks those processes in the view, and no others.
  void SetMarked(const std::vector<std::int32_t>& pids);
  bool IsAnyVisible() const;
  void SaveFrame();

  /// Hooks the view up without a window, and gives what it would show; a null image where nothing
  /// can be drawn.
  void ShowForPicture();
  QImage TakePicture(const QSize& points, double pixelRatio);

  // ---- QuintessentialHost
  // -------------------------------------------------------------------------

  bool HasCurrentView() const override LURKWELL_REQUIRES(gQuintessentialMutex) {
    return mWindow != nullptr;
  }
  FrameSize CurrentWindowFrame() const override LURKWELL_REQUIRES(gQuintessentialMutex);
  void CloseCurrentWindow() override;
  void SetUpOverlayStuff() override;
  void SetCurrentWindowAlpha(double alpha) override;
  void SetFullscreenKludgeCountdown(int frames) override;
  /// After a change of the mode. Back from an overlay that came while there was no window, there is
  /// none again, as long as the user has another one of the program.
  void doShowQuintessentialView() override;
  void InternalDraw() override LURKWELL_REQUIRES(gQuintessentialMutex);
  std::shared_ptr<const Picture> LabelImage(const std::string& name) override;
  std::shared_ptr<const Picture> NamedPicture(const char* name) override;
  void ReleaseTextures(QuintessentialInformationProcessInfo& info) override
      LURKWELL_REQUIRES(gQuintessentialMutex);
  void DiscardBackground() override LURKWELL_REQUIRES(gQuintessentialMutex);

 private:
  QuintessentialViewWindow& CurrentWindow() const;
  /// The user has closed the window of the mode that is set.
  void NoteClosing();
  void MakeWindows();
  void Prepare();
  /// Labels are made for one number of pixels per point at a time.
  void UsePixelRatio(double ratio);
  void LookAround();
  void HandleFailure();
  void ForgiveFailures();
  void ApplyLimits();

  ViewCommands mCommands;
  ViewDrawing mDrawing;
  QuintessentialWindowDelegate mDelegate;
  std::unique_ptr<QuintessentialViewWindow> mWindow;
  std::unique_ptr<QuintessentialViewFullscreenWindow> mFullscreenWindow;
  std::unique_ptr<RunLoopTimer> mTimer;
  std::shared_ptr<const Picture> mBackground;
  std::shared_ptr<const Picture> mDefaultIcon;
  std::unordered_map<std::string, std::weak_ptr<const Picture>> mLabels;
  double mPixelRatio = 0.0;
  std::size_t mManyLabels = 0;
  QuintessentialViewWindow::Showing mShowing = QuintessentialViewWindow::Showing::kAskedFor;
  /// The user has the view in a window, or had before the overlay took its place.
  bool mHasWindow = false;
  int mFailures = 0;
  double mLastFailure = 0.0;
};

/// The view of the mode that is set. Fails "theCurrentQuintessentialView" when there is none.
QuintessentialView& GetCurrentQuintessentialView();

extern QuintessentialWindows* gQuintessentialWindows;

/// Registers the keys that change between window and overlay wherever the keyboard is: the one of
/// the preference FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE (98, F7), alone and with the command
/// key. Main thread; once, at the start.
void SetUpHotKey();

/// What a press does.
void HotKeyFunc();

}  // namespace lurkwell
