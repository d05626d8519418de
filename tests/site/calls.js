// Writes C programs from what the finder shows of functions: each call as it is pasted, and the loop that is said to be
// equivalent. A program fills the operands, calls, repeats by the loop, and compares.
//
//     node calls.js FINDER_FOLDER CATALOGUE.js OUTPUT_FOLDER [--all]
//
// Without --all: one function at least of every operation, operand group, layout and kind of size.
'use strict';
const fs = require('fs');
const path = require('path');
const [finder, data, output, all] = process.argv.slice(2);
const model = require(path.resolve(finder, 'catalogue-model.js'));
const catalogue = model.unpack(require(path.resolve(data)));

function spread() {
    const chosen = [];
    const kinds = new Map();
    for (const f of catalogue.functions) {
        const kind = [f.usageIndex, f.group, f.layout, f.order !== 0].join();
        if (!kinds.has(kind)) kinds.set(kind, []);
        kinds.get(kind).push(f);
    }
    let turn = 0;
    for (const members of kinds.values()) chosen.push(members[turn++ % members.length]);
    return chosen;
}

// Symmetric, positive definite and diagonally dominant, so that every decomposition succeeds and needs no exchange.
const regularMatrix = '(i == j ? 4.0 : 0.5 / (double)(1 + i + j)) + 0.01 * (double)(n % 7)';
// For formulas: operands that differ from each other and from their transposes.
const values = {
    src: ['1.0 + 0.25 * (double)i - 0.5 * (double)(j * j) + 0.1 * (double)n', '2.0 - 0.5 * (double)(j * j) + 0.1 * (double)n'],
    src1: ['1.0 + 0.25 * (double)i - 0.5 * (double)(j * j) + 0.1 * (double)n', '2.0 - 0.5 * (double)(j * j) + 0.1 * (double)n'],
    src2: ['0.5 - 0.75 * (double)(i * i) + 0.25 * (double)j - 0.2 * (double)n', '1.0 / (double)(1 + j) + 0.1 * (double)n'],
    src3: ['', '3.0 - (double)j + 0.3 * (double)n'],
};

// Stores through the access that the loop has, at the pointers of the call.
function fill(f, parts) {
    const names = new Map(f.parameters.map((p, k) => [p.name, parts.args[k]]));
    return f.operands.filter((o) => !o.written).map(function (o) {
        const macro = model.accessMacro(f, o, true).replace(/^#define \w+\([^)]*\) /, '');
        const element = macro.replace(/\b(src\d?(?:Shift|ObjStride|RowStride|ElemStride)?)\b/g, (name) =>
            '(' + (/Stride$/.test(name) ? '(int32_t)' : '') + names.get(name) + ')');
        const sized = element.replace(/\b(src\dCols|src\dRows|src2Len|rows|cols)\b/g, (size) => model.sizeText(f, size));
        const rows = model.sizeText(f, o.rows), cols = model.sizeText(f, o.cols);
        const objects = o.array ? 'count' : '1';
        const value = o.matrix && !f.usage.assign ? regularMatrix : values[o.name][o.matrix ? 0 : 1];
        const inner = o.matrix
            ? `for (ptrdiff_t i = 0; i < ${rows}; ++i) for (ptrdiff_t j = 0; j < ${cols}; ++j) ${sized} = (${f.type})(${value});`
            : `for (ptrdiff_t j = 0; j < ${rows}; ++j) ${sized} = (${f.type})(${value});`;
        return `for (ptrdiff_t n = 0; n < ${objects}; ++n) ${inner}`;
    }).concat(f.parameters.filter((p) => p.name === 'pivots' && p.direction === 'in').map((p) =>
        `for (size_t k = 0; k < sizeof pivots / sizeof *pivots; ++k) pivots[k] = (uint32_t)(k % (size_t)(${f.order || 'order'}));`)).join('\n');
}

function program(f, options) {
    const text = model.call(f, options), parts = model.callParts(f, options);
    const pasted = text.replace(/\/\* \.\.\. fill .*? \.\.\. \*\//, fill(f, parts));
    const loop = model.loop(catalogue, f);
    const compared = loop && !options.memory && !f.exceptions.some((e) => e.class === 'result');
    const id = f.name + (options.memory ? '_' + options.memory : '');
    const lines = [];
    if (compared) {
        lines.push(`static void loop_${id}(${f.parameters.map(model.declaration).join(', ')}) {`, loop,
                   loop.includes('VonkStatus status') ? 'check(status, "loop of ' + f.name + '");' : '', '}');
        for (const name of ['SRC', 'SRC1', 'SRC2', 'SRC3', 'DST']) lines.push('#undef ' + name);
    }
    lines.push(`static void call_${id}(void) {`, pasted, `check(status, "${f.name}");`);
    if (compared) {
        lines.push(`static ${f.type} saved[sizeof dst / sizeof(${f.type})];`, 'memcpy(saved, dst, sizeof dst);',
                   'memset(dst, 0, sizeof dst);', ...parts.setup, `loop_${id}(${parts.args.join(', ')});`,
                   `compare_${f.type}("${f.name}", saved, (const ${f.type} *)dst, sizeof dst / sizeof(${f.type}));`);
    }
    lines.push('}');
    return { id: id, text: lines.join('\n'), compared: Boolean(compared) };
}

const head = `#include <math.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>
#include <vonkk3.h>
static int failures;
static void check(VonkStatus status, const char *name) {
    if (status != vonkOk) { ++failures; printf("FAILED: %s: status %d\\n", name, (int)status); }
}
#define COMPARE(T, tolerance) \\
    static inline void compare_##T(const char *name, const T *called, const T *looped, size_t count) { \\
        int stored = 0; \\
        for (size_t k = 0; k < count; ++k) { \\
            stored |= called[k] != 0; \\
            if (!(fabs((double)(called[k] - looped[k])) <= tolerance * (1 + fabs((double)looped[k])))) { \\
                ++failures; \\
                printf("FAILED: %s: element %zu is %g, by the loop %g\\n", name, k, (double)called[k], (double)looped[k]); \\
                return; \\
            } \\
        } \\
        if (!stored) { ++failures; printf("FAILED: %s: all results are 0\\n", name); } \\
    }
COMPARE(float, 1e-4)
COMPARE(double, 1e-12)
`;

const functions = all === '--all' ? catalogue.functions : spread();
const programs = [];
for (const f of functions) {
    const sizes = f.usage.operation === 'LoadIdentity' ? {} : { count: 5 };
    programs.push(program(f, sizes));
    if (model.memories(f).includes('struct')) programs.push(program(f, { ...sizes, memory: 'struct' }));
}
fs.mkdirSync(output, { recursive: true });
const perFile = 250;
for (let k = 0; k < programs.length; k += perFile) {
    const part = programs.slice(k, k + perFile);
    fs.writeFileSync(path.join(output, `calls_${k / perFile}.c`),
        head + part.map((p) => p.text).join('\n') + '\nint main(void) {\n' +
        part.map((p) => `call_${p.id}();`).join('\n') + '\nreturn failures != 0;\n}\n');
}
console.log(`${functions.length} functions, ${programs.length} calls, ${programs.filter((p) => p.compared).length} compared with their loops`);
