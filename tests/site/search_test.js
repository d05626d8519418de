// What people type, and what must come first.
//
//     node search_test.js FINDER_FOLDER CATALOGUE.js
'use strict';
const path = require('path');
const [finder, data] = process.argv.slice(2);
const model = require(path.resolve(finder, 'catalogue-model.js')).unpack(require(path.resolve(data)));
const search = require(path.resolve(finder, 'search.js'));
const index = search.index(model);

// Query; patterns that must be matched, in any order, by as many of the first results.
const table = [
    ['solve 4x4 SPD batch', [/^vonkCholeskyDecomp_ma_..f_4x4$/, /^vonkCholeskyBackSubst_mava_..f_4x4$/]],
    ['gemm', [/^vonkMul_m/]],
    ['batched gemm 4x4 float', [/^vonkMul_mama_32f_4x4$/]],
    ['dgemm 3x3', [/^vonkMul_m.*_3x3$/]],
    ['normalise', [/^vonkL2Norm_/]],
    ['normalize vectors', [/^vonkL2Norm_va/]],
    ['transform points', [/^vonkMul_mva_|^vonkGaxpy_va_/]],
    ['transform 10000 points 4x4', [/^vonkMul_mva_32f_4x4$|^vonkGaxpy_va_32f_4x4$/]],
    ['transform matrices by one matrix', [/^vonkMul_(mma|mam)_/]],
    ['least squares', [/^vonkQRDecomp_/, /^vonkQRBackSubst_/]],
    ['lstsq double', [/^vonkQR.*_64f/]],
    ['getrf', [/^vonkLUDecomp_/]],
    ['gesv', [/^vonkLUDecomp_/, /^vonkLUBackSubst_/]],
    ['potrf 3x3 double', [/^vonkCholeskyDecomp_ma?_64f_3x3$/]],
    ['cross product', [/^vonkCrossProduct_/]],
    ['dot', [/^vonkDotProduct_/]],
    ['inverse 4x4 batch', [/^vonkInvert_ma_32f_4x4$/]],
    ['determinant 3x3 soa', [/^vonkDet_ma_32f_3x3_P$/]],
    ['axpy', [/^vonkSaxpy_/]],
    ['lerp', [/^vonkLComb_/]],
    ['identity matrix', [/^vonkLoadIdentity_/]],
    ['aos to soa', [/^vonkCopy_/]],
    ['convert layout', [/^vonkCopy_/]],
    ['frobenius norm', [/^vonkFrobNorm_/]],
    ['transpose 4x4', [/^vonkTranspose_.*_4x4$/]],
    ['trace', [/^vonkTrace_/]],
    ['matrix times vector', [/^vonkMul_m.*v/]],
    ['gemv transposed', [/^vonkMul_m.*Tv|^vonkMul_mTv/]],
    ['scale vectors', [/^vonkMul_va?c_/]],
    ['solve linear systems LU 3x3', [/^vonkLU(Decomp|BackSubst)_.*_3x3$/]],
    ['vonkQRDecomp_ma_64f', [/^vonkQRDecomp_ma_64f$/]],
    ['least squares 6x3 double structure of arrays', [/^vonkQRDecomp_ma_64f_P$/, /^vonkQRBackSubst_mava_64f_P$/]],
    ['least squares 6x3', [/^vonkQRDecomp_ma_32f$/, /^vonkQRBackSubst_mava_32f$/]],
    ['determinants of 5x5 floats, list of pointers', [/^vonkDet_ma_32f_5x5_L$/]],
    ['determinant pointers 5x5', [/^vonkDet_ma_32f_5x5_L$/]],
    ['solve 1000 double 6x6 SPD systems', [/^vonkCholeskyDecomp_ma_64f_6x6$/, /^vonkCholeskyBackSubst_mava_64f_6x6$/]],
    ['inverse of 10000 float 4x4', [/^vonkInvert_ma_32f_4x4$/]],
    ['rotate array of structs by one 3x3 matrix', [/^vonkMul_mva_32f_3x3$/]],
    ['transpose 4x4 column major', [/^vonkTranspose_ma_32f_4x4_S2$/]],
    ['convert array of structures to structure of arrays', [/^vonkCopy_/]],
    ['subtract matrices', [/^vonkSub_m/]],
];

let failed = 0;
for (const [query, patterns] of table) {
    const found = search.search(index, query).map((r) => r.f.name).slice(0, patterns.length);
    const good = patterns.every((p) => found.some((name) => p.test(name)));
    if (!good) {
        ++failed;
        console.log(`FAILED: "${query}" gives ${found.join(', ') || 'nothing'}, not ${patterns.join(', ')}`);
    }
}
if (search.search(index, 'zebra').length) {
    ++failed;
    console.log('FAILED: "zebra" gives something');
}
console.log(`${table.length + 1 - failed} passed, ${failed} failed`);
process.exit(failed ? 1 : 0);
