# Completion of contrat-base for bash.
_contrat_base() {
  local mot=${COMP_WORDS[COMP_CWORD]} commande=${COMP_WORDS[1]}
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W "creer importer exporter lire ecrire select echeances fichiers verifier reparer historique \
      retablir supprimer oublier copier restaurer demo --help" -- "$mot")
    return
  fi
  if [[ $mot == -* ]]; then
    local options
    case $commande in
      exporter) options=--fichier ;;
      lire) options="--ancien --json" ;;
      ecrire) options=--item ;;
      select) options="--json --plan" ;;
      echeances) options="--jours --date" ;;
      historique) options=--json ;;
      oublier) options="--avant --aidant --essai" ;;
      demo) options="--aidants --graine" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options --meme-en-reseau --help" -- "$mot")
  elif ((COMP_CWORD == 2)) || [[ $commande == @(importer|copier|restaurer) ]]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$mot")
  fi
}
complete -F _contrat_base contrat-base
