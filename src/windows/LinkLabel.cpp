#include "windows/LinkLabel.h"

namespace lurkwell {

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::RichText);
  setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  setFocusPolicy(Qt::NoFocus);
}

void LinkLabel::Show(const QString& html) {
  if (html == text()) return;
  setText(html);
  setFocusPolicy(HasLink() ? Qt::StrongFocus : Qt::NoFocus);
  // A new text is a new document, in which nothing is chosen.
  if (!hasFocus()) return;
  // It is read when the label is measured, which would be later.
  (void)sizeHint();
  ChooseLink();
}

void LinkLabel::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  ChooseLink();
}

bool LinkLabel::HasLink() const {
  return text().contains(QLatin1String("<a "));
}

void LinkLabel::ChooseLink() {
  // Without a link the keyboard would go on from here.
  if (!hasSelectedText() && HasLink()) focusNextPrevChild(true);
}

}  // namespace lurkwell
