// What the run-time library would take along for messages that nobody can read in a page: the unmangling of
// type names and the printing of a fatal error. Without them the module is a third smaller.
#include <cstddef>
#include <cstdlib>

extern "C" {

char* __cxa_demangle(const char*, char*, std::size_t*, int*) { return nullptr; }

[[noreturn]] void abort_message(const char*, ...) { std::abort(); }

}  // extern "C"
