#pragma once

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QStyle>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QWidget>

namespace lurkwell {

/// What a user would find wrong with the texts of a window as it stands: placeholders in whose
/// places nothing was put, ids without a text, and what is cut because its control is too narrow
/// or too low.
class VisibleTexts {
 public:
  static QStringList WrongIn(const QWidget& window) {
    VisibleTexts texts;
    texts.LookAt(window);
    for (const auto* widget : window.findChildren<QWidget*>())
      if (widget->window() == &window) texts.LookAt(*widget);
    for (const auto* action : window.findChildren<QAction*>())
      for (const auto& text : {action->text(), action->toolTip(), action->statusTip()})
        texts.LookAt(text, *action);
    return texts.mWrong;
  }

 private:
  void Say(const char* what, const QString& text, const QObject& object) {
    mWrong.append(
        QStringLiteral("%1: “%2” of %3 %4")
            .arg(QLatin1String(what), text, object.metaObject()->className(), object.objectName()));
  }

  void LookAt(const QString& text, const QObject& object) {
    static const QRegularExpression placeholder(QStringLiteral("%L?[0-9n](?![0-9A-Za-z])"));
    static const QRegularExpression id(QStringLiteral("^[a-z]+(_[a-zA-Z]+){2,}$"));
    if (text.contains(placeholder)) Say("a placeholder", text, object);
    if (text.contains(id) && !text.startsWith(QLatin1String("qt_"))) Say("an id", text, object);
  }

  void LookAt(const QWidget& widget) {
    for (const auto& text :
         {widget.toolTip(), widget.statusTip(), widget.whatsThis(), widget.accessibleName(),
          widget.accessibleDescription(), widget.isWindow() ? widget.windowTitle() : QString()})
      LookAt(text, widget);
    if (!widget.isVisible()) return;
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) LookAtButton(*button);
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) LookAtLabel(*label);
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) LookAtWidth(*box, box->title());
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) LookAtTabs(*tabs);
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) LookAtList(*list);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) LookAtHeader(*header);
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) LookAtField(*field);
  }

  void LookAtWidth(const QWidget& widget, const QString& text) {
    LookAt(text, widget);
    if (!text.isEmpty() && widget.width() < widget.minimumSizeHint().width())
      Say("too narrow", text, widget);
  }

  void LookAtButton(const QAbstractButton& button) {
    LookAt(button.text(), button);
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    if (button.text().isEmpty() ||
        (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly))
      return;
    if (button.width() < button.sizeHint().width()) Say("too narrow", button.text(), button);
  }

  void LookAtLabel(const QLabel& label) {
    const auto text = label.text();
    LookAt(text, label);
    // One that may be of any width shows all of its text in its tip.
    const bool isOfAnyWidth =
        label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored || label.minimumWidth() > 0;
    if (text.isEmpty()) return;
    if (label.wordWrap()) {
      if (label.height() < label.heightForWidth(label.width())) Say("too low", text, label);
    } else if (label.width() < label.sizeHint().width() && !isOfAnyWidth) {
      Say("too narrow", text, label);
    } else if (isOfAnyWidth && label.width() < label.sizeHint().width() &&
               !label.toolTip().contains(text)) {
      Say("cut without a tip", text, label);
    }
  }

  void LookAtTabs(const QTabBar& tabs) {
    for (int tab = 0; tab < tabs.count(); ++tab) {
      LookAt(tabs.tabText(tab), tabs);
      LookAt(tabs.tabToolTip(tab), tabs);
      const int wanted = tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(tab)).width();
      if (tabs.tabRect(tab).width() < wanted || !tabs.rect().contains(tabs.tabRect(tab).center()))
        Say("too narrow", tabs.tabText(tab), tabs);
    }
  }

  void LookAtList(const QComboBox& list) {
    for (int item = 0; item < list.count(); ++item) LookAt(list.itemText(item), list);
    if (list.width() < list.minimumSizeHint().width() && !list.isEditable())
      Say("too narrow", list.currentText(), list);
  }

  void LookAtHeader(const QHeaderView& header) {
    for (int section = 0; section < header.count(); ++section) {
      const auto* model = header.model();
      const auto title = model->headerData(section, header.orientation()).toString();
      LookAt(title, header);
      LookAt(model->headerData(section, header.orientation(), Qt::ToolTipRole).toString(), header);
      if (header.orientation() == Qt::Vertical || header.isSectionHidden(section)) continue;
      if (header.sectionSize(section) < header.fontMetrics().horizontalAdvance(title))
        Say("too narrow", title, header);
    }
  }

  void LookAtField(const QLineEdit& field) {
    LookAt(field.placeholderText(), field);
    if (field.text().isEmpty() &&
        field.width() < field.fontMetrics().horizontalAdvance(field.placeholderText()))
      Say("too narrow", field.placeholderText(), field);
  }

  QStringList mWrong;
};

}  // namespace lurkwell
