#include "hosts/terminal/entries.h"

#include <algorithm>

namespace gabarito::terminal {
namespace {

template <class Widget>
Piece PieceOf(Widget& widget) {
  Piece piece;
  piece.text = widget.Entry().Text();
  piece.left = widget.Bounds().left;
  piece.width = widget.Bounds().width;
  piece.color = widget.Color();
  piece.entry = &widget;
  piece.start = widget.Entry().SelStart();
  piece.length = widget.Entry().SelLength();
  return piece;
}

Piece BoxOf(kit::TextBoxModel& box, bool flat) {
  Piece piece = PieceOf(box);
  piece.flat = flat;
  piece.limit = box.Limit();
  return piece;
}

Piece MaskedOf(kit::MaskedModel& masked) {
  Piece piece = PieceOf(masked);
  piece.flat = masked.ShownAppearance() != 1;
  return piece;
}

Piece ListOf(kit::ComboModel& combo) {
  Piece piece = PieceOf(combo);
  piece.list = &combo;
  return piece;
}

Piece CaptionOf(const kit::LabelModel& label) {
  Piece piece;
  piece.text = label.Shown();
  piece.left = label.Bounds().left;
  piece.width = label.Bounds().width;
  piece.color = label.Color();
  return piece;
}

// A masked box without an entry in any place shows what its pattern alone gives.
bool IsBlank(kit::MaskedModel& masked) {
  MaskedEdit empty;
  empty.Mask(masked.Entry().Mask());
  return masked.Entry().Text() == empty.Text();
}

bool IsBlank(std::u16string_view text) { return text.find_first_not_of(u' ') == text.npos; }

}  // namespace

std::vector<Piece> PiecesOf(kit::FieldParts& parts) {
  std::vector<Piece> pieces;
  for (kit::LabelModel& label : parts.lbl_controle) {
    if (label.IsVisible()) pieces.push_back(CaptionOf(label));
  }
  for (kit::TextBoxModel& box : parts.txt_entrada) {
    if (box.IsVisible()) pieces.push_back(BoxOf(box, true));
  }
  for (kit::TextBoxModel& box : parts.txt_entrada3D) {
    if (box.IsVisible()) pieces.push_back(BoxOf(box, false));
  }
  if (parts.MaskEdBox1.IsVisible()) pieces.push_back(MaskedOf(parts.MaskEdBox1));
  if (parts.Combo1.IsVisible()) pieces.push_back(ListOf(parts.Combo1));
  std::ranges::stable_sort(pieces, {}, &Piece::left);
  return pieces;
}

std::optional<Piece> EntryOf(kit::Focusable* child) {
  kit::InputModel* const input = child == nullptr ? nullptr : child->Input();
  if (input == nullptr) return {};
  switch (input->Kind()) {
    case kit::InputKind::kTextBox:
      return BoxOf(static_cast<kit::TextBoxModel&>(*input), false);
    case kit::InputKind::kMasked:
      return MaskedOf(static_cast<kit::MaskedModel&>(*input));
    case kit::InputKind::kCombo:
      return ListOf(static_cast<kit::ComboModel&>(*input));
  }
  return {};
}

bool IsEmpty(kit::FieldParts& parts) {
  if (parts.MaskEdBox1.IsVisible()) return IsBlank(parts.MaskEdBox1);
  bool boxes = false;
  for (const Piece& piece : PiecesOf(parts)) {
    if (piece.entry == nullptr || piece.list != nullptr) continue;
    boxes = true;
    if (!IsBlank(piece.text)) return false;
  }
  return boxes || IsBlank(parts.Combo1.Entry().Text());
}

std::u16string ContentOf(kit::FieldParts& parts) {
  std::u16string content;
  for (const Piece& piece : PiecesOf(parts)) {
    if (piece.entry != nullptr) content.append(piece.text).push_back(u'\n');
  }
  return content;
}

}  // namespace gabarito::terminal
