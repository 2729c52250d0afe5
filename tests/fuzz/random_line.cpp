#include "gabarito/control/especie.h"

#include <cctype>
#include <iterator>
#include <string_view>

#include "hosts/kit/design.h"
#include "script_fuzz.h"

namespace gabarito::cli {
namespace {

// A word in braces is replaced by something random of that name.
struct Line {
  std::uint32_t weight;
  std::string_view pattern;
};
// clang-format off
constexpr Line kLines[] = {
    {1, "new"}, {1, "init"}, {1, "load {bag}"}, {2, "save"}, {1, "dump"}, {2, "raise Show"},
    {2, "raise Resize"}, {2, "raise GotFocus"}, {2, "raise ExitFocus"}, {1, "raise Terminate"},
    {2, "raise AmbientChanged BackColor"}, {2, "raise ReadProperties {bag}"}, {3, "size {length} {length}"},
    {1, "ambient BackColor {number}"}, {1, "ambient Font {font}"}, {1, "ambient none"},
    {1, "ambient available"}, {12, "set Mask {mask}"}, {1, "set Mask {number}"},
    {2, "set MaxLength {number}"}, {8, "set Text {text}"}, {3, "set MaskText {pattern}"},
    {3, "set ComboItens {items}"}, {2, "set ComboListIndex {number}"}, {3, "set Enabled {boolean}"},
    {1, "set BackColor {number}"}, {1, "set UsarFundoPastel {boolean}"},
    {2, "set PreencherDatasInvalidasComDataDeHoje {boolean}"}, {2, "set TrataEnterComoTab {boolean}"},
    {2, "set CNPJAlfanumerico {boolean}"},
    {3, "set Appearance {look}"}, {1, "set Font {font}"}, {2, "get {property}"}, {6, "get Text"},
    {2, "call ApagaCampos"}, {1, "call Sobre"}, {1, "call pfTiraAcentoDeFrase {text}"}, {8, "focus field"},
    {6, "focus {receiver}"}, {24, "type {typed}"}, {16, "key {key} {shift}"}, {6, "keys {keys}"},
    {4, "paste {text}"}, {3, "select {small} {small}"}, {6, "child {child} {member} {value}"},
    {1, "child {child} {member}"}, {3, "answer {small}"}, {2, "onkeyup {number}"}, {1, "onkeyup none"},
    {1, "clock {moment}"}, {1, "region decimal {mark}"}, {1, "region thousands {mark}"},
    {1, "region lastTwoDigitYear {number}"}, {1, "layout us"}, {1, "layout abnt2"}, {1, "capslock on"},
    {1, "capslock off"}, {5, "fail {child}.{operation} {error}"}, {2, "fail UserControl.{surface} {error}"},
    {1, "hook"}, {1, "unhook"}, {1, "message {message}"}, {1, "message other {message}"}, {1, "{text}"}};
// clang-format on

constexpr std::uint32_t kWeight = [] {
  std::uint32_t sum = 0;
  for (const Line& line : kLines) sum += line.weight;
  return sum;
}();

using Words = std::pair<std::string_view, std::vector<std::string_view>>;

// The texts of the kinds in all states of completeness, and texts that nobody types: other planes, marks that
// change their length in capitals, wildcards of patterns, half of a pair.
// clang-format off
const Words kWords[] = {
    {"text", {"", "111.444.777-35", "11144477735", "11.222.333/0001-81", "4111111111111111", "01/02/2003",
     "31/02", "02/2003", "23:59", "1.234,56", "-1e400", "99999999999999999999999", "30140-010",
     "(31) 3222-1234", "a@b.com", "São João/MG", "1#2", "#", "/", "\"\"", "\"\\ud83d\\ude00\"", "\"\\ud83d\"",
     "\"a\\u0000b\"", "\"1\\r\\n2\"", "😀", "ßŉİı", "[a-", "*?#[!]", "12:00 AM", "&h1F", "1d5", "\xff\xfe",
     "{long}", "{letters}"}},
    {"typed", {"1", "12", "311299", "11144477735", "a", "AbC", "-", "/", "á", "ç~", "😀", "\"\\n\"", "\"\\b\"",
     "\"\\t\"", "\"1\\t2\\t3\\t\"", "  ", "{letters}", "{text}"}},
    {"pattern", {"", "##/##/####", "(##) ####-####", ">AAA<aaa", "\\##", "\\", "CCC", "&&&", "{text}"}},
    {"items", {"[]", "[\"abc\",\"ABD\",\"é\"]", "[1,2.5,true,null,\"\"]", "[[1],[[2]]]",
     "{\"lower\":-3,\"items\":[\"x\"]}", "{\"lower\":32767,\"items\":[1,2]}", "7", "\"abc\"", "null",
     "[\"{letters}\"]"}},
    {"bag", {"{}", "{\"Mask\":{mask number}}", "{\"Mask\":130,\"Appearance\":0,\"Enabled\":false}",
     "{\"MaskText\":\"##-##\",\"Mask\":210}", "{\"Mask\":\"x\",\"Font\":3,\"Enabled\":1}",
     "{\"Font\":{\"Name\":\"Arial\",\"Size\":{size}}}", "{\"TrataEnterComoTab\":false}", "[]", "{"}},
    {"mask number", {"100", "130", "150", "190", "210", "230", "260", "261", "280"}},
    {"font", {"{\"Name\":\"Arial\",\"Size\":{size}}", "{\"Size\":8}", "{}", "3"}},
    {"size", {"0.5", "8", "72", "1000"}},
    {"length", {"0", "1", "-1", "50", "315", "1000", "4785", "1e9", "3e38", "1e39", "nan", "inf",
     "{number}"}},
    {"boolean", {"true", "false"}}, {"look", {"0", "1", "2", "-1"}},
    {"property", {"Appearance", "BackColor", "ComboItens", "ComboListCount", "ComboListIndex", "Enabled",
     "Font", "Mask", "MaskText", "MaxLength", "TrataEnterComoTab", "UsarFundoPastel",
     "CNPJAlfanumerico"}},
    {"receiver", {"before", "after", "field", "field", "{child}"}},
    {"keys", {"{TAB}", "+{TAB}", "{BS 3}", "^a^c^v", "%{F4}", "abc", "1~2", "{DOWN 40}", "{a 200}",
     "{a 99999}", "{", "}", "+^%", "(ab", "{{}", "+(ab){HOME}+{END}{DEL}", "{text}"}},
    {"member", {"Text", "Visible", "Enabled", "SelStart", "SelLength", "MaxLength", "Left", "Top", "Width",
     "Height", "Caption", "AutoSize", "ListIndex", "DroppedDown", "Mask", "SelText", "BackColor"}},
    {"value", {"{text}", "{boolean}", "{number}", "{length}"}},
    {"operation", {"Text", "Move", "Visible", "SetFocus", "MaxLength", "Width", "ListIndex", "Clear",
     "Enabled", "SelStart", "Height", "BackColor", "Mask"}},
    {"surface", {"Height", "Width", "Ambient", "PropertyChanged", "Font", "Refresh"}},
    {"error", {"5", "6", "91", "380"}},
    {"key", {"8", "9", "13", "27", "33", "34", "35", "36", "37", "38", "39", "40", "46", "65", "67", "86",
     "88", "115", "{number}"}},
    {"shift", {"0", "0", "1", "2", "4", "3", "7"}}, {"message", {"15", "130", "0", "{number}"}},
    {"moment", {"2024-03-05T10:20:30", "0100-01-01T00:00:00", "9999-12-31T23:59:59", "2023-02-29T00:00:00"}},
    {"mark", {".", ",", "", " ", "€", "ab"}}, {"small", {"0", "1", "2", "5", "6", "7", "2147483647"}},
    {"number", {"0", "1", "-1", "2", "64", "255", "1900", "32767", "-32768", "32768", "2147483647",
     "-2147483648", "4294967295", "9223372036854775808", "0x10", "x", ""}}};
// clang-format on

std::string Expand(std::string_view pattern, const Dice& dice);

std::string Letters(std::uint32_t length, const Dice& dice) {
  static constexpr std::string_view kLetters[] = {"a", "Z", "0", "9", " ", "_", "#",
                                                  ".", ",", "-", "/", "é", "Ç", "😀"};
  std::string letters;
  for (std::uint32_t i = 0; i < length; ++i) letters += kLetters[dice(std::size(kLetters))];
  return letters;
}

std::string Word(std::string_view name, const Dice& dice) {
  if (name == "letters") return Letters(dice(70), dice);
  // Beyond what a counter of 16 bits holds.
  if (name == "long") return std::string(dice(2) == 0 ? 40000 : 300, static_cast<char>('0' + dice(70)));
  if (name == "child") return std::string(kit::kChildren[dice(std::size(kit::kChildren))].name);
  const auto kinds = static_cast<std::uint32_t>(Especies().size());
  if (name == "mask") return std::string(Especies()[dice(kinds)].nome);
  for (const auto& [known, words] : kWords) {
    if (known == name) return Expand(words[dice(static_cast<std::uint32_t>(words.size()))], dice);
  }
  return "{" + std::string(name) + "}";  // a brace of the language itself
}

std::string Expand(std::string_view pattern, const Dice& dice) {
  std::string line;
  while (!pattern.empty()) {
    const std::size_t end = pattern.front() == '{' ? pattern.find_first_of("{}", 1) : std::string_view::npos;
    if (end != std::string_view::npos && pattern[end] == '}') {
      line += Word(pattern.substr(1, end - 1), dice);
      pattern.remove_prefix(end + 1);
    } else {
      line += pattern.front();
      pattern.remove_prefix(1);
    }
  }
  return line;
}

}  // namespace

std::string RandomLine(const Dice& dice) {
  const Line* chosen = kLines;
  for (std::uint32_t roll = dice(kWeight); roll >= chosen->weight; ++chosen) roll -= chosen->weight;
  std::string line = Expand(chosen->pattern, dice);
  if (dice(40) != 0 || line.empty()) return line;
  const std::uint32_t at = dice(static_cast<std::uint32_t>(line.size()));
  if (dice(2) == 0) return line.substr(0, at);
  line[at] = static_cast<char>(dice(256));
  return line;
}

}  // namespace gabarito::cli
