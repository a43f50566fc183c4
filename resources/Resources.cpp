#include "resources/Resources.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QPointer>
#include <QTranslator>
#include <algorithm>
#include <memory>
#include <vector>

// A static library's resources are linked only where they are asked for, outside any namespace.
static void InitialiseCompiledInFiles() {
  Q_INIT_RESOURCE(lurkwell_strings);
  Q_INIT_RESOURCE(lurkwell_pictures);
  Q_INIT_RESOURCE(lurkwell_forms);
}

namespace lurkwell {
namespace {

constexpr const char* kStringsFolder = ":/strings";

/// Of the application that is running; null once it has ended.
std::vector<QPointer<QTranslator>> gTranslators;

void Install(QCoreApplication& application, QTranslator* translator) {
  QCoreApplication::installTranslator(translator);
  translator->setParent(&application);
  gTranslators.emplace_back(translator);
}

}  // namespace

void InstallResources(QCoreApplication& application) {
  InitialiseCompiledInFiles();
  gTranslators.clear();
  auto english = std::make_unique<QTranslator>();
  if (!english->load("lurkwell_en.qm", kStringsFolder))
    qFatal("the texts are missing from the program");
  Install(application, english.release());
  // Asked first, since it is installed last.
  const QLocale locale;
  auto local = std::make_unique<QTranslator>();
  if (locale.language() != QLocale::English &&
      local->load(locale, "lurkwell", "_", kStringsFolder, ".qm"))
    Install(application, local.release());
}

QString LocalizedString(const char* id) {
  return qtTrId(id);
}

bool HasLocalizedString(const char* id) {
  return std::ranges::any_of(gTranslators, [id](const QPointer<QTranslator>& translator) {
    return translator != nullptr && !translator->translate("", id).isNull();
  });
}

QIcon NamedImage(const char* name) {
  const QString path = QStringLiteral(":/images/%1.svg").arg(QLatin1String(name));
  return QFile::exists(path) ? QIcon(path) : QIcon();
}

}  // namespace lurkwell
