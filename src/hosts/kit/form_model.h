// What the fields of one form, window or page share: the services of their host, the focus, the keyboard.
#ifndef HOSTS_KIT_FORM_MODEL_H
#define HOSTS_KIT_FORM_MODEL_H

#include <functional>

#include "gabarito/platform/host.h"
#include "hosts/kit/focus.h"
#include "hosts/kit/font_metric.h"
#include "hosts/kit/keyboard.h"
#include "hosts/kit/recorded_dialogs.h"
#include "hosts/kit/recorder.h"

namespace gabarito::kit {

struct FieldParts;

// What a host lends. All of it outlives the form model.
struct Services {
  gabarito::Dialogs* dialogs = nullptr;  // of every field that has no voice of its own
  Clock* clock = nullptr;
  Kernel32* kernel = nullptr;
  const Regional* regional = nullptr;
  const FontMetric* metric = nullptr;
  const AmbientProperties* ambient = nullptr;  // null: there is none to give
  Painting* painting = nullptr;                // null: painting cannot be held back
  WindowHook* window_hook = nullptr;           // null: no window procedures
  // Wraps what each new field is built from: see faults.h.
  std::function<Host(const Host&)> decorate;
};

// A host derives its form from it and says where Tab goes and how a key is delivered. Held by shared
// pointers: what runs in a field of a form that is closed comes to its end on it.
class FormModel {
 public:
  explicit FormModel(const Services& itsServices);
  virtual ~FormModel() = default;
  FormModel(const FormModel&) = delete;
  FormModel& operator=(const FormModel&) = delete;

  Services services;
  Recorder* recorder = nullptr;  // null: nobody looks
  // What hosts for people do beyond the field: see comfort.h.
  bool comfort = false;

  Focus focus{recorder};
  Keyboard keyboard{*this};
  RecordedDialogs dialogs{*this, nullptr};

  // Delivers what is queued until the queue is empty. Called inside a handler it does nothing: the run in
  // progress takes what is queued. An error out of a handler does not hold the rest back: the first one is
  // raised when the queue is empty.
  void Run();

  // Handles are small numbers, never used twice.
  WindowHandle NewWindowHandle() { return ++handles_; }

  // Keys have been put into the queue. A host with an event loop of its own takes that as its cue; one that
  // calls Run after each event of its own leaves it empty.
  virtual void KeysWaiting() {}
  // A field is about to end.
  virtual void Closing(FieldParts&) {}

 protected:
  // One event of the queue: Tab moves the focus, other keys go to what has it.
  virtual void Deliver(const KeyEvent& event) = 0;

 private:
  bool running_ = false;
  WindowHandle handles_ = 0;
  Painting no_painting_;
};

}  // namespace gabarito::kit

#endif  // HOSTS_KIT_FORM_MODEL_H
