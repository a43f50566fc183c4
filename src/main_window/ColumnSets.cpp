#include "main_window/ColumnSets.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>

#include "preferences/PreferenceArrays.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/NameList.h"

namespace lurkwell {
namespace {

constexpr char kColumnsKey[] = "MAIN_WINDOW_COLUMNS";
constexpr char kColumnKeyKey[] = "COLUMN_KEY";
constexpr char kColumnWidthKey[] = "COLUMN_WIDTH";
constexpr char kColumnSortDirectionKey[] = "COLUMN_SORT_DIRECTION";
constexpr char kSortColumnIndexKey[] = "MAIN_WINDOW_SORT_COLUMN_INDEX";

constexpr char kSetsKey[] = "MAIN_WINDOW_COLUMN_SETS";
constexpr char kSetKey[] = "SET_KEY";
constexpr char kSetColumnsKey[] = "SET_COLUMNS";
constexpr char kSetSortKey[] = "SET_SORT_COLUMN";
constexpr char kSetShapeKey[] = "SET_SHAPE";
/// Stands before the encoded title in the key of an own set.
constexpr char kOwnPrefix[] = "own:";

/// With its terminator: what is longer could not be read again.
constexpr qsizetype kRoomForColumns = 16'384;
constexpr qsizetype kRoomForId = 512;
constexpr qsizetype kRoomForKey = 64;
constexpr int kMostOwnSets = 30;
constexpr qsizetype kLongestTitle = 40;
constexpr int kWidestColumn = 10'000;

struct BuiltInSet {
  const char* id;
  const char* title;
  /// At single blanks.
  const char* columns;
  const char* sortKey;
};

/// The first keeps its columns under keys of its own.
constexpr BuiltInSet kBuiltIn[] = {
    {"standard", "menu_set_standard",
     "meta_pid internal_Icon internal_Indicator meta_name meta_active_time internal_CPUPercent "
     "internal_MemGraph",
     ""},
    {"cpu", "menu_set_cpu",
     "meta_pid internal_Icon meta_name internal_CPUPercent meta_active_time pid_threads "
     "pid_state pid_p_nice pid_user_share pid_system_share pid_cpu_wait pid_processor pid_csw",
     "internal_CPUPercent"},
    {"memory", "menu_set_memory",
     "meta_pid internal_Icon meta_name internal_MemGraph pid_rsz pid_pss pid_uss "
     "pid_shared_memory pid_swap pid_highest_rsz pid_memory_share pid_oom_score",
     "pid_rsz"},
    {"disk_network", "menu_set_disk_network",
     "meta_pid internal_Icon meta_name pid_disk_read_rate pid_disk_write_rate pid_disk_read "
     "pid_disk_written pid_net_receive_rate pid_net_send_rate pid_connections "
     "pid_listening_ports",
     "pid_disk_write_rate"},
    {"commands", "menu_set_commands",
     "meta_pid pid_parent_pid internal_Icon meta_name pid_owner pid_running_time pid_command_line",
     "meta_pid"},
    {"containers", "menu_set_containers",
     "meta_pid pid_inner_pid internal_Icon meta_name pid_owner pid_container pid_unit pid_slice "
     "internal_CPUPercent pid_rsz pid_namespace",
     "pid_container"},
    {"security", "menu_set_security",
     "meta_pid internal_Icon meta_name pid_owner pid_elevated pid_capabilities pid_seccomp "
     "pid_no_new_privileges pid_label pid_executable",
     "pid_elevated"},
};
constexpr int kBuiltInCount = static_cast<int>(std::size(kBuiltIn));

const BuiltInSet* BuiltInAt(int place) {
  return place < kBuiltInCount ? &kBuiltIn[static_cast<std::size_t>(place)] : nullptr;
}

std::string OwnId(const QString& title) {
  QStringList titles{title};
  return kOwnPrefix + EncodedNames(titles, kRoomForId).toStdString();
}

/// A text of an element of an array; empty where there is none, or one that is too long.
QByteArray TextOf(const char* arrayKey, std::int32_t index, const char* key, qsizetype room) {
  QByteArray text(room, '\0');
  if (IsPrefArrayValuePresent(arrayKey, index, key))
    GetPrefArrayString(arrayKey, index, key, text.data(), static_cast<std::int32_t>(room), false,
                       "");
  return QByteArray(text.constData());
}

std::int32_t NumberAt(const char* arrayKey, std::int32_t index, const char* key,
                      std::int32_t usual) {
  return IsPrefArrayValuePresent(arrayKey, index, key)
             ? GetPrefArrayInt(arrayKey, index, key, false, usual)
             : usual;
}

TableShape ShapeOf(std::int32_t number) {
  return static_cast<TableShape>(std::clamp(number, 0, 2));
}

/// The element that a set is remembered in; the array's count when there is none.
std::int32_t ElementOf(const std::string& id) {
  const auto count = GetPrefArrayCount(kSetsKey);
  std::int32_t index = 0;
  while (index < count && id != TextOf(kSetsKey, index, kSetKey, kRoomForId).constData()) ++index;
  return index;
}

// ---- The first set ------------------------------------------------------------------------------

bool Has(const ColumnSetContents& contents, std::string_view key) {
  return std::ranges::find(contents.columns, key, &RememberedColumn::key) != contents.columns.end();
}

void Append(ColumnSetContents& contents, std::string_view key) {
  contents.columns.push_back({std::string(key), 0, UsualDirectionOf(key)});
}

/// Behind another one, or at the end.
void Insert(ColumnSetContents& contents, std::string_view key, std::string_view afterKey) {
  if (Has(contents, key)) return;
  auto place = std::ranges::find(contents.columns, afterKey, &RememberedColumn::key);
  if (place != contents.columns.end()) ++place;
  contents.columns.insert(place, {std::string(key), 0, UsualDirectionOf(key)});
}

/// Columns that came with later versions, each once.
void AddNewColumns(ColumnSetContents& contents) {
  const auto once = [&](IntegerSetting flag, KeyId key, KeyId afterKey) {
    if (StoredInt(flag)) return;
    StoreInt(flag, 1);
    Insert(contents, KeyText(key), KeyText(afterKey));
  };
  once("HAS_RUN_TWO_POINT_THREE", kInternalIndicator, kInternalIcon);
  once("HAS_RUN_TWO_POINT_FOUR", kInternalMemGraph, kInternalCPUPercent);
}

void StoreStandard(const ColumnSetContents& contents) {
  // Another instance's columns must not come in between.
  const PreferenceBatch batch;
  RemoveSetting(kColumnsKey);
  std::int32_t count = 0;
  for (const auto& [key, width, direction] : contents.columns) {
    if (!contents.sortKey.empty() && contents.sortKey == key) StoreInt(kSortColumnIndexKey, count);
    const PrefArrayField fields[] = {{kColumnKeyKey, key.c_str()},
                                     {kColumnSortDirectionKey, direction},
                                     {kColumnWidthKey, std::int32_t{width}}};
    SetPrefArrayFields(kColumnsKey, count++,
                       std::span(fields).first(width > 0 ? std::size(fields) : 2));
  }
  if (ShapeOf(ReadInt("MAIN_WINDOW_SHAPE")) != contents.shape)
    StoreInt("MAIN_WINDOW_SHAPE", static_cast<std::int32_t>(contents.shape));
}

ColumnSetContents ReadStandard() {
  // What is added here is on disk whole or not at all.
  const PreferenceBatch batch;
  ColumnSetContents contents;
  contents.shape = ShapeOf(ReadInt("MAIN_WINDOW_SHAPE"));
  contents.sortPlace = ReadInt(kSortColumnIndexKey);
  const auto count = GetPrefArrayCount(kColumnsKey);
  for (std::int32_t i = 0; i < count; ++i) {
    RememberedColumn column{TextOf(kColumnsKey, i, kColumnKeyKey, kRoomForKey).toStdString(),
                            NumberAt(kColumnsKey, i, kColumnWidthKey, 0), 1};
    column.direction =
        NumberAt(kColumnsKey, i, kColumnSortDirectionKey, UsualDirectionOf(column.key));
    if (i == contents.sortPlace) contents.sortKey = column.key;
    contents.columns.push_back(std::move(column));
  }
  const auto known = contents.columns.size();
  contents.isOriginal = count == 0;
  if (contents.isOriginal)
    for (const KeyId key :
         {kMetaPid, kInternalIcon, kMetaName, kMetaActiveTime, kInternalCPUPercent})
      Append(contents, KeyText(key));
  if (!Has(contents, KeyText(kMetaPid))) Append(contents, KeyText(kMetaPid));
  AddNewColumns(contents);
  if (contents.columns.size() != known) StoreStandard(contents);
  return contents;
}

// ---- The others ---------------------------------------------------------------------------------

/// "key:width:direction"
std::optional<RememberedColumn> ColumnIn(const QString& text) {
  const auto key = text.section(QLatin1Char(':'), 0, -3);
  bool hasWidth = false;
  const int width = text.section(QLatin1Char(':'), -2, -2).toInt(&hasWidth);
  const auto direction = text.section(QLatin1Char(':'), -1);
  if (key.isEmpty() || key.size() >= kRoomForKey || !hasWidth || width < 0 ||
      width > kWidestColumn || (direction != QLatin1String("0") && direction != QLatin1String("1")))
    return std::nullopt;
  return RememberedColumn{key.toStdString(), width, direction == QLatin1String("1") ? 1 : 0};
}

QString TextOf(const RememberedColumn& column) {
  return QString::fromStdString(column.key) + QLatin1Char(':') +
         QString::number(std::clamp(column.width, 0, kWidestColumn)) + QLatin1Char(':') +
         QString::number(column.direction);
}

}  // namespace

ColumnSets::ColumnSets() {
  const auto count = GetPrefArrayCount(kSetsKey);
  for (std::int32_t i = 0; i < count && mOwn.size() < kMostOwnSets; ++i) {
    const auto id = TextOf(kSetsKey, i, kSetKey, kRoomForId);
    if (!id.startsWith(kOwnPrefix)) continue;
    const auto titles = DecodedNames(id.mid(std::size(kOwnPrefix) - 1));
    if (titles.size() == 1 && ComplaintAbout(titles.constFirst()).isEmpty())
      mOwn.append(titles.constFirst());
  }
  char shown[kRoomForId] = "";
  ReadText("MAIN_WINDOW_COLUMN_SET", shown, sizeof shown);
  for (int place = 0; place < Count(); ++place)
    if (IdOf(place) == shown) mShown = place;
}

int ColumnSets::Count() const {
  return kBuiltInCount + static_cast<int>(mOwn.size());
}

bool ColumnSets::IsOwn(int place) const {
  return place >= kBuiltInCount;
}

QString ColumnSets::TitleOf(int place) const {
  if (const auto* set = BuiltInAt(place)) return WithoutLetter(LocalizedString(set->title));
  return mOwn[place - kBuiltInCount];
}

std::string ColumnSets::IdOf(int place) const {
  const auto* set = BuiltInAt(place);
  return set != nullptr ? set->id : OwnId(mOwn[place - kBuiltInCount]);
}

void ColumnSets::SetShown(int place) {
  mShown = place;
  StoreText("MAIN_WINDOW_COLUMN_SET", IdOf(place).c_str());
}

ColumnSetContents ColumnSets::Original(int place) {
  const auto* set = BuiltInAt(place);
  if (set == nullptr) set = kBuiltIn;
  ColumnSetContents contents;
  contents.isOriginal = true;
  contents.sortKey = set->sortKey;
  const auto keys = QString::fromLatin1(set->columns).split(QLatin1Char(' '));
  for (const auto& key : keys) Append(contents, key.toStdString());
  return contents;
}

ColumnSetContents ColumnSets::Read(int place) const {
  if (place == 0) return ReadStandard();
  auto contents = Original(place);
  const auto element = ElementOf(IdOf(place));
  if (element == GetPrefArrayCount(kSetsKey)) return contents;
  std::vector<RememberedColumn> columns;
  for (const auto& text : DecodedNames(TextOf(kSetsKey, element, kSetColumnsKey, kRoomForColumns)))
    if (auto column = ColumnIn(text)) columns.push_back(std::move(*column));
  if (columns.empty()) return contents;
  contents.isOriginal = false;
  contents.columns = std::move(columns);
  if (!Has(contents, KeyText(kMetaPid))) Append(contents, KeyText(kMetaPid));
  contents.sortKey = TextOf(kSetsKey, element, kSetSortKey, kRoomForKey).toStdString();
  contents.shape = ShapeOf(NumberAt(kSetsKey, element, kSetShapeKey, 0));
  return contents;
}

void ColumnSets::Store(int place, const ColumnSetContents& contents) const {
  if (place == 0) return StoreStandard(contents);
  QStringList columns;
  for (const auto& column : contents.columns) columns.append(TextOf(column));
  const auto id = IdOf(place);
  const auto text = EncodedNames(columns, kRoomForColumns);
  const PrefArrayField fields[] = {{kSetKey, id.c_str()},
                                   {kSetColumnsKey, text.constData()},
                                   {kSetSortKey, contents.sortKey.c_str()},
                                   {kSetShapeKey, static_cast<std::int32_t>(contents.shape)}};
  SetPrefArrayFields(kSetsKey, ElementOf(id), fields);
}

void ColumnSets::Forget(int place) const {
  const PreferenceBatch batch;
  if (place == 0) {
    RemoveSetting(kColumnsKey);
    RemoveSetting(kSortColumnIndexKey);
    RemoveSetting("MAIN_WINDOW_SHAPE");
    RemoveSetting("HAS_RUN_TWO_POINT_THREE");
    RemoveSetting("HAS_RUN_TWO_POINT_FOUR");
    return;
  }
  const auto element = ElementOf(IdOf(place));
  if (element < GetPrefArrayCount(kSetsKey)) RemovePrefArrayElement(kSetsKey, element);
}

QString ColumnSets::ComplaintAbout(const QString& title, int place) const {
  if (title.trimmed().isEmpty()) return LocalizedString("set_without_title");
  if (title.size() > kLongestTitle) return LocalizedString("set_title_too_long").arg(kLongestTitle);
  for (int other = 0; other < Count(); ++other)
    if (other != place && TitleOf(other).compare(title.trimmed(), Qt::CaseInsensitive) == 0)
      return LocalizedString("set_title_is_taken").arg(TitleOf(other));
  if (place < 0 && mOwn.size() >= kMostOwnSets)
    return LocalizedString("set_too_many").arg(kMostOwnSets);
  return {};
}

int ColumnSets::Add(const QString& title, const ColumnSetContents& contents) {
  mOwn.append(title);
  const int place = Count() - 1;
  Store(place, contents);
  return place;
}

void ColumnSets::Rename(int place, const QString& title) {
  const PreferenceBatch batch;
  const auto element = ElementOf(IdOf(place));
  mOwn[place - kBuiltInCount] = title;
  SetPrefArrayString(kSetsKey, element, kSetKey, IdOf(place).c_str());
  if (place == mShown) SetShown(place);
}

void ColumnSets::Remove(int place) {
  const PreferenceBatch batch;
  Forget(place);
  mOwn.removeAt(place - kBuiltInCount);
  if (mShown == place) SetShown(0);
  if (mShown > place) --mShown;
}

}  // namespace lurkwell
