// What a person has entered, kept over a layout that only the host has asked for.
#ifndef HOSTS_KIT_KEEP_CONTENT_H
#define HOSTS_KIT_KEEP_CONTENT_H

#include <memory>
#include <string>

#include "hosts/kit/field_model.h"

namespace gabarito::kit {

// A layout empties the boxes of a date and fills lists anew. Where windows and pages change their size at any
// moment, and fonts and themes too, nobody would forgive that: a host that resizes a field by itself holds
// one of these meanwhile. The texts, the selections and the chosen entry are put back as they were when it
// goes.
class KeepContent {
 public:
  explicit KeepContent(FieldModel& field);
  ~KeepContent();
  KeepContent(const KeepContent&) = delete;
  KeepContent& operator=(const KeepContent&) = delete;

 private:
  struct Kept {
    std::u16string text;
    std::int32_t start = 0, length = 0;
  };

  std::shared_ptr<FieldParts> parts_;
  Kept kept_[8];
  std::int16_t selected_ = -1;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_KEEP_CONTENT_H
