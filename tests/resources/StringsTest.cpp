// The texts against this machine's columns, the menus' rules and the program's source.
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <chrono>
#include <filesystem>
#include <string>

#include "consolidator/Feeders.h"
#include "platform/linux/LinuxTools.h"
#include "resources/Resources.h"
#include "resources/StringTable.h"
#include "support/ConsolidatorTest.h"
#include "support/MachineOf.h"

namespace lurkwell {
namespace {

QString ContentsOf(const std::filesystem::path& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The ids of texts that a piece of source names, and that there are not.
QStringList UnknownIds(const QString& source) {
  static const QRegularExpression literal(
      R"re("((?:menu|main_window|toolbar|kill_confirmation|button|about)_[a-z_]+)")re"
      R"re(|LocalizedString\(\s*"([^"]+)")re");
  QStringList unknown;
  for (auto matches = literal.globalMatch(source); matches.hasNext();) {
    const auto match = matches.next();
    const QString id = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
    if (!HasLocalizedString(id.toUtf8().constData())) unknown += id;
  }
  return unknown;
}

/// Texts that the source has in English, by their ids, with what the table does not say alike.
QStringList UnlikeTexts(const QString& source, int& count) {
  static const QRegularExpression call(
      QStringLiteral("UserText\\(\\s*\"(\\w+)\",\\s*((?:\"[^\"]*\"\\s*)+)\\)"));
  static const QRegularExpression seam(QStringLiteral("\"\\s*\"|^\"|\"\\s*$"));
  QStringList unlike;
  for (auto matches = call.globalMatch(source); matches.hasNext(); ++count) {
    const auto match = matches.next();
    const auto english = match.captured(2).remove(seam);
    if (LocalizedString(match.captured(1).toUtf8()) != english) unlike += match.captured(1);
  }
  return unlike;
}

class RealColumnsTest : public ConsolidatorTest {
 protected:
  LinuxTools tools;
  Machine real = MachineOf(machine, tools);
  MachineInstallation realInstallation{real};
};

TEST_F(RealColumnsTest, EveryColumnHasATitleOfItsOwnAndATip) {
  Start();
  AwaitPSColumns(std::chrono::seconds(20));
  ASSERT_GT(GetPSHeaderCount(), 80);
  QStringList keys{"internal_Icon", "internal_Indicator", "internal_CPUPercent",
                   "internal_MemGraph"};
  for (int n = 0; n < CountProcPropertyHeaders(); ++n) {
    char key[64];
    ASSERT_TRUE(GetNthProcPropertyHeader(n, key, sizeof key));
    keys += key;
  }
  QHash<QString, QString> keyOfTitle;
  for (const QString& key : keys) {
    const QByteArray id = key.toUtf8();
    EXPECT_TRUE(HasLocalizedString(id)) << id.constData();
    EXPECT_TRUE(HasLocalizedString(id + "_tip")) << id.constData();
    const QString title = LocalizedString(id);
    EXPECT_FALSE(title.contains('&')) << "a mnemonic: " << qPrintable(title);
    EXPECT_LE(title.size(), 40) << qPrintable(title);
    EXPECT_FALSE(keyOfTitle.contains(title))
        << qPrintable(title) << " is the title of " << qPrintable(keyOfTitle[title]) << " too";
    keyOfTitle[title] = key;
  }
}

TEST(StringsTest, UnknownIdsAreSeenAndShownAsTheyAre) {
  EXPECT_FALSE(HasLocalizedString("no_such_text"));
  EXPECT_EQ(LocalizedString("no_such_text"), "no_such_text");
  EXPECT_TRUE(LocalizedString("main_window_title").startsWith("Process"));
  EXPECT_TRUE(LocalizedString("menu_application_preferences").endsWith(u'…'));
  // The indicator's pictures have texts of the same names, for those who cannot see them.
  for (const char* picture : {"process_halted", "process_niced_high", "process_niced_low"})
    EXPECT_TRUE(HasLocalizedString(picture)) << picture;
}

TEST(StringsTest, IdsAreGivenOnceAndHaveTexts) {
  const auto table = StringTable::Of("en");
  const auto& ids = table.ids;
  ASSERT_GT(ids.size(), 400);
  EXPECT_EQ(QSet<QString>(ids.begin(), ids.end()).size(), ids.size());
  for (const QString& id : ids) {
    EXPECT_TRUE(HasLocalizedString(id.toUtf8())) << qPrintable(id);
    EXPECT_EQ(LocalizedString(id.toUtf8()).trimmed(), LocalizedString(id.toUtf8()));
  }
}

TEST(StringsTest, EachMenuItemHasALetterOfItsOwnInItsMenu) {
  ExpectLettersOfMenus(StringTable::Of("en").ids);
}

TEST(StringsTest, EveryIdThatTheSourceNamesHasAText) {
  EXPECT_EQ(UnknownIds(R"(f("menu_file_copyy"); LocalizedString("Nothing"); g("menu_edit_copy");)"),
            (QStringList{"menu_file_copyy", "Nothing"}));
  int files = 0;
  int userTexts = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_FOLDER "/src")) {
    if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
    ++files;
    const auto source = ContentsOf(entry.path());
    const QStringList unknown = UnknownIds(source) + UnlikeTexts(source, userTexts);
    EXPECT_TRUE(unknown.isEmpty()) << entry.path() << ": " << qPrintable(unknown.join(", "));
  }
  EXPECT_GT(files, 100);
  EXPECT_GT(userTexts, 5);
}

}  // namespace
}  // namespace lurkwell
