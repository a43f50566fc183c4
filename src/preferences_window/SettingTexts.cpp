#include "preferences_window/SettingTexts.h"

#include "resources/Resources.h"

namespace lurkwell {
namespace {

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

}  // namespace lurkwell
