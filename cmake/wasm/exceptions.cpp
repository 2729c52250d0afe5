// Exceptions for a module that throws few types and catches each by that very type or by `...`, in the place
// of the library's own, which also knows base classes, other languages and threads. The compiler's side of
// the agreement is the C++ ABI of Itanium with the landing pads of WebAssembly.
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <typeinfo>

namespace {

// Stands in front of the object that was thrown.
struct alignas(8) Thrown {
  const std::type_info* type;
  void* (*destroy)(void*);
  std::int32_t owners;    // the throw itself, and each exception_ptr
  std::int32_t handlers;  // that are at work on it; negative once one of them has thrown it again
  Thrown* below;          // caught before and still being handled
};

Thrown* caught = nullptr;

Thrown* Of(void* object) { return static_cast<Thrown*>(object) - 1; }

void Release(Thrown* thrown) {
  if (--thrown->owners != 0) return;
  if (thrown->destroy != nullptr) thrown->destroy(thrown + 1);
  std::free(thrown);
}

[[noreturn]] void Raise(Thrown* thrown) { __builtin_wasm_throw(0, thrown); }

// A number of the compiler's tables, in groups of seven bits.
std::int32_t Read(const std::uint8_t*& at, bool hasSign) {
  std::uint32_t value = 0;
  int shift = 0;
  std::uint8_t group = 0;
  do {
    group = *at++;
    value |= (group & 0x7FU) << shift;
    shift += 7;
  } while ((group & 0x80) != 0);
  if (hasSign && (group & 0x40) != 0) value |= ~0U << shift;
  return static_cast<std::int32_t>(value);
}

}  // namespace

extern "C" {

// Where the compiler's code and the search for a handler meet.
struct {
  std::uint32_t pad;
  const std::uint8_t* table;
  std::int32_t handler;  // 0 for none
} __wasm_lpad_context;

// Finds the handler of a landing pad for what was thrown, in the table of the function.
std::int32_t _Unwind_CallPersonality(Thrown* thrown) {
  constexpr std::uint8_t kOmitted = 0xFF;
  __wasm_lpad_context.handler = 0;
  const std::uint8_t* at = __wasm_lpad_context.table;
  if (at == nullptr) return 0;
  const auto types = [&] {
    ++at;  // where the pads lie: not in use here
    if (*at++ == kOmitted) return at;
    const std::int32_t size = Read(at, false);
    return at + size;
  }();
  ++at;  // how the pads are written: as numbers
  const std::int32_t size = Read(at, false);
  const std::uint8_t* action = at + size;
  std::int32_t first = 0;
  for (std::uint32_t pad = 0; pad <= __wasm_lpad_context.pad; ++pad) {
    Read(at, false);
    first = Read(at, false);
  }
  if (first == 0) return 0;
  action += first - 1;
  for (;;) {
    const std::int32_t handler = Read(action, true);
    if (handler > 0) {
      const auto* const type = reinterpret_cast<const std::type_info* const*>(types)[-handler];
      if (type == nullptr || type == thrown->type) {
        __wasm_lpad_context.handler = handler;
        return 0;
      }
    }
    const std::uint8_t* const here = action;
    const std::int32_t step = Read(action, true);
    if (step == 0) return 0;
    action = here + step;
  }
}

void* __cxa_allocate_exception(std::size_t size) {
  auto* const thrown = static_cast<Thrown*>(std::malloc(sizeof(Thrown) + size));
  if (thrown == nullptr) std::abort();
  return thrown + 1;
}

void __cxa_free_exception(void* object) { std::free(Of(object)); }

[[noreturn]] void __cxa_throw(void* object, std::type_info* type, void* (*destroy)(void*)) {
  Thrown* const thrown = Of(object);
  *thrown = {type, destroy, 1, 0, nullptr};
  Raise(thrown);
}

void* __cxa_begin_catch(void* exception) {
  auto* const thrown = static_cast<Thrown*>(exception);
  thrown->handlers = std::abs(thrown->handlers) + 1;
  if (thrown != caught) {
    thrown->below = caught;
    caught = thrown;
  }
  return thrown + 1;
}

void __cxa_end_catch() {
  Thrown* const thrown = caught;
  const bool again = thrown->handlers < 0;
  thrown->handlers += again ? 1 : -1;
  if (thrown->handlers != 0) return;
  caught = thrown->below;
  if (!again) Release(thrown);
}

[[noreturn]] void __cxa_rethrow() {
  caught->handlers = -caught->handlers;
  Raise(caught);
}

// Types are told apart by their addresses alone: no code belongs to them.
extern const void* const _ZTVN10__cxxabiv117__class_type_infoE[3] = {};
extern const void* const _ZTVN10__cxxabiv120__si_class_type_infoE[3] = {};
extern const void* const _ZTVN10__cxxabiv121__vmi_class_type_infoE[3] = {};

}  // extern "C"

namespace std {

void terminate() noexcept { std::abort(); }

exception_ptr::exception_ptr(const exception_ptr& other) noexcept : __ptr_(other.__ptr_) {
  if (__ptr_ != nullptr) ++Of(__ptr_)->owners;
}

exception_ptr& exception_ptr::operator=(const exception_ptr& other) noexcept {
  void* const before = __ptr_;
  __ptr_ = other.__ptr_;
  if (__ptr_ != nullptr) ++Of(__ptr_)->owners;
  if (before != nullptr) Release(Of(before));
  return *this;
}

exception_ptr::~exception_ptr() noexcept {
  if (__ptr_ != nullptr) Release(Of(__ptr_));
}

exception_ptr current_exception() noexcept {
  exception_ptr current;
  if (caught != nullptr) {
    ++caught->owners;
    current.__ptr_ = caught + 1;
  }
  return current;
}

// Only of one that no handler is at work on.
void rethrow_exception(exception_ptr held) {
  Thrown* const thrown = Of(held.__ptr_);
  ++thrown->owners;
  Raise(thrown);
}

}  // namespace std
