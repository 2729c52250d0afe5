#!/usr/bin/env bash
# The scripts of docs/form.md with a person at them: examples_tmux.sh PROGRAM EXAMPLES. Ends with 77 without tmux.
program=$(realpath "$1")
examples=$(realpath "$2")
. "$(dirname "$0")/pane.sh"

start "GABARITO='$program' '$examples/cadastro.sh' pessoa.tsv >out; echo \$? >status"
sees 'Cadastro de pessoa'
keys -l 'maria {cpf} silva'
keys Enter 11144477735 Enter 15 03 1990 Enter
keys -l 'rua das flores, 12'
keys Enter 01310100 Enter
sees 'campo 6 de 8'
keys -l 'sao pau'
sees '┃SAO PAULO'
keys F10
done_with 'gravado em pessoa.tsv'
expect 0 "$(cat "$work/status")"
expect 'rua|RUA DAS FLORES, 12' "$(sed -n 's/\t/|/; 4p' "$work/pessoa.tsv")"
letter=$("$examples/carta.sh" "$work/pessoa.tsv")
for line in 'Prezado(a) MARIA {CPF} SILVA,' 'o CPF 111.444.777-35, com nascimento em 15/03/1990.' \
  'para RUA DAS FLORES, 12, CEP 01310-100.'; do
  [[ $letter == *"$line"* ]] || { printf 'no "%s" in:\n%s\n' "$line" "$letter"; exit 1; }
done

# Who gives up has nothing kept.
start "GABARITO='$program' '$examples/cadastro.sh' nada.tsv 2>out; echo \$? >status"
sees 'Cadastro de pessoa'
keys C-c
done_with 'nada foi gravado'
expect 130 "$(cat "$work/status")"
[ ! -e "$work/nada.tsv" ]
