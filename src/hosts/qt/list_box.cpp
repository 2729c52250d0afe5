#include "hosts/qt/list_box.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QListView>

#include "hosts/qt/strings.h"

namespace gabarito::qt {

// --- EntriesModel
// -------------------------------------------------------------------------------------------------

std::shared_ptr<EntriesModel> EntriesModel::For(const kit::ComboList& entries) {
  static QHash<const void*, std::weak_ptr<EntriesModel>> known;
  if (entries.Token() == nullptr) return std::make_shared<EntriesModel>(entries);
  if (const auto same = known.value(entries.Token()).lock()) {
    if (same->entries_.Count() == entries.Count()) return same;
  }
  known.removeIf([](auto entry) { return entry.value().expired(); });
  auto added = std::make_shared<EntriesModel>(entries);
  known.insert(entries.Token(), added);
  return added;
}

int EntriesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.Count());
}

QVariant EntriesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  return ToQString(entries_.At(static_cast<std::size_t>(index.row())));
}

// --- ListBox
// ------------------------------------------------------------------------------------------------------

ListBox::ListBox(BoxOwner& box_owner, ListBoxOwner& owner, int index, QWidget* parent)
    : QComboBox(parent), owner_(&owner), line_(new LineBox(box_owner, index, this)) {
  setEditable(true);
  setLineEdit(line_);
  setCompleter(nullptr);
  setInsertPolicy(NoInsert);
  // Asking every entry for its width would take longer than anything else here.
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  // Choosing an entry by its text, on Enter and on leaving, is the field's.
  QObject::disconnect(line_, nullptr, this, nullptr);
  connect(this, &QComboBox::activated, this, [this](int picked) {
    if (owner_ != nullptr) owner_->Picked(picked);
  });
}

void ListBox::Orphan() {
  owner_ = nullptr;
  line_->Orphan();
}

void ListBox::ShowEntries(std::shared_ptr<EntriesModel> entries) {
  if (entries == entries_) return;
  setModel(entries.get());
  entries_ = std::move(entries);
}

void ListBox::ShowSelected(int index) {
  if (currentIndex() != index) setCurrentIndex(index);
  if (owner_ != nullptr && view()->isVisible()) view()->setCurrentIndex(model()->index(index, 0));
}

void ListBox::ShowList(bool open) {
  showing_ = true;
  if (open && isVisible() && count() > 0) {
    showPopup();
  } else {
    hidePopup();
  }
  showing_ = false;
}

// The list takes Qt's focus and gives it back, and the edit part would lose its selection over it.
void ListBox::KeepSelection(const std::function<void()>& action) {
  const int start = line_->SelStart();
  const auto length = static_cast<int>(line_->selectedText().size());
  action();
  if (length > 0) {
    line_->setSelection(start, length);
  } else {
    line_->setCursorPosition(start);
  }
}

void ListBox::showPopup() {
  if (auto* const list = qobject_cast<QListView*>(view()); list != nullptr && !list->uniformItemSizes()) {
    list->setUniformItemSizes(true);
    list->installEventFilter(this);
    list->window()->installEventFilter(this);
  }
  KeepSelection([this] { QComboBox::showPopup(); });
  if (!showing_ && owner_ != nullptr) owner_->DroppedDown(true);
}

void ListBox::hidePopup() {
  KeepSelection([this] { QComboBox::hidePopup(); });
  if (!showing_ && owner_ != nullptr) owner_->DroppedDown(false);
}

// The open list takes the keys; they are the edit part's all the same, so that typing goes on in it.
bool ListBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide && !showing_ && owner_ != nullptr && watched != view()) {
    owner_->DroppedDown(false);
  }
  // Qt's own list would choose and close in the question that comes before a key.
  if (event->type() == QEvent::ShortcutOverride && watched == view()) {
    event->accept();
    return true;
  }
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  if (!key || watched != view()) return QComboBox::eventFilter(watched, event);
  const int code = static_cast<QKeyEvent*>(event)->key();
  if (event->type() == QEvent::KeyPress && (code == Qt::Key_Tab || code == Qt::Key_Backtab)) hidePopup();
  QCoreApplication::sendEvent(this, event);
  event->accept();
  return true;
}

void ListBox::keyPressEvent(QKeyEvent* event) { line_->TakeKey(*event); }

void ListBox::keyReleaseEvent(QKeyEvent* event) { line_->TakeKey(*event); }

void ListBox::mousePressEvent(QMouseEvent* event) {
  const QPointer<ListBox> self(this);
  if (line_ != nullptr && owner_ != nullptr) owner_->MousePressed();
  if (self != nullptr && (hasFocus() || view()->isVisible())) QComboBox::mousePressEvent(event);
}

void ListBox::wheelEvent(QWheelEvent* event) {
  if (!hasFocus() || event->angleDelta().y() == 0) {
    event->ignore();
    return;
  }
  if (owner_ != nullptr) owner_->Stepped(event->angleDelta().y() < 0);
  event->accept();
}

}  // namespace gabarito::qt
