// VONK_CHECK_ALIASING finds what an operation does not allow, and nothing else.
#define VONK_CHECK_ALIASING
#include <vonkk3.hpp>

#include <cstdio>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int failures = 0;

void expect(const char *what, bool allowed, const std::function<vonk::Status()> &call) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        if (!allowed && std::freopen("/dev/null", "w", stderr) == nullptr) _exit(2);
        _exit(call() == vonkOk ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    const bool stopped = WIFSIGNALED(status), done = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    if (allowed ? done : stopped) return;
    ++failures;
    std::printf("FAILED: %s is %s\n", what, stopped ? "refused" : done ? "allowed" : "an error");
}

struct Body {
    float inertia[3][3];
    float spin[3];
    float momentum[3];
};

} // namespace

int main() {
    static float a[10][3][3], b[10][3][3], v[11][3], w[10][3];
    static Body bodies[5];
    const auto A = vonk::matrices(a), B = vonk::matrices(b);
    const auto V = vonk::vectors<3>(v[0], 10), W = vonk::vectors(w);
    for (auto &matrix : a)
        for (int i = 0; i < 3; ++i) matrix[i][i] = 2;

    expect("a sum beside its sources", true, [&] { return vonk::add(A, A, B); });
    expect("a sum in place", true, [&] { return vonk::add(A, B, A); });
    expect("a transposed sum in place", false, [&] { return vonk::add(vonk::transposed(A), B, A); });
    expect("a sum one element further", false, [&] { return vonk::add(V, W, vonk::vectors<3>(v[0] + 1, 10)); });
    expect("a sum one object further", false, [&] { return vonk::add(V, W, vonk::vectors<3>(v[1], 10)); });
    expect("a single source in the destination", false, [&] { return vonk::add(V, V[3], V); });
    expect("one vector in place", true, [&] { return vonk::add(V[2], V[3], V[2]); });
    expect("members of the same structs", true, [&] {
        return vonk::multiply(vonk::members(bodies, &Body::inertia), vonk::members(bodies, &Body::spin),
                              vonk::members(bodies, &Body::momentum));
    });
    expect("a product in place", false, [&] {
        return vonk::multiply(vonk::members(bodies, &Body::inertia), vonk::members(bodies, &Body::spin),
                              vonk::members(bodies, &Body::spin));
    });
    expect("even and odd elements", true, [&] {
        return vonk::copy(vonk::vectors<3>(v[0], 5).object_stride(24).element_stride(8),
                          vonk::vectors<3>(v[0] + 1, 5).object_stride(24).element_stride(8));
    });
    expect("a transpose in place", false, [&] { return vonk::transpose(A, A); });
    expect("an inverse in place", true, [&] { return vonk::inverse(A, A); });
    expect("norms in their vectors", false, [&] { return vonk::norm(V, &v[0][0]); });
    expect("norms beside their vectors", true, [&] { return vonk::norm(V, &w[0][0]); });
    static std::uint32_t pivots[30];
    expect("factors in place", true, [&] { return vonk::lu(A, pivots, A); });
    expect("solutions in place", false, [&] { return vonk::lu_solve(A, pivots, V, V); });
    expect("Cholesky's solutions in place", true, [&] { return vonk::cholesky_solve(A, V, V); });
    static float *list[] = {a[0][0], a[1][0]}, *crossed[] = {a[1][0], a[0][0]};
    expect("a list in place", true,
           [&] { return vonk::scale(vonk::matrices<3, 3>(list), 2, vonk::matrices<3, 3>(list)); });
    expect("a list in another order", false,
           [&] { return vonk::scale(vonk::matrices<3, 3>(list), 2, vonk::matrices<3, 3>(crossed)); });
    std::puts(failures == 0 ? "overlap is found where it is not allowed" : "overlap is not told apart");
    return failures != 0;
}
