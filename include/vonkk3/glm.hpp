// GLM's vectors and matrices as operands, alone, in containers and as members of structs. A glm::mat lies by columns:
// its elements are found where they are, nothing is moved, and row i and column j of the operand are m[j][i].
//
//     std::vector<glm::mat4> poses; std::vector<glm::vec3> points;
//     vonk::check(vonk::multiply(camera, poses, world));
#ifndef VONKK3_GLM_HPP
#define VONKK3_GLM_HPP

#include "views.hpp"

#include <glm/glm.hpp>

namespace vonk {

template <glm::length_t Length, class T, glm::qualifier Q>
struct Shape<glm::vec<Length, T, Q>, std::enable_if_t<std::is_floating_point_v<T>>> : VectorShape<T, Size(Length)> {};

template <glm::length_t Columns, glm::length_t Rows, class T, glm::qualifier Q>
struct Shape<glm::mat<Columns, Rows, T, Q>, std::enable_if_t<std::is_floating_point_v<T>>>
    : MatrixShape<T, Size(Rows), Size(Columns), sizeof(T), sizeof(glm::vec<Rows, T, Q>)> {};

} // namespace vonk

#endif
