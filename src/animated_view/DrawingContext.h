#pragma once

#include <QSurfaceFormat>
#include <cstdint>
#include <memory>

class QOpenGLContext;
class QOpenGLExtraFunctions;
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

/// A pair of shaders that draws rectangles of four corners, any number of them in one call, and the
/// buffer that describes them: `floatsPerInstance` numbers each, which the shader has as up to four
/// vectors of four. For desktop contexts from 3.3 on and embedded ones from 3.0 on. Belongs to the
/// drawing thread; the context is current in every call.
class DrawingProgram {
 public:
  /// Sources without their version line, which depends on the context.
  DrawingProgram(const char* vertexSource, const char* fragmentSource, int floatsPerInstance)
      : mVertexSource(vertexSource),
        mFragmentSource(fragmentSource),
        mFloatsPerInstance(floatsPerInstance) {}

  /// False, with the driver's words printed, when it refuses the shaders.
  bool Make(QOpenGLContext& context);
  void Destroy(QOpenGLExtraFunctions& gl);
  /// The context has gone with all that it had.
  void Forget();

  /// From now on uniforms are this program's.
  void Use(QOpenGLExtraFunctions& gl) const;
  int Uniform(QOpenGLExtraFunctions& gl, const char* name) const;
  void DrawInstances(QOpenGLExtraFunctions& gl, const float* numbers, std::size_t instances) const;

 private:
  const char* mVertexSource;
  const char* mFragmentSource;
  int mFloatsPerInstance;
  std::uint32_t mProgram = 0;
  std::uint32_t mBuffer = 0;
  std::uint32_t mVertexArray = 0;
};

}  // namespace lurkwell
