# shellcheck shell=bash
# Reads packages of the distribution's own archive for any architecture, with lists and a state of its own below
# $work_dir, so that nothing of the machine's package system changes. Meant to be sourced after common.sh.

readonly archive_keyring=/usr/share/keyrings/debian-archive-keyring.gpg
readonly download_attempts=3

# Prints "address release" of every source of this machine that may be the distribution's own archive. A third-party
# source among them does no harm: its index is not signed with the archive's key, so reading it fails.
archive_candidates() {
  local codename
  codename=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release | tr -d '"')
  # shellcheck disable=SC2016  # the variables are apt's
  apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
    awk -v codename="$codename" '
      $3 == "main" && ($2 == codename || $2 ~ /^(oldstable|stable|testing|sid|unstable)$/) && !seen[$1 $2]++ {
        print $1, $2
      }'
}

# apt-get for the architecture $1 with its own lists, archives and state, and the sources in $work_dir/sources.list.
# What it downloads goes to $work_dir/archives.
private_apt() {
  local architecture=$1
  shift
  mkdir -p "$work_dir"/{state,lists/partial,cache,archives/partial}
  env --chdir="$work_dir/archives" apt-get -q -y \
    -o APT::Architecture="$architecture" -o APT::Architectures="$architecture" -o APT::Install-Recommends=false \
    -o Dir::Etc::sourcelist="$work_dir/sources.list" -o Dir::Etc::sourceparts=- \
    -o Dir::State="$work_dir/state" -o Dir::State::lists="$work_dir/lists" -o Dir::State::status=/dev/null \
    -o Dir::Cache="$work_dir/cache" -o Dir::Cache::archives="$work_dir/archives" \
    -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= \
    -o APT::Sandbox::User= -o Debug::NoLocking=1 -o Acquire::Retries=3 -o Acquire::Languages=none \
    "$@" </dev/null >"$work_dir/apt.log" 2>&1
}

# Reads the index of one source; returns false if it cannot be read or the distribution did not sign it.
read_index() {
  local architecture=$1 address=$2 release=$3
  printf 'deb [arch=%s signed-by=%s] %s %s main\n' "$architecture" "$archive_keyring" "$address" "$release" \
    >"$work_dir/sources.list"
  private_apt "$architecture" -o APT::Update::Error-Mode=any update
}

# Downloads into $work_dir/archives, for the architecture $1, what an apt-get command line names ($3 and so on:
# "download NAME..." for packages alone, "--download-only install NAME..." including all their dependencies), from the
# release whose name ends in $2 (empty, or "-backports").
download_packages() {
  local architecture=$1 pocket=$2
  shift 2
  local -a candidates
  mapfile -t candidates < <(archive_candidates)
  if ((${#candidates[@]} == 0)); then
    say "no archive of this distribution among the machine's package sources; install a 32-bit wine by hand"
    return 1
  fi
  local attempt address release candidate
  for ((attempt = 1; attempt <= download_attempts; attempt++)); do
    for candidate in "${candidates[@]}"; do
      read -r address release <<<"$candidate"
      if read_index "$architecture" "$address" "$release$pocket" &&
        private_apt "$architecture" "$@"; then
        return 0
      fi
    done
    say "attempt $attempt of $download_attempts to download $architecture packages failed"
    if ((attempt < download_attempts)); then sleep $((attempt * 5)); fi
  done
  tail -n 15 "$work_dir/apt.log" >&2
  return 1
}
