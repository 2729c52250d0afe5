// What the run-time library would take along for messages that nobody can read in a page: the unmangling of
// type names and the printing of a fatal error. Without them the module is a third smaller.
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <new>

extern "C" {

char* __cxa_demangle(const char*, char*, std::size_t*, int*) { return nullptr; }

[[noreturn]] void abort_message(const char*, ...) { std::abort(); }

std::terminate_handler __cxa_terminate_handler = std::abort;
void (*__cxa_unexpected_handler)() = std::abort;

}  // extern "C"

// Exceptions lie on the heap, without a second one for the day on which that is full.
namespace __cxxabiv1 {

void* __aligned_malloc_with_fallback(std::size_t size) { return std::malloc(size); }
void __aligned_free_with_fallback(void* block) { std::free(block); }
void* __calloc_with_fallback(std::size_t count, std::size_t size) { return std::calloc(count, size); }
void __free_with_fallback(void* block) { std::free(block); }

}  // namespace __cxxabiv1

// A page without memory left ends; that no allocation throws spares the cleaning up around each of them.
void* operator new(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) std::abort();
  return block;
}
void operator delete(void* block) noexcept { std::free(block); }
