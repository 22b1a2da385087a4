// What `lumora check --format sarif` writes, against the published schema. Tests/Gallery installs the packages and runs this test.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { dirname, join } from "node:path";
import { test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import Ajv from "ajv";

const require = createRequire(import.meta.url);
const ajv = new Ajv({ schemaId: "auto", allErrors: true, logger: false });
ajv.addMetaSchema(require("ajv/lib/refs/json-schema-draft-04.json"));
const isValid = ajv.compile(require("@microsoft/jest-sarif/lib/schemas/sarif-2.1.0-rtm.5.json"));

// Findings of every severity: with and without a line, about an asset, in a file whose name a URI encodes, about a key with escapes.
const source = {
    "en.lproj/Shop.strings": '"title" = "Shop";\n"a \\"b\\" \\U0001" = "%@ %ld";\n"twice" = "1";\n"twice" = "2";\n',
    "de.lproj/Shop.strings": '"title" = "Shop";\n"a \\"b\\" \\U0001" = "%ld %@ ";\n"more" = "x";\n',
    "fr.lproj/Shop.strings": Buffer.from("bplist00 cut"),
    "ja.lproj/Other ü#?.strings": '"a" = ;',
    "Images.xcassets/cart.imageset/Contents.json": '{"images": [{"filename": "none.png"}]}',
};

test("SARIF is valid, and each result is at a file of the source", () => {
    const folder = mkdtempSync(join(tmpdir(), "lumora sarif-"));
    try {
        for (const [name, content] of Object.entries(source)) {
            mkdirSync(dirname(join(folder, name)), { recursive: true });
            writeFileSync(join(folder, name), content);
        }
        const check = (cwd, where) => {
            try {
                return execFileSync(process.env.LUMORA_PROGRAM, ["check", where, "--format", "sarif"], { cwd, encoding: "utf8" });
            } catch (failed) {
                assert.equal(failed.status, 1, failed.stderr);
                return failed.stdout;
            }
        };
        for (const [cwd, where] of [[folder, "."], ["/", folder]]) {
            const log = JSON.parse(check(cwd, where));
            assert.ok(isValid(log), JSON.stringify(isValid.errors, null, 1));
            const [{ results, tool }] = log.runs;
            assert.deepEqual([...new Set(results.map((result) => result.level))].sort(), ["error", "note", "warning"]);
            for (const { ruleId, ruleIndex, level, locations } of results) {
                const rule = tool.driver.rules[ruleIndex];
                assert.deepEqual([rule.id, rule.defaultConfiguration.level], [ruleId, level]);
                const { uri } = locations[0].physicalLocation.artifactLocation;
                const path = fileURLToPath(new URL(uri, pathToFileURL(join(cwd, "/"))));
                assert.ok(Object.keys(source).some((name) => path === join(folder, name)), path);
            }
            const fingerprints = results.map((result) => result.partialFingerprints["lumora/v1"]);
            assert.equal(new Set(fingerprints).size, fingerprints.length);
        }
        rmSync(folder, { recursive: true });
        mkdirSync(join(folder, "en.lproj"), { recursive: true });
        writeFileSync(join(folder, "en.lproj/Shop.strings"), '"title" = "Shop";');
        assert.ok(isValid(JSON.parse(check(folder, "."))), "without results");
    } finally {
        rmSync(folder, { recursive: true, force: true });
    }
});
