#!/usr/bin/env bash
# Fills a letter from what cadastro.sh has kept: carta.sh FILE [MODEL]. In the model {name} stands for a value.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
declare -A person
while IFS=$'\t' read -r name value; do person[$name]=$value; done <"${1:?usage: carta.sh FILE [MODEL]}"
rest=$(<"${2:-$here/carta.txt}")
letter=
# Piece by piece, so that a brace inside a value stays what it is.
while [[ $rest =~ \{([a-z_]+)\} ]]; do
  letter+=${rest%%"${BASH_REMATCH[0]}"*}${person[${BASH_REMATCH[1]}]-}
  rest=${rest#*"${BASH_REMATCH[0]}"}
done
printf '%s\n' "$letter$rest"
