#include "main_window/HelpWindow.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QSaveFile>
#include <QShortcut>
#include <QStandardPaths>
#include <QStringList>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "main_window/CommandTable.h"
#include "platform/Bundle.h"
#include "platform/Machine.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"
#include "windows/OverlayKey.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr QLatin1String kKeysMark("<!-- keys of commands -->");
constexpr QLatin1String kOverlayKeyMark("<kbd class=\"overlay\">F7</kbd>");

/// "Ctrl+Shift+H" with each key marked as one.
QString MarkedKeys(const QKeySequence& keys) {
  auto text = keys.toString(QKeySequence::NativeText);
  // The key between the signs may be their own.
  const bool endsWithPlus = text.endsWith(QLatin1String("++"));
  if (endsWithPlus) text.chop(2);
  auto names = text.split(QLatin1Char('+'));
  if (endsWithPlus) names.append(QStringLiteral("+"));
  for (auto& name : names)
    name = QLatin1String("<kbd>") + name.toHtmlEscaped() + QLatin1String("</kbd>");
  return names.join(QLatin1Char('+'));
}

QString PurposeOf(const Command& command) {
  const auto id = QByteArray("help_") + command.text;
  if (HasLocalizedString(id)) return LocalizedString(id);
  return WithoutLetter(LocalizedString(command.text)).remove(QStringLiteral("…"));
}

QString KeysOfCommands() {
  QString rows;
  for (const auto& command : Commands()) {
    const auto keys = command.Shortcut();
    if (!keys.isEmpty())
      rows += QLatin1String("<tr><td>") + MarkedKeys(keys) + QLatin1String("</td><td>") +
              PurposeOf(command).toHtmlEscaped() + QLatin1String("</td></tr>\n");
  }
  return rows;
}

/// The file's path; empty when it cannot be written.
QString WriteForBrowser(const QString& name, const QString& page) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                    QLatin1String("/lurkwell"));
  QSaveFile file(folder.filePath(name));
  const auto bytes = page.toUtf8();
  const bool isWritten = folder.mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
                         file.write(bytes) == bytes.size() && file.commit();
  return isWritten ? file.fileName() : QString();
}

/// Gives the page to the desktop's browser, in a file that is its own.
bool ShowInBrowser(const QString& page, const QString& section) {
  const auto name = QStringLiteral("Documentation.html");
  auto path = WriteForBrowser(name, page);
  // Desktops give browsers the file alone, without the place in it: another page leads there.
  if (!path.isEmpty() && !section.isEmpty())
    path = WriteForBrowser(
        QStringLiteral("help-%1.html").arg(section),
        QStringLiteral("<!DOCTYPE html><meta http-equiv=\"refresh\" content=\"0; url=%1#%2\">")
            .arg(name, section));
  return !path.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

}  // namespace

QString HelpPage() {
  const auto page = QString::fromStdString(TheMachine().bundle.Path()) +
                    QLatin1String("/Contents/Resources/Documentation/Documentation");
  const auto translated = page + QLatin1Char('_') + InstalledLanguage() + QLatin1String(".html");
  return QFile::exists(translated) ? translated : page + QLatin1String(".html");
}

QString FillHelpPage(QString page) {
  const auto overlay = OverlayKey();
  return page.replace(kKeysMark, KeysOfCommands())
      .replace(kOverlayKeyMark,
               overlay.isEmpty() ? LocalizedString("help_no_key") : MarkedKeys(overlay));
}

bool ShowHelp(const QString& file, const QString& section, QWidget& owner) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) return false;
  const auto page = FillHelpPage(QString::fromUtf8(source.readAll()));
  if (!ShowInBrowser(page, section)) ShowHelpWindow(page, section, owner);
  return true;
}

void ShowHelpWindow(const QString& page, const QString& section, QWidget& owner) {
  static QPointer<ControlledWindow> sWindow;
  static QPointer<QTextBrowser> sText;
  if (sWindow == nullptr) {
    sWindow = new ControlledWindow(&owner);
    sWindow->setWindowTitle(LocalizedString("help_title"));
    auto* text = new QTextBrowser(sWindow);
    text->setAccessibleName(sWindow->windowTitle());
    text->setHtml(page);
    auto* layout = new QVBoxLayout(sWindow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text);
    text->setFocus();
    sText = text;
    const auto* escape = new QShortcut(Qt::Key_Escape, sWindow);
    QObject::connect(escape, &QShortcut::activated, sWindow, &QWidget::close);
    const auto metrics = text->fontMetrics();
    sWindow->resize(
        FitOnScreens(QSize(metrics.averageCharWidth() * 80, metrics.lineSpacing() * 40)));
  }
  BringToFront(*sWindow);
  // The page is laid out when it is seen.
  if (!section.isEmpty())
    QMetaObject::invokeMethod(
        sText, [section] { sText->scrollToAnchor(section); }, Qt::QueuedConnection);
}

}  // namespace lurkwell
