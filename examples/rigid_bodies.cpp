// The state of 1,000 spinning rigid bodies before a contact solver's step: inertia in world axes R I R', its inverse,
// angular velocity from angular momentum, the velocity of each body's contact point, and the kinetic energy of all. The
// data are members of an array of structs; rigid_bodies.c is the same with the C functions.
#include <vonkk3.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

struct Body {
    Matrix orientation, inertia;    // in the body's axes
    Vector momentum, velocity, arm; // angular momentum; velocity of the centre; from there to the contact
    Matrix turned, world, inverse;
    Vector spin, contact;
};

int main() {
    std::vector<Body> bodies(1000);
    for (int n = 0; n < int(bodies.size()); ++n) {
        const double c = std::cos(0.01 * n), s = std::sin(0.01 * n);
        bodies[n].orientation = {{{c, -s, 0}, {s, c, 0}, {0, 0, 1}}};
        bodies[n].inertia = {{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}}};
        bodies[n].momentum = {3, 2, 1};
        for (int i = 0; i < 3; ++i) bodies[n].velocity[i] = 0.1 * i, bodies[n].arm[i] = i - 1 + 0.001 * n;
    }

    const auto all = [&](auto member) { return vonk::members(bodies, member); };
    std::vector<double> energy(bodies.size()), speed(bodies.size());
    vonk::check(vonk::multiply(all(&Body::orientation), all(&Body::inertia), all(&Body::turned)));
    vonk::check(vonk::multiply(all(&Body::turned), vonk::transposed(all(&Body::orientation)), all(&Body::world)));
    vonk::check(vonk::inverse(all(&Body::world), all(&Body::inverse)));
    vonk::check(vonk::multiply(all(&Body::inverse), all(&Body::momentum), all(&Body::spin)));
    vonk::check(vonk::cross(all(&Body::spin), all(&Body::arm), all(&Body::contact)));
    vonk::check(vonk::add(all(&Body::contact), all(&Body::velocity), all(&Body::contact)));
    vonk::check(vonk::dot(all(&Body::spin), all(&Body::momentum), energy));
    vonk::check(vonk::norm(all(&Body::contact), speed));

    double sum = 0;
    for (const double e : energy) sum += 0.5 * e;
    std::printf("kinetic energy of the spins: %.9f\nfastest contact point: %.9f\n", sum,
                *std::max_element(speed.begin(), speed.end()));
}
