#include "platform/linux/PropertyListScan.h"

#include <algorithm>
#include <array>

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

}  // namespace lurkwell
