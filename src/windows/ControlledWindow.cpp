#include "windows/ControlledWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QShortcut>
#include <utility>

namespace lurkwell {

ControlledWindow::ControlledWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_QuitOnClose, false);
  // Not QKeySequence::Close, which some desktops have as another key.
  connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this, &QWidget::close);
  connect(new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this, [] {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
  });
}

void ControlledWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (const auto tell = std::exchange(willClose, nullptr)) tell();
}

}  // namespace lurkwell
