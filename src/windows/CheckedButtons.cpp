#include "windows/CheckedButtons.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QPalette>

namespace lurkwell {

void MarkChecked(const QButtonGroup& buttons) {
  auto marked = QApplication::palette();
  marked.setBrush(QPalette::Button, marked.highlight());
  marked.setBrush(QPalette::ButtonText, marked.highlightedText());
  for (auto* button : buttons.buttons())
    button->setPalette(button->isChecked() ? marked : QPalette());
}

}  // namespace lurkwell
