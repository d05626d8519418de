#!/bin/sh
# Runs a test by Wine on the DLL in a folder, or says that this processor lacks what it is built for.
#
#     at_level.sh LEVEL FOLDER PROGRAM [OPTION...]      exit code 77: left out
. "$(dirname "$0")/../../scripts/levels.sh"
level=$1
folder=$2
shift 2
if [ "$level" != x86-64 ] && ! runs_level "$level"; then
    echo "left out: this processor does not run $level"
    exit 77
fi
# Both for the loader, which serves what the program is linked to, and for what it opens.
exec env WINEPATH="Z:$folder" VONKK3_LIBRARY="Z:$folder/vonkk3.dll" wine "$@"
