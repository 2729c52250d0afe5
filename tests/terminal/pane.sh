# A person at a terminal, for scripts that source this: a pane of 80 by 24 with a shell in the directory $work.
set -euo pipefail
command -v tmux >/dev/null || exit 77
work=$(mktemp -d)
socket=gabarito-$$
trap 'tmux -L "$socket" kill-server 2>/dev/null || true; rm -rf "$work"' EXIT

pane() { tmux -L "$socket" capture-pane -p -t form; }
keys() { tmux -L "$socket" send-keys -t form "$@"; }
raw() { keys -H "$@"; } # bytes, in hexadecimal
# A paste as a terminal hands it over.
paste() {
  tmux -L "$socket" set-buffer -- "$1"
  tmux -L "$socket" paste-buffer -p -t form
}
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
# Waits until it does not.
loses() {
  for _ in $(seq 100); do
    if ! grep -qF -- "$1" <<<"$(pane)"; then return 0; fi
    sleep 0.1
  done
  echo "still there: $1"
  pane
  exit 1
}
expect() {
  [ "$2" = "$1" ] && return 0
  printf 'expected: %s\ngot:      %s\n' "$1" "$2"
  exit 1
}
# Runs a command line in the pane; done waits for its end. The line itself must not show the word that tells of it.
start() {
  keys -l "clear; $1; clear; echo le''ft"
  keys Enter
}
done_with() {
  sees 'left'
  expect "$1" "$(cat "$work/out")"
}

env -u NO_COLOR -u TMUX tmux -L "$socket" -f /dev/null new-session -d -s form -x 80 -y 24 "PS1='> ' bash --norc"
sees '>'
keys -l "cd '$work'"
keys Enter
