#include "preferences/PreferencesRetrieval.h"

#include <utility>

#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/PreferenceConversion.h"

namespace lurkwell {
namespace {

void Store(const char* prefKey, PreferenceValue value) {
  TheMachine().preferenceDomain.SetValue(PreferenceKey(prefKey).Text(), std::move(value));
  PreferenceBatch::Synchronize();
}

// The value under the key, after storing the default where that is wanted and needed.
template <typename StoreDefault>
const PreferenceValue* Lookup(const char* prefKey, bool writeDefault, StoreDefault storeDefault) {
  Require(prefKey != nullptr, kPreferencesUnit, "prefKey != NULL");
  const PreferenceKey key(prefKey);
  PreferenceDomain& domain = TheMachine().preferenceDomain;
  const PreferenceValue* value = domain.Value(key.Text());
  if (value == nullptr && writeDefault) {
    storeDefault();
    value = domain.Value(key.Text());
  }
  return value;
}

void Report(std::uint8_t* found, bool obtained) {
  if (found != nullptr) *found = obtained ? 1 : 0;
}

}  // namespace

void SetPrefString(const char* prefKey, const char* prefValue) {
  Require(prefKey != nullptr, kPreferencesUnit, "prefKey != NULL");
  Require(prefValue != nullptr, kPreferencesUnit, "prefValue != NULL");
  Store(prefKey, Utf8FromMacRoman(prefValue));
}

void SetPrefInt(const char* prefKey, std::int32_t prefValue) {
  Require(prefKey != nullptr, kPreferencesUnit, "prefKey != NULL");
  Store(prefKey, std::int64_t{prefValue});
}

void SetPrefDouble(const char* prefKey, double prefValue) {
  Require(prefKey != nullptr, kPreferencesUnit, "prefKey != NULL");
  Store(prefKey, prefValue);
}

void RemovePref(const char* prefKey) {
  Require(prefKey != nullptr, kPreferencesUnit, "prefKey != NULL");
  TheMachine().preferenceDomain.RemoveValue(PreferenceKey(prefKey).Text());
  PreferenceBatch::Synchronize();
}

std::int32_t GetPrefInt(const char* prefKey, std::uint8_t* found, bool writeDefault,
                        std::int32_t defaultValue) {
  std::int32_t result = 0;
  const PreferenceValue* value =
      Lookup(prefKey, writeDefault, [&] { SetPrefInt(prefKey, defaultValue); });
  Report(found, value != nullptr && ConvertToInt(*value, result));
  return result;
}

double GetPrefDouble(const char* prefKey, std::uint8_t* found, bool writeDefault,
                     double defaultValue) {
  double result = 0.0;
  const PreferenceValue* value =
      Lookup(prefKey, writeDefault, [&] { SetPrefDouble(prefKey, defaultValue); });
  Report(found, value != nullptr && ConvertToDouble(*value, result));
  return result;
}

void GetPrefString(const char* prefKey, char* buffer, std::int32_t bufferSize, std::uint8_t* found,
                   bool writeDefault, const char* defaultValue) {
  const PreferenceValue* value =
      Lookup(prefKey, writeDefault, [&] { SetPrefString(prefKey, defaultValue); });
  Report(found, value != nullptr && ConvertToText(*value, buffer, bufferSize));
}

}  // namespace lurkwell
