#include "hosts/memory/cleaner.h"

#include <utility>

#include "hosts/memory/load_check.h"

namespace gabarito::memory {
class Cleaner::Ear final : public kit::Recorder {
 public:
  explicit Ear(Cleaner& owner) : owner_(owner) {}
  void MsgBox(std::u16string_view text, std::int32_t, std::optional<std::u16string_view>,
              std::int32_t) override {
    owner_.spoken_ = true;
    owner_.on_message_(text);
  }

 private:
  Cleaner& owner_;
};

Cleaner::Cleaner(OnMessage onMessage, Date now)
    : on_message_(std::move(onMessage)), ear_(std::make_unique<Ear>(*this)), field_(form_.AddField("field")) {
  form_.Model().recorder = ear_.get();
  form_.System().clock.Set(now);
  field_.Create();
}

Cleaner::~Cleaner() = default;

bool Cleaner::Clean(std::u16string_view text, std::u16string& value) {
  spoken_ = false;
  field_->Text(text);
  const bool loaded = !field_->MostraVazio();
  value = field_->Text();
  if (spoken_) return false;
  if (!NothingTaken(text, loaded, value)) return true;
  on_message_(kNotTaken);
  return false;
}

}  // namespace gabarito::memory
