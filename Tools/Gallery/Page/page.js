// Assembles the page and connects its controls; the last of the page's scripts.

// The sections with searchable lists. A section is hidden while its lists show no rows.
const sections = [
    { id: "texts", lists: textLists },
    { id: "pictures", lists: pictureLists },
    { id: "colours", lists: colourLists },
    { id: "data", lists: dataLists },
];
const shownCount = (lists) => lists.reduce((sum, list) => sum + list.shown.length, 0);
const rowCount = (lists) => lists.reduce((sum, list) => sum + list.rows.length, 0);

// The title, and the number of resources of each kind.
function fillHead() {
    const kinds = [
        [textLists, "text", "texts"], [pictureLists, "picture", "pictures"], [colourLists, "colour", "colours"],
        [dataLists, "data asset", "data assets"],
    ];
    const parts = kinds.map(([lists, one, many]) => counted(rowCount(lists), one, many));
    parts.splice(1, 0, counted(languages.length, "language", "languages"));
    document.title = `${resources.title} – gallery`;
    byId("title").textContent = resources.title;
    byId("summary").textContent = parts.join(" · ");
}

function fillLanguageChoices() {
    const second = languages.length > 1 ? 1 : 0;
    for (const [side, initial] of [["a", development], ["b", second]]) {
        const select = byId(`language-${side}`);
        select.append(...languages.map((language, i) =>
            make("option", { value: language.code, lang: language.tag }, `${language.name} (${language.code})`)));
        select.selectedIndex = initial;
        chooseLanguage(side, initial);
        select.addEventListener("change", () => {
            chooseLanguage(side, select.selectedIndex);
            search();
        });
    }
}

// Scrolls to the element, and again in the next frames: parts that were never shown have an estimated size, so the element
// moves while they are laid out.
function goTo(element) {
    let frames = 10;
    const step = () => {
        element.scrollIntoView();
        frames -= 1;
        if (frames > 0)
            requestAnimationFrame(step);
    };
    step();
}

// Lists the missing texts of the language with this index or, if there are none, the untranslated ones, or else all.
function showMissing(index, counts) {
    byId("language-b").selectedIndex = index;
    const untranslated = counts.same ? "same" : "all";
    byId("status").value = counts.missing ? "missing" : untranslated;
    chooseLanguage("b", index);
    search();
    goTo(byId("texts"));
}

function fillSections() {
    byId("languages").append(...languages.map((language, i) => coverageRow(language, i, showMissing)));
    for (const { id, lists } of sections)
        byId(id).append(...lists.map((list) => list.section));
    const table = regionTable();
    if (table)
        byId("regions").append(make("div", { class: "scroller", tabindex: "0", role: "region", "aria-label": "Table" }, table));
    byId("colours").append(progressStrips() ?? "");
}

// The link to each section and the element with its number of results, by the section's id.
const links = new Map();

function fillNavigation() {
    const named = [["coverage", "Coverage"], ["texts", "Texts"], ["pictures", "Pictures"], ["regions", "Regions"],
        ["colours", "Colours"], ["data", "Data"]];
    for (const [id, name] of named) {
        const count = make("span", { class: "number" });
        links.set(id, { link: make("a", { href: `#${id}` }, name, " ", count), count });
        links.get(id).link.addEventListener("click", () => goTo(byId(id)));
        byId("sections").append(links.get(id).link);
    }
}

function search() {
    const words = folded(byId("search").value).split(/\s+/).filter(Boolean);
    const status = byId("status").value;
    foundWords?.clear();
    for (const list of sections.flatMap((section) => section.lists))
        list.narrow(words, status);
    showFound(words.length > 0 || status !== "all");
}

// Searches, and scrolls up if the first results are above the window.
function searchFromTop() {
    search();
    if (byId("results").getBoundingClientRect().top < 0)
        byId("results").scrollIntoView();
}

// Shows the numbers of results and hides sections without any. Parts that are not searched (coverage, regions, progress) are
// hidden during a search.
function showFound(isNarrowed) {
    for (const { id, lists } of sections) {
        byId(id).hidden = shownCount(lists) === 0;
        links.get(id).count.textContent = numbers.format(shownCount(lists));
    }
    byId("results").classList.toggle("narrowed", isNarrowed);
    byId("coverage").hidden = isNarrowed || resources.texts.length === 0;
    byId("regions").hidden = isNarrowed || !byId("regions").querySelector("table");
    for (const progress of document.querySelectorAll(".progress"))
        progress.hidden = isNarrowed;
    for (const [id, { link }] of links)
        link.hidden = byId(id).hidden;
    const texts = shownCount(textLists);
    const assets = shownCount([...pictureLists, ...colourLists, ...dataLists]);
    byId("nothing").hidden = texts + assets > 0;
    byId("count").textContent = `${counted(texts, "text", "texts")}, ${counted(assets, "asset", "assets")}`;
}

let announcementEnd = 0; // the timer that hides the announcement

function announce(message) {
    const announcement = byId("announcement");
    announcement.textContent = message;
    announcement.classList.add("shown");
    clearTimeout(announcementEnd);
    announcementEnd = setTimeout(() => announcement.classList.remove("shown"), 2500);
}

async function copy(button) {
    try {
        await navigator.clipboard.writeText(button.dataset.copy);
        announce(`Copied ${button.dataset.copy}`);
    } catch { // not permitted by the browser
        announce(`Cannot copy. The accessor is ${button.dataset.copy}`);
    }
}

// Focuses the accessor that is `step` places after this one, and returns it if there is one.
function goToNeighbour(button, step) {
    const buttons = Array.from(document.querySelectorAll("main .accessor"));
    const next = buttons[buttons.indexOf(button) + step];
    next?.focus();
    next?.scrollIntoView({ block: "nearest" });
    return next;
}

// "/" focuses the search field, Escape clears it, the arrow keys move between accessors.
function onKey(event) {
    const isTyping = event.target.matches("input[type=search], select");
    const isPlain = !event.ctrlKey && !event.metaKey && !event.altKey;
    if (event.key === "/" && isPlain && !isTyping) {
        byId("search").focus();
        event.preventDefault();
    } else if (event.key === "Escape" && byId("search").value !== "") {
        byId("search").value = "";
        search();
    } else if (isPlain && event.target.matches(".accessor")) {
        const step = { ArrowDown: 1, ArrowUp: -1 }[event.key];
        if (step && goToNeighbour(event.target, step))
            event.preventDefault();
    }
}

// Calls `apply` with the value that is chosen in a group of radio buttons.
function connectChoice(id, apply) {
    byId(id).addEventListener("change", (event) => apply(event.target.value));
}

function connect() {
    byId("search").addEventListener("input", searchFromTop);
    byId("status").addEventListener("change", searchFromTop);
    byId("controls").addEventListener("submit", (event) => event.preventDefault());
    document.addEventListener("keydown", onKey);
    document.addEventListener("click", (event) => {
        const button = event.target.closest(".accessor");
        if (button)
            copy(button);
    });
    connectChoice("theme", (theme) => (document.documentElement.dataset.theme = theme));
    connectChoice("ground", (ground) => (byId("pictures").dataset.ground = ground));
    connectChoice("size", (size) => (byId("pictures").dataset.size = size));
}

fillHead();
fillLanguageChoices();
fillNavigation();
fillSections();
search();
connect();
if (location.hash.length > 1 && byId(location.hash.slice(1)))
    goTo(byId(location.hash.slice(1)));
// Prepares the search once the page is visible, so that the first letter typed is as fast as the others.
setTimeout(() => sections.flatMap((section) => section.lists).forEach((list) => list.rows.forEach(prepared)), 200);
