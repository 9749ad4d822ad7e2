# Sourced by the helpers beside it: the surroundings of git, units, the archive.
pack='git archive'
. "${0%/*}/../common/units.sh"
. "${0%/*}/../common/leftovers.sh"

# Set by a hook that started us, these would lead to another repository.
unset GIT_DIR GIT_WORK_TREE GIT_INDEX_FILE GIT_OBJECT_DIRECTORY GIT_COMMON_DIR GIT_PREFIX GIT_NAMESPACE

# Nobody is there to answer, to edit or to turn pages; names are names, whatever they contain.
export GIT_TERMINAL_PROMPT=0 GIT_EDITOR=: GIT_SEQUENCE_EDITOR=: GIT_PAGER=cat GIT_MERGE_AUTOEDIT=no
export GIT_LITERAL_PATHSPECS=1
unset GIT_ASKPASS SSH_ASKPASS

needs git

# configure NAME VALUE: for every git that is started from here on.
configure() {
  export "GIT_CONFIG_KEY_${GIT_CONFIG_COUNT:-0}=$1" "GIT_CONFIG_VALUE_${GIT_CONFIG_COUNT:-0}=$2"
  export GIT_CONFIG_COUNT=$((${GIT_CONFIG_COUNT:-0} + 1))
}
configure color.ui false
configure core.askPass ''

# read_settings: every start of git costs time, so what is asked often is asked once.
settings=
read_settings() {
  settings=$newline$(git config --get-regexp '^(core|branch|remote|url|user|veldra)\.' || :)$newline
}

# setting NAME: sets $value; the parts of a name that git does not tell apart are in lower case.
setting() {
  [ -n "$settings" ] || read_settings
  value=
  case $settings in
    *"$newline$1 "*)
      value=${settings##*"$newline$1 "}
      value=${value%%"$newline"*}
      ;;
  esac
}

# silence_ssh: one that may not ask fails at once instead of waiting. To be called before git reaches
# for the archive.
silence_ssh() {
  [ -z "${GIT_SSH_COMMAND:-${GIT_SSH:-}}" ] || return 0
  setting core.sshcommand
  export GIT_SSH_COMMAND="${value:-ssh} -o BatchMode=yes"
}

# on UNITS COMMAND...: a git command that takes the paths from its input.
on() {
  paths=$1
  shift
  each "$paths" | git "$@" --pathspec-from-file=- --pathspec-file-nul
}

# clear_locks_of RECORDS PLACE: of a repository; killed processes leave them.
clear_locks_of() {
  for lock in "$1"/*.lock "$1"/refs/*/*.lock "$1"/refs/*/*/*.lock; do
    [ ! -e "$lock" ] || clear_lock "$lock" "$(real "$2")" git
  done
}

# open_repository: sets $remote (empty: the folder is the archive itself), $target, the branch there,
# and $records, where git keeps what it knows; also $branch, that of this folder, unless it is known.
branch=
open_repository() {
  silence_ssh
  [ -n "$branch" ] || branch=$(git symbolic-ref -q HEAD 2>/dev/null) || {
    git rev-parse --git-dir >/dev/null 2>&1 ||
      fail "The folder is not connected to an archive; connect it first."
    fail "No branch is checked out in this folder; git switch BRANCH leads back to one."
  }
  top=$PWD records=$PWD/.git
  [ -d "$records" ] || {
    top=$(git rev-parse --show-toplevel)
    records=$(git rev-parse --absolute-git-dir)
  }
  setting "branch.${branch#refs/heads/}.remote"
  remote=$value
  if [ -z "$remote" ]; then
    setting remote.origin.url
    [ -z "$value" ] || remote=origin
  fi
  setting "branch.${branch#refs/heads/}.merge"
  target=${value:-$branch}
  clear_locks_of "$records" "$top"
  setting "remote.$remote.url"
  case $value in
    /*) clear_locks_of "$value" "$value" ;;
  esac
}

# receive: learns what the archive holds; sets $tip to its newest commit, empty when it has none, and
# $received when the archive has answered.
received=
receive() {
  tip=
  if [ -z "$remote" ]; then
    tip=$(git rev-parse -q --verify 'HEAD^{commit}' || :)
    return
  fi
  run git fetch -q "$remote" || return
  received=yes
  tip=$(git rev-parse -q --verify "refs/remotes/$remote/${target#refs/heads/}^{commit}" || :)
}

# is_behind: whether the archive has commits that this folder lacks.
is_behind() {
  [ -n "$tip" ] && ! git merge-base --is-ancestor "$tip" HEAD 2>/dev/null
}

# name_user: makes sure that a commit has an author.
name_user() {
  setting user.name
  [ -z "$value${GIT_AUTHOR_NAME:-}" ] || return 0
  setting user.useconfigonly
  [ "$value" != true ] ||
    fail "git knows no user name. Set one with git config --global user.name NAME."
  setting user.email
  login=$(login)
  email=${EMAIL:-${value:-$login@$(uname -n)}}
  export GIT_AUTHOR_NAME="$login" GIT_COMMITTER_NAME="$login"
  export GIT_AUTHOR_EMAIL="$email" GIT_COMMITTER_EMAIL="$email"
  printf "git knows no user name; commits name '%s'. git config --global user.name sets one.\n" \
    "$login"
}

# in_archive UNITS: fails, naming one, unless all of them are under control.
in_archive() {
  run about "$1" git ls-files --error-unmatch >/dev/null || {
    path=${answer#*pathspec \'}
    refuse_stranger "${path%%\' did not match*}"
  }
}

# has_content_of UNITS COMMIT: whether the files have the content of a commit.
has_content_of() {
  each "$1" | xargs -0 git diff --quiet "$2" -- 2>/dev/null
}
