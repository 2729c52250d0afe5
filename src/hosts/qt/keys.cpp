#include "hosts/qt/keys.h"

#include "gabarito/platform/text.h"

namespace gabarito::qt {
namespace {

struct NamedKey {
  int key;
  std::int16_t vk;
};

// Keys that have a name and no character of their own, and the few whose character does not tell them.
constexpr NamedKey kNamedKeys[] = {
    {Qt::Key_Backspace, kVkBack},
    {Qt::Key_Tab, kVkTab},
    {Qt::Key_Backtab, kVkTab},
    {Qt::Key_Clear, 12},
    {Qt::Key_Return, kVkReturn},
    {Qt::Key_Enter, kVkReturn},
    {Qt::Key_Shift, kVkShift},
    {Qt::Key_Control, kVkControl},
    {Qt::Key_Alt, kVkMenu},
    {Qt::Key_AltGr, kVkMenu},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, kVkCapital},
    {Qt::Key_Escape, kVkEscape},
    {Qt::Key_Space, kVkSpace},
    {Qt::Key_PageUp, kVkPageUp},
    {Qt::Key_End, kVkEnd},
    {Qt::Key_PageDown, kVkPageDown},
    {Qt::Key_Home, kVkHome},
    {Qt::Key_Left, kVkLeft},
    {Qt::Key_Up, kVkUp},
    {Qt::Key_Right, kVkRight},
    {Qt::Key_Down, kVkDown},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, kVkInsert},
    {Qt::Key_Delete, kVkDelete},
    {Qt::Key_Help, 47},
    {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
};

constexpr std::int16_t kVkF24 = 135;

// The numeric keypad with Num Lock on.
constexpr NamedKey kKeypadSigns[] = {{Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
                                     {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111}};
constexpr std::int16_t kVkNumpad0 = 96, kVkNumpad9 = 105;

std::int16_t Named(int key) {
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<std::int16_t>(kVkF1 + (key - Qt::Key_F1));
  for (const NamedKey& named : kNamedKeys) {
    if (named.key == key) return named.vk;
  }
  return 0;
}

std::int16_t OnKeypad(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return static_cast<std::int16_t>(kVkNumpad0 + (key - Qt::Key_0));
  for (const NamedKey& sign : kKeypadSigns) {
    if (sign.key == key) return sign.vk;
  }
  return 0;
}

std::int16_t MaskOf(Qt::KeyboardModifiers modifiers) {
  std::int16_t mask = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) mask |= kShiftMask;
  if (modifiers.testFlag(Qt::ControlModifier)) mask |= kCtrlMask;
  if (modifiers.testFlag(Qt::AltModifier)) mask |= kAltMask;
  return mask;
}

// What the event types. Systems differ in what they tell of Ctrl with a letter, of Alt and of Delete.
QString TypedBy(const QKeyEvent& event, std::int16_t vk, std::int16_t shift) {
  if (vk == kVkDelete || shift == kAltMask || shift == (kAltMask | kShiftMask)) return {};
  const bool ctrl = (shift & kCtrlMask) != 0 && (shift & kAltMask) == 0;
  const int key = event.key();
  if (ctrl && key >= Qt::Key_A && key <= Qt::Key_Z) return QString(QChar(key - Qt::Key_A + 1));
  if (vk == kVkReturn && event.text().isEmpty()) return QStringLiteral("\r");
  return event.text();
}

std::int16_t KeyOfCharacter(QChar character, const kit::KeyboardLayout& layout) {
  const auto stroke = layout.StrokeFor(character.unicode());
  return stroke ? stroke->vk : kVkPacket;
}

int KeyNamed(std::int16_t vk) {
  if (vk >= kVkF1 && vk <= kVkF24) return Qt::Key_F1 + (vk - kVkF1);
  for (const NamedKey& named : kNamedKeys) {
    if (named.vk == vk) return named.key;
  }
  return 0;
}

int KeypadKeyOf(std::int16_t vk) {
  if (vk >= kVkNumpad0 && vk <= kVkNumpad9) return Qt::Key_0 + (vk - kVkNumpad0);
  for (const NamedKey& sign : kKeypadSigns) {
    if (sign.vk == vk) return sign.key;
  }
  return 0;
}

}  // namespace

Stroke StrokeOf(const QKeyEvent& event, const kit::KeyboardLayout& layout) {
  Stroke stroke;
  stroke.vk = Named(event.key());
  stroke.shift = MaskOf(event.modifiers());
  stroke.text = TypedBy(event, stroke.vk, stroke.shift);
  if (stroke.vk == 0 && event.modifiers().testFlag(Qt::KeypadModifier)) stroke.vk = OnKeypad(event.key());
  if (stroke.vk != 0) return stroke;
  if (stroke.text.size() == 1) {
    stroke.vk = KeyOfCharacter(stroke.text.front(), layout);
  } else if (!stroke.text.isEmpty()) {
    stroke.vk = kVkPacket;
  } else if (event.key() > 0 && event.key() <= 0xFF) {
    stroke.vk = KeyOfCharacter(QChar(event.key()).toLower(), layout);  // Alt with a letter types nothing
  }
  return stroke;
}

std::unique_ptr<QKeyEvent> EventOf(const kit::KeyEvent& event, const kit::KeyboardLayout& layout,
                                   bool capsLock) {
  const auto type = event.up ? QEvent::KeyRelease : QEvent::KeyPress;
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, (event.shift & kShiftMask) != 0);
  modifiers.setFlag(Qt::ControlModifier, (event.shift & kCtrlMask) != 0);
  modifiers.setFlag(Qt::AltModifier, (event.shift & kAltMask) != 0);
  // The event of a modifier itself carries what was held before it; what is held with it Qt works out.
  if (event.vk == kVkShift) modifiers ^= Qt::ShiftModifier;
  if (event.vk == kVkControl) modifiers ^= Qt::ControlModifier;
  if (event.vk == kVkMenu) modifiers ^= Qt::AltModifier;
  const char16_t character =
      event.unicode != 0 ? event.unicode : layout.CharacterOf(event.vk, event.shift, capsLock);
  const QString text = character == 0 ? QString() : QString(QChar(character));
  int key = KeyNamed(event.vk);
  if (key == Qt::Key_Tab && (event.shift & kShiftMask) != 0) key = Qt::Key_Backtab;
  if (key == 0 && (key = KeypadKeyOf(event.vk)) != 0) modifiers |= Qt::KeypadModifier;
  if (key == 0 && event.unicode == 0) {
    // Qt names a key by what it types without modifiers, letters in capitals.
    const char16_t plain = layout.CharacterOf(event.vk, 0, false);
    key = plain == 0 ? int{Qt::Key_unknown} : QChar(plain).toUpper().unicode();
  }
  return std::make_unique<QKeyEvent>(type, key, modifiers, text);
}

}  // namespace gabarito::qt
