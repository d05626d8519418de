#!/bin/sh
# Installs the Debian packages into a fresh root, uses them there from C, C++, Fortran and Python, and removes them: nothing
# may be left. Checks before what they hold, by lintian and by hand.
#
#     debian_test.sh FOLDER [ROOT]      FOLDER has one release, as scripts/release.sh leaves it in dist/
#
# ROOT is a tarball of a root with the compilers; where there is none it is made, by mmdebstrap from Debian's mirror. Needs
# the rights of root, for chroot. Exit code 1: a check failed; 2: it cannot run.
set -eu
[ $# -ge 1 ] || { sed -n '2,/^set -eu/s/^# \{0,1\}//p' "$0" >&2; exit 2; }
folder=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
tarball=${2:-build/debian-root.tar}
. scripts/packages.sh
. scripts/levels.sh
need lintian mmdebstrap binutils python3 python3-jsonschema
[ "$(id -u)" -eq 0 ] || { echo "debian_test.sh: needs the rights of root, for chroot" >&2; exit 2; }

fail() { echo "FAILED: $*"; exit 1; }
one() { # PATTERN: the file of that name in FOLDER
    set -- "$folder"/$1
    { [ $# -eq 1 ] && [ -f "$1" ]; } || { echo "debian_test.sh: $folder has not one $1" >&2; exit 2; }
    echo "$1"
}
library=$(one 'libvonkk3-4_*.deb')
python=$(one 'python3-vonkk3_*.deb')
debs="$library $(one 'libvonkk3-dev_*.deb') $(one 'libvonkk3-doc_*.deb') $python"
scratch=$(mktemp -d)
root=$scratch/root
mounted=
end() {
    [ -z "$mounted" ] || umount "$root/proc"
    rm -rf --one-file-system "$scratch"
}
trap end EXIT

echo "checksums and bill of materials"
if [ -f "$folder/SHA256SUMS" ]; then
    (cd "$folder" && sha256sum --quiet --check SHA256SUMS) || fail "a checksum"
    /usr/bin/python3 -B scripts/sbom.py --check "$(one 'vonkk3-*.spdx.json')" || fail "the bill of materials"
else echo "  left out: $folder has packages alone"; fi

echo "lintian"
lintian --allow-root --fail-on error,warning $debs || fail "lintian"
for source in "$folder"/*.dsc; do # packages alone may have none
    [ ! -f "$source" ] || lintian --allow-root --fail-on error,warning "$source" || fail "lintian of the source package"
done

echo "symbols"
dpkg-deb --fsys-tarfile "$library" | tar -x -C "$scratch"
dpkg-deb -I "$library" symbols | sed -n 's/^ \(.*\)@Base 4\.[0-9.]*$/\1/p' | LC_ALL=C sort >"$scratch/promised"
nm -D --defined-only "$scratch"/usr/lib/x86_64-linux-gnu/libvonkk3.so.4 | awk '{ print $3 }' | LC_ALL=C sort >"$scratch/exported"
[ "$(wc -l <"$scratch/promised")" -eq 5572 ] || fail "the symbols file has not 5572 names with their version"
diff "$scratch/promised" "$scratch/exported" >/dev/null || fail "the symbols file has not the exports of the library"
if grep -q -r -F -e "$PWD" "$scratch/usr"; then fail "the library knows where it was built"; fi

echo "fresh root"
if [ ! -f "$tarball" ]; then
    mkdir -p "$(dirname "$tarball")"
    mmdebstrap --quiet --format=tar --variant=minbase --include=gcc,g++,gfortran,libc6-dev,make,cmake,pkg-config,python3-numpy \
        "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$tarball.new" && mv "$tarball.new" "$tarball" ||
        { echo "debian_test.sh: cannot make a root" >&2; exit 2; }
fi
mkdir "$root"
tar -C "$root" --exclude='./dev/*' -xf "$tarball"
mount -t proc proc "$root/proc" && mounted=yes
for device in null zero urandom; do cp -a "/dev/$device" "$root/dev/"; done
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
files() { # what stands in the root, but for the records of dpkg and apt
    (cd "$root" && find . -path ./proc -prune -o -path ./tmp -prune -o -path ./var/lib/dpkg -prune -o -path ./var/lib/apt -prune \
        -o -path ./var/log -prune -o -path ./var/cache -prune -o -print | LC_ALL=C sort)
}
files >"$scratch/before"
mkdir "$root/tmp/debs" "$root/tmp/user"
cp $debs "$root/tmp/debs"
cp -R tests/install "$root/tmp"

echo "install"
inside sh -c 'apt-get install -q -y --no-install-recommends /tmp/debs/*.deb' >"$scratch/log" 2>&1 || { tail -n 20 "$scratch/log"; fail "install"; }
[ -z "$(inside dpkg --audit)" ] || fail "dpkg --audit"
[ -z "$(inside dpkg --verify libvonkk3-4 libvonkk3-dev libvonkk3-doc python3-vonkk3)" ] || fail "an installed file is not the package's"

echo "C, C++, Fortran, by pkg-config and by CMake"
inside sh -ec 'cd /tmp/user
    sh -x /tmp/install/use.sh
    gcc -std=c99 /usr/share/doc/libvonkk3-doc/examples/iris.c $(pkg-config --cflags --libs vonkk3) -lm -o iris
    ./iris /usr/share/doc/libvonkk3-doc/examples/iris.csv
    test -x fortran_program
    test -s /usr/share/doc/libvonkk3-doc/html/finder.html' >/dev/null 2>"$scratch/log" ||
    { tail -n 5 "$scratch/log"; fail "a program in the root"; }

while read -r name; do [ -e "$root/usr/share/man/man3/$name.3.gz" ] || fail "no man page of $name"; done <"$scratch/exported"

echo "Python"
cat >"$root/tmp/user/use.py" <<'END'
import numpy as np
import vonkk3
a = np.random.default_rng(1).normal(size=(1000, 3, 3)) + 4 * np.eye(3)
b = np.ones((1000, 3))
x = vonkk3.solve(a, b, vectors=True)
assert np.abs(np.einsum("kij,kj->ki", a, x) - b).max() < 1e-12
assert vonkk3.get_config()["library"] == "libvonkk3.so.4", vonkk3.get_config()
loaded = {line.split()[-1] for line in open("/proc/self/maps") if "libvonkk3" in line}
assert len(loaded) == 1, loaded
print(*loaded)
END
inside python3 /tmp/user/use.py >"$scratch/by_python" || fail "the Python package"
if inside env VONKK3_LEVEL=x86-64 python3 -c 'import vonkk3' 2>"$scratch/error"; then fail "VONKK3_LEVEL is ignored"; fi
grep -q "the system's loader chooses" "$scratch/error" || fail "VONKK3_LEVEL is not explained"

echo "by instruction set"
libraries=/usr/lib/x86_64-linux-gnu
best=$(best_level "$root$libraries/glibc-hwcaps")
expected=$(inside readlink -f "$libraries${best:+/glibc-hwcaps/$best}/libvonkk3.so.4")
for what in "C $(inside /tmp/user/opens libvonkk3.so.4)" "linked $(inside env LD_TRACE_LOADED_OBJECTS=1 /tmp/user/c_program |
    sed -n 's/.*libvonkk3\.so\.4 => \(.*\) (0x.*/\1/p')" "Python $(cat "$scratch/by_python")"; do
    [ "$(inside readlink -f "${what#* }")" = "$expected" ] || fail "$what is loaded, not $expected"
    echo "  ${what%% *}: $expected"
done

echo "remove"
inside apt-get purge -q -y libvonkk3-4 libvonkk3-dev libvonkk3-doc python3-vonkk3 >"$scratch/log" 2>&1 || { tail -n 20 "$scratch/log"; fail "purge"; }
files >"$scratch/after"
diff "$scratch/before" "$scratch/after" || fail "that is left, or gone"
if inside /tmp/user/c_program >/dev/null 2>&1; then fail "the program still finds a library"; fi
echo "packages work"
