// The component's entry points, as a system that loads components by name calls them. They hold no logic:
// each hands straight on to the host runtime that the program has installed.
//
//   class Runtime : public gabarito::HostRuntime { ... };
//   gabarito::InstallHostRuntime(&runtime);      // before the system asks
//
// The entry points are all that the shared library exports. InstallHostRuntime comes from a static library
// that the program links; the shared one finds there what was installed.
#ifndef SHELL_HOST_RUNTIME_H
#define SHELL_HOST_RUNTIME_H

#include <cstdint>

namespace gabarito {

// The result of an entry point: negative is failure.
using HRESULT = std::int32_t;

inline constexpr HRESULT kOk = 0;
inline constexpr HRESULT kFalse = 1;
inline constexpr HRESULT kUnexpected = static_cast<HRESULT>(0x8000FFFFu);  // E_UNEXPECTED

// What a host implements. Nothing may be thrown.
class HostRuntime {
 public:
  virtual ~HostRuntime() = default;

  // Enters the component in the register of the system, and takes it out.
  virtual HRESULT RegisterServer() noexcept = 0;
  virtual HRESULT UnregisterServer() noexcept = 0;

  // The factory of a class: `clsid` and `iid` are 16 bytes each; `*object` receives it, or null on failure.
  virtual HRESULT GetClassObject(const void* clsid, const void* iid, void** object) noexcept = 0;

  // kOk when no object of the component is in use, else kFalse.
  virtual HRESULT CanUnloadNow() noexcept = 0;
};

// The runtime that the entry points hand on to from now on, which outlives its use; null for none. Gives back
// the one before. One thread.
HostRuntime* InstallHostRuntime(HostRuntime* runtime) noexcept;

}  // namespace gabarito

// Without a runtime all four give kUnexpected, and *object is set to null.
extern "C" {
gabarito::HRESULT DllRegisterServer();
gabarito::HRESULT DllUnregisterServer();
gabarito::HRESULT DllGetClassObject(const void* clsid, const void* iid, void** object);
gabarito::HRESULT DllCanUnloadNow();
}

#endif  // SHELL_HOST_RUNTIME_H
