// Gabarito: one input field that becomes 23 by one value, Mask.
//
//   gabarito::memory::Form form;           // a host, such as the one in hosts/memory
//   gabarito::memory::Field& campo = form.AddField("cpf");
//   campo.Create();
//   campo->Mask(gabarito::gbCPF);
//   campo->Text(u"11144477735");
//   campo->Text();                         // u"111.444.777-35"
//
// This is the program's face: properties, methods, the event. What a host raises is the class FieldEvents
// (control/field_events.h). One thread. What fails reaches the caller as an Erro where a member says so;
// nothing else is thrown but faults of the program itself (out of memory).
//
// A field may be destroyed while one of its members runs: from its own event, or while a message box of its
// own is open. The member comes to its end and touches nothing of the object any more.
#ifndef GABARITO_CONTROL_GABARITO_H
#define GABARITO_CONTROL_GABARITO_H

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "gabarito/platform/host.h"
#include "gabarito/state/mascaras.h"

namespace gabarito {

class FieldEvents;

// A function of the program that is called on each KeyUp: key code and shift mask (1 Shift, 2 Ctrl, 4 Alt),
// which it may change.
using KeyUpHandler = std::function<void(std::int16_t& KeyCode, std::int16_t& Shift)>;

class Gabarito {
 public:
  // Everything named in `host` outlives the field, the children by Host::Filhos if need be. One allocation.
  explicit Gabarito(const Host& host);
  ~Gabarito();
  Gabarito(const Gabarito&) = delete;
  Gabarito& operator=(const Gabarito&) = delete;

  // --- Methods -------------------------------------------------------------------------------------------

  // Empties all boxes, separators and the list, and releases the words of ComboItens. The value that Text
  // gives follows at its next read; the separators at the next layout.
  void ApagaCampos();

  // Shows the about box.
  void Sobre();

  // `s` in capitals and without accents. Raises 6 on more than 32,767 characters.
  std::u16string pfTiraAcentoDeFrase(std::u16string_view s) const;

  // --- Properties ----------------------------------------------------------------------------------------
  // Setters report PropertyChanged to the host. Those of Appearance, Mask, MaskText, MaxLength and
  // UsarFundoPastel work the layout out again, which empties the boxes of a date and of month and year and
  // fills the lists anew.

  // Longest text, in characters, of the kinds with one box, 0 to 32,767; 0 is no limit. A negative value
  // counts as its absolute value; -32768 raises 6. Reads 64 under gbDefUsr.
  std::int16_t MaxLength() const;
  void MaxLength(std::int16_t t);

  // The words of gbListaNoCombo: an array of any lower bound in, an array of texts with lower bound 0, or
  // Empty, out. They show at the next layout: set them before Mask.
  Variant ComboItens() const;
  void ComboItens(const Variant& itens);

  // Entries of the list, whatever the kind.
  std::int16_t ComboListCount() const;

  // Selected entry, 0-based, -1 for none. A value outside the list changes nothing.
  std::int16_t ComboListIndex() const;
  void ComboListIndex(std::int16_t valor);

  // Whether the children take focus and keys. Reading raises 91 before the first layout.
  bool Enabled() const;
  void Enabled(bool valor);

  // Reads the colour of Combo1. The text boxes show it until their next focus event.
  Color BackColor() const;
  void BackColor(Color lCor);

  // Reading runs the whole exit check first: it can show message boxes, move the focus and rewrite the
  // boxes. Writing distributes `dado` over the children by Mask without judging it; what fails on the way is
  // told in a message box. The form of the value under each kind: docs/masks.md.
  std::u16string Text();
  void Text(std::u16string_view dado);

  // Whether the children show nothing of a value: right after a write of Text, that nothing of it could be
  // taken. A write takes what it can and is silent about the rest, so 31/02/2024 under gbData leaves three
  // empty boxes. Template and group blanks count as nothing. Runs no check and no handler.
  bool MostraVazio() const;

  // An EMascaras; any other number is kept and shows a plain box.
  std::int32_t Mask() const;
  void Mask(std::int32_t M);

  // The pattern of gbDefUsr. Setting it sets Mask to gbDefUsr first; a pattern that is refused leaves the old
  // one in place.
  std::u16string MaskText() const;
  void MaskText(std::u16string_view mascara);

  // Colour the box with the focus pastel.
  bool UsarFundoPastel() const;
  void UsarFundoPastel(bool valor);

  // After the message on a bad date under gbData: fill in today, instead of emptying the boxes and taking the
  // focus back.
  bool PreencherDatasInvalidasComDataDeHoje() const;
  void PreencherDatasInvalidasComDataDeHoje(bool valor);

  // 1 is the 3D look, every other value the flat one.
  std::int32_t Appearance() const;
  void Appearance(std::int32_t valor);

  // The font object that surface and children share. A null one raises 91. The new height reaches the boxes
  // at the next layout.
  FontRef Font() const;
  void Font(const FontRef& sFnt);

  // Enter moves on as Tab does.
  bool TrataEnterComoTab() const;
  void TrataEnterComoTab(bool valor);

  // gbCNPJ takes letters too, in the first twelve places of a number, in either case; they become capitals.
  // False for a new field. Numbers without a letter are treated alike either way. Counts from the next key,
  // load or exit on: the box stays as it is.
  bool CNPJAlfanumerico() const;
  void CNPJAlfanumerico(bool valor);

  // --- Event ---------------------------------------------------------------------------------------------

  // Called for each key that goes down in a text box or comes up in Combo1, and with 13 and 0 after an Enter
  // that moved on and after a jump. Both arguments may be changed. One handler; an empty one takes it away. A
  // handler may set another one, or none.
  void KeyUp(KeyUpHandler handler);

 private:
  struct Estado;

  // Sets a property that can hide or disable children and lets the host settle the focus after it.
  template <class Poe, class Valor>
  void Publica(Poe poe, Valor valor);

  // The state, held by the caller while an operation runs in which the program may destroy the field.
  std::shared_ptr<Estado> Vivo() const { return c; }

  friend class FieldEvents;
  std::shared_ptr<Estado> c;
};

}  // namespace gabarito

#endif  // GABARITO_CONTROL_GABARITO_H
