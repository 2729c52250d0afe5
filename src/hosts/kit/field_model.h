// A place on a form that holds at most one field at a time.
#ifndef HOSTS_KIT_FIELD_MODEL_H
#define HOSTS_KIT_FIELD_MODEL_H

#include <memory>
#include <optional>
#include <string>

#include "gabarito/control/gabarito.h"
#include "hosts/kit/field_parts.h"

namespace gabarito::kit {

// There is no field before Create, Load or Place; using it then raises 91.
//
// A field may be ended, replaced or deleted at any time: from its own handlers, from its own event, or while
// a message box of its own is open. What runs in it comes to its end on parts that outlive it.
class FieldModel {
 public:
  FieldModel(std::shared_ptr<FormModel> form, std::string name);
  ~FieldModel();
  FieldModel(const FieldModel&) = delete;
  FieldModel& operator=(const FieldModel&) = delete;

  const std::string& Name() const { return name_; }
  FormModel& Form() const { return *form_; }

  // What the field speaks through from now on; null for the dialogs of the form. It outlives this object and
  // what runs in the field.
  void Voice(Dialogs* voice);

  // A field as freshly placed: Initialize, Show. Ends the present one first.
  void Create();
  // The same with stored state: Initialize, ReadProperties, Show.
  void Load(const PropertyBag& bag);
  // Initialize alone.
  void Place();
  // Terminate; the focus leaves without an event.
  void End();

  bool Exists() const { return parts_ != nullptr; }
  // Of the present life.
  FieldParts& Parts() const;
  const std::shared_ptr<FieldParts>& SharedParts() const { return parts_; }
  Gabarito& operator*();
  Gabarito* operator->() { return &**this; }
  // The handlers, for a host that raises them directly.
  FieldEvents Events() { return FieldEvents(**this); }

  // What a form gives the focus to that gives it to the field as a whole.
  SurfaceModel* Surface() const { return &Parts().surface; }

 private:
  std::shared_ptr<FormModel> form_;
  std::string name_;
  Dialogs* voice_ = nullptr;
  std::shared_ptr<FieldParts> parts_;
  std::optional<Gabarito> gabarito_;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FIELD_MODEL_H
