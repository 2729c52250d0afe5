# Completion of gabarito for bash. Kinds and properties are asked of the program itself.
_gabarito() {
  local program=$1 word=$2 before=$3 command='' i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      masks | field | batch | script | form)
        command=${COMP_WORDS[i]}
        break
        ;;
    esac
  done
  case $before in
    -m | --mask)
      mapfile -t COMPREPLY < <(compgen -W "$("$program" masks 2>/dev/null | cut -d' ' -f1)" -- "$word")
      return
      ;;
    -s | --set)
      local properties
      properties=$("$program" --lang en field --help 2>/dev/null | sed -n 's/^Properties: \(.*\)\.$/\1/p')
      mapfile -t COMPREPLY < <(compgen -S= -W "${properties//,/ }" -- "$word")
      compopt -o nospace
      return
      ;;
    -t | --text | -k | --keys)
      return
      ;;
    --format)
      mapfile -t COMPREPLY < <(compgen -W 'json env tsv' -- "$word")
      return
      ;;
    --lang)
      mapfile -t COMPREPLY < <(compgen -W 'en pt' -- "$word")
      return
      ;;
    --fields)
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      compopt -o filenames
      return
      ;;
  esac
  local words=--help
  case $command in
    '') words='masks field batch script form --help --lang --version -V' ;;
    masks) words='--json --help' ;;
    field) words='--mask --set --text --keys --help' ;;
    batch) words='--mask --set --help' ;;
    form) words='--fields --format --print0 --nulls --help' ;;
  esac
  if [[ $word != -* && ($command == batch || $command == script) ]]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
    compopt -o filenames
  else
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  fi
}
complete -F _gabarito gabarito
