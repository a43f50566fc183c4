#include "app/TrayIcon.h"

#include <QAction>
#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStringList>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>
#include <vector>

#include "consolidator/PropertyValues.h"
#include "machine_window/MachineRecorder.h"
#include "platform/Diagnostics.h"
#include "resources/Resources.h"
#include "windows/FigureHistory.h"
#include "windows/GraphScale.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr std::size_t kBars = 16;
/// Sizes that trays have, in pixels, at scales from 1 to 3.
constexpr int kSizes[] = {16, 22, 24, 32, 36, 44, 48, 66, 72};
/// The recorder takes its turns with others, two seconds apart or more.
constexpr std::chrono::seconds kTimeBetween{2};
const QColor kGround(28, 32, 38);
const QColor kBar(92, 200, 255);

QString ShareText(float share) {
  return GraphFigureText(GraphUnit::kShare, static_cast<double>(share));
}

/// The same share of the machine or of a processor that the tables show.
QString BusyText(const BusyProcess& process) {
  // Trays show tips as markup if they look like it.
  const auto name = PlainText(process.name).replace(QLatin1Char('<'), QChar(0x2039));
  return LocalizedString("tray_busy")
      .arg(name, ShareText(process.share / static_cast<float>(CPUShareDivisor())));
}

}  // namespace

QImage TrayPicture(std::span<const float> shares, int size) {
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(kGround);
  QPainter painter(&picture);
  const int count = static_cast<int>(std::min(shares.size(), kBars));
  for (int bar = 0; bar < count; ++bar) {
    const float share = shares[shares.size() - static_cast<std::size_t>(count - bar)];
    if (!IsThere(share)) continue;
    const int place = static_cast<int>(kBars) - count + bar;
    const int left = place * size / static_cast<int>(kBars);
    const int right = (place + 1) * size / static_cast<int>(kBars);
    const int height =
        static_cast<int>(std::lround(std::clamp(share, 0.F, 1.F) * static_cast<float>(size)));
    painter.fillRect(left, size - height, right - left, height, kBar);
  }
  return picture;
}

QString TrayTip(float share, std::span<const BusyProcess> busiest) {
  QStringList lines(LocalizedString("tray_cpu").arg(IsThere(share) ? ShareText(share) : QString()));
  for (const auto& process : busiest) lines.append(BusyText(process));
  return lines.join(QLatin1Char('\n'));
}

TrayIcon::TrayIcon(ApplicationCommands& commands, std::function<void(std::int32_t)> showProcess) {
  MachineRecorder::Running();
  for (auto*& action : mBusiest) {
    action = mMenu.addAction(QString());
    action->setVisible(false);
    connect(action, &QAction::triggered, this,
            [action, showProcess] { showProcess(action->data().toInt()); });
  }
  mMenu.addSeparator();
  const auto add = [&](const char* text, void (ApplicationCommands::*command)()) {
    connect(mMenu.addAction(LocalizedString(text)), &QAction::triggered, this,
            [&commands, command] { (commands.*command)(); });
  };
  add("menu_window_show_main", &ApplicationCommands::doShowMainWindow);
  add("menu_window_show_machine", &ApplicationCommands::doShowMachineWindow);
  mMenu.addSeparator();
  add("menu_application_quit", &ApplicationCommands::doQuit);
  mIcon.setContextMenu(&mMenu);
  connect(&mIcon, &QSystemTrayIcon::activated, this,
          [&commands](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) commands.doShowMainWindow();
          });
  connect(&mTimer, &QTimer::timeout, this, &TrayIcon::Look);
  mTimer.start(kTimeBetween);
  Look();
  mIcon.show();
  if (!QSystemTrayIcon::isSystemTrayAvailable())
    Diagnose("this desktop has no tray at present, so there is no icon in it");
}

bool TrayIcon::IsSeen() const {
  return mIcon.isVisible() && QSystemTrayIcon::isSystemTrayAvailable();
}

void TrayIcon::Look() {
  const auto* recorder = MachineRecorder::IfRunning();
  std::vector<float> shares;
  std::int64_t last = 0;
  if (recorder != nullptr && !recorder->History().IsEmpty()) {
    const auto& history = recorder->History();
    last = history.TimeOf(history.Size() - 1);
    if (last == mShown) return;
    for (auto moment = history.Size() - std::min(history.Size(), kBars); moment < history.Size();
         ++moment)
      shares.push_back(history.ValueOf(kProcessorsBusy, moment));
  }
  mShown = last;
  QIcon icon;
  for (const int size : kSizes) icon.addPixmap(QPixmap::fromImage(TrayPicture(shares, size)));
  mIcon.setIcon(icon);
  const auto* moment = recorder != nullptr ? recorder->Busiest().NearestTo(last) : nullptr;
  auto busiest = moment != nullptr ? moment->Processes() : std::span<const BusyProcess>();
  busiest = busiest.first(std::min(busiest.size(), kMostBusiest));
  mIcon.setToolTip(TrayTip(shares.empty() ? FigureHistory::kMissing : shares.back(), busiest));
  ShowBusiest(busiest);
}

void TrayIcon::ShowBusiest(std::span<const BusyProcess> busiest) {
  for (std::size_t place = 0; place < mBusiest.size(); ++place) {
    auto& action = *mBusiest[place];
    action.setVisible(place < busiest.size());
    if (place >= busiest.size()) continue;
    // A name's own sign would be taken for a letter's mark.
    action.setText(BusyText(busiest[place]).replace(QLatin1Char('&'), QLatin1String("&&")));
    action.setData(busiest[place].pid);
  }
}

}  // namespace lurkwell
