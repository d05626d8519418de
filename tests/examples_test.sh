#!/bin/sh
# Runs the example programs: the flowers' confusion table, the solutions of sample systems, the fits of reference data,
# and the answer (message and exit status) to every kind of malformed and singular input.
# Usage: examples_test.sh <iris program> <solve program> <least_squares program> <examples folder>
# The rigid bodies, and those programs that are there in C++, too, stand beside the iris program.

if [ $# -ne 4 ]; then
    echo "usage: $0 <iris program> <solve program> <least_squares program> <examples folder>" >&2
    exit 2
fi
iris=$1
solve=$2
least_squares=$3
examples=$4
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
# One line per check and per failure: many checks run in a pipeline's subshell, from where no variable comes back.
: >"$work/checks"
: >"$work/failures"

passed_or_failed() { # <name> <problem, or nothing>
    echo "$1" >>"$work/checks"
    if [ -n "$2" ]; then
        echo "$1" >>"$work/failures"
        echo "FAILED $1: $2"
        return 1
    fi
}

# check <name> <expected status> <expected in stdout> <expected in stderr> <program> [argument...]
# An expected text is one that the stream has to contain; '-' says that the stream has to be empty, and '=FILE' that
# it has to be equal to the file. Standard input is the file $work/in.
check() {
    name=$1 status=$2 output=$3 message=$4
    shift 4
    "$@" <"$work/in" >"$work/out" 2>"$work/err"
    found=$?
    problem=
    [ "$found" -eq "$status" ] || problem="exit status $found in place of $status"
    matches "$work/out" "$output" || problem="${problem:+$problem; }standard output is not '$output'"
    matches "$work/err" "$message" || problem="${problem:+$problem; }standard error is not '$message'"
    passed_or_failed "$name" "$problem" || {
        sed 's/^/    out: /' "$work/out" | head -n 20
        sed 's/^/    err: /' "$work/err" | head -n 20
    }
}

matches() {
    case $2 in
    -) [ ! -s "$1" ] ;;
    =*) cmp -s "$1" "${2#=}" ;;
    *) grep -q -F -e "$2" "$1" ;;
    esac
}

# refused <name> <status> <expected message>: what solve says of the text on standard input, which it must not solve
refused() {
    cat >"$work/in"
    check "solve: $1" "$2" - "$3" "$solve"
}

# solved <name> <expected output, but for the line with the residual; \n ends a line>: the text on standard input
solved() {
    cat >"$work/in"
    check "solve: $1" 0 'largest residual |A x - b|: ' - "$solve"
    sed '$d' "$work/out" >"$work/solutions"
    printf '%b\n' "$2" >"$work/expected"
    problem=
    cmp -s "$work/expected" "$work/solutions" || problem="other solutions than expected"
    passed_or_failed "solve: $1: solutions" "$problem" ||
        diff "$work/expected" "$work/solutions" | head -n 20 | sed 's/^/    /'
    problem=
    tail -n 1 "$work/out" | awk '{ exit !($NF ~ /^[0-9]/ && $NF + 0 <= 1e-12) }' || problem=$(tail -n 1 "$work/out")
    passed_or_failed "solve: $1: residual" "${problem:-}"
}

# ---- iris

: >"$work/in"
cat >"$work/table" <<'END'
classified as         setosa    versicolor     virginica
setosa                    50             0             0
versicolor                 0            48             2
virginica                  0             1            49

3 of 150 flowers on the wrong side
flower  71: versicolor, classified as virginica with probability 0.6641
flower  84: versicolor, classified as virginica with probability 0.8457
flower 134: virginica, classified as versicolor with probability 0.6050
END
check 'iris: confusion table' 0 "=$work/table" - "$iris" "$examples/iris.csv"
check 'iris: by Cholesky decomposition' 0 "=$work/table" - "$iris" --cholesky "$examples/iris.csv"
check 'iris: no file' 1 - 'usage: iris' "$iris"
check 'iris: no file, by Cholesky decomposition' 1 - 'usage: iris' "$iris" --cholesky
check 'iris: unknown option' 1 - 'usage: iris' "$iris" --fast
check 'iris: --help' 0 'usage: iris [--cholesky] file.csv' - "$iris" --help
check 'iris: two files' 1 - 'usage: iris' "$iris" --cholesky "$examples/iris.csv" "$examples/iris.csv"

awk '{ printf "%s\r\n", $0 }' "$examples/iris.csv" >"$work/crlf.csv"
check 'iris: lines that end in CR LF' 0 "=$work/table" - "$iris" "$work/crlf.csv"

# spoiled <name> <line> <text in its place> <expected message>
spoiled() {
    awk -v line="$2" -v text="$3" 'NR == line { print text; next } { print }' "$examples/iris.csv" >"$work/bad.csv"
    check "iris: $1" 1 - "$4" "$iris" "$work/bad.csv"
}
spoiled 'no header' 1 '5.1,3.5,1.4,0.2,setosa' 'line 1: expected the names of the columns'
spoiled 'a word for a number' 17 '5.1,wide,1.4,0.2,setosa' 'line 17: expected four numbers and a species'
spoiled 'three numbers' 18 '5.1,3.5,1.4,setosa' 'line 18: expected four numbers and a species'
spoiled 'five numbers' 19 '5.1,3.5,1.4,0.2,7,setosa' 'line 19: expected a species'
spoiled 'not finite' 20 '5.1,nan,1.4,0.2,setosa' 'line 20: expected four numbers and a species'
spoiled 'no species' 21 '5.1,3.5,1.4,0.2,' 'line 21: expected a species'
spoiled 'a fourth species' 151 '5.1,3.5,1.4,0.2,sibirica' 'line 151: a fourth species, sibirica;'
spoiled 'a misspelled species' 17 '5.1,3.5,1.4,0.2,setsoa' \
    'are setosa (line 2) setsoa (line 17) versicolor (line 52)'
spoiled 'a long line' 22 "$(printf '%0400d' 0)" 'line 22: the line is too long'
head -n 101 "$examples/iris.csv" >"$work/bad.csv"
check 'iris: two species' 1 - 'line 101: the file ends before a third species' "$iris" "$work/bad.csv"
head -n 102 "$examples/iris.csv" >"$work/bad.csv"
check 'iris: a species of one flower' 1 - 'a single flower of the species virginica' "$iris" "$work/bad.csv"
# singular <name>: what both routes say of $work/bad.csv. Rounding may leave a little of a pivot that should be zero.
# The Cholesky decomposition takes it if it is above zero, so the message is its own or the program's.
singular() {
    check "iris: $1" 1 - 'a covariance matrix is singular' "$iris" "$work/bad.csv"
    check "iris: $1, by Cholesky decomposition" 1 - '(a covariance matrix is ' "$iris" --cholesky "$work/bad.csv"
}
# The first 103 lines hold two virginica: their covariance matrix has rank 1.
head -n 103 "$examples/iris.csv" >"$work/bad.csv"
singular 'a species of two flowers'
# A petal width that never changes makes only the last pivot of every covariance matrix zero.
awk -F, -v OFS=, 'NR > 1 { $4 = 0.25 } { print }' "$examples/iris.csv" >"$work/bad.csv"
singular 'the last pivot is zero in all'
awk -F, -v OFS=, 'NR > 101 { $4 = 0.25 } { print }' "$examples/iris.csv" >"$work/bad.csv"
singular 'the last pivot is zero in the third'
check 'iris: no such file' 1 - "$work/none.csv" "$iris" "$work/none.csv"
check 'iris: a folder' 1 - "$work" "$iris" "$work"

# ---- least_squares

# The last column of the table; how good the fits have to be, tests/least_squares_test.cpp says.
: >"$work/in"
cat >"$work/digits" <<'END'
Norris 12.3 14.4
Longley 12.6 11.3 12.2 12.9 13.6 12.1 12.6
Wampler1 9.5 9.6 10.2 11.1 12.5 14.2
Wampler2 14.4 13.4 12.9 12.8 13.1 13.8
Wampler3 9.6 9.8 10.5 11.8 14.0 15.0
Wampler4 8.9 8.5 8.9 9.8 11.0 12.7
Wampler5 6.8 6.5 6.9 7.7 9.0 10.7
END
line='Longley    B1                 15.0618722714482        15.0618722713733     11.3'
check 'least_squares: reference data' 0 "$line" - "$least_squares" "$examples"/nist/Norris.txt \
    "$examples"/nist/Longley.txt "$examples"/nist/Wampler?.txt
awk 'NR == 1 { next }
     $1 != set { printf "%s%s", end, $1; set = $1; end = "\n" }
     { printf " %s", $5 }
     END { print "" }' "$work/out" >"$work/found"
problem=
cmp -s "$work/digits" "$work/found" || problem='other digits than expected'
passed_or_failed 'least_squares: digits' "$problem" || diff "$work/digits" "$work/found" | sed 's/^/    /'

check 'least_squares: no file' 1 - 'usage: least_squares' "$least_squares"
check 'least_squares: --help' 0 'usage: least_squares file...' - "$least_squares" --help

# fitted <name> <expected in stdout>, misfit <name> <expected message>: the data set on standard input
fitted() {
    cat >"$work/data"
    check "least_squares: $1" 0 "$2" - "$least_squares" "$work/data"
}
misfit() {
    cat >"$work/data"
    check "least_squares: $1" 1 'certified' "$2" "$least_squares" "$work/data"
}
printf 'linear 1\r\nB0 3 # intercept\r\n\r\n B1 0\r\n# y x1\r\n3 1\r\n3\t2' |
    fitted 'comments, CR LF, no end of the last line' \
        'data       B0                                3                       3     15.0'
# The second column's squared norm, 2 e^2, is 2^-23 for e = 2^-12, about 2.44e-4.
printf 'linear 1\nB0 1\nB1 4000\n2 2.5e-4\n0 -2.5e-4\n1 0\n' |
    fitted 'a small column' 'data       B1                             4000                    4000     15.0'
printf 'linear 1\nB0 1\nB1 5000\n2.2 2.4e-4\n-0.2 -2.4e-4\n1 0\n' |
    misfit 'too small a column' 'squared norm is below 2^-23'
printf 'polynomial 1\nB0 1\nB1 1\n1 2\n2 2\n3 2\n' | misfit 'equal columns' 'squared norm is below 2^-23'
misfit 'empty' "line 0: expected 'polynomial' or 'linear'" </dev/null
printf 'cubic 3\n' | misfit 'unknown model' "line 1: expected 'polynomial' or 'linear'"
printf 'linear\n' | misfit 'no number of terms' "line 1: expected 'polynomial' or 'linear'"
printf 'linear 0\n' | misfit 'no term' 'line 1: expected 1 to 15 terms'
printf 'linear 16\n' | misfit 'too many terms' 'line 1: expected 1 to 15 terms'
printf 'linear 1\nB0 1\n1 2\n' | misfit 'too few coefficients' 'line 3: expected the next certified coefficient'
printf 'linear 1\nB0 1\nB1 one\n' | misfit 'a word for a number' 'line 3: expected another number'
printf 'linear 1\nB0 1\nB1 1\n1\n' | misfit 'a short observation' 'line 4: expected another number'
printf 'linear 1\nB0 1\nB1 1\n1 2 3\n' | misfit 'a long observation' 'line 4: expected nothing more'
printf 'linear 1\nB0 1\nB1 1\n1 inf\n' | misfit 'not finite' 'line 4: expected another number'
printf 'linear 1\nB0 1\nB1 1\n1 2\n' | misfit 'one observation' 'line 4: fewer observations than coefficients'
printf '%0600d\n' 0 | misfit 'a long line' 'line 1: the line is too long'
{ printf 'linear 1\nB0 1\nB1 1\n'; yes '1 2' | head -n 1001; } | misfit 'too many observations' 'line 1004: too many'
check 'least_squares: no such file' 1 'certified' "$work/none" "$least_squares" "$work/none"
check 'least_squares: a folder' 1 'certified' "$work" "$least_squares" "$work"

# ---- C++: the same output from a shorter program

: >"$work/in"
programs=$(dirname "$iris")
for option in '' --cholesky; do
    check "iris_cpp: table $option" 0 "=$work/table" - "${iris}_cpp" $option "$examples/iris.csv"
done
check 'iris_cpp: no argument' 1 - 'usage: iris_cpp' "${iris}_cpp"
check 'iris_cpp: no such file' 1 - "cannot open $work/none" "${iris}_cpp" "$work/none"
printf 'sepal_length,sepal_width,petal_length,petal_width,species\n1,2,x,4,setosa\n' >"$work/flowers"
check 'iris_cpp: not a number' 1 - "$work/flowers, line 2: expected four numbers" "${iris}_cpp" "$work/flowers"
check 'rigid_bodies' 0 'kinetic energy of the spins: 5114.087885738' - "$programs/rigid_bodies"
cp "$work/out" "$work/bodies"
check 'rigid_bodies_cpp' 0 "=$work/bodies" - "$programs/rigid_bodies_cpp"
for example in iris rigid_bodies; do
    lines() { grep -c '[^ ]' "$examples/$example.$1"; }
    problem=
    [ "$(lines cpp)" -lt "$(lines c)" ] || problem="$(lines cpp) lines, not fewer than the $(lines c) in C"
    passed_or_failed "$example.cpp is shorter" "$problem"
done

# ---- solve: what has a solution

solved 'sample' 'system 1:   1   2   3\nsystem 2:   1   1   1\nsystem 3:   2  -3   8' <"$examples/systems.txt"
cp "$work/out" "$work/sample"
: >"$work/in"
check 'solve: sample as a file' 0 "=$work/sample" - "$solve" "$examples/systems.txt"
cp "$examples/systems.txt" "$work/in"
check 'solve: sample as -' 0 "=$work/sample" - "$solve" -
awk '{ printf "%s\r\n", $0 }' "$examples/systems.txt" | solved 'lines that end in CR LF' "$(sed '$d' "$work/sample")"
printf '1 1\n4 2' | solved 'order 1, no end of the last line' 'system 1:  0.5'
printf '\t2 2 # head\n\n  # note\n0 2 4\n4 0 4# note\n1 0 -1e1\n\n0 1 0.5\n\n# end' |
    solved 'blank lines and comments' 'system 1:    1    2\nsystem 2:  -10  0.5'

# The library's test of an array's later last pivots looks elsewhere: zeros there are no reason to refuse.
printf '2 4\n1 0 1\n0 1 2\n1 0 3\n0 1 4\n1 0 5\n0 1 6\n1 0 7\n0 1 8\n' |
    solved 'identity matrices' 'system 1:  1  2\nsystem 2:  3  4\nsystem 3:  5  6\nsystem 4:  7  8'
printf '3 3\n1 0 0 1\n0 1 0 2\n0 0 1 3\n0 1 0 1\n0 0 1 2\n1 0 0 3\n0 0 1 1\n1 0 0 2\n0 1 0 3\n' |
    solved 'zeros in the last columns, rows exchanged' 'system 1:  1  2  3\nsystem 2:  3  1  2\nsystem 3:  2  3  1'

# 2^-23 itself is large enough to be a pivot, here as the first, a middle and the last one.
t=1.1920928955078125e-7
printf "2 3\n$t 0 1\n0 $t 1\n$t 0 1\n0 1 1\n1 0 1\n0 $t 1\n" |
    solved 'pivots at the tolerance' 'system 1:  8388608  8388608\nsystem 2:  8388608        1\nsystem 3:        1  8388608'

# The identity of order 300, with so much space that a line has about 6000 characters.
awk 'BEGIN { n = 300; print n, 1; for (i = 1; i <= n; ++i) { line = "";
    for (j = 1; j <= n; ++j) line = line (i == j) "                    "; print line i } }' >"$work/long"
solved 'long lines' "system 1:$(awk 'BEGIN { for (i = 1; i <= 300; ++i) printf "  %3d", i }')" <"$work/long"
awk 'BEGIN { n = 20000; print 3, n; for (i = 1; i <= n; ++i) print "0 1 0 2\n0 0 2 6\n1 0 0 1" }' >"$work/many"
solved 'many systems' "$(awk 'BEGIN { for (i = 1; i <= 20000; ++i) printf "system %5d:  1  2  3\n", i }')" <"$work/many"

# ---- solve: malformed input

refused 'empty' 1 'line 1: the input ends before the order and the count' </dev/null
printf '# only this\n' | refused 'only a comment' 1 'line 2: the input ends before the order and the count'
printf '2\n' | refused 'no count' 1 'line 1: expected the count, a whole number'
printf 'two 1\n' | refused 'order in letters' 1 "line 1: expected the order, a whole number, and found 'two'"
printf '2.5 1\n' | refused 'order with a fraction' 1 "line 1: expected the order, a whole number, and found '2.5'"
printf -- '-2 1\n' | refused 'order below 0' 1 "line 1: expected the order, a whole number, and found '-2'"
printf '0 1\n' | refused 'order 0' 1 'line 1: the order must be at least 1'
printf '1 0\n' | refused 'count 0' 1 'line 1: the count must be at least 1'
printf '1 1 1\n' | refused 'three numbers in the first line' 1 "line 1: expected the order and the count only"
printf '4294967296 1\n' | refused 'order 2^32' 1 'line 1: the order 4294967296 is too large'
printf '1 99999999999999999999999\n' |
    refused 'count above 2^64' 1 'line 1: the count 99999999999999999999999 is too large'
printf '4294967295 4294967295\n' |
    refused 'largest sizes' 1 'line 1: 4294967295 systems of order 4294967295 are too large'
printf '16384 1\n' | refused 'a stride above 31 bits' 1 'line 1: 1 systems of order 16384 are too large'
printf '4 33554432\n' |
    refused 'a row of all factors above 31 bits' 1 'line 1: 33554432 systems of order 4 are too large'
printf '16383 1\n1\n' | refused 'largest order, short row' 1 'line 2: row 1 of system 1 has 1 of its 16384 numbers'
printf '4 33554431\n1\n' | refused 'largest count, short row' 1 'line 2: row 1 of system 1 has 1 of its 5 numbers'
printf '2 1\n1 0 1\n0 l 1\n' | refused 'not a number' 1 "line 3: 'l' is not a number"
printf '2 1\n1 0 1\n0 1.5.2 1\n' | refused 'a number and more' 1 "line 3: '1.5.2' is not a number"
printf '2 1\n1,0,1\n0 1 1\n' | refused 'commas' 1 "line 2: '1,0,1' is not a number"
printf '2 1\n1 0 nan\n0 1 1\n' | refused 'a NaN' 1 "line 2: 'nan' is not a finite number"
printf '2 1\n1 0 1\n0 -inf 1\n' | refused 'an infinity' 1 "line 3: '-inf' is not a finite number"
printf '2 1\n1 0 1\n0 1e999 1\n' | refused 'an overflow' 1 "line 3: '1e999' is not a finite number"
printf '2 1\n1 0 1\n\n# note\n0 1\n' | refused 'a short row' 1 'line 5: row 2 of system 1 has 2 of its 3 numbers'
printf '1 2\n1 1\n1 1 1\n' | refused 'a long row' 1 'line 3: row 1 of system 2 has more than its 2 numbers'
printf '2 2\n1 0 1\n0 1 1\n1 0 1\n' | refused 'a missing row' 1 'line 5: the input ends before row 2 of system 2'
printf '1 1\n1 1\n\n2 2\n' | refused 'a row too many' 1 "line 4: found '2' after the last system"
printf '1 1\r\n1 x\r\n' | refused 'not a number, CR LF' 1 "line 2: 'x' is not a number"
printf '1 1\n1 \0001\n' | refused 'a zero byte' 1 'line 2: a zero byte'
awk 'BEGIN { printf "1 1\n1 "; for (i = 0; i < 100000; ++i) printf "9"; print "x" }' |
    refused 'a long word' 1 "line 2: '9999999999999999999999999999999999999999' is not a number"
: >"$work/in"
check 'solve: no such file' 1 - "cannot open $work/none" "$solve" "$work/none"
check 'solve: a folder' 1 - "$work, line 1: cannot read" "$solve" "$work"
check 'solve: unknown option' 1 - 'usage: solve' "$solve" --fast
check 'solve: two files' 1 - 'usage: solve' "$solve" "$examples/systems.txt" "$examples/systems.txt"
check 'solve: --help' 0 'usage: solve [file | -]' - "$solve" --help

# ---- solve: singular systems

printf '1 1\n0 1\n' | refused 'singular, order 1' 2 'system 1 is singular'
printf '1 3\n1 1\n0 1\n1 1\n' | refused 'singular, order 1, the second of three' 2 'system 2 is singular'
printf '2 1\n0 0 1\n0 0 1\n' | refused 'a zero matrix' 2 'system 1 is singular'
printf '2 3\n2 1 3\n1 2 3\n0 1 1\n0 2 2\n0 0 0\n0 0 0\n' |
    refused 'a zero first column, the second of three' 2 'system 2 is singular'
printf '2 3\n1 2 3\n2 4 6\n2 1 3\n1 2 3\n2 1 3\n1 2 3\n' |
    refused 'only the last pivot is zero, the first of three' 2 'system 1 is singular'
printf '2 3\n2 1 3\n1 2 3\n1 2 3\n2 4 6\n2 1 3\n1 2 3\n' |
    refused 'only the last pivot is zero, the second of three' 2 'system 2 is singular'
printf '2 3\n2 1 3\n1 2 3\n2 1 3\n1 2 3\n1 2 3\n2 4 6\n' |
    refused 'only the last pivot is zero, the last of three' 2 'system 3 is singular'
printf '3 4\n1 0 0 1\n0 1 0 1\n0 0 1 1\n0 1 0 1\n1 0 0 1\n1 1 0 2\n0 1 1 1\n0 1 1 1\n0 1 1 1\n1 0 0 1\n0 1 0 1\n0 0 1 1\n' |
    refused 'the last pivot of the second, then the first pivot of the third' 2 'system 2 is singular'
printf '2 3\n2 1 3\n1 2 3\n2 1 3\n1 2 3\n0 1 1\n0 1 1\n' |
    refused 'the first pivot of the last' 2 'system 3 is singular'
printf '2 3\n1 0 1\n0 1 1\n1 0 1\n0 1.1920928955078123e-7 1\n1 0 1\n0 1 1\n' |
    refused 'last pivot below the tolerance, the second of three' 2 'system 2 is singular: a pivot is below 2^-23'
printf '2 1\n1e-10 0 1\n0 1 1\n' |
    refused 'first pivot below the tolerance' 2 'system 1 is singular: a pivot is below 2^-23'
printf '2 2\n1 0 1\n0 1 1\n1 0 1e300\n0 1e-5 1e305\n' |
    refused 'a solution that overflows' 3 'the solution of system 2 overflows'

echo "$(($(wc -l <"$work/checks"))) checks, $(($(wc -l <"$work/failures"))) failures"
[ -s "$work/checks" ] && [ ! -s "$work/failures" ]
