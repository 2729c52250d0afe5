// What the module asks of the page. Each call runs to its end in the page's script before it returns, and may
// call the module again.
#ifndef HOSTS_WEB_IMPORTS_H
#define HOSTS_WEB_IMPORTS_H

#include <cstdint>

#if defined(__wasm__)
#define GABARITO_IMPORT(name) __attribute__((import_module("env"), import_name(#name)))
#define GABARITO_EXPORT(name) __attribute__((export_name(#name)))
#else
#define GABARITO_IMPORT(name)
#define GABARITO_EXPORT(name)
#endif

extern "C" {

// Milliseconds since 1 January 1970 as the clock on the wall shows them, without a time zone.
GABARITO_IMPORT(gb_now) double gb_now();

// A message of a field: shown in place or in a box, as the page likes. `titleSize` -1 is no title. Returns
// the button: 1 OK, 6 Yes, 7 No.
GABARITO_IMPORT(gb_message)
std::int32_t gb_message(std::int32_t field, const char16_t* text, std::int32_t size, const char16_t* title,
                        std::int32_t titleSize, std::int32_t flags);

// The program's event. Returns key code and shift mask as the program left them, the mask in the upper half.
GABARITO_IMPORT(gb_key_up)
std::int32_t gb_key_up(std::int32_t field, std::int32_t code, std::int32_t shift);

GABARITO_IMPORT(gb_beep) void gb_beep(std::int32_t field);

// Moves the page's focus to the tab stop behind the field, or in front of it. The page tells the move as
// usual.
GABARITO_IMPORT(gb_tab) void gb_tab(std::int32_t field, std::int32_t backwards);

}  // extern "C"

#endif  // HOSTS_WEB_IMPORTS_H
