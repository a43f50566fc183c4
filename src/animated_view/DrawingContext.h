#pragma once

#include <QSurfaceFormat>
#include <memory>

class QOpenGLContext;
class QWindow;

namespace lurkwell {

/// The OpenGL context that all views are drawn with: desktop OpenGL 3.3 or, failing that, embedded
/// OpenGL 3. Made and destroyed on the main thread, used on the drawing thread.
class DrawingContext {
 public:
  DrawingContext();
  ~DrawingContext();
  DrawingContext(const DrawingContext&) = delete;
  DrawingContext& operator=(const DrawingContext&) = delete;

  /// Main thread. False when the display has neither kind.
  bool Create();
  bool Exists() const { return mContext != nullptr; }
  /// What windows have to ask for so that they can be drawn into. After Create.
  const QSurfaceFormat& Format() const { return mFormat; }

  /// Makes the context the calling thread's, for this window. False when it is lost, or the window.
  bool MakeCurrent(QWindow& window);
  /// Shows what was drawn, and lets go of the context: no thread holds it between two frames.
  void Present(QWindow& window);
  QOpenGLContext& Context() { return *mContext; }

  /// Main thread, while nothing is drawn.
  void Destroy();

 private:
  QSurfaceFormat mFormat;
  std::unique_ptr<QOpenGLContext> mContext;
};

}  // namespace lurkwell
