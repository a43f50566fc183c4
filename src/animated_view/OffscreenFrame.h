#pragma once

#include <QImage>
#include <QOffscreenSurface>
#include <memory>
#include <span>

#include "animated_view/FrameRenderer.h"

class QOpenGLContext;

namespace lurkwell {

/// Frames without a window, read back as images. Main thread.
class OffscreenFrame {
 public:
  enum class Kind { kAny, kDesktop, kEmbedded };

  explicit OffscreenFrame(Kind kind = Kind::kAny);
  ~OffscreenFrame();
  OffscreenFrame(const OffscreenFrame&) = delete;
  OffscreenFrame& operator=(const OffscreenFrame&) = delete;

  /// False where there is no OpenGL that suffices.
  bool IsUsable() const { return mContext != nullptr; }
  /// The frame, its alpha as it was drawn; a null image when the driver cannot. What the renderer
  /// has in this context is deleted again.
  QImage Draw(FrameRenderer& renderer, const FrameLook& look,
              std::span<const DrawnProcess> processes);
  /// Draws without reading back; for measuring.
  bool DrawOnly(FrameRenderer& renderer, const FrameLook& look,
                std::span<const DrawnProcess> processes);

 private:
  bool Target(int width, int height);
  void Release();

  std::unique_ptr<QOpenGLContext> mContext;
  QOffscreenSurface mSurface;
  std::uint32_t mFramebuffer = 0;
  std::uint32_t mColour = 0;
  int mWidth = 0;
  int mHeight = 0;
};

}  // namespace lurkwell
