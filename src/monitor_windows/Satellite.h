#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace lurkwell {

/// A label that is laid over a floating window, with an opacity of its own. Unseen until its
/// opacity is set for the first time; it lets clicks through. Main thread only.
class Satellite final : public QWidget {
 public:
  Satellite(QWidget& group, const QRect& bounds, const QFont& font, QPoint baseline);

  void SetColours(const QColor& background, const QColor& text);
  void SetText(const QString& text, const QColor& colour);
  /// The same, and as wide as the text needs, but not wider than `most`: what does not fit is left
  /// out in the middle.
  void SetLine(const QString& text, const QColor& colour, int most);
  const QString& Text() const { return mText; }
  QColor TextColour() const { return mTextColour; }

  /// Drawn in the middle instead of a text; nothing for a null picture.
  void SetPicture(const QPixmap& picture);
  const QPixmap& Picture() const { return mPicture; }

  /// From 0, which is how it begins, to 1.
  void SetAlpha(double alpha);
  double Alpha() const { return mAlpha; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPoint mBaseline;
  QColor mBackground = Qt::transparent;
  QColor mTextColour;
  QString mText;
  QPixmap mPicture;
  double mAlpha = 0.0;
};

}  // namespace lurkwell
