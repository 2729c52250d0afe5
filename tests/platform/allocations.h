// Counts what a test program allocates. For one source of the program alone.
#ifndef GABARITO_TESTS_PLATFORM_ALLOCATIONS_H
#define GABARITO_TESTS_PLATFORM_ALLOCATIONS_H

#include <cstdlib>
#include <new>

static std::size_t allocations = 0;

// Not to be inlined: next to a call of new the free looks like a mismatch to the compiler.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

#endif  // GABARITO_TESTS_PLATFORM_ALLOCATIONS_H
