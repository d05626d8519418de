// What the library exports: nothing but the functions of the public header.
#pragma once

#pragma GCC visibility push(default)
#include "vonkk3.h"
#pragma GCC visibility pop
