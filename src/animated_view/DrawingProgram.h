#pragma once

#include <cstdint>

class QOpenGLContext;
class QOpenGLExtraFunctions;

namespace lurkwell {

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
