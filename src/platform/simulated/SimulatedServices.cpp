#include "platform/simulated/SimulatedServices.h"

namespace lurkwell {
namespace {

class Reference final : public AuthorizationReference {
 public:
  explicit Reference(AccessLog& log) : mLog(log) { mLog.Add("Authorization.Create"); }
  ~Reference() override { mLog.Add("Authorization.Free"); }

 private:
  AccessLog& mLog;
};

}  // namespace

std::unique_ptr<AuthorizationReference> SimulatedAuthorization::Create() {
  return std::make_unique<Reference>(mLog);
}

bool SimulatedAuthorization::ExecuteWithPrivileges(AuthorizationReference&, const std::string& path,
                                                   const std::vector<std::string>& arguments) {
  std::string line = "Authorization.ExecuteWithPrivileges " + path;
  for (const auto& argument : arguments) line += ' ' + argument;
  mLog.Add(line);
  const bool executed = mOutcome(path, arguments);
  if (executed) ++mChildren;
  return executed;
}

int SimulatedAuthorization::CollectChild() {
  constexpr int kChildPid = 4000;
  mLog.Add("Authorization.CollectChild");
  if (mChildren == 0) return -1;
  --mChildren;
  return kChildPid;
}

}  // namespace lurkwell
