// The colours: each value in light, dark and high contrast, its contrast ratios, and the strips of progress colours.

// Colours are [red, green, blue, alpha] of extended sRGB: components of colours outside of sRGB are below 0 or above 1,
// and clamped when shown.
const clamped = (component) => Math.min(Math.max(component, 0), 1);
const white = [1, 1, 1, 1];
const black = [0, 0, 0, 1];

function cssColour([red, green, blue, alpha]) {
    return `rgb(${[red, green, blue].map((c) => Math.round(clamped(c) * 255)).join(" ")} / ${alpha})`;
}

function hexOf([red, green, blue, alpha]) {
    const parts = alpha < 1 ? [red, green, blue, alpha] : [red, green, blue];
    return "#" + parts.map((c) => Math.round(clamped(c) * 255).toString(16).padStart(2, "0").toUpperCase()).join("");
}

// The colour as it looks on an opaque ground.
function over(colour, ground) {
    return colour.slice(0, 3).map((component, i) => clamped(component) * colour[3] + ground[i] * (1 - colour[3]));
}

// The relative luminance, 0 to 1, of an opaque colour within sRGB.
function luminance(colour) {
    const [red, green, blue] = colour.map((c) => (c <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4));
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

// The contrast ratio of the Web Content Accessibility Guidelines, 1 to 21.
function contrastRatio(colour, ground) {
    const [darker, lighter] = [luminance(over(colour, ground)), luminance(ground)].sort((a, b) => a - b);
    return (lighter + 0.05) / (darker + 0.05);
}

// The best grade of these guidelines that the ratio reaches; "AA large" is for large text only.
function grade(ratio) {
    if (ratio >= 7)
        return "AAA";
    if (ratio >= 4.5)
        return "AA";
    return ratio >= 3 ? "AA large" : "–";
}

function contrastLine(colour, ground, groundName) {
    const ratio = Math.floor(contrastRatio(colour, ground) * 100) / 100; // rounded down, so that the ratio never suggests a higher grade
    return make("li", { "data-grade": grade(ratio) }, `${ratio.toFixed(2)} on ${groundName} `, make("b", {}, grade(ratio)));
}

function colourValue(variant, asset) {
    const swatch = make("div", { class: "swatch" }, make("span", {}));
    swatch.firstChild.style.background = cssColour(variant.srgb);
    const space = variant.space === "srgb" ? "" : ` ${variant.space}`;
    const name = make("strong", {}, traitText(variant, asset));
    const ratios = [contrastLine(variant.srgb, white, "white"), contrastLine(variant.srgb, black, "black")];
    return make("figure", {}, swatch, make("figcaption", {}, name, " ", make("code", {}, hexOf(variant.srgb)), space),
        make("ul", { class: "ratios" }, ...ratios));
}

function colourRow(asset) {
    const values = asset.variants.map((variant) => colourValue(variant, asset));
    return assetRow(asset, "colour", assetName(asset), make("div", { class: "values" }, ...values));
}

const colourLists = assetLists(assetsOf("color").map(colourRow), "colours");

// The colour for progress (0 to 1) towards a goal, as watchProgress() in Lumora/ProgressColors.cpp computes it.
function progressColour([red, green, blue], progress) {
    return [Math.max(red, 2 * (1 - progress)), Math.min(green, 2 * progress), progress * blue, 1];
}

function progressStrip(variant, asset) {
    const stops = Array.from({ length: 51 }, (_, i) => cssColour(progressColour(variant.srgb, i / 50)));
    const label = "From red through yellow to the colour itself";
    const strip = make("div", { class: "strip-colours", role: "img", "aria-label": label });
    strip.style.background = `linear-gradient(to right, ${stops.join(", ")})`;
    const percents = [0, 25, 50, 75, 100].map((percent) => make("span", {}, `${percent} %`));
    return make("figure", {}, make("figcaption", {}, make("strong", {}, traitText(variant, asset))), strip,
        make("div", { class: "percents" }, ...percents));
}

// The strips for "progressGreen", in which Lumora's application draws progress; null without a colour of that name.
function progressStrips() {
    const asset = assetsOf("color").find((colour) => colour.name.split("/").pop() === "progressGreen");
    if (!asset)
        return null;
    const strips = asset.variants.map((variant) => progressStrip(variant, asset));
    return make("section", { class: "progress" }, make("h3", {}, "Progress"), ...strips);
}
