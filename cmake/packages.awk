# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# packages.awk -v profiles="nocheck pkg.nascor.checks" debian/control: the packages for building with these build
# profiles and for running, one a line. Reads debian/control as this project writes it: one package a line of
# Build-Depends and Depends, with at most one restriction <PROFILE> or <!PROFILE>. Left out are the packages that this
# file makes, and what dpkg-buildpackage alone asks for, which has no package of that name.
/^#/ { next }
/^$/ { wanted = 0; next }
/^Package:/ { own[$2] = 1 }
/^[^ ]/ { wanted = $1 ~ /^(Build-Depends|Depends):$/; next }
wanted && $1 !~ /^\$/ {
  name = $1
  sub(/,$/, "", name)
  if (match($0, /<[^>]*>/)) {
    profile = substr($0, RSTART + 1, RLENGTH - 2)
    without = sub(/^!/, "", profile)
    active = index(" " profiles " ", " " profile " ") > 0
    if (active == without) next
  }
  if (!(name in said)) { said[name] = 1; listed[++count] = name }
}
END { for (i = 1; i <= count; ++i) if (!(listed[i] in own) && listed[i] != "debhelper-compat") print listed[i] }
