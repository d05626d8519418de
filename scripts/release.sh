#!/bin/sh
# Sets everything up on a fresh Debian machine and writes a release of the last commit into dist/: the source as a tarball,
# Debian packages and their source package, the wheel, the Windows zip, a bill of materials (SPDX), and the checksums of them all.
#
#     release.sh [--twice] [--cached] [--no-windows] [--output FOLDER]
#
#     --twice          builds all of it again, in another folder, and compares the bytes
#     --cached         lets ccache serve the second build, which else compiles anew
#     --no-windows     without the zip, which takes minutes
#     --output FOLDER  in place of dist/; older releases of this library in it are removed
#
# Everything is built from the tarball, so that what is not committed is in nothing. The same commit gives the same bytes
# with the same compilers and tools: dates are the commit's, and no path is kept. The tests are run by scripts/test.sh, of
# the packages by tests/debian_test.sh. Exit code 1: a build failed, or two differ; 2: an option that is none, or changes
# that are not committed.
set -eu

fail() {
    echo "release.sh: $*" >&2
    exit "${code:-2}"
}

twice= cached= windows=yes output=dist
while [ $# -gt 0 ]; do
    case $1 in
    --twice) twice=yes ;;
    --cached) cached=yes ;;
    --no-windows) windows= ;;
    --output)
        [ $# -ge 2 ] && [ -n "$2" ] || fail "--output needs a folder"
        case $2 in /*) output=$2 ;; *) output=$PWD/$2 ;; esac
        shift
        ;;
    --help | -h)
        sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0"
        exit 0
        ;;
    *) fail "no such option: $1 (--help lists them)" ;;
    esac
    shift
done
[ -z "$cached" ] || [ -n "$twice" ] || fail "--cached is of the second build: it needs --twice"

cd "$(dirname "$0")/.."
. scripts/packages.sh
need g++ gcc git cmake ninja-build make ccache xz-utils dpkg-dev debhelper dh-python python3 python3-dev python3-numpy \
    python3-setuptools python3-wheel python3-pip mkdocs mkdocs-material python3-pymdownx
git rev-parse --quiet --verify HEAD >/dev/null || fail "this is no git repository: a release is of a commit"
git diff --quiet HEAD || fail "there are changes that are not committed"

part() { sed -n "s/^#define VONKK3_VERSION_$1 //p" include/vonkk3/types.h; }
version=$(part MAJOR).$(part MINOR).$(part PATCH)
case $(dpkg-parsechangelog -l debian/changelog -S Version) in
"$version"-*) ;;
*) fail "debian/changelog has no entry for $version on top, the version in include/vonkk3/types.h" ;;
esac
name=vonkk3-$version
commit=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH LC_ALL=C TZ=UTC PYTHONDONTWRITEBYTECODE=1 PIP_NO_INDEX=1 PIP_DISABLE_PIP_VERSION_CHECK=1
CCACHE_DIR=$(ccache --get-config cache_dir) # dpkg-buildpackage works in a home folder of its own
export CCACHE_DIR
umask 022

step() { # WHAT COMMAND...
    echo "== $1" >&2
    what=$1
    shift
    "$@" >"$work/log" 2>&1 || { tail -n 40 "$work/log" >&2; code=1 fail "failed: $what (all of it: $work/log)"; }
}

source_tarball() {
    git archive --format=tar --prefix="$name/" "$commit" >"$work/$name.tar" &&
        xz -9 -T1 --stdout "$work/$name.tar" >"$out/$name.tar.xz" && tar -C "$work" -xf "$out/$name.tar.xz"
}
debian_source() { # its first tarball is the source's under the name that Debian's tools look for
    cp "$out/$name.tar.xz" "$out/vonkk3_$version.orig.tar.xz" && (cd "$out" && dpkg-source --build "$work/$name")
}
packages() { (cd "$work/$name" && dpkg-buildpackage -b -us -uc) && mv "$work"/*.deb "$out"; }
wheel() { # without debugging information, which a wheel has no use for
    mkdir "$work/wheel"
    printf '[build]\nbuild_base = %s\n[egg_info]\negg_base = %s\n' "$work/wheel" "$work/wheel" >"$work/wheel/setup.cfg"
    (cd "$work/$name" && CFLAGS="-g0 -ffile-prefix-map=$work=." VONKK3_BUILD="$work/$name/build/package" \
        DIST_EXTRA_CONFIG="$work/wheel/setup.cfg" \
        /usr/bin/python3 -m pip wheel --no-build-isolation --no-deps --wheel-dir "$out" ./python)
}
windows_zip() { (cd "$work/$name" && sh scripts/windows.sh --quick) && mv "$work/$name"/dist/*.zip "$out"; }
bill() { /usr/bin/python3 scripts/sbom.py "$out" "$version" "$commit" "$SOURCE_DATE_EPOCH" >"$work/sbom" && mv "$work/sbom" "$out/$name.spdx.json"; }
checksums() { (cd "$out" && sha256sum -- *vonkk3* >"$work/sums" && mv "$work/sums" SHA256SUMS); }

make_release() { # FOLDER
    work=$1
    out=$work/out
    rm -rf "$work"
    mkdir -p "$out"
    step "source" source_tarball
    step "Debian source package" debian_source
    step "Debian packages" packages
    step "wheel" wheel
    [ -z "$windows" ] || step "Windows zip" windows_zip
    step "bill of materials" bill
    step "checksums" checksums
}

make_release "$PWD/build/dist"
first=$out
if [ -n "$twice" ]; then
    echo "== Again, elsewhere" >&2
    elsewhere=$(mktemp -d)
    trap 'rm -rf "$elsewhere"' EXIT
    [ -n "$cached" ] || export CCACHE_DISABLE=1
    make_release "$elsewhere/another/folder/of/another/length"
    diff "$first/SHA256SUMS" "$out/SHA256SUMS" || { code=1; fail "the two builds differ"; }
    (cd "$out" && sha256sum --quiet --check "$first/SHA256SUMS") || { code=1; fail "the two builds differ"; }
    echo "$(wc -l <"$first/SHA256SUMS") files: the same bytes twice"
fi

mkdir -p "$output"
rm -f "$output"/*vonkk3[-_]* "$output/SHA256SUMS"
cp "$first"/* "$output"
ls -l "$output"
