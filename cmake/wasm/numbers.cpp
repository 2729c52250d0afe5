// The two conversions between numbers and decimal digits that the field asks of the run-time library, done by
// the page instead (the linker puts these in the place of strtod and snprintf): exact as well, and without
// the library's own arithmetic of long numbers, a tenth of the module.
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstring>

#define GABARITO_IMPORT(name) __attribute__((import_module("env"), import_name(#name)))

extern "C" {

// The double nearest to a decimal text.
GABARITO_IMPORT(gb_number) double gb_number(const char* text, std::int32_t size);
// Writes `value` with so many significant digits, as in 1.25e-7, half to even; gives the size.
GABARITO_IMPORT(gb_digits) std::int32_t gb_digits(double value, std::int32_t digits, char* out);

double __wrap_strtod(const char* text, char** end) {
  const std::size_t size = std::strlen(text);
  if (end != nullptr) *end = const_cast<char*>(text) + size;
  return gb_number(text, static_cast<std::int32_t>(size));
}

// The forms in use: "%.*e" of a double, and "e%lld". The room is always enough.
int __wrap_snprintf(char* out, std::size_t, const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::int32_t size = 0;
  if (std::strcmp(format, "%.*e") == 0) {
    const int digits = va_arg(arguments, int) + 1;
    size = gb_digits(va_arg(arguments, double), digits, out);
  } else {
    long long exponent = va_arg(arguments, long long);
    out[size++] = 'e';
    if (exponent < 0) out[size++] = '-';
    char reversed[20];
    int count = 0;
    do {
      const auto digit = static_cast<int>(exponent % 10);
      reversed[count++] = static_cast<char>('0' + (digit < 0 ? -digit : digit));
      exponent /= 10;
    } while (exponent != 0);
    while (count > 0) out[size++] = reversed[--count];
  }
  va_end(arguments);
  out[size] = '\0';
  return size;
}

}  // extern "C"
