#include "windows/HelpKey.h"

#include <QShortcut>
#include <array>
#include <cstddef>
#include <utility>

namespace lurkwell {
namespace {

constexpr std::array<const char*, static_cast<std::size_t>(HelpSection::kCount)> kAnchors = {
    "details", "histories", "logs", "machine", "alerts", "fleet", "animated", "preferences"};

std::function<void(HelpSection)> gShowHelp;

}  // namespace

const char* AnchorOf(HelpSection section) {
  return kAnchors[static_cast<std::size_t>(section)];
}

void SetHelp(std::function<void(HelpSection)> show) {
  gShowHelp = std::move(show);
}

void ShowHelpAbout(HelpSection section) {
  if (gShowHelp) gShowHelp(section);
}

void AddHelpKey(QWidget& window, HelpSection section) {
  QObject::connect(new QShortcut(Qt::Key_F1, &window), &QShortcut::activated, &window,
                   [section] { ShowHelpAbout(section); });
}

}  // namespace lurkwell
