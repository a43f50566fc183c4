#include "animated_view/OffscreenFrame.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace lurkwell {
namespace {

QSurfaceFormat Wanted(bool embedded) {
  QSurfaceFormat format;
  format.setRenderableType(embedded ? QSurfaceFormat::OpenGLES : QSurfaceFormat::OpenGL);
  format.setVersion(3, embedded ? 0 : 3);
  if (!embedded) format.setProfile(QSurfaceFormat::CoreProfile);
  return format;
}

}  // namespace

OffscreenFrame::OffscreenFrame(Kind kind) {
  for (const bool embedded : {false, true}) {
    if (kind == (embedded ? Kind::kDesktop : Kind::kEmbedded)) continue;
    auto context = std::make_unique<QOpenGLContext>();
    context->setFormat(Wanted(embedded));
    if (!context->create() || context->isOpenGLES() != embedded) continue;
    if (context->format().version() < std::pair(3, embedded ? 0 : 3)) continue;
    mSurface.setFormat(context->format());
    mSurface.create();
    if (!context->makeCurrent(&mSurface)) continue;
    mContext = std::move(context);
    return;
  }
}

OffscreenFrame::~OffscreenFrame() {
  if (mContext && mContext->makeCurrent(&mSurface)) Release();
}

void OffscreenFrame::Release() {
  auto& gl = *mContext->extraFunctions();
  if (mColour != 0) gl.glDeleteRenderbuffers(1, &mColour);
  if (mFramebuffer != 0) gl.glDeleteFramebuffers(1, &mFramebuffer);
  mColour = mFramebuffer = 0;
}

bool OffscreenFrame::Target(int width, int height) {
  if (mContext == nullptr || !mContext->makeCurrent(&mSurface)) return false;
  auto& gl = *mContext->extraFunctions();
  if (mFramebuffer != 0 && width == mWidth && height == mHeight) {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, mFramebuffer);
    return true;
  }
  Release();
  gl.glGenFramebuffers(1, &mFramebuffer);
  gl.glBindFramebuffer(GL_FRAMEBUFFER, mFramebuffer);
  gl.glGenRenderbuffers(1, &mColour);
  gl.glBindRenderbuffer(GL_RENDERBUFFER, mColour);
  gl.glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, width, height);
  gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, mColour);
  mWidth = width;
  mHeight = height;
  return gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

bool OffscreenFrame::DrawOnly(FrameRenderer& renderer, const FrameLook& look,
                              std::span<const DrawnProcess> processes) {
  if (!Target(look.width, look.height)) return false;
  const bool drawn = renderer.Draw(*mContext, look, processes);
  mContext->functions()->glFinish();
  return drawn;
}

QImage OffscreenFrame::Draw(FrameRenderer& renderer, const FrameLook& look,
                            std::span<const DrawnProcess> processes) {
  QImage image;
  if (DrawOnly(renderer, look, processes)) {
    image = QImage(look.width, look.height, QImage::Format_RGBA8888_Premultiplied);
    mContext->functions()->glReadPixels(0, 0, look.width, look.height, GL_RGBA, GL_UNSIGNED_BYTE,
                                        image.bits());
    // Frames begin at the bottom.
    image = image.mirrored();
  }
  if (mContext) renderer.Destroy(*mContext);
  return image;
}

}  // namespace lurkwell
