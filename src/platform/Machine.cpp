#include "platform/Machine.h"

#include "platform/Assertion.h"

namespace lurkwell {
namespace {

Machine* gMachine = nullptr;

}  // namespace

Machine& TheMachine() {
  Require(gMachine != nullptr, "Machine", "gMachine != nullptr");
  return *gMachine;
}

MachineInstallation::MachineInstallation(Machine& machine) : mPrevious(gMachine) {
  gMachine = &machine;
}

MachineInstallation::~MachineInstallation() {
  gMachine = mPrevious;
}

}  // namespace lurkwell
