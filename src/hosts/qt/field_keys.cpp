// What a person does in a box: keys, text without keys, the list, the mouse.
#include <QtCore/QCoreApplication>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>

#include "hosts/kit/comfort.h"
#include "hosts/kit/key_protocol.h"
#include "hosts/kit/own_entry.h"
#include "hosts/qt/field_bridge.h"
#include "hosts/qt/focus_watch.h"
#include "hosts/qt/keys.h"

namespace gabarito::qt {
namespace {

std::u16string ClipboardText() { return QGuiApplication::clipboard()->text().toStdU16String(); }

// Keys that are commands of the widget and type nothing that a field would know.
bool IsCommand(const QKeyEvent& event) {
  for (const auto command : {QKeySequence::Undo, QKeySequence::Redo, QKeySequence::SelectAll,
                             QKeySequence::DeleteStartOfWord, QKeySequence::DeleteEndOfWord}) {
    if (event.matches(command)) return true;
  }
  return false;
}

}  // namespace

void FieldBridge::TakeOver(LineBox& box) {
  const QString text = box.text();
  Child(box.Index())
      .HandOver(ViewOf(text), box.SelStart(), static_cast<std::int32_t>(box.selectedText().size()));
}

// A key that was typed before the keys that the field has sent were delivered: those come first, and it goes
// to whatever has the focus then.
bool FieldBridge::TypedAhead(LineBox& box, QKeyEvent& event) {
  if (!form_->keyboard.Pending() || form_->running > 0) return false;
  const QPointer<QWidget> window(widget_.window());
  const auto form = form_;
  RunQueue();
  if (window == nullptr) return true;
  QWidget* const now = window->focusWidget();
  if (form->Bridge() != nullptr && (now == nullptr || now == BoxOf(box.Index()))) return false;
  QKeyEvent again(event.type(), event.key(), event.modifiers(), event.text(), event.isAutoRepeat());
  if (now != nullptr) QCoreApplication::sendEvent(now, &again);
  return true;
}

void FieldBridge::KeyPressed(LineBox& box, QKeyEvent& event) {
  const auto form = form_;
  event.accept();
  FocusWatch::Instance().Tell();
  if (form->Bridge() == nullptr || !model_->Exists() || TypedAhead(box, event)) return;
  if (form->Bridge() == nullptr) return;
  form->HideNote();
  InTurn([&] { TypeKey(box, event); });
}

void FieldBridge::TypeKey(LineBox& box, QKeyEvent& event) {
  const auto form = form_;
  kit::InputModel& child = Child(box.Index());
  const Stroke stroke = StrokeOf(event, form->keyboard.Layout());
  if (stroke.IsTab()) return event.ignore();  // nobody else takes the focus

  const bool needs_clipboard = (stroke.shift & kCtrlMask) != 0;
  std::u16string clipboard = needs_clipboard ? ClipboardText() : std::u16string();
  const std::u16string clipped = clipboard;
  const kit::KeyAction action = kit::KeyGoesDown(child, stroke.vk, stroke.shift, clipboard);
  if (clipboard != clipped) QGuiApplication::clipboard()->setText(ToQString(clipboard));
  if (form->Bridge() == nullptr || !Apply()) return;
  if (action == kit::KeyAction::kUsedUp) return;
  if (action == kit::KeyAction::kNative) {
    const bool list = child.Kind() == kit::InputKind::kCombo;
    if (const char16_t key = list ? kit::ClipboardKey(stroke.vk, stroke.shift) : u'\0') {
      return ActOnControl(box, event, key);
    }
    // QLineEdit would insert the letter of Alt with a letter; it belongs to whoever has it for a mnemonic.
    if (stroke.text.isEmpty() && !event.text().isEmpty() && stroke.vk != kVkDelete) return event.ignore();
    if (stroke.text.isEmpty() || (form->comfort && IsCommand(event))) {
      box.ActNatively(event);
      return box.TellOwner();
    }
  }
  if (stroke.text.size() == 1) return TypeCharacter(box, event, stroke.text.front().unicode());
  if (!stroke.text.isEmpty()) TextComes(box, stroke.text);
}

void FieldBridge::TypeCharacter(LineBox& box, QKeyEvent& event, char16_t character) {
  const auto form = form_;
  kit::InputModel& child = Child(box.Index());
  // A dialog around the field waits for Enter and Escape that the field has no use for, and nobody needs to
  // hear that.
  const bool for_dialog = form->comfort && (character == u'\r' || character == 27);
  if (for_dialog) child.Parts().dialogs.HoldBeeps();
  kit::CharacterVerdict verdict{kit::CharacterAction::kNothing, 0};
  try {
    verdict = kit::CharacterArrives(child, character);
  } catch (...) {
    if (for_dialog) child.Parts().dialogs.DropBeeps();
    throw;
  }
  if (for_dialog) child.Parts().dialogs.DropBeeps();
  if (form->Bridge() == nullptr || !Apply()) return;
  if (for_dialog && !form->keyboard.Pending()) event.ignore();
  switch (verdict.action) {
    case kit::CharacterAction::kNothing:
    case kit::CharacterAction::kDone:
      return;
    case kit::CharacterAction::kReplace:
      if (verdict.character < u' ') return ActOnControl(box, event, verdict.character);
      box.insert(QString(QChar(verdict.character)));
      break;
    case kit::CharacterAction::kInsert:
      if (character < u' ') return ActOnControl(box, event, character);
      box.insert(QString(QChar(character)));
      break;
  }
  box.TellOwner();
}

// A character of the clipboard or of correction: the widget's own operation. Others do nothing.
void FieldBridge::ActOnControl(LineBox& box, QKeyEvent& event, char16_t character) {
  switch (character) {
    case kit::kCopy:
      box.copy();
      return;
    case kit::kCut:
      box.QLineEdit::cut();
      break;
    case kit::kPaste:
      Paste(box);
      break;
    case kit::kBackspace:
      if (event.key() == Qt::Key_Backspace) {
        box.ActNatively(event);
      } else {
        box.backspace();
      }
      break;
    default:
      return;
  }
  box.TellOwner();
}

// What there is no room for is cut.
void FieldBridge::Paste(LineBox& box) {
  kit::InputModel& child = Child(box.Index());
  const std::u16string text = ClipboardText();
  if (kit::TypeThrough(child, text)) return;
  std::u16string_view line = kit::FirstLine(text);
  if (child.Limit() > 0) {
    const auto kept = box.text().size() - box.selectedText().size();
    line = line.substr(0, static_cast<std::size_t>(std::max<qsizetype>(child.Limit() - kept, 0)));
  }
  if (!line.empty()) box.insert(ToQString(line));
}

void FieldBridge::KeyReleased(LineBox& box, QKeyEvent& event) {
  const auto form = form_;
  FocusWatch::Instance().Tell();
  if (form->Bridge() == nullptr || !model_->Exists() || event.isAutoRepeat()) return;
  const Stroke stroke = StrokeOf(event, form->keyboard.Layout());
  if (stroke.IsTab()) return;
  InTurn([&] {
    kit::InputModel& child = Child(box.Index());
    if (child.CanTakeFocus()) child.KeyUp(stroke.vk, stroke.shift);
  });
}

void FieldBridge::TextComes(LineBox& box, const QString& text) {
  const auto form = form_;
  FocusWatch::Instance().Tell();
  if (form->Bridge() == nullptr || !model_->Exists()) return;
  const QPointer<LineBox> line(&box);
  InTurn([&] {
    kit::InputModel& child = Child(box.Index());
    if (text.isEmpty()) return TakeSelectionAway(box);
    const kit::TextEdit edit = kit::TextArrives(child, ViewOf(text));
    if (!edit.changes || line == nullptr || form->Bridge() == nullptr) return;
    if (child.Kind() == kit::InputKind::kMasked) return;  // the pass shows what its engine has made of it
    line->ReplaceRange(edit.start, edit.removed, ToQString(edit.inserted), edit.caret);
  });
}

void FieldBridge::TakeSelectionAway(LineBox& box) {
  kit::InputModel& child = Child(box.Index());
  if (child.AsChild().SelLength() == 0) return;
  if (child.Kind() == kit::InputKind::kMasked) {
    std::u16string clipboard;
    kit::ActOnKeyDown(child, kVkDelete, 0, clipboard);
    return;
  }
  box.del();
  box.TellOwner();
}

// Assistive technology sets texts past all keys: the former one is put back, and what is new in it comes like
// any other text.
void FieldBridge::TextSet(LineBox& box) {
  if (passing_ || form_->depth > 0 || !model_->Exists()) return;
  const QString now = box.text(), former = ToQString(Child(box.Index()).AsChild().Text());
  const kit::TextEdit edit = kit::Difference(ViewOf(former), ViewOf(now));
  if (!edit.changes) return;
  const bool picked = box.Index() == kCombo && now == list_->itemText(list_->currentIndex());
  if (picked) return;
  if (edit.inserted.empty() && Child(box.Index()).Kind() != kit::InputKind::kMasked) {
    InTurn([] {});  // nothing comes, something is gone
    return;
  }

  const auto form = form_;
  ++form->running;  // the box is in the middle of its own change: it has to outlive what comes of this
  {
    const QSignalBlocker echo(&box);
    box.setText(former);
  }
  box.setFocus(Qt::OtherFocusReason);
  FocusWatch::Instance().Tell();
  if (form->Bridge() != nullptr) {
    box.Select(edit.start, edit.removed);
    TextComes(box, ToQString(edit.inserted));
  }
  --form->running;
}

// The masked box is changed by its engine alone: what Qt has done to it by undo or a menu is taken back.
void FieldBridge::Edited(LineBox& box) {
  if (passing_ || form_->depth > 0 || !model_->Exists()) return;
  kit::InputModel& child = Child(box.Index());
  if (child.Kind() == kit::InputKind::kMasked) {
    box.setText(ToQString(child.AsChild().Text()));
    return;
  }
  InTurn([] {});
}

void FieldBridge::MousePressed(LineBox&) { FocusWatch::Instance().Tell(); }

// --- The list
// -----------------------------------------------------------------------------------------------------

void FieldBridge::Picked(int index) {
  if (passing_ || !model_->Exists()) return;
  InTurn([&] { model_->Parts().Combo1.Pick(static_cast<std::int16_t>(index)); });
}

void FieldBridge::Stepped(bool down) {
  if (!model_->Exists()) return;
  InTurn([&] { model_->Parts().Combo1.ChooseByKey(down ? kVkDown : kVkUp, 0); });
}

void FieldBridge::DroppedDown(bool open) {
  if (passing_ || !model_->Exists()) return;
  model_->Parts().Combo1.DropDown(open);
}

void FieldBridge::MousePressed() { FocusWatch::Instance().Tell(); }

}  // namespace gabarito::qt
