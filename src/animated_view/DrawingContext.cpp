#include "animated_view/DrawingContext.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QThread>
#include <QWindow>
#include <algorithm>

#include "platform/Diagnostics.h"

namespace lurkwell {
namespace {

/// A Wayland compositor that does not show a window never answers its swap; there the compositor
/// alone sees to it that nothing tears.
int SwapInterval() {
  return QGuiApplication::platformName().startsWith(QLatin1String("wayland")) ? 0 : 1;
}

QSurfaceFormat Wanted(QSurfaceFormat::RenderableType type) {
  QSurfaceFormat format;
  const bool desktop = type == QSurfaceFormat::OpenGL;
  format.setRenderableType(type);
  format.setVersion(3, desktop ? 3 : 0);
  if (desktop) format.setProfile(QSurfaceFormat::CoreProfile);
  format.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
  format.setDepthBufferSize(16);
  format.setAlphaBufferSize(8);
  format.setSwapInterval(SwapInterval());
  return format;
}

bool IsEnough(const QOpenGLContext& context) {
  const auto version = context.format().version();
  return version >= (context.isOpenGLES() ? std::pair(3, 0) : std::pair(3, 3));
}

}  // namespace

DrawingContext::DrawingContext() = default;

DrawingContext::~DrawingContext() {
  Destroy();
}

bool DrawingContext::Create() {
  Destroy();
  for (const auto type : {QSurfaceFormat::OpenGL, QSurfaceFormat::OpenGLES}) {
    auto context = std::make_unique<QOpenGLContext>();
    mFormat = Wanted(type);
    context->setFormat(mFormat);
    if (!context->create() || !IsEnough(*context)) continue;
    mContext = std::move(context);
    // No thread's, so that the one which draws can take it.
    mContext->moveToThread(nullptr);
    return true;
  }
  return false;
}

bool DrawingContext::MakeCurrent(QWindow& window) {
  if (mContext == nullptr) return false;
  if (mContext->thread() != QThread::currentThread())
    mContext->moveToThread(QThread::currentThread());
  return mContext->makeCurrent(&window);
}

void DrawingContext::Present(QWindow& window) {
  mContext->swapBuffers(&window);
  mContext->doneCurrent();
}

void DrawingContext::Destroy() {
  mContext.reset();
}

namespace {

constexpr char kDesktopHead[] = "#version 330 core\n";
constexpr char kEmbeddedHead[] =
    "#version 300 es\n"
    "precision highp float;\n"
    "precision highp sampler2DArray;\n";

std::uint32_t Compile(QOpenGLExtraFunctions& gl, GLenum kind, const char* head,
                      const char* source) {
  const std::uint32_t shader = gl.glCreateShader(kind);
  const char* sources[] = {head, source};
  gl.glShaderSource(shader, 2, sources, nullptr);
  gl.glCompileShader(shader);
  GLint compiled = 0;
  gl.glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
  if (compiled != 0) return shader;
  char log[512] = "";
  gl.glGetShaderInfoLog(shader, sizeof log, nullptr, log);
  Diagnose("the display's driver refuses a shader: %s", log);
  gl.glDeleteShader(shader);
  return 0;
}

}  // namespace

bool DrawingProgram::Make(QOpenGLContext& context) {
  auto& gl = *context.extraFunctions();
  const char* head = context.isOpenGLES() ? kEmbeddedHead : kDesktopHead;
  const std::uint32_t vertex = Compile(gl, GL_VERTEX_SHADER, head, mVertexSource);
  const std::uint32_t fragment = Compile(gl, GL_FRAGMENT_SHADER, head, mFragmentSource);
  GLint linked = 0;
  if (vertex != 0 && fragment != 0) {
    mProgram = gl.glCreateProgram();
    gl.glAttachShader(mProgram, vertex);
    gl.glAttachShader(mProgram, fragment);
    gl.glLinkProgram(mProgram);
    gl.glGetProgramiv(mProgram, GL_LINK_STATUS, &linked);
  }
  // A program keeps what it is linked from; 0 is ignored.
  gl.glDeleteShader(vertex);
  gl.glDeleteShader(fragment);
  if (linked == 0) {
    Destroy(gl);
    return false;
  }
  gl.glGenVertexArrays(1, &mVertexArray);
  gl.glBindVertexArray(mVertexArray);
  gl.glGenBuffers(1, &mBuffer);
  gl.glBindBuffer(GL_ARRAY_BUFFER, mBuffer);
  for (int first = 0; first < mFloatsPerInstance; first += 4) {
    const auto place = static_cast<std::uint32_t>(first / 4);
    gl.glEnableVertexAttribArray(place);
    // Takes a place in the buffer for a pointer.
    const auto offset = static_cast<std::size_t>(first) * sizeof(float);
    gl.glVertexAttribPointer(
        place, std::min(4, mFloatsPerInstance - first), GL_FLOAT, GL_FALSE,
        mFloatsPerInstance * static_cast<int>(sizeof(float)),
        reinterpret_cast<const void*>(offset));  // NOLINT(performance-no-int-to-ptr)
    gl.glVertexAttribDivisor(place, 1);
  }
  return true;
}

void DrawingProgram::Destroy(QOpenGLExtraFunctions& gl) {
  if (mProgram != 0) gl.glDeleteProgram(mProgram);
  if (mBuffer != 0) gl.glDeleteBuffers(1, &mBuffer);
  if (mVertexArray != 0) gl.glDeleteVertexArrays(1, &mVertexArray);
  Forget();
}

void DrawingProgram::Forget() {
  mProgram = mBuffer = mVertexArray = 0;
}

void DrawingProgram::Use(QOpenGLExtraFunctions& gl) const {
  gl.glUseProgram(mProgram);
}

int DrawingProgram::Uniform(QOpenGLExtraFunctions& gl, const char* name) const {
  return gl.glGetUniformLocation(mProgram, name);
}

void DrawingProgram::DrawInstances(QOpenGLExtraFunctions& gl, const float* numbers,
                                   std::size_t instances) const {
  if (instances == 0) return;
  gl.glBindVertexArray(mVertexArray);
  gl.glBindBuffer(GL_ARRAY_BUFFER, mBuffer);
  const auto size = instances * static_cast<std::size_t>(mFloatsPerInstance) * sizeof(float);
  gl.glBufferData(GL_ARRAY_BUFFER, static_cast<qopengl_GLsizeiptr>(size), numbers, GL_STREAM_DRAW);
  gl.glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(instances));
}

}  // namespace lurkwell
