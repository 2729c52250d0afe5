#include "hosts/kit/masked_model.h"

#include "gabarito/platform/text.h"
#include "hosts/kit/field_parts.h"

namespace gabarito::kit {
namespace {

// Its design font is a little larger than that of the others.
const FontRef& MaskedDesignFont() {
  static const FontRef font = [] {
    auto made = std::make_shared<StdFont>();
    made->Size = 8.25F;
    return made;
  }();
  return font;
}

}  // namespace

MaskedModel::MaskedModel(FieldParts& parts, const ChildDesign& design)
    : InputChildModel(InputKind::kMasked, parts, design) {
  font_ = MaskedDesignFont();
}

void MaskedModel::Mask(std::u16string_view pattern) {
  line_.Mask(pattern);
  Note(Change::kLook);
  NoteEdit();
}

void MaskedModel::SelText(std::u16string_view text) {
  line_.SelText(text);
  NoteEdit();
}

void MaskedModel::MaxLength(std::int16_t length) {
  line_.MaxLength(length);
  Note(Change::kLimit);
}

void MaskedModel::Appearance(std::int32_t look) {
  appearance_ = look;
  Note(Change::kLook);
}

void MaskedModel::Height(float height) {
  RefuseNegative(height);
  bounds_.height = height;
  Note(Change::kGeometry);
}

void MaskedModel::GotFocus() {
  Parts().Raise([](FieldEvents& field) { field.MaskEdBox1_GotFocus(); });
}

char16_t MaskedModel::KeyPress(char16_t character) {
  std::int16_t KeyAscii = Asc(character);
  Parts().Raise([&](FieldEvents& field) { field.MaskEdBox1_KeyPress(KeyAscii); });
  return KeyAscii == 0 ? u'\0' : Chr(KeyAscii);
}

void MaskedModel::HandOver(std::u16string_view, std::int32_t selStart, std::int32_t selLength) {
  line_.SelStart(selStart);
  line_.SelLength(selLength);
}

}  // namespace gabarito::kit
