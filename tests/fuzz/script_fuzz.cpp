#include "script_fuzz.h"

#include <cmath>
#include <exception>

#include "cli/names.h"
#include "gabarito/state/campo.h"

namespace gabarito::cli {
namespace {

bool Sound(const kit::Geometry& place) {
  return std::isfinite(place.left) && std::isfinite(place.top) && std::isfinite(place.width) &&
         std::isfinite(place.height) && place.width >= 0 && place.height >= 0;
}

// The selection lies inside the text.
template <class Widget>
bool SoundEntry(const Widget& widget) {
  const auto& entry = widget.Entry();
  const auto size = static_cast<std::int64_t>(entry.Text().size());
  return Sound(widget.Bounds()) && entry.SelStart() >= 0 && entry.SelLength() >= 0 &&
         std::int64_t{entry.SelStart()} + entry.SelLength() <= size;
}

std::string BrokenChild(const kit::FieldParts& parts) {
  for (std::size_t i = 0; i < 3; ++i) {
    if (!Sound(parts.lbl_controle[i].Bounds())) return "a label is out of place";
    const bool boxes = SoundEntry(parts.txt_entrada[i]) && SoundEntry(parts.txt_entrada3D[i]);
    if (!boxes) return "a text box is unsound";
  }
  if (!SoundEntry(parts.MaskEdBox1)) return "the masked box is unsound";
  const auto entries = static_cast<std::int64_t>(parts.Combo1.Entries().Count());
  const bool selected = parts.Combo1.Selected() >= -1 && parts.Combo1.Selected() < entries;
  if (!SoundEntry(parts.Combo1) || !selected) return "the combo box is unsound";
  return Sound(parts.surface.Bounds()) ? "" : "the surface is out of place";
}

// All three active boxes are unset, or they are one array.
bool OneArray(const Campo& field) {
  if (!field.mEntrada1) return !field.mEntrada2 && !field.mEntrada3;
  if (!field.mEntrada2 || !field.mEntrada3) return false;
  for (const auto& boxes : {field.txt_entrada, field.txt_entrada3D}) {
    if (&*field.mEntrada1 == boxes[0]) return &*field.mEntrada2 == boxes[1] && &*field.mEntrada3 == boxes[2];
  }
  return false;
}

}  // namespace

std::string Attack::Run(std::string line) {
  line.erase(0, line.find_first_not_of(" \t"));
  out_.str({});
  try {
    script_.Line(line);
  } catch (const UsageError&) {
  } catch (const Erro& erro) {
    return "error " + std::to_string(erro.Number()) + " got out of the script";
  } catch (const std::exception& fault) {
    return fault.what();
  }
  return BrokenInvariant(line);
}

std::string Attack::BrokenInvariant(const std::string& line) {
  const kit::Focusable* focused = stage_.TheForm().Focused();
  if (focused == nullptr || !focused->CanTakeFocus()) return "the focus is where it cannot be";
  kit::FieldModel& field = stage_.Field();
  if (!field.Exists()) return {};
  const FieldEvents events = field.Events();
  const Campo& state = events.Estado();
  if (!OneArray(state)) return "the active boxes are not one array";
  if (state.mMaxLength < 0) return "mMaxLength is negative";
  if (state.mSegmentos < 0 || state.mSegmentos > 3) return "mSegmentos is out of range";
  const auto begins = [&](std::string_view action) { return line.starts_with(action); };
  const auto tells = [&](std::string_view what) { return out_.view().find(what) != std::string_view::npos; };
  const bool patternSet = begins("set MaskText ") && tells("PropertyChanged\",\"name\":\"MaskText");
  if (patternSet && state.mMask != gbDefUsr) return "MaskText was set without its kind";
  const bool mayChange = begins("new") || begins("init") || begins("load") || begins("get Text");
  const bool changed = state.mValor != value_ && !mayChange && !tells("\"event\":\"ExitFocus\"");
  if (changed) return "mValor changed without an exit";
  value_ = state.mValor;
  return BrokenChild(field.Parts());
}

}  // namespace gabarito::cli
