#include "animated_view/QuintessentialView.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <algorithm>
#include <array>
#include <mutex>
#include <optional>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/ViewDrawing.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kFramesAfterExposure = 3;

}  // namespace

QuintessentialView::QuintessentialView(QWindow& window, ViewDrawing& drawing,
                                       const ViewCommands& commands)
    : mWindow(window), mDrawing(drawing), mCommands(commands) {}

void QuintessentialView::drawRect() {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  setKludgeCountdown(kFramesAfterExposure);
  // The drawing thread alone has the context.
  if (gQuintessentialViewIsCurrentlyShown && gQuintessentialInformationClient != nullptr)
    gQuintessentialInformationClient->CreateDrawingThreadIfNecessary();
}

void QuintessentialView::internalDraw() {
  if (!gQuintessentialViewIsCurrentlyShown) return;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  if (!mDrawable || mDrawing.hasFailed) return;
  if (mSize.PixelWidth() < 1 || mSize.PixelHeight() < 1) return;
  const bool isSettling = kludgeCountdown() > 0;
  if (isSettling) setKludgeCountdown(kludgeCountdown() - 1);
  const bool isCurrent = mDrawing.context.MakeCurrent(mWindow);
  if (!isCurrent && isSettling) return;
  mDrawing.hasDrawn = isCurrent && DrawFrame();
  if (mDrawing.hasDrawn) return;
  mDrawing.hasFailed = true;
  mDrawing.tellOfFailure();
}

bool QuintessentialView::DrawFrame() {
  if (!mIsInitialized) NoteLimits();
  mDrawing.processes.clear();
  FrameLook look = LookOf({}, mMode, mSize);
  if (auto* client = gQuintessentialInformationClient) {
    auto& list = client->qipiList();
    InitializeOpenGLProcessInfo(list, mDrawing.renderer);
    FindWhatIsDrawn(list, client->DrawingSettings(), mDrawing.marks, mMode, mSize,
                    mDrawing.processes);
    look = LookOf(client->DrawingSettings(), mMode, mSize);
  }
  look.opacity = mOpacity;
  const bool drawn = mDrawing.renderer.Draw(mDrawing.context.Context(), look, mDrawing.processes);
  mDrawing.context.Present(mWindow);
  return drawn;
}

void QuintessentialView::NoteLimits() {
  mIsInitialized = true;
  std::array<GLint, 2> limits{};
  mDrawing.context.Context().functions()->glGetIntegerv(GL_MAX_VIEWPORT_DIMS, limits.data());
  gOpenGLViewportMaxDimensions = {limits[0], limits[1]};
  mDrawing.tellOfLimits();
}

void QuintessentialView::mouseMoved(const QPointF& place) {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mDrawing.marks.pointedAt = gQuintessentialInformationClient != nullptr &&
                                     QRectF(0, 0, mSize.width, mSize.height).contains(place)
                                 ? gQuintessentialInformationClient->GetClosestPidToPoint(
                                       {place.x(), mSize.height - place.y()})
                                 : -1;
}

void QuintessentialView::handleMouseDownStuff(const QMouseEvent& event, bool isRightClick) {
  std::int32_t pid = -1;
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    if (gQuintessentialInformationClient == nullptr) return;
    const auto place = event.position();
    pid = gQuintessentialInformationClient->GetClosestPidToPoint(
        {place.x(), mSize.height - place.y()});
  }
  mCommands.choose(pid, event.globalPosition().toPoint(), isRightClick);
}

}  // namespace lurkwell
