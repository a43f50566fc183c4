#include "main_window/HelpWindow.h"

#include <QFile>
#include <QPointer>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "resources/Resources.h"
#include "windows/ControlledWindow.h"
#include "windows/FrontmostWindow.h"
#include "windows/WindowFrame.h"

namespace lurkwell {

bool ShowHelpWindow(const QString& page, QWidget& owner) {
  static QPointer<ControlledWindow> sWindow;
  if (sWindow == nullptr) {
    if (!QFile(page).open(QIODevice::ReadOnly)) return false;
    sWindow = new ControlledWindow(&owner);
    sWindow->setWindowTitle(LocalizedString("help_title"));
    auto* text = new QTextBrowser(sWindow);
    text->setAccessibleName(sWindow->windowTitle());
    text->setSource(QUrl::fromLocalFile(page));
    auto* layout = new QVBoxLayout(sWindow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text);
    text->setFocus();
    const auto* escape = new QShortcut(Qt::Key_Escape, sWindow);
    QObject::connect(escape, &QShortcut::activated, sWindow, &QWidget::close);
    const auto metrics = text->fontMetrics();
    sWindow->resize(
        FitOnScreens(QSize(metrics.averageCharWidth() * 80, metrics.lineSpacing() * 40)));
  }
  BringToFront(*sWindow);
  return true;
}

}  // namespace lurkwell
