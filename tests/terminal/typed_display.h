// A person who has typed everything beforehand, and a screen that keeps what was shown last.
#ifndef TESTS_TERMINAL_TYPED_DISPLAY_H
#define TESTS_TERMINAL_TYPED_DISPLAY_H

#include <csignal>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "cli/form/form_list.h"
#include "gabarito/platform/virtual_keys.h"
#include "hosts/kit/utf8.h"
#include "hosts/terminal/form_session.h"

namespace gabarito::terminal {

inline Date Now() { return DateFromParts({2024, 3, 5, 10, 20, 30}); }

inline FormSpec Listed(const std::string& list) { return cli::ForTerminal(cli::ReadFormList(list)); }

class TypedDisplay final : public Display {
 public:
  TypedDisplay& Add(const Input& input) { return inputs_.push_back(input), *this; }
  TypedDisplay& Key(std::int16_t vk) { return Add({.kind = Input::Kind::kKey, .vk = vk}); }
  TypedDisplay& Click(int x, int y) { return Add({.kind = Input::Kind::kClick, .at = {x, y}}); }
  TypedDisplay& Wheel(int turns) { return Add({.kind = Input::Kind::kWheel, .turns = turns}); }
  TypedDisplay& Paste(std::u16string text) {
    return Add({.kind = Input::Kind::kPaste, .text = std::move(text)});
  }
  TypedDisplay& WordStep(int turns) { return Add({.kind = Input::Kind::kWordStep, .turns = turns}); }
  TypedDisplay& Finish() { return Add({.kind = Input::Kind::kFinish}); }
  TypedDisplay& Help() { return Add({.kind = Input::Kind::kHelp}); }
  TypedDisplay& Time() { return Add({.kind = Input::Kind::kTime}); }
  TypedDisplay& Text(std::u16string_view text) {
    for (const char16_t c : text) Add({.kind = Input::Kind::kCharacter, .character = c});
    return *this;
  }
  // `look` runs when all that stands before it has been taken and shown.
  TypedDisplay& Then(std::function<void()> look) {
    looks_[inputs_.size() + 1] = std::move(look);
    return Add({});
  }

  int Width() const override { return width; }
  int Height() const override { return height; }
  void Show(const Screen& screen) override { shown = screen.grid; }
  void Beep() override { ++beeps; }
  Input Next(std::optional<std::chrono::milliseconds> most) override {
    waits = most;
    if (taken_ == inputs_.size()) throw Interrupted{SIGTERM};
    const Input input = inputs_[taken_++];
    if (looks_.contains(taken_)) looks_[taken_]();
    return input;
  }

  // How the person got out of the form: "signal", "given up", or name=value of each field.
  std::string Run(FormModel& model) {
    try {
      const auto values = FormSession(model, *this).Run();
      if (!values) return "given up";
      std::string told;
      for (const FieldValue& value : *values) {
        told += value.name + "=" + kit::ToUtf8(value.text) + (value.empty ? "-;" : ";");
      }
      return told;
    } catch (const Interrupted&) {
      return "signal";
    }
  }
  std::string Run(const std::string& list) {
    FormModel model(Listed(list), Now);
    return Run(model);
  }

  // The row that shows a text, and -1 without one.
  int RowOf(std::string_view text) const {
    for (int y = 0; y < shown.Height(); ++y) {
      if (shown.Row(y).find(text) != std::string::npos) return y;
    }
    return -1;
  }
  bool Shows(std::string_view text) const { return RowOf(text) >= 0; }

  Grid shown{1, 1};
  int beeps = 0;
  int width = 80, height = 24;
  std::optional<std::chrono::milliseconds> waits;  // what Next was given last

 private:
  std::vector<Input> inputs_;
  std::size_t taken_ = 0;
  std::map<std::size_t, std::function<void()>> looks_;  // by the number of inputs taken
};

}  // namespace gabarito::terminal

#endif  // TESTS_TERMINAL_TYPED_DISPLAY_H
