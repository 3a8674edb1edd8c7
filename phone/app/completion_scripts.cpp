#include "phone/app/completion_scripts.h"

namespace phone {

// `phone complete -- WORD...` prints the kind of what may follow on its first line, and a candidate on each
// further one, with its meaning behind a tab. It is asked for the words up to the cursor.

std::string_view bashCompletion() {
  return R"bash(# Completes the words of phone in bash. To have it always, add to ~/.bashrc:
#   eval "$(phone completion bash)"

# A word without the quotes and backslashes that it is typed with.
_phone_unquoted() {
  local word=$1
  case $word in
    \"*) word=${word#\"} word=${word%\"} ;;
    \'*) word=${word#\'} word=${word%\'} ;;
    \~/*) word=$HOME/${word#\~/} ;;
  esac
  printf '%s' "${word//\\/}"
}

_phone() {
  local rest=${COMP_LINE:0:COMP_POINT} i word blank
  local -a words=() plain=() lines=()
  # bash takes words apart at colons and equals signs; here they are put together again.
  for ((i = 0; i <= COMP_CWORD; i++)); do
    blank=${rest%%[![:space:]]*}
    rest=${rest#"$blank"}
    word=${COMP_WORDS[i]}
    ((i < COMP_CWORD)) || word=$rest
    rest=${rest#"$word"}
    if [[ -z $blank && $i -gt 0 ]]; then words[-1]+=$word; else words+=("$word"); fi
  done
  for word in "${words[@]:1}"; do plain+=("$(_phone_unquoted "$word")"); done
  local typed=${plain[-1]} apart=
  COMPREPLY=()
  mapfile -t lines < <("${COMP_WORDS[0]/#\~/$HOME}" complete -- "${plain[@]}" 2>/dev/null)
  # bash replaces only what stands behind the last place at which it took the word apart.
  case ${words[-1]} in
    [\"\']*) ;;
    *[:=]*) apart=${typed%"${typed##*[:=]}"} ;;
  esac
  case ${lines[0]-} in
    files | folders)
      compopt -o filenames
      local action=-f
      [[ ${lines[0]} == files ]] || action=-d
      [[ $typed != -*=* ]] || typed=${typed#*=}
      mapfile -t COMPREPLY < <(compgen "$action" -- "$typed")
      return
      ;;
    # So that bash quotes what it puts into the line.
    names) compopt -o filenames ;;
  esac
  for word in "${lines[@]:1}"; do
    word=${word%%$'\t'*}
    [[ $word != "$typed"* ]] || COMPREPLY+=("${word#"$apart"}")
  done
}
complete -F _phone phone
)bash";
}

std::string_view zshCompletion() {
  return R"zsh(#compdef phone
# Completes the words of phone in zsh. To have it always, add to ~/.zshrc, behind compinit:
#   source <(phone completion zsh)

_phone() {
  local -a lines candidates
  local line name
  lines=("${(@f)$(${~words[1]} complete -- "${(@Q)words[2,CURRENT]}" 2>/dev/null)}")
  case $lines[1] in
    files)
      compset -P '-*='
      _files
      ;;
    folders)
      compset -P '-*='
      _files -/
      ;;
    *)
      for line in "${(@)lines[2,-1]}"; do
        name=${line%%$'\t'*}
        candidates+=("${name//:/\\:}:${line#*$'\t'}")
      done
      _describe phone candidates
      ;;
  esac
}
compdef _phone phone
)zsh";
}

}  // namespace phone
