#include "preferences_window/SettingsModel.h"

#include <QFont>
#include <QPalette>
#include <string_view>

#include "platform/HotKeys.h"
#include "platform/Machine.h"
#include "platform/PreferenceDomain.h"
#include "preferences_window/PreferenceChanges.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

constexpr std::string_view kHotKeySetting = "FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE";

/// The text of that kind; empty without one.
QString TextOf(const Setting& entry, const char* kind, const char* ofComponent) {
  QByteArray id = QByteArray(kind) + entry.key;
  if (entry.kind != SettingKind::kColour)
    return HasLocalizedString(id) ? LocalizedString(id) : QString();
  // The three components share what their colour is for.
  const auto cut = id.lastIndexOf('_');
  const QByteArray component = ofComponent + id.mid(cut).toLower();
  id.truncate(cut);
  return HasLocalizedString(id) ? LocalizedString(component).arg(LocalizedString(id)) : QString();
}

}  // namespace

QString TitleOf(const Setting& entry) {
  return TextOf(entry, "setting_title_", "settings_title");
}

QString MeaningOf(const Setting& entry) {
  return TextOf(entry, "setting_", "settings_component");
}

namespace {

QString NumberText(double number) {
  return LocalNumber(number, 'g', 12);
}

QString TextOf(std::int64_t integer) {
  return QString::number(integer);
}
QString TextOf(double real) {
  return NumberText(real);
}
QString TextOf(const std::string& text) {
  return QString::fromStdString(text);
}
QString TextOf(const PreferenceArray& array) {
  return LocalizedString("settings_elements", static_cast<qint64>(array.size()));
}

/// Null when nothing is stored.
QString StoredText(const Setting& entry) {
  const auto* value = TheMachine().preferenceDomain.Value(entry.key);
  if (value == nullptr) return {};
  const QString text = std::visit([](const auto& held) { return TextOf(held); }, *value);
  return text.isNull() ? QStringLiteral("") : text;
}

QString DefaultText(const Setting& entry) {
  return entry.HasDefault() ? NumberText(entry.defaultValue) : QString();
}

QString KindText(const Setting& entry) {
  constexpr const char* kIds[] = {
      "settings_kind_switch",   "settings_kind_choice", "settings_kind_integer",
      "settings_kind_interval", "settings_kind_colour", "settings_kind_real",
      "settings_kind_text",     "settings_kind_record", "settings_kind_array"};
  constexpr const char* kUnitIds[] = {"",
                                      "settings_unit_milliseconds",
                                      "settings_unit_seconds",
                                      "settings_unit_pages",
                                      "settings_unit_points",
                                      "settings_unit_ticks"};
  QString text = LocalizedString(kIds[static_cast<int>(entry.kind)]);
  if (entry.unit != SettingUnit::kNone)
    text = LocalizedString("settings_kind_unit")
               .arg(text, LocalizedString(kUnitIds[static_cast<int>(entry.unit)]));
  const bool hasRange = entry.kind == SettingKind::kInteger || entry.kind == SettingKind::kReal ||
                        entry.kind == SettingKind::kChoice || entry.kind == SettingKind::kInterval;
  if (!hasRange || entry.most >= std::numeric_limits<std::int32_t>::max()) return text;
  return LocalizedString("settings_kind_range")
      .arg(text, NumberText(entry.least), NumberText(entry.most));
}

QString EffectText(const Setting& entry) {
  constexpr const char* kIds[] = {"settings_effect_at_once", "settings_effect_new_windows",
                                  "settings_effect_next_start"};
  return LocalizedString(kIds[static_cast<int>(entry.effect)]);
}

/// How it stands with the key that was registered at the start; empty when it simply works.
QString HotKeyNote() {
  const auto [standing, trigger] = TheMachine().hotKeys.State();
  switch (standing) {
    case HotKeyStanding::kNone:
      return {};
    case HotKeyStanding::kGiven:
      return trigger.empty()
                 ? QString()
                 : LocalizedString("hot_key_given").arg(QString::fromStdString(trigger));
    case HotKeyStanding::kAwaited:
      return LocalizedString("hot_key_awaited");
    case HotKeyStanding::kTaken:
      return LocalizedString("hot_key_taken");
    case HotKeyStanding::kRefused:
      return LocalizedString("hot_key_refused");
    case HotKeyStanding::kNoWay:
      return LocalizedString("hot_key_no_way");
  }
  return {};
}

bool IsNumberText(const QString& text) {
  bool isNumber = false;
  NumberFromUser(text, &isNumber);
  return isNumber;
}

bool IsOn(const QString& text) {
  bool isNumber = false;
  return NumberFromUser(text, &isNumber) != 0;
}

}  // namespace

SettingsModel::SettingsModel(QObject* parent)
    : QAbstractTableModel(parent), fStored(std::size(kSettings)) {
  Refresh();
}

const Setting& SettingsModel::EntryAt(int row) {
  return kSettings[static_cast<std::size_t>(row)];
}

int SettingsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fStored.size());
}

int SettingsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant SettingsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr const char* kIds[kColumns] = {"settings_column_key",     "settings_column_value",
                                          "settings_column_default", "settings_column_kind",
                                          "settings_column_effect",  "settings_column_meaning"};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= kColumns) return {};
  return LocalizedString(kIds[section]);
}

QVariant SettingsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto& entry = EntryAt(index.row());
  if (role == kKeyRole) return QLatin1String(entry.key);
  if (role == kFilterRole) return FilteredText(index);
  if (index.column() == kValue) return ValueData(index.row(), role);
  if (index.column() == kTitle && role == Qt::AccessibleTextRole)
    return LocalizedString("settings_title_and_key").arg(TitleOf(entry), QLatin1String(entry.key));
  if (role == Qt::ToolTipRole) return MeaningOf(entry);
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case kTitle:
      return TitleOf(entry);
    case kDefault:
      return DefaultText(entry);
    case kKind:
      return KindText(entry);
    case kEffect:
      return EffectText(entry);
    default:
      return MeaningOf(entry);
  }
}

QString SettingsModel::FilteredText(const QModelIndex& index) const {
  auto shown = index.data().toString();
  if (index.column() != kTitle) return shown;
  return shown + QLatin1Char('\n') + QLatin1String(EntryAt(index.row()).key);
}

QVariant SettingsModel::ValueData(int row, int role) const {
  const auto& entry = EntryAt(row);
  const auto& stored = fStored[static_cast<std::size_t>(row)];
  const QString counts = stored.isNull() ? DefaultText(entry) : stored;
  if (role == Qt::DisplayRole || role == Qt::EditRole) return counts;
  if (role == Qt::ToolTipRole) return NoteOf(row);
  if (role == Qt::CheckStateRole && entry.kind == SettingKind::kSwitch)
    return IsOn(counts) ? Qt::Checked : Qt::Unchecked;
  if (role == Qt::FontRole && !entry.IsProgramsOwn()) {
    QFont font;
    font.setBold(!stored.isNull() && entry.HasDefault() && stored != DefaultText(entry));
    font.setItalic(stored.isNull());
    return font;
  }
  return {};
}

Qt::ItemFlags SettingsModel::flags(const QModelIndex& index) const {
  auto flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
  if (!index.isValid() || index.column() != kValue) return flags;
  const auto& entry = EntryAt(index.row());
  if (entry.kind == SettingKind::kSwitch) return flags | Qt::ItemIsUserCheckable;
  return entry.IsProgramsOwn() ? flags : flags | Qt::ItemIsEditable;
}

bool SettingsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || index.column() != kValue) return false;
  const auto& entry = EntryAt(index.row());
  if (role == Qt::CheckStateRole && entry.kind == SettingKind::kSwitch)
    return Change(entry, value.toInt() == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0"));
  if (role != Qt::EditRole || entry.IsProgramsOwn()) return false;
  // An editor that was opened and left says what was there.
  if (value.toString() == ValueData(index.row(), Qt::EditRole).toString()) return false;
  return Change(entry, value.toString());
}

bool SettingsModel::Change(const Setting& entry, const QString& text) {
  if (entry.IsNumber()) {
    const auto read = ReadNumber(entry, text);
    if (!read.value) {
      Q_EMIT refused(read.problem);
      return false;
    }
    ChangeNumber(entry, *read.value);
  } else if (!ChangeText(entry, text)) {
    Q_EMIT refused(LocalizedString("settings_problem_characters"));
    return false;
  }
  Refresh();
  Q_EMIT changed();
  return true;
}

bool SettingsModel::CanReset(int row) const {
  return !fStored[static_cast<std::size_t>(row)].isNull() && !EntryAt(row).IsProgramsOwn();
}

void SettingsModel::Reset(const QList<int>& rows) {
  std::vector<const Setting*> entries;
  for (const int row : rows)
    if (CanReset(row)) entries.push_back(&EntryAt(row));
  if (entries.empty()) return;
  ResetPreferences(entries);
  Refresh();
  Q_EMIT changed();
}

void SettingsModel::Refresh() {
  for (std::size_t i = 0; i < fStored.size(); ++i) {
    const auto row = static_cast<int>(i);
    QString text = StoredText(EntryAt(row));
    if (text == fStored[i] && text.isNull() == fStored[i].isNull()) continue;
    fStored[i] = std::move(text);
    Q_EMIT dataChanged(index(row, kValue), index(row, kValue));
  }
}

QString SettingsModel::NoteOf(int row) const {
  const auto& entry = EntryAt(row);
  const auto& stored = fStored[static_cast<std::size_t>(row)];
  if (entry.IsProgramsOwn()) return LocalizedString("settings_note_record");
  if (!stored.isNull() && entry.IsNumber() && !IsNumberText(stored))
    return LocalizedString("settings_note_no_number");
  constexpr const char* kIds[] = {"settings_note_at_once", "settings_note_new_windows",
                                  "settings_note_next_start"};
  QString effect = LocalizedString(kIds[static_cast<int>(entry.effect)]);
  if (std::string_view(entry.key) == kHotKeySetting) effect += QLatin1Char(' ') + HotKeyNote();
  return (stored.isNull() ? LocalizedString("settings_note_not_stored").arg(effect) : effect)
      .trimmed();
}

}  // namespace lurkwell
