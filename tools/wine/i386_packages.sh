# shellcheck shell=bash
# Downloads i386 packages of this machine's distribution without touching the machine's own package lists and state.
# Meant to be sourced by bash with `set -euo pipefail`, after common.sh. The caller sets work_dir, a folder of its own
# in which everything is kept.

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

# Runs apt-get or apt-cache ($1) with lists, archives and state in $work_dir, for i386 and the sources in
# $work_dir/sources.list. Complaints go to $work_dir/apt.log.
private_apt() {
  local tool=$1
  shift
  "$tool" -q \
    -o APT::Architecture=i386 -o APT::Architectures=i386 -o APT::Install-Recommends=false \
    -o Dir::Etc::sourcelist="$work_dir/sources.list" -o Dir::Etc::sourceparts=- \
    -o Dir::State="$work_dir/state" -o Dir::State::lists="$work_dir/lists" -o Dir::State::status=/dev/null \
    -o Dir::Cache="$work_dir/cache" -o Dir::Cache::archives="$work_dir/archives" \
    -o Dir::Cache::pkgcache= -o Dir::Cache::srcpkgcache= \
    -o APT::Sandbox::User= -o Debug::NoLocking=1 -o Acquire::Retries=3 -o Acquire::Languages=none \
    "$@" </dev/null 2>>"$work_dir/apt.log"
}

# Reads the i386 index of one source; false when it cannot be read or is not signed by the distribution.
read_index() {
  local address=$1 release=$2
  mkdir -p "$work_dir"/{state,lists/partial,cache,archives/partial}
  printf 'deb [arch=i386 signed-by=%s] %s %s main\n' "$archive_keyring" "$address" "$release" >"$work_dir/sources.list"
  private_apt apt-get -o APT::Update::Error-Mode=any update >>"$work_dir/apt.log"
}

# Runs the function $1, which downloads something with private_apt, with one source after the other until it succeeds.
with_an_archive() {
  local download=$1
  local -a candidates
  mapfile -t candidates < <(archive_candidates)
  if ((${#candidates[@]} == 0)); then
    say "no archive of this distribution among the machine's package sources"
    return 1
  fi
  local attempt address release candidate
  for ((attempt = 1; attempt <= download_attempts; attempt++)); do
    for candidate in "${candidates[@]}"; do
      read -r address release <<<"$candidate"
      if read_index "$address" "$release" && "$download"; then return 0; fi
    done
    say "attempt $attempt of $download_attempts to download the i386 packages failed"
    if ((attempt < download_attempts)); then sleep $((attempt * 5)); fi
  done
  tail -n 15 "$work_dir/apt.log" >&2
  return 1
}
