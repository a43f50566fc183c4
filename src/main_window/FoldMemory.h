#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>

namespace lurkwell {

/// Names that are remembered from one start to the next, those that came last first; the oldest
/// ones go when there are too many. Main thread.
class FoldMemory {
 public:
  enum class Subject { kFoldedPrograms, kUnfoldedApplications };
  explicit FoldMemory(Subject subject) : mSubject(subject) {}

  bool Has(std::string_view name);
  /// Counts from now on, but is stored by Store alone.
  void Put(std::string_view name, bool isIn);
  /// Nothing when nothing has changed.
  void Store();

 private:
  QStringList& Names();

  Subject mSubject;
  std::optional<QStringList> mNames;
  bool mHasChanged = false;
};

}  // namespace lurkwell
