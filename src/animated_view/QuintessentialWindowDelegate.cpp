#include "animated_view/QuintessentialWindowDelegate.h"

#include <utility>

#include "animated_view/QuintessentialSupport.h"
#include "consolidator/Region.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Diagnostics.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr char kShowViewKey[] = "DEFAULT_SHOW_PROCESS_QUIVA_WINDOW";

}  // namespace

QuintessentialWindowDelegate* gQuintessentialWindowDelegate = nullptr;

QuintessentialWindowDelegate::QuintessentialWindowDelegate(std::function<void()> prepare)
    : mPrepare(std::move(prepare)) {
  gQuintessentialWindowDelegate = this;
}

QuintessentialWindowDelegate::~QuintessentialWindowDelegate() {
  if (gQuintessentialWindowDelegate == this) gQuintessentialWindowDelegate = nullptr;
}

void QuintessentialWindowDelegate::Remember(bool shown) const {
  if (!mRemembers) return;
  // Events come often, and every write is synchronised.
  const int value = shown ? 1 : 0;
  if (StoredInt(kShowViewKey) != value) StoreInt(kShowViewKey, value);
}

void QuintessentialWindowDelegate::hookUpConsolidatorIfNecessary() {
  if (gApplicationQuitting) return;
  Remember(true);
  if (gQuintessentialViewIsCurrentlyShown) return;
  mPrepare();
  if (gQuintessentialInformationClient == nullptr)
    new QuintessentialInformationClient(FittedAnimationIntervals().main);
  const ConsolidatorGuard processes;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  gQuintessentialViewIsCurrentlyShown = true;
  gQuintessentialInformationClient->CreateDrawingThreadIfNecessary();
  gQuintessentialInformationClient->HookIntoConsolidator();
  if (mRests) SetSeen(false);
}

void QuintessentialWindowDelegate::unhookConsolidatorIfNecessary() {
  gQuintessentialViewIsCurrentlyShown = false;
  if (!gApplicationQuitting) Remember(false);
  if (gQuintessentialInformationClient == nullptr) return;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  gQuintessentialInformationClient->UnhookFromConsolidator();
}

void QuintessentialWindowDelegate::windowDidExpose() {
  DiagnoseVerbatim("exposed");
}

QSize QuintessentialWindowDelegate::windowWillResize(const QSize& proposed) {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  gQuintessentialWindowIsBeingResized = true;
  const auto [width, height] = gOpenGLViewportMaxDimensions;
  if (width <= 0) return proposed;
  return proposed.boundedTo(QSize(width, height > 0 ? height : width));
}

void QuintessentialWindowDelegate::windowDidResize(const std::function<void()>& takeSize) {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  if (takeSize) {
    takeSize();
  } else {
    DiagnoseVerbatim("D'oh!");
  }
  gQuintessentialWindowIsBeingResized = false;
}

void QuintessentialWindowDelegate::SetSeen(bool seen) {
  if (!gQuintessentialViewIsCurrentlyShown || gQuintessentialInformationClient == nullptr) return;
  gQuintessentialInformationClient->SetPaused(mRests || !seen);
}

void QuintessentialWindowDelegate::RestForGood() {
  mRests = true;
  SetSeen(false);
}

}  // namespace lurkwell
