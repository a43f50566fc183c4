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

  /// Runs `path` with `arguments` as root, asking for a password when the user is not root already.
  /// A single argument is a step that ends by itself: it is waited for (as long as the question is
  /// open, and not much longer), and false means that it was refused, is not possible here or has
  /// failed. A program with more arguments runs on: it is only started, and false means that this
  /// is not possible here; see IsAsking.
  virtual bool ExecuteWithPrivileges(AuthorizationReference& reference, const std::string& path,
                                     const std::vector<std::string>& arguments) = 0;

  /// Why the last ExecuteWithPrivileges gave false: a clause for the user to read.
  virtual std::string FailureReason() const = 0;

  /// Whether the program that was started last still waits for the administrator's answer.
  virtual bool IsAsking() = 0;

  /// Waits a little for one child to end and gives its pid, or -1 when there is none or none ends.
  virtual int WaitForChild() = 0;
};

}  // namespace lurkwell
