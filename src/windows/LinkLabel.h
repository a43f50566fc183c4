#pragma once

#include <QLabel>

namespace lurkwell {

/// A rich text with one link, which has the keyboard as soon as the label has it: one stop of the
/// Tab key. Without a link it is none. Main thread only.
class LinkLabel final : public QLabel {
  Q_OBJECT

 public:
  explicit LinkLabel(QWidget* parent = nullptr);

  void Show(const QString& html);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool HasLink() const;
  void ChooseLink();
};

}  // namespace lurkwell
