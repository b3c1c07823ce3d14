#include <string_view>

#include "commands.h"
#include "output.h"
#include "system/failure.h"

namespace qelpro {
namespace {

// The scripts only hand the line over: "qelpro complete -- WORDS..." knows what may stand there.

constexpr std::string_view kBash =
    R"(# Completion of qelpro for bash: source <(qelpro completion bash)
_qelpro() {
  COMPREPLY=()
  # The words as the program gets them: bash cuts at ":" and "=", and leaves quotes.
  local rest=${COMP_LINE:-${COMP_WORDS[*]}} words=() piece word raw i
  [[ -z ${COMP_LINE-} ]] || rest=${COMP_LINE:0:COMP_POINT}
  for ((i = 0; i <= COMP_CWORD; i++)); do
    piece=${COMP_WORDS[i]}
    if ((i == 0)) || [[ -z $rest || $rest == [[:blank:]]* ]]; then
      words+=('')
      rest=${rest#"${rest%%[![:blank:]]*}"}
    fi
    ((i < COMP_CWORD)) || [[ -z ${COMP_LINE-} ]] || piece=$rest
    words[${#words[@]}-1]+=$piece
    rest=${rest#"$piece"}
  done
  raw=${words[${#words[@]}-1]}
  for i in "${!words[@]}"; do
    word=${words[i]}
    case $word in
      \'*) word=${word#\'} word=${word%\'} ;;
      \"*) word=${word#\"} word=${word%\"} ;;
      *) word=${word//\\/} ;;
    esac
    case $word in
      '~/'*) word=$HOME/${word#'~/'} ;;
    esac
    words[i]=$word
  done
  local found status
  found=$("${words[0]}" complete -- "${words[@]:1}" 2>/dev/null)
  status=$?
  if ((status == 1)); then
    compopt -o default
    return
  fi
  [[ -n $found ]] || return
  # What stands in front of the last cut is on the line already.
  local current=${words[${#words[@]}-1]} front='' cut
  if [[ $raw != [\'\"]* ]]; then
    for cut in : =; do
      if [[ $COMP_WORDBREAKS == *"$cut"* && ${current#"$front"} == *"$cut"* ]]; then
        front=${current%"${current##*"$cut"}"}
      fi
    done
  fi
  while IFS= read -r word; do
    [[ $word != *[.=] ]] || compopt -o nospace
    word=${word#"$front"}
    [[ $raw == [\'\"]* || -z $word ]] || printf -v word %q "$word"
    COMPREPLY+=("$word")
  done <<<"$found"
}
complete -F _qelpro qelpro
)";

constexpr std::string_view kZsh = R"(#compdef qelpro
# Completion of qelpro for zsh: source <(qelpro completion zsh), or a file _qelpro in a folder of $fpath
_qelpro() {
  local answer
  local -a front found open closed
  (( CURRENT > 2 )) && front=("${(@Q)words[2,CURRENT-1]}")
  answer=$("${${(Q)words[1]}/#\~\//$HOME/}" complete -- "${front[@]/#\~\//$HOME/}" "${(Q)PREFIX}" 2>/dev/null)
  if (( $? == 1 )); then
    _files
    return
  fi
  found=("${(@f)answer}")
  found=("${(@)found:#}")
  open=("${(@M)found:#*[.=]}")
  closed=("${(@)found:#*[.=]}")
  (( $#open )) && compadd -S '' -- "${open[@]}"
  (( $#closed )) && compadd -- "${closed[@]}"
  (( $#found ))
}
if [[ ${zsh_eval_context[-1]} == loadautofunc ]]; then
  _qelpro "$@"
else
  compdef _qelpro qelpro
fi
)";

constexpr std::string_view kFish =
    R"(# Completion of qelpro for fish: qelpro completion fish | source
function __qelpro_complete
    set -l front (commandline -opc)
    set -l current (commandline -ct)
    set -l found (command $front[1] complete -- $front[2..-1] "$current" 2>/dev/null)
    if test $status -eq 1
        __fish_complete_path "$current"
    else if test (count $found) -gt 0
        printf '%s\n' $found
    end
end
complete -c qelpro -f -a '(__qelpro_complete)'
)";

}  // namespace

int run_completion(const CompletionArguments& arguments) {
  answer() << (arguments.shell == "bash" ? kBash : arguments.shell == "zsh" ? kZsh : kFish);
  return kDone;
}

}  // namespace qelpro
