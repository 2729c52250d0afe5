#include "hosts/kit/field_model.h"

#include <utility>

namespace gabarito::kit {

FieldModel::FieldModel(std::shared_ptr<FormModel> form, std::string name)
    : form_(std::move(form)), name_(std::move(name)) {}

FieldModel::~FieldModel() { End(); }

FieldParts& FieldModel::Parts() const {
  if (parts_ == nullptr) Fail(kObjectNotSet);
  return *parts_;
}

Gabarito& FieldModel::operator*() {
  if (!gabarito_) Fail(kObjectNotSet);
  return *gabarito_;
}

void FieldModel::Voice(Dialogs* voice) {
  voice_ = voice;
  if (parts_ != nullptr) parts_->dialogs.Voice(voice);
}

void FieldModel::Place() {
  End();
  parts_ = std::make_shared<FieldParts>(form_, voice_);
  Host host = parts_->AsHost();
  if (const auto& decorate = form_->services.decorate) host = decorate(host);
  gabarito_.emplace(host);
  parts_->events_.emplace(*gabarito_);
  Events().UserControl_Initialize();
}

// Each step raises a handler in which the program may end the field again.
void FieldModel::Create() {
  Place();
  if (const auto parts = parts_) parts->Raise([](FieldEvents& field) { field.UserControl_Show(); });
}

void FieldModel::Load(const PropertyBag& bag) {
  Place();
  const auto parts = parts_;
  if (parts == nullptr) return;
  parts->Raise([&](FieldEvents& field) { field.UserControl_ReadProperties(bag); });
  parts->Raise([](FieldEvents& field) { field.UserControl_Show(); });
}

void FieldModel::End() {
  if (parts_ == nullptr) return;
  const auto parts = std::exchange(parts_, nullptr);
  form_->focus.Forget(*parts);
  form_->Closing(*parts);
  parts->Raise([](FieldEvents& field) { field.UserControl_Terminate(); });
  gabarito_.reset();
  parts->EndParts();
}

}  // namespace gabarito::kit
