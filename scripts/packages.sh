# Sourced by the scripts beside it: installs the Debian packages that are missing, as root or by sudo.
#
#     need PACKAGE...
need() {
    missing=
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    echo "installing:$missing"
    as_root=
    if [ "$(id -u)" -ne 0 ]; then as_root=sudo; fi
    # Package names are words, so they go unquoted.
    $as_root apt-get update -q >/dev/null &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing >/dev/null ||
        { echo "cannot install:$missing" >&2; exit 1; }
}
