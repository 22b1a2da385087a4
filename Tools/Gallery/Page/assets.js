// Shared by pictures, colours and data: the traits of a variant, the name with the accessor, the row.

// The label of each trait, in display order.
const traitTexts = {
    scale: (value) => `${value}×`,
    appearance: String,
    contrast: (value) => `${value} contrast`,
    language: String,
    direction: String,
};

// If there is a dark variant, a variant for any appearance is labelled "light".
function traitText(variant, asset) {
    const hasDark = asset.variants.some(({ traits }) => traits.appearance === "dark");
    const traits = hasDark ? { appearance: "light", ...variant.traits } : variant.traits;
    const named = Object.entries(traitTexts).filter(([name]) => name in traits);
    return named.map(([name, text]) => text(traits[name])).join(", ") || "any";
}

function assetName(asset) {
    const last = asset.accessor?.split("::").pop();
    const name = make("div", { class: "name" });
    if (asset.accessor)
        name.append(accessorButton(fullAccessor("assets", asset), last));
    if (asset.name !== last)
        name.append(make("code", { class: "key", dir: "auto" }, asset.name));
    return name;
}

// A row of a SearchableList for `asset`. The element of the row has `children`.
function assetRow(asset, className, ...children) {
    return {
        asset,
        element: make("div", { class: className, role: "listitem", "data-asset": asset.name }, ...children),
        strings: () => [asset.name, fullAccessor("assets", asset)],
        accepts: (status) => status === "all", // the other choices are for texts
    };
}

const assetsOf = (kind) => resources.assets.filter((asset) => asset.kind === kind);
const assetLists = (rows, className) => listsByGroup(rows, (row) => row.asset.catalog, className);
