# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# How run and test look for packages, with fakes of the system's programs: they ask once when nothing is missing,
# bring the lists up to date before they install, and say in a sentence what stops them.
. "$(dirname "$0")/common.sh" "$@"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

# fake NAME: a program of this name whose text is on standard input; it first notes its call.
fake() {
  { printf '#!/bin/bash\necho "%s $*" >>"%s/calls"\n' "$1" "$work"; cat; } >"$work/bin/$1"
  chmod +x "$work/bin/$1"
}

# setting: a system of its own, without apt, sudo and compilers.
setting() {
  rm -rf "$work/bin" "$work/calls" "$work"/nascor-install-*
  mkdir "$work/bin"
  : >"$work/calls"
  local tool
  for tool in awk cat dirname env grep head mktemp rm sed tail tee tr true uname; do
    ln -s "$(type -P "$tool")" "$work/bin/$tool"
  done
}

# need USER-ID [PROFILE...]: runs need_packages for what ./run builds, or these profiles, as that user; its words are in said,
# its status in status.
need() {
  local user="$1"
  shift
  fake id <<<"echo $user"
  status=0
  said="$(PATH="$work/bin" TMPDIR="$work" bash_root="$root" "$BASH" -c '
    set -euo pipefail; root="$bash_root"; . "$root/cmake/house.sh"; need_packages "$@"' need "${@:-nocheck nodoc}" 2>&1 </dev/null)" || status=$?
}

expect() {
  checks=$((checks + 1))
  "${@:2}" || wrong "$1. Said: $said. Calls: $(tr '\n' ';' <"$work/calls")"
}
said_has() { [[ "$said" == *"$1"* ]]; }
said_lacks() { [[ "$said" != *"$1"* ]]; }
no_log_is_left() { ! compgen -G "$work/nascor-install-*" >/dev/null; }
apt_calls_are() { [[ "$(grep "^apt-get" "$work/calls")" == "$1" ]]; }
status_is() { [[ "$status" == "$1" ]]; }
all_installed='for name; do [[ "$name" == -* || "$name" == *"{"* ]] || echo "installed $name"; done'
all_but_ninja='for name; do [[ "$name" == -* || "$name" == *"{"* || "$name" == ninja* ]] || echo "installed $name"; done'

setting
fake dpkg-query <<<"$all_installed"
fake apt-get <<<"exit 1"
need 0
expect "Nothing missing is no failure" status_is 0
expect "Nothing missing is said in no word" [ -z "$said" ]
expect "Nothing missing takes one look" [ "$(grep -vc '^id' "$work/calls")" = 1 ]

setting
fake dpkg-query <<<"$all_but_ninja; exit 1"
fake apt-get <<<'[[ "$DEBIAN_FRONTEND" == noninteractive ]]'
need 0
expect "root installs" status_is 0
expect "What is installed is said" said_has "Installing: ninja-build"
expect "The lists come first, then the one package" apt_calls_are "apt-get -q -y -o DPkg::Lock::Timeout=120 update
apt-get -q -y -o DPkg::Lock::Timeout=120 install --no-install-recommends ninja-build"

# The package of the server starts a service.
all_but_orthanc='for name; do [[ "$name" == -* || "$name" == *"{"* || "$name" == orthanc ]] || echo "installed $name"; done'
setting
fake dpkg-query <<<"$all_but_orthanc"
fake apt-get <<<"exit 0"
fake systemctl <<<"exit 0"
need 0 pkg.nascor.server
expect "A server is installed for .ci/run" status_is 0
expect "Its service is kept from starting before it is there" [ "$(grep -nE '^(systemctl|apt-get.* install)' "$work/calls" |
  cut -d' ' -f1 | cut -d: -f2 | tr '\n' ' ')" = "systemctl apt-get " ]
expect "It is that service" grep -qx "systemctl mask orthanc.service" "$work/calls"
: >"$work/calls"
need 0 ""
expect "For ./test no server is installed" [ "$(grep -c orthanc "$work/calls")" = 0 ]

# Those of docs/scale too, of which some start services.
all_but_scale='for name; do [[ "$name" == -* || "$name" == *"{"* || "$name" == @(munge|parallel|postgresql|python3-distributed|slurm-wlm) ]] ||
  echo "installed $name"; done'
setting
fake dpkg-query <<<"$all_but_scale"
fake apt-get <<<"exit 0"
fake systemctl <<<"exit 0"
need 0 pkg.nascor.scale
expect "The engines are installed for .ci/run scale" apt_calls_are "apt-get -q -y -o DPkg::Lock::Timeout=120 update
apt-get -q -y -o DPkg::Lock::Timeout=120 install --no-install-recommends parallel python3-distributed slurm-wlm munge postgresql"
expect "All their services are kept from starting, before" [ "$(grep -E '^(systemctl|apt-get.* install)' "$work/calls" |
  sed 's/^apt-get.*/apt-get/' | tr '\n' ';')" = "systemctl mask slurmctld.service slurmd.service;systemctl mask munge.service;\
systemctl mask postgresql.service;apt-get;" ]
: >"$work/calls"
need 0 pkg.nascor.checks pkg.nascor.server
expect "The other checks install none of them" [ "$(grep -cE '^(apt-get|systemctl)' "$work/calls")" = 0 ]

setting
fake dpkg-query <<<"$all_but_scale"
fake apt-get <<<"exit 0"
fake systemctl <<<'[[ "$*" != *postgresql* ]]'
need 0 pkg.nascor.scale
expect "A server alone whose service cannot be kept from starting stays away" apt_calls_are "apt-get -q -y -o DPkg::Lock::Timeout=120 update
apt-get -q -y -o DPkg::Lock::Timeout=120 install --no-install-recommends parallel python3-distributed slurm-wlm munge"
expect "and is named" said_has "Without postgresql, whose service would start here"

setting
fake dpkg-query <<<"$all_but_orthanc"
fake apt-get <<<"exit 0"
fake systemctl <<<"exit 1"
need 0 pkg.nascor.server
expect "Where its service cannot be kept from starting" status_is 0
expect "it is said" said_has "Without orthanc"
expect "and nothing is installed" [ "$(grep -c '^apt-get' "$work/calls")" = 0 ]
expect "and nothing is left" no_log_is_left

setting
fake dpkg-query <<<"$all_but_ninja"
fake apt-get <<<'[[ "$*" == *update* ]] || { echo "E: Unable to locate package ninja-build"; exit 100; }'
need 0
expect "A failed installation fails" status_is 1
expect "It shows what apt said" said_has "Unable to locate package"

setting
fake dpkg-query <<<"$all_but_ninja"
fake apt-get <<<'echo "Err:1 http://packages.example bookworm InRelease
  Temporary failure resolving '"'packages.example'"'
E: Unable to locate package ninja-build"; [[ "$*" == *update* ]]'
need 0
expect "Without a network the installation fails" status_is 1
expect "The cause is said" said_has "There is no connection to the package server packages.example."
expect "A package is not blamed" said_lacks "Unable to locate"

setting
fake dpkg-query <<<"$all_but_ninja"
fake apt-get <<<'echo "E: You don'"'"'t have enough free space in /var/cache/apt/archives/."; exit 100'
need 0
expect "A full disk is named" said_has "The disk is full."

setting
fake dpkg-query <<<"$all_but_ninja"
fake apt-get <<<"exit 0"
fake sudo <<<'[[ "$1" == -n ]] && shift; exec "$@"'
need 1000
expect "A user installs with sudo" status_is 0
expect "sudo asks for nothing without a terminal" grep -q '^sudo -n env DEBIAN_FRONTEND=noninteractive apt-get' "$work/calls"

setting
fake dpkg-query <<<"$all_but_ninja"
fake apt-get <<<"exit 0"
need 1000
expect "Without sudo a user is sent to the administrator" status_is 1
expect "The sentence has the command" said_has "apt-get install --no-install-recommends ninja-build"
expect "No log is left behind" no_log_is_left

setting
fake dpkg-query <<<"$all_but_ninja"
fake apt-get <<<"exit 0"
fake sudo <<<"exit 1"
need 1000
expect "A sudo that refuses stops with a sentence" said_has "sudo gave no permission"
expect "It has the command too" said_has "apt-get install --no-install-recommends ninja-build"
expect "No log is left behind" no_log_is_left
expect "Nothing is installed then" [ "$(grep -c '^apt-get' "$work/calls")" = 0 ]

setting
need 0
expect "A system without apt is told so" status_is 1
expect "The sentence names the packages there" said_has "no apt-get"

# What debian/control says, by profile.
listed() { awk -v profiles="$1" -f "$root/cmake/packages.awk" "$root/debian/control"; }
checks=$((checks + 6))
[[ " $(listed "nocheck nodoc" | tr '\n' ' ') " == *" g++ "*" fonts-dejavu-core "*" qt6-wayland "* ]] ||
  wrong "./run installs not what it builds and runs with"
listed "nocheck nodoc" | grep -qE 'gtest|clang|weasyprint|lintian' && wrong "./run installs packages of the tests, checks or PDFs"
listed "" | grep -q gtest && listed "" | grep -q weasyprint && ! listed "" | grep -qE 'clang|lintian' ||
  wrong "./test installs not the packages of the tests alone"
listed nocheck | grep -q weasyprint && ! listed nocheck | grep -q gtest ||
  wrong "A Debian package that is built without tests has no PDFs, or needs packages of the tests"
# Those that are made of this tree, and what dpkg-buildpackage alone knows.
listed "" | grep -qE '^(nascor.*|debhelper.*)$' && wrong "./test would install what no archive has"
[[ -z "$(listed "" | grep -vE '^[a-z0-9][a-z0-9.+-]+$')" ]] || wrong "There is a name that is none among the packages"

cd "$root"
for script in run test .ci/run .ci/scale .ci/package tools/fresh-root cmake/fresh.sh debian/tests/{command-line,desktop,purge} docs/scale/*.sh docs/scale/*/*.sh tests/scale/*.sh; do
  [[ -e "$root/$script" ]] || continue
  checks=$((checks + 1))
  "$BASH" -n "$root/$script" || wrong "$script is no valid script"
done
for script in run test; do
  checks=$((checks + 1))
  [[ "$("$root/$script" --help)" == "usage: ./$script"* ]] || wrong "./$script --help does not say how it is used"
done
conclude
