// How an element travels when nothing is computed with it.
#pragma once

#include "frame/stream.h"

namespace vonkk3::move {

// A Real32 is moved as the word that it is. A Real64 goes through the 80-bit stack, one load and one store: all its
// values come out as they went in, but a signalling NaN comes out quiet. A compiler would drop the way there and back
// as having no effect, so the value is shown to it as changed on the stack.
struct Moved : vonkk3::Moved {
    using vonkk3::Moved::operator();
    Real64 operator()(Real64 element) const {
        Wide onStack = element;
        __asm__("" : "+t"(onStack));
        return round<Real64>(onStack);
    }
};

} // namespace vonkk3::move
