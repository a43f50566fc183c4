// The catalogue of settings against the sources that read them.
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <vector>

#include "monitor_windows/CPUHistoryPreferences.h"
#include "monitor_windows/LoggingPreferences.h"
#include "preferences_window/IntervalScale.h"
#include "preferences_window/PanelTest.h"

namespace lurkwell {
namespace {

struct Read {
  QString key;
  QString writesDefault;
  QString defaultValue;
  QString place;
};

/// The program's sources without those that read whatever key they are told.
std::map<QString, QString> Sources() {
  std::map<QString, QString> sources;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_FOLDER "/src")) {
    const auto path = QString::fromStdString(entry.path().string());
    const bool isSource = path.endsWith(".cpp") || path.endsWith(".h");
    if (!isSource || path.contains("/src/preferences/") || path.contains("/src/platform/") ||
        path.contains("/src/helper/") || path.endsWith("/PreferenceCatalogue.cpp"))
      continue;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) continue;
    QString text = QString::fromUtf8(file.readAll());
    text.remove(QRegularExpression("//[^\n]*"));
    sources[path.section("/src/", 1)] = text;
  }
  return sources;
}

QHash<QString, QString> Constants(const QString& text) {
  static const QRegularExpression definition(
      R"re(constexpr (?:char|const char\*|auto|double|int|std::int32_t|std::string_view) (k\w+)(?:\[\])? = ("\w+"|[-0-9.']+);)re");
  QHash<QString, QString> constants;
  for (auto matches = definition.globalMatch(text); matches.hasNext();) {
    const auto match = matches.next();
    constants[match.captured(1)] = match.captured(2);
  }
  return constants;
}

/// Every reading of a setting: key, whether a default is written, and which.
std::vector<Read> Reads(const std::map<QString, QString>& sources) {
  static const QRegularExpression call(
      R"re(\b(?:GetPref(?:Int|Double|String)|IsSet)\(\s*("?\w+"?),([^;{}]*?)\)(?:\s|[,;)}&|+?]))re");
  QHash<QString, QString> everywhere;
  for (const auto& [place, text] : sources)
    if (place.endsWith(".h")) everywhere.insert(Constants(text));
  std::vector<Read> reads;
  for (const auto& [place, text] : sources) {
    auto constants = everywhere;
    constants.insert(Constants(text));
    for (auto matches = call.globalMatch(text); matches.hasNext();) {
      const auto match = matches.next();
      QString key = constants.value(match.captured(1), match.captured(1));
      auto rest = match.captured(2).split(',');
      const QString value = rest.takeLast().trimmed();
      const bool writes = rest.isEmpty() || rest.last().trimmed() == "true";
      if (!key.startsWith('"')) continue;
      reads.push_back({key.remove('"'), writes ? "true" : "false",
                       constants.value(value, value).remove('\''), place});
    }
  }
  return reads;
}

TEST(CatalogueTest, EverySettingThatTheSourcesReadIsThereWithTheirDefault) {
  const auto sources = Sources();
  ASSERT_GT(sources.size(), 100U);
  const auto reads = Reads(sources);
  EXPECT_GT(reads.size(), 20U);
  for (const auto& read : reads) {
    const auto where = read.key.toStdString() + " in " + read.place.toStdString();
    const auto* entry = FindPreference(read.key.toStdString());
    EXPECT_NE(entry, nullptr) << "missing: " << where;
    if (entry == nullptr || read.writesDefault != "true" || entry->kind == PreferenceKind::kText)
      continue;
    bool isNumber = false;
    const double value = read.defaultValue.toDouble(&isNumber);
    // A parameter's value is for its caller.
    EXPECT_TRUE(!isNumber || entry->defaultValue == value) << where << ": " << value;
  }
}

TEST(CatalogueTest, KeysAreComputedInKnownPlacesOnly) {
  // Each of these is covered by the other tests: by its words, or by what it stores.
  const std::set<QString> known = {"animated_view/QuintessentialInformationClient.cpp",
                                   "consolidator/ClassicEstimate.cpp",
                                   "main_window/MainToolbar.cpp",
                                   "main_window/MainTableColumns.cpp",
                                   "main_window/SystemInfoToolbarItems.cpp",
                                   "main_window/WindowFrame.cpp",
                                   "monitor_windows/CPUHistoryPreferences.cpp",
                                   "monitor_windows/LoggingPreferences.cpp",
                                   "monitor_windows/ProcessWatchdog.cpp"};
  static const QRegularExpression computed(
      R"re(GetPref(?:Int|Double|String)\(\s*(?!"|k[A-Z]|\s))re");
  std::set<QString> places;
  for (const auto& [place, text] : Sources())
    if (!place.startsWith("preferences_window/") && text.contains(computed)) places.insert(place);
  for (const auto& place : places)
    EXPECT_TRUE(known.contains(place)) << qPrintable(place) << " reads a key that no test sees";
}

TEST(CatalogueTest, EveryWordOfTheSourcesThatLooksLikeAKeyIsKnown) {
  // Elements' own keys, beginnings of keys, and names that belong to the desktop.
  static const QStringList others =
      QString(
          "COLUMN_KEY COLUMN_WIDTH COLUMN_SORT_DIRECTION CUSTOM_UPDATE_INTERVAL INCLUDE_TIMESTAMP "
          "LOG_ACTIVE_TIME LOG_DELTA_ACTIVE_TIME LOG_REAL_MEM_USED LOG_DELTA_REAL_MEM_USED "
          "LOG_VIRTUAL_MEM_USED LOG_DELTA_VIRTUAL_MEM_USED LOG_TO_FILE LOG_TIMESTAMP_COL_WIDTH "
          "LOG_ACTIVE_COL_WIDTH LOG_DELTA_ACTIVE_COL_WIDTH LOG_REAL_MEM_COL_WIDTH "
          "LOG_DELTA_REAL_MEM_COL_WIDTH LOG_VIRTUAL_MEM_COL_WIDTH LOG_DELTA_VIRTUAL_MEM_COL_WIDTH "
          "WINDOW_UUID PROCESS_NAME PROCESS_KIND PROCESS_PID PROCESS_START PROCESS_OWNER "
          "WINDOW_RECT_TOP WINDOW_RECT_LEFT WINDOW_RECT_BOTTOM "
          "WINDOW_RECT_RIGHT QT_QPA_PLATFORM DBUS_SESSION_BUS_ADDRESS P_RU")
          .split(' ');
  static const QRegularExpression word(R"re("([A-Z]+(?:_[A-Z0-9]+)+)")re");
  for (const auto& [place, text] : Sources()) {
    for (auto matches = word.globalMatch(text); matches.hasNext();) {
      const auto key = matches.next().captured(1);
      if (others.contains(key)) continue;
      const auto name = key.toStdString();
      const bool isKnown = FindPreference(name) != nullptr ||
                           FindPreference(name + "_RED") != nullptr ||
                           FindPreference("DEFAULT_CPU_HISTORY_" + name) != nullptr ||
                           FindPreference("DEFAULT_CPU_HISTORY_" + name + "_RED") != nullptr;
      EXPECT_TRUE(isKnown) << name << " in " << place.toStdString();
    }
  }
}

TEST_F(PanelTest, DefaultsThatTheWindowsStoreAreTheCataloguesOwn) {
  CPUHistoryPreferences::Read();
  CPUHistoryFilter();
  ReadLoggingSwitches(-1);
  ReadLogToFile(-1);
  const auto& values = machine.preferenceDomain.Values();
  EXPECT_GT(values.size(), 40U);
  for (const auto& [key, value] : values) {
    const auto* entry = FindPreference(key);
    ASSERT_NE(entry, nullptr) << key;
    const auto* integer = std::get_if<std::int64_t>(&value);
    EXPECT_EQ(integer != nullptr, entry->IsInteger()) << key;
    EXPECT_EQ(Stored(key), entry->defaultValue) << key;
  }
}

TEST(CatalogueTest, EachRowMakesSense) {
  QString text;
  QSet<QString> titles;
  for (const auto& [place, source] : Sources()) text += source;
  QSet<QString> keys, meanings;
  for (const auto& entry : PreferenceCatalogue()) {
    EXPECT_FALSE(keys.contains(entry.key)) << entry.key;
    keys += entry.key;
    const QString meaning = MeaningOf(entry);
    const QString title = TitleOf(entry);
    EXPECT_FALSE(title.isEmpty() || titles.contains(title)) << entry.key;
    EXPECT_LT(title.size(), 60) << entry.key;
    titles.insert(title);
    EXPECT_FALSE(meaning.isEmpty() || meanings.contains(meaning)) << entry.key;
    meanings += meaning;
    if (entry.HasDefault()) {
      EXPECT_GE(entry.defaultValue, entry.least) << entry.key;
      EXPECT_LE(entry.defaultValue, entry.most) << entry.key;
    }
    const bool isWhole = entry.defaultValue == std::trunc(entry.defaultValue);
    EXPECT_TRUE(isWhole || !entry.IsInteger() || !entry.HasDefault()) << entry.key;
    // Whoever is told is a class of the program.
    const QString told = entry.told != nullptr ? entry.told : "*";
    EXPECT_TRUE(told == "*" || text.contains(told)) << entry.told;
    // Nobody is shown a setting without effect.
    const QString key = entry.key;
    const auto isRead = [&](const QString& name) { return text.contains('"' + name + '"'); };
    const bool isPutTogether = isRead(key.section('_', 0, 0)) && isRead('_' + key.section('_', 1));
    const QString stem = entry.kind == PreferenceKind::kColour ? key.section('_', 0, -2) : key;
    EXPECT_TRUE(isPutTogether || isRead(stem) ||
                isRead(QString(stem).remove("DEFAULT_CPU_HISTORY_")))
        << entry.key << " is read by nobody";
  }
}

}  // namespace
}  // namespace lurkwell
