# Completion of cellgroupcfg for bash.
_cellgroupcfg()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words=
    local input='--as --color --help --verbose' messages='--lines --type'
    local texts='--tree --json --compact --value-notation --flat --trace'
    local octets='--hex --binary --c-array --base64 --output'
    local known='--previous --full --delta --message --full-config --mcg --scg --band --fr --fdd --tdd --carrier
        --carrier-ul --bwp0-dl --bwp0-ul --ssb-bitmap --typeA-position --coreset0 --tdd-pattern --rach --capability
        --bearers --meas-object --endc --nrdc --none --other-cells'
    case $previous in
        --as) words='binary hex hexdump c-array escaped base64 jer flat log' ;;
        --color) words='auto always never' ;;
        --format) words='text gcc json sarif' ;;
        --in) words='bare rrc-reconfiguration rrc-setup' ;;
        --recreate) words='bearers scells bwps none' ;;
        --type) words=$(cellgroupcfg explain 2>/dev/null) ;;
        --severity) words='error warning notice' ;;
        --fail-on) words='error warning notice never' ;;
        --message) words='setup reconfig sync resume reestab' ;;
        --fr) words='1 2' ;;
        --typeA-position) words='2 3' ;;
        -o | --output | --previous | --rach | --capability | --config) compopt -o default && COMPREPLY=() && return ;;
        *)
            if [ "$COMP_CWORD" -eq 1 ]; then
                words='decode encode diff delta apply compose record example check draw view find pcap rules explain --help --version'
            else
                case ${COMP_WORDS[1]} in
                    decode) words="$input $messages $texts --explain $known" ;;
                    encode) words="$input $messages $octets" ;;
                    diff) words="$input --type --json --state --explain $known" ;;
                    delta) words="$input --type --explain --recreate --two-steps --sync --switch $octets" ;;
                    apply) words="$input $messages --state $texts $octets" ;;
                    compose) words="--color --help $texts $octets" ;;
                    record) words="$input --lines --output --cpp" ;;
                    example) words="--all --color --help --output"
                        [[ $current == -* ]] || words=$(cellgroupcfg example 2>/dev/null | cut -d' ' -f1) ;;
                    check) words="$input $messages --format --severity --fail-on --only --disable --config --no-config --chain
                        $known" ;;
                    draw) words="$input --output --slots --from $known" ;;
                    view) words="$input --output $known" ;;
                    find) words="$input $messages --min-octets --decode --json" ;;
                    pcap) words="$input --lines --in --output" ;;
                    rules) words="--color --help --json"
                        [[ $current == -* ]] || words=$(cellgroupcfg rules 2>/dev/null | cut -d ' ' -f 1) ;;
                    explain) words="--color --help --tree"
                        [[ $current == -* ]] ||
                            words=$(cellgroupcfg explain 2>/dev/null; cellgroupcfg rules 2>/dev/null | cut -d ' ' -f 1) ;;
                esac
                if [[ $current != -* && ! ${COMP_WORDS[1]} =~ ^(explain|rules|example)$ ]]; then
                    compopt -o default
                    COMPREPLY=()
                    return
                fi
            fi
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}
complete -F _cellgroupcfg cellgroupcfg
