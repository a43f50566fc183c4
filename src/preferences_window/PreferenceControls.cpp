#include "preferences_window/PreferenceControls.h"

#include <QComboBox>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QRadioButton>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <vector>

#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "preferences_window/PreferenceChanges.h"
#include "resources/Resources.h"
#include "windows/ControllerAssertion.h"

namespace lurkwell {
namespace {

constexpr const char* kToLogical =
    "PreferencesUI: givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq";
constexpr const char* kToPhysical =
    "PreferencesUI: givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq";
constexpr const char* kToDescription =
    "PreferencesUI: givenMillisecondsCalcStringDescriptionForMainWindowFreq";

/// What the engine serves when it is asked for less.
constexpr int kShortestServed = 20;
constexpr int kSecond = 1000;
constexpr int kMinute = 60 * kSecond;
constexpr int kHour = 60 * kMinute;

/// A second in whole parts, 20 positions each.
constexpr int kShort[] = {100, 111, 125, 142, 166, 200, 250, 333, 500, 1000};
constexpr int kPositionsOfShort = 20;

/// A hundred positions each, evenly from here to where the next begins.
struct Stretch {
  int position;
  int milliseconds;
  int step;
};
constexpr Stretch kStretches[] = {
    {200, 1000, 40},    {300, 5000, 50},     {400, 10000, 200},    {500, 30000, 300},
    {600, 60000, 2400}, {700, 300000, 3000}, {800, 600000, 12000}, {900, 1800000, 18000},
};

/// The last stretch that begins at or below the value.
template <typename Member>
const Stretch& StretchOf(int value, Member member) {
  const auto* after = std::upper_bound(
      std::begin(kStretches), std::end(kStretches), value,
      [member](int wanted, const Stretch& stretch) { return wanted < stretch.*member; });
  return *std::prev(after);
}

int ShortPosition(int milliseconds) {
  // A sixth of a second, rounded the other way.
  if (milliseconds == 167) milliseconds = 166;
  const auto* end = std::prev(std::end(kShort));
  const auto* at = std::find(std::begin(kShort), end, milliseconds);
  if (!Expect(at != end, kToPhysical, "Bad input value")) return kLastPosition;
  return static_cast<int>(at - std::begin(kShort)) * kPositionsOfShort;
}

QString InWords(int milliseconds) {
  if (milliseconds < kSecond)
    return LocalizedString("preferences_times_per_second",
                           static_cast<qint64>(1000.0 / milliseconds));
  if (milliseconds < kMinute)
    return LocalizedString("preferences_every_seconds", qint64{milliseconds / kSecond});
  if (milliseconds != kHour)
    return LocalizedString("preferences_every_minutes", qint64{milliseconds / kMinute});
  return LocalizedString("preferences_every_hour");
}

}  // namespace

int givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(int position) {
  if (!Expect(position >= 0 && position <= kLastPosition, kToLogical,
              "invalid conversion to logical value"))
    return 0;
  if (position < kStretches[0].position) return kShort[position / kPositionsOfShort];
  const auto& stretch = StretchOf(position, &Stretch::position);
  const int milliseconds = (position - stretch.position) * stretch.step + stretch.milliseconds;
  Expect(milliseconds >= kShortestInterval && milliseconds <= kLongestInterval, kToLogical,
         "invalid conversion to logical value");
  return milliseconds;
}

int givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq(int milliseconds) {
  if (!Expect(milliseconds >= kShortestInterval, kToPhysical,
              "invalidly small logical value input"))
    return 0;
  if (!Expect(milliseconds <= kLongestInterval, kToPhysical, "invalidly large logical value input"))
    return kLastPosition;
  if (milliseconds < kSecond) return ShortPosition(milliseconds);
  const auto& stretch = StretchOf(milliseconds, &Stretch::milliseconds);
  const int position = (milliseconds - stretch.milliseconds) / stretch.step + stretch.position;
  Expect(position <= kLastPosition, kToPhysical, "invalid conversion to physical value");
  return position;
}

QString givenMillisecondsCalcStringDescriptionForMainWindowFreq(int milliseconds) {
  Expect(milliseconds >= kShortestInterval, kToDescription,
         "invalid (too small) millisecond input");
  if (milliseconds > kHour) return LocalizedString("preferences_interval_invalid");
  return InWords(milliseconds == 0 ? 1 : milliseconds);
}

int NearestPosition(int milliseconds) {
  milliseconds = std::clamp(milliseconds, kShortestInterval, kLongestInterval);
  if (milliseconds < kSecond) {
    const auto isNearer = [milliseconds](int one, int other) {
      return std::abs(one - milliseconds) < std::abs(other - milliseconds);
    };
    milliseconds = *std::min_element(std::begin(kShort), std::end(kShort), isNearer);
  }
  return givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq(milliseconds);
}

QString DescriptionOfStored(int milliseconds) {
  return InWords(std::max(milliseconds, kShortestServed));
}

namespace {

using enum ControlKind;

constexpr char kColourProperty[] = "shownColour";
constexpr double kPositionsOfOne = 1000.0;
constexpr std::size_t kComponents = 3;

template <typename Widget>
Widget* Find(const QWidget& window, const Setting& setting) {
  return window.findChild<Widget*>(QLatin1String(setting.control));
}

/// "frameIntervalSlider" has its value in "frameIntervalText".
QLabel* LabelOf(const QWidget& window, const Setting& setting) {
  const QString name = QLatin1String(setting.control);
  return window.findChild<QLabel*>(
      QString(name).replace(QStringLiteral("Slider"), QStringLiteral("Text")));
}

int CountingInt(const Setting& setting) {
  return StoredInt(setting).value_or(static_cast<int>(setting.defaultValue));
}

double CountingReal(const Setting& setting) {
  const double stored = StoredReal(setting).value_or(setting.defaultValue);
  return std::isnan(stored) ? setting.defaultValue : stored;
}

void PlaceSlider(const QWidget& window, const Setting& setting, int position,
                 const QString& description) {
  auto* slider = Find<QSlider>(window, setting);
  if (slider == nullptr) return;
  const bool wereBlocked = slider->blockSignals(true);
  slider->setValue(position);
  slider->blockSignals(wereBlocked);
  // Blocked, the slider does not draw itself anew either.
  slider->update();
  slider->setAccessibleDescription(description);
  if (auto* text = LabelOf(window, setting)) text->setText(description);
}

void PlaceIntervalSlider(const QWidget& window, const Setting& setting, int milliseconds) {
  PlaceSlider(window, setting, NearestPosition(milliseconds), DescriptionOfStored(milliseconds));
}

QString PercentText(double fraction) {
  return LocalizedString("preferences_percent").arg(qRound(fraction * 100));
}

/// A value that is no row counts as the first wherever it is read.
void SelectRow(const QWidget& window, const Setting& setting, int row) {
  const auto* matrix = Find<QWidget>(window, setting);
  if (matrix == nullptr) return;
  if (auto* list = Find<QComboBox>(window, setting))
    return list->setCurrentIndex(row >= 0 && row < list->count() ? row : 0);
  const auto rows = matrix->findChildren<QRadioButton*>();
  if (row < 0 || row >= rows.size()) row = 0;
  if (row < rows.size()) rows[row]->setChecked(true);
}

int SelectedRow(const QWidget& matrix) {
  if (const auto* list = qobject_cast<const QComboBox*>(&matrix)) return list->currentIndex();
  const auto rows = matrix.findChildren<QRadioButton*>();
  const auto at = std::ranges::find_if(rows, [](const auto* row) { return row->isChecked(); });
  return at != rows.end() ? static_cast<int>(at - rows.begin()) : 0;
}

void StoreIntervalControl(const QWidget& window, const Setting& setting, int position) {
  const int milliseconds = givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(position);
  StoreInterval(setting, milliseconds, [&](const Setting& follower, int value) {
    if (follower.control != nullptr) PlaceIntervalSlider(window, follower, value);
  });
}

/// 16 bits a component. Green and blue follow red.
QColor StoredColour(const Setting& red) {
  std::array<ushort, kComponents> values{};
  for (std::size_t i = 0; i < kComponents; ++i)
    values[i] = static_cast<ushort>(std::clamp(CountingInt((&red)[i]), 0, 65535));
  return QColor::fromRgba64(values[0], values[1], values[2]);
}

void StoreColour(const Setting& red, const QColor& colour) {
  // What a colour holds are the components times 65535 already, exactly.
  const auto rgb = colour.rgba64();
  const std::array<int, kComponents> values = {rgb.red(), rgb.green(), rgb.blue()};
  const PreferenceBatch batch;
  for (std::size_t i = 0; i < kComponents; ++i) StoreNumber((&red)[i], values[i]);
}

std::vector<const Setting*> WithControls() {
  std::vector<const Setting*> settings;
  for (const auto& setting : kSettings)
    if (setting.control != nullptr) settings.push_back(&setting);
  return settings;
}

}  // namespace

std::span<const Setting* const> SettingsWithControls() {
  static const auto kWithControls = WithControls();
  return kWithControls;
}

ControlKind ControlKindOf(const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::kSwitch:
      return kCheckBox;
    case SettingKind::kInterval:
      return kIntervalSlider;
    case SettingKind::kReal:
      return kFractionSlider;
    case SettingKind::kColour:
      return kColourWell;
    default:
      return kMatrix;
  }
}

void LoadControl(const QWidget& window, const Setting& setting) {
  switch (ControlKindOf(setting)) {
    case kMatrix:
      return SelectRow(window, setting, CountingInt(setting));
    case kIntervalSlider:
      return PlaceIntervalSlider(window, setting, CountingInt(setting));
    case kFractionSlider: {
      const double shown = std::clamp(CountingReal(setting), 0.0, 1.0);
      return PlaceSlider(window, setting, qRound(shown * kPositionsOfOne), PercentText(shown));
    }
    case kCheckBox:
      if (auto* box = Find<QAbstractButton>(window, setting)) {
        const bool wereBlocked = box->blockSignals(true);
        box->setChecked(CountingInt(setting) != 0);
        box->blockSignals(wereBlocked);
        box->update();
      }
      return;
    case kColourWell:
      if (auto* well = Find<QAbstractButton>(window, setting))
        ShowColour(*well, StoredColour(setting));
      return;
  }
}

void DescribeSlider(const QWidget& window, const Setting& setting) {
  auto* slider = Find<QSlider>(window, setting);
  if (slider == nullptr) return;
  const QString text =
      ControlKindOf(setting) == kIntervalSlider
          ? givenMillisecondsCalcStringDescriptionForMainWindowFreq(
                givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(slider->value()))
          : PercentText(slider->value() / kPositionsOfOne);
  slider->setAccessibleDescription(text);
  if (auto* label = LabelOf(window, setting)) label->setText(text);
}

void StoreControl(const QWidget& window, const Setting& setting) {
  const auto* widget = Find<QWidget>(window, setting);
  const auto* slider = qobject_cast<const QSlider*>(widget);
  const auto* button = qobject_cast<const QAbstractButton*>(widget);
  if (slider != nullptr) DescribeSlider(window, setting);
  const auto kind = ControlKindOf(setting);
  if (kind == kMatrix && widget != nullptr)
    StoreNumber(setting, SelectedRow(*widget));
  else if (kind == kIntervalSlider && slider != nullptr)
    StoreIntervalControl(window, setting, slider->value());
  else if (kind == kFractionSlider && slider != nullptr)
    StoreNumber(setting, slider->value() / kPositionsOfOne);
  else if (kind == kCheckBox && button != nullptr)
    StoreNumber(setting, button->isChecked() ? 1 : 0);
  else if (kind == kColourWell && button != nullptr)
    StoreColour(setting, ShownColour(*button));
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
