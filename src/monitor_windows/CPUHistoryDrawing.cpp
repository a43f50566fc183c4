// What a CPU history window shows: its graph and its labels.
#include <QPainter>
#include <algorithm>

#include "consolidator/ApplicationIcons.h"
#include "consolidator/PropertyValues.h"
#include "main_window/PropertyText.h"
#include "monitor_windows/CPUHistoryWindow.h"
#include "monitor_windows/Unit.h"
#include "platform/Assertion.h"

namespace lurkwell {
namespace {}  // namespace

void CPUHistoryWindowInformationClient::RedrawEntireWindow() {
  mGraph.RedrawEntireWindow();
  if (Window() != nullptr) Window()->ContentWidget().update();
}

void CPUHistoryWindowInformationClient::DrawLabels() {
  char name[256];
  bool exists = false;
  GetPIDPropertyValue(mPid, "meta_name", name, sizeof name, &exists);
  Require(exists, kHistoryUnit, "exists");
  const auto text = PlainText(name);
  mNameWindow->resize(std::min(mBounds.right - mBounds.left - 5, mNameWindow->TextWidth(text) + 10),
                      mNameWindow->height());
  mNameWindow->SetText(text, mPreferences.name);
  mNameWindow->SetAlpha(mPreferences.nameAlpha);

  const auto scale = QString::number(mGraph.ScalePercent()) + QLatin1Char('%');
  const auto colour = [this] {
    switch (mGraph.TakeScaleLabelColour()) {
      case CPUHistoryGraph::ScaleLabelColour::kAbsolute:
        return mPreferences.highWaterMark;
      case CPUHistoryGraph::ScaleLabelColour::kFlash:
        return mPreferences.highWaterMarkFlash;
      default:
        return mPreferences.highWaterMarkRelative;
    }
  }();
  mHighWaterMarkWindow->SetText(scale, colour);
  mHighWaterMarkWindow->SetAlpha(mPreferences.highWaterMarkAlpha);
  DrawIcon();
}

void CPUHistoryWindowInformationClient::DrawIcon() {
  const double ratio = Window()->devicePixelRatioF();
  const auto picture = GetProcessIcon(mPid, static_cast<int>(mIconWindow->width() * ratio));
  QPixmap pixmap;
  if (picture != nullptr) {
    pixmap = QPixmap::fromImage(QImage(reinterpret_cast<const uchar*>(picture->pixels.data()),
                                       picture->width, picture->height, picture->width * 4,
                                       QImage::Format_ARGB32_Premultiplied)
                                    .copy());
    pixmap.setDevicePixelRatio(ratio);
  }
  mIconWindow->SetPicture(pixmap);
  mIconWindow->SetAlpha(mIsApplication ? mPreferences.iconAlphaReally : mPreferences.iconAlpha);
}

void CPUHistoryWindowInformationClient::DrawPercentage(double value) {
  auto& label = *mCurrentPercentageWindow;
  label.SetText(QString::fromStdString(PercentageText(value)), mPreferences.percentageForeground);
  const int travel = mBounds.bottom - mBounds.top - label.height();
  label.move(label.x(), mGraph.PercentageOffset(value, travel));
  label.SetAlpha(mPreferences.percentageAlpha);
}

void CPUHistoryWindowInformationClient::PaintGraph(QPainter& painter) const {
  const auto& bitmap = mGraph.Bitmap();
  const int width = bitmap.Width();
  const int height = bitmap.Height();
  const QImage ring(reinterpret_cast<const uchar*>(bitmap.Pixels()), width, height, width * 4,
                    QImage::Format_RGB32);
  const int first = bitmap.FirstColumn();
  painter.drawImage(QPoint(0, 0), ring, QRect(first, 0, width - first, height));
  if (first > 0) painter.drawImage(QPoint(width - first, 0), ring, QRect(0, 0, first, height));
}

}  // namespace lurkwell
