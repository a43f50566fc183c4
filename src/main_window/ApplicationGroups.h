#pragma once

#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "windows/RowDictionary.h"

namespace lurkwell {

/// The rows of a table by application: one for all processes of a desktop application, else of a
/// container or a system's service, else of a program. What belongs to nothing but itself has no
/// other row. Main thread.
///
/// A process belongs to the application that it is, to the one whose scope it is in, or to its
/// parent's, as long as it has not gone to a service of its own.
class ApplicationGroups {
 public:
  /// A process and the place of its parent in the same list, which is before it; -1 for none.
  struct Member {
    RowDictionary* row;
    int parent;
  };

  /// What has to be known of each process.
  static std::span<const KeyId> Needs();

  /// Finds out what belongs together, anew: each row is told which row it stands below. The rows of
  /// groups that were there before stay the same ones.
  void Assign(std::span<const Member> members);

  /// Those of two processes or more.
  const std::vector<RowDictionary*>& Rows() const { return mRows; }
  /// Null for none.
  RowDictionary* Find(const std::string& key) const;

  /// Frees those rows that are none any more and that the view does not have.
  void TidyUp();

 private:
  /// Kind and name: "app:Editor".
  struct Belonging {
    std::string key;
    std::string title;
    bool isApplication = false;
    std::vector<RowDictionary*> rows;
  };

  int NumberOf(std::string kind, std::string title, bool isApplication);
  int GroupOf(const RowDictionary& row, const RowDictionary* parent, int parentsGroup);
  void MakeRow(const Belonging& belonging);

  std::unordered_map<std::string, std::unique_ptr<RowDictionary>> mByKey;
  std::vector<RowDictionary*> mRows;
  // While groups are assigned.
  std::unordered_map<std::string, int> mNumbers;
  std::vector<Belonging> mBelongings;
  /// The applications by the scopes they run in.
  std::unordered_map<std::string, std::string> mNameOfScope;
};

}  // namespace lurkwell
