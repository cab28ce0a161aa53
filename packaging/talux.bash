# Completion for talux in bash: commands, options, names of parameters, sources and files.
_talux() {
  local current=${COMP_WORDS[COMP_CWORD]} command='' word words='' IFS=$'\n'
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case $word in
      -*) ;;
      *) command=$word; break ;;
    esac
  done
  case ${COMP_WORDS[COMP_CWORD-1]} in
    --family) words=$(talux list --families) ;;
    --method) words=$(talux list --methods) ;;
    --language) words=$'de\nen' ;;
    --file) words=$'parameter\nsec\nip' ;;
    --of | --against) words=$'live\nstaged\ndefault'; mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
  esac
  if [ -n "$words" ]; then
    :
  elif [ -z "$command" ]; then
    words=$(talux --help | sed -nE 's/^  (-.,)?(--)?([a-z]+) .*/\2\3/p')
  elif [ "${current#-}" != "$current" ]; then
    words=$(talux "$command" --help | grep -oE -- '--[a-z-]+')
  else
    case $command in
      explain | help | list | watch) words=$(talux list --of default | cut -d ' ' -f 1) ;;
      diff | fingerprint | report) words=$'live\nstaged\ndefault' ;;
    esac
    case $command in
      check | diff | fingerprint | report | lint) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    esac
  fi
  # Letter case of names does not count.
  for word in $words; do
    [[ ${word,,} != "${current,,}"* ]] || COMPREPLY+=("$word")
  done
}
complete -o filenames -F _talux talux
