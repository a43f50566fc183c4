#pragma once

#include <memory>
#include <string>
#include <vector>

namespace lurkwell {

/// The administrator's consent to run programs with privilege. Holding one grants nothing by
/// itself: the question is asked when something is executed.
class AuthorizationReference {
 public:
  virtual ~AuthorizationReference() = default;
};

/// Programs run with an administrator's rights. Main thread only.
class Authorization {
 public:
  virtual ~Authorization() = default;

  /// A reference without any rights yet; never null.
  virtual std::unique_ptr<AuthorizationReference> Create() = 0;

  /// Starts `path` with `arguments` as root, asking for a password when the user is not root
  /// already. False when that was refused or is not possible here. Returns without waiting for the
  /// program to end.
  virtual bool ExecuteWithPrivileges(AuthorizationReference& reference, const std::string& path,
                                     const std::vector<std::string>& arguments) = 0;

  /// Waits for one child to end and gives its pid, or -1 when there is none.
  virtual int WaitForChild() = 0;
};

}  // namespace lurkwell
