# Completion of sagomi in bash.
_sagomi() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
  case $prev in
    --acciaio) mapfile -t COMPREPLY < <(compgen -W "S235 S275 S355" -- "$cur") ;;
    --normativa) mapfile -t COMPREPLY < <(compgen -W "NTC EC3 Altro" -- "$cur") ;;
    --cartella) mapfile -t COMPREPLY < <(compgen -d -- "$cur") ;;
    --diagramma) mapfile -t COMPREPLY < <(compgen -W "1 2 3 4 5 6" -- "$cur") ;;
    --famiglie)
      # The family behind the last comma; a blank in its name has a backslash before it.
      local inizio=""
      [[ $cur == *,* ]] && inizio=${cur%,*},
      mapfile -t COMPREPLY < <(compgen -P "$inizio" -W "HEA HEB HEM IPE IPEO IPEA IPEX IPN HD HEX HP HEAA UC UB W HL
         HSE HSL HSU HSH ISE HSA HSD UPN UAP 'L\\ Uguali' 'L\\ Disuguali'" -- "${cur##*,}") ;;
    --relazione | --pdf | --dxf) mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
    *) mapfile -t COMPREPLY < <(compgen -W "--help --version --verifica --scelta --N --My --My2 --MyQ --Mz --Mz2
         --MzQ --diagramma --L0y --L0z --L0v --L --k --Kw --C1 --C2 --C3 --za --acciaio --fy --fu --normativa --GammaM0
         --GammaM1 --famiglie
         --hmax --bmax --gmin --gmax --verificati --doppi --accostati --cartella --json --csv --relazione --pdf --dxf --progetto" -- "$cur")
       [[ $cur == -* ]] || mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
  esac
}
complete -F _sagomi sagomi
