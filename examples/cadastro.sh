#!/usr/bin/env bash
# Asks for a person's data in the terminal and keeps it, a name and a value a line: cadastro.sh FILE
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
file=${1:?usage: cadastro.sh FILE}
values=$("${GABARITO:-gabarito}" form --fields "$here/pessoa.json" --format tsv) || {
  status=$? # 130: the person has given up
  echo "nada foi gravado" >&2
  exit "$status"
}
printf '%s\n' "$values" >"$file"
echo "gravado em $file"
