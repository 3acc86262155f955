# Completion of contrat-pilote for bash.
_contrat_pilote() {
  local mot=${COMP_WORDS[COMP_CWORD]}
  COMPREPLY=()
  if [[ $mot == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "--base --aidant --niveau --date --contrat --etat-supprime --meme-en-reseau \
      --aide" -- "$mot")
  else
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$mot")
  fi
}
complete -F _contrat_pilote contrat-pilote
