# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# tools/fresh-root and .ci/package share this: minimal systems, Debian 12, on which nothing is installed. Sourced by bash;
# expects `checkout`, `cache`, where the system is kept that all are copies of, and `compiled`, empty or a folder of
# compiled objects. Needs root, mmdebstrap and a network.

# in_its_own_mounts ARGUMENT...: starts this script anew in a mount namespace of its own, unless it is in one: whatever
# happens, no mount is left behind.
in_its_own_mounts() {
  if (($(id -u) != 0)); then echo "This makes roots and mounts, so it must run as root." >&2; exit 1; fi
  [[ -z "${NASCOR_FRESH_INSIDE:-}" ]] || return 0
  NASCOR_FRESH_INSIDE=1 exec unshare --mount --propagation private "$BASH" "$0" --cache "$cache" ${compiled:+--ccache "$compiled"} "$@"
}

# begin_roots: makes what the roots are copies of, where that is missing, and their folder, which goes when the script ends.
begin_roots() {
  mkdir -p "$cache"
  base="$cache/debian12.tar"
  if [[ ! -s "$base" ]]; then
    mmdebstrap --quiet --variant=minbase --include=sudo,ca-certificates --format=tar bookworm "$base.new" \
      'deb http://deb.debian.org/debian bookworm main' \
      'deb http://deb.debian.org/debian bookworm-updates main' \
      'deb http://deb.debian.org/debian-security bookworm-security main'
    mv "$base.new" "$base"
  fi
  roots="$(mktemp -d "$cache/roots-XXXXXX")"
  trap end_roots EXIT
}
end_roots() {
  cd /
  local mounted
  # The deepest first; what cannot be let go ends with the namespace.
  while read -r mounted; do umount "$mounted" || true; done < <(awk -v top="$roots/" 'index($2, top) == 1 { print $2 }' /proc/mounts | sort -r)
  awk -v top="$roots/" 'index($2, top) == 1 { exit 1 }' /proc/mounts && rm -rf "$roots"
}

# new_root NAME: a minimal system with the users anna, who may use sudo, and berta, and anna's copy of the checkout.
new_root() {
  root="$roots/$1"
  mkdir "$root"
  tar -xf "$base" -C "$root"
  mount -t proc proc "$root/proc"
  mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm" 2>/dev/null || true
  local device
  for device in null zero full random urandom tty; do
    [[ -e "$root/dev/$device" ]] || : >"$root/dev/$device"
    mount --bind "/dev/$device" "$root/dev/$device"
  done
  # Terminals of its own, for the tests of what is shown on one.
  mkdir -p "$root/dev/pts"
  mount -t devpts -o newinstance,ptmxmode=0666,mode=620 devpts "$root/dev/pts"
  ln -sf pts/ptmx "$root/dev/ptmx"
  [[ -e "$root/dev/fd" ]] || ln -s /proc/self/fd "$root/dev/fd"
  # apt fetches what it needs for the day once for all roots.
  mkdir -p "$cache/archives/partial"
  mount --bind "$cache/archives" "$root/var/cache/apt/archives"
  cp -L /etc/resolv.conf "$root/etc/resolv.conf"
  echo "127.0.0.1 localhost $(hostname)" >"$root/etc/hosts"
  chroot "$root" useradd -m -s /bin/bash anna
  chroot "$root" useradd -m -s /bin/bash berta
  allow_sudo NOPASSWD:
  copy_to /home/anna/nascor
  if [[ -n "$compiled" ]]; then
    mkdir "$root/ccache"
    mount --bind "$compiled" "$root/ccache"
  fi
}
allow_sudo() { echo "anna ALL=(ALL) ${1:-}ALL" >"$root/etc/sudoers.d/anna"; }

# copy_to FOLDER: anna's copy of what git knows, with what is changed here.
copy_to() {
  mkdir -p "$root$1"
  (cd "$checkout" && git ls-files -z --cached --others --exclude-standard | xargs -0 sh -c 'for f; do [ ! -e "$f" ] || printf "%s\0" "$f"; done' sh |
    tar --null --files-from=- -cf -) | tar -xf - -C "$root$1"
  chroot "$root" chown -R anna: "$1"
}

# as USER FOLDER COMMAND: as that user, with an empty environment and no terminal. `offline` before it cuts the network.
as() {
  local environment=(HOME="/home/$1" USER="$1" LOGNAME="$1" PATH=/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin)
  [[ -z "$compiled" ]] || environment+=(CCACHE_DIR=/ccache CCACHE_BASEDIR="$2" CCACHE_NOHASHDIR=1)
  chroot --userspec="$1:$1" "$root" /usr/bin/env -i "${environment[@]}" /bin/bash -c "cd '$2' && $3" </dev/null
}
offline() { unshare --net "$BASH" -c "$(declare -f as); $(declare -p root compiled); as \"\$@\"" offline "$@"; }
