# Completion of contrat-hote for bash.
_contrat_hote() {
  local mot=${COMP_WORDS[COMP_CWORD]}
  COMPREPLY=()
  if [[ $mot == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "--aidant --captures --taille --sombre --meme-en-reseau --help --version" -- "$mot")
  else
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$mot")
  fi
}
complete -F _contrat_hote contrat-hote
