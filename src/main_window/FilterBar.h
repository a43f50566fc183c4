#pragma once

#include <QLineEdit>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "query/Query.h"

class QLabel;
class QMenu;

namespace lurkwell {

/// The filter above the table: a field for a query, beside it what is wrong with the query, and a
/// list of those that were used last. What is typed counts at once; while it is no query, the one
/// before holds. Main thread only.
class FilterBar : public QWidget {
  Q_OBJECT

 public:
  /// `onQuery` gets each query that is typed; an empty one when the bar goes.
  FilterBar(std::function<void(Query)> onQuery, QWidget* parent);

  QLineEdit& field() { return *mField; }

  /// What there is to say about the query that holds; empty for nothing.
  void setRemark(const QString& text);

  void begin();
  /// Empties and hides the bar; what was typed is among the last ones then.
  void end();

 Q_SIGNALS:
  /// Return was pressed, or the bar has gone.
  void left();

 private:
  void takeText();
  void tellError();
  void showWords();
  void remember();
  void showLast();

  std::function<void(Query)> mOnQuery;
  QLineEdit* mField;
  /// What is wrong, or else what there is to say.
  QLabel* mWords;
  /// A word is usually wrong until it has been typed to its end.
  QTimer mPatience;
  QString mErrorWords;
  bool mIsErrorShown = false;
  QString mRemark;
};

}  // namespace lurkwell
