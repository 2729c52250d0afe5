// The list of a field: a QComboBox whose entries, choice and edit part are the field's.
#ifndef HOSTS_QT_LIST_BOX_H
#define HOSTS_QT_LIST_BOX_H

#include <QtCore/QAbstractListModel>
#include <QtWidgets/QComboBox>
#include <functional>
#include <memory>

#include "hosts/kit/combo_list.h"
#include "hosts/qt/line_box.h"

namespace gabarito::qt {

// The entries of a list, read where they are: fields with the same entries share one of these, and nothing is
// copied but what is on show.
class EntriesModel final : public QAbstractListModel {
 public:
  explicit EntriesModel(const kit::ComboList& entries) : entries_(entries) {}

  // The one for `entries`: that of another field with the same entries, or a new one.
  static std::shared_ptr<EntriesModel> For(const kit::ComboList& entries);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  kit::ComboList entries_;
};

class ListBoxOwner {
 public:
  virtual ~ListBoxOwner() = default;
  virtual void Picked(int index) = 0;   // with the mouse
  virtual void Stepped(bool down) = 0;  // with the wheel
  virtual void DroppedDown(bool open) = 0;
  virtual void MousePressed() = 0;
};

class ListBox final : public QComboBox {
  Q_OBJECT

 public:
  ListBox(BoxOwner& box_owner, ListBoxOwner& owner, int index, QWidget* parent);

  LineBox& Line() { return *line_; }
  void Orphan();

  void ShowEntries(std::shared_ptr<EntriesModel> entries);
  void ShowSelected(int index);
  void ShowList(bool open);

  void showPopup() override;
  void hidePopup() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void KeepSelection(const std::function<void()>& action);

  ListBoxOwner* owner_;
  LineBox* line_;
  std::shared_ptr<EntriesModel> entries_;
  bool showing_ = false;  // the field itself opens or closes the list
};

}  // namespace gabarito::qt

#endif  // HOSTS_QT_LIST_BOX_H
