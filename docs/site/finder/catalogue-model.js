// The catalogue, unpacked, and what is written about one function: its prototype, a call to paste, an equivalent loop.
// Runs in the browser and, for the tests, in Node.
'use strict';

var vonkk3Model = (function () {
    // ---- Data ----------------------------------------------------------------------------------------------------------

    function unpack(data) {
        const functions = data.functions.map(function (row) {
            const type = row[4] ? 'double' : 'float';
            const typed = (text) => text.replace(/\bT\b/g, type);
            return {
                name: row[0],
                family: data.families[row[1]],
                usage: data.operations[row[2]],
                usageIndex: row[2],
                group: row[3],
                type: type,
                typeName: row[4] ? '64f' : '32f',
                order: row[5],
                layout: row[6],
                operands: data.operands[row[7]].map((o) => ({
                    name: o[0], matrix: o[1], array: o[2], transposed: o[3], layout: o[4], rows: o[5], cols: o[6],
                    written: o[0] === 'dst',
                })),
                parameters: data.parameters[row[8]].map((p) => ({
                    name: p[0], type: typed(p[1]), kind: p[2], operand: p[3], direction: p[4], length: typed(p[5]),
                })),
                exceptions: row[9].map((k) => data.exceptions[k]),
            };
        });
        const byName = new Map(functions.map((f) => [f.name, f]));
        return { data: data, functions: functions, byName: byName };
    }

    const isArray = (f) => f.parameters.some((p) => p.name === 'count');
    const isTable = (operand) => operand.layout === 'P' || operand.layout === 'PS2';
    const isList = (operand) => (operand.layout === 'L' || operand.layout === 'LS2') && operand.array;
    const isStrided = (operand) => operand.layout === 'S2' || operand.layout === 'LS2';
    const declaration = (p) => p.type + (p.type.endsWith('*') ? '' : ' ') + p.name;

    // "head a, b, c" broken into lines of at most 100 characters.
    function wrapped(head, pieces, end) {
        const lines = [head];
        pieces.forEach(function (piece, k) {
            const text = piece + (k + 1 < pieces.length ? ',' : end);
            const line = lines[lines.length - 1];
            const gap = k === 0 ? '' : ' ';
            if ((line + gap + text).length > 100 && k > 0) lines.push('    ' + text);
            else lines[lines.length - 1] = line + gap + text;
        });
        return lines.join('\n');
    }

    function prototype(f) {
        return wrapped('VonkStatus ' + f.name + '(', f.parameters.map(declaration), ');');
    }

    // ---- A call to paste -----------------------------------------------------------------------------------------------

    // Shown for square matrices, where all sizes mean what they say: products, and functions with another result than
    // their names say.
    function isSquare(f) {
        return f.parameters.some((p) => p.name === 'src1Cols') ||
               (f.parameters.some((p) => p.name === 'cols') && f.exceptions.some((row) => row.class === 'result'));
    }

    // The size parameters that a caller chooses, with defaults.
    function choices(f) {
        const result = [];
        const sizes = f.parameters.filter((p) => p.kind === 'size').map((p) => p.name);
        if (sizes.includes('order')) result.push({ name: 'order', value: 8 });
        else if (sizes.includes('len')) result.push({ name: 'len', value: 8 });
        else if (isSquare(f)) result.push({ name: 'order', value: 8 });
        else if (sizes.includes('cols')) {
            result.push({ name: 'rows', value: 8 }, { name: 'cols', value: f.usage.operation === 'LoadIdentity' ? 8 : 5 });
        }
        if (isArray(f)) result.push({ name: 'count', value: f.usage.operation === 'LoadIdentity' ? 1 : 1000 });
        return result;
    }

    // Where one's own data may lie, apart from packed arrays.
    function memories(f) {
        const own = f.operands.some((o) => o.array && (o.layout === '' || o.layout === 'L'));
        return own && f.usage.operation !== 'LUDecomp' ? ['packed', 'struct'] : ['packed'];
    }

    // A size as it stands in the call: a number or a constant of the caller's.
    function sizeText(f, size) {
        return isSquare(f) && /^(src\d(Cols|Rows|Len)|rows|cols)$/.test(size) ? 'order' : size;
    }

    // How many objects `dst` must hold. The arrays of LUDecomp look beyond object n for the last pivot: n rows of packed
    // elements further on, n objects where elements of a row are a column apart.
    function objectsOf(f, operand) {
        if (f.usage.operation !== 'LUDecomp' || !operand.written || isTable(operand)) return 'count';
        if (isStrided(operand)) return '2 * count - 1';
        return 'count + (count + ' + (f.order ? f.order - 2 : 'order - 2') + ') / ' + (f.order || 'order');
    }

    // Declarations of one operand and the arguments that describe it, by kind of parameter.
    function place(f, operand, memory) {
        const T = f.type, name = operand.name, array = operand.array;
        const rows = sizeText(f, operand.rows), cols = sizeText(f, operand.cols);
        const constant = operand.written ? '' : 'const ';
        const product = (a, b) => (/^\d+$/.test(a) && /^\d+$/.test(b) ? String(a * b) : a + ' * ' + b);
        const positions = operand.matrix ? product(rows, cols) : rows;
        const lines = [], setup = [], args = {};
        const objects = objectsOf(f, operand);
        const object = array ? '[' + objects + ']' : '';

        if (isTable(operand)) {
            const table = name + 'Table';
            const extra = f.usage.operation === 'LUDecomp' && operand.written && array;
            const entries = extra ? '(' + rows + ' + count - 1) * ' + rows : positions;
            if (!array) {
                lines.push('static ' + T + ' ' + name + '[' + positions + '];');
                setup.push('for (int k = 0; k < ' + positions + '; ++k) ' + table + '[k] = &' + name + '[k];');
            } else if (operand.layout === 'P') {
                lines.push('static ' + T + ' ' + name + '[' + positions + '][count]; /* [position][object] */');
                setup.push('for (int k = 0; k < ' + positions + '; ++k) ' + table + '[k] = ' + name + '[k];');
            } else {
                lines.push('static ' + T + ' ' + name + '[count][' + positions + '];');
                setup.push('for (int k = 0; k < ' + positions + '; ++k) ' + table + '[k] = &' + name + '[0][k];');
                args.objectStride = 'sizeof ' + name + '[0]';
            }
            lines.push(constant + T + ' *' + table + '[' + entries + '];');
            if (extra) {
                const run = operand.layout === 'P' ? 'count' : 'count * ' + positions;
                lines.push('static ' + T + ' ones[' + run + ']; /* read for the last pivots: see the exceptions */');
                setup.push('for (int k = 0; k < ' + run + '; ++k) ones[k] = 1;');
                setup.push('for (int k = ' + positions + '; k < ' + entries + '; ++k) ' + table + '[k] = ones;');
            }
            args.table = table;
            args.shift = '0';
            return { lines: lines, setup: setup, args: args };
        }

        // vonkLoadIdentity takes a row stride below a row's length for too small: it cannot store by columns.
        const columns = isStrided(operand) && f.usage.operation !== 'LoadIdentity';
        const own = memory === 'struct' && array && !isStrided(operand);
        let first, objectName = name + (array ? '[0]' : '');
        if (own) {
            lines.push('static struct {\n    ' + T + ' ' + (operand.matrix ? 'm[' + rows + '][' + cols + ']' : 'v[' + rows + ']') +
                       ';\n    int id; /* and whatever else you keep there */\n} ' + name + object + ';');
            objectName += operand.matrix ? '.m' : '.v';
        } else if (!operand.matrix) {
            lines.push('static ' + T + ' ' + name + object + '[' + rows + ']' + (isStrided(operand) ? '[2]' : '') + ';' +
                       (isStrided(operand) ? ' /* every second element */' : ''));
        } else if (columns) {
            lines.push('static ' + T + ' ' + name + object + '[' + cols + '][' + rows + ']; /* column-major: [column][row] */');
        } else {
            lines.push('static ' + T + ' ' + name + object + '[' + rows + '][' + cols + '];');
        }
        first = objectName;
        if (operand.matrix || (isStrided(operand) && !own)) first += '[0]';
        if (operand.matrix) {
            args.rowStride = columns ? 'sizeof(' + T + ')' : 'sizeof ' + objectName + '[0]';
            if (isStrided(operand)) args.elementStride = columns ? 'sizeof ' + objectName + '[0]' : 'sizeof(' + T + ')';
        } else if (isStrided(operand)) {
            args.elementStride = 'sizeof ' + objectName + '[0]';
        }
        if (isList(operand)) {
            const list = name + 'List';
            lines.push(constant + T + ' *' + list + '[count];');
            setup.push('for (int n = 0; n < count; ++n) ' + list + '[n] = ' + first.replace('[0]', '[n]') + ';');
            args.list = list;
            args.shift = '0';
        } else {
            args.base = first;
            if (array) args.objectStride = 'sizeof ' + name + '[0]';
        }
        args.ignored = '0';
        if (objects !== 'count' && array) {
            const total = '(int)(sizeof ' + name + ' / sizeof(' + T + '))';
            lines[0] += ' /* longer than `count`: see the exceptions */';
            setup.push('for (int k = 0; k < ' + total + '; ++k) ((' + T + ' *)' + name + ')[k] = 1;');
        }
        return { lines: lines, setup: setup, args: args };
    }

    // Blocks outside the layouts: results, pivots, workspace.
    function placeBlock(f, p) {
        const T = f.type;
        if (p.name === 'scratch') {
            const order = f.order || 'order';
            const integers = T === 'float' ? order : '(' + order + ' + 1) / 2';
            return { line: 'static ' + T + ' scratch[' + order + ' * ' + order + ' + ' + integers + ']; /* workspace */', arg: 'scratch' };
        }
        const type = p.name === 'pivots' ? 'uint32_t' : T;
        return { line: 'static ' + type + ' ' + p.name + '[' + p.length + '];' + (p.direction === 'scratch' ? ' /* workspace */' : ''),
                 arg: p.name };
    }

    // The parts of a call: constants, declarations, what fills tables and lists, and the arguments.
    function callParts(f, options) {
        options = options || {};
        const chosen = choices(f).map((c) => c.name + ' = ' + (options[c.name] || c.value));
        const lines = [], setup = [], argsOf = {}, seen = new Set();
        f.operands.forEach(function (operand) {
            const placed = place(f, operand, options.memory || 'packed');
            lines.push.apply(lines, placed.lines);
            setup.push.apply(setup, placed.setup);
            argsOf[operand.name] = placed.args;
        });
        const args = f.parameters.map(function (p) {
            if (p.operand) return argsOf[p.operand][p.kind];
            if (p.kind === 'dense') {
                const placed = placeBlock(f, Object.assign({}, p, { length: p.length.replace(/\w+/g, (word) => sizeText(f, word)) }));
                lines.push(placed.line);
                return placed.arg;
            }
            if (p.kind === 'constant') {
                if (!seen.has(p.name)) lines.push('const ' + f.type + ' ' + p.name + ' = 2;');
                seen.add(p.name);
                return p.name;
            }
            return sizeText(f, p.name);
        });
        return { constants: chosen.length ? 'enum { ' + chosen.join(', ') + ' };' : '', lines: lines, setup: setup, args: args };
    }

    function call(f, options) {
        const parts = callParts(f, options);
        const out = [];
        if (parts.constants) out.push(parts.constants);
        out.push.apply(out, parts.lines);
        out.push.apply(out, parts.setup);
        const sources = f.operands.filter((o) => !o.written).map((o) => o.name)
            .concat(f.parameters.filter((p) => p.kind === 'dense' && p.direction === 'in').map((p) => p.name));
        if (sources.length) out.push('', '/* ... fill ' + sources.join(', ').replace(/, ([^,]*)$/, ' and $1') + ' ... */', '');
        out.push(wrapped('VonkStatus status = ' + f.name + '(', parts.args, ');'));
        out.push('if (status != vonkOk) fprintf(stderr, "' + f.name + ': status %d\\n", (int)status);');
        return out.join('\n');
    }

    // ---- The equivalent loop -------------------------------------------------------------------------------------------

    // The macro by which the loop accesses an operand: element (i, j) of object n.
    function accessMacro(f, operand, writable) {
        const constant = operand.written || writable ? '' : 'const ';
        const T = constant + f.type + ' *', bytes = '(' + constant + 'char *)', size = f.type === 'float' ? 4 : 8;
        const n = operand.array ? 'n, ' : '';
        const has = (kind) => f.parameters.some((p) => p.operand === operand.name && p.kind === kind);
        let address;
        if (isTable(operand)) {
            const position = operand.matrix ? '(i) * ' + (/\W/.test(operand.cols) ? '(' + operand.cols + ')' : operand.cols) + ' + (j)' : 'j';
            address = bytes + operand.name + '[' + position + '] + ' + operand.name + 'Shift';
            if (operand.array) address += ' + (n) * ' + (operand.layout === 'P' ? size : operand.name + 'ObjStride');
        } else {
            address = bytes + operand.name + (isList(operand) ? '[n] + ' + operand.name + 'Shift' : '');
            if (has('objectStride')) address += ' + (n) * ' + operand.name + 'ObjStride';
            else if (operand.array && !isList(operand)) throw new Error('no object stride: ' + f.name);
            if (operand.matrix) address += ' + (i) * ' + operand.name + 'RowStride';
            address += ' + (j) * ' + (isStrided(operand) ? operand.name + 'ElemStride' : size);
        }
        return '#define ' + operand.name.toUpperCase() + '(' + n + (operand.matrix ? 'i, ' : '') + 'j) (*(' + T + ')(' + address + '))';
    }

    // Splits "src1(i, k) * src2(k)" and calls back for each access with operand name and indices.
    function eachAccess(text, callback) {
        return text.replace(/\b(src\d?|dst)\(([^()]*)\)/g, (whole, name, list) =>
            callback(name, list.split(',').map((s) => s.trim()).filter((s) => s)));
    }

    function formulaLoop(f) {
        const usage = f.usage, array = isArray(f);
        const operands = new Map(f.operands.map((o) => [o.name, o]));
        const source = operands.get('src') || operands.get('src1');
        // Rows and columns as an operand enters the formula.
        const shape = (o) => (o.transposed ? [o.cols, o.rows] : [o.rows, o.cols]);
        const stored = (o, list) => (!o.matrix ? list.slice(-1) : o.transposed ? [list[1], list[0]] : list);
        const bounds = new Map();
        const note = function (name, list) {
            const operand = operands.get(name) || (name === 'dst' ? source : undefined);
            (operand.matrix ? list : list.slice(-1)).forEach(function (index, k) {
                if (/^[ijk]$/.test(index) && !bounds.has(index)) bounds.set(index, operand.matrix ? shape(operand)[k] : operand.rows);
            });
            return '';
        };
        eachAccess(usage.term + ' ' + usage.assign.replace(/^dst/, operands.has('dst') ? 'dst' : 'none'), note);
        if (!operands.has('dst') && f.family.id === 'extract') eachAccess('src(i, j)', note);
        const written = function (text) {
            return eachAccess(text, function (name, list) {
                const operand = operands.get(name);
                if (!operand) { // a dense block of results
                    if (f.family.id !== 'extract') return 'dst[' + (array ? 'n' : '0') + ']';
                    const o = source, s = shape(o);
                    const inner = o.matrix ? (array ? '(n * ' + s[0] + ' + i)' : 'i') + ' * ' + s[1] + ' + j' : (array ? 'n * ' + o.rows + ' + ' : '') + 'j';
                    return 'dst[' + inner + ']';
                }
                return operand.name.toUpperCase() + '(' + (operand.array ? ['n'] : []).concat(stored(operand, list)).join(', ') + ')';
            });
        };
        const summed = usage.summed ? usage.summed.split(' ') : [];
        const outer = Array.from(bounds.keys()).filter((x) => !summed.includes(x)).sort();
        const lines = f.operands.map((o) => accessMacro(f, o));
        let indent = '';
        const open = function (index, bound) {
            lines.push(indent + 'for (ptrdiff_t ' + index + ' = 0; ' + index + ' < ' + bound + '; ++' + index + ')');
            indent += '    ';
        };
        if (array) open('n', 'count');
        outer.forEach((index) => open(index, bounds.get(index)));
        const assigns = written(usage.assign).split('\n').map((line) => line + ';');
        const many = summed.length || assigns.length > 1;
        if (many && indent) {
            lines[lines.length - 1] += ' {';
            if (summed.length) {
                const inner = indent;
                lines.push(indent + (f.type === 'double' ? 'long double' : 'float') + ' sum = 0;');
                summed.forEach((index) => open(index, bounds.get(index)));
                lines.push(indent + 'sum += ' + (f.type === 'double' ? '(long double)' : '') + written(usage.term) + ';');
                indent = inner;
            }
            assigns.forEach((line) => lines.push(indent + line));
            lines.push(indent.slice(4) + '}');
        } else if (summed.length) {
            lines.push((f.type === 'double' ? 'long double' : 'float') + ' sum = 0;');
            summed.forEach((index) => open(index, bounds.get(index)));
            lines.push(indent + 'sum += ' + (f.type === 'double' ? '(long double)' : '') + written(usage.term) + ';');
            assigns.forEach((line) => lines.push(line));
        } else {
            assigns.forEach((line) => lines.push(indent + line));
        }
        return lines.join('\n').replace(/sqrt\(sum\)/g, f.type === 'double' ? 'sqrtl(sum)' : 'sqrtf(sum)');
    }

    // An algorithm over an array: the single form, object by object.
    function singleForm(model, f) {
        const group = { ma: 'm', mva: 'mv', mava: 'mv' }[f.group];
        const layout = { '': '', S2: 'S2', P: 'P', PS2: 'P', L: '', LS2: 'S2' }[f.layout];
        if (group === undefined || layout === undefined) return undefined;
        const size = f.order ? '_' + f.order + 'x' + f.order : '';
        return model.byName.get('vonk' + f.usage.operation + '_' + group + '_' + f.typeName + size + (layout ? '_' + layout : ''));
    }

    function callLoop(model, f) {
        const single = singleForm(model, f);
        if (!single) return '';
        const operands = new Map(f.operands.map((o) => [o.name, o]));
        const size = f.type === 'float' ? 4 : 8;
        const args = single.parameters.map(function (p) {
            if (p.kind === 'dense') {
                if (p.name === 'pivots' && operands.get(f.group === 'ma' ? 'src' : 'src1').array) return 'pivots + n * ' + (f.order || 'order');
                return p.name === 'dst' ? 'dst + n' : p.name;
            }
            const operand = operands.get(p.operand);
            if (!operand || !operand.array) return p.name;
            const T = (operand.written ? '' : 'const ') + f.type + ' *', bytes = operand.written ? '(char *)' : '(const char *)';
            if (p.kind === 'shift') return p.name + ' + (int32_t)n * ' + (operand.layout === 'P' ? size : p.operand + 'ObjStride');
            if (p.kind !== 'base') return p.name;
            return isList(operand) ? '(' + T + ')(' + bytes + p.name + '[n] + ' + p.name + 'Shift)'
                                   : '(' + T + ')(' + bytes + p.name + ' + n * ' + p.name + 'ObjStride)';
        });
        return 'VonkStatus status = vonkOk;\nfor (ptrdiff_t n = 0; n < count && status == vonkOk; ++n)\n' +
               wrapped('    status = ' + single.name + '(', args, ');').replace(/\n {4}/g, '\n        ');
    }

    function loop(model, f) {
        return f.usage.assign ? formulaLoop(f) : callLoop(model, f);
    }

    // ---- Related functions ---------------------------------------------------------------------------------------------

    const layoutOrder = ['', 'S2', 'P', 'PS2', 'L', 'LS2'];

    // Functions that differ in one piece of the name, by that piece.
    function siblings(model, f) {
        const same = model.functions.filter((g) => g.usageIndex === f.usageIndex && g !== f);
        const equal = (g, keys) => keys.every((key) => g[key] === f[key]);
        return {
            layout: same.filter((g) => equal(g, ['group', 'typeName', 'order'])),
            operands: same.filter((g) => equal(g, ['layout', 'typeName', 'order'])),
            size: same.filter((g) => equal(g, ['group', 'typeName', 'layout'])),
            type: same.filter((g) => equal(g, ['group', 'order', 'layout'])),
        };
    }

    return { unpack: unpack, prototype: prototype, call: call, callParts: callParts, choices: choices, memories: memories,
             loop: loop, accessMacro: accessMacro, sizeText: sizeText, declaration: declaration, siblings: siblings, isArray: isArray, layoutOrder: layoutOrder };
})();

if (typeof module !== 'undefined') module.exports = vonkk3Model;
