// The pictures that depend on a region or sex, recognized by their names: "sexGirl.arab" has the subject "sex…", the sex
// women and the region "arab"; "male_training_target_maintain_ru" has the subject "…_training_target_maintain", the sex men
// and the region "ru". Two letters after an underscore are a region only if the name also has a sex: "arrow_up" has no region.
const sexes = [
    ["men", /(?<![A-Za-z])(male|man|boy)(?![a-z])|(?<=[a-z])(Male|Man|Boy)(?![a-z])/],
    ["women", /(?<![A-Za-z])(female|woman|girl)(?![a-z])|(?<=[a-z])(Female|Woman|Girl)(?![a-z])/],
];

function regionalParts(name) {
    const [sex = "", pattern] = sexes.find(([, words]) => words.test(name)) ?? [];
    const ending = (sex ? /[._]([a-z]{2})$|\.([a-z]+)$/ : /\.([a-z]+)$/).exec(name);
    const stem = ending ? name.slice(0, ending.index) : name;
    return { subject: sex ? stem.replace(pattern, "…") : stem, sex, region: ending?.[1] ?? ending?.[2] ?? "" };
}

// A map from subject to a map from sex to a map from region to picture, the last if there are several. Subjects with only one
// picture are left out; those with regions come first.
function regionalPictures(assets) {
    const subjects = new Map();
    for (const asset of assets) {
        const { subject, sex, region } = regionalParts(asset.name);
        const bySex = subjects.get(subject) ?? new Map();
        const byRegion = bySex.get(sex) ?? new Map();
        subjects.set(subject, bySex.set(sex, byRegion.set(region, asset)));
    }
    for (const [subject, bySex] of subjects) {
        const choices = Math.max(bySex.size, ...Array.from(bySex.values(), (byRegion) => byRegion.size));
        if (choices < 2)
            subjects.delete(subject);
    }
    const hasRegion = ([, bySex]) => [...bySex.values()].some((byRegion) => [...byRegion.keys()].some(Boolean));
    const all = [...subjects];
    return new Map([...all.filter(hasRegion), ...all.filter((subject) => !hasRegion(subject))]);
}

function regionTable() {
    const subjects = regionalPictures(assetsOf("image"));
    if (subjects.size === 0)
        return null;
    const choices = [...subjects.values()].flatMap((bySex) => [...bySex.values()]);
    const regions = [...new Set(choices.flatMap((byRegion) => [...byRegion.keys()]))].sort();
    const head = make("tr", {}, make("th", { scope: "col" }, "Picture"), make("th", { scope: "col" }, "Sex"),
        ...regions.map((region) => make("th", { scope: "col" }, region || "no region")));
    const body = [...subjects].flatMap(([subject, bySex]) => [...bySex].map(([sex, byRegion], i) => make("tr", {},
        ...(i === 0 ? [make("th", { scope: "rowgroup", rowspan: bySex.size }, subject)] : []),
        make("td", {}, sex || "any"),
        ...regions.map((region) => regionCell(byRegion.get(region))))));
    const table = make("table", {}, make("caption", { class: "visually-hidden" }, "Pictures by region and sex"),
        make("thead", {}, head), make("tbody", {}, ...body));
    whenNear(table, () => loadPictures(table));
    return table;
}

function regionCell(asset) {
    if (!asset)
        return make("td", { class: "none" }, "–");
    const largest = asset.variants.reduce((best, variant) => (variant.width > best.width ? variant : best));
    return make("td", {}, make("div", { class: "stage" }, picture(largest, "")), make("code", {}, asset.name));
}
