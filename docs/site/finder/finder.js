// The finder's page: choose an operation, operands, type, size and layout, or search; see the function.
'use strict';

(function () {
    const root = document.getElementById('vonkk3-finder');
    if (!root) return;
    const catalogue = vonkk3Model.unpack(vonkk3Data);
    const searchIndex = vonkk3Search.index(catalogue);
    const state = { f: catalogue.byName.get('vonkMul_mva_32f_4x4'), options: {} };

    // ---- Small helpers -------------------------------------------------------------------------------------------------

    function element(tag, attributes, children) {
        const node = document.createElement(tag);
        Object.entries(attributes || {}).forEach(function ([key, value]) {
            if (key === 'text') node.textContent = value;
            else if (key === 'html') node.innerHTML = value;
            else if (value !== undefined && value !== false) node.setAttribute(key, value === true ? '' : value);
        });
        (children || []).forEach((child) => child && node.append(child));
        return node;
    }

    const escaped = (text) => text.replace(/&/g, '&amp;').replace(/</g, '&lt;').replace(/>/g, '&gt;');
    const marked = (text) => escaped(text).replace(/`([^`]*)`/g, '<code>$1</code>'); // `code` as the catalogue's texts have it

    const layoutNames = { '': 'standard', S2: 'S2', P: 'P', PS2: 'PS2', L: 'L', LS2: 'LS2' };
    const layoutTexts = {
        '': 'array of structures: rows of contiguous elements', S2: 'elements a stride apart, also column-major',
        P: 'structure of arrays: one pointer per element position', PS2: 'as P, objects a stride apart',
        L: 'one pointer per object', LS2: 'as L, elements a stride apart',
    };
    const letterNames = { S: 'S2', P: 'PS2', L: 'LS2' };

    function layoutTitle(f) {
        const suffix = f.layout;
        if (f.usage.operation === 'Copy') return letterNames[suffix[0]] + ' → ' + letterNames[suffix[1]];
        if (f.usage.operation === 'LoadIdentity') return letterNames[suffix];
        return layoutNames[suffix];
    }

    // ---- Pictures of operands ------------------------------------------------------------------------------------------

    function glyph(operand, x) {
        const w = operand.matrix ? 16 : 6, parts = [];
        const box = (dx, dy, cls) => `<rect x="${x + dx}" y="${6 + dy}" width="${w}" height="16" class="${cls}"/>`;
        if (operand.array) parts.push(box(8, -4, 'back'), box(4, -2, 'back'));
        parts.push(box(0, 0, 'front'), box(0, 0, 'tint'));
        if (operand.matrix) {
            const lines = operand.transposed ? [[5, 0, 5, 16], [11, 0, 11, 16]] : [[0, 5, 16, 5], [0, 11, 16, 11]];
            lines.forEach((l) => parts.push(`<line x1="${x + l[0]}" y1="${6 + l[1]}" x2="${x + l[2]}" y2="${6 + l[3]}"/>`));
        }
        if (operand.transposed) parts.push(`<text x="${x + w + (operand.array ? 10 : 2)}" y="10" class="mark">T</text>`);
        return { svg: parts.join(''), width: w + (operand.array ? 10 : 2) + (operand.transposed ? 8 : 0) };
    }

    function picture(f) {
        let x = 2, svg = '';
        const sources = f.operands.filter((o) => !o.written);
        const draw = function (part) {
            svg += part.svg;
            x += part.width + 6;
        };
        const constants = f.parameters.filter((p) => p.kind === 'constant').length;
        if (/^c/.test(f.group)) draw({ svg: `<text x="${x}" y="19">c</text>`, width: 8 });
        sources.forEach((o) => draw(glyph(o, x)));
        if (constants && !/^c/.test(f.group)) draw({ svg: `<text x="${x}" y="19">${constants > 1 ? 'c c' : 'c'}</text>`, width: constants > 1 ? 20 : 8 });
        if (!sources.length) f.operands.forEach((o) => draw(glyph(o, x)));
        return `<svg viewBox="0 0 ${x} 26" width="${x}" height="26" aria-hidden="true" focusable="false">${svg}</svg>`;
    }

    function operandsText(f) {
        const words = f.operands.filter((o) => !o.written).map((o) =>
            (o.array ? 'an array of ' : 'one ') + (o.transposed ? 'transposed ' : '') +
            (o.matrix ? (o.array ? 'matrices' : 'matrix') : o.array ? 'vectors' : 'vector'));
        if (!words.length) return 'an array of matrices';
        const counts = f.parameters.filter((p) => p.kind === 'constant').length;
        if (/^c/.test(f.group)) words.unshift('a constant');
        else if (counts === 1) words.push('a constant');
        else if (counts === 2) words.push('two constants');
        return words.join(', ').replace(/, ([^,]*)$/, ' and $1');
    }

    // ---- Choosing ------------------------------------------------------------------------------------------------------

    const sizeKey = (f) => (f.order ? String(f.order) : 'n');
    const keys = {
        group: (f) => f.group,
        type: (f) => f.typeName,
        size: sizeKey,
        layout: (f) => f.layout,
    };

    // The function of an operation that agrees with the present one in as much as there is, in this order.
    function nearest(members, wanted, first) {
        const order = [first].concat(['group', 'type', 'size', 'layout'].filter((k) => k !== first)).filter((k) => k);
        let left = members;
        order.forEach(function (key) {
            const kept = left.filter((f) => keys[key](f) === wanted[key]);
            if (kept.length) left = kept;
            else if (key === 'group') {
                const arrays = left.filter((f) => vonkk3Model.isArray(f) === wanted.array);
                if (arrays.length) left = arrays.filter((f) => f.group === arrays[0].group);
            }
        });
        return left[0];
    }

    const wantedOf = (f) => ({ group: f.group, type: f.typeName, size: sizeKey(f), layout: f.layout, array: vonkk3Model.isArray(f) });
    const membersOf = (f) => catalogue.functions.filter((g) => g.usageIndex === f.usageIndex);

    function choose(key, value) {
        const wanted = wantedOf(state.f);
        wanted[key] = value;
        show(nearest(membersOf(state.f), wanted, key), { push: true, focus: `[name="finder-${key}"]:checked` });
    }

    function chooseOperation(index) {
        const members = catalogue.functions.filter((f) => f.usageIndex === index);
        show(nearest(members, wantedOf(state.f)), { push: true, focus: '#finder-operation' });
    }

    // A row of radio buttons; the browser gives it its arrow keys.
    function radios(key, legend, entries) {
        const name = 'finder-' + key;
        const box = element('fieldset', { class: 'finder-choice finder-' + key }, [element('legend', { text: legend })]);
        const list = element('div', { class: 'finder-options' });
        entries.forEach(function (entry) {
            const input = element('input', { type: 'radio', name: name, id: name + '-' + entry.value, value: entry.value,
                                             checked: entry.value === keys[key](state.f) });
            input.addEventListener('change', () => choose(key, entry.value));
            const label = element('label', { for: name + '-' + entry.value, html: entry.html, title: entry.title });
            if (entry.away) label.classList.add('away');
            list.append(element('span', { class: 'finder-option' }, [input, label]));
        });
        box.append(list);
        return box;
    }

    function distinct(functions, key) {
        const found = new Map();
        functions.forEach((f) => found.has(keys[key](f)) || found.set(keys[key](f), f));
        return found;
    }

    function chooser() {
        const f = state.f, members = membersOf(f), parts = [];
        const select = element('select', { id: 'finder-operation' });
        let group;
        catalogue.data.operations.forEach(function (row, k) {
            const family = catalogue.data.families.find((x) => x.id === row.family);
            const theme = themeOf(row);
            if (!group || group.label !== theme) {
                group = element('optgroup', { label: theme });
                select.append(group);
            }
            group.append(element('option', { value: k, text: row.title, selected: k === f.usageIndex, title: family.summary }));
        });
        select.addEventListener('change', () => chooseOperation(Number(select.value)));
        parts.push(element('div', { class: 'finder-choice' }, [element('label', { for: 'finder-operation', text: 'Operation' }), select]));

        const agreeing = (key, g) => ['group', 'type', 'size', 'layout'].every((k) => k === key || keys[k](g) === keys[k](f));
        const available = (key, value) => members.some((g) => keys[key](g) === value && agreeing(key, g));
        const entries = (key, html, title) => [...distinct(members, key).entries()].map(([value, g]) =>
            ({ value: value, html: html(g), title: title(g), away: !available(key, value) }));
        parts.push(radios('group', 'Operands', entries('group', (g) => picture(g) + '<span class="finder-caption"><code>' + g.group + '</code></span>', operandsText)));
        parts.push(element('p', { class: 'finder-hint', id: 'finder-operands-text', text: operandsText(f) }));
        parts.push(radios('type', 'Type', entries('type', (g) => g.type, (g) => g.typeName)));
        const vector = f.family.id === 'cross-product' || /x1/.test(f.name) || members.some((g) => /x1(_|$)/.test(g.name));
        parts.push(radios('size', 'Size', entries('size', (g) => (g.order ? g.order + '×' + (vector ? 1 : g.order) : 'run-time'),
                                                  (g) => (g.order ? 'in the name' : 'an argument'))));
        const shown = entries('layout', (g) => escaped(layoutTitle(g)), (g) => layoutTexts[g.layout] || '');
        parts.push(radios('layout', 'Layout', shown));
        if (layoutTexts[f.layout]) parts.push(element('p', { class: 'finder-hint', text: layoutTexts[f.layout] }));
        return parts;
    }

    function themeOf(row) {
        const family = row.family;
        if (/^(vector|saxpy|linear|dot|norm|cross)/.test(family)) return 'Vectors';
        if (/^(matrix-product|matrix-vector|gaxpy)/.test(family)) return 'Products of matrices';
        if (/^(matrix|transpose|trace|frobenius)/.test(family)) return 'Matrices element by element';
        if (/^(copy|extract|identity)/.test(family)) return 'Data movement';
        return 'Systems, inverses, decompositions';
    }

    // ---- One function --------------------------------------------------------------------------------------------------

    function code(text, label) {
        const button = element('button', { type: 'button', class: 'finder-copy', text: 'Copy', 'aria-label': 'Copy ' + label });
        button.addEventListener('click', function () {
            copyText(text);
            button.textContent = 'Copied';
            setTimeout(() => { button.textContent = 'Copy'; }, 1500);
        });
        return element('div', { class: 'finder-code' }, [button, element('pre', { tabindex: '0', 'aria-label': label }, [element('code', { text: text })])]);
    }

    function copyText(text) {
        if (navigator.clipboard && window.isSecureContext) {
            navigator.clipboard.writeText(text);
            return;
        }
        const area = element('textarea', { class: 'finder-offscreen' });
        area.value = text;
        document.body.append(area);
        area.select();
        document.execCommand('copy');
        area.remove();
    }

    const link = (f, text) => element('a', { href: '#' + f.name, text: text || f.name });
    const heading = (text) => element('h3', { text: text });

    function exceptionList(rows) {
        return element('ul', {}, rows.map((row) => element('li', {}, [
            element('a', { href: 'reference/' + row.family + '.html#exceptions', text: row.id }),
            element('span', { text: ' (' + row.class + '): ' }),
            element('span', { html: marked(row.description) }),
        ])));
    }

    function optionInputs(f) {
        const inputs = vonkk3Model.choices(f).map(function (choice) {
            const id = 'finder-value-' + choice.name;
            const input = element('input', { type: 'number', min: 1, max: 1000000, id: id, value: state.options[choice.name] || choice.value });
            input.addEventListener('input', function () {
                state.options[choice.name] = Math.max(1, Math.min(1000000, Math.floor(Number(input.value)) || choice.value));
                fillCall(f);
            });
            return element('span', { class: 'finder-value' }, [element('label', { for: id, text: choice.name }), input]);
        });
        const memories = vonkk3Model.memories(f);
        if (memories.length > 1) {
            const names = { packed: 'packed', struct: 'member of my own struct' };
            const select = element('select', { id: 'finder-memory' }, memories.map((m) =>
                element('option', { value: m, text: names[m], selected: m === state.options.memory })));
            select.addEventListener('change', function () {
                state.options.memory = select.value;
                fillCall(f);
            });
            inputs.push(element('span', { class: 'finder-value' }, [element('label', { for: 'finder-memory', text: 'arrays are' }), select]));
        }
        return inputs.length ? element('div', { class: 'finder-values' }, inputs) : undefined;
    }

    function callOptions(f) {
        const options = Object.assign({}, state.options);
        if (!vonkk3Model.memories(f).includes(options.memory)) delete options.memory;
        return options;
    }

    function fillCall(f) {
        const place = document.getElementById('finder-call');
        if (place) place.replaceChildren(code(vonkk3Model.call(f, callOptions(f)), 'call'));
    }

    // The recipes that show a family, or a layout, at work.
    const recipes = {
        'matrix-vector': ['transform'], gaxpy: ['transform'], 'matrix-product': ['transform'], norm: ['normalise'],
        'lu-decomposition': ['lu-solves', 'which-failed'], 'lu-back-substitution': ['lu-solves'], inverse: ['inverses', 'which-failed'],
        'cholesky-decomposition': ['cholesky', 'which-failed'], 'cholesky-back-substitution': ['cholesky'],
        'qr-decomposition': ['fits', 'which-failed'], 'qr-back-substitution': ['fits'],
    };
    const layoutRecipes = { S2: 'column-major', P: 'structure-of-arrays', PS2: 'structure-of-arrays', L: 'own-structs', LS2: 'own-structs' };

    const recipeTitles = {
        transform: 'transform by one matrix', normalise: 'normalise vectors', 'lu-solves': 'many LU solves', 'which-failed': 'which object failed',
        inverses: 'inverses', cholesky: 'SPD systems', fits: 'least squares', 'column-major': 'column-major data',
        'structure-of-arrays': 'structure of arrays', 'own-structs': 'arrays of your own structs',
    };

    function recipeLinks(f) {
        const layout = vonkk3Model.memories(f).includes('struct') ? 'own-structs' : layoutRecipes[f.layout];
        return [...new Set((recipes[f.family.id] || []).concat(layout || []))].map((name) =>
            element('a', { href: 'recipes/' + name + '.html', text: recipeTitles[name] }));
    }

    function related(f) {
        const near = vonkk3Model.siblings(catalogue, f), programs = recipeLinks(f);
        const row = (label, list, text) => list.length && element('tr', {}, [
            element('th', { scope: 'row', text: label }),
            element('td', {}, [].concat(...list.map((g) => [link(g, text(g)), ' ']))),
        ]);
        const next = f.usage.next && catalogue.functions.find((g) => g.usage.operation === f.usage.next && g.typeName === f.typeName &&
            sizeKey(g) === sizeKey(f) && g.layout === f.layout && vonkk3Model.isArray(g) === vonkk3Model.isArray(f) &&
            (g.group === { m: 'mv', ma: 'mava' }[f.group] || g.group === 'vc' || g.group === 'v' || g.group === 'va'));
        return element('table', { class: 'finder-related' }, [element('tbody', {}, [
            row('other layouts', near.layout, layoutTitle),
            row('other operands', near.operands, (g) => g.group),
            row('other sizes', near.size, (g) => (g.order ? g.name.split('_')[3] : 'run-time')),
            row('other type', near.type, (g) => g.type),
            next ? row('called next', [next], (g) => g.name) : undefined,
            programs.length && element('tr', { class: 'finder-recipes' }, [
                element('th', { scope: 'row', text: 'programs' }), element('td', {}, programs.flatMap((a) => [a, ' ']))]),
        ])]);
    }

    function detail() {
        const f = state.f;
        const reads = f.exceptions.filter((row) => row.class === 'reads');
        const others = f.exceptions.filter((row) => row.class !== 'reads');
        const loop = vonkk3Model.loop(catalogue, f);
        const family = element('a', { href: 'reference/' + f.family.id + '.html', text: f.family.title });
        return [
            element('h2', { id: 'finder-name', text: f.name }),
            element('p', {}, [f.usage.title + ': ' + operandsText(f) + '. Family: ', family, '.']),
            code(vonkk3Model.prototype(f), 'prototype'),
            others.length ? heading('Exceptions') : undefined,
            others.length ? exceptionList(others) : undefined,
            heading('Reads beyond its operands'),
            reads.length ? exceptionList(reads) : element('p', { text: 'Nothing.' }),
            heading('A call to paste'),
            optionInputs(f),
            element('div', { id: 'finder-call' }),
            heading('The equivalent loop'),
            loop ? code(loop, 'loop') : element('p', {}, ['An algorithm on one object; its steps are in the ',
                                                          element('a', { href: 'reference/' + f.family.id + '.html', text: 'family’s page' }), '.']),
            f.exceptions.some((row) => row.class === 'result')
                ? element('p', { text: 'This is what the name says. The function does something else: see its exceptions.' }) : undefined,
            element('p', { class: 'finder-hint', text: loop ? 'The same values up to rounding; the family’s page gives the order of the operations.' : '' }),
            heading('Overlap'),
            element('p', { html: marked(f.family.overlap.replace(/\n/g, ' ')) }),
            heading('Related functions'),
            related(f),
        ];
    }

    // ---- The page ------------------------------------------------------------------------------------------------------

    const searchBox = element('input', { type: 'search', id: 'finder-search', autocomplete: 'off', spellcheck: 'false',
                                         placeholder: 'solve 4x4 SPD batch', 'aria-describedby': 'finder-search-hint',
                                         'aria-controls': 'finder-results' });
    const results = element('ul', { id: 'finder-results', 'aria-label': 'Functions found', 'aria-live': 'polite' });
    const chooserBox = element('form', { id: 'finder-chooser', 'aria-label': 'Choose a function' });
    const detailBox = element('section', { id: 'finder-detail', 'aria-labelledby': 'finder-name' });
    const status = element('p', { class: 'finder-offscreen', role: 'status' }); // read aloud when the function changes
    chooserBox.addEventListener('submit', (event) => event.preventDefault());

    function showResults() {
        const found = searchBox.value.trim() ? vonkk3Search.search(searchIndex, searchBox.value, 10) : [];
        results.replaceChildren(...found.map(function (entry) {
            const item = element('li', {}, [link(entry.f), element('span', { text: ' ' + entry.f.usage.title + ': ' + operandsText(entry.f) })]);
            return item;
        }));
        if (searchBox.value.trim() && !found.length) results.append(element('li', { class: 'finder-hint', text: 'Nothing found. Try an operation: “solve”, “product”, “norm”.' }));
    }

    searchBox.addEventListener('input', showResults);
    searchBox.addEventListener('keydown', function (event) {
        const first = results.querySelector('a');
        if (event.key === 'Enter' && first) {
            event.preventDefault();
            location.hash = first.getAttribute('href');
        } else if (event.key === 'ArrowDown' && first) {
            event.preventDefault();
            first.focus();
        } else if (event.key === 'Escape') {
            searchBox.value = '';
            showResults();
        }
    });
    results.addEventListener('keydown', function (event) {
        const links = [...results.querySelectorAll('a')], at = links.indexOf(document.activeElement);
        if (event.key === 'ArrowDown' && links[at + 1]) links[at + 1].focus();
        else if (event.key === 'ArrowUp') (links[at - 1] || searchBox).focus();
        else return;
        event.preventDefault();
    });

    function show(f, how) {
        state.f = f;
        chooserBox.replaceChildren(...chooser());
        detailBox.replaceChildren(...detail().filter((x) => x));
        fillCall(f);
        if (how && how.push && location.hash !== '#' + f.name) history.pushState(null, '', '#' + f.name);
        if (how && how.focus) {
            const target = chooserBox.querySelector(how.focus);
            if (target) target.focus({ preventScroll: true });
        }
        status.textContent = f.name + ': ' + f.usage.title;
        document.title = f.name + ' - vonkk3';
    }

    function fromAddress(jump) {
        const f = catalogue.byName.get(decodeURIComponent(location.hash.slice(1)));
        if (!f) return false;
        show(f);
        if (jump) detailBox.scrollIntoView({ block: 'start' });
        return true;
    }

    root.replaceChildren(
        element('div', { class: 'finder-search' }, [
            element('label', { for: 'finder-search', text: 'Search' }), searchBox,
            element('p', { class: 'finder-hint', id: 'finder-search-hint', text: 'Words of the field, or a name: “gemm 3x3 double”, “normalise”, “transform points”, “vonkQR”. Down goes to the results, Enter opens the first.' }),
            results]),
        element('div', { class: 'finder-columns' }, [chooserBox, detailBox]), status);
    window.addEventListener('hashchange', () => fromAddress(true));
    window.addEventListener('popstate', () => fromAddress(false));
    if (!fromAddress(true)) show(state.f);
    root.setAttribute('data-ready', 'true');
})();
