#!/usr/bin/env bash
# The completions as the shells run them. usage: completion.sh TOOL DATA_FOLDER
set -euo pipefail
data=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/bin"
ln -s "$1" "$scratch/bin/qelpro"
export PATH=$scratch/bin:$PATH HOME=$scratch
cp "$data/injection_two_inlets.pro" "$scratch/my file.pro"
cp "$data/injection_two_inlets.pro" "$scratch/a.pro"
cd "$scratch"
failed=0

# expect WHERE ANSWER [CANDIDATE ...]: each of them is a line of the answer, and one after "!" is none
expect() {
  local candidate
  for candidate in "${@:3}"; do
    if [[ $candidate == !* ]]; then
      ! grep -qxF -- "${candidate#!}" <<<"$2" || { echo "$1: offers ${candidate#!}"; failed=1; }
    else
      grep -qxF -- "$candidate" <<<"$2" || { echo "$1: does not offer $candidate, but: $(head -n 5 <<<"$2" | xargs)"; failed=1; }
    fi
  done
}

# --- bash: the line as it is cut at its word breaks, up to where it ends
cat >bash_line <<'EOF'
source <(qelpro completion bash)
compopt() { echo "compopt $*"; }
COMP_LINE=$1 COMP_POINT=${#1}
# As readline cuts: at blanks, and around ":" and "=", which are words of their own.
words=()
while IFS= read -r word; do words+=("$word"); done < <(sed -E "s/('[^']*'|[^ :='\\]+|\\\\.)+|[:=]+| +/&\n/g" <<<"$1" | sed '/^ *$/d')
[[ $1 != *' ' ]] || words+=('')
COMP_WORDS=("${words[@]}") COMP_CWORD=$((${#words[@]} - 1))
COMP_WORDBREAKS=$' \t\n"'"'"'><=;|&(:'
_qelpro
printf '%s\n' "${COMPREPLY[@]}"
complete -p qelpro
EOF
in_bash() { expect "bash: $1" "$(bash --norc bash_line "$1" 2>&1)" 'complete -F _qelpro qelpro' "${@:2}"; }
in_bash 'qelpro ' get set sweep completion
in_bash 'qelpro se' set '!get'
in_bash 'qelpro sweep --d' --dry-run '!--set'
in_bash 'qelpro get ' 'compopt -o default'
in_bash 'qelpro get a.pro Flo' Flow-1. Flow-2. 'compopt -o nospace'
in_bash 'qelpro get a.pro Flow-1.Fi' Flow-1.FillTime '!compopt -o nospace'
in_bash "qelpro get 'my file.pro' Flow-2.Fi" Flow-2.FillTime
in_bash 'qelpro explain Flow-1.Fi' Flow-1.FillTime
in_bash 'qelpro explain Flow-1-S' Flow-1-Skin. '!Flow-%ld'
in_bash 'qelpro set a.pro Flow-7.Fi' Flow-7.FillTime=
in_bash 'qelpro get my\ file.pro Flow-2.Fi' Flow-2.FillTime
in_bash 'qelpro get ~/a.pro Flow-2.Fi' Flow-2.FillTime
in_bash 'qelpro get a.pro Flow-1 Fi' FillTime
in_bash 'qelpro get a.pro \[Flow-1\] Fi' FillTime
in_bash 'qelpro get a.pro Flow-1.FillTime --j' --json
in_bash 'qelpro set a.pro Flow-1.Fi' Flow-1.FillTime= 'compopt -o nospace'
in_bash 'qelpro set a.pro FlowCTL.VPSwitchCtrl=' 0 1 '!FlowCTL.VPSwitchCtrl=0'
in_bash 'qelpro sweep a.pro --set Flow-1.FillTime=1:2:1 --set Flow-2.Fi' Flow-2.FillTime=
in_bash 'qelpro show a.pro Flow' Flow-1 Flow-2
in_bash 'qelpro sweep a.pro -o ' 'compopt -o default'
in_bash 'qelpro completion ' bash zsh fish

# --- zsh: the function with the words that the line editor would give it
cat >zsh_line <<'EOF'
compdef() { print "compdef $*" }
source <(qelpro completion zsh)
compadd() { while [[ $1 != -- ]]; do print "compadd $1"; shift; done; shift; print -rl -- "$@" }
_files() { print _files }
words=("$@") CURRENT=$# PREFIX=${@[-1]}
_qelpro
EOF
in_zsh() {
  local words=()
  while (($#)) && [[ $1 != -- ]]; do words+=("$1"); shift; done
  expect "zsh: ${words[*]}" "$(zsh -f zsh_line "${words[@]}" 2>&1)" 'compdef _qelpro qelpro' "${@:2}"
}
in_zsh qelpro se -- set '!get'
in_zsh qelpro '' -- get sweep
in_zsh qelpro get '' -- _files
in_zsh qelpro get a.pro Flo -- Flow-1. 'compadd -S'
in_zsh qelpro get "'my file.pro'" Flow-1.Fi -- Flow-1.FillTime '!compadd -S'
in_zsh qelpro get '~/a.pro' '\[Flow-1\]' Fi -- FillTime
in_zsh qelpro set a.pro FlowCTL.VPSwitchCtrl= -- FlowCTL.VPSwitchCtrl=0
in_zsh qelpro sweep --d -- --dry-run
# --- fish
in_fish() {
  expect "fish: $1" "$(XDG_CONFIG_HOME=$scratch fish --no-config -c "qelpro completion fish | source; complete -C \"$1\"" 2>&1 |
    cut -f 1)" "${@:2}"
}
in_fish 'qelpro se' set '!get'
in_fish 'qelpro sweep --d' --dry-run
in_fish 'qelpro get a' a.pro
in_fish 'qelpro get a.pro Flo' Flow-1. '!a.pro'
in_fish 'qelpro get a.pro Flow-1.Fi' Flow-1.FillTime
in_fish "qelpro get 'my file.pro' Flow-1.Fi" Flow-1.FillTime
in_fish 'qelpro set a.pro FlowCTL.VPSwitchCtrl=' FlowCTL.VPSwitchCtrl=0
in_fish 'qelpro get a.pro ' Flow-1.

# --- at a terminal: the candidate is put into the line, and the value goes on behind its "="
mkdir functions
qelpro completion zsh >functions/_qelpro
cat >terminal <<'EOF'
zmodload zsh/zpty
zpty -b shell $1
zpty -w shell "$2; echo rea''dy"
zpty -r shell answer '*ready*'
zpty -w -n shell $'qelpro set a.pro Flow-2.FillTi\t'$3$'\n'
for i in {1..100}; do
  [[ $(qelpro get a.pro Flow-2.FillTime) != $3 ]] || break
  zpty -r -t shell answer || sleep 0.1
done
zpty -d shell
EOF
at_terminal() {
  zsh -f terminal "$1" "$2" "$3" >/dev/null 2>&1
  expect "$1" "$(qelpro get a.pro Flow-2.FillTime)" "$3"
}
if zsh -fc 'zmodload zsh/zpty && zpty probe true' 2>/dev/null; then
  at_terminal 'bash --norc -i' 'source <(qelpro completion bash)' 7.25
  at_terminal 'zsh -f -i' "fpath=($PWD/functions \$fpath); autoload -U compinit; compinit -u -D" 7.75
else
  echo "no terminal can be opened here: completion at one is not tested"
fi

exit $failed
