// Builds an element. String children become text nodes, so resources are never parsed as markup.
function make(tag, attributes, ...children) {
    const element = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes ?? {}))
        element.setAttribute(name, value);
    element.append(...children);
    return element;
}

const byId = (id) => document.getElementById(id);

const numbers = new Intl.NumberFormat("en");
const counted = (count, one, many) => `${numbers.format(count)} ${count === 1 ? one : many}`;

function fileSize(bytes) {
    if (bytes < 1000)
        return `${bytes} B`;
    return bytes < 1e6 ? `${(bytes / 1e3).toFixed(1)} kB` : `${(bytes / 1e6).toFixed(1)} MB`;
}

// A button that shows the short name of an accessor; a click copies its full name (page.js).
function accessorButton(fullName, shortName) {
    return make("button", { type: "button", class: "accessor", "data-copy": fullName, title: `Copy ${fullName}` }, shortName);
}
