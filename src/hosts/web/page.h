// A page: what all its fields share. One focus, one keyboard, the page's clock and messages.
#ifndef HOSTS_WEB_PAGE_H
#define HOSTS_WEB_PAGE_H

#include <map>
#include <memory>
#include <string>

#include "gabarito/platform/clock.h"
#include "gabarito/platform/dialogs.h"
#include "gabarito/platform/regional.h"
#include "gabarito/platform/user_control.h"
#include "hosts/kit/font_metric.h"
#include "hosts/kit/form_model.h"
#include "hosts/kit/regional_kernel.h"

namespace gabarito::web {

class WebField;

class WallClock final : public Clock {
 public:
  Date Now() const override;
};

// What stands around a field as the models see it; what is seen of it comes from the page's styles.
class PageAmbient final : public AmbientProperties {
 public:
  gabarito::Color BackColor() const override { return kButtonFace; }
  FontRef Font() const override { return font_; }

 private:
  FontRef font_ = std::make_shared<StdFont>();
};

// The messages of one field. While the page is quiet nobody hears them, and each gets its default button.
class PageDialogs final : public Dialogs {
 public:
  explicit PageDialogs(std::int32_t field) : field_(field) {}
  std::int32_t MsgBox(std::u16string_view text, std::int32_t flags,
                      std::optional<std::u16string_view> title) override;
  void Beep() override;
  // The keyboard of the kit always has SendInput.
  void SendKeys(std::u16string_view, bool) override {}
  void Trace(std::u16string_view) override {}

  bool quiet = false;

 private:
  std::int32_t field_;  // by number
};

// Something on the page that is no field: one for all of it, unless a test tells some of it apart by name.
class Elsewhere final : public kit::Control, public kit::Focusable {
 public:
  Elsewhere(std::int32_t number, std::string name) : number_(number), name_(std::move(name)) {}
  std::int32_t Number() const { return number_; }
  std::string_view Name() const override { return name_; }
  Control& Owner() override { return *this; }
  bool CanTakeFocus() const override { return true; }
  void TabStops(std::vector<kit::Focusable*>& stops) override { stops.push_back(this); }

 private:
  std::int32_t number_;
  std::string name_;
};

class Page final : public kit::FormModel {
 public:
  // What a page lends unless a test lends something else.
  struct Lent {
    WallClock clock;
    kit::RegionalKernel kernel;
    // Without one, the making of each field would fail some steps over it, and a failure is dear here.
    PageAmbient ambient;
    // The widths of the layouts are those of the design font; the page shows them in its own, by the size of
    // that.
    kit::FixedFontMetric metric;
  };

  Page();
  explicit Page(const kit::Services& services) : FormModel(services) {}

  // The number of the field that owns the parts; 0 for none.
  std::int32_t NumberOf(const kit::Control* control) const;
  void Register(const kit::Control& parts, std::int32_t number) { numbers_[&parts] = number; }

  // From what has the focus to the next tab stop.
  void Tab(bool backwards);
  // Something on the page that is no field, by its number; 0 is all that has none of its own.
  Elsewhere& Place(std::int32_t number, std::string name = "elsewhere");
  // The one that `focused` is; null when that is a part of a field.
  const Elsewhere* PlaceWith(const kit::Focusable& focused) const;

  Lent lent;
  // What was last copied or cut here, for keys that the field itself sends.
  std::u16string clipboard;

 protected:
  void Deliver(const kit::KeyEvent& event) override;
  void Closing(kit::FieldParts& parts) override;

 private:
  std::map<const kit::Control*, std::int32_t> numbers_;
  std::map<std::int32_t, std::unique_ptr<Elsewhere>> places_;
};

}  // namespace gabarito::web

#endif  // HOSTS_WEB_PAGE_H
