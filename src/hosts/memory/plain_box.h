// A plain text box of the host's own, such as a form has between its fields.
#ifndef HOSTS_MEMORY_PLAIN_BOX_H
#define HOSTS_MEMORY_PLAIN_BOX_H

#include "hosts/kit/text_line.h"
#include "hosts/memory/own_control.h"

namespace gabarito::memory {

class PlainBox final : public OwnControl {
 public:
  PlainBox(std::string name, std::u16string& clipboard)
      : OwnControl(std::move(name)), clipboard_(clipboard) {}

  kit::TextLine& Line() { return line_; }

  // Selects the whole text.
  void GotFocus() override;
  void KeyDown(std::int16_t vk, std::int16_t shift) override;
  void Character(char16_t character) override;

 private:
  std::u16string& clipboard_;
  kit::TextLine line_;
  std::int32_t anchor_ = 0;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_PLAIN_BOX_H
