#pragma once

#include <QString>

class QAccessibleInterface;
class QWidget;

namespace lurkwell {

/// A widget or a window that shows figures as a picture, and tells assistive programs in words what
/// they are. Nothing is made of them until somebody asks. Main thread only.
class FigureSpeaker {
 public:
  virtual ~FigureSpeaker() = default;
  /// What is shown at present: "now 12 %, least 3 %, most 88 %".
  virtual QString SpokenFigures() const = 0;
};

/// A widget that assistive programs see as something else than the toolkit makes of it.
class InterfaceMaker {
 public:
  virtual ~InterfaceMaker() = default;
  /// A new one, which the toolkit deletes before the widget.
  virtual QAccessibleInterface* MakeInterface() = 0;
};

/// From then on assistive programs see a FigureSpeaker as a chart that is described by its figures,
/// an InterfaceMaker as what it makes,
/// and windows that are no more than that as windows. To be called by their constructors, or
/// before; the first call counts.
void ServeAssistivePrograms();

/// The user has had the widget show other figures, which are told. Not for those that time brings:
/// they would be spoken over what the user listens to. Nothing where no assistive program listens.
void TellFiguresAreOthers(QWidget& widget);

/// When changes of one text that time brings are told, so that they are not spoken over what the
/// user listens to. Main thread only.
class UnaskedTellings {
 public:
  /// An assistive program listens, the user has not asked for quiet, and it is some seconds since
  /// the last one.
  bool IsTime() const;
  /// From now on the time counts.
  void HasTold();

 private:
  double mToldAt = 0;
};

}  // namespace lurkwell
