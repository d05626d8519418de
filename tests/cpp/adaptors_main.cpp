// Eigen's and GLM's types as operands, against what these libraries compute themselves.
#include <vonkk3.hpp>
#include <vonkk3/eigen.hpp>
#include <vonkk3/glm.hpp>

#include <Eigen/LU>
#include <glm/gtc/matrix_transform.hpp>

#include <cstdio>
#include <vector>

namespace {

int failures = 0;

void expect(bool condition, const char *what) {
    if (condition) return;
    ++failures;
    std::printf("FAILED: %s\n", what);
}

struct Body {
    int id;
    Eigen::Matrix3d inertia;
    Eigen::Vector3d spin;
};

void eigen() {
    std::vector<Eigen::Matrix3d> a(5), d(5);
    std::vector<Eigen::Vector3d> x(5), y(5);
    for (int n = 0; n < 5; ++n) {
        a[n] << 1 + n, 2, 3, 4, 5, 6, 7, 8, 10;
        x[n] << n, 1, -n;
    }
    vonk::check(vonk::multiply(a, x, y));
    expect(y[4].isApprox(a[4] * x[4]), "matrices by columns times vectors");
    vonk::check(vonk::multiply(a[1], vonk::transposed(vonk::matrices(a)), d));
    expect(d[3].isApprox(a[1] * a[3].transpose()), "a transposed factor");
    vonk::check(vonk::inverse(a, d));
    expect(d[2].isApprox(a[2].inverse(), 1e-9), "inverses");
    vonk::check(vonk::solve(a, x, y));
    expect((a[3] * y[3]).isApprox(x[3], 1e-9), "solutions");

    std::vector<Body> bodies(4);
    for (Body &body : bodies) body.inertia = a[2], body.spin = x[3];
    std::vector<Eigen::Vector3d> momentum(4);
    vonk::check(vonk::multiply(vonk::members(bodies, &Body::inertia), vonk::members(bodies, &Body::spin), momentum));
    expect(momentum[3].isApprox(a[2] * x[3]), "members of structs");

    Eigen::Matrix<float, 3, 3, Eigen::RowMajor> rows;
    rows << 1, 2, 3, 4, 5, 6, 7, 8, 9;
    Eigen::Matrix3f columns;
    vonk::check(vonk::copy(rows, columns));
    expect(columns(0, 2) == 3 && columns(2, 1) == 8, "by rows and by columns");

    Eigen::MatrixXd big = Eigen::MatrixXd::Random(9, 7), wide = Eigen::MatrixXd::Random(7, 5), product(9, 5);
    vonk::check(vonk::multiply(big, wide, product));
    expect(product.isApprox(big * wide), "dynamic sizes");
    vonk::check(vonk::multiply(big.block(2, 1, 4, 3), wide.block(1, 0, 3, 5), product.block(3, 0, 4, 5)));
    expect(product.block(3, 0, 4, 5).isApprox(big.block(2, 1, 4, 3) * wide.block(1, 0, 3, 5)), "blocks");
    Eigen::VectorXd v = Eigen::VectorXd::Random(5), w(7);
    vonk::check(vonk::multiply(wide, v, w));
    expect(w.isApprox(wide * v), "dynamic vectors");
    const double numbers[] = {1, 2, 3, 4, 5, 6, 7, 8};
    const Eigen::Map<const Eigen::Vector3d, 0, Eigen::InnerStride<2>> map(numbers + 1);
    double length = 0;
    vonk::check(vonk::norm(map, length));
    expect(std::abs(length - map.norm()) < 1e-12, "a map with a stride");
    expect(vonk::multiply(big, v, w) == vonkErrSize, "sizes that do not fit");
}

void glm_types() {
    std::vector<glm::mat4> poses(6), world(6);
    std::vector<glm::vec4> points(6), moved(6);
    const glm::mat4 camera = glm::translate(glm::rotate(glm::mat4(1), 0.7F, glm::vec3(0, 0, 1)), glm::vec3(1, 2, 3));
    for (int n = 0; n < 6; ++n) {
        poses[n] = glm::translate(glm::mat4(1), glm::vec3(n, 0, 1));
        points[n] = glm::vec4(n, 1, 2, 1);
    }
    vonk::check(vonk::multiply(camera, poses, world));
    const glm::mat4 wanted = camera * poses[5];
    for (int c = 0; c < 4; ++c) expect(glm::distance(world[5][c], wanted[c]) < 1e-5F, "camera times poses");
    vonk::check(vonk::multiply(world, points, moved));
    expect(glm::distance(moved[3], world[3] * points[3]) < 1e-5F, "poses times points");
    vonk::check(vonk::multiply(vonk::transposed(camera), points, moved));
    expect(glm::distance(moved[3], glm::transpose(camera) * points[3]) < 1e-5F, "transposed");
    glm::vec3 normal;
    vonk::check(vonk::cross(glm::vec3(1, 0, 0), glm::vec3(0, 1, 0), normal));
    expect(normal == glm::vec3(0, 0, 1), "a cross product");
    std::vector<float> determinants(6);
    vonk::check(vonk::determinant(world, determinants));
    expect(std::abs(determinants[4] - 1) < 1e-5F, "determinants");
    glm::mat2x3 slim(1, 2, 3, 4, 5, 6); // 2 columns of 3
    float block[6];
    vonk::check(vonk::extract(slim, block));
    expect(block[0] == 1 && block[1] == 4 && block[4] == 3, "rows and columns of a glm::mat2x3");
}

} // namespace

int main() {
    eigen();
    glm_types();
    std::puts(failures == 0 ? "Eigen's and GLM's types are operands" : "operands are not understood");
    return failures != 0;
}
