#include "resources/Resources.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QStringList>
#include <QTranslator>
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "platform/UserText.h"
#include "resources/UserLocale.h"

// A static library's resources are linked only where they are asked for, outside any namespace.
static void InitialiseCompiledInFiles() {
  Q_INIT_RESOURCE(lurkwell_strings);
  Q_INIT_RESOURCE(lurkwell_pictures);
  Q_INIT_RESOURCE(lurkwell_forms);
}

namespace lurkwell {
namespace {

constexpr const char* kStringsFolder = ":/strings";

/// Of the application that is running; null once it has ended. The last is asked first.
std::vector<QPointer<QTranslator>> gTranslators;
QString gLanguage;

bool Install(QCoreApplication& application, const QString& name, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(name, folder)) return false;
  QCoreApplication::installTranslator(translator.get());
  translator->setParent(&application);
  gTranslators.emplace_back(translator.release());
  return true;
}

void RemoveTranslators() {
  for (const auto& translator : gTranslators) delete translator.data();
  gTranslators.clear();
}

QString FileOf(const QString& language) {
  return QLatin1String("lurkwell_") + language + QLatin1String(".qm");
}

bool HasTexts(const QString& language) {
  return QFile::exists(QLatin1String(kStringsFolder) + QLatin1Char('/') + FileOf(language));
}

/// "de_AT", then "de"; Chinese by how it is written.
QStringList CandidatesFor(const QString& wanted) {
  const QLocale locale(QString(wanted).replace(QLatin1Char('-'), QLatin1Char('_')));
  if (locale.language() == QLocale::Chinese)
    return {locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("zh_TW")
                                                             : QStringLiteral("zh_CN")};
  return {locale.name(), locale.name().section(QLatin1Char('_'), 0, 0)};
}

/// Null when no language has it.
QString TextInForm(const char* id, int number) {
  for (auto translator = gTranslators.rbegin(); translator != gTranslators.rend(); ++translator) {
    if (*translator == nullptr) continue;
    auto text = (*translator)->translate("", id, nullptr, number);
    if (!text.isNull()) return text;
  }
  return {};
}

QString WithFigure(const char* id, int number, const QString& figure) {
  auto text = TextInForm(id, number);
  if (text.isNull()) return QString::fromLatin1(id);
  return text.replace(QLatin1String("%n"), figure);
}

}  // namespace

void InstallResources(QCoreApplication& application) {
  InitialiseCompiledInFiles();
  UseUserLocale();
  SetUserTexts([](const char* id) {
    return HasLocalizedString(id) ? LocalizedString(id).toStdString() : std::string();
  });
  const auto language = LanguageFor(QLocale::system().uiLanguages());
  if (!InstallLanguage(application, language)) qFatal("the texts are missing from the program");
}

bool InstallLanguage(QCoreApplication& application, const QString& language,
                     const QString& folder) {
  RemoveTranslators();
  gLanguage = QStringLiteral("en");
  if (!Install(application, FileOf(gLanguage), QLatin1String(kStringsFolder))) return false;
  if (language != gLanguage) {
    // What Qt itself says; where it is not installed, those few words stay English.
    const auto ofQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const auto& name : {language, QLocale(language).name()})
      if (Install(application, QLatin1String("qtbase_") + name, ofQt)) break;
    if (!Install(application, FileOf(language), folder)) return false;
    gLanguage = language;
  }
  if (qobject_cast<QGuiApplication*>(&application) != nullptr) {
    const bool isTurned = QLocale(language).textDirection() == Qt::RightToLeft;
    QGuiApplication::setLayoutDirection(isTurned ? Qt::RightToLeft : Qt::LayoutDirectionAuto);
  }
  return true;
}

QString LanguageFor(const QStringList& wanted) {
  InitialiseCompiledInFiles();
  for (const auto& entry : wanted)
    for (const auto& candidate : CandidatesFor(entry)) {
      // The locale without a name is English, too.
      if (QLocale(candidate).language() == QLocale::C ||
          QLocale(candidate).language() == QLocale::English)
        return QStringLiteral("en");
      if (HasTexts(candidate)) return candidate;
    }
  return QStringLiteral("en");
}

QString InstalledLanguage() {
  return gLanguage;
}

QString LocalizedString(const char* id) {
  return qtTrId(id);
}

QString LocalizedString(const char* id, qint64 count) {
  constexpr qint64 kMost = std::numeric_limits<int>::max();
  // Very large numbers have the form of those that end alike.
  const auto number = count <= kMost ? count : count % 1'000'000 + 1'000'000;
  return WithFigure(id, static_cast<int>(std::max<qint64>(number, 0)), LocalNumber(count));
}

QString LocalizedString(const char* id, double count, const QString& figure) {
  // Fractions have the form of many.
  constexpr int kMany = 1'000'000;
  const bool isWhole = count == std::trunc(count) && count >= 0 && count < kMany;
  return WithFigure(id, isWhole ? static_cast<int>(count) : kMany, figure);
}

bool HasLocalizedString(const char* id) {
  return std::ranges::any_of(gTranslators, [id](const QPointer<QTranslator>& translator) {
    return translator != nullptr && !translator->translate("", id).isNull();
  });
}

QString WithoutLetter(QString text) {
  static const QRegularExpression letter(QStringLiteral("\\s?\\(&[^&)]\\)|&(?=[^&])"));
  constexpr QLatin1String kAmpersand("&&");
  auto parts = text.split(kAmpersand);
  for (auto& part : parts) part.remove(letter);
  return parts.join(kAmpersand);
}

QIcon NamedImage(const char* name) {
  const QString path = QStringLiteral(":/images/%1.svg").arg(QLatin1String(name));
  return QFile::exists(path) ? QIcon(path) : QIcon();
}

}  // namespace lurkwell
