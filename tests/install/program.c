/* A C program that uses the installed library: solves one system of 3 equations and asks for the version. */
#include <vonkk3.h>

#include <stdio.h>

int main(void) {
    const float a[9] = {0, 2, 0, 4, 0, 0, 0, 0, 8}, b[3] = {2, 4, 8};
    float factors[9], x[3];
    uint32_t pivots[3];
    if (vonkLUDecomp_m_32f_3x3(a, 12, pivots, factors, 12) != vonkOk) return 1;
    if (vonkLUBackSubst_mv_32f_3x3(factors, 12, pivots, b, x) != vonkOk) return 2;
    if (x[0] != 1 || x[1] != 1 || x[2] != 1) return 3;
    printf("%s\n", vonkGetLibVersion()->versionText);
    return 0;
}
