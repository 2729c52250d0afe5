// What has changed in a child since a host last looked: the notes that let it bring its widget up to date in
// one pass after an event.
#ifndef HOSTS_KIT_CHANGES_H
#define HOSTS_KIT_CHANGES_H

#include <cstdint>

namespace gabarito::kit {

enum class Change : std::uint16_t {
  kGeometry = 1 << 0,
  kVisible = 1 << 1,
  kEnabled = 1 << 2,
  kColor = 1 << 3,
  kFont = 1 << 4,
  kText = 1 << 5,       // the content, or the caption of a label
  kSelection = 1 << 6,  // also after each kText
  kLimit = 1 << 7,      // MaxLength
  kLook = 1 << 8,       // Appearance, the mask
  kList = 1 << 9,       // entries
  kSelected = 1 << 10,  // ListIndex
  kDroppedDown = 1 << 11,
  kToolTip = 1 << 12,
};

class Changes {
 public:
  constexpr void Note(Change change) { bits_ |= static_cast<std::uint16_t>(change); }
  constexpr bool Has(Change change) const { return (bits_ & static_cast<std::uint16_t>(change)) != 0; }
  constexpr bool Any() const { return bits_ != 0; }
  // The changes of Change, by their bits.
  constexpr std::uint16_t Bits() const { return bits_; }
  // Everything: what a widget that is new to its model has to take over.
  static constexpr Changes All() {
    Changes all;
    all.bits_ = 0xFFFF;
    return all;
  }

 private:
  std::uint16_t bits_ = 0;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_CHANGES_H
