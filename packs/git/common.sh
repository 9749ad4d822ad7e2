# Sourced by the helpers beside it: the surroundings of git, messages, units, the archive.
#
# UNITS of a helper is the path of one file, or "@" and the path of a list with a path a line.
set -eu

# Set by a hook that started us, these would lead to another repository.
unset GIT_DIR GIT_WORK_TREE GIT_INDEX_FILE GIT_OBJECT_DIRECTORY GIT_COMMON_DIR GIT_PREFIX GIT_NAMESPACE

# English texts, because answers are read. LANGUAGE would win over the locale's language.
export LC_ALL=C.UTF-8 LANGUAGE=
# Nobody is there to answer, to edit or to turn pages; names are names, whatever they contain.
export GIT_TERMINAL_PROMPT=0 GIT_EDITOR=: GIT_SEQUENCE_EDITOR=: GIT_PAGER=cat GIT_MERGE_AUTOEDIT=no
export GIT_LITERAL_PATHSPECS=1
unset GIT_ASKPASS SSH_ASKPASS

fail() {
  printf 'git archive: %s\n' "$1" >&2
  exit 1
}

command -v git >/dev/null || fail "The program 'git' is not installed or not in PATH."

# configure NAME VALUE: for every git that is started from here on.
configure() {
  export "GIT_CONFIG_KEY_${GIT_CONFIG_COUNT:-0}=$1" "GIT_CONFIG_VALUE_${GIT_CONFIG_COUNT:-0}=$2"
  export GIT_CONFIG_COUNT=$((${GIT_CONFIG_COUNT:-0} + 1))
}
configure color.ui false
configure core.askPass ''

# An ssh that may not ask fails at once instead of waiting.
[ -n "${GIT_SSH_COMMAND:-${GIT_SSH:-}}" ] ||
  export GIT_SSH_COMMAND="$(git config core.sshCommand || echo ssh) -o BatchMode=yes"

newline='
'

# read_options [--label=LABEL] [COMMENTFILE]: sets $label and $comment.
read_options() {
  label=
  case ${1:-} in
    --label=*)
      label=${1#--label=}
      shift
      ;;
  esac
  comment=${1:-}
}

# run COMMAND...: keeps all that it prints in $answer, so that the caller can look before it shows.
run() {
  answer=$("$@" 2>&1)
}

show() {
  [ -z "$answer" ] || printf '%s\n' "$answer"
}

give_up() {
  show >&2
  exit 1
}

# each UNITS: the paths, each with a zero byte behind it.
each() {
  case $1 in
    @*) tr '\n' '\000' <"${1#@}" ;;
    *) printf '%s\000' "$1" ;;
  esac
}

# below FILE: its path below this folder, also when a link leads to it.
below() {
  path=$1
  ! folder=$(cd -- "${1%/*}" 2>/dev/null && pwd -P) || path=$folder/${1##*/}
  path=${path#"$(pwd -P)"/}
  printf '%s\n' "${path#"$PWD"/}"
}

# on UNITS COMMAND...: a git command that takes the paths from its input.
on() {
  paths=$1
  shift
  each "$paths" | git "$@" --pathspec-from-file=- --pathspec-file-nul
}

# about UNITS COMMAND...: any command with the paths at its end.
about() {
  paths=$1
  shift
  each "$paths" | xargs -0 "$@" --
}

# open_repository: sets $remote (empty: the folder is the archive itself) and $target, the branch
# there.
open_repository() {
  git rev-parse --git-dir >/dev/null 2>&1 ||
    fail "The folder is not connected to an archive; connect it first."
  branch=$(git symbolic-ref -q HEAD) ||
    fail "No branch is checked out in this folder; git switch BRANCH leads back to one."
  name=${branch#refs/heads/}
  remote=$(git config "branch.$name.remote" || :)
  [ -n "$remote" ] || ! git config remote.origin.url >/dev/null || remote=origin
  target=$(git config "branch.$name.merge" || echo "$branch")
}

# receive: learns what the archive holds; sets $tip to its newest commit, empty when it has none.
receive() {
  tip=
  if [ -z "$remote" ]; then
    tip=$(git rev-parse -q --verify 'HEAD^{commit}' || :)
    return
  fi
  run git fetch -q "$remote" || return
  tip=$(git rev-parse -q --verify "refs/remotes/$remote/${target#refs/heads/}^{commit}" || :)
}

# is_behind: whether the archive has commits that this folder lacks.
is_behind() {
  [ -n "$tip" ] && ! git merge-base --is-ancestor "$tip" HEAD 2>/dev/null
}

# name_user: makes sure that a commit has an author.
name_user() {
  [ -z "$(git config user.name)" ] && [ -z "${GIT_AUTHOR_NAME:-}" ] || return 0
  [ "$(git config --type=bool user.useConfigOnly || :)" != true ] ||
    fail "git knows no user name. Set one with git config --global user.name NAME."
  login=${LOGNAME:-${USER:-$(id -un)}}
  email=${EMAIL:-$(git config user.email || echo "$login@$(uname -n)")}
  export GIT_AUTHOR_NAME="$login" GIT_COMMITTER_NAME="$login"
  export GIT_AUTHOR_EMAIL="$email" GIT_COMMITTER_EMAIL="$email"
  printf "git knows no user name; commits name '%s'. git config --global user.name sets one.\n" \
    "$login"
}

# in_archive UNITS: fails, naming one, unless all of them are under control.
in_archive() {
  run about "$1" git ls-files --error-unmatch >/dev/null || {
    path=${answer#*pathspec \'}
    fail "'${path%%\' did not match*}' is not in the archive; add it first."
  }
}

# has_content_of UNITS COMMIT: whether the files have the content of a commit.
has_content_of() {
  each "$1" | xargs -0 git diff --quiet "$2" -- 2>/dev/null
}

# writable: of the paths on the input, those that their owner may write.
writable() {
  xargs -0 -r sh -c 'for f do set -- "$@" "./$f"; shift; done
    find "$@" -maxdepth 0 -type f -perm -u+w -print0 2>/dev/null || :' sh
}

make_read_only() {
  about "$1" chmod a-w
}
