#!/bin/sh
# Runs a test on the library as it is built for an instruction set, or says that this processor lacks it. The library is
# loaded first, so that programs which are linked to the baseline get this one as well.
#
#     at_level.sh LEVEL LIBRARY COMMAND...      exit code 77: left out
. "$(dirname "$0")/../scripts/levels.sh"
level=$1
library=$2
shift 2
if ! runs_level "$level"; then
    echo "left out: this processor does not run $level"
    exit 77
fi
exec env VONKK3_LIBRARY="$library" LD_PRELOAD="$library" "$@"
