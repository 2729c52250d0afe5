#include "hosts/memory/plain_box.h"

#include <limits>

#include "hosts/kit/own_entry.h"

namespace gabarito::memory {

void PlainBox::GotFocus() {
  line_.SelStart(0);
  line_.SelLength(std::numeric_limits<std::int32_t>::max());
}

void PlainBox::KeyDown(std::int16_t vk, std::int16_t shift) { kit::KeyInto(line_, anchor_, vk, shift); }

void PlainBox::Character(char16_t character) { kit::TypeInto(line_, character, 0, clipboard_); }

}  // namespace gabarito::memory
