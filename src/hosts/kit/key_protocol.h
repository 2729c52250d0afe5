// The way of a key, and of text without one, through a child of a field.
//
// Before each call a host with native widgets hands the model what the widget holds (InputModel::HandOver).
// After it, it brings the widgets up to date with what the models have noted (TakeChanges), gives the focus
// that FormModel::focus names, and delivers what waits in FormModel::keyboard. The child is kept by the
// host's own share of its parts (Control::Hold); it may have ended when a call returns.
#ifndef HOSTS_KIT_KEY_PROTOCOL_H
#define HOSTS_KIT_KEY_PROTOCOL_H

#include <string>
#include <string_view>

#include "hosts/kit/input_model.h"
#include "hosts/kit/keyboard.h"

namespace gabarito::kit {

// Every character of every host goes through here: raises KeyPress and gives what the entry has to act on (0
// nothing). With comfort on, a refused separator leads on to the next child instead of a beep.
char16_t RaiseKeyPress(InputModel& child, char16_t character);

// A key of the queue through the entry of the model itself, which holds the result.
void IntoModel(InputModel& child, const KeyEvent& event, std::u16string& clipboard);

// --- For native widgets
// -------------------------------------------------------------------------------------------

// What a widget does with a key that has gone down.
enum class KeyAction {
  kNative,  // what it does by itself, a character by way of CharacterArrives
  kDone,    // nothing: the model has acted, or the program has taken the key; its character still arrives
  kUsedUp,  // nothing, and no character arrives
};

// Raises KeyDown. A combo box chooses entries and opens its list, the masked box acts by its engine, and a
// key code that the program has changed is acted on by the model, all with `clipboard` where they need it.
KeyAction KeyGoesDown(InputModel& child, std::int16_t vk, std::int16_t shift, std::u16string& clipboard);

// What a widget does with a character.
enum class CharacterAction {
  kNothing,  // refused
  kInsert,   // lets its own insertion (or Backspace, copy, cut, paste) of that very character happen
  kReplace,  // inserts `character` of the verdict instead, by its own editing operation, so that one undo
             // takes it back
  kDone,     // the masked box: its engine has acted
};
struct CharacterVerdict {
  CharacterAction action;
  char16_t character;
};

// For a character that a key types, control characters included. A box that is full lets nothing be inserted.
CharacterVerdict CharacterArrives(InputModel& child, char16_t character);

// Text without a key of its own: input method, drop, menu paste, autofill, dictation. What has to be done to
// what the widget held at the hand-over, as one edit.
struct TextEdit {
  bool changes = false;
  std::int32_t start = 0;    // of what is replaced
  std::int32_t removed = 0;  // characters replaced
  std::u16string inserted;
  std::int32_t caret = 0;  // behind it all
};

// Each character passes KeyDown (with kVkPacket) and KeyPress at the text and caret that those before it have
// left; what is refused is dropped. Goes as far as the first line break. Control characters are left out.
// When a character moves the focus on, the rest is dropped, unless comfort types it on. The models hold the
// result already.
TextEdit TextArrives(InputModel& child, std::u16string_view text);

// The shortest edit that turns one text into another, the caret behind what it inserts: for a widget whose
// text somebody has set past all keys.
TextEdit Difference(std::u16string_view before, std::u16string_view after);

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_KEY_PROTOCOL_H
