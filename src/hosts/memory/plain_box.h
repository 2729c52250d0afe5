// A plain text box of the host's own, such as a form has between its fields.
#ifndef HOSTS_MEMORY_PLAIN_BOX_H
#define HOSTS_MEMORY_PLAIN_BOX_H

#include <string>

#include "hosts/memory/edit_line.h"
#include "hosts/memory/environment.h"
#include "hosts/memory/focusable.h"

namespace gabarito::memory {

class PlainBox final : public Control, public Focusable {
 public:
  PlainBox(Environment& environment, std::string name);

  EditLine& Line() { return line_; }

  std::string_view Name() const override { return name_; }
  Control& Owner() override { return *this; }
  bool CanTakeFocus() const override { return true; }
  void GotFocus() override;
  bool KeyDown(std::int16_t vk, std::int16_t shift) override;
  void Character(char16_t character) override;

  void TabStops(std::vector<Focusable*>& stops) override { stops.push_back(this); }

 private:
  Environment& environment_;
  std::string name_;
  EditLine line_;
  std::int32_t anchor_ = 0;
};

}  // namespace gabarito::memory

#endif  // HOSTS_MEMORY_PLAIN_BOX_H
