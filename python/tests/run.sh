#!/bin/sh
# Builds the wheel from the library in BUILD_FOLDER, installs it into a fresh virtual environment, offline, and runs the
# tests there. What is missing is said in one line, and the exit status is 77 then.
#
#     run.sh BUILD_FOLDER [PYTEST_ARGUMENT...]
set -eu
build=$(cd "$1" && pwd)
shift
here=$(cd "$(dirname "$0")" && pwd)
python=${VONKK3_PYTHON:-/usr/bin/python3} # Debian's, which has the packages
missing=
for module in numpy pytest hypothesis setuptools wheel pip venv; do
    "$python" -c "import $module" 2>/dev/null || missing="$missing $module"
done
[ -e "$("$python" -c 'import sysconfig; print(sysconfig.get_path("include"))' 2>/dev/null)/Python.h" ] ||
    missing="$missing Python.h"
if [ -n "$missing" ]; then
    echo "SKIPPED: the Python package is not tested, for $python lacks:$missing"
    exit 77
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export PYTHONDONTWRITEBYTECODE=1 PIP_NO_INDEX=1 PIP_DISABLE_PIP_VERSION_CHECK=1 HYPOTHESIS_STORAGE_DIRECTORY="$scratch"
unset PYTHONPATH VONKK3_LIBRARY VONKK3_LEVEL 2>/dev/null || true
# Nothing is written to the source tree.
printf '[build]\nbuild_base = %s/base\n[egg_info]\negg_base = %s\n' "$scratch" "$scratch" >"$scratch/build.cfg"
VONKK3_BUILD=$build DIST_EXTRA_CONFIG="$scratch/build.cfg" \
    "$python" -m pip --quiet wheel --no-build-isolation --no-deps --wheel-dir "$scratch" "$here/.." >"$scratch/log" 2>&1 ||
    { cat "$scratch/log"; exit 1; }
"$python" -m venv --system-site-packages "$scratch/venv"
"$scratch/venv/bin/python" -m pip --quiet install --no-deps "$scratch"/vonkk3-*.whl
cd "$scratch"
VONKK3_BUILD=$build "$scratch/venv/bin/python" -m pytest -q -rs -p no:cacheprovider --rootdir "$here" "$@" "$here"
