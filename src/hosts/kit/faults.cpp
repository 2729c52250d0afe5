#include "hosts/kit/faults.h"

namespace gabarito::kit {
namespace {

// Every member asks the switch, under its own name, and goes on to the child behind it.
template <class Interface>
class Faulty : public Interface {
 public:
  using Interface::BackColor;
  using Interface::Visible;

  Faulty(Interface& inner, std::string_view name, FaultSwitch& faults)
      : inner_(inner), name_(name), faults_(faults) {}

  void Move(float left, std::optional<float> top, std::optional<float> width,
            std::optional<float> height) override {
    Set("Move").Move(left, top, width, height);
  }
  void Visible(bool visible) override { Set("Visible").Visible(visible); }
  void BackColor(Color color) override { Set("BackColor").BackColor(color); }
  void Font(const FontRef& font) override { Set("Font").Font(font); }

 protected:
  const Interface& Get(std::string_view member) const {
    faults_.Use(name_, member, Access::kRead);
    return inner_;
  }
  Interface& Set(std::string_view member) {
    faults_.Use(name_, member, Access::kWrite);
    return inner_;
  }

 private:
  Interface& inner_;
  std::string_view name_;
  FaultSwitch& faults_;
};

template <class Interface>
class FaultyInput : public Faulty<Interface> {
 public:
  using Faulty<Interface>::Faulty;
  using Interface::Enabled;

  std::u16string_view Text() const override { return this->Get("Text").Text(); }
  void Text(std::u16string_view text) override { this->Set("Text").Text(text); }
  std::int32_t SelStart() const override { return this->Get("SelStart").SelStart(); }
  void SelStart(std::int32_t start) override { this->Set("SelStart").SelStart(start); }
  std::int32_t SelLength() const override { return this->Get("SelLength").SelLength(); }
  void SelLength(std::int32_t length) override { this->Set("SelLength").SelLength(length); }
  void Enabled(bool enabled) override { this->Set("Enabled").Enabled(enabled); }
  void SetFocus() override { this->Set("SetFocus").SetFocus(); }
};

class FaultyTextBox final : public FaultyInput<TextBox> {
 public:
  using FaultyInput::Enabled;
  using FaultyInput::FaultyInput;

  bool Enabled() const override { return Get("Enabled").Enabled(); }
  std::int32_t MaxLength() const override { return Get("MaxLength").MaxLength(); }
  void MaxLength(std::int32_t length) override { Set("MaxLength").MaxLength(length); }
  float Left() const override { return Get("Left").Left(); }
  float Top() const override { return Get("Top").Top(); }
  float Width() const override { return Get("Width").Width(); }
  float Height() const override { return Get("Height").Height(); }
  void Left(float left) override { Set("Left").Left(left); }
  void Width(float width) override { Set("Width").Width(width); }
  void Height(float height) override { Set("Height").Height(height); }
  void Refresh() override { Set("Refresh").Refresh(); }
};

class FaultyLabel final : public Faulty<Label> {
 public:
  using Faulty::Faulty;

  void Caption(std::u16string_view caption) override { Set("Caption").Caption(caption); }
  void AutoSize(bool on) override { Set("AutoSize").AutoSize(on); }
  float Left() const override { return Get("Left").Left(); }
  float Top() const override { return Get("Top").Top(); }
  float Width() const override { return Get("Width").Width(); }
  void BackStyle(std::int32_t style) override { Set("BackStyle").BackStyle(style); }
  void BorderStyle(std::int32_t style) override { Set("BorderStyle").BorderStyle(style); }
  void Refresh() override { Set("Refresh").Refresh(); }
};

class FaultyComboBox final : public FaultyInput<ComboBox> {
 public:
  using FaultyInput::BackColor;
  using FaultyInput::FaultyInput;
  using FaultyInput::Visible;

  bool Visible() const override { return Get("Visible").Visible(); }
  Color BackColor() const override { return Get("BackColor").BackColor(); }
  void AddItem(std::u16string_view text) override { Set("AddItem").AddItem(text); }
  void Clear() override { Set("Clear").Clear(); }
  std::u16string_view List(std::int16_t index) const override { return Get("List").List(index); }
  std::int16_t ListCount() const override { return Get("ListCount").ListCount(); }
  std::int16_t ListIndex() const override { return Get("ListIndex").ListIndex(); }
  void ListIndex(std::int16_t index) override { Set("ListIndex").ListIndex(index); }
  float Height() const override { return Get("Height").Height(); }
  float Width() const override { return Get("Width").Width(); }
  void Width(float width) override { Set("Width").Width(width); }
  void Left(float left) override { Set("Left").Left(left); }
  void ToolTipText(std::u16string_view text) override { Set("ToolTipText").ToolTipText(text); }
  std::int32_t SendMessageA(std::int32_t message, std::int32_t wParam, std::u16string_view text) override {
    return Set("SendMessageA").SendMessageA(message, wParam, text);
  }
  WindowHandle hWnd() const override { return Get("hWnd").hWnd(); }
};

class FaultyMaskEdBox final : public FaultyInput<MaskEdBox> {
 public:
  using FaultyInput::FaultyInput;

  std::u16string_view Mask() const override { return Get("Mask").Mask(); }
  void Mask(std::u16string_view pattern) override { Set("Mask").Mask(pattern); }
  void SelText(std::u16string_view text) override { Set("SelText").SelText(text); }
  void MaxLength(std::int16_t length) override { Set("MaxLength").MaxLength(length); }
  void Appearance(std::int32_t look) override { Set("Appearance").Appearance(look); }
  void Height(float height) override { Set("Height").Height(height); }
};

class FaultySurface final : public UserControl {
 public:
  FaultySurface(UserControl& inner, FaultSwitch& faults) : inner_(inner), faults_(faults) {}

  float Width() const override { return Get("Width").Width(); }
  float Height() const override { return Get("Height").Height(); }
  void Height(float height) override { Set("Height").Height(height); }
  void BackColor(Color color) override { Set("BackColor").BackColor(color); }
  FontRef Font() const override { return Get("Font").Font(); }
  void Font(const FontRef& font) override { Set("Font").Font(font); }
  const AmbientProperties& Ambient() const override { return Get("Ambient").Ambient(); }
  void PropertyChanged(std::u16string_view name) override { Set("PropertyChanged").PropertyChanged(name); }
  void Refresh() override { Set("Refresh").Refresh(); }
  // The host's own business: it never fails.
  void Settle() override { inner_.Settle(); }

 private:
  const UserControl& Get(std::string_view member) const {
    faults_.Use("UserControl", member, Access::kRead);
    return inner_;
  }
  UserControl& Set(std::string_view member) {
    faults_.Use("UserControl", member, Access::kWrite);
    return inner_;
  }

  UserControl& inner_;
  FaultSwitch& faults_;
};

struct FaultyChildren {
  FaultyChildren(const Host& host, FaultSwitch& faults)
      : behind(host.Filhos),
        flat{{*host.txt_entrada[0], "txt_entrada(0)", faults},
             {*host.txt_entrada[1], "txt_entrada(1)", faults},
             {*host.txt_entrada[2], "txt_entrada(2)", faults}},
        raised{{*host.txt_entrada3D[0], "txt_entrada3D(0)", faults},
               {*host.txt_entrada3D[1], "txt_entrada3D(1)", faults},
               {*host.txt_entrada3D[2], "txt_entrada3D(2)", faults}},
        labels{{*host.lbl_controle[0], "lbl_controle(0)", faults},
               {*host.lbl_controle[1], "lbl_controle(1)", faults},
               {*host.lbl_controle[2], "lbl_controle(2)", faults}},
        combo(*host.Combo1, "Combo1", faults),
        masked(*host.MaskEdBox1, "MaskEdBox1", faults),
        surface(*host.UserControl, faults) {}

  std::shared_ptr<const void> behind;
  FaultyTextBox flat[3];
  FaultyTextBox raised[3];
  FaultyLabel labels[3];
  FaultyComboBox combo;
  FaultyMaskEdBox masked;
  FaultySurface surface;
};

}  // namespace

Host WithFaults(const Host& host, FaultSwitch& faults) {
  const auto children = std::make_shared<FaultyChildren>(host, faults);
  Host wrapped = host;
  for (std::size_t i = 0; i < 3; ++i) {
    wrapped.txt_entrada[i] = &children->flat[i];
    wrapped.txt_entrada3D[i] = &children->raised[i];
    wrapped.lbl_controle[i] = &children->labels[i];
  }
  wrapped.Combo1 = &children->combo;
  wrapped.MaskEdBox1 = &children->masked;
  wrapped.UserControl = &children->surface;
  wrapped.Filhos = children;
  return wrapped;
}

}  // namespace gabarito::kit
