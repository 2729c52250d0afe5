#include <utility>

#include "shell/host_runtime.h"

// Where the shared library looks; the linker option of this target makes the program show it.
extern "C" {
__attribute__((visibility("default"))) gabarito::HostRuntime* gabarito_host_runtime = nullptr;
}

namespace gabarito {

HostRuntime* InstallHostRuntime(HostRuntime* runtime) noexcept {
  return std::exchange(gabarito_host_runtime, runtime);
}

}  // namespace gabarito
