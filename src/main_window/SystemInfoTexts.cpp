#include "main_window/SystemInfoTexts.h"

#include <cmath>

#include "process_control/DisplayFormats.h"
#include "resources/Resources.h"
#include "windows/SystemFigures.h"

namespace lurkwell {
namespace {

QString Size(std::int64_t bytes) {
  return QString::fromStdString(MemoryString(bytes)).trimmed();
}

}  // namespace

QString CPUGaugeText(double usage, int processors) {
  const char* id = processors == 1 ? "toolbar_system_cpu_figure_one" : "toolbar_system_cpu_figure";
  return LocalizedString(id).arg(std::lround(usage * 100.0)).arg(processors);
}

QString MemoryGaugeText(const SystemFigures& figures) {
  return LocalizedString("toolbar_system_ram_figures")
      .arg(Size(figures.usedBytes), Size(figures.physicalBytes), Size(figures.wiredBytes),
           Size(figures.inactiveBytes), Size(figures.physicalBytes - figures.usedBytes));
}

QString PageoutsText(std::int64_t pages) {
  const char* id = pages == 1 ? "toolbar_vm_thrashing_figure_one" : "toolbar_vm_thrashing_figure";
  return LocalizedString(id).arg(pages);
}

}  // namespace lurkwell
