#include <utility>

#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/PreferenceConversion.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

PreferenceDomain& Domain() {
  return TheMachine().preferenceDomain;
}

// A value that is no array counts as absent, so that a damaged file cannot break an invariant.
const PreferenceArray* StoredArray(const char* arrayKey) {
  const PreferenceValue* value = Domain().Value(PreferenceKey(arrayKey).Text());
  return value != nullptr ? std::get_if<PreferenceArray>(value) : nullptr;
}

void StoreArray(const char* arrayKey, PreferenceValue array) {
  Domain().SetValue(PreferenceKey(arrayKey).Text(), std::move(array));
  PreferenceBatch::Synchronize();
}

// The element, null when there is none.
template <typename Array>
auto* ElementAt(Array& array, std::int32_t index) {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < array.size() ? &array[at] : nullptr;
}

// A copy of a stored array that may be changed and stored again.
class MutableCopy {
 public:
  explicit MutableCopy(const PreferenceArray& array) : mValue(array) {}
  PreferenceArray* Array() { return std::get_if<PreferenceArray>(&mValue); }
  PreferenceValue Take() { return std::move(mValue); }

 private:
  PreferenceValue mValue;
};

// Writes one value of one element; the whole array is stored anew.
void StoreField(const char* arrayKey, std::int32_t index, const char* dictKey,
                PreferenceScalar value) {
  EnsureArrayExists(arrayKey);
  EnsureArrayItemExists(arrayKey, index);
  const std::int32_t count = GetPrefArrayCount(arrayKey);
  Require((index >= 0) && (index < count), kPreferencesUnit, "(index >= 0) && (index < count)");
  const PreferenceArray* staticArray = StoredArray(arrayKey);
  Require(staticArray != nullptr, kPreferencesUnit, "staticArray");
  MutableCopy copy(*staticArray);
  PreferenceArray* array = copy.Array();
  Require(array != nullptr, kPreferencesUnit, "array != NULL");
  PreferenceDictionary* dict = ElementAt(*array, index);
  Require(dict != nullptr, kPreferencesUnit, "dict != NULL");
  Require(dictKey != nullptr, kPreferencesUnit, "dictPrefKey != NULL");
  dict->insert_or_assign(std::string(PreferenceKey(dictKey).Text()), std::move(value));
  StoreArray(arrayKey, copy.Take());
}

PreferenceScalar Scalar(const PrefArrayField& field) {
  if (const auto* number = std::get_if<std::int32_t>(&field.value)) return std::int64_t{*number};
  if (const auto* real = std::get_if<double>(&field.value)) return *real;
  const char* prefValue = std::get<const char*>(field.value);
  Require(prefValue != nullptr, kPreferencesUnit, "prefValue != NULL");
  return Utf8FromMacRoman(prefValue);
}

// One value of one element, null when the element lacks it.
const PreferenceScalar* Field(const char* arrayKey, std::int32_t index, const char* dictKey) {
  const std::int32_t count = GetPrefArrayCount(arrayKey);
  Require((index >= 0) && (index < count), kPreferencesUnit, "(index >= 0) && (index < count)");
  const PreferenceArray* staticArray = StoredArray(arrayKey);
  Require(staticArray != nullptr, kPreferencesUnit, "staticArray != NULL");
  const PreferenceDictionary* dict = ElementAt(*staticArray, index);
  Require(dict != nullptr, kPreferencesUnit, "dict != NULL");
  Require(dictKey != nullptr, kPreferencesUnit, "dictPrefKey != NULL");
  const auto at = dict->find(PreferenceKey(dictKey).Text());
  return at != dict->end() ? &at->second : nullptr;
}

}  // namespace

void EnsureArrayExists(const char* arrayKey) {
  Require(arrayKey != nullptr, kPreferencesUnit, "arrayKeyRef");
  if (StoredArray(arrayKey) == nullptr) StoreArray(arrayKey, PreferenceArray{});
}

std::int32_t GetPrefArrayCount(const char* arrayKey) {
  Require(arrayKey != nullptr, kPreferencesUnit, "arrayKeyRef != NULL");
  const PreferenceArray* array = StoredArray(arrayKey);
  return array != nullptr ? static_cast<std::int32_t>(array->size()) : 0;
}

void RemovePrefArrayElement(const char* arrayKey, std::int32_t index) {
  Require(index >= 0, kPreferencesUnit, "index >= 0");
  const std::int32_t count = GetPrefArrayCount(arrayKey);
  Require(index < count, kPreferencesUnit, "index < count");
  const PreferenceArray* staticArray = StoredArray(arrayKey);
  Require(staticArray != nullptr, kPreferencesUnit, "staticArray != NULL");
  MutableCopy copy(*staticArray);
  PreferenceArray* array = copy.Array();
  Require(array != nullptr, kPreferencesUnit, "array != NULL");
  array->erase(array->begin() + index);
  StoreArray(arrayKey, copy.Take());
}

void EnsureArrayItemExists(const char* arrayKey, std::int32_t index) {
  const std::int32_t count = GetPrefArrayCount(arrayKey);
  Require((index >= 0) && (index <= count), kPreferencesUnit, "(index >= 0) && (index <= count)");
  if (index < count) return;
  const PreferenceArray* stored = StoredArray(arrayKey);
  PreferenceArray array = stored != nullptr ? *stored : PreferenceArray{};
  array.emplace_back();
  StoreArray(arrayKey, std::move(array));
}

void SetPrefArrayInt(const char* arrayKey, std::int32_t index, const char* dictKey,
                     std::int32_t prefValue) {
  StoreField(arrayKey, index, dictKey, std::int64_t{prefValue});
}

void SetPrefArrayDouble(const char* arrayKey, std::int32_t index, const char* dictKey,
                        double prefValue) {
  StoreField(arrayKey, index, dictKey, prefValue);
}

void SetPrefArrayString(const char* arrayKey, std::int32_t index, const char* dictKey,
                        const char* prefValue) {
  Require(prefValue != nullptr, kPreferencesUnit, "prefValue != NULL");
  StoreField(arrayKey, index, dictKey, Utf8FromMacRoman(prefValue));
}

void SetPrefArrayFields(const char* arrayKey, std::int32_t index,
                        std::span<const PrefArrayField> fields) {
  const std::int32_t count = GetPrefArrayCount(arrayKey);
  Require((index >= 0) && (index <= count), kPreferencesUnit, "(index >= 0) && (index <= count)");
  const PreferenceArray* stored = StoredArray(arrayKey);
  PreferenceArray array = stored != nullptr ? *stored : PreferenceArray{};
  if (index == count) array.emplace_back();
  auto& dict = array[static_cast<std::size_t>(index)];
  for (const auto& field : fields) {
    Require(field.dictKey != nullptr, kPreferencesUnit, "dictPrefKey != NULL");
    dict.insert_or_assign(std::string(PreferenceKey(field.dictKey).Text()), Scalar(field));
  }
  StoreArray(arrayKey, std::move(array));
}

bool IsPrefArrayValuePresent(const char* arrayKey, std::int32_t index, const char* dictKey) {
  if (arrayKey == nullptr || dictKey == nullptr) return false;
  const PreferenceArray* array = StoredArray(arrayKey);
  const PreferenceDictionary* dict = array != nullptr ? ElementAt(*array, index) : nullptr;
  return dict != nullptr && dict->contains(PreferenceKey(dictKey).Text());
}

std::int32_t GetPrefArrayInt(const char* arrayKey, std::int32_t index, const char* dictKey,
                             bool writeDefault, std::int32_t defaultValue) {
  std::int32_t result = 0;
  if (const PreferenceScalar* value = Field(arrayKey, index, dictKey)) {
    ConvertToInt(*value, result);
  } else if (writeDefault) {
    SetPrefArrayInt(arrayKey, index, dictKey, defaultValue);
    result = defaultValue;
  }
  return result;
}

double GetPrefArrayDouble(const char* arrayKey, std::int32_t index, const char* dictKey,
                          bool writeDefault, double defaultValue) {
  const PreferenceScalar* val = Field(arrayKey, index, dictKey);
  if (val == nullptr && writeDefault) {
    SetPrefArrayDouble(arrayKey, index, dictKey, defaultValue);
    return defaultValue;
  }
  Require(val != nullptr, kPreferencesUnit, "val != NULL");
  double result = 0.0;
  ConvertToDouble(*val, result);
  return result;
}

void GetPrefArrayString(const char* arrayKey, std::int32_t index, const char* dictKey, char* buffer,
                        std::int32_t bufferSize, bool writeDefault, const char* defaultValue) {
  const PreferenceScalar* val = Field(arrayKey, index, dictKey);
  if (val == nullptr && writeDefault) SetPrefArrayString(arrayKey, index, dictKey, defaultValue);
  Require(val != nullptr, kPreferencesUnit, "val != NULL");
  ConvertToText(*val, buffer, bufferSize);
}

}  // namespace lurkwell
