// How the sums of products begin: running sums with +0, the row kernels with their first product, which may be -0.
#pragma once

namespace vonkk3::product {

enum class SumBegins { withZero, withFirstProduct };

} // namespace vonkk3::product
