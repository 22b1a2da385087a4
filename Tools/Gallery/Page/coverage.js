// The coverage of each language.

// How many texts have each status (see statusOf()) in the language with this index.
function coverageOf(index) {
    const counts = { translated: 0, same: 0, missing: 0 };
    for (const text of resources.texts)
        counts[statusOf(text, index)] += 1;
    return counts;
}

// The row of a language. Its name is a button, which calls `showMissing`.
function coverageRow(language, index, showMissing) {
    const counts = coverageOf(index);
    const all = Math.max(resources.texts.length, 1);
    const bar = make("div", { class: "meter", "aria-hidden": "true" });
    for (const status of ["translated", "same"]) {
        const part = make("span", { class: status });
        part.style.width = `${(counts[status] / all) * 100}%`;
        bar.append(part);
    }
    const presentPercent = Math.floor(((counts.translated + counts.same) / all) * 100);
    const notes = [[counts.same, "untranslated"], [counts.missing, "missing"]]
        .filter(([count]) => count > 0).map(([count, what]) => `${numbers.format(count)} ${what}`);
    const name = make("button", { type: "button", class: "language", title: "Show as second language, and list its missing texts" },
        make("bdi", { lang: language.tag, dir: language.direction }, language.name), " ", make("code", {}, language.code));
    name.addEventListener("click", () => showMissing(index, counts));
    return make("li", {}, name, make("span", { class: "percent" }, `${presentPercent} %`), bar,
        make("span", { class: "notes" }, notes.join(", ") || "complete"));
}
