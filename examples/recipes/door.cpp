// The recipes with the C++ headers. Each function is a snippet of the documentation.
#include "recipe.h"
#include <vonkk3.hpp>

#include <array>
#include <cstdint>
#include <thread>
#include <vector>

namespace {

using Vector = std::array<float, 3>;
using Matrix = std::array<Vector, 3>;

// --8<-- [start:transform]
void transform() {
    const Matrix rotation{{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}}; // a quarter turn about z
    std::vector<Vector> points(10000, {7, 1, -2}), moved(10000);
    vonk::check(vonk::multiply(vonk::matrix(rotation), points, moved));
    expect(moved[7] == Vector{-1, 7, -2}, "point 7 is turned");
}
// --8<-- [end:transform]

// --8<-- [start:own-structs]
struct Body {
    int id;
    float inertia[3][3];
    float spin[3];
    std::array<float, 3> momentum;
};

void own_structs() {
    std::vector<Body> bodies(500, {1, {{1, 0, 0}, {0, 2, 0}, {0, 0, 3}}, {2, 2, 2}, {}});
    vonk::check(vonk::multiply(vonk::members(bodies, &Body::inertia), vonk::members(bodies, &Body::spin),
                               vonk::members(bodies, &Body::momentum)));
    expect(bodies[100].momentum[2] == 6, "momentum of body 100");

    std::vector<Body *> selected{&bodies[7], &bodies[3]}; // pointers to structs, in any order
    vonk::check(vonk::scale(vonk::members(selected, &Body::spin), 10, vonk::members(selected, &Body::spin)));
    expect(bodies[3].spin[0] == 20 && bodies[4].spin[0] == 2, "the selected ones only");
}
// --8<-- [end:own-structs]

// --8<-- [start:soa]
void structure_of_arrays() {
    std::vector<float> vx(4096, 1), vy(4096, 2), vz(4096, 0), fx(4096), fy(4096), fz(4096);
    const float field[3] = {0, 0, 2}; // one vector for all
    const auto force = vonk::soa(fx, fy, fz);
    vonk::check(vonk::cross(vonk::soa(vx, vy, vz), field, force));
    expect(fx[1000] == 4 && fy[1000] == -2, "force on particle 1000");
    const auto ten = force.view().slice(1000, 10);
    vonk::check(vonk::scale(ten, 0.5, ten));
    expect(fx[1009] == 2 && fx[1010] == 4, "ten forces are halved");
}
// --8<-- [end:soa]

// --8<-- [start:column-major]
void column_major() {
    double a[2][4] = {{1, 2, 3, 4}, {5, 6, 7, 8}}; // (1 3; 2 4) and (5 7; 6 8), as Fortran and OpenGL have them
    const double x[2][2] = {{1, 1}, {1, -1}};
    double y[2][2];
    vonk::check(vonk::multiply(vonk::matrices<2, 2>(&a[0][0], 2).column_major(), vonk::vectors(x), vonk::vectors(y)));
    expect(y[0][0] == 4 && y[0][1] == 6 && y[1][0] == -2, "columns are columns");
}
// --8<-- [end:column-major]

// --8<-- [start:lu]
void lu_solves() {
    std::vector<Matrix> a(100, {{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}}), factors(100);
    std::vector<Vector> b(100, {1, 2, 3}), x(100);
    std::vector<std::array<std::uint32_t, 3>> pivots(100);
    vonk::check(vonk::lu(a, pivots, factors)); // whatever `factors` holds before
    vonk::check(vonk::lu_solve(factors, pivots, b, x));
    expect(x[99] == Vector{2, 3, 1}, "solutions");
    vonk::check(vonk::solve(a, b, x)); // the same in one call, where the factors are not wanted
    expect(x[99] == Vector{2, 3, 1}, "solutions again");
}
// --8<-- [end:lu]

// --8<-- [start:cholesky]
void mahalanobis() {
    const std::vector<Matrix> covariance(1000, {{{4, 1, 1}, {1, 4, 1}, {1, 1, 4}}});
    const std::vector<Vector> deviation(1000, {3, 0, 0});
    std::vector<Matrix> factor(1000);
    std::vector<Vector> solution(1000);
    std::vector<float> distance(1000);
    vonk::check(vonk::cholesky(covariance, factor));
    vonk::check(vonk::cholesky_solve(factor, deviation, solution));
    vonk::check(vonk::dot(deviation, solution, distance));
    expect(close_to(distance[999], 2.5, 1e-6), "distance");
}
// --8<-- [end:cholesky]

// --8<-- [start:fits]
void fits() {
    const double design[4][2] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}}; // a line through four points
    const double y[4] = {1, 3, 5, 7};
    double coefficients[2];
    vonk::check(vonk::least_squares(vonk::matrix(design), y, coefficients));
    expect(close_to(coefficients[0], 1, 1e-12) && close_to(coefficients[1], 2, 1e-12), "the line 1 + 2 x");
}
// --8<-- [end:fits]

// --8<-- [start:inverses]
void inverses() {
    std::vector<Matrix> a(100, {{{2, 0, 0}, {0, 4, 0}, {0, 0, 8}}});
    vonk::check(vonk::inverse(a, a)); // 3x3 to 6x6 in place
    expect(close_to(a[42][2][2], 0.125, 1e-6), "inverse");
    double open[8 * 8] = {}, result[8 * 8]; // a size of its own: scratch is on the stack
    for (int i = 0; i < 8; ++i) open[9 * i] = 2;
    vonk::check(vonk::inverse(vonk::matrix<8, 8>(open), vonk::matrix<8, 8>(result)));
    expect(result[63] == 0.5, "8x8");
}
// --8<-- [end:inverses]

// --8<-- [start:normalise]
void normalise() {
    std::vector<Vector> v(1000, {3, 0, 4}), unit(1000);
    v[5] = {0, 0, 0};
    std::vector<float> length(1000);
    vonk::check(vonk::norm(v, length)); // 0, not NaN, of the zero vector
    for (float &l : length) l = l > 0 ? 1 / l : 0;
    // A number for each vector: a 3 by 1 matrix times a vector of 1.
    vonk::check(vonk::multiply(vonk::matrices<3, 1>(&v[0][0], 1000), vonk::vectors<1>(length), unit));
    expect(close_to(unit[10][2], 0.8, 1e-6) && unit[5][0] == 0, "unit vectors");
}
// --8<-- [end:normalise]

// --8<-- [start:which-failed]
void which_failed() {
    std::vector<Matrix> a(100, {{{2, 0, 0}, {0, 2, 0}, {0, 0, 2}}}), factors(100);
    a[42][1][1] = 0;
    vonk::Failed failed;
    const vonk::Status status = vonk::cholesky(a, factors, failed);
    expect(status == vonkErrNotPosDef && failed.object == 42, status.text());
    const vonk::Size next = failed.object + 1; // go on behind it
    vonk::check(
        vonk::cholesky(vonk::matrices(a).slice(next, 100 - next), vonk::matrices(factors).slice(next, 100 - next)));
    expect(factors[99][2][2] > 0, "the rest");
}
// --8<-- [end:which-failed]

// --8<-- [start:threads]
void threads() {
    std::vector<Vector> x(100000, {1, 2, 3}), y(100000);
    const Matrix a{{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}}};
    std::vector<std::thread> workers;
    for (std::size_t part = 0; part < 4; ++part)
        workers.emplace_back([&, part] {
            vonk::check(vonk::multiply(vonk::matrix(a), vonk::vectors(x).slice(part * 25000, 25000),
                                       vonk::vectors(y).slice(part * 25000, 25000)));
        });
    for (std::thread &worker : workers) worker.join();
    expect(y[99999] == Vector{1, 4, 9}, "the last one");
}
// --8<-- [end:threads]

} // namespace

int main() {
    transform(), own_structs(), structure_of_arrays(), column_major(), lu_solves(), mahalanobis(), fits(), inverses();
    normalise(), which_failed(), threads();
    std::puts("done");
}
