// The texts, two languages side by side.

// The indexes of the first and second language.
const chosen = { a: development, b: development };

// The text as a list of strings and elements; the elements are its placeholders.
function marked(text) {
    if (!text.includes("%"))
        return [text];
    const parts = [];
    let end = 0;
    for (const match of text.matchAll(placeholder)) {
        parts.push(text.slice(end, match.index), make("bdi", { class: "placeholder" }, match[0]));
        end = match.index + match[0].length;
    }
    parts.push(text.slice(end));
    return parts;
}

function pluralForms(value) {
    const isVariableAlone = /^%#@[^@]*@$/.test(value.format);
    const parts = isVariableAlone ? [] : [make("p", {}, ...marked(value.format))];
    for (const [variable, forms] of Object.entries(value.variables)) {
        const list = make("dl", { class: "forms" });
        for (const [category, text] of Object.entries(forms))
            list.append(make("dt", { lang: "en", dir: "ltr" }, category), make("dd", {}, ...marked(text)));
        if (Object.keys(value.variables).length > 1)
            parts.push(make("p", { class: "variable" }, variable));
        parts.push(list);
    }
    return parts;
}

const statusNames = { missing: "Missing", same: "Untranslated" };

function fillCell(cell, text, index) {
    const language = languages[index];
    const value = text.values[index];
    const status = statusOf(text, index);
    cell.lang = language.tag;
    cell.dir = language.direction;
    cell.dataset.status = status;
    const parts = [make("span", { class: "code", lang: "en", dir: "ltr" }, language.code)];
    if (value !== null)
        parts.push(...(isPlural(value) ? pluralForms(value) : marked(value)));
    if (status !== "translated")
        parts.push(make("span", { class: `tag ${status}`, lang: "en", dir: "ltr" }, statusNames[status]));
    cell.replaceChildren(...parts);
}

function textRow(text) {
    const name = make("div", { class: "name" });
    if (text.accessor)
        name.append(accessorButton(fullAccessor("texts", text), text.accessor));
    name.append(make("code", { class: "key", dir: "auto" }, text.key));
    if (!text.accessor)
        name.append(make("p", { class: "reason" }, make("span", { class: "tag missing" }, "No accessor"), " ", text.reason ?? ""));
    if (text.comment)
        name.append(make("p", { class: "comment", dir: "auto" }, text.comment));
    const cells = { a: make("div", { class: "cell" }), b: make("div", { class: "cell" }) };
    const row = {
        text,
        cells,
        element: make("div", { class: "text columns", role: "listitem", "data-key": text.key }, name, cells.a, cells.b),
        strings: () => [`${text.key}\n${fullAccessor("texts", text)}`, ...text.values.map((value) => stringsOf(value).join("\n"))],
        accepts: (status) => status === "all" || status === statusOf(text, chosen.b) ||
            (status === "plural" && text.values.some(isPlural)) || (status === "comment" && Boolean(text.comment)),
    };
    row.explain = (words) => explain(row, words);
    return row;
}

// Shows the text of a third language if a search word occurs only there.
function explain(row, words) {
    row.elsewhere?.remove();
    row.elsewhere = null;
    const places = prepared(row).folded; // the names, then the text of each language
    const shown = [places[0], places[1 + chosen.a], places[1 + chosen.b]];
    const unseen = words.find((word) => !shown.some((place) => place.includes(word)));
    if (unseen === undefined)
        return;
    const index = places.findIndex((place) => place.includes(unseen)) - 1;
    const language = languages[index];
    row.elsewhere = make("p", { class: "elsewhere" }, make("span", { lang: language.tag }, language.name), ": ",
        make("bdi", { lang: language.tag, dir: language.direction }, ...marked(stringsOf(row.text.values[index]).join(" / "))));
    row.element.append(row.elsewhere);
}

const textRows = resources.texts.map(textRow);
const textLists = listsByGroup(textRows, (row) => row.text.table, "texts");

function chooseLanguage(side, index) {
    chosen[side] = index;
    for (const row of textRows)
        fillCell(row.cells[side], row.text, index);
}
