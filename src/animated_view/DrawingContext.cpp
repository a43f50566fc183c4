#include "animated_view/DrawingContext.h"

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QThread>
#include <QWindow>

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

}  // namespace lurkwell
