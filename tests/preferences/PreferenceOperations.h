#pragma once

#include <functional>
#include <string>

#include "PreferenceTestSupport.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {

// Twelve operations of all kinds; the state after each, as a text.
inline const std::function<void()> kOperations[] = {
    [] { GetPrefInt("INTERVAL", nullptr, true, 2000); },
    [] { SetPrefDouble("ALPHA", 0.5); },
    [] { SetPrefString("NAME", "first"); },
    [] { EnsureArrayExists("A"); },
    [] { EnsureArrayItemExists("A", 0); },
    [] { SetPrefArrayInt("A", 0, "LEFT", 1); },
    [] { EnsureArrayItemExists("A", 1); },
    [] { SetPrefArrayString("A", 1, "NAME", "second"); },
    [] { SetPrefInt("INTERVAL", 500); },
    [] { RemovePrefArrayElement("A", 0); },
    [] { SetPrefArrayDouble("A", 0, "WIDTH", 2.5); },
    [] { SetPrefString("NAME", ""); },
};

inline std::string State(PreferenceDomain& domain) {
  const PreferenceMachine machine(domain);
  char name[16] = "-";
  GetPrefString("NAME", name, sizeof name, nullptr, false, "");
  std::string state = std::to_string(GetPrefInt("INTERVAL", nullptr, false, 0)) + "," +
                      std::to_string(GetPrefDouble("ALPHA", nullptr, false, 0)) + "," + name +
                      (domain.Value("A") != nullptr ? ",array" : ",none");
  for (std::int32_t i = 0; i < GetPrefArrayCount("A"); ++i) {
    char element[16] = "-";
    if (IsPrefArrayValuePresent("A", i, "NAME"))
      GetPrefArrayString("A", i, "NAME", element, sizeof element, false, "");
    state += ";" + std::to_string(GetPrefArrayInt("A", i, "LEFT", false, 0)) + element +
             std::to_string(IsPrefArrayValuePresent("A", i, "WIDTH"));
  }
  return state;
}

}  // namespace lurkwell
