// The pictures with all their variants, and the data assets.

// The element with the pictures is after the scripts, so it is read only when the document is complete.
const documentLoaded = new Promise((resolve) => document.addEventListener("DOMContentLoaded", resolve));
let pictureList = null;

// An image element without its data, which loadPictures() adds.
function picture(variant, text) {
    const scale = variant.traits.scale ?? 1;
    const image = make("img", { alt: text, width: Math.ceil(variant.width / scale), height: Math.ceil(variant.height / scale) });
    image.dataset.picture = variant.picture;
    return image;
}

async function loadPictures(element) {
    await documentLoaded;
    pictureList ??= JSON.parse(byId("picture-list").textContent);
    for (const image of element.querySelectorAll("img:not([src])"))
        image.src = pictureList[image.dataset.picture];
}

function pictureVariant(variant, asset) {
    const traits = traitText(variant, asset);
    return make("figure", {},
        make("div", { class: "stage" }, picture(variant, `${asset.name}, ${traits}`)),
        make("figcaption", {}, make("strong", {}, traits), ` ${variant.width}\u202f×\u202f${variant.height}`,
            make("span", { class: "bytes" }, fileSize(variant.bytes))));
}

function pictureRow(asset) {
    const variants = asset.variants.map((variant) => pictureVariant(variant, asset));
    const name = assetName(asset);
    if (asset.template)
        name.append(make("span", { class: "tag" }, "Template"));
    const className = asset.template ? "picture template" : "picture";
    const row = assetRow(asset, className, make("div", { class: "variants" }, ...variants), name);
    row.show = () => loadPictures(row.element);
    return row;
}

const pictureLists = assetLists(assetsOf("image").map(pictureRow), "cards");

function dataRow(asset) {
    const variants = asset.variants.map((variant) => {
        const traits = asset.variants.length > 1 ? traitText(variant, asset) : "";
        return make("li", {}, [traits, variant.type, fileSize(variant.bytes)].filter(Boolean).join(" · "));
    });
    return assetRow(asset, "file", assetName(asset), make("ul", {}, ...variants));
}

const dataLists = assetLists(assetsOf("data").map(dataRow), "files");
