#include "cli/portuguese.h"

#include "cli/help.h"

namespace gabarito::cli {
namespace {

constexpr Phrase kPhrases[] = {
    // Pieces of a message that may stand around any other.
    {"{}; did you mean {}?{}", "{1!}; você quis dizer {2}?{3!}"},
    {"{}; see --help", "{1!}; veja --help"},

    // The command line.
    {"gabarito: {}", "gabarito: {1!}"},
    {"gabarito {}: {}", "gabarito {1}: {2!}"},
    {"unknown command '{}'; the commands are {}", "comando desconhecido: '{1}'; os comandos são {2}"},
    {"unknown command '{}'", "comando desconhecido: '{1}'"},
    {"; the commands are {}", "; os comandos são {1}"},
    {"unknown language '{}'; the languages are en and pt",
     "idioma desconhecido: '{1}'; os idiomas são en e pt"},
    {"A subcommand is required", "falta um comando"},
    {"--mask is required", "falta --mask"},
    {"The following argument was not expected: {}", "argumento inesperado: {1}"},
    {"The following arguments were not expected: {}", "argumentos inesperados: {1}"},
    {"--{}: {} required {} missing", "--{1}: falta: {2} {3}"},
    {"{} excludes {}", "{1!} não combina com {2}"},
    {"--format: {} not in {}", "--format: {1} não está em {2}"},
    {"--set takes NAME=VALUE, not '{}'", "--set recebe NOME=VALOR, não '{1}'"},
    {"form: --nulls goes with --format json alone", "form: --nulls só combina com --format json"},
    {"the value of {} is not valid UTF-8", "o valor de {1} não é UTF-8 válido"},
    {"run-time error {}: {}", "erro {1}: {2}"},
    {"no key is called {}: its first character is typed",
     "nenhuma tecla se chama {1}: digita-se o primeiro caractere"},

    // Files.
    {"cannot open {}: {}", "não foi possível abrir {1}: {2!}"},
    {"cannot read {}: {}", "não foi possível ler {1}: {2!}"},
    {"cannot write the output: {}", "não foi possível escrever a saída: {1!}"},
    {"No such file or directory", "arquivo ou diretório inexistente"},
    {"Is a directory", "é um diretório"},
    {"Permission denied", "permissão negada"},
    {"No space left on device", "não há espaço no dispositivo"},
    {"not valid JSON at line {}, column {}", "JSON inválido na linha {1}, coluna {2}"},

    // Properties.
    {"unknown mask '{}': take a name that 'gabarito masks' lists, or a number",
     "máscara desconhecida: '{1}'; use um nome da lista de 'gabarito masks' ou um número"},
    {"there is no property '{}'", "não existe a propriedade '{1}'"},
    {"{} is read only", "{1!} é só de leitura"},
    {"{} takes a text in UTF-8", "{1!} recebe um texto em UTF-8"},
    {"{} takes a text", "{1!} recebe um texto"},
    {"{} takes a whole number", "{1!} recebe um número inteiro"},
    {"{} takes a number from {} to {}", "{1!} recebe um número de {2} a {3}"},
    {"{} takes a number, not {}", "{1!} recebe um número, não {2}"},
    {"{} takes a number of points", "{1!} recebe um número de pontos"},
    {"{} takes up to {} points", "{1!} recebe até {2} pontos"},
    {"{} takes true or false, not {}", "{1!} recebe true ou false, não {2}"},
    {"{} takes true or false", "{1!} recebe true ou false"},
    {"{} is out of range: {}", "{1!} está fora dos limites: {2}"},
    {"{} is not valid JSON: {}", "{1!} não é JSON válido: {2}"},
    {"the text is not valid UTF-8", "o texto não é UTF-8 válido"},
    {"the text", "o texto"},
    {"an element of ComboItens is a text, a number, a boolean, null or an array",
     "um elemento de ComboItens é um texto, um número, um booleano, null ou um vetor"},
    {"ComboItens takes an array, or an object with lower and items",
     "ComboItens recebe um vetor, ou um objeto com lower e items"},
    {"Font takes an object with Name, Size, Bold and Italic",
     "Font recebe um objeto com Name, Size, Bold e Italic"},
    {"Font has no {}", "Font não tem {1}"},

    // Lists of fields.
    {"unknown key {} (a field has {})", "chave desconhecida: {1} (um campo tem {2})"},
    {"unknown key {} (a form has {})", "chave desconhecida: {1} (um formulário tem {2})"},
    {"unknown key {}", "chave desconhecida: {1}"},
    {" (a field has {})", " (um campo tem {1})"},
    {" (a form has {})", " (um formulário tem {1})"},
    {"field {}: {}", "campo {1}: {2!}"},
    {"group {}: {}", "grupo {1}: {2!}"},
    {"a field is an object", "um campo é um objeto"},
    {"mask is missing", "falta mask"},
    {"mask takes a name or a number of 32 bits", "mask recebe um nome ou um número de 32 bits"},
    {"set takes an object of properties", "set recebe um objeto de propriedades"},
    {"fields takes an array of fields", "fields recebe um vetor de campos"},
    {"stands inside another group", "está dentro de outro grupo"},
    {"has no field", "não tem campo"},
    {"has the name of field {}", "tem o nome do campo {1}"},
    {"takes an object of names and values", "recebe um objeto de nomes e valores"},
    {"takes an array of fields, or an object with fields",
     "recebe um vetor de campos, ou um objeto com fields"},
    {"there is no field in the list", "não há campo na lista"},
    {"there is no field yet: start with new, load or init",
     "ainda não há campo: comece com new, load ou init"},
    {"there is no field {}", "não existe o campo {1}"},
    {"error {}, {}", "erro {1}, {2}"},
    {"{} is no name of a shell variable; --format env needs letters, digits and _",
     "{1!} não serve de nome de variável do shell; --format env precisa de letras, dígitos e _"},

    // The terminal.
    {"standard input is no terminal", "a entrada padrão não é um terminal"},
    {"there is no terminal to draw on", "não há terminal em que desenhar"},
    {"needs a terminal that can place its cursor; TERM is not set",
     "precisa de um terminal que posicione o cursor; TERM não está definida"},
    {"needs a terminal that can place its cursor; TERM is dumb",
     "precisa de um terminal que posicione o cursor; TERM é dumb"},
    {"the terminal type '{}' is not known", "o tipo de terminal '{1}' não é conhecido"},
    {"the terminal type '{}' cannot place its cursor", "o tipo de terminal '{1}' não posiciona o cursor"},
    {"the terminal cannot be set up", "não foi possível preparar o terminal"},

    // Scripts.
    {"line {}: {}", "linha {1}: {2!}"},
    {"skipped, it is not for {}", "pulado, não é para {1}"},
    {"unknown action '{}'", "ação desconhecida: '{1}'"},
    {"too many arguments: '{}'", "argumentos demais: '{1}'"},
    {"a moment is written YYYY-MM-DDThh:mm:ss, not '{}'",
     "um momento se escreve YYYY-MM-DDThh:mm:ss, não '{1}'"},
    {"there is no such moment: {}", "esse momento não existe: {1}"},
    {"there is no child '{}'", "não existe o filho '{1}'"},
    {"{} has no member '{}'", "{1!} não tem o membro '{2}'"},
    {"the field does not use {}", "o campo não usa {1}"},
    {"the host raises no event '{}'", "o hospedeiro não dispara o evento '{1}'"},
    {"there is no ambient '{}'", "não existe o ambiente '{1}'"},
    {"there is no method '{}'", "não existe o método '{1}'"},
    {"nothing called '{}' takes the focus", "nada chamado '{1}' recebe o foco"},
    {"what has the focus has no text to select", "o que tem o foco não tem texto a selecionar"},
    {"the region has no '{}'", "a região não tem '{1}'"},
    {"the layout is abnt2 or us", "o layout é abnt2 ou us"},
    {"capslock is on or off", "capslock é on ou off"},
    {"comfort is on or off", "comfort é on ou off"},
    {"fail takes CHILD.MEMBER and an error number", "fail recebe FILHO.MEMBRO e um número de erro"},
    {"a length is a number of twips, not {}", "um comprimento é um número de twips, não {1}"},
    {"the value of {} is an array", "o valor de {1} é um vetor"},
    {"the bag is not valid JSON", "o estado guardado não é JSON válido"},
    {"the bag is not a JSON object", "o estado guardado não é um objeto JSON"},

    // Help.
    {kProgramHelp, "Gabarito: um campo de entrada para formulários brasileiros que é 23 tipos de campo."},
    {kExitStatuses, "Status de saída: 0 nada foi recusado, 1 o campo recusou algo, 2 erro de uso."},
    {kPropertyHelp,
     "Textos vão como estão ou como uma cadeia JSON, números em decimal ou 0x..., ComboItens e Font como "
     "JSON.\nElas são definidas na ordem dada, e Mask depois, para que ComboItens, MaskText e MaxLength\n"
     "já estejam no lugar quando o tipo toma forma; ComboListIndex e Text vêm depois de Mask."},
    {kFormHelp,
     R"(Mostra um formulário no terminal e imprime os valores ao ser concluído, para que um script os use:
valores=$(gabarito form) || exit. As teclas vêm da entrada padrão, que tem de ser um terminal.

Enter e Tab vão ao campo seguinte, Shift+Tab volta, F4 abre uma lista, F1 mostra todas as teclas. F10 e o botão
concluem o formulário: todos os campos são conferidos, e o que recusa o que contém, ou é obrigatório e está vazio,
segura a pessoa ali e diz por quê. Esc (depois de uma pergunta) e Ctrl+C sem nada selecionado desistem do formulário.

Uma lista de campos: {"title": "Cliente", "fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF", "required": true}]}
ou só o vetor; docs/form.md diz todas as chaves. Um campo vazio dá "".

O status de saída é 0, 2 quando não há terminal ou a lista está errada, 130 quando a pessoa desistiu, e 128 e o
número de um sinal que o encerrou; nada é impresso a não ser com 0. NO_COLOR é respeitada.)"},
    {"Properties: {}", "Propriedades: {1}"},
    {"Kind: a name that 'gabarito masks' lists, in any case and with or without gb, or a number",
     "Tipo: um nome da lista de 'gabarito masks', em maiúsculas ou minúsculas, com ou sem gb, ou um número"},
    {"Sets a property; may be given several times", "Define uma propriedade; pode repetir-se"},
    {"List the kinds of field", "Lista os tipos de campo"},
    {"As JSON, with the members of the public class", "Como JSON, com os membros da classe pública"},
    {"Put one value through a field and print what it gives",
     "Passa um valor por um campo e imprime o que ele dá"},
    {"Value that is loaded", "Valor que é carregado"},
    {"Keys played into the field after that, all at once: 05{TAB}03{TAB}2024",
     "Teclas batidas no campo depois disso, todas de uma vez: 05{TAB}03{TAB}2024"},
    {"Put each line of a file through a field: input, value and message, parted by TAB",
     "Passa cada linha de um arquivo por um campo: entrada, valor e mensagem, separados por TAB"},
    {"UTF-8, one value a line; standard input without it",
     "UTF-8, um valor por linha; sem ele, a entrada padrão"},
    {"Play host and user actions and write what happens",
     "Executa ações do hospedeiro e do usuário e escreve o que acontece"},
    {"Actions, one a line; - or none for standard input",
     "Ações, uma por linha; - ou nenhum para a entrada padrão"},
    {"Fill in a form in the terminal", "Preenche um formulário no terminal"},
    {"List of fields as JSON; a field of every kind without it",
     "Lista de campos como JSON; sem ela, um campo de cada tipo"},
    {"json (the default), env (name='value' for a shell) or tsv (name, TAB, value)",
     "json (o padrão), env (nome='valor' para um shell) ou tsv (nome, TAB, valor)"},
    {"In JSON an empty field is null instead of \"\"", "Em JSON um campo vazio é null em vez de \"\""},
    {"The values alone, each ended by NUL", "Só os valores, cada um terminado por NUL"},
    {"Print the version and exit", "Imprime a versão e sai"},
    {"Print this help message and exit", "Imprime esta ajuda e sai"},
    {"Language of help and messages: en or pt", "Idioma da ajuda e das mensagens: en ou pt"},
    {"Usage", "Uso"},
    {"OPTIONS", "OPÇÕES"},
    {"Options", "Opções"},
    {"Subcommands", "Comandos"},
    {"SUBCOMMAND", "COMANDO"},

    {"Positionals", "Argumentos"},
    {"REQUIRED", "OBRIGATÓRIO"},
    {"Excludes", "Não combina com"},
    {"KIND", "TIPO"},
    {"NAME=VALUE", "NOME=VALOR"},
    {"VALUE", "VALOR"},
    {"KEYSTRING", "TECLAS"},
    {"FILE", "ARQUIVO"},
    {"FORMAT", "FORMATO"},
    {"LANGUAGE", "IDIOMA"},

    // What the kinds take.
    {"free text, ends in capitals", "texto livre, termina em maiúsculas"},
    {"letters only", "só letras"},
    {"letters and digits", "letras e dígitos"},
    {"a date: day, month, year", "uma data: dia, mês, ano"},
    {"today, whatever is typed", "a data de hoje, digite-se o que for"},
    {"month and year", "mês e ano"},
    {"hour and minute", "hora e minuto"},
    {"an integer", "um número inteiro"},
    {"a real number", "um número real"},
    {"a money amount, two decimals", "um valor em dinheiro, duas casas decimais"},
    {"a postal code: five digits and three", "um CEP: cinco dígitos e três"},
    {"a telephone number", "um número de telefone"},
    {"a mask of the author's own, in MaskText", "uma máscara do próprio autor, em MaskText"},
    {"a version number", "um número de versão"},
    {"one word of the list in ComboItens", "uma palavra da lista em ComboItens"},
    {"a CPF: personal taxpayer number", "um CPF"},
    {"a CNPJ: company taxpayer number, or its root", "um CNPJ, ou a sua raiz"},
    {"a city typed and a state chosen", "uma cidade digitada e um estado escolhido"},
    {"a state chosen from the list", "um estado escolhido na lista"},
    {"a municipality chosen from the list", "um município escolhido na lista"},
    {"a credit card number", "um número de cartão de crédito"},
    {"a range of two numbers", "um intervalo de dois números"},
    {"an e-mail address", "um endereço de e-mail"},

    // A name of a file or a place in front of any of them.
    {"{}: {}", "{1}: {2!}"},
};

}  // namespace

std::span<const Phrase> PortuguesePhrases() { return kPhrases; }

}  // namespace gabarito::cli
