// Keys between Qt and the field: a QKeyEvent as virtual key, shift mask and character, and back.
#ifndef HOSTS_QT_KEYS_H
#define HOSTS_QT_KEYS_H

#include <QtCore/QString>
#include <QtGui/QKeyEvent>
#include <cstdint>
#include <memory>

#include "hosts/kit/keyboard.h"

namespace gabarito::qt {

struct Stroke {
  std::int16_t vk = 0;     // 0: a key that the field has no number for and that types nothing
  std::int16_t shift = 0;  // 1 Shift, 2 Ctrl, 4 Alt
  QString text;            // what the key types: empty, one unit, or more from a composition

  bool IsTab() const { return vk == kVkTab && (shift & (kCtrlMask | kAltMask)) == 0; }
};

// The virtual key comes from the key's name or, for one that types a character, from `layout`; what the
// windowing system numbers its keys by plays no part. A character that is on no key of the layout comes as
// kVkPacket.
Stroke StrokeOf(const QKeyEvent& event, const kit::KeyboardLayout& layout);

// The event that a real key would have made.
std::unique_ptr<QKeyEvent> EventOf(const kit::KeyEvent& event, const kit::KeyboardLayout& layout,
                                   bool capsLock);

}  // namespace gabarito::qt

#endif  // HOSTS_QT_KEYS_H
