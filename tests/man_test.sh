#!/bin/sh
# The man pages: one for every export, each without a warning, found by its function's names and by the field's words.
#
#     man_test.sh MAN3_FOLDER EXPORTS
pages=$1
exports=$2
. "$(dirname "$0")/checks.sh"

mkdir -p "$scratch/man/man3"
cp "$pages"/*.3 "$scratch/man/man3"
for name in $(cat "$exports") vonkStatusText; do
    page=$scratch/man/man3/$name.3
    [ -f "$page" ] || { fail "no page $name"; continue; }
    read -r request target <"$page"
    [ "$request" = .so ] && [ -f "$scratch/man/$target" ] || fail "$name leads nowhere: $request $target"
done

for page in "$scratch"/man/man3/vonk-*.3 "$scratch/man/man3/vonkk3.3"; do
    warnings=$(groff -man -Tutf8 -ww -z "$page" 2>&1)
    [ -z "$warnings" ] || fail "$warnings"
done

mandb --create --quiet --user-db "$scratch/man" >"$scratch/log" 2>&1 || fail "mandb: $(cat "$scratch/log")"
finds() { # WORDS PAGE
    apropos --manpath="$scratch/man" --and --long $1 2>/dev/null | grep -q "^$2 " || fail "apropos $1 does not find $2"
}
finds getrf vonk-lu-decomposition
finds 'solve SPD' vonk-cholesky-back-substitution
finds 'least squares' vonk-qr-back-substitution
finds gemm vonk-matrix-product
finds 'transform points' vonk-matrix-vector
finds normalise vonk-norm
finds thread-safe vonkk3
finds inv vonk-inverse
apropos --manpath="$scratch/man" nothingofthekind >/dev/null 2>&1 && fail "apropos finds what is not there"

path=$(man --manpath="$scratch/man" --where vonkLUDecomp_ma_32f_4x4_PS2 2>/dev/null)
case $path in
*/vonk-lu-decomposition.3) ;;
*) fail "man vonkLUDecomp_ma_32f_4x4_PS2 shows ${path:-nothing}" ;;
esac

[ "$failures" -eq 0 ]
