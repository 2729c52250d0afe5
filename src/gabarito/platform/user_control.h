// The control surface, the host's ambient properties and its property bag.
//
// Events of the surface that the host raises on `FieldEvents`: Initialize, ReadProperties, WriteProperties,
// Show and Terminate in the life of the object; Resize; GotFocus when the surface itself takes the focus;
// ExitFocus each time the focus passes from the surface or a child to something outside, after the child's
// own LostFocus and with the focus already gone, and never when it moves between children; AmbientChanged
// with the name of the ambient property.
#ifndef GABARITO_PLATFORM_USER_CONTROL_H
#define GABARITO_PLATFORM_USER_CONTROL_H

#include <string_view>

#include "gabarito/platform/color.h"
#include "gabarito/platform/std_font.h"
#include "gabarito/platform/variant.h"

namespace gabarito {

class AmbientProperties {
 public:
  virtual ~AmbientProperties() = default;
  virtual Color BackColor() const = 0;
  virtual FontRef Font() const = 0;
};

class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  // The stored value of `key`, or `absent` if nothing is stored for it.
  virtual Variant ReadProperty(std::u16string_view key, const Variant& absent) const = 0;
  // Stores `value`, unless it equals `absent` (SameValue): then nothing is stored for the key.
  virtual void WriteProperty(std::u16string_view key, const Variant& value, const Variant& absent) = 0;
};

class UserControl {
 public:
  virtual ~UserControl() = default;

  virtual float Width() const = 0;
  virtual float Height() const = 0;
  // A new value raises Resize before the setter returns, also while the surface is hidden; the present value
  // raises nothing. A negative value raises 380.
  virtual void Height(float height) = 0;

  virtual void BackColor(Color color) = 0;

  // The font object that surface and children share. Setting it raises no event; a null one raises 91.
  virtual FontRef Font() const = 0;
  virtual void Font(const FontRef& font) = 0;

  // Raises 91 while the host has no ambient object to give.
  virtual const AmbientProperties& Ambient() const = 0;

  // Tells the host that the state to be stored is out of date.
  virtual void PropertyChanged(std::u16string_view name) = 0;

  // Repaints the surface.
  virtual void Refresh() = 0;

  // A public operation that can hide or disable children has come to its end. If the child with the focus
  // cannot take it any more, the host gives it to the surface and raises GotFocus; no ExitFocus. A toolkit
  // that moves the focus off hidden widgets by itself, by the same rule, leaves this empty.
  virtual void Settle() = 0;
};

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_USER_CONTROL_H
