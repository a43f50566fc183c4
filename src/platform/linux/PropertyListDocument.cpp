#include "platform/linux/PropertyListDocument.h"

#include <locale.h>
#include <plist/plist.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

namespace lurkwell {
namespace {

constexpr std::string_view kSpace = " \t\r\n";
constexpr auto npos = std::string_view::npos;

// Markup whose quotes pair up ends at the same place for every parser.
bool QuotesPairUp(std::string_view markup) {
  return std::count(markup.begin(), markup.end(), '"') % 2 == 0 &&
         std::count(markup.begin(), markup.end(), '\'') % 2 == 0;
}

class Scanner {
 public:
  explicit Scanner(std::string_view text) : mRest(text) {}

  const char* Run() {
    while (mWhy == nullptr && SkipText()) Markup();
    if (mWhy != nullptr) return mWhy;
    if (mDepth > 0) return "it ends before its elements do";
    return mRootSeen ? nullptr : "it holds no property list";
  }

 private:
  // Up to the next markup; false at the end. Text stands inside elements only.
  bool SkipText() {
    const std::size_t at = std::min(mRest.find('<'), mRest.size());
    if (mDepth == 0 && mRest.substr(0, at).find_first_not_of(kSpace) != npos)
      mWhy = "there is text outside of its root";
    mRest.remove_prefix(at);
    return !mRest.empty();
  }

  void Markup() {
    if (mRest.starts_with("<!--")) {
      mRest.remove_prefix(4);
      if (mRest.starts_with(">") || mRest.starts_with("->")) mWhy = "a comment is malformed";
      Skip("-->");
    } else if (mRest.starts_with("<![CDATA[")) {
      if (!InText()) mWhy = "a text section stands outside of a text";
      Skip("]]>");
    } else if (mRest.starts_with("<!")) {
      const std::string_view definition = Skip(">");
      if (definition.find('[') != npos || !QuotesPairUp(definition) || mRootSeen)
        mWhy = "it brings its own definitions";
    } else if (mRest.starts_with("<?")) {
      if (!QuotesPairUp(Skip("?>"))) mWhy = "an instruction is malformed";
    } else {
      Tag(Skip(">").substr(1));
    }
  }

  // Takes everything up to the end mark off the front and returns it without the mark.
  std::string_view Skip(std::string_view endMark) {
    const std::size_t at = mRest.find(endMark);
    if (at == npos) {
      mWhy = "it ends within a tag";
      return mRest;
    }
    const std::string_view taken = mRest.substr(0, at);
    mRest.remove_prefix(at + endMark.size());
    return taken;
  }

  void Tag(std::string_view body) {
    if (mWhy != nullptr) return;
    if (body.find('<') != npos || !QuotesPairUp(body)) {
      mWhy = "a tag is malformed";
    } else if (body.starts_with('/')) {
      body.remove_prefix(1);
      Close(body.substr(0, body.find_first_of(kSpace)));
    } else {
      const bool isEmpty = body.ends_with('/');
      if (isEmpty) body.remove_suffix(1);
      Open(body.substr(0, body.find_first_of(kSpace)), isEmpty);
    }
  }

  void Open(std::string_view name, bool isEmpty) {
    if (name.empty()) mWhy = "a tag has no name";
    if (mDepth == 0 && mRootSeen) mWhy = "it has more than one root";
    if (mDepth == mOpen.size()) mWhy = "it is nested too deeply";
    if (mWhy != nullptr) return;
    mRootSeen = true;
    if (!isEmpty) mOpen[mDepth++] = name;
  }

  void Close(std::string_view name) {
    if (mDepth == 0 || mOpen[mDepth - 1] != name)
      mWhy = "its tags do not match";
    else
      --mDepth;
  }

  bool InText() const {
    return mDepth > 0 && (mOpen[mDepth - 1] == "string" || mOpen[mDepth - 1] == "key");
  }

  std::string_view mRest;
  std::array<std::string_view, kMaximumPropertyListDepth> mOpen;
  std::size_t mDepth = 0;
  bool mRootSeen = false;
  const char* mWhy = nullptr;
};

}  // namespace

const char* WhyNotAPropertyList(std::string_view text) {
  if (text.size() > kMaximumPropertyListSize) return "it is larger than 4 MiB";
  if (text.find('\0') != npos) return "it is no text";
  return Scanner(text).Run();
}

namespace {

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<void, Free>;
using Text = std::unique_ptr<char, Free>;

// The library reads and prints numbers by the locale in force.
class PlainNumbers {
 public:
  PlainNumbers() : mPrevious(uselocale(Plain())) {}
  ~PlainNumbers() { uselocale(mPrevious); }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  static locale_t Plain() {
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return plain;
  }

  locale_t mPrevious;
};

bool Is(plist_t node, plist_type type) {
  return node != nullptr && plist_get_node_type(node) == type;
}

template <typename Visit>
void ForEachEntry(plist_t dictionary, Visit visit) {
  plist_dict_iter raw = nullptr;
  plist_dict_new_iter(dictionary, &raw);
  const Memory iterator(raw);
  while (raw != nullptr) {
    char* rawKey = nullptr;
    plist_t node = nullptr;
    plist_dict_next_item(dictionary, raw, &rawKey, &node);
    const Text key(rawKey);
    if (node == nullptr) return;
    if (key) visit(key.get(), node);
  }
}

template <typename Visit>
void ForEachElement(plist_t array, Visit visit) {
  plist_array_iter raw = nullptr;
  plist_array_new_iter(array, &raw);
  const Memory iterator(raw);
  while (raw != nullptr) {
    plist_t node = nullptr;
    plist_array_next_item(array, raw, &node);
    if (node == nullptr) return;
    visit(node);
  }
}

std::string XmlOf(plist_t node) {
  const PlainNumbers plainNumbers;
  char* raw = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(node, &raw, &length);
  const Text xml(raw);
  return xml ? std::string(xml.get(), length) : std::string();
}

// The library gives negative integers and those beyond the signed range in the same bits; only its
// text form tells them apart.
PreferenceScalar Integer(plist_t node) {
  std::uint64_t bits = 0;
  plist_get_uint_val(node, &bits);
  const auto integer = static_cast<std::int64_t>(bits);
  if (integer >= 0 || XmlOf(node).find("<integer>-") != std::string::npos) return integer;
  return static_cast<double>(bits);
}

std::optional<PreferenceScalar> Scalar(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_UINT:
      return Integer(node);
    case PLIST_BOOLEAN: {
      std::uint8_t truth = 0;
      plist_get_bool_val(node, &truth);
      return std::int64_t{truth != 0};
    }
    case PLIST_REAL: {
      double real = 0;
      plist_get_real_val(node, &real);
      return real;
    }
    case PLIST_STRING: {
      std::uint64_t length = 0;
      const char* text = plist_get_string_ptr(node, &length);
      return std::string(text != nullptr ? text : "", text != nullptr ? length : 0);
    }
    default:
      return std::nullopt;
  }
}

PreferenceDictionary Dictionary(plist_t node) {
  PreferenceDictionary dictionary;
  if (!Is(node, PLIST_DICT)) return dictionary;
  ForEachEntry(node, [&](const char* key, plist_t entry) {
    if (auto scalar = Scalar(entry)) dictionary.insert_or_assign(key, *std::move(scalar));
  });
  return dictionary;
}

std::optional<PreferenceValue> Fit(plist_t node) {
  if (node == nullptr) return std::nullopt;
  if (Is(node, PLIST_ARRAY)) {
    PreferenceArray array;
    ForEachElement(node, [&](plist_t element) { array.push_back(Dictionary(element)); });
    return array;
  }
  auto scalar = Scalar(node);
  if (!scalar) return std::nullopt;
  return std::visit([](auto& held) -> PreferenceValue { return std::move(held); }, *scalar);
}

// Releases of the library differ in how a negative integer is made, not in how it is read.
plist_t NodeOf(std::int64_t integer) {
  if (integer >= 0) return plist_new_uint(static_cast<std::uint64_t>(integer));
  const std::string text =
      "<plist version=\"1.0\"><integer>" + std::to_string(integer) + "</integer></plist>";
  plist_t node = nullptr;
  plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &node);
  return node;
}
plist_t NodeOf(double real) {
  return plist_new_real(real);
}
plist_t NodeOf(const std::string& text) {
  return plist_new_string(text.c_str());
}

plist_t NodeOf(const PreferenceScalar& scalar) {
  return std::visit([](const auto& held) { return NodeOf(held); }, scalar);
}

// An element as it shall be, with what `source` holds beyond the preference kinds.
plist_t ElementFrom(plist_t source, const PreferenceDictionary& wanted) {
  if (source != nullptr && Dictionary(source) == wanted) return plist_copy(source);
  plist_t element = Is(source, PLIST_DICT) ? plist_copy(source) : plist_new_dict();
  for (const auto& [key, held] : Dictionary(element))
    if (!wanted.contains(key)) plist_dict_remove_item(element, key.c_str());
  for (const auto& [key, scalar] : wanted)
    plist_dict_set_item(element, key.c_str(), NodeOf(scalar));
  return element;
}

// Elements are matched from both ends; what lies between was changed, removed or added.
plist_t ArrayFrom(plist_t source, const PreferenceArray& wanted) {
  std::vector<plist_t> olds;
  if (Is(source, PLIST_ARRAY)) ForEachElement(source, [&](plist_t node) { olds.push_back(node); });
  const auto isSame = [](plist_t old, const PreferenceDictionary& element) {
    return Dictionary(old) == element;
  };
  const auto firstChange =
      std::mismatch(olds.begin(), olds.end(), wanted.begin(), wanted.end(), isSame).first;
  const auto rest = olds.end() - firstChange;
  const auto kept = static_cast<std::size_t>(olds.size() - static_cast<std::size_t>(rest));
  const auto lastChange = std::mismatch(olds.rbegin(), olds.rbegin() + rest, wanted.rbegin(),
                                        wanted.rend() - static_cast<std::ptrdiff_t>(kept), isSame)
                              .first;
  const auto tail = static_cast<std::size_t>(lastChange - olds.rbegin());

  plist_t array = plist_new_array();
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    plist_t old = nullptr;
    if (i >= wanted.size() - tail)
      old = olds[olds.size() - (wanted.size() - i)];
    else if (i < olds.size() - tail)
      old = olds[i];
    plist_array_append_item(array, ElementFrom(old, wanted[i]));
  }
  return array;
}

}  // namespace

PropertyListDocument::PropertyListDocument() : mRoot(plist_new_dict()) {}

PropertyListDocument::~PropertyListDocument() {
  plist_free(mRoot);
}

std::optional<PropertyListDocument> PropertyListDocument::Parse(std::string_view text,
                                                                const char*& why) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  why = WhyNotAPropertyList(text);
  if (why != nullptr) return std::nullopt;
  const PlainNumbers plainNumbers;
  plist_t root = nullptr;
  plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &root);
  if (Is(root, PLIST_DICT)) return PropertyListDocument(root);
  plist_free(root);
  why = root != nullptr ? "its root is no dictionary" : "it is no property list";
  return std::nullopt;
}

std::string PropertyListDocument::Text() const {
  return XmlOf(mRoot);
}

PreferenceValues PropertyListDocument::Values() const {
  PreferenceValues values;
  ForEachEntry(mRoot, [&](const char* key, plist_t node) {
    if (auto value = Fit(node)) values.insert_or_assign(key, *std::move(value));
  });
  return values;
}

std::optional<PreferenceValue> PropertyListDocument::Value(const std::string& key) const {
  return Fit(plist_dict_get_item(mRoot, key.c_str()));
}

void PropertyListDocument::Set(const std::string& key, const PreferenceValue& value) {
  plist_t node = nullptr;
  if (const auto* array = std::get_if<PreferenceArray>(&value)) {
    node = ArrayFrom(plist_dict_get_item(mRoot, key.c_str()), *array);
  } else if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    node = NodeOf(*integer);
  } else if (const auto* real = std::get_if<double>(&value)) {
    node = NodeOf(*real);
  } else {
    node = NodeOf(std::get<std::string>(value));
  }
  plist_dict_set_item(mRoot, key.c_str(), node);
}

bool PropertyListDocument::Remove(const std::string& key) {
  if (plist_dict_get_item(mRoot, key.c_str()) == nullptr) return false;
  plist_dict_remove_item(mRoot, key.c_str());
  return true;
}

}  // namespace lurkwell
