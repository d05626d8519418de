// A C++ program that uses the installed library: adds two arrays of vectors.
#include <vonkk3.h>

#include <vector>

int main() {
    const std::vector<double> a(4 * 100, 1.5), b(4 * 100, 2.25);
    std::vector<double> sum(4 * 100);
    const VonkStatus status = vonkAdd_vava_64f_4x1(a.data(), 32, b.data(), 32, sum.data(), 32, 100);
    if (status != vonkOk) return 1;
    for (const double element : sum)
        if (element != 3.75) return 2;
    return vonkGetLibVersion()->versionMajor == 4 ? 0 : 3;
}
