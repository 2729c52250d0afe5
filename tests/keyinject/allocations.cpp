#include "allocations.h"

#include <cstdlib>
#include <new>

namespace {
int allocations = 0;
}

void* operator new(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace gabarito {

int Allocations() { return allocations; }

}  // namespace gabarito
