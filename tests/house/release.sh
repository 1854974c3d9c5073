# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# tools/release, in small checkouts of its own whose .ci/run is played: what is refused leaves everything as it was, a dry run too,
# and a release has its version everywhere, its tag, and files whose sums agree. And with this checkout's own texts it knows its way.
. "$(dirname "$0")/common.sh" "$@"
if ! type -P git >/dev/null; then
  echo "There is no git."
  exit 77
fi

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export SOURCE_DATE_EPOCH=1790000000 GIT_CONFIG_NOSYSTEM=1 GIT_CONFIG_GLOBAL=/dev/null TMPDIR="$work/tmp"
mkdir "$TMPDIR"
house="$work/house"
metainfo=resources/desktop/org.nascor.Nascor.metainfo.xml

# commit: all that is there.
commit() { git -C "$house" add -A && git -C "$house" commit -q -m "test: Change something"; }

# checkout: one at version 0.1.0, which was released, with news. Its .ci/run leaves what a real one leaves.
checkout() {
  rm -rf "$house" "$work/calls"
  mkdir -p "$house"/{tools,.ci,debian,resources/desktop}
  cd "$house"
  git init -q -b main .
  git config user.name Anna
  git config user.email anna@localhost
  cp "$root/tools/release" tools/
  cp "$root/$metainfo" "$metainfo"
  printf 'cmake_minimum_required(VERSION 3.24)\nproject(nascor VERSION 0.1.0 LANGUAGES CXX)\n' >CMakeLists.txt
  printf '# Changelog\n\nWords.\n\n## Unreleased\n\n### Added\n\n- Twins & `more`, see [there](x.md):\n  two lines.\n- A list <ended>.\n\n## 0.1.0 - 2026-11-23\n\n- The first.\n' >CHANGELOG.md
  sed -i 's/version="[0-9.]*" date="[^"]*"/version="0.1.0" date="2026-11-23"/' "$metainfo"
  printf 'nascor (0.1.0) unstable; urgency=medium\n\n  * First.\n\n -- Anna <anna@localhost>  Mon, 23 Nov 2026 12:00:00 +0000\n' >debian/changelog
  printf '/build/\n/out/\n' >.gitignore
  cat >.ci/run <<RUN
echo ".ci/run \$* of \$(sed -n 's/^project(nascor VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)" >>"$work/calls"
mkdir -p build/ci-0 out/packages
case "\$*" in package) echo deb >out/packages/nascor_all.deb ;; *) echo '{}' >build/ci-0/nascor.cdx.json ;; esac
RUN
  commit
  git tag v0.1.0
}

# release ARGUMENT...: its words are in said, its status in status.
release() {
  status=0
  said="$("$house/tools/release" "$@" 2>&1 </dev/null)" || status=$?
}
expect() {
  checks=$((checks + 1))
  "${@:2}" || wrong "$1. Said: $said"
}
said_has() { [[ "$said" == *"$1"* ]]; }
status_is() { [[ "$status" == "$1" ]]; }
state() { (cd "$house" && git rev-parse HEAD && git tag && git status --porcelain && ls && cat CMakeLists.txt) | cksum; }
called() { [[ "$(cat "$work/calls" 2>/dev/null)" == "$1" ]]; }

# refused WHAT SENTENCE ARGUMENT...
refused() {
  local before
  before="$(state)"
  release "${@:3}"
  expect "$1 is refused" status_is 1
  expect "$1 is named" said_has "$2"
  expect "$1 changes nothing" [ "$before" = "$(state)" ]
  expect "$1 leaves nothing behind" [ -z "$(ls "$TMPDIR")" ]
}

checkout
refused "A word for a version" "two is no version" two
refused "A version of two numbers" "1.2 is no version" 1.2
refused "An older version" "0.1.0 was released, which is newer than 0.0.9" 0.0.9
refused "A version that was released" "There is a tag v0.1.0 already" 0.1.0
echo more >>"$house/CHANGELOG.md"
refused "What is not committed" "Not all is committed" 0.2.0
checkout
echo x >"$house/loose"
refused "A file that git does not know" "Not all is committed" 0.2.0
checkout
git -C "$house" switch -q -c side
refused "Another branch" "this is side" 0.2.0
checkout
sed -i 's/VERSION 0.1.0/VERSION 0.1.1/' "$house/CMakeLists.txt"
commit
refused "Two versions" "CMakeLists.txt says 0.1.1, CHANGELOG.md says 0.1.0" 0.2.0
checkout
sed -i '/^### Added/,/ended/d' "$house/CHANGELOG.md"
commit
refused "Nothing new" "nothing under Unreleased" 0.2.0
checkout
git -C "$house" tag -d v0.1.0 >/dev/null
refused "A version with news beside it" "more under Unreleased" 0.1.0
git clone -q "$house" "$work/origin"
git -C "$house" remote add origin "$work/origin"
git -C "$work/origin" -c user.name=B -c user.email=b@localhost commit -q --allow-empty -m "test: Be ahead"
git -C "$house" fetch -q origin
refused "A main that is behind" "origin/main has commits that are not here" 0.2.0
checkout
sed -i '1i exit 1' "$house/.ci/run"
commit
refused "A failing .ci/run" ".ci/run does not pass on the release's commit" 0.2.0
checkout
sed -i '1i [[ "$*" != package ]] || exit 1' "$house/.ci/run"
commit
refused "A failing package" ".ci/run package does not pass" 0.2.0
checkout
sed -i '1i echo >>CMakeLists.txt' "$house/.ci/run"
commit
refused "A build that changes sources" "The builds changed files" 0.2.0
checkout
sed -i 's/echo deb/: no/; s/>out\/packages[^;]*//' "$house/.ci/run"
commit
refused "A build without packages" "The builds left 0 packages and 1 bills" 0.2.0
checkout
release 0.2.0 --without-builds
expect "A release without builds is wrong usage" status_is 2

before="$(state)"
release 0.2.0 --dry-run --without-builds
expect "A dry run succeeds" status_is 0
expect "It changes nothing" [ "$before" = "$(state)" ]
expect "It builds nothing" called ""
expect "It shows the files" said_has "nascor-0.2.0.tar.gz"
sum="$(grep 'tar.gz' <<<"$said")"
release 0.2.0 --dry-run
expect "A dry run with builds succeeds" status_is 0
expect "It builds the new version" called $'.ci/run  of 0.2.0\n.ci/run package of 0.2.0'
expect "It changes nothing either" [ "$before" = "$(state)" ]
expect "The source is the same" said_has "$sum"

release 0.2.0
expect "A release succeeds" status_is 0
expect "It says what to publish" said_has "git push origin main v0.2.0"
cd "$house"
expect "CMake has the version" grep -q '^project(nascor VERSION 0.2.0 ' CMakeLists.txt
expect "The news have moved" [ "$(sed -n '5,9p' CHANGELOG.md)" = $'## Unreleased\n\n## 0.2.0 - 2026-09-21\n\n### Added' ]
expect "The metainfo has them as text" [ "$(sed -n '/<release /,/<\/release>/p' "$metainfo" | sed 's/^ *//; /<\/release>/q')" = '<release version="0.2.0" date="2026-09-21">
<description>
<p>Added</p>
<ul>
<li>Twins &amp; more, see there: two lines.</li>
<li>A list &lt;ended&gt;.</li>
</ul>
</description>
</release>' ]
expect "Debian has the version" [ "$(head -n 1 debian/changelog)" = "nascor (0.2.0) unstable; urgency=medium" ]
expect "Debian has the time" grep -qx ' -- Anna <anna@localhost>  Mon, 21 Sep 2026 14:13:20 +0000' debian/changelog
expect "The tag is at the release" [ "$(git rev-parse 'v0.2.0^{commit}')" = "$(git rev-parse main)" ]
expect "The tag has the news" [ "$(git tag -l --format='%(contents:body)' v0.2.0 | grep -c 'Twins')" = 1 ]
expect "All is committed" [ -z "$(git status --porcelain)" ]
cd out/release-0.2.0
expect "The files are there" [ "$(ls | tr '\n' ' ')" = "SHA256SUMS nascor-0.2.0.cdx.json nascor-0.2.0.tar.gz nascor_all.deb " ]
expect "The sums agree" sha256sum -c --quiet --strict SHA256SUMS
expect "All files have sums" [ "$(wc -l <SHA256SUMS)" = 3 ]
expect "The source has the version" [ "$(tar -xzOf nascor-0.2.0.tar.gz nascor-0.2.0/CMakeLists.txt | sed -n 2p)" = "project(nascor VERSION 0.2.0 LANGUAGES CXX)" ]
expect "The source is that of the dry run" grep -qx "$sum" SHA256SUMS

# A version that stands everywhere and was never given out gets its day, its commit and its tag.
checkout
git tag -d v0.1.0 >/dev/null
sed -i '/^### Added/,/ended/d' CHANGELOG.md
commit
release 0.1.0
expect "A first release succeeds" status_is 0
expect "It has its day" grep -qx '## 0.1.0 - 2026-09-21' CHANGELOG.md
expect "The metainfo has the day" grep -q '<release version="0.1.0" date="2026-09-21">' "$metainfo"
expect "Debian has the day" grep -q 'Mon, 21 Sep 2026' debian/changelog
expect "There is one section of it" [ "$(grep -c '^## 0.1.0' CHANGELOG.md)" = 1 ]

# The texts of this checkout, with news.
checkout
cp "$root/CMakeLists.txt" "$root/CHANGELOG.md" .
cp "$root/$metainfo" "$metainfo"
[[ ! -f "$root/debian/changelog" ]] && rm debian/changelog || cp "$root/debian/changelog" debian/
sed -i 's/^## Unreleased$/&\n\n- One more./' CHANGELOG.md
commit
release 99.0.0 --dry-run --without-builds
expect "This checkout could be released" status_is 0
expect "All its files would be changed" [ "$(grep -cE '^ (CMakeLists.txt|CHANGELOG.md|debian/changelog|.*metainfo.xml) +\|' <<<"$said")" = "$(ls CMakeLists.txt CHANGELOG.md debian/changelog "$metainfo" 2>/dev/null | wc -l)" ]
conclude
