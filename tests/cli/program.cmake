# cmake -D PROGRAM=... -P program.cmake: what the command line itself answers. A row is the arguments, the exit status
# and a pattern of what is written, parted by "|".
cmake_minimum_required(VERSION 3.25)

set(rows
  "bogus|2|^gabarito: unknown command 'bogus'. the commands are masks, field, batch, script, form\n$"
  "bach|2|did you mean batch"
  "-V|0|^[0-9]+\\.[0-9]+\\.[0-9]+\n$"
  "--version|0|^[0-9]+\\.[0-9]+\\.[0-9]+\n$"
  "field --help|0|Exit status: 0 nothing was refused, 1 the field refused something, 2 a usage error"
  "batch --help|0|Exit status: 0 nothing was refused, 1 the field refused something, 2 a usage error"
  "field -m cnjp|2|unknown mask 'cnjp'.*did you mean gbCNPJ"
  "field -m gbdta|2|did you mean gbData"
  "--lang pt bogus|2|^gabarito: comando desconhecido: 'bogus'. os comandos são masks, field, batch, script, form\n$"
  "form --lang=pt_BR --fields /|2|não foi possível ler /: é um diretório"
  "--lang pt field --help|0|Uso: .*OBRIGATÓRIO.*Propriedades: MaxLength.*Status de saída"
  "--lang de masks|2|the languages are en and pt"
  "field -m data --keys {TABB}{A}{tab}{TABB}({X})|0|no key is called {TABB}: its first character is typed")

foreach(row IN LISTS rows)
  string(REGEX MATCH "^(.*)\\|([0-9]+)\\|(.*)$" whole "${row}")
  set(line "${CMAKE_MATCH_1}")
  set(status ${CMAKE_MATCH_2})
  set(pattern "${CMAKE_MATCH_3}")
  separate_arguments(arguments UNIX_COMMAND "${line}")
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C ${PROGRAM} ${arguments} RESULT_VARIABLE ended OUTPUT_VARIABLE text ERROR_VARIABLE text)
  if(NOT ended STREQUAL status OR NOT text MATCHES "${pattern}")
    message(SEND_ERROR "gabarito ${line}\nends with ${ended} and writes\n${text}")
  endif()
endforeach()

# No line of words is the same in both languages: a text that the table has forgotten.
foreach(command IN ITEMS "" masks field batch script form)
  foreach(language en pt)
    execute_process(COMMAND ${PROGRAM} --lang ${language} ${command} --help OUTPUT_VARIABLE text)
    string(REGEX REPLACE "[][;]" "." text "${text}")
    string(REPLACE "\n" ";" ${language} "${text}")
  endforeach()
  foreach(line IN LISTS en)
    if(line IN_LIST pt AND line MATCHES "[a-z]+ [a-z]+ [a-z]+")
      message(SEND_ERROR "gabarito --lang pt ${command} --help says in English: ${line}")
    endif()
  endforeach()
endforeach()
