#include "gabarito/keyinject/key_string.h"

#include <cstddef>

#include "gabarito/keyinject/key_names.h"
#include "gabarito/platform/number.h"

namespace gabarito {
namespace {

constexpr std::int16_t kNoKey = -1;

char16_t CharacterAt(const MSendInput& m, std::int32_t position) {
  return m.keyText[static_cast<std::size_t>(position) - 1];
}

// What VkKeyScanA says of a character. One that the code page does not hold has no key: asked for as its
// replacement, it would come out as a question mark.
std::int16_t KeyOf(const MSendInput& m, char16_t c) {
  const std::uint8_t ansi = Asc(c);
  if (ansi == u'?' && c != u'?') return kNoKey;
  return m.queue->VkKeyScanA(ansi);
}

bool WantsShift(std::int16_t key) { return (HighByte(key) & kShiftMask) != 0; }

// Layouts give AltGr as Ctrl and Alt together; one of the two alone counts as both.
bool WantsCtrlAlt(std::int16_t key) { return (HighByte(key) & (kCtrlMask | kAltMask)) != 0; }

bool IsLetter(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); }

// {a 0}, {a -70000} and {a x} are one key. Looked at before the conversion, which would refuse -70000 as it
// refuses 32768; {a 2.5} is two keys, half to even.
std::int16_t RepeatCount(std::u16string_view part) {
  const double count = Val(part);
  return count < 1 ? std::int16_t{1} : ToInt16(count);
}

}  // namespace

void ParseNextElement(MSendInput& m) {
  if (m.keyPos >= Len(m.keyText)) return;
  ++m.keyPos;
  const char16_t c = CharacterAt(m, m.keyPos);
  switch (c) {
    case u'+':
    case u'^':
    case u'%':
      return ParseModifier(m, c);
    case u'(':
      return ParseGroup(m);
    case u'{':
      return ParseBrace(m);
    default:
      return ParsePlainChar(m, c);
  }
}

// Calls itself once for each modifier in a row. The depth stays small for any text: each modifier has added
// its press before the next is read, so the bound ends "+++...+" after some 500.
void ParseModifier(MSendInput& m, char16_t c) {
  const std::int16_t vk = c == u'+' ? kVkShift : c == u'^' ? kVkControl : kVkMenu;
  const int bit = c == u'+' ? kShiftMask : c == u'^' ? kCtrlMask : kAltMask;
  AddModifierEvent(m, vk, true);
  m.modifierBits = static_cast<std::uint8_t>(m.modifierBits | bit);
  ParseNextElement(m);
  AddModifierEvent(m, vk, false);
  m.modifierBits = static_cast<std::uint8_t>(m.modifierBits & ~bit);
}

void ParseGroup(MSendInput& m) {
  // A search that found nothing is not repeated: "((((" would take the square of its length.
  if (m.groupEndMissing) return;
  const std::int32_t end = InStr(m.keyPos, m.keyText, u")");
  m.groupEndMissing = end == 0;
  if (end == 0 || end == m.keyPos + 1) return;
  for (std::int32_t position = m.keyPos + 1; position < end; ++position) {
    ParsePlainChar(m, CharacterAt(m, position));
  }
  m.keyPos = end;
}

void ParseBrace(MSendInput& m) {
  if (m.braceEndMissing) return;
  // Not from the next character: {}} names the closing brace.
  const std::int32_t end = InStr(m.keyPos + 2, m.keyText, u"}");
  m.braceEndMissing = end == 0;
  if (end == 0) return;
  const auto start = static_cast<std::size_t>(m.keyPos);
  const std::u16string_view token = m.keyText.substr(start, static_cast<std::size_t>(end) - 1 - start);

  // The third part holds all that does not matter.
  SplitText(token, u" ", 3, Comparison::kOrdinal, m.tokenParts);
  const std::int16_t count = m.tokenParts.size() > 1 ? RepeatCount(m.tokenParts[1]) : std::int16_t{1};
  const std::u16string_view name = m.tokenParts[0];
  if (const std::int16_t vk = KeyNameToVk(name); vk != 0) {
    const bool extended = IsExtendedKeyName(name);
    for (std::int16_t i = 0; i < count; ++i) AddKeyPress(m, vk, false, extended, false);
  } else {
    const char16_t c = token.front();
    const std::int16_t key = KeyOf(m, c);
    for (std::int16_t i = 0; i < count; ++i) {
      if (key == kNoKey) {
        AddUnicodeChar(m, static_cast<std::int16_t>(c));
      } else {
        AddKeyPress(m, LowByte(key), WantsShift(key), false, WantsCtrlAlt(key));
      }
    }
  }
  m.keyPos = end;
}

void ParsePlainChar(MSendInput& m, char16_t c) {
  // Signed: characters from U+8000 up are negative.
  const auto u = static_cast<std::int16_t>(c);
  if (u < 0 || u >= 256) return AddUnicodeChar(m, u);
  const std::int16_t key = c == u'~' ? kVkReturn : KeyOf(m, c);
  if (key == kNoKey) return AddUnicodeChar(m, u);
  // The sender's Caps Lock acts on the keys sent too: with it on, the key of "a" alone would type "A".
  const bool turnedOver = IsLetter(c) && CapsLockOn(*m.queue);
  AddKeyPress(m, LowByte(key), WantsShift(key) != turnedOver, false, WantsCtrlAlt(key));
}

void SplitText(std::u16string_view texto, std::u16string_view delimitador, std::int32_t limite,
               Comparison comparacao, std::vector<std::u16string_view>& partes) {
  partes.clear();
  if (limite == 0) return;
  std::int32_t start = 1;
  for (std::int32_t number = 1; number != limite && !delimitador.empty(); ++number) {
    const std::int32_t found = InStr(start, texto, delimitador, comparacao);
    if (found == 0) break;
    partes.push_back(
        texto.substr(static_cast<std::size_t>(start) - 1, static_cast<std::size_t>(found - start)));
    start = found + Len(delimitador);
  }
  partes.push_back(texto.substr(static_cast<std::size_t>(start) - 1));
}

bool CapsLockOn(const InputQueue& queue) { return (queue.GetKeyState(kVkCapital) & 1) != 0; }

}  // namespace gabarito
