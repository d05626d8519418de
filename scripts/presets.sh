# Sourced by the scripts beside it.
#
#     configure PRESET [OPTION...]      anew where the folder was configured for another generator
configure() {
    preset=$1
    shift
    cache=build/$preset/CMakeCache.txt
    if [ -f "$cache" ] && ! grep -q '^CMAKE_GENERATOR:INTERNAL=Ninja$' "$cache"; then rm -rf "build/$preset"; fi
    cmake --preset "$preset" "$@"
}
