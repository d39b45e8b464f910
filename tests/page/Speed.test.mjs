// How long a large building takes to be on the screen, and what a frame costs beside a page that does nothing else.
// Drawn in software on a busy machine, seconds say little: a figure is printed, and only what no user would wait for
// fails.

import assert from "node:assert/strict";
import { statSync } from "node:fs";
import { after, before, test } from "node:test";

import { Building, launch, OpenPage } from "./Browser.mjs";

let browser;
before(async () => { browser = await launch(); });
after(() => browser.close());

/** Milliseconds a frame: the shortest of several rounds in which `draw` asks for a frame each time one is shown. */
const kFrameTime = `async (draw) => {
    const frame = () => new Promise((resolve) => requestAnimationFrame(resolve));
    let shortest = Infinity;
    for (let round = 0; round < 5; ++round) {
        await frame();
        const start = performance.now();
        for (let i = 0; i < 10; ++i) {
            draw();
            await frame();
        }
        shortest = Math.min(shortest, (performance.now() - start) / 10);
    }
    return shortest;
}`;

/** A page with nothing but the same number of triangles of the same number of vertices, about as large on the screen. */
const kBarePage = ({ triangles, width, height }) => `<canvas width="${width}" height="${height}"></canvas><script>
    const gl = document.querySelector("canvas").getContext("webgl2", { antialias: true });
    const program = gl.createProgram();
    const attach = (type, text) => {
        const shader = gl.createShader(type);
        gl.shaderSource(shader, "#version 300 es\\nprecision highp float;" + text);
        gl.compileShader(shader);
        gl.attachShader(program, shader);
    };
    attach(gl.VERTEX_SHADER, "in vec3 at; uniform float turn; out vec3 colour; void main() {" +
        "colour = abs(at); gl_Position = vec4(at.x * cos(turn) - at.y * sin(turn), at.y, at.z * 0.5, 1.0); }");
    attach(gl.FRAGMENT_SHADER, "in vec3 colour; out vec4 drawn; void main() { drawn = vec4(colour, 1.0); }");
    gl.linkProgram(program);
    gl.useProgram(program);
    const size = 0.05;
    const places = new Float32Array(${triangles} * 9);
    for (let i = 0; i < places.length; ++i) {
        const corner = Math.floor(i / 9) * 3 + i % 3;
        places[i] = Math.sin(corner * 12.9898) * 0.9 + (Math.floor(i % 9 / 3) === i % 3 ? size : 0);
    }
    gl.bindBuffer(gl.ARRAY_BUFFER, gl.createBuffer());
    gl.bufferData(gl.ARRAY_BUFFER, places, gl.STATIC_DRAW);
    gl.enableVertexAttribArray(0);
    gl.vertexAttribPointer(0, 3, gl.FLOAT, false, 0, 0);
    gl.enable(gl.DEPTH_TEST);
    let turn = 0;
    function draw() {
        gl.clear(gl.COLOR_BUFFER_BIT | gl.DEPTH_BUFFER_BIT);
        gl.uniform1f(gl.getUniformLocation(program, "turn"), turn += 0.05);
        gl.drawArrays(gl.TRIANGLES, 0, ${triangles} * 3);
    }
</script>`;

test("a frame of the tower costs at most twice a bare page's", async () => {
    const building = new Building().sample("tower");
    const { page, context } = await OpenPage.open(browser, building.page());
    const { triangles } = await page.evaluate(() => window.satwecvt.statistics());
    const canvas = await page.locator("canvas").evaluate(({ width, height }) => ({ width, height }));
    await page.locator("canvas").focus();
    const ours = await page.evaluate(`(${kFrameTime})(() => document.activeElement.dispatchEvent(
        new KeyboardEvent("keydown", { key: "ArrowLeft", bubbles: true })))`);
    const bare = await context.newPage();
    await bare.setContent(kBarePage({ triangles, ...canvas }));
    const theirs = await bare.evaluate(`(${kFrameTime})(draw)`);
    await context.close();
    building.remove();
    console.log(`figure: a frame of the tower ${ours.toFixed(1)} ms, of a bare page ${theirs.toFixed(1)} ms, ` +
                `${(ours / theirs).toFixed(2)} of it`);
    assert.ok(ours <= 2 * theirs, `${ours} ms, a bare page ${theirs} ms`);
});

test("100,000 elements are drawn with as few calls as one, and soon", async () => {
    const building = new Building().tower("--stories", "20", "--bays-x", "25", "--bays-y", "25");
    const address = building.page();
    const start = performance.now();
    const opened = await OpenPage.open(browser, address);
    await opened.page.locator("canvas").screenshot();
    const seconds = (performance.now() - start) / 1000;
    const elements = await opened.page.getByRole("main").getByText("elements shown").textContent();
    const [, count] = elements.match(/ ([\d,]+) of/);
    const { calls } = await opened.statistics();
    const bytes = statSync(building.path("page.html")).size;
    console.log(`figure: ${count} elements on the screen in ${seconds.toFixed(1)} s, ${calls} draw calls, ` +
                `${bytes} bytes of page`);
    const items = Number(count.replaceAll(",", ""));
    assert.ok(items > 90_000, count);
    assert.ok(calls < 40, `${calls} draw calls`);
    assert.ok(bytes <= 1_000_000 + 100 * items, `${bytes} bytes`);
    assert.ok(seconds < 60, `${seconds} s`);
    assert.deepEqual(opened.complaints, []);
    await opened.close();
    building.remove();
});
