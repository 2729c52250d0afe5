#!/usr/bin/env bash
# A person at the form in a real terminal: form_tmux.sh PROGRAM. Ends with 77 when there is no tmux.
program=$(realpath "$1")
. "$(dirname "$0")/pane.sh"

cat >"$work/campos.json" <<'END'
{"title": "Cadastro", "finish": "Gravar", "fields": [
  {"name": "cpf", "mask": "gbCPF", "label": "CPF", "required": true, "help": "Onze algarismos."},
  {"name": "municipio", "mask": "gbCidadeEstadoPopulado", "label": "Município"},
  {"group": "Outros", "fields": [
    {"name": "nascimento", "mask": "gbData", "label": "Nascimento", "placeholder": ["dd", "mm", "aaaa"]},
    {"name": "obs", "mask": "gbNenhuma", "label": "Observação"}]}]}
END
start "stty -g >before; x=\$('$program' form --fields campos.json); echo \"\$? \$x\" >out; stty -g >after"
sees 'campo 1 de 4'
sees 'Onze algarismos.'
sees '│dd│ / │mm│ / │aaaa│'

# Finishing leads to what is missing; a refusal stands under its field and leads nowhere else.
keys F10
sees '✗ preencha este campo'
keys x
sees '! só números'
keys 11144477736 Enter
sees '✗ O CPF informado é inválido.'
keys C-u
loses '✗'
keys 11144477735 Enter
sees '│111.444.777-35'

# The list: scroll bar and count; the wheel turns it, Escape closes it, Enter takes what is chosen.
keys -l 'sao jose dos ca'
sees '┃SAO JOSE DOS CAMPOS/SP'
sees '4873 de 5652'
raw 1b 5b 4d 61 40 30
sees 'SAO JOSE DOS QUATRO MARCOS/MT        '
sees 'Enter fecha a lista'
keys Escape
loses '4873 de 5652'
keys Tab

# A date as it is written, without the zeros.
keys 05032024 Enter
sees '│05│ / │03│ / │2024│'

# What a terminal sends beyond the keys that the form knows types nothing: an unknown function key, a sequence with
# many parameters, a title report, keys with Alt.
keys -l 'nao'
raw 1b 5b 33 34 7e
raw 1b 5b 31 3b 32 3b 33 3b 34 52
raw 1b 5d 6c 78 1b 5c
raw 1b 78
raw 1b 4f 35 77
keys M-q
# A paste is one paste: line breaks and tabs become blanks, an arrow that it spells is none.
paste $' um\tdois\r\ntrês\n'
sees 'nao um dois três'
keys C-w
keys -l 'fim'
keys C-a
keys -l '* '
sees '* nao um dois fim'

# Help is a page; clicks give the focus.
keys F1
sees 'desiste (pergunta antes)'
keys Enter
loses 'pergunta antes'
raw 1b 5b 4d 20 33 23
sees 'campo 1 de 4'
keys F10
done_with '0 {"cpf":"111.444.777-35","municipio":"SAO JOSE DOS CAMPOS/SP","nascimento":"05/03/2024","obs":"* NAO UM DOIS FIM"}'
cmp "$work/before" "$work/after"

# Giving up: Escape and a yes, or Ctrl+C; nothing is printed.
for way in 'Escape s' 'C-c'; do
  start "x=\$('$program' form --fields campos.json); echo \"\$? \$x\" >out"
  sees 'campo 1 de 4'
  for key in $way; do
    keys "$key"
    [ "$key" != Escape ] || sees 'Desistir?'
  done
  done_with '130 '
done

# As people write: separators typed, zeros left out, or all of it pasted into the first box.
cat >"$work/escrito.json" <<'END'
[{"name": "data", "mask": "gbData"}, {"name": "hora", "mask": "gbHora"}, {"name": "cep", "mask": "gbCEP"},
 {"name": "cidade", "mask": "gbCidadeEstado", "set": {"Appearance": 0}}, {"name": "cpf", "mask": "gbCPF"},
 {"name": "outra", "mask": "gbData"}]
END
start "'$program' form --fields escrito.json >out"
sees 'campo 1 de 6'
keys -l '5/3/24'
keys Enter
keys -l '9:5'
keys Enter
keys -l '01310-100'
keys Enter
keys -l 'ouro preto/mg'
keys Tab
keys -l '111.444.777-36'
keys Enter
sees '✗ O CPF informado é inválido.'
sees 'campo 5 de 6'
keys 11144477735 Enter
paste '05/03/2024'
sees '│05│ / │03│ / ┃2024┃'
keys BSpace BSpace BSpace BSpace BSpace
sees '│05│ / ┃03┃ / │    │'
keys BSpace BSpace BSpace BSpace BSpace BSpace BSpace BSpace
sees '┃  ┃ / │  │ / │    │'
sees 'campo 6 de 6'
keys F10
done_with '{"data":"05/03/2024","hora":"09:05","cep":"01310-100","cidade":"ouro preto/MG","cpf":"111.444.777-35","outra":""}'

# Shapes for a shell; empty fields.
cat >"$work/curto.json" <<'END'
[{"name": "nome", "mask": "gbNenhuma"}, {"name": "faixa", "mask": "gbIntervaloNumerico"}]
END
run() {
  start "'$program' form --fields curto.json $1 >out; stty -g >after"
  sees 'campo 1 de 2'
  keys -l "d'a"
  keys F10
  sees 'left'
}
run '--format env'
expect "nome='D'\\''A' faixa=''" "$(tr '\n' ' ' <"$work/out" | sed 's/ $//')"
run '--format tsv'
expect $'nome\tD\'A|faixa\t|' "$(tr '\n' '|' <"$work/out")"
run '--print0'
expect "D'A||" "$(tr '\0' '|' <"$work/out")"
run '--nulls'
expect "{\"nome\":\"D'A\",\"faixa\":null}" "$(cat "$work/out")"

# A window of 40 by 10 holds it: labels above whole boxes.
tmux -L "$socket" resize-window -t form -x 40 -y 10
start "'$program' form --fields campos.json >out"
sees '▸ ┃                                   ┃'
keys 11144477736 Tab
sees '✗ O CPF informado é inválido.'
sees 'Enter avança · F10 conclui · F1 ajuda'
keys End C-c
sees 'left'
tmux -L "$socket" resize-window -t form -x 80 -y 24

# A signal ends the form with nothing printed and the terminal as it was.
start "bash -c 'echo \$\$ >pid; exec \"$program\" form >out'; echo \$? >status; stty -g >after"
sees 'Um campo de cada espécie'
kill -TERM "$(cat "$work/pid")"
done_with ''
expect 143 "$(cat "$work/status")"
cmp "$work/before" "$work/after"

expect 2 "$(TERM=xterm "$program" form </dev/null >/dev/null 2>&1; echo $?)"
