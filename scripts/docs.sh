#!/bin/sh
# Builds the documentation site into build/site, from the catalogue and docs/site; open build/site/index.html. A link
# that leads nowhere ends it.
#
#     docs.sh [--test [LIBRARY_FOLDER]]
#
# With --test it then tests the site: the calls in its prose, the finder's search, the calls that it shows, against the
# library in LIBRARY_FOLDER or else one built here, and its pages by clicks in a browser.
set -eu
library=${2:-}
[ -z "$library" ] || library=$(cd "$library" && pwd)
cd "$(dirname "$0")/.."
. scripts/packages.sh
need g++ gcc cmake make python3 mkdocs mkdocs-material python3-pymdownx

mkdir -p build
{ cmake --preset release -DVONKK3_TESTS=OFF -B build/docs && cmake --build build/docs --target vonkk3_generated
} >build/docs.log 2>&1 || { tail -n 40 build/docs.log >&2; exit 1; }
python3 -B docs/site/assemble.py build/docs/src/generated/functions.json build/docs
mkdocs build --quiet --strict --config-file build/docs/mkdocs.yml --site-dir "$PWD/build/site"
python3 -B docs/site/check_links.py build/site

[ "${1:-}" = --test ] || exit 0
need nodejs chromium chromium-driver python3-selenium
python3 -B tests/site/pages_test.py . gcc
node tests/site/search_test.js docs/site/finder build/site/assets/catalogue.js
if [ -z "$library" ]; then
    cmake --build build/docs --target vonkk3 --parallel "$(nproc)" >build/docs.log 2>&1 ||
        { tail -n 40 build/docs.log >&2; exit 1; }
    library=$PWD/build/docs
fi
sh tests/site/calls_test.sh "$PWD" build/site/assets/catalogue.js "$library" gcc
/usr/bin/python3 -B tests/site/browser_test.py build/site # Debian's, which has selenium
