#!/usr/bin/env bash
# A person at the form in a real terminal: form_tmux.sh PROGRAM. Ends with 77 when there is no tmux.
set -euo pipefail
command -v tmux >/dev/null || exit 77
program=$1
work=$(mktemp -d)
socket=gabarito-form-$$
trap 'tmux -L "$socket" kill-server 2>/dev/null || true; rm -rf "$work"' EXIT

pane() { tmux -L "$socket" capture-pane -p -t form; }
keys() { tmux -L "$socket" send-keys -t form "$@"; }
# Waits until the pane shows a text.
sees() {
  for _ in $(seq 100); do
    if grep -qF -- "$1" <<<"$(pane)"; then return 0; fi
    sleep 0.1
  done
  echo "never saw: $1"
  pane
  exit 1
}
expect() {
  [ "$2" = "$1" ] && return 0
  printf 'expected: %s\ngot:      %s\n' "$1" "$2"
  exit 1
}

cat >"$work/campos.json" <<'END'
{"fields": [{"name": "cpf", "mask": "gbCPF", "label": "CPF"},
            {"name": "municipio", "mask": "gbCidadeEstadoPopulado", "label": "Município"},
            {"name": "obs", "mask": "gbNenhuma", "label": "Observação"}]}
END
env -u NO_COLOR -u TMUX tmux -L "$socket" -f /dev/null new-session -d -s form -x 80 -y 24 "PS1='> ' bash --norc"
sees '>'
# The command line itself must not show the word that tells of its end.
keys -l "cd '$work'; stty -a >before; x=\$('$program' form --fields campos.json); echo \"\$? \$x\" >out; stty -a >after; clear; echo le''ft"
keys Enter
sees 'Município'

keys 11144477736 Enter
sees 'O CPF informado é inválido.'
keys Enter
keys 11144477735 Enter
sees '111.444.777-35'
keys -l 'sao jose dos ca'
sees '│SAO JOSE DOS CAMPOS/SP'
sees 'F4 abre a lista'
keys Tab
keys -l 'não'
keys Tab
sees '▸             [ Sair ]'
keys Enter
sees 'left'
expect '0 {"cpf":"111.444.777-35","municipio":"SAO JOSE DOS CAMPOS/SP","obs":"NÃO"}' "$(cat "$work/out")"
cmp "$work/before" "$work/after"

# A signal ends the form with nothing printed and the terminal as it was.
keys -l "clear; bash -c 'echo \$\$ >pid; exec \"$program\" form >out'; echo status \$?; stty -a >after"
keys Enter
sees 'Cartão de crédito'
kill -TERM "$(cat "$work/pid")"
sees 'status 143'
for _ in $(seq 50); do [ -s "$work/after" ] && cmp -s "$work/before" "$work/after" && break; sleep 0.1; done
cmp "$work/before" "$work/after"
expect '' "$(cat "$work/out")"

expect 2 "$(TERM=xterm "$program" form </dev/null >/dev/null 2>&1; echo $?)"
