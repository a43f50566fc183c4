#include "preferences_window/AllSettings.h"

#include <QApplication>
#include <QFile>
#include <QFontMetrics>
#include <QHeaderView>
#include <QPainter>
#include <QPalette>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QUiLoader>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/Diagnostics.h"
#include "preferences_window/SettingsModel.h"
#include "resources/Resources.h"
#include "windows/CustomCells.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"

namespace lurkwell {
namespace {

constexpr int kMargin = 4;

QFont Small(QFont font) {
  if (font.pointSizeF() > 0)
    font.setPointSizeF(font.pointSizeF() * 0.8);
  else
    font.setPixelSize(std::max(1, font.pixelSize() * 8 / 10));
  return font;
}

QString KeyAt(const QModelIndex& index) {
  return index.data(SettingsModel::kKeyRole).toString();
}

}  // namespace

int SettingTitleCell::HeightOfRow(const QFont& font) {
  return QFontMetrics(font).height() + QFontMetrics(Small(font)).height() + kMargin;
}

int SettingTitleCell::WidthOf(const QFont& font, const QModelIndex& index) {
  return 2 * kMargin + std::max(QFontMetrics(font).horizontalAdvance(index.data().toString()),
                                QFontMetrics(Small(font)).horizontalAdvance(KeyAt(index)));
}

void SettingTitleCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  auto cell = option;
  initStyleOption(&cell, index);
  const auto title = std::exchange(cell.text, {});
  const auto* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  const auto group =
      cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  const auto colour =
      cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
  auto quiet = colour;
  quiet.setAlphaF(0.72F);
  const QRect area = cell.rect.adjusted(kMargin, kMargin / 2, -kMargin, -kMargin / 2);
  painter->save();
  const auto draw = [&](const QFont& font, const QColor& pen, int place, const QString& text) {
    painter->setFont(font);
    painter->setPen(pen);
    const auto shown = QFontMetrics(font).elidedText(text, Qt::ElideRight, area.width());
    painter->drawText(area, Qt::AlignLeft | place, shown);
  };
  draw(cell.font, colour, Qt::AlignTop, title);
  draw(Small(cell.font), quiet, Qt::AlignBottom, KeyAt(index));
  painter->restore();
}

namespace {

constexpr int kRefreshMilliseconds = 1000;
constexpr int kCellMargin = 16;

/// The style draws an empty box by the ground alone, which on dark ground is not seen.
class ValueCell final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (IsDark(option->palette)) option->palette.setColor(QPalette::Base, QColor(88, 92, 100));
  }
};

}  // namespace

AllSettings* AllSettings::ShowOver(QWidget& parent) {
  auto* window = parent.findChild<AllSettings*>(QString(), Qt::FindDirectChildrenOnly);
  if (window == nullptr) {
    window = new AllSettings(parent);
    if (!window->loadInterface()) {
      Diagnose("the form %s cannot be loaded", kFormPath);
      delete window;
      return nullptr;
    }
    window->setUpTable();
    WatchWindowOrder(*window);
    AddHelpKey(*window, HelpSection::kPreferences);
  }
  BringToFront(*window);
  return window;
}

AllSettings::AllSettings(QWidget& parent)
    : ControlledWindow(&parent),
      fModel(new SettingsModel(this)),
      fProxy(new QSortFilterProxyModel(this)) {
  setWindowTitle(LocalizedString("settings_title"));
  setWindowIcon(NamedImage("show_preferences"));
  fRefreshTimer.start(kRefreshMilliseconds);
  connect(&fRefreshTimer, &QTimer::timeout, fModel, &SettingsModel::Refresh);
}

bool AllSettings::loadInterface() {
  QFile form(QLatin1String{kFormPath});
  auto* contents = form.open(QIODevice::ReadOnly) ? QUiLoader().load(&form, this) : nullptr;
  if (contents == nullptr) return false;
  fTable = contents->findChild<QTableView*>(QStringLiteral("settingsTable"));
  fFilter = contents->findChild<QLineEdit*>(QStringLiteral("filterField"));
  fNote = contents->findChild<QLabel*>(QStringLiteral("noteLabel"));
  fReset = contents->findChild<QPushButton*>(QStringLiteral("resetButton"));
  auto* close = contents->findChild<QPushButton*>(QStringLiteral("closeButton"));
  if (fTable == nullptr || fFilter == nullptr || fNote == nullptr || fReset == nullptr ||
      close == nullptr)
    return false;
  constexpr QSize kFrame(16, 48);
  resize(contents->size().boundedTo(screen()->availableSize() - kFrame));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(contents);
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  connect(fReset, &QPushButton::clicked, this, &AllSettings::resetSelection);
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  connect(escape, &QShortcut::activated, this, &QWidget::close);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, fFilter, [this] { fFilter->setFocus(); });
  return true;
}

void AllSettings::setUpTable() {
  fProxy->setSourceModel(fModel);
  fProxy->setFilterKeyColumn(-1);
  fProxy->setFilterRole(SettingsModel::kFilterRole);
  fProxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
  connect(fFilter, &QLineEdit::textChanged, fProxy, &QSortFilterProxyModel::setFilterFixedString);
  fTable->setModel(fProxy);
  fTable->setAccessibleName(LocalizedString("settings_title"));
  // By subject until the user wants another order.
  fTable->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  fTable->setSortingEnabled(true);
  fTable->horizontalHeader()->setStretchLastSection(true);
  fTable->horizontalHeader()->setHighlightSections(false);
  fTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  fTable->verticalHeader()->hide();
  fTable->verticalHeader()->setDefaultSectionSize(SettingTitleCell::HeightOfRow(fTable->font()));
  fTable->setItemDelegateForColumn(SettingsModel::kTitle, new SettingTitleCell(fTable));
  fTable->setItemDelegateForColumn(SettingsModel::kValue, new ValueCell(fTable));
  setColumnWidths();
  connect(fTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &AllSettings::selectionHasChanged);
  connect(fModel, &SettingsModel::dataChanged, this, &AllSettings::selectionHasChanged);
  connect(fModel, &SettingsModel::changed, this, &AllSettings::changed);
  // After the editor's end, which selects.
  connect(
      fModel, &SettingsModel::refused, this,
      [this](const QString& problem) { fNote->setText(problem); }, Qt::QueuedConnection);
  fTable->selectRow(0);
}

void AllSettings::setColumnWidths() {
  const auto& metrics = fTable->fontMetrics();
  for (int column = 0; column < SettingsModel::kMeaning; ++column) {
    const auto title = fModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    int widest = metrics.horizontalAdvance(title) + kCellMargin;
    // A window's place and a few long keys need not be seen whole.
    const bool isTitle = column == SettingsModel::kTitle;
    const int most = metrics.averageCharWidth() * (isTitle ? 52 : 24);
    for (int row = 0; row < fModel->rowCount(); ++row) {
      const auto cell = fModel->index(row, column);
      widest = std::max(widest, isTitle ? SettingTitleCell::WidthOf(fTable->font(), cell)
                                        : metrics.horizontalAdvance(cell.data().toString()));
    }
    fTable->setColumnWidth(column, std::min(widest, most) + kCellMargin);
  }
}

QList<int> AllSettings::selectedRows() const {
  QList<int> rows;
  for (const auto& index : fTable->selectionModel()->selectedRows())
    rows += fProxy->mapToSource(index).row();
  return rows;
}

void AllSettings::selectionHasChanged() {
  const auto rows = selectedRows();
  fReset->setEnabled(std::ranges::any_of(rows, [this](int row) { return fModel->CanReset(row); }));
  QString note;
  if (rows.size() == 1)
    note = MeaningOf(kSettings[static_cast<std::size_t>(rows.first())]) + QLatin1Char(' ') +
           fModel->NoteOf(rows.first());
  fNote->setText(note);
}

void AllSettings::resetSelection() {
  fModel->Reset(selectedRows());
}

}  // namespace lurkwell
