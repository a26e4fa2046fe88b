// test.js <program> <folder for pages and screenshots> <chromium> [test...]: pages in a browser, as people use them.
import assert from "node:assert/strict";
import {execFileSync, spawnSync} from "node:child_process";
import {mkdirSync, statSync, writeFileSync} from "node:fs";
import path from "node:path";
import {pathToFileURL} from "node:url";

import {chromium} from "playwright-core";

const [program, folder, executablePath, ...chosen] = process.argv.slice(2);
mkdirSync(folder, {recursive: true});

const cli = (args, input = "") =>
    execFileSync(program, args, {input, cwd: folder, encoding: "utf8", maxBuffer: 1 << 28, stdio: ["pipe", "pipe", "ignore"]});
const write = (name, content) =>
{
    writeFileSync(path.join(folder, name), content);
    return name;
};
const make = (name, ...args) =>
{
    cli(["view", "-o", name, ...args]);
    return name;
};

const examples = cli(["example"]).trim().split("\n").map((line) =>
{
    const [name] = line.split(" ");
    return {name, record: cli(["example", name]), hex: cli(["compose", "-"], cli(["example", name])).trim()};
});
assert.ok(examples.length >= 5);
const typical = examples.find(({name}) => name === "typical-call");
const others = examples.find(({name}) => name === "secondary-cells");
examples.forEach(({name, hex}) => write(`${name}.hex`, hex));
const jsonOf = (hex) => JSON.parse(cli(["decode", "--json", "--as", "hex", "-"], hex));

// The bits of each element by the decoder's trace, those below it included.
const rangesOf = (hex) =>
{
    const ranges = new Map();
    for (const line of cli(["decode", "--trace", "--as", "hex", "-"], hex).split("\n").slice(1))
    {
        const [, first, width, at] = /^(\d+)(?:\.\.\d+)? +\S+ +(\d+) +\S+ +(CellGroupConfig[^:= ]*)/.exec(line) || [];
        if (at === undefined || line.endsWith(" CellGroupConfig: padding"))
        {
            continue;
        }
        const [begin, end] = [Number(first), Number(first) + Number(width)];
        // Each end of a step: a member's name, an element's index, a group of additions, which is no element.
        const steps = at.match(/^[^.[]+|\.\[\[\d+\]\]|\.[^.[]+|\[\d+\]/g);
        assert.equal(steps.join(""), at);
        for (let i = 1; i <= steps.length; ++i)
        {
            const name = steps.slice(0, i).filter((step) => !step.startsWith(".[[")).join("");
            const [low, high] = ranges.get(name) || [begin, end];
            ranges.set(name, [Math.min(low, begin), Math.max(high, end)]);
        }
    }
    return ranges;
};
const numbers = ([begin, end]) => Array.from({length: end - begin}, (_, i) => begin + i);

const browser = await chromium.launch({executablePath, args: ["--no-sandbox"]});
const partsFile = new URL("pageParts.js", import.meta.url).pathname;

// Opens a file; whatever the browser says or asks for besides it is a failure of the test.
const open = async (name, options = {}) =>
{
    const context = await browser.newContext({viewport: {width: 1400, height: 950}, offline: true, ...options});
    await context.addInitScript({path: partsFile});
    const page = await context.newPage();
    page.setDefaultTimeout(60000); // a busy machine is slow, not wrong
    const url = pathToFileURL(path.join(folder, name)).href;
    page.complaints = [];
    page.on("console", (message) => page.complaints.push(`console: ${message.text()}`));
    page.on("pageerror", (error) => page.complaints.push(`error: ${error.message}`));
    page.on("request", (request) => request.url() === url || page.complaints.push(`request: ${request.url().slice(0, 200)}`));
    await page.goto(url);
    return page;
};
const close = async (page) =>
{
    assert.deepEqual(page.complaints, []);
    await page.context().close();
};
const shot = (page, name) => page.screenshot({path: path.join(folder, `${name}.png`)});

// Roles that people act on or jump to have to have a name.
const namedRoles = new Set([
    "button", "checkbox", "combobox", "group", "img", "link", "list box", "listbox", "menu", "radio", "region",
    "searchbox", "slider", "spinbutton", "switch", "tab", "textbox", "toolbar", "tree", "treeitem"
]);
const nameless = async (page) =>
{
    const client = await page.context().newCDPSession(page);
    const {nodes} = await client.send("Accessibility.getFullAXTree");
    const bad = [];
    const roles = new Map();
    const parents = new Map(nodes.map((node) => [node.nodeId, node.parentId]));
    const byId = new Map(nodes.map((node) => [node.nodeId, node]));
    for (const node of nodes.filter(({ignored}) => !ignored))
    {
        const role = node.role?.value;
        roles.set(role, (roles.get(role) || 0) + 1);
        // The lists of a tree are groups named by the item around them.
        const isOfTree = role === "group" && byId.get(parents.get(node.nodeId))?.role?.value === "treeitem";
        if (namedRoles.has(role) && !isOfTree && !node.name?.value?.trim())
        {
            bad.push(`${role} ${JSON.stringify(node.properties || [])}`);
        }
    }
    return {bad, roles};
};

const tests = {
    async examplesOpenAndSayWhatDecodeSays()
    {
        for (const {name, hex} of examples)
        {
            const page = await open(make(`${name}.html`, `${name}.hex`));
            const shown = await page.evaluate(() => window.parts.items()[0].value);
            assert.deepEqual(shown, jsonOf(hex), name);
            await shot(page, name);
            await close(page);
        }
    },

    async treeAndOctetsLightEachOther()
    {
        const page = await open("typical-call.html");
        const ranges = rangesOf(typical.hex);
        // Each element by an event, some of them by the mouse.
        const lit = await page.evaluate(() => window.parts.items().map((entry) =>
        {
            entry.row.dispatchEvent(new MouseEvent("mouseover", {bubbles: true}));
            return [entry.path, window.parts.lit()];
        }));
        assert.ok(lit.length > 300);
        for (const [at, bits] of lit)
        {
            assert.deepEqual(bits, ranges.has(at) ? numbers(ranges.get(at)) : [], at);
        }
        const rows = page.locator(".t .r");
        for (let i = 0; i < lit.length; i += Math.floor(lit.length / 8))
        {
            await rows.nth(i).hover({position: {x: 3, y: 3}});
            assert.deepEqual(await page.evaluate(() => window.parts.lit()), lit[i][1], lit[i][0]);
        }
        // A bit belongs to the smallest element around it.
        const size = typical.hex.length * 4;
        for (let bit = 5; bit < size; bit += Math.floor(size / 12))
        {
            const around = [...ranges].filter(([, [begin, end]]) => begin <= bit && bit < end);
            const least = Math.min(...around.map(([, [begin, end]]) => end - begin));
            const handle = await page.evaluateHandle((at) => window.parts.bit(at), bit);
            await handle.asElement().scrollIntoViewIfNeeded();
            await handle.asElement().hover();
            const at = await page.evaluate(() => window.parts.pointed());
            assert.ok(around.some(([name, [begin, end]]) => name === at && end - begin === least), `bit ${bit}: ${at}`);
            assert.deepEqual(await page.evaluate(() => window.parts.lit()), numbers(ranges.get(at)));
        }
        await close(page);
    },

    async searchFoldAndCopy()
    {
        const page = await open("typical-call.html", {permissions: ["clipboard-read", "clipboard-write"]});
        const wanted = "drx";
        await page.keyboard.press("/");
        await page.keyboard.type(wanted);
        const expected = await page.evaluate((text) => window.parts.items().filter(({row}) =>
            row.textContent.toLowerCase().includes(text)).map((entry) => entry.path), wanted);
        assert.ok(expected.length >= 5);
        await page.keyboard.press("Enter");
        assert.equal(await page.evaluate(() => window.parts.current()), expected[0]);
        await page.keyboard.press("Enter");
        assert.equal(await page.evaluate(() => window.parts.current()), expected[1]);
        await page.keyboard.press("Escape");

        await page.keyboard.press("c");
        await page.waitForFunction(() => document.querySelector(".foot output").textContent.startsWith("copied"));
        assert.equal(await page.evaluate(() => navigator.clipboard.readText()), expected[1]);

        const seen = () => page.evaluate(() => window.parts.items().filter(({row}) => row.getClientRects().length).length);
        const all = await seen();
        await page.getByRole("button", {name: "Collapse all"}).click();
        const top = Object.keys(jsonOf(typical.hex)).length + 1;
        assert.equal(await seen(), top);
        await page.getByRole("button", {name: "Expand all"}).click();
        assert.equal(await seen(), all);
        await page.locator(".t > li").focus();
        await page.keyboard.press("ArrowLeft");
        assert.equal(await seen(), 1);
        await page.keyboard.press("ArrowRight");
        assert.equal(await seen(), all);
        await page.keyboard.press("ArrowDown");
        assert.equal(await page.evaluate(() => window.parts.current()), "CellGroupConfig.cellGroupId");
        await close(page);
    },

    async differencesAreSteppedThrough()
    {
        const a = write("before.json", JSON.stringify(jsonOf(typical.hex)));
        const changed = jsonOf(typical.hex);
        changed.cellGroupId = 1;
        changed["mac-CellGroupConfig"]["drx-Config"].setup["drx-InactivityTimer"] = "ms2560";
        delete changed.physicalCellGroupConfig;
        const b = write("after.json", JSON.stringify(changed));
        const page = await open(make("two.html", a, b));
        const {status, stdout} = spawnSync(program, ["diff", "--json", a, b], {cwd: folder, encoding: "utf8"});
        assert.equal(status, 1);
        const paths = JSON.parse(stdout).differences.map((one) => one.path.replace(/\[(\d+)[^\]]*\]/g, "[$1]"));
        assert.equal(paths.length, 3);
        await page.keyboard.press("n");
        for (const at of paths)
        {
            const current = await page.evaluate(() => [window.parts.current(0), window.parts.current(1)]);
            assert.ok(current.includes(at), `${at} among ${current}`);
            await page.keyboard.press("n");
        }
        assert.ok((await page.evaluate(() => window.parts.current(0))).startsWith(paths[0])); // around
        await page.keyboard.press("p");
        assert.ok((await page.evaluate(() => [window.parts.current(0), window.parts.current(1)])).includes(paths.at(-1)));
        await page.getByRole("checkbox", {name: "Only differences"}).check();
        const seen = await page.evaluate(() => window.parts.items(0).filter(({row}) => row.getClientRects().length)
            .map((entry) => entry.path));
        assert.ok(seen.includes("CellGroupConfig.cellGroupId"));
        assert.ok(!seen.some((at) => at.startsWith("CellGroupConfig.rlc-BearerToAddModList")));
        const shown = await page.evaluate(() => [0, 1].map((which) => window.parts.items(which)[0].value));
        assert.deepEqual(shown, [jsonOf(typical.hex), changed]);
        await shot(page, "two");
        await close(page);
    },

    async pictureLeadsToTheElement()
    {
        const page = await open(make("picture.html", "--band", "n78", "--carrier", "30:0:273", "typical-call.hex"));
        const drawn = await page.evaluate(() => [...document.querySelectorAll("svg [data-path]")].map((one) => one.dataset.path));
        assert.ok(drawn.length > 5, `${drawn.length} drawn`);
        const known = new Set(await page.evaluate(() => window.parts.items().map((entry) => entry.path)));
        for (const [i, at] of drawn.entries())
        {
            assert.ok(known.has(at), `${at} is no element`);
            const current = await page.evaluate((number) =>
            {
                document.querySelectorAll("svg [data-path]")[number].dispatchEvent(new MouseEvent("click", {bubbles: true}));
                return window.parts.current();
            }, i);
            assert.equal(current, at);
        }
        // By the mouse: whatever is on top there.
        const shapes = page.locator("svg [data-path]");
        let clicked = 0;
        for (let i = 0; i < drawn.length && clicked < 3; ++i)
        {
            await shapes.nth(i).scrollIntoViewIfNeeded();
            const box = await shapes.nth(i).boundingBox();
            if (!box || box.width < 1 || box.height < 1)
            {
                continue;
            }
            const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
            const top = await page.evaluate(([left, upper]) =>
                document.elementFromPoint(left, upper)?.closest("[data-path]")?.dataset.path, [x, y]);
            if (top)
            {
                await page.mouse.click(x, y);
                assert.equal(await page.evaluate(() => window.parts.current()), top);
                ++clicked;
            }
        }
        assert.equal(clicked, 3);
        await page.locator("svg").first().scrollIntoViewIfNeeded();
        await shot(page, "picture");
        await close(page);
    },

    async everyControlHasAName()
    {
        for (const name of ["typical-call.html", "two.html", "playground.html"])
        {
            const page = await open(name);
            if (name === "playground.html")
            {
                await page.selectOption("#example", {label: "the lists that release"});
                await page.waitForSelector("#result .t");
            }
            const {bad, roles} = await nameless(page);
            assert.deepEqual(bad, [], name);
            assert.ok(roles.get("tree") >= 1 && roles.get("treeitem") > 3 && roles.get("button") > 2 && roles.get("main") === 1,
                      JSON.stringify([...roles]));
            await close(page);
        }
    },

    async withoutScriptTheTreeIsText()
    {
        for (const {name, hex} of examples)
        {
            const page = await open(`${name}.html`, {javaScriptEnabled: false});
            const text = await page.locator("body").innerText();
            const words = new Set();
            const collect = (value, key) =>
            {
                words.add(key);
                Object.entries(Object(value) === value ? value : {}).forEach(([inner, one]) => collect(one, inner));
            };
            Object.entries(jsonOf(hex)).forEach(([key, value]) => collect(value, key));
            const absent = [...words].filter((word) => !/^\d+$/.test(word) && !text.includes(word));
            assert.deepEqual(absent, [], name);
            if (name === "typical-call")
            {
                await shot(page, "without-script");
            }
            await close(page);
        }
    },

    async darkAndLight()
    {
        for (const colorScheme of ["dark", "light"])
        {
            const page = await open("typical-call.html", {colorScheme});
            const [ink, paper] = await page.evaluate(() =>
            {
                const style = getComputedStyle(document.body);
                const light = (text) => /rgba?\((\d+), (\d+), (\d+)/.exec(text).slice(1).reduce((sum, one) => sum + Number(one), 0) / 765;
                return [light(style.color), light(style.backgroundColor)];
            });
            assert.ok(colorScheme === "dark" ? ink > 0.7 && paper < 0.2 : ink < 0.3 && paper > 0.8, `${colorScheme} ${ink} ${paper}`);
            await shot(page, colorScheme);
            await close(page);
        }
    },

    async playgroundShowsWhatViewShows()
    {
        const page = await open("playground.html");
        assert.ok(statSync(path.join(folder, "playground.html")).size < 1.5e6);
        const octets = typical.hex.match(/../g);
        const dump = octets.reduce((all, octet, i) =>
            all + (i % 16 === 0 ? `${i ? "\n" : ""}${i.toString(16).padStart(8, "0")} ` : "") + ` ${octet}`, "");
        const forms = {
            hex: typical.hex,
            hexdump: dump,
            "c-array": `const uint8_t m[] = {${octets.map((octet) => `0x${octet}`).join(", ")}};`,
            escaped: `"${octets.map((octet) => `\\x${octet}`).join("")}"`,
            base64: Buffer.from(typical.hex, "hex").toString("base64"),
            log: `18:02:11.532 RRC: masterCellGroup ${typical.hex} sent`,
            jer: JSON.stringify(jsonOf(typical.hex)),
            flat: cli(["decode", "--flat", "--as", "hex", "-"], typical.hex),
            record: typical.record,
        };
        // The content of a page, whatever the message is called.
        const contentOf = (selector, name) => [selector, name];
        const content = async (from, [selector, name]) => (await from.locator(selector).innerHTML()).replaceAll(name, "message");
        const settled = async () =>
        {
            await page.waitForFunction(() => document.getElementById("status").textContent !== "");
            return page.locator("#status").innerText();
        };
        const paste = async (text, field = "#textA") =>
        {
            await page.evaluate(() => { document.getElementById("status").textContent = ""; });
            await page.locator(field).fill(text);
            return settled();
        };
        for (const [form, text] of Object.entries(forms))
        {
            const other = await open(make("same.html", write("given", text)));
            const said = await paste(text);
            assert.ok(said.startsWith("Shown"), `${form}: ${said}`);
            assert.equal(await content(page, contentOf("#result > div", "message")), await content(other, contentOf("#page", "given")), form);
            await close(other);
        }
        // Two, with what is known besides.
        await page.fill("#band", "n78");
        await page.selectOption("#extent", "1");
        await paste(others.hex, "#textB");
        await page.waitForSelector("#result .two");
        const other = await open(make("same.html", "--band", "n78", "--full", write("given", typical.record), write("given.hex", others.hex)));
        assert.equal(await content(page, contentOf("#result > div", "message")),
                     (await other.locator("#page").innerHTML()).replaceAll("given.hex", "message").replaceAll("given", "message"));
        await close(other);
        await shot(page, "playground-two");
        // A file, octets that are no text.
        await page.getByRole("button", {name: "Clear"}).click();
        write("call.bin", Buffer.from(typical.hex, "hex"));
        await page.setInputFiles("#fileA", path.join(folder, "call.bin"));
        await page.waitForSelector("#result .t");
        assert.match(await page.locator("#result .about").innerText(), /binary, 446 octets/);
        assert.equal(await page.locator("#result h2").first().innerText(), "call.bin");
        // Who types keeps the focus.
        await page.getByRole("button", {name: "Clear"}).click();
        await page.locator("#textA").pressSequentially(typical.hex.slice(0, 40));
        await page.waitForSelector("#result .t");
        assert.equal(await page.evaluate(() => document.activeElement.id), "textA");
        await shot(page, "playground");
        await close(page);
    },

    async playgroundRefuses()
    {
        const page = await open("playground.html");
        const refusal = async (text) =>
        {
            await page.evaluate((value) =>
            {
                document.getElementById("status").textContent = "";
                const field = document.getElementById("textA");
                field.value = value;
                field.dispatchEvent(new Event("input", {bubbles: true}));
            }, text);
            await page.waitForFunction(() => document.getElementById("status").textContent !== "");
            return page.locator("#status").innerText();
        };
        const said = (text) => spawnSync(program, ["decode", "-"], {input: text, encoding: "utf8"}).stderr;
        for (const text of ["5c00b1 zz", "5ca0 123", "{\"cellGroupId\": 77}", "CellGroupConfig.cellGroupId = 4\nCellGroupConfig.nothing = 1"])
        {
            const words = await refusal(text);
            const [, line, column, reason] = /^Message, line (\d+), column (\d+): ([^\n]+)/.exec(words);
            const tool = said(text);
            assert.ok(new RegExp(`[ :]${line}:${column}: `).test(tool) && tool.includes(reason.split("Read as")[0].split("Show the place")[0].trim()),
                      `${words} / ${tool}`);
        }
        // What is offered instead.
        await refusal("5ca00001 0102 03");
        await shot(page, "playground-refusal");
        await page.locator("#status").getByRole("button", {name: "Read as hex"}).click();
        await page.waitForSelector("#result .t");
        assert.equal(await page.locator("#formA").inputValue(), "hex");
        await page.selectOption("#formA", "");
        // 1 MB of rubbish ends in words, and the page goes on.
        const rubbish = {
            letters: "x".repeat(1 << 20), hex: "5c".repeat(1 << 19), brackets: "{\"a\":[".repeat(174763),
            lines: "deadbeef\n5ca0".repeat(1 << 16).slice(0, 1 << 20),
            noise: Array.from({length: 1 << 20}, (_, i) => String.fromCharCode(32 + (i * 7919 ^ i >> 3) % 95)).join(""),
        };
        for (const [kind, text] of Object.entries(rubbish))
        {
            const begin = Date.now();
            const words = await refusal(text);
            assert.ok(words.startsWith("Message"), `${kind}: ${words}`);
            assert.ok(Date.now() - begin < 15000, `${kind} took ${Date.now() - begin} ms`);
        }
        // A program that ends is said to have ended, and the next one begins anew.
        await page.evaluate(() =>
        {
            window.whole = WebAssembly.instantiate;
            WebAssembly.instantiate = () => Promise.reject(new WebAssembly.RuntimeError("unreachable"));
        });
        assert.match(await refusal(typical.hex), /could not show this: unreachable/);
        await page.evaluate(() => { WebAssembly.instantiate = window.whole; });
        assert.match(await refusal(typical.hex), /^Shown/);
        await close(page);
    },

    async playgroundIsUsedByKeys()
    {
        const page = await open("playground.html", {colorScheme: "dark"});
        await page.keyboard.press("Tab");
        const order = [];
        for (let i = 0; i < 13; ++i)
        {
            order.push(await page.evaluate(() => document.activeElement.id));
            await page.keyboard.press("Tab");
        }
        assert.deepEqual(order, ["textA", "formA", "fileA", "textB", "formB", "fileB", "band", "duplex", "extent", "message",
                                 "group", "example", "clear"]);
        await page.locator("#example").focus();
        await page.keyboard.press("ArrowDown");
        await page.waitForSelector("#result .t");
        assert.equal(await page.evaluate(() => document.activeElement.id), "example");
        await shot(page, "playground-dark");
        await close(page);
    },
};

make("playground.html");
const begin = Date.now();
let failed = 0;
for (const [name, test] of Object.entries(tests).filter(([one]) => chosen.length === 0 || chosen.includes(one)))
{
    const start = Date.now();
    try
    {
        await test();
        console.log(`passed  ${name} ${Date.now() - start} ms`);
    }
    catch (error)
    {
        ++failed;
        console.log(`FAILED  ${name} ${Date.now() - start} ms\n${String(error.stack).slice(0, 2000)}`);
    }
}
await browser.close();
console.log(`${Object.keys(tests).length} tests, ${failed} failed, ${Date.now() - begin} ms; screenshots in ${folder}`);
process.exit(failed === 0 ? 0 : 1);
