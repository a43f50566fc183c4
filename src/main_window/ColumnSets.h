#pragma once

#include <QString>
#include <QStringList>

#include "main_window/ColumnLayout.h"

namespace lurkwell {

/// The sets of columns by their places: those that come with the program, then the user's own in
/// the order in which they were made; and what each keeps in the preferences. What cannot be read
/// there counts as never stored. Main thread only.
class ColumnSets {
 public:
  /// Which there are, and which was shown last.
  ColumnSets();

  int Count() const;
  bool IsOwn(int place) const;
  /// As the user reads it.
  QString TitleOf(int place) const;
  int Shown() const { return mShown; }
  /// Remembers which is shown.
  void SetShown(int place);

  /// What a set keeps; as the program brings it when nothing is remembered, and of an own set that
  /// cannot be read the columns of the first. The pid is always among them.
  static ColumnSetContents Original(int place);
  ColumnSetContents Read(int place) const;
  void Store(int place, const ColumnSetContents& contents) const;
  /// Makes one that comes with the program what it was.
  void Forget(int place) const;

  /// Why there cannot be an own set of that title, in a sentence; empty when there can. `place` is
  /// that of the set that is to be called so, none for a new one.
  QString ComplaintAbout(const QString& title, int place = -1) const;
  /// A new own set behind all others; its place.
  int Add(const QString& title, const ColumnSetContents& contents);
  void Rename(int place, const QString& title);
  void Remove(int place);

 private:
  std::string IdOf(int place) const;

  QStringList mOwn;
  int mShown = 0;
};

}  // namespace lurkwell
