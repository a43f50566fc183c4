#pragma once

#include <QToolButton>

#include "main_window/SystemInfoImage.h"
#include "windows/Accessibility.h"

namespace lurkwell {

/// An item of the toolbar that shows a figure instead of doing something: looks as a button does,
/// with the picture at its own size, and does not answer to clicks. Its figure is in the tooltip
/// and in what is spoken of it. Main thread only.
class ToolbarGauge final : public QToolButton, public FigureSpeaker {
  Q_OBJECT

 public:
  /// `size` is the picture's, in points; `iconHeight` that of the buttons beside it.
  ToolbarGauge(QSize size, int iconHeight, const QString& label, const QString& tip);

  /// Show a picture at whole pixels; nothing is drawn when it is the one that is shown already. A
  /// bar's has a mark at the column behind what is used.
  void ShowImage(const SystemInfoImage& image, int usedEnd);
  void ShowNamedImage(const char* name);

  /// In words.
  void SetFigures(const QString& figures);
  QString SpokenFigures() const override { return mFigures; }

 protected:
  void changeEvent(QEvent* event) override;
  void initStyleOption(QStyleOptionToolButton* option) const override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  /// A picture of so many points, in the middle of the room for it.
  void Show(const QPixmap& picture);
  /// Round a bar, and where what is used ends.
  void DrawMarks(QPixmap& picture, int end) const;
  bool IsShown(const QByteArray& picture);

  QSize mSize;
  QString mTip;
  QString mFigures;
  QIcon mIcon;
  /// What is shown, and for which scale it was made.
  QByteArray mShown;
  qreal mScale = 0.0;
};

}  // namespace lurkwell
