#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/PreferenceDomain.h"
#include "platform/linux/PropertyListDomain.h"
#include "support/Child.h"
#include "support/MachineOf.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {

/// A fresh folder for a preference file.
struct PreferenceFolder : TemporaryFolder {
  using TemporaryFolder::TemporaryFolder;
  std::string PreferenceFile() const { return *this / PropertyListDomain::kFileName; }
};

/// A property list with these entries in its root.
inline std::string PropertyList(const std::string& entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>" + entries +
         "</dict>\n</plist>\n";
}

/// Installs a simulated machine with this preference domain.
class PreferenceMachine {
 public:
  explicit PreferenceMachine(PreferenceDomain& domain) : mMachine(MachineOf(mSimulated, domain)) {}

 private:
  SimulatedMachine mSimulated;
  Machine mMachine;
  MachineInstallation mInstallation{mMachine};
};

inline std::int64_t IntegerAt(PreferenceDomain& domain, const std::string& key) {
  const PreferenceValue* value = domain.Value(key);
  const auto* integer = value != nullptr ? std::get_if<std::int64_t>(value) : nullptr;
  return integer != nullptr ? *integer : -1;
}

}  // namespace lurkwell
