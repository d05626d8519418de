// Free search over the catalogue, in the words of the field. Runs in the browser and, for the tests, in Node.
'use strict';

var vonkk3Search = (function () {
    const typeWords = { float: '32f', single: '32f', float32: '32f', '32f': '32f', f32: '32f', fp32: '32f', double: '64f',
                        float64: '64f', '64f': '64f', f64: '64f', fp64: '64f' };
    const layoutWords = { aos: ['', 'L'], standard: [''], packed: [''], soa: ['P'], s2: ['S2'], strided: ['S2', 'LS2'],
                          'column-major': ['S2'], fortran: ['S2'], opengl: ['S2'], p: ['P'], pointer: ['P', 'L'],
                          ps2: ['PS2'], l: ['L'], list: ['L', 'LS2'], ls2: ['LS2'], scattered: ['L'] };
    // Layouts that take more than a word, as one word each.
    const phrases = [[/\b(struct(ure)?s?|structs) of (an )?arrays?\b/g, 'soa'], [/\barrays? of (\w+ ){0,2}struct(ure)?s?\b/g, 'array aos'],
                     [/\b(arrays?|lists?|vectors?) of pointers?\b|\bpointers\b/g, 'array list'], [/\bcolumn major\b/g, 'column-major']];
    const arrayWords = new Set(['batch', 'batched', 'array', 'arrays', 'many', 'batches', 'thousands', 'millions', 'all', 'each']);
    const singleWords = new Set(['one', 'single-object']);
    const ignored = new Set(['a', 'an', 'the', 'of', 'by', 'with', 'and', 'to', 'in', 'for', 'from', 'how', 'do', 'i', 'on', 'x', 'two']);

    // Spelling that makes no difference: British -ise, plural, case.
    function normal(word) {
        return word.toLowerCase().replace(/is(e|ed|ation|ing)$/, 'iz$1').replace(/^(vert|matr)ices$/, (w, stem) => stem + 'ix')
            .replace(/([^s])s$/, '$1');
    }

    const joined = (text) => phrases.reduce((t, [pattern, word]) => t.replace(pattern, word), text.toLowerCase());
    const split = (text) => text.toLowerCase().split(/[\s,;:()*/]+/).filter((w) => w && !ignored.has(w));

    // For every operation the words it answers to, and how telling a word is: rare words weigh more.
    function index(model) {
        const operations = model.data.operations.map(function (row) {
            const words = new Map();
            const add = (text, weight) => split(text).forEach((w) => words.set(normal(w), Math.max(weight, words.get(normal(w)) || 0)));
            add(row.words, 1);
            add(row.title, 1.2);
            add(row.operation, 1.5);
            const groups = new Map(Object.entries(row.groupWords).map(([g, text]) => [g, new Set(split(text).map(normal))]));
            return { words: words, groups: groups };
        });
        const counts = new Map();
        operations.forEach((o) => new Set([...o.words.keys(), ...[].concat(...[...o.groups.values()].map((g) => [...g]))])
            .forEach((w) => counts.set(w, (counts.get(w) || 0) + 1)));
        return { model: model, operations: operations, rarity: (w) => Math.log(1 + operations.length / (counts.get(w) || 1)) };
    }

    // What a query asks for besides the operation.
    function wishes(text) {
        const wish = { words: [] };
        let layouts = 0;
        for (const token of split(joined(text))) {
            const size = token.match(/^([3-6])(?:x([1-6])|d)?$/);
            const general = token.match(/^(?:n|m|[0-9]+)x(?:n|[0-9]+)$/);
            if (size) { // a matrix that is not square has no fixed size
                wish.order = !size[2] || size[2] === '1' || size[2] === size[1] ? Number(size[1]) : 0;
                if (size[2]) wish.vector = size[2] === '1';
            } else if (general) wish.order = 0;
            else if (/^\d+$/.test(token)) wish.array = Number(token) > 6 || wish.array;
            else if (token in typeWords && !(token === 'single')) wish.type = typeWords[token];
            else if (token in layoutWords) {
                wish.layouts = layoutWords[token];
                ++layouts;
            }
            else if (arrayWords.has(token)) wish.array = true;
            else if (singleWords.has(token)) wish.single = true;
            else {
                wish.words.push(normal(token));
                if (/^transposed?$/.test(token)) wish.transposed = true;
            }
        }
        if (layouts > 1) { // from one layout to another
            wish.words.push('convert');
            wish.layouts = undefined;
        }
        // "gemv transposed" asks for a product, "transpose" for the operation.
        if (/\btransposed\b/i.test(text) && wish.words.length > 1) wish.words = wish.words.filter((w) => w !== 'transposed');
        return wish;
    }

    function wordScore(index, operation, group, word) {
        const groupWords = operation.groups.get(group);
        if (groupWords && groupWords.has(word)) return 1.6 * index.rarity(word);
        if (operation.words.has(word)) return operation.words.get(word) * index.rarity(word);
        if (word.length < 3) return 0;
        let best = 0;
        for (const [known, weight] of operation.words)
            if (known.startsWith(word)) best = Math.max(best, 0.7 * weight * index.rarity(known));
        return best;
    }

    function functionScore(f, wish) {
        const array = f.parameters.some((p) => p.name === 'count');
        const matrix = /^[mM]/.test(f.group) || /Gaxpy/.test(f.name);
        let score = 0;
        if (wish.order !== undefined) score += f.order === wish.order ? 2 : f.order === 0 ? 0.5 : -2;
        else score += f.order === 0 ? 0.2 : 0.3 - f.order / 100;
        if (wish.vector !== undefined) score += wish.vector === !matrix ? 1 : -1;
        if (wish.array) score += array ? 1.5 : -1.5;
        else if (wish.single) score += array ? -1 : 1;
        else score += array ? 0.2 : 0;
        if (wish.type) score += f.typeName === wish.type ? 1 : -1;
        else score += f.typeName === '32f' ? 0.05 : 0;
        if (wish.layouts) score += wish.layouts.includes(f.layout) ? 2 - wish.layouts.indexOf(f.layout) / 4 : -1;
        else score += ['', 'S2', 'S', 'SS', 'SP'].includes(f.layout) ? 0.1 : 0;
        const transposed = f.operands.filter((o) => o.transposed).length;
        score += wish.transposed && transposed ? 0.5 - transposed / 10 : -transposed / 5;
        const arrays = f.operands.filter((o) => o.array && !o.written).length, sources = f.operands.filter((o) => !o.written).length;
        if (arrays && arrays < sources) score -= 0.1; // one operand for all objects
        return score;
    }

    // The best functions, at most one of each operation and operand group: [{ f, score }].
    function search(index, text, limit) {
        const query = text.trim();
        const all = index.model.functions;
        const name = query.replace(/\(.*$/, '').toLowerCase();
        if (/^vonk/.test(name) || /_/.test(name)) {
            const needle = name.replace(/^vonk/, '');
            const found = all.filter((f) => f.name.toLowerCase().slice(4).startsWith(needle));
            const inside = found.length ? found : all.filter((f) => f.name.toLowerCase().includes(needle));
            return inside.slice(0, limit || 12).map((f) => ({ f: f, score: 1 }));
        }
        const wish = wishes(query);
        if (!wish.words.length) return [];
        const best = new Map();
        for (const f of all) {
            const key = f.usageIndex + ' ' + f.group;
            let entry = best.get(key);
            if (!entry) {
                const operation = index.operations[f.usageIndex];
                const words = wish.words.map((w) => wordScore(index, operation, f.group, w));
                const hits = words.filter((s) => s > 0).length;
                entry = { base: words.reduce((a, b) => a + b, 0) * hits / wish.words.length, f: undefined, score: -1e9 };
                best.set(key, entry);
            }
            if (entry.base <= 0) continue;
            const score = entry.base * 2 + functionScore(f, wish);
            if (score > entry.score) { entry.score = score; entry.f = f; }
        }
        const sorted = [...best.values()].filter((e) => e.f).sort((a, b) => b.score - a.score);
        return withDecompositions(sorted, limit || 12).map((e) => ({ f: e.f, score: e.score }));
    }

    // A decomposition stands before the first function that solves with it, for that is how they are called.
    function withDecompositions(sorted, limit) {
        const result = [];
        for (const entry of sorted) {
            const group = entry.f.group.replace(/va?$/, '');
            const before = sorted.find((e) => e.f.usage.next === entry.f.usage.operation && /^(m|ma)$/.test(group) && /Decomp/.test(e.f.name) && e.f.group === group);
            if (before && !result.includes(before)) result.push(before);
            if (!result.includes(entry)) result.push(entry);
        }
        return result.slice(0, limit);
    }

    return { index: index, search: search };
})();

if (typeof module !== 'undefined') module.exports = vonkk3Search;
