// The tables of all languages against the English one, which language is taken, and its forms.
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include "resources/Resources.h"
#include "resources/StringTable.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

QStringList AllOf(const QRegularExpression& what, const QString& text) {
  QStringList all;
  for (auto found = what.globalMatch(text); found.hasNext();) all += found.next().captured();
  all.sort();
  return all;
}

QStringList Placeholders(const QString& text) {
  static const QRegularExpression placeholder(QStringLiteral("%[0-9n]"));
  return AllOf(placeholder, text);
}

QStringList Tags(const QString& text) {
  static const QRegularExpression tag(QStringLiteral("</?[a-z][^>]*>"));
  return AllOf(tag, text);
}

bool HasLetterOfAccess(const QString& text) {
  static const QRegularExpression letter(QStringLiteral("&[\\w]"),
                                         QRegularExpression::UseUnicodePropertiesOption);
  return text.contains(letter);
}

/// What a translator should have changed: words, without what is called the same everywhere.
QStringList WordsOf(QString text) {
  static const QRegularExpression notAWord(
      QStringLiteral("%[0-9n]|&|<[^>]*>|/?[\\w.-]+/[\\w./"
                     "-]+|\\w*[_0-9]\\w*|\\b[A-Z]+s?\\b|\\b(Lurkwell|Prometheus|"
                     "Classic|Linux|Unix|Mach|Lua|Swap|ssh|pid|ps|cgroup|nice|io|max|min|swap|"
                     "socket|kB|MiB|GiB)\\b"));
  static const QRegularExpression word(QStringLiteral("[A-Za-z]{3,}"));
  return AllOf(word, text.remove(notAWord));
}

/// Words that happen to be the same have no more than two of them.
bool MayBeTheSame(const QString& english, bool isLatin) {
  // Rules and filters have a grammar of their own.
  static const QRegularExpression comparison(QStringLiteral("\\w[<>]\\d"));
  if (english.contains(comparison)) return true;
  const auto words = WordsOf(english);
  return words.size() <= (isLatin ? 2 : 0);
}

class TranslationsTest : public testing::TestWithParam<const char*> {
 protected:
  static void SetUpTestSuite() { english = StringTable::Of("en"); }
  void TearDown() override { InstallLanguage(*qApp, QStringLiteral("en")); }

  static StringTable english;
};

StringTable TranslationsTest::english;

TEST_P(TranslationsTest, SayAllThatTheEnglishOnesSay) {
  const auto table = StringTable::Of(GetParam());
  EXPECT_EQ(table.ids, english.ids) << "the same texts in the same order";
  const bool isLatin = QString(GetParam()) != "ja" && QString(GetParam()) != "zh_CN";
  int same = 0;
  for (const auto& id : english.ids) {
    const auto& forms = table.forms[id];
    const auto& original = english.forms[id].last();
    EXPECT_EQ(forms.size(), english.forms[id].size() == 1 ? 1 : isLatin ? 2 : 1) << qPrintable(id);
    for (const auto& text : forms) {
      auto placeholders = Placeholders(original);
      // "every second" needs no number.
      if (&text == &forms.first() && forms.size() == 2 && !text.contains("%n"))
        placeholders.removeOne("%n");
      const bool isAlike =
          Placeholders(text) == placeholders && Tags(text) == Tags(original) &&
          HasLetterOfAccess(text) == HasLetterOfAccess(original) &&
          text.front().isSpace() == original.front().isSpace() &&
          text.back().isSpace() == original.back().isSpace() &&
          (text.endsWith(u'…') || !original.endsWith(u'…') || original.size() > 60);
      EXPECT_TRUE(isAlike) << qPrintable(id + ": " + original + " -> " + text);
      if (text != original || WordsOf(original).isEmpty()) continue;
      ++same;
      EXPECT_TRUE(MayBeTheSame(original, isLatin)) << qPrintable(id + " is English: " + text);
    }
  }
  EXPECT_LT(same, english.ids.size() / 20);
}

/// The anchors, and the marks in whose places the program writes, in their order.
QStringList PlacesIn(const QString& language) {
  QFile file(SOURCE_FOLDER "/resources/Documentation/Documentation" + language + ".html");
  if (!file.open(QIODevice::ReadOnly)) return {};
  static const QRegularExpression place(
      QStringLiteral("\\bid=\"[^\"]+\"|href=\"[^\"]+\"|<!--[^>]*-->|<kbd class[^/]*/kbd>"));
  const auto page = QString::fromUtf8(file.readAll());
  QStringList places;
  for (auto found = place.globalMatch(page); found.hasNext();) places += found.next().captured();
  return places;
}

TEST_P(TranslationsTest, HelpHasTheSamePlaces) {
  const auto places = PlacesIn({});
  EXPECT_GT(places.size(), 10);
  EXPECT_EQ(PlacesIn(QLatin1Char('_') + QLatin1String(GetParam())), places);
}

TEST_P(TranslationsTest, MenusHaveALetterForEachItem) {
  ASSERT_TRUE(InstallLanguage(*qApp, GetParam()));
  ExpectLettersOfMenus(english.ids);
}

INSTANTIATE_TEST_SUITE_P(All, TranslationsTest,
                         testing::Values("de", "fr", "es", "pt", "ja", "zh_CN"),
                         [](const auto& its) { return std::string(its.param); });

TEST(LanguageTest, TheFirstOfTheUsersThatHasTextsIsTaken) {
  for (const auto& [wanted, taken] :
       {std::pair("de-AT", "de"), std::pair("ru-RU", "en"), std::pair("ru-RU de-DE", "de"),
        std::pair("en-GB de-DE", "en"), std::pair("pt-BR", "pt"), std::pair("zh-CN", "zh_CN"),
        std::pair("zh-Hans-SG zh-SG", "zh_CN"), std::pair("zh-TW zh", "zh_CN"),
        std::pair("zh-TW", "en"), std::pair("C", "en"), std::pair("", "en")})
    EXPECT_EQ(LanguageFor(QString(wanted).split(' ', Qt::SkipEmptyParts)), taken) << wanted;
}

TEST(LanguageTest, NumbersChooseTheForm) {
  const auto processes = [](const char* language, qint64 count) {
    InstallLanguage(*qApp, language);
    return LocalizedString("fleet_count_machines", count).toStdString();
  };
  EXPECT_EQ(processes("en", 1), "1 machine");
  EXPECT_EQ(processes("en", 0), "0 machines");
  EXPECT_EQ(processes("fr", 0), "0 machine") << "nothing is singular there";
  EXPECT_EQ(processes("fr", 2), "2 machines");
  EXPECT_EQ(processes("pt", 0), "0 máquinas");
  EXPECT_EQ(processes("ja", 1).substr(0, 9), processes("ja", 5).substr(0, 9));
  InstallLanguage(*qApp, "en");
  EXPECT_EQ(LocalizedString("machine_limit_processors", 1.0, "1"), "1 processor");
  EXPECT_EQ(LocalizedString("machine_limit_processors", 0.5, "0.5"), "0.5 processors");
  EXPECT_EQ(LocalizedString("fleet_count_machines", 3'000'000'001),
            LocalNumber(3'000'000'001) + " machines");
  EXPECT_EQ(LocalizedString("no_such_text", 2), "no_such_text");
}

TEST(LanguageTest, ItemsHaveNamesWithoutTheirLetters) {
  for (const auto& [text, name] :
       {std::pair("&Kill…", "Kill…"), std::pair("標準(&S)", "標準"),
        std::pair("終了(&Q)…", "終了…"), std::pair("a && b (&C)", "a && b"),
        std::pair("Size (KiB)", "Size (KiB)")})
    EXPECT_EQ(WithoutLetter(QString::fromUtf8(text)), QString::fromUtf8(name));
}

/// With a locale for figures and one for dates, whatever the others are.
class UserLocaleTest : public testing::Test {
 protected:
  static void Use(const char* numbers, const char* dates) {
    qunsetenv("LC_ALL");
    qputenv("LC_NUMERIC", numbers);
    qputenv("LC_TIME", dates);
    qputenv("TZ", "UTC");
    UseUserLocale();
  }
  ~UserLocaleTest() override {
    Use("C", "C");
    qputenv("LC_ALL", "C.UTF-8");
  }
};

TEST_F(UserLocaleTest, FiguresHaveTheUsersSigns) {
  Use("de_DE.UTF-8", "C");
  EXPECT_EQ(LocalNumber(1'234'567), "1.234.567");
  EXPECT_EQ(LocalNumber(0.25, 'f', 2), "0,25");
  EXPECT_EQ(LocalFigure("+ 1023.9 M"), "+ 1023,9 M");
  EXPECT_EQ(LocalFigure("v1. ended."), "v1. ended.");
  bool isNumber = false;
  EXPECT_EQ(NumberFromUser("0,25", &isNumber), 0.25);
  EXPECT_EQ(NumberFromUser("1.234", &isNumber), 1234);
  EXPECT_EQ(NumberFromUser("0.25", &isNumber), 0.25) << "as files have it";
  EXPECT_TRUE(isNumber);
  NumberFromUser("a,b", &isNumber);
  EXPECT_FALSE(isNumber);
  Use("C", "de_DE.UTF-8");
  EXPECT_EQ(LocalNumber(1'234'567), "1234567");
  EXPECT_EQ(LocalFigure("1.5"), "1.5");
  Use("fa_IR.UTF-8", "C");
  EXPECT_EQ(LocalFigure("1.5"), "۱٫۵");
}

TEST_F(UserLocaleTest, DatesAreTheUsersAndFitTheirPlace) {
  constexpr std::int64_t kMoment = 1'795'000'000;  // 2026-11-18 11:06:40
  const auto moments = [](const char* dates) {
    Use("C", dates);
    QStringList texts;
    for (const int width : {0, 18, 9}) texts += LocalMoment(kMoment, width);
    return texts.join(" | ").toStdString();
  };
  EXPECT_EQ(moments("de_DE.UTF-8"), "18.11.2026 11:06:40 | 18.11. 11:06:40 | 11:06:40");
  EXPECT_EQ(moments("ja_JP.UTF-8"), "2026/11/18 11:06:40 | 11/18 11:06:40 | 11:06:40");
  EXPECT_EQ(moments("es_ES.UTF-8"), "18/11/2026 11:06:40 | 18/11 11:06:40 | 11:06:40");
  EXPECT_TRUE(HasOwnDates());
  EXPECT_EQ(moments("en_US.UTF-8").substr(0, 10), "11/18/2026");
  EXPECT_FALSE(HasOwnDates()) << "tables have the usual English one";
  EXPECT_EQ(moments("C"), "2026-11-18 11:06:40 | 11-18 11:06:40 | 11:06:40");
}

}  // namespace
}  // namespace lurkwell
