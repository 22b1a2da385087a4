// Tests in a browser the pages that `lumora gallery` writes. Durations are printed, but not checked.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { chromium } from "playwright-core";

const program = process.env.LUMORA_PROGRAM;
const folder = mkdtempSync(join(tmpdir(), "lumora-gallery-test-"));
const ownPage = join(folder, "own page.html");
const axe = readFileSync(fileURLToPath(import.meta.resolve("axe-core/axe.min.js")), "utf8");
let browser;

before(async () => {
    execFileSync(program, ["gallery", "-o", ownPage]);
    const flags = ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
        "--disable-component-update", "--disable-sync"];
    browser = await chromium.launch({ executablePath: process.env.CHROMIUM, args: flags });
});

after(async () => {
    await browser?.close();
    rmSync(folder, { recursive: true, force: true });
});

// A case gets the opened page. If the page reports an error or makes a request to the network, the case fails.
function onPage(name, action, { file = () => ownPage, ...options } = {}) {
    test(name, async (context) => {
        const tab = await browser.newPage({ viewport: { width: 1360, height: 900 }, ...options });
        const faults = [];
        tab.on("pageerror", (error) => faults.push(error.stack));
        tab.on("console", (message) => faults.push(message.text()));
        tab.on("dialog", (dialog) => faults.push(dialog.message()));
        tab.on("request", (request) => /^(file|data):/.test(request.url()) || faults.push(request.url()));
        await tab.goto(pathToFileURL(file()).href);
        await action(tab, context);
        assert.deepEqual(faults, []);
        await tab.close();
    });
}

const textCount = 1401, assetCount = 537, languageCount = 19; // in the program's own bundle
const assetLines = () => execFileSync(program, ["assets"], { encoding: "utf8" }).trim().split("\n");
const textOf = (language, key) => execFileSync(program, ["text", "--language", language, key], { encoding: "utf8" }).trim();
const keysShown = (tab) => tab.locator("[data-key]").evaluateAll((rows) => rows.map((row) => row.dataset.key));
const row = (tab, key) => tab.locator(`[data-key="${key}"]`);

onPage("everything is in the document", async (tab, context) => {
    const opened = await tab.evaluate(() => performance.getEntriesByType("navigation")[0].loadEventEnd);
    context.diagnostic(`opened in ${Math.round(opened)} ms`);
    assert.equal(await tab.locator("[data-key]").count(), textCount);
    const names = await tab.locator("[data-asset]").evaluateAll((assets) => assets.map((asset) => asset.dataset.asset));
    assert.deepEqual(names.sort(), assetLines().map((line) => line.split("\t")[2]).sort());
    assert.equal(await tab.locator("#languages > li").count(), languageCount);
});

onPage("the search finds keys, accessors and words of every language", async (tab) => {
    const cases = [ // typed text, a key that is found, one that is not
        ["new_comment", "new_comment", "Continue"],
        ["localizable::continue_", "Continue", "new_comment"],
        ["LumoraStrings::Localizable::Diet::allDish", "Diet.AllDish", "Continue"],
        ["fortfahren", "Welcome.EnterAsCoach", "new_comment"],
        [textOf("ru", "Diet.AllDish").toUpperCase(), "Diet.AllDish", "new_comment"],
    ];
    for (const [typed, found, hidden] of cases) {
        await tab.fill("#search", typed);
        const keys = await keysShown(tab);
        assert.ok(keys.includes(found), typed);
        assert.ok(!keys.includes(hidden), typed);
    }
    assert.equal(await row(tab, "Diet.AllDish").locator(".elsewhere bdi").innerText(), textOf("ru", "Diet.AllDish"));
    await tab.fill("#search", textOf("ko", "Diet.AllDish")); // normalization makes several characters of each syllable
    const highlighted = await tab.evaluate(() => Array.from(CSS.highlights.get("found"), ({ startContainer, startOffset, endOffset }) =>
        startContainer.data.slice(startOffset, endOffset)));
    assert.deepEqual([...new Set(highlighted)].sort(), textOf("ko", "Diet.AllDish").split(" ").sort());
    await tab.fill("#search", "");
    await tab.evaluate(() => window.scrollTo(0, 1e6));
    await tab.fill("#search", "a");
    assert.ok(await tab.locator("#texts-heading").evaluate((heading) => heading.getBoundingClientRect().top >= 0));
    await tab.fill("#search", "progressgreen");
    assert.equal(await tab.locator("[data-asset=progressGreen]").count(), 1);
    await tab.fill("#search", "no such thing anywhere");
    assert.ok(await tab.locator("#nothing").isVisible());
    await tab.fill("#search", "");
    assert.equal(await tab.locator("[data-key]").count(), textCount);
    assert.equal(await tab.locator("[data-asset]").count(), assetCount);
});

onPage("the time of a search after each letter is printed", async (tab, context) => {
    const search = (text) => tab.evaluate((value) => new Promise((resolve) => {
        const start = performance.now();
        document.getElementById("search").value = value;
        document.getElementById("search").dispatchEvent(new InputEvent("input"));
        requestAnimationFrame(() => setTimeout(() => resolve(performance.now() - start)));
    }), text);
    for (const text of ["w", "wo", "wor", "work", "", "e", ""])
        context.diagnostic(`"${text}" shown after ${Math.round(await search(text))} ms`);
});

onPage("Arabic reads from right to left, beside another language", async (tab) => {
    await tab.selectOption("#language-a", "ru");
    await tab.selectOption("#language-b", "ar");
    const cells = row(tab, "Continue").locator(".cell");
    assert.deepEqual(await cells.evaluateAll((all) => all.map((cell) => [cell.lang, cell.dir])), [["ru", "ltr"], ["ar", "rtl"]]);
    await tab.fill("#search", "Continue");
    assert.equal((await cells.nth(1).innerText()).trim(), textOf("ar", "Continue"));
    const box = await cells.nth(1).boundingBox();
    const text = await cells.nth(1).evaluate((cell) => {
        const range = document.createRange();
        range.selectNodeContents(cell.lastChild);
        return range.getBoundingClientRect().right;
    });
    assert.ok(Math.abs(box.x + box.width - text) < 2, "the text is at the right of its column");
});

onPage("dark by the system and by the switch", async (tab) => {
    const brightness = () => tab.evaluate(() => Number(/\d+/.exec(getComputedStyle(document.documentElement).backgroundColor)[0]));
    assert.ok((await brightness()) < 64);
    await tab.click("#theme >> text=Light");
    assert.ok((await brightness()) > 192);
    await tab.click("#theme >> text=Dark");
    assert.ok((await brightness()) < 64);
}, { colorScheme: "dark" });

const copied = (tab) => tab.evaluate(() => navigator.clipboard.readText());

onPage("a click copies the accessor", async (tab) => {
    await row(tab, "Diet.AllDish").locator("button").click();
    assert.equal(await copied(tab), "Lumora::LumoraStrings::Localizable::Diet::allDish");
    assert.match(await tab.locator("#announcement[role=status]").innerText(), /^Copied .*allDish$/);
    await tab.locator("[data-asset=send] button").click();
    assert.equal(await copied(tab), "Lumora::LumoraAsset::Images::send");
}, { permissions: ["clipboard-read", "clipboard-write"] });

onPage("everything can be done with the keyboard", async (tab) => {
    const focused = () => tab.evaluate(() => document.activeElement.id || document.activeElement.textContent);
    await tab.keyboard.press("Tab");
    assert.equal(await focused(), "Skip to the results");
    await tab.keyboard.press("/");
    assert.equal(await focused(), "search");
    await tab.keyboard.type("Diet.AllDish");
    await tab.keyboard.press("Tab");
    assert.equal(await focused(), "language-a");
    await tab.keyboard.press("Tab");
    await tab.keyboard.type("Deu");
    assert.equal(await tab.locator("#language-b").inputValue(), "de");
    while ((await focused()) !== "Localizable::Diet::allDish")
        await tab.keyboard.press("Tab");
    const outline = await tab.evaluate(() => getComputedStyle(document.activeElement).outlineStyle);
    assert.equal(outline, "solid");
    await tab.keyboard.press("Enter");
    assert.equal(await copied(tab), "Lumora::LumoraStrings::Localizable::Diet::allDish");
    await tab.keyboard.press("/");
    await tab.keyboard.press("Escape");
    assert.equal(await tab.locator("[data-key]").count(), textCount);
}, { permissions: ["clipboard-read", "clipboard-write"] });

onPage("pictures have their pixels and variants, on the chosen background", async (tab) => {
    for (const name of ["Colours", "Regions", "Pictures"]) { // a section's place is only estimated until it is laid out
        await tab.click(`nav >> text=${name}`);
        await tab.waitForFunction((id) => {
            const bar = document.querySelector("#controls").getBoundingClientRect();
            const top = document.querySelector(`#${id} h2`).getBoundingClientRect().top;
            return top > bar.bottom && top < bar.bottom + 100;
        }, name.toLowerCase(), { timeout: 5000 });
    }
    const images = tab.locator("[data-asset=action_copy] img");
    await images.first().waitFor();
    await tab.waitForFunction(() => document.querySelector("[data-asset=action_copy] img").naturalWidth > 0);
    assert.deepEqual(await images.evaluateAll((all) => all.map((image) => [image.naturalWidth, image.width])), [[24, 24], [48, 24], [72, 24]]);
    const ground = () => tab.locator("[data-asset=action_copy] .stage").first().evaluate((stage) => getComputedStyle(stage).background);
    const grounds = [];
    for (const name of ["Light", "Dark", "Checkered"]) {
        await tab.click(`#ground >> text=${name}`);
        grounds.push(await ground());
    }
    assert.equal(new Set(grounds).size, 3);
    const cells = await tab.locator("#regions td code").allTextContents();
    for (const name of ["onboarding.1.usa", "homeBoy", "homeGirl.arab", "male_training_target_maintain_ru", "subscription_man"])
        assert.ok(cells.includes(name), name);
});

onPage("colours have their values and contrast ratios", async (tab) => {
    await tab.fill("#search", "blueTextColor");
    const colour = await tab.locator("[data-asset=blueTextColor] figure").first().innerText();
    assert.match(colour, /light/);
    assert.match(colour, /#2F6BEB/);
    assert.match(colour, /4\.74 on white AA\n4\.42 on black AA large/);
    assert.equal(await tab.locator("[data-asset=blueTextColor] figure").count(), 4);
    await tab.fill("#search", "");
    assert.match(await tab.locator(".strip-colours").first().evaluate((strip) => strip.style.background), /rgb\(255, 0, 0\)/);
});

for (const colorScheme of ["light", "dark"])
    onPage(`axe finds nothing wrong in ${colorScheme}`, async (tab) => {
        if (colorScheme === "dark") { // few rows with pictures in their actual size; the light page has all rows, scaled
            await tab.fill("#search", "onboarding");
            await tab.click("#size >> text=Actual");
        }
        await tab.evaluate(axe);
        const { violations } = await tab.evaluate(() => axe.run({ resultTypes: ["violations"] }));
        assert.deepEqual(violations.map(({ id, nodes }) => [id, nodes[0].html, nodes[0].failureSummary]), []);
    }, { colorScheme });

// Writes the page of a small source with difficult contents and returns its path.
function hostilePage() {
    const source = join(folder, "Shop & <Co>");
    const table = (language, text, file = "Odd.strings") => {
        mkdirSync(join(source, `${language}.lproj`), { recursive: true });
        writeFileSync(join(source, `${language}.lproj`, file), text);
    };
    // "@PICTURES@" is a placeholder of the page's template.
    table("Base", '"end" = "</script><script>alert(1)</script><!--"; "quote\\"d" = "%1$@ \\"of\\" %2$ld"; "…" = "No name"; /* Of two things */ "same" = "Same"; "@PICTURES@" = "a";');
    table("Base", `<plist version="1.0"><dict><key>days</key><dict>
        <key>NSStringLocalizedFormatKey</key><string>%#@n@ left</string>
        <key>n</key><dict><key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>
        <key>NSStringFormatValueTypeKey</key><string>ld</string>
        <key>one</key><string>%ld day</string><key>other</key><string>%ld days</string></dict></dict></dict></plist>`, "Odd.stringsdict");
    table("he", '"end" = "<img src=x onerror=alert(2)>"; "same" = "Same";');
    const variants = [["0.5", null], ["1.0", "de"]].map(([red, locale]) => ({
        idiom: "universal", ...(locale && { locale }),
        color: { "color-space": "srgb", components: { red, green: "0", blue: "0", alpha: "1" } },
    }));
    mkdirSync(join(source, "Colors.xcassets/flag.colorset"), { recursive: true });
    writeFileSync(join(source, "Colors.xcassets/flag.colorset/Contents.json"), JSON.stringify({ colors: variants }));
    const page = join(folder, "hostile.html");
    execFileSync(program, ["gallery", source, "--module", "Shop", "-o", page]);
    return page;
}

onPage("texts of any content are only shown", async (tab) => {
    assert.equal(await tab.locator("h1").innerText(), "Shop");
    assert.match(await row(tab, "end").innerText(), /<\/script><script>alert\(1\)<\/script><!--[\s\S]*<img src=x onerror=alert\(2\)>/);
    assert.deepEqual(await tab.locator('[data-key^="quote"] .placeholder').allInnerTexts(), ["%1$@", "%2$ld"]);
    assert.match(await row(tab, "…").innerText(), /No accessor/);
    assert.equal(await row(tab, "same").locator(".tag").innerText(), "Untranslated");
    assert.equal(await row(tab, "same").locator(".comment").innerText(), "Of two things");
    assert.match(await row(tab, "days").innerText(), /%#@n@ left\s+one\s+%ld day\s+other\s+%ld days/);
    assert.deepEqual(await tab.locator('[data-asset="flag"] figcaption').allInnerTexts(), ["any #800000", "de #FF0000"]);
    for (const [status, shown] of [["missing", 4], ["plural", 1], ["comment", 1], ["same", 1]]) {
        await tab.selectOption("#status", status);
        assert.equal((await keysShown(tab)).length, shown, status);
    }
    assert.deepEqual(await tab.locator("main > section:visible h2").allInnerTexts(), ["Texts"]);
}, { file: hostilePage });
