#include "main_window/FoldMemory.h"

#include <QByteArray>
#include <utility>

#include "preferences/Settings.h"
#include "windows/NameList.h"

namespace lurkwell {
namespace {

constexpr int kRoomForFolds = 8192;
constexpr qsizetype kMostNames = 500;

TextSetting SettingOf(FoldMemory::Subject subject) {
  return subject == FoldMemory::Subject::kFoldedPrograms
             ? TextSetting("MAIN_WINDOW_FOLDED_PROGRAMS")
             : "MAIN_WINDOW_UNFOLDED_APPLICATIONS";
}

QString NameOf(std::string_view name) {
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

QStringList& FoldMemory::Names() {
  if (!mNames) {
    char text[kRoomForFolds] = "";
    ReadText(SettingOf(mSubject), text, sizeof text);
    mNames = DecodedNames(text);
  }
  return *mNames;
}

bool FoldMemory::Has(std::string_view name) {
  const auto& names = Names();
  return !names.isEmpty() && names.contains(NameOf(name));
}

void FoldMemory::Put(std::string_view name, bool isIn) {
  auto& names = Names();
  const auto text = NameOf(name);
  const bool wasIn = names.removeAll(text) > 0;
  if (isIn) names.prepend(text);
  if (names.size() > kMostNames) names.removeLast();
  mHasChanged = mHasChanged || isIn != wasIn;
}

void FoldMemory::Store() {
  if (!std::exchange(mHasChanged, false)) return;
  auto& names = Names();
  StoreText(SettingOf(mSubject), EncodedNames(names, kRoomForFolds).constData());
}

}  // namespace lurkwell
