#pragma once

#include <QLabel>
#include <QWidget>

namespace lurkwell {

/// One line above the table that tells a newcomer what is easily missed: another one at each start,
/// until all have been put away. What was put away never comes again. Main thread.
class HintBar : public QWidget {
  Q_OBJECT

 public:
  explicit HintBar(QWidget* parent);

  /// Shows the first hint that is left; stays hidden when there is none.
  void begin();

 private:
  /// This one, or all of them, with the settings.
  void putAway(bool all);

  QLabel* mText;
};

}  // namespace lurkwell
