#include "main_window/ToolbarCustomiseDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDrag>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTimer>

#include "main_window/MainToolbar.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr QSize kPictureSize(24, 24);

/// Runs later, when what was dragged is at rest.
template <typename Change>
void AfterTheDrop(QObject* receiver, Change change) {
  QTimer::singleShot(0, receiver, change);
}

/// Pictures are drawn for the list's ground and much of them is blue: the selected row gets a
/// paler highlight, and keeps its picture's colours.
class PaleSelection final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!option->state.testFlag(QStyle::State_Selected)) return;
    const auto& palette = option->palette;
    option->palette.setColor(QPalette::Highlight, Between(palette.color(QPalette::Base),
                                                          palette.color(QPalette::Highlight)));
    option->palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    const qreal scale = option->widget != nullptr ? option->widget->devicePixelRatioF() : 1;
    const auto picture = option->icon.pixmap(option->decorationSize, scale);
    option->icon = QIcon(picture);
    option->icon.addPixmap(picture, QIcon::Selected);
  }

 private:
  static QColor Between(const QColor& ground, const QColor& highlight) {
    constexpr float kShare = 0.3F;
    const auto mix = [](float from, float to) { return from + (to - from) * kShare; };
    return QColor::fromRgbF(mix(ground.redF(), highlight.redF()),
                            mix(ground.greenF(), highlight.greenF()),
                            mix(ground.blueF(), highlight.blueF()));
  }
};

QLabel* MakeHeading(const char* id, QWidget* buddy) {
  auto* label = new QLabel(LocalizedString(id));
  label->setBuddy(buddy);
  // A list does not tell that a label is its own.
  buddy->setAccessibleName(label->text().remove(QLatin1Char('&')));
  return label;
}

}  // namespace

// ---- The lists ----------------------------------------------------------------------------------

ToolbarItemList::ToolbarItemList(bool isToolbar, QWidget* parent)
    : QListWidget(parent), mIsToolbar(isToolbar) {
  setIconSize(kPictureSize);
  setItemDelegate(new PaleSelection(this));
  setDragEnabled(true);
  setAcceptDrops(true);
  setDragDropMode(DragDrop);
  setDropIndicatorShown(isToolbar);
  setUniformItemSizes(true);
}

void ToolbarItemList::SetIdentifiers(const QStringList& identifiers) {
  clear();
  for (const auto& identifier : identifiers) {
    const auto* item = FindToolbarItem(identifier);
    auto* row = new QListWidgetItem(NamedImage(item->image), LocalizedString(item->labelKey), this);
    row->setData(Qt::UserRole, identifier);
    row->setToolTip(LocalizedString((QByteArray(item->labelKey) + "_tip").constData()));
  }
}

QString ToolbarItemList::CurrentIdentifier() const {
  return currentItem() != nullptr ? currentItem()->data(Qt::UserRole).toString() : QString();
}

QMimeData* ToolbarItemList::mimeData(const QList<QListWidgetItem*>& items) const {
  if (items.isEmpty()) return nullptr;
  const auto identifier = items.first()->data(Qt::UserRole).toString();
  return ToolbarDrag{identifier, mIsToolbar ? row(items.first()) : -1}.ToMime().release();
}

bool ToolbarItemList::dropMimeData(int place, const QMimeData* mime, Qt::DropAction) {
  const auto dragged = ToolbarDrag::FromMime(mime);
  if (!dragged) return false;
  AfterTheDrop(this, [this, item = *dragged, place] { Q_EMIT dropped(item, place); });
  return true;
}

void ToolbarItemList::startDrag(Qt::DropActions) {
  auto* item = currentItem();
  if (item == nullptr) return;
  // The list itself takes nothing away: it shows what the toolbar has.
  auto* drag = new QDrag(this);
  drag->setMimeData(mimeData({item}));
  drag->setPixmap(item->icon().pixmap(kPictureSize));
  drag->exec(Qt::CopyAction);
}

// ---- The dialog ---------------------------------------------------------------------------------

ToolbarCustomiseDialog::ToolbarCustomiseDialog(MainToolbar& toolbar, QWidget* parent)
    : QDialog(parent),
      mToolbar(toolbar),
      mAvailable(new ToolbarItemList(false, this)),
      mCurrent(new ToolbarItemList(true, this)) {
  setWindowTitle(LocalizedString("toolbar_customise_title"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* layout = new QVBoxLayout(this);
  auto* hint = new QLabel(LocalizedString("toolbar_customise_hint"), this);
  hint->setWordWrap(true);
  layout->addWidget(hint);
  layout->addWidget(MakeLists(), 1);
  layout->addWidget(MakeDefaultSet());
  layout->addWidget(MakeLastRow());
  resize(600, 460);
  mAvailable->SetIdentifiers(toolbarAllowedItemIdentifiers());
  mAvailable->setCurrentRow(0);
  ShowItems();
  mCurrent->setCurrentRow(0);
  connect(&mToolbar, &MainToolbar::itemsChanged, this, &ToolbarCustomiseDialog::ShowItems);
  mToolbar.SetCustomising(true);
}

ToolbarCustomiseDialog::~ToolbarCustomiseDialog() {
  disconnect(&mToolbar, nullptr, this, nullptr);
  mToolbar.SetCustomising(false);
}

QPushButton* ToolbarCustomiseDialog::MakeButton(const char* id, const char* name) {
  auto* button = new QPushButton(LocalizedString(id), this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  return button;
}

QWidget* ToolbarCustomiseDialog::MakeLists() {
  auto* lists = new QWidget(this);
  auto* grid = new QGridLayout(lists);
  grid->setContentsMargins(0, 0, 0, 0);
  mAdd = MakeButton("toolbar_customise_add", "add");
  mRemove = MakeButton("toolbar_customise_remove", "remove");
  mEarlier = MakeButton("toolbar_customise_earlier", "earlier");
  mLater = MakeButton("toolbar_customise_later", "later");
  grid->addWidget(MakeHeading("toolbar_customise_available", mAvailable), 0, 0);
  grid->addWidget(MakeHeading("toolbar_customise_current", mCurrent), 0, 2);
  grid->addWidget(mAvailable, 1, 0);
  grid->addWidget(mCurrent, 1, 2);
  auto* buttons = new QVBoxLayout;
  buttons->addStretch();
  for (auto* button : {mAdd, mRemove, mEarlier, mLater}) buttons->addWidget(button);
  buttons->addStretch();
  grid->addLayout(buttons, 1, 1);
  mAvailable->setObjectName(QStringLiteral("available"));
  mCurrent->setObjectName(QStringLiteral("current"));
  for (auto* list : {mAvailable, mCurrent}) list->installEventFilter(this);
  connect(mAdd, &QPushButton::clicked, this, &ToolbarCustomiseDialog::Add);
  connect(mRemove, &QPushButton::clicked, this, &ToolbarCustomiseDialog::Remove);
  connect(mEarlier, &QPushButton::clicked, this, [this] { Move(-1); });
  connect(mLater, &QPushButton::clicked, this, [this] { Move(1); });
  connect(mAvailable, &QListWidget::itemDoubleClicked, this, &ToolbarCustomiseDialog::Add);
  connect(mCurrent, &QListWidget::currentRowChanged, this, &ToolbarCustomiseDialog::ShowCurrent);
  connect(mCurrent, &ToolbarItemList::dropped, this, [this](const ToolbarDrag& item, int place) {
    if (item.identifier.isEmpty()) return mToolbar.SetItems(toolbarDefaultItemIdentifiers());
    mToolbar.PutItem(item.identifier, place, item.from);
  });
  // Where it came from it goes back.
  connect(mAvailable, &ToolbarItemList::dropped, this,
          [this](const ToolbarDrag& item, int) { mToolbar.RemoveItem(item.from); });
  return lists;
}

QWidget* ToolbarCustomiseDialog::MakeDefaultSet() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new QLabel(LocalizedString("toolbar_customise_default_set"), row));
  auto* frame = new QFrame(row);
  frame->setFrameShape(QFrame::StyledPanel);
  frame->setCursor(Qt::OpenHandCursor);
  frame->setToolTip(LocalizedString("toolbar_customise_default_set_tip"));
  frame->setAccessibleName(LocalizedString("toolbar_customise_default_set"));
  frame->installEventFilter(this);
  mDefaultSet = frame;
  auto* pictures = new QHBoxLayout(frame);
  pictures->setContentsMargins(8, 4, 8, 4);
  pictures->setSpacing(12);
  for (const auto& identifier : toolbarDefaultItemIdentifiers()) {
    auto* picture = new QLabel(frame);
    picture->setPixmap(
        NamedImage(FindToolbarItem(identifier)->image).pixmap(kPictureSize, devicePixelRatioF()));
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    pictures->addWidget(picture);
  }
  auto* use = MakeButton("toolbar_customise_use_default", "default");
  connect(use, &QPushButton::clicked, this,
          [this] { mToolbar.SetItems(toolbarDefaultItemIdentifiers()); });
  layout->addWidget(frame);
  layout->addStretch();
  layout->addWidget(use);
  return row;
}

QWidget* ToolbarCustomiseDialog::MakeLastRow() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* modes = new QComboBox(row);
  modes->setObjectName(QStringLiteral("mode"));
  for (const auto& [mode, id] : {std::pair{MainToolbar::kIconAndLabel, "toolbar_mode_both"},
                                 std::pair{MainToolbar::kIconOnly, "toolbar_mode_icon"},
                                 std::pair{MainToolbar::kLabelOnly, "toolbar_mode_text"}})
    modes->addItem(LocalizedString(id), mode);
  modes->setCurrentIndex(std::max(0, modes->findData(mToolbar.displayMode())));
  connect(modes, &QComboBox::activated, this, [this, modes] {
    mToolbar.SetDisplayMode(static_cast<MainToolbar::DisplayMode>(modes->currentData().toInt()));
  });
  auto* box = new QDialogButtonBox(row);
  auto* done =
      box->addButton(LocalizedString("toolbar_customise_done"), QDialogButtonBox::AcceptRole);
  done->setAutoDefault(false);
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  layout->addWidget(MakeHeading("toolbar_customise_mode", modes));
  layout->addWidget(modes);
  layout->addStretch();
  layout->addWidget(box);
  return row;
}

void ToolbarCustomiseDialog::Add() {
  const auto identifier = mAvailable->CurrentIdentifier();
  if (identifier.isEmpty()) return;
  const int place = mCurrent->currentRow() < 0 ? mCurrent->count() : mCurrent->currentRow() + 1;
  mToolbar.PutItem(identifier, place);
  // Of an item that is there once, this is the one; of others, the one that was put there.
  const bool isRepeatable = FindToolbarItem(identifier)->IsRepeatable();
  const auto put = mToolbar.itemIdentifiers().indexOf(identifier, isRepeatable ? place : 0);
  mCurrent->setCurrentRow(static_cast<int>(put));
}

void ToolbarCustomiseDialog::Remove() {
  mToolbar.RemoveItem(mCurrent->currentRow());
}

void ToolbarCustomiseDialog::Move(int places) {
  const int from = mCurrent->currentRow();
  const int to = from + places;
  if (from < 0 || to < 0 || to >= mCurrent->count()) return;
  // Places count before the item has left its own.
  mToolbar.PutItem(mCurrent->CurrentIdentifier(), places > 0 ? to + 1 : to, from);
  mCurrent->setCurrentRow(to);
}

void ToolbarCustomiseDialog::ShowItems() {
  const int current = mCurrent->currentRow();
  mCurrent->SetIdentifiers(mToolbar.itemIdentifiers());
  mCurrent->setCurrentRow(std::min(current, mCurrent->count() - 1));
  ShowCurrent();
}

void ToolbarCustomiseDialog::ShowCurrent() {
  const int current = mCurrent->currentRow();
  mRemove->setEnabled(current >= 0);
  mEarlier->setEnabled(current > 0);
  mLater->setEnabled(current >= 0 && current < mCurrent->count() - 1);
}

bool ToolbarCustomiseDialog::eventFilter(QObject* object, QEvent* event) {
  if (object == mDefaultSet && event->type() == QEvent::MouseButtonPress) {
    auto* drag = new QDrag(this);
    drag->setMimeData(ToolbarDrag{}.ToMime().release());
    drag->setPixmap(mDefaultSet->grab());
    drag->exec(Qt::CopyAction);
    return true;
  }
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool alt = (key.modifiers() & Qt::AltModifier) != 0;
  if (object == mAvailable && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
    Add();
  } else if (object == mCurrent && key.key() == Qt::Key_Delete) {
    Remove();
  } else if (object == mCurrent && alt && key.key() == Qt::Key_Up) {
    Move(-1);
  } else if (object == mCurrent && alt && key.key() == Qt::Key_Down) {
    Move(1);
  } else {
    return QDialog::eventFilter(object, event);
  }
  return true;
}

}  // namespace lurkwell
