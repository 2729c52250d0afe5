// A run-time error: what a failed operation of the platform, or of the field itself, throws.
#ifndef GABARITO_PLATFORM_ERRO_H
#define GABARITO_PLATFORM_ERRO_H

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace gabarito {

// The numbers that this system raises by itself. A host may raise others.
inline constexpr std::int32_t kInvalidProcedureCall = 5;
inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kSubscriptOutOfRange = 9;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kObjectNotSet = 91;
inline constexpr std::int32_t kInvalidPatternString = 93;
inline constexpr std::int32_t kInvalidPropertyValue = 380;
inline constexpr std::int32_t kNotSupported = 445;

// Numbers that an object defines for itself start here.
inline constexpr std::int32_t kObjectErrorBase = -2147221504;  // 0x80040000

class Erro : public std::exception {
 public:
  // Source "Gabarito" and the description of the table in erro.cpp; a number that the table does not hold
  // is described as "Erro de aplicativo ou de objeto".
  explicit Erro(std::int32_t number);
  Erro(std::int32_t number, std::u16string source, std::u16string description);

  std::int32_t Number() const { return number_; }
  const std::u16string& Source() const { return source_; }
  const std::u16string& Description() const { return description_; }
  const char* what() const noexcept override { return "gabarito::Erro"; }

 private:
  std::int32_t number_;
  std::u16string source_;
  std::u16string description_;
};

// Throws Erro(number). A check costs a call where it stands, and the making of the error lies out of its way.
[[noreturn]] void Fail(std::int32_t number);

}  // namespace gabarito

#endif  // GABARITO_PLATFORM_ERRO_H
