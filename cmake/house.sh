# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What run, test and .ci/run share: finding and installing packages, one build folder per user, quiet
# building with progress. Sourced by bash; expects `root`, the top of the checkout.

say() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

# Whether the one changing line can be drawn.
on_terminal() { [[ -t 1 && "${TERM:-dumb}" != dumb ]]; }

# What a compiler cache must overlook to keep compiled headers and what includes them.
export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros,include_file_mtime,include_file_ctime}"

# packages_of PROFILE...: the packages of debian/control for building with these build profiles, and for running.
packages_of() { awk -v profiles="$*" -f "$root/cmake/packages.awk" "$root/debian/control"; }

# need_packages PROFILE...: installs what is missing and says what. One look when nothing is missing.
need_packages() {
  local wanted missing as_root=() log
  mapfile -t wanted < <(packages_of "$@")
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    # Not a Debian system. With the tools at hand go on; CMake names what else is missing.
    command -v cmake >/dev/null && command -v ninja >/dev/null && return 0
    fail "This system has no apt-get, so please install these packages, or what they are called here: ${wanted[*]}"
  fi
  mapfile -t missing < <(
    { dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null || true; } |
      awk -v wanted="${wanted[*]}" '
        $1 == "installed" { have[$2] = 1 }
        END { n = split(wanted, names, " "); for (i = 1; i <= n; ++i) if (!(names[i] in have)) print names[i] }')
  ((${#missing[@]} == 0)) && return 0

  local command="apt-get install --no-install-recommends ${missing[*]}"
  if (($(id -u) != 0)); then
    command -v sudo >/dev/null || fail "There is no sudo here. Please have an administrator run: $command"
    # sudo drops the variables of the caller, so env stands behind it.
    as_root=(sudo)
    [[ -t 0 ]] || as_root+=(-n)
    local refusal
    refusal="$("${as_root[@]}" env true 2>&1)" ||
      fail "${refusal:+$refusal$'\n'}sudo gave no permission. Please have an administrator run: $command"
  fi
  as_root+=(env DEBIAN_FRONTEND=noninteractive)
  log="$(mktemp "${TMPDIR:-/tmp}/nascor-install-XXXXXX.log")" || fail "Nothing can be written to ${TMPDIR:-/tmp}."
  keep_services_from_starting
  ((${#missing[@]} > 0)) || { rm -f "$log"; return 0; }
  say "Installing: ${missing[*]}"
  # Another apt may hold the lock. A stale package list still finds most packages, so a failed update alone is no
  # reason to stop; what an interrupted installation left behind would be one.
  local apt=(apt-get -q -y -o DPkg::Lock::Timeout=120)
  quietly "$log" "reading the package lists" "${as_root[@]}" "${apt[@]}" update ||
    say "The package lists could not be brought up to date; going on with the old ones."
  "${as_root[@]}" dpkg --configure -a >>"$log" 2>&1 || true
  if ! quietly "$log" "installing ${#missing[@]} packages" \
      "${as_root[@]}" "${apt[@]}" install --no-install-recommends "${missing[@]}"; then
    cause_in "$log" || tail -n 15 "$log" >&2
    fail "Installing failed. The whole log is in $log"
  fi
  rm -f "$log"
}

# services_of PACKAGE: the services that Debian starts when it installs this package, and with the machine from then on.
services_of() {
  case "$1" in
    munge | orthanc | postgresql) say "$1.service" ;;
    slurm-wlm) say slurmctld.service slurmd.service ;;
  esac
}

# For need_packages: masks the services of what is `missing`, before it is installed; the tests start servers of their own. What
# cannot be kept from starting is not installed.
keep_services_from_starting() {
  local package services kept=()
  for package in "${missing[@]}"; do
    read -r -a services < <(services_of "$package") || services=()
    if ((${#services[@]} == 0)) || "${as_root[@]}" systemctl mask "${services[@]}" >>"$log" 2>&1; then
      kept+=("$package")
    else
      say "Without $package, whose service would start here; tests that need it are skipped."
    fi
  done
  missing=("${kept[@]}")
}

# cause_in LOG: says what from outside made a command fail, if it was that.
cause_in() {
  local server
  if grep -qE 'No space left on device|have enough free space' "$1"; then
    say "The disk is full." >&2
  elif grep -qE 'Temporary failure resolving|Could not resolve|Could not connect|Network is unreachable|Connection (failed|timed out)' "$1"; then
    server="$(grep -oE "(failure resolving|not resolve|connect to) '?[A-Za-z0-9.-]+" "$1" | tail -n 1 | sed -E "s/.*[ ']//" || true)"
    say "There is no connection to the package server${server:+ $server}." >&2
  else
    return 1
  fi
}

# quietly LOG TITLE COMMAND...: runs the command with its output in LOG (appended). On a terminal, TITLE and the
# last line that the command wrote stand in one changing line; elsewhere TITLE is printed once.
quietly() {
  local log="$1" title="$2" status=0
  shift 2
  if on_terminal; then
    noting_status "$log" "$@" | tee -a "$log" | show_last_line "$title"
    status="$(noted_status "$log")"
  else
    say "  $title"
    "$@" >>"$log" 2>&1 </dev/null || status=$?
  fi
  return "$status"
}

# noting_status LOG COMMAND...: runs the command at the head of a pipe; noted_status LOG says how it ended.
noting_status() {
  local noted="$1.status" status=0
  shift
  "$@" 2>&1 </dev/null || status=$?
  { say "$status" >"$noted"; } 2>/dev/null || true
}
# A full disk takes no note, and that is no success.
noted_status() {
  local status
  status="$(cat "$1.status" 2>/dev/null || true)"
  rm -f "$1.status"
  say "${status:-1}"
}

# Draws standard input as one changing line behind a title, and wipes it at the end.
show_last_line() {
  local line width
  while IFS= read -r line; do
    width=$(($(tput cols 2>/dev/null || echo 80) - ${#1} - 4))
    ((width > 0)) && printf '\r\033[K  %s  %s' "$1" "${line:0:width}"
  done
  printf '\r\033[K'
}

# How many compilers at once: one a processor, but none without 1.2 GB of memory of its own.
jobs_here() {
  local cpus memory
  cpus="$(nproc 2>/dev/null || echo 2)"
  memory="$(awk '/^MemAvailable:/ { print int($2 / 1200000) }' /proc/meminfo 2>/dev/null || true)"
  [[ -n "$memory" ]] && ((memory < cpus)) && cpus=$((memory < 1 ? 1 : memory))
  say "$cpus"
}

# own_folder NAME: makes NAME in the checkout and prints its path. What root makes in another user's checkout is
# that user's, or root's build would lock them out. Where the checkout cannot be written, it lies in the cache.
own_folder() {
  local folder="$root/$1"
  if mkdir -p "$folder" 2>/dev/null && [[ -w "$folder" ]]; then
    (($(id -u) != 0)) || chown --reference="$root" "$root/${1%%/*}"
  else
    folder="${XDG_CACHE_HOME:-${HOME:-/tmp/nascor-$(id -u)}/.cache}/nascor/$1"
    mkdir -p "$folder" || fail "Neither $root nor $folder can be written."
  fi
  say "$folder"
}

# build_folder PRESET: one folder per preset and user.
build_folder() { own_folder "build/$1-$(id -u)"; }

# cached FOLDER NAME: the value of a variable of the folder's CMake cache, empty if there is none.
cached() { sed -n "s/^$2:[A-Z]*=//p" "$1/CMakeCache.txt" 2>/dev/null || true; }

# build PRESET FOLDER TESTS [TARGET...]: configures where that is needed and builds, with progress. TESTS is ON or OFF;
# tests that were wanted once in a folder stay there, so that ./run after ./test builds nothing anew.
build() {
  local preset="$1" folder="$2" tests="$3" log="$2/build.log" status=0
  shift 3
  # ccache needs a place to write; without one it would fail every compilation.
  [[ -w "${CCACHE_DIR:-${XDG_CACHE_HOME:-${HOME:-/nonexistent}}}" ]] || export CCACHE_DISABLE=1

  # What another checkout compiled from the same sources is taken from the cache.
  export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$root}"

  # A checkout that was moved or copied brings a build folder that points elsewhere.
  if [[ -f "$folder/CMakeCache.txt" && "$(cached "$folder" CMAKE_HOME_DIRECTORY)" != "$root" ]]; then
    rm -rf "$folder"
    mkdir -p "$folder"
  fi
  { : >"$log"; } 2>/dev/null || fail "Nothing can be written to $folder."
  [[ "$(cached "$folder" BUILD_TESTING)" != ON ]] || tests=ON
  if [[ ! -f "$folder/build.ninja" || "$root/CMakePresets.json" -nt "$folder/build.ninja" ||
        "$(cached "$folder" BUILD_TESTING)" != "$tests" ]]; then
    configure "$preset" "$folder" "$log" "-DBUILD_TESTING=$tests"
  fi

  NINJA_STATUS="%f %t " noting_status "$log" ninja -C "$folder" -j "$(jobs_here)" "$@" |
    tee -a "$log" | show_steps "building"
  status="$(noted_status "$log")"
  if ((status != 0)); then
    cause_in "$log" || true
    # CMake may have run again and found a mistake in a CMakeLists.txt.
    grep -m1 -A15 'CMake Error' "$log" >&2 || true
    # Ninja prints a failed command behind "FAILED:", then what it said. The first one tells the most.
    awk '/^FAILED: / { ++n } n == 1 && /^[0-9]+ [0-9]+ / { exit } n == 1' "$log" | cut -c1-400 | head -n 40 >&2
    grep -q '^FAILED: ' "$log" || tail -n 5 "$log" >&2
    fail "Building failed. The whole log is in $log"
  fi
}

# configure PRESET FOLDER LOG [OPTION...]
configure() {
  local preset="$1" folder="$2" log="$3" had_cache=""
  shift 3
  [[ ! -f "$folder/CMakeCache.txt" ]] || had_cache=yes
  (cd "$root" && quietly "$log" "configuring ($preset)" cmake --preset "$preset" -B "$folder" "$@") && return 0
  # What another CMake or another choice left behind may be all that is wrong.
  if [[ -n "$had_cache" ]]; then
    : >"$log"
    (cd "$root" && quietly "$log" "configuring anew ($preset)" cmake --fresh --preset "$preset" -B "$folder" "$@") && return 0
  fi
  # The first error, with what CMake says about it; the rest follows from it.
  cause_in "$log" || grep -m1 -A15 'CMake Error' "$log" >&2 || tail -n 20 "$log" >&2
  rm -f "$folder/build.ninja"
  fail "Configuring failed. The whole log is in $log"
}

# Reads lines "DONE OF WHAT", draws them as one changing line on a terminal and as a line each tenth elsewhere.
show_steps() {
  local finished total what shown=-1
  while read -r finished total what; do
    [[ "$finished" =~ ^[0-9]+$ && "$total" =~ ^[0-9]+$ && "$total" != 0 ]] || continue
    if on_terminal; then
      printf '\r\033[K  %s %d of %d  %s' "$1" "$finished" "$total" "${what:0:50}"
    elif ((total > 4 && finished * 10 / total != shown)); then
      shown=$((finished * 10 / total))
      say "  $1: $finished of $total"
    fi
  done
  ! on_terminal || printf '\r\033[K'
}

# run_tests FOLDER [CTEST ARGUMENT...]: runs ctest with progress, shows what failed with its output and which tests took
# longest, and ends with ctest's closing line.
run_tests() {
  local folder="$1" log="$1/test.log" status=0
  shift
  noting_status "$log" ctest --test-dir "$folder" --output-on-failure --no-tests=error --no-label-summary -j "$(jobs_here)" "$@" |
    tee "$log" |
    sed -u -n -E 's/^ *([0-9]+)\/([0-9]+) Test +#[0-9]+: ([^ ]+).*/\1 \2 \3/p' | show_steps "testing"
  status="$(noted_status "$log")"
  ((status == 0)) || grep -v -E '^ *[0-9]+/[0-9]+ Test .* Passed|^ *Start ' "$log" | sed '/tests passed/,$d' | tail -n 200
  grep -h '^Time zone drawn' "$folder/Testing/Temporary/LastTest.log" 2>/dev/null | sort -u | sed 's/^/  /' || true
  sed -n -E 's/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: (.*[^ .]) \.+.* ([0-9]+)\.[0-9]+ sec.*/\2 s  \1/p' "$log" |
    sort -rn | awk '$1 >= 5 { print "  slow: " $0 }' | head -n 10
  # Ctest's summary, its verdict last.
  sed -n '/tests passed/,$p' "$log" | grep -v -E 'tests passed|^ *$|^Errors while|^Output from these|^Use "' || true
  ((status == 0)) || say "The whole log is in $log"
  grep -E 'tests passed' "$log" || { tail -n 20 "$log"; status=1; }
  return "$status"
}
