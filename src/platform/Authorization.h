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
  /// already, and waits for nothing. A single argument is a step that ends by itself, see
  /// StepState; one at a time. A program with more arguments runs on, see IsAsking. False when this
  /// is not possible here.
  virtual bool ExecuteWithPrivileges(AuthorizationReference& reference, const std::string& path,
                                     const std::vector<std::string>& arguments) = 0;

  /// What has become of the step that was started last. It has failed when it was refused, too, or
  /// when it took too long.
  enum class Step { kRunning, kDone, kFailed };
  virtual Step StepState() = 0;

  /// Why ExecuteWithPrivileges gave false or the last step failed: a clause for the user to read;
  /// and what may help.
  virtual std::string FailureReason() const = 0;
  enum class Remedy {
    kAskAgain,   ///< another answer
    kFreshCopy,  ///< a fresh copy in place of the one that was to be given rights
    kMachine,    ///< a change of this machine, not another question
    kNone,       ///< nothing: this program asks nobody
  };
  virtual Remedy FailureRemedy() const = 0;

  /// Whether the program that was started last still waits for the administrator's answer.
  virtual bool IsAsking() = 0;

  /// Gives the pid of one child that has ended, or -1 when there is none.
  virtual int CollectChild() = 0;
};

}  // namespace lurkwell
