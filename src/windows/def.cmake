# The list of exports for linkers, from the list of names.
#
#     cmake -DEXPORTS=exports.txt -DDEF=vonkk3.def -P def.cmake
file(STRINGS ${EXPORTS} names)
list(JOIN names "\n    " names)
file(WRITE ${DEF} "LIBRARY vonkk3.dll\nEXPORTS\n    ${names}\n")
