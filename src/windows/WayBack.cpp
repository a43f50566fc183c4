#include "windows/WayBack.h"

#include <utility>

namespace lurkwell {
namespace {

std::function<void()> gShowMainWindow;

}  // namespace

void SetWayBack(std::function<void()> showMainWindow) {
  gShowMainWindow = std::move(showMainWindow);
}

void GoBackToMainWindow() {
  if (gShowMainWindow) gShowMainWindow();
}

}  // namespace lurkwell
