#include "windows/ClearButton.h"

#include <QLineEdit>
#include <QToolButton>

#include "resources/Resources.h"

namespace lurkwell {

void AddClearButton(QLineEdit& field) {
  const auto before = field.findChildren<QToolButton*>();
  field.setClearButtonEnabled(true);
  const auto text = LocalizedString("field_clear");
  for (auto* button : field.findChildren<QToolButton*>()) {
    if (before.contains(button)) continue;
    button->setAccessibleName(text);
    button->setToolTip(text);
  }
}

}  // namespace lurkwell
