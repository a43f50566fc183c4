// What a CPU history window shows: its graph and its labels.
#include <QPainter>
#include <algorithm>
#include <vector>

#include "consolidator/Applications.h"
#include "consolidator/PropertyValues.h"
#include "monitor_windows/CPUHistoryWindow.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/Screen.h"
#include "preferences/LessMotion.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

/// The upper edge's figure stands at the right of the name.
constexpr int kBesideName = 31;
constexpr int kBesideIdentity = 5;

}  // namespace

void CPUHistoryWindowInformationClient::RedrawEntireWindow() {
  mGraph.RedrawEntireWindow();
  if (Window() != nullptr) Window()->ContentWidget().update();
}

void CPUHistoryWindowInformationClient::DrawLabels() {
  char name[256];
  bool exists = false;
  GetPIDPropertyValue(mPid, "meta_name", name, sizeof name, &exists);
  Require(exists, kHistoryUnit, "exists");
  const auto text = FollowedName(mPid);
  DrawLine(*mNameWindow, text, kBesideName);
  DrawIdentity(text);

  const auto scale = QString::number(mGraph.ScalePercent()) + QLatin1Char('%');
  const auto colour = [this] {
    switch (mGraph.TakeScaleLabelColour()) {
      case CPUHistoryGraph::ScaleLabelColour::kAbsolute:
        return mPreferences.highWaterMark;
      case CPUHistoryGraph::ScaleLabelColour::kFlash:
        return WantsLessMotion() ? mPreferences.highWaterMarkRelative
                                 : mPreferences.highWaterMarkFlash;
      default:
        return mPreferences.highWaterMarkRelative;
    }
  }();
  mHighWaterMarkWindow->SetText(scale, colour);
  mHighWaterMarkWindow->SetAlpha(AlphaWithin(mPreferences.highWaterMarkAlpha));
  DrawIcon();
}

void CPUHistoryWindowInformationClient::DrawLine(Satellite& label, const QString& text,
                                                 int beside) const {
  label.SetLine(text, mPreferences.name, mBounds.right - mBounds.left - beside);
  label.SetAlpha(AlphaWithin(mPreferences.nameAlpha));
}

QString CPUHistoryWindowInformationClient::Title() const {
  return LocalizedString("history_title").arg(FollowedName(mPid), QString::number(mPid));
}

void CPUHistoryWindowInformationClient::DrawIdentity(const QString& name) {
  const auto pid = QString::number(mPid);
  auto text = LocalizedString("history_identity").arg(pid);
  if (!mProcess.ownerText.isEmpty()) text += QStringLiteral(" · ") + mProcess.ownerText;
  DrawLine(*mIdentityWindow, text, kBesideIdentity);
  Window()->setAccessibleName(
      LocalizedString("history_accessible").arg(name, pid, mProcess.ownerText));
  constexpr int kMostCommand = 400;
  auto tip = LocalizedString("history_tip")
                 .arg(name.toHtmlEscaped(), pid, mProcess.ownerText.toHtmlEscaped(),
                      mProcess.commandText.left(kMostCommand).toHtmlEscaped());
  if (!TheMachine().screen.Abilities().floats)
    tip += QLatin1String("<br><i>") + LocalizedString("history_not_above") + QLatin1String("</i>");
  Window()->setToolTip(tip);
}

void CPUHistoryWindowInformationClient::FillMenu(QMenu& menu) const {
  menu.addAction(Title().replace(QLatin1Char('&'), QLatin1String("&&")))->setEnabled(false);
  menu.addSeparator();
  const auto addSwitch = [&menu](const char* id, CPUHistorySwitch which, bool isOn) {
    auto* action = menu.addAction(LocalizedString(id));
    action->setCheckable(true);
    action->setChecked(isOn);
    QObject::connect(action, &QAction::toggled, action,
                     [which](bool on) { ChangeCPUHistorySetting(which, on); });
  };
  addSwitch("history_menu_relative", CPUHistorySwitch::kRelative, mGraph.IsRelative());
  addSwitch("history_menu_descendants", CPUHistorySwitch::kTrackDescendants,
            mGraph.TracksDescendants());
  menu.addSeparator();
  auto* processes = menu.addAction(LocalizedString("quintessential_menu_processes"));
  QObject::connect(processes, &QAction::triggered, processes, &GoBackToMainWindow);
  auto* close = menu.addAction(LocalizedString("history_menu_close"));
  QObject::connect(close, &QAction::triggered, Window(), &QWidget::close, Qt::QueuedConnection);
}

void CPUHistoryWindowInformationClient::DrawIcon() {
  const double ratio = Window()->devicePixelRatioF();
  const auto picture = GetProcessIcon(mPid, static_cast<int>(mIconWindow->width() * ratio));
  QPixmap pixmap;
  if (picture != nullptr) {
    pixmap = QPixmap::fromImage(
        QImage(reinterpret_cast<const uchar*>(picture->pixels.data()), picture->width,
               picture->height, qsizetype{4} * picture->width, QImage::Format_ARGB32_Premultiplied)
            .copy());
    pixmap.setDevicePixelRatio(ratio);
  }
  mIconWindow->SetPicture(pixmap);
  mIconWindow->SetAlpha(
      AlphaWithin(mIsApplication ? mPreferences.iconAlphaReally : mPreferences.iconAlpha));
}

void CPUHistoryWindowInformationClient::DrawPercentage(double value) {
  auto& label = *mCurrentPercentageWindow;
  label.SetText(QString::fromStdString(PercentageText(value)), mPreferences.percentageForeground);
  const int travel = mBounds.bottom - mBounds.top - label.height();
  label.move(label.x(), mGraph.PercentageOffset(value, travel));
  label.SetAlpha(AlphaWithin(mPreferences.percentageAlpha));
}

QString CPUHistoryWindowInformationClient::SpokenGraph() const {
  auto values = mGraph.Values();
  std::erase_if(values, [](double value) { return value < 0; });
  if (values.empty()) return LocalizedString("graph_missing");
  const auto [least, most] = std::ranges::minmax(values);
  const auto percent = [](double value) { return QString::number(qRound(value * 100)); };
  return LocalizedString("history_now")
      .arg(percent(values.back()), QString::number(mGraph.ScalePercent()), percent(least),
           percent(most));
}

void CPUHistoryWindowInformationClient::PaintGraph(QPainter& painter) const {
  const auto& bitmap = mGraph.Bitmap();
  const int width = bitmap.Width();
  const int height = bitmap.Height();
  const QImage ring(reinterpret_cast<const uchar*>(bitmap.Pixels()), width, height,
                    qsizetype{4} * width, QImage::Format_RGB32);
  const int first = bitmap.FirstColumn();
  painter.drawImage(QPoint(0, 0), ring, QRect(first, 0, width - first, height));
  if (first > 0) painter.drawImage(QPoint(width - first, 0), ring, QRect(0, 0, first, height));
}

}  // namespace lurkwell
