// The life of the object and what is stored of it between two lives.
#ifndef GABARITO_CONTROL_PERSISTENCIA_H
#define GABARITO_CONTROL_PERSISTENCIA_H

#include "gabarito/platform/user_control.h"
#include "gabarito/state/campo.h"

namespace gabarito {

// All but Terminate run in skip-on-error mode.

// The defaults of a new field. No layout runs; PropertyChanged "Font" alone is reported.
void UserControl_Initialize(Campo& c);

// The eight keys in their order through the setters, "Mask", "TrataEnterComoTab" and "CNPJAlfanumerico"
// straight into their fields. A value that a setter cannot take leaves the property as it was. The children
// show the layout of gbDefUsr until the next Show or Resize.
void UserControl_ReadProperties(Campo& c, const PropertyBag& PropBag);

// The eight keys in their order. Text is not read: saving runs no exit check.
void UserControl_WriteProperties(const Campo& c, PropertyBag& PropBag);

// Releases the words and the active boxes.
void UserControl_Terminate(Campo& c);

}  // namespace gabarito

#endif  // GABARITO_CONTROL_PERSISTENCIA_H
