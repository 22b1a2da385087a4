// Lists that can be searched. A list's rows are created once; a search changes which of them are in the document.

// Caches the folded strings of the row, joined and separately. The separator is in no string, as NULs are removed, and in
// no search word, as these have no line breaks.
function prepared(row) {
    row.haystack ??= folded(row.strings().map((text) => text.replaceAll("\0", "")).join("\n\0"));
    row.folded ??= row.haystack.split("\n\0");
    return row;
}

// Rows are grouped in chunks, which the browser neither styles nor lays out while they are far off-screen.
const chunkRows = 24; // divisible by 1, 2, 3 and 4 columns

// The actions of elements; each runs once, when its element comes near the window.
const nearActions = new WeakMap();
const nearWindow = new IntersectionObserver((entries) => {
    for (const { isIntersecting, target } of entries) {
        if (!isIntersecting)
            continue;
        nearWindow.unobserve(target);
        nearActions.get(target)();
    }
}, { rootMargin: "800px" });

function whenNear(element, action) {
    nearActions.set(element, action);
    nearWindow.observe(element);
}

class SearchableList {
    // `rows`: { element, strings: () => [string], accepts: (status) => boolean, show?: () => void, explain?: (words) =>
    // void }. A search finds a row if it accepts the choice in "Show" and each word is in one of its strings. `show` runs
    // when the row comes near the window, `explain` when a search found it, to show what was found.
    constructor(heading, rows, className) {
        this.rows = rows;
        this.className = className;
        this.words = [];
        this.count = make("span", { class: "number" });
        this.list = make("div", { class: "list", role: "list" });
        this.section = make("section", {}, make("h3", { dir: "auto" }, heading, " ", this.count), this.list);
        this.put(rows);
    }

    narrow(words, status) {
        this.words = words;
        const hasWords = (row) => words.every((word) => prepared(row).haystack.includes(word));
        const found = this.rows.filter((row) => row.accepts(status) && hasWords(row));
        for (const row of found)
            row.explain?.(words);
        if (found.length !== this.shown.length || found.some((row, i) => row !== this.shown[i]))
            this.put(found);
        else
            this.seen.forEach((row) => highlight(row.element, words));
    }

    put(rows) {
        this.shown = rows;
        this.seen = []; // rows that came near the window
        this.list.replaceChildren(); // moving rows outside of the document is faster
        const chunks = [];
        for (let first = 0; first < rows.length; first += chunkRows)
            chunks.push(this.chunk(rows.slice(first, first + chunkRows)));
        this.list.append(...chunks);
        this.count.textContent = numbers.format(rows.length);
        this.section.hidden = rows.length === 0;
    }

    chunk(rows) {
        const chunk = make("div", { class: `chunk ${this.className}` }, ...rows.map((row) => row.element));
        chunk.style.setProperty("--rows", rows.length);
        whenNear(chunk, () => this.show(rows));
        return chunk;
    }

    show(rows) {
        this.seen.push(...rows);
        for (const row of rows) {
            row.show?.();
            highlight(row.element, this.words);
        }
    }
}

// One list for each group of rows, in order of first occurrence.
function listsByGroup(rows, groupOf, className) {
    const groups = new Map();
    for (const row of rows) {
        const name = groupOf(row);
        if (!groups.has(name))
            groups.set(name, []);
        groups.get(name).push(row);
    }
    return Array.from(groups, ([name, members]) => new SearchableList(name, members, className));
}
