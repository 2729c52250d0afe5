# cmake -D DADOS=municipios.txt -D TABELA=municipios_tabela.inc -P municipios.cmake
#
# Turns the city table, one line an id, into one string literal and the offsets of its lines.
file(READ ${DADOS} texto)
string(REGEX REPLACE "([^\n]*)\n" "    u\"\\1\"\n" texto "${texto}")

file(STRINGS ${DADOS} linhas)
set(inicio 0)
set(inicios 0)
foreach(linha IN LISTS linhas)
  string(LENGTH "${linha}" tamanho)
  math(EXPR inicio "${inicio} + ${tamanho}")
  string(APPEND inicios ",\n    ${inicio}")
endforeach()

file(WRITE ${TABELA} "// Written by municipios.cmake from municipios.txt.
constexpr char16_t kTexto[] =
${texto};
constexpr std::uint32_t kInicio[] = {
    ${inicios}};
")
