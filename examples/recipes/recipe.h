/* What the recipes check their results with. */
#ifndef RECIPE_H
#define RECIPE_H

#include <math.h>
#include <stdio.h>
#include <stdlib.h>

static inline void expect(int condition, const char *what) {
    if (condition) return;
    fprintf(stderr, "FAILED: %s\n", what);
    exit(1);
}

static inline int close_to(double value, double wanted, double tolerance) {
    return fabs(value - wanted) <= tolerance * (1 + fabs(wanted));
}

#endif
