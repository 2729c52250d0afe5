#include "shell/host_runtime.h"

#define GABARITO_EXPORT __attribute__((visibility("default")))

// Lives in the program, which may not have it: then its address is null.
extern "C" __attribute__((weak, visibility("default"))) gabarito::HostRuntime* gabarito_host_runtime;

namespace {

gabarito::HostRuntime* Runtime() {
  return &gabarito_host_runtime == nullptr ? nullptr : gabarito_host_runtime;
}

}  // namespace

extern "C" {

GABARITO_EXPORT gabarito::HRESULT DllRegisterServer() {
  gabarito::HostRuntime* const runtime = Runtime();
  return runtime == nullptr ? gabarito::kUnexpected : runtime->RegisterServer();
}

GABARITO_EXPORT gabarito::HRESULT DllUnregisterServer() {
  gabarito::HostRuntime* const runtime = Runtime();
  return runtime == nullptr ? gabarito::kUnexpected : runtime->UnregisterServer();
}

GABARITO_EXPORT gabarito::HRESULT DllGetClassObject(const void* clsid, const void* iid, void** object) {
  gabarito::HostRuntime* const runtime = Runtime();
  if (runtime != nullptr) return runtime->GetClassObject(clsid, iid, object);
  if (object != nullptr) *object = nullptr;
  return gabarito::kUnexpected;
}

GABARITO_EXPORT gabarito::HRESULT DllCanUnloadNow() {
  gabarito::HostRuntime* const runtime = Runtime();
  return runtime == nullptr ? gabarito::kUnexpected : runtime->CanUnloadNow();
}

}  // extern "C"
