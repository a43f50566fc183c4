#include "preferences_window/PreferenceControls.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QRadioButton>
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "platform/Assertion.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/PreferencesRetrieval.h"
#include "preferences_window/IntervalScale.h"
#include "preferences_window/PreferenceChanges.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

using enum ControlKind;

constexpr PreferenceControl kControls[] = {
    {"memoryFormatMatrix", kMatrix, "GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", nullptr, false},
    {"dateFormatMatrix", kMatrix, "GENERAL_PREFERRED_DATE_DISPLAY_FORMAT", nullptr, false},

    {"mainWindowIntervalSlider", kIntervalSlider, "MAIN_WINDOW_INTERVAL", "mainWindowIntervalText",
     false},
    {"memoryGraphCheckBox", kCheckBox, "MEM_GRAPH_DRAW_VSZ", nullptr, false},

    {"frameIntervalSlider", kIntervalSlider, "HEARTQUIVA_GL_THREAD_INTERVAL", "frameIntervalText",
     false},
    {"mainIntervalSlider", kIntervalSlider, "HEARTQUIVA_MAINPIC_INTERVAL", "mainIntervalText",
     false},
    {"cpuIntervalSlider", kIntervalSlider, "HEARTQUIVA_HELPERPIC_INTERVAL", "cpuIntervalText",
     false},
    {"connectorsCheckBox", kCheckBox, "QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS", nullptr,
     false},
    {"windowAlphaSlider", kFractionSlider, "QUINT_FULLSCREEN_WINDOW_ALPHA", "windowAlphaText",
     false},
    {"underlayAlphaSlider", kFractionSlider, "QUINT_FULLSCREEN_UNDERLAY_ALPHA", "underlayAlphaText",
     false},

    {"relativeCheckBox", kCheckBox, "CPU_HISTORY_WINDOW_USE_RELATIVE", nullptr, false},
    {"descendantsCheckBox", kCheckBox, "CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", nullptr,
     false},
    {"historyIntervalSlider", kIntervalSlider, "DEFAULT_CPU_HISTORY_WINDOW_INTERVAL",
     "historyIntervalText", false},
    {"historyFilterSlider", kFractionSlider, "CPU_HISTORY_WINDOW_DEFAULT_FILTER",
     "historyFilterText", false},
    {"historyColourWell", kColourWell, "DEFAULT_CPU_HISTORY_FOREGROUND_RGB", nullptr, false},
    {"descendantsColourWell", kColourWell, "DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB",
     nullptr, false},

    {"timestampCheckBox", kCheckBox, "LOG_WINDOW_INCLUDE_TIMESTAMP", nullptr, true},
    {"activeTimeCheckBox", kCheckBox, "LOG_WINDOW_ACTIVE_TIME_BOOL", nullptr, true},
    {"deltaActiveTimeCheckBox", kCheckBox, "LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL", nullptr, true},
    {"realMemoryCheckBox", kCheckBox, "LOG_WINDOW_REAL_MEM_BOOL", nullptr, true},
    {"deltaRealMemoryCheckBox", kCheckBox, "LOG_WINDOW_DELTA_REAL_MEM_BOOL", nullptr, true},
    {"virtualMemoryCheckBox", kCheckBox, "LOG_WINDOW_VIRTUAL_MEM_BOOL", nullptr, true},
    {"deltaVirtualMemoryCheckBox", kCheckBox, "LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL", nullptr, true},
    {"logToFileCheckBox", kCheckBox, "LOG_WINDOW_LOG_TO_FILE", nullptr, true},
    {"loggingIntervalSlider", kIntervalSlider, "DEFAULT_LOGGING_WINDOW_INTERVAL",
     "loggingIntervalText", true},
};

constexpr char kColourProperty[] = "shownColour";
constexpr double kPositionsOfOne = 1000.0;
constexpr std::array<const char*, 3> kComponents = {"_RED", "_GREEN", "_BLUE"};

template <typename Widget>
Widget* Find(const QWidget& window, const char* name) {
  return name != nullptr ? window.findChild<Widget*>(QLatin1String(name)) : nullptr;
}

const PreferenceEntry& Entry(const std::string& key) {
  const auto* entry = FindPreference(key);
  Require(entry != nullptr, "PreferencesUI", "entry != NULL");
  return *entry;
}

int StoredInt(const PreferenceEntry& entry) {
  std::uint8_t found = 0;
  const auto value = GetPrefInt(entry.key, &found, false, 0);
  return found != 0 ? value : static_cast<int>(entry.defaultValue);
}

double StoredReal(const PreferenceEntry& entry) {
  std::uint8_t found = 0;
  const double value = GetPrefDouble(entry.key, &found, false, 0);
  return found != 0 && !std::isnan(value) ? value : entry.defaultValue;
}

void PlaceSlider(const QWidget& window, const PreferenceControl& control, int position,
                 const QString& description) {
  auto* slider = Find<QSlider>(window, control.name);
  if (slider == nullptr) return;
  const bool wereBlocked = slider->blockSignals(true);
  slider->setValue(position);
  slider->blockSignals(wereBlocked);
  // Blocked, the slider does not draw itself anew either.
  slider->update();
  slider->setAccessibleDescription(description);
  if (auto* text = Find<QLabel>(window, control.text)) text->setText(description);
}

void PlaceIntervalSlider(const QWidget& window, const PreferenceControl& control,
                         int milliseconds) {
  PlaceSlider(window, control, NearestPosition(milliseconds), DescriptionOfStored(milliseconds));
}

QString PercentText(double fraction) {
  return LocalizedString("preferences_percent").arg(qRound(fraction * 100));
}

/// A value that is no row counts as the first wherever it is read.
void SelectRow(const QWidget& window, const PreferenceControl& control, int row) {
  const auto* matrix = Find<QWidget>(window, control.name);
  if (matrix == nullptr) return;
  const auto rows = matrix->findChildren<QRadioButton*>();
  if (row < 0 || row >= rows.size()) row = 0;
  if (row < rows.size()) rows[row]->setChecked(true);
}

int SelectedRow(const QWidget& matrix) {
  const auto rows = matrix.findChildren<QRadioButton*>();
  const auto at = std::ranges::find_if(rows, [](const auto* row) { return row->isChecked(); });
  return at != rows.end() ? static_cast<int>(at - rows.begin()) : 0;
}

void StoreIntervalControl(const QWidget& window, const PreferenceControl& control, int position) {
  const int milliseconds = givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(position);
  StoreInterval(EntryOf(control), milliseconds, [&](const PreferenceEntry& other, int value) {
    for (const auto& follower : kControls)
      if (std::string_view(follower.key) == other.key) PlaceIntervalSlider(window, follower, value);
  });
}

/// 16 bits a component.
QColor StoredColour(const PreferenceControl& well) {
  std::array<ushort, 3> values{};
  for (std::size_t i = 0; i < values.size(); ++i) {
    const int stored = StoredInt(Entry(std::string(well.key) + kComponents[i]));
    values[i] = static_cast<ushort>(std::clamp(stored, 0, 65535));
  }
  return QColor::fromRgba64(values[0], values[1], values[2]);
}

void StoreColour(const PreferenceControl& well, const QColor& colour) {
  // What a colour holds are the components times 65535 already, exactly.
  const auto rgb = colour.rgba64();
  const std::array<int, 3> values = {rgb.red(), rgb.green(), rgb.blue()};
  const PreferenceBatch batch;
  for (std::size_t i = 0; i < values.size(); ++i)
    SetPrefInt((std::string(well.key) + kComponents[i]).c_str(), values[i]);
}

}  // namespace

std::span<const PreferenceControl> PreferenceControls() {
  return kControls;
}

const PreferenceEntry& EntryOf(const PreferenceControl& control) {
  const std::string key = control.key;
  return Entry(control.kind == kColourWell ? key + kComponents[0] : key);
}

void LoadControl(const QWidget& window, const PreferenceControl& control) {
  const auto& entry = EntryOf(control);
  switch (control.kind) {
    case kMatrix:
      return SelectRow(window, control, StoredInt(entry));
    case kIntervalSlider:
      return PlaceIntervalSlider(window, control, StoredInt(entry));
    case kFractionSlider: {
      const double stored = StoredReal(entry);
      const double shown = std::clamp(stored, 0.0, 1.0);
      return PlaceSlider(window, control, qRound(shown * kPositionsOfOne), PercentText(shown));
    }
    case kCheckBox:
      if (auto* box = Find<QAbstractButton>(window, control.name)) {
        const bool wereBlocked = box->blockSignals(true);
        box->setChecked(StoredInt(entry) != 0);
        box->blockSignals(wereBlocked);
        box->update();
      }
      return;
    case kColourWell:
      if (auto* well = Find<QAbstractButton>(window, control.name))
        ShowColour(*well, StoredColour(control));
      return;
  }
}

void DescribeSlider(const QWidget& window, const PreferenceControl& control) {
  auto* slider = Find<QSlider>(window, control.name);
  if (slider == nullptr) return;
  const QString text =
      control.kind == kIntervalSlider
          ? givenMillisecondsCalcStringDescriptionForMainWindowFreq(
                givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(slider->value()))
          : PercentText(slider->value() / kPositionsOfOne);
  slider->setAccessibleDescription(text);
  if (auto* label = Find<QLabel>(window, control.text)) label->setText(text);
}

void StoreControl(const QWidget& window, const PreferenceControl& control) {
  const auto* widget = Find<QWidget>(window, control.name);
  const auto* slider = qobject_cast<const QSlider*>(widget);
  const auto* button = qobject_cast<const QAbstractButton*>(widget);
  if (slider != nullptr) DescribeSlider(window, control);
  if (control.kind == kMatrix && widget != nullptr)
    SetPrefInt(control.key, SelectedRow(*widget));
  else if (control.kind == kIntervalSlider && slider != nullptr)
    StoreIntervalControl(window, control, slider->value());
  else if (control.kind == kFractionSlider && slider != nullptr)
    SetPrefDouble(control.key, slider->value() / kPositionsOfOne);
  else if (control.kind == kCheckBox && button != nullptr)
    SetPrefInt(control.key, button->isChecked() ? 1 : 0);
  else if (control.kind == kColourWell && button != nullptr)
    StoreColour(control, ShownColour(*button));
}

void ShowColour(QAbstractButton& well, const QColor& colour) {
  const QSize size(well.fontMetrics().height() * 2, well.fontMetrics().height());
  const double ratio = well.devicePixelRatioF();
  QPixmap swatch(size * ratio);
  swatch.setDevicePixelRatio(ratio);
  swatch.fill(colour);
  QPainter painter(&swatch);
  painter.setPen(well.palette().color(QPalette::Mid));
  painter.drawRect(QRect(QPoint(), size).adjusted(0, 0, -1, -1));
  painter.end();
  well.setIconSize(size);
  well.setIcon(QIcon(swatch));
  well.setText(colour.name().toUpper());
  well.setAccessibleDescription(colour.name());
  well.setProperty(kColourProperty, colour);
}

QColor ShownColour(const QAbstractButton& well) {
  return well.property(kColourProperty).value<QColor>();
}

}  // namespace lurkwell
