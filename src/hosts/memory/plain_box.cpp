#include "hosts/memory/plain_box.h"

#include <limits>
#include <utility>

#include "hosts/memory/text_entry.h"

namespace gabarito::memory {

PlainBox::PlainBox(Environment& environment, std::string name)
    : environment_(environment), name_(std::move(name)) {}

void PlainBox::GotFocus() {
  line_.SelStart(0);
  line_.SelLength(std::numeric_limits<std::int32_t>::max());
}

bool PlainBox::KeyDown(std::int16_t vk, std::int16_t shift) {
  KeyInto(line_, anchor_, vk, shift);
  return true;
}

void PlainBox::Character(char16_t character) { TypeInto(line_, character, 0, environment_.clipboard); }

}  // namespace gabarito::memory
