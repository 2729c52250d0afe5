#include "script/child_members.h"

#include <limits>
#include <optional>

#include "hosts/kit/utf8.h"
#include "script/json.h"

namespace gabarito::script {

using kit::ToUtf8;
namespace {

constexpr std::int64_t kLeast32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kMost32 = std::numeric_limits<std::int32_t>::max();

// One member of a kind of child. `write` is null for a member that is only shown, `dumped` tells whether a
// dump shows it.
template <class Widget>
struct Member {
  std::string_view name;
  Json (*read)(const Widget&);
  void (*write)(Widget&, std::string_view);
  bool dumped = true;
};

std::int32_t Int32(std::string_view text) {
  return static_cast<std::int32_t>(NumberFromText(text, "the member", kLeast32, kMost32));
}

std::int16_t Int16(std::string_view text) {
  return static_cast<std::int16_t>(NumberFromText(text, "the member", -32768, 32767));
}

Color ColorFrom(std::string_view text) {
  return static_cast<Color>(
      NumberFromText(text, "BackColor", kLeast32, std::numeric_limits<std::uint32_t>::max()));
}

bool Boolean(std::string_view text) { return BooleanFromText(text, "the member"); }

using kit::ComboModel;
using kit::LabelModel;
using kit::MaskedModel;
using kit::TextBoxModel;

template <class W>
constexpr Member<W> kLeft = {"Left", [](const W& w) { return LengthToJson(w.Bounds().left); },
                             [](W& w, std::string_view v) { w.Move(LengthFromText(v), {}, {}, {}); }};
template <class W>
constexpr Member<W> kTop = {
    "Top", [](const W& w) { return LengthToJson(w.Bounds().top); },
    [](W& w, std::string_view v) { w.Move(w.Bounds().left, LengthFromText(v), {}, {}); }};
template <class W>
constexpr Member<W> kWidth = {
    "Width", [](const W& w) { return LengthToJson(w.Bounds().width); },
    [](W& w, std::string_view v) { w.Move(w.Bounds().left, {}, LengthFromText(v), {}); }};
template <class W>
constexpr Member<W> kHeight = {
    "Height", [](const W& w) { return LengthToJson(w.Bounds().height); },
    [](W& w, std::string_view v) { w.Move(w.Bounds().left, {}, {}, LengthFromText(v)); }};
template <class W>
constexpr Member<W> kVisible = {"Visible", [](const W& w) { return Json(w.IsVisible()); },
                                [](W& w, std::string_view v) { w.Visible(Boolean(v)); }};
template <class W>
constexpr Member<W> kEnabled = {"Enabled", [](const W& w) { return Json(w.IsEnabled()); },
                                [](W& w, std::string_view v) { w.Enabled(Boolean(v)); }};
template <class W>
constexpr Member<W> kText = {"Text", [](const W& w) { return Json(ToUtf8(w.Entry().Text())); },
                             [](W& w, std::string_view v) { w.Text(TextFromText(v)); }};
template <class W>
constexpr Member<W> kSelStart = {"SelStart", [](const W& w) { return Json(w.Entry().SelStart()); },
                                 [](W& w, std::string_view v) { w.SelStart(Int32(v)); }};
template <class W>
constexpr Member<W> kSelLength = {"SelLength", [](const W& w) { return Json(w.Entry().SelLength()); },
                                  [](W& w, std::string_view v) { w.SelLength(Int32(v)); }};
template <class W>
constexpr Member<W> kBackColor = {"BackColor", [](const W& w) { return Json(w.Color()); },
                                  [](W& w, std::string_view v) { w.BackColor(ColorFrom(v)); }};

constexpr Member<LabelModel> kLabel[] = {
    kLeft<LabelModel>,
    kTop<LabelModel>,
    kWidth<LabelModel>,
    kHeight<LabelModel>,
    kVisible<LabelModel>,
    {"Caption", [](const LabelModel& w) { return Json(ToUtf8(w.Shown())); },
     [](LabelModel& w, std::string_view v) { w.Caption(TextFromText(v)); }},
    {"AutoSize", [](const LabelModel& w) { return Json(w.SizesItself()); },
     [](LabelModel& w, std::string_view v) { w.AutoSize(Boolean(v)); }},
    kBackColor<LabelModel>,
};

constexpr Member<TextBoxModel> kTextBox[] = {
    kLeft<TextBoxModel>,
    kTop<TextBoxModel>,
    kWidth<TextBoxModel>,
    kHeight<TextBoxModel>,
    kVisible<TextBoxModel>,
    kEnabled<TextBoxModel>,
    kText<TextBoxModel>,
    {"MaxLength", [](const TextBoxModel& w) { return Json(w.Limit()); },
     [](TextBoxModel& w, std::string_view v) { w.MaxLength(Int32(v)); }},
    kSelStart<TextBoxModel>,
    kSelLength<TextBoxModel>,
    kBackColor<TextBoxModel>,
};

constexpr Member<ComboModel> kCombo[] = {
    kLeft<ComboModel>,
    kTop<ComboModel>,
    kWidth<ComboModel>,
    {"Height", [](const ComboModel& w) { return LengthToJson(w.LineHeight()); }, nullptr},
    kVisible<ComboModel>,
    kEnabled<ComboModel>,
    kText<ComboModel>,
    {"ListCount", [](const ComboModel& w) { return Json(w.Entries().Count()); }, nullptr},
    {"ListIndex", [](const ComboModel& w) { return Json(w.Selected()); },
     [](ComboModel& w, std::string_view v) { w.ListIndex(Int16(v)); }},
    kSelStart<ComboModel>,
    kSelLength<ComboModel>,
    {"ToolTipText", [](const ComboModel& w) { return Json(ToUtf8(w.ToolTip())); },
     [](ComboModel& w, std::string_view v) { w.ToolTipText(TextFromText(v)); }},
    {"DroppedDown", [](const ComboModel& w) { return Json(w.DroppedDown()); },
     [](ComboModel& w, std::string_view v) { w.DropDown(Boolean(v)); }},
    kBackColor<ComboModel>,
};

constexpr Member<MaskedModel> kMasked[] = {
    kLeft<MaskedModel>,
    kTop<MaskedModel>,
    kWidth<MaskedModel>,
    kHeight<MaskedModel>,
    kVisible<MaskedModel>,
    kEnabled<MaskedModel>,
    kText<MaskedModel>,
    {"Mask", [](const MaskedModel& w) { return Json(ToUtf8(w.Entry().Mask())); },
     [](MaskedModel& w, std::string_view v) { w.Mask(TextFromText(v)); }},
    {"MaxLength", [](const MaskedModel& w) { return Json(w.Entry().MaxLength()); },
     [](MaskedModel& w, std::string_view v) { w.MaxLength(Int16(v)); }},
    kSelStart<MaskedModel>,
    kSelLength<MaskedModel>,
    {"Appearance", [](const MaskedModel& w) { return Json(w.ShownAppearance()); },
     [](MaskedModel& w, std::string_view v) { w.Appearance(Int32(v)); }},
    kBackColor<MaskedModel>,
    {"SelText", [](const MaskedModel& w) { return Json(ToUtf8(w.Entry().SelText())); },
     [](MaskedModel& w, std::string_view v) { w.SelText(TextFromText(v)); }, false},
};

// Calls `visit(widget, members)` for the child with this name.
template <class Visit>
void WithChild(kit::FieldParts& parts, std::string_view name, Visit visit) {
  for (LabelModel& label : parts.lbl_controle) {
    if (label.ChildName() == name) return visit(label, std::span(kLabel));
  }
  for (auto* boxes : {&parts.txt_entrada, &parts.txt_entrada3D}) {
    for (TextBoxModel& box : *boxes) {
      if (box.ChildName() == name) return visit(box, std::span(kTextBox));
    }
  }
  if (name == "Combo1") return visit(parts.Combo1, std::span(kCombo));
  if (name == "MaskEdBox1") return visit(parts.MaskEdBox1, std::span(kMasked));
  throw UsageError("there is no child '" + std::string(name) + "'");
}

template <class Members>
const auto& FindMember(const Members& members, std::string_view child, std::string_view name) {
  for (const auto& member : members) {
    if (member.name == name) return member;
  }
  throw UsageError(std::string(child) + " has no member '" + std::string(name) + "'");
}

struct Operations {
  std::string_view child;  // the name, or its beginning
  std::string_view members;
};

// What the field uses of each child.
constexpr Operations kOperations[] = {
    {"lbl_controle",
     " Move Visible BackColor Font Caption AutoSize Left Top Width BackStyle BorderStyle Refresh "},
    {"txt_entrada",
     " Move Visible BackColor Font Text SelStart SelLength Enabled SetFocus MaxLength Left Top Width Height "
     "Refresh "},
    {"Combo1",
     " Move Visible BackColor Font Text SelStart SelLength Enabled SetFocus AddItem Clear List ListCount "
     "ListIndex Height Width Left ToolTipText SendMessageA hWnd "},
    {"MaskEdBox1",
     " Move Visible BackColor Font Text SelStart SelLength Enabled SetFocus Mask SelText MaxLength "
     "Appearance "
     "Height "},
    {"UserControl", " Width Height BackColor Font Ambient PropertyChanged Refresh "},
};

}  // namespace

Json ReadChild(kit::FieldParts& parts, std::string_view child, std::string_view member) {
  Json value;
  WithChild(parts, child,
            [&](auto& widget, auto members) { value = FindMember(members, child, member).read(widget); });
  return value;
}

void WriteChild(kit::FieldParts& parts, std::string_view child, std::string_view member,
                std::string_view value) {
  WithChild(parts, child, [&](auto& widget, auto members) {
    const auto& found = FindMember(members, child, member);
    if (found.write == nullptr) throw UsageError(std::string(member) + " is read only");
    found.write(widget, value);
  });
}

void CheckOperation(std::string_view child, std::string_view member) {
  bool known = child == "UserControl";
  for (const kit::ChildDesign& design : kit::kChildren) known = known || design.name == child;
  if (!known) throw UsageError("there is no child '" + std::string(child) + "'");
  const std::string word = " " + std::string(member) + " ";
  for (const Operations& row : kOperations) {
    if (child.starts_with(row.child) && row.members.find(word) != std::string_view::npos) return;
  }
  throw UsageError("the field does not use " + std::string(child) + "." + std::string(member));
}

kit::Focusable* InputChildOf(kit::FieldParts& parts, std::string_view name) {
  for (kit::InputModel* child : parts.InTabOrder()) {
    if (child->Name() == name) return child;
  }
  return nullptr;
}

Json DumpChildren(kit::FieldParts& parts) {
  const kit::SurfaceModel& surface = parts.surface;
  Json dump = {{"UserControl",
                {{"Width", LengthToJson(surface.Bounds().width)},
                 {"Height", LengthToJson(surface.Bounds().height)},
                 {"BackColor", surface.Color()}}}};
  for (const kit::ChildDesign& design : kit::kChildren) {
    WithChild(parts, design.name, [&](auto& widget, auto members) {
      Json child = Json::object();
      for (const auto& member : members) {
        if (member.dumped) child[std::string(member.name)] = member.read(widget);
      }
      dump[std::string(design.name)] = std::move(child);
    });
  }
  return dump;
}

}  // namespace gabarito::script
