#include "hosts/terminal/foot_line.h"

#include <vector>

namespace gabarito::terminal {
namespace {

using Keys = std::vector<std::u32string_view>;

// In the order of need.
Keys KeysThatWork(FormModel& model) {
  const std::size_t line = model.FocusedLine();
  if (line == model.Lines().size())
    return {U"Enter conclui", U"Shift+Tab volta", U"F1 ajuda", U"Esc desiste"};
  if (const kit::ComboModel* const combo = model.FocusedCombo()) {
    if (combo->DroppedDown()) {
      return {U"↑↓ escolhe", U"Enter fecha a lista", U"Tab avança", U"F10 conclui", U"F1 ajuda"};
    }
    // A combo box keeps Enter to itself.
    return {U"Tab avança", U"F4 abre a lista", U"F10 conclui",
            U"F1 ajuda",   U"Esc desiste",     U"Shift+Tab volta"};
  }
  // The masked box always takes Enter as Tab.
  memory::Field& field = *model.Lines()[line].field;
  const bool enter = field.Parts().MaskEdBox1.IsVisible() || field->TrataEnterComoTab();
  return {enter ? U"Enter avança" : U"Tab avança", U"F10 conclui", U"F1 ajuda", U"Esc desiste",
          U"Shift+Tab volta"};
}

void Draw(Grid& grid, const Keys& keys) {
  constexpr std::u32string_view kBetween = U" · ";
  const int width = grid.Width() - 2;
  std::u32string line;
  for (const std::u32string_view key : keys) {
    const std::size_t size = line.size() + (line.empty() ? 0 : kBetween.size()) + key.size();
    if (static_cast<int>(size) > width) continue;
    if (!line.empty()) line += kBetween;
    line += key;
  }
  const int y = grid.Height() - 1;
  grid.Fill(0, y, grid.Width(), {kBar, kStrong});
  grid.Put(1, y, line, {kBar, kStrong});
}

}  // namespace

void DrawFoot(Grid& grid, FormModel& model) { Draw(grid, KeysThatWork(model)); }

void DrawFoot(Grid& grid, const MessageBox& box) {
  if (box.IsQuestion()) return Draw(grid, {U"Tab troca", U"Enter escolhe", U"Esc não"});
  Draw(grid, {U"Enter fecha", U"↑↓ percorre"});
}

std::u32string HelpText(FormModel& model) {
  std::u32string text;
  const std::size_t focused = model.FocusedLine();
  if (focused < model.Lines().size()) {
    const FieldSpec& spec = model.Lines()[focused].spec;
    text += ToCells(spec.label) + (spec.required ? U" (preenchimento obrigatório)" : U"") + U"\n";
    if (!spec.help.empty()) text += ToCells(spec.help) + U"\n";
    text += U"\n";
  }
  return text +
         U"Tab, Enter    próximo campo\n"
         U"Shift+Tab     campo anterior\n"
         U"F4            abre e fecha a lista\n"
         U"↑ ↓           escolhe na lista\n"
         U"F10           conclui\n"
         U"Esc           desiste (pergunta antes)\n"
         U"Ctrl+C        copia; sem seleção, desiste\n"
         U"Ctrl+X, V     recorta, cola\n"
         U"Ctrl+A, E     início e fim do campo\n"
         U"Ctrl+U, K     apaga até o início, o fim\n"
         U"Ctrl+W        apaga a palavra\n"
         U"Ctrl+← →      anda por palavras\n"
         U"Mouse         clique e roda\n"
         U"\n"
         U"Campos com * são obrigatórios.";
}

}  // namespace gabarito::terminal
