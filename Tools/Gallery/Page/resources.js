// The resources of the page (see Docs/gallery.md) and derived data: names and directions of languages, and the
// translation status of texts.
const resources = JSON.parse(byId("resource-list").textContent);

const rightToLeftScripts = new Set(["Adlm", "Arab", "Hebr", "Mand", "Nkoo", "Rohg", "Samr", "Syrc", "Thaa"]);

function languageOf(code) {
    const tag = code.replaceAll("_", "-");
    try {
        const script = new Intl.Locale(tag).maximize().script;
        const name = new Intl.DisplayNames([tag], { type: "language" }).of(tag);
        const direction = rightToLeftScripts.has(script) ? "rtl" : "ltr";
        return { code, tag, name: name.charAt(0).toLocaleUpperCase(tag) + name.slice(1), direction };
    } catch { // not a language tag
        return { code, tag: "und", name: code, direction: "auto" };
    }
}

const languages = resources.languages.map(languageOf);
const development = 0; // the first language is the development language

// The whole accessor of a text or an asset, "" if it has none. `tree`: "texts" or "assets".
const fullAccessor = (tree, { accessor }) => (accessor ? resources.trees[tree] + accessor : "");

// The value of a text in one language is null (missing), a string, or an object of plural forms:
// { format, variables: { NAME: { CATEGORY: string } } }.
const isPlural = (value) => value !== null && typeof value === "object";

function stringsOf(value) {
    if (value === null)
        return [];
    return isPlural(value) ? [value.format, ...Object.values(value.variables).flatMap(Object.values)] : [value];
}

// A printf-style placeholder, a plural variable ("%#@days@"), or "%%".
const placeholder = /%(?:\d+\$)?(?:#@[^@]+@|[-+ 0#']*(?:\d+|\*)?(?:\.(?:\d+|\*))?(?:hh|h|ll|l|q|L|z|t|j)?[@a-zA-Z])|%%/g;

function hasWords(value) {
    return stringsOf(value).some((text) => /\p{Letter}/u.test(text.replace(placeholder, "")));
}

// "missing", "same" as the development language's text if that has words to translate, or "translated". `language` is an
// index.
function statusOf(text, language) {
    const value = text.values[language];
    if (value === null)
        return "missing";
    if (text.fixed) // the same in every language
        return "translated";
    const original = text.values[development];
    if (language === development)
        return "translated";
    const isSame = value === original || (isPlural(value) && JSON.stringify(value) === JSON.stringify(original));
    return isSame && hasWords(value) ? "same" : "translated";
}
