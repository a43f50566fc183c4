#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "animated_view/DrawingContext.h"
#include "animated_view/PictureAtlas.h"

class QOpenGLContext;
class QOpenGLExtraFunctions;

namespace lurkwell {

/// A process as it is drawn. Places go from -1 to 1 over the whole view, y upwards.
struct DrawnProcess {
  double x = 0, y = 0;
  double iconSide = 0;       ///< device pixels
  std::int32_t parent = -1;  ///< its place among the processes that are drawn; -1 for none
  std::uint32_t icon = 0;    ///< of the renderer's icons; 0 for none
  std::uint32_t label = 0;   ///< of the renderer's labels; 0 for none
  double labelX = 0, labelY = 0;
  bool labelIsShown = true;
  double markSide = 0;  ///< device pixels; 0 for one that is not marked
};

/// Where a label's corner lies, in device pixels from the view's top left corner: its middle at the
/// place from -1 to 1 if it can be, and all of it in the view.
struct LabelCorner {
  double left = 0, top = 0;
};
LabelCorner CornerOfLabel(double x, double y, int labelWidth, int labelHeight, int viewWidth,
                          int viewHeight);

/// How a frame looks.
struct FrameLook {
  int width = 0, height = 0;  ///< device pixels
  /// What lies under everything: white, or nothing where what is behind the window shines through.
  bool whiteGround = true;
  /// How opaque the background's picture is at most, 0 to 255.
  int backgroundAlpha = 224;
  bool drawConnectors = true;
  float connectorGrey = 0.85F;  ///< red and green of the lines, whose blue is 1
  float connectorWidth = 2.5F;  ///< device pixels
  float opacity = 1.0F;         ///< of all, 0 to 1
};

/// Draws frames: the background, lines from processes to their parents, icons, rings around those
/// that are marked, labels; a draw call each, however many processes there are. Marked processes
/// lie above the others. Icons are drawn at any size, labels pixel by pixel.
///
/// Icons and labels are acquired and released without a context, on any thread; the rest belongs
/// to the thread that draws, with a context current that is always the same one until Forget. The
/// caller lets one thread at a time in.
class FrameRenderer {
 public:
  FrameRenderer();
  ~FrameRenderer();
  FrameRenderer(const FrameRenderer&) = delete;
  FrameRenderer& operator=(const FrameRenderer&) = delete;

  /// The icons; a picture is drawn from 256 pixels, so that busy processes are not blurred.
  PictureAtlas& Icons() { return mIcons; }
  PictureAtlas& Labels() { return *mLabels; }
  /// Labels of another height, which those of a screen with another scale have. Drops all labels.
  void SetLabelHeight(int pixels);

  /// Null for none. Taken over at the next frame.
  void SetBackground(std::shared_ptr<const Picture> picture);

  /// Draws into the framebuffer that is bound. False when the driver cannot.
  bool Draw(QOpenGLContext& context, const FrameLook& look,
            std::span<const DrawnProcess> processes);

  /// The context has gone with all that it had; the next frame builds everything anew.
  void Forget();
  /// Deletes everything that the context has.
  void Destroy(QOpenGLContext& context);

 private:
  bool Prepare(QOpenGLContext& context, const FrameLook& look);
  bool DrawBackground(QOpenGLExtraFunctions& gl);
  void DrawConnectors(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes);
  bool DrawIcons(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes);
  bool DrawMarks(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes);
  bool DrawLabels(QOpenGLExtraFunctions& gl, std::span<const DrawnProcess> processes);
  bool DrawPictures(QOpenGLExtraFunctions& gl, PictureAtlas& atlas);
  void AddSquare(const PictureAtlas::Place& place, const DrawnProcess& process, double side);
  void AddPicture(const PictureAtlas::Place& place, double left, double top, double right,
                  double bottom);

  FrameLook mLook;
  PictureAtlas mIcons;
  PictureAtlas mMarks;
  std::uint32_t mMark;
  std::unique_ptr<PictureAtlas> mLabels;
  /// What a screen's scale has left behind, until a context is current to delete its texture.
  std::vector<std::unique_ptr<PictureAtlas>> mOldAtlases;
  std::shared_ptr<const Picture> mBackground;
  std::unique_ptr<PictureAtlas> mBackgroundAtlas;
  int mBackgroundAlpha = -1;
  std::uint32_t mBackgroundHandle = 0;
  DrawingProgram mPictureProgram;
  DrawingProgram mConnectorProgram;
  bool mMade = false;
  /// Kept from frame to frame for its memory.
  std::vector<float> mNumbers;
};

}  // namespace lurkwell
